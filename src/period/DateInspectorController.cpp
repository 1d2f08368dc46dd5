#include "period/DateInspectorController.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr qint64 customIndex = static_cast<qint64>(PeriodKind::Custom);

bool isKind(qint64 index) {
    return index >= static_cast<qint64>(PeriodKind::Day) && index <= customIndex;
}

/// The length of one period of a kind, and the distance of one step; nothing for Custom.
DateOffset lengthOf(PeriodKind kind) {
    switch (kind) {
    case PeriodKind::Day:
        return {.days = 1};
    case PeriodKind::Week:
        return {.days = 7};
    case PeriodKind::Month:
        return {.months = 1};
    case PeriodKind::Year:
        return {.years = 1};
    case PeriodKind::Custom:
        break;
    }
    return {};
}

DateOffset reversed(const DateOffset& offset) {
    return {.years = -offset.years, .months = -offset.months, .days = -offset.days};
}

LocalSeconds localTime(Instant date, const ZoneRules& zone) {
    return zone.toLocal(std::chrono::floor<std::chrono::seconds>(date));
}

/// Counted in seconds, for a stored date may be so far off that its second, told in milliseconds,
/// has no number any more.
bool beginsDay(Instant date, const ZoneRules& zone) {
    const auto second = std::chrono::floor<std::chrono::seconds>(date);
    return date.time_since_epoch() % std::chrono::seconds(1) == std::chrono::milliseconds(0) &&
           zone.firstInstantFrom(std::chrono::floor<std::chrono::days>(zone.toLocal(second))) ==
               second;
}

} // namespace

DateInspectorController::DateInspectorController(const Collaborators& collaborators)
    : with_(collaborators)
    , arithmetic_(collaborators.gregorian, collaborators.current)
    , dates_(collaborators.settings, collaborators.clock, arithmetic_) {}

DateInspectorController::~DateInspectorController() = default;

void DateInspectorController::awakeFromNib() {
    isInterfaceEnabled_ = settings::isCalendarAccessGranted.read(with_.settings);
    setQuickDatePeriodIndex(settings::quickDatePeriod.readOrFirstRun(with_.settings));
    dates_.readSelectedDate();

    observations_.push_back(settings::isCalendarAccessGranted.observe(with_.settings, [this] {
        isInterfaceEnabled_ = settings::isCalendarAccessGranted.read(with_.settings);
        Q_EMIT isInterfaceEnabledChanged();
    }));
    for (const SettingKey* key : settingGroup(settings::filterStartDate, settings::filterEndDate,
                                              settings::quickDatePeriod)) {
        observations_.push_back(key->observe(with_.settings, [this] { setLabels(); }));
    }
    setLabels();
    if (!isCustomDateOn_) {
        lockedPeriod_ = arithmetic_.totalDaysFromStartDate(startDate(), endDate());
    }
}

void DateInspectorController::moveDatesFrom(const ZoneRules& formerZone) {
    const auto start = dates_.storedStartDate();
    const auto end = dates_.storedEndDate();
    if (start && end && beginsDay(*start, formerZone)) {
        dates_.setBounds(sameDay(*start, formerZone), sameDay(*end, formerZone));
    }
    if (const auto selected = settings::selectedDate.read(with_.settings);
        selected && beginsDay(*selected, formerZone)) {
        setSelectedDate(sameDay(*selected, formerZone));
    }
    if (weekReferenceDate_) {
        weekReferenceDate_ = arithmetic_.normalizedStart(sameDay(*weekReferenceDate_, formerZone));
    }
}

void DateInspectorController::followZoneChange(const ZoneRules& formerZone) {
    moveDatesFrom(formerZone);
    settings::datesChangedTrigger.flip(with_.settings);
}

Instant DateInspectorController::sameDay(Instant date, const ZoneRules& formerZone) const {
    const auto day = std::chrono::floor<std::chrono::days>(localTime(date, formerZone));
    const std::chrono::year_month_day fields(day);
    // At noon, which every day has.
    return with_.gregorian.instant(
        {.year = static_cast<int>(fields.year()),
         .month = static_cast<int>(static_cast<unsigned>(fields.month())),
         .day = static_cast<int>(static_cast<unsigned>(fields.day())),
         .hour = 12});
}

Instant DateInspectorController::today() const {
    return arithmetic_.firstSecondOfDayFromDate(with_.clock.now());
}

