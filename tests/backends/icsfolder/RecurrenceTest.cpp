#include "StoreFixture.h"

namespace quillet::test {

namespace {

using Instants = std::vector<Instant>;

class RecurrenceTest : public StoreFixture {
protected:
    /// The starts of a calendar with this one series.
    Instants startsOf(const QByteArray& lines) {
        write(QStringLiteral("a.ics"), eventFile(lines));
        return starts();
    }
    /// A master and further events of the same series.
    static QByteArray seriesFile(const QByteArray& master, const QList<QByteArray>& exceptions) {
        QByteArray text =
            "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:one\r\n" + master + "\r\nEND:VEVENT\r\n";
        for (const QByteArray& exception : exceptions) {
            text += "BEGIN:VEVENT\r\nUID:one\r\n" + exception + "\r\nEND:VEVENT\r\n";
        }
        return text + "END:VCALENDAR\r\n";
    }
};

TEST_F(RecurrenceTest, keepsTheTimeOnTheWallWhenTheClocksChange) {
    EXPECT_EQ(startsOf("DTSTART;TZID=Europe/Berlin:20240330T090000\r\nRRULE:FREQ=DAILY;COUNT=3"),
              Instants({utc(2024, 3, 30, 8), utc(2024, 3, 31, 7), utc(2024, 4, 1, 7)}));
}

TEST_F(RecurrenceTest, readsOccurrencesInTheSkippedAndTheRepeatedHour) {
    EXPECT_EQ(startsOf("DTSTART;TZID=Europe/Berlin:20240330T023000\r\nRRULE:FREQ=DAILY;COUNT=3"),
              Instants({utc(2024, 3, 30, 1, 30), utc(2024, 3, 31, 1, 30), utc(2024, 4, 1, 0, 30)}));
    store.reset();
    EXPECT_EQ(
        startsOf("DTSTART;TZID=Europe/Berlin:20241026T023000\r\nRRULE:FREQ=DAILY;COUNT=3"),
        Instants({utc(2024, 10, 26, 0, 30), utc(2024, 10, 27, 0, 30), utc(2024, 10, 28, 1, 30)}));
}

TEST_F(RecurrenceTest, showsWhatFallsIntoTheSkippedHourAndTheNextOnce) {
    EXPECT_EQ(startsOf("DTSTART;TZID=Europe/Berlin:20240331T013000\r\n"
                       "RRULE:FREQ=HOURLY;BYMINUTE=0,30;COUNT=6"),
              Instants({utc(2024, 3, 31, 0, 30), utc(2024, 3, 31, 1), utc(2024, 3, 31, 1, 30),
                        utc(2024, 3, 31, 2)}));
}

TEST_F(RecurrenceTest, repeatsWholeDaysByTheCalendar) {
    write(QStringLiteral("a.ics"),
          eventFile("DTSTART;VALUE=DATE:20240330\r\nRRULE:FREQ=DAILY;UNTIL=20240401"));
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events[1].startDate, utc(2024, 3, 30, 23));
    EXPECT_EQ(events[1].endDate, utc(2024, 3, 31, 22));
    EXPECT_EQ(events[2].endDate, utc(2024, 4, 1, 22));
}

TEST_F(RecurrenceTest, givesEachOccurrenceItsOriginalStartAsIdentity) {
    write(QStringLiteral("a.ics"), eventFile(fourDays));
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 4U);
    for (const Event& event : events) {
        EXPECT_EQ(event.occurrenceDate, event.startDate);
        EXPECT_EQ(event.details, events[0].details);
    }
}

TEST_F(RecurrenceTest, includesAStartThatDoesNotFitItsRule) {
    // The 4th is a Monday.
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=WEEKLY;BYDAY=TU;COUNT=3"),
              march({4, 5, 12}));
}

