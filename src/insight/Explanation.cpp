#include "insight/Explanation.h"

#include "eventdata/EventFigures.h"
#include "insight/EventGroups.h"
#include "insight/EventShares.h"
#include "insight/SummaryTexts.h"
#include "texts/Localized.h"

#include <QStringList>

#include <chrono>

namespace quillet {

using namespace std::chrono_literals;

namespace {

constexpr int allDecimals = 30;
constexpr int decimalsOfSpans = 4;
constexpr double millisecondsOfAMinute = 60'000.0;

/// Writes the chain of one event's figure.
class EventChain {
public:
    EventChain(const Event& event, const BillingSettings& billing, const ExplanationFormats& shown)
        : event_(event)
        , billing_(billing)
        , shown_(shown)
        , formats_(shown.formats)
        , figures_(figures(event, billing)) {}

    void addTime() {
        addEntry();
        addSpan();
        add(localized("Minutes"), formats_.number(Decimal::fromInteger(figures_.minutes)),
            localized("rounded to a whole minute, halves away from zero"));
    }
    void addShownTime() {
        const QString reason = shown_.unit == TimeUnit::Hours
                                   ? localized("minutes divided by 60, shown with two decimals")
                                   : localized("as it is shown");
        add(timeUnitTitle(shown_.unit), timeText(figures_.minutes, shown_.unit, formats_), reason);
    }
    void addRate() {
        const QString calendar = event_.details->calendar->title;
        QString reason = localized("one rate for all calendars");
        if (!billing_.isSingleRate) {
            reason = figures_.rate.isNaN()
                         ? localized("no rate is stored for the calendar “%1”").arg(calendar)
                         : localized("the rate of the calendar “%1”").arg(calendar);
        }
        add(localized("Rate"), formats_.currency(figures_.rate), reason);
    }
    void addCost() {
        if (!figures_.cost) {
            add(localized("Cost"), {}, localized("money is switched off"));
            return;
        }
        if (billing_.isMoneyFromHours) {
            add(localized("Hours for money"), formats_.number(hoursForMoney(figures_.minutes)),
                localized("minutes divided by 60, rounded to two decimals"));
        } else {
            add(localized("Rate of a minute"),
                formats_.number(rateOfAMinute(figures_.rate), allDecimals),
                localized("the rate divided by 60, rounded to fifteen decimals"));
        }
        add(localized("Product"), formats_.number(*figures_.cost, allDecimals),
            billing_.isMoneyFromHours ? localized("hours times rate, exact")
                                      : localized("minutes times the rate of a minute, exact"));
        add(localized("Cost"), formats_.currency(*figures_.cost),
            localized("shown with the decimals of the currency"));
    }
    [[nodiscard]] std::vector<ExplanationStep> taken() { return std::move(steps_); }

private:
    void add(const QString& label, const QString& value, const QString& reason) {
        steps_.push_back({.label = label, .value = value, .reason = reason});
    }
    void addEntry() {
        const StoreCalendar& calendar = *event_.details->calendar;
        add(localized("Calendar"), calendar.title,
            shown_.placeOf ? shown_.placeOf(calendar) : QString());
        if (event_.details->occurrenceNames) {
            const bool isMoved = event_.occurrenceDate != event_.startDate;
            add(localized("Occurrence"), instantText(event_.occurrenceDate),
                isMoved ? localized("where the series has it; it was moved")
                        : localized("where the series has it"));
        }
        const QString zone =
            shown_.zone.isEmpty() ? QString() : localized("in the zone %1").arg(shown_.zone);
        add(localized("Start"), instantText(event_.startDate), zone);
        add(localized("End"), endText(event_.endDate), zone);
    }
    void addSpan() {
        const auto [start, end] = billedSpan(event_, billing_);
        if (start != event_.startDate) {
            add(localized("Counts from"), instantText(start),
                localized("the period begins after the event"));
        }
        if (end != event_.endDate) {
            add(localized("Counts until"), endText(end),
                localized("the period ends before the event"));
        }
        const std::int64_t span = (end - start).count();
        if (event_.details->isAllDay) {
            addDays(span);
        } else {
            addLength(span);
        }
    }
    void addDays(std::int64_t span) {
        const Decimal days = Decimal::fromInteger(span) /
                             Decimal::fromInteger(std::chrono::milliseconds(24h).count());
        add(localized("Days"), signedNumber(days),
            localized("an all-day event, in days of 24 hours"));
        add(localized("Hours a day"), signedNumber(Decimal::fromInteger(billing_.allDayHours)),
            localized("for which an all-day event counts"));
    }
    void addLength(std::int64_t span) {
        const Decimal minutes =
            Decimal::fromDouble(static_cast<double>(span) / millisecondsOfAMinute);
        add(localized("Length"), localized("%1 min").arg(signedNumber(minutes)),
            span < 0 ? localized("the event ends before it begins, or lies outside the period")
                     : QString());
    }
    /// The number format has no sign.
    [[nodiscard]] QString signedNumber(const Decimal& value) const {
        return (value.isNegative() ? QStringLiteral("−") : QString()) +
               formats_.number(value, decimalsOfSpans);
    }
    [[nodiscard]] QString instantText(Instant instant) const {
        return event_.details->isAllDay
                   ? formats_.shortDate(instant)
                   : formats_.shortDate(instant) + u' ' + formats_.shortTime(instant);
    }
    /// All-day events end on their last day.
    [[nodiscard]] QString endText(Instant instant) const {
        return event_.details->isAllDay ? formats_.shortDate(instant - 1s) : instantText(instant);
    }

