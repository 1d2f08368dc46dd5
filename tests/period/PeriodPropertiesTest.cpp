#include "period/DateInspectorController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <memory>

namespace quillet {

namespace {

using std::chrono::days;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::year_month_day;

/// Zones whose clocks change at midnight, before it, by half an hour, by two hours, or never.
const std::vector<const char*> zones{"Europe/Berlin",    "America/New_York", "America/Sao_Paulo",
                                     "America/Santiago", "America/Havana",   "Australia/Lord_Howe",
                                     "Asia/Kathmandu",   "Atlantic/Azores",  "Africa/Casablanca",
                                     "Antarctica/Troll", "America/Asuncion", "UTC"};
/// Weeks from Monday, Sunday and Saturday.
const std::vector<const char*> locales{"en_GB", "en_US", "ar_EG"};

/// A local date, computed by the standard library alone.
sys_days date(const DateComponents& fields) {
    return sys_days(std::chrono::year(fields.year) /
                    std::chrono::month(static_cast<unsigned>(fields.month)) /
                    std::chrono::day(static_cast<unsigned>(fields.day)));
}

year_month_day plus(sys_days day, PeriodKind kind, int steps) {
    year_month_day result(day);
    if (kind == PeriodKind::Month) {
        result += std::chrono::months(steps);
    } else if (kind == PeriodKind::Year) {
        result += std::chrono::years(steps);
    } else {
        return day + days(kind == PeriodKind::Week ? 7 * steps : steps);
    }
    return result.ok() ? result : result.year() / result.month() / std::chrono::last;
}

/// The inspector with everything it needs, and what its published period looks like on the wall.
struct Inspector {
    Inspector(const char* zoneName, const char* localeName)
        : gregorian(localeName, zoneName, CalendarSystem::Gregorian)
        , current(localeName, zoneName, CalendarSystem::OfLocale)
        , formats(LocaleNames{"en_US", "en_US", "en_US"}, zoneName) {
        launch();
    }
    void launch() {
        controller = std::make_unique<DateInspectorController>(
            DateInspectorController::Collaborators{settings, clock, gregorian, current, formats});
        controller->awakeFromNib();
    }
    [[nodiscard]] Instant start() const { return *dateForKey(settings, "filterStartDate"); }
    [[nodiscard]] Instant end() const { return *dateForKey(settings, "filterEndDate"); }
    [[nodiscard]] sys_days first() const { return date(gregorian.components(start())); }
    [[nodiscard]] sys_days last() const { return date(gregorian.components(end())); }
    [[nodiscard]] PeriodKind kind() const {
        return static_cast<PeriodKind>(controller->quickDatePeriodIndex());
    }
    [[nodiscard]] int weekday(Instant instant) const {
        return gregorian.components(instant).weekday;
    }
    [[nodiscard]] Instant noon(sys_days day) const {
        const year_month_day fields(day);
        return gregorian.instant({static_cast<int>(fields.year()),
                                  static_cast<int>(static_cast<unsigned>(fields.month())),
                                  static_cast<int>(static_cast<unsigned>(fields.day())), 12});
    }

    /// What holds after whatever the user did.
    void expectWholePeriod() const {
        const DateComponents endFields = gregorian.components(end());
        RC_ASSERT(start() == gregorian.startOfDay(start()));
        RC_ASSERT(endFields.hour == 23);
        RC_ASSERT(endFields.minute == 59);
        RC_ASSERT(endFields.second == 59);
        RC_ASSERT(end() + seconds(1) == gregorian.startOfDay(end() + seconds(1)));
        const int length = static_cast<int>((last() - first()).count()) + 1;
        RC_ASSERT(length >= 1);
        RC_ASSERT(length <= 1460);
        RC_ASSERT(controller->totalDays() == length);
        RC_ASSERT(controller->startDate() == start());
        RC_ASSERT(controller->endDate() == end());
    }
    /// The kind that is shown is the kind of the dates, picked starts included.
    void expectDatesOfTheKind() const {
        if (kind() != PeriodKind::Custom) {
            RC_ASSERT(year_month_day(last() + days(1)) == plus(first(), kind(), 1));
        }
    }

