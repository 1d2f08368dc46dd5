#pragma once

#include "window/main/NameListModel.h"

#include <QWidget>

class QAction;
class QHBoxLayout;
class QPushButton;

namespace quillet {

class NameListView;

/// A list of names, renamed in place, one of which is selected, over a row of buttons. Its
/// selection and that of the records are one.
class NameListEditor : public QWidget {
    Q_OBJECT

public:
    enum class Needs { Nothing, Selection };

    /// The accessible name tells what is listed.
    NameListEditor(NameList list, const QString& accessibleName, QWidget* parent);
    ~NameListEditor() override;
    Q_DISABLE_COPY_MOVE(NameListEditor)

    /// A button behind those that are there. One that needs a selection can be pressed only while
    /// there is one.
    QPushButton* addButton(const QString& text, const char* name, Needs needs,
                           std::function<void()> action);
    /// What the Return key does on a selected name.
    void setReturnAction(const std::function<void()>& action);

    /// Opens the name of a row for editing, with its text selected.
    void editName(std::size_t row);
    /// Takes over a name that is being typed.
    void commitEditing();

private:
    void takeSelectionFromView();
    void showSelectionOfList();
    void updateButtons();
    void setButtonsEnabled(bool areEnabled);

    NameList list_;
    NameListModel* model_;
    NameListView* view_;
    QHBoxLayout* buttonRow_;
    std::vector<QPushButton*> selectionButtons_;
    bool isFollowing_ = false;
};

} // namespace quillet
