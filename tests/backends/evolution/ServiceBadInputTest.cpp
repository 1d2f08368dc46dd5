#include "backends/evolution/ServiceFixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <array>
#include <iostream>

namespace quillet::test {

namespace {

class ServiceBadInputTest : public ServiceFixture {};

QByteArray event(const QByteArray& uid, const QByteArray& title) {
    return "UID:" + uid +
           "\r\nDTSTART:20240301T090000Z\r\nDTEND:20240301T100000Z\r\nSUMMARY:" + title;
}

TEST_F(ServiceBadInputTest, givesACalendarWithoutANameOne) {
    ESource* nameless = addCalendar(QStringLiteral(" \n "));
    addEvent(nameless, event("one", "First"));
    open();
    ASSERT_TRUE(waitForCalendars({"Calendar without a name"}));
    EXPECT_TRUE(waitForTitles({"First"}));
}

/// Sources whose files another program named, there before the service starts.
struct OddSources {
    OddSources() {
        const QDir folder(qEnvironmentVariable("XDG_CONFIG_HOME") +
                          QStringLiteral("/evolution/sources"));
        folder.mkpath(QStringLiteral("."));
        for (const char* uid : uids) {
            QFile file(folder.filePath(QString::fromUtf8(uid) + QStringLiteral(".source")));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("[Data Source]\nDisplayName=" + QByteArray(uid).replace('\\', "\\\\") +
                       "\nEnabled=true\nParent=local-stub\n\n[Calendar]\nBackendName=local\n");
        }
    }

    static constexpr std::array uids{"with space", "100%25 sure", "it's \"quoted\"", "back\\slash",
                                     "größe",      "a'b`c$(d)",   "semi;colon&more"};
};

class OddSourcesTest : public OddSources, public ServiceFixture {};

TEST_F(OddSourcesTest, readsCalendarsWhoseIdentifiersHoldSignsOfAllKinds) {
    open();
    ASSERT_TRUE(waitUntil([&] { return store->calendars().size() == OddSources::uids.size(); }));
    QSet<QString> identifiers;
    for (const auto& calendar : store->calendars()) {
        const QString& identifier = calendar->calendarIdentifier;
        EXPECT_FALSE(identifier.contains(u'"') || identifier.contains(u'\\'))
            << qPrintable(identifier);
        EXPECT_EQ(sourceUidFrom(identifier), calendar->title);
        identifiers.insert(identifier);
        addEvent(sourceNamed(sourceUidFrom(identifier)), event("one", "Event"));
    }
    EXPECT_EQ(identifiers.size(), qsizetype(OddSources::uids.size()));
    EXPECT_TRUE(waitUntil([&] { return titles().size() == qsizetype(OddSources::uids.size()); }));
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }));
}

TEST(SourceDescriptionTest, tellsItsIdentifiersFromThoseOfOtherStores) {
    EXPECT_EQ(calendarIdentifierFor(QStringLiteral("a\"b\\c%d e")),
              QStringLiteral("desktop:a%22b%5Cc%25d e"));
    EXPECT_EQ(sourceUidFrom(QStringLiteral("desktop:a%22b%5Cc%25d e")),
              QStringLiteral("a\"b\\c%d e"));
    EXPECT_TRUE(sourceUidFrom(QStringLiteral("folder:Work")).isNull());
}

TEST_F(ServiceBadInputTest, readsEventsWhoseIdentifiersHoldSignsOfAllKinds) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    const QByteArrayList uids{"a \"b\" %20 c", "{x}'; drop", "back\\\\slash", "tab\there"};
    for (const QByteArray& uid : uids) {
        addEvent(work, event(uid, "Event") + "\r\nRRULE:FREQ=DAILY;COUNT=2");
    }
    open();
    ASSERT_TRUE(waitUntil([&] { return titles().size() == uids.size() * 2; }));
    changeEvent(work,
                "UID:a \"b\" %20 c\r\nRECURRENCE-ID:20240302T090000Z\r\n"
                "DTSTART:20240305T090000Z\r\nSUMMARY:Moved",
                E_CAL_OBJ_MOD_THIS);
    ASSERT_TRUE(waitUntil([&] { return titles().last() == QStringLiteral("Moved"); }));
    EXPECT_EQ(titles().size(), uids.size() * 2);
}

