#include "backends/icu/IcuCalendarArithmetic.h"

#include <unicode/calendar.h>
#include <unicode/gregocal.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <algorithm>

namespace quillet {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::sys_seconds;

namespace {

/// No calendar counts further than this from 1970, in either direction.
constexpr days farthest(100'000'000);

Instant withinReach(Instant instant) {
    return std::clamp(instant, Instant(-farthest), Instant(farthest));
}

/// What is left of an instant without its milliseconds.
sys_seconds secondOf(Instant instant) {
    return floor<seconds>(withinReach(instant));
}

seconds timeOfDay(LocalSeconds local) {
    return local - floor<days>(local);
}

int field(const icu::Calendar& calendar, UCalendarDateFields name) {
    UErrorCode status = U_ZERO_ERROR;
    return calendar.get(name, status);
}

LocalSeconds localTime(const icu::Calendar& calendar) {
    UErrorCode status = U_ZERO_ERROR;
    return floor<seconds>(std::chrono::local_time<milliseconds>(
        milliseconds(static_cast<std::int64_t>(calendar.getTime(status)))));
}

} // namespace

/// ICU's calendar objects carry the date that they compute with, so that every computation works
/// on a copy of one that nobody changes.
struct IcuCalendarArithmetic::Prototype {
    std::unique_ptr<icu::Calendar> calendar;

    [[nodiscard]] std::unique_ptr<icu::Calendar> copy() const {
        return std::unique_ptr<icu::Calendar>(calendar->clone());
    }
    [[nodiscard]] std::unique_ptr<icu::Calendar> copyAt(LocalSeconds local) const {
        UErrorCode status = U_ZERO_ERROR;
        auto result = copy();
        result->setTime(static_cast<UDate>(milliseconds(local.time_since_epoch()).count()), status);
        return result;
    }
};

IcuCalendarArithmetic::IcuCalendarArithmetic(const QString& locale, const QString& timeZone,
                                             CalendarSystem system)
    : IcuCalendarArithmetic(locale, UserTimeZone::named(timeZone), system) {}

IcuCalendarArithmetic::IcuCalendarArithmetic(const QString& locale,
                                             std::shared_ptr<const UserTimeZone> zone,
                                             CalendarSystem system)
    : prototype_(std::make_unique<Prototype>())
    , zone_(std::move(zone)) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale icuLocale(locale.toLatin1().constData());
    const icu::TimeZone& none = *icu::TimeZone::getGMT();
    if (system == CalendarSystem::Gregorian) {
        auto gregorian = std::make_unique<icu::GregorianCalendar>(none, icuLocale, status);
        // One calendar for all of history: no change of calendar in 1582.
        gregorian->setGregorianChange(-8.64e15, status);
        prototype_->calendar = std::move(gregorian);
    } else {
        prototype_->calendar.reset(icu::Calendar::createInstance(none, icuLocale, status));
    }
}

IcuCalendarArithmetic::~IcuCalendarArithmetic() = default;

DateComponents IcuCalendarArithmetic::components(Instant instant) const {
    const auto calendar = prototype_->copyAt(zone_->rules().toLocal(secondOf(instant)));
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
    return zone_->rules().toInstant(localTime(*calendar));
}

Instant IcuCalendarArithmetic::startOfDay(Instant instant) const {
    const ZoneRules& rules = zone_->rules();
    return rules.firstInstantFrom(floor<days>(rules.toLocal(secondOf(instant))));
}

Instant IcuCalendarArithmetic::add(Instant instant, const DateOffset& offset) const {
    const sys_seconds second = secondOf(instant);
    const sys_seconds moved = movedDays(movedMonths(second, offset), offset.days);
    return moved + (withinReach(instant) - second) + seconds(offset.seconds);
}

sys_seconds IcuCalendarArithmetic::movedMonths(sys_seconds second, const DateOffset& offset) const {
    if (offset.years == 0 && offset.months == 0) {
        return second;
    }
    UErrorCode status = U_ZERO_ERROR;
    const auto calendar = prototype_->copyAt(zone_->rules().toLocal(second));
    calendar->add(UCAL_YEAR, offset.years, status);
    calendar->add(UCAL_MONTH, offset.months, status);
    return zone_->rules().toInstant(localTime(*calendar));
}

sys_seconds IcuCalendarArithmetic::movedDays(sys_seconds second, int count) const {
    const ZoneRules& rules = zone_->rules();
    const seconds wanted = timeOfDay(rules.toLocal(second));
    const sys_seconds moved = second + days(count);
    // A zone that left out a date did not change the time of day, and days are those that were.
    if (timeOfDay(rules.toLocal(moved)) == wanted) {
        return moved;
    }
    const seconds jump = (rules.offsetAt(moved) - rules.offsetAt(second)) % days(1);
    const sys_seconds sameTime = moved - jump;
    // A time that the clocks skip comes to lie behind the jump.
    return timeOfDay(rules.toLocal(sameTime)) == wanted ? sameTime : std::max(sameTime, moved);
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