    const Event& event_;
    const BillingSettings& billing_;
    const ExplanationFormats& shown_;
    const LocaleFormats& formats_;
    EventFigures figures_;
    std::vector<ExplanationStep> steps_;
};

QString figureTitle(ExplainedFigure figure, TimeUnit unit) {
    switch (figure) {
    case ExplainedFigure::Rate:
        return localized("Rate");
    case ExplainedFigure::Cost:
        return localized("Cost");
    case ExplainedFigure::Time:
        break;
    }
    return timeUnitTitle(unit);
}

QString directionText(RoundingDirection direction) {
    switch (direction) {
    case RoundingDirection::Up:
        return localized("rounded up");
    case RoundingDirection::Down:
        return localized("rounded down");
    case RoundingDirection::Nearest:
        break;
    }
    return localized("rounded to the nearest, halfway up");
}

/// A part of a sum, as a step names it.
struct NamedAmounts {
    QString name;
    Amounts amounts;
};

/// Writes how parts make up a whole.
class SumChain {
public:
    SumChain(ExplainedFigure figure, const ExplanationFormats& shown)
        : figure_(figure)
        , shown_(shown)
        , decimals_(currencyDecimals(shown.formats)) {}

    void addPart(const NamedAmounts& part) {
        steps_.push_back(
            {.label = part.name, .value = exactText(part.amounts), .reason = QString()});
    }
    /// The sum of what is shown for the parts, and what rounding them makes of it.
    void addShownSum(const Decimal& sum) {
        steps_.push_back({.label = localized("Sum of the rounded values"),
                          .value = numberText(sum),
                          .reason = localized("what adding up the rows as shown would give")});
    }
    void addWhole(const Amounts& whole) {
        steps_.push_back({.label = localized("Exact sum"),
                          .value = exactText(whole),
                          .reason = localized("rounded once, at the end")});
        steps_.push_back({.label = figureTitle(figure_, shown_.unit),
                          .value = figure_ == ExplainedFigure::Cost
                                       ? moneyText(whole.cost, shown_.formats)
                                       : timeText(whole.minutes, shown_.unit, shown_.formats),
                          .reason = whole.cost || figure_ == ExplainedFigure::Time
                                        ? localized("as it is shown")
                                        : localized("money is switched off")});
    }
    /// What one row shows.
    [[nodiscard]] Decimal shownValue(std::int64_t minutes,
                                     const std::optional<Decimal>& cost) const {
        if (figure_ == ExplainedFigure::Cost) {
            return shownMoney(cost.value_or(Decimal()), decimals_);
        }
        return shownTime(minutes, shown_.unit);
    }
    [[nodiscard]] std::vector<ExplanationStep> taken() { return std::move(steps_); }

private:
    [[nodiscard]] QString exactText(const Amounts& amounts) const {
        if (figure_ == ExplainedFigure::Cost) {
            return amounts.cost ? numberText(*amounts.cost) : QString();
        }
        return localized("%1 min").arg(numberText(Decimal::fromInteger(amounts.minutes)));
    }
    [[nodiscard]] QString numberText(const Decimal& value) const {
        return (value.isNegative() ? QStringLiteral("−") : QString()) +
               shown_.formats.number(value, allDecimals);
    }

