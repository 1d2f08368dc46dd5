#pragma once

#include "eventdata/CalendarRecord.h"
#include "eventtable/ColumnTable.h"
#include "eventtable/EventColumns.h"
#include "platform/CalendarArithmetic.h"
#include "platform/ListController.h"
#include "platform/LocaleFormats.h"
#include "platform/SettingsStore.h"

#include <QObject>

#include <optional>
#include <vector>

namespace quillet {

/// Keeps the event table's columns in step with the settings, and makes the labels that stand
/// with the table.
class EventItemViewController : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        ColumnTable& eventsTableView;
        ListController<CalendarRecord>& calendarsArrayController;
        const CalendarArithmetic& calendar;
        const LocaleFormats& formats;
    };

    explicit EventItemViewController(const Collaborators& collaborators);
    ~EventItemViewController() override;
    Q_DISABLE_COPY_MOVE(EventItemViewController)

    void awakeFromNib();
    /// Applies the visibility keys, the time type and money to the columns, creating keys that are
    /// absent, and flips `hiddenColumnsChangedTrigger`.
    void setHiddenEventColumns();
    /// Writes all default titles over the users' own.
    void resetAllColumnTitles();
    void setHourlyRateLabelString();
    void setPeriodLabel();
    void setDateRangeLabel();
    /// Whole days from `eventStartDate` to `eventEndDate`, both counted; 0 without both.
    [[nodiscard]] int totalDays() const;

    [[nodiscard]] QString hourlyRateLabelString() const { return hourlyRateLabel_; }
    [[nodiscard]] QString periodLabelString() const { return periodLabel_; }
    [[nodiscard]] QString dateRangeLabelString() const { return dateRangeLabel_; }
    [[nodiscard]] QString currencySymbol() const { return currencySymbol_; }
    /// The one menu entry that is shown of each set of entries for the time columns; nothing while
    /// none of them is hidden.
    [[nodiscard]] std::optional<TimeType> shownTimeMenuItem() const { return shownTimeMenuItem_; }

Q_SIGNALS:
    void hourlyRateLabelStringChanged();
    void periodLabelStringChanged();
    void dateRangeLabelStringChanged();
    void shownTimeMenuItemChanged();

private:
    void observe(const SettingKey& setting, std::function<void()> reaction);
    void visibilityChanged();
    [[nodiscard]] TableColumn& shown(const EventColumn& column);
    void setHiddenByKey(const EventColumn& column);
    void setHiddenTimeColumns(const EventColumn& hours);
    /// Puts the chosen time column where a visible rival is.
    void replaceRival(const EventColumn& chosen, const EventColumn& rival);

    Collaborators with_;
    QString currencySymbol_;
    QString hourlyRateLabel_;
    QString periodLabel_;
    QString dateRangeLabel_;
    std::optional<TimeType> shownTimeMenuItem_;
    bool isPassRunning_ = false;
    std::vector<Observation> observations_;
};

} // namespace quillet
