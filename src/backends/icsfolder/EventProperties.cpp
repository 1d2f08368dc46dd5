#include "backends/icsfolder/EventProperties.h"

#include "backends/icsfolder/WrittenLength.h"
#include "backends/icsfolder/WrittenTime.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quillet {

namespace {

enum class Property {
    Plain,
    Text,
    Start,
    End,
    RecurrenceId,
    Dates,
    Length,
    Rule,
    ExceptionRule,
    Status,
    Modified,
    Stamp,
    AllDayMark,
};

struct NamedProperty {
    std::string_view name;
    Property property;
};

constexpr std::array<NamedProperty, 18> eventProperties = {{
    {"DTSTART", Property::Start},
    {"DTEND", Property::End},
    {"DURATION", Property::Length},
    {"RRULE", Property::Rule},
    {"EXRULE", Property::ExceptionRule},
    {"RDATE", Property::Dates},
    {"EXDATE", Property::Dates},
    {"RECURRENCE-ID", Property::RecurrenceId},
    {"SUMMARY", Property::Text},
    {"LOCATION", Property::Text},
    {"DESCRIPTION", Property::Text},
    {"URL", Property::Plain},
    {"STATUS", Property::Status},
    {"SEQUENCE", Property::Plain},
    {"UID", Property::Plain},
    {"LAST-MODIFIED", Property::Modified},
    {"DTSTAMP", Property::Stamp},
    {"X-MICROSOFT-CDO-ALLDAYEVENT", Property::AllDayMark},
}};
/// The parser drops a line with more values than 500.
constexpr std::size_t mostValuesInLine = 250;

std::optional<Property> eventPropertyNamed(std::string_view name) {
    const auto found = std::ranges::find_if(eventProperties, [&](const NamedProperty& known) {
        return equalsIgnoringCase(name, known.name);
    });
    return found == eventProperties.end() ? std::nullopt : std::optional(found->property);
}

/// Whether the parser would take a character off the end of a text, or it looks like a guard.
bool needsGuard(char edge) {
    return edge == textGuard || std::string_view(" \t\v\f\r").contains(edge);
}

/// Empty when it is no time.
std::string properTime(std::string_view value, bool isMarkedAsDate) {
    auto time = writtenTimeFrom(value);
    if (!time) {
        return {};
    }
    const bool isMidnight = time->local == std::chrono::floor<std::chrono::days>(time->local);
    time->isDate = time->isDate || (isMarkedAsDate && isMidnight);
    return standardForm(*time);
}

/// A PERIOD, or one time. Empty when it is neither.
std::string properDate(std::string_view value, bool isMarkedAsDate) {
    const std::size_t slash = value.find('/');
    std::string start = properTime(withoutBlanks(value.substr(0, slash)), isMarkedAsDate);
    if (slash == std::string_view::npos || start.empty()) {
        return start;
    }
    const std::string_view rest = withoutBlanks(value.substr(slash + 1));
    std::string end = properTime(rest, false);
    if (const auto length = end.empty() ? writtenLengthFrom(rest) : std::nullopt;
        length && !length->isNegative && !length->isCut) {
        end = standardForm(length->length);
    }
    return end.empty() ? end : start + "/" + end;
}

/// Americans write it with one L.
std::string_view statusWord(std::string_view value) {
    return equalsIgnoringCase(value, "CANCELED") ? "CANCELLED" : value;
}

void takeMoment(std::string_view value, std::int64_t& seconds) {
    if (const auto time = writtenTimeFrom(withoutBlanks(value))) {
        seconds = time->local.time_since_epoch().count();
    }
}

} // namespace

EventProperties::EventProperties(IcsBlocks& blocks, BlockWriter& writer)
    : blocks_(blocks)
    , writer_(writer) {}

