#include "export/ExportTXT.h"

#include "texts/Localized.h"

namespace quillet {

ExportTXT::ExportTXT(Collaborators collaborators)
    : TextExport(std::move(collaborators), {.title = {},
                                            .nameFieldLabel = localized("Export as:"),
                                            .writeIssue = QStringLiteral("TXT file write issue"),
                                            .mailStyle = MailStyle::Styled}) {}

} // namespace quillet
