#include "insight/Summary.h"

#include "eventdata/EventFigures.h"
#include "insight/EventGroups.h"
#include "insight/EventShares.h"

#include <algorithm>
#include <unordered_map>

namespace quillet {

namespace {

std::optional<SliceUnit> sliceUnitOf(SummaryKey key) {
    switch (key) {
    case SummaryKey::Day:
        return SliceUnit::Day;
    case SummaryKey::Week:
        return SliceUnit::Week;
    case SummaryKey::Month:
        return SliceUnit::Month;
    default:
        return std::nullopt;
    }
}

/// Into which slices events are cut, so that each slice is in one row of either level: weeks and
/// months share no bounds but those of days.
SliceUnit sharedUnit(SummaryKey first, std::optional<SummaryKey> second) {
    const auto outer = sliceUnitOf(first);
    const auto inner = second ? sliceUnitOf(*second) : std::nullopt;
    return outer && inner ? SliceUnit::Day : outer.value_or(inner.value_or(SliceUnit::Month));
}

/// Numbers the rows of one level.
class Level {
public:
    Level(SummaryKey key, const InsightInput& input)
        : key_(key) {
        if (const auto unit = sliceUnitOf(key)) {
            slices_.emplace(*unit, input.billing, input.events, input.calendar);
        }
    }

    [[nodiscard]] std::uint32_t numberOf(const Event& event, Instant sliceStart) {
        if (slices_) {
            return static_cast<std::uint32_t>(slices_->at(sliceStart));
        }
        switch (key_) {
        case SummaryKey::Title:
            return texts_.of(event.details->title);
        case SummaryKey::Location:
            return texts_.of(event.details->location);
        default:
            return calendars_.of(event);
        }
    }
    /// A row without amounts.
    [[nodiscard]] SummaryRow rowOf(std::uint32_t number) const {
        SummaryRow row;
        row.key = key_;
        if (slices_) {
            row.start = slices_->start(number);
            row.end = slices_->end(number);
        } else if (key_ == SummaryKey::Calendar) {
            row.text = calendars_.calendars()[number]->title;
            row.calendarIdentifier = calendars_.calendars()[number]->calendarIdentifier;
        } else {
            row.text = *texts_.texts()[number];
        }
        return row;
    }
    void sort(std::vector<SummaryRow>& rows) const {
        if (slices_) {
            std::ranges::stable_sort(rows, {}, &SummaryRow::start);
        }
    }

private:
    SummaryKey key_;
    std::optional<Slices> slices_;
    CalendarNumbers calendars_;
    TextNumbers texts_;
};

struct Part {
    EventIndex event = 0;
    std::int64_t minutes = 0;
    std::optional<Decimal> cost;
};

void addTo(SummaryRow& row, const Part& part) {
    row.amounts.add(part.minutes, part.cost);
    row.billed.add(part.minutes, part.cost);
    if (row.events.empty() || row.events.back() != part.event) {
        row.events.push_back(part.event);
    }
}

/// Puts the parts of all events into the tree.
class Tree {
public:
    Tree(const InsightInput& input, SummaryKey first, std::optional<SummaryKey> second)
        : outer_(first, input) {
        if (second && *second != first) {
            inner_.emplace(*second, input);
        }
    }

    void add(const Event& event, Instant sliceStart, const Part& part) {
        const std::uint32_t number = outer_.numberOf(event, sliceStart);
        const std::size_t position = positionIn(rows_, outermost, number, outer_);
        addTo(rows_[position], part);
        if (inner_) {
            auto& children = rows_[position].children;
            const std::uint32_t inner = inner_->numberOf(event, sliceStart);
            addTo(children[positionIn(children, position, inner, *inner_)], part);
        }
    }
    /// To the row that has a part of the event there.
    void addSurplus(const Event& event, const BilledSurplus& surplus) {
        const std::uint32_t number = outer_.numberOf(event, surplus.day);
        const std::size_t position = positionIn(rows_, outermost, number, outer_);
        const auto& [minutes, cost] = surplus.amounts;
        rows_[position].billed.add(minutes, cost);
        if (inner_) {
            auto& children = rows_[position].children;
            const std::uint32_t inner = inner_->numberOf(event, surplus.day);
            children[positionIn(children, position, inner, *inner_)].billed.add(minutes, cost);
        }
    }
    [[nodiscard]] std::vector<SummaryRow> taken() {
        if (inner_) {
            for (SummaryRow& row : rows_) {
                inner_->sort(row.children);
            }
        }
        outer_.sort(rows_);
        return std::move(rows_);
    }

private:
    /// Stands for the parent of the first level.
    static constexpr std::uint64_t outermost = 0xffff'ffff;

