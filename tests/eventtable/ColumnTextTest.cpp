#include "eventtable/ColumnText.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/EventColumns.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

class ColumnTextTest : public testing::Test {
protected:
    ColumnTextTest() {
        billing.isMoneyOn = true;
        billing.singleRate = Decimal::fromInteger(60);
        details.calendar = test::calendarNamed("Work");
    }
    [[nodiscard]] QString shown(const char* identifier) {
        EventTexts texts(billing, formats, calendar);
        const Event event{start, end, Instant(), std::make_shared<const EventDetails>(details)};
        texts.setEvent(event);
        ColumnText column(eventColumn(QString::fromLatin1(identifier)));
        return column.of(event, texts).toString();
    }

    IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    BillingSettings billing;
    EventDetails details;
    Instant start = utc(2024, 3, 4, 22);
    Instant end = utc(2024, 3, 5, 1);
};

} // namespace

TEST_F(ColumnTextTest, IsTheFieldOfTheColumn) {
    details.title = "Night shift";
    details.location = "Room 1";
    details.notes = "Bring keys";
    details.url = "https://example.org/";
    EXPECT_EQ(shown("calendar"), "Work");
    EXPECT_EQ(shown("title"), "Night shift");
    EXPECT_EQ(shown("date"), "3/4/24");
    EXPECT_EQ(shown("endDate"), "3/5/24");
    EXPECT_EQ(shown("hours"), "3");
    EXPECT_EQ(shown("minutes"), "180");
    EXPECT_EQ(shown("duration"), "3h");
    EXPECT_EQ(shown("notes"), "Bring keys");
    EXPECT_EQ(shown("url"), "https://example.org/");
    EXPECT_EQ(shown("location"), "Room 1");
    EXPECT_EQ(shown("start"), u"10:00\u202FPM"_qs);
    EXPECT_EQ(shown("end"), u"1:00\u202FAM"_qs);
    EXPECT_EQ(shown("cost"), "$180.00");
    EXPECT_EQ(shown("rate"), "$60.00");
    EXPECT_EQ(shown("weekday"), "Monday");
    EXPECT_EQ(shown("endWeekday"), "Tuesday");
}

TEST_F(ColumnTextTest, AnEndAtMidnightBelongsToTheDayBefore) {
    end = utc(2024, 3, 5);
    EXPECT_EQ(shown("endDate"), "3/4/24");
    EXPECT_EQ(shown("endWeekday"), "Monday");
}

TEST_F(ColumnTextTest, DoublesPercentSignsInFreeTextsButNotInAddresses) {
    details.calendar = test::calendarNamed("%w%");
    details.title = "50% off %%";
    details.location = "%l";
    details.notes = "%n";
    details.url = "https://example.org/a%20b";
    EXPECT_EQ(shown("calendar"), "%%w%%");
    EXPECT_EQ(shown("title"), "50%% off %%%%");
    EXPECT_EQ(shown("location"), "%%l");
    EXPECT_EQ(shown("notes"), "%%n");
    EXPECT_EQ(shown("url"), "https://example.org/a%20b");
}

TEST_F(ColumnTextTest, LeavesQuotesAndLineFeedsAlone) {
    details.notes = "\"a\"\r\nb";
    EXPECT_EQ(shown("notes"), "\"a\"\r\nb");
}

TEST_F(ColumnTextTest, OfAMissingValueIsNullAndOfAnEmptyOneEmpty) {
    billing.isMoneyOn = false;
    for (const char* identifier : {"title", "location", "notes", "url", "cost"}) {
        EXPECT_TRUE(shown(identifier).isNull()) << identifier;
    }
    details.title = "";
    EXPECT_TRUE(shown("title").isEmpty());
    EXPECT_FALSE(shown("title").isNull());
}

} // namespace quillet
