#include "calendars/CalendarGroupsArraySelectedCalendarsArrayController.h"

#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

class ChecklistTest : public testing::Test {
protected:
    ChecklistTest() {
        storeCalendars({"Work", "Art"});
        groups.awakeFromNib();
        checklist.awakeFromNib();
        groups.addCalendarGroup();
        groups.addCalendarGroup();
        groups.setSelectedRows({1});
    }
    /// Calendars whose identifiers are the first letters of their titles.
    void storeCalendars(const QStringList& titles) {
        QVariantList calendars;
        for (const QString& title : titles) {
            calendars.append(QVariantMap{{"calendarIdentifier", title.left(1)}, {"title", title}});
        }
        settings.setObject("calendars", calendars);
    }
    void openSheet() { settings.setObject("isCalendarGroupsSheetActive", true); }
    QStringList shown() const {
        QStringList titles;
        for (std::size_t row = 0; row < checklist.arrangedCount(); ++row) {
            const CalendarGroupEntry& entry = checklist.arranged(row);
            titles << entry.title + (entry.isSelected ? QStringLiteral("*") : QString());
        }
        return titles;
    }
    /// In stored order.
    QStringList stored(std::size_t group) const {
        QStringList titles;
        const CalendarGroup shown = storedCalendarGroups(settings).at(group);
        for (const auto& entry : shown.calendarGroupArray) {
            titles << entry.title + (entry.isSelected ? QStringLiteral("*") : QString());
        }
        return titles;
    }

    test::MemorySettings settings;
    test::FakeAlerts alerts;
    CalendarGroupsArrayController groups{settings, alerts};
    CalendarGroupsArraySelectedCalendarsArrayController checklist{settings, groups};
};

} // namespace

