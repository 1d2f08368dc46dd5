#include "calendars/CalendarGroupsSheetController.h"

#include "platform/Settings.h"

namespace quillet {

void CalendarGroupsSheetController::openCalendarGroupsSheet() {
    theSheet_.begin();
    settings::isCalendarGroupsSheetActive.write(settings_, true);
}

void CalendarGroupsSheetController::closeCalendarGroupsSheet() {
    theSheet_.commitEditing();
    theSheet_.end();
    theSheet_.orderOut();
    settings::isCalendarGroupsSheetActive.write(settings_, false);
}

} // namespace quillet
