#include "platform/ZoneRules.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace quillet {

namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::sys_seconds;

} // namespace

TEST(ZoneRulesTest, TellTheZonesOwnOffsetsOverTwoCenturies) {
    for (const char* name : {"Europe/Berlin", "America/New_York", "America/Santiago", "Asia/Gaza",
                             "Asia/Kolkata", "Australia/Lord_Howe", "Africa/Casablanca",
                             "America/Sao_Paulo", "Pacific/Apia", "Europe/Dublin", "UTC"}) {
        const QTimeZone zone(name);
        const auto rules = ZoneRules::fromTimeZone(zone);
        const sys_seconds last = sys_days(std::chrono::year(2150) / 1 / 1);
        for (sys_seconds at = sys_days(std::chrono::year(1950) / 1 / 1); at < last;
             at += days(9) + hours(7)) {
            const auto offset = seconds(zone.offsetFromUtc(
                QDateTime::fromSecsSinceEpoch(at.time_since_epoch().count(), Qt::UTC)));
            ASSERT_EQ(rules->toLocal(at).time_since_epoch() - at.time_since_epoch(), offset)
                << name << " " << at.time_since_epoch().count();
        }
    }
}

TEST(ZoneRulesTest, HoldWithinTheirReachAndLeaveTheRestToOthers) {
    const sys_seconds first = sys_days(std::chrono::year(2020) / 3 / 29) + hours(1);
    const sys_seconds end = sys_days(std::chrono::year(2020) / 10 / 25) + hours(1);
    const ZoneRules own(seconds(3600), {{first, hours(5)}, {end, hours(1)}});
    const auto berlin = ZoneRules::fromTimeZone(QTimeZone("Europe/Berlin"));
    const auto both = own.within({first, end}, *berlin);
    EXPECT_EQ(both->offsetAt(first - days(300)), hours(2));
    EXPECT_EQ(both->offsetAt(first - seconds(1)), hours(1));
    EXPECT_EQ(both->offsetAt(first), hours(5));
    EXPECT_EQ(both->offsetAt(end - seconds(1)), hours(5));
    EXPECT_EQ(both->offsetAt(end), hours(1));
    EXPECT_EQ(both->offsetAt(end + days(300)), hours(2));
    EXPECT_EQ(own.within({first, first}, *berlin)->offsetAt(first + days(1)), hours(2));
    EXPECT_EQ(own.within({first, std::nullopt}, *berlin)->offsetAt(end + days(300)), hours(1));
}

TEST(ZoneRulesTest, TheFirstInstantOfADayWithoutAMidnightIsThatOfTheJump) {
    const auto rules = ZoneRules::fromTimeZone(QTimeZone("America/Havana"));
    const LocalSeconds midnight = std::chrono::local_days(std::chrono::year(2024) / 3 / 10);
    EXPECT_EQ(rules->firstInstantFrom(midnight),
              sys_days(std::chrono::year(2024) / 3 / 10) + hours(5));
    EXPECT_EQ(rules->firstInstantFrom(midnight + seconds(1800)), rules->firstInstantFrom(midnight));
    EXPECT_EQ(rules->firstInstantFrom(midnight + days(1)),
              sys_days(std::chrono::year(2024) / 3 / 11) + hours(4));
}

TEST(ZoneRulesTest, AZoneThatIsNoneIsUniversalTime) {
    EXPECT_EQ(ZoneRules::fromTimeZone(QTimeZone())->offsetAt(sys_days()), seconds(0));
}

TEST(ZoneRulesTest, EveryInstantButARepeatedOneComesBack) {
    const auto rules = ZoneRules::fromTimeZone(QTimeZone("Europe/Berlin"));
    const sys_seconds first = sys_days(std::chrono::year(2044) / 1 / 1);
    int repeated = 0;
    for (sys_seconds at = first; at < first + days(366); at += hours(1)) {
        repeated += rules->toInstant(rules->toLocal(at)) == at ? 0 : 1;
    }
    EXPECT_EQ(repeated, 1) << "the hour that the clocks repeat in autumn";
}

} // namespace quillet
