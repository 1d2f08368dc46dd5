#include "eventtable/ColumnLayoutsArrayController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/EventColumns.h"
#include "eventtable/EventItemViewController.h"
#include "support/EventTableFake.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

const QString layoutsKey = QStringLiteral("columnLayouts");

class ColumnLayoutsArrayControllerTest : public testing::Test {
protected:
    /// The stored layout at a position.
    [[nodiscard]] QVariantMap stored(qsizetype position) const {
        return arrayForKey(settings, layoutsKey).at(position).toMap();
    }
    [[nodiscard]] qsizetype storedCount() const { return arrayForKey(settings, layoutsKey).size(); }
    /// Stores one member of the first stored layout.
    void change(const QString& member, const QVariant& value) {
        QVariantList layouts = arrayForKey(settings, layoutsKey);
        QVariantMap layout = layouts.front().toMap();
        layout.insert(member, value);
        layouts.front() = layout;
        settings.setObject(layoutsKey, layouts);
    }
    void applyFirst() {
        controller.setSelectedRows({0});
        controller.setColumnLayout();
    }
    [[nodiscard]] std::string order() {
        QStringList names;
        for (const auto& column : table.columns) {
            names.append(column->identifier());
        }
        return names.join(' ').toStdString();
    }

    test::MemorySettings settings;
    test::FakeTable table = test::eventTable();
    test::FakeAlerts alerts;
    ColumnLayoutsArrayController controller{
        {.settings = settings, .eventsTableView = table, .alerts = alerts}};
};

/// The layouts of a table whose columns follow their visibility keys.
class LayoutsOfAFollowingTable : public ColumnLayoutsArrayControllerTest {
protected:
    const IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    const IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    test::FakeMenuItem item;
    ListController<CalendarRecord> calendars;
    EventItemViewController columns{{.settings = settings,
                                     .eventsTableView = table,
                                     .menuItems = {item, item, item},
                                     .txtMenuItems = {item, item, item},
                                     .calendarsArrayController = calendars,
                                     .calendar = calendar,
                                     .formats = formats}};
};

} // namespace

TEST_F(ColumnLayoutsArrayControllerTest, TheFirstStartStoresTheDefaultLayout) {
    controller.awakeFromNib();
    EXPECT_EQ(storedCount(), 1);
    EXPECT_EQ(settings.object("isDefaultColumnLayoutsCreated"), QVariant(true));
    EXPECT_EQ(settings.object("isColumnLayoutUsesNames"), QVariant(true));
    EXPECT_EQ(settings.object("isApplyColumnLayoutOn"), QVariant(false));
    const QVariantMap layout = stored(0);
    EXPECT_EQ(layout.size(), 65);
    EXPECT_EQ(layout.value("columnLayoutName"), QVariant("Default"));
    struct Row {
        const char* stem;
        const char* name;
        int width;
        int index;
        bool isHidden;
    };
    for (const Row& row :
         {Row{"date", "Start Date", 80, 0, false}, Row{"hours", "Hours", 70, 4, false},
          Row{"title", "Title", 240, 3, false}, Row{"notes", "Notes", 128, 14, true},
          Row{"url", "URL", 123, 7, true}, Row{"location", "Location", 119, 8, true},
          Row{"weekday", "Start Weekday", 105, 11, true},
          Row{"endWeekday", "End Weekday", 105, 15, true}, Row{"cost", "Cost", 86, 5, true},
          Row{"startTime", "Start Time", 80, 9, true}, Row{"endTime", "End Time", 80, 10, true},
          Row{"endDate", "End Date", 86, 12, true}, Row{"calendar", "Calendar", 89, 1, false},
          Row{"rate", "Rate", 86, 14, true}, Row{"duration", "Duration", 70, 4, true},
          Row{"minutes", "Minutes", 70, 4, true}}) {
        const QString stem = QString::fromLatin1(row.stem);
        EXPECT_EQ(layout.value(stem + "ColumnName"), QVariant(row.name)) << row.stem;
        EXPECT_EQ(layout.value(stem + "ColumnWidth"), QVariant(row.width)) << row.stem;
        EXPECT_EQ(layout.value(stem + "ColumnIndex"), QVariant(row.index)) << row.stem;
        EXPECT_EQ(layout.value(stem + "ColumnIsHidden"), QVariant(row.isHidden)) << row.stem;
    }
}

