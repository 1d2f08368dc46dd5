#include "backends/icu/IcuLocaleFormats.h"
#include "calendars/CalendarGroupsArrayController.h"
#include "calendars/CalendarGroupsArraySelectedCalendarsArrayController.h"
#include "calendars/CalendarGroupsController.h"
#include "calendars/CalendarGroupsSheetController.h"
#include "calendars/CalendarsArrayController.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

std::shared_ptr<const StoreCalendar> calendar(const QString& identifier, const QString& title) {
    return std::make_shared<const StoreCalendar>(
        StoreCalendar{.calendarIdentifier = identifier, .title = title, .colorName = {}});
}

/// The controllers of calendars and groups, connected as in the program.
class CalendarGroupsTogetherTest : public testing::Test {
protected:
    CalendarGroupsTogetherTest() {
        store.storedCalendars = {calendar("w", "Work"), calendar("c", "Clients"),
                                 calendar("h", "Home")};
    }
    void wake() {
        settings.setObject("isCalendarAccessGranted", true);
        calendars.awakeFromNib();
        groups.awakeFromNib();
        checklist.awakeFromNib();
        filter.awakeFromNib();
    }
    /// A first group with Work and Home, made in the sheet, and chosen.
    void makeAndChooseGroup() {
        sheetController.openCalendarGroupsSheet();
        groups.addCalendarGroup();
        checklist.setSelected(1, true);
        checklist.setSelected(2, true);
        sheetController.closeCalendarGroupsSheet();
        filter.setCalendarGroupsSelectedIndex(1);
    }
    QStringList shownCalendars() const {
        QStringList titles;
        for (std::size_t row = 0; row < calendars.arrangedCount(); ++row) {
            titles << calendars.arranged(row).title;
        }
        return titles;
    }
    QStringList shownChecklist() const {
        QStringList titles;
        for (std::size_t row = 0; row < checklist.arrangedCount(); ++row) {
            titles << checklist.arranged(row).title;
        }
        return titles;
    }

    test::MemorySettings settings;
    test::FakeEventStore store;
    test::FakeAlerts alerts;
    test::FakeQueue mainQueue;
    test::FakeTimer timer;
    test::FakeSheet sheet;
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    EventKitManager manager{store, settings, alerts, mainQueue};
    CalendarsArrayController calendars{settings, manager, formats, timer};
    CalendarGroupsArrayController groups{settings, alerts};
    CalendarGroupsArraySelectedCalendarsArrayController checklist{settings, groups};
    CalendarGroupsController filter{{settings, calendars, groups, timer}};
    CalendarGroupsSheetController sheetController{settings, sheet};
};

} // namespace

TEST_F(CalendarGroupsTogetherTest, AGroupMadeInTheSheetNarrowsTheList) {
    wake();
    makeAndChooseGroup();
    EXPECT_EQ(shownCalendars(), (QStringList{"Home", "Work"}));
    filter.setCalendarGroupsSelectedIndex(0);
    EXPECT_EQ(shownCalendars(), (QStringList{"Clients", "Home", "Work"}));
}

TEST_F(CalendarGroupsTogetherTest, ATickInTheNarrowedListKeepsTheHiddenCalendars) {
    wake();
    makeAndChooseGroup();
    calendars.setSelected(1, false);
    calendars.setRate(0, Decimal::fromInteger(50));
    EXPECT_EQ(shownCalendars(), (QStringList{"Home", "Work"}));
    const std::vector<CalendarRecord> stored = storedCalendarRecords(settings);
    ASSERT_EQ(stored.size(), 3U);
    EXPECT_FALSE(stored[0].isSelected);
    EXPECT_TRUE(stored[1].isSelected);
    EXPECT_EQ(stored[2].rate, Decimal::fromInteger(50));
}

TEST_F(CalendarGroupsTogetherTest, TheStoresChangesReachTheOpenSheet) {
    wake();
    makeAndChooseGroup();
    sheetController.openCalendarGroupsSheet();
    store.storedCalendars = {calendar("w", "Werk"), calendar("h", "Home"), calendar("n", "New")};
    calendars.storeChanged();
    EXPECT_EQ(shownChecklist(), (QStringList{"Home", "New", "Werk"}));
    EXPECT_EQ(shownCalendars(), (QStringList{"Home", "Werk"})) << "a new calendar is in no group";
}

TEST_F(CalendarGroupsTogetherTest, DeletingTheChosenLastGroupShowsAllCalendarsWhenTheSheetCloses) {
    wake();
    makeAndChooseGroup();
    sheetController.openCalendarGroupsSheet();
    groups.removeCalendarGroup();
    EXPECT_EQ(shownCalendars(), (QStringList{"Home", "Work"}));
    sheetController.closeCalendarGroupsSheet();
    EXPECT_EQ(shownCalendars(), (QStringList{"Clients", "Home", "Work"}));
}

TEST_F(CalendarGroupsTogetherTest, AChosenGroupIsAnnouncedOnce) {
    wake();
    makeAndChooseGroup();
    filter.setCalendarGroupsSelectedIndex(0);
    int notices = 0;
    QObject::connect(&calendars, &ListControllerNotices::arrangedObjectsChanged,
                     [&] { ++notices; });
    filter.setCalendarGroupsSelectedIndex(1);
    EXPECT_EQ(notices, 1);
}

TEST_F(CalendarGroupsTogetherTest, TheSheetIsClosedAtEveryStart) {
    settings.setObject("isCalendarGroupsSheetActive", true);
    wake();
    EXPECT_EQ(settings.object("isCalendarGroupsSheetActive"), QVariant(false));
}

} // namespace quillet
