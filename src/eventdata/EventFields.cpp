#include "eventdata/EventFields.h"

#include "eventdata/EventFigures.h"

#include <QHash>

namespace quillet {

namespace {

using Reader = QVariant (*)(const EventFields&, const Event&);

QVariant textOrMissing(const QString& text) {
    return text.isNull() ? QVariant() : QVariant(text);
}

QVariant costOrMissing(const std::optional<Decimal>& cost) {
    return cost ? QVariant::fromValue(*cost) : QVariant();
}

using Fields = const EventFields&;
using Source = const Event&;

/// What the store says of an event.
const QHash<QString, Reader>& storedReaders() {
    static const QHash<QString, Reader> table{
        {"title", [](Fields, Source event) { return textOrMissing(event.details->title); }},
        {"location", [](Fields, Source event) { return textOrMissing(event.details->location); }},
        {"notes", [](Fields, Source event) { return textOrMissing(event.details->notes); }},
        {"URL", [](Fields, Source event) { return textOrMissing(event.details->url); }},
        {"eventIdentifier",
         [](Fields, Source event) { return QVariant(event.details->eventIdentifier); }},
        {"calendarTitle",
         [](Fields, Source event) { return QVariant(event.details->calendar->title); }},
        {"calendarIdentifier",
         [](Fields, Source event) {
             return QVariant(event.details->calendar->calendarIdentifier);
         }},
        {"isAllDay", [](Fields, Source event) { return QVariant(event.details->isAllDay); }},
        {"startDate", [](Fields, Source event) { return QVariant::fromValue(event.startDate); }},
        {"endDate", [](Fields, Source event) { return QVariant::fromValue(event.endDate); }},
    };
    return table;
}

/// What follows from the event and the settings.
const QHash<QString, Reader>& derivedReaders() {
    static const QHash<QString, Reader> table{
        {"adjustedEndDate",
         [](Fields fields, Source event) {
             return QVariant::fromValue(fields.adjustedEndDate(event));
         }},
        {"minutes",
         [](Fields fields, Source event) {
             return QVariant::fromValue(
                 Decimal::fromInteger(billableMinutes(event, fields.billing())));
         }},
        {"hours",
         [](Fields fields, Source event) {
             return QVariant::fromValue(figures(event, fields.billing()).hours);
         }},
        {"duration",
         [](Fields fields, Source event) {
             return QVariant(figures(event, fields.billing()).duration);
         }},
        {"rate",
         [](Fields fields, Source event) {
             return QVariant::fromValue(billableRate(event, fields.billing()));
         }},
        {"cost", [](Fields fields,
                    Source event) { return costOrMissing(figures(event, fields.billing()).cost); }},
        {"startTime",
         [](Fields fields, Source event) {
             return QVariant(fields.formats().shortTime(event.startDate));
         }},
        {"endTime",
         [](Fields fields, Source event) {
             return QVariant(fields.formats().shortTime(event.endDate));
         }},
        {"startWeekday",
         [](Fields fields, Source event) {
             return QVariant(fields.formats().weekdayName(event.startDate));
         }},
        {"endWeekday",
         [](Fields fields, Source event) {
             return QVariant(fields.formats().weekdayName(fields.adjustedEndDate(event)));
         }},
        {"timeIntervalSinceStartOfDayForStartDate",
         [](Fields fields, Source event) {
             return QVariant(fields.timeIntervalSinceStartOfDay(event.startDate));
         }},
        {"timeIntervalSinceStartOfDayForEndDate",
         [](Fields fields, Source event) {
             return QVariant(fields.timeIntervalSinceStartOfDay(event.endDate));
         }},
    };
    return table;
}

} // namespace

EventFields::EventFields(BillingSettingsSource& billing, const LocaleFormats& formats,
                         const CalendarArithmetic& gregorian, const CalendarArithmetic& current)
    : billing_(billing)
    , formats_(formats)
    , gregorian_(gregorian)
    , current_(current) {}

QVariant EventFields::valueForKey(const Event& event, const QString& key) const {
    const Reader reader = storedReaders().value(key, derivedReaders().value(key, nullptr));
    return reader == nullptr ? QVariant() : reader(*this, event);
}

Instant EventFields::adjustedEndDate(const Event& event) const {
    DateComponents fields = gregorian_.components(event.endDate);
    // Zones are offset by whole minutes today; where one was not, the seconds still are local ones.
    return std::chrono::floor<std::chrono::seconds>(event.endDate) -
           std::chrono::seconds(fields.second) - std::chrono::seconds(1);
}

double EventFields::timeIntervalSinceStartOfDay(Instant instant) const {
    const DateComponents fields = current_.components(instant);
    return fields.hour * 3600.0 + fields.minute * 60.0 + fields.second;
}

} // namespace quillet
