#include "eventtable/EventItemViewController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/ColumnLayout.h"
#include "eventtable/ColumnTable.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

class EventItemViewControllerTest : public testing::Test {
protected:
    EventItemViewControllerTest() {
        settings.setObject("timeTypeSelection", 1);
        settings.setObject("isDollarsOn", true);
    }
    int passes() const {
        return static_cast<int>(settings.writes.count("hiddenColumnsChangedTrigger"));
    }
    bool isHidden(const char* identifier) { return table.column(identifier).isHidden(); }

    test::MemorySettings settings;
    ColumnTable table{settings};
    ListController<CalendarRecord> calendars;
    IcuCalendarArithmetic berlin{"de_DE", "Europe/Berlin", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "Europe/Berlin"};
    EventItemViewController controller{{settings, table, calendars, berlin, formats}};
};

} // namespace

TEST_F(EventItemViewControllerTest, TheFirstStartWritesTitlesAndVisibilities) {
    controller.awakeFromNib();
    for (const EventColumn& column : eventColumns()) {
        EXPECT_EQ(settings.object(column.title.name()),
                  QVariant(column.title.firstRunValue().toString()));
        EXPECT_EQ(settings.object(column.visibility.name()), column.visibility.firstRunValue());
    }
    EXPECT_EQ(settings.object("startWeekdayColumnTitle"), QVariant("Start Weekday"));
    EXPECT_FALSE(settings.object("weekdayColumnTitle").isValid());
    EXPECT_EQ(settings.object("isProgressIndicatorOn"), QVariant(false));
    EXPECT_EQ(passes(), 1);
    for (const char* shown : {"date", "hours", "title", "cost", "calendar"}) {
        EXPECT_FALSE(isHidden(shown)) << shown;
    }
    for (const char* hidden : {"notes", "url", "location", "weekday", "endWeekday", "start", "end",
                               "endDate", "rate", "duration", "minutes"}) {
        EXPECT_TRUE(isHidden(hidden)) << hidden;
    }
}

TEST_F(EventItemViewControllerTest, TitlesThatAreAbsentAreWrittenInTheirOrderAndOthersKept) {
    settings.setObject("notesColumnTitle", "Remarks");
    settings.writes.clear();
    controller.awakeFromNib();
    QStringList written;
    for (const QString& key : settings.writes) {
        if (key.endsWith(QStringLiteral("ColumnTitle"))) {
            written << key.chopped(static_cast<int>(std::size("ColumnTitle")) - 1);
        }
    }
    EXPECT_EQ(written, (QStringList{"title", "hours", "minutes", "duration", "date", "endDate",
                                    "location", "url", "startTime", "endTime", "startWeekday",
                                    "endWeekday", "calendar", "rate", "cost"}));
    EXPECT_EQ(settings.object("notesColumnTitle"), QVariant("Remarks"));
}

TEST_F(EventItemViewControllerTest, TheChosenTimeColumnTakesThePlaceAndWidthOfTheOneShown) {
    controller.awakeFromNib();
    table.moveColumn(table.positionOf("hours"), 3);
    table.column("hours").setWidthPoints(70);
    const int before = passes();
    settings.setObject("timeTypeSelection", 2);
    EXPECT_TRUE(isHidden("hours"));
    EXPECT_FALSE(isHidden("minutes"));
    EXPECT_EQ(table.positionOf("minutes"), 3);
    EXPECT_EQ(table.column("minutes").widthPoints(), 70);
    EXPECT_EQ(passes(), before + 1);
    EXPECT_EQ(controller.shownTimeMenuItem(), TimeType::Minutes);
}

TEST_F(EventItemViewControllerTest, OfTwoRivalsTheSecondGivesThePlaceAndTheWidth) {
    controller.awakeFromNib();
    const auto placeOfChosen = [&](int timeType, const char* chosen, const char* first,
                                   const char* second) {
        settings.setObject("timeTypeSelection", 0);
        table.column(chosen).setHidden(true);
        table.moveColumn(table.positionOf(chosen), 0);
        table.column(first).setHidden(false);
        table.column(first).setWidthPoints(60);
        table.moveColumn(table.positionOf(first), 4);
        table.column(second).setHidden(false);
        table.column(second).setWidthPoints(80);
        table.moveColumn(table.positionOf(second), 9);
        settings.setObject("timeTypeSelection", timeType);
        EXPECT_TRUE(isHidden(first) && isHidden(second));
        EXPECT_FALSE(isHidden(chosen));
        EXPECT_EQ(table.column(chosen).widthPoints(), 80) << chosen;
        EXPECT_EQ(table.positionOf(chosen), 9) << chosen;
    };
    placeOfChosen(1, "hours", "duration", "minutes");
    placeOfChosen(2, "minutes", "hours", "duration");
    placeOfChosen(3, "duration", "hours", "minutes");
}

