#include "window/widgets/ElidedLabel.h"

#include "window/widgets/LetterWidth.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace quillet {

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ElidedLabel::~ElidedLabel() = default;

QSize ElidedLabel::minimumSizeHint() const {
    constexpr int fewCharacters = 8;
    const QMargins margins = contentsMargins();
    QSize size = QLabel::minimumSizeHint();
    size.setWidth(std::min(size.width(), letterWidth(fontMetrics()) * fewCharacters +
                                             margins.left() + margins.right()));
    return size;
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && shownText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(),
                           this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(shownFont());
    const auto flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
    style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), shownText(),
                          foregroundRole());
}

QFont ElidedLabel::shownFont() const {
    const double room = contentsRect().width();
    const double needed = fontMetrics().horizontalAdvance(text());
    QFont shown = font();
    if (needed > room && room > 0) {
        shown.setPointSizeF(shown.pointSizeF() * std::max(smallestScale_, room / needed));
    }
    return shown;
}

QString ElidedLabel::shownText() const {
    return QFontMetrics(shownFont()).elidedText(text(), Qt::ElideRight, contentsRect().width());
}

} // namespace quillet
