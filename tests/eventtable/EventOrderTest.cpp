#include "eventtable/EventOrder.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::timedEvent;
using test::utc;

class EventOrderTest : public testing::Test {
protected:
    EventOrderTest() {
        settings.setObject("isDollarsOn", true);
        settings.setObject("isSingleRate", true);
        settings.setObject("hourlyRate", 10);
        list.setContent(std::vector{
            timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 11), "b", "beta"),         // Monday
            timedEvent(utc(2024, 3, 5, 8), utc(2024, 3, 5, 18), "a", "Alpha"),        // Tuesday
            timedEvent(utc(2024, 3, 10, 7), utc(2024, 3, 10, 7, 45), "c", "gamma")}); // Sunday
    }
    std::string sortedBy(const char* column, SortDirection direction = SortDirection::Ascending) {
        list.setSorter(eventSorter(column, direction, fields, calendar));
        std::string order;
        for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
            order += list.arranged(row).details->title.front().toLower().toLatin1();
        }
        return order;
    }

    test::MemorySettings settings;
    IcuCalendarArithmetic calendar{"de_DE", "UTC", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"de_DE", "de_DE", "de_DE"}, "UTC"};
    BillingSettingsSource source{settings, calendar};
    EventFields fields{source, formats, calendar, calendar};
    ListController<Event> list;
};

} // namespace

TEST_F(EventOrderTest, NumbersSortAsNumbers) {
    for (const char* column : {"hours", "minutes", "duration", "cost"}) {
        EXPECT_EQ(sortedBy(column), "gba") << column;
        EXPECT_EQ(sortedBy(column, SortDirection::Descending), "abg") << column;
    }
}

TEST_F(EventOrderTest, DatesSortByDateAndTimesByTimeOfDay) {
    EXPECT_EQ(sortedBy("date", SortDirection::Descending), "gab");
    EXPECT_EQ(sortedBy("start"), "gab");
    EXPECT_EQ(sortedBy("end"), "gba");
}

TEST_F(EventOrderTest, WeekdaysSortFromTheFirstDayOfTheWeek) {
    EXPECT_EQ(sortedBy("weekday"), "bag");
    EXPECT_EQ(sortedBy("endWeekday"), "bag");
}

TEST_F(EventOrderTest, TextsSortWithoutRegardToCase) {
    EXPECT_EQ(sortedBy("title"), "abg");
    EXPECT_EQ(sortedBy("calendar"), "abg");
}

TEST_F(EventOrderTest, EqualEventsKeepTheirOrder) {
    EXPECT_EQ(sortedBy("rate"), "bag");
    EXPECT_EQ(sortedBy("notes", SortDirection::Descending), "bag");
}

} // namespace quillet
