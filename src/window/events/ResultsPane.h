#pragma once

#include "platform/SettingsStore.h"
#include "results/EventResultsViewController.h"

#include <QWidget>

#include <array>

class QHBoxLayout;

namespace quillet {

class Figure;
class SegmentedControl;

/// The figures of all listed or of the selected events, which the exports follow: time and money as
/// the largest texts of the window, the others beside them as far as there is room.
class ResultsPane : public QWidget {
    Q_OBJECT

public:
    explicit ResultsPane(SettingsStore& settings, QWidget* parent = nullptr);
    ~ResultsPane() override;
    Q_DISABLE_COPY_MOVE(ResultsPane)

    /// Shows the values of the controller from now on.
    void follow(EventResultsViewController& controller);
    /// Puts a control at the end of the row.
    void addControl(QWidget& control);
    /// All figures, as a screen reader says them: "Events: 36, Total: 82 hours, …".
    [[nodiscard]] QString spokenFigures() const;
    /// The figures that matter most: "36 events, 82 hours, $6,282.39".
    [[nodiscard]] QString spokenTotals() const;

Q_SIGNALS:
    /// What is shown has changed, and is on screen.
    void shown();

private:
    enum Position { Events, Total, Shortest, Longest, Average, Days, Cost, PositionCount };

    void makeChooser();
    void makeFigures();
    void arrange();
    void scheduleRefresh();
    void refresh();
    void showTotal(const QString& value);
    [[nodiscard]] Figure& figure(Position position) const;
    [[nodiscard]] std::array<ResultField, PositionCount> shownFields() const;
    [[nodiscard]] ResultsTab shownTab() const;

    SettingsStore& settings_;
    EventResultsViewController* controller_ = nullptr;
    SegmentedControl* chooser_;
    QHBoxLayout* row_;
    std::array<Figure*, PositionCount> figures_{};
    QString spokenTotal_;
    bool isRefreshScheduled_ = false;
};

} // namespace quillet
