#pragma once

#include "platform/ZoneRules.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quillet {

/// Bounds the work that calendar files can cause, so that a hostile one stalls nothing.
class WorkBudget {
public:
    /// A unit is what it costs to look at a day; a generated time costs `unitsPerTime`.
    explicit WorkBudget(std::int64_t units, std::int64_t unitsPerTime = 10)
        : left_(units)
        , unitsPerTime_(unitsPerTime) {}
    /// False once the budget is used up.
    [[nodiscard]] bool spend(std::int64_t units) {
        left_ -= units;
        return left_ >= 0;
    }
    [[nodiscard]] bool spendOnTimes(std::size_t count) {
        return spend(unitsPerTime_ * static_cast<std::int64_t>(count));
    }
    [[nodiscard]] bool isExhausted() const { return left_ < 0; }

private:
    std::int64_t left_;
    std::int64_t unitsPerTime_;
};

/// One RRULE or EXRULE, in the wall-clock time of its event.
struct RecurrenceRule {
    enum class Frequency { Secondly, Minutely, Hourly, Daily, Weekly, Monthly, Yearly };
    /// 0 is Sunday. An ordinal of 0 means every such weekday; -1 the last one of the month or year.
    struct WeekdayPosition {
        int ordinal = 0;
        unsigned weekday = 0;
    };

    Frequency frequency = Frequency::Daily;
    /// 1 or more.
    int interval = 1;
    /// Inclusive.
    std::optional<LocalSeconds> until;
    /// How many occurrences there are, the event's own start included; turned into `until` when the
    /// series is built. Where there is an `until` as well, the earlier end holds.
    std::optional<int> count;
    unsigned weekStart = 1;
    std::vector<int> seconds;
    std::vector<int> minutes;
    std::vector<int> hours;
    std::vector<WeekdayPosition> weekdays;
    std::vector<int> monthDays;
    std::vector<int> yearDays;
    std::vector<int> weekNumbers;
    std::vector<int> months;
    std::vector<int> setPositions;
};

/// Appends the times that the rule generates in [from, to), in order, none before `start`; `start`
/// itself only where it fits the rule. Stops when the budget is used up. `count` is not looked at.
void expandRule(const RecurrenceRule& rule, LocalSeconds start, LocalSeconds from, LocalSeconds to,
                WorkBudget& budget, std::vector<LocalSeconds>& times);

/// The rule with its count turned into the time of its last occurrence, or unchanged when it has
/// none. Nothing when the budget did not suffice.
[[nodiscard]] std::optional<RecurrenceRule>
ruleWithoutCount(const RecurrenceRule& rule, LocalSeconds start, WorkBudget& budget);

} // namespace quillet
