#include "calendars/CalendarsArrayController.h"

#include "backends/icu/IcuLocaleFormats.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

std::shared_ptr<const StoreCalendar> calendar(const QString& identifier, const QString& title) {
    return std::make_shared<const StoreCalendar>(
        StoreCalendar{.calendarIdentifier = identifier, .title = title, .colorName = {}});
}

class CalendarsArrayControllerTest : public testing::Test {
protected:
    CalendarsArrayControllerTest() {
        store.storedCalendars = {calendar("w", "Work"), calendar("c", "Clients"),
                                 calendar("h", "Home")};
        settings.setObject("isSingleRate", true);
        settings.setObject("isDollarsOn", false);
    }
    void wakeWithAccess() {
        settings.setObject("isCalendarAccessGranted", true);
        controller.awakeFromNib();
    }
    QStringList titles() const {
        QStringList result;
        for (std::size_t row = 0; row < controller.arrangedCount(); ++row) {
            result << controller.arranged(row).titleWithRate;
        }
        return result;
    }
    std::vector<CalendarRecord> stored() const { return storedCalendarRecords(settings); }

    test::MemorySettings settings;
    test::FakeEventStore store;
    test::FakeAlerts alerts;
    test::FakeQueue main;
    test::FakeTimer timer;
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    EventKitManager manager{store, settings, alerts, main};
    CalendarsArrayController controller{settings, manager, formats, timer};
};

} // namespace

TEST_F(CalendarsArrayControllerTest, TheFirstAccessTicksEveryCalendarAndFetchesALittleLater) {
    controller.awakeFromNib();
    EXPECT_EQ(settings.object("calendars"), QVariant(QVariantList()));
    EXPECT_EQ(settings.object("isCalendarGroupsSheetActive"), QVariant(false));
    EXPECT_EQ(settings.object("isCalendarAccessGranted"), QVariant(false));
    controller.accessGranted();
    EXPECT_EQ(titles(), (QStringList{"Clients", "Home", "Work"}));
    for (const CalendarRecord& record : stored()) {
        EXPECT_TRUE(record.isSelected);
        EXPECT_EQ(record.rate, Decimal());
    }
    ASSERT_EQ(timer.pending.size(), 1U);
    EXPECT_EQ(timer.pending[0].first, 1.5);
    timer.fireAll();
    EXPECT_EQ(settings.object("datesChangedTrigger"), QVariant(true));
}

TEST_F(CalendarsArrayControllerTest, TheGroupsSheetIsNeverOpenAtTheStart) {
    settings.setObject("isCalendarGroupsSheetActive", true);
    controller.awakeFromNib();
    EXPECT_EQ(settings.object("isCalendarGroupsSheetActive"), QVariant(false));
}

TEST_F(CalendarsArrayControllerTest, ASyncStoresAnEmptyListWhereThereIsNone) {
    wakeWithAccess();
    store.storedCalendars.clear();
    settings.remove("calendars");
    controller.syncCalendars();
    EXPECT_EQ(settings.object("calendars"), QVariant(QVariantList()));
}

TEST_F(CalendarsArrayControllerTest, ARecordWithoutARateGetsZero) {
    settings.setObject("calendars", QVariantList{QVariantMap{{"calendarIdentifier", "w"}}});
    wakeWithAccess();
    EXPECT_EQ(stored()[0].rate, Decimal());
    EXPECT_FALSE(stored()[0].isSelected) << "only new records are ticked";
}

TEST_F(CalendarsArrayControllerTest, TitlesStandInThePlainOrderOfTheirLetters) {
    store.storedCalendars = {calendar("a", "ärzte"), calendar("b", "arbeit"),
                             calendar("c", "Zahlen"), calendar("d", "Über")};
    wakeWithAccess();
    EXPECT_EQ(titles(), (QStringList{"Zahlen", "arbeit", "Über", "ärzte"}));
}

TEST_F(CalendarsArrayControllerTest, AnotherChosenGroupSyncsOnlyWithAccessAndWithoutTheSheet) {
    wakeWithAccess();
    store.storedCalendars.push_back(calendar("n", "New"));
    settings.setObject("isCalendarGroupsSheetActive", true);
    settings.setObject("calendarGroupsSelectedIndex", 1);
    EXPECT_EQ(stored().size(), 3U);
    settings.setObject("isCalendarAccessGranted", false);
    settings.setObject("isCalendarGroupsSheetActive", false);
    settings.setObject("calendarGroupsSelectedIndex", 1);
    EXPECT_EQ(stored().size(), 3U);
    settings.setObject("isCalendarAccessGranted", true);
    settings.setObject("calendarGroupsSelectedIndex", 1);
    EXPECT_EQ(stored().size(), 4U);
}

TEST_F(CalendarsArrayControllerTest, WhatASyncItselfStoresStartsNoOther) {
    settings.setObject("isCalendarAccessGranted", true);
    controller.awakeFromNib();
    settings.remove("hourlyRate");
    EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")), Decimal());
    bool wasSyncing = false;
    const Observation observation = settings.observe(
        "hourlyRate", [&] { wasSyncing = wasSyncing || controller.isCalendarsSyncing(); });
    settings.remove("hourlyRate");
    EXPECT_TRUE(wasSyncing) << "the rate is stored within the sync";
    controller.setIsCalendarsSyncing(true);
    settings.setObject("isDollarsOn", true);
    EXPECT_EQ(titles()[0], QStringLiteral("Clients"));
}

TEST_F(CalendarsArrayControllerTest, WithMoneyOnTheFirstTitlesShowZero) {
    settings.setObject("isDollarsOn", true);
    settings.setObject("isSingleRate", false);
    controller.awakeFromNib();
    controller.accessGranted();
    EXPECT_EQ(titles(), (QStringList{"Clients   ($0.00)", "Home   ($0.00)", "Work   ($0.00)"}));
}

TEST_F(CalendarsArrayControllerTest, ATitleThatIsMissingCountsAsEmptyAndARateAsZero) {
    EXPECT_EQ(controller.makeTitleWithStringAndRate(QString(), QStringLiteral("5")), QString(""));
    EXPECT_EQ(controller.makeTitleWithStringAndRate(QStringLiteral(" Work "), QString()),
              QStringLiteral(" Work "))
        << "as it comes";
    settings.setObject("isDollarsOn", true);
    EXPECT_EQ(controller.makeTitleWithStringAndRate(QString(), QString()),
              QStringLiteral("   ($0.00)"));
    EXPECT_EQ(controller.makeTitleWithStringAndRate(QStringLiteral("%2"), QStringLiteral("1234.5")),
              QStringLiteral("%2   ($1,234.50)"));
}

TEST_F(CalendarsArrayControllerTest, RecordsAreStoredInTheStoresOrderAndShownByTitle) {
    wakeWithAccess();
    EXPECT_EQ(stored()[0].title, QStringLiteral("Work"));
    EXPECT_EQ(controller.arranged(0).title, QStringLiteral("Clients"));
}

TEST_F(CalendarsArrayControllerTest, ARenamedCalendarKeepsItsRateAndTick) {
    wakeWithAccess();
    controller.setRate(2, Decimal::fromInteger(80));
    controller.setSelected(2, false);
    store.storedCalendars[0] = calendar("w", "Werk");
    controller.storeChanged();
    EXPECT_EQ(controller.arranged(2).title, QStringLiteral("Werk"));
    EXPECT_EQ(controller.arranged(2).rate, Decimal::fromInteger(80));
    EXPECT_FALSE(controller.arranged(2).isSelected);
}

TEST_F(CalendarsArrayControllerTest, ADeletedCalendarDisappearsWithTheNextStoreChange) {
    wakeWithAccess();
    store.storedCalendars.erase(store.storedCalendars.begin());
    controller.storeChanged();
    EXPECT_EQ(titles(), (QStringList{"Clients", "Home"}));
    EXPECT_EQ(stored().size(), 2U);
}

TEST_F(CalendarsArrayControllerTest, WithoutAccessTheStoredListIsKept) {
    settings.setObject("isCalendarAccessGranted", true);
    controller.awakeFromNib();
    settings.setObject("isCalendarAccessGranted", false);
    store.storedCalendars.clear();
    controller.storeChanged();
    settings.setObject("isDollarsOn", true);
    EXPECT_EQ(stored().size(), 3U);
}

TEST_F(CalendarsArrayControllerTest, ACalendarStoreThatIsClosedAtTheNextStartTakesNoRatesAlong) {
    for (const auto status : {AuthorizationStatus::Restricted, AuthorizationStatus::Denied,
                              AuthorizationStatus::NotDetermined}) {
        settings.setObject("calendars",
                           QVariantList{QVariantMap{{"calendarIdentifier", "w"}, {"rate", 80}}});
        // The setting still tells the last run's answer.
        settings.setObject("isCalendarAccessGranted", true);
        store.status = status;
        CalendarsArrayController next(settings, manager, formats, timer);
        next.awakeFromNib();
        settings.setObject("isDollarsOn", true);
        next.storeChanged();
        ASSERT_EQ(stored().size(), 1U);
        EXPECT_EQ(stored()[0].rate, Decimal::fromInteger(80));
    }
}

TEST_F(CalendarsArrayControllerTest, ASharedRateThatIsNoNumberIsShownAsZero) {
    settings.setObject("isDollarsOn", true);
    settings.setObject("hourlyRate", "abc");
    wakeWithAccess();
    EXPECT_EQ(titles()[0], QStringLiteral("Clients   ($0.00)"));
    settings.setObject("hourlyRate", "8");
    EXPECT_EQ(titles()[0], QStringLiteral("Clients   ($8.00)"));
}

TEST_F(CalendarsArrayControllerTest, TitlesShowTheRateWhileMoneyIsOn) {
    wakeWithAccess();
    settings.setObject("hourlyRate", 75.5);
    settings.setObject("isDollarsOn", true);
    EXPECT_EQ(titles(), (QStringList{"Clients   ($75.50)", "Home   ($75.50)", "Work   ($75.50)"}));
    settings.setObject("isDollarsOn", false);
    EXPECT_EQ(titles(), (QStringList{"Clients", "Home", "Work"}));
}

TEST_F(CalendarsArrayControllerTest, TheOwnRatesComeBackWhenTheSharedOneIsSwitchedOff) {
    wakeWithAccess();
    settings.setObject("isDollarsOn", true);
    settings.setObject("isSingleRate", false);
    controller.setRate(0, Decimal::fromInteger(90));
    EXPECT_EQ(titles()[0], QStringLiteral("Clients   ($90.00)"));
    settings.setObject("hourlyRate", 10);
    settings.setObject("isSingleRate", true);
    EXPECT_EQ(titles()[0], QStringLiteral("Clients   ($10.00)"));
    settings.setObject("isSingleRate", false);
    EXPECT_EQ(titles()[0], QStringLiteral("Clients   ($90.00)"));
}

TEST_F(CalendarsArrayControllerTest, ASharedRateThatWasNeverStoredBecomesZero) {
    wakeWithAccess();
    EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")), Decimal());
}

TEST_F(CalendarsArrayControllerTest, AControlClickClearsOrTicksAll) {
    wakeWithAccess();
    controller.setSelected(1, false);
    controller.setSelectedRows({0});
    controller.calendarTableViewClicked(CalendarsArrayController::ControlKey::Up);
    EXPECT_TRUE(controller.arranged(0).isSelected);
    controller.calendarTableViewClicked(CalendarsArrayController::ControlKey::Held);
    for (const CalendarRecord& record : stored()) {
        EXPECT_FALSE(record.isSelected);
    }
    controller.calendarTableViewClicked(CalendarsArrayController::ControlKey::Held);
    for (const CalendarRecord& record : stored()) {
        EXPECT_TRUE(record.isSelected);
    }
}

TEST_F(CalendarsArrayControllerTest, AControlClickWithoutASelectedRowTicksAll) {
    wakeWithAccess();
    controller.setSelected(1, false);
    controller.setSelectedRows({});
    controller.calendarTableViewClicked(CalendarsArrayController::ControlKey::Held);
    for (const CalendarRecord& record : stored()) {
        EXPECT_TRUE(record.isSelected);
    }
}

TEST_F(CalendarsArrayControllerTest, AControlClickReachesOnlyTheCalendarsThatAFilterLeaves) {
    wakeWithAccess();
    controller.setFilter("not Home", [](const CalendarRecord& record) {
        return record.calendarIdentifier != QStringLiteral("h");
    });
    controller.setSelectedRows({0});
    controller.calendarTableViewClicked(CalendarsArrayController::ControlKey::Held);
    for (const CalendarRecord& record : stored()) {
        EXPECT_EQ(record.isSelected, record.calendarIdentifier == QStringLiteral("h"));
    }
}

TEST_F(CalendarsArrayControllerTest, WhileTheGroupsSheetIsOpenSettingsDoNotSync) {
    wakeWithAccess();
    settings.setObject("isCalendarGroupsSheetActive", true);
    settings.setObject("isDollarsOn", true);
    EXPECT_EQ(titles()[0], QStringLiteral("Clients"));
    settings.setObject("isCalendarGroupsSheetActive", false);
    EXPECT_EQ(titles()[0], QStringLiteral("Clients   ($0.00)"));
}

TEST_F(CalendarsArrayControllerTest, AWriteFromElsewhereIsShown) {
    wakeWithAccess();
    settings.setObject(
        "calendars",
        QVariantList{QVariantMap{{"calendarIdentifier", "x"}, {"titleWithRate", "Other"}}, 17});
    EXPECT_EQ(titles(), QStringList{"Other"});
}

TEST_F(CalendarsArrayControllerTest, SyncingAnUnchangedStoreWritesNothing) {
    wakeWithAccess();
    const auto writes = settings.writes.count("calendars");
    controller.syncCalendars();
    EXPECT_EQ(settings.writes.count("calendars"), writes);
    EXPECT_FALSE(controller.isCalendarsSyncing());
}

TEST_F(CalendarsArrayControllerTest, ACalendarThatTheStoreListsTwiceIsAddedTwice) {
    store.storedCalendars = {calendar("w", "Work"), calendar("w", "Work")};
    wakeWithAccess();
    EXPECT_EQ(stored().size(), 2U);
    controller.syncCalendars();
    EXPECT_EQ(stored().size(), 2U);
}

} // namespace quillet
