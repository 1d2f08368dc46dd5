#include "period/PeriodDates.h"

#include "platform/Settings.h"

namespace quillet {

std::optional<Instant> PeriodDates::storedStartDate() const {
    return settings::filterStartDate.read(settings_);
}

std::optional<Instant> PeriodDates::storedEndDate() const {
    return settings::filterEndDate.read(settings_);
}

std::int32_t PeriodDates::totalDays() const {
    const auto start = storedStartDate();
    const auto end = storedEndDate();
    return start && end ? arithmetic_.totalDaysFromStartDate(*start, *end) : 0;
}

Instant PeriodDates::startOfCurrentWeek() const {
    return arithmetic_.firstSecondOfWeekFromDate(clock_.now());
}

void PeriodDates::readSelectedDate() {
    setSelectedDate(settings::selectedDate.read(settings_).value_or(startOfCurrentWeek()));
}

Instant PeriodDates::startDate() {
    if (!startDate_) {
        setStartDate(storedStartDate().value_or(startOfCurrentWeek()));
    }
    return *startDate_;
}

Instant PeriodDates::endDate() {
    if (!endDate_) {
        setEndDate(storedEndDate().value_or(arithmetic_.lastSecondOfWeekFromDate(clock_.now())));
    }
    return *endDate_;
}

Instant PeriodDates::selectedDate() {
    if (!selectedDate_) {
        readSelectedDate();
    }
    return *selectedDate_;
}

void PeriodDates::adopt(const Setting<Instant>& setting, std::optional<Instant>& property,
                        Instant value) {
    property = value;
    setting.write(settings_, value);
}

void PeriodDates::setStartDate(Instant date) {
    constexpr int farthest = PeriodArithmetic::longestPeriodDays - 1;
    const Instant start = arithmetic_.normalizedStart(date);
    startDate_ = start;
    if (endDate_ && *endDate_ < start) {
        adopt(settings::filterEndDate, endDate_, arithmetic_.lastSecondOfDayFromDate(start));
    } else if (endDate_ && arithmetic_.totalDaysFromStartDate(start, *endDate_) >
                               PeriodArithmetic::longestPeriodDays) {
        adopt(settings::filterEndDate, endDate_,
              arithmetic_.lastSecondBefore(start, {.days = farthest + 1}));
    }
    adopt(settings::filterStartDate, startDate_, start);
}

void PeriodDates::setEndDate(Instant date) {
    constexpr int farthest = PeriodArithmetic::longestPeriodDays - 1;
    const Instant end = arithmetic_.lastSecondOfDayFromDate(arithmetic_.normalizedStart(date));
    endDate_ = end;
    if (startDate_ && end < *startDate_) {
        adopt(settings::filterStartDate, startDate_, arithmetic_.firstSecondOfDayFromDate(end));
    } else if (startDate_ && arithmetic_.totalDaysFromStartDate(*startDate_, end) >
                                 PeriodArithmetic::longestPeriodDays) {
        adopt(settings::filterStartDate, startDate_,
              arithmetic_.firstSecondAfter(end, {.days = -farthest}));
    }
    adopt(settings::filterEndDate, endDate_, end);
}

void PeriodDates::setBounds(Instant start, Instant end) {
    setStartDate(start);
    setEndDate(end);
}

void PeriodDates::setSelectedDate(Instant date) {
    adopt(settings::selectedDate, selectedDate_, arithmetic_.normalizedStart(date));
}

} // namespace quillet
