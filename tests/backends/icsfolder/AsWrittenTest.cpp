#include "StoreFixture.h"

#include <QRegularExpression>

namespace quillet::test {

namespace {

using Instants = std::vector<Instant>;

/// Calendars as programs and people write them: read as meant where that is certain, told where it
/// is not.
class AsWrittenTest : public StoreFixture {
protected:
    void writeEvents(const QList<QByteArray>& events) {
        QByteArray text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
        for (const QByteArray& event : events) {
            text +=
                "BEGIN:VEVENT\r\nUID:one\r\nSUMMARY:Consulting\r\n" + event + "\r\nEND:VEVENT\r\n";
        }
        store.reset();
        write(QStringLiteral("a.ics"), text + "END:VCALENDAR\r\n");
    }
    /// How long the only event lasts.
    std::chrono::minutes lengthOf(const QByteArray& lines) {
        writeEvents({lines});
        const EventList events = allEvents();
        EXPECT_EQ(events.size(), 1U) << lines.toStdString();
        return events.empty() ? std::chrono::minutes(-1)
                              : std::chrono::floor<std::chrono::minutes>(events[0].endDate -
                                                                         events[0].startDate);
    }
    Instants startsOf(const QByteArray& lines) {
        writeEvents({lines});
        return starts();
    }
    /// That the one line in the foot names the file, the event with its day, the line and this.
    void expectTold(int line, const QString& what) {
        ASSERT_EQ(store->problems().size(), 1U);
        EXPECT_EQ(store->problems()[0].subject, QStringLiteral("a.ics"));
        EXPECT_EQ(store->problems()[0].reason,
                  QStringLiteral("“Consulting” of 2024-03-04, line %1: %2. Please correct it in "
                                 "your calendar program.")
                      .arg(QString::number(line), what));
    }
    void expectNothingTold() { EXPECT_TRUE(store->problems().empty()); }
};

using std::chrono::minutes;

TEST_F(AsWrittenTest, readsAnEndWithoutAZoneInTheZoneOfTheStart) {
    for (const char* system : {"Europe/Berlin", "Asia/Tokyo", "America/New_York"}) {
        zone = QTimeZone(system);
        EXPECT_EQ(lengthOf("DTSTART;TZID=America/New_York:20240304T090000\r\n"
                           "DTEND:20240304T100000"),
                  minutes(60))
            << system;
        EXPECT_EQ(allEvents()[0].startDate, utc(2024, 3, 4, 14)) << system;
        EXPECT_EQ(lengthOf("DTSTART:20240304T090000Z\r\nDTEND:20240304T100000"), minutes(60));
        EXPECT_EQ(allEvents()[0].startDate, utc(2024, 3, 4, 9)) << system;
    }
}

TEST_F(AsWrittenTest, readsAStartWithoutAZoneInTheZoneOfTheEnd) {
    for (const char* system : {"Europe/Berlin", "Asia/Tokyo"}) {
        zone = QTimeZone(system);
        EXPECT_EQ(lengthOf("DTSTART:20240304T090000\r\n"
                           "DTEND;TZID=America/New_York:20240304T100000"),
                  minutes(60))
            << system;
        EXPECT_EQ(allEvents()[0].startDate, utc(2024, 3, 4, 14)) << system;
        EXPECT_EQ(lengthOf("DTSTART:20240304T090000\r\nDTEND:20240304T100000Z"), minutes(60));
        EXPECT_EQ(allEvents()[0].startDate, utc(2024, 3, 4, 9)) << system;
    }
}

TEST_F(AsWrittenTest, readsLengthsAsPeopleWriteThem) {
    const QList<std::pair<const char*, int>> lengths{
        {"P1H", 60},     {"PT1H30", 90},   {"PT1W", 7 * 1440},   {"1H30M", 90},
        {"PT1.5H", 90},  {"PT1,5H", 90},   {"P90M", 90},         {"pt1h", 60},
        {"1:30", 90},    {"01:30:00", 90}, {"P1DT2H", 1560},     {"+PT2H", 120},
        {"P1D2H", 1560}, {"P0.5D", 720},   {"PT0S", 0},          {"P1WT0S", 10080},
        {"PT5400S", 90}, {" PT1H ", 60},   {"P7W", 7 * 7 * 1440}};
    for (const auto& [text, expected] : lengths) {
        EXPECT_EQ(lengthOf(QByteArray("DTSTART:20240304T090000Z\r\nDURATION:") + text),
                  minutes(expected))
            << text;
        expectNothingTold();
    }
}

TEST_F(AsWrittenTest, tellsOfLengthsThatNobodyCanRead) {
    for (const char* text : {"one hour", "PT", "P", "60", "PT1Y", "PT1M1H", "1:90", "PT--1H"}) {
        EXPECT_EQ(lengthOf(QByteArray("DTSTART:20240304T090000Z\r\nDURATION:") + text), minutes(0));
        expectTold(7, QStringLiteral("the length “%1” cannot be read and does not count")
                          .arg(QLatin1String(text)));
    }
    EXPECT_EQ(lengthOf("DTSTART:20240304T090000Z\r\nDURATION:-PT1H"), minutes(0));
    expectTold(7, QStringLiteral("the length “-PT1H” is below zero and counts as none"));
    EXPECT_EQ(lengthOf("DTSTART:20240304T090000Z\r\nDURATION:P99999999W"), minutes(36525 * 1440));
    expectTold(
        7, QStringLiteral("the length “P99999999W” is over a hundred years and is cut to that"));
}

TEST_F(AsWrittenTest, tellsOfEndsThatCannotBe) {
    EXPECT_EQ(lengthOf("DTSTART:20240304T090000Z\r\nDTEND:soon"), minutes(0));
    expectTold(7, QStringLiteral("the end “soon” cannot be read and does not count"));
    EXPECT_EQ(lengthOf("DTSTART:20240304T090000Z\r\nDTEND:20240230T100000Z"), minutes(0));
    expectTold(7, QStringLiteral("the end “20240230T100000Z” cannot be read and does not count"));
    EXPECT_EQ(lengthOf("DTSTART:20240304T090000Z\r\nDTEND:20240304T080000Z"), minutes(0));
    expectTold(
        7, QStringLiteral("the end “20240304T080000Z” is before the start; no time is counted to "
                          "it"));
    EXPECT_EQ(lengthOf("DTSTART:20240304T090000Z\r\nDTEND:99990304T080000Z"),
              minutes(36525 * 1440));
    ASSERT_EQ(store->problems().size(), 1U);
    EXPECT_EQ(lengthOf("DTSTART:20240304T090000Z\r\nDTEND:soon\r\nDURATION:PT2H"), minutes(120));
    // A day that ends where it begins is how many programs write one day.
    EXPECT_EQ(lengthOf("DTSTART;VALUE=DATE:20240304\r\nDTEND;VALUE=DATE:20240304"), minutes(1440));
    expectNothingTold();
}

TEST_F(AsWrittenTest, namesTheEventWhoseStartCannotBeRead) {
    EXPECT_TRUE(startsOf("DTSTART:20240230T090000Z").empty());
    ASSERT_EQ(store->problems().size(), 1U);
    EXPECT_EQ(store->problems()[0].reason,
              QStringLiteral("“Consulting”, line 6: the start “20240230T090000Z” cannot be read; "
                             "the event is left out. Please correct it in your calendar program."));
}

TEST_F(AsWrittenTest, takesTimesFromMidnightToMidnightForDaysWhereTheyAreMarkedSo) {
    const QByteArray mark = "X-MICROSOFT-CDO-ALLDAYEVENT:TRUE\r\n";
    for (const char* times : {"DTSTART;TZID=Europe/Berlin:20240304T000000\r\n"
                              "DTEND;TZID=Europe/Berlin:20240305T000000",
                              "DTSTART:20240303T230000Z\r\nDTEND:20240304T230000Z",
                              "DTSTART:20240304T000000Z\r\nDTEND:20240305T000000Z",
                              "DTSTART;TZID=Asia/Tokyo:20240304T000000\r\nDURATION:P1D",
                              "DTSTART:20240304T000000\r\nDTEND:20240305T000000"}) {
        EXPECT_EQ(lengthOf(mark + times), minutes(1440)) << times;
        EXPECT_TRUE(allEvents()[0].details->isAllDay) << times;
        EXPECT_EQ(allEvents()[0].startDate, utc(2024, 3, 3, 23)) << times;
    }
    EXPECT_EQ(lengthOf(mark + "DTSTART:20240304T090000Z\r\nDTEND:20240304T100000Z"), minutes(60));
    EXPECT_FALSE(allEvents()[0].details->isAllDay);
    EXPECT_EQ(lengthOf("X-MICROSOFT-CDO-ALLDAYEVENT:FALSE\r\nDTSTART:20240303T230000Z\r\n"
                       "DTEND:20240304T230000Z"),
              minutes(1440));
    EXPECT_FALSE(allEvents()[0].details->isAllDay);
}

TEST_F(AsWrittenTest, repeatsMarkedDaysAsDays) {
    zone = QTimeZone("Europe/Berlin");
    const Instants found = startsOf(
        "X-MICROSOFT-CDO-ALLDAYEVENT:TRUE\r\nDTSTART;TZID=Asia/Tokyo:20240304T000000\r\n"
        "DTEND;TZID=Asia/Tokyo:20240305T000000\r\nRRULE:FREQ=DAILY;UNTIL=20240306T150000Z\r\n"
        "EXDATE:20240304T150000Z");
    EXPECT_EQ(found, Instants({utc(2024, 3, 3, 23), utc(2024, 3, 5, 23), utc(2024, 3, 6, 23)}));
}

TEST_F(AsWrittenTest, repeatsWholeDaysByNoClock) {
    EXPECT_EQ(startsOf("DTSTART;VALUE=DATE:20240304\r\n"
                       "RRULE:FREQ=DAILY;BYHOUR=9,10;BYMINUTE=0,30;BYSECOND=5;COUNT=2"),
              Instants({utc(2024, 3, 3, 23), utc(2024, 3, 4, 23)}));
    expectNothingTold();
}

TEST_F(AsWrittenTest, followsRulesWhoseDetailsMeanNothing) {
    for (const char* rule :
         {"FREQ=DAILY;COUNT=-1;UNTIL=20240306T090000Z", "FREQ=DAILY;COUNT=0;UNTIL=20240306T090000Z",
          "FREQ=DAILY;COUNT=3;UNTIL=20300306T090000Z", "FREQ=DAILY;COUNT=9;UNTIL=20240306T090000Z",
          "FREQ=DAILY;INTERVAL=0;COUNT=3", "FREQ=DAILY;X-OF-OURS=1;COUNT=3",
          "RSCALE=GREGORIAN;FREQ=DAILY;COUNT=3;SKIP=OMIT", "FREQ=DAILY;UNTIL=20240306T090000ZZ",
          "FREQ=DAILY;UNTIL=20240306t090000z", "freq=daily;count=3", "FREQ=DAILY;COUNT=3;",
          "FREQ = DAILY; COUNT = 3", "FREQ=DAILY;UNTIL=2024-03-06T09:00:00Z",
          "FREQ=MINUTELY;INTERVAL=1440;COUNT=3", "FREQ=SECONDLY;INTERVAL=86400;COUNT=3"}) {
        EXPECT_EQ(startsOf(QByteArray("DTSTART:20240304T090000Z\r\nRRULE:") + rule),
                  march({4, 5, 6}))
            << rule;
        expectNothingTold();
    }
}

TEST_F(AsWrittenTest, followsRulesByTheMinuteAndTheSecond) {
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\n"
                       "RRULE:FREQ=MINUTELY;INTERVAL=20;BYHOUR=9;BYDAY=MO,TU;COUNT=5"),
              Instants({utc(2024, 3, 4, 9), utc(2024, 3, 4, 9, 20), utc(2024, 3, 4, 9, 40),
                        utc(2024, 3, 5, 9), utc(2024, 3, 5, 9, 20)}));
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\n"
                       "RRULE:FREQ=SECONDLY;INTERVAL=7;BYMINUTE=0,14;BYSECOND=0;COUNT=3"),
              Instants({utc(2024, 3, 4, 9), utc(2024, 3, 4, 9, 14), utc(2024, 3, 4, 16)}));
}

