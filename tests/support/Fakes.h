#pragma once

#include "platform/Alert.h"
#include "platform/Clock.h"
#include "platform/EventStore.h"
#include "platform/InstalledPrograms.h"
#include "platform/ObserverList.h"
#include "platform/OneShotTimer.h"
#include "platform/Pasteboard.h"
#include "platform/ProgressPresenter.h"
#include "platform/SavePanel.h"
#include "platform/ScriptRunner.h"
#include "platform/SerialQueue.h"
#include "platform/Sheet.h"
#include "platform/SoftwareUpdater.h"
#include "platform/TaskLauncher.h"
#include "platform/TextColorSource.h"
#include "platform/Workspace.h"

#include <QHash>
#include <QPair>

#include <deque>
#include <memory>
#include <vector>

namespace quillet::test {

class FakeClock final : public Clock {
public:
    explicit FakeClock(Instant instant = {})
        : current(instant) {}
    [[nodiscard]] Instant now() const override { return current; }

    Instant current;
};

/// Keeps tasks until the test runs them.
class FakeQueue final : public SerialQueue {
public:
    void async(Task task) override { tasks.push_back(std::move(task)); }
    /// Runs the oldest task; false when there is none.
    bool runOne() {
        if (tasks.empty()) {
            return false;
        }
        const Task task = std::move(tasks.front());
        tasks.pop_front();
        task();
        return true;
    }
    void runAll() {
        while (runOne()) {
        }
    }

    std::deque<Task> tasks;
};

class FakeTimer final : public OneShotTimer {
public:
    void start(double seconds, std::function<void()> callback) override {
        pending.emplace_back(seconds, std::move(callback));
    }
    /// Lets every pending timer expire.
    void fireAll() {
        for (const auto& [seconds, callback] : std::exchange(pending, {})) {
            callback();
        }
    }

    std::vector<std::pair<double, std::function<void()>>> pending;
};

class FakeAlerts final : public AlertPresenter {
public:
    [[nodiscard]] int runModal(const Alert& alert) override {
        shown.push_back(alert);
        return answer;
    }

    std::vector<Alert> shown;
    int answer = 0;
};

class FakeSavePanel final : public SavePanel {
public:
    void beginSheet(const SavePanelRequest& request, Completion completion) override {
        requests.push_back(request);
        pending = std::move(completion);
    }
    void stopModal(int code) override { stopCodes.push_back(code); }

    std::vector<SavePanelRequest> requests;
    Completion pending;
    std::vector<int> stopCodes;
};

/// Remembers what was asked of it, in order.
class FakeSheet final : public Sheet {
public:
    void begin() override { calls.append(QStringLiteral("begin")); }
    void commitEditing() override { calls.append(QStringLiteral("commitEditing")); }
    void end() override { calls.append(QStringLiteral("end")); }
    void orderOut() override { calls.append(QStringLiteral("orderOut")); }

    QStringList calls;
};

class FakeWorkspace final : public Workspace {
public:
    std::expected<void, QString> openFile(const QString& path) override {
        openedFiles.append(path);
        return {};
    }
    std::expected<void, QString> openWebAddress(const QString& address) override {
        openedAddresses.append(address);
        return {};
    }

    QStringList openedFiles;
    QStringList openedAddresses;
};

class FakeTaskLauncher final : public TaskLauncher {
public:
    [[nodiscard]] qint64 processIdentifier() const override { return 4711; }
    [[nodiscard]] QString executablePath() const override {
        return QStringLiteral("/opt/quillet/quillet");
    }
    std::expected<void, QString> launch(const QString& path,
                                        const QStringList& arguments) override {
        launched.append({path, arguments});
        return answer;
    }
    void terminate() override { ++terminations; }

    QList<QPair<QString, QStringList>> launched;
    int terminations = 0;
    std::expected<void, QString> answer;
};

class FakeUpdater final : public SoftwareUpdater {
public:
    void checkForUpdates() override { ++checks; }

