// A new period over 100,000 events that a store holds in memory: the fetch on the background queue
// and what the main thread does before it and with its result (arranging, totals), together and the
// longest go of the main thread. The baseline copies the same events and adds up their spans.

#include "support/CpuTimer.h"
#include "support/EventSamples.h"
#include "support/FakeOutside.h"

#include <benchmark/benchmark.h>

namespace quillet {

namespace {

using test::utc;

constexpr int eventCount = 100'000;

/// A whole core, with queues that run when they are told to.
struct Fetching {
    Fetching() {
        auto& settings = outside.settings;
        settings.setObject("isCalendarAccessGranted", true);
        settings.setObject("quickDatePeriod", 4);
        settings.setObject("filterStartDate", QVariant::fromValue(start));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2023, 12, 30, 23, 59, 59)));
        outside.store.storedCalendars = {test::calendarNamed("work")};
        const Event sample =
            test::timedEvent(start + std::chrono::hours(9), start + std::chrono::hours(10));
        for (int number = 0; number < eventCount; ++number) {
            Event event = sample;
            event.startDate += std::chrono::minutes(20 * number);
            event.endDate += std::chrono::minutes(20 * number);
            outside.store.storedEvents.push_back(event);
        }
        core.wake();
        core.finishLaunching();
        core.becomeActiveFirst();
        core.calendars.setSelected(0, true);
        outside.finish();
    }
    /// The same again, as a user's choice writes it.
    void choosePeriod() {
        for (const char* key : {"filterStartDate", "filterEndDate"}) {
            outside.settings.setObject(key, outside.settings.object(key));
        }
        flipBool(outside.settings, "datesChangedTrigger");
    }

    Instant start = utc(2020, 1, 1);
    test::FakeOutside outside{QStringLiteral("en_US"), QStringLiteral("Europe/Berlin")};
    Core core{outside.seams()};
};

void newPeriod(benchmark::State& state) {
    Fetching fetching;
    for (auto _ : state) {
        fetching.choosePeriod();
        fetching.outside.finish();
    }
}

/// What the main thread does in one go: with the change of the period, with the result of the
/// fetch, and with the totals that are read after each. The longest go of all, which no clock
/// leaves out.
void newPeriodOnTheMainThread(benchmark::State& state) {
    Fetching fetching;
    double longest = 0;
    const auto go = [&longest](const auto& work) {
        const test::CpuTimer timer;
        work();
        longest = std::max(longest, timer.milliseconds());
    };
    const auto readTotals = [&fetching] {
        for (const ResultField field : resultFields()) {
            benchmark::DoNotOptimize(fetching.core.eventResults.text(ResultsTab::AllEvents, field));
        }
    };
    for (auto _ : state) {
        go([&] { fetching.choosePeriod(); });
        go(readTotals);
        fetching.outside.background.runOne();
        go([&] { fetching.outside.main.runOne(); });
        go(readTotals);
        fetching.outside.finish();
    }
    state.counters["longest_ms"] = longest;
}

void copyAndAdd(benchmark::State& state) {
    const Fetching fetching;
    for (auto _ : state) {
        const EventList copy = fetching.outside.store.storedEvents;
        std::int64_t sum = 0;
        for (const Event& event : copy) {
            sum += (event.endDate - event.startDate).count();
        }
        benchmark::DoNotOptimize(sum);
    }
}

BENCHMARK(copyAndAdd)->Unit(benchmark::kMillisecond);
BENCHMARK(newPeriod)->Unit(benchmark::kMillisecond);
BENCHMARK(newPeriodOnTheMainThread)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillet
