#include "StoreFixture.h"

namespace quillet {

namespace {

using test::utc;
using Instants = std::vector<Instant>;

/// The standard's own example of a calendar.
const QByteArray newYorkOf1998 = "BEGIN:VTIMEZONE\r\nTZID:America/New_York\r\n"
                                 "BEGIN:STANDARD\r\nDTSTART:19981025T020000\r\n"
                                 "TZOFFSETFROM:-0400\r\nTZOFFSETTO:-0500\r\nTZNAME:EST\r\n"
                                 "END:STANDARD\r\n"
                                 "BEGIN:DAYLIGHT\r\nDTSTART:19990404T020000\r\n"
                                 "TZOFFSETFROM:-0500\r\nTZOFFSETTO:-0400\r\nTZNAME:EDT\r\n"
                                 "END:DAYLIGHT\r\nEND:VTIMEZONE\r\n";

/// As programs in PHP write one: the changes of the years that they look at.
const QByteArray berlinOfTwoYears =
    "BEGIN:VTIMEZONE\r\nTZID:Europe/Berlin\r\n"
    "BEGIN:STANDARD\r\nDTSTART:20171029T030000\r\nTZOFFSETFROM:+0200\r\nTZOFFSETTO:+0100\r\n"
    "RDATE:20181028T030000\r\nEND:STANDARD\r\n"
    "BEGIN:DAYLIGHT\r\nDTSTART:20180325T020000\r\nTZOFFSETFROM:+0100\r\nTZOFFSETTO:+0200\r\n"
    "RDATE:20190331T020000\r\nEND:DAYLIGHT\r\nEND:VTIMEZONE\r\n";

QByteArray oneYear(const char* name) {
    return QByteArray("BEGIN:VTIMEZONE\r\nTZID:") + name +
           "\r\nBEGIN:DAYLIGHT\r\nDTSTART:20200329T020000\r\nTZOFFSETFROM:+0100\r\n"
           "TZOFFSETTO:+0200\r\nEND:DAYLIGHT\r\n"
           "BEGIN:STANDARD\r\nDTSTART:20201025T030000\r\nTZOFFSETFROM:+0200\r\n"
           "TZOFFSETTO:+0100\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";
}

class ZoneDefinitionsTest : public test::StoreFixture {
protected:
    ZoneDefinitionsTest() { zone = QTimeZone("Asia/Tokyo"); }

