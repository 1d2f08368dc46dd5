#include "backends/icsfolder/IcsText.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr std::array<std::string_view, 15> eventProperties = {
    "DTSTART", "DTEND",    "DURATION",    "RRULE", "EXRULE", "RDATE",    "EXDATE", "RECURRENCE-ID",
    "SUMMARY", "LOCATION", "DESCRIPTION", "URL",   "STATUS", "SEQUENCE", "UID"};
constexpr std::array<std::string_view, 6> zoneProperties = {"TZID",    "TZOFFSETFROM", "TZOFFSETTO",
                                                            "DTSTART", "RRULE",        "RDATE"};

constexpr std::array<std::string_view, 3> freeTexts = {"SUMMARY", "LOCATION", "DESCRIPTION"};

/// The parser drops a line with more values than 500.
constexpr std::size_t mostValuesInLine = 250;

bool equalsIgnoringCase(std::string_view left, std::string_view right) {
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(), [](char a, char b) {
               return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 32) : a) == b;
           });
}

bool startsLine(std::string_view line, std::string_view property) {
    return line.size() > property.size() &&
           (line[property.size()] == ':' || line[property.size()] == ';') &&
           equalsIgnoringCase(line.substr(0, property.size()), property);
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) {
        text.remove_suffix(1);
    }
    return text;
}

/// Where the value begins: behind the first colon outside quotes.
std::size_t valueOffset(std::string_view line) {
    bool isQuoted = false;
    for (std::size_t offset = 0; offset < line.size(); ++offset) {
        isQuoted = line[offset] == '"' ? !isQuoted : isQuoted;
        if (line[offset] == ':' && !isQuoted) {
            return offset + 1;
        }
    }
    return line.size();
}

/// Whether the parser would take a character off the end of a text, or it looks like a guard.
bool needsGuard(char edge) {
    return edge == textGuard || std::string_view(" \t\v\f\r").contains(edge);
}

/// Hands out lines with folds undone. A line is a view of the file where it was not folded.
class LineReader {
public:
    explicit LineReader(std::string_view text)
        : rest_(text) {}

    [[nodiscard]] bool next(std::string_view& line) {
        if (rest_.empty()) {
            return false;
        }
        line = physicalLine();
        if (rest_.empty() || !isFold(rest_.front())) {
            return true;
        }
        unfolded_.assign(line);
        while (!rest_.empty() && isFold(rest_.front())) {
            unfolded_.append(physicalLine().substr(1));
        }
        line = unfolded_;
        return true;
    }

private:
    static bool isFold(char character) { return character == ' ' || character == '\t'; }

    std::string_view physicalLine() {
        const std::size_t end = rest_.find('\n');
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        while (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        return line;
    }

    std::string_view rest_;
    std::string unfolded_;
};

/// Walks over the lines of a file and sorts them into blocks.
class Dissector {
public:
    IcsBlocks blocks;

    void take(std::string_view line) {
        // Files that were joined keep the byte-order mark of each.
        if (line.starts_with("\xEF\xBB\xBF")) {
            line.remove_prefix(3);
        }
        if (startsLine(line, "BEGIN")) {
            begin(trimmed(line.substr(6)));
        } else if (startsLine(line, "END")) {
            end(trimmed(line.substr(4)));
        } else if (skippedDepth_ > 0) {
            return;
        } else if (place_ == Place::Event) {
            keepIfWanted(line, eventProperties);
        } else if (place_ == Place::Zone) {
            keepIfWanted(line, zoneProperties);
        } else if (place_ == Place::Calendar) {
            calendarProperty(line);
        }
    }

    void finish() {
        blocks.endsWithinBlock = place_ != Place::Outside;
        closeBlock();
    }

private:
    enum class Place { Outside, Calendar, Event, Zone };

