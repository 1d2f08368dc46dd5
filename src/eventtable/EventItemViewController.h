#pragma once

#include "eventdata/CalendarRecord.h"
#include "eventtable/EventColumns.h"
#include "platform/CalendarArithmetic.h"
#include "platform/InterfaceItems.h"
#include "platform/ListController.h"
#include "platform/LocaleFormats.h"
#include "platform/Observation.h"
#include "platform/SettingsStore.h"
#include "platform/TableColumn.h"

#include <QObject>

#include <optional>
#include <vector>

namespace quillet {

/// Keeps the columns of the event table in step with the settings, and makes the three labels
/// that stand with the table.
class EventItemViewController : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString periodLabelString READ periodLabelString NOTIFY periodLabelStringChanged)
    Q_PROPERTY(
        QString dateRangeLabelString READ dateRangeLabelString NOTIFY dateRangeLabelStringChanged)
    Q_PROPERTY(QString currencySymbol READ currencySymbol NOTIFY currencySymbolChanged)
    Q_PROPERTY(QString hourlyRateLabelString READ hourlyRateLabelString NOTIFY
                   hourlyRateLabelStringChanged)

public:
    /// One menu entry for each time type.
    struct TimeTypeMenuItems {
        MenuItem& hours;
        MenuItem& minutes;
        MenuItem& duration;
    };

    struct Collaborators {
        SettingsStore& settings;
        /// Holds all sixteen columns; their headers follow the title keys without this class.
        ColumnTable& eventsTableView;
        TimeTypeMenuItems menuItems;
        /// The second set, for the text report.
        TimeTypeMenuItems txtMenuItems;
        ListController<CalendarRecord>& calendarsArrayController;
        const LocaleFormats& formats;
        /// Gregorian, in the system time zone.
        const CalendarArithmetic& calendar;
    };

    explicit EventItemViewController(const Collaborators& collaborators);

    void awakeFromNib();
    /// Reacts to a changed settings key, or to "selection" of the calendar list. The period and
    /// date-range labels follow their keys only through this: whoever writes those keys calls it.
    void observeValueForKeyPath(const QString& keyPath);
    /// One visibility pass: applies visibility keys, time type and money display to the columns.
    /// Writes the defaults of absent visibility keys and flips `hiddenColumnsChangedTrigger`.
    void setHiddenEventColumns();
    /// Writes all default titles over what the user made of them.
    void resetAllColumnTitles();
    void setHourlyRateLabelString();
    void setPeriodLabel();
    void setDateRangeLabel();
    /// Long style, without time; empty where there is no date.
    [[nodiscard]] QString formatDate(std::optional<Instant> date) const;
    /// Calendar days from `eventStartDate` to `eventEndDate`, both counted; 0 where one is absent.
    [[nodiscard]] qint64 totalDays() const;

    [[nodiscard]] const QString& periodLabelString() const { return periodLabelString_; }
    [[nodiscard]] const QString& dateRangeLabelString() const { return dateRangeLabelString_; }
    [[nodiscard]] const QString& currencySymbol() const { return currencySymbol_; }
    [[nodiscard]] const QString& hourlyRateLabelString() const { return hourlyRateLabelString_; }

Q_SIGNALS:
    void periodLabelStringChanged();
    void dateRangeLabelStringChanged();
    void currencySymbolChanged();
    void hourlyRateLabelStringChanged();

private:
    [[nodiscard]] TableColumn& column(EventColumnName name) const;
    [[nodiscard]] bool isVisible(EventColumnName name);
    void ensureVisibilityKey(EventColumnName name);
    void followVisibilityKey(EventColumnName name);
    void showTimeColumn();
    void replaceTimeColumn(EventColumnName chosen, EventColumnName rival);
    void registerForChanges();

    Collaborators with_;
    bool isCreatingKey_ = false;
    QString periodLabelString_;
    QString dateRangeLabelString_;
    QString currencySymbol_;
    QString hourlyRateLabelString_;
    std::vector<Observation> observations_;
};

} // namespace quillet
