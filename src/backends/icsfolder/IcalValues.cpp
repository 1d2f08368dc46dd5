#include "backends/icsfolder/IcalValues.h"

#include <QStringDecoder>

namespace quillet {

using std::chrono::sys_seconds;

namespace {

template <std::size_t Size>
std::vector<int> valuesOf(const short (&list)[Size]) {
    std::vector<int> values;
    for (const short value : list) {
        if (value == ICAL_RECURRENCE_ARRAY_MAX) {
            break;
        }
        values.push_back(value);
    }
    return values;
}

std::optional<RecurrenceRule::Frequency> frequencyFrom(icalrecurrencetype_frequency frequency) {
    switch (frequency) {
    case ICAL_HOURLY_RECURRENCE:
        return RecurrenceRule::Frequency::Hourly;
    case ICAL_DAILY_RECURRENCE:
        return RecurrenceRule::Frequency::Daily;
    case ICAL_WEEKLY_RECURRENCE:
        return RecurrenceRule::Frequency::Weekly;
    case ICAL_MONTHLY_RECURRENCE:
        return RecurrenceRule::Frequency::Monthly;
    case ICAL_YEARLY_RECURRENCE:
        return RecurrenceRule::Frequency::Yearly;
    default:
        return std::nullopt;
    }
}

std::optional<LocalSeconds> untilFrom(const icaltimetype& until, const ZoneRules& zone,
                                      bool isAllDay) {
    const auto local = localSecondsFrom(until);
    if (!local) {
        return std::nullopt;
    }
    const auto endOfDay = [](LocalSeconds time) {
        return std::chrono::floor<std::chrono::days>(time) + std::chrono::seconds(86399);
    };
    // A date includes its whole day, also for an event that has a time.
    if (until.is_date != 0) {
        return endOfDay(*local);
    }
    const bool isMidnight = *local == std::chrono::floor<std::chrono::days>(*local);
    if (icaltime_is_utc(until) == 0 || (isAllDay && isMidnight)) {
        return isAllDay ? endOfDay(*local) : *local;
    }
    const LocalSeconds inZone = zone.toLocal(sys_seconds(local->time_since_epoch()));
    return isAllDay ? endOfDay(inZone) : inZone;
}

} // namespace

std::optional<LocalSeconds> localSecondsFrom(const icaltimetype& time) {
    using namespace std::chrono;
    const year_month_day date(year(time.year), month(static_cast<unsigned>(time.month)),
                              day(static_cast<unsigned>(time.day)));
    if (time.year < 1 || time.year > 9999 || !date.ok() || time.hour < 0 || time.hour > 24 ||
        time.minute < 0 || time.minute > 59 || time.second < 0 || time.second > 60) {
        return std::nullopt;
    }
    const LocalSeconds midnight = local_days(date);
    return time.is_date != 0
               ? midnight
               : midnight + hours(time.hour) + minutes(time.minute) + seconds(time.second);
}

QString textFrom(const icalproperty* property) {
    const icalvalue* value = icalproperty_get_value(property);
    const char* text = nullptr;
    switch (value == nullptr ? ICAL_NO_VALUE : icalvalue_isa(value)) {
    case ICAL_TEXT_VALUE:
        text = icalvalue_get_text(value);
        break;
    case ICAL_URI_VALUE:
        text = icalvalue_get_uri(value);
        break;
    case ICAL_STRING_VALUE:
        text = icalvalue_get_string(value);
        break;
    default:
        break;
    }
    if (text == nullptr) {
        return {};
    }
    // Stateless, so that a character cut off at the end counts as an error.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(text));
    return decoder.hasError() ? QString::fromLatin1(text) : decoded;
}

std::optional<RecurrenceRule> ruleFrom(const icalrecurrencetype& recurrence, const ZoneRules& zone,
                                       bool isAllDay) {
    const auto frequency = frequencyFrom(recurrence.freq);
    const bool hasUntil = icaltime_is_null_time(recurrence.until) == 0;
    if (!frequency || recurrence.interval < 1 || recurrence.count < 0 ||
        (hasUntil && recurrence.count > 0) || recurrence.rscale != nullptr) {
        return std::nullopt;
    }
    RecurrenceRule rule;
    rule.frequency = *frequency;
    rule.interval = recurrence.interval;
    if (recurrence.count > 0) {
        rule.count = recurrence.count;
    }
    if (hasUntil) {
        rule.until = untilFrom(recurrence.until, zone, isAllDay);
        if (!rule.until) {
            return std::nullopt;
        }
    }
    rule.weekStart = recurrence.week_start == ICAL_NO_WEEKDAY
                         ? 1U
                         : static_cast<unsigned>(recurrence.week_start - ICAL_SUNDAY_WEEKDAY);
    rule.seconds = valuesOf(recurrence.by_second);
    rule.minutes = valuesOf(recurrence.by_minute);
    rule.hours = valuesOf(recurrence.by_hour);
    for (const int day : valuesOf(recurrence.by_day)) {
        const auto weekday = icalrecurrencetype_day_day_of_week(static_cast<short>(day));
        rule.weekdays.push_back({icalrecurrencetype_day_position(static_cast<short>(day)),
                                 static_cast<unsigned>(weekday - ICAL_SUNDAY_WEEKDAY)});
    }
    rule.monthDays = valuesOf(recurrence.by_month_day);
    rule.yearDays = valuesOf(recurrence.by_year_day);
    rule.weekNumbers = valuesOf(recurrence.by_week_no);
    rule.months = valuesOf(recurrence.by_month);
    rule.setPositions = valuesOf(recurrence.by_set_pos);
    return rule;
}

} // namespace quillet
