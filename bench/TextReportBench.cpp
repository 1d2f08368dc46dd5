// The text report of 100,000 events in eight columns, wrapped. The baseline writes the same
// finished cells, read back out of that text, through the same string type: what formatting,
// wrapping and padding cost is the rest. The second baseline writes whole finished lines.

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/EventColumns.h"
#include "export/TextReportHeader.h"
#include "export/TextReportTable.h"
#include "platform/Settings.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"

#include <benchmark/benchmark.h>

namespace quillet {

namespace {

using test::utc;

constexpr int eventCount = 100'000;

/// Four years of events, of which every fourth has notes of several lines.
std::shared_ptr<const EventList> sampleEvents() {
    const auto calendars = {test::calendarNamed("Work"), test::calendarNamed("Home"),
                            test::calendarNamed("Clients")};
    auto events = std::make_shared<EventList>();
    for (int number = 0; number < eventCount; ++number) {
        EventDetails details;
        details.calendar = calendars.begin()[number % 3];
        details.title = QStringLiteral("Meeting %1 about 5% of \"plans\"").arg(number);
        details.location = QStringLiteral("Room %1").arg(number % 40);
        details.notes =
            number % 4 == 0 ? QStringLiteral("Bring the notes\nof last week along") : QString();
        const Instant start = utc(2020, 1, 1) + std::chrono::minutes(21 * number);
        events->push_back({start, start + std::chrono::minutes(15 + number % 240), Instant(),
                           std::make_shared<const EventDetails>(std::move(details))});
    }
    return events;
}

struct Sample {
    Sample() {
        content.billing.isMoneyOn = true;
        content.billing.singleRate = Decimal::fromInteger(90);
        content.hourlyRate = content.billing.singleRate;
        for (const char* identifier :
             {"calendar", "title", "date", "start", "end", "hours", "notes", "cost"}) {
            const EventColumn& column = eventColumn(QString::fromLatin1(identifier));
            content.columns.push_back({.identifier = QString::fromLatin1(identifier),
                                       .title = column.title.firstRunValue().toString(),
                                       .length = reportColumnLength(100)});
        }
        std::vector<std::size_t> rows(eventCount);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            rows[row] = row;
        }
        content.events = ExportedEvents(sampleEvents(), std::move(rows));
        content.wrapping = CellWrapping::On;
        content.hasSummaryRow = true;
        content.timeType = 1;
        for (const ReportHeaderLine& line : reportHeaderLines()) {
            if (&line.isWanted == &settings::isTXTTotalHours ||
                &line.isWanted == &settings::isTXTAverage ||
                &line.isWanted == &settings::isTXTDollars) {
                content.headerLines.push_back(&line);
            }
        }
        content.formats = &formats;
        content.calendar = &calendar;
    }

    IcuCalendarArithmetic calendar{"en_US", "Europe/Berlin", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "Europe/Berlin"};
    TextReportContent content;
};

const Sample& sample() {
    static const Sample shared;
    return shared;
}

void reportOfAHundredThousandEvents(benchmark::State& state) {
    for (const auto _ : state) {
        benchmark::DoNotOptimize(textReport(sample().content));
    }
}
BENCHMARK(reportOfAHundredThousandEvents)->Unit(benchmark::kMillisecond);

void finishedCellsWrittenAgain(benchmark::State& state) {
    const QString table = reportTable(sample().content).value_or(QString());
    const qsizetype width = sample().content.columns.front().length + 1;
    for (const auto _ : state) {
        QString text;
        qsizetype start = 0;
        while (start < table.size()) {
            const qsizetype length = table.at(start) == u'\n' ? 1 : width;
            text += QStringView(table).sliced(start, length);
            start += length;
        }
        benchmark::DoNotOptimize(text);
    }
    state.counters["characters"] = static_cast<double>(table.size());
}
BENCHMARK(finishedCellsWrittenAgain)->Unit(benchmark::kMillisecond);

void finishedLinesWrittenAgain(benchmark::State& state) {
    const QStringList lines =
        reportTable(sample().content).value_or(QString()).split(u'\n', Qt::SkipEmptyParts);
    for (const auto _ : state) {
        QString text;
        for (const QString& line : lines) {
            text += line;
            text += u'\n';
        }
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(finishedLinesWrittenAgain)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillet
