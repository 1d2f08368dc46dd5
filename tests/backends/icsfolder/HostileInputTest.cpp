#include "StoreFixture.h"
#include "support/CpuTimer.h"

#include <QRandomGenerator>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace quillet::test {

namespace {

/// The most memory that the program held since this was made, beyond what it held then.
class PeakMemory {
public:
    PeakMemory() {
        QFile peak(QStringLiteral("/proc/self/clear_refs"));
        EXPECT_TRUE(peak.open(QIODevice::WriteOnly) && peak.write("5") == 1);
    }
    [[nodiscard]] qint64 grownBytes() const { return bytes("VmHWM:") - before_; }

private:
    static qint64 bytes(const char* name) {
        QFile status(QStringLiteral("/proc/self/status"));
        EXPECT_TRUE(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        const QByteArray line = text.mid(text.indexOf(name)).split('\n').at(0);
        return line.simplified().split(' ').at(1).toLongLong() * 1024;
    }

    qint64 before_ = bytes("VmRSS:");
};

class HostileInputTest : public StoreFixture {
protected:
    HostileInputTest() {
        write(QStringLiteral("good.ics"), eventFile("SUMMARY:Good\r\nDTSTART:20240301T110000Z"));
    }
    /// The good calendar works, in time, and this one complaint is made.
    void expectOneProblem(const QString& subject, const QString& reason) {
        EXPECT_EQ(titles(), QStringList({"Good"}));
        ASSERT_EQ(store->problems().size(), 1U);
        EXPECT_EQ(store->problems()[0], (StoreProblem{subject, reason}));
    }
    /// One event of the bad file is there as well.
    void expectOneProblemBeside(const QString& title, const QString& reason) {
        EXPECT_EQ(titles(), QStringList({QStringLiteral("Good"), title}));
        ASSERT_EQ(store->problems().size(), 1U);
        EXPECT_EQ(store->problems()[0].reason, reason);
        expectInTime(10000);
    }
    void expectInTime(int milliseconds = 5000) { EXPECT_LT(timer.milliseconds(), milliseconds); }

