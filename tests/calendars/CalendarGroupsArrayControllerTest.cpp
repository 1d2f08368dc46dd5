#include "calendars/CalendarGroupsArrayController.h"

#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

QVariantMap calendar(const QString& identifier, const QString& title) {
    return {{"calendarIdentifier", identifier}, {"title", title}, {"isSelected", true}};
}

QVariantMap group(const QString& name) {
    return {{"calendarGroupName", name}, {"calendarGroupArray", QVariantList()}};
}

class CalendarGroupsArrayControllerTest : public testing::Test {
protected:
    /// Starts the program anew on the same settings.
    void wake() {
        controller = std::make_unique<CalendarGroupsArrayController>(settings, alerts);
        controller->awakeFromNib();
    }
    void storeGroups(const QStringList& names) {
        QVariantList groups;
        for (const QString& name : names) {
            groups.append(group(name));
        }
        settings.setObject("calendarGroups", groups);
        settings.setObject("isDefaultAllCalendarsGroupCreated", true);
    }
    QStringList shownNames() const {
        QStringList names;
        for (std::size_t row = 0; row < controller->arrangedCount(); ++row) {
            names << controller->arranged(row).calendarGroupName;
        }
        return names;
    }
    QStringList storedNames() const {
        QStringList names;
        for (const CalendarGroup& stored : storedCalendarGroups(settings)) {
            names << stored.calendarGroupName;
        }
        return names;
    }

    test::MemorySettings settings;
    test::FakeAlerts alerts;
    std::unique_ptr<CalendarGroupsArrayController> controller;
};

} // namespace

TEST_F(CalendarGroupsArrayControllerTest, TheFirstLaunchCreatesAllCalendarsAndTheSecondNoOther) {
    wake();
    const QVariant expected = QVariantList{group("All Calendars")};
    EXPECT_EQ(settings.object("calendarGroups"), expected);
    EXPECT_EQ(settings.object("isDefaultAllCalendarsGroupCreated"), QVariant(true));
    EXPECT_EQ(settings.object("isCalendarGroupsSheetActive"), QVariant(false));
    EXPECT_EQ(controller->selectionIndex(), 0U);
    wake();
    EXPECT_EQ(settings.object("calendarGroups"), expected);
    EXPECT_EQ(shownNames(), QStringList{"All Calendars"});
}

TEST_F(CalendarGroupsArrayControllerTest, AStoredListThatWasEmptiedGetsNoSecondDefaultGroup) {
    storeGroups({});
    wake();
    EXPECT_EQ(controller->arrangedCount(), 0U);
    controller->removeCalendarGroup();
    EXPECT_EQ(alerts.shown.back().messageText, QStringLiteral("Cannot delete All Calendars"));
}

TEST_F(CalendarGroupsArrayControllerTest,
       GroupsThatWereStoredBeforeTheFirstLaunchGetTheDefaultBehindThemAndItsNameInFront) {
    storeGroups({"Clients", "Home"});
    settings.remove("isDefaultAllCalendarsGroupCreated");
    wake();
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "Home", "All Calendars"}));
    EXPECT_EQ(shownNames(), storedNames());
    EXPECT_EQ(settings.object("isDefaultAllCalendarsGroupCreated"), QVariant(true));
}

TEST_F(CalendarGroupsArrayControllerTest, ThatTheDefaultWasCreatedIsKnownByTheKeyNotByItsValue) {
    for (const QVariant& value : {QVariant(false), QVariant(qint64{0}), QVariant("")}) {
        storeGroups({});
        settings.setObject("isDefaultAllCalendarsGroupCreated", value);
        wake();
        EXPECT_EQ(storedNames(), QStringList()) << value.typeName();
        EXPECT_EQ(settings.object("isDefaultAllCalendarsGroupCreated"), value) << value.typeName();
    }
}

