#pragma once

#include "backends/icsfolder/RecurrenceRule.h"

#include <chrono>
#include <vector>

namespace quillet {

/// Which days and times of day a rule admits, once the parts that it leaves out are taken from the
/// start of its event.
class RecurrenceFilter {
public:
    RecurrenceFilter(const RecurrenceRule& rule, LocalSeconds start);

    [[nodiscard]] bool admitsDay(std::chrono::local_days day) const;
    /// For rules that count in hours or less: whether one may begin in such an hour, minute or
    /// second.
    [[nodiscard]] bool admitsHour(int hour) const;
    [[nodiscard]] bool admitsMinute(int minute) const;
    [[nodiscard]] bool admitsSecond(int second) const;
    /// Offsets from midnight, or from the beginning of the hour, minute or second that the rule
    /// counts by; ascending.
    [[nodiscard]] const std::vector<std::chrono::seconds>& times() const { return times_; }

private:
    [[nodiscard]] bool admitsWeekday(const std::chrono::year_month_day& date,
                                     std::chrono::local_days day) const;
    [[nodiscard]] bool admitsYearDay(const std::chrono::year_month_day& date,
                                     std::chrono::local_days day) const;
    [[nodiscard]] bool admitsWeekNumber(const std::chrono::year_month_day& date,
                                        std::chrono::local_days day) const;
    void takeMissingDayPartsFrom(const std::chrono::year_month_day& date, unsigned weekday);
    void takeMissingMonthFrom(const std::chrono::year_month_day& date);
    void buildTimes(LocalSeconds start);

    RecurrenceRule rule_;
    std::vector<std::chrono::seconds> times_;
    unsigned monthBits_ = 0;
    std::uint32_t monthDayBits_ = 0;
    std::uint32_t monthDayFromEndBits_ = 0;
    unsigned plainWeekdayBits_ = 0;
};

} // namespace quillet
