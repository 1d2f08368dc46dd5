#pragma once

#include "export/RecordExport.h"

namespace quillet {

/// Saves the event table as comma-separated text.
class ExportCSV {
public:
    explicit ExportCSV(const RecordExportCollaborators& collaborators)
        : with_(collaborators) {}

    /// Returns once the panel is shown.
    void saveAsCSV();

private:
    RecordExportCollaborators with_;
};

} // namespace quillet