TEST_F(ServiceBadInputTest, readsFiftyThousandEventsAndFollowsThem) {
    constexpr int count = 50'000;
    writeManyEvents(QStringLiteral("huge"), count);
    ESource* huge = addCalendar(QStringLiteral("Huge"), "huge");
    ESource* small = addCalendar(QStringLiteral("Small"), "small");
    addEvent(small, event("one", "First"));
    const auto inMarch = [this] { return events(utc(2024, 3, 1), utc(2024, 4, 1)).size(); };
    // Opening the file is the service's own work.
    (void)clientOf(huge);
    QElapsedTimer timer;
    timer.start();
    open();
    ASSERT_TRUE(waitUntil([&] { return inMarch() == 1; }));
    ASSERT_TRUE(waitUntil([&] { return events().size() == count + 1; }, 60'000));
    std::cout << "50,000 events after " << timer.elapsed() << " ms\n";
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }));

    timer.start();
    EXPECT_EQ(events(utc(2021, 1, 2), utc(2021, 1, 3)).size(), 1440U);
    EXPECT_LT(timer.elapsed(), 100);

    addEvent(huge, event("another", "Another"));
    EXPECT_TRUE(waitUntil([&] { return inMarch() == 2; }, 5000));
    EXPECT_EQ(events().size(), count + 2U);
}

TEST_F(ServiceBadInputTest, readsWhatItCanOfAFileThatIsGarbage) {
    writeCalendarFile(QStringLiteral("garbage"), QByteArray(5000, '\xff') + "\r\nBEGIN:VEVENT\r\n");
    addCalendar(QStringLiteral("Garbage"), "garbage");
    ESource* work = addCalendar(QStringLiteral("Work"), "work");
    addEvent(work, event("one", "First"));
    open();
    ASSERT_TRUE(waitForCalendars({"Garbage", "Work"}));
    ASSERT_TRUE(waitForTitles({"First"}));
    EXPECT_TRUE(problemOf(QStringLiteral("Work")).isEmpty());
    EXPECT_TRUE(waitUntil([this] {
        const QString problem = problemOf(QStringLiteral("Garbage"));
        return problem.startsWith(QStringLiteral("cannot be read: ")) &&
               problem.contains(QStringLiteral("garbage/calendar.ics"));
    })) << qPrintable(problemOf(QStringLiteral("Garbage")));
}

TEST_F(ServiceBadInputTest, keepsRunningWithRulesThatNeverEnd) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("1", "Hourly") + "\r\nRRULE:FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30");
    addEvent(work, event("2", "Secondly") + "\r\nRRULE:FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30");
    addEvent(work, event("3", "Ends early") + "\r\nRRULE:FREQ=DAILY;UNTIL=20230101T000000Z");
    addEvent(work, event("4", "By the moon") + "\r\nRRULE:RSCALE=HEBREW;FREQ=DAILY");
    QElapsedTimer timer;
    timer.start();
    open();
    ASSERT_TRUE(waitForTitles({"By the moon", "Hourly", "Secondly"}));
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(
        problemOf(QStringLiteral("Work")),
        QStringLiteral("“By the moon” of 2024-03-01: the repetition “RSCALE=HEBREW;FREQ=DAILY” "
                       "cannot be followed; only the first event is shown. Please correct it in "
                       "your calendar program."));
}

TEST_F(ServiceBadInputTest, namesATimeZoneThatNobodyKnows) {
    writeCalendarFile(QStringLiteral("odd"),
                      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:one\r\n"
                      "DTSTART;TZID=Moon/Tycho:20240701T090000\r\nSUMMARY:First\r\n"
                      "END:VEVENT\r\nEND:VCALENDAR\r\n");
    addCalendar(QStringLiteral("Odd"), "odd");
    open();
    ASSERT_TRUE(waitForTitles({"First"}));
    EXPECT_EQ(events()[0].startDate, utc(2024, 7, 1, 7));
    EXPECT_EQ(problemOf(QStringLiteral("Odd")),
              QStringLiteral("unknown time zone “Moon/Tycho”, taken as local time"));
}

TEST_F(ServiceBadInputTest, forgetsWhatItRememberedInADamagedFile) {
    addCalendar(QStringLiteral("Work"));
    const QString path = folder.filePath(QStringLiteral("state/desktop-calendars.json"));
    QDir().mkpath(folder.filePath(QStringLiteral("state")));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[{\"identifier\": 7}, [], \"x\", {\"title\": \"no identifier\"}, ");
    file.close();
    open();
    EXPECT_TRUE(store->calendars().empty());
    EXPECT_TRUE(waitForCalendars({"Work"}));
}

} // namespace

} // namespace quillet::test
