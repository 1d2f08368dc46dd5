#include "eventtable/EventTexts.h"

#include "eventdata/EventFigures.h"

#include <chrono>
#include <iterator>

namespace quillet {

namespace {

using namespace std::chrono_literals;
constexpr std::size_t minutesOfADay = 1440;

} // namespace

EventTexts::EventTexts(const BillingSettings& billing, const LocaleFormats& formats,
                       const CalendarArithmetic& calendar, TextReuse reuse)
    : billing_(billing)
    , formats_(formats)
    , calendar_(calendar)
    , reuse_(reuse)
    , times_(reuse == TextReuse::WithinList ? minutesOfADay : 0) {}

void EventTexts::setEvent(const Event& event) {
    event_ = &event;
    minutes_.reset();
}

const EventTexts::Days::value_type& EventTexts::dayOf(Instant instant) {
    static const Days::value_type notPlain;
    if (reuse_ == TextReuse::None) {
        return notPlain;
    }
    const auto holds = [&](const Days::value_type& day) {
        return day.first <= instant && instant < day.second.end;
    };
    // Lists are mostly in order: the day of the event before is likely.
    if (lastDay_ != nullptr && holds(*lastDay_)) {
        return *lastDay_;
    }
    auto found = days_.upper_bound(instant);
    if (found == days_.begin() || !holds(*std::prev(found))) {
        const Instant start = calendar_.startOfDay(instant);
        const Instant end = calendar_.startOfDay(calendar_.add(start, {.days = 1}));
        if (instant >= end) {
            // Clocks went back over midnight: the date returned after the next had begun.
            return notPlain;
        }
        const Day day{.end = end,
                      .isPlain = end - start == 24h,
                      .shortDate = formats_.shortDate(start),
                      .weekdayName = formats_.weekdayName(start)};
        found = std::next(days_.insert_or_assign(start, day).first);
    }
    lastDay_ = &*std::prev(found);
    return *lastDay_;
}

QString EventTexts::shortDate(Instant instant) {
    const Day& day = dayOf(instant).second;
    return day.isPlain ? day.shortDate : formats_.shortDate(instant);
}

QString EventTexts::weekdayName(Instant instant) {
    const Day& day = dayOf(instant).second;
    return day.isPlain ? day.weekdayName : formats_.weekdayName(instant);
}

QString EventTexts::shortTime(Instant instant) {
    const auto& [start, day] = dayOf(instant);
    if (!day.isPlain) {
        return formats_.shortTime(instant);
    }
    QString& text = times_.at(static_cast<std::size_t>((instant - start) / 1min));
    if (text.isNull()) {
        text = formats_.shortTime(instant);
    }
    return text;
}

Instant EventTexts::adjustedEnd() {
    const Instant end = event_->endDate;
    const auto& [start, day] = dayOf(end);
    const auto wholeMinutes = day.isPlain
                                  ? start + std::chrono::floor<std::chrono::minutes>(end - start)
                                  : std::chrono::floor<std::chrono::seconds>(end) -
                                        std::chrono::seconds(calendar_.components(end).second);
    return wholeMinutes - 1s;
}

std::int64_t EventTexts::billedMinutes() {
    if (!minutes_) {
        minutes_ = billableMinutes(*event_, billing_);
    }
    return *minutes_;
}

const EventTexts::MinutesTexts& EventTexts::minutesTexts() {
    const std::int64_t minutes = billedMinutes();
    auto found = minutesTexts_.find(minutes);
    if (found == minutesTexts_.end()) {
        const EventFigures values = figures(*event_, billing_);
        found = minutesTexts_.insert(
            minutes, {.minutes = formats_.number(Decimal::fromInteger(values.minutes)),
                      .hours = formats_.number(values.hours),
                      .duration = values.duration});
    }
    return *found;
}

EventTexts::CalendarTexts& EventTexts::calendarTexts() {
    const QString& calendar = event_->details->calendar->calendarIdentifier;
    auto found = calendars_.find(calendar);
    if (found == calendars_.end()) {
        const Decimal rate = billableRate(*event_, billing_);
        found = calendars_.insert(calendar,
                                  {.rate = rate, .rateText = formats_.currency(rate), .costs = {}});
    }
    return *found;
}

QString EventTexts::cost() {
    const std::int64_t minutes = billedMinutes();
    CalendarTexts& texts = calendarTexts();
    auto found = texts.costs.find(minutes);
    if (found == texts.costs.end()) {
        const auto cost = billableCost(minutes, texts.rate, billing_);
        found = texts.costs.insert(minutes, cost ? formats_.currency(*cost) : QString());
    }
    return *found;
}

} // namespace quillet