TEST_F(RecurrenceTest, showsTheStartAloneWhereTheRuleCannotBeFollowed) {
    for (const char* rule : {"FREQ=DAILY;COUNT=0", "FREQ=DAILY;INTERVAL=-1", "FREQ=SOMETIMES",
                             "FREQ=DAILY;BYMONTHDAY=99", "INTERVAL=2", "FREQ=DAILY;BYHOUR=24",
                             "FREQ=DAILY;BYDAY=XX", "FREQ=DAILY;UNTIL=someday", "FREQ=DAILY;NO=1",
                             "RSCALE=HEBREW;FREQ=DAILY", "FREQ=MONTHLY;SKIP=FORWARD", "DAILY"}) {
        EXPECT_EQ(startsOf(QByteArray("DTSTART:20240304T090000Z\r\nRRULE:") + rule), march({4}))
            << rule;
        ASSERT_EQ(store->problems().size(), 1U) << rule;
        EXPECT_EQ(store->problems()[0].reason,
                  QStringLiteral("event without a title of 2024-03-04, line 6: the repetition “%1” "
                                 "cannot be followed; only the first event is shown. Please "
                                 "correct it in your calendar program.")
                      .arg(QLatin1String(rule)));
        store.reset();
    }
}

TEST_F(RecurrenceTest, includesTheWholeLastDayOfATimedSeriesThatEndsOnADate) {
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;UNTIL=20240306"),
              march({4, 5, 6}));
}

TEST_F(RecurrenceTest, endsAtTheInstantThatIsGivenInUtc) {
    EXPECT_EQ(startsOf("DTSTART;TZID=Europe/Berlin:20240304T100000\r\n"
                       "RRULE:FREQ=DAILY;UNTIL=20240306T090000Z"),
              march({4, 5, 6}));
    store.reset();
    EXPECT_EQ(startsOf("DTSTART;TZID=Europe/Berlin:20240304T100000\r\n"
                       "RRULE:FREQ=DAILY;UNTIL=20240306T085959Z"),
              march({4, 5}));
}

TEST_F(RecurrenceTest, findsTheLastDayOfEachMonthDayByDay) {
    EXPECT_EQ(startsOf("DTSTART:20240131T090000Z\r\nRRULE:FREQ=DAILY;BYMONTHDAY=-1;COUNT=3"),
              Instants({utc(2024, 1, 31, 9), utc(2024, 2, 29, 9), utc(2024, 3, 31, 9)}));
}

TEST_F(RecurrenceTest, takesPositionsWithinTheWeek) {
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\n"
                       "RRULE:FREQ=WEEKLY;BYDAY=MO,WE,FR;BYSETPOS=1,-1;COUNT=4"),
              march({4, 8, 11, 15}));
}

TEST_F(RecurrenceTest, findsTheLastWorkdayOfTheMonth) {
    EXPECT_EQ(startsOf("DTSTART:20240131T090000Z\r\n"
                       "RRULE:FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-1;COUNT=3"),
              Instants({utc(2024, 1, 31, 9), utc(2024, 2, 29, 9), utc(2024, 3, 29, 9)}));
}

TEST_F(RecurrenceTest, skipsMonthsAndYearsThatLackTheDay) {
    EXPECT_EQ(startsOf("DTSTART:20240131T090000Z\r\nRRULE:FREQ=MONTHLY;COUNT=3"),
              Instants({utc(2024, 1, 31, 9), utc(2024, 3, 31, 9), utc(2024, 5, 31, 9)}));
    store.reset();
    EXPECT_EQ(startsOf("DTSTART:20200229T090000Z\r\nRRULE:FREQ=YEARLY;COUNT=3"),
              Instants({utc(2020, 2, 29, 9), utc(2024, 2, 29, 9), utc(2028, 2, 29, 9)}));
}

TEST_F(RecurrenceTest, takesTheWeekdayOfAWeekNumberFromTheStart) {
    // The 4th is the Monday of week 10.
    EXPECT_EQ(startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=YEARLY;BYWEEKNO=10;COUNT=2"),
              Instants({utc(2024, 3, 4, 9), utc(2025, 3, 3, 9)}));
}

