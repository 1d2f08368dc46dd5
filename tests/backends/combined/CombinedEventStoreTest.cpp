#include "backends/combined/CombinedEventStore.h"
#include "support/EventSamples.h"
#include "support/ExpectedLog.h"
#include "support/Fakes.h"

#include <stdexcept>

namespace quillet::test {

namespace {

std::shared_ptr<const StoreCalendar> calendarNamed(const QString& name) {
    return std::make_shared<const StoreCalendar>(StoreCalendar{name, name, {}});
}

Event eventAt(const std::shared_ptr<const StoreCalendar>& calendar, int hour,
              const QString& title) {
    auto details = std::make_shared<EventDetails>();
    details->calendar = calendar;
    details->title = title;
    return {utc(2024, 3, 1, hour), utc(2024, 3, 1, hour + 1), {}, details};
}

class CombinedEventStoreTest : public testing::Test {
protected:
    CombinedEventStoreTest() {
        first.storedCalendars = {calendarNamed(QStringLiteral("a"))};
        second.storedCalendars = {calendarNamed(QStringLiteral("b"))};
        first.storedEvents = {eventAt(first.storedCalendars[0], 9, QStringLiteral("one")),
                              eventAt(first.storedCalendars[0], 11, QStringLiteral("three"))};
        second.storedEvents = {eventAt(second.storedCalendars[0], 10, QStringLiteral("two"))};
    }

    [[nodiscard]] QStringList titles() const {
        QStringList found;
        for (const Event& event :
             combined.events(combined.calendars(), utc(2024, 1, 1), utc(2025, 1, 1))) {
            found.append(event.details->title);
        }
        return found;
    }

