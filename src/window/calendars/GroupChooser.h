#pragma once

#include "calendars/CalendarGroupsController.h"
#include "calendars/CalendarGroupsSheetController.h"
#include "window/calendars/GroupsSheet.h"

#include <QWidget>

class QComboBox;

namespace quillet {

/// The calendar groups and which of them is chosen.
struct WindowGroups {
    CalendarGroupsArrayController& groups;
    CalendarGroupsArraySelectedCalendarsArrayController& checklist;
    CalendarGroupsController& chosen;
};

/// Chooses the calendar group, and opens the sheet in which groups are edited.
class GroupChooser : public QWidget {
    Q_OBJECT

public:
    /// The sheet belongs to the window.
    GroupChooser(const WindowGroups& groups, SettingsStore& settings, QWidget& window);
    ~GroupChooser() override;
    Q_DISABLE_COPY_MOVE(GroupChooser)

    void openSheet();

private:
    void showGroups();

    WindowGroups with_;
    GroupsSheet* sheet_;
    CalendarGroupsSheetController sheetController_;
    QComboBox* chooser_;
};

} // namespace quillet
