#include "window/period/PeriodTitle.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace quillet {

PeriodTitle::PeriodTitle(QWidget* parent)
    : QToolButton(parent) {
    setAutoRaise(true);
    setPopupMode(QToolButton::InstantPopup);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    enlarge();
}

PeriodTitle::~PeriodTitle() = default;

void PeriodTitle::enlarge() {
    constexpr double scale = 1.3;
    const QScopedValueRollback enlarging(isEnlarging_, true);
    QFont font = QApplication::font("QToolButton");
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(true);
    setFont(font);
}

void PeriodTitle::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::ApplicationFontChange && !isEnlarging_) {
        enlarge();
    }
}

int PeriodTitle::roomForArrow() const {
    return fontMetrics().height();
}

QSize PeriodTitle::sizeHint() const {
    const QSize needed = QToolButton::sizeHint();
    const int width = fontMetrics().horizontalAdvance(text()) + fontMetrics().height() / 2;
    return {width + roomForArrow(), needed.height()};
}

QSize PeriodTitle::minimumSizeHint() const {
    return {fontMetrics().horizontalAdvance(u'0') * 4 + roomForArrow(), sizeHint().height()};
}

QString PeriodTitle::shownText() const {
    const int room = width() - roomForArrow() - fontMetrics().height() / 4;
    return fontMetrics().elidedText(text(), Qt::ElideRight, room);
}

void PeriodTitle::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text = shownText();
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

} // namespace quillet
