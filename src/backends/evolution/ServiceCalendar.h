#pragma once

#include "backends/evolution/Glib.h"
#include "backends/evolution/ServiceLimits.h"
#include "backends/evolution/ServicePicture.h"
#include "backends/evolution/SourceContents.h"
#include "platform/Clock.h"

#include <libecal/libecal.h>

#include <functional>
#include <memory>
#include <vector>

namespace quillet {

/// One calendar of the service: connects to it, reads it, follows its changes, and begins again
/// when it fails. Nothing here waits; everything happens on the thread that made it.
class ServiceCalendar {
public:
    struct Surroundings {
        ZoneCatalog& zones;
        const Clock& clock;
        const ServiceLimits& limits;
        /// Called after state() changed.
        std::function<void()> changed;
    };

    ServiceCalendar(std::shared_ptr<const StoreCalendar> calendar,
                    const Surroundings& surroundings);
    ServiceCalendar(const ServiceCalendar&) = delete;
    ServiceCalendar& operator=(const ServiceCalendar&) = delete;
    ~ServiceCalendar();

    /// Connects, or connects anew when source or calendar are others than before.
    void follow(ESource* source, std::shared_ptr<const StoreCalendar> calendar);
    /// The whole service is away: waits for the next follow().
    void loseService();

    [[nodiscard]] const CalendarState& state() const { return state_; }

private:
    enum class Stage { Idle, Connecting, Reading, Live };
    /// What one attempt holds. The calls of an attempt that was given up come back to nobody.
    struct Attempt;
    /// Finishes a call. There is no attempt when the one that made the call was given up.
    using AttemptCall =
        std::function<void(Attempt* attempt, GObject* source, GAsyncResult* result)>;

    void connect();
    void connected(Attempt& attempt, ObjectPointer<ECalClient> client);
    using ViewCame = void (ServiceCalendar::*)(Attempt& attempt,
                                               ObjectPointer<ECalClientView> view);
    void askForView(Attempt& attempt, ViewCame came);
    void changesCame(Attempt& attempt, ObjectPointer<ECalClientView> view);
    void startChanges(Attempt& attempt);
    void askForReading(Attempt& attempt) { askForView(attempt, &ServiceCalendar::viewCame); }
    void viewCame(Attempt& attempt, ObjectPointer<ECalClientView> view);
    void objectsRead(const GSList* objects);
    void objectsChanged(const GSList* objects);
    void objectsRemoved(const GSList* identifiers);
    void readingEnded(const GError* error);
    void endReadingIfComplete(Attempt& attempt);
    void askForZones(Attempt& attempt);
    void zoneCame(Attempt& attempt, const std::string& name, ICalTimezone* zone);
    void noticesCame();
    void askForDoubtful(Attempt& attempt);
    void askForUid(Attempt& attempt, const QString& uid);
    void uidCame(Attempt& attempt, const QString& uid, const GSList* components);
    void applyNotices();
    void probe();
    void watchServer(Attempt& attempt);

    /// The data for an asynchronous call of the present attempt.
    [[nodiscard]] gpointer callOf(AttemptCall finish) const;
    void expectAnswer();
    /// Gives the attempt up and begins another one later. A refusal is what the service said.
    void fail(const QString& refusal = {});
    void becomeLive();
    void setCondition(CalendarState::Condition condition);

    Surroundings with_;
    CalendarState state_;
    SourceContents contents_;
    ObjectPointer<ESource> source_;
    Stage stage_ = Stage::Idle;
    std::shared_ptr<Attempt> attempt_;
    RetryDelay retryDelay_;
    LoopTimer patienceTimer_;
    LoopTimer answerTimer_;
    LoopTimer retryTimer_;
    LoopTimer gatheringTimer_;
    LoopTimer probeTimer_;
};

} // namespace quillet
