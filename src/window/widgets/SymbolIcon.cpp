#include "window/widgets/SymbolIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace quillet {

namespace {

/// The drawings stand in a square of 16 units.
constexpr double unitSquare = 16.0;

QPainterPath polyline(std::initializer_list<QPointF> points) {
    QPainterPath path(*points.begin());
    for (const QPointF& point : points) {
        path.lineTo(point);
    }
    return path;
}

QPainterPath padlock(bool isLocked) {
    QPainterPath path;
    path.addRoundedRect(QRectF(3.5, 7.5, 9, 6), 1, 1);
    path.moveTo(5.5, 7.5);
    path.lineTo(5.5, 5);
    path.arcTo(QRectF(5.5, 2.5, 5, 5), 180, isLocked ? -180 : -140);
    if (isLocked) {
        path.lineTo(10.5, 7.5);
    }
    return path;
}

/// A sheet of paper with lines of these lengths.
QPainterPath sheet(std::initializer_list<double> lines) {
    QPainterPath path;
    path.addRoundedRect(QRectF(3, 1.5, 10, 13), 1, 1);
    double height = 5;
    for (const double length : lines) {
        path.addPath(polyline({{5.5, height}, {5.5 + length, height}}));
        height += 3;
    }
    return path;
}

QPainterPath envelope() {
    QPainterPath path;
    path.addRoundedRect(QRectF(1.5, 3.5, 13, 9.5), 1, 1);
    path.addPath(polyline({{2, 4.5}, {8, 9}, {14, 4.5}}));
    return path;
}

/// A sheet with a folded corner.
QPainterPath note() {
    QPainterPath path =
        polyline({{2.5, 2.5}, {13.5, 2.5}, {13.5, 9.5}, {9.5, 13.5}, {2.5, 13.5}, {2.5, 2.5}});
    path.addPath(polyline({{13.5, 9.5}, {9.5, 9.5}, {9.5, 13.5}}));
    path.addPath(polyline({{5, 6}, {11, 6}}));
    path.addPath(polyline({{5, 9}, {7.5, 9}}));
    return path;
}

/// The small arrow tells that there is a menu behind.
QPainterPath magnifier() {
    QPainterPath path;
    path.addEllipse(QPointF(6.5, 6.5), 4, 4);
    path.addPath(polyline({{9.5, 9.5}, {12.5, 12.5}}));
    path.addPath(polyline({{12, 5.5}, {13.5, 7}, {15, 5.5}}));
    return path;
}

QPainterPath pencil() {
    QPainterPath path = polyline({{3, 13}, {3.5, 10.5}, {11, 3}, {13, 5}, {5.5, 12.5}, {3, 13}});
    path.addPath(polyline({{9.5, 4.5}, {11.5, 6.5}}));
    return path;
}

QPainterPath drawing(Symbol symbol) {
    QPainterPath path;
    switch (symbol) {
    case Symbol::Previous:
        return polyline({{10, 3}, {5, 8}, {10, 13}});
    case Symbol::Next:
        return polyline({{6, 3}, {11, 8}, {6, 13}});
    case Symbol::Current:
        path.addRoundedRect(QRectF(2.5, 3.5, 11, 10), 1.5, 1.5);
        path.addPath(polyline({{2.5, 6.5}, {13.5, 6.5}}));
        path.addPath(polyline({{5.5, 2}, {5.5, 4}}));
        path.addPath(polyline({{10.5, 2}, {10.5, 4}}));
        path.addEllipse(QPointF(8, 10), 1, 1);
        return path;
    case Symbol::Save:
        path.addPath(polyline({{8, 2}, {8, 10}}));
        path.addPath(polyline({{4.5, 6.5}, {8, 10}, {11.5, 6.5}}));
        path.addPath(polyline({{2.5, 11}, {2.5, 13.5}, {13.5, 13.5}, {13.5, 11}}));
        return path;
    case Symbol::Text:
        return sheet({5, 5, 3});
    case Symbol::Notes:
        return note();
    case Symbol::Mail:
        return envelope();
    case Symbol::Search:
        return magnifier();
    case Symbol::Edit:
        return pencil();
    case Symbol::Add:
        path = polyline({{8, 3.5}, {8, 12.5}});
        path.addPath(polyline({{3.5, 8}, {12.5, 8}}));
        return path;
    case Symbol::Remove:
        return polyline({{3.5, 8}, {12.5, 8}});
    case Symbol::Columns:
        path.addRoundedRect(QRectF(2.5, 2.5, 11, 11), 1.5, 1.5);
        path.addPath(polyline({{6.5, 2.5}, {6.5, 13.5}}));
        path.addPath(polyline({{10.5, 2.5}, {10.5, 13.5}}));
        return path;
    case Symbol::Inspector:
        path.addRoundedRect(QRectF(1.5, 3, 13, 10), 1.5, 1.5);
        path.addPath(polyline({{10, 3}, {10, 13}}));
        return path;
    case Symbol::Locked:
    case Symbol::Unlocked:
        return padlock(symbol == Symbol::Locked);
    }
    return path;
}

/// Which point the way of the text.
bool followsReading(Symbol symbol) {
    return symbol == Symbol::Previous || symbol == Symbol::Next || symbol == Symbol::Inspector;
}

class SymbolEngine final : public QIconEngine {
public:
    SymbolEngine(Symbol symbol, QPalette::ColorRole role)
        : symbol_(symbol)
        , role_(role) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.center().x() + 0.5 - side / 2, rect.center().y() + 0.5 - side / 2);
        painter->scale(side / unitSquare, side / unitSquare);
        if (followsReading(symbol_) && QGuiApplication::isRightToLeft()) {
            painter->translate(unitSquare, 0);
            painter->scale(-1, 1);
        }
        constexpr double penWidth = 1.4;
        painter->setPen(QPen(QGuiApplication::palette().color(group, role_), penWidth,
                             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawPath(drawing(symbol_));
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new SymbolEngine(symbol_, role_); }

private:
    Symbol symbol_;
    QPalette::ColorRole role_;
};

} // namespace

QIcon symbolIcon(Symbol symbol, QPalette::ColorRole role) {
    return QIcon(new SymbolEngine(symbol, role));
}

} // namespace quillet