TEST_F(RecurrenceTest, repeatsByTheHour) {
    EXPECT_EQ(
        startsOf("DTSTART:20240304T090000Z\r\nRRULE:FREQ=HOURLY;INTERVAL=5;BYDAY=MO,WE;COUNT=5"),
        Instants({utc(2024, 3, 4, 9), utc(2024, 3, 4, 14), utc(2024, 3, 4, 19), utc(2024, 3, 6, 1),
                  utc(2024, 3, 6, 6)}));
}

TEST_F(RecurrenceTest, startsTheWeekWhereTheRuleSays) {
    // The classic pair of examples: every other week on Tuesday and Sunday.
    EXPECT_EQ(startsOf("DTSTART:20240305T090000Z\r\n"
                       "RRULE:FREQ=WEEKLY;INTERVAL=2;COUNT=4;BYDAY=TU,SU;WKST=MO"),
              march({5, 10, 19, 24}));
    store.reset();
    EXPECT_EQ(startsOf("DTSTART:20240305T090000Z\r\n"
                       "RRULE:FREQ=WEEKLY;INTERVAL=2;COUNT=4;BYDAY=TU,SU;WKST=SU"),
              march({5, 17, 19, 31}));
}

TEST_F(RecurrenceTest, findsMidSeriesWhatAQueryAsksFor) {
    write(
        QStringLiteral("a.ics"),
        eventFile(
            "DTSTART:19990104T090000Z\r\nDTEND:19990104T100000Z\r\nRRULE:FREQ=WEEKLY;INTERVAL=3"));
    // 8 January 2024 comes 1305 weeks after the start: 435 times three.
    const EventList events = eventsBetween(utc(2023, 12, 25), utc(2024, 1, 20));
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].startDate, utc(2024, 1, 8, 9));
}

TEST_F(RecurrenceTest, addsDatesOfAListWithTheSeriesLength) {
    write(QStringLiteral("a.ics"),
          eventFile(fourDays + "\r\nRDATE:20240310T120000Z,20240304T090000Z"));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 9), utc(2024, 3, 6, 9),
                                  utc(2024, 3, 7, 9), utc(2024, 3, 10, 12)}));
    EXPECT_EQ(allEvents().back().endDate, utc(2024, 3, 10, 13));
}

TEST_F(RecurrenceTest, addsPeriodsOfAListWithTheirOwnLength) {
    write(QStringLiteral("a.ics"),
          eventFile("DTSTART:20240304T090000Z\r\nDTEND:20240304T100000Z\r\n"
                    "RDATE;VALUE=PERIOD:20240310T120000Z/20240310T150000Z,20240311T120000Z/PT30M"));
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events[1].startDate, utc(2024, 3, 10, 12));
    EXPECT_EQ(events[1].endDate, utc(2024, 3, 10, 15));
    EXPECT_EQ(events[2].endDate, utc(2024, 3, 11, 12, 30));
}

TEST_F(RecurrenceTest, leavesOutExceptionDatesOfEveryKind) {
    EXPECT_EQ(startsOf(fourDays + "\r\nEXDATE:20240305T090000Z,20240304T090000Z"), march({6, 7}));
    store.reset();
    EXPECT_EQ(startsOf(fourDays + "\r\nEXDATE;TZID=Europe/Berlin:20240305T100000"),
              march({4, 6, 7}));
    store.reset();
    EXPECT_EQ(startsOf(fourDays + "\r\nEXDATE;VALUE=DATE:20240306"), march({4, 5, 7}));
    store.reset();
    EXPECT_EQ(startsOf(fourDays + "\r\nEXRULE:FREQ=DAILY;INTERVAL=2;COUNT=2"), march({5, 7}));
}

TEST_F(RecurrenceTest, leavesOutExceptionDatesOfWholeDays) {
    EXPECT_EQ(startsOf("DTSTART;VALUE=DATE:20240304\r\nRRULE:FREQ=DAILY;COUNT=3\r\n"
                       "EXDATE;VALUE=DATE:20240305"),
              Instants({utc(2024, 3, 3, 23), utc(2024, 3, 5, 23)}));
}

