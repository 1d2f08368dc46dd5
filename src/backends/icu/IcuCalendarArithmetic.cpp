#include "backends/icu/IcuCalendarArithmetic.h"

#include <unicode/calendar.h>
#include <unicode/gregocal.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

namespace quillet {

namespace {

UDate toUDate(Instant instant) {
    return static_cast<UDate>(instant.time_since_epoch().count());
}

Instant toInstant(UDate date) {
    return Instant(std::chrono::milliseconds(static_cast<std::int64_t>(date)));
}

int field(const icu::Calendar& calendar, UCalendarDateFields name) {
    UErrorCode status = U_ZERO_ERROR;
    return calendar.get(name, status);
}

Instant time(const icu::Calendar& calendar) {
    UErrorCode status = U_ZERO_ERROR;
    return toInstant(calendar.getTime(status));
}

} // namespace

/// ICU's calendar objects carry the date that they compute with, so that every computation works
/// on a copy of one that nobody changes.
struct IcuCalendarArithmetic::Prototype {
    std::unique_ptr<icu::Calendar> calendar;

    [[nodiscard]] std::unique_ptr<icu::Calendar> copy() const {
        return std::unique_ptr<icu::Calendar>(calendar->clone());
    }
    [[nodiscard]] std::unique_ptr<icu::Calendar> copyAt(Instant instant) const {
        UErrorCode status = U_ZERO_ERROR;
        auto result = copy();
        result->setTime(toUDate(instant), status);
        return result;
    }
};

IcuCalendarArithmetic::IcuCalendarArithmetic(const QString& locale, const QString& timeZone,
                                             CalendarSystem system)
    : prototype_(std::make_unique<Prototype>()) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale icuLocale(locale.toLatin1().constData());
    // The calendar owns its zone; an unknown name makes ICU's unknown zone, which is UTC.
    icu::TimeZone* zone = icu::TimeZone::createTimeZone(
        icu::UnicodeString(timeZone.utf16(), static_cast<int32_t>(timeZone.size())));
    if (system == CalendarSystem::Gregorian) {
        auto gregorian = std::make_unique<icu::GregorianCalendar>(zone, icuLocale, status);
        // One calendar for all of history: no change of calendar in 1582.
        gregorian->setGregorianChange(-8.64e15, status);
        prototype_->calendar = std::move(gregorian);
    } else {
        prototype_->calendar.reset(icu::Calendar::createInstance(zone, icuLocale, status));
    }
    prototype_->calendar->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
}

IcuCalendarArithmetic::~IcuCalendarArithmetic() = default;

DateComponents IcuCalendarArithmetic::components(Instant instant) const {
    const auto calendar = prototype_->copyAt(instant);
    return {.year = field(*calendar, UCAL_EXTENDED_YEAR),
            .month = field(*calendar, UCAL_MONTH) + 1,
            .day = field(*calendar, UCAL_DAY_OF_MONTH),
            .hour = field(*calendar, UCAL_HOUR_OF_DAY),
            .minute = field(*calendar, UCAL_MINUTE),
            .second = field(*calendar, UCAL_SECOND),
            .weekday = field(*calendar, UCAL_DAY_OF_WEEK)};
}

Instant IcuCalendarArithmetic::instant(const DateComponents& components) const {
    const auto calendar = prototype_->copy();
    calendar->clear();
    calendar->set(UCAL_EXTENDED_YEAR, components.year);
    calendar->set(UCAL_MONTH, components.month - 1);
    calendar->set(UCAL_DAY_OF_MONTH, components.day);
    calendar->set(UCAL_HOUR_OF_DAY, components.hour);
    calendar->set(UCAL_MINUTE, components.minute);
    calendar->set(UCAL_SECOND, components.second);
    return time(*calendar);
}

Instant IcuCalendarArithmetic::startOfDay(Instant instant) const {
    const auto calendar = prototype_->copyAt(instant);
    calendar->setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
    for (const UCalendarDateFields name :
         {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND}) {
        calendar->set(name, 0);
    }
    return time(*calendar);
}

Instant IcuCalendarArithmetic::add(Instant instant, const DateOffset& offset) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto calendar = prototype_->copyAt(instant);
    calendar->add(UCAL_YEAR, offset.years, status);
    calendar->add(UCAL_MONTH, offset.months, status);
    calendar->add(UCAL_DAY_OF_MONTH, offset.days, status);
    calendar->add(UCAL_SECOND, offset.seconds, status);
    return time(*calendar);
}

int IcuCalendarArithmetic::firstWeekday() const {
    UErrorCode status = U_ZERO_ERROR;
    return prototype_->calendar->getFirstDayOfWeek(status);
}

bool IcuCalendarArithmetic::isWeekend(int weekday) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto day = static_cast<UCalendarDaysOfWeek>(weekday);
    return prototype_->calendar->getDayOfWeekType(day, status) != UCAL_WEEKDAY;
}

} // namespace quillet
