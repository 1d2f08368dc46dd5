#include "backends/icsfolder/WrittenRule.h"

#include "backends/icsfolder/WrittenTime.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace quillet {

using Frequency = RecurrenceRule::Frequency;

namespace {

std::string_view trimmed(std::string_view text) {
    const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// Calls for each piece between separators until one is refused. Whether all were taken.
template <typename Visitor>
bool forEachPiece(std::string_view text, char separator, Visitor visit) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        const std::string_view piece = trimmed(text.substr(0, end));
        if (!piece.empty() && !visit(piece)) {
            return false;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return true;
}

std::optional<int> numberFrom(std::string_view text) {
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number)
                                                                    : std::nullopt;
}

std::optional<unsigned> weekdayFrom(std::string_view text) {
    static constexpr std::array<std::string_view, 7> names = {"SU", "MO", "TU", "WE",
                                                              "TH", "FR", "SA"};
    const auto found = std::ranges::find(names, text);
    return found == names.end() ? std::nullopt
                                : std::optional(static_cast<unsigned>(found - names.begin()));
}

std::optional<Frequency> frequencyFrom(std::string_view text) {
    static constexpr std::array<std::pair<std::string_view, Frequency>, 7> names = {
        {{"DAILY", Frequency::Daily},
         {"WEEKLY", Frequency::Weekly},
         {"MONTHLY", Frequency::Monthly},
         {"YEARLY", Frequency::Yearly},
         {"HOURLY", Frequency::Hourly},
         {"MINUTELY", Frequency::Minutely},
         {"SECONDLY", Frequency::Secondly}}};
    const auto found =
        std::ranges::find(names, text, [](const auto& entry) { return entry.first; });
    return found == names.end() ? std::nullopt : std::optional(found->second);
}

LocalSeconds endOfDay(LocalSeconds time) {
    return std::chrono::floor<std::chrono::days>(time) + std::chrono::seconds(86399);
}

LocalSeconds untilFrom(const WrittenTime& until, const ZoneRules& zone, bool isAllDay) {
    // A date includes its whole day, also for an event that has a time.
    if (until.isDate) {
        return endOfDay(until.local);
    }
    const bool isMidnight = until.local == std::chrono::floor<std::chrono::days>(until.local);
    if (!until.isUtc || (isAllDay && isMidnight)) {
        return isAllDay ? endOfDay(until.local) : until.local;
    }
    const LocalSeconds inZone =
        zone.toLocal(std::chrono::sys_seconds(until.local.time_since_epoch()));
    return isAllDay ? endOfDay(inZone) : inZone;
}

/// The numbers that a part may hold: from `lowest` to `highest`, below zero too where a part counts
/// from the end.
struct Bounds {
    enum class Sign { Positive, Either };
    int lowest;
    int highest;
    Sign sign = Sign::Positive;
};

class RuleReader {
public:
    RuleReader(const ZoneRules& zone, bool isAllDay)
        : zone_(zone)
        , isAllDay_(isAllDay) {}

    [[nodiscard]] std::optional<RecurrenceRule> read(std::string_view text) {
        std::string upper(text);
        std::ranges::transform(upper, upper.begin(), [](char character) {
            return character >= 'a' && character <= 'z' ? static_cast<char>(character - 32)
                                                        : character;
        });
        const bool isRead = forEachPiece(upper, ';', [this](std::string_view part) {
            const std::size_t equals = part.find('=');
            return equals != std::string_view::npos &&
                   takePart(trimmed(part.substr(0, equals)), trimmed(part.substr(equals + 1)));
        });
        return isRead && hasFrequency_ && finish() ? std::optional(std::move(rule_)) : std::nullopt;
    }

private:
    bool takePart(std::string_view name, std::string_view value) {
        if (name.starts_with("BY")) {
            return takeList(name, value);
        }
        if (name == "FREQ") {
            const auto frequency = frequencyFrom(value);
            rule_.frequency = frequency.value_or(rule_.frequency);
            hasFrequency_ = frequency.has_value();
            return hasFrequency_;
        }
        if (name == "INTERVAL") {
            const auto interval = numberFrom(value);
            rule_.interval = std::max(1, interval.value_or(1));
            return interval && *interval >= 0;
        }
        if (name == "COUNT") {
            rule_.count = numberFrom(value);
            return rule_.count.has_value();
        }
        if (name == "UNTIL") {
            const auto until = writtenTimeFrom(value);
            if (until) {
                rule_.until = untilFrom(*until, zone_, isAllDay_);
            }
            return until.has_value();
        }
        if (name == "WKST") {
            const auto weekday = weekdayFrom(value);
            rule_.weekStart = weekday.value_or(1);
            return weekday.has_value();
        }
        return (name == "RSCALE" && value == "GREGORIAN") || (name == "SKIP" && value == "OMIT") ||
               name.starts_with("X-");
    }

