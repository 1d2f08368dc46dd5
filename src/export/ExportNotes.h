#pragma once

#include "export/TextExport.h"

namespace quillet {

/// Saves and mails the notes. Unlike the report's, their mail is always plain.
class ExportNotes : public TextExport {
public:
    explicit ExportNotes(Collaborators collaborators);
};

} // namespace quillet
