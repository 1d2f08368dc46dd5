#pragma once

#include "eventdata/BillingSettings.h"
#include "platform/CalendarArithmetic.h"
#include "platform/Event.h"

#include <algorithm>
#include <cstdint>

namespace quillet {

/// The minutes of a set of events, added up one by one.
class MinutesSummary {
public:
    void add(std::int64_t minutes) {
        smallest_ = count_ == 0 ? minutes : std::min(smallest_, minutes);
        largest_ = count_ == 0 ? minutes : std::max(largest_, minutes);
        sum_ += minutes;
        ++count_;
    }
    /// All are 0 for the empty set.
    [[nodiscard]] std::int64_t sum() const { return sum_; }
    [[nodiscard]] std::int64_t smallest() const { return smallest_; }
    [[nodiscard]] std::int64_t largest() const { return largest_; }
    /// The arithmetic mean, its fraction dropped.
    [[nodiscard]] std::int64_t mean() const { return count_ == 0 ? 0 : sum_ / count_; }

private:
    std::int64_t sum_ = 0;
    std::int64_t smallest_ = 0;
    std::int64_t largest_ = 0;
    std::int64_t count_ = 0;
};

/// The days from one instant's day to the day on which the other ends, both counted; an end at
/// midnight does not count the day that begins there. Half a day is added before the quotient is
/// cut, so that days of 23 and 25 hours count one each.
[[nodiscard]] int daysCovered(Instant start, Instant end, const CalendarArithmetic& calendar);

} // namespace quillet