TEST_F(EventItemViewControllerTest, WithTimeOffTheChosenColumnAndItsRivalsAreHidden) {
    controller.awakeFromNib();
    table.column("duration").setHidden(false);
    settings.setObject("isHoursColumn", false);
    EXPECT_TRUE(isHidden("hours"));
    EXPECT_TRUE(isHidden("duration"));
    EXPECT_TRUE(isHidden("minutes"));
}

TEST_F(EventItemViewControllerTest, CostFollowsItsKeyOnlyWhileMoneyIsOn) {
    controller.awakeFromNib();
    settings.setObject("isDollarsOn", false);
    EXPECT_TRUE(isHidden("cost"));
    EXPECT_EQ(settings.object("isCostColumn"), QVariant(true));
    settings.setObject("isDollarsOn", true);
    EXPECT_FALSE(isHidden("cost"));
    settings.setObject("isRateColumn", true);
    EXPECT_FALSE(isHidden("rate"));
}

TEST_F(EventItemViewControllerTest, WithoutMoneyTheRateIsHiddenWhateverItsKeySays) {
    settings.setObject("isDollarsOn", false);
    settings.setObject("isRateColumn", true);
    controller.awakeFromNib();
    EXPECT_TRUE(isHidden("rate"));
    settings.setObject("isDollarsOn", true);
    EXPECT_FALSE(isHidden("rate"));
}

TEST_F(EventItemViewControllerTest, EveryPassFlipsTheTriggerAlsoWithoutAChange) {
    controller.awakeFromNib();
    const bool before = boolForKey(settings, "hiddenColumnsChangedTrigger");
    controller.setHiddenEventColumns();
    EXPECT_NE(boolForKey(settings, "hiddenColumnsChangedTrigger"), before);
    controller.setHiddenEventColumns();
    EXPECT_EQ(boolForKey(settings, "hiddenColumnsChangedTrigger"), before);
}

TEST_F(EventItemViewControllerTest, EveryWriteOfAVisibilityKeyIsOnePassAlsoAnEqualOne) {
    controller.awakeFromNib();
    const int before = passes();
    settings.setObject("isTitleColumn", true);
    settings.setObject("isHoursColumn", true);
    EXPECT_EQ(passes(), before + 2);
}

TEST_F(EventItemViewControllerTest, AnUnknownTimeTypeLeavesTheTimeColumnsAlone) {
    settings.setObject("timeTypeSelection", 0);
    table.column("hours").setHidden(true);
    table.column("minutes").setHidden(false);
    controller.awakeFromNib();
    EXPECT_TRUE(isHidden("hours"));
    EXPECT_FALSE(isHidden("minutes"));
    EXPECT_EQ(controller.shownTimeMenuItem(), std::nullopt);
    EXPECT_EQ(passes(), 1);
}

TEST_F(EventItemViewControllerTest, ResettingOverwritesTheUsersTitles) {
    controller.awakeFromNib();
    settings.setObject("startWeekdayColumnTitle", "Mine");
    settings.setObject("titleColumnTitle", "Mine");
    for (const EventColumn& column : eventColumns()) {
        settings.setObject(column.title.name(), "Mine");
    }
    controller.resetAllColumnTitles();
    for (const EventColumn& column : eventColumns()) {
        EXPECT_EQ(settings.object(column.title.name()),
                  QVariant(column.title.firstRunValue().toString()));
    }
    EXPECT_EQ(settings.object("startWeekdayColumnTitle"), QVariant("Start Weekday"));
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Title"));
}

TEST_F(EventItemViewControllerTest, TheRateLabelNamesTheOneSelectedCalendar) {
    CalendarRecord work;
    work.title = "Work";
    calendars.setContent(std::vector{work, CalendarRecord()});
    controller.awakeFromNib();
    EXPECT_EQ(controller.hourlyRateLabelString(), QString());
    calendars.setSelectedRows({0});
    EXPECT_EQ(controller.hourlyRateLabelString(), QStringLiteral("Work Calendar Hourly Rate: $"));
    calendars.setSelectedRows({0, 1});
    EXPECT_EQ(controller.hourlyRateLabelString(), QStringLiteral(" Calendar Hourly Rate: $"));
    calendars.setSelectedRows({});
    EXPECT_EQ(controller.hourlyRateLabelString(), QStringLiteral(" Calendar Hourly Rate: $"));
}

