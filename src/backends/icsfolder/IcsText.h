#pragma once

#include <QString>
#include <QStringList>

#include <expected>
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
constexpr std::size_t mostEventsInFile = 300'000;
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

/// One file taken apart: what matters of each event and time zone, lines unfolded, everything else
/// left out, so that the parser behind never sees attachments, alarms or endless lines.
struct IcsBlocks {
    struct EventBlock {
        /// Offset into `text`, where a null character ends the block.
        std::size_t offset = 0;
        /// Index into `calendars`.
        std::size_t calendar = 0;
    };
    struct CalendarBlock {
        /// Offsets into `text` of the time zones of this calendar.
        std::vector<std::size_t> zones;
    };

    std::string text;
    std::vector<EventBlock> events;
    std::vector<CalendarBlock> calendars;
    /// Of the first calendar in the file that has one; null when none has.
    QString name;
    QString color;
    bool isCalendarFile = false;
    bool endsWithinBlock = false;
    /// Whether something begins in it that the file goes on without ending.
    bool hasUnendedPart = false;
    bool hasCutText = false;
    bool hasTooManyEvents = false;
};

[[nodiscard]] IcsBlocks takeApart(std::string_view utf8);

} // namespace quillet
