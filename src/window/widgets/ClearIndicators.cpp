#include "window/widgets/ClearIndicators.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace quillet {

namespace {

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

} // namespace

void ClearIndicators::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                    QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isBox = element == PE_IndicatorCheckBox;
    if ((!isBox && element != PE_IndicatorRadioButton) || !isDark(option->palette)) {
        return;
    }
    constexpr float outlineOpacity = 0.6F;
    QColor outline = option->palette.color(QPalette::Text);
    outline.setAlphaF(outlineOpacity);
    painter->save();
    painter->setPen(outline);
    painter->setBrush(Qt::NoBrush);
    const QRect frame = option->rect.adjusted(0, 0, -1, -1);
    if (isBox) {
        painter->drawRect(frame);
    } else {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawEllipse(QRectF(frame).adjusted(1, 1, -1, -1));
    }
    painter->restore();
}

void installClearIndicators() {
    if (QApplication::style()->name() == QStringLiteral("fusion")) {
        QApplication::setStyle(new ClearIndicators);
    }
}

} // namespace quillet