TEST_F(AsWrittenTest, keepsIntervalsThatAreLong) {
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;INTERVAL=65537"), march({4}));
    expectNothingTold();
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=MINUTELY;INTERVAL=65537;COUNT=2"),
              Instants({utc(2024, 3, 4, 9), utc(2024, 4, 18, 21, 17)}));
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;INTERVAL=99999999999"),
              march({4}));
    expectTold(7, QStringLiteral("the repetition “FREQ=DAILY;INTERVAL=99999999999” cannot be "
                                 "followed; only the first event is shown"));
}

TEST_F(AsWrittenTest, showsNothingOfASeriesThatEndsBeforeItBegins) {
    EXPECT_TRUE(
        startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;UNTIL=20240303T090000Z").empty());
    EXPECT_TRUE(startsOf("DTSTART;VALUE=DATE:20240304\r\nRRULE:FREQ=DAILY;UNTIL=20240303").empty());
    expectNothingTold();
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;UNTIL=20240303T090000Z\r\n"
                       "RDATE:20240310T090000Z"),
              march({10}));
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;UNTIL=20240304"), march({4}));
}

TEST_F(AsWrittenTest, repeatsYearlyInTheMonthOfTheStart) {
    EXPECT_EQ(startsOf("DTSTART:20240315T090000Z\r\nRRULE:FREQ=YEARLY;BYMONTHDAY=15;COUNT=3"),
              Instants({utc(2024, 3, 15, 9), utc(2025, 3, 15, 9), utc(2026, 3, 15, 9)}));
    EXPECT_EQ(
        startsOf("DTSTART:20240315T090000Z\r\nRRULE:FREQ=YEARLY;BYMONTHDAY=15;BYMONTH=3,4;COUNT=3"),
        Instants({utc(2024, 3, 15, 9), utc(2024, 4, 15, 9), utc(2025, 3, 15, 9)}));
}

