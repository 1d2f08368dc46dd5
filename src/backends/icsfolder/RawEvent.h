#pragma once

#include "backends/icsfolder/RecurrenceRule.h"
#include "backends/icsfolder/Series.h"
#include "backends/icsfolder/ZoneCatalog.h"

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

struct icalcomponent_impl;

namespace quillet {

/// A time as a file gives it.
struct RawTime {
    enum class Kind { Date, Floating, Zoned };

    LocalSeconds local;
    Kind kind = Kind::Floating;
    /// Never null; the system zone for dates and floating times.
    ZoneCatalog::Rules zone;
    /// Whether the file gives it in UTC.
    bool isUtc = false;

    [[nodiscard]] std::chrono::sys_seconds instant() const { return zone->toInstant(local); }
};

/// One VEVENT, read but not yet put together with its exceptions.
struct RawEvent {
    struct Extra {
        RawTime start;
        std::optional<RawTime> end;
        std::optional<EventLength> length;
    };

    QString uid;
    QString title;
    QString location;
    QString notes;
    QString url;
    int sequence = 0;
    bool isCancelled = false;
    bool isThisAndFuture = false;
    /// Whether it names a rule that cannot be followed.
    bool hasUnusableRule = false;
    /// Whether it names a time zone that means nothing here, and is taken as local time.
    bool hasUnknownZone = false;
    std::optional<RawTime> start;
    std::optional<RawTime> end;
    std::optional<EventLength> duration;
    std::optional<RawTime> recurrenceId;
    /// The same as the file writes it.
    QString recurrenceText;
    std::vector<RecurrenceRule> rules;
    std::vector<RecurrenceRule> exceptionRules;
    std::vector<Extra> extras;
    std::vector<RawTime> exceptions;

    [[nodiscard]] bool isAllDay() const { return start->kind == RawTime::Kind::Date; }
    [[nodiscard]] EventLength length() const;
};

/// What reading events needs to know of their file.
struct ReadingContext {
    ZoneCatalog& zones;
    /// The zones that the calendar defines itself, by name.
    std::map<std::string, ZoneCatalog::Rules, std::less<>> definedZones;
    /// Zone names that mean nothing here.
    std::vector<std::string> unknownZones;
};

/// One null-terminated event block. Nothing when the parser makes nothing of it. An event without
/// a usable start has none.
[[nodiscard]] std::optional<RawEvent> readEvent(const char* block, ReadingContext& context);
/// The same for a VEVENT that was parsed already.
[[nodiscard]] RawEvent readEvent(icalcomponent_impl& component, ReadingContext& context);

} // namespace quillet
