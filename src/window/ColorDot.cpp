#include "window/ColorDot.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

namespace quillet {

QIcon colorDot(const QColor& color) {
    static QHash<QRgb, QIcon> dots;
    // An invalid colour counts as transparent black, which no calendar has.
    QIcon& dot = dots[color.isValid() ? color.rgb() : QRgb{0}];
    if (dot.isNull()) {
        constexpr int pixels = 64;
        constexpr double margin = 12.0;
        constexpr double ringPixels = 5.0;
        QPixmap pixmap(pixels, pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(color.isValid() ? QPen(Qt::NoPen) : QPen(QColor(Qt::gray), ringPixels));
        painter.setBrush(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
        painter.drawEllipse(
            QRectF(0, 0, pixels, pixels).adjusted(margin, margin, -margin, -margin));
        dot = QIcon(pixmap);
    }
    return dot;
}

} // namespace quillet
