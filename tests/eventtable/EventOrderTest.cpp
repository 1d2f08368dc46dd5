#include "eventtable/EventOrder.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuCollator.h"
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
        list.setSorter(order.sorter(column, direction));
        std::string letters;
        for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
            letters += list.arranged(row).details->title.front().toLower().toLatin1();
        }
        return letters;
    }

    test::MemorySettings settings;
    IcuCalendarArithmetic calendar{"de_DE", "UTC", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"de_DE", "de_DE", "de_DE"}, "UTC"};
    BillingSettingsSource source{settings, calendar};
    EventFields fields{source, formats, calendar, calendar};
    IcuCollator collator{"de_DE"};
    EventOrder order{fields, calendar, collator};
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

TEST_F(EventOrderTest, TextsSortAsTheLanguageDoes) {
    const auto titled = [](const char* title) {
        return timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 10), "a", QString::fromUtf8(title));
    };
    const auto titles = [&] {
        QStringList result;
        for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
            result << list.arranged(row).details->title;
        }
        return result;
    };
    list.setContent(std::vector{titled("Zahl"), titled("Öl"), titled("Ofen"), titled("Ärger"),
                                titled("apfel"), titled("")});
    list.setSorter(order.sorter("title", SortDirection::Ascending));
    EXPECT_EQ(titles(), (QStringList{"", "apfel", "Ärger", "Ofen", "Öl", "Zahl"}));
    // Texts that come later find their places among those that are known.
    list.setContent(std::vector{titled("Öl"), titled("Ähre"), titled("apfel"), titled("Olm")});
    EXPECT_EQ(titles(), (QStringList{"Ähre", "apfel", "Öl", "Olm"}));
    list.setSorter(order.sorter("title", SortDirection::Descending));
    EXPECT_EQ(titles(), (QStringList{"Olm", "Öl", "apfel", "Ähre"}));
}

TEST_F(EventOrderTest, TimesOfDayAreThoseOfTheWallOnDaysWhoseClocksChange) {
    const IcuCalendarArithmetic berlin("de_DE", "Europe/Berlin", CalendarSystem::OfLocale);
    const EventFields berlinFields(source, formats, berlin, berlin);
    EventOrder berlinOrder(berlinFields, berlin, collator);
    std::vector<Event> quarters;
    for (const Instant change : {utc(2024, 3, 31, 1), utc(2024, 10, 27, 1), utc(2024, 7, 1)}) {
        for (int quarter = -120; quarter < 120; ++quarter) {
            const Instant start = change + std::chrono::minutes(15) * quarter;
            quarters.push_back(timedEvent(start, start + std::chrono::minutes(50)));
        }
    }
    list.setContent(quarters);
    const auto expectOrder = [&](const char* column, auto keyOf) {
        list.setSorter(berlinOrder.sorter(column, SortDirection::Ascending));
        for (std::size_t row = 1; row < list.arrangedCount(); ++row) {
            EXPECT_LE(keyOf(list.arranged(row - 1)), keyOf(list.arranged(row))) << column;
        }
    };
    expectOrder("start", [&](const Event& event) {
        return berlinFields.timeIntervalSinceStartOfDay(event.startDate);
    });
    expectOrder("end", [&](const Event& event) {
        return berlinFields.timeIntervalSinceStartOfDay(event.endDate);
    });
    expectOrder("weekday", [&](const Event& event) {
        return (berlin.components(event.startDate).weekday + 5) % 7;
    });
    expectOrder("endWeekday", [&](const Event& event) {
        return (berlin.components(berlinFields.adjustedEndDate(event)).weekday + 5) % 7;
    });
}

TEST_F(EventOrderTest, TimesOfDayAreThoseOfTheZoneThatTheUserHasTravelledTo) {
    const auto zone = std::make_shared<UserTimeZone>(QTimeZone::utc());
    const IcuCalendarArithmetic travelling("de_DE", zone, CalendarSystem::OfLocale);
    EventOrder travellingOrder(fields, travelling, collator);
    list.setSorter(travellingOrder.sorter("start", SortDirection::Ascending));
    ASSERT_EQ(list.arranged(0).details->title, "gamma") << "at seven";
    // Nine hours ahead, 09:00 is 18:00 and 18:00 is 03:00.
    list.setContent(
        std::vector{timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 11), "b", "beta"),
                    timedEvent(utc(2024, 3, 5, 18), utc(2024, 3, 5, 19), "a", "Alpha")});
    ASSERT_EQ(list.arranged(0).details->title, "beta");
    zone->change(QTimeZone("Asia/Tokyo"));
    travellingOrder.followZoneChange();
    list.setSorter(travellingOrder.sorter("start", SortDirection::Ascending));
    EXPECT_EQ(list.arranged(0).details->title, "Alpha") << "at three in the morning";
}

TEST_F(EventOrderTest, RatesSortAsNumbersAndThoseThatAreNoneStandFirst) {
    settings.setObject("isSingleRate", false);
    const auto record = [](const char* identifier, int rate) {
        return QVariantMap{{"calendarIdentifier", identifier}, {"rate", rate}};
    };
    settings.setObject("calendars", QVariantList{record("b", 100), record("a", 20)});
    EXPECT_EQ(sortedBy("rate"), "gab");
    EXPECT_EQ(sortedBy("cost"), "gab") << "two hours at 100, ten at 20, and no rate at all";
    settings.setObject("calendars", QVariantList{record("b", 1), record("a", 20)});
    EXPECT_EQ(sortedBy("cost"), "gba") << "new rates are taken";
}

TEST_F(EventOrderTest, EqualEventsKeepTheirOrder) {
    EXPECT_EQ(sortedBy("rate"), "bag");
    EXPECT_EQ(sortedBy("notes", SortDirection::Descending), "bag");
}

} // namespace quillet
