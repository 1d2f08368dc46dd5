#pragma once

#include "platform/InterfaceItems.h"

#include <QAction>

namespace quillet {

/// A menu entry that is an action.
class ActionMenuItem final : public MenuItem {
public:
    void setHidden(bool isHidden) override { action_.setVisible(!isHidden); }
    [[nodiscard]] QAction& action() { return action_; }

private:
    QAction action_;
};

/// A toolbar button that is an action.
class ActionToolbarItem final : public ToolbarItem {
public:
    void setEnabled(bool isEnabled) override { action_.setEnabled(isEnabled); }
    [[nodiscard]] QAction& action() { return action_; }

private:
    QAction action_;
};

/// The toolbar's export buttons.
struct ExportItems {
    ActionToolbarItem text;
    ActionToolbarItem csv;
    ActionToolbarItem tsv;
    ActionToolbarItem mail;
    ActionToolbarItem notes;
};

/// The entries that switch the time column, of which one is shown.
struct TimeColumnActions {
    ActionMenuItem hours;
    ActionMenuItem minutes;
    ActionMenuItem duration;
};

} // namespace quillet
