#include "StoreFixture.h"

#include <atomic>
#include <thread>

#include <unistd.h>

namespace quillet::test {

namespace {

class ChangesOnDiskTest : public StoreFixture {
protected:
    /// Of an event of its own, or of the one of that identifier.
    static QByteArray titled(const QByteArray& title, const QByteArray& identifier = {}) {
        return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:" +
               (identifier.isEmpty() ? title : identifier) + "\r\nSUMMARY:" + title +
               "\r\nDTSTART:20240301T110000Z\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
    }
    void openAndLoad() {
        open();
        ASSERT_TRUE(waitUntil([this] { return notices == 1; }));
    }
    /// Within a second of the call.
    [[nodiscard]] bool comeToBe(const QStringList& wanted) {
        const int before = notices;
        return waitUntil([&] { return notices > before && titles() == wanted; }, 1000);
    }
    void link(const QString& target, const QString& name) const {
        ASSERT_EQ(::symlink(target.toStdString().c_str(),
                            (rootPath() + u'/' + name).toStdString().c_str()),
                  0);
    }
    void remove(const QString& name) const { ASSERT_TRUE(QFile::remove(rootPath() + u'/' + name)); }
};

TEST_F(ChangesOnDiskTest, showAnEventThatIsAddedChangedAndRemovedWithinASecond) {
    write(QStringLiteral("work/a.ics"), titled("A"));
    openAndLoad();
    write(QStringLiteral("work/b.ics"), titled("B"));
    EXPECT_TRUE(comeToBe({"A", "B"}));
    write(QStringLiteral("work/b.ics"), titled("C"));
    EXPECT_TRUE(comeToBe({"A", "C"}));
    remove(QStringLiteral("work/a.ics"));
    EXPECT_TRUE(comeToBe({"C"}));
}

TEST_F(ChangesOnDiskTest, showAFileThatIsReplacedAtomically) {
    write(QStringLiteral("work/a.ics"), titled("A"));
    openAndLoad();
    write(QStringLiteral("work/.a.tmp"), titled("B"));
    ASSERT_EQ(::rename((rootPath() + QStringLiteral("/work/.a.tmp")).toStdString().c_str(),
                       (rootPath() + QStringLiteral("/work/a.ics")).toStdString().c_str()),
              0);
    EXPECT_TRUE(comeToBe({"B"}));
}

TEST_F(ChangesOnDiskTest, showARewrittenFileOfManyEvents) {
    write(QStringLiteral("a.ics"), titled("A"));
    openAndLoad();
    write(QStringLiteral("a.ics"), titled("B"));
    EXPECT_TRUE(comeToBe({"B"}));
}

TEST_F(ChangesOnDiskTest, showAChangeBehindALinkToAFile) {
    const QString target = folder.filePath(QStringLiteral("elsewhere.ics"));
    QFile file(target);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(titled("A"));
    file.close();
    link(target, QStringLiteral("linked.ics"));
    openAndLoad();
    EXPECT_EQ(titles(), QStringList({"A"}));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(titled("B"));
    file.close();
    EXPECT_TRUE(comeToBe({"B"}));
}

TEST_F(ChangesOnDiskTest, showAChangeBehindALinkToAFolder) {
    const QString target = folder.filePath(QStringLiteral("elsewhere"));
    QDir().mkpath(target);
    link(target, QStringLiteral("linked"));
    openAndLoad();
    QFile file(target + QStringLiteral("/a.ics"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(titled("A"));
    file.close();
    EXPECT_TRUE(comeToBe({"A"}));
}

TEST_F(ChangesOnDiskTest, showANewCalendarAndANewTitle) {
    openAndLoad();
    EXPECT_TRUE(store->calendars().empty());
    write(QStringLiteral("work/a.ics"), titled("A"));
    EXPECT_TRUE(waitUntil([this] { return titles() == QStringList({"A"}); }, 1000));
    write(QStringLiteral("work/displayname"), "Work");
    EXPECT_TRUE(waitUntil(
        [this] { return store->calendars().at(0)->title == QStringLiteral("Work"); }, 1000));
    EXPECT_EQ(allEvents().at(0).details->calendar->title, QStringLiteral("Work"));
}

TEST_F(ChangesOnDiskTest, dropACalendarThatIsRemoved) {
    write(QStringLiteral("a.ics"), titled("A"));
    write(QStringLiteral("b.ics"), titled("B"));
    openAndLoad();
    remove(QStringLiteral("b.ics"));
    EXPECT_TRUE(comeToBe({"A"}));
    EXPECT_EQ(store->calendars().size(), 1U);
}

TEST_F(ChangesOnDiskTest, keepACalendarListedWhoseDiskGoesAwayAndReadItWhenItReturns) {
    const QString target = folder.filePath(QStringLiteral("disk/work"));
    QDir().mkpath(target);
    for (const auto& [name, text] :
         {std::pair{"a.ics", titled("A")}, {"displayname", QByteArray("Work")}}) {
        QFile file(target + u'/' + QLatin1String(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    link(target, QStringLiteral("linked"));
    openAndLoad();
    QDir disk(folder.path());
    ASSERT_TRUE(disk.rename(QStringLiteral("disk/work"), QStringLiteral("disk/away")));
    EXPECT_TRUE(waitUntil([this] { return titles().isEmpty(); }, 1000));
    ASSERT_EQ(store->calendars().size(), 1U);
    EXPECT_EQ(store->calendars()[0]->title, QStringLiteral("Work"));
    EXPECT_EQ(store->problems().size(), 1U);
    ASSERT_TRUE(disk.rename(QStringLiteral("disk/away"), QStringLiteral("disk/work")));
    EXPECT_TRUE(waitUntil([this] { return titles() == QStringList({"A"}); }, 5000));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(ChangesOnDiskTest, clearAProblemWhenItsFileIsMended) {
    write(QStringLiteral("work/a.ics"), "garbage");
    openAndLoad();
    EXPECT_EQ(store->problems().size(), 1U);
    write(QStringLiteral("work/a.ics"), titled("A"));
    EXPECT_TRUE(comeToBe({"A"}));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(ChangesOnDiskTest, sayNothingWhenNothingOfCalendarsChanges) {
    write(QStringLiteral("work/a.ics"), titled("A"));
    openAndLoad();
    write(QStringLiteral("work/notes.txt"), "unrelated");
    write(QStringLiteral("work/.b.ics.tmp"), "unfinished");
    EXPECT_FALSE(waitUntil([this] { return notices > 1; }, 700));
}

TEST_F(ChangesOnDiskTest, keepMovingWhileAnotherThreadReads) {
    write(QStringLiteral("work/a.ics"), titled("A"));
    for (int number = 0; number < 200; ++number) {
        write(QStringLiteral("home/%1.ics").arg(number), titled("H", QByteArray::number(number)));
    }
    open();
    const CalendarList calendars = store->calendars();
    std::atomic<bool> isDone = false;
    std::atomic<int> wrongAnswers = 0;
    std::jthread reader([&] {
        while (!isDone) {
            const EventList events = store->events(calendars, utc(2024, 1, 1), utc(2025, 1, 1));
            const auto homes = std::ranges::count_if(events, [](const Event& event) {
                return event.details->title == QStringLiteral("H");
            });
            wrongAnswers += homes == 200 ? 0 : 1;
        }
    });
    for (int change = 0; change < 20; ++change) {
        write(QStringLiteral("work/%1.ics").arg(change % 5),
              titled("W" + QByteArray::number(change)));
        waitUntil([] { return false; }, 60);
    }
    isDone = true;
    reader.join();
    EXPECT_EQ(wrongAnswers, 0);
    EXPECT_TRUE(waitUntil([this] { return titles().contains(QStringLiteral("W19")); }, 2000));
}

TEST_F(ChangesOnDiskTest, endQuietlyInTheMiddleOfLoading) {
    for (int number = 0; number < 500; ++number) {
        write(QStringLiteral("home/%1.ics").arg(number), titled("H", QByteArray::number(number)));
    }
    for (int round = 0; round < 10; ++round) {
        open();
        store.reset();
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(notices, 0);
}

} // namespace

} // namespace quillet::test
