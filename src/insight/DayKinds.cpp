#include "insight/DayKinds.h"

#include "insight/Slices.h"

#include <algorithm>
#include <chrono>

namespace quillet {

using namespace std::chrono_literals;

DayKinds::DayKinds(const CalendarArithmetic& calendar, std::span<const Event> holidays)
    : calendar_(calendar) {
    std::vector<Span> spans;
    spans.reserve(holidays.size());
    for (const Event& event : holidays) {
        spans.push_back(
            {.start = event.startDate, .end = std::max(event.endDate, event.startDate + 1ms)});
    }
    std::ranges::sort(spans, {}, &Span::start);
    for (const Span& span : spans) {
        if (!holidays_.empty() && span.start <= holidays_.back().end) {
            holidays_.back().end = std::max(holidays_.back().end, span.end);
        } else {
            holidays_.push_back(span);
        }
    }
}

DayKind DayKinds::of(Instant dayStart) const {
    if (isHoliday(dayStart)) {
        return DayKind::Holiday;
    }
    return calendar_.isWeekend(weekdayOf(dayStart, calendar_)) ? DayKind::Weekend
                                                               : DayKind::Workday;
}

bool DayKinds::isHoliday(Instant dayStart) const {
    if (holidays_.empty()) {
        return false;
    }
    const Instant dayEnd = calendar_.startOfDay(calendar_.add(dayStart, {.days = 1}));
    const auto ending = std::ranges::upper_bound(holidays_, dayStart, {}, &Span::end);
    return ending != holidays_.end() && ending->start < dayEnd;
}

} // namespace quillet
