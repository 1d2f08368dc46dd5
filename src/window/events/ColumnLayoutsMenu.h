#pragma once

#include "eventtable/ColumnLayoutsArrayController.h"

#include <QMenu>

#include <functional>
#include <vector>

namespace quillet {

/// The column layouts by their names, each of which applies its layout when it is chosen, below
/// what deletes a layout and whatever entries the window puts first.
class ColumnLayoutsMenu : public QMenu {
    Q_OBJECT

public:
    ColumnLayoutsMenu(ColumnLayoutsArrayController& layouts, QWidget* parent);
    ~ColumnLayoutsMenu() override;
    Q_DISABLE_COPY_MOVE(ColumnLayoutsMenu)

private:
    void listLayouts();
    /// An entry with a layout's name, which selects the layout and then acts.
    void addLayout(QMenu& menu, const NamedRecord& layout, const std::function<void()>& act);

    ColumnLayoutsArrayController& layouts_;
    QMenu* deletion_;
    std::vector<QAction*> listed_;
};

} // namespace quillet
