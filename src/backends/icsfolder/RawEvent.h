#pragma once

#include "backends/icsfolder/EventComplaint.h"
#include "backends/icsfolder/IcsText.h"
#include "backends/icsfolder/RecurrenceRule.h"
#include "backends/icsfolder/Series.h"
#include "backends/icsfolder/ZoneCatalog.h"

#include <QByteArray>
#include <QList>
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

/// Tells the versions of an event apart, the newest being the greatest.
struct EventVersion {
    int sequence = 0;
    /// LAST-MODIFIED and DTSTAMP, in seconds since 1970.
    std::int64_t lastModified = std::numeric_limits<std::int64_t>::min();
    std::int64_t stamp = std::numeric_limits<std::int64_t>::min();

    friend auto operator<=>(const EventVersion&, const EventVersion&) = default;
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
    EventVersion version;
    /// Equal for equal texts of a file.
    std::size_t digest = 0;
    bool isCancelled = false;
    bool isThisAndFuture = false;
    /// Whether it is an exception that does not say of what.
    bool hasUnreadableRecurrenceId = false;
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
    std::vector<EventComplaint> complaints;

    [[nodiscard]] bool isAllDay() const { return start->kind == RawTime::Kind::Date; }
    [[nodiscard]] EventLength length() const;
};

/// The zones that the events of one reading named so far. Looking up a name that means nothing is
/// dear, so there is a bound to their number.
class ZoneLookups {
public:
    [[nodiscard]] ZoneCatalog::Rules find(std::string_view name, ZoneCatalog& zones);

private:
    std::map<std::string, ZoneCatalog::Rules, std::less<>> found_;
    std::size_t unknown_ = 0;
};

/// A zone that a name stands for by what else is in the calendar.
struct GuessedZone {
    QByteArray name;
    /// Null where nothing can be guessed.
    ZoneCatalog::Rules rules;
};

/// What reading events needs to know of their file.
struct ReadingContext {
    ZoneCatalog& zones;
    /// The zones that the calendar defines itself, by name.
    std::map<std::string, ZoneCatalog::Rules, std::less<>> definedZones;
    /// Zone names that mean nothing here.
    std::vector<std::string> unknownZones;
    /// Belongs to one thread.
    std::shared_ptr<ZoneLookups> lookups;
    /// The names of zones that the calendar has beside its events, for itself and in definitions.
    QList<QByteArray> zoneHints = {};
    /// What names that say too little stand for by those hints, found so far.
    std::map<std::string, GuessedZone, std::less<>> guessedZones = {};
};

/// One event of a file. Nothing when the parser makes nothing of it. An event without a usable
/// start has none.
[[nodiscard]] std::optional<RawEvent> readEvent(const IcsBlocks& blocks, std::size_t event,
                                                ReadingContext& context);
/// The same for a VEVENT that was parsed elsewhere.
[[nodiscard]] RawEvent readEvent(icalcomponent_impl& component, ReadingContext& context);

} // namespace quillet
