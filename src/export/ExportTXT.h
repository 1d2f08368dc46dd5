#pragma once

#include "export/TextExport.h"

namespace quillet {

/// Saves and mails the text report.
class ExportTXT : public TextExport {
public:
    explicit ExportTXT(Collaborators collaborators);
};

} // namespace quillet
