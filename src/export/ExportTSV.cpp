#include "export/ExportTSV.h"

namespace quillet {

ExportTSV::ExportTSV(const Collaborators& collaborators)
    : DelimitedExport(collaborators, {.separator = u'\t',
                                      // Spreadsheets offer to split a text file; a type of its own
                                      // they may not know.
                                      .file = {.fileType = QStringLiteral("txt"),
                                               .writeIssue = QStringLiteral("TSV file write issue"),
                                               .modalCode = {}}}) {}

} // namespace quillet
