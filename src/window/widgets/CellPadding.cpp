#include "window/widgets/CellPadding.h"

#include "window/widgets/LetterWidth.h"

#include <QApplication>
#include <QPainter>

namespace quillet {

CellPadding::CellPadding(QObject* parent)
    : QStyledItemDelegate(parent) {}

CellPadding::~CellPadding() = default;

int CellPadding::distance(const QFontMetrics& metrics) {
    return letterWidth(metrics) / 2;
}

void CellPadding::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    const QStyle* style = whole.widget != nullptr ? whole.widget->style() : QApplication::style();
    // The background fills the cell; what stands in it keeps its distance from the edges.
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &whole, painter, whole.widget);
    QStyleOptionViewItem inner = option;
    const int room = distance(option.fontMetrics);
    inner.rect.adjust(room, 0, -room, 0);
    inner.features &= ~QStyleOptionViewItem::Alternate;
    QStyledItemDelegate::paint(painter, inner, index);
}

} // namespace quillet
