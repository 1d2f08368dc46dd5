#include "window/events/ColumnsMenu.h"

#include "eventtable/EventItemViewController.h"
#include "window/main/NameListModel.h"
#include "window/preferences/SettingsBinding.h"

#include <QMenu>

namespace quillet {

namespace {

QAction& timeAction(TimeType timeType, TimeColumnActions& actions) {
    switch (timeType) {
    case TimeType::Hours:
        return actions.hours;
    case TimeType::Minutes:
        return actions.minutes;
    case TimeType::Duration:
        break;
    }
    return actions.duration;
}

QAction* addEntry(QMenu& menu, const EventColumn& column, TimeColumnActions& timeColumns) {
    if (!column.timeType) {
        return menu.addAction(QString());
    }
    QAction& action = timeAction(*column.timeType, timeColumns);
    menu.addAction(&action);
    return &action;
}

} // namespace

void followTimeMenuItem(TimeColumnActions& timeColumns,
                        const EventItemViewController& eventItemView) {
    const auto show = [&timeColumns, &eventItemView] {
        const auto isShown = [shown = eventItemView.shownTimeMenuItem()](TimeType timeType) {
            return shown.value_or(timeType) == timeType;
        };
        timeColumns.hours.setVisible(isShown(TimeType::Hours));
        timeColumns.minutes.setVisible(isShown(TimeType::Minutes));
        timeColumns.duration.setVisible(isShown(TimeType::Duration));
    };
    QObject::connect(&eventItemView, &EventItemViewController::shownTimeMenuItemChanged,
                     &timeColumns.hours, show);
    show();
}

void fillColumnsMenu(QMenu& menu, SettingsStore& settings, TimeColumnActions& timeColumns) {
    for (const EventColumn& column : eventColumns()) {
        QAction* action = addEntry(menu, column, timeColumns);
        action->setText(menuText(column.title.read(settings), menu.fontMetrics()));
        if (action->objectName().isEmpty()) {
            bindAction(*action, settings, column.visibility);
        }
    }
}

} // namespace quillet
