#pragma once

#include "backends/icsfolder/CalendarContents.h"
#include "platform/EventStore.h"

#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace quillet {

/// How things stand with one calendar of the service.
struct CalendarState {
    enum class Condition {
        Fine,
        /// Its events are on their way for the first time.
        BeingRead,
        /// The service does not answer; what it said before stays.
        Unreachable,
        /// The service answers, but not the server behind it.
        ServerUnreachable,
        NeedsPassword,
    };

    std::shared_ptr<const StoreCalendar> calendar;
    std::shared_ptr<const CalendarContents> contents = std::make_shared<const CalendarContents>();
    Condition condition = Condition::BeingRead;
    /// Whether a query need not wait for it any more.
    bool isSettled = false;
    /// Since when it is unreachable.
    Instant since;
    /// Why the service would not open it, in the service's own words; empty when it does not say.
    QString refusal;
    QStringList problems;
};

/// Everything that is known of the service at one moment. Immutable once published.
struct ServicePicture {
    enum class Service {
        Starting,
        Running,
        /// It does not answer.
        Unreachable,
        /// This desktop has none.
        Missing,
        /// There is nothing that it could be reached over.
        NoSessionBus,
    };

    Service service = Service::Starting;
    Instant since;
    /// In the store's order.
    std::vector<CalendarState> calendars;

    /// Whether a query for these calendars need not wait.
    [[nodiscard]] bool isSettledFor(const CalendarList& wanted) const;
    [[nodiscard]] const CalendarState* stateOf(const QString& calendarIdentifier) const;
    /// For the user, worst first.
    [[nodiscard]] std::vector<StoreProblem>
    problems(const std::function<QString(Instant)>& shortTime) const;
};

/// Where the service's thread hangs up its picture for all others.
class PictureBoard {
public:
    explicit PictureBoard(ServicePicture first);

    [[nodiscard]] std::shared_ptr<const ServicePicture> current() const;
    /// The picture as soon as it is settled for the calendars, at the latest after that time.
    [[nodiscard]] std::shared_ptr<const ServicePicture>
    settled(const CalendarList& wanted, std::chrono::milliseconds longest) const;
    void hang(ServicePicture picture);

private:
    mutable std::mutex mutex_;
    mutable std::condition_variable changed_;
    std::shared_ptr<const ServicePicture> picture_;
};

} // namespace quillet
