#pragma once

#include "eventdata/BillingSettings.h"
#include "platform/CalendarArithmetic.h"
#include "platform/Event.h"
#include "platform/Instant.h"

#include <cstddef>
#include <span>
#include <vector>

namespace quillet {

/// How finely a period is cut.
enum class SliceUnit { Day, Week, Month };

/// The reporting period, cut into the days, weeks or months of a calendar. Weeks begin as the
/// locale has it; the first and the last slice may be parts of a week or month.
class Slices {
public:
    /// Cuts the period of the settings; where that has no bounds, or lies wide apart, the span of
    /// the events inside it, and never more than a hundred years: what lies outside of that belongs
    /// to the first or the last slice. There is always one slice.
    Slices(SliceUnit unit, const BillingSettings& billing, std::span<const Event> events,
           const CalendarArithmetic& calendar);

    [[nodiscard]] SliceUnit unit() const { return unit_; }
    [[nodiscard]] std::size_t count() const { return starts_.size(); }
    /// Inclusive: the start of a local day.
    [[nodiscard]] Instant start(std::size_t slice) const { return starts_[slice]; }
    /// Exclusive: the next slice's start; of the last one the end of the period, which may lie an
    /// hour off the end of its day where the clock changes.
    [[nodiscard]] Instant end(std::size_t slice) const {
        return slice + 1 < starts_.size() ? starts_[slice + 1] : end_;
    }
    /// The slice that holds the instant; the first or the last for what lies before or after all.
    [[nodiscard]] std::size_t at(Instant instant) const;

private:
    SliceUnit unit_;
    std::vector<Instant> starts_;
    Instant end_;
};

/// A local day, 1 Sunday … 7 Saturday, of an instant.
[[nodiscard]] int weekdayOf(Instant instant, const CalendarArithmetic& calendar);

/// How many days of [start, end) have begun, the days' bounds being the calendar's; at least 1.
[[nodiscard]] std::size_t daysBetween(Instant start, Instant end);

} // namespace quillet