    ExplainedFigure figure_;
    const ExplanationFormats& shown_;
    int decimals_;
    std::vector<ExplanationStep> steps_;
};

/// The amounts of each calendar and of all.
struct CalendarSums {
    std::vector<NamedAmounts> parts;
    Amounts whole;
    Decimal shown;
};

CalendarSums sumsOf(const InsightInput& input, const SumChain& chain) {
    CalendarSums sums;
    if (input.billing.isMoneyOn) {
        sums.whole.cost = Decimal();
    }
    CalendarNumbers numbers;
    EventCosts costs(input.billing);
    for (const Event& event : input.events) {
        const std::int64_t minutes = billableMinutes(event, input.billing);
        const auto cost = costs.of(event, minutes);
        const std::uint32_t number = numbers.of(event);
        if (number == sums.parts.size()) {
            sums.parts.push_back({.name = event.details->calendar->title, .amounts = {}});
        }
        sums.parts[number].amounts.add(minutes, cost);
        sums.whole.add(minutes, cost);
        sums.shown += chain.shownValue(minutes, cost);
    }
    return sums;
}

} // namespace

Explanation explainEvent(const Event& event, const BillingSettings& billing, ExplainedFigure figure,
                         const ExplanationFormats& shown) {
    EventChain chain(event, billing, shown);
    if (figure != ExplainedFigure::Rate) {
        chain.addTime();
    }
    if (figure == ExplainedFigure::Time) {
        chain.addShownTime();
    } else {
        chain.addRate();
    }
    if (figure == ExplainedFigure::Cost) {
        chain.addCost();
    }
    return {.title =
                localized("%1 of “%2”").arg(figureTitle(figure, shown.unit), event.details->title),
            .steps = chain.taken()};
}

Explanation explainTotal(const InsightInput& input, ExplainedFigure figure,
                         const ExplanationFormats& shown) {
    Explanation result{.title = localized("Total: %1").arg(figureTitle(figure, shown.unit)),
                       .steps = {}};
    if (figure == ExplainedFigure::Rate) {
        return result;
    }
    SumChain chain(figure, shown);
    const CalendarSums sums = sumsOf(input, chain);
    for (const NamedAmounts& part : sums.parts) {
        chain.addPart(part);
    }
    chain.addShownSum(sums.shown);
    chain.addWhole(sums.whole);
    result.steps = chain.taken();
    result.steps.insert(result.steps.begin(), {.label = localized("Events"),
                                               .value = QString::number(input.events.size()),
                                               .reason = QString()});
    return result;
}

Explanation explainBar(const Picture& picture, const Bar& bar, ExplainedFigure figure,
                       const ExplanationFormats& shown) {
    Explanation result{.title = localized("%1 of “%2”")
                                    .arg(figureTitle(figure, shown.unit),
                                         barName(bar, picture.unit, shown.formats)),
                       .steps = {}};
    if (figure == ExplainedFigure::Rate) {
        return result;
    }
    SumChain chain(figure, shown);
    for (const BarPart& part : bar.parts) {
        chain.addPart({.name = picture.calendars[part.calendar].title, .amounts = part.amounts});
    }
    chain.addWhole(bar.amounts);
    result.steps = chain.taken();
    result.steps.insert(result.steps.begin(),
                        {.label = localized("Events"),
                         .value = QString::number(bar.events.size()),
                         .reason = localized("what lasts past midnight is cut there")});
    return result;
}

Explanation explainBilled(const BilledEntry& entry, const BillingRounding& rounding,
                          const InsightInput& input, ExplainedFigure figure,
                          const ExplanationFormats& shown) {
    const Event& first = input.events[entry.events.front()];
    const LocaleFormats& formats = shown.formats;
    const auto minutesText = [&](std::int64_t minutes) {
        return timeWithUnit(minutes, TimeUnit::Minutes, formats);
    };
    Explanation result{
        .title = localized("Billed: %1 of “%2”")
                     .arg(figureTitle(figure, shown.unit), first.details->title),
        .steps = {{.label = localized("Events"),
                   .value = QString::number(entry.events.size()),
                   .reason = rounding.scope == RoundingScope::Event
                                 ? localized("each event is rounded by itself")
                                 : localized("what a day has of a title is rounded as one")},
                  {.label = localized("Exact"),
                   .value = minutesText(entry.exact.minutes),
                   .reason = QString()},
                  {.label = localized("Step"),
                   .value = minutesText(rounding.stepMinutes),
                   .reason = directionText(rounding.direction)}}};
    if (rounding.minimumMinutes > 0) {
        result.steps.push_back({.label = localized("At least"),
                                .value = minutesText(rounding.minimumMinutes),
                                .reason = localized("for each event that begins")});
    }
    result.steps.push_back({.label = localized("Billed"),
                            .value = minutesText(entry.billed.minutes),
                            .reason = QString()});
    if (figure == ExplainedFigure::Cost) {
        result.steps.push_back({.label = localized("Rate"),
                                .value = formats.currency(billableRate(first, input.billing)),
                                .reason = QString()});
    }
    result.steps.push_back({.label = figureTitle(figure, shown.unit),
                            .value = figure == ExplainedFigure::Cost
                                         ? moneyText(entry.billed.cost, formats)
                                         : timeText(entry.billed.minutes, shown.unit, formats),
                            .reason = localized("as it is shown")});
    return result;
}

QString explanationText(const Explanation& explanation) {
    QStringList lines{inOneCell(explanation.title)};
    for (const ExplanationStep& step : explanation.steps) {
        QStringList cells{inOneCell(step.label), inOneCell(step.value)};
        if (!step.reason.isEmpty()) {
            cells.append(inOneCell(step.reason));
        }
        lines.append(cells.join(u'\t'));
    }
    return lines.join(u'\n');
}

} // namespace quillet
