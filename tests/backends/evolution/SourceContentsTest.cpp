#include "backends/evolution/SourceContents.h"

#include "backends/icsfolder/IcalValues.h"
#include "support/Fakes.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

/// Five hours and forty minutes ahead, like no zone of this world.
constexpr const char* ownZone =
    "BEGIN:VTIMEZONE\r\nTZID:Our Office\r\nBEGIN:STANDARD\r\nDTSTART:20000101T000000\r\n"
    "TZOFFSETFROM:+0540\r\nTZOFFSETTO:+0540\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";

using Names = std::vector<std::string>;

/// The components as the service sends them, in the order in which it may send them.
class SourceContentsTest : public testing::Test {
protected:
    SourceContentsTest() {
        contents.beginReading();
        contents.endReading();
    }

    /// At ten in the morning of that zone, for an hour.
    static ComponentPointer eventIn(const QByteArray& zone, const QByteArray& uid,
                                    const QByteArray& more = {}) {
        const QByteArray text = "BEGIN:VEVENT\r\nUID:" + uid + "\r\nDTSTART;TZID=" + zone +
                                ":20240304T100000\r\nDURATION:PT1H\r\nSUMMARY:" + uid + "\r\n" +
                                more + "END:VEVENT\r\n";
        return ComponentPointer(icalparser_parse_string(text.constData()));
    }
    [[nodiscard]] std::vector<Instant> starts() {
        (void)contents.apply();
        std::vector<Instant> found;
        for (const Event& event :
             eventsOf({contents.contents()}, utc(2024, 1, 1), utc(2025, 1, 1)).events) {
            found.push_back(event.startDate);
        }
        return found;
    }

    ZoneCatalog zones{QTimeZone("Europe/Berlin")};
    SourceContents contents{
        std::make_shared<const StoreCalendar>(StoreCalendar{"desktop:a", "A", {}}), zones};
};

TEST_F(SourceContentsTest, everyEventOfAZoneThatIsBeingAskedForIsInDoubt) {
    const auto first = eventIn("Our Office", "first");
    const auto second = eventIn("Our Office", "second");
    const auto third = eventIn("Our Office", "third");
    contents.noteChanged(*first);
    contents.noteChanged(*second);
    EXPECT_EQ(contents.takeUnknownZones(), Names{"Our Office"});
    contents.noteChanged(*third);
    EXPECT_TRUE(contents.define("Our Office", ownZone));
    EXPECT_EQ(contents.takeDoubtful(), (QSet<QString>{"first", "second", "third"}));
    contents.replace("first", {first.get()});
    contents.replace("second", {second.get()});
    contents.replace("third", {third.get()});
    EXPECT_EQ(contents.takeDoubtful(), QSet<QString>());
    EXPECT_EQ(starts(), std::vector<Instant>(3, utc(2024, 3, 4, 4, 20)));
    EXPECT_EQ(contents.problems(), QStringList());
}

TEST_F(SourceContentsTest, aDefinitionThatDoesNotReachTheDateLeavesItToTheZoneOfItsName) {
    // Of the one year 2020; the events are of March 2024.
    const auto event = eventIn("Our Office", "one");
    contents.noteChanged(*event);
    EXPECT_EQ(contents.takeUnknownZones(), Names{"Our Office"});
    EXPECT_TRUE(contents.define(
        "Our Office", "BEGIN:VTIMEZONE\r\nTZID:America/New_York\r\n"
                      "BEGIN:STANDARD\r\nDTSTART:20201101T020000\r\nTZOFFSETFROM:+0600\r\n"
                      "TZOFFSETTO:+0500\r\nEND:STANDARD\r\n"
                      "BEGIN:DAYLIGHT\r\nDTSTART:20200308T020000\r\nTZOFFSETFROM:+0500\r\n"
                      "TZOFFSETTO:+0600\r\nEND:DAYLIGHT\r\nEND:VTIMEZONE\r\n"));
    contents.replace("one", {event.get()});
    EXPECT_EQ(starts(), std::vector<Instant>{utc(2024, 3, 4, 15)});
}

