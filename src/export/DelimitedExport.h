#pragma once

#include "eventdata/EventFields.h"
#include "eventtable/ColumnTable.h"
#include "export/ExportFile.h"
#include "platform/ExportProgress.h"
#include "platform/ListController.h"
#include "platform/ProgressPresenter.h"
#include "platform/SavePanel.h"
#include "platform/SettingsStore.h"

#include <QString>

#include <optional>

namespace quillet {

/// What tells one file of separated values from another.
struct DelimitedFormat {
    QChar separator;
    ExportFileKind file;
};

/// Builds a file of separated values of all shown or of the selected events, asks for a place and
/// writes the file. Each format is a class of its own that hands its differences to this one.
class DelimitedExport {
public:
    struct Collaborators {
        SettingsStore& settings;
        const ColumnTable& eventListTableView;
        ListController<Event>& eventsArrayController;
        const EventFields& fields;
        SavePanel& savePanel;
        ProgressPresenter& progress;
    };

    /// The text as it would be saved now; nothing when the progress function cancelled it.
    [[nodiscard]] std::optional<QString> text(const ExportProgress& progress) const;
    [[nodiscard]] QString text() const { return *text({}); }

protected:
    DelimitedExport(const Collaborators& collaborators, DelimitedFormat format)
        : with_(collaborators)
        , format_(std::move(format)) {}

    /// A text that takes long shows its progress; when it is cancelled, no place is asked for. A
    /// write that fails is only logged and leaves no file.
    void save();

private:
    Collaborators with_;
    DelimitedFormat format_;
};

} // namespace quillet
