#include "StoreFixture.h"

namespace quillet::test {

namespace {

using IcsReadingTest = StoreFixture;
using Instants = std::vector<Instant>;

TEST_F(IcsReadingTest, readsFoldedLines) {
    write(QStringLiteral("a.ics"), eventFile("SUMMARY:Long\r\n er title\r\n\t, folded twice\r\n"
                                             "DTSTART:20240301T1\r\n 10000Z"));
    EXPECT_EQ(titles(), QStringList({"Longer title, folded twice"}));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 1, 11)}));
}

TEST_F(IcsReadingTest, readsAFoldInTheMiddleOfACharacter) {
    write(QStringLiteral("a.ics"),
          eventFile("SUMMARY:Caf\xC3\r\n \xA9\r\nDTSTART:20240301T110000Z"));
    EXPECT_EQ(titles(), QStringList({QStringLiteral("Café")}));
}

TEST_F(IcsReadingTest, keepsTheBlanksAtBothEndsOfATextButKnowsNoEmptyText) {
    write(QStringLiteral("a.ics"),
          eventFile("SUMMARY:  Indented \\n \r\nDESCRIPTION;LANGUAGE=en: \r\nLOCATION:\r\n"
                    "DTSTART:20240301T110000Z"));
    write(QStringLiteral("b.ics"),
          eventFile("SUMMARY:\x01Guarded\x01\r\nDESCRIPTION:\tTab\r\nLOCATION:Hall \r\n  \r\n"
                    "DTSTART:20240302T110000Z"));
    write(QStringLiteral("c.ics"), eventFile("SUMMARY: Torn\\\r\nDTSTART:20240303T110000Z"));
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events[0].details->title, QStringLiteral("  Indented \n "));
    EXPECT_EQ(events[0].details->notes, QStringLiteral(" "));
    EXPECT_TRUE(events[0].details->location.isNull());
    EXPECT_EQ(events[1].details->title, QStringLiteral("\u0001Guarded\u0001"));
    EXPECT_EQ(events[1].details->notes, QStringLiteral("\tTab"));
    EXPECT_EQ(events[1].details->location, QStringLiteral("Hall  "));
    EXPECT_EQ(events[2].details->title, QStringLiteral("Torn"));
}

TEST_F(IcsReadingTest, readsLinesThatEndInLineFeedsAlone) {
    write(QStringLiteral("a.ics"),
          eventFile("SUMMARY:Lunch\r\n, long\r\nDTSTART:20240301T110000Z").replace("\r\n", "\n"));
    write(QStringLiteral("b.ics"), "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:b\nSUMMARY:Fol\n ded\n"
                                   "DTSTART:20240302T110000Z\nEND:VEVENT\nEND:VCALENDAR");
    EXPECT_EQ(titles(), QStringList({"Lunch", "Folded"}));
}

TEST_F(IcsReadingTest, readsTheByteOrderMarksOfUtf8AndUtf16) {
    const QString text =
        QString::fromUtf8(eventFile("SUMMARY:Prüfung €\r\nDTSTART:20240301T110000Z"));
    write(QStringLiteral("a.ics"), "\xEF\xBB\xBF" + text.toUtf8());
    QByteArray little("\xFF\xFE", 2);
    QByteArray big("\xFE\xFF", 2);
    for (const QChar unit : text) {
        little.append(static_cast<char>(unit.cell())).append(static_cast<char>(unit.row()));
        big.append(static_cast<char>(unit.row())).append(static_cast<char>(unit.cell()));
    }
    write(QStringLiteral("b.ics"), little);
    write(QStringLiteral("c.ics"), big);
    const QString title = QStringLiteral("Prüfung €");
    EXPECT_EQ(titles(), QStringList({title, title, title}));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(IcsReadingTest, readsTextThatIsNoUtf8AsLatin1) {
    write(QStringLiteral("a.ics"), eventFile("SUMMARY:Caf\xE9\r\nDTSTART:20240301T110000Z"));
    EXPECT_EQ(titles(), QStringList({QStringLiteral("Café")}));
}

TEST_F(IcsReadingTest, readsLowerCaseNames) {
    write(QStringLiteral("a.ics"), "begin:vcalendar\nbegin:vevent\nuid:a\nsummary:Small\n"
                                   "dtstart:20240301T110000Z\nend:vevent\nend:vcalendar\n");
    EXPECT_EQ(titles(), QStringList({"Small"}));
}

TEST_F(IcsReadingTest, readsADurationInsteadOfAnEnd) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART:20240301T110000Z\r\nDURATION:P1DT1H30M"));
    EXPECT_EQ(allEvents().at(0).endDate, utc(2024, 3, 2, 12, 30));
}

