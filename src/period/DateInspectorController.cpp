#include "period/DateInspectorController.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

namespace quillet {

namespace {

constexpr qint64 customIndex = static_cast<qint64>(PeriodKind::Custom);

} // namespace

DateInspectorController::DateInspectorController(const Collaborators& collaborators)
    : with_(collaborators)
    , arithmetic_(collaborators.gregorian, collaborators.current) {}

DateInspectorController::~DateInspectorController() = default;

void DateInspectorController::awakeFromNib() {
    isInterfaceEnabled_ = settings::isCalendarAccessGranted.read(with_.settings);
    setQuickDatePeriodIndex(settings::quickDatePeriod.readOrFirstRun(with_.settings));
    setSelectedDate(stored(settings::selectedDate)
                        .value_or(arithmetic_.firstSecondOfWeekFromDate(with_.clock.now())));

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

std::optional<Instant> DateInspectorController::stored(const Setting<Instant>& setting) const {
    return setting.read(with_.settings);
}

Instant DateInspectorController::today() const {
    return arithmetic_.firstSecondOfDayFromDate(with_.clock.now());
}

Instant DateInspectorController::startDate() {
    if (!startDate_) {
        setStartDate(stored(settings::filterStartDate)
                         .value_or(arithmetic_.firstSecondOfWeekFromDate(with_.clock.now())));
    }
    return *startDate_;
}

Instant DateInspectorController::endDate() {
    if (!endDate_) {
        setEndDate(stored(settings::filterEndDate)
                       .value_or(arithmetic_.lastSecondOfWeekFromDate(with_.clock.now())));
    }
    return *endDate_;
}

Instant DateInspectorController::selectedDate() {
    if (!selectedDate_) {
        setSelectedDate(stored(settings::selectedDate)
                            .value_or(arithmetic_.firstSecondOfWeekFromDate(with_.clock.now())));
    }
    return *selectedDate_;
}

void DateInspectorController::adopt(const Setting<Instant>& setting,
                                    std::optional<Instant>& property, Instant value) {
    property = value;
    setting.write(with_.settings, value);
}

void DateInspectorController::setStartDate(Instant date) {
    constexpr int farthest = PeriodArithmetic::longestPeriodDays - 1;
    const Instant start = arithmetic_.normalizedStart(date);
    startDate_ = start;
    if (endDate_ && *endDate_ < start) {
        adopt(settings::filterEndDate, endDate_, arithmetic_.lastSecondOfDayFromDate(start));
    } else if (endDate_ && arithmetic_.totalDaysFromStartDate(start, *endDate_) >
                               PeriodArithmetic::longestPeriodDays) {
        adopt(settings::filterEndDate, endDate_,
              arithmetic_.lastSecondBefore(start, {.days = farthest + 1}));
    }
    adopt(settings::filterStartDate, startDate_, start);
}

void DateInspectorController::setEndDate(Instant date) {
    constexpr int farthest = PeriodArithmetic::longestPeriodDays - 1;
    const Instant end = arithmetic_.lastSecondOfDayFromDate(arithmetic_.normalizedStart(date));
    endDate_ = end;
    if (startDate_ && end < *startDate_) {
        adopt(settings::filterStartDate, startDate_, arithmetic_.firstSecondOfDayFromDate(end));
    } else if (startDate_ && arithmetic_.totalDaysFromStartDate(*startDate_, end) >
                                 PeriodArithmetic::longestPeriodDays) {
        adopt(settings::filterStartDate, startDate_,
              arithmetic_.firstSecondAfter(end, {.days = -farthest}));
    }
    adopt(settings::filterEndDate, endDate_, end);
}

void DateInspectorController::setSelectedDate(Instant date) {
    adopt(settings::selectedDate, selectedDate_, arithmetic_.normalizedStart(date));
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

std::int32_t DateInspectorController::totalDays() const {
    const auto start = stored(settings::filterStartDate);
    const auto end = stored(settings::filterEndDate);
    return start && end ? arithmetic_.totalDaysFromStartDate(*start, *end) : 0;
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
    const Instant start = stored(settings::filterStartDate).value_or(*startDate_);
    const Instant end = stored(settings::filterEndDate).value_or(*endDate_);
    dateRangeLabel_ = with_.formats.longDate(start);
    if (kind > 0) {
        dateRangeLabel_ += QStringLiteral(" - ") + with_.formats.longDate(end);
    }
    Q_EMIT labelsChanged();
}

} // namespace quillet
