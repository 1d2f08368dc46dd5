#pragma once

#include "platform/UserTimeZone.h"

#include <QFileSystemWatcher>
#include <QTimer>

#include <functional>
#include <memory>

namespace quillet {

/// Lets the user's time zone follow the computer's, which changes when its user travels or chooses
/// another one. Seen at once where the system replaces its file, else within half a minute, after a
/// long sleep too.
class SystemZoneWatch {
public:
    using Source = std::function<QTimeZone()>;

    /// Needs a running event loop.
    explicit SystemZoneWatch(std::shared_ptr<UserTimeZone> zone,
                             Source systemZone = &QTimeZone::systemTimeZone);
    SystemZoneWatch(const SystemZoneWatch&) = delete;
    SystemZoneWatch& operator=(const SystemZoneWatch&) = delete;

    /// Looks now.
    void check();

private:
    std::shared_ptr<UserTimeZone> zone_;
    Source systemZone_;
    QFileSystemWatcher files_;
    QTimer timer_;
};

} // namespace quillet
