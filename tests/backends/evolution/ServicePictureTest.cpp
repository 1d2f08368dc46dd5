#include "backends/evolution/ServicePicture.h"

#include "backends/evolution/ServiceLimits.h"
#include "support/EventSamples.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <thread>

using namespace std::chrono_literals;

namespace quillet::test {

namespace {

CalendarState stateOf(const char* name, CalendarState::Condition condition, bool isSettled) {
    CalendarState state;
    state.calendar =
        std::make_shared<const StoreCalendar>(StoreCalendar{QString::fromLatin1(name), name, {}});
    state.condition = condition;
    state.isSettled = isSettled;
    return state;
}

ServicePicture pictureOf(std::vector<CalendarState> calendars) {
    return {ServicePicture::Service::Running, {}, std::move(calendars)};
}

CalendarList calendarsOf(const ServicePicture& picture) {
    CalendarList calendars;
    for (const CalendarState& state : picture.calendars) {
        calendars.push_back(state.calendar);
    }
    return calendars;
}

const ServicePicture unread = pictureOf({stateOf("a", CalendarState::Condition::BeingRead, false),
                                         stateOf("b", CalendarState::Condition::Fine, true)});

} // namespace

TEST(PictureBoardTest, aQueryWaitsForTheFirstReadingOfItsCalendars) {
    PictureBoard board(unread);
    std::thread reading([&board] {
        std::this_thread::sleep_for(100ms);
        board.hang(pictureOf({stateOf("a", CalendarState::Condition::Fine, true)}));
    });
    const auto shown = board.settled(calendarsOf(unread), 30s);
    reading.join();
    ASSERT_EQ(shown->calendars.size(), 1U);
    EXPECT_TRUE(shown->calendars[0].isSettled);
}

TEST(PictureBoardTest, aQueryWaitsForNoOtherCalendarAndForNoneThatIsGone) {
    const PictureBoard board(unread);
    QElapsedTimer timer;
    timer.start();
    (void)board.settled({unread.calendars[1].calendar, calendarNamed("gone")}, 30s);
    EXPECT_LT(timer.elapsed(), 5000);
}

TEST(PictureBoardTest, aServiceThatHangsIsWaitedForNoLongerThanSaid) {
    const PictureBoard board(unread);
    QElapsedTimer timer;
    timer.start();
    const auto shown = board.settled(calendarsOf(unread), 200ms);
    EXPECT_GE(timer.elapsed(), 190);
    EXPECT_LT(timer.elapsed(), 3000);
    EXPECT_FALSE(shown->calendars[0].isSettled);
}

TEST(RetryDelayTest, doublesUpToTheLongestAndBeginsAgainAfterWhatLasted) {
    ServiceLimits limits;
    limits.lasting = 0ms;
    RetryDelay delay(limits);
    std::vector<std::chrono::milliseconds> delays;
    for (int failure = 0; failure < 8; ++failure) {
        delays.push_back(delay.failed());
    }
    EXPECT_EQ(delays, (std::vector<std::chrono::milliseconds>{1s, 2s, 4s, 8s, 16s, 32s, 60s, 60s}));
    delay.succeeded();
    EXPECT_EQ(delay.failed(), 1s);
    EXPECT_EQ(delay.failed(), 2s);
}

TEST(RetryDelayTest, goesOnWithWhatComesAndGoesAtOnce) {
    RetryDelay delay{ServiceLimits()};
    EXPECT_EQ(delay.failed(), 1s);
    delay.succeeded();
    EXPECT_EQ(delay.failed(), 2s);
    delay.succeeded();
    EXPECT_EQ(delay.failed(), 4s);
}

} // namespace quillet::test