    const CpuTimer timer{CpuTimer::Of::Process};
};

TEST_F(HostileInputTest, namesAnEmptyFile) {
    write(QStringLiteral("bad.ics"), "");
    expectOneProblem(QStringLiteral("bad.ics"), QStringLiteral("an empty file"));
}

TEST_F(HostileInputTest, namesAFileThatIsNoCalendar) {
    write(QStringLiteral("folder/bad.ics"), QByteArray("\x00\x01\xFF\xFE garbage", 12));
    expectOneProblem(QStringLiteral("folder/bad.ics"), QStringLiteral("not a calendar file"));
}

TEST_F(HostileInputTest, keepsWhatCameBeforeTheCutInATruncatedFile) {
    write(QStringLiteral("bad.ics"), eventFile("SUMMARY:Whole\r\nDTSTART:20240302T110000Z")
                                         .replace("END:VCALENDAR\r\n", "BEGIN:VEVENT\r\nSUMM"));
    EXPECT_EQ(titles(), QStringList({"Good", "Whole"}));
    ASSERT_EQ(store->problems().size(), 2U);
    EXPECT_EQ(store->problems()[0].reason, QStringLiteral("ends in the middle"));
}

TEST_F(HostileInputTest, namesAFileThatMayNotBeRead) {
    if (::geteuid() == 0) {
        // The superuser may read everything; a link that loops cannot be read by anyone.
        ASSERT_EQ(
            ::symlink("bad.ics", (rootPath() + QStringLiteral("/bad.ics")).toStdString().c_str()),
            0);
        EXPECT_EQ(titles(), QStringList({"Good"}));
        ASSERT_EQ(store->problems().size(), 1U);
        EXPECT_TRUE(store->problems()[0].reason.startsWith(QStringLiteral("cannot be reached: ")));
        return;
    }
    write(QStringLiteral("bad.ics"), eventFile("DTSTART:20240302T110000Z"));
    ASSERT_EQ(::chmod((rootPath() + QStringLiteral("/bad.ics")).toStdString().c_str(), 0), 0);
    expectOneProblem(QStringLiteral("bad.ics"), QStringLiteral("Permission denied"));
}

TEST_F(HostileInputTest, keepsACalendarListedWhoseLinkLeadsNowhere) {
    ASSERT_EQ(::symlink("/nowhere/calendar",
                        (rootPath() + QStringLiteral("/away")).toStdString().c_str()),
              0);
    expectOneProblem(QStringLiteral("away"), QStringLiteral("cannot be reached: ") +
                                                 // In the language of the machine.
                                                 QString::fromLocal8Bit(std::strerror(ENOENT)));
    EXPECT_EQ(store->calendars().size(), 2U);
}

TEST_F(HostileInputTest, namesALinkInAFolderThatLeadsNowhere) {
    write(QStringLiteral("folder/displayname"), "Folder");
    ASSERT_EQ(::symlink("/nowhere/a.ics",
                        (rootPath() + QStringLiteral("/folder/a.ics")).toStdString().c_str()),
              0);
    expectOneProblem(QStringLiteral("folder/a.ics"), QStringLiteral("a link that leads nowhere"));
}

TEST_F(HostileInputTest, doesNotWaitForAPipe) {
    write(QStringLiteral("folder/displayname"), "Folder");
    ASSERT_EQ(
        ::mkfifo((rootPath() + QStringLiteral("/folder/pipe.ics")).toStdString().c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo((rootPath() + QStringLiteral("/folder/color")).toStdString().c_str(), 0600),
              0);
    ASSERT_EQ(::mkfifo((rootPath() + QStringLiteral("/pipe.ics")).toStdString().c_str(), 0600), 0);
    expectOneProblem(QStringLiteral("folder/pipe.ics"), QStringLiteral("not a file"));
    expectInTime();
}

TEST_F(HostileInputTest, namesAFolderInThePlaceOfAFile) {
    QDir().mkpath(rootPath() + QStringLiteral("/folder/a.ics"));
    expectOneProblem(QStringLiteral("folder/a.ics"), QStringLiteral("not a file"));
}

TEST_F(HostileInputTest, doesNotReadAHugeFile) {
    write(QStringLiteral("huge.ics"), "BEGIN:VCALENDAR\n");
    ASSERT_EQ(::truncate((rootPath() + QStringLiteral("/huge.ics")).toStdString().c_str(),
                         50'000'000'000),
              0);
    expectOneProblem(QStringLiteral("huge.ics"), QStringLiteral("larger than 128 MB"));
    expectInTime();
}

TEST_F(HostileInputTest, cutsAnEndlessLineAndSaysSo) {
    write(QStringLiteral("long.ics"),
          eventFile("SUMMARY:Long\r\nDTSTART:20240302T110000Z\r\nDESCRIPTION:" +
                    QByteArray(8'000'000, 'x')));
    EXPECT_EQ(titles(), QStringList({"Good", "Long"}));
    EXPECT_LE(allEvents()[1].details->notes.size(), 256 * 1024);
    ASSERT_EQ(store->problems().size(), 1U);
    EXPECT_EQ(store->problems()[0].reason,
              QStringLiteral("a text or event that is too long was cut"));
    expectInTime();
}

TEST_F(HostileInputTest, cutsAnEndlessLineBetweenCharacters) {
    const QString note = QString(200'000, QChar(0x20AC));
    write(QStringLiteral("long.ics"),
          eventFile("DTSTART:20240302T110000Z\r\nDESCRIPTION:" + note.toUtf8()));
    const QString notes = allEvents().at(1).details->notes;
    EXPECT_GT(notes.size(), 80'000);
    EXPECT_TRUE(note.startsWith(notes));
}

TEST_F(HostileInputTest, cutsAnEventWithMillionsOfDates) {
    write(QStringLiteral("many.ics"),
          eventFile("SUMMARY:Many\r\nDTSTART:20240302T110000Z\r\nEXDATE:" +
                    QByteArray("20250101T000000Z,").repeated(2'000'000) + "20240302T110000Z"));
    expectOneProblemBeside(QStringLiteral("Many"),
                           QStringLiteral("a text or event that is too long was cut"));
}

TEST_F(HostileInputTest, stopsReadingAFileWithTooManyEvents) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    const QByteArray event = "BEGIN:VEVENT\nDTSTART:20240302\nEND:VEVENT\n";
    write(QStringLiteral("many.ics"),
          text + event.repeated(300'001) + "BEGIN:VTODO\nEND:VTODO\nEND:VCALENDAR\n");
    (void)titles();
    ASSERT_EQ(store->problems().size(), 1U);
    EXPECT_EQ(store->problems()[0].reason,
              QStringLiteral("more than 300,000 events; the others are left out"));
    expectInTime(30000);
}

TEST_F(HostileInputTest, finishesWithAFileFullOfTimeZones) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    for (int number = 0; number < 20'000; ++number) {
        text += "BEGIN:VTIMEZONE\nTZID:Z" + QByteArray::number(number) +
                "\nBEGIN:STANDARD\nDTSTART:16010101T000000\nTZOFFSETFROM:+0100\nTZOFFSETTO:+0200\n"
                "RRULE:FREQ=DAILY\nEND:STANDARD\nEND:VTIMEZONE\n";
    }
    write(QStringLiteral("zones.ics"), text + "END:VCALENDAR\n");
    EXPECT_EQ(titles(), QStringList({"Good"}));
    expectInTime(10000);
}

TEST_F(HostileInputTest, finishesWithRulesThatNeverMatch) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    int number = 0;
    for (const char* rule :
         {"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30", "FREQ=MONTHLY;BYMONTH=2;BYMONTHDAY=30",
          "FREQ=WEEKLY;BYMONTH=2;BYMONTHDAY=30", "FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30",
          "FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30", "FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30;COUNT=5",
          "FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30;COUNT=5", "FREQ=YEARLY;BYWEEKNO=54;COUNT=2",
          "FREQ=YEARLY;INTERVAL=30000;COUNT=9", "FREQ=DAILY;INTERVAL=32767;COUNT=2000000000",
          "FREQ=HOURLY;COUNT=2000000000", "FREQ=MINUTELY;BYMONTH=2;BYMONTHDAY=30"}) {
        text += "BEGIN:VEVENT\nUID:" + QByteArray::number(++number) + "\nSUMMARY:" + rule +
                "\nDTSTART:18500101T000000Z\nRRULE:" + rule + "\nEND:VEVENT\n";
    }
    write(QStringLiteral("never.ics"), text + "END:VCALENDAR\n");
    const EventList first = eventsBetween(utc(1850, 1, 1), utc(1850, 1, 1, 1));
    EXPECT_EQ(first.size(), static_cast<std::size_t>(number));
    (void)eventsBetween(utc(2024, 1, 1), utc(2024, 12, 31));
    expectInTime(10000);
}

TEST_F(HostileInputTest, boundsTheWorkOfOneQueryAndSaysSo) {
    QByteArray seconds = "0";
    for (int second = 1; second < 60; ++second) {
        seconds += "," + QByteArray::number(second);
    }
    QByteArray text = "BEGIN:VCALENDAR\n";
    for (int number = 0; number < 200; ++number) {
        text += "BEGIN:VEVENT\nUID:" + QByteArray::number(number) +
                "\nDTSTART:20200101T000000Z\nRRULE:FREQ=HOURLY;BYMINUTE=" + seconds +
                ";BYSECOND=" + seconds + "\nEND:VEVENT\n";
    }
    write(QStringLiteral("many.ics"), text + "END:VCALENDAR\n");
    const EventList events = eventsBetween(utc(2024, 1, 1), utc(2028, 1, 1));
    EXPECT_GT(events.size(), 1000U);
    EXPECT_LT(events.size(), 3'000'000U);
    ASSERT_FALSE(store->problems().empty());
    EXPECT_EQ(store->problems()[0].reason, QStringLiteral("repetitions too many to show them all"));
    (void)eventsBetween(utc(2019, 1, 1), utc(2019, 2, 1));
    EXPECT_TRUE(store->problems().empty());
    expectInTime(20000);
}

TEST_F(HostileInputTest, boundsTheRulesOfATimeZone) {
    write(QStringLiteral("zone.ics"),
          "BEGIN:VCALENDAR\nBEGIN:VTIMEZONE\nTZID:Mad\nBEGIN:STANDARD\nDTSTART:16010101T000000\n"
          "TZOFFSETFROM:+0100\nTZOFFSETTO:+0200\nRRULE:FREQ=HOURLY\nEND:STANDARD\nEND:VTIMEZONE\n"
          "BEGIN:VEVENT\nUID:a\nSUMMARY:Mad\nDTSTART;TZID=Mad:20240302T110000\nEND:VEVENT\nEND:"
          "VCALENDAR\n");
    EXPECT_EQ(titles(), QStringList({"Good", "Mad"}));
    expectInTime();
}

TEST_F(HostileInputTest, survivesTimesAtTheEdgesOfTheCalendar) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    int number = 0;
    for (const char* lines :
         {"DTSTART:00010101T000000Z\nRRULE:FREQ=DAILY",
          "DTSTART:99991231T235959Z\nRRULE:FREQ=YEARLY",
          "DTSTART;VALUE=DATE:99991231\nDURATION:P99999999D", "DTSTART:00000101T000000Z",
          "DTSTART:20240101T240000Z", "DTSTART:20240101T000060Z",
          "DTSTART:20240101T000000Z\nDTEND:99991231T000000Z\nRRULE:FREQ=DAILY",
          "DTSTART:20240101T000000Z\nDURATION:P4294967295W"}) {
        text +=
            "BEGIN:VEVENT\nUID:" + QByteArray::number(++number) + "\n" + lines + "\nEND:VEVENT\n";
    }
    write(QStringLiteral("edges.ics"), text + "END:VCALENDAR\n");
    (void)eventsBetween(Instant::min(), Instant::max());
    (void)eventsBetween(Instant::max(), Instant::min());
    EXPECT_FALSE(eventsBetween(utc(2024, 1, 1), utc(2024, 2, 1)).empty());
    expectInTime(20000);
}

TEST_F(HostileInputTest, survivesDeepNesting) {
    QByteArray text = "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:a\nDTSTART:20240302T110000Z\n";
    for (int depth = 0; depth < 200'000; ++depth) {
        text += "BEGIN:VALARM\n";
    }
    write(QStringLiteral("deep.ics"), text);
    EXPECT_EQ(allEvents().size(), 2U);
    store.reset();
    write(QStringLiteral("deep.ics"), QByteArray("BEGIN:VCALENDAR\nBEGIN:VTIMEZONE\nTZID:a\n") +
                                          QByteArray("BEGIN:STANDARD\n").repeated(100'000));
    EXPECT_EQ(allEvents().size(), 1U);
}

TEST_F(HostileInputTest, readsManySeriesAndExceptionsOfOneNameInProportion) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    const QDateTime first(QDate(2024, 3, 2), QTime(0, 0), Qt::UTC);
    const QString format = QStringLiteral("yyyyMMdd'T'HHmmss'Z'");
    for (int number = 0; number < 15'000; ++number) {
        const QByteArray start = first.addSecs(number).toString(format).toLatin1();
        text +=
            "BEGIN:VEVENT\nUID:a\nSUMMARY:M\nDTSTART:" + start +
            "\nRRULE:FREQ=YEARLY;COUNT=1\nEND:VEVENT\nBEGIN:VEVENT\nUID:a\nRECURRENCE-ID:" + start +
            "\nDTSTART:" + start + "\nEND:VEVENT\n";
    }
    ASSERT_GT(text.size(), 2'000'000);
    write(QStringLiteral("many.ics"), text + "END:VCALENDAR\n");
    PeakMemory memory;
    EXPECT_EQ(allEvents().size(), 15'001U);
    EXPECT_LT(memory.grownBytes(), 500'000'000);
    expectInTime(10000);
}

TEST_F(HostileInputTest, boundsTheFuturesOfManySeriesOfOneName) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    const QDateTime first(QDate(2024, 3, 2), QTime(0, 0), Qt::UTC);
    const QString format = QStringLiteral("yyyyMMdd'T'HHmmss'Z'");
    for (int number = 0; number < 5'000; ++number) {
        const QByteArray start = first.addSecs(number).toString(format).toLatin1();
        text += "BEGIN:VEVENT\nUID:a\nDTSTART:" + start +
                "\nRRULE:FREQ=YEARLY\nEND:VEVENT\n"
                "BEGIN:VEVENT\nUID:a\nRECURRENCE-ID;RANGE=THISANDFUTURE:" +
                start + "\nDTSTART:" + start + "\nEND:VEVENT\n";
    }
    write(QStringLiteral("many.ics"), text + "END:VCALENDAR\n");
    PeakMemory memory;
    EXPECT_TRUE(titles().contains(QStringLiteral("Good")));
    EXPECT_LT(memory.grownBytes(), 500'000'000);
    expectInTime(20000);
}

TEST_F(HostileInputTest, readsALineWithThousandsOfParameters) {
    write(QStringLiteral("many.ics"),
          eventFile("SUMMARY" + QByteArray(";X-A=1").repeated(60'000) + ":Many\r\nDTSTART" +
                    QByteArray(";X-B=\"1\"").repeated(60'000) + ";VALUE=DATE:20240302"));
    EXPECT_EQ(titles(), QStringList({"Good", "Many"}));
    EXPECT_TRUE(store->problems().empty());
    expectInTime(2000);
}

TEST_F(HostileInputTest, looksUpNoMoreThanSomeInventedZones) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    for (int number = 0; number < 10'000; ++number) {
        text += "BEGIN:VEVENT\nUID:" + QByteArray::number(number) + "\nDTSTART;TZID=Moon/Crater" +
                QByteArray::number(number) + ":20240302T110000\nEND:VEVENT\n";
    }
    write(QStringLiteral("moon.ics"), text + "END:VCALENDAR\n");
    EXPECT_EQ(allEvents().size(), 10'001U);
    // Two threads read it, each of which names ten.
    EXPECT_EQ(store->problems().size(), 20U);
    expectInTime(5000);
}

/// Whatever happens to a file's bytes, reading it ends, and the other calendar is there.
TEST_F(HostileInputTest, survivesThousandsOfDamagedFiles) {
    const QByteArray sample =
        "\xEF\xBB\xBF"
        "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nX-WR-CALNAME:Sample\r\n"
        "BEGIN:VTIMEZONE\r\nTZID:Mine\r\nBEGIN:STANDARD\r\nDTSTART:19701025T030000\r\n"
        "TZOFFSETFROM:+0200\r\nTZOFFSETTO:+0100\r\nRRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10\r\n"
        "END:STANDARD\r\nBEGIN:DAYLIGHT\r\nDTSTART:19700329T020000\r\nTZOFFSETFROM:+0100\r\n"
        "TZOFFSETTO:+0200\r\nRDATE:20240331T020000\r\nEND:DAYLIGHT\r\nEND:VTIMEZONE\r\n"
        "BEGIN:VEVENT\r\nUID:1\r\nDTSTART;TZID=Mine:20240301T090000\r\nDURATION:PT1H\r\n"
        "RRULE:FREQ=MONTHLY;BYDAY=2TU,-1FR;BYSETPOS=1;COUNT=10\r\nSUMMARY:Fold\r\n ed\\, text\r\n"
        "EXDATE;TZID=Mine:20240401T090000,20240402T090000\r\n"
        "RDATE;VALUE=PERIOD:20240310T120000Z/PT30M\r\nEND:VEVENT\r\n"
        "BEGIN:VEVENT\r\nUID:1\r\nRECURRENCE-ID;RANGE=THISANDFUTURE;TZID=Mine:20240312T090000\r\n"
        "DTSTART;TZID=\"Mine\":20240312T100000\r\nSTATUS:CANCELLED\r\nSEQUENCE:2\r\nEND:VEVENT\r\n"
        "BEGIN:VEVENT\r\nUID:2\r\nDTSTART;VALUE=DATE:20240305\r\nRRULE:FREQ=WEEKLY;UNTIL="
        "20240405\r\n"
        "URL:https://example.org\r\nDESCRIPTION:a\\nb\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
    QRandomGenerator random(20240301);
    const QByteArray pieces[] = {"\r\n",
                                 ":",
                                 ";",
                                 ",",
                                 "=",
                                 "\"",
                                 "\\",
                                 " ",
                                 "BEGIN:VEVENT\r\n",
                                 "END:VEVENT\r\n",
                                 "-",
                                 "0",
                                 "99999999999",
                                 QByteArray(1, '\0'),
                                 "\xFF"};
    for (int file = 0; file < 4000; ++file) {
        QByteArray damaged = sample;
        for (int damage = random.bounded(1, 12); damage > 0; --damage) {
            const qsizetype place = random.bounded(static_cast<int>(damaged.size()));
            switch (random.bounded(4)) {
            case 0:
                damaged[place] = static_cast<char>(random.bounded(256));
                break;
            case 1:
                damaged.remove(place, random.bounded(1, 40));
                break;
            case 2:
                damaged.insert(place, pieces[random.bounded(static_cast<int>(std::size(pieces)))]);
                break;
            default:
                damaged.insert(place,
                               damaged.mid(random.bounded(static_cast<int>(damaged.size())), 60));
                break;
            }
            damaged = damaged.isEmpty() ? sample : damaged;
        }
        write(QStringLiteral("damaged/%1.ics").arg(file), damaged);
    }
    EXPECT_FALSE(eventsBetween(utc(2024, 2, 1), utc(2024, 4, 1)).empty());
    EXPECT_TRUE(titles().contains(QStringLiteral("Good")));
    expectInTime(60000);
}

} // namespace

} // namespace quillet::test
