#pragma once

#include "eventdata/BillingSettings.h"
#include "platform/CalendarArithmetic.h"
#include "platform/Event.h"
#include "platform/LocaleFormats.h"

#include <QString>
#include <QVariant>

namespace quillet {

/// Reads the fields of events by name: the store's own and the derived ones. Nothing is kept on
/// the event; every read answers for the settings as they are. Main thread only.
///
/// | key | type |
/// |---|---|
/// | `title`, `location`, `notes`, `URL` | text, invalid when missing |
/// | `eventIdentifier`, `calendarTitle`, `calendarIdentifier` | text |
/// | `isAllDay` | bool |
/// | `startDate`, `endDate`, `adjustedEndDate` | Instant |
/// | `minutes`, `hours`, `rate` | Decimal |
/// | `cost` | Decimal, invalid when money is off |
/// | `duration`, `startTime`, `endTime`, `startWeekday`, `endWeekday` | text |
/// | `timeIntervalSinceStartOfDayForStartDate`, `…ForEndDate` | double, seconds |
class EventFields {
public:
    /// `gregorian` and `current` are calendars in the system time zone; the second is the user's.
    EventFields(BillingSettingsSource& billing, const LocaleFormats& formats,
                const CalendarArithmetic& gregorian, const CalendarArithmetic& current);

    /// Invalid for an unknown key.
    [[nodiscard]] QVariant valueForKey(const Event& event, const QString& key) const;

    [[nodiscard]] const BillingSettings& billing() const { return billing_.current(); }
    /// Announces when billing() has changed.
    [[nodiscard]] const BillingSettingsSource& billingSource() const { return billing_; }
    [[nodiscard]] const LocaleFormats& formats() const { return formats_; }
    [[nodiscard]] const CalendarArithmetic& gregorian() const { return gregorian_; }

    /// `endDate` cut to the whole minute, less one second: the last second of an event that ends
    /// on the minute. So an all-day event ends on its last day.
    [[nodiscard]] Instant adjustedEndDate(const Event& event) const;
    /// The time of day in seconds, by the user's calendar.
    [[nodiscard]] double timeIntervalSinceStartOfDay(Instant instant) const;

private:
    BillingSettingsSource& billing_;
    const LocaleFormats& formats_;
    const CalendarArithmetic& gregorian_;
    const CalendarArithmetic& current_;
};

} // namespace quillet
