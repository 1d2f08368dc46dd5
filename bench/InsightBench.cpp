// The summary, the week grid, the picture, the checks and the rounded bill over 100,000 events of
// four years in ten calendars. The baseline is a plain loop over the same events that adds up the
// same minutes and costs.

#include "backends/icu/IcuCalendarArithmetic.h"
#include "eventdata/EventFigures.h"
#include "insight/Findings.h"
#include "insight/Picture.h"
#include "insight/RoundedBilling.h"
#include "insight/Summary.h"
#include "insight/WeekGrid.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"

#include <benchmark/benchmark.h>

#include <unordered_map>

namespace quillet {

namespace {

using test::utc;

constexpr int eventCount = 100'000;
constexpr int calendarCount = 10;
constexpr int titleCount = 500;

/// 68 events a day, 45 minutes each and some over midnight, most of them at once with others.
struct Listed {
    Listed() {
        billing.isMoneyOn = true;
        billing.isMoneyFromHours = true;
        billing.isSingleRate = false;
        billing.periodStart = utc(2020, 1, 1);
        billing.periodEnd = utc(2023, 12, 31);
        std::vector<std::shared_ptr<const EventDetails>> details;
        for (int number = 0; number < calendarCount * titleCount; ++number) {
            const QString identifier = QStringLiteral("calendar %1").arg(number % calendarCount);
            billing.calendarRates.insert(identifier, Decimal::fromInteger(50 + number % 7));
            details.push_back(
                test::timedEvent({}, {}, identifier, QStringLiteral("Title %1").arg(number))
                    .details);
        }
        shareCalendars(details);
        for (int number = 0; number < eventCount; ++number) {
            const Instant start = billing.periodStart + std::chrono::minutes(21 * number);
            const int minutes = number % 50 == 0 ? 300 : 15 + number % 45;
            events.push_back({start, start + std::chrono::minutes(minutes), Instant(),
                              details[static_cast<std::size_t>(number) % details.size()]});
        }
    }
    [[nodiscard]] InsightInput input() const {
        return {.events = events, .billing = billing, .calendar = calendar};
    }

    IcuCalendarArithmetic calendar{"en_US", "Europe/Berlin", CalendarSystem::Gregorian};
    BillingSettings billing;
    EventList events;

private:
    /// A store has one calendar object for all of its events.
    static void shareCalendars(std::vector<std::shared_ptr<const EventDetails>>& details) {
        for (std::size_t number = calendarCount; number < details.size(); ++number) {
            auto shared = std::make_shared<EventDetails>(*details[number]);
            shared->calendar = details[number % calendarCount]->calendar;
            details[number] = std::move(shared);
        }
    }
};

const Listed& listed() {
    static const Listed events;
    return events;
}

void plainSums(benchmark::State& state) {
    const Listed& all = listed();
    for (auto _ : state) {
        std::int64_t minutes = 0;
        Decimal cost;
        for (const Event& event : all.events) {
            const std::int64_t ofEvent = billableMinutes(event, all.billing);
            minutes += ofEvent;
            cost += billableCost(ofEvent, billableRate(event, all.billing), all.billing)
                        .value_or(Decimal());
        }
        benchmark::DoNotOptimize(minutes);
        benchmark::DoNotOptimize(cost);
    }
}

void summaryByCalendarAndTitle(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            summaryOf(listed().input(), SummaryKey::Calendar, SummaryKey::Title));
    }
}

void summaryByMonthAndDay(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(summaryOf(listed().input(), SummaryKey::Month, SummaryKey::Day));
    }
}

void weekGrid(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(weekGridOf(listed().input(), GridRows::Calendars));
    }
}

void picture(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(pictureOf(listed().input()));
    }
}

/// Most events overlap others, and a third of them are at night.
void findings(benchmark::State& state) {
    const FindingRules rules;
    for (auto _ : state) {
        benchmark::DoNotOptimize(findingsOf(
            {.insight = listed().input(), .rules = rules, .holidays = {}, .problems = {}}));
    }
}

void roundedBill(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            billedTotalsOf(listed().input(), {.scope = RoundingScope::DayAndTitle}));
    }
}

BENCHMARK(plainSums)->Unit(benchmark::kMillisecond);
BENCHMARK(summaryByCalendarAndTitle)->Unit(benchmark::kMillisecond);
BENCHMARK(summaryByMonthAndDay)->Unit(benchmark::kMillisecond);
BENCHMARK(weekGrid)->Unit(benchmark::kMillisecond);
BENCHMARK(picture)->Unit(benchmark::kMillisecond);
BENCHMARK(findings)->Unit(benchmark::kMillisecond);
BENCHMARK(roundedBill)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillet
