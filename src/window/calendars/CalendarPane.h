#pragma once

#include "window/calendars/CalendarListModel.h"

#include <QWidget>

class QTableView;

namespace quillet {

class ProblemFoot;

/// The list of calendars, and at its foot what could not be read.
class CalendarPane : public QWidget {
    Q_OBJECT

public:
    CalendarPane(CalendarsArrayController& calendars, CalendarListModel::ColorOf colorOf,
                 QWidget* parent = nullptr);
    ~CalendarPane() override;
    Q_DISABLE_COPY_MOVE(CalendarPane)

    /// Puts a widget above the list, whose it becomes.
    void setHeader(QWidget& header);
    /// One line for each, plain text; none hides the foot.
    void showProblems(const QStringList& problems);
    /// Draws the calendars' colours anew.
    void refreshColors();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeSelectionFromView();
    void showSelectionOfList();

    CalendarsArrayController& calendars_;
    CalendarListModel* model_;
    QTableView* table_;
    ProblemFoot* foot_;
    bool isShowingSelection_ = false;
};

} // namespace quillet