TEST_F(EventItemViewControllerTest, TheRateLabelIsMadeAtTheStartAndWhenTheCalendarsAreWritten) {
    CalendarRecord work;
    work.title = "Work";
    calendars.setContent(std::vector{work});
    calendars.setSelectedRows({0});
    controller.awakeFromNib();
    EXPECT_EQ(controller.hourlyRateLabelString(), QStringLiteral("Work Calendar Hourly Rate: $"));
    int changes = 0;
    QObject::connect(&controller, &EventItemViewController::hourlyRateLabelStringChanged,
                     &controller, [&changes] { ++changes; });
    settings.setObject("calendars", QVariantList());
    EXPECT_EQ(changes, 1);
}

TEST_F(EventItemViewControllerTest, DaysAreCountedOverAChangeOfTheClock) {
    const auto count = [&](Instant start, Instant end) {
        settings.setObject("eventStartDate", QVariant::fromValue(start));
        settings.setObject("eventEndDate", QVariant::fromValue(end));
        return controller.totalDays();
    };
    EXPECT_EQ(count(utc(2024, 3, 29, 23), utc(2024, 4, 1, 21, 59, 59)), 3);
    EXPECT_EQ(count(utc(2024, 10, 25, 22), utc(2024, 10, 28, 22, 59, 59)), 3);
    EXPECT_EQ(count(utc(2024, 3, 30, 23), utc(2024, 3, 31, 21, 59, 59)), 1);
    EXPECT_EQ(count(utc(2024, 3, 3, 23), utc(2024, 3, 10, 22, 59, 59)), 7);
}

TEST_F(EventItemViewControllerTest, ThePeriodLabels) {
    controller.awakeFromNib();
    EXPECT_EQ(controller.periodLabelString(), QStringLiteral("Day"));
    settings.setObject("eventStartDate", QVariant::fromValue(utc(2024, 2, 29, 23)));
    settings.setObject("eventEndDate", QVariant::fromValue(utc(2024, 3, 31, 21, 59, 59)));
    controller.setDateRangeLabel();
    EXPECT_EQ(controller.totalDays(), 31);
    EXPECT_EQ(controller.dateRangeLabelString(), QStringLiteral("March 1, 2024 - March 31, 2024"));
    const QStringList kinds{"Day", "Week", "Month", "Year", "31 Days"};
    for (int kind = 0; kind < kinds.size(); ++kind) {
        settings.setObject("quickDatePeriodIndex", kind);
        controller.setPeriodLabel();
        EXPECT_EQ(controller.periodLabelString(), kinds[kind]);
    }
    settings.setObject("isCustomDateOn", true);
    controller.setPeriodLabel();
    EXPECT_EQ(controller.periodLabelString(), QStringLiteral("Custom"));
    settings.setObject("quickDatePeriodIndex", 9);
    controller.setPeriodLabel();
    EXPECT_EQ(controller.periodLabelString(), QString());
}

TEST(ColumnLayoutTest, TheDefaultPlacementsArePutInOneAfterTheOther) {
    const test::MemorySettings settings;
    ColumnTable table{settings};
    applyPlacements(defaultColumnPlacements(), table);
    QStringList order;
    for (int position = 0; position < table.columnCount(); ++position) {
        order << table.columnAt(position).identifier();
    }
    // Found by making the sixteen moves on paper.
    EXPECT_EQ(order, (QStringList{"date", "calendar", "title", "hours", "minutes", "duration",
                                  "url", "cost", "location", "start", "weekday", "end", "endDate",
                                  "notes", "rate", "endWeekday"}));
    EXPECT_EQ(table.column("title").widthPoints(), 240);
}

TEST(ColumnLayoutTest, AnIndexOutsideTheTableLeavesTheColumnWhereItIs) {
    const test::MemorySettings settings;
    ColumnTable table{settings};
    applyPlacements({{.identifier = "title", .title = {}, .widthPoints = 50, .index = 99},
                     {.identifier = "nonsense", .title = {}, .widthPoints = 50, .index = 0}},
                    table);
    EXPECT_EQ(table.positionOf("title"), 2);
    EXPECT_EQ(table.column("title").widthPoints(), 50);
}

} // namespace quillet
