#include "window/main/NameListEditor.h"

#include "texts/Localized.h"
#include "window/widgets/NameListView.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace quillet {

NameListEditor::NameListEditor(NameList list, const QString& accessibleName, QWidget* parent)
    : QWidget(parent)
    , list_(list)
    , model_(new NameListModel(std::move(list), this))
    , view_(new NameListView(*model_, this))
    , buttonRow_(new QHBoxLayout) {
    view_->setAccessibleName(accessibleName);
    view_->setToolTip(localized("F2 or a double click renames"));
    setFocusProxy(view_);
    constexpr int shownRows = 12;
    view_->setMinimumHeight(fontMetrics().height() * shownRows);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_, 1);
    layout->addLayout(buttonRow_);

    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &NameListEditor::takeSelectionFromView);
    // Between these two the rows of the view are not those of the list.
    connect(&list_.notices, &ListControllerNotices::arrangedObjectsWillChange, this,
            [this] { isFollowing_ = true; });
    connect(&list_.notices, &ListControllerNotices::arrangedObjectsChanged, this,
            [this] { isFollowing_ = false; });
    connect(&list_.notices, &ListControllerNotices::selectedObjectsChanged, this,
            &NameListEditor::showSelectionOfList);
    showSelectionOfList();
}

NameListEditor::~NameListEditor() {
    // The view's end deselects nothing.
    view_->selectionModel()->disconnect(this);
}

QPushButton* NameListEditor::addButton(const QString& text, const char* name, Needs needs,
                                       std::function<void()> action) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(QString::fromLatin1(name));
    // The Return key belongs to the list.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &NameListEditor::commitEditing);
    // Later: an assistive program's press must be answered before an alert waits for the user.
    connect(button, &QPushButton::clicked, this, std::move(action), Qt::QueuedConnection);
    buttonRow_->addWidget(button);
    if (needs == Needs::Selection) {
        selectionButtons_.push_back(button);
        button->setEnabled(!list_.selectedRows().empty());
    }
    return button;
}

void NameListEditor::setReturnAction(const std::function<void()>& action) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, view_);
        // In the name that is being typed, the key ends the typing.
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    }
}

void NameListEditor::editName(std::size_t row) {
    const QModelIndex index = model_->index(static_cast<int>(row));
    view_->setFocus();
    view_->setCurrentIndex(index);
    view_->scrollTo(index);
    view_->edit(index);
}

void NameListEditor::commitEditing() {
    view_->commitEditing();
}

void NameListEditor::takeSelectionFromView() {
    if (isFollowing_) {
        return;
    }
    std::vector<std::size_t> rows;
    for (const QModelIndex& index : view_->selectionModel()->selectedRows()) {
        rows.push_back(static_cast<std::size_t>(index.row()));
    }
    isFollowing_ = true;
    list_.setSelectedRows(std::move(rows));
    isFollowing_ = false;
    updateButtons();
}

void NameListEditor::showSelectionOfList() {
    if (isFollowing_) {
        return;
    }
    isFollowing_ = true;
    const std::vector<std::size_t> rows = list_.selectedRows();
    QItemSelection selection;
    for (const std::size_t row : rows) {
        const QModelIndex index = model_->index(static_cast<int>(row));
        selection.select(index, index);
    }
    view_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.empty()) {
        view_->selectionModel()->setCurrentIndex(model_->index(static_cast<int>(rows.front())),
                                                 QItemSelectionModel::NoUpdate);
    }
    isFollowing_ = false;
    updateButtons();
}

void NameListEditor::updateButtons() {
    if (!list_.selectedRows().empty()) {
        setButtonsEnabled(true);
        return;
    }
    // A change of the list takes the selection away and gives it back at once; a button that was
    // disabled meanwhile would lose the focus.
    QMetaObject::invokeMethod(
        this, [this] { setButtonsEnabled(!list_.selectedRows().empty()); }, Qt::QueuedConnection);
}

void NameListEditor::setButtonsEnabled(bool areEnabled) {
    for (QPushButton* button : selectionButtons_) {
        button->setEnabled(areEnabled);
    }
}

} // namespace quillet