TEST_F(CalendarGroupsArrayControllerTest, AGroupIsTheSameOneThroughEditsAndAnotherAfterAWrite) {
    storeGroups({"All Calendars", "Clients", "Home"});
    wake();
    controller->setSelectedRows({1});
    const std::uint64_t clients = controller->selectedInstance();
    controller->setCalendarGroupName(1, "Friends");
    controller->setCalendarGroupArray(1, {CalendarGroupEntry()});
    EXPECT_EQ(controller->selectedInstance(), clients);
    controller->setSelectedRows({2});
    EXPECT_NE(controller->selectedInstance(), clients);
    controller->setSelectedRows({1});
    EXPECT_EQ(controller->selectedInstance(), clients);
    controller->removeCalendarGroup();
    EXPECT_EQ(controller->selectionIndex(), 1U);
    EXPECT_NE(controller->selectedInstance(), clients) << "the next one in its place";
    const std::uint64_t home = controller->selectedInstance();
    settings.setObject("calendarGroups", settings.object("calendarGroups"));
    EXPECT_NE(controller->selectedInstance(), home);
    storeGroups({});
    EXPECT_EQ(controller->selectedInstance(), 0U);
}

TEST_F(CalendarGroupsArrayControllerTest, AddingToAnEmptiedListPutsAllCalendarsFirstAgain) {
    storeGroups({});
    wake();
    controller->addCalendarGroup();
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "New Group 1"}));
    EXPECT_EQ(controller->selectionIndex(), 1U);
}

TEST_F(CalendarGroupsArrayControllerTest, PositionsBeyondTheListChangeNothing) {
    storeGroups({"All Calendars", "Clients"});
    wake();
    controller->setCalendarGroupName(2, "Nobody");
    controller->setCalendarGroupArray(2, {CalendarGroupEntry()});
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "Clients"}));
}

TEST_F(CalendarGroupsArrayControllerTest, TheFirstGroupGetsItsNameBackAtEveryStart) {
    storeGroups({"Alle Kalender", "Clients"});
    wake();
    EXPECT_EQ(shownNames(), (QStringList{"All Calendars", "Clients"}));
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "Clients"}));
}

TEST_F(CalendarGroupsArrayControllerTest, TheFirstNewGroupIsNumberOne) {
    wake();
    controller->addCalendarGroup();
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "New Group 1"}));
}

TEST_F(CalendarGroupsArrayControllerTest,
       ANewGroupIsNumberedByTheListAndListsEveryCalendarUnticked) {
    storeGroups({"All Calendars", "New Group 3", "Clients"});
    settings.setObject("calendars", QVariantList{calendar("w", "Work"), calendar("a", "Art")});
    wake();
    controller->addCalendarGroup();
    EXPECT_EQ(storedNames(),
              (QStringList{"All Calendars", "New Group 3", "Clients", "New Group 3"}))
        << "names need not be unique";
    const CalendarGroupEntries expected{
        {.calendarIdentifier = "w", .title = "Work", .isSelected = false, .otherMembers = {}},
        {.calendarIdentifier = "a", .title = "Art", .isSelected = false, .otherMembers = {}}};
    EXPECT_EQ(storedCalendarGroups(settings)[3].calendarGroupArray, expected);
    EXPECT_EQ(controller->selectionIndex(), 3U) << "ready to be named and ticked";
}

TEST_F(CalendarGroupsArrayControllerTest, AllCalendarsCannotBeDeleted) {
    storeGroups({"All Calendars", "Clients"});
    wake();
    controller->removeCalendarGroup();
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, QStringLiteral("Cannot delete All Calendars"));
    EXPECT_EQ(alerts.shown[0].buttonTitles, QStringList{"OK"});
    EXPECT_EQ(alerts.shown[0].style, AlertStyle::Warning);
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "Clients"}));
}

TEST_F(CalendarGroupsArrayControllerTest, AGroupIsDeletedOnlyByTheFirstButton) {
    storeGroups({"All Calendars", "Clients", "Home"});
    wake();
    controller->setSelectedRows({1});
    alerts.answer = 1;
    controller->removeCalendarGroup();
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, QStringLiteral("Delete the group?"));
    EXPECT_EQ(alerts.shown[0].buttonTitles, (QStringList{"OK", "Cancel"}));
    EXPECT_EQ(alerts.shown[0].style, AlertStyle::Warning);
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "Clients", "Home"}));
    alerts.answer = 0;
    controller->removeCalendarGroup();
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "Home"}));
    EXPECT_EQ(controller->selectionIndex(), 1U);
}

TEST_F(CalendarGroupsArrayControllerTest, DeletingTheLastGroupSelectsTheOneBeforeIt) {
    storeGroups({"All Calendars", "Clients", "Home"});
    wake();
    controller->setSelectedRows({2});
    controller->removeCalendarGroup();
    EXPECT_EQ(shownNames(), (QStringList{"All Calendars", "Clients"}));
    EXPECT_EQ(controller->selectionIndex(), 1U);
}

