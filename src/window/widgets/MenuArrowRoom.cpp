#include "window/widgets/MenuArrowRoom.h"

#include <QApplication>
#include <QStyleOptionToolButton>

namespace quillet {

MenuArrowRoom::MenuArrowRoom(QObject* parent)
    : QProxyStyle(QApplication::style()->name()) {
    setParent(parent);
}

MenuArrowRoom::~MenuArrowRoom() = default;

QSize MenuArrowRoom::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& size, const QWidget* widget) const {
    QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ToolButton) {
        whole.rwidth() += pixelMetric(PM_MenuButtonIndicator, option, widget);
    }
    return whole;
}

void MenuArrowRoom::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    if (element != CE_ToolButtonLabel || button == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionToolButton beside = *button;
    const int room = pixelMetric(PM_MenuButtonIndicator, option, widget);
    beside.rect =
        visualRect(option->direction, option->rect, option->rect.adjusted(0, 0, -room, 0));
    QProxyStyle::drawControl(element, &beside, painter, widget);
}

} // namespace quillet
