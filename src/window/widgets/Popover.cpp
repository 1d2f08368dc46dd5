#include "window/widgets/Popover.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace quillet {

Popover::Popover(QWidget& window)
    : QFrame(&window) {
    setAutoFillBackground(true);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* now) { followFocus(now); });
}

Popover::~Popover() {
    qApp->removeEventFilter(this);
}

void Popover::showBelow(QWidget& anchor) {
    anchor_ = &anchor;
    previousFocus_ = window()->focusWidget();
    place();
    show();
    raise();
    setFocus(Qt::PopupFocusReason);
    qApp->installEventFilter(this);
}

void Popover::dismiss() {
    if (isHidden()) {
        return;
    }
    qApp->removeEventFilter(this);
    Q_EMIT aboutToDismiss();
    const bool hadFocus = holds(window()->focusWidget());
    hide();
    if (hadFocus && previousFocus_ != nullptr) {
        previousFocus_->setFocus(Qt::PopupFocusReason);
    }
}

void Popover::place() {
    const QSize size = sizeHint().boundedTo(window()->size());
    QPoint below = anchor_->mapTo(window(), QPoint(0, anchor_->height()));
    if (below.x() + size.width() > window()->width() / 2) {
        // Towards the middle, as menus of buttons near the edge open.
        below.rx() += anchor_->width() - size.width();
    }
    const QPoint rightmost(window()->width() - size.width(), window()->height() - size.height());
    setGeometry(
        {QPoint(std::clamp(below.x(), 0, rightmost.x()), std::clamp(below.y(), 0, rightmost.y())),
         size});
}

bool Popover::holds(const QWidget* widget) const {
    return widget != nullptr && (widget == this || isAncestorOf(widget));
}

void Popover::followFocus(QWidget* now) {
    // The focus of another window says nothing about this one.
    if (isVisible() && now != nullptr && now->window() == window() && !holds(now)) {
        dismiss();
    }
}

bool Popover::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == window()) {
        place();
    } else if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
        const auto* pressed = static_cast<QWidget*>(watched);
        // The anchor's own press takes the popover away, or shows it again.
        const bool isBeside = pressed->window() == window() && !holds(pressed) &&
                              pressed != anchor_ && pressed != window();
        if (isBeside) {
            dismiss();
        }
    }
    return QFrame::eventFilter(watched, event);
}

void Popover::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    // The styles' own frames are nearly invisible over a table, in dark colours above all.
    constexpr float outlineOpacity = 0.45F;
    QPainter painter(this);
    QColor outline = palette().color(QPalette::WindowText);
    outline.setAlphaF(outlineOpacity);
    painter.setPen(outline);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Popover::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        dismiss();
        return;
    }
    QFrame::keyPressEvent(event);
}

} // namespace quillet
