#include "backends/icsfolder/RawEvent.h"

#include "backends/icsfolder/EventReader.h"
#include "backends/icsfolder/IcalValues.h"
#include "backends/icsfolder/WrittenLength.h"

#include <algorithm>

namespace quillet {

using std::chrono::days;
using std::chrono::seconds;

namespace {

/// A file that names more zones which nobody knows is not worth the time.
constexpr std::size_t mostUnknownZones = 50;

EventLength allDayLength(const RawEvent& event) {
    days wholeDays{1};
    if (event.end) {
        wholeDays = std::chrono::ceil<days>(event.end->local - event.start->local);
    } else if (event.duration) {
        wholeDays = event.duration->days + std::chrono::ceil<days>(event.duration->seconds);
    }
    return {std::clamp(wholeDays, days(1), longestEvent), seconds(0)};
}

std::size_t digestOf(const IcsBlocks& blocks, std::size_t event) {
    const auto& block = blocks.events[event];
    std::size_t digest = std::hash<std::string_view>()(blocks.text.data() + block.offset);
    const auto mix = [&](std::size_t more) { digest = digest * 31 + more; };
    for (const RuleLine& rule : blocks.rulesOf(event)) {
        mix(std::hash<std::string>()(rule.text));
    }
    mix(static_cast<std::size_t>(block.lastModified));
    mix(static_cast<std::size_t>(block.stamp));
    return digest;
}

} // namespace

EventLength RawEvent::length() const {
    if (isAllDay()) {
        return allDayLength(*this);
    }
    if (end) {
        const seconds exact = end->instant() - start->instant();
        return {days(0), std::clamp(exact, seconds(0), seconds(longestEvent))};
    }
    return duration.value_or(EventLength());
}

ZoneCatalog::Rules ZoneLookups::find(std::string_view name, ZoneCatalog& zones) {
    if (const auto known = found_.find(name); known != found_.end()) {
        return known->second;
    }
    if (unknown_ >= mostUnknownZones) {
        return nullptr;
    }
    auto zone = zones.named(std::string(name));
    unknown_ += zone ? 0 : 1;
    found_.emplace(name, zone);
    return zone;
}

std::optional<RawEvent> readEvent(const IcsBlocks& blocks, std::size_t event,
                                  ReadingContext& context) {
    const auto& block = blocks.events[event];
    const ComponentPointer component(icalparser_parse_string(blocks.text.data() + block.offset));
    if (!component || icalcomponent_isa(component.get()) != ICAL_VEVENT_COMPONENT) {
        return std::nullopt;
    }
    EventReader reader(context);
    reader.takeBeside(blocks, event);
    RawEvent raw = reader.read(*component);
    raw.digest = digestOf(blocks, event);
    return raw;
}

RawEvent readEvent(icalcomponent_impl& component, ReadingContext& context) {
    return EventReader(context).read(component);
}

} // namespace quillet
