#include "window/period/InspectorPane.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/PeriodPicker.h"
#include "window/widgets/SymbolIcon.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillet {

namespace {

QLabel* heading(const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setBuddy(buddy);
    return label;
}

} // namespace

InspectorPane::InspectorPane(DateInspectorController& inspector, SettingsStore& settings,
                             const CalendarArithmetic& calendar, QWidget* parent)
    : QWidget(parent)
    , inspector_(inspector)
    , calendar_(calendar)
    , startPicker_(makePicker(localized("Start Date")))
    , endPicker_(makePicker(localized("End Date")))
    , lock_(makeLock()) {
    const int space = fontMetrics().height() / 2;
    auto* endHeading = new QHBoxLayout;
    endHeading->addWidget(heading(localized("End Date"), endPicker_));
    endHeading->addStretch();
    endHeading->addWidget(lock_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(space, space, space, space);
    layout->setSpacing(space);
    layout->addWidget(heading(localized("Start Date"), startPicker_));
    layout->addWidget(startPicker_);
    layout->addSpacing(space);
    layout->addLayout(endHeading);
    layout->addWidget(endPicker_);
    layout->addStretch();

    connect(startPicker_, &PeriodPicker::picked, this,
            [this](QDate date) { inspector_.pickStartDate(noonOf(date)); });
    connect(endPicker_, &PeriodPicker::picked, this,
            [this](QDate date) { inspector_.pickEndDate(noonOf(date)); });
    connect(&inspector_, &DateInspectorController::labelsChanged, this, &InspectorPane::showPeriod);
    connect(&inspector_, &DateInspectorController::isCustomDateOnChanged, this,
            &InspectorPane::showPeriod);
    connect(&inspector_, &DateInspectorController::isInterfaceEnabledChanged, this,
            [this] { setEnabled(inspector_.isInterfaceEnabled()); });
    observeWhileAlive(*this, settings, settings::quickDatePeriod, [this] { showPeriod(); });
    setEnabled(inspector_.isInterfaceEnabled());
    showPeriod();
}

InspectorPane::~InspectorPane() = default;

PeriodPicker* InspectorPane::makePicker(const QString& name) {
    // Ours counts from Sunday = 1, Qt from Monday = 1.
    const auto firstDay = static_cast<Qt::DayOfWeek>((calendar_.firstWeekday() + 5) % 7 + 1);
    auto* picker = new PeriodPicker(name, firstDay, this);
    connect(picker, &PeriodPicker::left, this, &InspectorPane::showPeriod);
    return picker;
}

QToolButton* InspectorPane::makeLock() {
    auto* lock = new QToolButton(this);
    lock->setObjectName(QStringLiteral("toggleEndDateLock"));
    lock->setAccessibleName(localized("Lock End Date"));
    lock->setToolTip(localized("While locked, the end moves with the start"));
    lock->setCheckable(true);
    lock->setAutoRaise(true);
    lock->setFocusPolicy(Qt::StrongFocus);
    lock->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(lock, &QToolButton::toggled, this, [this](bool isLocked) {
        if (isLocked == inspector_.isCustomDateOn()) {
            inspector_.switchEndDateLock();
        }
    });
    return lock;
}

void InspectorPane::showPeriod() {
    const QSignalBlocker startBlocker(startPicker_);
    const QSignalBlocker endBlocker(endPicker_);
    startPicker_->setSelectedDate(dateOf(inspector_.startDate()));
    endPicker_->setSelectedDate(dateOf(inspector_.endDate()));
    const bool isLocked = !inspector_.isCustomDateOn();
    lock_->setChecked(isLocked);
    lock_->setIcon(symbolIcon(isLocked ? Symbol::Locked : Symbol::Unlocked));
    lock_->setText(isLocked ? localized("Locked") : localized("Unlocked"));
}

QDate InspectorPane::dateOf(Instant instant) const {
    const DateComponents fields = calendar_.components(instant);
    return {fields.year, fields.month, fields.day};
}

Instant InspectorPane::noonOf(QDate date) const {
    return calendar_.instant(
        {.year = date.year(), .month = date.month(), .day = date.day(), .hour = 12});
}

} // namespace quillet