TEST_F(CalendarGroupsArrayControllerTest, TheGroupToDeleteIsReadAgainAfterTheAlert) {
    struct RewritingAlerts final : AlertPresenter {
        [[nodiscard]] int runModal(const Alert&) override {
            whileShown();
            return 0;
        }
        std::function<void()> whileShown;
    };
    RewritingAlerts rewriting;
    storeGroups({"All Calendars", "Clients", "Home"});
    CalendarGroupsArrayController list(settings, rewriting);
    list.awakeFromNib();
    list.setSelectedRows({1});
    rewriting.whileShown = [&] { list.setSelectedRows({2}); };
    list.removeCalendarGroup();
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "Clients"}));
    rewriting.whileShown = [&] { storeGroups({"All Calendars"}); };
    list.removeCalendarGroup();
    EXPECT_EQ(storedNames(), QStringList{"All Calendars"}) << "the list shrank meanwhile";
}

TEST_F(CalendarGroupsArrayControllerTest, OpeningTheSheetAnnouncesTheSelectedGroupAgain) {
    storeGroups({"All Calendars", "Clients", "Home"});
    wake();
    controller->setSelectedRows({2});
    std::vector<std::size_t> announced;
    QObject::connect(controller.get(), &ListControllerNotices::selectedObjectsChanged,
                     [&] { announced.push_back(controller->selectionIndex()); });
    settings.setObject("isCalendarGroupsSheetActive", true);
    EXPECT_EQ(announced, (std::vector<std::size_t>{0, 2}));
    settings.setObject("isCalendarGroupsSheetActive", false);
    EXPECT_EQ(announced.size(), 2U) << "closing announces nothing";
}

TEST_F(CalendarGroupsArrayControllerTest, ARenamedGroupIsStoredAtOnceAndStaysSelected) {
    storeGroups({"All Calendars", "Clients", "Clients"});
    wake();
    controller->setSelectedRows({2});
    const auto writes = settings.writes.count("calendarGroups");
    controller->setCalendarGroupName(2, "Friends");
    EXPECT_EQ(storedNames(), (QStringList{"All Calendars", "Clients", "Friends"}));
    EXPECT_EQ(shownNames(), storedNames());
    EXPECT_EQ(controller->selectionIndex(), 2U);
    EXPECT_EQ(settings.writes.count("calendarGroups"), writes + 1);
}

TEST_F(CalendarGroupsArrayControllerTest, AWriteFromElsewhereIsShownAndItsUnknownMembersAreKept) {
    wake();
    QVariantMap newer = group("Clients");
    newer.insert("color", "red");
    newer.insert("calendarGroupArray",
                 QVariantList{QVariantMap{{"calendarIdentifier", "w"}, {"note", 5}}, "no record"});
    settings.setObject("calendarGroups", QVariantList{group("All Calendars"), 17, newer});
    EXPECT_EQ(shownNames(), (QStringList{"All Calendars", "Clients"}));
    controller->setCalendarGroupName(1, "Friends");
    const QVariantMap stored = settings.object("calendarGroups").toList()[1].toMap();
    EXPECT_EQ(stored.value("calendarGroupName"), QVariant("Friends"));
    EXPECT_EQ(stored.value("color"), QVariant("red"));
    const QVariantList entries = stored.value("calendarGroupArray").toList();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0].toMap().value("note"), QVariant(5));
}

TEST_F(CalendarGroupsArrayControllerTest, ValuesOfAWrongTypeAreReadAsTheirZero) {
    settings.setObject("isDefaultAllCalendarsGroupCreated", true);
    settings.setObject("calendarGroups", "nonsense");
    wake();
    EXPECT_EQ(controller->arrangedCount(), 0U);
    settings.setObject("calendarGroups",
                       QVariantList{QVariantMap{{"calendarGroupName", QVariantList{1}},
                                                {"calendarGroupArray", "x"}}});
    ASSERT_EQ(controller->arrangedCount(), 1U);
    EXPECT_TRUE(controller->arranged(0).calendarGroupName.isEmpty());
    EXPECT_TRUE(controller->arranged(0).calendarGroupArray.empty());
}

} // namespace quillet
