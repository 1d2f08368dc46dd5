#include "window/period/PeriodActions.h"

#include "texts/Localized.h"
#include "window/widgets/SymbolIcon.h"

#include <QWidget>

namespace quillet {

PeriodActions::PeriodActions(DateInspectorController& period, QWidget& window)
    : period_(period)
    , window_(window)
    , previous_(made(localizable("Previous"), symbolIcon(Symbol::Previous),
                     QKeySequence(Qt::ALT | Qt::Key_Left), PeriodStep::Previous))
    , current_(made(localizable("Current"), symbolIcon(Symbol::Current),
                    QKeySequence(Qt::CTRL | Qt::Key_T), PeriodStep::Current))
    , next_(made(localizable("Next"), symbolIcon(Symbol::Next),
                 QKeySequence(Qt::ALT | Qt::Key_Right), PeriodStep::Next))
    , inspector_(*new QAction(symbolIcon(Symbol::Inspector), localized("In&spector"), &window)) {
    inspector_.setObjectName(QStringLiteral("showInspector"));
    inspector_.setToolTip(localized("Shows the days to pick a period from"));
    inspector_.setCheckable(true);
    inspector_.setChecked(true);
    inspector_.setShortcut(Qt::Key_F9);
}

QAction& PeriodActions::made(const char* text, const QIcon& icon, const QKeySequence& shortcut,
                             PeriodStep step) {
    auto* action = new QAction(icon, localized(text), &window_);
    action->setObjectName(QStringLiteral("setQuickDates") + QString::fromLatin1(text));
    action->setShortcut(shortcut);
    enableWithPeriod(*action);
    QObject::connect(action, &QAction::triggered, &period_,
                     [&period = period_, step] { period.setQuickDates(step); });
    return *action;
}

void PeriodActions::enableWithPeriod(QAction& action) const {
    const auto enable = [&period = period_, &action] {
        action.setEnabled(period.isInterfaceEnabled());
    };
    QObject::connect(&period_, &DateInspectorController::isInterfaceEnabledChanged, &action,
                     enable);
    enable();
}

} // namespace quillet
