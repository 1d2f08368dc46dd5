#include "platform/SystemZoneWatch.h"

#include <QObject>

namespace quillet {

namespace {

constexpr std::chrono::seconds between{30};

} // namespace

SystemZoneWatch::SystemZoneWatch(std::shared_ptr<UserTimeZone> zone, Source systemZone)
    : zone_(std::move(zone))
    , systemZone_(std::move(systemZone)) {
    // The folder, since what is replaced is a link in it.
    files_.addPath(QStringLiteral("/etc"));
    QObject::connect(&files_, &QFileSystemWatcher::directoryChanged, &files_, [this] { check(); });
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { check(); });
    timer_.start(between);
}

void SystemZoneWatch::check() {
    const QTimeZone now = systemZone_();
    if (now.isValid() && now.id() != zone_->zone().id()) {
        zone_->change(now);
    }
}

} // namespace quillet
