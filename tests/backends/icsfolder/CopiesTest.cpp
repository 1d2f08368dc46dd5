#include "StoreFixture.h"
#include "support/CpuTimer.h"

#include <sys/resource.h>

namespace quillet::test {

namespace {

using Instants = std::vector<Instant>;

/// A folder in which several files hold what bears one UID.
class CopiesTest : public StoreFixture {
protected:
    void writeFile(const char* name, const QByteArray& lines) {
        write(QStringLiteral("work/") + QLatin1String(name), eventFile(lines));
    }
    void removeFile(const char* name) {
        ASSERT_TRUE(QFile::remove(rootPath() + QStringLiteral("/work/") + QLatin1String(name)));
    }
    static QByteArray at(int hour, const QByteArray& more = {}) {
        return "SUMMARY:Visit\r\nDTSTART:20240304T" +
               QByteArray::number(hour).rightJustified(2, '0') + "0000Z" +
               (more.isEmpty() ? more : "\r\n" + more);
    }
    [[nodiscard]] bool becomes(const Instants& expected) {
        return waitUntil([&] { return starts() == expected; });
    }
    [[nodiscard]] QStringList told() const {
        QStringList lines;
        for (const StoreProblem& problem : store->problems()) {
            lines.append(problem.subject + QStringLiteral(": ") + problem.reason);
        }
        return lines;
    }
};

TEST_F(CopiesTest, countsTheSameVersionOnce) {
    for (const char* name : {"a.ics", "b.ics", "c.ics"}) {
        writeFile(name, at(9));
    }
    EXPECT_EQ(starts(), march({4}));
    EXPECT_EQ(told(), QStringList());
    removeFile("a.ics");
    removeFile("b.ics");
    ASSERT_TRUE(waitUntil([&] { return notices > 0; }));
    EXPECT_TRUE(becomes(march({4})));
}

TEST_F(CopiesTest, showsTheNewestOfSeveralVersionsAndNamesTheOthers) {
    const QList<std::pair<QByteArray, QByteArray>> versions{
        {"SEQUENCE:1", "SEQUENCE:2"},
        {"SEQUENCE:1\r\nLAST-MODIFIED:20240301T000000Z",
         "SEQUENCE:1\r\nLAST-MODIFIED:20240302T000000Z"},
        {"DTSTAMP:20240301T000000Z", "DTSTAMP:20240302T000000Z"}};
    for (const auto& [older, newer] : versions) {
        store.reset();
        writeFile("b.ics", at(9, older));
        writeFile("a.ics", at(10, newer));
        EXPECT_EQ(starts(), march({4}, 10)) << newer.toStdString();
        EXPECT_EQ(told(), QStringList{"work/b.ics: “Visit” is also in “a.ics”, in a newer version, "
                                      "which counts"});
    }
    writeFile("b.ics", at(11, "SEQUENCE:3"));
    EXPECT_TRUE(becomes(march({4}, 11)));
    removeFile("b.ics");
    EXPECT_TRUE(becomes(march({4}, 10)));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(CopiesTest, believesTheNewestVersionThatIsCancelled) {
    writeFile("a.ics", at(9, "SEQUENCE:1"));
    writeFile("b.ics", at(9, "SEQUENCE:2\r\nSTATUS:CANCELLED"));
    EXPECT_EQ(starts(), Instants());
}

TEST_F(CopiesTest, bringsTogetherASeriesAndItsExceptionsFromOtherFiles) {
    writeFile("a.ics", "RECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T150000Z");
    writeFile("b.ics", fourDays);
    const Instants moved{utc(2024, 3, 4, 9), utc(2024, 3, 5, 15), utc(2024, 3, 6, 9),
                         utc(2024, 3, 7, 9)};
    EXPECT_EQ(starts(), moved);
    EXPECT_EQ(told(), QStringList());
    removeFile("a.ics");
    EXPECT_TRUE(becomes(march({4, 5, 6, 7})));
    writeFile("c.ics", "RECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T150000Z");
    EXPECT_TRUE(becomes(moved));
}

TEST_F(CopiesTest, endsOlderExceptionsWithTheSeriesThatANewerFileHas) {
    writeFile("exception.ics",
              "SEQUENCE:1\r\nRECURRENCE-ID:20240306T090000Z\r\nDTSTART:20240306T150000Z");
    writeFile("series.ics",
              "SEQUENCE:2\r\nDTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;UNTIL=20240305T090000Z");
    EXPECT_EQ(starts(), march({4, 5}));
    writeFile("series.ics", "SEQUENCE:2\r\n" + fourDays + "\r\nEXDATE:20240306T090000Z");
    EXPECT_TRUE(becomes(march({4, 5, 7})));
}

TEST_F(CopiesTest, keepsEventsApartThatNoFileNames) {
    const QByteArray text = eventFile(at(9)).replace("UID:one\r\n", "");
    write(QStringLiteral("work/a.ics"), text);
    write(QStringLiteral("work/b.ics"), text);
    EXPECT_EQ(starts().size(), 2U);
}

TEST_F(CopiesTest, keepsTheSameEventInTwoCalendars) {
    writeFile("a.ics", at(9));
    write(QStringLiteral("home/a.ics"), eventFile(at(9)));
    EXPECT_EQ(starts().size(), 2U);
}

TEST_F(CopiesTest, looksAtAThousandVersionsOfOneEventOnly) {
    for (int number = 0; number < 1000; ++number) {
        writeFile(QByteArray::number(number).append(".ics").constData(),
                  at(9, "SEQUENCE:" + QByteArray::number(number) +
                            "\r\nLOCATION:" + QByteArray::number(number)));
    }
    ASSERT_EQ(allEvents().size(), 1U);
    EXPECT_EQ(allEvents()[0].details->location, QStringLiteral("999"));
    const CpuTimer timer(CpuTimer::Of::Process);
    writeFile("999.ics", at(10, "SEQUENCE:1001"));
    ASSERT_TRUE(waitUntil([&] { return notices > 1; }));
    EXPECT_EQ(starts(), march({4}, 10));
    EXPECT_LT(timer.milliseconds(), 500);
}

TEST_F(CopiesTest, namesTheFirstOfManyOlderCopies) {
    for (int number = 0; number < 30; ++number) {
        const QByteArray uid = "UID:" + QByteArray::number(number);
        for (const char* version : {"1", "2"}) {
            write(QStringLiteral("work/%1-%2.ics").arg(number).arg(QLatin1String(version)),
                  eventFile(at(9, QByteArray("SEQUENCE:") + version)).replace("UID:one", uid));
        }
    }
    EXPECT_EQ(allEvents().size(), 30U);
    ASSERT_EQ(told().size(), 21);
    EXPECT_EQ(told().last(), QStringLiteral("work: 10 more events are in other files too, in newer "
                                            "versions, which count"));
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
/// The sanitizers bring an allocator that ends the program where memory ends.
TEST_F(CopiesTest, aFileForWhichMemoryDoesNotSufficeCostsItsOwnEventsOnly) {
    writeFile("a.ics", at(9));
    EXPECT_EQ(starts(), march({4}));
    QFile status(QStringLiteral("/proc/self/statm"));
    ASSERT_TRUE(status.open(QIODevice::ReadOnly));
    const auto pages = status.readAll().split(' ').at(0).toULongLong();
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_AS, &before), 0);
    const rlimit tight{pages * 4096 + 80'000'000, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &tight), 0);
    QFile huge(rootPath() + QStringLiteral("/work/huge.ics"));
    EXPECT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(120'000'000));
    huge.close();
    EXPECT_TRUE(waitUntil([&] { return !store->problems().empty(); }));
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &before), 0);
    EXPECT_EQ(told(), QStringList{"work/huge.ics: too large for the memory that is left"});
    EXPECT_EQ(starts(), march({4}));
}
#endif

TEST_F(CopiesTest, findsThousandsOfLooseFilesInProportionAndInTheBackground) {
    for (int number = 0; number < 5000; ++number) {
        write(QStringLiteral("%1.ics").arg(number),
              eventFile(at(9)).replace("UID:one", "UID:" + QByteArray::number(number)));
    }
    const CpuTimer all(CpuTimer::Of::Process);
    EXPECT_EQ(allEvents().size(), 5000U);
    EXPECT_LT(all.milliseconds(), 4000);
    store.reset();
    const CpuTimer mine(CpuTimer::Of::ThisThread);
    open();
    EXPECT_LT(mine.milliseconds(), 100);
    EXPECT_EQ(store->calendars().size(), 5000U);
}

} // namespace

} // namespace quillet::test
