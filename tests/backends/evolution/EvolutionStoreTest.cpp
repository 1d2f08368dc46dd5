#include "backends/evolution/ServiceFixture.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>

namespace quillet::test {

namespace {

constexpr int second = 1000;

QByteArray event(const QByteArray& uid, const QByteArray& start, const QByteArray& end,
                 const QByteArray& title) {
    return "UID:" + uid + "\r\nDTSTART:" + start + "\r\nDTEND:" + end + "\r\nSUMMARY:" + title;
}

class EvolutionStoreTest : public ServiceFixture {};

TEST_F(EvolutionStoreTest, listsTheUsersCalendarsByTheirOrderAndName) {
    addCalendar(QStringLiteral("Work"));
    addCalendar(QStringLiteral("Home"));
    addCalendar(QStringLiteral("First"), {}, "local", [](ESource* source) {
        auto* extension = e_source_get_extension(source, E_SOURCE_EXTENSION_CALENDAR);
        e_source_selectable_set_color(E_SOURCE_SELECTABLE(extension), "#1a5fb4");
    });
    ESource* last = addCalendar(QStringLiteral("A later one"));
    e_source_selectable_set_order(
        E_SOURCE_SELECTABLE(e_source_get_extension(last, E_SOURCE_EXTENSION_CALENDAR)), 7);
    commit(last);
    open();
    // The birthdays of the address book are not among them.
    ASSERT_TRUE(waitForCalendars({"First", "Home", "Work", "A later one"}));
    EXPECT_EQ(store->calendars()[0]->colorName, QStringLiteral("#1a5fb4"));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(EvolutionStoreTest, followsCalendarsThatAppearAndAreRenamedDisabledAndRemoved) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "20240301T090000Z", "20240301T100000Z", "Meeting"));
    open();
    ASSERT_TRUE(waitForTitles({"Meeting"}));
    const QString identifier = store->calendars()[0]->calendarIdentifier;

    ESource* home = addCalendar(QStringLiteral("Home"));
    ASSERT_TRUE(waitForCalendars({"Home", "Work"}));

    e_source_set_display_name(work, "Office");
    commit(work);
    ASSERT_TRUE(waitForCalendars({"Home", "Office"}));
    EXPECT_EQ(store->calendars()[1]->calendarIdentifier, identifier);
    ASSERT_TRUE(waitUntil(
        [&] { return events().at(0).details->calendar->title == QStringLiteral("Office"); }));

    e_source_set_enabled(work, FALSE);
    commit(work);
    ASSERT_TRUE(waitForCalendars({"Home"}));
    EXPECT_EQ(titles(), QStringList());
    e_source_set_enabled(work, TRUE);
    commit(work);
    ASSERT_TRUE(waitForTitles({"Meeting"}));
    EXPECT_EQ(store->calendars()[1]->calendarIdentifier, identifier);

    remove(home);
    ASSERT_TRUE(waitForCalendars({"Office"}));
}

TEST_F(EvolutionStoreTest, deliversWhatTheServiceKnowsOfAnEvent) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, "UID:full\r\nDTSTART;TZID=Asia/Kolkata:20240301T093000\r\n"
                   "DTEND;TZID=Asia/Kolkata:20240301T103000\r\nSUMMARY:Café\\, über <b>\r\n"
                   "LOCATION:Room 1\r\nDESCRIPTION:First\\nSecond\r\n"
                   "URL:https://example.org/?a=b&c");
    open();
    ASSERT_TRUE(waitForTitles({QStringLiteral("Café, über <b>")}));
    const Event found = events().at(0);
    EXPECT_EQ(found.startDate, utc(2024, 3, 1, 4));
    EXPECT_EQ(found.endDate, utc(2024, 3, 1, 5));
    EXPECT_EQ(found.occurrenceDate, Instant());
    EXPECT_EQ(found.details->location, QStringLiteral("Room 1"));
    EXPECT_EQ(found.details->notes, QStringLiteral("First\nSecond"));
    EXPECT_EQ(found.details->url, QStringLiteral("https://example.org/?a=b&c"));
    EXPECT_EQ(found.details->eventIdentifier, QStringLiteral("full"));
    EXPECT_FALSE(found.details->isAllDay);
    EXPECT_EQ(found.details->calendar->title, QStringLiteral("Work"));
}

