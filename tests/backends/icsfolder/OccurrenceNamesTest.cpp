#include "StoreFixture.h"

namespace quillet::test {

namespace {

/// How other programs name what a calendar holds.
class OccurrenceNamesTest : public StoreFixture {
protected:
    static QByteArray series(const QList<QByteArray>& events) {
        QByteArray text = "BEGIN:VCALENDAR\r\n";
        for (const QByteArray& event : events) {
            text += "BEGIN:VEVENT\r\nUID:one\r\n" + event + "\r\nEND:VEVENT\r\n";
        }
        return text + "END:VCALENDAR\r\n";
    }
    /// Of every event, those of exceptions in parentheses.
    QStringList names(const QList<QByteArray>& events) {
        store.reset();
        write(QStringLiteral("a.ics"), series(events));
        QStringList found;
        for (const Event& event : allEvents()) {
            const auto& given = event.details->occurrenceNames;
            const QString name = given ? given->nameOf(event.occurrenceDate) : QString();
            found.append(given && given->isException() ? u'(' + name + u')' : name);
        }
        return found;
    }
};

TEST_F(OccurrenceNamesTest, areTheOriginalStartsInTheZoneOfTheSeries) {
    EXPECT_EQ(names({"DTSTART;TZID=Europe/Berlin:20240330T100000\r\nRRULE:FREQ=DAILY;COUNT=2"}),
              QStringList({"20240330T100000", "20240331T100000"}));
    EXPECT_EQ(names({"DTSTART;TZID=America/New_York:20240308T190000\r\nRRULE:FREQ=DAILY;COUNT=2"}),
              QStringList({"20240308T190000", "20240309T190000"}));
    EXPECT_EQ(names({"DTSTART;TZID=Europe/Berlin:20240304T100000\r\n"
                     "RDATE;TZID=Europe/Berlin:20240306T130000"}),
              QStringList({"20240304T100000", "20240306T130000"}));
}

TEST_F(OccurrenceNamesTest, tellTimesInUtcAndTimesOfNoZoneByAMark) {
    EXPECT_EQ(names({"DTSTART:20240330T100000Z\r\nRRULE:FREQ=DAILY;COUNT=2"}),
              QStringList({"20240330T100000Z", "20240331T100000Z"}));
    EXPECT_EQ(names({"DTSTART:20240330T100000\r\nRRULE:FREQ=DAILY;COUNT=2"}),
              QStringList({"20240330T100000Z", "20240331T100000Z"}));
}

TEST_F(OccurrenceNamesTest, areDatesWhereWholeDaysRepeat) {
    EXPECT_EQ(names({"DTSTART;VALUE=DATE:20240330\r\nRRULE:FREQ=DAILY;COUNT=2"}),
              QStringList({"20240330", "20240331"}));
}

TEST_F(OccurrenceNamesTest, thereAreNoneWhereNothingRepeats) {
    EXPECT_EQ(names({"DTSTART:20240304T100000Z"}), QStringList({""}));
    EXPECT_EQ(names({"DTSTART:20240304T100000Z\r\nEXDATE:20240305T100000Z"}), QStringList({""}));
}

TEST_F(OccurrenceNamesTest, areThoseOfExceptionsAsTheyAreWritten) {
    const QByteArray weekly =
        "DTSTART;TZID=Europe/Berlin:20240304T100000\r\nRRULE:FREQ=WEEKLY;COUNT=3";
    EXPECT_EQ(names({weekly,
                     "RECURRENCE-ID;TZID=Europe/Berlin:20240311T100000\r\n"
                     "DTSTART;TZID=Europe/Berlin:20240312T150000",
                     "RECURRENCE-ID:20240318T090000Z\r\nDTSTART:20240319T150000Z"}),
              QStringList({"20240304T100000", "(20240311T100000)", "(20240318T090000Z)"}));
    EXPECT_EQ(names({"RECURRENCE-ID;VALUE=DATE:20240311\r\nDTSTART;VALUE=DATE:20240312"}),
              QStringList({"(20240311)"}))
        << "also without their series";
}

TEST_F(OccurrenceNamesTest, ofWhatAnExceptionChangesFromThereOnAreThoseOfTheSeries) {
    EXPECT_EQ(names({"DTSTART:20240304T100000Z\r\nRRULE:FREQ=DAILY;COUNT=3",
                     "RECURRENCE-ID;RANGE=THISANDFUTURE:20240305T100000Z\r\n"
                     "DTSTART:20240305T120000Z"}),
              QStringList({"20240304T100000Z", "(20240305T100000Z)", "20240306T100000Z"}));
}

} // namespace

} // namespace quillet::test
