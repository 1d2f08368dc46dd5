#include "window/ColorDot.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

namespace quillet {

QIcon colorDot(const QColor& color) {
    static QHash<QRgb, QIcon> dots;
    if (!color.isValid()) {
        return {};
    }
    QIcon& dot = dots[color.rgb()];
    if (dot.isNull()) {
        constexpr int pixels = 64;
        constexpr double margin = 12.0;
        QPixmap pixmap(pixels, pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(
            QRectF(0, 0, pixels, pixels).adjusted(margin, margin, -margin, -margin));
        dot = QIcon(pixmap);
    }
    return dot;
}

} // namespace quillet
