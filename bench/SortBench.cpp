// Sorting 100,000 events by a column, the first time and again, beside sorting 100,000 numbers.

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuCollator.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/EventOrder.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <benchmark/benchmark.h>

#include <random>

namespace quillet {

namespace {

using test::utc;

constexpr unsigned eventCount = 100'000;

/// Events with a title of their own each, in few places, of four years.
struct List {
    List() {
        settings.setObject("isDollarsOn", true);
        settings.setObject("isSingleRate", true);
        settings.setObject("hourlyRate", 80);
        std::mt19937 random(7);
        std::vector<Event> content;
        for (unsigned number = 0; number < eventCount; ++number) {
            EventDetails details;
            details.calendar = work;
            details.title = QStringLiteral("Meeting %1 with a name").arg(random());
            details.location = QStringLiteral("Room %1").arg(random() % 40);
            const Instant start = utc(2020, 1, 1) + std::chrono::minutes(20 * number);
            content.push_back({start, start + std::chrono::minutes(random() % 480), Instant(),
                               std::make_shared<const EventDetails>(std::move(details))});
        }
        events.setContent(std::move(content));
    }

    std::shared_ptr<const StoreCalendar> work = test::calendarNamed("work");
    test::MemorySettings settings;
    IcuCalendarArithmetic calendar{"en_US", "Europe/Berlin", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "Europe/Berlin"};
    BillingSettingsSource billing{settings, calendar};
    EventFields fields{billing, formats, calendar, calendar};
    IcuCollator collator{"en_US"};
    ListController<Event> events;
};

void firstSort(benchmark::State& state, const char* column) {
    List list;
    for (auto _ : state) {
        EventOrder order(list.fields, list.calendar, list.collator);
        list.events.setSorter(order.sorter(column, SortDirection::Ascending));
        state.PauseTiming();
        list.events.setSorter({});
        state.ResumeTiming();
    }
}

void sortAgain(benchmark::State& state, const char* column) {
    List list;
    EventOrder order(list.fields, list.calendar, list.collator);
    list.events.setSorter(order.sorter(column, SortDirection::Ascending));
    for (auto _ : state) {
        list.events.setSorter(order.sorter(column, SortDirection::Descending));
    }
}

void sortNumbers(benchmark::State& state) {
    std::mt19937 random(7);
    std::vector<std::pair<double, std::size_t>> numbers;
    for (unsigned number = 0; number < eventCount; ++number) {
        numbers.emplace_back(random(), number);
    }
    for (auto _ : state) {
        auto copy = numbers;
        std::ranges::stable_sort(copy);
        benchmark::DoNotOptimize(copy.data());
    }
}

BENCHMARK(sortNumbers)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstSort, cost, "cost")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstSort, start, "start")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstSort, endWeekday, "endWeekday")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstSort, title, "title")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstSort, location, "location")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sortAgain, title, "title")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sortAgain, location, "location")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillet
