#include "backends/combined/CombinedEventStore.h"

#include "backends/combined/EventOrder.h"
#include "platform/Logging.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace quillet {

namespace {

using Stores = std::vector<std::reference_wrapper<EventStore>>;

bool isOpen(const EventStore& store) {
    return store.authorizationStatus() == AuthorizationStatus::Authorized;
}

/// The worth of an answer when several stores give different ones.
int rank(AuthorizationStatus status) {
    switch (status) {
    case AuthorizationStatus::Authorized:
        return 3;
    case AuthorizationStatus::NotDetermined:
        return 2;
    case AuthorizationStatus::Denied:
        return 1;
    case AuthorizationStatus::Restricted:
        break;
    }
    return 0;
}

/// Collects the answers of several stores, which may come on different threads.
struct PendingAnswers {
    std::mutex mutex;
    std::size_t awaited = 0;
    bool isGranted = false;
    std::optional<QString> error;
    EventStore::AccessCompletion completion;

    void add(bool isOneGranted, const std::optional<QString>& oneError) {
        std::unique_lock lock(mutex);
        isGranted = isGranted || isOneGranted;
        error = error ? error : oneError;
        if (--awaited == 0) {
            lock.unlock();
            completion(isGranted, error);
        }
    }
};

/// What a store answers, or nothing at all when it fails.
template <typename Result>
Result answerOf(const std::function<Result()>& ask) {
    try {
        return ask();
    } catch (const std::exception& failure) {
        qCWarning(quilletLog).noquote()
            << "a calendar store failed: " + QString::fromUtf8(failure.what());
        return {};
    }
}

} // namespace

CombinedEventStore::CombinedEventStore(Stores stores)
    : stores_(std::move(stores)) {}

AuthorizationStatus CombinedEventStore::authorizationStatus() const {
    AuthorizationStatus best = AuthorizationStatus::Restricted;
    for (const EventStore& store : stores_) {
        best = std::max(best, store.authorizationStatus(),
                        [](auto left, auto right) { return rank(left) < rank(right); });
    }
    return best;
}

void CombinedEventStore::requestAccess(AccessCompletion completion) {
    Stores asked;
    std::ranges::copy_if(stores_, std::back_inserter(asked), [](const EventStore& store) {
        return store.authorizationStatus() == AuthorizationStatus::NotDetermined;
    });
    if (asked.empty()) {
        completion(authorizationStatus() == AuthorizationStatus::Authorized, std::nullopt);
        return;
    }
    const auto pending = std::make_shared<PendingAnswers>();
    pending->awaited = asked.size();
    pending->completion = std::move(completion);
    for (EventStore& store : asked) {
        store.requestAccess([pending](bool isGranted, const std::optional<QString>& error) {
            pending->add(isGranted, error);
        });
    }
}

CalendarList CombinedEventStore::calendars() const {
    CalendarList all;
    for (const EventStore& store : stores_) {
        if (isOpen(store)) {
            const auto some = answerOf<CalendarList>([&store] { return store.calendars(); });
            all.insert(all.end(), some.begin(), some.end());
        }
    }
    return all;
}

EventList CombinedEventStore::events(const CalendarList& calendars, Instant from,
                                     Instant to) const {
    EventList all;
    for (const EventStore& store : stores_) {
        if (isOpen(store)) {
            mergeDelivered(all, answerOf<EventList>([&store, &calendars, from, to] {
                               return store.events(calendars, from, to);
                           }));
        }
    }
    return all;
}

Observation CombinedEventStore::observeChanges(std::function<void()> callback) {
    auto observations = std::make_shared<std::vector<Observation>>();
    for (EventStore& store : stores_) {
        observations->push_back(store.observeChanges(callback));
    }
    return Observation([observations] { observations->clear(); });
}

std::vector<StoreProblem> CombinedEventStore::problems() const {
    std::vector<StoreProblem> all;
    for (const EventStore& store : stores_) {
        const auto some =
            answerOf<std::vector<StoreProblem>>([&store] { return store.problems(); });
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

} // namespace quillet