TEST_F(RecurrenceTest, readsEveryValueOfAVeryLongExceptionLine) {
    QByteArray exceptions = "EXDATE:";
    QByteArray extras = "RDATE:";
    for (int day = 0; day < 1400; ++day) {
        const QByteArray date =
            QDate(2021, 1, 1).addDays(day).toString(QStringLiteral("yyyyMMdd")).toLatin1();
        exceptions += (day == 0 ? "" : ",") + date + "T090000Z";
        extras += (day == 0 ? "" : ",") + date + "T150000Z";
    }
    const auto times = startsOf("DTSTART:20210101T090000Z\r\nRRULE:FREQ=DAILY;COUNT=1402\r\n" +
                                exceptions + "\r\n" + extras);
    EXPECT_EQ(times.size(), 1402U);
    EXPECT_EQ(std::ranges::count_if(times,
                                    [](Instant time) {
                                        return (time - std::chrono::floor<std::chrono::days>(
                                                           time)) == std::chrono::hours(9);
                                    }),
              2);
}

TEST_F(RecurrenceTest, showsAMovedOccurrenceOnceWhereItIsNow) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays, {"SUMMARY:Moved\r\nRECURRENCE-ID:20240305T090000Z\r\n"
                                "DTSTART:20240305T140000Z\r\nDTEND:20240305T160000Z"}));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 14), utc(2024, 3, 6, 9),
                                  utc(2024, 3, 7, 9)}));
    const Event moved = allEvents().at(1);
    EXPECT_EQ(moved.details->title, QStringLiteral("Moved"));
    EXPECT_EQ(moved.occurrenceDate, utc(2024, 3, 5, 9));
    EXPECT_EQ(moved.endDate, utc(2024, 3, 5, 16));
}

TEST_F(RecurrenceTest, showsAnOccurrenceThatMovedOutOfItsMonthInTheOther) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays, {"RECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240410T140000Z"}));
    EXPECT_EQ(eventsBetween(utc(2024, 3, 1), utc(2024, 4, 1)).size(), 3U);
    EXPECT_EQ(eventsBetween(utc(2024, 4, 1), utc(2024, 5, 1)).size(), 1U);
}

TEST_F(RecurrenceTest, leavesOutACancelledOccurrence) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays, {"RECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T090000Z\r\n"
                                "STATUS:CANCELLED"}));
    EXPECT_EQ(starts(), march({4, 6, 7}));
}

TEST_F(RecurrenceTest, leavesOutAMovedFirstOccurrenceOfItsSeries) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays, {"RECURRENCE-ID:20240304T090000Z\r\nDTSTART:20240304T110000Z"}));
    EXPECT_EQ(starts().front(), utc(2024, 3, 4, 11));
    EXPECT_EQ(starts().size(), 4U);
}

TEST_F(RecurrenceTest, readsTheNameOfAMovedOccurrenceInAnyZone) {
    const QByteArray master =
        "DTSTART;TZID=Europe/Berlin:20240304T100000\r\nRRULE:FREQ=DAILY;COUNT=3";
    for (const char* name :
         {"RECURRENCE-ID;TZID=America/New_York:20240305T040000", "RECURRENCE-ID:20240305T090000Z",
          "RECURRENCE-ID:20240305T100000", "RECURRENCE-ID;VALUE=DATE:20240305"}) {
        write(QStringLiteral("a.ics"),
              seriesFile(master, {QByteArray(name) + "\r\nDTSTART:20240305T200000Z"}));
        EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 20), utc(2024, 3, 6, 9)}))
            << name;
        store.reset();
    }
}

TEST_F(RecurrenceTest, takesTheNewestOfSeveralVersionsOfAnOccurrence) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays,
                     {"SEQUENCE:3\r\nRECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T120000Z",
                      "SEQUENCE:1\r\nRECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T130000Z"}));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 12), utc(2024, 3, 6, 9),
                                  utc(2024, 3, 7, 9)}));
}

