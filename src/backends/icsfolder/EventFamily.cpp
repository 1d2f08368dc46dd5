#include "backends/icsfolder/EventFamily.h"

#include <algorithm>
#include <utility>

namespace quillet {

using std::chrono::sys_seconds;

namespace {

template <typename Key>
void keepNewestVersions(std::vector<const RawEvent*>& versions, Key key) {
    if (versions.size() < 2) {
        return;
    }
    std::ranges::stable_sort(versions, [&](const RawEvent* left, const RawEvent* right) {
        return std::pair(key(*left), left->version) < std::pair(key(*right), right->version);
    });
    std::vector<const RawEvent*> newest;
    for (const RawEvent* version : versions) {
        if (!newest.empty() && key(*newest.back()) == key(*version)) {
            newest.back() = version;
        } else {
            newest.push_back(version);
        }
    }
    versions = std::move(newest);
}

void keepNewestMasters(std::vector<const RawEvent*>& masters) {
    if (masters.size() < 2) {
        return;
    }
    const auto sequenceOf = [](const RawEvent* event) { return event->version.sequence; };
    const int newest = sequenceOf(std::ranges::max(masters, {}, sequenceOf));
    std::erase_if(masters, [&](const RawEvent* event) { return sequenceOf(event) < newest; });
    keepNewestVersions(masters, [](const RawEvent& event) { return event.start->instant(); });
}

} // namespace

void EventFamily::add(const RawEvent& event) {
    if (event.recurrenceId) {
        exceptions.push_back(&event);
    } else if (event.hasUnreadableRecurrenceId) {
        unplaced.push_back(&event);
    } else {
        masters.push_back(&event);
    }
}

void EventFamily::keepWhatHolds() {
    if (masters.empty()) {
        // An exception that repeats, of nothing, is a series that was cut out of another.
        const auto repeating = std::ranges::stable_partition(
            exceptions, [](const RawEvent* event) { return event->rules.empty(); });
        masters.assign(repeating.begin(), repeating.end());
        exceptions.erase(repeating.begin(), repeating.end());
    }
    if (masters.empty() && exceptions.empty()) {
        // Beside a series they would count one of its occurrences twice.
        masters = std::exchange(unplaced, {});
    }
    keepNewestMasters(masters);
    keepNewestVersions(exceptions, [this](const RawEvent& event) { return originalOf(event); });
}

sys_seconds EventFamily::originalOf(const RawEvent& exception) const {
    const RawTime& named = *exception.recurrenceId;
    if (masters.empty()) {
        return named.instant();
    }
    const RawEvent& master = *masters.front();
    return named.kind == RawTime::Kind::Zoned && !master.isAllDay()
               ? named.instant()
               : master.start->zone->toInstant(inZoneOf(master, named));
}

LocalSeconds inZoneOf(const RawEvent& master, const RawTime& time) {
    const RawTime& start = *master.start;
    const auto dayOf = [](LocalSeconds local) {
        return std::chrono::floor<std::chrono::days>(local);
    };
    if (master.isAllDay()) {
        // A midnight names its day, also that of another zone.
        const bool isDay = time.kind != RawTime::Kind::Zoned || time.local == dayOf(time.local);
        return dayOf(isDay ? time.local : start.zone->toLocal(time.instant()));
    }
    if (time.kind == RawTime::Kind::Date) {
        // A day without a time means the series' time on that day.
        return time.local + (start.local - dayOf(start.local));
    }
    return time.kind == RawTime::Kind::Floating ? time.local : start.zone->toLocal(time.instant());
}

} // namespace quillet
