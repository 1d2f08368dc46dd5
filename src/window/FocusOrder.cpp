#include "window/FocusOrder.h"

#include <QWidget>

namespace quillet {

namespace {

QList<QWidget*> controlsInOrder(QWidget& area) {
    QList<QWidget*> controls;
    QWidget* const first = area.window();
    for (QWidget* control = first->nextInFocusChain(); control != first;
         control = control->nextInFocusChain()) {
        const bool isInArea = control == &area || area.isAncestorOf(control);
        // What takes no focus, or hands it on, ends a chain that is tied to it.
        if (isInArea && control->focusPolicy() != Qt::NoFocus && control->focusProxy() == nullptr) {
            controls.append(control);
        }
    }
    return controls;
}

} // namespace

void orderFocus(const QList<QWidget*>& areas) {
    QList<QWidget*> controls;
    for (QWidget* area : areas) {
        controls += controlsInOrder(*area);
    }
    for (qsizetype index = 1; index < controls.size(); ++index) {
        QWidget::setTabOrder(controls[index - 1], controls[index]);
    }
}

} // namespace quillet
