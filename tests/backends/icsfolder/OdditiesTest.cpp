#include "StoreFixture.h"

namespace quillet::test {

namespace {

using Instants = std::vector<Instant>;

/// What programs write in spite of the standard, or because of its corners.
class OdditiesTest : public StoreFixture {
protected:
    void writeEvents(const QList<QByteArray>& events) {
        QByteArray text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
        for (const QByteArray& event : events) {
            text += "BEGIN:VEVENT\r\nUID:one\r\n" + event + "\r\nEND:VEVENT\r\n";
        }
        store.reset();
        write(QStringLiteral("a.ics"), text + "END:VCALENDAR\r\n");
    }
    static QByteArray withZone(const char* offset, const char* uid) {
        return QByteArray("BEGIN:VCALENDAR\r\nBEGIN:VTIMEZONE\r\nTZID:Office\r\n"
                          "BEGIN:STANDARD\r\nDTSTART:19700101T000000\r\nTZOFFSETFROM:") +
               offset + "\r\nTZOFFSETTO:" + offset +
               "\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\nBEGIN:VEVENT\r\nUID:" + uid +
               "\r\nDTSTART;TZID=Office:20240301T120000\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
    }
};

} // namespace

TEST_F(OdditiesTest, readsDatesThatAreNotMarkedAsDates) {
    writeEvents({"DTSTART:20240301\r\nDTEND:20240303"});
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_TRUE(events[0].details->isAllDay);
    EXPECT_EQ(events[0].startDate, utc(2024, 2, 29, 23));
    EXPECT_EQ(events[0].endDate, utc(2024, 3, 2, 23));
    writeEvents({fourDays + "\r\nEXDATE:20240305"});
    EXPECT_EQ(starts(), march({4, 6, 7}));
    writeEvents({fourDays, "RECURRENCE-ID:20240305\r\nDTSTART:20240305T200000Z"});
    EXPECT_EQ(starts().size(), 4U);
    EXPECT_EQ(starts()[1], utc(2024, 3, 5, 20));
}

TEST_F(OdditiesTest, readsMidnightsInUtcAsDatesOfAWholeDaySeries) {
    zone = QTimeZone("America/New_York");
    writeEvents({"DTSTART;VALUE=DATE:20240304\r\nRRULE:FREQ=DAILY;COUNT=3\r\n"
                 "EXDATE:20240305T000000Z"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 5), utc(2024, 3, 6, 5)}));
    // The local midnight in UTC is that date too.
    writeEvents({"DTSTART;VALUE=DATE:20240304\r\nRRULE:FREQ=DAILY;COUNT=3\r\n"
                 "EXDATE:20240305T050000Z"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 5), utc(2024, 3, 6, 5)}));
    writeEvents({"DTSTART;VALUE=DATE:20240304\r\nRRULE:FREQ=DAILY;COUNT=3\r\n"
                 "EXDATE;TZID=America/New_York:20240305T000000"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 5), utc(2024, 3, 6, 5)}));
    writeEvents({"DTSTART;VALUE=DATE:20240304\r\nRRULE:FREQ=DAILY;UNTIL=20240305T000000Z"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 5), utc(2024, 3, 5, 5)}));
}

TEST_F(OdditiesTest, countsADayThatAWholeDayEventOnlyBeginsToFill) {
    for (const QByteArray& length :
         {QByteArray("DTEND;TZID=Europe/Berlin:20240302T120000"), QByteArray("DURATION:P1DT12H")}) {
        writeEvents({"DTSTART;VALUE=DATE:20240301\r\n" + length});
        const EventList events = allEvents();
        ASSERT_EQ(events.size(), 1U);
        EXPECT_EQ(events[0].startDate, utc(2024, 2, 29, 23));
        EXPECT_EQ(events[0].endDate, utc(2024, 3, 2, 23)) << length.toStdString();
    }
}

TEST_F(OdditiesTest, countsNoWeekdaysWhereNoMonthIsNamed) {
    writeEvents({"DTSTART:20240304T090000Z\r\nRRULE:FREQ=WEEKLY;BYDAY=2WE;COUNT=3"});
    EXPECT_EQ(starts(), march({4, 6, 13}));
}

