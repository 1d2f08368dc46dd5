#pragma once

#include "platform/CalendarArithmetic.h"
#include "platform/UserTimeZone.h"

#include <QString>

#include <memory>

namespace quillet {

enum class CalendarSystem {
    Gregorian,
    /// The one of the locale, by its "calendar" keyword or its country's custom.
    OfLocale,
};

/// Calendar arithmetic: the calendar is ICU's, which counts in local time and knows no zone; what
/// instant a local time is the user's zone tells.
class IcuCalendarArithmetic final : public CalendarArithmetic {
public:
    /// An ICU locale name; an unknown one counts as en_US. A change of the zone is followed.
    IcuCalendarArithmetic(const QString& locale, std::shared_ptr<const UserTimeZone> zone,
                          CalendarSystem system);
    /// In a zone that stays, by its name; an unknown one counts as UTC.
    IcuCalendarArithmetic(const QString& locale, const QString& timeZone, CalendarSystem system);
    ~IcuCalendarArithmetic() override;
    IcuCalendarArithmetic(const IcuCalendarArithmetic&) = delete;
    IcuCalendarArithmetic& operator=(const IcuCalendarArithmetic&) = delete;

    [[nodiscard]] DateComponents components(Instant instant) const override;
    [[nodiscard]] Instant instant(const DateComponents& components) const override;
    [[nodiscard]] Instant startOfDay(Instant instant) const override;
    [[nodiscard]] Instant add(Instant instant, const DateOffset& offset) const override;
    [[nodiscard]] int firstWeekday() const override;
    [[nodiscard]] bool isWeekend(int weekday) const override;

private:
    struct Prototype;
    [[nodiscard]] std::chrono::sys_seconds movedMonths(std::chrono::sys_seconds second,
                                                       const DateOffset& offset) const;
    [[nodiscard]] std::chrono::sys_seconds movedDays(std::chrono::sys_seconds second,
                                                     int count) const;

    std::unique_ptr<Prototype> prototype_;
    std::shared_ptr<const UserTimeZone> zone_;
};

} // namespace quillet
