#include "eventdata/EventFigures.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventdata/CalendarRecord.h"
#include "eventdata/Duration.h"
#include "eventdata/EventFields.h"
#include "eventdata/ValueTransformers.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillet {

namespace {

using test::allDayEvent;
using test::timedEvent;
using test::utc;

class EventFiguresTest : public testing::Test {
protected:
    void setPeriod(Instant firstDay, Instant lastDay) {
        settings.setObject("filterStartDate", QVariant::fromValue(firstDay));
        settings.setObject("filterEndDate", QVariant::fromValue(lastDay));
    }
    void setRecords(std::initializer_list<std::pair<const char*, double>> rates) {
        QVariantList list;
        for (const auto& [identifier, rate] : rates) {
            CalendarRecord record;
            record.calendarIdentifier = identifier;
            record.rate = Decimal::fromDouble(rate);
            list.append(valueFromCalendarRecord(record));
        }
        settings.setObject("calendars", list);
        settings.setObject("isSingleRate", false);
    }
    EventFigures of(const Event& event) { return figures(event, source.current()); }
    std::string text(const std::optional<Decimal>& value) {
        return value ? value->toString().toStdString() : "absent";
    }

    test::MemorySettings settings;
    IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    BillingSettingsSource source{settings, calendar};
    Event ninetyMinutes = timedEvent(utc(2024, 3, 1, 9), utc(2024, 3, 1, 10, 30));
};

} // namespace

TEST_F(EventFiguresTest, OnlyTheMinutesInsideThePeriodCount) {
    const Event night = timedEvent(utc(2024, 3, 1, 23), utc(2024, 3, 2, 1));
    setPeriod(utc(2024, 3, 1), utc(2024, 3, 1));
    EXPECT_EQ(of(night).minutes, 60);
    setPeriod(utc(2024, 3, 1), utc(2024, 3, 2, 23, 59, 59));
    EXPECT_EQ(of(night).minutes, 120);
}

TEST_F(EventFiguresTest, AnEventOutsideThePeriodIsNotCorrectedToZero) {
    setPeriod(utc(2024, 3, 5), utc(2024, 3, 5));
    EXPECT_EQ(of(ninetyMinutes).minutes, -(3 * 1440 + 13 * 60 + 30));
    EXPECT_EQ(of(ninetyMinutes).duration, QStringLiteral("0h"));
}

TEST_F(EventFiguresTest, HalfAMinuteRoundsUp) {
    EXPECT_EQ(of(timedEvent(utc(2024, 3, 1), utc(2024, 3, 1, 0, 1, 30))).minutes, 2);
    EXPECT_EQ(of(timedEvent(utc(2024, 3, 1), utc(2024, 3, 1, 0, 1, 29))).minutes, 1);
}

TEST_F(EventFiguresTest, AnAllDayEventCountsItsHoursForEachDayInsideThePeriod) {
    setPeriod(utc(2024, 3, 1), utc(2024, 3, 31));
    settings.setObject("allDayHours", 8);
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 5))).minutes, 480);
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 7))).minutes, 3 * 480);
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 30), utc(2024, 4, 3))).minutes, 2 * 480);
    settings.setObject("allDayHours", 0);
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 5))).minutes, 0);
}

TEST_F(EventFiguresTest, TooManyHoursOfADayAreCorrectedInTheSettings) {
    settings.setObject("allDayHours", 30);
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 5))).minutes, 1440);
    EXPECT_EQ(integerForKey(settings, "allDayHours"), 24);
    settings.remove("allDayHours");
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 5))).minutes, 1440);
    EXPECT_EQ(integerForKey(settings, "allDayHours"), 24);
}

TEST_F(EventFiguresTest, HoursOfADayStoredAsATextAreReadAsANumber) {
    settings.setObject("allDayHours", "8");
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 5))).minutes, 480);
    settings.setObject("allDayHours", "abc");
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 5))).minutes, 0);
}

TEST_F(EventFiguresTest, AnAllDayEventOnADayOf23Or25HoursCountsThatMuch) {
    const IcuCalendarArithmetic berlin("de_DE", "Europe/Berlin", CalendarSystem::Gregorian);
    BillingSettingsSource berlinSource(settings, berlin);
    EXPECT_EQ(
        figures(allDayEvent(utc(2024, 3, 30, 23), utc(2024, 3, 31, 22)), berlinSource.current())
            .minutes,
        23 * 60);
    EXPECT_EQ(
        figures(allDayEvent(utc(2024, 10, 26, 22), utc(2024, 10, 27, 23)), berlinSource.current())
            .minutes,
        25 * 60);
}

