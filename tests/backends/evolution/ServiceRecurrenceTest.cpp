#include "backends/evolution/ServiceFixture.h"

namespace quillet::test {

namespace {

/// Occurrences are compared with what the calendar's owner sees on the wall.
class ServiceRecurrenceTest : public ServiceFixture {
protected:
    [[nodiscard]] bool waitForStarts(const std::vector<Instant>& expected) {
        const bool isSeen = waitUntil([&] { return starts() == expected; });
        EXPECT_EQ(starts(), expected);
        return isSeen;
    }

    /// Weekly at ten in the morning of Berlin, four times, over the spring jump of 31 March 2024.
    ESource* addWeekly() {
        ESource* work = addCalendar(QStringLiteral("Work"));
        addEvent(work, "UID:weekly\r\nDTSTART;TZID=Europe/Berlin:20240319T100000\r\n"
                       "DTEND;TZID=Europe/Berlin:20240319T110000\r\nSUMMARY:Weekly\r\n"
                       "RRULE:FREQ=WEEKLY;COUNT=4");
        return work;
    }
};

TEST_F(ServiceRecurrenceTest, keepsTheWallClockOverAJumpOfTheClock) {
    addWeekly();
    open();
    ASSERT_TRUE(waitForStarts(
        {utc(2024, 3, 19, 9), utc(2024, 3, 26, 9), utc(2024, 4, 2, 8), utc(2024, 4, 9, 8)}));
    EXPECT_EQ(events()[2].endDate, utc(2024, 4, 2, 9));
    EXPECT_EQ(events()[2].occurrenceDate, utc(2024, 4, 2, 8));
}

TEST_F(ServiceRecurrenceTest, followsTheZoneOfTheSeriesNotThatOfTheSystem) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, "UID:ny\r\nDTSTART;TZID=America/New_York:20240308T190000\r\n"
                   "DURATION:PT1H\r\nSUMMARY:Call\r\nRRULE:FREQ=DAILY;COUNT=3");
    open();
    EXPECT_TRUE(waitForStarts({utc(2024, 3, 9, 0), utc(2024, 3, 10, 0), utc(2024, 3, 10, 23)}));
}

TEST_F(ServiceRecurrenceTest, leavesOutExceptionsAndShowsAMovedOccurrenceOnce) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, "UID:daily\r\nDTSTART;TZID=Europe/Berlin:20240304T100000\r\n"
                   "DTEND;TZID=Europe/Berlin:20240304T110000\r\nSUMMARY:Daily\r\n"
                   "RRULE:FREQ=DAILY;COUNT=5\r\nEXDATE;TZID=Europe/Berlin:20240305T100000");
    changeEvent(work,
                "UID:daily\r\nRECURRENCE-ID;TZID=Europe/Berlin:20240306T100000\r\n"
                "DTSTART;TZID=Europe/Berlin:20240501T140000\r\n"
                "DTEND;TZID=Europe/Berlin:20240501T160000\r\nSUMMARY:Moved far",
                E_CAL_OBJ_MOD_THIS);
    open();
    ASSERT_TRUE(waitForStarts(
        {utc(2024, 3, 4, 9), utc(2024, 3, 7, 9), utc(2024, 3, 8, 9), utc(2024, 5, 1, 12)}));
    // A query that does not see where the occurrence went does not see it where it was either.
    EXPECT_EQ(events(utc(2024, 3, 1), utc(2024, 3, 31)).size(), 3U);
    const EventList may = events(utc(2024, 5, 1), utc(2024, 5, 2));
    ASSERT_EQ(may.size(), 1U);
    EXPECT_EQ(may[0].details->title, QStringLiteral("Moved far"));
    EXPECT_EQ(may[0].occurrenceDate, utc(2024, 3, 6, 9));
    EXPECT_EQ(may[0].endDate, utc(2024, 5, 1, 14));
    // Other programs ask the service for it by the name that the service gives it.
    ASSERT_TRUE(may[0].details->occurrenceNames);
    EXPECT_TRUE(may[0].details->occurrenceNames->isException());
    const QByteArray name =
        may[0].details->occurrenceNames->nameOf(may[0].occurrenceDate).toLatin1();
    CallError error;
    ICalComponent* found = nullptr;
    e_cal_client_get_object_sync(clientOf(work), "daily", name.constData(), &found, nullptr,
                                 error.slot());
    EXPECT_FALSE(error) << error.message().toStdString();
    const ObjectPointer<ICalComponent> owner(found);
    EXPECT_EQ(QByteArrayView(i_cal_component_get_summary(found)), QByteArrayView("Moved far"));
}

TEST_F(ServiceRecurrenceTest, showsDatesThatAListAddsAndLeavesOutCancelledOnes) {
    writeCalendarFile(QStringLiteral("lists"),
                      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:list\r\n"
                      "DTSTART:20240304T100000Z\r\nDURATION:PT1H\r\nSUMMARY:Listed\r\n"
                      "RDATE:20240306T100000Z\r\n"
                      "RDATE;VALUE=PERIOD:20240308T100000Z/PT3H\r\nEND:VEVENT\r\n"
                      "BEGIN:VEVENT\r\nUID:gone\r\nDTSTART:20240304T120000Z\r\n"
                      "DURATION:PT1H\r\nSUMMARY:Off\r\nSTATUS:CANCELLED\r\nEND:VEVENT\r\n"
                      "END:VCALENDAR\r\n");
    addCalendar(QStringLiteral("Lists"), "lists");
    open();
    ASSERT_TRUE(waitForStarts({utc(2024, 3, 4, 10), utc(2024, 3, 6, 10), utc(2024, 3, 8, 10)}));
    EXPECT_EQ(events()[2].endDate, utc(2024, 3, 8, 13));
}

