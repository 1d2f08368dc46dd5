#include "StoreFixture.h"

#include <sys/stat.h>

namespace quillet::test {

namespace {

using IcsFolderStoreTest = StoreFixture;

const QByteArray lunch = "SUMMARY:Lunch\r\nDTSTART:20240301T110000Z\r\nDTEND:20240301T120000Z";

TEST_F(IcsFolderStoreTest, listsFoldersAndFilesAsCalendarsSortedByName) {
    write(QStringLiteral("work/displayname"), " Work \n");
    write(QStringLiteral("work/color"), "#1a2b3c\n");
    write(QStringLiteral("home/a.ics"), eventFile(lunch));
    write(QStringLiteral("trips.ics"),
          "BEGIN:VCALENDAR\nX-WR-CALNAME:Trips\\, long ones\nX-APPLE-CALENDAR-COLOR:#FF2968FF\n"
          "END:VCALENDAR\n");
    write(QStringLiteral("notes.txt"), "no calendar");
    write(QStringLiteral(".hidden/a.ics"), eventFile(lunch));
    const CalendarList calendars = open().calendars();
    ASSERT_EQ(calendars.size(), 3U);
    EXPECT_EQ(*calendars[0],
              (StoreCalendar{QStringLiteral("folder:home"), QStringLiteral("home"), {}}));
    EXPECT_EQ(*calendars[1],
              (StoreCalendar{QStringLiteral("folder:trips.ics"), QStringLiteral("Trips, long ones"),
                             QStringLiteral("#FF2968")}));
    EXPECT_EQ(*calendars[2], (StoreCalendar{QStringLiteral("folder:work"), QStringLiteral("Work"),
                                            QStringLiteral("#1A2B3C")}));
}

TEST_F(IcsFolderStoreTest, keepsIdentifiersFreeOfQuotesAndBackslashes) {
    write(QStringLiteral("say \"hi\" \\ to ü%/a.ics"), eventFile(lunch));
    const QString identifier = open().calendars().at(0)->calendarIdentifier;
    EXPECT_EQ(identifier, QStringLiteral("folder:say %22hi%22 %5C to %C3%BC%25"));
}

TEST_F(IcsFolderStoreTest, keepsIdentifiersWhenTheDisplayedNameChanges) {
    write(QStringLiteral("work/displayname"), "Work");
    const QString before = open().calendars().at(0)->calendarIdentifier;
    store.reset();
    write(QStringLiteral("work/displayname"), "Office");
    open();
    EXPECT_EQ(store->calendars().at(0)->title, QStringLiteral("Office"));
    EXPECT_EQ(store->calendars().at(0)->calendarIdentifier, before);
}

TEST_F(IcsFolderStoreTest, deliversTheDetailsOfAnEvent) {
    write(QStringLiteral("work/a.ics"),
          eventFile("SUMMARY:Lunch\\, with Ann\r\nLOCATION:Caf\xC3\xA9\r\n"
                    "DESCRIPTION:First line\\nsecond\r\nURL:https://example.org/a,b\r\n"
                    "ATTACH:https://example.org/big\r\n"
                    "DTSTART:20240301T110000Z\r\nDTEND:20240301T123000Z"));
    const EventList events = allEvents();
    ASSERT_EQ(events.size(), 1U);
    const Event& event = events[0];
    EXPECT_EQ(event.startDate, utc(2024, 3, 1, 11));
    EXPECT_EQ(event.endDate, utc(2024, 3, 1, 12, 30));
    EXPECT_EQ(event.occurrenceDate, Instant());
    EXPECT_EQ(event.details->title, QStringLiteral("Lunch, with Ann"));
    EXPECT_EQ(event.details->location, QStringLiteral("Café"));
    EXPECT_EQ(event.details->notes, QStringLiteral("First line\nsecond"));
    EXPECT_EQ(event.details->url, QStringLiteral("https://example.org/a,b"));
    EXPECT_EQ(event.details->eventIdentifier, QStringLiteral("one"));
    EXPECT_FALSE(event.details->isAllDay);
    EXPECT_EQ(event.details->calendar, store->calendars().at(0));
}

TEST_F(IcsFolderStoreTest, deliversMissingTextsAsNull) {
    write(QStringLiteral("work/a.ics"), eventFile("DTSTART:20240301T110000Z"));
    const EventDetails& details = *allEvents().at(0).details;
    EXPECT_TRUE(details.title.isNull());
    EXPECT_TRUE(details.location.isNull());
    EXPECT_TRUE(details.notes.isNull());
    EXPECT_TRUE(details.url.isNull());
}

TEST_F(IcsFolderStoreTest, ordersByStartThenEndThenTitle) {
    const auto at = [](const char* title, const char* start, const char* end) {
        return QByteArray("BEGIN:VEVENT\nUID:") + title + "\nSUMMARY:" + title +
               "\nDTSTART:20240301T" + start + "Z\nDTEND:20240301T" + end + "Z\nEND:VEVENT\n";
    };
    write(QStringLiteral("a.ics"), "BEGIN:VCALENDAR\n" + at("d", "100000", "120000") +
                                       at("c", "100000", "110000") + at("e", "110000", "113000") +
                                       "END:VCALENDAR\n");
    write(QStringLiteral("b.ics"), "BEGIN:VCALENDAR\n" + at("a", "100000", "120000") +
                                       at("z", "090000", "230000") + "END:VCALENDAR\n");
    EXPECT_EQ(titles(), QStringList({"z", "c", "a", "d", "e"}));
}

TEST_F(IcsFolderStoreTest, deliversWhatOverlapsTheRangeOnly) {
    write(QStringLiteral("a.ics"), eventFile(lunch));
    EXPECT_EQ(eventsBetween(utc(2024, 3, 1, 11, 59), utc(2024, 3, 2)).size(), 1U);
    EXPECT_EQ(eventsBetween(utc(2024, 3, 1, 12), utc(2024, 3, 2)).size(), 0U);
    EXPECT_EQ(eventsBetween(utc(2024, 3, 1), utc(2024, 3, 1, 11, 0, 1)).size(), 1U);
    EXPECT_EQ(eventsBetween(utc(2024, 3, 1), utc(2024, 3, 1, 11)).size(), 0U);
}

TEST_F(IcsFolderStoreTest, countsAnEventWithoutLengthAtItsStart) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART:20240301T110000Z"));
    EXPECT_EQ(eventsBetween(utc(2024, 3, 1, 11), utc(2024, 3, 2)).size(), 1U);
    EXPECT_EQ(eventsBetween(utc(2024, 3, 1, 11, 0, 1), utc(2024, 3, 2)).size(), 0U);
    EXPECT_EQ(eventsBetween(utc(2024, 3, 1), utc(2024, 3, 1, 11)).size(), 0U);
}

TEST_F(IcsFolderStoreTest, findsALongEventBehindManyShortOnes) {
    QByteArray text = "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:long\nSUMMARY:long\n"
                      "DTSTART:20240101T000000Z\nDTEND:20241231T000000Z\nEND:VEVENT\n";
    for (int day = 10; day < 28; ++day) {
        text += "BEGIN:VEVENT\nUID:s" + QByteArray::number(day) + "\nDTSTART:202402" +
                QByteArray::number(day) + "T100000Z\nDTEND:202402" + QByteArray::number(day) +
                "T110000Z\nEND:VEVENT\n";
    }
    write(QStringLiteral("a.ics"), text + "END:VCALENDAR\n");
    const EventList events = eventsBetween(utc(2024, 6, 1), utc(2024, 6, 2));
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].details->title, QStringLiteral("long"));
}