TEST_F(OdditiesTest, showsAMovedOccurrenceOnceHoweverItsVersionsNameIt) {
    const QByteArray master =
        "DTSTART;TZID=America/New_York:20240304T040000\r\nRRULE:FREQ=DAILY;COUNT=3";
    for (const char* name : {"RECURRENCE-ID:20240305T090000Z", "RECURRENCE-ID:20240305T040000",
                             "RECURRENCE-ID;VALUE=DATE:20240305",
                             "RECURRENCE-ID;TZID=Europe/Berlin:20240305T100000"}) {
        writeEvents({master,
                     "SEQUENCE:1\r\nRECURRENCE-ID;TZID=America/New_York:20240305T040000\r\n"
                     "DTSTART:20240305T120000Z",
                     QByteArray("SEQUENCE:2\r\n") + name + "\r\nDTSTART:20240305T200000Z"});
        EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 20), utc(2024, 3, 6, 9)}))
            << name;
        EXPECT_EQ(allEvents().at(1).occurrenceDate, utc(2024, 3, 5, 9)) << name;
    }
}

TEST_F(OdditiesTest, readsByteOrderMarksBetweenJoinedFiles) {
    write(QStringLiteral("a.ics"),
          "\xEF\xBB\xBF" + withZone("+0300", "a") + "\xEF\xBB\xBF" + withZone("+0500", "b"));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 1, 7), utc(2024, 3, 1, 9)}));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(OdditiesTest, readsQuotedZoneNames) {
    writeEvents({"DTSTART;TZID=\"W. Europe Standard Time\":20240701T120000"});
    EXPECT_EQ(starts(), Instants({utc(2024, 7, 1, 10)}));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(OdditiesTest, knowsTheNamesOfUniversalTime) {
    zone = QTimeZone("America/New_York");
    for (const char* name : {"UTC", "GMT", "Etc/UTC", "Z", "utc", "tzone://Microsoft/Utc",
                             "Coordinated Universal Time", "Greenwich Mean Time"}) {
        writeEvents(
            {QByteArray("DTSTART;TZID=") +
             (QByteArray(name).contains(':') ? '"' + QByteArray(name) + '"' : QByteArray(name)) +
             ":20240701T120000"});
        EXPECT_EQ(starts(), Instants({utc(2024, 7, 1, 12)})) << name;
        EXPECT_TRUE(store->problems().empty()) << name;
    }
}

TEST_F(OdditiesTest, knowsTheOlderNamesOfZones) {
    const QList<std::pair<const char*, Instant>> noons{
        {"Asia/Calcutta", utc(2024, 7, 1, 6, 30)}, {"US/Eastern", utc(2024, 7, 1, 16)},
        {"Europe/Kiev", utc(2024, 7, 1, 9)},       {"CET", utc(2024, 7, 1, 10)},
        {"EST5EDT", utc(2024, 7, 1, 16)},          {"Etc/GMT-1", utc(2024, 7, 1, 11)},
        {"Asia/Saigon", utc(2024, 7, 1, 5)}};
    for (const auto& [name, noon] : noons) {
        writeEvents({QByteArray("DTSTART;TZID=") + name + ":20240701T120000"});
        EXPECT_EQ(starts(), Instants({noon})) << name;
        EXPECT_TRUE(store->problems().empty()) << name;
    }
}

TEST_F(OdditiesTest, knowsTheClocksOfLaterDecadesAndOfEarlierOnes) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART;TZID=Europe/Berlin:20450701T120000"));
    write(QStringLiteral("b.ics"), eventFile("DTSTART;TZID=America/New_York:19490701T120000"));
    const EventList events = eventsBetween(utc(1940, 1, 1), utc(2100, 1, 1));
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].startDate, utc(1949, 7, 1, 16));
    EXPECT_EQ(events[1].startDate, utc(2045, 7, 1, 10));
}

TEST_F(OdditiesTest, looksForZonesNowhereElseOnTheDisk) {
    QByteArray text = "BEGIN:VCALENDAR\r\n";
    for (const char* name : {"../../../dev/zero", "/dev/zero", "Europe/../../../../dev/zero",
                             "../../../proc/self/mem", ".", "Europe", "right/Europe/Berlin"}) {
        text += QByteArray("BEGIN:VEVENT\r\nDTSTART;TZID=") + name +
                ":20240701T120000\r\nEND:VEVENT\r\n";
    }
    write(QStringLiteral("a.ics"), text + "END:VCALENDAR\r\n");
    ASSERT_FALSE(starts().empty());
    EXPECT_EQ(starts().front(), utc(2024, 7, 1, 10));
}

