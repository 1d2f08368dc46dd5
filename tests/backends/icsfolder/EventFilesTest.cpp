#include "backends/icsfolder/EventFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class EventFilesTest : public testing::Test {
protected:
    void write(const QString& name, const QStringList& events) const {
        const QString path = root.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QString("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + events.join(QString()) +
                           "END:VCALENDAR\r\n")
                       .toUtf8());
    }
    static QString event(const QString& uidLine, const QString& more = {}) {
        return "BEGIN:VEVENT\r\n" + uidLine +
               "DTSTART:20240304T090000Z\r\nDTEND:20240304T100000Z\r\nSUMMARY:Meeting\r\n" + more +
               "END:VEVENT\r\n";
    }
    QString fileOf(const QString& calendar, const QString& uid) const {
        const QString path =
            findEventFile(QFile::encodeName(root.path()).toStdString(), calendar, uid, zone);
        return path.isNull() ? QStringLiteral("(none)") : QDir(root.path()).relativeFilePath(path);
    }

    const QTimeZone zone = QTimeZone::utc();
    QTemporaryDir root;
};

} // namespace

TEST_F(EventFilesTest, TheFileIsFoundByItsEventWhateverItsName) {
    write("Work/1.ics", {event("UID:first@test\r\n")});
    write("Work/2.ics", {event("UID:second@test\r\n"), event("UID:third@test\r\n")});
    write("Home/1.ics", {event("UID:second@test\r\n")});
    EXPECT_EQ(fileOf("folder:Work", "first@test"), QStringLiteral("Work/1.ics"));
    EXPECT_EQ(fileOf("folder:Work", "third@test"), QStringLiteral("Work/2.ics"));
    EXPECT_EQ(fileOf("folder:Home", "second@test"), QStringLiteral("Home/1.ics"));
}

TEST_F(EventFilesTest, OnlyAnEventOfJustThatIdentifierCounts) {
    write("Work/a.ics", {event("UID:ab\r\n"), event("UID:other\r\n", "DESCRIPTION:UID:a\r\n")});
    EXPECT_EQ(fileOf("folder:Work", "a"), QStringLiteral("(none)"));
    EXPECT_EQ(fileOf("folder:Work", ""), QStringLiteral("(none)"));
    write("Work/b.ics", {event("UID:a\r\n")});
    EXPECT_EQ(fileOf("folder:Work", "a"), QStringLiteral("Work/b.ics"));
}

TEST_F(EventFilesTest, RecurringEventsAreFoundToo) {
    write("Work/a.ics", {event("UID:weekly\r\n", "RRULE:FREQ=WEEKLY;COUNT=5\r\n")});
    EXPECT_EQ(fileOf("folder:Work", "weekly"), QStringLiteral("Work/a.ics"));
}

TEST_F(EventFilesTest, IdentifiersMayBeEscapedFoldedAndLong) {
    const QString longUid(300, u'x');
    write("Work/a.ics", {event("UID:one\\, two\\; \\\\three%20\"'\r\n")});
    write("Work/b.ics", {event("UID:" + longUid.left(60) + "\r\n " + longUid.mid(60) + "\r\n")});
    EXPECT_EQ(fileOf("folder:Work", "one, two; \\three%20\"'"), QStringLiteral("Work/a.ics"));
    EXPECT_EQ(fileOf("folder:Work", longUid), QStringLiteral("Work/b.ics"));
    EXPECT_EQ(fileOf("folder:Work", "../../etc/passwd"), QStringLiteral("(none)"));
}

TEST_F(EventFilesTest, ACalendarThatIsOneFileIsThatFile) {
    write("My Export.ics", {event("UID:a\r\n")});
    EXPECT_EQ(fileOf("folder:My Export.ics", "a"), QStringLiteral("My Export.ics"));
}

TEST_F(EventFilesTest, CalendarsThatAreNotThereHaveNoFiles) {
    write("Work/a.ics", {event("UID:a\r\n")});
    EXPECT_EQ(fileOf("folder:Gone", "a"), QStringLiteral("(none)"));
    EXPECT_EQ(fileOf("", "a"), QStringLiteral("(none)"));
    QFile::link("/nonexistent", root.filePath("Broken"));
    EXPECT_EQ(fileOf("folder:Broken", "a"), QStringLiteral("(none)"));
}

} // namespace quillet
