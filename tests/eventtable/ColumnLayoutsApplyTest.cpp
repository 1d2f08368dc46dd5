#include "ColumnLayoutsFixture.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/EventItemViewController.h"

namespace quillet {

namespace {

using test::layoutsKey;

class ColumnLayoutsApplyTest : public test::ColumnLayoutsFixture {};

/// The layouts of a table whose columns follow their visibility keys.
class LayoutsOfAFollowingTable : public test::ColumnLayoutsFixture {
protected:
    const IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    const IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    ListController<CalendarRecord> calendars;
    EventItemViewController columns{{.settings = settings,
                                     .eventsTableView = table,
                                     .calendarsArrayController = calendars,
                                     .calendar = calendar,
                                     .formats = formats}};
};

} // namespace

TEST_F(ColumnLayoutsApplyTest, APlaceThatCannotBeReadLeavesTheColumnWhereItIs) {
    controller.awakeFromNib();
    change("minutesColumnIndex", QVariantList{0});
    applyFirst();
    EXPECT_EQ(table.positionOf("minutes"), 13);
}

TEST_F(ColumnLayoutsApplyTest, MissingMembersLeaveTheColumnAsItIs) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    const QVariantMap second = stored(1);
    settings.setObject("titleColumnTitle", "Task");
    table.column("title").setWidthPoints(55);
    table.moveColumn(table.positionOf("title"), 6);
    settings.setObject(layoutsKey,
                       QVariantList{QVariantMap{{"columnLayoutName", "Bare"}}, 3, second});
    settings.setObject("isTitleColumn", false);
    const std::string before = order();
    applyFirst();
    EXPECT_EQ(order(), before);
    EXPECT_EQ(table.column("title").widthPoints(), 55.0);
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Task"));
    EXPECT_EQ(settings.object("isTitleColumn"), QVariant(true)) << "no column is hidden in it";
    controller.rename(0, "Barer");
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Barer"));
    EXPECT_FALSE(stored(0).contains("titleColumnName"));
    EXPECT_EQ(stored(1), second) << "the other layout is not lost";
}

