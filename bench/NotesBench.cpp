// The notes of 100,000 events, each with notes, under headings of four items, and their number. The
// baseline writes the same finished parts through the same type.

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "results/EventNotesViewController.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <benchmark/benchmark.h>

namespace quillet {

namespace {

using test::utc;

constexpr int eventCount = 100'000;

EventList sampleEvents() {
    EventList events;
    const auto calendar = test::calendarNamed("Work");
    for (int number = 0; number < eventCount; ++number) {
        EventDetails details;
        details.calendar = calendar;
        details.title = QStringLiteral("Meeting %1 about \"plans\"").arg(number);
        details.location = QStringLiteral("Room %1").arg(number % 40);
        details.notes = QStringLiteral("Bring the notes\nof week %1 along").arg(number % 52);
        const Instant start = utc(2020, 1, 1) + std::chrono::minutes(21 * number);
        events.push_back({start, start + std::chrono::minutes(15), Instant(),
                          std::make_shared<const EventDetails>(std::move(details))});
    }
    return events;
}

struct Sample {
    Sample() {
        events.setContent(sampleEvents());
        controller.awakeFromNib();
    }

    test::MemorySettings settings;
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "Europe/Berlin"};
    IcuCalendarArithmetic calendar{"en_US", "Europe/Berlin", CalendarSystem::Gregorian};
    ListController<Event> events;
    EventNotesViewController controller{{settings, events, formats, calendar}};
};

Sample& sample() {
    static Sample shared;
    return shared;
}

void writeFinishedParts(benchmark::State& state) {
    const StyledText finished = sample().controller.notes();
    for (const auto _ : state) {
        StyledText copied;
        for (const StyledText::Part& part : finished.parts) {
            copied.parts.push_back({QString(part.text.constData(), part.text.size()), part.style});
        }
        benchmark::DoNotOptimize(copied);
    }
}

void notesOfAHundredThousandEvents(benchmark::State& state) {
    for (const auto _ : state) {
        benchmark::DoNotOptimize(sample().controller.notes());
        benchmark::DoNotOptimize(sample().controller.notesCount());
    }
}

constexpr auto unit = benchmark::kMillisecond;
BENCHMARK(writeFinishedParts)->Unit(unit);
BENCHMARK(notesOfAHundredThousandEvents)->Unit(unit);

} // namespace

} // namespace quillet