TEST_F(ChecklistTest, ShowsTheSelectedGroupsEntriesByTitle) {
    EXPECT_EQ(shown(), (QStringList{"Art", "Work"}));
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art"}));
    groups.setSelectedRows({0});
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(ChecklistTest, TitlesAreComparedWithTheirCase) {
    storeCalendars({"bar", "Zoo"});
    groups.addCalendarGroup();
    EXPECT_EQ(shown(), (QStringList{"Zoo", "bar"}));
}

TEST_F(ChecklistTest, ATickIsStoredInItsGroupAlone) {
    checklist.setSelected(1, true);
    EXPECT_EQ(shown(), (QStringList{"Art", "Work*"}));
    EXPECT_EQ(stored(1), (QStringList{"Work*", "Art"}));
    EXPECT_EQ(stored(2), (QStringList{"Work", "Art"}));
    checklist.setSelected(1, false);
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art"}));
}

TEST_F(ChecklistTest, ACalendarThatIsGoneLeavesAGroupWhenItIsNextShownInTheOpenSheet) {
    openSheet();
    checklist.setSelected(0, true);
    storeCalendars({"Art"});
    EXPECT_EQ(stored(1), QStringList{"Art*"});
    EXPECT_EQ(stored(2), (QStringList{"Work", "Art"}));
    groups.setSelectedRows({2});
    EXPECT_EQ(stored(2), QStringList{"Art"});
}

TEST_F(ChecklistTest, ARenamedCalendarShowsItsNewTitleAndKeepsItsTick) {
    checklist.setSelected(1, true);
    openSheet();
    storeCalendars({"Walk", "Art"});
    EXPECT_EQ(shown(), (QStringList{"Art", "Walk*"}));
    EXPECT_EQ(stored(1), (QStringList{"Walk*", "Art"}));
}

TEST_F(ChecklistTest, OneNewCalendarIsAppendedUnticked) {
    openSheet();
    storeCalendars({"Work", "Art", "Home"});
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art", "Home"}));
}

TEST_F(ChecklistTest, OfTwoNewCalendarsTheLastComesTwiceAndTheFirstWithTheNextSync) {
    openSheet();
    storeCalendars({"Work", "Art", "Garden", "Home"});
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art", "Home", "Home"}));
    checklist.syncCalendars();
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art", "Home", "Home", "Garden"}));
    checklist.syncCalendars();
    EXPECT_EQ(stored(1).size(), 5);
}

TEST_F(ChecklistTest, OfThreeNewCalendarsTheLastComesThriceAndEachSyncAddsOneMore) {
    openSheet();
    const QStringList titles{"Work", "Art", "Garden", "Home", "Nap"};
    QStringList expected{"Work", "Art", "Nap", "Nap", "Nap"};
    storeCalendars(titles);
    EXPECT_EQ(stored(1), expected);
    storeCalendars(titles);
    expected << "Home"
             << "Home";
    EXPECT_EQ(stored(1), expected);
    storeCalendars(titles);
    expected << "Garden";
    EXPECT_EQ(stored(1), expected);
    storeCalendars(titles);
    EXPECT_EQ(stored(1), expected);
}

TEST_F(ChecklistTest, ShowingAGroupAgainSyncsItAgain) {
    openSheet();
    storeCalendars({"Work", "Art", "Garden", "Home"});
    groups.setSelectedRows({0});
    groups.setSelectedRows({1});
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art", "Home", "Home", "Garden"}));
}

TEST_F(ChecklistTest, ANewGroupDoesNotSyncTheOneThatWasShown) {
    openSheet();
    storeCalendars({"Work", "Art", "Garden", "Home"});
    groups.addCalendarGroup();
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art", "Home", "Home"}));
    EXPECT_EQ(stored(3), (QStringList{"Work", "Art", "Garden", "Home"}));
    EXPECT_EQ(shown(), (QStringList{"Art", "Garden", "Home", "Work"}));
}

TEST_F(ChecklistTest, AsManyOtherGroupsFromElsewhereAreOthersAndTheShownOneIsSynced) {
    openSheet();
    storeCalendars({"Art"});
    QVariantList other = arrayForKey(settings, "calendarGroups");
    QVariantMap replaced = other[1].toMap();
    replaced["calendarGroupArray"] = QVariantList{
        QVariantMap{{"calendarIdentifier", "W"}, {"title", "Work"}, {"isSelected", true}},
        QVariantMap{{"calendarIdentifier", "A"}, {"title", "Old"}, {"isSelected", true}}};
    other[1] = replaced;
    settings.setObject("calendarGroups", other);
    EXPECT_EQ(stored(1), QStringList{"Art*"});
    EXPECT_EQ(shown(), QStringList{"Art*"});
}

TEST_F(ChecklistTest, ASyncUnderWayIsNotJoinedByAnother) {
    openSheet();
    checklist.setIsCalendarsSyncing(true);
    storeCalendars({"Art"});
    groups.setSelectedRows({2});
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art"}));
    EXPECT_EQ(stored(2), (QStringList{"Work", "Art"}));
    checklist.setIsCalendarsSyncing(false);
    groups.setSelectedRows({1});
    EXPECT_EQ(stored(1), QStringList{"Art"});
}

TEST_F(ChecklistTest, WhereAllCalendarsVanishTheShownGroupKeepsNone) {
    openSheet();
    checklist.setSelected(0, true);
    storeCalendars({});
    EXPECT_EQ(shown(), QStringList());
    EXPECT_EQ(stored(1), QStringList());
    EXPECT_EQ(stored(2), (QStringList{"Work", "Art"})) << "it is not shown";
    EXPECT_EQ(groups.selectionIndex(), 1U);
}

TEST_F(ChecklistTest, ACalendarThatVanishedComesBackUnticked) {
    openSheet();
    checklist.setSelected(0, true);
    checklist.setSelected(1, true);
    storeCalendars({"Work"});
    EXPECT_EQ(shown(), QStringList{"Work*"});
    storeCalendars({"Work", "Art"});
    EXPECT_EQ(shown(), (QStringList{"Art", "Work*"}));
}

TEST_F(ChecklistTest, EntriesOfCalendarsWithoutAnIdentifierStayUntilTheNextSync) {
    settings.setObject("calendars",
                       QVariantList{QVariantMap{{"title", "Nameless"}},
                                    QVariantMap{{"calendarIdentifier", "A"}, {"title", "Art"}}});
    groups.addCalendarGroup();
    EXPECT_EQ(stored(3), (QStringList{"Nameless", "Art"})) << "a new group lists every calendar";
    openSheet();
    EXPECT_EQ(stored(3), QStringList{"Art"});
}

TEST_F(ChecklistTest, RowsOfOneCalendarAreTickedTogether) {
    openSheet();
    storeCalendars({"Work", "Art", "Garden", "Home"});
    ASSERT_EQ(shown(), (QStringList{"Art", "Home", "Home", "Work"}));
    checklist.setSelected(1, true);
    EXPECT_EQ(shown(), (QStringList{"Art", "Home*", "Home*", "Work"}))
        << "a tick adds no further calendar";
}

TEST_F(ChecklistTest, NamingAGroupIsNoReasonToSync) {
    openSheet();
    storeCalendars({"Work", "Art", "Garden", "Home"});
    groups.setCalendarGroupName(1, "Clients");
    EXPECT_EQ(shown(), (QStringList{"Art", "Home", "Home", "Work"}));
}

TEST_F(ChecklistTest, WhileTheSheetIsClosedNothingIsSynced) {
    storeCalendars({"Art"});
    groups.setSelectedRows({2});
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art"}));
    EXPECT_EQ(stored(2), (QStringList{"Work", "Art"}));
}

TEST_F(ChecklistTest, OpeningTheSheetSyncsTheSelectedGroupOnce) {
    storeCalendars({"Work", "Art", "Garden", "Home"});
    openSheet();
    EXPECT_EQ(stored(1), (QStringList{"Work", "Art", "Home", "Home"}));
    EXPECT_EQ(stored(2), (QStringList{"Work", "Art"}));
}

TEST_F(ChecklistTest, AfterADeletionTheGroupInItsPlaceIsSynced) {
    openSheet();
    storeCalendars({"Art"});
    groups.removeCalendarGroup();
    ASSERT_EQ(groups.arrangedCount(), 2U);
    EXPECT_EQ(stored(1), QStringList{"Art"});
    EXPECT_EQ(shown(), QStringList{"Art"});
}

TEST_F(ChecklistTest, AllCalendarsHasNoChecklistAndIsNeverSynced) {
    groups.setSelectedRows({0});
    openSheet();
    const auto writes = settings.writes.size();
    storeCalendars({"New"});
    checklist.syncCalendars();
    EXPECT_EQ(settings.writes.size(), writes + 1) << "only the calendars themselves";
    EXPECT_EQ(stored(0), QStringList());
}

TEST_F(ChecklistTest, AnAbsentCalendarListIsStoredEmptyAndEmptiesTheChecklist) {
    settings.remove("calendars");
    checklist.syncCalendars();
    EXPECT_EQ(settings.object("calendars"), QVariant(QVariantList()));
    EXPECT_EQ(stored(1), QStringList());
    EXPECT_FALSE(checklist.isCalendarsSyncing());
}

TEST_F(ChecklistTest, CalendarsWithoutAnIdentifierAreNoCalendars) {
    settings.setObject("calendars",
                       QVariantList{QVariantMap{{"title", "Nameless"}},
                                    QVariantMap{{"calendarIdentifier", "A"}, {"title", "Art"}}});
    checklist.syncCalendars();
    EXPECT_EQ(stored(1), QStringList{"Art"});
}

TEST_F(ChecklistTest, ASyncThatChangesNothingWritesNothing) {
    const auto writes = settings.writes.size();
    checklist.syncCalendars();
    EXPECT_EQ(settings.writes.size(), writes);
}

} // namespace quillet