TEST_F(AsWrittenTest, takesAnExceptionThatRepeatsForASeriesWhereThereIsNone) {
    EXPECT_EQ(startsOf("RECURRENCE-ID:20240304T090000Z\r\nDTSTART:20240304T090000Z\r\n"
                       "RRULE:FREQ=DAILY;COUNT=3"),
              march({4, 5, 6}));
}

TEST_F(AsWrittenTest, readsTimesInSmallLettersAndWithoutSeconds) {
    for (const char* time : {"20240304t090000z", "20240304T0900Z", "20240304T090000ZZ",
                             "2024-03-04T09:00:00Z", "20240304T090000.000Z", "20240304T100000+0100",
                             "2024-03-04T10:00:00+01:00", " 20240304T090000Z "}) {
        EXPECT_EQ(startsOf(QByteArray("DTSTART:") + time), march({4})) << time;
        EXPECT_EQ(startsOf(fourDays + "\r\nEXDATE:" + time), march({5, 6, 7})) << time;
    }
    EXPECT_EQ(startsOf("DTSTART;TZID=Europe/Berlin:20240304T1000"), march({4}));
    EXPECT_EQ(startsOf("DTSTART;VALUE=DATE:20240304T000000"), Instants({utc(2024, 3, 3, 23)}));
    EXPECT_TRUE(allEvents()[0].details->isAllDay);
    expectNothingTold();
}

