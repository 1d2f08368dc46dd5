#pragma once

#include "eventtable/ColumnLayoutsArrayController.h"

#include <QPointer>

class QWidget;

namespace quillet {

class NameListEditor;
class Popover;

/// Shows the column layouts in a popover, which is built when it is first shown.
class ColumnLayoutsPopoverController {
public:
    ColumnLayoutsPopoverController(SettingsStore& settings, ColumnLayoutsArrayController& layouts);

    /// Shows the popover below the sender, or takes it away where it is there already.
    void showColumnLayoutsPopover(QWidget& sender);
    /// Keeps the columns as they are in a new layout, whose name is then typed in the popover.
    void saveColumnLayout(QWidget& sender);

private:
    void build(QWidget& window);
    [[nodiscard]] NameListEditor* makeList(QWidget& parent);

    SettingsStore& settings_;
    ColumnLayoutsArrayController& layouts_;
    /// Belongs to the window.
    QPointer<Popover> columnLayoutsPopover_;
};

} // namespace quillet
