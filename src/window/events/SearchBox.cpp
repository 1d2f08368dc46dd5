#include "window/events/SearchBox.h"

#include "results/SearchFieldController.h"
#include "texts/Localized.h"
#include "window/widgets/LetterWidth.h"
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
    const int unit = letterWidth(fontMetrics());
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

void SearchBox::follow(SearchFieldController& search) {
    const auto showPlaceholder = [this, &search] {
        setPlaceholderText(search.placeholderString());
    };
    const auto showLabel = [this, &search] {
        // What assistive programs call the field.
        setAccessibleName(search.toolbarItemLabel());
        setToolTip(search.toolbarItemLabel());
    };
    const auto show = [this, &search] { showMenu(search); };
    connect(&search, &SearchFieldController::placeholderStringChanged, this, showPlaceholder);
    connect(&search, &SearchFieldController::toolbarItemLabelChanged, this, showLabel);
    connect(&search, &SearchFieldController::searchMenuTemplateChanged, this, show);
    connect(this, &QLineEdit::textChanged, &search, &SearchFieldController::setSearchText);
    showPlaceholder();
    showLabel();
    show();
}

void SearchBox::showMenu(SearchFieldController& search) {
    const SearchMenu& menu = search.searchMenuTemplate();
    menu_->setTitle(menu.title);
    const bool isSame = std::ranges::equal(categories_->actions(), menu.items, {}, &QAction::text,
                                           &SearchMenuItem::title);
    if (!isSame) {
        makeActions(search);
    }
    for (std::size_t position = 0; position < menu.items.size(); ++position) {
        categories_->actions()[static_cast<qsizetype>(position)]->setChecked(
            menu.items[position].isTicked);
    }
}

void SearchBox::makeActions(SearchFieldController& search) {
    // Later: one of them may be what was just chosen.
    for (QAction* action : categories_->actions()) {
        categories_->removeAction(action);
        menu_->removeAction(action);
        action->deleteLater();
    }
    const std::vector<SearchMenuItem>& items = search.searchMenuTemplate().items;
    for (std::size_t position = 0; position < items.size(); ++position) {
        QAction* action = menu_->addAction(items[position].title);
        action->setObjectName(QStringLiteral("setSearchCategoryFrom"));
        action->setCheckable(true);
        categories_->addAction(action);
        connect(action, &QAction::triggered, &search,
                [&search, position] { search.setSearchCategoryFrom(position); });
    }
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
