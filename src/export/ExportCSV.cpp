#include "export/ExportCSV.h"

namespace quillet {

QChar csvSeparator(const QString& decimalSeparator) {
    return decimalSeparator == u"," ? u';' : u',';
}

ExportCSV::ExportCSV(const Collaborators& collaborators)
    : DelimitedExport(collaborators,
                      {.separator = csvSeparator(collaborators.fields.formats().decimalSeparator()),
                       .file = {.fileType = QStringLiteral("csv"),
                                .writeIssue = QStringLiteral("CSV file write issue"),
                                .modalCode = 1}}) {}

} // namespace quillet