TEST_F(ColumnLayoutsArrayControllerTest, ALaterStartKeepsTheLayoutsAndRenamesOnlyTheFirst) {
    controller.awakeFromNib();
    controller.saveColumnLayout();
    controller.rename(0, "Mine");
    controller.rename(1, "Invoice");
    settings.setObject("isApplyColumnLayoutOn", true);
    settings.setObject("isColumnLayoutUsesNames", false);
    ColumnLayoutsArrayController next(
        {.settings = settings, .eventsTableView = table, .alerts = alerts});
    next.awakeFromNib();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Default"));
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("Invoice"));
    EXPECT_EQ(settings.object("isApplyColumnLayoutOn"), QVariant(false));
    EXPECT_EQ(settings.object("isColumnLayoutUsesNames"), QVariant(false));
}

TEST_F(ColumnLayoutsArrayControllerTest, AStartWritesInItsOrder) {
    controller.awakeFromNib();
    EXPECT_EQ(settings.writes,
              (QStringList{layoutsKey, "isColumnLayoutUsesNames", layoutsKey,
                           "isDefaultColumnLayoutsCreated", "isApplyColumnLayoutOn", layoutsKey}));
    settings.writes.clear();
    ColumnLayoutsArrayController later(
        {.settings = settings, .eventsTableView = table, .alerts = alerts});
    later.awakeFromNib();
    EXPECT_EQ(settings.writes, (QStringList{"isApplyColumnLayoutOn", layoutsKey}));
}

TEST_F(ColumnLayoutsArrayControllerTest, TheDefaultLayoutIsMadeWhereItsKeyIsAbsentNotWhereItIsOff) {
    settings.setObject("isDefaultColumnLayoutsCreated", false);
    controller.awakeFromNib();
    EXPECT_EQ(storedCount(), 0);
    EXPECT_EQ(settings.object("isDefaultColumnLayoutsCreated"), QVariant(false));
}

TEST_F(ColumnLayoutsArrayControllerTest, AStartAddsNothingToLayoutsEditedByHand) {
    const QVariantMap bare{{"columnLayoutName", "Bare"}, {"titleColumnWidth", "wide"}};
    const QVariantMap odd{{"dateColumnIndex", QVariantList{1}}, {"rateColumnIsHidden", "YES"}};
    settings.setObject("isDefaultColumnLayoutsCreated", true);
    settings.setObject(layoutsKey, QVariantList{bare, odd});
    controller.awakeFromNib();
    QVariantMap renamed = bare;
    renamed["columnLayoutName"] = "Default";
    EXPECT_EQ(arrayForKey(settings, layoutsKey), (QVariantList{renamed, odd}));
    controller.createColumnLayout();
    EXPECT_EQ(stored(0), renamed);
    EXPECT_EQ(stored(1), odd);
    EXPECT_EQ(stored(2).size(), 65);
}

TEST_F(ColumnLayoutsArrayControllerTest, TheNumberOfANewLayoutCountsThoseThatAreLeft) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    controller.createColumnLayout();
    controller.setSelectedRows({1});
    controller.removeColumnLayout();
    controller.createColumnLayout();
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("New Layout 3"));
    EXPECT_EQ(stored(2).value("columnLayoutName"), QVariant("New Layout 3")) << "a name may repeat";
}

TEST_F(ColumnLayoutsArrayControllerTest, TheDefaultLayoutIsAPlaceAndNotAName) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    controller.rename(0, "Mine");
    controller.rename(1, "Default");
    controller.setSelectedRows({0});
    controller.removeColumnLayout();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_EQ(alerts.shown.back().messageText, "Cannot delete Default layout");
    controller.setSelectedRows({1});
    controller.removeColumnLayout();
    ASSERT_EQ(storedCount(), 1);
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Mine"));
}

TEST_F(ColumnLayoutsArrayControllerTest, TheFirstLayoutsNewNameIsAnnouncedAroundTheWrite) {
    controller.awakeFromNib();
    controller.rename(0, "Mine");
    QStringList told;
    QObject::connect(&controller, &ListControllerNotices::arrangedObjectsWillChange,
                     [&] { told << "from " + controller.arranged(0).name; });
    QObject::connect(&controller, &ListControllerNotices::arrangedObjectsChanged,
                     [&] { told << "to " + controller.arranged(0).name; });
    controller.updateDefaultColumnLayoutsName();
    EXPECT_EQ(told, (QStringList{"from Mine", "to Default"}));
}

TEST_F(ColumnLayoutsArrayControllerTest, APlaceThatCannotBeReadLeavesTheColumnWhereItIs) {
    controller.awakeFromNib();
    change("minutesColumnIndex", QVariantList{0});
    applyFirst();
    EXPECT_EQ(table.positionOf("minutes"), 13);
}

TEST_F(ColumnLayoutsArrayControllerTest, AStoreWhoseLayoutsWereEmptiedByHandStillStarts) {
    settings.setObject("isDefaultColumnLayoutsCreated", true);
    settings.setObject(layoutsKey, QVariantList());
    controller.awakeFromNib();
    EXPECT_EQ(storedCount(), 0);
    controller.applyColumnLayout();
    controller.removeColumnLayout();
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(ColumnLayoutsArrayControllerTest, TheNextCreationInAnEmptiedStorePutsTheDefaultLayoutFirst) {
    settings.setObject("isDefaultColumnLayoutsCreated", true);
    controller.awakeFromNib();
    controller.saveColumnLayout();
    ASSERT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Default"));
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("New Layout 2"));
}

TEST_F(ColumnLayoutsArrayControllerTest, MissingMembersLeaveTheColumnAsItIs) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    const QVariantMap second = stored(1);
    settings.setObject("titleColumnTitle", "Task");
    table.column("title").width = 55;
    table.moveColumn(table.positionOf("title"), 6);
    settings.setObject(layoutsKey,
                       QVariantList{QVariantMap{{"columnLayoutName", "Bare"}}, 3, second});
    settings.setObject("isTitleColumn", false);
    const std::string before = order();
    applyFirst();
    EXPECT_EQ(order(), before);
    EXPECT_EQ(table.column("title").width, 55.0);
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Task"));
    EXPECT_EQ(settings.object("isTitleColumn"), QVariant(true)) << "no column is hidden in it";
    controller.rename(0, "Barer");
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Barer"));
    EXPECT_FALSE(stored(0).contains("titleColumnName"));
    EXPECT_EQ(stored(1), second) << "the other layout is not lost";
}

TEST_F(ColumnLayoutsArrayControllerTest, WidthsThatNoTableHasAreNotTakenOver) {
    controller.awakeFromNib();
    table.column("title").width = 55;
    change("titleColumnWidth", -40);
    applyFirst();
    EXPECT_EQ(table.column("title").width, 55.0);
    change("titleColumnWidth", qint64(1) << 40);
    applyFirst();
    EXPECT_EQ(table.column("title").width, 10'000.0);
}

TEST_F(ColumnLayoutsArrayControllerTest, ALayoutThatChangesUnderTheQuestionIsNotDeleted) {
    class Rewriting final : public AlertPresenter {
    public:
        explicit Rewriting(SettingsStore& settings)
            : settings_(settings) {}
        [[nodiscard]] int runModal(const Alert& /*alert*/) override {
            QVariantList layouts = arrayForKey(settings_, layoutsKey);
            layouts.removeAt(1);
            settings_.setObject(layoutsKey, layouts);
            return 0;
        }

    private:
        SettingsStore& settings_;
    };
    Rewriting rewriting(settings);
    ColumnLayoutsArrayController layouts(
        {.settings = settings, .eventsTableView = table, .alerts = rewriting});
    layouts.awakeFromNib();
    layouts.createColumnLayout();
    layouts.createColumnLayout();
    layouts.setSelectedRows({1});
    layouts.removeColumnLayout();
    ASSERT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("New Layout 3"));
}

TEST_F(ColumnLayoutsArrayControllerTest, SavingCapturesPlacesAndCutsWidths) {
    controller.awakeFromNib();
    table.moveColumn(table.positionOf("title"), 0);
    table.column("title").width = 80.7;
    table.column("notes").hidden = true;
    table.column("cost").title = "Price";
    std::optional<std::size_t> edited;
    QObject::connect(&controller, &ColumnLayoutsArrayController::nameEditingRequested,
                     [&](std::size_t row) { edited = row; });
    controller.saveColumnLayout();
    EXPECT_EQ(edited, 1U);
    EXPECT_EQ(controller.selectedRows(), std::vector<std::size_t>{1});
    const QVariantMap layout = stored(1);
    EXPECT_EQ(layout.size(), 65);
    EXPECT_EQ(layout.value("columnLayoutName"), QVariant("New Layout 2"));
    EXPECT_EQ(layout.value("titleColumnWidth"), QVariant(80));
    EXPECT_EQ(layout.value("titleColumnIndex"), QVariant(0));
    EXPECT_EQ(layout.value("dateColumnIndex"), QVariant(1));
    EXPECT_EQ(layout.value("notesColumnIsHidden"), QVariant(true));
    EXPECT_EQ(layout.value("costColumnName"), QVariant("Price"));
    controller.saveColumnLayout();
    EXPECT_EQ(stored(2).value("columnLayoutName"), QVariant("New Layout 3"));
}

TEST_F(ColumnLayoutsArrayControllerTest, ApplyingTheDefaultLayoutPlacesOneColumnAfterTheOther) {
    controller.awakeFromNib();
    applyFirst();
    EXPECT_EQ(order(), "date calendar title hours minutes duration url cost location start weekday "
                       "end endDate notes rate endWeekday");
    EXPECT_EQ(table.column("title").width, 240.0);
    EXPECT_EQ(settings.object("isNotesColumn"), QVariant(false));
    EXPECT_EQ(settings.object("isCalendarColumn"), QVariant(true));
    EXPECT_EQ(settings.object("isHoursColumn"), QVariant(true));
}

TEST_F(ColumnLayoutsArrayControllerTest, ApplyingIsBracketedAndWritesEachKeyInTurn) {
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

TEST_F(ColumnLayoutsArrayControllerTest, WithNamesOffTitlesStay) {
    controller.awakeFromNib();
    settings.setObject("isColumnLayoutUsesNames", false);
    settings.setObject("titleColumnTitle", "Task");
    applyFirst();
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Task"));
    EXPECT_TRUE(settings.keys().filter("ColumnTitle") == QStringList{"titleColumnTitle"});
}

TEST_F(ColumnLayoutsArrayControllerTest, TheStartWeekdayTitleIsNeverBroughtBack) {
    controller.awakeFromNib();
    settings.setObject("startWeekdayColumnTitle", "Day");
    change("weekdayColumnName", "Weekday");
    applyFirst();
    EXPECT_EQ(settings.object("startWeekdayColumnTitle"), QVariant("Day"));
    EXPECT_EQ(settings.object("weekdayColumnTitle"), QVariant("Weekday"));
    EXPECT_EQ(settings.object("endWeekdayColumnTitle"), QVariant("End Weekday"));
}

TEST_F(ColumnLayoutsArrayControllerTest, TheTimeColumnIsShownWhenAnyOfTheThreeWas) {
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

TEST_F(ColumnLayoutsArrayControllerTest, APlaceOutsideTheTableLeavesTheColumnWhereItIs) {
    controller.awakeFromNib();
    for (const int place : {16, 99, -1}) {
        table = test::eventTable();
        change("minutesColumnIndex", place);
        change("minutesColumnWidth", 55);
        applyFirst();
        EXPECT_EQ(table.column("minutes").width, 55.0);
        // Where the columns placed before it have left it.
        EXPECT_EQ(table.positionOf("minutes"), 13) << place;
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
    EXPECT_TRUE(table.column("notes").hidden);
    EXPECT_FALSE(table.column("duration").hidden) << "the user's time type, not the layout's";
    EXPECT_TRUE(table.column("hours").hidden);
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
            EXPECT_TRUE(table.column(time).hidden) << time << " of " << timeType;
        }
    }
}

TEST_F(ColumnLayoutsArrayControllerTest, TheDefaultLayoutCannotBeDeleted) {
    controller.awakeFromNib();
    controller.setSelectedRows({0});
    controller.removeColumnLayout();
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, "Cannot delete Default layout");
    EXPECT_EQ(alerts.shown[0].informativeText, "Default layout cannot be deleted.");
    EXPECT_EQ(alerts.shown[0].buttonTitles, QStringList{"OK"});
    EXPECT_EQ(storedCount(), 1);
}

