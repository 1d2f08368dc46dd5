#include "window/events/SearchBox.h"

#include "texts/Localized.h"
#include "window/widgets/SymbolIcon.h"

#include <QActionGroup>
#include <QKeyEvent>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

namespace quillet {

SearchBox::SearchBox(QWidget* parent)
    : QLineEdit(parent)
    , menu_(new QMenu(this))
    , categories_(new QActionGroup(this)) {
    setObjectName(QStringLiteral("searchField"));
    const int unit = fontMetrics().averageCharWidth();
    setMinimumWidth(unit * 18);
    setMaximumWidth(unit * 40);
    QAction* open = addAction(symbolIcon(Symbol::Search, QPalette::Text), LeadingPosition);
    open->setToolTip(localized("Choose where to search"));
    connect(open, &QAction::triggered, this, &SearchBox::openMenu);
    for (auto* button : findChildren<QToolButton*>()) {
        button->setAccessibleName(localized("Search In"));
    }
    setClearButtonEnabled(true);
    for (auto* button : findChildren<QToolButton*>()) {
        if (button->accessibleName().isEmpty()) {
            button->setAccessibleName(localized("Clear Search"));
        }
    }
    connect(this, &QLineEdit::returnPressed, this, &SearchBox::left);
}

SearchBox::~SearchBox() = default;

void SearchBox::setMenuTemplate(const SearchMenu& menu) {
    menu_->setTitle(menu.title);
    const QList<QAction*> actions = categories_->actions();
    const bool isSame =
        std::ranges::equal(actions, menu.items, {}, &QAction::text, &SearchMenuItem::title);
    if (!isSame) {
        makeActions(menu);
    }
    for (std::size_t position = 0; position < menu.items.size(); ++position) {
        categories_->actions()[static_cast<qsizetype>(position)]->setChecked(
            menu.items[position].isTicked);
    }
}

void SearchBox::makeActions(const SearchMenu& menu) {
    // Later: one of them may be what was just chosen.
    for (QAction* action : categories_->actions()) {
        categories_->removeAction(action);
        menu_->removeAction(action);
        action->deleteLater();
    }
    for (std::size_t position = 0; position < menu.items.size(); ++position) {
        QAction* action = menu_->addAction(menu.items[position].title);
        action->setObjectName(QStringLiteral("setSearchCategoryFrom"));
        action->setCheckable(true);
        categories_->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, position] { Q_EMIT categoryChosen(position); });
    }
}

void SearchBox::setLabel(const QString& label) {
    setAccessibleName(label);
}

void SearchBox::setPaletteLabel(const QString& label) {
    setToolTip(label);
}

void SearchBox::startSearch() {
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void SearchBox::openMenu() {
    setFocus(Qt::MenuBarFocusReason);
    menu_->popup(mapToGlobal(rect().bottomLeft()));
}

void SearchBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier) {
        openMenu();
    } else if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
    } else if (event->key() == Qt::Key_Escape) {
        Q_EMIT left();
    } else {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
}

} // namespace quillet
