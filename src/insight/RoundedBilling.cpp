#include "insight/RoundedBilling.h"

#include "eventdata/EventFigures.h"
#include "insight/EventGroups.h"
#include "insight/EventShares.h"
#include "insight/Slices.h"
#include "texts/Localized.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace quillet {

namespace {

/// Puts events, or their shares of days, into entries and rounds these.
class Bill {
public:
    Bill(const InsightInput& input, const BillingRounding& rounding)
        : input_(input)
        , rounding_(rounding)
        , days_(SliceUnit::Day, input.billing, input.events, input.calendar)
        , costs_(input.billing) {}

    [[nodiscard]] BilledTotals totals() {
        if (rounding_.scope == RoundingScope::Event) {
            addEvents();
        } else {
            addDaysOfTitles();
        }
        if (input_.billing.isMoneyOn) {
            totals_.exact.cost = Decimal();
            totals_.billed.cost = Decimal();
        }
        for (std::size_t position = 0; position < totals_.entries.size(); ++position) {
            round(totals_.entries[position], begun_[position]);
        }
        return std::move(totals_);
    }

private:
    void addEvents() {
        EventIndex index = 0;
        for (const Event& event : input_.events) {
            const std::int64_t minutes = billableMinutes(event, input_.billing);
            BilledEntry& entry = newEntry(days_.at(billedSpan(event, input_.billing).start));
            entry.events.push_back(index);
            entry.exact.add(minutes, costs_.of(event, minutes));
            begun_.back() = 1;
            ++index;
        }
    }
    void addDaysOfTitles() {
        EventShares shares(days_, input_.billing);
        EventIndex index = 0;
        for (const Event& event : input_.events) {
            std::int64_t begun = 1;
            for (const EventShare& share : shares.of(event)) {
                const std::size_t position = positionOf(event, share.slice);
                BilledEntry& entry = totals_.entries[position];
                entry.exact.add(share.minutes, share.cost);
                entry.events.push_back(index);
                begun_[position] += begun;
                begun = 0;
            }
            ++index;
        }
    }
    BilledEntry& newEntry(std::size_t day) {
        begun_.push_back(0);
        BilledEntry& entry = totals_.entries.emplace_back();
        entry.day = days_.start(day);
        return entry;
    }
    [[nodiscard]] std::size_t positionOf(const Event& event, std::size_t day) {
        const auto key = std::tuple(day, calendars_.of(event), titles_.of(event.details->title));
        const auto [known, isNew] = positions_.try_emplace(key, totals_.entries.size());
        if (isNew) {
            newEntry(day);
        }
        return known->second;
    }
    void round(BilledEntry& entry, std::int64_t begunEvents) {
        const std::int64_t exact = entry.exact.minutes;
        entry.billed = entry.exact;
        if (exact > 0) {
            const std::int64_t minutes =
                std::max(roundedMinutes(exact, rounding_.stepMinutes, rounding_.direction),
                         rounding_.minimumMinutes * begunEvents);
            if (minutes != exact) {
                entry.billed.minutes = minutes;
                entry.billed.cost = costs_.of(input_.events[entry.events.front()], minutes);
            }
        }
        totals_.exact.add(entry.exact.minutes, entry.exact.cost);
        totals_.billed.add(entry.billed.minutes, entry.billed.cost);
    }

    const InsightInput& input_;
    const BillingRounding& rounding_;
    Slices days_;
    EventCosts costs_;
    CalendarNumbers calendars_;
    TextNumbers titles_;
    std::map<std::tuple<std::size_t, std::uint32_t, std::uint32_t>, std::size_t> positions_;
    BilledTotals totals_;
    /// How many events begin in each entry.
    std::vector<std::int64_t> begun_;
};

QString amountsText(const Amounts& amounts, TimeUnit unit, const LocaleFormats& formats) {
    const QString time = timeWithUnit(amounts.minutes, unit, formats);
    return amounts.cost ? QStringLiteral("%1 (%2)").arg(time, formats.currency(*amounts.cost))
                        : time;
}

} // namespace

std::int64_t roundedMinutes(std::int64_t minutes, int stepMinutes, RoundingDirection direction) {
    if (minutes <= 0 || stepMinutes < 1) {
        return minutes;
    }
    const std::int64_t below = minutes / stepMinutes * stepMinutes;
    const std::int64_t rest = minutes - below;
    const bool isUp = direction == RoundingDirection::Up
                          ? rest > 0
                          : direction == RoundingDirection::Nearest && 2 * rest >= stepMinutes;
    return isUp ? below + stepMinutes : below;
}

BilledTotals billedTotalsOf(const InsightInput& input, const BillingRounding& rounding) {
    return Bill(input, rounding).totals();
}

std::vector<BilledSurplus> surplusesOf(const BilledTotals& totals) {
    std::vector<BilledSurplus> surpluses;
    for (const BilledEntry& entry : totals.entries) {
        if (entry.billed.minutes == entry.exact.minutes) {
            continue;
        }
        BilledSurplus& surplus = surpluses.emplace_back();
        surplus.event = entry.events.front();
        surplus.day = entry.day;
        surplus.amounts.minutes = entry.billed.minutes - entry.exact.minutes;
        if (entry.billed.cost && entry.exact.cost) {
            surplus.amounts.cost = *entry.billed.cost - *entry.exact.cost;
        }
    }
    return surpluses;
}

QString billedText(const Amounts& exact, const Amounts& billed, TimeUnit unit,
                   const LocaleFormats& formats) {
    return localized("exact %1, billed %2")
        .arg(amountsText(exact, unit, formats), amountsText(billed, unit, formats));
}

} // namespace quillet