TEST_F(ColumnLayoutsArrayControllerTest, OtherLayoutsAreDeletedOnceTheUserAgrees) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    controller.createColumnLayout();
    controller.setSelectedRows({1});
    alerts.answer = 1;
    controller.removeColumnLayout();
    EXPECT_EQ(storedCount(), 3);
    alerts.answer = 0;
    controller.removeColumnLayout();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("New Layout 3"));
    ASSERT_EQ(alerts.shown.size(), 2U);
    EXPECT_EQ(alerts.shown[1].style, AlertStyle::Warning);
    EXPECT_EQ(alerts.shown[1].messageText, "Delete the record?");
    EXPECT_EQ(alerts.shown[1].informativeText, "Deleted records cannot be restored.");
    EXPECT_EQ(alerts.shown[1].buttonTitles, (QStringList{"OK", "Cancel"}));
}

TEST_F(ColumnLayoutsArrayControllerTest, ALaterStartSelectsTheFirstLayout) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    ColumnLayoutsArrayController later(
        {.settings = settings, .eventsTableView = table, .alerts = alerts});
    later.awakeFromNib();
    EXPECT_EQ(later.selectedRows(), std::vector<std::size_t>{0});
}

TEST_F(ColumnLayoutsArrayControllerTest, WithoutASelectionNothingIsAppliedOrDeleted) {
    controller.awakeFromNib();
    controller.setSelectedRows({});
    settings.writes.clear();
    controller.setColumnLayout();
    controller.removeColumnLayout();
    EXPECT_TRUE(settings.writes.isEmpty());
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(ColumnLayoutsArrayControllerTest, MembersOfANewerVersionAreCarriedAlong) {
    controller.awakeFromNib();
    change("colour", "blue");
    controller.rename(0, "Mine");
    EXPECT_EQ(stored(0).value("colour"), QVariant("blue"));
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Mine"));
}

TEST_F(ColumnLayoutsArrayControllerTest, MembersOfAWrongTypeAreReadAsTypedGettersDo) {
    controller.awakeFromNib();
    change("dateColumnWidth", "90");
    change("dateColumnIndex", "abc");
    change("dateColumnIsHidden", "YES");
    applyFirst();
    EXPECT_EQ(table.column("date").width, 90.0);
    EXPECT_EQ(settings.object("isDateColumn"), QVariant(false));
}

TEST_F(ColumnLayoutsArrayControllerTest, TheSelectionSurvivesARename) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    controller.setSelectedRows({1});
    controller.rename(1, "Invoice");
    EXPECT_EQ(controller.selectedRows(), std::vector<std::size_t>{1});
}

} // namespace quillet
