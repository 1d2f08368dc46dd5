#pragma once

#include <QString>

#include <vector>

namespace quillet {

/// An entry of a search field's menu: where to search.
struct SearchMenuItem {
    QString title;
    qint64 tag = 0;
    bool isTicked = false;

    friend bool operator==(const SearchMenuItem&, const SearchMenuItem&) = default;
};

struct SearchMenu {
    QString title;
    std::vector<SearchMenuItem> items;

    friend bool operator==(const SearchMenu&, const SearchMenu&) = default;
};

/// A field that the user types a search into, with a menu behind its icon. Main thread only.
class SearchField {
public:
    virtual ~SearchField() = default;
    /// What stands in the field; empty when nothing does.
    [[nodiscard]] virtual QString text() const = 0;
    /// What an empty field shows.
    virtual void setPlaceholder(const QString& text) = 0;
    /// Replaces the menu. Its entries' positions, from 0, tell which one the user chose.
    virtual void setMenuTemplate(const SearchMenu& menu) = 0;
};

/// A toolbar item that bears a label.
class LabelledToolbarItem {
public:
    virtual ~LabelledToolbarItem() = default;
    virtual void setLabel(const QString& label) = 0;
    /// The label where the item is offered for the toolbar.
    virtual void setPaletteLabel(const QString& label) = 0;
};

} // namespace quillet
