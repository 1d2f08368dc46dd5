#include "eventdata/EventKitManager.h"

#include "support/EventSamples.h"
#include "support/ExpectedLog.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

/// Notes what is written about the access while an alert is shown.
class WatchingAlerts final : public AlertPresenter {
public:
    explicit WatchingAlerts(const SettingsStore& settings)
        : settings_(settings) {}
    [[nodiscard]] int runModal(const Alert&) override {
        seen.append(settings_.object("isCalendarAccessGranted"));
        return 0;
    }

    QList<QVariant> seen;

private:
    const SettingsStore& settings_;
};

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

TEST_F(EventKitManagerTest, WhatIsKnownOfTheAccessIsWrittenEachTime) {
    manager.becomeActive();
    EXPECT_EQ(settings.object("isCalendarAccessGranted"), QVariant(true));
    store.status = AuthorizationStatus::Denied;
    manager.becomeActive();
    EXPECT_EQ(settings.object("isCalendarAccessGranted"), QVariant(false));
    store.status = AuthorizationStatus::Authorized;
    manager.becomeActive();
    EXPECT_EQ(settings.object("isCalendarAccessGranted"), QVariant(true));
}

TEST_F(EventKitManagerTest, TheRefusalIsWrittenBeforeItIsShown) {
    WatchingAlerts watching(settings);
    EventKitManager other(store, settings, watching, main);
    settings.setObject("isCalendarAccessGranted", true);
    store.status = AuthorizationStatus::Denied;
    other.becomeActive();
    EXPECT_EQ(watching.seen, QList<QVariant>{false});
}

TEST_F(EventKitManagerTest, TheGrantIsAnnouncedBeforeItIsWritten) {
    QStringList order;
    const auto note = [&](const char* what) {
        return [&order, what] { order.append(QString::fromLatin1(what)); };
    };
    QObject::connect(&manager, &EventKitManager::eventCalendarsAccessGrantedChanged,
                     note("changed"));
    QObject::connect(&manager, &EventKitManager::accessGranted, note("granted"));
    const Observation written = settings.observe("isCalendarAccessGranted", note("written"));
    store.status = AuthorizationStatus::NotDetermined;
    manager.becomeActive();
    store.status = AuthorizationStatus::Authorized;
    store.requests.front()(true, std::nullopt);
    main.runAll();
    EXPECT_EQ(order, (QStringList{"changed", "granted", "written"}));
}

TEST_F(EventKitManagerTest, AnErrorIsLoggedWhateverTheAnswerIs) {
    store.status = AuthorizationStatus::NotDetermined;
    manager.becomeActive();
    const test::ExpectedLog log("failure requesting Events access: disk full");
    store.requests.front()(true, QStringLiteral("disk full"));
    main.runAll();
    EXPECT_EQ(grants, 1);
}

TEST_F(EventKitManagerTest, AnAnswerThatComesAfterTheEndReachesNobody) {
    store.status = AuthorizationStatus::NotDetermined;
    auto ending = std::make_unique<EventKitManager>(store, settings, alerts, main);
    ending->becomeActive();
    store.requests.front()(true, std::nullopt);
    ending.reset();
    store.requests.front()(true, std::nullopt);
    main.runAll();
    EXPECT_FALSE(settings.object("isCalendarAccessGranted").isValid());
}

} // namespace quillet
