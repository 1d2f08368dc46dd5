#pragma once

#include "export/DelimitedExport.h"

namespace quillet {

/// ";" where the decimal separator is ",", else ",".
[[nodiscard]] QChar csvSeparator(const QString& decimalSeparator);

/// The CSV export.
class ExportCSV : public DelimitedExport {
public:
    explicit ExportCSV(const Collaborators& collaborators);

    /// A write that fails is logged as "CSV file write issue" and leaves no file.
    void saveAsCSV() { save(); }
};

} // namespace quillet
