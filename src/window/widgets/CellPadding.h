#pragma once

#include <QStyledItemDelegate>

namespace quillet {

/// Keeps the texts of neighbouring cells apart, so that a right-aligned amount does not run into a
/// left-aligned time.
class CellPadding : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit CellPadding(QObject* parent = nullptr);
    ~CellPadding() override;
    Q_DISABLE_COPY_MOVE(CellPadding)

    /// What a text keeps from each side of its cell, in pixels.
    [[nodiscard]] static int distance(const QFontMetrics& metrics);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace quillet
