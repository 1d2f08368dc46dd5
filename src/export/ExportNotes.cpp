#include "export/ExportNotes.h"

#include "texts/Localized.h"

namespace quillet {

ExportNotes::ExportNotes(Collaborators collaborators)
    // This label alone stays English in every language.
    : TextExport(std::move(collaborators),
                 {.title = localized("Event Notes"),
                  .nameFieldLabel = QStringLiteral("Export as:"),
                  .writeIssue = QStringLiteral("Notes TXT file write issue"),
                  .mailStyle = MailStyle::Plain}) {}

} // namespace quillet