    FakeEventStore first;
    FakeEventStore second;
    CombinedEventStore combined{{first, second}};
};

class FailingStore final : public EventStore {
public:
    [[nodiscard]] AuthorizationStatus authorizationStatus() const override {
        return AuthorizationStatus::Authorized;
    }
    void requestAccess(AccessCompletion /*completion*/) override {}
    [[nodiscard]] CalendarList calendars() const override { throw std::runtime_error("gone"); }
    [[nodiscard]] EventList events(const CalendarList& /*calendars*/, Instant /*from*/,
                                   Instant /*to*/) const override {
        throw std::runtime_error("gone");
    }
    [[nodiscard]] Observation observeChanges(std::function<void()> /*callback*/) override {
        return {};
    }
    [[nodiscard]] std::vector<StoreProblem> problems() const override {
        throw std::runtime_error("gone");
    }
};

TEST_F(CombinedEventStoreTest, listsTheCalendarsOfAllStoresInTheirOrder) {
    const CalendarList calendars = combined.calendars();
    ASSERT_EQ(calendars.size(), 2U);
    EXPECT_EQ(calendars[0]->title, QStringLiteral("a"));
    EXPECT_EQ(calendars[1]->title, QStringLiteral("b"));
}

TEST_F(CombinedEventStoreTest, mergesEventsInTheOrderOfDelivery) {
    EXPECT_EQ(titles(), QStringList({"one", "two", "three"}));
}

TEST_F(CombinedEventStoreTest, leavesOutAStoreThatIsClosed) {
    second.status = AuthorizationStatus::Denied;
    EXPECT_EQ(combined.authorizationStatus(), AuthorizationStatus::Authorized);
    EXPECT_EQ(combined.calendars().size(), 1U);
    EXPECT_EQ(titles(), QStringList({"one", "three"}));
    // Nor is it asked by somebody who still knows its calendars.
    EXPECT_TRUE(combined.events(second.storedCalendars, utc(2024, 1, 1), utc(2025, 1, 1)).empty());
    EXPECT_EQ(second.queries, 0);
}

TEST_F(CombinedEventStoreTest, countsTheSameEventInEachStoreAndOrdersEqualTimesByTitle) {
    second.storedEvents = {eventAt(second.storedCalendars[0], 9, QStringLiteral("a half of it")),
                           eventAt(second.storedCalendars[0], 9, QStringLiteral("one"))};
    EXPECT_EQ(titles(), QStringList({"a half of it", "one", "one", "three"}));
}

TEST_F(CombinedEventStoreTest, losesOnlyTheCalendarsOfAStoreThatFails) {
    FailingStore failing;
    const CombinedEventStore withFailure{{failing, first}};
    const ExpectedLog forCalendars(QStringLiteral("a calendar store failed: gone"));
    const ExpectedLog forEvents(QStringLiteral("a calendar store failed: gone"));
    const CalendarList calendars = withFailure.calendars();
    EXPECT_EQ(calendars.size(), 1U);
    EXPECT_EQ(withFailure.events(calendars, utc(2024, 1, 1), utc(2025, 1, 1)).size(), 2U);
    const ExpectedLog forProblems(QStringLiteral("a calendar store failed: gone"));
    first.storedProblems = {{QStringLiteral("a"), QStringLiteral("broken")}};
    EXPECT_EQ(withFailure.problems().size(), 1U);
}

TEST_F(CombinedEventStoreTest, answersTheBestStatusOfItsStores) {
    using enum AuthorizationStatus;
    first.status = Restricted;
    second.status = Restricted;
    EXPECT_EQ(combined.authorizationStatus(), Restricted);
    second.status = Denied;
    EXPECT_EQ(combined.authorizationStatus(), Denied);
    first.status = NotDetermined;
    EXPECT_EQ(combined.authorizationStatus(), NotDetermined);
    second.status = Authorized;
    EXPECT_EQ(combined.authorizationStatus(), Authorized);
}

TEST_F(CombinedEventStoreTest, completesOnceWhenAllStoresHaveAnswered) {
    first.status = AuthorizationStatus::NotDetermined;
    second.status = AuthorizationStatus::NotDetermined;
    std::vector<bool> answers;
    combined.requestAccess(
        [&](bool isGranted, const std::optional<QString>&) { answers.push_back(isGranted); });
    first.requests.at(0)(false, std::nullopt);
    EXPECT_TRUE(answers.empty());
    second.requests.at(0)(true, std::nullopt);
    EXPECT_EQ(answers, std::vector<bool>{true});
}

TEST_F(CombinedEventStoreTest, isGrantedWhenAnyStoreIsAndTellsTheFirstError) {
    first.status = AuthorizationStatus::NotDetermined;
    second.status = AuthorizationStatus::NotDetermined;
    std::vector<std::pair<bool, std::optional<QString>>> answers;
    combined.requestAccess([&](bool isGranted, const std::optional<QString>& error) {
        answers.emplace_back(isGranted, error);
    });
    first.requests.at(0)(true, QStringLiteral("disk full"));
    second.requests.at(0)(false, QStringLiteral("no service"));
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_TRUE(answers[0].first);
    EXPECT_EQ(answers[0].second, QStringLiteral("disk full"));
}

TEST_F(CombinedEventStoreTest, asksOnlyStoresThatHaveNoAnswerYet) {
    first.status = AuthorizationStatus::Denied;
    second.status = AuthorizationStatus::NotDetermined;
    combined.requestAccess([](bool, const std::optional<QString>&) {});
    EXPECT_TRUE(first.requests.empty());
    EXPECT_EQ(second.requests.size(), 1U);
}

TEST_F(CombinedEventStoreTest, answersAtOnceWhatAllStoresHaveAnswered) {
    std::vector<bool> answers;
    const auto note = [&](bool isGranted, const std::optional<QString>&) {
        answers.push_back(isGranted);
    };
    first.status = AuthorizationStatus::Denied;
    combined.requestAccess(note);
    second.status = AuthorizationStatus::Restricted;
    combined.requestAccess(note);
    EXPECT_EQ(answers, (std::vector<bool>{true, false}));
}

TEST_F(CombinedEventStoreTest, tellsOfTheChangesOfEveryStoreUntilTheObservationEnds) {
    int notices = 0;
    Observation observation = combined.observeChanges([&] { ++notices; });
    first.observers.notify();
    second.observers.notify();
    EXPECT_EQ(notices, 2);
    observation.reset();
    first.observers.notify();
    EXPECT_EQ(notices, 2);
}

TEST_F(CombinedEventStoreTest, collectsTheProblemsOfAllStores) {
    first.storedProblems = {{QStringLiteral("a"), QStringLiteral("broken")}};
    second.storedProblems = {{QStringLiteral("b"), QStringLiteral("gone")}};
    EXPECT_EQ(combined.problems().size(), 2U);
}

} // namespace

} // namespace quillet::test
