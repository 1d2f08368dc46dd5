#pragma once

#include "period/PeriodArithmetic.h"
#include "platform/Clock.h"
#include "platform/Setting.h"

#include <optional>

namespace quillet {

/// The dates of the reporting period. Each is taken from the settings when it is first asked for,
/// the current week's while nothing is stored, and written there whenever it changes.
class PeriodDates {
public:
    PeriodDates(SettingsStore& settings, const Clock& clock, const PeriodArithmetic& arithmetic)
        : settings_(settings)
        , clock_(clock)
        , arithmetic_(arithmetic) {}

    /// Takes the selected date from the settings again.
    void readSelectedDate();

    /// The first second of the period's first day.
    [[nodiscard]] Instant startDate();
    /// The last second of the period's last day.
    [[nodiscard]] Instant endDate();
    /// The first second of a day.
    [[nodiscard]] Instant selectedDate();
    /// Bounds are normalised to whole days; the other bound gives way where the order or the
    /// longest length asks for it.
    void setStartDate(Instant date);
    void setEndDate(Instant date);
    void setBounds(Instant start, Instant end);
    void setSelectedDate(Instant date);

    /// As the settings have them, which others may have written.
    [[nodiscard]] std::optional<Instant> storedStartDate() const;
    [[nodiscard]] std::optional<Instant> storedEndDate() const;
    /// The days of the stored period; 0 while there is none.
    [[nodiscard]] std::int32_t totalDays() const;

private:
    [[nodiscard]] Instant startOfCurrentWeek() const;
    void adopt(const Setting<Instant>& setting, std::optional<Instant>& property, Instant value);

    SettingsStore& settings_;
    const Clock& clock_;
    const PeriodArithmetic& arithmetic_;
    std::optional<Instant> startDate_;
    std::optional<Instant> endDate_;
    std::optional<Instant> selectedDate_;
};

} // namespace quillet
