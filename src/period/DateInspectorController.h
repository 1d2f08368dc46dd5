#pragma once

#include "period/PeriodArithmetic.h"
#include "period/PeriodDates.h"
#include "platform/Clock.h"
#include "platform/LocaleFormats.h"
#include "platform/Setting.h"
#include "platform/SettingsStore.h"
#include "platform/ZoneRules.h"

#include <QObject>

#include <optional>
#include <vector>

namespace quillet {

/// The kinds of reporting period, as stored.
enum class PeriodKind { Day = 0, Week = 1, Month = 2, Year = 3, Custom = 4 };

/// The segments of the stepping control.
enum class PeriodStep { Previous = 0, Current = 1, Next = 2 };

/// A stretch of whole days.
struct Period {
    /// The first second of its first day.
    Instant start;
    /// The last second of its last day.
    Instant end;
};

/// Owns the reporting period: its kind, its bounds, how it is stepped and picked, and its labels.
/// Publishes it as `filterStartDate` and `filterEndDate`, and flips `datesChangedTrigger` after
/// each change that the user makes.
class DateInspectorController : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        const Clock& clock;
        const CalendarArithmetic& gregorian;
        const CalendarArithmetic& current;
        const LocaleFormats& formats;
    };

    explicit DateInspectorController(const Collaborators& collaborators);
    ~DateInspectorController() override;
    Q_DISABLE_COPY_MOVE(DateInspectorController)

    void awakeFromNib();

    /// The stored dates are instants, and meant days: those of the zone in which they were stored.
    /// Makes them the same days of the zone that holds now, so that a month is that month wherever
    /// its user travels. Dates that begin no day of the former zone stay as they are. To be called
    /// before anything reads them.
    void moveDatesFrom(const ZoneRules& formerZone);
    /// The same when the zone has changed while the program runs: who depends on the dates is told.
    void followZoneChange(const ZoneRules& formerZone);

    /// The first second of the period's first day; the current week's while nothing is stored.
    [[nodiscard]] Instant startDate() { return dates_.startDate(); }
    /// The last second of the period's last day.
    [[nodiscard]] Instant endDate() { return dates_.endDate(); }
    /// The anchor from which a newly chosen kind is built: the first second of a day.
    [[nodiscard]] Instant selectedDate() { return dates_.selectedDate(); }
    /// Bounds are normalised to whole days; the other bound gives way where the order or the
    /// longest length asks for it.
    void setStartDate(Instant date) { dates_.setStartDate(date); }
    void setEndDate(Instant date) { dates_.setEndDate(date); }
    void setSelectedDate(Instant date) { dates_.setSelectedDate(date); }

    /// The number of the kind as stored, which need not be one of PeriodKind's.
    [[nodiscard]] qint64 quickDatePeriodIndex();
    void setQuickDatePeriodIndex(qint64 index);

    /// 1: both ends of a custom period are free; 0: its length is locked.
    [[nodiscard]] bool isCustomDateOn() const { return isCustomDateOn_; }
    void setCustomDateOn(bool isOn);
    /// In days.
    [[nodiscard]] qint64 lockedPeriod() const { return lockedPeriod_; }
    [[nodiscard]] bool isInterfaceEnabled() const { return isInterfaceEnabled_; }
    [[nodiscard]] QString periodLabelString() const { return periodLabel_; }
    [[nodiscard]] QString dateRangeLabelString() const { return dateRangeLabel_; }
    /// The days of the stored period.
    [[nodiscard]] std::int32_t totalDays() const { return dates_.totalDays(); }

    /// The whole periods of its kind before this one, the nearest first; none for a custom period.
    /// Picking the start of one shows it.
    [[nodiscard]] std::vector<Period> periodsBefore(int count);

    /// @name User actions, sent after the control has written its property
    /// @{
    void setQuickDatePeriod();
    void setQuickDates(PeriodStep segment);
    void startDateControlClicked();
    void endDateControlClicked();
    void toggleEndDateLock();
    /// @}

    /// @name What the controls of a window do: write the property, then send the action
    /// @{
    void choosePeriodKind(PeriodKind kind);
    void pickStartDate(Instant day);
    /// The end keeps its 23:59:59, and a kind that becomes Custom is applied as if it was chosen.
    /// Whoever hears `datesChangedTrigger` finds both dates as they will stay.
    void pickEndDate(Instant day);
    void switchEndDateLock();
    /// @}

Q_SIGNALS:
    void labelsChanged();
    void isInterfaceEnabledChanged();
    void isCustomDateOnChanged();

private:
    [[nodiscard]] Instant today() const;
    void applyKind(PeriodKind kind);
    void step(PeriodKind kind, PeriodStep segment);
    void stepCustomPeriod(PeriodStep segment);
    void setPeriod(PeriodKind kind, Instant date);
    void setPeriodStartingWith(PeriodKind kind, Instant date);
    [[nodiscard]] Instant laterThanWeekReference(Instant date);
    [[nodiscard]] Instant sameDay(Instant date, const ZoneRules& formerZone) const;
    void becomeCustom();
    void setLabels();

    Collaborators with_;
    PeriodArithmetic arithmetic_;
    PeriodDates dates_;
    std::optional<Instant> weekReferenceDate_;
    bool isCustomDateOn_ = false;
    qint64 lockedPeriod_ = 0;
    bool isInterfaceEnabled_ = true;
    QString periodLabel_;
    QString dateRangeLabel_;
    std::vector<Observation> observations_;
};

} // namespace quillet
