#include "platform/SystemZoneWatch.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class SystemZoneWatchTest : public testing::Test {
protected:
    SystemZoneWatchTest() {
        observation = zone->observe([this](const ZoneRules& rules) {
            ++notices;
            former = &rules;
        });
    }

    /// The watch needs an application; the platform's tests have none of their own.
    int argumentCount = 0;
    std::unique_ptr<QCoreApplication> application =
        QCoreApplication::instance() == nullptr
            ? std::make_unique<QCoreApplication>(argumentCount, nullptr)
            : nullptr;
    QTimeZone system{"Europe/Berlin"};
    std::shared_ptr<UserTimeZone> zone = std::make_shared<UserTimeZone>(QTimeZone("Europe/Berlin"));
    int notices = 0;
    const ZoneRules* former = nullptr;
    Observation observation;
    SystemZoneWatch watch{zone, [this] { return system; }};
};

} // namespace

TEST_F(SystemZoneWatchTest, AZoneThatStaysIsNoChange) {
    watch.check();
    EXPECT_EQ(notices, 0);
}

TEST_F(SystemZoneWatchTest, AnotherZoneIsFollowedAndToldOnce) {
    const ZoneRules& berlin = zone->rules();
    system = QTimeZone("Asia/Tokyo");
    watch.check();
    watch.check();
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(former, &berlin);
    EXPECT_EQ(zone->zone().id(), "Asia/Tokyo");
    const auto noon = std::chrono::sys_days(std::chrono::year(2024) / 3 / 1);
    EXPECT_EQ(zone->rules().offsetAt(noon), std::chrono::hours(9));
    EXPECT_EQ(former->offsetAt(noon), std::chrono::hours(1));
}

TEST_F(SystemZoneWatchTest, ASystemWithoutAZoneForAMomentChangesNothing) {
    system = QTimeZone();
    watch.check();
    EXPECT_EQ(notices, 0);
    EXPECT_EQ(zone->zone().id(), "Europe/Berlin");
}

} // namespace quillet