    bool takeList(std::string_view name, std::string_view value) {
        if (name == "BYDAY") {
            return forEachPiece(value, ',', [this](std::string_view day) { return takeDay(day); });
        }
        if (name == "BYMONTHDAY") {
            return takeNumbers(value, rule_.monthDays, {1, 31, Bounds::Sign::Either});
        }
        if (name == "BYMONTH") {
            return takeNumbers(value, rule_.months, {1, 12});
        }
        if (name == "BYSETPOS") {
            return takeNumbers(value, rule_.setPositions, {1, 366, Bounds::Sign::Either});
        }
        if (name == "BYYEARDAY") {
            return takeNumbers(value, rule_.yearDays, {1, 366, Bounds::Sign::Either});
        }
        if (name == "BYWEEKNO") {
            return takeNumbers(value, rule_.weekNumbers, {1, 53, Bounds::Sign::Either});
        }
        if (name == "BYHOUR") {
            return takeNumbers(value, rule_.hours, {0, 23});
        }
        if (name == "BYMINUTE") {
            return takeNumbers(value, rule_.minutes, {0, 59});
        }
        return name == "BYSECOND" && takeNumbers(value, rule_.seconds, {0, 60});
    }

    static bool takeNumbers(std::string_view value, std::vector<int>& numbers, Bounds bounds) {
        const bool areAllRead = forEachPiece(value, ',', [&](std::string_view text) {
            const auto number = numberFrom(text);
            const int size = number ? std::abs(std::max(*number, -bounds.highest - 1)) : 0;
            if (!number || size < bounds.lowest || size > bounds.highest ||
                (*number < 0 && bounds.sign == Bounds::Sign::Positive)) {
                return false;
            }
            numbers.push_back(*number);
            return true;
        });
        // Each number counts once, and a long list costs no more than a full one.
        std::ranges::sort(numbers);
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        return areAllRead;
    }

    bool takeDay(std::string_view text) {
        constexpr int mostInYear = 53;
        const auto weekday = weekdayFrom(text.substr(text.size() < 2 ? 0 : text.size() - 2));
        const std::string_view ordinalText =
            text.substr(0, text.size() - std::min<std::size_t>(2, text.size()));
        const auto ordinal = ordinalText.empty() ? std::optional(0) : numberFrom(ordinalText);
        if (!weekday || !ordinal || *ordinal < -mostInYear || *ordinal > mostInYear) {
            return false;
        }
        const auto isSame = [&](const RecurrenceRule::WeekdayPosition& position) {
            return position.ordinal == *ordinal && position.weekday == *weekday;
        };
        if (std::ranges::none_of(rule_.weekdays, isSame)) {
            rule_.weekdays.push_back({*ordinal, *weekday});
        }
        return true;
    }

    /// Whether what the parts say together can be followed.
    bool finish() {
        if (rule_.count && *rule_.count < 1) {
            if (!rule_.until) {
                return false;
            }
            rule_.count.reset();
        }
        if (!isAllDay_) {
            return true;
        }
        // Whole days have no clock to repeat by.
        rule_.hours.clear();
        rule_.minutes.clear();
        rule_.seconds.clear();
        return rule_.frequency == Frequency::Daily || rule_.frequency == Frequency::Weekly ||
               rule_.frequency == Frequency::Monthly || rule_.frequency == Frequency::Yearly;
    }

    const ZoneRules& zone_;
    bool isAllDay_;
    bool hasFrequency_ = false;
    RecurrenceRule rule_;
};

} // namespace

std::optional<RecurrenceRule> writtenRuleFrom(std::string_view text, const ZoneRules& zone,
                                              bool isAllDay) {
    return RuleReader(zone, isAllDay).read(text);
}

} // namespace quillet
