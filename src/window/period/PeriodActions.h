#pragma once

#include "period/DateInspectorController.h"

#include <QAction>

namespace quillet {

/// The actions that step the reporting period and show its days, and what they have in common with
/// all that change it. They become the window's.
class PeriodActions {
public:
    PeriodActions(DateInspectorController& period, QWidget& window);

    [[nodiscard]] QAction& previous() const { return previous_; }
    [[nodiscard]] QAction& current() const { return current_; }
    [[nodiscard]] QAction& next() const { return next_; }
    /// Checked while the inspector is shown.
    [[nodiscard]] QAction& inspector() const { return inspector_; }
    /// Without access to the calendars the period stays as it is.
    void enableWithPeriod(QAction& action) const;

private:
    QAction& made(const char* text, const QIcon& icon, const QKeySequence& shortcut,
                  PeriodStep step);

    DateInspectorController& period_;
    QWidget& window_;
    QAction& previous_;
    QAction& current_;
    QAction& next_;
    QAction& inspector_;
};

} // namespace quillet
