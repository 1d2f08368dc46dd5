#pragma once

#include "backends/icsfolder/RawEvent.h"

#include <libical/ical.h>

namespace quillet {

/// Reads one event, as the parser has it and as its file holds it beside. For one use.
class EventReader {
public:
    explicit EventReader(ReadingContext& context)
        : context_(context) {}

    /// What the file says that the parser cannot hold. Before read().
    void takeBeside(const IcsBlocks& blocks, std::size_t event);
    [[nodiscard]] RawEvent read(icalcomponent& component);

private:
    void takeText(icalproperty* property);
    void takeTime(icalproperty* property);
    void takeRule(icalproperty* property);
    void takeRange(icalproperty* property);
    void takeError(icalproperty* property);
    void takeUnreadable(std::string_view property, std::string_view value);
    void takeExtra(icalproperty* property);
    [[nodiscard]] std::optional<RawTime> timeFrom(icalproperty* property);
    [[nodiscard]] std::optional<RawTime> rawTime(const icaltimetype& time, icalproperty* property);
    [[nodiscard]] ZoneCatalog::Rules zoneNamed(std::string_view name);
    [[nodiscard]] ZoneCatalog::Rules guessedZone(std::string_view name);
    void agreeOnZone();
    void becomeAllDay();
    void finishRules(const ZoneRules& zone);
    void checkLength();
    void complain(EventComplaint::Kind kind, std::string_view value, std::size_t line = 0);

    ReadingContext& context_;
    RawEvent event_;
    std::vector<RuleLine> rules_;
    bool isMarkedAllDay_ = false;
    std::size_t endLine_ = 0;
};

} // namespace quillet
