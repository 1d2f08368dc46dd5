#include "period/DateInspectorController.h"

#include "texts/Localized.h"

namespace quillet {

namespace {

const QString startKey = QStringLiteral("filterStartDate");
const QString endKey = QStringLiteral("filterEndDate");
const QString selectedKey = QStringLiteral("selectedDate");
const QString kindKey = QStringLiteral("quickDatePeriod");
const QString accessKey = QStringLiteral("isCalendarAccessGranted");

constexpr qint64 customIndex = static_cast<qint64>(PeriodKind::Custom);

} // namespace

DateInspectorController::DateInspectorController(const Collaborators& collaborators)
    : with_(collaborators)
    , arithmetic_(collaborators.gregorian, collaborators.current) {}

DateInspectorController::~DateInspectorController() = default;

void DateInspectorController::awakeFromNib() {
    isInterfaceEnabled_ = boolForKey(with_.settings, accessKey);
    setQuickDatePeriodIndex(hasKey(with_.settings, kindKey)
                                ? integerForKey(with_.settings, kindKey)
                                : static_cast<qint64>(PeriodKind::Week));
    setSelectedDate(
        stored(selectedKey).value_or(arithmetic_.firstSecondOfWeekFromDate(with_.clock.now())));

    observations_.push_back(with_.settings.observe(accessKey, [this] {
        isInterfaceEnabled_ = boolForKey(with_.settings, accessKey);
        Q_EMIT isInterfaceEnabledChanged();
    }));
    for (const QString& key : {startKey, endKey, kindKey}) {
        observations_.push_back(with_.settings.observe(key, [this] { setLabels(); }));
    }
    setLabels();
    if (!isCustomDateOn_) {
        lockedPeriod_ = arithmetic_.totalDaysFromStartDate(startDate(), endDate());
    }
}

std::optional<Instant> DateInspectorController::stored(const QString& key) const {
    return dateForKey(with_.settings, key);
}

Instant DateInspectorController::today() const {
    return arithmetic_.firstSecondOfDayFromDate(with_.clock.now());
}

Instant DateInspectorController::startDate() {
    if (!startDate_) {
        setStartDate(
            stored(startKey).value_or(arithmetic_.firstSecondOfWeekFromDate(with_.clock.now())));
    }
    return *startDate_;
}

Instant DateInspectorController::endDate() {
    if (!endDate_) {
        setEndDate(
            stored(endKey).value_or(arithmetic_.lastSecondOfWeekFromDate(with_.clock.now())));
    }
    return *endDate_;
}

Instant DateInspectorController::selectedDate() {
    if (!selectedDate_) {
        setSelectedDate(
            stored(selectedKey).value_or(arithmetic_.firstSecondOfWeekFromDate(with_.clock.now())));
    }
    return *selectedDate_;
}

void DateInspectorController::adopt(const QString& key, std::optional<Instant>& property,
                                    Instant value) {
    property = value;
    with_.settings.setObject(key, QVariant::fromValue(value));
}

void DateInspectorController::setStartDate(Instant date) {
    constexpr int farthest = PeriodArithmetic::longestPeriodDays - 1;
    const Instant start = arithmetic_.normalizedStart(date);
    startDate_ = start;
    if (endDate_ && *endDate_ < start) {
        adopt(endKey, endDate_, arithmetic_.lastSecondOfDayFromDate(start));
    } else if (endDate_ && arithmetic_.totalDaysFromStartDate(start, *endDate_) >
                               PeriodArithmetic::longestPeriodDays) {
        adopt(endKey, endDate_, arithmetic_.lastSecondBefore(start, {.days = farthest + 1}));
    }
    adopt(startKey, startDate_, start);
}

void DateInspectorController::setEndDate(Instant date) {
    constexpr int farthest = PeriodArithmetic::longestPeriodDays - 1;
    const Instant end = arithmetic_.lastSecondOfDayFromDate(arithmetic_.normalizedStart(date));
    endDate_ = end;
    if (startDate_ && end < *startDate_) {
        adopt(startKey, startDate_, arithmetic_.firstSecondOfDayFromDate(end));
    } else if (startDate_ && arithmetic_.totalDaysFromStartDate(*startDate_, end) >
                                 PeriodArithmetic::longestPeriodDays) {
        adopt(startKey, startDate_, arithmetic_.firstSecondAfter(end, {.days = -farthest}));
    }
    adopt(endKey, endDate_, end);
}

void DateInspectorController::setSelectedDate(Instant date) {
    adopt(selectedKey, selectedDate_, arithmetic_.normalizedStart(date));
}

qint64 DateInspectorController::quickDatePeriodIndex() {
    if (!hasKey(with_.settings, kindKey)) {
        setQuickDatePeriodIndex(static_cast<qint64>(PeriodKind::Week));
    }
    return integerForKey(with_.settings, kindKey);
}

void DateInspectorController::setQuickDatePeriodIndex(qint64 index) {
    with_.settings.setObject(kindKey, index);
}

void DateInspectorController::setCustomDateOn(bool isOn) {
    isCustomDateOn_ = isOn;
    Q_EMIT isCustomDateOnChanged();
}

std::int32_t DateInspectorController::totalDays() const {
    const auto start = stored(startKey);
    const auto end = stored(endKey);
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
    const Instant start = stored(startKey).value_or(*startDate_);
    const Instant end = stored(endKey).value_or(*endDate_);
    dateRangeLabel_ = with_.formats.longDate(start);
    if (kind > 0) {
        dateRangeLabel_ += QStringLiteral(" - ") + with_.formats.longDate(end);
    }
    Q_EMIT labelsChanged();
}

} // namespace quillet