TEST_F(AsWrittenTest, readsFilesWhoseLinesEndWithReturnsAlone) {
    QByteArray text = eventFile("SUMMARY:Fold\r\n ed\r\nDTSTART:20240304T090000Z");
    write(QStringLiteral("a.ics"), text.replace('\n', ""));
    EXPECT_EQ(starts(), march({4}));
    EXPECT_EQ(titles(), QStringList({"Folded"}));
    store.reset();
    write(QStringLiteral("a.ics"), eventFile("SUMMARY:Still\rone\r\nDTSTART:20240304T090000Z"));
    EXPECT_TRUE(titles().at(0).startsWith(QStringLiteral("Still")));
    EXPECT_TRUE(titles().at(0).endsWith(QStringLiteral("one")));
    store.reset();
    write(QStringLiteral("a.ics"),
          eventFile("SUMMARY:Twice\r\nDTSTART:20240304T090000Z").replace("\r\n", "\r\r\n"));
    EXPECT_EQ(titles(), QStringList({"Twice"}));
}

TEST_F(AsWrittenTest, keepsGoodDatesBesideBadOnesAndTellsOfThese) {
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;COUNT=4\r\n"
                       "EXDATE:20240305T090000Z,someday,20240306T090000Z"),
              march({4, 7}));
    expectTold(8, QStringLiteral("the left-out date “someday” cannot be read; what is on it is "
                                 "shown"));
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRDATE:20240306T090000Z,20240230T090000Z"),
              march({4, 6}));
    expectTold(7,
               QStringLiteral("the additional date “20240230T090000Z” cannot be read and is left "
                              "out"));
}

