#pragma once

#include "eventdata/BillingSettings.h"
#include "platform/CalendarArithmetic.h"
#include "platform/Event.h"
#include "platform/LocaleFormats.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace quillet {

/// What becomes of a text that was made.
enum class TextReuse {
    None,       ///< It is forgotten: right for a cell here and there.
    WithinList, ///< It serves all events of one list.
};

/// The texts of the derived fields of events. Of a list each is formatted once: dates once a day,
/// times once a minute of the day, figures once for each number of minutes and calendar. For one
/// run over the list, while settings, locale and zone stay as they are.
class EventTexts {
public:
    /// All must outlive this. The calendar is the Gregorian one in the zone of the formats.
    EventTexts(const BillingSettings& billing, const LocaleFormats& formats,
               const CalendarArithmetic& calendar, TextReuse reuse = TextReuse::WithinList);

    /// One of the fields below.
    using Field = QString (EventTexts::*)();

    /// The event that the fields below belong to; it must live until the next one is set.
    void setEvent(const Event& event);

    [[nodiscard]] QString startDate() { return shortDate(event_->startDate); }
    /// Of the event's last second: see EventFields::adjustedEndDate().
    [[nodiscard]] QString adjustedEndDate() { return shortDate(adjustedEnd()); }
    [[nodiscard]] QString startTime() { return shortTime(event_->startDate); }
    [[nodiscard]] QString endTime() { return shortTime(event_->endDate); }
    [[nodiscard]] QString startWeekday() { return weekdayName(event_->startDate); }
    [[nodiscard]] QString endWeekday() { return weekdayName(adjustedEnd()); }
    /// Number format.
    [[nodiscard]] QString minutes() { return minutesTexts().minutes; }
    [[nodiscard]] QString hours() { return minutesTexts().hours; }
    [[nodiscard]] QString duration() { return minutesTexts().duration; }
    /// Currency format.
    [[nodiscard]] QString rate() { return calendarTexts().rateText; }
    /// Currency format; null with money off.
    [[nodiscard]] QString cost();
    [[nodiscard]] QString calendarTitle() { return event_->details->calendar->title; }

private:
    struct Day {
        /// Exclusive.
        Instant end;
        /// Whether the clock runs through, 24 hours without a change. On other days every text is
        /// formatted by itself: the same minute may come twice, or a date may return.
        bool isPlain = false;
        QString shortDate;
        QString weekdayName;
    };
    using Days = std::map<Instant, Day>;
    struct MinutesTexts {
        QString minutes;
        QString hours;
        QString duration;
    };
    struct CalendarTexts {
        Decimal rate;
        QString rateText;
        QHash<std::int64_t, QString> costs;
    };

    [[nodiscard]] const Days::value_type& dayOf(Instant instant);
    [[nodiscard]] QString shortDate(Instant instant);
    [[nodiscard]] QString weekdayName(Instant instant);
    [[nodiscard]] QString shortTime(Instant instant);
    [[nodiscard]] Instant adjustedEnd();
    [[nodiscard]] std::int64_t billedMinutes();
    [[nodiscard]] const MinutesTexts& minutesTexts();
    [[nodiscard]] CalendarTexts& calendarTexts();

    const BillingSettings& billing_;
    const LocaleFormats& formats_;
    const CalendarArithmetic& calendar_;
    TextReuse reuse_;
    const Event* event_ = nullptr;
    std::optional<std::int64_t> minutes_;
    /// By their starts.
    Days days_;
    const Days::value_type* lastDay_ = nullptr;
    /// By minute of a plain day; a null text is not made yet.
    std::vector<QString> times_;
    QHash<std::int64_t, MinutesTexts> minutesTexts_;
    /// By calendar identifier.
    QHash<QString, CalendarTexts> calendars_;
};

} // namespace quillet
