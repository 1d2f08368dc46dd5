#include "window/events/ColumnLayoutsMenu.h"

#include "texts/Localized.h"
#include "window/main/NameListModel.h"

#include <algorithm>

namespace quillet {

ColumnLayoutsMenu::ColumnLayoutsMenu(ColumnLayoutsArrayController& layouts, QWidget* parent)
    : QMenu(localized("Column &Layouts"), parent)
    , layouts_(layouts)
    , deletion_(addMenu(localized("&Delete Layout"))) {
    addSeparator();
    // Not while an entry acts: the list that it changes holds the entry.
    connect(this, &QMenu::aboutToShow, this, &ColumnLayoutsMenu::listLayouts);
    listLayouts();
}

ColumnLayoutsMenu::~ColumnLayoutsMenu() = default;

void ColumnLayoutsMenu::listLayouts() {
    qDeleteAll(listed_);
    listed_.clear();
    for (std::size_t row = 0; row < layouts_.arrangedCount(); ++row) {
        const NamedRecord& layout = layouts_.arranged(row);
        addLayout(*this, layout, [this] { layouts_.setColumnLayout(); });
        if (row > 0) {
            addLayout(*deletion_, layout, [this] { layouts_.removeColumnLayout(); });
        }
    }
    deletion_->setEnabled(!deletion_->isEmpty());
}

void ColumnLayoutsMenu::addLayout(QMenu& menu, const NamedRecord& layout,
                                  const std::function<void()>& act) {
    QAction* entry = menu.addAction(menuText(layout.name, menu.fontMetrics()));
    listed_.push_back(entry);
    const auto choose = [this, layout, act] {
        // Another running copy may have changed the list since the menu came up.
        const auto found = std::ranges::find(*layouts_.content(), layout);
        if (found != layouts_.content()->end()) {
            layouts_.setSelectedRows(
                {static_cast<std::size_t>(found - layouts_.content()->begin())});
            act();
        }
    };
    // Later: an assistive program's choice must be answered before an alert waits for the user.
    connect(entry, &QAction::triggered, this, choose, Qt::QueuedConnection);
}

} // namespace quillet