TEST_F(ServiceRecurrenceTest, movesThisAndAllLaterOccurrences) {
    writeCalendarFile(QStringLiteral("range"),
                      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:range\r\n"
                      "DTSTART:20240304T100000Z\r\nDURATION:PT1H\r\nSUMMARY:Early\r\n"
                      "RRULE:FREQ=DAILY;COUNT=4\r\nEND:VEVENT\r\n"
                      "BEGIN:VEVENT\r\nUID:range\r\n"
                      "RECURRENCE-ID;RANGE=THISANDFUTURE:20240306T100000Z\r\n"
                      "DTSTART:20240306T120000Z\r\nDURATION:PT2H\r\nSUMMARY:Late\r\n"
                      "END:VEVENT\r\nEND:VCALENDAR\r\n");
    addCalendar(QStringLiteral("Range"), "range");
    open();
    ASSERT_TRUE(waitForTitles({"Early", "Early", "Late", "Late"}));
    EXPECT_EQ(events()[3].startDate, utc(2024, 3, 7, 12));
    EXPECT_EQ(events()[3].endDate, utc(2024, 3, 7, 14));
}

TEST_F(ServiceRecurrenceTest, followsExceptionsThatAreMadeAndTakenBack) {
    ESource* work = addWeekly();
    open();
    ASSERT_TRUE(waitUntil([&] { return starts().size() == 4; }));

    changeEvent(work,
                "UID:weekly\r\nRECURRENCE-ID;TZID=Europe/Berlin:20240326T100000\r\n"
                "DTSTART;TZID=Europe/Berlin:20240327T120000\r\n"
                "DTEND;TZID=Europe/Berlin:20240327T130000\r\nSUMMARY:Wednesday",
                E_CAL_OBJ_MOD_THIS);
    ASSERT_TRUE(waitForStarts(
        {utc(2024, 3, 19, 9), utc(2024, 3, 27, 11), utc(2024, 4, 2, 8), utc(2024, 4, 9, 8)}));

    removeEvent(work, "weekly", "20240402T100000", E_CAL_OBJ_MOD_THIS);
    ASSERT_TRUE(waitForStarts({utc(2024, 3, 19, 9), utc(2024, 3, 27, 11), utc(2024, 4, 9, 8)}));

    removeEvent(work, "weekly", nullptr, E_CAL_OBJ_MOD_ALL);
    EXPECT_TRUE(waitForStarts({}));
}

TEST_F(ServiceRecurrenceTest, usesATimeZoneThatOnlyTheServiceKnows) {
    // Like no zone of this world: five hours and forty minutes ahead.
    const QByteArray zone = "BEGIN:VTIMEZONE\r\nTZID:Our Office\r\nBEGIN:STANDARD\r\n"
                            "DTSTART:20000101T000000\r\nTZOFFSETFROM:+0540\r\n"
                            "TZOFFSETTO:+0540\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";
    writeCalendarFile(QStringLiteral("own"),
                      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + zone +
                          "BEGIN:VEVENT\r\nUID:one\r\nDTSTART;TZID=Our Office:20240304T100000\r\n"
                          "DURATION:PT1H\r\nSUMMARY:First\r\nRRULE:FREQ=DAILY;COUNT=2\r\n"
                          "END:VEVENT\r\nEND:VCALENDAR\r\n");
    ESource* own = addCalendar(QStringLiteral("Own"), "own");
    open();
    ASSERT_TRUE(waitForStarts({utc(2024, 3, 4, 4, 20), utc(2024, 3, 5, 4, 20)}));
    EXPECT_TRUE(store->problems().empty());

    addEvent(own, "UID:two\r\nDTSTART;TZID=Our Office:20240306T100000\r\nDURATION:PT1H\r\n"
                  "SUMMARY:Second");
    EXPECT_TRUE(
        waitForStarts({utc(2024, 3, 4, 4, 20), utc(2024, 3, 5, 4, 20), utc(2024, 3, 6, 4, 20)}));
}

TEST_F(ServiceRecurrenceTest, learnsAZoneThatComesWithALaterEvent) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    open();
    ASSERT_TRUE(waitForCalendars({"Work"}));
    ASSERT_TRUE(waitUntil([&] { return store->problems().empty(); }));
    const ObjectPointer<ICalComponent> definition(i_cal_component_new_from_string(
        "BEGIN:VTIMEZONE\r\nTZID:Later Office\r\nBEGIN:STANDARD\r\nDTSTART:20000101T000000\r\n"
        "TZOFFSETFROM:+0540\r\nTZOFFSETTO:+0540\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"));
    const ObjectPointer<ICalTimezone> zone(i_cal_timezone_new());
    i_cal_timezone_set_component(zone.get(), definition.get());
    CallError error;
    e_cal_client_add_timezone_sync(clientOf(work), zone.get(), nullptr, error.slot());
    ASSERT_FALSE(error) << error.message().toStdString();
    addEvent(work, "UID:one\r\nDTSTART;TZID=Later Office:20240304T100000\r\nDURATION:PT1H\r\n"
                   "SUMMARY:First");
    EXPECT_TRUE(waitForStarts({utc(2024, 3, 4, 4, 20)}));
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }));
}

} // namespace

} // namespace quillet::test
