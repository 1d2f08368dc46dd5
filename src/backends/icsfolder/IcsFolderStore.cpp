#include "backends/icsfolder/IcsFolderStore.h"

#include "backends/icsfolder/CalendarSources.h"
#include "backends/icsfolder/EventFiles.h"
#include "backends/icsfolder/FolderLoader.h"
#include "texts/Localized.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

#include <utility>

namespace quillet {

namespace {

bool canReach(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    if (::access(name.constData(), R_OK | X_OK) == 0) {
        return QFileInfo(path).isDir();
    }
    return QDir().mkpath(path) && ::access(name.constData(), R_OK | X_OK) == 0;
}

} // namespace

IcsFolderStore::IcsFolderStore(const QString& rootPath, CalendarAccess& access,
                               const QTimeZone& zone, const QString& memoryPath)
    : IcsFolderStore(rootPath, access, std::make_shared<const UserTimeZone>(zone), memoryPath) {}

IcsFolderStore::IcsFolderStore(const QString& rootPath, CalendarAccess& access,
                               std::shared_ptr<const UserTimeZone> zone, const QString& memoryPath)
    : rootPath_(QDir::cleanPath(rootPath))
    , access_(access)
    , zone_(std::move(zone))
    , memory_(memoryPath) {
    accessObservation_ = access_.observeStatus([this] { (void)loader(); });
    zoneObservation_ = zone_->observe([this](const ZoneRules&) { readAgain(); });
    (void)loader();
}

IcsFolderStore::~IcsFolderStore() = default;

AuthorizationStatus IcsFolderStore::authorizationStatus() const {
    return canReach(rootPath_) || knowsCalendars() ? access_.status()
                                                   : AuthorizationStatus::Restricted;
}

void IcsFolderStore::requestAccess(AccessCompletion completion) {
    access_.request(std::move(completion));
}

CalendarList IcsFolderStore::calendars() const {
    const auto running = loader();
    return running != nullptr ? running->calendars() : CalendarList();
}

EventList IcsFolderStore::events(const CalendarList& calendars, Instant from, Instant to) const {
    const auto running = loader();
    return running != nullptr ? running->events(calendars, from, to) : EventList();
}

Observation IcsFolderStore::observeChanges(std::function<void()> callback) {
    return observers_.add(std::move(callback));
}

std::vector<StoreProblem> IcsFolderStore::problems() const {
    if (const auto running = loader()) {
        return running->problems();
    }
    if (access_.status() == AuthorizationStatus::Authorized) {
        return {{rootPath_, localized("a folder that cannot be reached")}};
    }
    return {};
}

bool IcsFolderStore::isLoading() const {
    const auto running = loader();
    return running != nullptr && running->isLoading();
}

std::expected<void, QString> IcsFolderStore::addCalendar(const QString& path) {
    if (!canReach(rootPath_)) {
        return std::unexpected(localized("The folder “%1” cannot be reached.").arg(rootPath_));
    }
    return linkCalendar(rootPath_, path);
}

QString IcsFolderStore::fileOf(const QString& calendarIdentifier,
                               const QString& eventIdentifier) const {
    return access_.status() == AuthorizationStatus::Authorized
               ? findEventFile(QFile::encodeName(rootPath_).toStdString(), calendarIdentifier,
                               eventIdentifier, zone_->zone())
               : QString();
}

std::shared_ptr<FolderLoader> IcsFolderStore::loader() const {
    const std::scoped_lock lock(loaderMutex_);
    if (!loader_ && access_.status() == AuthorizationStatus::Authorized &&
        (canReach(rootPath_) || !memory_.calendars().empty())) {
        loader_ = std::make_shared<FolderLoader>(
            QFile::encodeName(rootPath_).toStdString(), zone_->zone(), memory_,
            [this] { mainQueue_->async([this] { observers_.notify(); }); });
    }
    return loader_;
}

void IcsFolderStore::readAgain() {
    std::shared_ptr<FolderLoader> former;
    {
        const std::scoped_lock lock(loaderMutex_);
        former = std::exchange(loader_, nullptr);
    }
    former.reset();
    (void)loader();
    observers_.notify();
}

bool IcsFolderStore::knowsCalendars() const {
    const auto running = loader();
    return running != nullptr ? !running->calendars().empty() : !memory_.calendars().empty();
}

} // namespace quillet
