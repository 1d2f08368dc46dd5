#include "eventdata/BillingSettings.h"

#include "eventdata/CalendarRecord.h"

#include <algorithm>

namespace quillet {

namespace {

const QString allDayHoursKey = QStringLiteral("allDayHours");
const QString hourlyRateKey = QStringLiteral("hourlyRate");
const QString isDollarsOnKey = QStringLiteral("isDollarsOn");
const QString migrationKey = QStringLiteral("tempNumberRate");

constexpr std::int64_t hoursOfADay = 24;
/// No rule sets a lower bound; below this one sums could no longer be held.
constexpr std::int64_t fewestHours = -1'000'000;
constexpr std::chrono::seconds lengthOfADay{86'400};

} // namespace

Decimal billableRate(const Decimal& storedRate) {
    return storedRate.rounded(2, Rounding::HalfEven).absolute();
}

BillingSettingsSource::BillingSettingsSource(SettingsStore& settings,
                                             const CalendarArithmetic& calendar)
    : settings_(settings)
    , calendar_(calendar) {
    for (const char* key : {"filterStartDate", "filterEndDate", "allDayHours", "isSingleRate",
                            "hourlyRate", "calendars", "isDollarsOn", "timeTypeSelection"}) {
        observations_.push_back(
            settings_.observe(QString::fromLatin1(key), [this] { snapshot_.reset(); }));
    }
}

void BillingSettingsSource::migrateHourlyRate() {
    if (hasKey(settings_, migrationKey)) {
        return;
    }
    if (!hasKey(settings_, hourlyRateKey)) {
        settings_.setObject(migrationKey, QVariant::fromValue(Decimal::fromInteger(1)));
        return;
    }
    QString text = stringForKey(settings_, hourlyRateKey);
    text.replace(u',', u'.');
    settings_.setObject(migrationKey, text);
    settings_.remove(hourlyRateKey);
    settings_.setObject(hourlyRateKey, doubleFromValue(text));
}

const BillingSettings& BillingSettingsSource::current() {
    if (!snapshot_) {
        repairSettings();
        snapshot_ = taken();
    }
    return *snapshot_;
}

void BillingSettingsSource::repairSettings() {
    if (!hasKey(settings_, allDayHoursKey) ||
        integerForKey(settings_, allDayHoursKey) > hoursOfADay) {
        settings_.setObject(allDayHoursKey, QVariant::fromValue<qint64>(hoursOfADay));
    }
    if (boolForKey(settings_, isDollarsOnKey)) {
        setIfAbsent(settings_, hourlyRateKey, QVariant::fromValue(Decimal()));
    }
}

BillingSettings BillingSettingsSource::taken() const {
    BillingSettings result;
    if (const auto start = dateForKey(settings_, QStringLiteral("filterStartDate"))) {
        result.periodStart = calendar_.startOfDay(*start);
    }
    if (const auto end = dateForKey(settings_, QStringLiteral("filterEndDate"))) {
        result.periodEnd = calendar_.startOfDay(*end) + lengthOfADay;
    }
    result.allDayHours =
        std::max<std::int64_t>(integerForKey(settings_, allDayHoursKey), fewestHours);
    result.isMoneyOn = boolForKey(settings_, isDollarsOnKey);
    result.isMoneyFromHours = integerForKey(settings_, QStringLiteral("timeTypeSelection")) == 1;
    result.isSingleRate = boolForKey(settings_, QStringLiteral("isSingleRate"));
    const Decimal single = decimalFromValue(settings_.object(hourlyRateKey));
    result.singleRate = single.isNaN() ? Decimal() : billableRate(single);
    for (const CalendarRecord& record : storedCalendarRecords(settings_)) {
        // A later record of the same calendar wins.
        result.calendarRates.insert(record.calendarIdentifier,
                                    billableRate(record.rate.value_or(Decimal())));
    }
    return result;
}

} // namespace quillet