TEST_F(IcsFolderStoreTest, deliversEventsOfTheAskedCalendarsOnly) {
    write(QStringLiteral("a.ics"), eventFile(lunch));
    write(QStringLiteral("b.ics"), eventFile("SUMMARY:Other\r\nDTSTART:20240301T110000Z"));
    open();
    const CalendarList second{store->calendars().at(1)};
    const EventList events = store->events(second, utc(2024, 1, 1), utc(2025, 1, 1));
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].details->title, QStringLiteral("Other"));
    EXPECT_TRUE(store->events({}, utc(2024, 1, 1), utc(2025, 1, 1)).empty());
}

TEST_F(IcsFolderStoreTest, isRestrictedWhenTheRootCannotBeCreated) {
    QFile blocker(folder.filePath(QStringLiteral("blocker")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    const IcsFolderStore blocked(folder.filePath(QStringLiteral("blocker/calendars")), access,
                                 zone);
    EXPECT_EQ(blocked.authorizationStatus(), AuthorizationStatus::Restricted);
    EXPECT_TRUE(blocked.calendars().empty());
}

TEST_F(IcsFolderStoreTest, createsAMissingRoot) {
    const QString path = folder.filePath(QStringLiteral("new/calendars"));
    const IcsFolderStore fresh(path, access, zone);
    EXPECT_EQ(fresh.authorizationStatus(), AuthorizationStatus::Authorized);
    EXPECT_TRUE(QDir(path).exists());
}

TEST_F(IcsFolderStoreTest, readsNothingBeforeAccessIsGranted) {
    write(QStringLiteral("a.ics"), eventFile(lunch));
    CalendarAccess::Answer pending;
    CalendarAccess later(folder.filePath(QStringLiteral("other-state")),
                         [&](CalendarAccess::Answer answer) { pending = std::move(answer); });
    IcsFolderStore closed(rootPath(), later, zone);
    EXPECT_EQ(closed.authorizationStatus(), AuthorizationStatus::NotDetermined);
    EXPECT_TRUE(closed.calendars().empty());
    std::size_t seen = 0;
    closed.requestAccess(
        [&](bool, const std::optional<QString>&) { seen = closed.calendars().size(); });
    pending(true);
    EXPECT_EQ(seen, 1U);
    EXPECT_EQ(closed.events(closed.calendars(), utc(2024, 1, 1), utc(2025, 1, 1)).size(), 1U);
}

TEST_F(IcsFolderStoreTest, namesItsCalendarsWhileEventsAreStillLoading) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    for (int number = 0; number < 20000; ++number) {
        text += "BEGIN:VEVENT\nUID:" + QByteArray::number(number) +
                "\nDTSTART:20240301T100000Z\nEND:VEVENT\n";
    }
    write(QStringLiteral("big.ics"), text + "END:VCALENDAR\n");
    open();
    EXPECT_EQ(store->calendars().size(), 1U);
    EXPECT_EQ(store->events(store->calendars(), utc(2024, 1, 1), utc(2025, 1, 1)).size(), 20000U);
    EXPECT_FALSE(store->isLoading());
    EXPECT_TRUE(waitUntil([this] { return notices == 1; }));
}

} // namespace

