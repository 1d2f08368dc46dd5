#pragma once

#include "platform/SettingsStore.h"
#include "results/EventResultsViewController.h"

#include <QWidget>

#include <array>

class QLabel;
class QTabBar;

namespace quillet {

/// The figures of all listed or of the selected events, which the exports follow: one row of
/// values, whose tab says of which events and whose time fields are those of the time type.
class ResultsPane : public QWidget {
    Q_OBJECT

public:
    explicit ResultsPane(SettingsStore& settings, QWidget* parent = nullptr);
    ~ResultsPane() override;
    Q_DISABLE_COPY_MOVE(ResultsPane)

    /// Shows the values of the controller from now on.
    void follow(EventResultsViewController& controller);

private:
    enum Position { Events, Total, Shortest, Longest, Average, Days, Cost, PositionCount };

    void makeTabs();
    void makeFigures();
    void scheduleRefresh();
    void refresh();
    [[nodiscard]] std::array<ResultField, PositionCount> shownFields() const;
    [[nodiscard]] ResultsTab shownTab() const;

    SettingsStore& settings_;
    EventResultsViewController* controller_ = nullptr;
    QTabBar* tabs_;
    std::array<QLabel*, PositionCount> names_{};
    std::array<QLabel*, PositionCount> values_{};
    bool isRefreshScheduled_ = false;
};

} // namespace quillet
