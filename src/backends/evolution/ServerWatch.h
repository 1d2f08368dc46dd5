#pragma once

#include "backends/evolution/Glib.h"
#include "backends/evolution/ServiceLimits.h"

#include <libecal/libecal.h>

#include <functional>
#include <memory>
#include <vector>

namespace quillet {

/// Watches whether the server behind a calendar can be reached, and has the service try again while
/// it cannot: of its own accord the service would wait for the next time to refresh the calendar.
/// What was fetched before stays readable meanwhile. Lives on the service's thread.
class ServerWatch {
public:
    enum class Server { Reachable, Unreachable, NeedsPassword };
    using Report = std::function<void(Server)>;

    /// Reports each change; at first the server counts as reachable.
    ServerWatch(ESource* source, ECalClient* client, ECalClientView* view,
                const ServiceLimits& limits, Report report);
    ServerWatch(const ServerWatch&) = delete;
    ServerWatch& operator=(const ServerWatch&) = delete;
    ~ServerWatch();

private:
    void statusChanged();
    void onlineChanged();
    void askForReason();
    void credentialsRequired(ESourceCredentialsReason reason, const GError* error);
    void failed(Server server);
    void refresh();
    void lookAfterRefresh();
    void reached();

    ObjectPointer<ESource> source_;
    ObjectPointer<ECalClient> client_;
    ObjectPointer<GCancellable> cancellable_{g_cancellable_new()};
    Report report_;
    Server server_ = Server::Reachable;
    /// Whether the service says that it is exchanging events with the server.
    bool isBusy_ = false;
    RetryDelay retryDelay_;
    LoopTimer retryTimer_;
    LoopTimer lookTimer_;
    std::vector<SignalHandler> handlers_;
    /// Gone with this object, for calls that come back later.
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);
};

} // namespace quillet
