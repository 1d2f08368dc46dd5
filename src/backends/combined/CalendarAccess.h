#pragma once

#include "platform/EventStore.h"
#include "platform/ObserverList.h"

#include <QString>

#include <atomic>
#include <functional>
#include <optional>
#include <vector>

namespace quillet {

/// The user's consent to reading the calendars: asked once, kept in a small file, shared by all
/// stores. Main thread, but for status().
class CalendarAccess {
public:
    using Answer = std::function<void(bool isGranted)>;
    /// Puts the question to the user and calls back with the answer, now or later, on any thread.
    using Asker = std::function<void(Answer)>;

    /// Reads the answer kept in the folder, if there is one. The folder need not exist.
    CalendarAccess(const QString& stateFolder, Asker asker);
    CalendarAccess(const CalendarAccess&) = delete;
    CalendarAccess& operator=(const CalendarAccess&) = delete;
    ~CalendarAccess();

    /// NotDetermined, Denied or Authorized. Callable from any thread.
    [[nodiscard]] AuthorizationStatus status() const { return status_.load(); }
    /// Asks the user unless there is an answer already, keeps the answer, and completes on the main
    /// thread. Requests made while the question is open share its answer. The error says why the
    /// answer could not be kept on disk; it holds for this run all the same.
    void request(EventStore::AccessCompletion completion);
    /// Forgets the answer, so that the next request asks again.
    void forget();
    /// Calls back after the status changed, before the request that changed it completes.
    [[nodiscard]] Observation observeStatus(std::function<void()> callback);

private:
    struct Link;

    void answered(bool isGranted);
    void setStatus(AuthorizationStatus status);

    QString path_;
    Asker asker_;
    std::atomic<AuthorizationStatus> status_ = AuthorizationStatus::NotDetermined;
    std::vector<EventStore::AccessCompletion> waiting_;
    ObserverList<> observers_;
    std::shared_ptr<Link> link_;
};

} // namespace quillet
