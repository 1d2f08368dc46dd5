#include "window/widgets/ColorDot.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

namespace quillet {

namespace {

QPixmap pictureOf(const QColor& color, const QPen& ring) {
    constexpr int pixels = 64;
    constexpr double margin = 12.0;
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(ring);
    painter.setBrush(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawEllipse(QRectF(0, 0, pixels, pixels).adjusted(margin, margin, -margin, -margin));
    return pixmap;
}

} // namespace

QIcon colorDot(const QColor& color) {
    static QHash<QRgb, QIcon> dots;
    // An invalid colour counts as transparent black, which no calendar has.
    QIcon& dot = dots[color.isValid() ? color.rgb() : QRgb{0}];
    if (dot.isNull()) {
        constexpr double ringPixels = 5.0;
        dot.addPixmap(pictureOf(color, color.isValid() ? QPen(Qt::NoPen)
                                                       : QPen(QColor(Qt::gray), ringPixels)));
        // On a selected row the styles would mix the colour with the selection's, until nobody
        // could tell a blue one from it.
        dot.addPixmap(pictureOf(color, QPen(QColor(Qt::white), ringPixels)), QIcon::Selected);
    }
    return dot;
}

} // namespace quillet