    void begin(std::string_view component) {
        if (equalsIgnoringCase(component, "VCALENDAR")) {
            leaveWhatIsOpen();
            place_ = Place::Calendar;
            blocks.isCalendarFile = true;
            blocks.calendars.emplace_back();
        } else if (equalsIgnoringCase(component, "VEVENT")) {
            // Nothing holds events but a calendar: what is open here was never ended.
            leaveWhatIsOpen();
            openOrSkip(Place::Event, component);
        } else if (skippedDepth_ > 0) {
            ++skippedDepth_;
        } else if (place_ == Place::Zone && !isInObservance_ && isObservance(component)) {
            isInObservance_ = true;
            append("BEGIN:" + std::string(component));
        } else if (equalsIgnoringCase(component, "VTIMEZONE") && !isInBlock()) {
            openOrSkip(Place::Zone, component);
        } else {
            skippedDepth_ = 1;
        }
    }

    [[nodiscard]] bool isInBlock() const { return place_ == Place::Event || place_ == Place::Zone; }

    /// So that something that does not end does not swallow what follows.
    void leaveWhatIsOpen() {
        blocks.hasUnendedPart = blocks.hasUnendedPart || isInBlock() || skippedDepth_ > 0;
        skippedDepth_ = 0;
        if (isInBlock()) {
            closeBlock();
            place_ = Place::Calendar;
        }
    }

    /// There is a bound to the number of blocks.
    void openOrSkip(Place place, std::string_view component) {
        if (isFull(component)) {
            skippedDepth_ = 1;
        } else {
            openBlock(place);
        }
    }

    void end(std::string_view component) {
        if (equalsIgnoringCase(component, "VCALENDAR")) {
            leaveWhatIsOpen();
            place_ = Place::Outside;
        } else if (equalsIgnoringCase(component, "VEVENT") && place_ == Place::Event) {
            blocks.hasUnendedPart = blocks.hasUnendedPart || skippedDepth_ > 0;
            skippedDepth_ = 0;
            closeBlock();
            place_ = Place::Calendar;
        } else if (skippedDepth_ > 0) {
            --skippedDepth_;
        } else if (equalsIgnoringCase(component, "VTIMEZONE") && place_ == Place::Zone) {
            closeBlock();
            place_ = Place::Calendar;
        } else if (place_ == Place::Zone && isInObservance_ && isObservance(component)) {
            isInObservance_ = false;
            append("END:" + std::string(component));
        }
    }

    [[nodiscard]] bool isFull(std::string_view component) {
        if (equalsIgnoringCase(component, "VEVENT")) {
            blocks.hasTooManyEvents = blocks.events.size() >= mostEventsInFile;
            return blocks.hasTooManyEvents;
        }
        return equalsIgnoringCase(component, "VTIMEZONE") && zoneCount_++ >= mostZonesInFile;
    }

    static bool isObservance(std::string_view component) {
        return equalsIgnoringCase(component, "STANDARD") ||
               equalsIgnoringCase(component, "DAYLIGHT");
    }

    void openBlock(Place place) {
        // An event outside of any calendar is still an event.
        blocks.isCalendarFile = true;
        if (blocks.calendars.empty()) {
            blocks.calendars.emplace_back();
        }
        place_ = place;
        blockStart_ = blocks.text.size();
        isBlockFull_ = false;
        isInObservance_ = false;
        if (place == Place::Event) {
            blocks.events.push_back({blocks.text.size(), blocks.calendars.size() - 1});
            append("BEGIN:VEVENT");
        } else {
            blocks.calendars.back().zones.push_back(blocks.text.size());
            append("BEGIN:VTIMEZONE");
        }
    }

    void closeBlock() {
        if (isInBlock()) {
            blockStart_ = blocks.text.size();
            isBlockFull_ = false;
            append(place_ == Place::Event ? "END:VEVENT" : "END:VTIMEZONE");
            blocks.text += '\0';
        }
    }