TEST_F(RecurrenceTest, movesThisAndAllFutureOccurrences) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays,
                     {"SUMMARY:Later\r\nRECURRENCE-ID;RANGE=THISANDFUTURE:20240306T090000Z\r\n"
                      "DTSTART:20240306T110000Z\r\nDTEND:20240306T133000Z"}));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 9), utc(2024, 3, 6, 11),
                                  utc(2024, 3, 7, 11)}));
    EXPECT_EQ(titles(), QStringList({"Daily", "Daily", "Later", "Later"}));
    const Event last = allEvents().back();
    EXPECT_EQ(last.endDate, utc(2024, 3, 7, 13, 30));
    EXPECT_EQ(last.occurrenceDate, utc(2024, 3, 7, 9));
}

TEST_F(RecurrenceTest, keepsSingleExceptionsAmongMovedFutureOccurrences) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays, {"RECURRENCE-ID;RANGE=THISANDFUTURE:20240305T090000Z\r\n"
                                "DTSTART:20240305T110000Z",
                                "RECURRENCE-ID:20240306T090000Z\r\nDTSTART:20240306T200000Z"}));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 11), utc(2024, 3, 6, 20),
                                  utc(2024, 3, 7, 11)}));
}

TEST_F(RecurrenceTest, endsASeriesWhoseFutureIsCancelled) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays, {"RECURRENCE-ID;RANGE=THISANDFUTURE:20240306T090000Z\r\n"
                                "DTSTART:20240306T090000Z\r\nSTATUS:CANCELLED"}));
    EXPECT_EQ(starts(), march({4, 5}));
}

TEST_F(RecurrenceTest, showsAnExceptionWhoseSeriesIsNotThere) {
    write(QStringLiteral("a.ics"),
          eventFile("RECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T140000Z"));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 5, 14)}));
}

TEST_F(RecurrenceTest, leavesOutACancelledSeriesButNotWhatWasMovedOutOfIt) {
    write(QStringLiteral("a.ics"),
          seriesFile(fourDays + "\r\nSTATUS:CANCELLED",
                     {"RECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T140000Z"}));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 5, 14)}));
}

TEST_F(RecurrenceTest, findsALongOccurrenceThatBeganBeforeTheRange) {
    write(QStringLiteral("a.ics"),
          eventFile("DTSTART:20240101T000000Z\r\nDURATION:P20D\r\nRRULE:FREQ=MONTHLY"));
    EXPECT_EQ(eventsBetween(utc(2024, 5, 18), utc(2024, 5, 19)).size(), 1U);
    EXPECT_EQ(eventsBetween(utc(2024, 5, 22), utc(2024, 5, 23)).size(), 0U);
}

TEST_F(RecurrenceTest, showsOnEachDayWhatAWholeYearShowsOfIt) {
    const QByteArray future = "RECURRENCE-ID;RANGE=THISANDFUTURE:20240306T090000Z\r\n";
    for (const QByteArray& file :
         {eventFile(fourDays + "\r\nRDATE;VALUE=PERIOD:20240310T120000Z/P30D"),
          seriesFile(fourDays, {future + "DTSTART:20240326T090000Z\r\nDURATION:PT1H"}),
          seriesFile(fourDays, {future + "DTSTART:20240215T090000Z\r\nDURATION:PT1H"}),
          seriesFile(fourDays, {future + "DTSTART:20240306T090000Z\r\nDURATION:P12D"})}) {
        store.reset();
        write(QStringLiteral("a.ics"), file);
        const EventList year = eventsBetween(utc(2024, 1, 1), utc(2025, 1, 1));
        ASSERT_GE(year.size(), 4U);
        for (Instant day = utc(2024, 2, 1); day < utc(2024, 5, 1); day += std::chrono::days(1)) {
            const Instant next = day + std::chrono::days(1);
            const auto isOnDay = [&](const Event& event) {
                return event.startDate < next && event.endDate > day;
            };
            EXPECT_EQ(eventsBetween(day, next).size(),
                      static_cast<std::size_t>(std::ranges::count_if(year, isOnDay)))
                << day.time_since_epoch().count() << '\n'
                << file.toStdString();
        }
    }
}

} // namespace

} // namespace quillet::test
