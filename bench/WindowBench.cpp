// The whole program on folders of calendars: what stands between its start and its filled window,
// what a new period costs its main thread, and what each event costs in memory. Time on the main
// thread is the processor's for one event of its loop, the longest of all.

#include "BareLibical.h"
#include "Program.h"
#include "support/CpuTimer.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <fstream>
#include <tuple>
#include <unistd.h>

namespace {

using namespace quillet;

constexpr int eventsAYear = 100'000;
constexpr int fileCount = 20'000;
const QString emptyWindowOption = QStringLiteral("--empty-window");
const QString manyFilesOption = QStringLiteral("--many-files");
const QString thousandEventsOption = QStringLiteral("--thousand-events");

/// Measures how long each event of the main loop keeps the main thread.
class MeasuredApplication final : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        if (depth_++ > 0) {
            const bool isHandled = QApplication::notify(receiver, event);
            --depth_;
            return isHandled;
        }
        const test::CpuTimer timer;
        const bool isHandled = QApplication::notify(receiver, event);
        longestMilliseconds = std::max(longestMilliseconds, timer.milliseconds());
        --depth_;
        return isHandled;
    }

    double longestMilliseconds = 0;

private:
    int depth_ = 0;
};

MeasuredApplication& application() {
    return *static_cast<MeasuredApplication*>(QCoreApplication::instance());
}

void write(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write the data");
    }
}

QByteArray eventText(int number, int year, int count) {
    const QDateTime start = QDateTime(QDate(year, 1, 2), QTime(0, 0), Qt::UTC)
                                .addSecs(qint64(number) * (360 * 86'400LL / count) / 60 * 60);
    const QByteArray form = start.toString(QStringLiteral("yyyyMMdd'T'hhmmss'Z'")).toLatin1();
    return "BEGIN:VEVENT\r\nUID:" + QByteArray::number(year) + "-" + QByteArray::number(number) +
           "\r\nDTSTAMP:20240101T000000Z\r\nSUMMARY:Meeting " + QByteArray::number(number) +
           "\r\nDTSTART:" + form + "\r\nDURATION:PT" + QByteArray::number(15 + number % 90) +
           "M\r\nEND:VEVENT\r\n";
}

QByteArray inCalendar(const QByteArray& events) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//example//bench//EN\r\n" + events +
           "END:VCALENDAR\r\n";
}

ProgramPaths pathsIn(const QString& folder) {
    return {folder + "/config/quillet.json", folder + "/calendars", folder + "/state", {}, {}};
}

/// The program without a session bus, which every start would ask whether another runs.
struct BenchedProgram {
    explicit BenchedProgram(const QString& folder)
        : program(pathsIn(folder), service) {
        program.start();
    }

    ApplicationService service{QDBusConnection(QString())};
    Program program;
};

/// A home with one calendar of so many events in 2024 and in 2025 each, and settings that show
/// 2024.
class Home {
public:
    /// Without calendars.
    Home() { writeSettings(); }
    Home(int count, std::initializer_list<int> years) {
        writeSettings();
        QByteArray events;
        for (const int year : years) {
            for (int number = 0; number < count; ++number) {
                events += eventText(number, year, count);
            }
        }
        write(path("calendars/work.ics"), inCalendar(events));
    }
    [[nodiscard]] QString folder() const { return folder_.path(); }

private:
    void writeSettings() const {
        write(path("state/calendar-access"), "granted\n");
        write(path("config/quillet.json"),
              R"({"isCalendarAccessGranted": true, "quickDatePeriod": 3,
                  "selectedDate": {"$date": "2024-01-01T00:00:00Z"},
                  "filterStartDate": {"$date": "2024-01-01T00:00:00Z"},
                  "filterEndDate": {"$date": "2024-12-31T23:59:59Z"}})");
    }
    [[nodiscard]] QString path(const char* name) const {
        return folder_.filePath(QString::fromLatin1(name));
    }

    QTemporaryDir folder_;
};

