#pragma once

#include "platform/SearchField.h"

#include <QLineEdit>

class QActionGroup;
class QMenu;

namespace quillet {

/// The toolbar's search field. A click on its symbol, or Alt and the down arrow, opens the menu of
/// places to search; Escape clears it, and leaves it once it is empty.
class SearchBox : public QLineEdit, public SearchField, public LabelledToolbarItem {
    Q_OBJECT

public:
    explicit SearchBox(QWidget* parent = nullptr);
    ~SearchBox() override;
    Q_DISABLE_COPY_MOVE(SearchBox)

    [[nodiscard]] QString text() const override { return QLineEdit::text(); }
    void setPlaceholder(const QString& text) override { setPlaceholderText(text); }
    void setMenuTemplate(const SearchMenu& menu) override;
    /// What assistive programs call the field.
    void setLabel(const QString& label) override;
    void setPaletteLabel(const QString& label) override;

    /// The places to search.
    [[nodiscard]] QMenu& menu() const { return *menu_; }
    /// Gives the field the focus, all of its text selected to be typed over.
    void startSearch();

Q_SIGNALS:
    /// The user chose the menu's entry at that position, from 0.
    void categoryChosen(std::size_t position);
    /// Escape was pressed in the empty field, or Return: the user is done here.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openMenu();
    void makeActions(const SearchMenu& menu);

    QMenu* menu_;
    QActionGroup* categories_;
};

} // namespace quillet
