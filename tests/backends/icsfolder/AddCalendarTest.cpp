#include "StoreFixture.h"

namespace quillet::test {

namespace {

class AddCalendarTest : public StoreFixture {
protected:
    [[nodiscard]] QString make(const QString& name, const QByteArray& content) const {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    [[nodiscard]] QString errorFor(const QString& path) {
        const auto added = open().addCalendar(path);
        return added ? QString() : added.error();
    }
};

TEST_F(AddCalendarTest, linksAFileWhichThenIsACalendar) {
    const QString path =
        make(QStringLiteral("x/trips.ics"), eventFile("SUMMARY:T\r\nDTSTART:20240301T110000Z"));
    ASSERT_TRUE(open().addCalendar(path));
    EXPECT_TRUE(QFileInfo(rootPath() + QStringLiteral("/trips.ics")).isSymLink());
    EXPECT_TRUE(waitUntil([this] { return titles() == QStringList({"T"}); }, 1000));
}

TEST_F(AddCalendarTest, linksAFolderWhichThenIsACalendar) {
    (void)make(QStringLiteral("x/work/a.ics"), eventFile("SUMMARY:T\r\nDTSTART:20240301T110000Z"));
    ASSERT_TRUE(open().addCalendar(folder.filePath(QStringLiteral("x/work/"))));
    EXPECT_TRUE(waitUntil([this] { return titles() == QStringList({"T"}); }, 1000));
}

TEST_F(AddCalendarTest, findsAFreeNameForASecondCalendarOfOneName) {
    open();
    ASSERT_TRUE(store->addCalendar(
        make(QStringLiteral("x/trips.ics"), eventFile("DTSTART:20240301T110000Z"))));
    ASSERT_TRUE(store->addCalendar(
        make(QStringLiteral("y/trips.ics"), eventFile("DTSTART:20240301T110000Z"))));
    EXPECT_TRUE(QFileInfo(rootPath() + QStringLiteral("/trips 2.ics")).isSymLink());
    EXPECT_TRUE(waitUntil([this] { return store->calendars().size() == 2; }, 1000));
}

TEST_F(AddCalendarTest, refusesWhatIsThereAlready) {
    const QString path = make(QStringLiteral("x/trips.ics"), eventFile("DTSTART:20240301T110000Z"));
    ASSERT_TRUE(open().addCalendar(path));
    EXPECT_EQ(errorFor(path), QStringLiteral("“trips.ics” is among the calendars already."));
}

TEST_F(AddCalendarTest, refusesAFileOfACalendarThatIsThere) {
    const QString inside =
        make(QStringLiteral("x/work/one.ics"), eventFile("DTSTART:20240301T110000Z"));
    ASSERT_TRUE(open().addCalendar(QFileInfo(inside).path()));
    EXPECT_EQ(errorFor(inside), QStringLiteral("“one.ics” is among the calendars already."));
    const QString beside =
        make(QStringLiteral("x/work.ics"), eventFile("DTSTART:20240301T110000Z"));
    EXPECT_TRUE(store->addCalendar(beside));
}

TEST_F(AddCalendarTest, refusesWhatIsNoCalendarOrNotThere) {
    EXPECT_EQ(errorFor(make(QStringLiteral("x/notes.txt"), "text")),
              QStringLiteral("“notes.txt” is neither a folder nor an .ics file."));
    EXPECT_EQ(errorFor(QStringLiteral("/nowhere/a.ics")),
              QStringLiteral("“/nowhere/a.ics” does not exist."));
}

TEST_F(AddCalendarTest, refusesTheFolderThatHoldsTheCalendars) {
    EXPECT_EQ(errorFor(rootPath()), QStringLiteral("“root” holds the calendars themselves."));
    EXPECT_TRUE(
        errorFor(folder.path()).endsWith(QStringLiteral("holds the calendars themselves.")));
}

} // namespace

} // namespace quillet::test
