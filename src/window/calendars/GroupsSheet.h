#pragma once

#include "calendars/CalendarGroupsArrayController.h"
#include "calendars/CalendarGroupsArraySelectedCalendarsArrayController.h"
#include "platform/Sheet.h"

#include <QDialog>

class QLabel;
class QStackedWidget;
class QVBoxLayout;

namespace quillet {

class NameListEditor;
class NameListView;

/// The sheet of calendar groups: the groups, and the calendars of the one that is selected.
class GroupsSheet : public QDialog, public Sheet {
    Q_OBJECT

public:
    GroupsSheet(CalendarGroupsArrayController& groups,
                CalendarGroupsArraySelectedCalendarsArrayController& checklist,
                QWidget* parent = nullptr);
    ~GroupsSheet() override;
    Q_DISABLE_COPY_MOVE(GroupsSheet)

    void begin() override;
    void commitEditing() override;
    void end() override;
    void orderOut() override;

    /// Escape or the window's close button: asks to be closed.
    void reject() override;

Q_SIGNALS:
    void closeRequested();

private:
    [[nodiscard]] QVBoxLayout* groupsSide();
    [[nodiscard]] QVBoxLayout* calendarsSide();
    void addGroup();
    void showChecklistOrReason();

    CalendarGroupsArrayController& groups_;
    CalendarGroupsArraySelectedCalendarsArrayController& checklist_;
    NameListEditor* groupList_;
    NameListView* checklistView_ = nullptr;
    QLabel* reason_;
    QStackedWidget* checklistStack_;
};

} // namespace quillet
