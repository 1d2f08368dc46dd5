#include "window/widgets/FoldingRow.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

namespace quillet {

FoldingRow::FoldingRow(QWidget* parent)
    : QWidget(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

FoldingRow::~FoldingRow() = default;

void FoldingRow::addWidget(QWidget& widget) {
    widget.setParent(this);
    widgets_.push_back(&widget);
    updateGeometry();
}

int FoldingRow::gap() const {
    return fontMetrics().height();
}

QSize FoldingRow::sizeHint() const {
    QSize size(0, 0);
    for (const QWidget* widget : widgets_) {
        size.rwidth() += widget->sizeHint().width() + (size.width() > 0 ? gap() : 0);
        size.setHeight(std::max(size.height(), widget->sizeHint().height()));
    }
    return size;
}

QSize FoldingRow::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void FoldingRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

bool FoldingRow::event(QEvent* event) {
    // A widget of the row wants another size.
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        arrange();
    }
    return QWidget::event(event);
}

void FoldingRow::arrange() {
    int left = 0;
    bool isRoomLeft = true;
    for (QWidget* widget : widgets_) {
        const int wanted = widget->sizeHint().width();
        isRoomLeft = isRoomLeft && left + wanted <= width();
        widget->setVisible(isRoomLeft);
        const QRect place(left, 0, wanted, height());
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
        left += wanted + gap();
    }
}

} // namespace quillet