TEST_F(OdditiesTest, knowsZoneNamesInAnyCase) {
    writeEvents({"DTSTART;TZID=america/new_york:20240701T120000"});
    EXPECT_EQ(starts(), Instants({utc(2024, 7, 1, 16)}));
    writeEvents({"DTSTART;TZID=pacific standard time:20240701T120000"});
    EXPECT_EQ(starts(), Instants({utc(2024, 7, 1, 19)}));
}

TEST_F(OdditiesTest, showsAnOccurrenceOnceThatIsBothExcludedAndMoved) {
    writeEvents({fourDays + "\r\nEXDATE:20240305T090000Z",
                 "RECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T140000Z"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 14), utc(2024, 3, 6, 9),
                                  utc(2024, 3, 7, 9)}));
}

TEST_F(OdditiesTest, leavesOutAnOccurrenceThatIsCancelledWithoutAStart) {
    writeEvents({fourDays, "RECURRENCE-ID:20240305T090000Z\r\nSTATUS:CANCELLED"});
    EXPECT_EQ(starts(), march({4, 6, 7}));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(OdditiesTest, leavesAnOccurrenceWhereItWasWhoseExceptionNamesNoStart) {
    writeEvents({fourDays, "SUMMARY:Renamed\r\nRECURRENCE-ID:20240305T090000Z\r\nDURATION:PT2H"});
    EXPECT_EQ(starts(), march({4, 5, 6, 7}));
    EXPECT_EQ(allEvents().at(1).details->title, QStringLiteral("Renamed"));
    EXPECT_EQ(allEvents().at(1).endDate, utc(2024, 3, 5, 11));
}

TEST_F(OdditiesTest, movesAnOccurrenceThatAListAdds) {
    writeEvents({fourDays + "\r\nRDATE:20240310T120000Z",
                 "RECURRENCE-ID:20240310T120000Z\r\nDTSTART:20240311T150000Z"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 9), utc(2024, 3, 6, 9),
                                  utc(2024, 3, 7, 9), utc(2024, 3, 11, 15)}));
}

TEST_F(OdditiesTest, addsDatesToTimedAndTimesToWholeDaySeries) {
    writeEvents({fourDays + "\r\nRDATE;VALUE=DATE:20240310"});
    EXPECT_EQ(starts(), march({4, 5, 6, 7, 10}));
    writeEvents({"DTSTART;VALUE=DATE:20240304\r\nRDATE:20240310T120000"});
    ASSERT_EQ(allEvents().size(), 2U);
    EXPECT_TRUE(allEvents()[1].details->isAllDay);
    EXPECT_EQ(allEvents()[1].startDate, utc(2024, 3, 9, 23));
    EXPECT_EQ(allEvents()[1].endDate, utc(2024, 3, 10, 23));
}

TEST_F(OdditiesTest, keepsTheWallClockOfFutureOccurrencesThatAreMovedTogether) {
    // The clocks go forward on the 31st.
    writeEvents({"DTSTART;TZID=Europe/Berlin:20240329T090000\r\nRRULE:FREQ=DAILY;COUNT=4",
                 "RECURRENCE-ID;RANGE=THISANDFUTURE;TZID=Europe/Berlin:20240330T090000\r\n"
                 "DTSTART;TZID=Europe/Berlin:20240330T110000\r\nDURATION:PT1H"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 29, 8), utc(2024, 3, 30, 10), utc(2024, 3, 31, 9),
                                  utc(2024, 4, 1, 9)}));
}

TEST_F(OdditiesTest, movesTheFutureFromAnOccurrenceThatIsNamedByItsDate) {
    writeEvents({fourDays, "RECURRENCE-ID;RANGE=THISANDFUTURE;VALUE=DATE:20240306\r\n"
                           "DTSTART:20240306T110000Z"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 9), utc(2024, 3, 6, 11),
                                  utc(2024, 3, 7, 11)}));
}

TEST_F(OdditiesTest, showsAWholeDayOccurrenceThatWasGivenATime) {
    writeEvents({"DTSTART;VALUE=DATE:20240304\r\nRRULE:FREQ=DAILY;COUNT=2",
                 "RECURRENCE-ID;VALUE=DATE:20240305\r\nDTSTART:20240305T140000Z\r\nDURATION:PT1H"});
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 2U);
    EXPECT_TRUE(events[0].details->isAllDay);
    EXPECT_FALSE(events[1].details->isAllDay);
    EXPECT_EQ(events[1].startDate, utc(2024, 3, 5, 14));
}

