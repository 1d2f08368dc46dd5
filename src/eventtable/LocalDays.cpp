#include "eventtable/LocalDays.h"

#include <chrono>
#include <iterator>

namespace quillet {

using namespace std::chrono_literals;

int LocalDays::secondsOfDay(Instant instant) {
    const Days::value_type* day = dayOf(instant);
    if (day != nullptr && day->second.isPlain) {
        return static_cast<int>((instant - day->first) / 1s);
    }
    const DateComponents fields = calendar_.components(instant);
    return fields.hour * 3600 + fields.minute * 60 + fields.second;
}

int LocalDays::weekday(Instant instant) {
    const Days::value_type* day = dayOf(instant);
    return day != nullptr && day->second.isPlain ? day->second.weekday
                                                 : calendar_.components(instant).weekday;
}

void LocalDays::forget() {
    days_.clear();
    lastDay_ = nullptr;
}

const LocalDays::Days::value_type* LocalDays::dayOf(Instant instant) {
    const auto holds = [&](const Days::value_type& day) {
        return day.first <= instant && instant < day.second.end;
    };
    // Lists are mostly in order: the day of the event before is likely.
    if (lastDay_ != nullptr && holds(*lastDay_)) {
        return lastDay_;
    }
    auto found = days_.upper_bound(instant);
    if (found == days_.begin() || !holds(*std::prev(found))) {
        const Instant start = calendar_.startOfDay(instant);
        const Instant end = calendar_.startOfDay(calendar_.add(start, {.days = 1}));
        if (instant < start || instant >= end) {
            return nullptr;
        }
        const Day day{.end = end,
                      .isPlain = end - start == 24h,
                      .weekday = calendar_.components(start).weekday};
        found = std::next(days_.insert_or_assign(start, day).first);
    }
    lastDay_ = &*std::prev(found);
    return lastDay_;
}

} // namespace quillet
