#include "calendars/CalendarsArrayController.h"

#include "platform/Settings.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr double firstFetchDelaySeconds = 1.5;

bool hasRecord(const std::vector<CalendarRecord>& records, const QString& identifier) {
    return std::ranges::find(records, identifier, &CalendarRecord::calendarIdentifier) !=
           records.end();
}

QVariantList valuesFrom(const std::vector<CalendarRecord>& records) {
    QVariantList values;
    for (const CalendarRecord& record : records) {
        values.append(valueFromCalendarRecord(record));
    }
    return values;
}

} // namespace

CalendarsArrayController::CalendarsArrayController(SettingsStore& settings,
                                                   EventKitManager& eventKitManager,
                                                   const LocaleFormats& formats,
                                                   OneShotTimer& timer)
    : ListController([](const CalendarRecord& record) { return qHash(record.calendarIdentifier); },
                     [](const CalendarRecord& left, const CalendarRecord& right) {
                         return left.calendarIdentifier == right.calendarIdentifier;
                     })
    , settings_(settings)
    , eventKitManager_(eventKitManager)
    , formats_(formats)
    , timer_(timer) {}

void CalendarsArrayController::awakeFromNib() {
    settings::calendars.writeIfAbsent(settings_);
    settings::isCalendarGroupsSheetActive.reset(settings_);
    settings::isCalendarAccessGranted.writeIfAbsent(settings_);
    connect(&eventKitManager_, &EventKitManager::accessGranted, this, [this] { accessGranted(); });
    // Syncing again with an unchanged store changes nothing, so that one sync answers for all the
    // announcements of one change.
    connect(&eventKitManager_, &EventKitManager::storeChanged, this, [this] { storeChanged(); });
    for (const SettingKey* key : settingGroup(
             settings::isDollarsOn, settings::isSingleRate, settings::hourlyRate,
             settings::isCalendarGroupsSheetActive, settings::calendarGroupsSelectedIndex)) {
        observations_.push_back(key->observe(settings_, [this] { moneySettingChanged(); }));
    }
    observations_.push_back(settings::calendars.observe(settings_, [this] {
        if (!isWritingBack_) {
            reload();
        }
    }));
    setOrder([](const CalendarRecord& left, const CalendarRecord& right) {
        return left.title < right.title;
    });
    reload();
    if (settings::isCalendarAccessGranted.read(settings_)) {
        syncCalendars();
    }
}

void CalendarsArrayController::syncCalendars() {
    settings::calendars.writeIfAbsent(settings_);
    // The setting may tell the last run's answer. A store that is closed now has no calendars, but
    // that says nothing about those of the list, whose rates would be lost.
    if (!eventKitManager_.eventCalendarsAccessGranted()) {
        return;
    }
    setIsCalendarsSyncing(true);
    const std::vector<CalendarRecord>& before = *content();
    std::vector<CalendarRecord> after = synced(before);
    if (valuesFrom(after) != valuesFrom(before)) {
        writeBack(std::move(after));
    }
    setIsCalendarsSyncing(false);
}

std::vector<CalendarRecord> CalendarsArrayController::synced(std::vector<CalendarRecord> records) {
    const CalendarList calendars = eventKitManager_.eventCalendars();
    const std::vector<CalendarRecord> snapshot = records;
    for (const auto& calendar : calendars) {
        if (!hasRecord(snapshot, calendar->calendarIdentifier)) {
            CalendarRecord record;
            record.calendarIdentifier = calendar->calendarIdentifier;
            record.title = calendar->title;
            record.rate = Decimal();
            record.isSelected = true;
            records.push_back(std::move(record));
        }
    }
    std::erase_if(records, [&](const CalendarRecord& record) {
        return std::ranges::none_of(calendars, [&](const auto& calendar) {
            return calendar->calendarIdentifier == record.calendarIdentifier;
        });
    });
    for (const auto& calendar : calendars) {
        for (CalendarRecord& record : records) {
            if (record.calendarIdentifier == calendar->calendarIdentifier) {
                refresh(record, *calendar);
            }
        }
    }
    return records;
}

void CalendarsArrayController::refresh(CalendarRecord& record, const StoreCalendar& calendar) {
    record.title = calendar.title;
    if (!record.rate) {
        record.rate = Decimal();
    }
    Decimal rate = *record.rate;
    if (settings::isSingleRate.read(settings_)) {
        settings::hourlyRate.writeIfAbsent(settings_);
        const Decimal shared = settings::hourlyRate.read(settings_);
        rate = shared.isNaN() ? Decimal() : shared;
    }
    record.titleWithRate = makeTitleWithStringAndRate(calendar.title, rate.toString());
}

void CalendarsArrayController::accessGranted() {
    syncCalendars();
    timer_.start(firstFetchDelaySeconds, [this] { settings::datesChangedTrigger.flip(settings_); });
}

void CalendarsArrayController::storeChanged() {
    if (settings::isCalendarAccessGranted.read(settings_)) {
        syncCalendars();
    }
}

void CalendarsArrayController::moneySettingChanged() {
    if (!isCalendarsSyncing_ && !settings::isCalendarGroupsSheetActive.read(settings_) &&
        settings::isCalendarAccessGranted.read(settings_)) {
        syncCalendars();
    }
}

void CalendarsArrayController::calendarTableViewClicked(ControlKey controlKey) {
    if (controlKey == ControlKey::Up) {
        return;
    }
    // No selected record reads as one that is not ticked.
    const bool isSelected = selectedRows().empty() || !arranged(selectedRows().front()).isSelected;
    std::vector<CalendarRecord> records = *content();
    for (std::size_t row = 0; row < arrangedCount(); ++row) {
        records[contentIndex(row)].isSelected = isSelected;
    }
    writeBack(std::move(records));
}

void CalendarsArrayController::setSelected(std::size_t row, bool isSelected) {
    std::vector<CalendarRecord> records = *content();
    records[contentIndex(row)].isSelected = isSelected;
    writeBack(std::move(records));
}

void CalendarsArrayController::setRate(std::size_t row, const Decimal& rate) {
    std::vector<CalendarRecord> records = *content();
    records[contentIndex(row)].rate = rate;
    writeBack(std::move(records));
    moneySettingChanged();
}

QString CalendarsArrayController::makeTitleWithStringAndRate(const QString& title,
                                                             const QString& rateText) const {
    if (!settings::isDollarsOn.read(settings_)) {
        return title.isNull() ? QStringLiteral("") : title;
    }
    const Decimal rate = rateText.isNull() ? Decimal() : Decimal::fromString(rateText);
    return QStringLiteral("%1   (%2)").arg(title, formatCurrency(rate));
}

QString CalendarsArrayController::formatCurrency(const Decimal& amount) const {
    return formats_.currency(amount);
}

void CalendarsArrayController::reload() {
    setContent(storedCalendarRecords(settings_));
}

void CalendarsArrayController::writeBack(std::vector<CalendarRecord> records) {
    setContent(std::move(records));
    isWritingBack_ = true;
    // From the content: whoever was told of the change may have changed the list further.
    settings::calendars.write(settings_, valuesFrom(*content()));
    isWritingBack_ = false;
}

} // namespace quillet
