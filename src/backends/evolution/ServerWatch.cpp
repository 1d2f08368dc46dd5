#include "backends/evolution/ServerWatch.h"

#include <utility>

namespace quillet {

namespace {

/// How long after a refresh a failure may still come.
constexpr std::chrono::milliseconds lookDelay{1500};

/// Whether an error tells of a connection that did not come about, not of a refused password.
bool isOfNetwork(const GError* error) {
    return error != nullptr && (error->domain == G_IO_ERROR || error->domain == G_RESOLVER_ERROR);
}

} // namespace

ServerWatch::ServerWatch(ESource* source, ECalClient* client, ECalClientView* view,
                         const ServiceLimits& limits, Report report)
    : source_(newReference(source))
    , client_(newReference(client))
    , report_(std::move(report))
    , retryDelay_(limits) {
    handlers_.emplace_back(source, "notify::connection-status",
                           G_CALLBACK(+[](ESource*, GParamSpec*, gpointer data) {
                               static_cast<ServerWatch*>(data)->statusChanged();
                           }),
                           this);
    handlers_.emplace_back(
        source, "credentials-required",
        G_CALLBACK(+[](ESource*, ESourceCredentialsReason reason, const char*, GTlsCertificateFlags,
                       const GError* error, gpointer data) {
            static_cast<ServerWatch*>(data)->credentialsRequired(reason, error);
        }),
        this);
    handlers_.emplace_back(client, "backend-error",
                           G_CALLBACK(+[](EClient*, const char*, gpointer data) {
                               static_cast<ServerWatch*>(data)->failed(Server::Unreachable);
                           }),
                           this);
    handlers_.emplace_back(
        view, "progress", G_CALLBACK(+[](ECalClientView*, guint, const char* text, gpointer data) {
            static_cast<ServerWatch*>(data)->isBusy_ = text != nullptr && *text != '\0';
        }),
        this);
    handlers_.emplace_back(client, "notify::online",
                           G_CALLBACK(+[](EClient*, GParamSpec*, gpointer data) {
                               static_cast<ServerWatch*>(data)->onlineChanged();
                           }),
                           this);
    onlineChanged();
    statusChanged();
}

ServerWatch::~ServerWatch() {
    g_cancellable_cancel(cancellable_.get());
}

void ServerWatch::statusChanged() {
    switch (e_source_get_connection_status(source_.get())) {
    case E_SOURCE_CONNECTION_STATUS_CONNECTED:
        reached();
        break;
    case E_SOURCE_CONNECTION_STATUS_SSL_FAILED:
        failed(Server::Unreachable);
        break;
    case E_SOURCE_CONNECTION_STATUS_AWAITING_CREDENTIALS:
        // The signal with the reason may have come before anybody listened.
        askForReason();
        break;
    default:
        // What comes of it is told by other signals.
        break;
    }
}

void ServerWatch::onlineChanged() {
    if (e_client_is_online(E_CLIENT(client_.get())) == FALSE) {
        failed(Server::Unreachable);
    } else if (server_ != Server::Reachable) {
        refresh();
    }
}

void ServerWatch::askForReason() {
    e_source_get_last_credentials_required_arguments(
        source_.get(), cancellable_.get(), finishCall,
        pendingCall([this, life = std::weak_ptr(life_)](GObject* source, GAsyncResult* result) {
            CallError error;
            CallError cause;
            auto reason = E_SOURCE_CREDENTIALS_REASON_UNKNOWN;
            char* certificate = nullptr;
            GTlsCertificateFlags certificateErrors{};
            e_source_get_last_credentials_required_arguments_finish(
                E_SOURCE(source), result, &reason, &certificate, &certificateErrors, cause.slot(),
                error.slot());
            g_free(certificate);
            if (!life.expired() && !error) {
                credentialsRequired(reason, *cause.slot());
            }
        }));
}

void ServerWatch::credentialsRequired(ESourceCredentialsReason reason, const GError* error) {
    const bool isPassword = reason == E_SOURCE_CREDENTIALS_REASON_REQUIRED ||
                            reason == E_SOURCE_CREDENTIALS_REASON_REJECTED;
    failed(isPassword && !isOfNetwork(error) ? Server::NeedsPassword : Server::Unreachable);
}

void ServerWatch::failed(Server server) {
    lookTimer_.stop();
    if (std::exchange(server_, server) != server) {
        report_(server);
    }
    if (!retryTimer_.isRunning()) {
        retryTimer_.start(retryDelay_.failed(), [this] { refresh(); });
    }
}

void ServerWatch::refresh() {
    e_client_refresh(
        E_CLIENT(client_.get()), cancellable_.get(), finishCall,
        pendingCall([this, life = std::weak_ptr(life_)](GObject* client, GAsyncResult* result) {
            CallError error;
            e_client_refresh_finish(E_CLIENT(client), result, error.slot());
            if (life.expired() || server_ == Server::Reachable) {
                return;
            }
            if (error) {
                failed(server_);
            } else {
                lookAfterRefresh();
            }
        }));
}

void ServerWatch::lookAfterRefresh() {
    // The answer means that the service has begun; only a failure is told afterwards.
    lookTimer_.start(lookDelay, [this] {
        if (isBusy_) {
            lookAfterRefresh();
        } else if (e_source_get_connection_status(source_.get()) ==
                   E_SOURCE_CONNECTION_STATUS_CONNECTED) {
            reached();
        } else {
            failed(server_);
        }
    });
}

void ServerWatch::reached() {
    retryTimer_.stop();
    lookTimer_.stop();
    retryDelay_.succeeded();
    if (std::exchange(server_, Server::Reachable) != Server::Reachable) {
        report_(server_);
    }
}

} // namespace quillet
