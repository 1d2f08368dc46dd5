#include "backends/icsfolder/RecurrenceRule.h"

#include "backends/icsfolder/RecurrenceFilter.h"

#include <algorithm>

namespace quillet {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::local_days;
using std::chrono::year_month_day;
using Frequency = RecurrenceRule::Frequency;

namespace {

constexpr std::int64_t lastYear = 2999;

local_days firstOfMonth(std::int64_t monthsSinceYearZero) {
    return local_days(std::chrono::year(static_cast<int>(monthsSinceYearZero / 12)) /
                      std::chrono::month(static_cast<unsigned>(monthsSinceYearZero % 12) + 1) / 1);
}

/// The periods of a rule that counts in days or more, numbered from the one that holds the start.
class Periods {
public:
    Periods(const RecurrenceRule& rule, local_days start)
        : frequency_(rule.frequency)
        , interval_(rule.interval)
        , start_(start) {
        const year_month_day date(start);
        year_ = static_cast<int>(date.year());
        month_ = year_ * 12 + static_cast<unsigned>(date.month()) - 1;
        const unsigned weekday = std::chrono::weekday(start).c_encoding();
        week_ = start - days((weekday + 7 - rule.weekStart) % 7);
    }

    /// A period that ends at or before the day, or the first one.
    [[nodiscard]] std::int64_t indexNear(local_days day) const {
        const year_month_day date(day);
        std::int64_t units = 0;
        switch (frequency_) {
        case Frequency::Yearly:
            units = static_cast<int>(date.year()) - year_;
            break;
        case Frequency::Monthly:
            units = static_cast<int>(date.year()) * 12 +
                    static_cast<int>(static_cast<unsigned>(date.month())) - 1 - month_;
            break;
        case Frequency::Weekly:
            units = (day - week_).count() / 7;
            break;
        default:
            units = (day - start_).count();
            break;
        }
        return std::max<std::int64_t>(0, units / interval_ - 1);
    }

    [[nodiscard]] local_days first(std::int64_t index) const {
        const std::int64_t units = index * interval_;
        switch (frequency_) {
        case Frequency::Yearly:
            return firstOfMonth((year_ + std::min(units, lastYear)) * 12);
        case Frequency::Monthly:
            return firstOfMonth(month_ + std::min(units, lastYear * 12));
        case Frequency::Weekly:
            return week_ + days(units * 7);
        default:
            return start_ + days(units);
        }
    }

