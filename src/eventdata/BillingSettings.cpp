#include "eventdata/BillingSettings.h"

#include "eventdata/CalendarRecord.h"
#include "platform/Settings.h"

#include <algorithm>

namespace quillet {

namespace {

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
    for (const SettingKey* key : settings::ofBilling) {
        observations_.push_back(key->observe(settings_, [this] {
            snapshot_.reset();
            Q_EMIT changed();
        }));
    }
}

void BillingSettingsSource::migrateHourlyRate() {
    if (settings::tempNumberRate.isStored(settings_)) {
        return;
    }
    if (!settings::hourlyRate.isStored(settings_)) {
        settings::tempNumberRate.reset(settings_);
        return;
    }
    QString text = stringForKey(settings_, settings::hourlyRate.name());
    text.replace(u',', u'.');
    settings_.setObject(settings::tempNumberRate.name(), text);
    settings_.remove(settings::hourlyRate.name());
    settings_.setObject(settings::hourlyRate.name(), doubleFromValue(text));
}

const BillingSettings& BillingSettingsSource::current() {
    if (!snapshot_) {
        repairSettings();
        snapshot_ = taken();
    }
    return *snapshot_;
}

void BillingSettingsSource::repairSettings() {
    if (!settings::allDayHours.isStored(settings_) ||
        settings::allDayHours.read(settings_) > hoursOfADay) {
        settings::allDayHours.write(settings_, hoursOfADay);
    }
    if (settings::isDollarsOn.read(settings_)) {
        settings::hourlyRate.writeIfAbsent(settings_);
    }
}

BillingSettings BillingSettingsSource::taken() const {
    BillingSettings result;
    result.stored = settings::BillingValues(settings_);
    const settings::BillingValues& stored = result.stored;
    if (const auto& start = stored.get<settings::filterStartDate>()) {
        result.periodStart = calendar_.startOfDay(*start);
    }
    if (const auto& end = stored.get<settings::filterEndDate>()) {
        result.periodEnd = calendar_.startOfDay(*end) + lengthOfADay;
    }
    result.allDayHours = std::max<std::int64_t>(stored.get<settings::allDayHours>(), fewestHours);
    result.isMoneyOn = stored.get<settings::isDollarsOn>();
    result.isMoneyFromHours = stored.get<settings::timeTypeSelection>() == 1;
    result.isSingleRate = stored.get<settings::isSingleRate>();
    const Decimal& single = stored.get<settings::hourlyRate>();
    result.singleRate = single.isNaN() ? Decimal() : billableRate(single);
    for (const CalendarRecord& record : storedCalendarRecords(settings_)) {
        // A later record of the same calendar wins.
        result.calendarRates.insert(record.calendarIdentifier,
                                    billableRate(record.rate.value_or(Decimal())));
    }
    return result;
}

} // namespace quillet
