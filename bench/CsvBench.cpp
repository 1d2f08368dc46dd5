// The CSV and TSV texts and the clipboard rows of 100,000 events in sixteen columns. One baseline
// is Python's csv module writing the same finished fields, which it read back out of that text
// before; it quotes all fields, as that text does, or those alone that need it, whichever is
// faster. The other one writes the finished fields through the same string type: what formatting
// costs is the rest.

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/ColumnTable.h"
#include "eventtable/RowsText.h"
#include "export/DelimitedText.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QProcess>
#include <QTemporaryFile>

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
            columns.push_back(
                {QString::fromLatin1(column.identifier), column.title.firstRunValue().toString()});
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
    ColumnTable table{settings};
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

/// Prints how many seconds the writing alone took.
const QString pythonsWriting = QStringLiteral(R"(
import csv, io, sys, time
separator = sys.argv[2]
with open(sys.argv[1], encoding="utf-8", newline="") as file:
    rows = list(csv.reader(file, delimiter=separator))
def seconds(quoting):
    text = io.StringIO(newline="")
    start = time.perf_counter()
    csv.writer(text, delimiter=separator, quoting=quoting, lineterminator="\n").writerows(rows)
    return time.perf_counter() - start
print(min(seconds(quoting) for quoting in (csv.QUOTE_ALL, csv.QUOTE_MINIMAL)))
)");

void pythonsCsvModule(benchmark::State& state, QChar separator) {
    QTemporaryFile file;
    const QByteArray text = sample().text(separator).toUtf8();
    if (!file.open() || file.write(text) != text.size() || !file.flush()) {
        state.SkipWithError("the text could not be written");
        return;
    }
    for (const auto _ : state) {
        QProcess python;
        python.start(QStringLiteral("python3"), {"-c", pythonsWriting, file.fileName(), separator});
        bool isTimed = false;
        if (python.waitForFinished(-1) && python.exitCode() == 0) {
            state.SetIterationTime(python.readAllStandardOutput().trimmed().toDouble(&isTimed));
        }
        if (!isTimed) {
            state.SkipWithError("python3 did not run");
            return;
        }
    }
}
BENCHMARK_CAPTURE(pythonsCsvModule, csv, u',')->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(pythonsCsvModule, tsv, u'\t')->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace

} // namespace quillet
