#include "window/widgets/Figure.h"

#include "window/widgets/Tones.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace quillet {

Figure::Figure(const QString& caption, Size size, QWidget* parent)
    : QLabel(parent)
    , caption_(caption)
    , size_(size) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    arrange();
}

Figure::~Figure() = default;

void Figure::setValue(const QString& value, const QString& unit, const QString& spoken) {
    setText(value);
    setAccessibleName(QStringLiteral("%1: %2").arg(caption_, spoken.isEmpty() ? value : spoken));
    if (unit != unit_) {
        unit_ = unit;
        arrange();
    }
}

QFont Figure::quietFont() const {
    return QApplication::font("QLabel");
}

void Figure::arrange() {
    const QScopedValueRollback arranging(isArranging_, true);
    const QFontMetrics quiet(quietFont(), this);
    QFont font = quietFont();
    if (size_ == Size::Large) {
        constexpr double scale = 2;
        font.setPointSizeF(font.pointSizeF() * scale);
        font.setBold(true);
        setFont(font);
        const int room = unit_.isEmpty() ? 0 : quiet.horizontalAdvance(unit_) + quiet.height() / 4;
        const bool isMirrored = isRightToLeft();
        setContentsMargins(isMirrored ? room : 0, 0, isMirrored ? 0 : room, 0);
        return;
    }
    setFont(font);
    setContentsMargins(0, quiet.height(), 0, 0);
    setMinimumWidth(quiet.horizontalAdvance(caption_));
}

void Figure::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    const bool asksForIt = event->type() == QEvent::ApplicationFontChange ||
                           event->type() == QEvent::LayoutDirectionChange;
    if (asksForIt && !isArranging_) {
        arrange();
    }
}

void Figure::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QStylePainter painter(this);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
    painter.setFont(quietFont());
    painter.setPen(toned(palette(), Tone::Explaining));
    if (size_ == Size::Small) {
        painter.drawText(rect(), Qt::AlignTop | Qt::AlignLeading, caption_);
        return;
    }
    // On the line that the value stands on.
    const int descent = fontMetrics().descent() - painter.fontMetrics().descent();
    const int bottom = contentsRect().center().y() + fontMetrics().height() / 2 - descent;
    painter.drawText(QRect(0, 0, width(), bottom), Qt::AlignBottom | Qt::AlignTrailing, unit_);
}

} // namespace quillet
