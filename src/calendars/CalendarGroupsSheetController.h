#pragma once

#include "platform/SettingsStore.h"
#include "platform/Sheet.h"

namespace quillet {

/// Opens and closes the sheet in which calendar groups are edited. Whether it is open is kept in
/// `isCalendarGroupsSheetActive` alone.
class CalendarGroupsSheetController {
public:
    CalendarGroupsSheetController(SettingsStore& settings, Sheet& theSheet)
        : settings_(settings)
        , theSheet_(theSheet) {}

    void openCalendarGroupsSheet();
    /// A name that is being typed counts.
    void closeCalendarGroupsSheet();

private:
    SettingsStore& settings_;
    Sheet& theSheet_;
};

} // namespace quillet
