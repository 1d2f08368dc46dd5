#pragma once

#include "period/DateInspectorController.h"
#include "platform/LocaleFormats.h"
#include "window/period/PeriodActions.h"

#include <QWidget>

namespace quillet {

class PeriodTitle;
class SegmentedControl;

/// The period in one line: a step back, its name, a step on, the current one, its kind, and the way
/// to its days. The name's menu leads to the periods before this one.
class PeriodBar : public QWidget {
    Q_OBJECT

public:
    PeriodBar(DateInspectorController& inspector, const LocaleFormats& formats,
              const PeriodActions& actions, QWidget* parent = nullptr);
    ~PeriodBar() override;
    Q_DISABLE_COPY_MOVE(PeriodBar)

private:
    void makeKinds();
    void showPeriod();
    void fillMenu();

    DateInspectorController& inspector_;
    const LocaleFormats& formats_;
    const PeriodActions& actions_;
    PeriodTitle* title_;
    SegmentedControl* kinds_;
};

} // namespace quillet
