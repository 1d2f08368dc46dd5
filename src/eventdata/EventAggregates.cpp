#include "eventdata/EventAggregates.h"

namespace quillet {

int daysCovered(Instant start, Instant end, const CalendarArithmetic& calendar) {
    using std::chrono::seconds;
    const Instant firstSecond = calendar.startOfDay(start);
    const Instant lastSecond = calendar.startOfDay(end - seconds(1)) + seconds(86'399);
    return static_cast<int>((secondsBetween(firstSecond, lastSecond) + 43'200.0) / 86'400.0);
}

} // namespace quillet