qint64 DateInspectorController::quickDatePeriodIndex() {
    settings::quickDatePeriod.writeIfAbsent(with_.settings);
    return settings::quickDatePeriod.read(with_.settings);
}

void DateInspectorController::setQuickDatePeriodIndex(qint64 index) {
    settings::quickDatePeriod.write(with_.settings, index);
}

void DateInspectorController::setCustomDateOn(bool isOn) {
    isCustomDateOn_ = isOn;
    Q_EMIT isCustomDateOnChanged();
}

void DateInspectorController::setLabels() {
    // The end that is read later may move the other one.
    (void)startDate();
    (void)endDate();
    const qint64 kind = quickDatePeriodIndex();
    switch (kind) {
    case static_cast<qint64>(PeriodKind::Day):
        periodLabel_ = localized("Day");
        break;
    case static_cast<qint64>(PeriodKind::Week):
        periodLabel_ = localized("Week");
        break;
    case static_cast<qint64>(PeriodKind::Month):
        periodLabel_ = localized("Month");
        break;
    case static_cast<qint64>(PeriodKind::Year):
        periodLabel_ = localized("Year");
        break;
    case customIndex:
        // One day reads "1 Days" too; the plural is kept for every count.
        periodLabel_ = QStringLiteral("%1 %2").arg(totalDays()).arg(localized("Days"));
        break;
    default:
        periodLabel_.clear();
    }
    const Instant start = dates_.storedStartDate().value_or(startDate());
    const Instant end = dates_.storedEndDate().value_or(endDate());
    dateRangeLabel_ = with_.formats.longDate(start);
    if (kind > 0) {
        dateRangeLabel_ += QStringLiteral(" - ") + with_.formats.longDate(end);
    }
    Q_EMIT labelsChanged();
}

std::vector<Period> DateInspectorController::periodsBefore(int count) {
    std::vector<Period> result;
    const qint64 index = quickDatePeriodIndex();
    if (!isKind(index) || index == customIndex) {
        return result;
    }
    const DateOffset length = lengthOf(static_cast<PeriodKind>(index));
    for (int steps = 1; steps <= count; ++steps) {
        const DateOffset back{.years = -length.years * steps,
                              .months = -length.months * steps,
                              .days = -length.days * steps};
        const Instant start = arithmetic_.firstSecondOfDate(startDate(), back);
        result.push_back({start, arithmetic_.lastSecondBeforeDate(start, length)});
    }
    return result;
}

void DateInspectorController::setQuickDatePeriod() {
    const qint64 index = quickDatePeriodIndex();
    if (settings::quickDatePeriodPreviousValue.isStored(with_.settings) &&
        settings::quickDatePeriodPreviousValue.read(with_.settings) == index) {
        return;
    }
    if (isKind(index)) {
        applyKind(static_cast<PeriodKind>(index));
    }
    settings::quickDatePeriodPreviousValue.write(with_.settings, index);
    settings::datesChangedTrigger.flip(with_.settings);
}

void DateInspectorController::applyKind(PeriodKind kind) {
    setCustomDateOn(kind == PeriodKind::Custom);
    if (kind != PeriodKind::Custom) {
        setPeriod(kind, selectedDate());
    }
}

void DateInspectorController::setQuickDates(PeriodStep segment) {
    const qint64 index = quickDatePeriodIndex();
    if (isKind(index)) {
        step(static_cast<PeriodKind>(index), segment);
    }
    settings::datesChangedTrigger.flip(with_.settings);
}

void DateInspectorController::step(PeriodKind kind, PeriodStep segment) {
    if (kind == PeriodKind::Custom) {
        stepCustomPeriod(segment);
        return;
    }
    Instant date = today();
    if (segment != PeriodStep::Current) {
        const DateOffset length = lengthOf(kind);
        const DateOffset offset = segment == PeriodStep::Next ? length : reversed(length);
        date = kind == PeriodKind::Day ? arithmetic_.firstSecondAfter(startDate(), offset)
                                       : arithmetic_.firstSecondOfDate(startDate(), offset);
    }
    setPeriod(kind, date);
    setSelectedDate(date);
}

void DateInspectorController::stepCustomPeriod(PeriodStep segment) {
    const int days = arithmetic_.totalDaysFromStartDate(startDate(), endDate());
    if (segment == PeriodStep::Current) {
        const Instant start = today();
        dates_.setBounds(start, arithmetic_.lastSecondBefore(start, {.days = days}));
        setSelectedDate(start);
        return;
    }
    const DateOffset shift{.days = segment == PeriodStep::Next ? days : -days};
    const Instant start = arithmetic_.firstSecondAfter(startDate(), shift);
    const Instant end = arithmetic_.firstSecondAfter(endDate(), shift);
    dates_.setBounds(start, end);
    setSelectedDate(start);
}

void DateInspectorController::setPeriod(PeriodKind kind, Instant date) {
    switch (kind) {
    case PeriodKind::Day:
        weekReferenceDate_.reset();
        dates_.setBounds(arithmetic_.firstSecondOfDayFromDate(date),
                         arithmetic_.lastSecondOfDayFromDate(date));
        break;
    case PeriodKind::Week:
        // Remembered so that a month shown before the week comes back, though the week may have
        // begun in the month before.
        weekReferenceDate_ = startDate();
        dates_.setBounds(arithmetic_.firstSecondOfWeekFromDate(date),
                         arithmetic_.lastSecondOfWeekFromDate(date));
        break;
    case PeriodKind::Month:
        date = laterThanWeekReference(date);
        dates_.setBounds(arithmetic_.firstSecondOfMonthFromDate(date),
                         arithmetic_.lastSecondOfMonthFromDate(date));
        break;
    case PeriodKind::Year:
        date = laterThanWeekReference(date);
        dates_.setBounds(arithmetic_.firstSecondOfYearFromDate(date),
                         arithmetic_.lastSecondOfYearFromDate(date));
        break;
    case PeriodKind::Custom:
        break;
    }
}

void DateInspectorController::setPeriodStartingWith(PeriodKind kind, Instant date) {
    if (kind == PeriodKind::Day) {
        setPeriod(kind, date);
        return;
    }
    if (kind == PeriodKind::Week) {
        weekReferenceDate_ = startDate();
    }
    dates_.setBounds(arithmetic_.firstSecondOfDayFromDate(date),
                     arithmetic_.lastSecondBeforeDate(date, lengthOf(kind)));
}

Instant DateInspectorController::laterThanWeekReference(Instant date) {
    const Instant later = std::max(date, weekReferenceDate_.value_or(date));
    weekReferenceDate_.reset();
    return later;
}

void DateInspectorController::startDateControlClicked() {
    const Instant start = startDate();
    setSelectedDate(start);
    const qint64 index = quickDatePeriodIndex();
    if (index == customIndex) {
        if (isCustomDateOn_) {
            lockedPeriod_ = arithmetic_.totalDaysFromStartDate(start, endDate());
        } else {
            setEndDate(
                arithmetic_.lastSecondBefore(start, {.days = static_cast<int>(lockedPeriod_)}));
        }
    } else if (isKind(index)) {
        setPeriodStartingWith(static_cast<PeriodKind>(index), start);
    }
    settings::datesChangedTrigger.flip(with_.settings);
}

void DateInspectorController::endDateControlClicked() {
    if (quickDatePeriodIndex() != customIndex) {
        setQuickDatePeriodIndex(customIndex);
    }
    setCustomDateOn(true);
    lockedPeriod_ = arithmetic_.totalDaysFromStartDate(startDate(), endDate());
    settings::datesChangedTrigger.flip(with_.settings);
}

void DateInspectorController::toggleEndDateLock() {
    if (quickDatePeriodIndex() != customIndex) {
        setQuickDatePeriodIndex(customIndex);
    }
    lockedPeriod_ = arithmetic_.totalDaysFromStartDate(startDate(), endDate());
}

void DateInspectorController::choosePeriodKind(PeriodKind kind) {
    setQuickDatePeriodIndex(static_cast<qint64>(kind));
    setQuickDatePeriod();
}

void DateInspectorController::pickStartDate(Instant day) {
    setStartDate(day);
    startDateControlClicked();
}

void DateInspectorController::pickEndDate(Instant day) {
    // Before the kind, whose action asks for a fetch: while that one runs, the request of the
    // picker's own action is dropped, so the first must already find the new end.
    setEndDate(day);
    becomeCustom();
    endDateControlClicked();
}

void DateInspectorController::switchEndDateLock() {
    const bool wasOn = isCustomDateOn_;
    becomeCustom();
    setCustomDateOn(!wasOn);
    toggleEndDateLock();
}

void DateInspectorController::becomeCustom() {
    // Applied as a choice, so that choosing the former kind again acts and brings its dates back.
    if (quickDatePeriodIndex() != customIndex) {
        choosePeriodKind(PeriodKind::Custom);
    }
}

} // namespace quillet
