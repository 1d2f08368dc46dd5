#pragma once

#include "insight/Amounts.h"
#include "insight/DayKinds.h"
#include "insight/RoundedBilling.h"
#include "insight/Slices.h"

#include <QString>

#include <vector>

namespace quillet {

/// A calendar that has a part in the picture.
struct PictureCalendar {
    QString identifier;
    QString title;
    /// As the store has it: "#RRGGBB", a CSS colour name or empty.
    QString colorName;
    /// Over all bars.
    Amounts amounts;
};

/// One calendar's part of a bar.
struct BarPart {
    /// Its index in Picture::calendars.
    std::uint32_t calendar = 0;
    Amounts amounts;
};

/// The time and money of one day, or of the days of one week or month inside the period.
struct Bar {
    /// [start, end), bounds of local days.
    Instant start;
    Instant end;
    /// Of a bar of one day; others are workdays.
    DayKind kind = DayKind::Workday;
    Amounts amounts;
    /// With what rounding adds; the same as `amounts` where nothing is rounded.
    Amounts billed;
    /// From the foot of the stack up, in order of Picture::calendars.
    std::vector<BarPart> parts;
    /// The events that have a part in the bar, ascending.
    std::vector<EventIndex> events;
};

/// The strip of bars over a period. Every minute and every part of a cent is in exactly one bar:
/// what lasts from a day into the next is cut at midnight, as the period cuts what passes its
/// bounds.
struct Picture {
    SliceUnit unit = SliceUnit::Day;
    /// In order of their first events in the list.
    std::vector<PictureCalendar> calendars;
    /// One for every day, week or month of the period, those without events too. At least one.
    std::vector<Bar> bars;
    /// Of all events: what the results panel shows.
    Amounts total;
    /// The highest bar's, for the scale; 0 where none has any.
    std::int64_t mostMinutes = 0;
};

/// Bars of days below 63 days, of weeks below 400, of months from there on.
[[nodiscard]] SliceUnit pictureUnit(std::size_t days);

/// `holidays` are the events of the calendar of holidays, if the user named one; with the surpluses
/// of a rounded bill over the same events the bars tell what is billed, too.
[[nodiscard]] Picture pictureOf(const InsightInput& input, std::span<const Event> holidays = {},
                                std::span<const BilledSurplus> surpluses = {});

/// The days of a bar in words: "Monday, March 4, 2024", "3/3/24 – 3/9/24", "March 2024".
[[nodiscard]] QString barName(const Bar& bar, SliceUnit unit, const LocaleFormats& formats);
/// What a bar says, for the line above it and for a screen reader: its name, its time and money,
/// what is billed where that is something else, and what each calendar has of the time where it is
/// more than one.
[[nodiscard]] QString barText(const Picture& picture, const Bar& bar, TimeUnit unit,
                              const LocaleFormats& formats);

} // namespace quillet
