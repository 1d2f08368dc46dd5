#include "insight/Findings.h"

#include "eventdata/EventFigures.h"
#include "insight/DayTable.h"
#include "insight/EventGroups.h"
#include "insight/EventsAtOnce.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr std::size_t kindCount = static_cast<std::size_t>(FindingKind::FormulaTitle) + 1;

/// How long [start, end) and the other span last together.
milliseconds together(Instant start, Instant end, Instant otherStart, Instant otherEnd) {
    return std::max(std::min(end, otherEnd) - std::max(start, otherStart), 0ms);
}

/// The local fields, taken for those of UTC.
Instant wallClock(Instant instant, const CalendarArithmetic& calendar) {
    const DateComponents fields = calendar.components(instant);
    const std::chrono::year_month_day day{std::chrono::year(fields.year),
                                          std::chrono::month(static_cast<unsigned>(fields.month)),
                                          std::chrono::day(static_cast<unsigned>(fields.day))};
    return std::chrono::sys_days(day) + std::chrono::hours(fields.hour) +
           std::chrono::minutes(fields.minute) + std::chrono::seconds(fields.second) +
           (instant - std::chrono::floor<std::chrono::seconds>(instant));
}

bool hasRate(const Event& event, const BillingSettings& billing) {
    const Decimal rate = billableRate(event, billing);
    return !rate.isNaN() && !rate.isZero();
}

/// Applies the rules to the events.
class Check {
public:
    explicit Check(const FindingsInput& input)
        : input_(input)
        , billing_(input.insight.billing)
        , events_(input.insight.events)
        , days_(Slices(SliceUnit::Day, billing_, events_, input.insight.calendar),
                DayKinds(input.insight.calendar, input.holidays), input.rules.nightStart,
                input.rules.nightEnd, input.insight.calendar) {
        for (const Event& holiday : input.holidays) {
            holidayCalendars_.insert(holiday.details->calendar->calendarIdentifier);
        }
    }

    [[nodiscard]] std::vector<Finding> findings() {
        for (std::size_t problem = 0; problem < input_.problems.size(); ++problem) {
            add({.kind = FindingKind::StoreProblem, .events = {}, .problem = problem});
        }
        for (const EventPair& pair : eventsAtOnce(input_.insight)) {
            add({.kind = pair.kind, .events = {pair.earlier, pair.later}, .time = pair.together});
        }
        for (EventIndex index = 0; index < events_.size(); ++index) {
            checkEvent(index);
        }
        checkRates();
        return joined();
    }

private:
    void add(Finding finding) {
        if (!input_.rules.switchedOff.contains(finding.kind)) {
            byKind_.at(static_cast<std::size_t>(finding.kind)).push_back(std::move(finding));
        }
    }
    void addWhere(bool isSeen, FindingKind kind, EventIndex index, milliseconds time = 0ms) {
        if (isSeen) {
            add({.kind = kind, .events = {index}, .time = time});
        }
    }
    void checkEvent(EventIndex index) {
        const Event& event = events_[index];
        const milliseconds length = event.endDate - event.startDate;
        const bool isAllDay = event.details->isAllDay;
        const auto [start, end] = billedSpan(event, billing_);
        const bool isInside = start == event.startDate && end == event.endDate;
        addWhere(length == 0ms, FindingKind::ZeroLength, index);
        addWhere(length < 0ms, FindingKind::EndsBeforeItBegins, index);
        addWhere(!isAllDay && length > input_.rules.workingDay, FindingKind::LongerThanWorkingDay,
                 index);
        addWhere(end > start && !isInside, FindingKind::ClippedByPeriod, index);
        addWhere(isAllDay, FindingKind::AllDay, index);
        addWhere(looksLikeFormula(event.details->title), FindingKind::FormulaTitle, index);
        if (end > start) {
            checkDays(index, start, end);
        }
    }
    /// What the days tell on which the billed part [start, end) falls.
    void checkDays(EventIndex index, Instant start, Instant end) {
        milliseconds weekend{0};
        milliseconds holiday{0};
        milliseconds night{0};
        bool isChangeSeen = false;
        for (const DayTable::Day& day : days_.touched(start, end)) {
            const milliseconds onDay = together(start, end, day.start, day.end);
            weekend += day.kind == DayKind::Weekend ? onDay : 0ms;
            holiday += day.kind == DayKind::Holiday ? onDay : 0ms;
            night += together(start, end, day.start, std::min(day.morning, day.evening)) +
                     together(start, end, std::max(day.morning, day.evening), day.end);
            isChangeSeen = isChangeSeen || day.end - day.start != 24h;
        }
        const EventDetails& details = *events_[index].details;
        const bool isTimed = !details.isAllDay;
        addWhere(isTimed && weekend > 0ms, FindingKind::WeekendHours, index, weekend);
        addWhere(isTimed && night > 0ms, FindingKind::NightHours, index, night);
        addWhere(isChangeSeen && (!isTimed || isAcrossClockChange(start, end)),
                 FindingKind::AcrossClockChange, index);
        addWhere(holiday > 0ms && !isOfHolidays(details), FindingKind::HolidayHours, index,
                 holiday);
    }
    /// Whether the clock on the wall went on by something else than the time that passed.
    [[nodiscard]] bool isAcrossClockChange(Instant start, Instant end) const {
        const CalendarArithmetic& calendar = input_.insight.calendar;
        return wallClock(end, calendar) - wallClock(start, calendar) != end - start;
    }
    [[nodiscard]] bool isOfHolidays(const EventDetails& details) const {
        return holidayCalendars_.contains(details.calendar->calendarIdentifier);
    }
    void checkRates() {
        if (!billing_.isMoneyOn || billing_.isSingleRate) {
            return;
        }
        CalendarNumbers numbers;
        std::vector<std::vector<EventIndex>> ofCalendars;
        for (EventIndex index = 0; index < events_.size(); ++index) {
            const std::uint32_t number = numbers.of(events_[index]);
            ofCalendars.resize(numbers.calendars().size());
            ofCalendars[number].push_back(index);
        }
        const auto isBilled = [this](const std::vector<EventIndex>& events) {
            return hasRate(events_[events.front()], billing_);
        };
        if (std::ranges::none_of(ofCalendars, isBilled)) {
            return;
        }
        for (std::vector<EventIndex>& events : ofCalendars) {
            if (!isBilled(events)) {
                add({.kind = FindingKind::CalendarWithoutRate, .events = std::move(events)});
            }
        }
    }
    [[nodiscard]] std::vector<Finding> joined() {
        const auto startOf = [this](const Finding& finding) {
            return finding.events.empty() ? Instant::min()
                                          : events_[finding.events.back()].startDate;
        };
        std::vector<Finding> all;
        for (std::vector<Finding>& ofKind : byKind_) {
            if (!std::ranges::is_sorted(ofKind, {}, startOf)) {
                std::ranges::stable_sort(ofKind, {}, startOf);
            }
            std::ranges::move(ofKind, std::back_inserter(all));
        }
        return all;
    }

    const FindingsInput& input_;
    const BillingSettings& billing_;
    std::span<const Event> events_;
    DayTable days_;
    QSet<QString> holidayCalendars_;
    std::array<std::vector<Finding>, kindCount> byKind_;
};

} // namespace

std::vector<Finding> findingsOf(const FindingsInput& input) {
    return Check(input).findings();
}

bool looksLikeFormula(QStringView text) {
    return !text.isEmpty() && QStringView(u"=+-@\t\r\n").contains(text.front());
}

} // namespace quillet
