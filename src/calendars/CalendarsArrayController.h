#pragma once

#include "eventdata/CalendarRecord.h"
#include "eventdata/EventKitManager.h"
#include "platform/ListController.h"
#include "platform/LocaleFormats.h"
#include "platform/OneShotTimer.h"
#include "platform/SettingsStore.h"

#include <vector>

namespace quillet {

/// The user's list of calendars, kept in step with the store. Its content is the stored array
/// `calendars`: every change of a record is written back at once, and a write from elsewhere is
/// shown at once.
class CalendarsArrayController : public ListController<CalendarRecord> {
public:
    CalendarsArrayController(SettingsStore& settings, EventKitManager& eventKitManager,
                             const LocaleFormats& formats, OneShotTimer& timer);

    void awakeFromNib();

    /// Adds calendars that appeared in the store, drops those that vanished (and with them their
    /// rates), follows renames, and refreshes the displayed titles. Without access to the store the
    /// list stays as it is.
    void syncCalendars();
    /// The user granted access: syncs, and asks for a fetch 1.5 seconds later.
    void accessGranted();
    void storeChanged();
    /// A click on the list. With the Control key it clears all ticks when the selected record is
    /// ticked, and else ticks all; without, it does nothing.
    enum class ControlKey { Up, Held };
    void calendarTableViewClicked(ControlKey controlKey);

    /// Ticks or clears the record in an arranged row.
    void setSelected(std::size_t row, bool isSelected);
    /// Money per hour for the record in an arranged row.
    void setRate(std::size_t row, const Decimal& rate);

    /// The title alone with money off, else "Title   ($10.00)". The rate text has a "." as its
    /// decimal separator; a missing one counts as "0.00".
    [[nodiscard]] QString makeTitleWithStringAndRate(const QString& title,
                                                     const QString& rateText) const;
    [[nodiscard]] QString formatCurrency(const Decimal& amount) const;
    /// While it is set, no change of a setting starts a sync.
    [[nodiscard]] bool isCalendarsSyncing() const { return isCalendarsSyncing_; }
    void setIsCalendarsSyncing(bool isSyncing) { isCalendarsSyncing_ = isSyncing; }

private:
    [[nodiscard]] std::vector<CalendarRecord> synced(std::vector<CalendarRecord> records);
    void refresh(CalendarRecord& record, const StoreCalendar& calendar);
    void moneySettingChanged();
    void reload();
    void writeBack(std::vector<CalendarRecord> records);

    SettingsStore& settings_;
    EventKitManager& eventKitManager_;
    const LocaleFormats& formats_;
    OneShotTimer& timer_;
    bool isCalendarsSyncing_ = false;
    bool isWritingBack_ = false;
    std::vector<Observation> observations_;
};

} // namespace quillet
