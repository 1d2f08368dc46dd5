#include "eventtable/EventTexts.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventdata/EventFields.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace quillet {

namespace {

using test::timedEvent;
using test::utc;

class EventTextsTest : public testing::TestWithParam<const char*> {
protected:
    EventTextsTest() {
        settings.setObject("isDollarsOn", true);
        settings.setObject("timeTypeSelection", 2);
        settings.setObject("isSingleRate", false);
        const auto record = [](const char* identifier, int rate) {
            return QVariantMap{{"calendarIdentifier", identifier}, {"rate", rate}};
        };
        settings.setObject("calendars", QVariantList{record("work", 100), record("home", 7)});
    }
    /// Compares every text with the one that the field's own formatting gives.
    void expectSameAsFields(EventTexts& texts, const Event& event) const {
        const auto text = [&](const char* key) {
            return fields.valueForKey(event, QString::fromLatin1(key)).toString();
        };
        const auto decimal = [&](const char* key) {
            return fields.valueForKey(event, QString::fromLatin1(key)).value<Decimal>();
        };
        texts.setEvent(event);
        EXPECT_EQ(texts.startDate(), formats.shortDate(event.startDate));
        EXPECT_EQ(texts.adjustedEndDate(), formats.shortDate(fields.adjustedEndDate(event)));
        EXPECT_EQ(texts.startTime(), text("startTime"));
        EXPECT_EQ(texts.endTime(), text("endTime"));
        EXPECT_EQ(texts.startWeekday(), text("startWeekday"));
        EXPECT_EQ(texts.endWeekday(), text("endWeekday"));
        EXPECT_EQ(texts.duration(), text("duration"));
        EXPECT_EQ(texts.minutes(), formats.number(decimal("minutes"), 2));
        EXPECT_EQ(texts.hours(), formats.number(decimal("hours"), 2));
        EXPECT_EQ(texts.rate(), formats.currency(decimal("rate")));
        EXPECT_EQ(texts.cost(), formats.currency(decimal("cost")));
    }

    test::MemorySettings settings;
    QString zone = QString::fromLatin1(GetParam());
    IcuCalendarArithmetic calendar{"en_US", zone, CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"de_DE", "en_GB", "fr_FR"}, zone};
    BillingSettingsSource source{settings, calendar};
    EventFields fields{source, formats, calendar, calendar};
};

} // namespace

TEST_P(EventTextsTest, RememberedTextsAreThoseOfTheFields) {
    EXPECT_TRUE(rc::check("texts of a few days", [this] {
        EventTexts texts(fields.billing(), formats, calendar);
        // Whole minutes of 1975 to 2030, many of them on few days, so that remembered texts are
        // used.
        const auto day = *rc::gen::inRange(5 * 365, 60 * 365);
        const auto count = *rc::gen::inRange(1, 12);
        for (int number = 0; number < count; ++number) {
            const auto start = Instant(std::chrono::days(day)) +
                               std::chrono::minutes(*rc::gen::inRange(0, 3 * 24 * 60));
            const auto length = std::chrono::minutes(*rc::gen::inRange(0, 2 * 24 * 60));
            const char* name = *rc::gen::element("work", "home");
            expectSameAsFields(texts, timedEvent(start, start + length, name));
        }
        RC_ASSERT(!testing::Test::HasFailure());
    }));
}

TEST_P(EventTextsTest, EveryQuarterHourAroundAClockChangeIsTold) {
    for (const Instant change : {utc(2024, 3, 10, 7), utc(2024, 3, 31, 1), utc(2024, 10, 27, 1),
                                 utc(2024, 11, 3, 6), utc(2024, 4, 6, 15), utc(1999, 10, 31, 2, 31),
                                 utc(2018, 11, 4, 3), utc(2011, 12, 30, 10)}) {
        EventTexts texts(fields.billing(), formats, calendar);
        for (auto instant = change - std::chrono::hours(30);
             instant < change + std::chrono::hours(30); instant += std::chrono::minutes(15)) {
            const Event event = timedEvent(instant, instant + std::chrono::minutes(50));
            expectSameAsFields(texts, event);
            EventTexts cell(fields.billing(), formats, calendar, TextReuse::None);
            expectSameAsFields(cell, event);
        }
    }
}

TEST_P(EventTextsTest, WithMoneyOffTheCostIsEmpty) {
    settings.setObject("isDollarsOn", false);
    EventTexts texts(fields.billing(), formats, calendar);
    const Event event = timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 10));
    texts.setEvent(event);
    EXPECT_EQ(texts.cost(), "");
}

INSTANTIATE_TEST_SUITE_P(Zones, EventTextsTest,
                         testing::Values("UTC", "Europe/Berlin", "America/New_York", "Asia/Kolkata",
                                         "Australia/Lord_Howe", "America/Sao_Paulo",
                                         "America/St_Johns", "Pacific/Apia"));

} // namespace quillet
