#pragma once

#include "calendars/CalendarsArrayController.h"
#include "eventtable/EventItemViewController.h"

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
    void showRate();
    void showText(const QString& text);
    void takeTextOfAssistiveProgram(const QString& text);
    void takeRate();
    [[nodiscard]] bool isSingleRate() const;

    CalendarsArrayController& calendars_;
    EventItemViewController& labels_;
    SettingsStore& settings_;
    const LocaleFormats& formats_;
    ElidedLabel* label_;
    QLineEdit* field_;
    ElidedLabel* complaint_;
    /// What the field shows unless somebody has put in something else.
    QString shownText_;
};

} // namespace quillet
