#include "window/events/ColumnsMenu.h"

#include "eventtable/EventColumns.h"
#include "window/main/NameListModel.h"
#include "window/preferences/SettingsBinding.h"

#include <QMenu>

namespace quillet {

namespace {

QAction* addEntry(QMenu& menu, const QString& identifier, TimeColumnActions& timeColumns) {
    QAction* action = nullptr;
    if (identifier == u"hours") {
        action = &timeColumns.hours.action();
    } else if (identifier == u"minutes") {
        action = &timeColumns.minutes.action();
    } else if (identifier == u"duration") {
        action = &timeColumns.duration.action();
    } else {
        return menu.addAction(QString());
    }
    menu.addAction(action);
    return action;
}

} // namespace

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
