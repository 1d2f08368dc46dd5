#pragma once

#include "period/DateInspectorController.h"

#include <QWidget>

class QToolButton;

namespace quillet {

class PeriodPicker;

/// The days to pick a period from: its two ends and the lock between them.
class InspectorPane : public QWidget {
    Q_OBJECT

public:
    /// The calendar is the Gregorian one of the user's locale and zone: the pickers show that one,
    /// whatever calendar the locale writes its dates in.
    InspectorPane(DateInspectorController& inspector, SettingsStore& settings,
                  const CalendarArithmetic& calendar, QWidget* parent = nullptr);
    ~InspectorPane() override;
    Q_DISABLE_COPY_MOVE(InspectorPane)

private:
    [[nodiscard]] PeriodPicker* makePicker(const QString& name);
    [[nodiscard]] QToolButton* makeLock();
    void showPeriod();
    [[nodiscard]] QDate dateOf(Instant instant) const;
    [[nodiscard]] Instant noonOf(QDate date) const;

    DateInspectorController& inspector_;
    const CalendarArithmetic& calendar_;
    PeriodPicker* startPicker_;
    PeriodPicker* endPicker_;
    QToolButton* lock_;
};

} // namespace quillet
