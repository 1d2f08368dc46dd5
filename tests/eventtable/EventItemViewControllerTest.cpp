#include "eventtable/EventItemViewController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/ColumnLayout.h"
#include "support/EventTableFake.h"
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
    bool isHidden(const char* identifier) { return table.column(identifier).hidden; }

    test::MemorySettings settings;
    test::FakeTable table = test::eventTable();
    std::array<test::FakeMenuItem, 6> items;
    ListController<CalendarRecord> calendars;
    IcuCalendarArithmetic berlin{"de_DE", "Europe/Berlin", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "Europe/Berlin"};
    EventItemViewController controller{{settings,
                                        table,
                                        {items[0], items[1], items[2]},
                                        {items[3], items[4], items[5]},
                                        calendars,
                                        berlin,
                                        formats}};
};

} // namespace

TEST_F(EventItemViewControllerTest, TheFirstStartWritesTitlesAndVisibilities) {
    controller.awakeFromNib();
    for (const EventColumn& column : eventColumns()) {
        EXPECT_EQ(settings.object(QString::fromLatin1(column.titleKey)),
                  QVariant(QString::fromLatin1(column.defaultTitle)));
        EXPECT_EQ(settings.object(QString::fromLatin1(column.visibilityKey)),
                  QVariant(column.isVisibleByDefault));
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

TEST_F(EventItemViewControllerTest, TheChosenTimeColumnTakesThePlaceAndWidthOfTheOneShown) {
    controller.awakeFromNib();
    table.moveColumn(table.positionOf("hours"), 3);
    table.column("hours").width = 70;
    const int before = passes();
    settings.setObject("timeTypeSelection", 2);
    EXPECT_TRUE(isHidden("hours"));
    EXPECT_FALSE(isHidden("minutes"));
    EXPECT_EQ(table.positionOf("minutes"), 3);
    EXPECT_EQ(table.column("minutes").width, 70);
    EXPECT_EQ(passes(), before + 1);
    const std::array<bool, 6> hidden{items[0].isHidden, items[1].isHidden, items[2].isHidden,
                                     items[3].isHidden, items[4].isHidden, items[5].isHidden};
    EXPECT_EQ(hidden, (std::array{true, false, true, true, false, true}));
}

TEST_F(EventItemViewControllerTest, WithTimeOffTheChosenColumnAndItsRivalsAreHidden) {
    controller.awakeFromNib();
    table.column("duration").hidden = false;
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

TEST_F(EventItemViewControllerTest, EveryWriteOfAVisibilityKeyIsOnePassAlsoAnEqualOne) {
    controller.awakeFromNib();
    const int before = passes();
    settings.setObject("isTitleColumn", true);
    settings.setObject("isHoursColumn", true);
    EXPECT_EQ(passes(), before + 2);
}

TEST_F(EventItemViewControllerTest, AnUnknownTimeTypeLeavesTheTimeColumnsAlone) {
    settings.setObject("timeTypeSelection", 0);
    table.column("hours").hidden = true;
    table.column("minutes").hidden = false;
    items[1].isHidden = true;
    controller.awakeFromNib();
    EXPECT_TRUE(isHidden("hours"));
    EXPECT_FALSE(isHidden("minutes"));
    EXPECT_TRUE(items[1].isHidden);
    EXPECT_FALSE(items[0].isHidden);
    EXPECT_EQ(passes(), 1);
}

TEST_F(EventItemViewControllerTest, ResettingOverwritesTheUsersTitles) {
    controller.awakeFromNib();
    settings.setObject("startWeekdayColumnTitle", "Mine");
    settings.setObject("titleColumnTitle", "Mine");
    for (const EventColumn& column : eventColumns()) {
        settings.setObject(QString::fromLatin1(column.titleKey), "Mine");
    }
    controller.resetAllColumnTitles();
    for (const EventColumn& column : eventColumns()) {
        EXPECT_EQ(settings.object(QString::fromLatin1(column.titleKey)),
                  QVariant(QString::fromLatin1(column.defaultTitle)));
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

TEST_F(EventItemViewControllerTest, ThePeriodLabels) {
    controller.awakeFromNib();
    EXPECT_EQ(controller.periodLabelString(), QStringLiteral("Day"));
    settings.setObject("eventStartDate", QVariant::fromValue(utc(2024, 2, 29, 23)));
    settings.setObject("eventEndDate", QVariant::fromValue(utc(2024, 3, 31, 21, 59, 59)));
    controller.setDateRangeLabel();
    EXPECT_EQ(controller.totalDays(), 31);
    EXPECT_EQ(controller.dateRangeLabelString(), QStringLiteral("March 1, 2024 - March 31, 2024"));
    settings.setObject("quickDatePeriodIndex", 4);
    controller.setPeriodLabel();
    EXPECT_EQ(controller.periodLabelString(), QStringLiteral("31 Days"));
    settings.setObject("isCustomDateOn", true);
    controller.setPeriodLabel();
    EXPECT_EQ(controller.periodLabelString(), QStringLiteral("Custom"));
    settings.setObject("quickDatePeriodIndex", 9);
    controller.setPeriodLabel();
    EXPECT_EQ(controller.periodLabelString(), QString());
}

TEST(ColumnLayoutTest, TheDefaultPlacementsArePutInOneAfterTheOther) {
    test::FakeTable table = test::eventTable();
    applyPlacements(defaultColumnPlacements(), table);
    QStringList order;
    for (int position = 0; position < table.columnCount(); ++position) {
        order << table.columnAt(position).identifier();
    }
    // Found by making the sixteen moves on paper.
    EXPECT_EQ(order, (QStringList{"date", "calendar", "title", "hours", "minutes", "duration",
                                  "url", "cost", "location", "start", "weekday", "end", "endDate",
                                  "notes", "rate", "endWeekday"}));
    EXPECT_EQ(table.column("title").width, 240);
}

TEST(ColumnLayoutTest, AnIndexOutsideTheTableLeavesTheColumnWhereItIs) {
    test::FakeTable table = test::eventTable();
    applyPlacements({{.identifier = "title", .title = {}, .widthPoints = 50, .index = 99},
                     {.identifier = "nonsense", .title = {}, .widthPoints = 50, .index = 0}},
                    table);
    EXPECT_EQ(table.positionOf("title"), 2);
    EXPECT_EQ(table.column("title").width, 50);
}

} // namespace quillet
