#include "window/period/PeriodBar.h"

#include "period/PeriodName.h"
#include "texts/Localized.h"
#include "window/period/PeriodTitle.h"
#include "window/widgets/SegmentedControl.h"

#include <QHBoxLayout>
#include <QMenu>

#include <array>

namespace quillet {

namespace {

constexpr int listedPeriods = 12;

QToolButton* buttonOf(QAction& action, Qt::ToolButtonStyle style, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setDefaultAction(&action);
    button->setAutoRaise(true);
    button->setToolButtonStyle(style);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

PeriodBar::PeriodBar(DateInspectorController& inspector, const LocaleFormats& formats,
                     const PeriodActions& actions, QWidget* parent)
    : QWidget(parent)
    , inspector_(inspector)
    , formats_(formats)
    , actions_(actions)
    , title_(new PeriodTitle(this))
    , kinds_(new SegmentedControl(localized("Period"), this)) {
    title_->setObjectName(QStringLiteral("reportingPeriod"));
    auto* menu = new QMenu(title_);
    title_->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &PeriodBar::fillMenu);
    makeKinds();

    const int unit = fontMetrics().height() / 4;
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(unit * 2, unit * 2, unit * 2, unit);
    layout->setSpacing(unit);
    layout->addWidget(buttonOf(actions_.previous(), Qt::ToolButtonIconOnly, this));
    layout->addWidget(title_);
    layout->addWidget(buttonOf(actions_.next(), Qt::ToolButtonIconOnly, this));
    layout->addWidget(buttonOf(actions_.current(), Qt::ToolButtonIconOnly, this));
    layout->addStretch();
    layout->addWidget(kinds_);
    layout->addSpacing(unit);
    layout->addWidget(buttonOf(actions_.inspector(), Qt::ToolButtonIconOnly, this));

    connect(&inspector_, &DateInspectorController::labelsChanged, this, &PeriodBar::showPeriod);
    connect(&inspector_, &DateInspectorController::isCustomDateOnChanged, this,
            &PeriodBar::showPeriod);
    const auto enable = [this] {
        title_->setEnabled(inspector_.isInterfaceEnabled());
        kinds_->setEnabled(inspector_.isInterfaceEnabled());
    };
    connect(&inspector_, &DateInspectorController::isInterfaceEnabledChanged, this, enable);
    enable();
    showPeriod();
}

PeriodBar::~PeriodBar() = default;

void PeriodBar::makeKinds() {
    for (const char* kind : {localizable("Day"), localizable("Week"), localizable("Month"),
                             localizable("Year"), localizable("Custom")}) {
        kinds_->addSegment(localized(kind));
    }
    connect(kinds_, &SegmentedControl::picked, this,
            [this](int kind) { inspector_.choosePeriodKind(static_cast<PeriodKind>(kind)); });
}

void PeriodBar::showPeriod() {
    const qint64 kind = inspector_.quickDatePeriodIndex();
    kinds_->setChosen(static_cast<int>(kind));
    title_->setText(nameOfPeriod(kind, inspector_.startDate(), inspector_.endDate(), formats_));
    title_->updateGeometry();
    title_->setToolTip(inspector_.periodLabelString().isEmpty()
                           ? inspector_.dateRangeLabelString()
                           : QStringLiteral("%1 · %2").arg(inspector_.periodLabelString(),
                                                           inspector_.dateRangeLabelString()));
}

void PeriodBar::fillMenu() {
    QMenu& menu = *title_->menu();
    menu.clear();
    for (const Period& period : inspector_.periodsBefore(listedPeriods)) {
        const QString name =
            nameOfPeriod(inspector_.quickDatePeriodIndex(), period.start, period.end, formats_);
        menu.addAction(name, this,
                       [this, start = period.start] { inspector_.pickStartDate(start); });
    }
    menu.addSeparator();
    menu.addAction(&actions_.inspector());
}

} // namespace quillet
