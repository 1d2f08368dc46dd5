#pragma once

#include "backends/icsfolder/EventComplaint.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <expected>
#include <limits>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet {

/// Files beyond this size are not read.
constexpr std::int64_t largestFileBytes = std::int64_t(128) * 1024 * 1024;
/// Longer texts are cut.
constexpr std::size_t longestLineBytes = std::size_t(256) * 1024;
/// What is kept of one event; the rest of its lines is dropped.
constexpr std::size_t largestEventBytes = std::size_t(1024) * 1024;
/// A longer repetition rule is none.
constexpr std::size_t longestRuleBytes = std::size_t(8) * 1024;
constexpr std::size_t mostEventsInFile = 300'000;
/// So many lines of a file are named that cannot be read; the others are counted.
constexpr std::size_t mostComplaintsInFile = 20;
constexpr std::size_t mostZonesInFile = 500;

/// Stands at both ends of a title, place or note that begins or ends with a blank: the parser
/// behind would drop such blanks. It has to be taken off again.
constexpr char textGuard = '\x01';

/// The whole content of a regular file. The error says why there is none, for the user.
[[nodiscard]] std::expected<std::string, QString> readWholeFile(const std::string& path);
/// At most so many of its first bytes.
[[nodiscard]] std::expected<std::string, QString> readFileHead(const std::string& path,
                                                               std::size_t bytes);

/// The bytes as UTF-8 without a byte-order mark and without null characters. UTF-16 is recognised
/// by its mark.
[[nodiscard]] std::string asUtf8(std::string bytes);

/// An RRULE or EXRULE.
struct RuleLine {
    enum class Kind { Rule, ExceptionRule };

    Kind kind = Kind::Rule;
    std::string text;
    std::size_t line = 0;
};

/// One file taken apart: what matters of each event and time zone, lines unfolded, values in the
/// form that the standard prescribes, everything else left out, so that the parser behind never
/// sees attachments, alarms, endless lines or what it would drop without a word.
struct IcsBlocks {
    struct EventBlock {
        /// Offset into `text`, where a null character ends the block.
        std::size_t offset = 0;
        /// Index into `calendars`.
        std::size_t calendar = 0;
        /// Indices into `rules` and `complaints`: its own go up to those of the next event.
        std::size_t firstRule = 0;
        std::size_t firstComplaint = 0;
        /// LAST-MODIFIED and DTSTAMP, in seconds since 1970; the earliest number where there is
        /// none.
        std::int64_t lastModified = std::numeric_limits<std::int64_t>::min();
        std::int64_t stamp = std::numeric_limits<std::int64_t>::min();
        /// Whether a program that has no dates marks it as whole days.
        bool isMarkedAllDay = false;
        bool hasUnreadableRecurrenceId = false;
        /// Where its end stands, counted from 1; 0 where it has none.
        std::size_t endLine = 0;
    };
    struct CalendarBlock {
        /// Offsets into `text` of the time zones of this calendar.
        std::vector<std::size_t> zones;
        /// The name of the zone that the whole calendar is said to be in; null without one.
        QString zoneName;
    };

    std::string text;
    std::vector<EventBlock> events;
    std::vector<CalendarBlock> calendars;
    /// In the order of their events.
    std::vector<RuleLine> rules;
    std::vector<EventComplaint> complaints;
    /// How many more there would be.
    std::size_t unnamedComplaints = 0;
    /// Of the first calendar in the file that has one; null when none has.
    QString name;
    QString color;
    bool isCalendarFile = false;
    bool endsWithinBlock = false;
    /// Whether something begins in it that the file goes on without ending.
    bool hasUnendedPart = false;
    bool hasCutText = false;
    bool hasTooManyEvents = false;

    [[nodiscard]] std::span<const RuleLine> rulesOf(std::size_t event) const;
    [[nodiscard]] std::span<const EventComplaint> complaintsOf(std::size_t event) const;
};

/// Ends early when a stop is requested.
[[nodiscard]] IcsBlocks takeApart(std::string_view utf8, const std::stop_token& stop = {});

} // namespace quillet