    test::MemorySettings settings;
    test::FakeClock clock{test::utc(2024, 3, 6, 15)};
    IcuCalendarArithmetic gregorian;
    IcuCalendarArithmetic current;
    IcuLocaleFormats formats;
    std::unique_ptr<DateInspectorController> controller;
};

std::unique_ptr<Inspector> anyInspector() {
    return std::make_unique<Inspector>(*rc::gen::elementOf(zones).as("zone"),
                                       *rc::gen::elementOf(locales).as("locale"));
}

/// A day from 1990 on, for some sixty years.
sys_days anyDay() {
    constexpr sys_days earliest = std::chrono::year(1990) / 1 / 1;
    return earliest + days(*rc::gen::inRange(0, 22'000).as("days from 1990"));
}

Instant anyInstant() {
    return anyDay() + seconds(*rc::gen::inRange(0, 86'400).as("second of the day in UTC"));
}

PeriodKind anyKind(PeriodKind last) {
    return static_cast<PeriodKind>(*rc::gen::inRange(0, static_cast<int>(last) + 1).as("kind"));
}

PeriodStep anyStep() {
    return static_cast<PeriodStep>(*rc::gen::inRange(0, 3).as("segment"));
}

/// One thing that a user does in the window, or a new launch on another day.
void doAnything(Inspector& inspector) {
    DateInspectorController& controller = *inspector.controller;
    switch (*rc::gen::inRange(0, 7).as("action")) {
    case 0:
    case 1:
        return controller.choosePeriodKind(anyKind(PeriodKind::Custom));
    case 2:
    case 3:
        return controller.setQuickDates(anyStep());
    case 4:
        return controller.pickStartDate(inspector.noon(anyDay()));
    case 5:
        return *rc::gen::arbitrary<bool>().as("the end's picker, not its lock")
                   ? controller.pickEndDate(inspector.noon(anyDay()))
                   : controller.switchEndDateLock();
    default:
        inspector.clock.current = anyInstant();
        return inspector.launch();
    }
}

} // namespace

RC_GTEST_PROP(PeriodPropertiesTest, NoSequenceOfActionsLeavesAKindWithOtherDates, ()) {
    const auto inspector = anyInspector();
    std::vector<std::pair<Instant, Instant>> announced;
    const Observation observation = inspector->settings.observe("datesChangedTrigger", [&] {
        announced.emplace_back(inspector->start(), inspector->end());
    });
    const int actions = *rc::gen::inRange(1, 40).as("actions");
    for (int action = 0; action < actions; ++action) {
        announced.clear();
        doAnything(*inspector);
        inspector->expectWholePeriod();
        inspector->expectDatesOfTheKind();
        // A fetch that the first announcement starts makes the others go unheard.
        for (const auto& [start, end] : announced) {
            RC_ASSERT(start == inspector->start());
            RC_ASSERT(end == inspector->end());
        }
    }
}

RC_GTEST_PROP(PeriodPropertiesTest, EveryInputEndsInAWholePeriodOfAtMost1460Days, ()) {
    const auto inspector = anyInspector();
    const int writes = *rc::gen::inRange(1, 8).as("writes");
    for (int write = 0; write < writes; ++write) {
        const Instant input = anyInstant();
        if (*rc::gen::arbitrary<bool>().as("start")) {
            inspector->controller->setStartDate(input);
            RC_ASSERT(inspector->first() == date(inspector->gregorian.components(input)));
        } else {
            inspector->controller->setEndDate(input);
            RC_ASSERT(inspector->last() == date(inspector->gregorian.components(input)));
        }
        inspector->expectWholePeriod();
    }
}

RC_GTEST_PROP(PeriodPropertiesTest, AChosenKindIsTheOneAroundTheAnchor, ()) {
    const auto inspector = anyInspector();
    const sys_days anchor = anyDay();
    const PeriodKind kind = anyKind(PeriodKind::Year);
    // The week's reference is the start that was shown; it must not be the later date here.
    inspector->controller->choosePeriodKind(PeriodKind::Custom);
    inspector->controller->setSelectedDate(inspector->noon(anchor));
    inspector->controller->choosePeriodKind(kind);
    const year_month_day fields(anchor);
    sys_days first = anchor;
    switch (kind) {
    case PeriodKind::Week:
        first +=
            days(inspector->current.firstWeekday() - inspector->weekday(inspector->noon(anchor)));
        break;
    case PeriodKind::Month:
        first = fields.year() / fields.month() / 1;
        break;
    case PeriodKind::Year:
        first = fields.year() / 1 / 1;
        break;
    default:
        break;
    }
    RC_ASSERT(inspector->first() == first);
    inspector->expectWholePeriod();
    inspector->expectDatesOfTheKind();
}

RC_GTEST_PROP(PeriodPropertiesTest, SteppingForthAndBackReturnsAndLeavesNoGap, ()) {
    const auto inspector = anyInspector();
    DateInspectorController& controller = *inspector->controller;
    controller.choosePeriodKind(PeriodKind::Custom);
    controller.setSelectedDate(inspector->noon(anyDay()));
    controller.choosePeriodKind(anyKind(PeriodKind::Year));
    if (*rc::gen::arbitrary<bool>().as("custom")) {
        const sys_days first = anyDay();
        controller.choosePeriodKind(PeriodKind::Custom);
        controller.setStartDate(inspector->noon(first));
        controller.setEndDate(
            inspector->noon(first + days(*rc::gen::inRange(0, 1460).as("further days"))));
    }
    const Instant start = inspector->start();
    const Instant end = inspector->end();
    const int steps = *rc::gen::inRange(1, 15).as("steps");
    for (int step = 0; step < steps; ++step) {
        const Instant oldEnd = inspector->end();
        controller.setQuickDates(PeriodStep::Next);
        RC_ASSERT(inspector->start() == oldEnd + seconds(1));
        RC_ASSERT(controller.selectedDate() == inspector->start());
        inspector->expectWholePeriod();
    }
    for (int step = 0; step < steps; ++step) {
        const Instant oldStart = inspector->start();
        controller.setQuickDates(PeriodStep::Previous);
        RC_ASSERT(inspector->end() + seconds(1) == oldStart);
    }
    RC_ASSERT(inspector->start() == start);
    RC_ASSERT(inspector->end() == end);
}

RC_GTEST_PROP(PeriodPropertiesTest, ALockedCustomPeriodKeepsItsLengthWhereverItStarts, ()) {
    const auto inspector = anyInspector();
    DateInspectorController& controller = *inspector->controller;
    const sys_days first = anyDay();
    const int length = *rc::gen::inRange(1, 1461).as("days");
    controller.pickStartDate(inspector->noon(first));
    controller.pickEndDate(inspector->noon(first + days(length - 1)));
    controller.switchEndDateLock();
    const sys_days moved = anyDay();
    controller.pickStartDate(inspector->noon(moved));
    RC_ASSERT(inspector->first() == moved);
    RC_ASSERT(inspector->last() == moved + days(length - 1));
    inspector->expectWholePeriod();
}

} // namespace quillet
