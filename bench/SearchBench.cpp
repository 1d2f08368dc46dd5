// A key typed in the search field over 100,000 events of a store in memory: what happens on the
// main thread until the list is narrowed, and the same with the totals that follow. The baseline
// reads the same texts once, unit by unit.

#include "support/EventSamples.h"
#include "support/FakeOutside.h"

#include <benchmark/benchmark.h>

namespace quillet {

namespace {

using test::utc;

constexpr int eventCount = 100'000;

/// Every event with texts of its own: a title of some 30 units, a location of some 20, and notes of
/// some 150 for every other one.
std::vector<Event> sampleEvents(const QString& letters) {
    std::vector<Event> events;
    const auto calendar = test::calendarNamed("work");
    for (int number = 0; number < eventCount; ++number) {
        EventDetails details;
        details.calendar = calendar;
        details.title = QStringLiteral("Project %1: weekly %2 review").arg(number).arg(letters);
        details.location = QStringLiteral("%1 4, floor %2").arg(letters).arg(number % 9);
        if (number % 2 == 0) {
            details.notes = QStringLiteral("Went through item %1 of the list. ").arg(number) +
                            (letters + QStringLiteral(" to be sent on Monday. ")).repeated(4);
        }
        details.eventIdentifier = QString::number(number);
        const Instant start = utc(2020, 1, 1) + std::chrono::minutes(20 * number);
        events.push_back({start, start + std::chrono::minutes(15), Instant(),
                          std::make_shared<const EventDetails>(std::move(details))});
    }
    return events;
}

struct Searching {
    explicit Searching(const QString& letters) {
        outside.settings.setObject("viewMode", 0);
        core.events.setContent(sampleEvents(letters));
        core.search.awakeFromNib();
    }
    void type(const QString& text) { core.search.setSearchText(text); }

    test::FakeOutside outside;
    Core core{outside.seams()};
};

/// Types `last` over `first` again and again; only `last` is timed, and what follows from it.
void typeOver(
    benchmark::State& state, Searching& searching, const char* first, const char* last,
    const std::function<void()>& follow = [] {}) {
    for (auto _ : state) {
        state.PauseTiming();
        searching.type(QString::fromUtf8(first));
        follow();
        state.ResumeTiming();
        searching.type(QString::fromUtf8(last));
        follow();
    }
    state.counters["found"] = static_cast<double>(searching.core.events.arrangedCount());
}

void keyTyped(benchmark::State& state, const char* letters, const char* first, const char* last) {
    Searching searching(QString::fromUtf8(letters));
    typeOver(state, searching, first, last);
}

void keyTypedOverATableSortedByTitle(benchmark::State& state) {
    Searching searching("Harbour Street");
    searching.core.events.setOrder([](const Event& left, const Event& right) {
        return left.details->title < right.details->title;
    });
    typeOver(state, searching, "", "r");
}

/// With the totals that follow the list. The fetch that a key starts waits on its queue.
void keyTypedAndTotals(benchmark::State& state) {
    Searching searching("Harbour Street");
    test::MemorySettings& settings = searching.outside.settings;
    settings.setObject("isCalendarAccessGranted", true);
    settings.setObject("filterStartDate", QVariant::fromValue(utc(2020, 1, 1)));
    settings.setObject("filterEndDate", QVariant::fromValue(utc(2023, 12, 30)));
    searching.core.eventsController.awakeFromNib();
    searching.outside.background.tasks.clear();
    typeOver(state, searching, "", "r", [&searching] {
        using enum EventsController::Aggregate;
        for (const auto name : {TotalDuration, TotalSelectedDuration, TotalDays}) {
            benchmark::DoNotOptimize(searching.core.eventsController.aggregate(name));
        }
    });
}

void readTexts(benchmark::State& state) {
    const std::vector<Event> events = sampleEvents("Harbour Street");
    for (auto _ : state) {
        unsigned sum = 0;
        for (const Event& event : events) {
            for (const QString& text :
                 {event.details->title, event.details->notes, event.details->location}) {
                for (const QChar unit : text) {
                    sum += unit.unicode();
                }
            }
        }
        benchmark::DoNotOptimize(sum);
    }
}

constexpr auto unit = benchmark::kMillisecond;
BENCHMARK(readTexts)->Unit(unit);
BENCHMARK_CAPTURE(keyTyped, nearlyAllFound, "Harbour Street", "", "r")->Unit(unit);
BENCHMARK_CAPTURE(keyTyped, fewFound, "Harbour Street", "9999", "99999")->Unit(unit);
BENCHMARK_CAPTURE(keyTyped, noneFound, "Harbour Street", "", "quarterly")->Unit(unit);
BENCHMARK_CAPTURE(keyTyped, oftenBegun, "Harbour Street", "", "sent on Friday")->Unit(unit);
BENCHMARK_CAPTURE(keyTyped, umlauts, "Über den Dächern", "", "dächer nicht")->Unit(unit);
BENCHMARK_CAPTURE(keyTyped, sharpS, "Große Straße", "", "strasse 7")->Unit(unit);
BENCHMARK_CAPTURE(keyTyped, japanese, "東京都港区の会議室", "", "会議室で")->Unit(unit);
BENCHMARK_CAPTURE(keyTyped, cleared, "Harbour Street", "r", "")->Unit(unit);
BENCHMARK(keyTypedOverATableSortedByTitle)->Unit(unit);
BENCHMARK(keyTypedAndTotals)->Unit(unit);

} // namespace

} // namespace quillet
