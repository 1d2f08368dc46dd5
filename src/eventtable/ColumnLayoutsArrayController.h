#pragma once

#include "eventtable/StoredColumnLayout.h"
#include "platform/Alert.h"
#include "platform/ListController.h"
#include "platform/Observation.h"
#include "platform/SettingsStore.h"
#include "platform/TableColumn.h"

#include <vector>

namespace quillet {

/// The stored column layouts as a list: made from the table, renamed, applied, deleted. Every
/// change is written back to `columnLayouts`, and a change of that key is taken over.
class ColumnLayoutsArrayController : public ListController<StoredColumnLayout> {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        ColumnTable& eventsTableView;
        AlertPresenter& alerts;
    };

    explicit ColumnLayoutsArrayController(const Collaborators& collaborators);

    void awakeFromNib();
    void createDefaultColumnLayouts();
    /// Lets the first layout follow the current language; nothing when there is none.
    void updateDefaultColumnLayoutsName();
    /// Appends the table as it stands, named "New Layout n", and selects it. In an empty list
    /// "Default" comes first.
    void createColumnLayout();
    /// createColumnLayout(), then asks for the new name to be edited.
    void saveColumnLayout();
    void setColumnLayout();
    /// Applies the first selected layout; nothing without a selection.
    void applyColumnLayout();
    /// Deletes the first selected layout, once the user agrees; "Default" is refused. Nothing
    /// without a selection.
    void removeColumnLayout();
    /// The user's new name for a layout.
    void renameColumnLayout(std::size_t row, const QString& name);

Q_SIGNALS:
    /// The name cell of this row is to be edited, with its text selected.
    void nameEditingRequested(std::size_t row);

private:
    void readStoredLayouts();
    void append(const StoredColumnLayout& layout);
    void store(const std::vector<StoredColumnLayout>& layouts,
               std::vector<std::size_t> selectedRows);
    void applyVisibility(const ColumnPlacement& placement);

    Collaborators with_;
    Observation storedLayouts_;
};

} // namespace quillet
