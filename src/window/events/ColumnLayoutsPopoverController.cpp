#include "window/events/ColumnLayoutsPopoverController.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/main/NameListEditor.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/Popover.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillet {

ColumnLayoutsPopoverController::ColumnLayoutsPopoverController(
    SettingsStore& settings, ColumnLayoutsArrayController& layouts)
    : settings_(settings)
    , layouts_(layouts) {}

void ColumnLayoutsPopoverController::showColumnLayoutsPopover(QWidget& sender) {
    if (columnLayoutsPopover_ == nullptr) {
        build(*sender.window());
    }
    if (columnLayoutsPopover_->isVisible()) {
        columnLayoutsPopover_->dismiss();
    } else {
        columnLayoutsPopover_->showBelow(sender);
    }
}

void ColumnLayoutsPopoverController::saveColumnLayout(QWidget& sender) {
    if (columnLayoutsPopover_ == nullptr || columnLayoutsPopover_->isHidden()) {
        showColumnLayoutsPopover(sender);
    }
    layouts_.saveColumnLayout();
}

void ColumnLayoutsPopoverController::build(QWidget& window) {
    columnLayoutsPopover_ = new Popover(window);
    columnLayoutsPopover_->setObjectName(QStringLiteral("columnLayoutsPopover"));
    columnLayoutsPopover_->setAccessibleName(localized("Column Layouts"));
    auto* title = new QLabel(localized("Column Layouts"), columnLayoutsPopover_);
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    NameListEditor* list = makeList(*columnLayoutsPopover_);
    columnLayoutsPopover_->setFocusProxy(list);
    auto* names = new QCheckBox(localized("Bring column titles back, too"), columnLayoutsPopover_);
    names->setToolTip(localized("When off, applying a layout leaves the titles as they are"));
    bindCheckBox(*names, settings_, settings::isColumnLayoutUsesNames);
    auto* layout = new QVBoxLayout(columnLayoutsPopover_);
    layout->addWidget(title);
    layout->addWidget(list, 1);
    layout->addWidget(names);
}

NameListEditor* ColumnLayoutsPopoverController::makeList(QWidget& parent) {
    auto* list = new NameListEditor(
        nameList(layouts_, &NamedRecord::name, &ColumnLayoutsArrayController::rename),
        localized("Column Layouts"), &parent);
    using Needs = NameListEditor::Needs;
    list->addButton(localized("New"), "saveColumnLayout", Needs::Nothing,
                    [this] { layouts_.saveColumnLayout(); })
        ->setToolTip(localized("Keeps the columns as they are now"));
    list->addButton(localized("Delete"), "removeColumnLayout", Needs::Selection,
                    [this] { layouts_.removeColumnLayout(); });
    list->addButton(localized("Apply"), "setColumnLayout", Needs::Selection,
                    [this] { layouts_.setColumnLayout(); })
        ->setToolTip(localized("Arranges the columns as the selected layout has them"));
    list->setReturnAction([this] { layouts_.setColumnLayout(); });
    QObject::connect(&layouts_, &ColumnLayoutsArrayController::nameEditingRequested, list,
                     &NameListEditor::editName);
    QObject::connect(columnLayoutsPopover_, &Popover::aboutToDismiss, list,
                     &NameListEditor::commitEditing);
    return list;
}

} // namespace quillet