TEST_F(IcsReadingTest, countsTheDaysOfADurationByTheCalendar) {
    // The clocks go forward in the night: one day is 23 hours.
    write(QStringLiteral("a.ics"),
          eventFile("DTSTART;TZID=Europe/Berlin:20240330T120000\r\nDURATION:P1D"));
    EXPECT_EQ(allEvents().at(0).endDate, utc(2024, 3, 31, 10));
}

TEST_F(IcsReadingTest, givesNoLengthToAnEventThatEndsBeforeItStarts) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART:20240301T110000Z\r\nDTEND:20240301T100000Z"));
    write(QStringLiteral("b.ics"), eventFile("DTSTART:20240301T110000Z\r\nDURATION:-PT1H"));
    for (const Event& event : allEvents()) {
        EXPECT_EQ(event.endDate, event.startDate);
    }
    EXPECT_EQ(allEvents().size(), 2U);
}

TEST_F(IcsReadingTest, readsDatesAsWholeLocalDays) {
    write(QStringLiteral("a.ics"),
          eventFile("DTSTART;VALUE=DATE:20240330\r\nDTEND;VALUE=DATE:20240401"));
    const Event event = allEvents().at(0);
    EXPECT_TRUE(event.details->isAllDay);
    EXPECT_EQ(event.startDate, utc(2024, 3, 29, 23));
    EXPECT_EQ(event.endDate, utc(2024, 3, 31, 22));
}

TEST_F(IcsReadingTest, givesADateWithoutEndOneDay) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART;VALUE=DATE:20240310"));
    write(QStringLiteral("b.ics"),
          eventFile("DTSTART;VALUE=DATE:20240310\r\nDTEND;VALUE=DATE:20240310"));
    write(QStringLiteral("c.ics"), eventFile("DTSTART;VALUE=DATE:20240310\r\nDURATION:P1D"));
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 3U);
    for (const Event& event : events) {
        EXPECT_EQ(event.endDate, utc(2024, 3, 10, 23));
    }
}

TEST_F(IcsReadingTest, startsAWholeDayWithoutMidnightAtItsFirstInstant) {
    zone = QTimeZone("America/Sao_Paulo");
    // On this day the clocks went from 00:00 to 01:00.
    write(QStringLiteral("a.ics"), eventFile("DTSTART;VALUE=DATE:20181104"));
    const EventList events = eventsBetween(utc(2018, 1, 1), utc(2019, 1, 1));
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].startDate, utc(2018, 11, 4, 3));
    EXPECT_EQ(events[0].endDate, utc(2018, 11, 5, 2));
}

TEST_F(IcsReadingTest, readsSeveralCalendarsInOneFile) {
    write(QStringLiteral("a.ics"), eventFile("SUMMARY:First\r\nDTSTART:20240301T110000Z") +
                                       eventFile("SUMMARY:Second\r\nDTSTART:20240302T110000Z"));
    EXPECT_EQ(titles(), QStringList({"First", "Second"}));
}

TEST_F(IcsReadingTest, takesEachTimeZoneFromItsOwnCalendarOfTheFile) {
    const auto calendar = [](const char* uid, const char* offset) {
        return QByteArray("BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:") + uid +
               "\nDTSTART;TZID=Here:20240301T120000\nEND:VEVENT\nBEGIN:VTIMEZONE\nTZID:Here\n"
               "BEGIN:STANDARD\nDTSTART:19700101T000000\nTZOFFSETFROM:" +
               offset + "\nTZOFFSETTO:" + offset + "\nEND:STANDARD\nEND:VTIMEZONE\nEND:VCALENDAR\n";
    };
    write(QStringLiteral("a.ics"), calendar("a", "+0300") + calendar("b", "+0500"));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 1, 7), utc(2024, 3, 1, 9)}));
}

TEST_F(IcsReadingTest, believesTheFilesTimeZoneRatherThanItsName) {
    write(QStringLiteral("a.ics"),
          "BEGIN:VCALENDAR\nBEGIN:VTIMEZONE\nTZID:Europe/Berlin\nBEGIN:STANDARD\n"
          "DTSTART:19700101T000000\nTZOFFSETFROM:+0530\nTZOFFSETTO:+0530\nEND:STANDARD\n"
          "END:VTIMEZONE\nBEGIN:VEVENT\nUID:a\nDTSTART;TZID=Europe/Berlin:20240301T120000\n"
          "END:VEVENT\nEND:VCALENDAR\n");
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 1, 6, 30)}));
}

