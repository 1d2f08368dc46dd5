#pragma once

#include "backends/combined/CalendarMemory.h"
#include "backends/evolution/Glib.h"
#include "backends/evolution/ServiceCalendar.h"
#include "backends/evolution/ServiceLimits.h"
#include "backends/evolution/ServicePicture.h"

#include <libedataserver/libedataserver.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quillet {

/// The program's dealings with the desktop's calendar service: which calendars there are, and one
/// ServiceCalendar for each. Lives on a thread with a main context of its own.
class ServiceSession {
public:
    struct Setup {
        QTimeZone zone;
        ServiceLimits limits;
        /// Where the calendars are remembered from one run to the next.
        QString memoryPath;
        std::shared_ptr<PictureBoard> board;
        /// Called after the board shows something new, on the session's thread.
        std::function<void()> changed;
    };

    explicit ServiceSession(Setup setup);
    ServiceSession(const ServiceSession&) = delete;
    ServiceSession& operator=(const ServiceSession&) = delete;
    ~ServiceSession();

private:
    using Calendars = std::vector<std::unique_ptr<ServiceCalendar>>;

    void connectToBus();
    void busCame(GDBusConnection* bus);
    void connectToRegistry();
    void registryCame(ObjectPointer<ESourceRegistry> registry);
    /// Finds out whether it is to come back or was never installed.
    void serviceIsGone();
    void tryToStart(const QByteArray& name);
    void loseService(ServicePicture::Service service);
    void sourcesChanged();
    void refreshSources();
    /// Leaves those of the known ones in the list that the service may still be about to list.
    void keepLate(Calendars& known);
    [[nodiscard]] bool isLate(const ServiceCalendar& calendar) const;
    [[nodiscard]] std::unique_ptr<ServiceCalendar> takeKnown(Calendars& known,
                                                             const QString& identifier);
    [[nodiscard]] std::unique_ptr<ServiceCalendar>
    newCalendar(std::shared_ptr<const StoreCalendar> calendar);
    void remember();
    void publishSoon();
    void publish();

    Setup with_;
    SystemClock clock_;
    ZoneCatalog zones_;
    ServicePicture::Service service_ = ServicePicture::Service::Starting;
    Instant since_;
    ObjectPointer<GCancellable> cancellable_;
    ObjectPointer<GDBusConnection> bus_;
    ObjectPointer<ESourceRegistry> registry_;
    std::vector<SignalHandler> busHandlers_;
    std::vector<SignalHandler> registryHandlers_;
    Calendars calendars_;
    /// The identifiers that the service has listed since it was reached.
    std::set<QString> listed_;
    CalendarMemory memory_;
    RetryDelay retryDelay_;
    LoopTimer answerTimer_;
    LoopTimer retryTimer_;
    LoopTimer sourcesTimer_;
    LoopTimer settlingTimer_;
    LoopTimer publishTimer_;
};

} // namespace quillet
