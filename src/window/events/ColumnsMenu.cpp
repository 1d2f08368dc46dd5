#include "window/events/ColumnsMenu.h"

#include "eventtable/EventItemViewController.h"
#include "window/main/NameListModel.h"
#include "window/preferences/SettingsBinding.h"

#include <QMenu>

namespace quillet {

namespace {

QAction* addEntry(QMenu& menu, const QString& identifier, TimeColumnActions& timeColumns) {
    QAction* action = nullptr;
    if (identifier == u"hours") {
        action = &timeColumns.hours;
    } else if (identifier == u"minutes") {
        action = &timeColumns.minutes;
    } else if (identifier == u"duration") {
        action = &timeColumns.duration;
    } else {
        return menu.addAction(QString());
    }
    menu.addAction(action);
    return action;
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
        QAction* action = addEntry(menu, QString::fromLatin1(column.identifier), timeColumns);
        const QString title = stringForKey(settings, QString::fromLatin1(column.titleKey));
        action->setText(menuText(title, menu.fontMetrics()));
        if (action->objectName().isEmpty()) {
            bindAction(*action, settings, QString::fromLatin1(column.visibilityKey));
        }
    }
}

} // namespace quillet
