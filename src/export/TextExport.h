#pragma once

#include "platform/Alert.h"
#include "platform/ExportProgress.h"
#include "platform/InstalledPrograms.h"
#include "platform/LocaleFormats.h"
#include "platform/ProgressPresenter.h"
#include "platform/SavePanel.h"
#include "platform/ScriptRunner.h"
#include "platform/SettingsStore.h"
#include "platform/TextColorSource.h"

#include <QString>

#include <functional>
#include <optional>

namespace quillet {

/// How the body of a mail is set.
enum class MailStyle {
    Styled, ///< In a font, size and colour of its own, unless the installed browser breaks that.
    Plain,  ///< As the mail program sets it.
};

/// What tells one kind of text from another.
struct TextExportKind {
    /// Comes before the period in names and subjects; empty for none.
    QString title;
    QString nameFieldLabel;
    /// The line that a failed write leaves in the log.
    QString writeIssue;
    MailStyle mailStyle;
};

/// Saves a text of the window as a text file, or hands it to the mail program as a new message.
class TextExport {
public:
    struct Collaborators {
        SettingsStore& settings;
        const LocaleFormats& formats;
        SavePanel& savePanel;
        AlertPresenter& alerts;
        ScriptRunner& scriptRunner;
        const InstalledPrograms& installedPrograms;
        const TextColorSource& textColor;
        ProgressPresenter& progress;
        /// The text as its pane shows it now, or would; nothing when it was cancelled.
        std::function<std::optional<QString>(const ExportProgress& progress)> text;
    };

    TextExport(Collaborators collaborators, TextExportKind kind)
        : with_(std::move(collaborators))
        , kind_(std::move(kind)) {}

    /// Takes the text, asks for a place and writes it there. A failed write is only logged. Here
    /// and below a text that takes long shows its progress; when it is cancelled, that was all.
    void saveAsTxt();
    /// Takes the text, a blank where it is empty, and runs the script that makes the message.
    void sendToMail();

private:
    using FormatDate = QString (*)(const LocaleFormats&, Instant);

    [[nodiscard]] std::optional<QString> takenText() const;
    [[nodiscard]] QString titledPeriod(FormatDate formatDate) const;
    [[nodiscard]] bool isScriptingOfStylesBroken() const;
    void showBrowserNotice();

    Collaborators with_;
    TextExportKind kind_;
};

} // namespace quillet
