#include "backends/combined/CalendarAccess.h"
#include "backends/combined/CalendarMemory.h"
#include "backends/evolution/EvolutionStore.h"
#include "backends/evolution/Glib.h"
#include "support/WaitUntil.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

/// A session on whose bus no calendar service is installed. The process can be on one bus only.
class MissingServiceTest : public testing::Test {
protected:
    MissingServiceTest() {
        g_test_dbus_add_service_dir(bus.get(), QFile::encodeName(folder.path()).constData());
        g_test_dbus_up(bus.get());
        access.request([](bool, const std::optional<QString>&) {});
        limits.firstRetry = std::chrono::milliseconds(50);
        limits.longestRetry = std::chrono::milliseconds(50);
    }

    ~MissingServiceTest() override {
        store.reset();
        g_test_dbus_stop(bus.get());
    }

    void open() {
        store = std::make_unique<EvolutionStore>(
            access,
            EvolutionStore::Setup{.stateFolder = folder.path(),
                                  .shortTime = [](Instant) { return QStringLiteral("14:02"); },
                                  .limits = limits});
    }

    void rememberWork() const {
        CalendarMemory(folder.filePath(QStringLiteral("desktop-calendars.json")))
            .keep({std::make_shared<const StoreCalendar>(
                StoreCalendar{QStringLiteral("evolution:work"), QStringLiteral("Work"), {}})});
    }

    void addService(const QByteArray& program) const {
        QFile service(folder.filePath(QStringLiteral("registry.service")));
        ASSERT_TRUE(service.open(QIODevice::WriteOnly));
        service.write("[D-BUS Service]\nName=org.gnome.evolution.dataserver.Sources5\nExec=" +
                      program + "\n");
    }

    [[nodiscard]] bool saysOnly(const QString& subject, const QString& reason) const {
        const auto problems = store->problems();
        return problems.size() == 1 && problems[0].subject == subject &&
               problems[0].reason == reason;
    }

    QTemporaryDir folder;
    ObjectPointer<GTestDBus> bus{g_test_dbus_new(G_TEST_DBUS_NONE)};
    CalendarAccess access{folder.path(),
                          [](const CalendarAccess::Answer& answer) { answer(true); }};
    ServiceLimits limits;
    std::unique_ptr<EvolutionStore> store;
};

const QString unreachable = QStringLiteral("not reachable since 14:02, retrying");

TEST_F(MissingServiceTest, saysNothingOfAServiceThatWasNeverInstalled) {
    open();
    ASSERT_TRUE(waitUntil(
        [this] { return store->authorizationStatus() == AuthorizationStatus::Restricted; }));
    EXPECT_TRUE(store->problems().empty());
    EXPECT_TRUE(store->calendars().empty());
}

TEST_F(MissingServiceTest, saysNothingOfAServiceThatOnlyTheBusKnows) {
    // As Debian has it where the library is installed without the service.
    addService("/usr/libexec/not-installed");
    open();
    ASSERT_TRUE(waitUntil(
        [this] { return store->authorizationStatus() == AuthorizationStatus::Restricted; }));
    EXPECT_FALSE(waitUntil([this] { return !store->problems().empty(); }, 300));
}

TEST_F(MissingServiceTest, asksTheBusNoMoreForAServiceThatWasNeverInstalled) {
    open();
    ASSERT_TRUE(waitUntil(
        [this] { return store->authorizationStatus() == AuthorizationStatus::Restricted; }));
    const QString trace = folder.filePath(QStringLiteral("trace"));
    addService("/usr/bin/touch " + QFile::encodeName(trace));
    EXPECT_FALSE(waitUntil([&] { return QFile::exists(trace); }, 1000));
}

TEST_F(MissingServiceTest, saysThatAServiceCannotBeStarted) {
    addService("/bin/false");
    open();
    EXPECT_TRUE(
        waitUntil([this] { return saysOnly(QStringLiteral("Desktop calendars"), unreachable); }));
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Authorized);
}

TEST_F(MissingServiceTest, keepsTheCalendarsOfAServiceThatIsInstalledNoMore) {
    rememberWork();
    open();
    EXPECT_TRUE(waitUntil([this] { return saysOnly(QStringLiteral("Work"), unreachable); }));
    ASSERT_EQ(store->calendars().size(), 1U);
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Authorized);
    store.reset();
    open();
    EXPECT_EQ(store->calendars().size(), 1U);
}

} // namespace

} // namespace quillet::test