TEST_F(EvolutionStoreTest, readsFloatingTimesAndWholeDaysInTheSystemsZone) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("floating", "20240701T090000", "20240701T100000", "Floating"));
    addEvent(work, "UID:day\r\nDTSTART;VALUE=DATE:20240702\r\nDTEND;VALUE=DATE:20240704\r\n"
                   "SUMMARY:Days");
    open();
    ASSERT_TRUE(waitForTitles({"Floating", "Days"}));
    EXPECT_EQ(events()[0].startDate, utc(2024, 7, 1, 7));
    EXPECT_EQ(events()[1].startDate, utc(2024, 7, 1, 22));
    EXPECT_EQ(events()[1].endDate, utc(2024, 7, 3, 22));
    EXPECT_TRUE(events()[1].details->isAllDay);
}

TEST_F(EvolutionStoreTest, ordersEventsOfAllCalendarsByStartThenEndThenTitle) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    ESource* home = addCalendar(QStringLiteral("Home"));
    addEvent(work, event("1", "20240301T090000Z", "20240301T110000Z", "longer"));
    addEvent(work, event("2", "20240301T090000Z", "20240301T100000Z", "b"));
    addEvent(home, event("3", "20240301T090000Z", "20240301T100000Z", "a"));
    addEvent(home, event("4", "20240301T080000Z", "20240301T083000Z", "earlier"));
    open();
    EXPECT_TRUE(waitForTitles({"earlier", "a", "b", "longer"}));
}

TEST_F(EvolutionStoreTest, countsTheSameEventInEachCalendarThatHoldsIt) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    ESource* home = addCalendar(QStringLiteral("Home"));
    for (ESource* source : {work, home}) {
        addEvent(source, event("same", "20240301T090000Z", "20240301T100000Z", "Both"));
    }
    open();
    ASSERT_TRUE(waitForTitles({"Both", "Both"}));
    EXPECT_FALSE(isSameEvent(events()[0], events()[1]));
    const CalendarList one{store->calendars()[0], store->calendars()[0]};
    EXPECT_EQ(store->events(one, utc(2024, 1, 1), utc(2025, 1, 1)).size(), 1U);
}

TEST_F(EvolutionStoreTest, takesTheBoundsOfAQueryAsTheStoresDo) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("1", "20240301T090000Z", "20240301T100000Z", "hour"));
    addEvent(work, event("2", "20240301T120000Z", "20240301T120000Z", "point"));
    open();
    ASSERT_TRUE(waitForTitles({"hour", "point"}));
    EXPECT_TRUE(events(utc(2024, 3, 1, 10), utc(2024, 3, 1, 12)).empty());
    EXPECT_EQ(events(utc(2024, 3, 1, 9, 59), utc(2024, 3, 1, 12, 1)).size(), 2U);
    EXPECT_TRUE(store->events({}, utc(2024, 1, 1), utc(2025, 1, 1)).empty());
}

TEST_F(EvolutionStoreTest, showsChangesWithinASecondAndAnnouncesThem) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "20240301T090000Z", "20240301T100000Z", "First"));
    open();
    ASSERT_TRUE(waitForTitles({"First"}));

    int before = notices;
    addEvent(work, event("two", "20240302T090000Z", "20240302T100000Z", "Second"));
    ASSERT_TRUE(waitForTitles({"First", "Second"}, second));
    EXPECT_TRUE(waitUntil([&] { return notices > before; }, second));

    before = notices;
    changeEvent(work, event("one", "20240303T090000Z", "20240303T100000Z", "Moved"),
                E_CAL_OBJ_MOD_ALL);
    ASSERT_TRUE(waitForTitles({"Second", "Moved"}, second));
    EXPECT_TRUE(waitUntil([&] { return notices > before; }, second));

    before = notices;
    removeEvent(work, "two", nullptr, E_CAL_OBJ_MOD_ALL);
    ASSERT_TRUE(waitForTitles({"Moved"}, second));
    EXPECT_TRUE(waitUntil([&] { return notices > before; }, second));
}

