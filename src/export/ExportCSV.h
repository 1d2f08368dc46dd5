#pragma once

#include "eventdata/EventFields.h"
#include "platform/ListController.h"
#include "platform/SavePanel.h"
#include "platform/SettingsStore.h"
#include "platform/TableColumn.h"

namespace quillet {

/// The CSV export: builds the text of all shown or of the selected events, asks for a place and
/// writes the file.
class ExportCSV {
public:
    struct Collaborators {
        SettingsStore& settings;
        ColumnTable& eventListTableView;
        ListController<Event>& eventsArrayController;
        const EventFields& fields;
        SavePanel& savePanel;
    };

    explicit ExportCSV(const Collaborators& collaborators)
        : with_(collaborators) {}

    /// A write that fails is logged as "CSV file write issue" and leaves no file.
    void saveAsCSV();
    /// The text as it would be saved now.
    [[nodiscard]] QString text() const;

private:
    [[nodiscard]] QString suggestedName() const;
    [[nodiscard]] bool exportsSelection() const;

    Collaborators with_;
};

/// A long date fit for a file name: "/" becomes a blank, "," goes.
[[nodiscard]] QString formatFileNameDate(const LocaleFormats& formats, Instant date);

} // namespace quillet
