#pragma once

#include "eventtable/ColumnLayout.h"
#include "eventtable/ColumnTable.h"
#include "platform/NamedRecordsController.h"

namespace quillet {

/// The stored column layouts as a list: made from the table, renamed, applied, deleted.
class ColumnLayoutsArrayController : public NamedRecordsController {
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

private:
    void applyVisibility(const ColumnPlacement& placement);

    ColumnTable& eventsTableView_;
};

} // namespace quillet
