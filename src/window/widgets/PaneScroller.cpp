#include "window/widgets/PaneScroller.h"

#include "window/widgets/LetterWidth.h"

#include <QEvent>
#include <QScreen>
#include <QStyle>

namespace quillet {

PaneScroller::PaneScroller(QWidget& content, QWidget* parent)
    : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(&content);
}

PaneScroller::~PaneScroller() = default;

QSize PaneScroller::sizeHint() const {
    return widget()->sizeHint();
}

QSize PaneScroller::roomOnScreen() const {
    // Title bar, menu bar, toolbar, a status line and a panel of the desktop.
    constexpr int linesAroundPanes = 9;
    const QSize around(2 * letterWidth(fontMetrics()), linesAroundPanes * fontMetrics().height());
    return (screen()->availableSize() - around).expandedTo(around);
}

QSize PaneScroller::minimumSizeHint() const {
    const QSize room = roomOnScreen();
    QSize needed = widget()->minimumSizeHint().expandedTo(widget()->minimumSize());
    if (needed.height() > room.height()) {
        needed.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    }
    return needed.boundedTo(room);
}

bool PaneScroller::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace quillet