    template <std::size_t Count>
    void keepIfWanted(std::string_view line, const std::array<std::string_view, Count>& wanted) {
        const auto property = std::ranges::find_if(
            wanted, [&](std::string_view name) { return startsLine(line, name); });
        if (property == wanted.end()) {
            return;
        }
        if (*property == "EXDATE" || *property == "RDATE") {
            appendSplit(line);
        } else if (std::ranges::find(freeTexts, *property) != freeTexts.end()) {
            appendFreeText(cut(line));
        } else {
            append(cut(line));
        }
    }

    void appendFreeText(std::string_view line) {
        const std::string_view head = line.substr(0, valueOffset(line));
        const std::string_view value = line.substr(head.size());
        // A backslash at the end would take the guard for a part of its escape sequence.
        if (value.empty() || value.ends_with('\\') ||
            !(needsGuard(value.front()) || needsGuard(value.back()))) {
            append(line);
            return;
        }
        append(head, textGuard + std::string(value) + textGuard);
    }

    void appendSplit(std::string_view line) {
        const std::string_view head = cut(line.substr(0, valueOffset(line)));
        std::string_view values = line.substr(valueOffset(line));
        while (!values.empty()) {
            std::size_t end = 0;
            for (std::size_t count = 0; count < mostValuesInLine && end < values.size(); ++count) {
                end = std::min(values.find(',', end), values.size() - 1) + 1;
            }
            std::string_view some = values.substr(0, end);
            values.remove_prefix(end);
            while (some.ends_with(',')) {
                some.remove_suffix(1);
            }
            append(head, cut(some));
        }
    }

    std::string_view cut(std::string_view line) {
        if (line.size() <= longestLineBytes) {
            return line;
        }
        blocks.hasCutText = true;
        std::size_t end = longestLineBytes;
        while (end > 0 && (static_cast<unsigned char>(line[end]) & 0xC0U) == 0x80U) {
            --end;
        }
        // Half an escape sequence would stand for something else.
        while (end > 0 && line[end - 1] == '\\') {
            --end;
        }
        return line.substr(0, end);
    }

    void append(std::string_view line, std::string_view more = {}) {
        const std::size_t size = blocks.text.size() - blockStart_ + line.size() + more.size();
        if (isBlockFull_ || size > largestEventBytes) {
            isBlockFull_ = true;
            blocks.hasCutText = true;
            return;
        }
        blocks.text += line;
        blocks.text += more;
        blocks.text += "\r\n";
    }

    void calendarProperty(std::string_view line) {
        const auto takeOnce = [&](QString& target, std::string_view property) {
            if (target.isEmpty() && startsLine(line, property)) {
                const std::string_view value = cut(line.substr(valueOffset(line)));
                target = QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()))
                             .replace(QStringLiteral("\\,"), QStringLiteral(","))
                             .replace(QStringLiteral("\\;"), QStringLiteral(";"))
                             .replace(QStringLiteral("\\\\"), QStringLiteral("\\"))
                             .simplified();
            }
        };
        takeOnce(blocks.name, "X-WR-CALNAME");
        takeOnce(blocks.name, "NAME");
        takeOnce(blocks.color, "X-APPLE-CALENDAR-COLOR");
        takeOnce(blocks.color, "COLOR");
    }

    Place place_ = Place::Outside;
    /// How many components deep the walk is inside one that does not matter.
    int skippedDepth_ = 0;
    bool isInObservance_ = false;
    std::size_t blockStart_ = 0;
    bool isBlockFull_ = false;
    std::size_t zoneCount_ = 0;
};

} // namespace

IcsBlocks takeApart(std::string_view utf8) {
    Dissector dissector;
    dissector.blocks.text.reserve(utf8.size());
    LineReader reader(utf8);
    std::string_view line;
    while (reader.next(line)) {
        dissector.take(line);
    }
    dissector.finish();
    return std::move(dissector.blocks);
}

} // namespace quillet
