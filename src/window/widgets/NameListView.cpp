#include "window/widgets/NameListView.h"

#include <QStyledItemDelegate>

#include <algorithm>

namespace quillet {

namespace {

/// Gives names the room of the rows in the window's tables, and their editors with them.
class NameDelegate final : public QStyledItemDelegate {
public:
    explicit NameDelegate(NameListView& view)
        : QStyledItemDelegate(&view)
        , view_(view) {}

    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        editor->setAccessibleName(view_.accessibleName());
        return editor;
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), std::max(size.height(), option.fontMetrics.height() * 7 / 4)};
    }
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& /*index*/) const override {
        editor->setGeometry(option.rect);
    }

private:
    NameListView& view_;
};

} // namespace

NameListView::NameListView(QAbstractItemModel& model, QWidget* parent)
    : QListView(parent) {
    setModel(&model);
    setItemDelegate(new NameDelegate(*this));
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
}

NameListView::~NameListView() = default;

void NameListView::commitEditing() {
    QWidget* editor = indexWidget(currentIndex());
    if (state() == EditingState && editor != nullptr) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

} // namespace quillet
