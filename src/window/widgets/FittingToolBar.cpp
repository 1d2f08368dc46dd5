#include "window/widgets/FittingToolBar.h"

#include <QEvent>

namespace quillet {

FittingToolBar::FittingToolBar(const QString& title, QWidget* parent)
    : QToolBar(title, parent) {
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

FittingToolBar::~FittingToolBar() = default;

void FittingToolBar::resizeEvent(QResizeEvent* event) {
    if (toolButtonStyle() == Qt::ToolButtonTextBesideIcon) {
        widthWithTexts_ = sizeHint().width();
    }
    setToolButtonStyle(width() < widthWithTexts_ ? Qt::ToolButtonIconOnly
                                                 : Qt::ToolButtonTextBesideIcon);
    QToolBar::resizeEvent(event);
}

void FittingToolBar::changeEvent(QEvent* event) {
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        // Measured again with the next size.
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
}

} // namespace quillet