TEST_F(IcsReadingTest, followsTheRulesOfATimeZoneInTheFile) {
    write(QStringLiteral("a.ics"),
          "BEGIN:VCALENDAR\nBEGIN:VTIMEZONE\nTZID:Mine\n"
          "BEGIN:STANDARD\nDTSTART:16010101T030000\nTZOFFSETFROM:+0200\nTZOFFSETTO:+0100\n"
          "RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10\nEND:STANDARD\n"
          "BEGIN:DAYLIGHT\nDTSTART:16010101T020000\nTZOFFSETFROM:+0100\nTZOFFSETTO:+0200\n"
          "RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=3\nEND:DAYLIGHT\nEND:VTIMEZONE\n"
          "BEGIN:VEVENT\nUID:a\nDTSTART;TZID=Mine:20240330T120000\n"
          "RRULE:FREQ=DAILY;COUNT=3\nEND:VEVENT\nEND:VCALENDAR\n");
    EXPECT_EQ(starts(),
              Instants({utc(2024, 3, 30, 11), utc(2024, 3, 31, 10), utc(2024, 4, 1, 10)}));
}

TEST_F(IcsReadingTest, believesNoTimeZoneThatChangesEachWeek) {
    const auto changing = [](const char* rule) {
        return QByteArray("BEGIN:VCALENDAR\nBEGIN:VTIMEZONE\nTZID:Europe/Berlin\nBEGIN:STANDARD\n"
                          "DTSTART:19000101T000000\nTZOFFSETFROM:+0530\nTZOFFSETTO:+0530\nRRULE:") +
               rule +
               "\nEND:STANDARD\nEND:VTIMEZONE\nBEGIN:VEVENT\nUID:a\n"
               "DTSTART;TZID=Europe/Berlin:20240301T120000\nEND:VEVENT\nEND:VCALENDAR\n";
    };
    write(QStringLiteral("a.ics"), changing("FREQ=MONTHLY"));
    write(QStringLiteral("b.ics"), changing("FREQ=WEEKLY"));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 1, 6, 30), utc(2024, 3, 1, 11)}));
}

TEST_F(IcsReadingTest, knowsWindowsAndPrefixedZoneNames) {
    write(QStringLiteral("a.ics"),
          eventFile("DTSTART;TZID=W. Europe Standard Time:20240701T120000"));
    write(QStringLiteral("b.ics"), eventFile("DTSTART;TZID=Eastern Standard Time:20240701T120000"));
    write(QStringLiteral("c.ics"),
          eventFile("DTSTART;TZID=/vendor.example/20240101/Asia/Kolkata:20240701T120000"));
    EXPECT_EQ(starts(),
              Instants({utc(2024, 7, 1, 6, 30), utc(2024, 7, 1, 10), utc(2024, 7, 1, 16)}));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(IcsReadingTest, readsFloatingTimesInTheSystemZone) {
    zone = QTimeZone("America/New_York");
    write(QStringLiteral("a.ics"), eventFile("DTSTART:20240701T120000"));
    EXPECT_EQ(starts(), Instants({utc(2024, 7, 1, 16)}));
}

TEST_F(IcsReadingTest, readsAnUnknownZoneAsLocalTimeAndSaysSo) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART;TZID=Middle Earth:20240701T120000"));
    EXPECT_EQ(starts(), Instants({utc(2024, 7, 1, 10)}));
    ASSERT_EQ(store->problems().size(), 1U);
    EXPECT_EQ(
        store->problems()[0],
        (StoreProblem{QStringLiteral("a.ics"),
                      QStringLiteral("unknown time zone “Middle Earth”, taken as local time")}));
}

TEST_F(IcsReadingTest, takesNoWordForTheNameOfAZoneThatIsNone) {
    for (const char* word : {"Berlin", "Customized", "Local", "Moon/Tycho", "ABC5"}) {
        write(QStringLiteral("a.ics"),
              eventFile("DTSTART;TZID=" + QByteArray(word) + ":20240701T120000"));
        store.reset();
        EXPECT_EQ(starts(), Instants({utc(2024, 7, 1, 10)})) << word;
        EXPECT_EQ(store->problems().size(), 1U) << word;
    }
    for (const char* name : {"Japan", "EST5EDT", "UTC", "GMT"}) {
        write(QStringLiteral("a.ics"),
              eventFile("DTSTART;TZID=" + QByteArray(name) + ":20240701T120000"));
        store.reset();
        EXPECT_EQ(starts().size(), 1U) << name;
        EXPECT_TRUE(store->problems().empty()) << name;
    }
}

TEST_F(IcsReadingTest, readsTimesThatTheClockSkipsOrRepeatsAsTheStandardWants) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART;TZID=Europe/Berlin:20240331T023000"));
    write(QStringLiteral("b.ics"), eventFile("DTSTART;TZID=Europe/Berlin:20241027T023000"));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 31, 1, 30), utc(2024, 10, 27, 0, 30)}));
}

TEST_F(IcsReadingTest, leavesOutCancelledEvents) {
    write(QStringLiteral("a.ics"), eventFile("STATUS:CANCELLED\r\nDTSTART:20240301T110000Z"));
    write(QStringLiteral("b.ics"), eventFile("STATUS:TENTATIVE\r\nDTSTART:20240302T110000Z"));
    EXPECT_EQ(starts(), Instants({utc(2024, 3, 2, 11)}));
}

TEST_F(IcsReadingTest, ignoresAttachmentsAlarmsTasksAndJournals) {
    write(QStringLiteral("a.ics"),
          "BEGIN:VCALENDAR\nBEGIN:VTODO\nUID:t\nSUMMARY:Task\nDTSTART:20240301T110000Z\nEND:VTODO\n"
          "BEGIN:VEVENT\nUID:e\nATTACH;ENCODING=BASE64;VALUE=BINARY:" +
              QByteArray(3'000'000, 'A') +
              "\nBEGIN:VALARM\nDESCRIPTION:Ring\nTRIGGER:-PT5M\nDURATION:PT9H\nEND:VALARM\n"
              "SUMMARY:Event\nDTSTART:20240301T110000Z\nDTEND:20240301T120000Z\nEND:VEVENT\n"
              "BEGIN:VJOURNAL\nUID:j\nDTSTART:20240301T110000Z\nEND:VJOURNAL\nEND:VCALENDAR\n");
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].details->title, QStringLiteral("Event"));
    EXPECT_TRUE(events[0].details->notes.isNull());
    EXPECT_EQ(events[0].endDate, utc(2024, 3, 1, 12));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(IcsReadingTest, countsAndNamesEventsWithoutAStart) {
    write(QStringLiteral("a.ics"),
          eventFile("SUMMARY:When?") + eventFile("SUMMARY:Then\r\nDTSTART:20240301T110000Z"));
    EXPECT_EQ(titles(), QStringList({"Then"}));
    ASSERT_EQ(store->problems().size(), 1U);
    EXPECT_EQ(store->problems()[0],
              (StoreProblem{QStringLiteral("a.ics"), QStringLiteral("one event without a start")}));
}

TEST_F(IcsReadingTest, skipsAnEventOnADateThatTheCalendarLacks) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART:20240230T110000Z"));
    EXPECT_TRUE(allEvents().empty());
    EXPECT_EQ(store->problems().size(), 1U);
}

TEST_F(IcsReadingTest, takesTheNewestOfSeveralVersionsOfAnEvent) {
    write(QStringLiteral("a.ics"),
          eventFile("SEQUENCE:2\r\nSUMMARY:New\r\nDTSTART:20240302T110000Z") +
              eventFile("SEQUENCE:1\r\nSUMMARY:Old\r\nDTSTART:20240301T110000Z"));
    EXPECT_EQ(titles(), QStringList({"New"}));
}

TEST_F(IcsReadingTest, keepsEventsApartThatOnlyShareAnIdentifier) {
    write(QStringLiteral("a.ics"), eventFile("SUMMARY:One\r\nDTSTART:20240302T110000Z") +
                                       eventFile("SUMMARY:Two\r\nDTSTART:20240303T110000Z"));
    EXPECT_EQ(titles(), QStringList({"One", "Two"}));
}

TEST_F(IcsReadingTest, namesEventsWithoutIdentifierInAWayThatLasts) {
    const QByteArray text = "BEGIN:VCALENDAR\nBEGIN:VEVENT\nSUMMARY:A\nDTSTART:20240301T110000Z\n"
                            "END:VEVENT\nBEGIN:VEVENT\nSUMMARY:B\nDTSTART:20240301T110000Z\n"
                            "END:VEVENT\nEND:VCALENDAR\n";
    write(QStringLiteral("a.ics"), text);
    const EventList before = allEvents();
    store.reset();
    const EventList after = allEvents();
    ASSERT_EQ(before.size(), 2U);
    ASSERT_EQ(after.size(), 2U);
    EXPECT_NE(before[0].details->eventIdentifier, before[1].details->eventIdentifier);
    EXPECT_EQ(before[0].details->eventIdentifier, after[0].details->eventIdentifier);
}

} // namespace

} // namespace quillet::test
