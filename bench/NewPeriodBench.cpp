// A new period over 100,000 events that a store holds in memory: the fetch on the background queue
// and what the main thread does with its result (arranging, totals), together and the main thread's
// part alone. The baseline copies the same events and adds up their spans.

#include "backends/icu/IcuCalendarArithmetic.h"
#include "eventdata/EventsController.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <benchmark/benchmark.h>

namespace quillet {

namespace {

using test::utc;

constexpr int eventCount = 100'000;

/// Everything that a fetch passes through, with queues that run when they are told to.
struct Fetching {
    Fetching() {
        settings.setObject("isCalendarAccessGranted", true);
        settings.setObject("viewMode", 0);
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2020, 1, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2023, 12, 30, 23, 59, 59)));
        store.storedCalendars = {test::calendarNamed("work")};
        const Event sample = test::timedEvent(utc(2020, 1, 1, 9), utc(2020, 1, 1, 10));
        for (int number = 0; number < eventCount; ++number) {
            Event event = sample;
            event.startDate += std::chrono::minutes(20 * number);
            event.endDate += std::chrono::minutes(20 * number);
            store.storedEvents.push_back(event);
        }
        CalendarRecord record;
        record.calendarIdentifier = "work";
        record.isSelected = true;
        records.setContent(std::vector{record});
        controller.awakeFromNib();
        finish();
    }
    void finish() {
        while (background.runOne() || main.runOne()) {
        }
    }

    test::MemorySettings settings;
    test::FakeEventStore store;
    test::FakeAlerts alerts;
    test::FakeQueue background;
    test::FakeQueue main;
    IcuCalendarArithmetic calendar{"en_US", "Europe/Berlin", CalendarSystem::Gregorian};
    BillingSettingsSource billing{settings, calendar};
    EventKitManager manager{store, settings, alerts, main};
    ListController<Event> events{eventIdentityHash, isSameEvent};
    ListController<CalendarRecord> records;
    EventsController controller{
        {manager, settings, billing, calendar, events, records, background, main}};
};

void newPeriod(benchmark::State& state) {
    Fetching fetching;
    for (auto _ : state) {
        flipBool(fetching.settings, "datesChangedTrigger");
        fetching.finish();
    }
}

void newPeriodOnTheMainThread(benchmark::State& state) {
    Fetching fetching;
    for (auto _ : state) {
        state.PauseTiming();
        flipBool(fetching.settings, "datesChangedTrigger");
        fetching.background.runOne();
        state.ResumeTiming();
        fetching.main.runOne();
        state.PauseTiming();
        fetching.finish();
        state.ResumeTiming();
    }
}

void copyAndAdd(benchmark::State& state) {
    const Fetching fetching;
    for (auto _ : state) {
        const EventList copy = fetching.store.storedEvents;
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
