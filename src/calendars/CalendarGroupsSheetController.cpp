#include "calendars/CalendarGroupsSheetController.h"

namespace quillet {

namespace {

const QString sheetKey = QStringLiteral("isCalendarGroupsSheetActive");

} // namespace

void CalendarGroupsSheetController::openCalendarGroupsSheet() {
    theSheet_.begin();
    settings_.setObject(sheetKey, true);
}

void CalendarGroupsSheetController::closeCalendarGroupsSheet() {
    theSheet_.commitEditing();
    theSheet_.end();
    theSheet_.orderOut();
    settings_.setObject(sheetKey, false);
}

} // namespace quillet
