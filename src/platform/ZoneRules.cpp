#include "platform/ZoneRules.h"

#include <QDateTime>

#include <algorithm>
#include <ranges>

namespace quillet {

using std::chrono::seconds;
using std::chrono::sys_seconds;

ZoneRules::ZoneRules(seconds firstOffset, std::vector<Transition> transitions)
    : firstOffset_(firstOffset) {
    std::ranges::stable_sort(transitions, {}, &Transition::at);
    seconds before = firstOffset;
    for (const Transition& transition : transitions) {
        const seconds later = std::max(before, transition.offsetAfter);
        entries_.push_back({transition.at, LocalSeconds((transition.at + later).time_since_epoch()),
                            transition.offsetAfter});
        before = transition.offsetAfter;
    }
}

std::shared_ptr<const ZoneRules> ZoneRules::fromTimeZone(const QTimeZone& zone) {
    if (!zone.isValid()) {
        return std::make_shared<const ZoneRules>(seconds(0), std::vector<Transition>());
    }
    const QDateTime first(QDate(1800, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime last(QDate(2200, 1, 1), QTime(0, 0), Qt::UTC);
    std::vector<Transition> transitions;
    const auto add = [&](const QDateTime& at) {
        transitions.push_back(
            {sys_seconds(seconds(at.toSecsSinceEpoch())), seconds(zone.offsetFromUtc(at))});
    };
    QDateTime latest(QDate(2037, 1, 1), QTime(0, 0), Qt::UTC);
    for (const QTimeZone::OffsetData& data : zone.transitions(first, last)) {
        add(data.atUtc);
        latest = std::max(latest, data.atUtc);
    }
    // That list ends with 2037; the rules that go on are told one transition at a time.
    for (;;) {
        const QDateTime next = zone.nextTransition(latest.addSecs(1)).atUtc;
        if (!next.isValid() || next <= latest || next > last) {
            break;
        }
        add(next);
        latest = next;
    }
    return std::make_shared<const ZoneRules>(seconds(zone.offsetFromUtc(first)),
                                             std::move(transitions));
}

std::shared_ptr<const ZoneRules> ZoneRules::within(const Reach& reach,
                                                   const ZoneRules& others) const {
    std::vector<Transition> transitions;
    const auto take = [&](const Entry& entry) {
        transitions.push_back({entry.at, entry.offsetAfter});
    };
    const auto isOwn = [&](const Entry& entry) {
        return entry.at >= reach.first && (!reach.end || entry.at < *reach.end);
    };
    for (const Entry& entry : others.entries_) {
        if (entry.at < reach.first) {
            take(entry);
        }
    }
    if (!reach.end || reach.first < *reach.end) {
        transitions.push_back({reach.first, offsetAt(reach.first)});
    }
    std::ranges::for_each(entries_ | std::views::filter(isOwn), take);
    if (reach.end) {
        transitions.push_back({*reach.end, others.offsetAt(*reach.end)});
        for (const Entry& entry : others.entries_) {
            if (entry.at > *reach.end) {
                take(entry);
            }
        }
    }
    return std::make_shared<const ZoneRules>(others.firstOffset_, std::move(transitions));
}

sys_seconds ZoneRules::toInstant(LocalSeconds local) const {
    const auto next = std::ranges::upper_bound(entries_, local, {}, &Entry::localSwitch);
    const seconds offset = next == entries_.begin() ? firstOffset_ : std::prev(next)->offsetAfter;
    return sys_seconds(local.time_since_epoch() - offset);
}

sys_seconds ZoneRules::firstInstantFrom(LocalSeconds local) const {
    const sys_seconds instant = toInstant(local);
    if (toLocal(instant) == local) {
        return instant;
    }
    const auto next = std::ranges::upper_bound(entries_, instant, {}, &Entry::at);
    return next == entries_.begin() ? instant : std::prev(next)->at;
}

LocalSeconds ZoneRules::toLocal(sys_seconds instant) const {
    return LocalSeconds(instant.time_since_epoch() + offsetAt(instant));
}

seconds ZoneRules::offsetAt(sys_seconds instant) const {
    const auto next = std::ranges::upper_bound(entries_, instant, {}, &Entry::at);
    return next == entries_.begin() ? firstOffset_ : std::prev(next)->offsetAfter;
}

} // namespace quillet