QTableView* eventTable() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        for (auto* table : window->findChildren<QTableView*>()) {
            if (table->accessibleName() == QStringLiteral("Events")) {
                return table;
            }
        }
    }
    return nullptr;
}

void runUntil(const std::function<bool()>& isReached) {
    while (!isReached()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::processEvents();
}

void runUntilShown(int rows) {
    runUntil([rows] {
        const QTableView* table = eventTable();
        return table != nullptr && table->isVisible() && table->model()->rowCount() == rows;
    });
}

/// The end of the program is not measured: closing the watches of folders takes the system long.
[[noreturn]] void tellThatItStands() {
    std::ignore = ::write(STDOUT_FILENO, "!", 1);
    ::_exit(0);
}

/// What the program's own window is measured against: an empty one with a table of as many columns.
[[noreturn]] void showEmptyWindow() {
    QMainWindow window;
    auto* table = new QTableView(&window);
    QStandardItemModel model(0, 16);
    table->setModel(&model);
    window.setCentralWidget(table);
    window.resize(1200, 700);
    window.show();
    runUntil([&window] { return window.windowHandle()->isExposed(); });
    QCoreApplication::processEvents();
    tellThatItStands();
}

[[noreturn]] void showThousandEvents(const QString& folder) {
    const BenchedProgram program(folder);
    runUntilShown(1000);
    tellThatItStands();
}

[[noreturn]] void showManyFiles(const QString& folder) {
    const BenchedProgram program(folder);
    runUntilShown(fileCount);
    tellThatItStands();
}

/// Starts this program anew to show one window, and measures until it stands.
void measureStart(benchmark::State& state, const QStringList& arguments) {
    QProcess program;
    QElapsedTimer timer;
    timer.start();
    program.start(QCoreApplication::applicationFilePath(), arguments);
    if (!program.waitForReadyRead(-1)) {
        qFatal("the window did not come");
    }
    state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
    program.waitForFinished(-1);
}

void emptyWindow(benchmark::State& state) {
    for (auto _ : state) {
        measureStart(state, {emptyWindowOption});
    }
}

void windowOfAThousandEvents(benchmark::State& state) {
    const Home home(1000, {2024});
    for (auto _ : state) {
        measureStart(state, {thousandEventsOption, home.folder()});
    }
}

/// One event in each of 20,000 files, from the start of the program to the filled table.
const Home& manyFiles() {
    static const Home home;
    static const bool isWritten = [] {
        for (int number = 0; number < fileCount; ++number) {
            write(home.folder() + QStringLiteral("/calendars/work/%1.ics").arg(number),
                  inCalendar(eventText(number, 2024, fileCount)));
        }
        return true;
    }();
    benchmark::DoNotOptimize(isWritten);
    return home;
}

void windowOfManyFiles(benchmark::State& state) {
    const QString folder = manyFiles().folder();
    for (auto _ : state) {
        measureStart(state, {manyFilesOption, folder});
    }
}

void manyFilesWithBareLibical(benchmark::State& state) {
    for (auto _ : state) {
        bench::parseFolderWithBareLibical(manyFiles().folder() + "/calendars/work");
    }
}

/// The processor time of all threads from one changed file of so many to the table that shows it.
/// The waiting that gathers changes costs none.
void oneChangedFileInTheWindow(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    const Home home;
    const auto file = [&home](int number) {
        return home.folder() + QStringLiteral("/calendars/work/%1.ics").arg(number);
    };
    for (int number = 0; number < count; ++number) {
        write(file(number), inCalendar(eventText(number, 2024, count)));
    }
    const BenchedProgram program(home.folder());
    runUntilShown(count);
    constexpr int titleColumn = 2;
    int round = 0;
    for (auto _ : state) {
        const QByteArray title = "Changed " + QByteArray::number(++round);
        write(file(0), inCalendar(eventText(0, 2024, count).replace("Meeting 0", title)));
        runUntil([&title] {
            const QAbstractItemModel* model = eventTable()->model();
            return model->index(0, titleColumn).data().toByteArray() == title;
        });
    }
}

/// Another year of 100,000 events in memory, one of them selected: the whole, from the change of
/// the period until its totals stand below the table, and the longest time that the main thread was
/// kept by any part of it.
void newPeriodInTheWindow(benchmark::State& state) {
    const Home home(eventsAYear, {2024, 2025});
    const BenchedProgram program(home.folder());
    runUntilShown(eventsAYear);
    bool isPublished = false;
    const auto notice = QObject::connect(eventTable()->model(), &QAbstractItemModel::modelReset,
                                         eventTable(), [&isPublished] { isPublished = true; });
    const char* const steps[] = {"setQuickDatesNext", "setQuickDatesPrevious"};
    int round = 0;
    // Its first painting belongs to the start.
    runUntil([] { return eventTable()->window()->windowHandle()->isExposed(); });
    application().longestMilliseconds = 0;
    for (auto _ : state) {
        eventTable()->selectRow(7);
        isPublished = false;
        auto* step =
            eventTable()->window()->findChild<QAction*>(QString::fromLatin1(steps[round++ % 2]));
        // By the loop, which measures it like all else.
        QMetaObject::invokeMethod(step, &QAction::trigger, Qt::QueuedConnection);
        runUntil([&isPublished] { return isPublished; });
    }
    QObject::disconnect(notice);
    state.counters["longest_ms"] = application().longestMilliseconds;
}

void sortByCostInTheWindow(benchmark::State& state) {
    const Home home(eventsAYear, {2024, 2025});
    const BenchedProgram program(home.folder());
    runUntilShown(eventsAYear);
    bool isAscending = false;
    for (auto _ : state) {
        isAscending = !isAscending;
        eventTable()->sortByColumn(14, isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
        QCoreApplication::processEvents();
    }
}

/// All of 100,000 events selected with one key, until the figures of the selection stand below
/// the table. A frame is 16.7 ms.
void selectAllInTheWindow(benchmark::State& state) {
    const Home home(eventsAYear, {2024});
    const BenchedProgram program(home.folder());
    runUntilShown(eventsAYear);
    auto* tabs = eventTable()->window()->findChild<QTabBar*>();
    tabs->setCurrentIndex(1);
    const auto* count = eventTable()->window()->findChild<QLabel*>(QStringLiteral("events"));
    for (auto _ : state) {
        state.PauseTiming();
        eventTable()->clearSelection();
        runUntil([&] { return count->text() == QStringLiteral("0"); });
        state.ResumeTiming();
        eventTable()->selectAll();
        runUntil([&] { return count->text() == QString::number(eventsAYear); });
    }
}

double residentBytes() {
    std::ifstream statm("/proc/self/statm");
    std::size_t total = 0;
    std::size_t resident = 0;
    statm >> total >> resident;
    return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

/// Each event costs this much over the program without calendars.
void memoryPerEvent(benchmark::State& state) {
    const Home empty;
    const Home full(eventsAYear, {2024});
    for (auto _ : state) {
        {
            const BenchedProgram program(empty.folder());
            QCoreApplication::processEvents();
        }
        const double before = residentBytes();
        const BenchedProgram program(full.folder());
        runUntilShown(eventsAYear);
        state.counters["bytes/event"] = (residentBytes() - before) / eventsAYear;
    }
}

} // namespace

BENCHMARK(memoryPerEvent)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(emptyWindow)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(windowOfAThousandEvents)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(manyFilesWithBareLibical)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(windowOfManyFiles)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(oneChangedFileInTheWindow)
    ->Arg(2'000)
    ->Arg(fileCount)
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime();
BENCHMARK(newPeriodInTheWindow)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);
BENCHMARK(sortByCostInTheWindow)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(selectAllInTheWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const MeasuredApplication measured(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == emptyWindowOption) {
        showEmptyWindow();
    }
    if (arguments.value(1) == thousandEventsOption) {
        showThousandEvents(arguments.value(2));
    }
    if (arguments.value(1) == manyFilesOption) {
        showManyFiles(arguments.value(2));
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
