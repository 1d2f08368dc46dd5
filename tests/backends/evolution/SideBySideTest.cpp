#include "backends/combined/CombinedEventStore.h"
#include "backends/evolution/ServiceFixture.h"
#include "backends/icsfolder/IcsFolderStore.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace quillet::test {

namespace {

/// The folder of calendar files and the desktop's service as one store.
class SideBySideTest : public ServiceFixture {
protected:
    SideBySideTest() {
        QDir().mkpath(root);
        QFile file(root + QStringLiteral("/Work.ics"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\n" + meeting +
                   "\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
    }

    [[nodiscard]] QStringList combinedTitles() const {
        QStringList found;
        for (const Event& event :
             combined->events(combined->calendars(), utc(2020, 1, 1), utc(2030, 1, 1))) {
            found.append(event.details->calendar->title + u'/' + event.details->title);
        }
        return found;
    }

    void openBoth() {
        open();
        files = std::make_unique<IcsFolderStore>(root, access, QTimeZone("Europe/Berlin"));
        combined =
            std::make_unique<CombinedEventStore>(std::vector<std::reference_wrapper<EventStore>>{
                std::ref<EventStore>(*files), std::ref<EventStore>(*store)});
    }

    QByteArray meeting = "UID:one\r\nDTSTART:20240301T090000Z\r\nDTEND:20240301T100000Z\r\n"
                         "SUMMARY:Meeting";
    QString root = folder.filePath(QStringLiteral("calendars"));
    std::unique_ptr<IcsFolderStore> files;
    std::unique_ptr<CombinedEventStore> combined;
};

TEST_F(SideBySideTest, countTheSameEventInEachOfThem) {
    ESource* work = addCalendar(QStringLiteral("Office"));
    addEvent(work, meeting);
    openBoth();
    EXPECT_TRUE(waitUntil(
        [&] { return combinedTitles() == QStringList({"Work/Meeting", "Office/Meeting"}); }));
    const CalendarList calendars = combined->calendars();
    ASSERT_EQ(calendars.size(), 2U);
    EXPECT_NE(calendars[0]->calendarIdentifier, calendars[1]->calendarIdentifier);
    // Each is asked for its own calendars only.
    EXPECT_EQ(combined->events({calendars[1]}, utc(2024, 1, 1), utc(2025, 1, 1)).size(), 1U);
}

TEST_F(SideBySideTest, aSilentServiceHidesNoFile) {
    ESource* work = addCalendar(QStringLiteral("Office"));
    addEvent(work, meeting);
    const pid_t holder = holderOf(work);
    const pid_t controller = *factory();
    kill(holder, SIGSTOP);
    kill(controller, SIGSTOP);
    openBoth();
    ASSERT_TRUE(waitUntil([&] { return combined->calendars().size() == 2; }));
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(combinedTitles(), QStringList({"Work/Meeting"}));
    EXPECT_LT(timer.elapsed(), 1500);
    EXPECT_TRUE(waitUntil([&] { return combined->problems().size() == 1; }));
    EXPECT_EQ(combined->problems()[0].subject, QStringLiteral("Office"));
    kill(controller, SIGCONT);
    kill(holder, SIGCONT);
    EXPECT_TRUE(waitUntil([&] { return combinedTitles().size() == 2; }));
}

TEST_F(SideBySideTest, aFolderThatIsAwayHidesNoCalendarOfTheService) {
    ESource* work = addCalendar(QStringLiteral("Office"));
    addEvent(work, meeting);
    QDir(root).removeRecursively();
    QFile blocker(root);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    openBoth();
    EXPECT_EQ(files->authorizationStatus(), AuthorizationStatus::Restricted);
    EXPECT_EQ(combined->authorizationStatus(), AuthorizationStatus::Authorized);
    EXPECT_TRUE(waitUntil([&] { return combinedTitles() == QStringList({"Office/Meeting"}); }));
    ASSERT_EQ(combined->problems().size(), 1U);
    EXPECT_EQ(combined->problems()[0],
              (StoreProblem{root, QStringLiteral("a folder that cannot be reached")}));
}

TEST_F(SideBySideTest, withNeitherThereIsNoAccess) {
    QDir(root).removeRecursively();
    QFile blocker(root);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    openBoth();
    EXPECT_EQ(combined->authorizationStatus(), AuthorizationStatus::Restricted);
    EXPECT_TRUE(combined->calendars().empty());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

} // namespace

} // namespace quillet::test
