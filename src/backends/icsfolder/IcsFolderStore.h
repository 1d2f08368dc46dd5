#pragma once

#include "backends/combined/CalendarAccess.h"
#include "backends/combined/CalendarMemory.h"
#include "platform/EventStore.h"
#include "platform/ObserverList.h"
#include "platform/SerialQueue.h"
#include "platform/UserTimeZone.h"

#include <expected>
#include <memory>
#include <mutex>

namespace quillet {

class FolderLoader;

/// A folder of calendars: each of its sub-folders (with one event to a file) and each .ics file in
/// it, links followed, is one calendar. Files are only read. They are read in the background once
/// access is granted, and singly again when they change.
class IcsFolderStore final : public EventStore {
public:
    /// The root folder is created when it is missing. Floating times and whole days are those of
    /// the zone, whose changes are followed: everything is read again. The file at `memoryPath`
    /// keeps which calendars there are, for times when the root folder is out of reach; without one
    /// nothing is kept. `access` must outlive the store.
    IcsFolderStore(const QString& rootPath, CalendarAccess& access,
                   std::shared_ptr<const UserTimeZone> zone, const QString& memoryPath = {});
    /// In a zone that stays.
    IcsFolderStore(const QString& rootPath, CalendarAccess& access,
                   const QTimeZone& zone = QTimeZone::systemTimeZone(),
                   const QString& memoryPath = {});
    IcsFolderStore(const IcsFolderStore&) = delete;
    IcsFolderStore& operator=(const IcsFolderStore&) = delete;
    ~IcsFolderStore() override;

    /// The user's answer; Restricted when the root folder cannot be read or created, and no
    /// calendar of it is known.
    [[nodiscard]] AuthorizationStatus authorizationStatus() const override;
    void requestAccess(AccessCompletion completion) override;
    /// Sorted by the names of their files. Known as soon as access is granted, before any event
    /// is. A calendar whose link leads nowhere at the moment stays listed.
    [[nodiscard]] CalendarList calendars() const override;
    /// Waits for the first load to finish; never call it on the main thread before that.
    [[nodiscard]] EventList events(const CalendarList& calendars, Instant from,
                                   Instant to) const override;
    [[nodiscard]] Observation observeChanges(std::function<void()> callback) override;
    [[nodiscard]] std::vector<StoreProblem> problems() const override;

    /// Whether the first load is still running. A change notice tells when it has ended.
    [[nodiscard]] bool isLoading() const;
    /// Links a folder or an .ics file into the root folder; the change notice follows. The error is
    /// a sentence for the user.
    [[nodiscard]] std::expected<void, QString> addCalendar(const QString& path);
    /// The file that holds an event; a null QString when none of this store's calendars has it.
    [[nodiscard]] QString fileOf(const QString& calendarIdentifier,
                                 const QString& eventIdentifier) const;

private:
    /// The loader, which starts as soon as it may; null before. Any thread.
    [[nodiscard]] std::shared_ptr<FolderLoader> loader() const;
    void readAgain();
    [[nodiscard]] bool knowsCalendars() const;

    QString rootPath_;
    CalendarAccess& access_;
    std::shared_ptr<const UserTimeZone> zone_;
    CalendarMemory memory_;
    ObserverList<> observers_;
    /// Receives the loader's notices on the main thread.
    std::unique_ptr<SerialQueue> mainQueue_ = makeMainQueue();
    mutable std::mutex loaderMutex_;
    /// Shared with queries that are under way when another one takes its place.
    mutable std::shared_ptr<FolderLoader> loader_;
    Observation accessObservation_;
    Observation zoneObservation_;
};

} // namespace quillet
