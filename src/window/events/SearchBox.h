#pragma once

#include <QLineEdit>

class QActionGroup;
class QMenu;

namespace quillet {

class SearchFieldController;

/// The toolbar's search field. A click on its symbol, or Alt and the down arrow, opens the menu of
/// places to search; Escape clears it, and leaves it once it is empty.
class SearchBox : public QLineEdit {
    Q_OBJECT

public:
    explicit SearchBox(QWidget* parent = nullptr);
    ~SearchBox() override;
    Q_DISABLE_COPY_MOVE(SearchBox)

    /// Shows what the controller says, and tells it what is typed and chosen, from now on.
    void follow(SearchFieldController& search);

    /// The places to search.
    [[nodiscard]] QMenu& menu() const { return *menu_; }
    /// Gives the field the focus, all of its text selected to be typed over.
    void startSearch();

Q_SIGNALS:
    /// Escape was pressed in the empty field, or Return: the user is done here.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openMenu();
    void showMenu(SearchFieldController& search);
    void makeActions(SearchFieldController& search);

    QMenu* menu_;
    QActionGroup* categories_;
};

} // namespace quillet
