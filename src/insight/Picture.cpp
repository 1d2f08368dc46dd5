#include "insight/Picture.h"

#include "insight/EventGroups.h"
#include "insight/EventShares.h"
#include "insight/SummaryTexts.h"
#include "texts/Localized.h"

#include <QStringList>

#include <algorithm>

namespace quillet {

namespace {

constexpr std::size_t daysFromWhichWeeks = 63;
constexpr std::size_t daysFromWhichMonths = 400;

void addTo(Bar& bar, std::uint32_t calendar, EventIndex event, const EventShare& share) {
    bar.amounts.add(share.minutes, share.cost);
    const auto part = std::ranges::lower_bound(bar.parts, calendar, {}, &BarPart::calendar);
    const bool isKnown = part != bar.parts.end() && part->calendar == calendar;
    const auto place =
        isKnown ? part : bar.parts.insert(part, {.calendar = calendar, .amounts = {}});
    place->amounts.add(share.minutes, share.cost);
    if (bar.events.empty() || bar.events.back() != event) {
        bar.events.push_back(event);
    }
}

Picture emptyPicture(const InsightInput& input, const Slices& slices,
                     std::span<const Event> holidays) {
    Picture picture;
    picture.unit = slices.unit();
    if (input.billing.isMoneyOn) {
        picture.total.cost = Decimal();
    }
    const DayKinds kinds(input.calendar, holidays);
    for (std::size_t slice = 0; slice < slices.count(); ++slice) {
        Bar& bar = picture.bars.emplace_back();
        bar.start = slices.start(slice);
        bar.end = slices.end(slice);
        if (picture.unit == SliceUnit::Day) {
            bar.kind = kinds.of(bar.start);
        }
    }
    return picture;
}

Slices slicesFor(const InsightInput& input) {
    const Slices months(SliceUnit::Month, input.billing, input.events, input.calendar);
    const Instant end = months.end(months.count() - 1);
    return {pictureUnit(daysBetween(months.start(0), end)), input.billing, input.events,
            input.calendar};
}

} // namespace

SliceUnit pictureUnit(std::size_t days) {
    if (days >= daysFromWhichMonths) {
        return SliceUnit::Month;
    }
    return days >= daysFromWhichWeeks ? SliceUnit::Week : SliceUnit::Day;
}

Picture pictureOf(const InsightInput& input, std::span<const Event> holidays,
                  std::span<const BilledSurplus> surpluses) {
    const Slices slices = slicesFor(input);
    Picture picture = emptyPicture(input, slices, holidays);
    EventShares shares(slices, input.billing);
    CalendarNumbers numbers;
    EventIndex index = 0;
    for (const Event& event : input.events) {
        const std::uint32_t calendar = numbers.of(event);
        if (calendar == picture.calendars.size()) {
            const StoreCalendar& known = *event.details->calendar;
            picture.calendars.push_back({.identifier = known.calendarIdentifier,
                                         .title = known.title,
                                         .colorName = known.colorName,
                                         .amounts = {}});
        }
        for (const EventShare& share : shares.of(event)) {
            addTo(picture.bars[share.slice], calendar, index, share);
            picture.calendars[calendar].amounts.add(share.minutes, share.cost);
            picture.total.add(share.minutes, share.cost);
        }
        ++index;
    }
    for (Bar& bar : picture.bars) {
        picture.mostMinutes = std::max(picture.mostMinutes, bar.amounts.minutes);
        bar.billed = bar.amounts;
    }
    for (const BilledSurplus& surplus : surpluses) {
        picture.bars[slices.at(surplus.day)].billed.add(surplus.amounts.minutes,
                                                        surplus.amounts.cost);
    }
    return picture;
}

QString barName(const Bar& bar, SliceUnit unit, const LocaleFormats& formats) {
    if (unit == SliceUnit::Day) {
        return QStringLiteral("%1, %2").arg(formats.weekdayName(bar.start),
                                            formats.longDate(bar.start));
    }
    SummaryRow named;
    named.key = unit == SliceUnit::Week ? SummaryKey::Week : SummaryKey::Month;
    named.start = bar.start;
    named.end = bar.end;
    return summaryRowName(named, formats);
}

QString barText(const Picture& picture, const Bar& bar, TimeUnit unit,
                const LocaleFormats& formats) {
    QStringList amounts{timeWithUnit(bar.amounts.minutes, unit, formats)};
    if (bar.amounts.cost) {
        amounts.append(formats.currency(*bar.amounts.cost));
    }
    if (bar.billed.minutes != bar.amounts.minutes) {
        amounts = {billedText(bar.amounts, bar.billed, unit, formats)};
    }
    QString text = QStringLiteral("%1: %2").arg(barName(bar, picture.unit, formats),
                                                amounts.join(QStringLiteral(", ")));
    if (bar.parts.size() > 1) {
        QStringList parts;
        for (const BarPart& part : bar.parts) {
            parts.append(picture.calendars[part.calendar].title + u' ' +
                         timeWithUnit(part.amounts.minutes, unit, formats));
        }
        text += QStringLiteral(" (%1)").arg(parts.join(QStringLiteral(", ")));
    }
    return text;
}

} // namespace quillet
