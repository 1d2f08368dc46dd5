#include "results/OpenCalendarEvent.h"

#include "support/EventSamples.h"
#include "support/ExpectedLog.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

const QString progressKey = QStringLiteral("isProgressIndicatorOn");

/// Notes what the busy flag says while the script runs.
class WatchingRunner final : public ScriptRunner {
public:
    explicit WatchingRunner(const SettingsStore& settings)
        : settings_(settings) {}
    std::expected<void, QString> run(const Script& script) override {
        sources.append(script.source);
        requests.push_back(std::get<EventRequest>(script.request));
        wasBusy = boolForKey(settings_, progressKey);
        return answer;
    }

    QStringList sources;
    std::vector<EventRequest> requests;
    bool wasBusy = false;
    std::expected<void, QString> answer;

private:
    const SettingsStore& settings_;
};

class OpenCalendarEventTest : public testing::Test {
protected:
    OpenCalendarEventTest() {
        settings.setObject(progressKey, false);
        events.setContent(std::vector{
            test::timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 10), "work", "First"),
            test::timedEvent(utc(2024, 3, 5, 9), utc(2024, 3, 5, 10), "home", "Next"),
            test::timedEvent(utc(2024, 3, 6, 9), utc(2024, 3, 6, 10), "a%1\"b", "100% \\ \"x\"")});
        controller.awakeFromNib();
    }
    bool isBusy() const { return boolForKey(settings, progressKey); }

    test::MemorySettings settings;
    ListController<Event> events{eventIdentityHash, isSameEvent};
    WatchingRunner runner{settings};
    OpenCalendarEvent controller{{settings, events, runner}};
};

} // namespace

TEST_F(OpenCalendarEventTest, OneSelectedEventRunsTheScriptOnceCalendarBeforeEvent) {
    events.setSelectedRows({1});
    controller.openEventInCalendar();
    const QString expected =
        "                   tell application \"Calendar\"\n"
        "                   set vCalendar to (first calendar whose uid is \"home\")\n"
        "                   tell vCalendar\n"
        "                   set vEventInfo to (first event whose uid is \"Next@test\")\n"
        "                   activate\n"
        "                   switch view to day view\n"
        "                   show vEventInfo\n"
        "                   end tell\n"
        "                   end tell";
    EXPECT_EQ(runner.sources, QStringList{expected});
    EXPECT_EQ(runner.requests, std::vector{(EventRequest{"home", "Next@test"})});
    EXPECT_TRUE(runner.wasBusy);
    EXPECT_FALSE(isBusy());
}

TEST_F(OpenCalendarEventTest, IdentifiersStandInTheScriptAsTheyAre) {
    events.setSelectedRows({2});
    controller.openEventInCalendar();
    ASSERT_EQ(runner.sources.size(), 1);
    EXPECT_TRUE(runner.sources.front().contains("whose uid is \"a%1\"b\")\n"));
    EXPECT_TRUE(runner.sources.front().contains("whose uid is \"100% \\ \"x\"@test\")\n"));
}

TEST_F(OpenCalendarEventTest, TheRequestHoldsTheIdentifiersAsTheyAre) {
    const QString hostile =
        QStringLiteral("\\\" C:\\\r\n end tell\n$(x)") + QChar(QChar::Null) + u'\\';
    const Script script = showEventScript({hostile, hostile + "2"});
    EXPECT_EQ(std::get<EventRequest>(script.request), (EventRequest{hostile, hostile + "2"}));
}

TEST_F(OpenCalendarEventTest, AScriptWithoutAResultIsOnlyLogged) {
    events.setSelectedRows({0});
    runner.answer = std::unexpected(QStringLiteral("no calendar program"));
    const test::ExpectedLog log("it was an error");
    controller.openEventInCalendar();
    EXPECT_TRUE(runner.wasBusy);
    EXPECT_FALSE(isBusy());
}

TEST_F(OpenCalendarEventTest, WithoutASelectionTheBusyFlagIsSetAndStays) {
    controller.openEventInCalendar();
    EXPECT_TRUE(runner.sources.isEmpty());
    EXPECT_TRUE(isBusy());
}

TEST_F(OpenCalendarEventTest, WithTwoSelectedEventsTheBusyFlagIsSetAndStays) {
    events.setSelectedRows({0, 1});
    controller.openEventInCalendar();
    EXPECT_TRUE(runner.sources.isEmpty());
    EXPECT_TRUE(isBusy());
}

TEST_F(OpenCalendarEventTest, OpeningIsEnabledForNoneAndOneButNotForTwo) {
    EXPECT_TRUE(controller.isOpenInCalendarEnabled());
    events.setSelectedRows({1});
    EXPECT_TRUE(controller.isOpenInCalendarEnabled());
    events.setSelectedRows({0, 1});
    EXPECT_FALSE(controller.isOpenInCalendarEnabled());
}

TEST_F(OpenCalendarEventTest, EverySelectionChangeIsAnnouncedAlsoWhenTheAnswerStays) {
    int announced = 0;
    QObject::connect(&controller, &OpenCalendarEvent::isOpenInCalendarEnabledChanged,
                     [&] { ++announced; });
    events.setSelectedRows({0});
    events.setSelectedRows({1});
    events.setSelectedRows({0, 1, 2});
    EXPECT_EQ(announced, 3);
}

} // namespace quillet
