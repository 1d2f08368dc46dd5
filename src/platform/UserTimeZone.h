#pragma once

#include "platform/ZoneRules.h"

#include <QString>

#include <atomic>
#include <vector>

namespace quillet {

/// The time zone in which the program has its days and shows its times. Its rules are those of the
/// system's zone database, and no others are asked, so that a day, an event and a shown time cannot
/// disagree. Read from any thread, changed by one.
class UserTimeZone {
public:
    /// One that is not valid counts as UTC.
    explicit UserTimeZone(const QTimeZone& zone);
    UserTimeZone(const UserTimeZone&) = delete;
    UserTimeZone& operator=(const UserTimeZone&) = delete;

    /// By a name of the zone database; an unknown one counts as UTC.
    [[nodiscard]] static std::shared_ptr<const UserTimeZone> named(const QString& name);

    /// Holds as long as this object, after a change as well.
    [[nodiscard]] const ZoneRules& rules() const { return *rules_.load(std::memory_order_acquire); }
    void change(const QTimeZone& zone);

private:
    /// Every zone of this run: readers may still be at work with the one before. Zones change as
    /// often as their user travels.
    std::vector<std::shared_ptr<const ZoneRules>> all_;
    std::atomic<const ZoneRules*> rules_;
};

} // namespace quillet
