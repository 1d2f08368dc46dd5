#include "period/PeriodName.h"

#include "backends/icu/IcuLocaleFormats.h"
#include "period/DateInspectorController.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

/// The English rules put thin spaces around the dash.
QString spanOf(const char* first, const char* last) {
    return QString::fromLatin1(first) + QStringLiteral("\u2009\u2013\u2009") +
           QString::fromLatin1(last);
}

class PeriodNameTest : public testing::Test {
protected:
    QString name(PeriodKind kind, Instant start, Instant end) const {
        return nameOfPeriod(static_cast<qint64>(kind), start, end, american);
    }

    IcuLocaleFormats american{{"en_US", "en_US", "en_US"}, "UTC"};
    IcuLocaleFormats german{{"de_DE", "de_DE", "de_DE"}, "Europe/Berlin"};
    IcuLocaleFormats japanese{{"ja_JP", "ja_JP", "ja_JP"}, "Asia/Tokyo"};
};

TEST_F(PeriodNameTest, SaysEachPartOnce) {
    EXPECT_EQ(name(PeriodKind::Day, utc(2024, 3, 1), utc(2024, 3, 1, 23, 59, 59)),
              "Friday, March 1, 2024");
    EXPECT_EQ(name(PeriodKind::Week, utc(2024, 3, 3), utc(2024, 3, 9, 23, 59, 59)),
              spanOf("Mar 3", "9, 2024"));
    EXPECT_EQ(name(PeriodKind::Month, utc(2024, 3, 1), utc(2024, 3, 31, 23, 59, 59)), "March 2024");
    EXPECT_EQ(name(PeriodKind::Year, utc(2024, 1, 1), utc(2024, 12, 31, 23, 59, 59)), "2024");
    EXPECT_EQ(name(PeriodKind::Custom, utc(2024, 3, 20), utc(2024, 4, 2, 23, 59, 59)),
              spanOf("Mar 20", "Apr 2, 2024"));
}

TEST_F(PeriodNameTest, NamesBothYearsOfASpanThatHasTwo) {
    EXPECT_EQ(name(PeriodKind::Week, utc(2024, 12, 29), utc(2025, 1, 4, 23, 59, 59)),
              spanOf("Dec 29, 2024", "Jan 4, 2025"));
}

TEST_F(PeriodNameTest, CallsNothingAMonthOrAYearThatIsMoreOrLess) {
    EXPECT_EQ(name(PeriodKind::Month, utc(2024, 3, 1), utc(2024, 3, 30, 23, 59, 59)),
              spanOf("Mar 1", "30, 2024"));
    EXPECT_EQ(name(PeriodKind::Month, utc(2024, 2, 29), utc(2024, 3, 31, 23, 59, 59)),
              spanOf("Feb 29", "Mar 31, 2024"));
    EXPECT_EQ(name(PeriodKind::Year, utc(2024, 1, 1), utc(2024, 12, 30, 23, 59, 59)),
              spanOf("Jan 1", "Dec 30, 2024"));
}

TEST_F(PeriodNameTest, CallsASpanOfAWholeMonthThatWasPickedByItsDays) {
    EXPECT_EQ(name(PeriodKind::Custom, utc(2024, 3, 1), utc(2024, 3, 31, 23, 59, 59)),
              spanOf("Mar 1", "31, 2024"));
    EXPECT_EQ(nameOfPeriod(17, utc(2024, 3, 1), utc(2024, 3, 31, 23, 59, 59), american),
              spanOf("Mar 1", "31, 2024"));
}

TEST_F(PeriodNameTest, FollowsTheLocaleAndTheZone) {
    EXPECT_EQ(nameOfPeriod(2, utc(2024, 2, 29, 23), utc(2024, 3, 31, 21, 59, 59), german),
              QString::fromUtf8("März 2024"));
    EXPECT_EQ(nameOfPeriod(1, utc(2024, 3, 3, 23), utc(2024, 3, 10, 22, 59, 59), german),
              QString::fromUtf8("4.–10. März 2024"));
    EXPECT_EQ(nameOfPeriod(2, utc(2024, 2, 29, 15), utc(2024, 3, 31, 14, 59, 59), japanese),
              QString::fromUtf8("2024年3月"));
}

} // namespace

} // namespace quillet::test
