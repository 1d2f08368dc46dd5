#include "window/period/InspectorPane.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/PeriodPicker.h"
#include "window/widgets/SymbolIcon.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

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

/// Of a button in the selection's colours, which are others while nothing can be chosen.
QPalette selectionPalette() {
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Button, palette.color(group, QPalette::Highlight));
        palette.setColor(group, QPalette::ButtonText,
                         palette.color(group, QPalette::HighlightedText));
    }
    return palette;
}

} // namespace

InspectorPane::InspectorPane(DateInspectorController& inspector, SettingsStore& settings,
                             const CalendarArithmetic& calendar, QWidget* parent)
    : QWidget(parent)
    , inspector_(inspector)
    , calendar_(calendar)
    , kinds_(new QButtonGroup(this))
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
    layout->addWidget(makeKindChooser());
    layout->addSpacing(space);
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

QWidget* InspectorPane::makeKindChooser() {
    auto* chooser = new QWidget(this);
    chooser->setAccessibleName(localized("Period"));
    auto* layout = new QHBoxLayout(chooser);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    constexpr std::array names{localizable("Day"), localizable("Week"), localizable("Month"),
                               localizable("Year"), localizable("Custom")};
    for (int kind = 0; kind < static_cast<int>(names.size()); ++kind) {
        auto* button = new QToolButton(chooser);
        button->setText(localized(names[static_cast<std::size_t>(kind)]));
        button->setAccessibleName(button->text());
        button->setCheckable(true);
        button->setAutoRaise(false);
        button->setFocusPolicy(Qt::ClickFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        // Pressed or not is hard to tell in dark colours; the selection's colour is not.
        connect(button, &QToolButton::toggled, button, [button](bool isChecked) {
            button->setPalette(isChecked ? selectionPalette() : QPalette());
            // Tab goes to the chosen kind, the arrow keys go on from there.
            button->setFocusPolicy(isChecked ? Qt::StrongFocus : Qt::ClickFocus);
        });
        kinds_->addButton(button, kind);
        layout->addWidget(button);
    }
    connect(kinds_, &QButtonGroup::idClicked, this,
            [this](int kind) { inspector_.choosePeriodKind(static_cast<PeriodKind>(kind)); });
    // Assistive programs check a button without clicking it.
    connect(kinds_, &QButtonGroup::idToggled, this, [this](int kind, bool isChecked) {
        if (isChecked && kind != static_cast<int>(inspector_.quickDatePeriodIndex())) {
            inspector_.choosePeriodKind(static_cast<PeriodKind>(kind));
        }
    });
    return chooser;
}

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
    if (QAbstractButton* button =
            kinds_->button(static_cast<int>(inspector_.quickDatePeriodIndex()))) {
        button->setChecked(true);
    }
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
