#pragma once

#include "backends/evolution/ServerWatch.h"
#include "backends/evolution/ServiceCalendar.h"

#include <QSet>

namespace quillet {

struct ServiceCalendar::Attempt {
    Attempt() = default;
    Attempt(const Attempt&) = delete;
    Attempt& operator=(const Attempt&) = delete;
    ~Attempt() { g_cancellable_cancel(cancellable.get()); }

    ObjectPointer<GCancellable> cancellable{g_cancellable_new()};
    ObjectPointer<ECalClient> client;
    /// Tells what changes, from before the reading on.
    ObjectPointer<ECalClientView> changes;
    /// Tells everything that there is; only during a reading. For two seconds after it such a view
    /// keeps changes back.
    ObjectPointer<ECalClientView> view;
    /// Of a calendar that has a server behind it.
    std::unique_ptr<ServerWatch> serverWatch;
    bool isComplete = false;
    /// Whether a zone became known that events were read without.
    bool hasNewZone = false;
    int zonesAwaited = 0;
    /// The UIDs that were asked for; those named again meanwhile are asked for once more.
    QSet<QString> uidsAwaited;
    QSet<QString> uidsWaiting;
    std::vector<SignalHandler> clientHandlers;
    std::vector<SignalHandler> changesHandlers;
    std::vector<SignalHandler> viewHandlers;
};

} // namespace quillet