    /// The start of the one event of a calendar that defines a zone.
    Instants start(const QByteArray& definition, const QByteArray& name, const char* time) {
        store.reset();
        write(QStringLiteral("a.ics"), "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + definition +
                                           "BEGIN:VEVENT\r\nUID:one\r\nDTSTART;TZID=" + name + ':' +
                                           time + "\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
        Instants found;
        for (const Event& event : eventsBetween(utc(1960, 1, 1), utc(2100, 1, 1))) {
            found.push_back(event.startDate);
        }
        EXPECT_TRUE(store->problems().empty());
        return found;
    }
};

} // namespace

TEST_F(ZoneDefinitionsTest, beforeItsFirstChangeADatabaseZoneIsItself) {
    EXPECT_EQ(start(newYorkOf1998, "America/New_York", "19980312T083000"),
              Instants({utc(1998, 3, 12, 13, 30)}));
    EXPECT_EQ(start(newYorkOf1998, "America/New_York", "19980712T083000"),
              Instants({utc(1998, 7, 12, 12, 30)}));
    EXPECT_EQ(start(berlinOfTwoYears, "Europe/Berlin", "20161203T090000"),
              Instants({utc(2016, 12, 3, 8)}));
}

TEST_F(ZoneDefinitionsTest, behindItsLastChangeADatabaseZoneIsItself) {
    EXPECT_EQ(start(newYorkOf1998, "America/New_York", "20240112T083000"),
              Instants({utc(2024, 1, 12, 13, 30)}));
    EXPECT_EQ(start(berlinOfTwoYears, "Europe/Berlin", "20210115T090000"),
              Instants({utc(2021, 1, 15, 8)}));
    EXPECT_EQ(start(berlinOfTwoYears, "Europe/Berlin", "20210715T090000"),
              Instants({utc(2021, 7, 15, 7)}));
}

TEST_F(ZoneDefinitionsTest, twoChangesOfOneYearHoldForThatYear) {
    EXPECT_EQ(start(oneYear("Europe/Berlin"), "Europe/Berlin", "20240715T090000"),
              Instants({utc(2024, 7, 15, 7)}));
    EXPECT_EQ(start(oneYear("Europe/Berlin"), "Europe/Berlin", "20190715T090000"),
              Instants({utc(2019, 7, 15, 7)}));
    EXPECT_EQ(
        start(oneYear("W. Europe Standard Time"), "W. Europe Standard Time", "20240715T090000"),
        Instants({utc(2024, 7, 15, 7)}));
}

TEST_F(ZoneDefinitionsTest, betweenItsChangesADefinitionIsBelieved) {
    QByteArray shifted = oneYear("Europe/Berlin");
    shifted.replace("TZOFFSETTO:+0200", "TZOFFSETTO:+0530");
    shifted.replace("TZOFFSETFROM:+0200", "TZOFFSETFROM:+0530");
    EXPECT_EQ(start(shifted, "Europe/Berlin", "20200715T090000"),
              Instants({utc(2020, 7, 15, 3, 30)}));
    EXPECT_EQ(start(shifted, "Europe/Berlin", "20240715T090000"), Instants({utc(2024, 7, 15, 7)}));
}

TEST_F(ZoneDefinitionsTest, aNameThatMeansNothingGoesOnAsItIsDefined) {
    EXPECT_EQ(start(oneYear("Our Office"), "Our Office", "20190715T090000"),
              Instants({utc(2019, 7, 15, 8)}));
    EXPECT_EQ(start(oneYear("Our Office"), "Our Office", "20240715T090000"),
              Instants({utc(2024, 7, 15, 8)}));
}

TEST_F(ZoneDefinitionsTest, rulesWithoutAnEndHoldForEver) {
    const QByteArray indianSummers =
        "BEGIN:VTIMEZONE\r\nTZID:Europe/Berlin\r\n"
        "BEGIN:DAYLIGHT\r\nDTSTART:20100401T000000\r\nTZOFFSETFROM:+0530\r\nTZOFFSETTO:+0630\r\n"
        "RRULE:FREQ=YEARLY\r\nEND:DAYLIGHT\r\n"
        "BEGIN:STANDARD\r\nDTSTART:20101001T000000\r\nTZOFFSETFROM:+0630\r\nTZOFFSETTO:+0530\r\n"
        "RRULE:FREQ=YEARLY\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";
    EXPECT_EQ(start(indianSummers, "Europe/Berlin", "20450715T090000"),
              Instants({utc(2045, 7, 15, 2, 30)}));
}

TEST_F(ZoneDefinitionsTest, rulesThatEndGiveWayBehindTheirLastChange) {
    const QByteArray ending =
        "BEGIN:VTIMEZONE\r\nTZID:America/New_York\r\n"
        "BEGIN:DAYLIGHT\r\nDTSTART:19870405T020000\r\nTZOFFSETFROM:-0500\r\nTZOFFSETTO:-0400\r\n"
        "RRULE:FREQ=YEARLY;BYMONTH=4;BYDAY=1SU;UNTIL=20060402T070000Z\r\nEND:DAYLIGHT\r\n"
        "BEGIN:STANDARD\r\nDTSTART:19671029T020000\r\nTZOFFSETFROM:-0400\r\nTZOFFSETTO:-0500\r\n"
        "RRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU;UNTIL=20061029T060000Z\r\nEND:STANDARD\r\n"
        "END:VTIMEZONE\r\n";
    // The country has put its clocks forward on 11 March since.
    EXPECT_EQ(start(ending, "America/New_York", "20070315T120000"),
              Instants({utc(2007, 3, 15, 16)}));
    EXPECT_EQ(start(ending, "America/New_York", "20060315T120000"),
              Instants({utc(2006, 3, 15, 17)}));
}

TEST_F(ZoneDefinitionsTest, oneOffsetFromThisYearOnIsNoWordOnOtherYears) {
    const QByteArray winter =
        "BEGIN:VTIMEZONE\r\nTZID:Europe/Berlin\r\nBEGIN:STANDARD\r\nDTSTART:20231029T030000\r\n"
        "TZOFFSETFROM:+0100\r\nTZOFFSETTO:+0100\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";
    EXPECT_EQ(start(winter, "Europe/Berlin", "20240115T090000"), Instants({utc(2024, 1, 15, 8)}));
    EXPECT_EQ(start(winter, "Europe/Berlin", "20240715T090000"), Instants({utc(2024, 7, 15, 7)}));
}

} // namespace quillet
