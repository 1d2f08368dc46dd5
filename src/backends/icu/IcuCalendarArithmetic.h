#pragma once

#include "platform/CalendarArithmetic.h"

#include <QString>

#include <memory>

namespace quillet {

enum class CalendarSystem {
    Gregorian,
    /// The one of the locale, by its "calendar" keyword or its country's custom.
    OfLocale,
};

/// Calendar arithmetic by ICU.
class IcuCalendarArithmetic final : public CalendarArithmetic {
public:
    /// An ICU locale name and an IANA zone name; unknown ones count as en_US and UTC.
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
    std::unique_ptr<Prototype> prototype_;
};

} // namespace quillet
