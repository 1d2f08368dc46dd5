#include "eventdata/EventKitManager.h"

#include "support/EventSamples.h"
#include "support/ExpectedLog.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

class EventKitManagerTest : public testing::Test {
protected:
    EventKitManagerTest() {
        store.storedCalendars = {test::calendarNamed("work")};
        QObject::connect(&manager, &EventKitManager::accessGranted, [this] { ++grants; });
        QObject::connect(&manager, &EventKitManager::storeChanged,
                         [this](int announcements) { announced += announcements; });
    }

    test::MemorySettings settings;
    test::FakeEventStore store;
    test::FakeAlerts alerts;
    test::FakeQueue main;
    EventKitManager manager{store, settings, alerts, main};
    int grants = 0;
    int announced = 0;
};

} // namespace

TEST_F(EventKitManagerTest, TheFirstLaunchAsksOnceAndTheGrantIsAnnounced) {
    store.status = AuthorizationStatus::NotDetermined;
    manager.becomeActive();
    ASSERT_EQ(store.requests.size(), 1U);
    EXPECT_FALSE(settings.object("isCalendarAccessGranted").isValid());
    store.status = AuthorizationStatus::Authorized;
    store.requests.front()(true, std::nullopt);
    EXPECT_EQ(grants, 0) << "only on the main thread";
    main.runAll();
    EXPECT_EQ(grants, 1);
    EXPECT_EQ(settings.object("isCalendarAccessGranted"), QVariant(true));
    store.observers.notify();
    EXPECT_EQ(announced, 1);
}

TEST_F(EventKitManagerTest, DeniedAccessIsToldEachTimeTheProgramComesToTheFront) {
    for (const auto status : {AuthorizationStatus::Denied, AuthorizationStatus::Restricted}) {
        alerts.shown.clear();
        store.status = status;
        manager.becomeActive();
        manager.becomeActive();
        ASSERT_EQ(alerts.shown.size(), 2U);
        EXPECT_EQ(alerts.shown[0].messageText, QStringLiteral("Access Denied"));
        EXPECT_EQ(alerts.shown[0].informativeText,
                  QStringLiteral("Quillet doesn't have access to your Calendars."));
        EXPECT_EQ(alerts.shown[0].buttonTitles, QStringList{"OK"});
        EXPECT_EQ(alerts.shown[0].style, AlertStyle::Informational);
        EXPECT_EQ(settings.object("isCalendarAccessGranted"), QVariant(false));
    }
}

TEST_F(EventKitManagerTest, EachActivationAddsOneAnnouncementOfEachStoreChange) {
    manager.becomeActive();
    manager.becomeActive();
    manager.becomeActive();
    store.observers.notify();
    EXPECT_EQ(announced, 3);
}

TEST_F(EventKitManagerTest, AFailedRequestIsLoggedAndChangesNothing) {
    store.status = AuthorizationStatus::NotDetermined;
    manager.becomeActive();
    const test::ExpectedLog log("failure requesting Events access: no desktop");
    store.requests.front()(false, QStringLiteral("no desktop"));
    main.runAll();
    EXPECT_EQ(grants, 0);
    EXPECT_FALSE(settings.object("isCalendarAccessGranted").isValid());
}

TEST_F(EventKitManagerTest, AccessOnceGrantedIsNotAskedForAgain) {
    manager.requestEventCalendarsAccess();
    EXPECT_TRUE(store.requests.empty());
}

TEST_F(EventKitManagerTest, WithoutAccessThereAreNoCalendarsAndNoEvents) {
    store.status = AuthorizationStatus::Denied;
    EXPECT_TRUE(manager.eventCalendars().empty());
    EXPECT_TRUE(
        manager.eventsInCalendars(store.storedCalendars, utc(2024, 3, 1), utc(2024, 3, 2)).empty());
    EXPECT_EQ(store.queries, 0);
}

TEST_F(EventKitManagerTest, WithoutADateOrACalendarTheStoreIsNotAsked) {
    EXPECT_TRUE(manager.eventsInCalendars({}, utc(2024, 3, 1), utc(2024, 3, 2)).empty());
    EXPECT_TRUE(
        manager.eventsInCalendars(store.storedCalendars, std::nullopt, utc(2024, 3, 2)).empty());
    EXPECT_TRUE(
        manager.eventsInCalendars(store.storedCalendars, utc(2024, 3, 2), std::nullopt).empty());
    EXPECT_EQ(store.queries, 0);
}

} // namespace quillet
