#pragma once

#include <QTimeZone>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace quillet {

using LocalSeconds = std::chrono::local_seconds;

/// The offsets of one time zone over time, laid out for fast conversion. Immutable.
class ZoneRules {
public:
    struct Transition {
        std::chrono::sys_seconds at;
        std::chrono::seconds offsetAfter;
    };

    /// `firstOffset` holds before the first transition. Transitions come in any order.
    explicit ZoneRules(std::chrono::seconds firstOffset, std::vector<Transition> transitions);
    /// The zone's rules from 1800 to 2200; what holds at the ends holds beyond them. UTC's for a
    /// zone that is not valid.
    [[nodiscard]] static std::shared_ptr<const ZoneRules> fromTimeZone(const QTimeZone& zone);

    /// When rules hold: from an instant on and, where they end, up to another.
    struct Reach {
        std::chrono::sys_seconds first;
        std::optional<std::chrono::sys_seconds> end;
    };
    /// These rules within the reach, and the others before and behind it.
    [[nodiscard]] std::shared_ptr<const ZoneRules> within(const Reach& reach,
                                                          const ZoneRules& others) const;

    /// A time that a forward jump of the clock skips is read with the offset before the jump (02:30
    /// in Berlin in spring is 01:30 UTC), one that comes twice means the first.
    [[nodiscard]] std::chrono::sys_seconds toInstant(LocalSeconds local) const;
    /// The same, but for the first second of a day: one that a forward jump skips is the instant
    /// of the jump, where the day begins.
    [[nodiscard]] std::chrono::sys_seconds firstInstantFrom(LocalSeconds local) const;
    [[nodiscard]] LocalSeconds toLocal(std::chrono::sys_seconds instant) const;
    /// Local time less UTC.
    [[nodiscard]] std::chrono::seconds offsetAt(std::chrono::sys_seconds instant) const;

private:
    struct Entry {
        std::chrono::sys_seconds at;
        /// The first wall-clock time that is read with the offset after the transition.
        LocalSeconds localSwitch;
        std::chrono::seconds offsetAfter;
    };

    std::chrono::seconds firstOffset_;
    std::vector<Entry> entries_;
};

} // namespace quillet
