#pragma once

#include "platform/FileWriting.h"
#include "platform/SavePanel.h"
#include "platform/SettingsStore.h"

#include <QString>

#include <optional>

namespace quillet {

/// How a kind of file is saved.
struct ExportFileKind {
    /// Without the dot.
    QString fileType;
    /// The line that a failed write leaves in the log.
    QString writeIssue;
    /// With which the panel's modal session is ended after a write, done or failed; nothing leaves
    /// the session alone.
    std::optional<int> modalCode;
};

/// What the save panel says.
struct ExportFileTexts {
    /// Empty: no message line.
    QString message;
    QString nameFieldLabel;
    /// Without the extension.
    QString suggestedName;
};

/// Asks where to save a text, starting on the desktop, and writes it there whole or not at all, in
/// the encoding that is chosen when the user confirms (`fileEncodingPopUpIndex` 1 is UTF-16). A
/// write that fails is only logged. The panel and the settings must outlive the answer.
void saveThroughPanel(SavePanel& panel, const SettingsStore& settings, const ExportFileKind& kind,
                      const ExportFileTexts& texts, QString text);

} // namespace quillet