    [[nodiscard]] local_days last(local_days first) const {
        const year_month_day date(first);
        switch (frequency_) {
        case Frequency::Yearly:
            return local_days(date.year() / std::chrono::December / 31);
        case Frequency::Monthly:
            return local_days(date.year() / date.month() / std::chrono::last);
        case Frequency::Weekly:
            return first + days(6);
        default:
            return first;
        }
    }

private:
    Frequency frequency_;
    std::int64_t interval_;
    local_days start_;
    std::int64_t year_ = 0;
    std::int64_t month_ = 0;
    local_days week_;
};

/// Keeps of one period's times those at the rule's positions.
void keepPositions(const std::vector<int>& positions, std::vector<LocalSeconds>& times) {
    if (positions.empty()) {
        return;
    }
    std::vector<LocalSeconds> kept;
    const auto size = static_cast<int>(times.size());
    for (const int position : positions) {
        const int index = position > 0 ? position - 1 : size + position;
        if (position != 0 && index >= 0 && index < size) {
            kept.push_back(times[static_cast<std::size_t>(index)]);
        }
    }
    std::ranges::sort(kept);
    kept.erase(std::unique(kept.begin(), kept.end()), kept.end());
    times = std::move(kept);
}

void appendWithin(const std::vector<LocalSeconds>& some, LocalSeconds from, LocalSeconds to,
                  std::vector<LocalSeconds>& times) {
    std::ranges::copy_if(some, std::back_inserter(times),
                         [&](LocalSeconds time) { return time >= from && time < to; });
}

bool countsByTheClock(Frequency frequency) {
    return frequency == Frequency::Hourly || frequency == Frequency::Minutely ||
           frequency == Frequency::Secondly;
}

/// The hour, minute or second that a rule counts by.
std::chrono::seconds clockUnit(Frequency frequency) {
    switch (frequency) {
    case Frequency::Hourly:
        return std::chrono::hours(1);
    case Frequency::Minutely:
        return std::chrono::minutes(1);
    default:
        return std::chrono::seconds(1);
    }
}

/// The first time of the steps that is not before the other.
LocalSeconds nextStep(LocalSeconds time, std::chrono::seconds step, LocalSeconds notBefore) {
    return time + (notBefore - time + step - std::chrono::seconds(1)) / step * step;
}

/// Where to look next when nothing begins at the unit that starts then; nothing when something may.
std::optional<LocalSeconds> skipTarget(const RecurrenceFilter& filter, LocalSeconds unit) {
    const local_days day = floor<days>(unit);
    if (!filter.admitsDay(day)) {
        return day + days(1);
    }
    const LocalSeconds hour = floor<std::chrono::hours>(unit);
    if (!filter.admitsHour(static_cast<int>((hour - day) / std::chrono::hours(1)))) {
        return hour + std::chrono::hours(1);
    }
    const LocalSeconds minute = floor<std::chrono::minutes>(unit);
    if (!filter.admitsMinute(static_cast<int>((minute - hour) / std::chrono::minutes(1)))) {
        return minute + std::chrono::minutes(1);
    }
    const auto second = static_cast<int>((unit - minute).count());
    return filter.admitsSecond(second) ? std::nullopt
                                       : std::optional(unit + std::chrono::seconds(1));
}

void expandByTheClock(const RecurrenceRule& rule, LocalSeconds start, LocalSeconds from,
                      LocalSeconds to, WorkBudget& budget, std::vector<LocalSeconds>& times) {
    const RecurrenceFilter filter(rule, start);
    const std::chrono::seconds unit = clockUnit(rule.frequency);
    const std::chrono::seconds step = unit * std::int64_t(rule.interval);
    const LocalSeconds first = start - (start.time_since_epoch() % unit + unit) % unit;
    const auto skipped = std::max<std::int64_t>(0, (from - first) / step - 1);
    std::vector<LocalSeconds> inUnit;
    for (LocalSeconds current = first + skipped * step; current < to;) {
        if (!budget.spend(1)) {
            return;
        }
        if (const auto target = skipTarget(filter, current)) {
            current = nextStep(current, step, *target);
            continue;
        }
        inUnit.clear();
        for (const std::chrono::seconds offset : filter.times()) {
            inUnit.push_back(current + offset);
        }
        if (!budget.spendOnTimes(inUnit.size())) {
            return;
        }
        keepPositions(rule.setPositions, inUnit);
        appendWithin(inUnit, from, to, times);
        current += step;
    }
}

/// How far to look at first for the times that a count counts.
std::chrono::seconds firstSpan(const RecurrenceRule& rule) {
    constexpr std::int64_t unitsAtOnce = 3600;
    return rule.frequency == Frequency::Minutely || rule.frequency == Frequency::Secondly
               ? clockUnit(rule.frequency) * unitsAtOnce * rule.interval
               : days(400) * std::int64_t(rule.interval);
}

} // namespace

void expandRule(const RecurrenceRule& rule, LocalSeconds start, LocalSeconds from, LocalSeconds to,
                WorkBudget& budget, std::vector<LocalSeconds>& times) {
    from = std::max(from, start);
    to = rule.until ? std::min(to, *rule.until + std::chrono::seconds(1)) : to;
    if (from >= to || !budget.spendOnTimes(1)) {
        return;
    }
    if (countsByTheClock(rule.frequency)) {
        expandByTheClock(rule, start, from, to, budget, times);
        return;
    }
    const RecurrenceFilter filter(rule, start);
    const Periods periods(rule, floor<days>(start));
    std::vector<LocalSeconds> inPeriod;
    for (std::int64_t index = periods.indexNear(floor<days>(from));; ++index) {
        const local_days first = periods.first(index);
        const local_days last = periods.last(first);
        if (first >= to || !budget.spend((last - first).count() + 1)) {
            return;
        }
        inPeriod.clear();
        for (local_days day = first; day <= last; day += days(1)) {
            if (!filter.admitsDay(day)) {
                continue;
            }
            if (!budget.spendOnTimes(filter.times().size())) {
                return;
            }
            for (const std::chrono::seconds time : filter.times()) {
                inPeriod.push_back(day + time);
            }
        }
        keepPositions(rule.setPositions, inPeriod);
        appendWithin(inPeriod, from, to, times);
    }
}

std::optional<RecurrenceRule> ruleWithoutCount(const RecurrenceRule& rule, LocalSeconds start,
                                               WorkBudget& budget) {
    if (!rule.count) {
        return rule;
    }
    RecurrenceRule bounded = rule;
    bounded.count.reset();
    bounded.until = start;
    // The start counts as the first, whether it fits the rule or not.
    auto awaited = static_cast<std::size_t>(*rule.count - 1);
    RecurrenceRule endless = rule;
    endless.until.reset();
    const LocalSeconds horizon = local_days(std::chrono::year(2300) / 1 / 1);
    LocalSeconds from = start + std::chrono::seconds(1);
    std::chrono::seconds span = firstSpan(rule);
    while (awaited > 0 && from < horizon) {
        const LocalSeconds to = std::min(horizon, from + span);
        std::vector<LocalSeconds> times;
        expandRule(endless, start, from, to, budget, times);
        if (budget.isExhausted()) {
            return std::nullopt;
        }
        const std::size_t taken = std::min(awaited, times.size());
        if (taken > 0) {
            bounded.until = times[taken - 1];
        }
        awaited -= taken;
        from = to;
        span = std::min<std::chrono::seconds>(span * 2, days(36500));
    }
    if (rule.until) {
        bounded.until = std::min(*bounded.until, *rule.until);
    }
    return bounded;
}

} // namespace quillet