TEST_F(EvolutionStoreTest, announcesAgainWhatCameWhileAQueryWasBeingShown) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    open();
    ASSERT_TRUE(waitForCalendars({"Work"}));
    ASSERT_TRUE(waitUntil([&] { return store->problems().empty(); }));
    QCoreApplication::processEvents();
    int before = notices;
    addEvent(work, event("one", "20240301T090000Z", "20240301T100000Z", "First"));
    // A receiver that is at work on its last events when the notice comes.
    ASSERT_TRUE(waitUntil([&] {
        (void)events();
        return notices > before;
    }));
    before = notices;
    EXPECT_TRUE(waitUntil([&] { return notices > before; }, second));
}

TEST_F(EvolutionStoreTest, asksNothingOfTheServiceWithoutTheUsersConsent) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "20240301T090000Z", "20240301T100000Z", "Secret"));
    access.forget();
    open();
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::NotDetermined);
    EXPECT_FALSE(waitUntil([&] { return !store->calendars().empty(); }, second));
    EXPECT_TRUE(store->problems().empty());
    store->requestAccess([](bool, const std::optional<QString>&) {});
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Authorized);
    ASSERT_TRUE(waitForTitles({"Secret"}));

    const CalendarList listed = store->calendars();
    access.forget();
    EXPECT_TRUE(store->calendars().empty());
    EXPECT_TRUE(store->events(listed, utc(2024, 1, 1), utc(2025, 1, 1)).empty());
    // Nor is anything followed any more, once what was on its way has come.
    EXPECT_FALSE(waitUntil([] { return false; }, second / 2));
    const int before = notices;
    addEvent(work, event("two", "20240302T090000Z", "20240302T100000Z", "Later"));
    EXPECT_FALSE(waitUntil([&] { return notices > before; }, second / 2));
}

TEST_F(EvolutionStoreTest, listsTheCalendarsOfTheLastRunBeforeTheServiceAnswers) {
    addCalendar(QStringLiteral("Work"));
    open();
    ASSERT_TRUE(waitForCalendars({"Work"}));
    const StoreCalendar before = *store->calendars()[0];
    store.reset();
    open();
    ASSERT_EQ(store->calendars().size(), 1U);
    EXPECT_EQ(*store->calendars()[0], before);
}

TEST_F(EvolutionStoreTest, answersAQueryFromAnotherThread) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    addEvent(work, event("one", "20240301T090000Z", "20240301T100000Z", "First"));
    open();
    ASSERT_TRUE(waitForCalendars({"Work"}));
    std::size_t found = 0;
    std::thread([&] { found = events().size(); }).join();
    EXPECT_EQ(found, 1U);
}

TEST_F(EvolutionStoreTest, endsAtOnceWhateverItIsDoing) {
    ESource* work = addCalendar(QStringLiteral("Work"));
    const QDeadlineTimer patience(std::chrono::seconds(20));
    // On a busy machine until one attempt came as far as opening the calendar.
    for (unsigned attempt = 0; attempt < 20 || (!factory() && !patience.hasExpired()); ++attempt) {
        open();
        QThread::msleep((attempt % 20) * 5);
        QElapsedTimer timer;
        timer.start();
        store.reset();
        EXPECT_LT(timer.elapsed(), second);
    }
    EXPECT_TRUE(factory().has_value());
    EXPECT_NE(clientOf(work), nullptr);
}

} // namespace

} // namespace quillet::test