    std::size_t positionIn(std::vector<SummaryRow>& rows, std::uint64_t parent,
                           std::uint32_t number, const Level& level) {
        const auto [found, isNew] = positions_.try_emplace(parent << 32U | number, rows.size());
        if (isNew) {
            rows.push_back(level.rowOf(number));
        }
        return found->second;
    }

    Level outer_;
    std::optional<Level> inner_;
    std::vector<SummaryRow> rows_;
    /// By the position of the parent and the number of the row.
    std::unordered_map<std::uint64_t, std::size_t> positions_;
};

/// Adds shown amounts up, each number of minutes rounded once.
class ShownSums {
public:
    ShownSums(TimeUnit unit, const LocaleFormats& formats)
        : unit_(unit)
        , currencyDecimals_(currencyDecimals(formats)) {}

    void add(const Amounts& amounts) {
        const auto [time, isNew] = times_.try_emplace(amounts.minutes);
        if (isNew) {
            time->second = shownTime(amounts.minutes, unit_);
        }
        time_ += time->second;
        if (amounts.cost) {
            money_ += shownMoney(*amounts.cost, currencyDecimals_);
        }
    }
    [[nodiscard]] RowsDifference differenceTo(const Amounts& whole) const {
        RowsDifference result;
        result.time = shownTime(whole.minutes, unit_) - time_;
        if (whole.cost && !whole.cost->isNaN()) {
            result.money = shownMoney(*whole.cost, currencyDecimals_) - money_;
        }
        return result;
    }

private:
    TimeUnit unit_;
    int currencyDecimals_;
    std::unordered_map<std::int64_t, Decimal> times_;
    Decimal time_;
    Decimal money_;
};

RowsDifference differenceOf(const std::vector<SummaryRow>& rows, const Amounts& whole,
                            std::size_t eventCount, TimeUnit unit, const LocaleFormats& formats) {
    ShownSums sums(unit, formats);
    std::int64_t events = 0;
    for (const SummaryRow& row : rows) {
        sums.add(row.amounts);
        events += static_cast<std::int64_t>(row.events.size());
    }
    RowsDifference result = sums.differenceTo(whole);
    result.events = static_cast<std::int64_t>(eventCount) - events;
    return result;
}

} // namespace

Summary summaryOf(const InsightInput& input, SummaryKey first, std::optional<SummaryKey> second,
                  std::span<const BilledSurplus> surpluses) {
    const bool isCut = sliceUnitOf(first) || (second && sliceUnitOf(*second));
    Tree tree(input, first, second);
    const Slices slices(sharedUnit(first, second), input.billing, input.events, input.calendar);
    EventShares shares(slices, input.billing);
    EventCosts costs(input.billing);
    Summary result;
    result.eventCount = input.events.size();
    if (input.billing.isMoneyOn) {
        result.total.cost = Decimal();
    }
    const auto add = [&](const Event& event, Instant sliceStart, const Part& part) {
        tree.add(event, sliceStart, part);
        result.total.add(part.minutes, part.cost);
    };
    EventIndex index = 0;
    for (const Event& event : input.events) {
        if (isCut) {
            for (const EventShare& share : shares.of(event)) {
                add(event, slices.start(share.slice), {index, share.minutes, share.cost});
            }
        } else {
            const std::int64_t minutes = billableMinutes(event, input.billing);
            add(event, Instant(), {index, minutes, costs.of(event, minutes)});
        }
        ++index;
    }
    result.billedTotal = result.total;
    for (const BilledSurplus& surplus : surpluses) {
        tree.addSurplus(input.events[surplus.event], surplus);
        result.billedTotal.add(surplus.amounts.minutes, surplus.amounts.cost);
    }
    result.rows = tree.taken();
    return result;
}

bool RowsDifference::isNone() const {
    return events == 0 && time.isZero() && (!money || money->isZero());
}

RowsDifference differenceOf(const Summary& summary, TimeUnit unit, const LocaleFormats& formats) {
    return differenceOf(summary.rows, summary.total, summary.eventCount, unit, formats);
}

RowsDifference differenceOf(const SummaryRow& row, TimeUnit unit, const LocaleFormats& formats) {
    return row.children.empty()
               ? RowsDifference()
               : differenceOf(row.children, row.amounts, row.events.size(), unit, formats);
}

} // namespace quillet