TEST_F(AsWrittenTest, neverCountsAnOccurrenceTwiceWhoseExceptionCannotBePlaced) {
    writeEvents({"DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;COUNT=3",
                 "RECURRENCE-ID:someday\r\nDTSTART:20240304T150000Z"});
    EXPECT_EQ(starts(), march({4, 5, 6}));
    expectTold(12, QStringLiteral("which occurrence it replaces cannot be read (“someday”); the "
                                  "series is shown without this change"));
    writeEvents({"RECURRENCE-ID:someday\r\nDTSTART:20240304T150000Z"});
    EXPECT_EQ(starts(), march({4}, 15));
}

TEST_F(AsWrittenTest, dropsOlderExceptionsOfWhatTheSeriesNoLongerHas) {
    const QByteArray exception =
        "SEQUENCE:1\r\nRECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T150000Z";
    for (const char* end : {"RRULE:FREQ=DAILY;UNTIL=20240304T090000Z",
                            "RRULE:FREQ=DAILY;COUNT=2\r\nEXDATE:20240305T090000Z"}) {
        const QByteArray master = QByteArray("DTSTART:20240304T090000Z\r\n") + end;
        writeEvents({"SEQUENCE:2\r\n" + master, exception});
        EXPECT_EQ(starts(), march({4})) << end;
        writeEvents({"SEQUENCE:1\r\n" + master, exception});
        EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 15)})) << end;
        writeEvents({"SEQUENCE:1\r\nLAST-MODIFIED:20240302T000000Z\r\n" + master,
                     "LAST-MODIFIED:20240301T000000Z\r\n" + exception});
        EXPECT_EQ(starts(), march({4})) << end;
    }
}

TEST_F(AsWrittenTest, takesTheVersionThatWasModifiedLast) {
    const QByteArray event = "DTSTART:20240304T090000Z\r\nSUMMARY:";
    writeEvents({"LAST-MODIFIED:20240302T000000Z\r\n" + event + "New",
                 "LAST-MODIFIED:20240301T000000Z\r\n" + event + "Old"});
    EXPECT_EQ(titles(), QStringList({"New"}));
    writeEvents({"DTSTAMP:20240302T000000Z\r\n" + event + "New",
                 "DTSTAMP:20240301T000000Z\r\n" + event + "Old"});
    EXPECT_EQ(titles(), QStringList({"New"}));
    writeEvents({"SEQUENCE:1\r\nDTSTAMP:20240301T000000Z\r\n" + event + "New",
                 "DTSTAMP:20240302T000000Z\r\n" + event + "Old"});
    EXPECT_EQ(titles(), QStringList({"New"}));
}

TEST_F(AsWrittenTest, knowsCancelledEventsHoweverTheyAreSpelt) {
    for (const char* status : {"CANCELED", "CANCELLED", "canceled", "Cancelled"}) {
        EXPECT_TRUE(startsOf(QByteArray("DTSTART:20240304T090000Z\r\nSTATUS:") + status).empty())
            << status;
    }
}

TEST_F(AsWrittenTest, namesTheFirstLinesOnlyOfAFileThatIsFullOfBadOnes) {
    QByteArray lines = "DTSTART:20240304T090000Z";
    for (int number = 0; number < 100; ++number) {
        lines += "\r\nEXDATE:bad" + QByteArray::number(number);
    }
    EXPECT_EQ(startsOf(lines), march({4}));
    ASSERT_EQ(store->problems().size(), 21U);
    EXPECT_EQ(store->problems()[20].reason, QStringLiteral("80 more lines cannot be read"));
}

TEST_F(AsWrittenTest, readsPropertiesBehindAQuoteThatDoesNotEnd) {
    EXPECT_EQ(startsOf("DTSTART;TZID=\"Europe/Berlin:20240304T100000").size(), 1U);
    EXPECT_EQ(startsOf("SUMMARY;LANGUAGE=\"de:Besuch\r\nDTSTART:20240304T090000Z"), march({4}));
    EXPECT_EQ(titles(), QStringList({"Besuch"}));
}

} // namespace

} // namespace quillet::test
