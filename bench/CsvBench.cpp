// The CSV and TSV texts and the clipboard rows of 100,000 events in sixteen columns. The baseline
// writes the same finished fields, read back out of that text, through the same string type: what
// formatting costs is the rest. `CsvBench --benchmark_filter=none` with QUILLET_CSV_FILE set saves
// the text, so that another program can be timed at writing the same fields.

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/EventColumns.h"
#include "eventtable/RowsText.h"
#include "export/DelimitedText.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QFile>

#include <benchmark/benchmark.h>

namespace quillet {

namespace {

using test::utc;

constexpr int eventCount = 100'000;

/// Four years of events with lengths and texts that differ.
EventList sampleEvents() {
    EventList events;
    for (int number = 0; number < eventCount; ++number) {
        EventDetails details;
        details.calendar = test::calendarNamed(QStringLiteral("work%1").arg(number % 3));
        details.title = QStringLiteral("Meeting %1 about \"plans\"").arg(number);
        details.location = QStringLiteral("Room %1").arg(number % 40);
        details.notes =
            number % 4 == 0 ? QStringLiteral("Bring the notes\nof last week") : QString();
        details.eventIdentifier = QStringLiteral("event-%1").arg(number);
        const Instant start = utc(2020, 1, 1) + std::chrono::minutes(21 * number);
        events.push_back({start, start + std::chrono::minutes(15 + number % 240), Instant(),
                          std::make_shared<const EventDetails>(std::move(details))});
    }
    return events;
}

struct Sample {
    Sample() {
        settings.setObject("isDollarsOn", true);
        settings.setObject("isSingleRate", true);
        settings.setObject("hourlyRate", 90);
        for (const EventColumn& column : eventColumns()) {
            table.columns.push_back(std::make_unique<test::FakeColumn>(
                QString::fromLatin1(column.identifier), QString(), 100.0));
            columns.push_back(
                {QString::fromLatin1(column.identifier), QString::fromLatin1(column.defaultTitle)});
        }
    }
    [[nodiscard]] QString text(QChar separator) const {
        DelimitedText csv(columns, {}, fields, separator);
        csv.appendHeader();
        for (const Event& event : events) {
            csv.appendEvent(event);
        }
        return csv.text();
    }

    test::MemorySettings settings;
    IcuCalendarArithmetic calendar{"en_US", "Europe/Berlin", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "Europe/Berlin"};
    BillingSettingsSource billing{settings, calendar};
    EventFields fields{billing, formats, calendar, calendar};
    std::vector<ExportColumn> columns;
    test::FakeTable table;
    EventList events = sampleEvents();
};

Sample& sample() {
    static Sample shared;
    return shared;
}

void csvOfAHundredThousandEvents(benchmark::State& state) {
    for (const auto _ : state) {
        benchmark::DoNotOptimize(sample().text(u','));
    }
}
BENCHMARK(csvOfAHundredThousandEvents)->Unit(benchmark::kMillisecond);

void tsvOfAHundredThousandEvents(benchmark::State& state) {
    for (const auto _ : state) {
        benchmark::DoNotOptimize(sample().text(u'\t'));
    }
}
BENCHMARK(tsvOfAHundredThousandEvents)->Unit(benchmark::kMillisecond);

void copiedRowsOfAHundredThousandEvents(benchmark::State& state) {
    for (const auto _ : state) {
        benchmark::DoNotOptimize(rowsText(sample().events, sample().table, sample().fields));
    }
}
BENCHMARK(copiedRowsOfAHundredThousandEvents)->Unit(benchmark::kMillisecond);

void finishedFieldsWrittenAgain(benchmark::State& state) {
    const QStringList fields = sample().text(u',').split(u',');
    for (const auto _ : state) {
        QString text;
        for (const QString& field : fields) {
            text += field;
            text += u',';
        }
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(finishedFieldsWrittenAgain)->Unit(benchmark::kMillisecond);

[[maybe_unused]] const bool isSaved = [] {
    const QString path = qEnvironmentVariable("QUILLET_CSV_FILE");
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::WriteOnly) &&
           file.write(sample().text(u',').toUtf8()) > 0;
}();

} // namespace

} // namespace quillet