TEST_F(SourceContentsTest, whatIsReadAgainBeforeItsZoneIsKnownStaysInDoubt) {
    const auto first = eventIn("Our Office", "first");
    const auto second = eventIn("Our Office", "second");
    contents.replace("first", {first.get()});
    EXPECT_EQ(contents.takeUnknownZones(), Names{"Our Office"});
    contents.replace("second", {second.get()});
    EXPECT_EQ(contents.takeDoubtful(), (QSet<QString>{"first", "second"}));
}

TEST_F(SourceContentsTest, aZoneThatTheServiceDoesNotKnowLeavesNothingInDoubt) {
    const auto first = eventIn("Moon/Tycho", "first");
    const auto second = eventIn("Moon/Tycho", "second");
    contents.noteChanged(*first);
    EXPECT_EQ(contents.takeUnknownZones(), Names{"Moon/Tycho"});
    EXPECT_FALSE(contents.define("Moon/Tycho", {}));
    EXPECT_EQ(contents.takeDoubtful(), QSet<QString>{"first"});
    contents.replace("first", {first.get()});
    contents.noteChanged(*second);
    EXPECT_EQ(contents.takeDoubtful(), QSet<QString>());
    EXPECT_EQ(contents.takeUnknownZones(), Names());
    EXPECT_EQ(starts(), std::vector<Instant>(2, utc(2024, 3, 4, 9)));
    EXPECT_EQ(contents.problems(),
              QStringList{"unknown time zone “Moon/Tycho”, taken as local time"});
}

TEST_F(SourceContentsTest, eachReadingAsksForItsZonesWhateverBecameOfTheLast) {
    const auto event = eventIn("Our Office", "one");
    contents.beginReading();
    contents.read(*event);
    EXPECT_EQ(contents.takeUnknownZones(), Names{"Our Office"});
    EXPECT_EQ(contents.takeUnknownZones(), Names());
    // The service died before it answered.
    contents.beginReading();
    contents.read(*event);
    EXPECT_EQ(contents.takeUnknownZones(), Names{"Our Office"});
    EXPECT_TRUE(contents.define("Our Office", ownZone));
    contents.beginReading();
    contents.read(*event);
    EXPECT_EQ(contents.takeUnknownZones(), Names());
    contents.endReading();
    EXPECT_EQ(starts(), std::vector<Instant>{utc(2024, 3, 4, 4, 20)});
}

TEST_F(SourceContentsTest, whatChangesDuringAReadingIsReadOnceMoreAfterIt) {
    const auto before = eventIn("Europe/Berlin", "one");
    const auto after = eventIn("Asia/Kolkata", "one");
    contents.beginReading();
    contents.noteChanged(*after);
    contents.noteRemoved("two");
    contents.read(*before);
    contents.endReading();
    EXPECT_EQ(starts(), std::vector<Instant>{utc(2024, 3, 4, 9)});
    EXPECT_EQ(contents.takeDoubtful(), (QSet<QString>{"one", "two"}));
    contents.replace("one", {after.get()});
    contents.replace("two", {});
    EXPECT_EQ(starts(), std::vector<Instant>{utc(2024, 3, 4, 4, 30)});
}

TEST_F(SourceContentsTest, anEventThatHasExceptionsIsReadWholeWhateverOfItChanges) {
    const auto series = eventIn("Europe/Berlin", "one", "RRULE:FREQ=DAILY;COUNT=3\r\n");
    const auto moved =
        eventIn("Europe/Berlin", "one", "RECURRENCE-ID;TZID=Europe/Berlin:20240305T100000\r\n");
    contents.noteChanged(*series);
    EXPECT_EQ(contents.takeDoubtful(), QSet<QString>());
    contents.noteChanged(*moved);
    EXPECT_EQ(contents.takeDoubtful(), QSet<QString>{"one"});
    contents.replace("one", {series.get(), moved.get()});
    EXPECT_EQ(starts(),
              (std::vector<Instant>{utc(2024, 3, 4, 9), utc(2024, 3, 4, 9), utc(2024, 3, 6, 9)}));
    contents.noteChanged(*series);
    EXPECT_EQ(contents.takeDoubtful(), QSet<QString>{"one"});
    contents.noteRemoved("one");
    EXPECT_EQ(contents.takeDoubtful(), QSet<QString>{"one"});
    EXPECT_EQ(starts().size(), 3U) << "until it is known what is left";
    contents.replace("one", {});
    EXPECT_TRUE(starts().empty());
}

