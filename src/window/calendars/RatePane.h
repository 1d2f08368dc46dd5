#pragma once

#include "calendars/CalendarsArrayController.h"
#include "eventtable/EventItemViewController.h"
#include "window/calendars/RateEditing.h"

#include <QWidget>

class QLineEdit;

namespace quillet {

class ElidedLabel;

/// The hourly rates: one for all calendars, or that of the calendars selected in the list.
class RatePane : public QWidget {
    Q_OBJECT

public:
    RatePane(CalendarsArrayController& calendars, EventItemViewController& labels,
             SettingsStore& settings, const LocaleFormats& formats, QWidget* parent = nullptr);
    ~RatePane() override;
    Q_DISABLE_COPY_MOVE(RatePane)

private:
    void refresh();
    [[nodiscard]] bool isSingleRate() const;
    /// The one rate, or that of the selected calendars.
    [[nodiscard]] EditedRate editedRate();
    void setRate(const QString& calendarIdentifier, const Decimal& rate);

    CalendarsArrayController& calendars_;
    EventItemViewController& labels_;
    SettingsStore& settings_;
    ElidedLabel* label_;
    QLineEdit* field_;
    ElidedLabel* complaint_;
    RateEditing* editing_;
};

} // namespace quillet