TEST_F(ColumnLayoutsApplyTest, WidthsThatNoTableHasAreNotTakenOver) {
    controller.awakeFromNib();
    table.column("title").setWidthPoints(55);
    change("titleColumnWidth", -40);
    applyFirst();
    EXPECT_EQ(table.column("title").widthPoints(), 55.0);
    change("titleColumnWidth", qint64(1) << 40);
    applyFirst();
    EXPECT_EQ(table.column("title").widthPoints(), 10'000.0);
}

TEST_F(ColumnLayoutsApplyTest, ApplyingTheDefaultLayoutPlacesOneColumnAfterTheOther) {
    controller.awakeFromNib();
    applyFirst();
    EXPECT_EQ(order(), "date calendar title hours minutes duration url cost location start weekday "
                       "end endDate notes rate endWeekday");
    EXPECT_EQ(table.column("title").widthPoints(), 240.0);
    EXPECT_EQ(settings.object("isNotesColumn"), QVariant(false));
    EXPECT_EQ(settings.object("isCalendarColumn"), QVariant(true));
    EXPECT_EQ(settings.object("isHoursColumn"), QVariant(true));
}

TEST_F(ColumnLayoutsApplyTest, ApplyingIsBracketedAndWritesEachKeyInTurn) {
    controller.awakeFromNib();
    controller.setSelectedRows({0});
    settings.writes.clear();
    controller.applyColumnLayout();
    EXPECT_EQ(
        settings.writes.first(8),
        (QStringList{"isApplyColumnLayoutOn", "dateColumnTitle", "isDateColumn", "hoursColumnTitle",
                     "isHoursColumn", "isHoursColumn", "isHoursColumn", "titleColumnTitle"}));
    EXPECT_EQ(settings.writes.last(3),
              (QStringList{"durationColumnTitle", "minutesColumnTitle", "isApplyColumnLayoutOn"}));
    EXPECT_EQ(settings.object("isApplyColumnLayoutOn"), QVariant(false));
    EXPECT_EQ(settings.writes.count("isApplyColumnLayoutOn"), 2);
    EXPECT_FALSE(settings.writes.contains("timeTypeSelection"));
}

TEST_F(ColumnLayoutsApplyTest, WithNamesOffTitlesStay) {
    controller.awakeFromNib();
    settings.setObject("isColumnLayoutUsesNames", false);
    settings.setObject("titleColumnTitle", "Task");
    applyFirst();
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Task"));
    EXPECT_TRUE(settings.keys().filter("ColumnTitle") == QStringList{"titleColumnTitle"});
}

TEST_F(ColumnLayoutsApplyTest, TheStartWeekdayTitleIsNeverBroughtBack) {
    controller.awakeFromNib();
    settings.setObject("startWeekdayColumnTitle", "Day");
    change("weekdayColumnName", "Weekday");
    applyFirst();
    EXPECT_EQ(settings.object("startWeekdayColumnTitle"), QVariant("Day"));
    EXPECT_EQ(settings.object("weekdayColumnTitle"), QVariant("Weekday"));
    EXPECT_EQ(settings.object("endWeekdayColumnTitle"), QVariant("End Weekday"));
}

TEST_F(ColumnLayoutsApplyTest, TheTimeColumnIsShownWhenAnyOfTheThreeWas) {
    controller.awakeFromNib();
    change("hoursColumnIsHidden", true);
    applyFirst();
    EXPECT_EQ(settings.object("isHoursColumn"), QVariant(false));
    for (const char* visible :
         {"hoursColumnIsHidden", "durationColumnIsHidden", "minutesColumnIsHidden"}) {
        change(visible, false);
        applyFirst();
        EXPECT_EQ(settings.object("isHoursColumn"), QVariant(true)) << visible;
        change(visible, true);
    }
}

TEST_F(ColumnLayoutsApplyTest, APlaceOutsideTheTableLeavesTheColumnWhereItIs) {
    controller.awakeFromNib();
    for (const int place : {16, 99, -1}) {
        ColumnTable fresh(settings);
        change("minutesColumnIndex", place);
        change("minutesColumnWidth", 55);
        ColumnLayoutsArrayController other(
            {.settings = settings, .eventsTableView = fresh, .alerts = alerts});
        other.awakeFromNib();
        other.setSelectedRows({0});
        other.applyColumnLayout();
        EXPECT_EQ(fresh.column("minutes").widthPoints(), 55.0);
        // Where the columns placed before it have left it.
        EXPECT_EQ(fresh.positionOf("minutes"), 13) << place;
    }
}

TEST_F(LayoutsOfAFollowingTable, VisibilityPassesSettleTheTableDuringAnApply) {
    settings.setObject("timeTypeSelection", 3);
    controller.awakeFromNib();
    columns.awakeFromNib();
    controller.saveColumnLayout();
    settings.setObject("isNotesColumn", true);
    settings.setObject("isHoursColumn", false);
    table.moveColumn(table.positionOf("calendar"), 2);
    controller.setColumnLayout();
    EXPECT_TRUE(table.column("notes").isHidden());
    EXPECT_FALSE(table.column("duration").isHidden()) << "the user's time type, not the layout's";
    EXPECT_TRUE(table.column("hours").isHidden());
    EXPECT_EQ(settings.object("timeTypeSelection"), QVariant(3));
    EXPECT_EQ(table.positionOf("calendar"), stored(1).value("calendarColumnIndex").toInt());
}

TEST_F(LayoutsOfAFollowingTable, ALayoutWithoutTimeColumnsHidesAllThree) {
    for (const int timeType : {1, 2, 3}) {
        settings.setObject("timeTypeSelection", timeType);
        controller.awakeFromNib();
        columns.awakeFromNib();
        settings.setObject("isHoursColumn", true);
        change("hoursColumnIsHidden", true);
        applyFirst();
        EXPECT_EQ(settings.object("isHoursColumn"), QVariant(false));
        for (const char* time : {"hours", "minutes", "duration"}) {
            EXPECT_TRUE(table.column(time).isHidden()) << time << " of " << timeType;
        }
    }
}

TEST_F(ColumnLayoutsApplyTest, MembersOfAWrongTypeAreReadAsTypedGettersDo) {
    controller.awakeFromNib();
    change("dateColumnWidth", "90");
    change("dateColumnIndex", "abc");
    change("dateColumnIsHidden", "YES");
    applyFirst();
    EXPECT_EQ(table.column("date").widthPoints(), 90.0);
    EXPECT_EQ(settings.object("isDateColumn"), QVariant(false));
}

} // namespace quillet