void EventProperties::take(const PropertyLine& line, std::size_t lineNumber) {
    lineNumber_ = lineNumber;
    const auto property = eventPropertyNamed(line.name());
    if (!property) {
        return;
    }
    switch (*property) {
    case Property::Plain:
        writer_.append(line.leanHead(), writer_.cut(line.value()));
        break;
    case Property::Text:
        appendFreeText(line.leanHead(), writer_.cut(line.value()));
        break;
    case Property::Start:
        appendTime(line, EventComplaint::Kind::Start);
        break;
    case Property::End:
        blocks_.events.back().endLine = lineNumber;
        appendTime(line, EventComplaint::Kind::End);
        break;
    case Property::RecurrenceId:
        blocks_.events.back().hasUnreadableRecurrenceId |=
            !appendTime(line, EventComplaint::Kind::RecurrenceId);
        break;
    case Property::Dates:
        appendDates(line);
        break;
    case Property::Length:
        appendLength(line);
        break;
    case Property::Rule:
        keepRule(line, RuleLine::Kind::Rule);
        break;
    case Property::ExceptionRule:
        keepRule(line, RuleLine::Kind::ExceptionRule);
        break;
    case Property::Status:
        writer_.append("STATUS:", writer_.cut(statusWord(withoutBlanks(line.value()))));
        break;
    case Property::Modified:
        takeMoment(line.value(), blocks_.events.back().lastModified);
        break;
    case Property::Stamp:
        takeMoment(line.value(), blocks_.events.back().stamp);
        break;
    case Property::AllDayMark:
        blocks_.events.back().isMarkedAllDay =
            equalsIgnoringCase(withoutBlanks(line.value()), "TRUE");
        break;
    }
}

void EventProperties::appendFreeText(const std::string& head, std::string_view value) {
    // A backslash at the end would take the guard for a part of its escape sequence.
    if (value.empty() || value.ends_with('\\') ||
        !(needsGuard(value.front()) || needsGuard(value.back()))) {
        writer_.append(head, value);
        return;
    }
    writer_.append(head, textGuard + std::string(value) + textGuard);
}

bool EventProperties::appendTime(const PropertyLine& line, EventComplaint::Kind kind) {
    const std::string value = properTime(withoutBlanks(line.value()), line.isMarkedAsDate());
    if (value.empty()) {
        complain(kind, line.value());
    } else {
        writer_.append(line.leanHead(), value);
    }
    return !value.empty();
}

void EventProperties::appendDates(const PropertyLine& line) {
    const auto kind = equalsIgnoringCase(line.name(), "EXDATE")
                          ? EventComplaint::Kind::ExceptionDate
                          : EventComplaint::Kind::ExtraDate;
    const std::string head = line.leanHead();
    const bool isMarkedAsDate = line.isMarkedAsDate();
    std::string_view rest = line.value();
    std::string some;
    std::size_t count = 0;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(','), rest.size());
        const std::string_view value = withoutBlanks(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (value.empty()) {
            continue;
        }
        const std::string date = properDate(value, isMarkedAsDate);
        if (date.empty()) {
            complain(kind, value);
            continue;
        }
        some += some.empty() ? "" : ",";
        some += date;
        if (++count % mostValuesInLine == 0) {
            writer_.append(head, some);
            some.clear();
        }
    }
    if (!some.empty()) {
        writer_.append(head, some);
    }
}

void EventProperties::appendLength(const PropertyLine& line) {
    const auto written = writtenLengthFrom(withoutBlanks(line.value()));
    if (!written) {
        complain(EventComplaint::Kind::Length, line.value());
        return;
    }
    if (written->isNegative &&
        written->length.days + written->length.seconds != std::chrono::seconds(0)) {
        complain(EventComplaint::Kind::NegativeLength, line.value());
        writer_.append("DURATION:PT0S");
        return;
    }
    if (written->isCut) {
        complain(EventComplaint::Kind::TooLong, line.value());
    }
    writer_.append("DURATION:", standardForm(written->length));
}

void EventProperties::keepRule(const PropertyLine& line, RuleLine::Kind kind) {
    if (line.value().size() <= longestRuleBytes) {
        blocks_.rules.push_back({kind, std::string(line.value()), lineNumber_});
    } else {
        complain(kind == RuleLine::Kind::Rule ? EventComplaint::Kind::Rule
                                              : EventComplaint::Kind::ExceptionRule,
                 line.value());
    }
}

void EventProperties::complain(EventComplaint::Kind kind, std::string_view value) {
    if (blocks_.complaints.size() < mostComplaintsInFile) {
        blocks_.complaints.push_back({kind, shownValue(value), lineNumber_});
    } else {
        ++blocks_.unnamedComplaints;
    }
}

} // namespace quillet
