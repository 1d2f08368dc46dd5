#pragma once

#include "platform/ObserverList.h"
#include "platform/ZoneRules.h"

#include <QString>

#include <atomic>
#include <vector>

namespace quillet {

/// The time zone in which the program has its days and shows its times. Its rules are those of the
/// system's zone database, and no others are asked, so that a day, an event and a shown time cannot
/// disagree. Its rules are read from any thread; all else is the main thread's.
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
    [[nodiscard]] const QTimeZone& zone() const { return zone_; }
    /// Tells the observers, when the zone is that one already too.
    void change(const QTimeZone& zone);
    /// Whoever keeps what was computed in the zone is told of each change, in order of
    /// registration, with the rules that held before.
    [[nodiscard]] Observation observe(std::function<void(const ZoneRules& former)> changed) const;

private:
    void adopt(const QTimeZone& zone);

    QTimeZone zone_;
    /// Every zone of this run: readers may still be at work with the one before. Zones change as
    /// often as their user travels.
    std::vector<std::shared_ptr<const ZoneRules>> all_;
    std::atomic<const ZoneRules*> rules_;
    mutable ObserverList<std::reference_wrapper<const ZoneRules>> observers_;
};

} // namespace quillet
