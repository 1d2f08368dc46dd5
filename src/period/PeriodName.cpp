#include "period/PeriodName.h"

#include "period/DateInspectorController.h"

namespace quillet {

namespace {

/// Whether the text names all of the period and nothing else: its first and last day have the same
/// one, the days before and behind have others. The bounds are a day's first and last second, so
/// that twelve hours lead into the neighbouring day wherever days have 23 to 25 hours.
bool namesItAll(SpanUnit unit, Instant start, Instant end, const LocaleFormats& formats) {
    constexpr std::chrono::hours intoTheNextDay{12};
    const auto nameAt = [&](Instant instant) { return formats.dateSpan(unit, instant, instant); };
    const QString name = nameAt(start);
    return name == nameAt(end) && name != nameAt(start - intoTheNextDay) &&
           name != nameAt(end + intoTheNextDay);
}

} // namespace

QString nameOfPeriod(qint64 kind, Instant start, Instant end, const LocaleFormats& formats) {
    SpanUnit unit = SpanUnit::Days;
    if (kind == static_cast<qint64>(PeriodKind::Month)) {
        unit = SpanUnit::Month;
    } else if (kind == static_cast<qint64>(PeriodKind::Year)) {
        unit = SpanUnit::Year;
    }
    const bool isNamed = unit != SpanUnit::Days && namesItAll(unit, start, end, formats);
    return formats.dateSpan(isNamed ? unit : SpanUnit::Days, start, end);
}

} // namespace quillet
