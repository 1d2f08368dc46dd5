#include "insight/WeekGrid.h"

#include "insight/EventGroups.h"
#include "insight/EventShares.h"
#include "insight/Slices.h"
#include "insight/SummaryTexts.h"
#include "texts/Localized.h"

#include <QStringList>

#include <algorithm>
#include <unordered_map>

namespace quillet {

namespace {

/// Where a day stands in the grid.
struct DayPlace {
    std::size_t week = 0;
    std::size_t column = 0;
};

/// Puts days and shares of events into weeks.
class GridPlan {
public:
    GridPlan(const InsightInput& input, GridRows rows, std::span<const Event> holidays)
        : input_(input)
        , days_(SliceUnit::Day, input.billing, input.events, input.calendar) {
        grid_.rows = rows;
        if (input.billing.isMoneyOn) {
            grid_.total.cost = Decimal();
        }
        const DayKinds kinds(input.calendar, holidays);
        placeDays();
        fillDays(kinds);
    }

    [[nodiscard]] WeekGrid filled() {
        EventShares shares(days_, input_.billing);
        EventIndex index = 0;
        for (const Event& event : input_.events) {
            for (const EventShare& share : shares.of(event)) {
                add(event, index, share);
            }
            ++index;
        }
        return std::move(grid_);
    }

private:
    void placeDays() {
        const int first = input_.calendar.firstWeekday();
        std::size_t week = 0;
        for (std::size_t day = 0; day < days_.count(); ++day) {
            const int weekday = weekdayOf(days_.start(day), input_.calendar);
            const auto column =
                (static_cast<std::size_t>(weekday - first) + daysOfAGridWeek) % daysOfAGridWeek;
            week += column == 0 && day > 0 ? 1 : 0;
            places_.push_back({.week = week, .column = column});
        }
        grid_.weeks.resize(week + 1);
    }
    void fillDays(const DayKinds& kinds) {
        for (std::size_t week = 0; week < grid_.weeks.size(); ++week) {
            fillWeek(week, kinds);
        }
        for (std::size_t day = 0; day < days_.count(); ++day) {
            const DayPlace& place = places_[day];
            grid_.weeks[place.week].days[place.column].isInPeriod = true;
        }
    }
    /// All seven days, counted from the first day that the period has of the week.
    void fillWeek(std::size_t week, const DayKinds& kinds) {
        const auto found =
            std::ranges::find(places_, week, [](const DayPlace& place) { return place.week; });
        const Instant known = days_.start(static_cast<std::size_t>(found - places_.begin()));
        const int knownColumn = static_cast<int>(found->column);
        for (int column = 0; column < static_cast<int>(daysOfAGridWeek); ++column) {
            GridDay& day = grid_.weeks[week].days[static_cast<std::size_t>(column)];
            day.start = input_.calendar.startOfDay(
                input_.calendar.add(known, {.days = column - knownColumn}));
            day.kind = kinds.of(day.start);
        }
    }
    void add(const Event& event, EventIndex index, const EventShare& share) {
        const DayPlace& place = places_[share.slice];
        GridWeek& week = grid_.weeks[place.week];
        GridRow& row = rowOf(event, place.week);
        GridCell& cell = row.cells[place.column];
        for (Amounts* sum :
             {&cell.amounts, &row.sum, &week.daySums[place.column], &week.sum, &grid_.total}) {
            sum->add(share.minutes, share.cost);
        }
        if (cell.events.empty() || cell.events.back() != index) {
            cell.events.push_back(index);
        }
    }
    GridRow& rowOf(const Event& event, std::size_t week) {
        const bool isByCalendar = grid_.rows == GridRows::Calendars;
        const std::uint32_t number =
            isByCalendar ? calendars_.of(event) : titles_.of(event.details->title);
        auto& rows = grid_.weeks[week].rows;
        const auto [position, isNew] = positions_.try_emplace(week << 32U | number, rows.size());
        if (isNew) {
            GridRow& row = rows.emplace_back();
            row.text = isByCalendar ? event.details->calendar->title : event.details->title;
            if (isByCalendar) {
                row.calendarIdentifier = event.details->calendar->calendarIdentifier;
            }
        }
        return rows[position->second];
    }

    const InsightInput& input_;
    Slices days_;
    std::vector<DayPlace> places_;
    CalendarNumbers calendars_;
    TextNumbers titles_;
    /// By week and number of the row.
    std::unordered_map<std::uint64_t, std::size_t> positions_;
    WeekGrid grid_;
};

/// Writes one week's cells.
class WeekText {
public:
    WeekText(GridRows rows, GridValue value, TimeUnit unit, const LocaleFormats& formats)
        : rows_(rows)
        , value_(value)
        , unit_(unit)
        , formats_(formats) {}

    [[nodiscard]] QString text(const GridWeek& week) const {
        QStringList lines{heading(week)};
        for (const GridRow& row : week.rows) {
            QStringList cells{inOneCell(nameOf(row))};
            for (const GridCell& cell : row.cells) {
                cells.append(cell.events.empty() ? QString() : amountText(cell.amounts));
            }
            cells.append(amountText(row.sum));
            lines.append(cells.join(u'\t'));
        }
        lines.append(sums(week));
        return lines.join(u'\n');
    }
    [[nodiscard]] QString amountText(const Amounts& amounts) const {
        return value_ == GridValue::Time ? timeText(amounts.minutes, unit_, formats_)
                                         : moneyText(amounts.cost, formats_);
    }

private:
    [[nodiscard]] QString heading(const GridWeek& week) const {
        QStringList cells{QString()};
        for (const GridDay& day : week.days) {
            cells.append(QStringLiteral("%1 %2").arg(formats_.weekdayName(day.start),
                                                     formats_.shortDate(day.start)));
        }
        cells.append(localized("Total"));
        return cells.join(u'\t');
    }
    [[nodiscard]] QString sums(const GridWeek& week) const {
        QStringList cells{localized("Total")};
        for (std::size_t column = 0; column < daysOfAGridWeek; ++column) {
            const bool isFilled = std::ranges::any_of(
                week.rows, [&](const GridRow& row) { return !row.cells[column].events.empty(); });
            cells.append(isFilled ? amountText(week.daySums[column]) : QString());
        }
        cells.append(week.rows.empty() ? QString() : amountText(week.sum));
        return cells.join(u'\t');
    }
    [[nodiscard]] QString nameOf(const GridRow& row) const {
        SummaryRow named;
        named.key = rows_ == GridRows::Calendars ? SummaryKey::Calendar : SummaryKey::Title;
        named.text = row.text;
        return summaryRowName(named, formats_);
    }

    GridRows rows_;
    GridValue value_;
    TimeUnit unit_;
    const LocaleFormats& formats_;
};

} // namespace

WeekGrid weekGridOf(const InsightInput& input, GridRows rows, std::span<const Event> holidays) {
    return GridPlan(input, rows, holidays).filled();
}

QString gridWeekText(const GridWeek& week, GridRows rows, GridValue value, TimeUnit unit,
                     const LocaleFormats& formats) {
    return WeekText(rows, value, unit, formats).text(week);
}

QString gridText(const WeekGrid& grid, GridValue value, TimeUnit unit,
                 const LocaleFormats& formats) {
    const WeekText weekText(grid.rows, value, unit, formats);
    QString text;
    for (const GridWeek& week : grid.weeks) {
        text += weekText.text(week) + QStringLiteral("\n\n");
    }
    return text + localized("Total") + u'\t' + weekText.amountText(grid.total);
}

} // namespace quillet
