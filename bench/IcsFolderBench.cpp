// The calendar store over generated files, each part beside bare libical reading and parsing the
// same files on one thread.

#include "BareLibical.h"
#include "backends/icsfolder/IcsFolderStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>

namespace {

using namespace quillet;

constexpr int fileCount = 20'000;
constexpr int bigFileEvents = 100'000;
constexpr int seriesCount = 500;

Instant utc(int year, unsigned month, unsigned day) {
    return std::chrono::sys_days(std::chrono::year(year) / std::chrono::month(month) /
                                 std::chrono::day(day));
}

QByteArray eventText(int number) {
    const QDate day = QDate(2020, 1, 1).addDays(number % 1460);
    const QByteArray date = day.toString(QStringLiteral("yyyyMMdd")).toLatin1();
    const QByteArray id = QByteArray::number(number);
    const QByteArray hour = QByteArray::number(10 + number % 8);
    return "BEGIN:VEVENT\r\nUID:" + id +
           "@example.org\r\nDTSTAMP:20240101T000000Z\r\nSUMMARY:Meeting " + id +
           " with the client\r\nLOCATION:Room " + QByteArray::number(number % 20) +
           "\r\nDESCRIPTION:Agenda and minutes\\nof meeting " + id +
           "\r\nDTSTART;TZID=Europe/Berlin:" + date + "T" + hour +
           "0000\r\nDTEND;TZID=Europe/Berlin:" + date + "T" + hour +
           "4500\r\nSEQUENCE:1\r\nTRANSP:OPAQUE\r\nEND:VEVENT\r\n";
}

QByteArray inCalendar(const QByteArray& events) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//example//bench//EN\r\n" + events +
           "END:VCALENDAR\r\n";
}

/// A root folder with one kind of calendar in it, made once for all benchmarks.
class Library {
public:
    explicit Library(const std::function<void(const Library&)>& fill) { fill(*this); }
    void write(const QString& name, const QByteArray& content) const {
        const QString path = rootPath() + u'/' + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("cannot write the data");
        }
    }
    [[nodiscard]] QString rootPath() const { return folder_.filePath(QStringLiteral("root")); }
    [[nodiscard]] QString statePath() const { return folder_.filePath(QStringLiteral("state")); }

private:
    QTemporaryDir folder_;
};

const Library& manyFiles() {
    static const Library library([](const Library& self) {
        for (int number = 0; number < fileCount; ++number) {
            self.write(QStringLiteral("work/%1.ics").arg(number), inCalendar(eventText(number)));
        }
    });
    return library;
}

const Library& bigFile() {
    static const Library library([](const Library& self) {
        QByteArray events;
        for (int number = 0; number < bigFileEvents; ++number) {
            events += eventText(number);
        }
        self.write(QStringLiteral("big.ics"), inCalendar(events));
    });
    return library;
}

const Library& manySeries() {
    static const Library library([](const Library& self) {
        QByteArray events;
        for (int number = 0; number < seriesCount; ++number) {
            const QByteArray rule = number % 2 == 0 ? "FREQ=WEEKLY;BYDAY=MO,WE,FR" : "FREQ=DAILY";
            events += eventText(number % 7)
                          .replace("UID:", "UID:s" + QByteArray::number(number) + "-")
                          .replace("SEQUENCE:1", "RRULE:" + rule);
        }
        self.write(QStringLiteral("series.ics"), inCalendar(events));
    });
    return library;
}

/// A store whose first load has ended.
class LoadedStore {
public:
    explicit LoadedStore(const Library& library)
        : access_(library.statePath(), [](const CalendarAccess::Answer& answer) { answer(true); }) {
        access_.request([](bool, const std::optional<QString>&) {});
        store_ = std::make_unique<IcsFolderStore>(library.rootPath(), access_,
                                                  QTimeZone("Europe/Berlin"));
        observation_ = store_->observeChanges([this] { ++notices; });
        (void)query(utc(2020, 1, 1), utc(2020, 1, 2));
    }
    [[nodiscard]] EventList query(Instant from, Instant to) const {
        return store_->events(store_->calendars(), from, to);
    }

    int notices = 0;

private:
    CalendarAccess access_;
    std::unique_ptr<IcsFolderStore> store_;
    Observation observation_;
};

void coldLoad(benchmark::State& state, const Library& (*library)()) {
    library();
    for (auto _ : state) {
        const LoadedStore store(library());
        benchmark::DoNotOptimize(&store);
    }
}

void bareLibical(benchmark::State& state, const Library& (*library)()) {
    const QDir root(library().rootPath());
    for (auto _ : state) {
        bench::parseFolderWithBareLibical(root.path());
        bench::parseFolderWithBareLibical(root.filePath(QStringLiteral("work")));
    }
}

/// The occurrences that bare libical finds of the same series before the same end. Starts that do
/// not fit their rules are not among them.
void seriesWithBareLibical(benchmark::State& state) {
    const icaltimetype end = icaltime_from_string("20240101T000000");
    icalcomponent* calendar =
        bench::parsedWithBareLibical(manySeries().rootPath() + QStringLiteral("/series.ics"));
    std::size_t count = 0;
    for (auto _ : state) {
        count = 0;
        for (icalcomponent* event =
                 icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT);
             event != nullptr;
             event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT)) {
            count += bench::occurrencesWithBareLibical(event, end);
        }
    }
    icalcomponent_free(calendar);
    state.counters["events"] = static_cast<double>(count);
}

void query(benchmark::State& state, const Library& (*library)()) {
    const LoadedStore store(library());
    std::size_t count = 0;
    for (auto _ : state) {
        count = store.query(utc(2020, 1, 1), utc(2024, 1, 1)).size();
    }
    state.counters["events"] = static_cast<double>(count);
}

/// The processor time of all threads from one changed file to its notice. The waiting that gathers
/// changes costs none.
void oneChangedFile(benchmark::State& state) {
    LoadedStore store(manyFiles());
    while (store.notices == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    int round = 0;
    for (auto _ : state) {
        const int before = store.notices;
        manyFiles().write(QStringLiteral("work/77.ics"), inCalendar(eventText(77 + ++round % 2)));
        while (store.notices == before) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
}

/// Resident bytes that each event of the loaded store costs.
void memoryPerEvent(benchmark::State& state) {
    const auto residentBytes = [] {
        std::ifstream statm("/proc/self/statm");
        std::size_t total = 0;
        std::size_t resident = 0;
        statm >> total >> resident;
        return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE));
    };
    bigFile();
    for (auto _ : state) {
        const double before = residentBytes();
        const LoadedStore store(bigFile());
        state.counters["bytes/event"] = (residentBytes() - before) / bigFileEvents;
    }
}

} // namespace

BENCHMARK(memoryPerEvent)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(bareLibical, 20000_files, manyFiles)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(coldLoad, 20000_files, manyFiles)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(bareLibical, 100000_events, bigFile)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(coldLoad, 100000_events, bigFile)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(query, 100000_events, bigFile)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(seriesWithBareLibical)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(query, 500_series_4_years, manySeries)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(oneChangedFile)->Iterations(10)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