TEST_F(EventFiguresTest, ThePeriodEndsAfter86400SecondsOnADayOf23HoursToo) {
    const IcuCalendarArithmetic berlin("de_DE", "Europe/Berlin", CalendarSystem::Gregorian);
    BillingSettingsSource berlinSource(settings, berlin);
    setPeriod(utc(2024, 3, 30, 23), utc(2024, 3, 31, 21, 59, 59));
    // From 21:30 to 23:30 UTC: the day ends at 22:00, the period an hour later.
    EXPECT_EQ(figures(timedEvent(utc(2024, 3, 31, 21, 30), utc(2024, 3, 31, 23, 30)),
                      berlinSource.current())
                  .minutes,
              90);
}

TEST_F(EventFiguresTest, MoneyFromMinutesShowsTheRoundingOfTheMinuteRate) {
    settings.setObject("isSingleRate", true);
    settings.setObject("isDollarsOn", true);
    settings.setObject("hourlyRate", 100);
    EXPECT_EQ(text(of(ninetyMinutes).cost), "150.00000000000003");
}

TEST_F(EventFiguresTest, MoneyFromHoursRoundsTheHoursFirst) {
    settings.setObject("isSingleRate", true);
    settings.setObject("isDollarsOn", true);
    settings.setObject("hourlyRate", 100);
    settings.setObject("timeTypeSelection", 1);
    EXPECT_EQ(text(of(timedEvent(utc(2024, 3, 1, 9), utc(2024, 3, 1, 9, 50))).cost), "83");
    EXPECT_EQ(text(of(ninetyMinutes).cost), "150");
}

TEST_F(EventFiguresTest, MoneyOfAnEventOutsideThePeriodIsNegativeFromMinutesAndPositiveFromHours) {
    settings.setObject("isSingleRate", true);
    settings.setObject("isDollarsOn", true);
    settings.setObject("hourlyRate", 60);
    setPeriod(utc(2024, 3, 2), utc(2024, 3, 2));
    const Event dayBefore = timedEvent(utc(2024, 3, 1, 9), utc(2024, 3, 1, 22, 30));
    EXPECT_EQ(text(of(dayBefore).cost), "-90");
    settings.setObject("timeTypeSelection", 1);
    EXPECT_EQ(text(of(dayBefore).cost), "90") << "hours are written without a sign first";
}

TEST_F(EventFiguresTest, EverySettingThatTheFiguresDependOnCountsAtOnce) {
    const auto cost = [this] { return text(of(ninetyMinutes).cost); };
    setRecords({{"work", 30}});
    EXPECT_EQ(cost(), "absent");
    settings.setObject("isDollarsOn", true);
    EXPECT_EQ(cost(), "45");
    settings.setObject("hourlyRate", 100);
    settings.setObject("isSingleRate", true);
    EXPECT_EQ(cost(), "150.00000000000003");
    settings.setObject("timeTypeSelection", 1);
    EXPECT_EQ(cost(), "150");
    settings.setObject("hourlyRate", 80);
    EXPECT_EQ(cost(), "120");
    setRecords({{"work", 40}});
    EXPECT_EQ(cost(), "60");
    setRecords({{"work", 50}});
    EXPECT_EQ(cost(), "75");
}

TEST_F(EventFiguresTest, ThePeriodBeginsWithItsFirstDayWhateverTheTimeThatIsStored) {
    setPeriod(utc(2024, 3, 1, 12), utc(2024, 3, 1, 12));
    EXPECT_EQ(of(timedEvent(utc(2024, 2, 29, 23), utc(2024, 3, 2, 1))).minutes, 1440);
}

TEST_F(EventFiguresTest, HoursAreExactToThirtyEightDigits) {
    EXPECT_EQ(of(timedEvent(utc(2024, 3, 1, 9), utc(2024, 3, 1, 9, 50))).hours.toString(),
              QStringLiteral("0.83333333333333333333333333333333333333"));
}

TEST_F(EventFiguresTest, WithMoneyOffThereIsNoCostWhateverTheRate) {
    settings.setObject("hourlyRate", 100);
    EXPECT_EQ(text(of(ninetyMinutes).cost), "absent");
    EXPECT_FALSE(of(ninetyMinutes).cost);
}

TEST_F(EventFiguresTest, ANegativeRateCountsAsItsMagnitudeRoundedToTwoDecimals) {
    settings.setObject("isSingleRate", true);
    settings.setObject("hourlyRate", -49.995);
    EXPECT_EQ(text(of(ninetyMinutes).rate), "50");
    settings.setObject("hourlyRate", 0.125);
    EXPECT_EQ(text(of(ninetyMinutes).rate), "0.12");
}

TEST_F(EventFiguresTest, ASingleRateThatWasNeverStoredIsZero) {
    settings.setObject("isSingleRate", true);
    EXPECT_EQ(text(of(ninetyMinutes).rate), "0");
}

TEST_F(EventFiguresTest, ASingleRateThatWasNeverStoredIsStoredAsZeroOnceMoneyIsOn) {
    (void)source.current();
    EXPECT_FALSE(settings.object("hourlyRate").isValid());
    settings.setObject("isDollarsOn", true);
    EXPECT_EQ(text(of(ninetyMinutes).cost), "NaN") << "no record and no single rate";
    EXPECT_EQ(settings.object("hourlyRate").value<Decimal>(), Decimal());
    EXPECT_TRUE(settings.object("hourlyRate").isValid());
}

TEST_F(EventFiguresTest, AbsurdHoursOfADayAreCountedWithoutOverflowing) {
    settings.setObject("allDayHours", std::numeric_limits<qint64>::min());
    EXPECT_LT(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 6))).minutes, 0);
    settings.setObject("allDayHours", -8);
    EXPECT_EQ(of(allDayEvent(utc(2024, 3, 4), utc(2024, 3, 5))).minutes, -480);
}

TEST_F(EventFiguresTest, OnADayOf23HoursEightHoursCountProportionally) {
    const IcuCalendarArithmetic berlin("de_DE", "Europe/Berlin", CalendarSystem::Gregorian);
    BillingSettingsSource berlinSource(settings, berlin);
    settings.setObject("allDayHours", 8);
    EXPECT_EQ(
        figures(allDayEvent(utc(2024, 3, 30, 23), utc(2024, 3, 31, 22)), berlinSource.current())
            .minutes,
        460);
    EXPECT_EQ(
        figures(allDayEvent(utc(2024, 10, 26, 22), utc(2024, 10, 27, 23)), berlinSource.current())
            .minutes,
        500);
}

TEST_F(EventFiguresTest, ANegativeSpanRoundsHalvesAwayFromZero) {
    setPeriod(utc(2024, 3, 5), utc(2024, 3, 5));
    EXPECT_EQ(of(timedEvent(utc(2024, 3, 4, 23), utc(2024, 3, 4, 23, 59, 30))).minutes, -1);
    EXPECT_EQ(of(timedEvent(utc(2024, 3, 4, 23), utc(2024, 3, 4, 23, 59, 31))).minutes, 0);
}

TEST_F(EventFiguresTest, TheLastRecordOfACalendarDecides) {
    setRecords({{"work", 10}, {"home", 20}, {"work", 30}});
    EXPECT_EQ(text(of(ninetyMinutes).rate), "30");
}

TEST_F(EventFiguresTest, WithoutARecordTheRateAndTheCostAreNotNumbers) {
    setRecords({{"home", 20}});
    settings.setObject("isDollarsOn", true);
    EXPECT_TRUE(of(ninetyMinutes).rate.isNaN());
    ASSERT_TRUE(of(ninetyMinutes).cost);
    EXPECT_TRUE(of(ninetyMinutes).cost->isNaN());
}

TEST_F(EventFiguresTest, ARecordWithoutARateCountsAsZero) {
    settings.setObject("isSingleRate", false);
    settings.setObject("calendars", QVariantList{QVariantMap{{"calendarIdentifier", "work"}}});
    EXPECT_EQ(text(of(ninetyMinutes).rate), "0");
}

TEST_F(EventFiguresTest, TheOldRateWithADecimalCommaIsBroughtIntoTodaysForm) {
    settings.setObject("hourlyRate", "99,5");
    settings.writes.clear();
    source.migrateHourlyRate();
    EXPECT_EQ(settings.writes, (QStringList{"tempNumberRate", "hourlyRate", "hourlyRate"}));
    EXPECT_EQ(settings.object("tempNumberRate"), QVariant("99.5"));
    EXPECT_EQ(settings.object("hourlyRate"), QVariant(99.5));
    settings.setObject("hourlyRate", "7,5");
    source.migrateHourlyRate();
    EXPECT_EQ(settings.object("hourlyRate"), QVariant("7,5"));
}

TEST_F(EventFiguresTest, AnOldRateThatIsANumberKeepsItsValue) {
    settings.setObject("hourlyRate", 62.25);
    source.migrateHourlyRate();
    EXPECT_EQ(settings.object("tempNumberRate"), QVariant("62.25"));
    EXPECT_EQ(settings.object("hourlyRate"), QVariant(62.25));
}

TEST_F(EventFiguresTest, WithoutAnOldRateTheMigrationLeavesItsMark) {
    source.migrateHourlyRate();
    EXPECT_EQ(decimalFromValue(settings.object("tempNumberRate")), Decimal::fromInteger(1));
    EXPECT_FALSE(settings.object("hourlyRate").isValid());
}

TEST(DurationTest, ReadsAsHoursAndMinutes) {
    const std::vector<std::pair<int, const char*>> cases{
        {0, "0h"},      {-5, "0h"},  {45, "0h 45m"}, {59, "0h 59m"}, {60, "1h"},   {61, "1h 1m"},
        {90, "1h 30m"}, {120, "2h"}, {125, "2h 5m"}, {1440, "24h"},  {1, "0h 1m"},
    };
    for (const auto& [minutes, expected] : cases) {
        EXPECT_EQ(makeDurationFromMinutes(minutes).toStdString(), expected);
    }
}

TEST(EventFieldsTest, ReadsEveryFieldByItsKey) {
    test::MemorySettings settings;
    const IcuCalendarArithmetic berlin("de_DE", "Europe/Berlin", CalendarSystem::Gregorian);
    const IcuLocaleFormats formats({"de_DE", "de_DE", "de_DE"}, "Europe/Berlin");
    BillingSettingsSource source(settings, berlin);
    const EventFields fields(source, formats, berlin, berlin);
    const Event event = timedEvent(utc(2024, 3, 1, 8, 0, 5), utc(2024, 3, 1, 9, 0, 30));
    EXPECT_EQ(fields.valueForKey(event, "startTime"), QVariant("09:00"));
    EXPECT_EQ(fields.valueForKey(event, "endTime"), QVariant("10:00"));
    EXPECT_EQ(fields.valueForKey(event, "startWeekday"), QVariant("Freitag"));
    EXPECT_EQ(fields.adjustedEndDate(event), utc(2024, 3, 1, 8, 59, 59));
    EXPECT_EQ(fields.valueForKey(event, "timeIntervalSinceStartOfDayForStartDate"),
              QVariant(9 * 3600.0 + 5));
    EXPECT_EQ(fields.valueForKey(event, "timeIntervalSinceStartOfDayForEndDate"),
              QVariant(10 * 3600.0 + 30));
    EXPECT_EQ(fields.valueForKey(event, "duration"), QVariant("1h"));
    EXPECT_FALSE(fields.valueForKey(event, "notes").isValid());
    EXPECT_FALSE(fields.valueForKey(event, "cost").isValid());
    EXPECT_FALSE(fields.valueForKey(event, "nonsense").isValid());
    const Event allDay = allDayEvent(utc(2024, 2, 29, 23), utc(2024, 3, 1, 23));
    EXPECT_EQ(fields.valueForKey(allDay, "endWeekday"), QVariant("Freitag"));
}

TEST(ValueTransformersTest, ShowNumbersAndMoney) {
    const IcuLocaleFormats formats({"en_US", "en_US", "en_US"}, "UTC");
    EXPECT_EQ(NumberFormatTransformer(formats).transformedValue(-1.505), QStringLiteral("1.5"));
    EXPECT_EQ(CurrencyFormatTransformer(formats).transformedValue(1234),
              QStringLiteral("$1,234.00"));
    EXPECT_EQ(NumberFormatTransformer(formats).transformedValue({}), QString());
}

TEST(CalendarRecordTest, KeepsMembersItDoesNotKnowAndReadsWrongTypesLeniently) {
    const QVariantMap stored{{"calendarIdentifier", "work"},
                             {"title", 7},
                             {"rate", "12.5"},
                             {"isSelected", "YES"},
                             {"later", 1}};
    const CalendarRecord record = calendarRecordFromValue(stored);
    EXPECT_EQ(record.title, QStringLiteral("7"));
    EXPECT_EQ(record.rate, Decimal::fromDouble(12.5));
    EXPECT_TRUE(record.isSelected);
    EXPECT_EQ(valueFromCalendarRecord(record).toMap().value("later"), QVariant(1));
}

} // namespace quillet
