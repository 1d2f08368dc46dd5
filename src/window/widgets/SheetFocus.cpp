#include "window/widgets/SheetFocus.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace quillet {

SheetFocus::SheetFocus(QObject* parent)
    : QObject(parent) {
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &SheetFocus::followFocus);
}

void SheetFocus::followFocus(QWindow* window) {
    const QWidget* sheet = QApplication::activeModalWidget();
    QWindow* above = sheet == nullptr ? nullptr : sheet->windowHandle();
    if (window != nullptr && above != nullptr && above != window && window->isAncestorOf(above)) {
        above->requestActivate();
    }
}

} // namespace quillet
