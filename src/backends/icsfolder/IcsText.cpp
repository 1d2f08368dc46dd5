#include "backends/icsfolder/IcsText.h"

#include "backends/icsfolder/EventProperties.h"
#include "backends/icsfolder/LineReader.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr std::array<std::string_view, 6> zoneProperties = {"TZID",    "TZOFFSETFROM", "TZOFFSETTO",
                                                            "DTSTART", "RRULE",        "RDATE"};

/// Walks over the lines of a file and sorts them into blocks.
class Dissector {
public:
    IcsBlocks blocks;

    void take(std::string_view line, std::size_t lineNumber) {
        lineNumber_ = lineNumber;
        // Files that were joined keep the byte-order mark of each.
        if (line.starts_with("\xEF\xBB\xBF")) {
            line.remove_prefix(3);
        }
        const PropertyLine property(line);
        if (equalsIgnoringCase(property.name(), "BEGIN")) {
            begin(withoutBlanks(property.value()));
        } else if (equalsIgnoringCase(property.name(), "END")) {
            end(withoutBlanks(property.value()));
        } else if (skippedDepth_ > 0) {
            return;
        } else if (place_ == Place::Event) {
            events_.take(property, lineNumber_);
        } else if (place_ == Place::Zone) {
            takeZoneProperty(property);
        } else if (place_ == Place::Calendar) {
            calendarProperty(property);
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
            writer_.append("BEGIN:", component);
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
            writer_.append("END:", component);
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
        isInObservance_ = false;
        if (place == Place::Event) {
            blocks.events.push_back({.offset = blocks.text.size(),
                                     .calendar = blocks.calendars.size() - 1,
                                     .firstRule = blocks.rules.size(),
                                     .firstComplaint = blocks.complaints.size()});
            writer_.begin("VEVENT");
        } else {
            blocks.calendars.back().zones.push_back(blocks.text.size());
            writer_.begin("VTIMEZONE");
        }
    }

    void closeBlock() {
        if (isInBlock()) {
            writer_.end(place_ == Place::Event ? "VEVENT" : "VTIMEZONE");
        }
    }

    void takeZoneProperty(const PropertyLine& line) {
        const auto isName = [&](std::string_view name) {
            return equalsIgnoringCase(line.name(), name);
        };
        if (std::ranges::any_of(zoneProperties, isName)) {
            writer_.append(line.leanHead(), writer_.cut(line.value()));
        }
    }

    void calendarProperty(const PropertyLine& line) {
        const auto takeOnce = [&](QString& target, std::string_view property) {
            if (target.isEmpty() && equalsIgnoringCase(line.name(), property)) {
                const std::string_view value = writer_.cut(line.value());
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
        if (!blocks.calendars.empty()) {
            takeOnce(blocks.calendars.back().zoneName, "X-WR-TIMEZONE");
        }
    }

    Place place_ = Place::Outside;
    std::size_t lineNumber_ = 0;
    BlockWriter writer_{blocks};
    EventProperties events_{blocks, writer_};
    /// How many components deep the walk is inside one that does not matter.
    int skippedDepth_ = 0;
    bool isInObservance_ = false;
    std::size_t zoneCount_ = 0;
};

/// Those from one index to another of which the next event says where it is.
template <typename Line, typename Index>
std::span<const Line> ownLines(const std::vector<Line>& all, const IcsBlocks& blocks,
                               std::size_t event, Index first) {
    const bool isLast = event + 1 == blocks.events.size();
    const std::size_t begin = blocks.events[event].*first;
    const std::size_t end = isLast ? all.size() : blocks.events[event + 1].*first;
    return std::span(all).subspan(begin, end - begin);
}

} // namespace

std::span<const RuleLine> IcsBlocks::rulesOf(std::size_t event) const {
    return ownLines(rules, *this, event, &EventBlock::firstRule);
}

std::span<const EventComplaint> IcsBlocks::complaintsOf(std::size_t event) const {
    return ownLines(complaints, *this, event, &EventBlock::firstComplaint);
}

IcsBlocks takeApart(std::string_view utf8, const std::stop_token& stop) {
    Dissector dissector;
    dissector.blocks.text.reserve(utf8.size());
    LineReader reader(utf8);
    std::string_view line;
    while (!stop.stop_requested() && reader.next(line)) {
        dissector.take(line, reader.lineNumber());
    }
    dissector.finish();
    return std::move(dissector.blocks);
}

} // namespace quillet