    int checks = 0;
};

/// Keeps the scripts, and answers each as the test wishes.
class FakeScriptRunner final : public ScriptRunner {
public:
    std::expected<void, QString> run(const Script& script) override {
        sources.append(script.source);
        requests.push_back(script.request);
        return answer;
    }

    QStringList sources;
    std::vector<std::variant<MessageRequest, EventRequest>> requests;
    std::expected<void, QString> answer;
};

class FakeInstalledPrograms final : public InstalledPrograms {
public:
    [[nodiscard]] QString shortVersion(const QString& path) const override {
        return versions.value(path);
    }

    /// By path.
    QHash<QString, QString> versions;
};

class FakeTextColor final : public TextColorSource {
public:
    [[nodiscard]] ColorFractions textColor() const override { return color; }

    ColorFractions color;
};

/// Remembers what it was told, and lets the test act and cancel in between.
class FakeProgress final : public ProgressPresenter {
public:
    [[nodiscard]] std::unique_ptr<Run> begin(const QString& label) override {
        labels.append(label);
        ++openRuns;
        return std::make_unique<FakeRun>(*this);
    }

    QStringList labels;
    int openRuns = 0;
    std::vector<std::pair<std::size_t, std::size_t>> steps;
    /// Called at every step: whether to go on.
    std::function<bool()> answer = [] { return true; };

private:
    class FakeRun final : public Run {
    public:
        explicit FakeRun(FakeProgress& owner)
            : owner_(owner) {}
        ~FakeRun() override { --owner_.openRuns; }
        Q_DISABLE_COPY_MOVE(FakeRun)
        [[nodiscard]] bool goOn(std::size_t finished, std::size_t all) override {
            owner_.steps.emplace_back(finished, all);
            return owner_.answer();
        }

    private:
        FakeProgress& owner_;
    };
};

class FakePasteboard final : public Pasteboard {
public:
    void clear() override { calls.append(QStringLiteral("clear")); }
    void writeText(const QString& text) override {
        calls.append(QStringLiteral("write"));
        content = text;
    }

    QStringList calls;
    QString content = QStringLiteral("something of another program");
};

/// A store whose answers the test sets.
class FakeEventStore final : public EventStore {
public:
    [[nodiscard]] AuthorizationStatus authorizationStatus() const override { return status; }
    void requestAccess(AccessCompletion completion) override {
        requests.push_back(std::move(completion));
    }
    [[nodiscard]] CalendarList calendars() const override { return storedCalendars; }
    [[nodiscard]] EventList events(const CalendarList& wanted, Instant from,
                                   Instant to) const override {
        ++queries;
        lastCalendars = wanted;
        lastFrom = from;
        lastTo = to;
        EventList found;
        for (const Event& event : storedEvents) {
            const bool isWanted = std::ranges::any_of(wanted, [&](const auto& calendar) {
                return calendar->calendarIdentifier == event.details->calendar->calendarIdentifier;
            });
            if (isWanted && event.startDate < to && event.endDate > from) {
                found.push_back(event);
            }
        }
        return found;
    }
    [[nodiscard]] Observation observeChanges(std::function<void()> callback) override {
        return observers.add(std::move(callback));
    }
    [[nodiscard]] std::vector<StoreProblem> problems() const override { return storedProblems; }

    AuthorizationStatus status = AuthorizationStatus::Authorized;
    std::vector<AccessCompletion> requests;
    CalendarList storedCalendars;
    EventList storedEvents;
    std::vector<StoreProblem> storedProblems;
    ObserverList<> observers;
    mutable int queries = 0;
    mutable CalendarList lastCalendars;
    mutable Instant lastFrom;
    mutable Instant lastTo;
};

/// An instant from its UTC fields.
[[nodiscard]] inline Instant utc(int year, unsigned month, unsigned day, int hour = 0,
                                 int minute = 0, int second = 0) {
    using namespace std::chrono;
    return sys_days(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day)) +
           hours(hour) + minutes(minute) + seconds(second);
}

} // namespace quillet::test
