#include "backends/evolution/ServiceFixture.h"

#include <QElapsedTimer>

namespace quillet::test {

namespace {

constexpr int patientMilliseconds = 60'000;
const QString unreachable = QStringLiteral("not reachable since 14:02, retrying");

QByteArray event(const QByteArray& uid, const QByteArray& title) {
    return "UID:" + uid +
           "\r\nDTSTART:20240301T090000Z\r\nDTEND:20240301T100000Z\r\nSUMMARY:" + title;
}

class RecoveryTest : public ServiceFixture {};

TEST_F(RecoveryTest, readsEverythingOnceWhenTheServiceIsKilledWhileItIsBeingRead) {
    constexpr int count = 20'000;
    writeManyEvents(QStringLiteral("large"), count);
    ESource* large = addCalendar(QStringLiteral("Large"), "large");
    const pid_t holder = holderOf(large);
    const auto controller = factory();
    limits.patience = std::chrono::milliseconds(0);
    open();
    ASSERT_TRUE(waitForCalendars({"Large"}));
    EXPECT_TRUE(events().empty());
    kill(holder, SIGKILL);
    kill(*controller, SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return problemOf("Large") == unreachable; }));
    ASSERT_TRUE(waitUntil([&] { return events().size() == count; }, patientMilliseconds));
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }));
}

TEST_F(RecoveryTest, keepsTheEventsWhileTheServiceIsAwayAndFollowsItsChangesAgain) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "First"));
    limits.firstRetry = std::chrono::milliseconds(1500);
    open();
    ASSERT_TRUE(waitForTitles({"First"}));
    ASSERT_TRUE(waitUntil([&] { return store->problems().empty(); }));
    for (int round = 0; round < 2; ++round) {
        kill(holderOf(work), SIGKILL);
        EXPECT_TRUE(waitUntil([&] { return problemOf("Work") == unreachable; }));
        EXPECT_EQ(titles(), QStringList({"First"}));
        EXPECT_EQ(calendarTitles(), QStringList({"Work"}));
        ASSERT_TRUE(waitUntil([&] { return store->problems().empty(); }));
        remove(work);
        // Seen to go, or what is seen next could be the old one.
        ASSERT_TRUE(waitForCalendars({}));
        work = addCalendar(QStringLiteral("Work"));
        addEvent(work, event("one", "First"));
        ASSERT_TRUE(waitForTitles({"First"}));
        ASSERT_TRUE(waitUntil([&] { return store->problems().empty(); }));
    }
}

TEST_F(RecoveryTest, recoversFromTheDeathOfTheRegistry) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "First"));
    open();
    ASSERT_TRUE(waitForTitles({"First"}));
    kill(*registryProcess(), SIGKILL);
    kill(*factory(), SIGKILL);
    EXPECT_EQ(titles(), QStringList({"First"}));
    // Not for a moment without its calendars, or their rates would be dropped.
    bool isAlwaysListed = true;
    ASSERT_TRUE(waitUntil(
        [&] {
            isAlwaysListed = isAlwaysListed && calendarTitles() == QStringList({"Work"});
            return registryProcess().has_value();
        },
        patientMilliseconds));
    EXPECT_TRUE(waitUntil(
        [&] {
            isAlwaysListed = isAlwaysListed && calendarTitles() == QStringList({"Work"});
            return store->problems().empty();
        },
        patientMilliseconds));
    EXPECT_TRUE(isAlwaysListed);
    EXPECT_EQ(titles(), QStringList({"First"}));
}

TEST_F(RecoveryTest, saysWhichCalendarsDoNotAnswerAndGoesOnWhenTheyDo) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "First"));
    limits.answer = std::chrono::milliseconds(700);
    limits.probe = std::chrono::milliseconds(300);
    open();
    ASSERT_TRUE(waitForTitles({"First"}));
    ASSERT_TRUE(waitUntil([&] { return store->problems().empty(); }));
    const pid_t holder = holderOf(work);
    kill(holder, SIGSTOP);
    EXPECT_TRUE(waitUntil([&] { return problemOf("Work") == unreachable; }));
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(titles(), QStringList({"First"}));
    EXPECT_LT(timer.elapsed(), 100);
    kill(holder, SIGCONT);
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }, patientMilliseconds));
}

TEST_F(RecoveryTest, letsAQueryWaitForASilentServiceForAMomentOnly) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "First"));
    const pid_t holder = holderOf(work);
    const pid_t controller = *factory();
    limits.answer = std::chrono::milliseconds(1500);
    kill(holder, SIGSTOP);
    kill(controller, SIGSTOP);
    open();
    ASSERT_TRUE(waitForCalendars({"Work"}));
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(titles(), QStringList());
    EXPECT_LT(timer.elapsed(), 1300);
    EXPECT_TRUE(
        waitUntil([&] { return problemOf("Work") == QStringLiteral("is still being read"); }));
    EXPECT_TRUE(waitUntil([&] { return problemOf("Work") == unreachable; }));
    timer.start();
    EXPECT_EQ(titles(), QStringList());
    EXPECT_LT(timer.elapsed(), 100);
    kill(controller, SIGCONT);
    kill(holder, SIGCONT);
    EXPECT_TRUE(waitForTitles({"First"}, patientMilliseconds));
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }));
}

TEST_F(RecoveryTest, saysThatTheServiceDoesNotAnswerAndGoesOnWhenItDoes) {
    addCalendar(QStringLiteral("Work"), "work");
    limits.answer = std::chrono::milliseconds(500);
    const pid_t silent = *registryProcess();
    leaveService();
    kill(silent, SIGSTOP);
    open();
    EXPECT_TRUE(waitUntil([&] { return problemOf("Desktop calendars") == unreachable; }));
    EXPECT_TRUE(store->calendars().empty());
    kill(silent, SIGCONT);
    EXPECT_TRUE(waitForCalendars({"Work"}, patientMilliseconds));
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }));
    meetService();
    (void)sourceNamed(QStringLiteral("work"));
}

TEST_F(RecoveryTest, livesOnWhenTheSessionBusEnds) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "First"));
    open();
    ASSERT_TRUE(waitForTitles({"First"}));
    // The fixture's own connection would end the process as well.
    const ObjectPointer<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    const auto daemon = processOf("org.freedesktop.DBus");
    ASSERT_TRUE(daemon.has_value());
    kill(*daemon, SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return problemOf("Work") == unreachable; }));
    EXPECT_EQ(problemOf("Desktop calendars"),
              QStringLiteral("not reachable, for there is no session bus"));
    EXPECT_EQ(titles(), QStringList({"First"}));
    EXPECT_EQ(calendarTitles(), QStringList({"Work"}));
}

TEST_F(RecoveryTest, saysThatThereIsNoSessionBus) {
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    open();
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Restricted);
    EXPECT_EQ(problemOf("Desktop calendars"),
              QStringLiteral("not reachable, for there is no session bus"));
    EXPECT_TRUE(store->calendars().empty());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

TEST_F(RecoveryTest, keepsTheCalendarsOfTheLastRunWithoutASessionBus) {
    addCalendar(QStringLiteral("Work"));
    open();
    ASSERT_TRUE(waitForCalendars({"Work"}));
    store.reset();
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    open();
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Authorized);
    EXPECT_EQ(calendarTitles(), QStringList({"Work"}));
    EXPECT_EQ(problemOf("Work"), unreachable);
    access.forget();
    EXPECT_TRUE(store->problems().empty()) << "of calendars that may not be read nothing is said";
    EXPECT_TRUE(store->calendars().empty());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

} // namespace

} // namespace quillet::test