/// Events as the service's own parser leaves them: what it could not read stands in errors.
class ServiceFormsTest : public SourceContentsTest {
protected:
    void show(const QByteArray& lines) {
        const QByteArray text =
            "BEGIN:VEVENT\r\nUID:one\r\nSUMMARY:One\r\n" + lines + "\r\nEND:VEVENT\r\n";
        const ComponentPointer component(icalparser_parse_string(text.constData()));
        contents.replace("one", {component.get()});
    }
    [[nodiscard]] std::chrono::minutes length() {
        (void)contents.apply();
        const EventList events =
            eventsOf({contents.contents()}, utc(2024, 1, 1), utc(2025, 1, 1)).events;
        return events.size() != 1 ? std::chrono::minutes(-1)
                                  : std::chrono::floor<std::chrono::minutes>(events[0].endDate -
                                                                             events[0].startDate);
    }
};

TEST_F(ServiceFormsTest, readsLengthsAndTimesThatTheServiceCouldNot) {
    show("DTSTART:20240304T090000Z\r\nDURATION:P1H");
    EXPECT_EQ(length(), std::chrono::minutes(60));
    show("DTSTART:20240304T0900Z\r\nDTEND:20240304t100000z");
    EXPECT_EQ(starts(), std::vector<Instant>{utc(2024, 3, 4, 9)});
    EXPECT_EQ(length(), std::chrono::minutes(60));
    show("DTSTART;TZID=America/New_York:20240304T090000\r\nDTEND:20240304T100000");
    EXPECT_EQ(length(), std::chrono::minutes(60));
    EXPECT_EQ(contents.problems(), QStringList());
}

TEST_F(ServiceFormsTest, followsRulesThatTheServiceCouldNot) {
    show("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;COUNT=2;UNTIL=20240310T000000Z");
    EXPECT_EQ(starts(), (std::vector<Instant>{utc(2024, 3, 4, 9), utc(2024, 3, 5, 9)}));
    show("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;INTERVAL=0;COUNT=2");
    EXPECT_EQ(starts(), (std::vector<Instant>{utc(2024, 3, 4, 9), utc(2024, 3, 5, 9)}));
    show("DTSTART:20240304T090000Z\r\nRRULE:FREQ=DAILY;UNTIL=20240303T000000Z");
    EXPECT_EQ(starts(), std::vector<Instant>());
    EXPECT_EQ(contents.problems(), QStringList());
}

TEST_F(ServiceFormsTest, takesMarkedMidnightsForDaysAndKnowsCancelledEvents) {
    show("X-MICROSOFT-CDO-ALLDAYEVENT:TRUE\r\nDTSTART:20240303T230000Z\r\nDTEND:20240304T230000Z");
    (void)contents.apply();
    const EventList events =
        eventsOf({contents.contents()}, utc(2024, 1, 1), utc(2025, 1, 1)).events;
    ASSERT_EQ(events.size(), 1U);
    EXPECT_TRUE(events[0].details->isAllDay);
    show("DTSTART:20240304T090000Z\r\nSTATUS:CANCELED");
    EXPECT_EQ(starts(), std::vector<Instant>());
}

TEST_F(ServiceFormsTest, tellsOfWhatNobodyCanRead) {
    show("DTSTART:20240304T090000Z\r\nDTEND:soon");
    EXPECT_EQ(starts(), std::vector<Instant>{utc(2024, 3, 4, 9)});
    EXPECT_EQ(contents.problems(),
              QStringList{"“One” of 2024-03-04: the end “soon” cannot be read and does not count. "
                          "Please correct it in your calendar program."});
}

} // namespace

} // namespace quillet::test
