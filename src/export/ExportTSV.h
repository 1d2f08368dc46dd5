#pragma once

#include "export/DelimitedExport.h"

namespace quillet {

/// The TSV export: the records of the CSV export with tabs between the fields, in whatever locale.
/// A tab inside a value splits its field.
class ExportTSV : public DelimitedExport {
public:
    explicit ExportTSV(const Collaborators& collaborators);

    /// A write that fails is logged as "TSV file write issue" and leaves no file.
    void saveAsTSV() { save(); }
};

} // namespace quillet
