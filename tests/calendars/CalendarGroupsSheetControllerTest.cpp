#include "calendars/CalendarGroupsSheetController.h"

#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

TEST(CalendarGroupsSheetControllerTest, TheSheetIsShownBeforeItCountsAsOpen) {
    test::MemorySettings settings;
    test::FakeSheet sheet;
    CalendarGroupsSheetController controller(settings, sheet);
    QStringList callsWhenTold;
    const Observation observation =
        settings.observe("isCalendarGroupsSheetActive", [&] { callsWhenTold = sheet.calls; });
    controller.openCalendarGroupsSheet();
    EXPECT_EQ(settings.object("isCalendarGroupsSheetActive"), QVariant(true));
    EXPECT_EQ(callsWhenTold, QStringList{"begin"});
}

TEST(CalendarGroupsSheetControllerTest, ClosingTakesTheNameBeingTypedBeforeItCountsAsClosed) {
    test::MemorySettings settings;
    test::FakeSheet sheet;
    CalendarGroupsSheetController controller(settings, sheet);
    controller.openCalendarGroupsSheet();
    QStringList callsWhenTold;
    const Observation observation =
        settings.observe("isCalendarGroupsSheetActive", [&] { callsWhenTold = sheet.calls; });
    controller.closeCalendarGroupsSheet();
    EXPECT_EQ(settings.object("isCalendarGroupsSheetActive"), QVariant(false));
    EXPECT_EQ(callsWhenTold, (QStringList{"begin", "commitEditing", "end", "orderOut"}));
}

} // namespace quillet
