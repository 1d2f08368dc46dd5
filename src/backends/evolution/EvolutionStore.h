#pragma once

#include "backends/combined/CalendarAccess.h"
#include "backends/evolution/ServiceLimits.h"
#include "platform/EventStore.h"
#include "platform/ObserverList.h"
#include "platform/SerialQueue.h"
#include "platform/UserTimeZone.h"

#include <QTimer>

#include <atomic>
#include <chrono>
#include <memory>

namespace quillet {

class LoopThread;
class PictureBoard;

/// The desktop's calendar service as a store: every enabled calendar of the user's accounts. Only
/// read. All dealings with the service happen on a thread of the store's own, which keeps the
/// events in memory and follows their changes; no call of this class waits for the service, but
/// for one second at most that a query may wait for a first reading.
class EvolutionStore final : public EventStore {
public:
    struct Setup {
        /// Where the calendars are remembered from one run to the next.
        QString stateFolder;
        /// Tells times to the user. Called on the main thread.
        std::function<QString(Instant)> shortTime;
        /// Floating times and whole days are those of this zone, whose changes are followed:
        /// everything is asked for again.
        std::shared_ptr<const UserTimeZone> zone =
            std::make_shared<const UserTimeZone>(QTimeZone::systemTimeZone());
        ServiceLimits limits = {};
    };

    /// `access` must outlive the store.
    EvolutionStore(CalendarAccess& access, Setup setup);
    EvolutionStore(const EvolutionStore&) = delete;
    EvolutionStore& operator=(const EvolutionStore&) = delete;
    ~EvolutionStore() override;

    /// The user's answer; Restricted when there is no service and none was ever seen.
    [[nodiscard]] AuthorizationStatus authorizationStatus() const override;
    void requestAccess(AccessCompletion completion) override;
    /// Those of the last run, until the service has answered.
    [[nodiscard]] CalendarList calendars() const override;
    [[nodiscard]] EventList events(const CalendarList& calendars, Instant from,
                                   Instant to) const override;
    [[nodiscard]] Observation observeChanges(std::function<void()> callback) override;
    [[nodiscard]] std::vector<StoreProblem> problems() const override;

private:
    void startIfAllowed();
    void readAgain();
    void announce();
    [[nodiscard]] bool isQueryRecent() const;

    CalendarAccess& access_;
    Setup with_;
    std::shared_ptr<PictureBoard> board_;
    ObserverList<> observers_;
    /// A notice that comes while its receiver is still busy with the last query may be dropped
    /// there, so such a notice is given a second time.
    QTimer secondNotice_;
    mutable std::atomic<int> runningQueries_ = 0;
    mutable std::atomic<std::chrono::steady_clock::time_point> lastQueryEnd_;
    mutable std::atomic<bool> hasTooMany_ = false;
    /// Brings the thread's notices to the main thread. The thread's as well, for one that hangs in
    /// a call of the service outlives this object.
    std::shared_ptr<SerialQueue> mainQueue_ = makeMainQueue();
    /// Gone with this object, for notices that come later.
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);
    std::unique_ptr<LoopThread> thread_;
    Observation accessObservation_;
    Observation zoneObservation_;
};

} // namespace quillet
