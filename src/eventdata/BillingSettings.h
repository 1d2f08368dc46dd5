#pragma once

#include "platform/CalendarArithmetic.h"
#include "platform/Decimal.h"
#include "platform/Instant.h"
#include "platform/Observation.h"
#include "platform/Settings.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <optional>
#include <vector>

namespace quillet {

/// Everything but the event itself that an event's figures depend on.
struct BillingSettings {
    /// The settings as they are stored, for figures that need nothing made of them first.
    settings::BillingValues stored;
    /// The first instant that counts.
    Instant periodStart = Instant::min();
    /// The first instant that no longer counts: 86,400 seconds after the last day began, on days
    /// of 23 and 25 hours too.
    Instant periodEnd = Instant::max();
    /// Hours for which one day of an all-day event counts, at most 24.
    std::int64_t allDayHours = 24;
    bool isMoneyOn = false;
    /// Whether money is hours, rounded to two decimals, times rate; else it is minutes times the
    /// rate of a minute, rounded to fifteen.
    bool isMoneyFromHours = false;
    bool isSingleRate = true;
    /// Money per hour; two decimals, not negative, as all rates here.
    Decimal singleRate;
    /// By calendar identifier.
    QHash<QString, Decimal> calendarRates;
};

/// What a stored rate counts as: its magnitude, rounded half-even to two decimals.
[[nodiscard]] Decimal billableRate(const Decimal& storedRate);

/// Keeps the snapshot of the billing settings that is current. Main thread only.
class BillingSettingsSource : public QObject {
    Q_OBJECT

public:
    /// The calendar is the Gregorian one in the system time zone. Observes the keys that the
    /// snapshot depends on, so that whoever observes them later already finds the new snapshot.
    BillingSettingsSource(SettingsStore& settings, const CalendarArithmetic& calendar);

    /// Brings a single rate stored by an old version, a text with a decimal comma, into today's
    /// form. `tempNumberRate` marks that this was done.
    void migrateHourlyRate();

    /// The snapshot of the settings as they are. Taking it writes `allDayHours` = 24 where that is
    /// absent or above, and `hourlyRate` = 0 where money is on and it is absent.
    [[nodiscard]] const BillingSettings& current();

Q_SIGNALS:
    /// A setting that figures depend on was written: all of them may have changed. Comes before the
    /// observers of that setting that registered later, and finds the new snapshot.
    void changed();

private:
    void repairSettings();
    [[nodiscard]] BillingSettings taken() const;

    SettingsStore& settings_;
    const CalendarArithmetic& calendar_;
    std::optional<BillingSettings> snapshot_;
    std::vector<Observation> observations_;
};

} // namespace quillet