TEST_F(IcsFolderStoreTest, readsFloatingTimesAndWholeDaysAnewInAnotherZone) {
    write(QStringLiteral("a.ics"), eventFile("DTSTART:20240701T120000"));
    write(QStringLiteral("b.ics"), eventFile("DTSTART;VALUE=DATE:20240702"));
    write(QStringLiteral("c.ics"), eventFile("DTSTART:20240703T120000Z"));
    const auto travelling = std::make_shared<UserTimeZone>(QTimeZone("Europe/Berlin"));
    store = std::make_unique<IcsFolderStore>(rootPath(), access, travelling);
    const auto before =
        std::vector<Instant>({utc(2024, 7, 1, 10), utc(2024, 7, 1, 22), utc(2024, 7, 3, 12)});
    ASSERT_EQ(starts(), before);
    const CalendarList calendars = store->calendars();
    observation = store->observeChanges([this] { ++notices; });

    travelling->change(QTimeZone("America/New_York"));
    EXPECT_GT(notices, 0);
    EXPECT_EQ(starts(),
              std::vector<Instant>({utc(2024, 7, 1, 16), utc(2024, 7, 2, 4), utc(2024, 7, 3, 12)}));
    ASSERT_EQ(store->calendars().size(), calendars.size());
    for (std::size_t index = 0; index < calendars.size(); ++index) {
        EXPECT_EQ(store->calendars()[index]->calendarIdentifier,
                  calendars[index]->calendarIdentifier);
    }
}

} // namespace quillet::test