TEST_F(OdditiesTest, readsExceptionsBeforeTheirSeries) {
    writeEvents({"RECURRENCE-ID:20240305T090000Z\r\nDTSTART:20240305T140000Z", fourDays});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 14), utc(2024, 3, 6, 9),
                                  utc(2024, 3, 7, 9)}));
}

TEST_F(OdditiesTest, readsExceptionsFromAnotherCalendarOfTheFile) {
    const QByteArray frame = "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:one\r\n%\r\nEND:VEVENT\r\n"
                             "END:VCALENDAR\r\n";
    write(QStringLiteral("a.ics"),
          QByteArray(frame).replace("%", fourDays) +
              QByteArray(frame).replace("%", "RECURRENCE-ID:20240305T090000Z\r\n"
                                             "DTSTART:20240305T140000Z"));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 4, 9), utc(2024, 3, 5, 14), utc(2024, 3, 6, 9),
                                  utc(2024, 3, 7, 9)}));
}

TEST_F(OdditiesTest, readsEscapedAndEmptyTexts) {
    writeEvents({"SUMMARY:a\\;b\\,c\\\\d\\Ne\r\nLOCATION:\r\nURL:\r\nDESCRIPTION;ALTREP=\"cid:x;y\""
                 ":note\r\nDTSTART:20240301T110000Z"});
    const EventDetails& details = *allEvents().at(0).details;
    EXPECT_EQ(details.title, QStringLiteral("a;b,c\\d\ne"));
    EXPECT_EQ(details.notes, QStringLiteral("note"));
    EXPECT_TRUE(details.location.isEmpty());
    EXPECT_TRUE(details.url.isEmpty());
}

TEST_F(OdditiesTest, showsNothingOfASeriesWhoseOccurrencesAreAllExcluded) {
    writeEvents({fourDays + "\r\nEXDATE:20240304T090000Z,20240305T090000Z\r\n"
                            "EXDATE:20240306T090000Z\r\nEXDATE;VALUE=DATE:20240307"});
    EXPECT_TRUE(starts().empty());
}

TEST_F(OdditiesTest, readsTimesInUtcThatNameAZoneAllTheSame) {
    writeEvents({"DTSTART;TZID=America/New_York:20240301T110000Z"});
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 1, 11)}));
}

TEST_F(OdditiesTest, readsAnEndThatIsADateOfATimedEvent) {
    writeEvents({"DTSTART;TZID=Europe/Berlin:20240301T220000\r\nDTEND;VALUE=DATE:20240302"});
    EXPECT_EQ(allEvents().at(0).endDate, utc(2024, 3, 1, 23));
}

TEST_F(OdditiesTest, readsTheEndRatherThanALengthBesideIt) {
    writeEvents({"DTSTART:20240301T110000Z\r\nDURATION:PT5H\r\nDTEND:20240301T120000Z"});
    EXPECT_EQ(allEvents().at(0).endDate, utc(2024, 3, 1, 12));
}

TEST_F(OdditiesTest, keepsAFileFromSwallowingWhatFollowsAnEntryThatDoesNotEnd) {
    const QByteArray second = "BEGIN:VEVENT\nUID:2\nDTSTART:20240302T110000Z\nEND:VEVENT\n";
    const QByteArray first = "BEGIN:VEVENT\nUID:1\nDTSTART:20240301T110000Z\n";
    for (const QByteArray& entry :
         {first + "END:VCALENDAR\nBEGIN:VCALENDAR\n", first, first + "BEGIN:VALARM\n",
          first + "BEGIN:VALARM\nBEGIN:VCALENDAR\n", first + "BEGIN:VALARM\nEND:VEVENT\n",
          first + "END:VEVENT\nBEGIN:VTODO\n",
          first + "END:VEVENT\nBEGIN:VTIMEZONE\nTZID:a\nBEGIN:STANDARD\n"}) {
        store.reset();
        write(QStringLiteral("a.ics"), "BEGIN:VCALENDAR\n" + entry + second + "END:VCALENDAR\n");
        EXPECT_EQ(starts(), march({1, 2}, 11)) << entry.toStdString();
        EXPECT_EQ(store->problems(),
                  (std::vector<StoreProblem>{
                      {QStringLiteral("a.ics"), QStringLiteral("an entry in it has no end")}}))
            << entry.toStdString();
    }
}

} // namespace quillet::test
