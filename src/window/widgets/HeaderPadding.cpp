#include "window/widgets/HeaderPadding.h"

#include "window/widgets/CellPadding.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionHeader>

#include <algorithm>

namespace quillet {

HeaderPadding::HeaderPadding(QObject* parent)
    : QProxyStyle(QApplication::style()->name()) {
    setParent(parent);
}

HeaderPadding::~HeaderPadding() = default;

QRect HeaderPadding::subElementRect(SubElement element, const QStyleOption* option,
                                    const QWidget* widget) const {
    QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (element != SE_HeaderLabel || header == nullptr) {
        return rect;
    }
    const int cellMargin = pixelMetric(PM_FocusFrameHMargin, option, widget) + 1 +
                           CellPadding::distance(option->fontMetrics);
    const int missing = std::max(0, cellMargin - pixelMetric(PM_HeaderMargin, option, widget));
    // The other side stays, so that a title loses no more room than it has to.
    const Qt::Alignment side = visualAlignment(option->direction, header->textAlignment);
    if (side.testFlag(Qt::AlignRight)) {
        rect.setRight(rect.right() - missing);
    } else if (side.testFlag(Qt::AlignLeft)) {
        rect.setLeft(rect.left() + missing);
    }
    return rect;
}

void HeaderPadding::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    const auto* header = qstyleoption_cast<const QStyleOptionHeaderV2*>(option);
    if (element != CE_Header || header == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    // The styles would ask themselves for the label's place, not this one.
    painter->save();
    painter->setClipRect(header->rect, Qt::IntersectClip);
    drawControl(CE_HeaderSection, header, painter, widget);
    QStyleOptionHeaderV2 part(*header);
    part.rect = subElementRect(SE_HeaderLabel, header, widget);
    drawControl(CE_HeaderLabel, &part, painter, widget);
    if (header->sortIndicator != QStyleOptionHeader::None) {
        part.rect = subElementRect(SE_HeaderArrow, header, widget);
        drawPrimitive(PE_IndicatorHeaderArrow, &part, painter, widget);
    }
    painter->restore();
}

} // namespace quillet
