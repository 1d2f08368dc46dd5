#include "export/TextExport.h"

#include "export/ExportFile.h"
#include "export/ExportNames.h"
#include "export/MailScript.h"
#include "platform/Settings.h"
#include "texts/Localized.h"

#include <tuple>

namespace quillet {

QString TextExport::titledPeriod(FormatDate formatDate) const {
    const QString period = periodName(with_.settings, with_.formats, formatDate);
    return kind_.title.isEmpty() ? period : QStringLiteral("%1 - %2").arg(kind_.title, period);
}

std::optional<QString> TextExport::takenText() const {
    const auto run = with_.progress.begin(localized("Preparing the text…"));
    return with_.text(shownProgress(*run));
}

void TextExport::saveAsTxt() {
    std::optional<QString> text = takenText();
    if (!text) {
        return;
    }
    saveThroughPanel(
        with_.savePanel, with_.settings,
        {.fileType = QStringLiteral("txt"), .writeIssue = kind_.writeIssue, .modalCode = {}},
        {.message = {},
         .nameFieldLabel = kind_.nameFieldLabel,
         .suggestedName = titledPeriod(formatFileNameDate)},
        *std::move(text));
}

bool TextExport::isScriptingOfStylesBroken() const {
    return with_.installedPrograms.shortVersion(QStringLiteral("/Applications/Safari.app")) ==
           u"5.0";
}

void TextExport::showBrowserNotice() {
    if (settings::safari50ExportNotice.isStored(with_.settings)) {
        return;
    }
    constexpr int ignore = 1;
    const int chosen = with_.alerts.runModal(
        {.style = AlertStyle::Warning,
         .messageText = localized("Safari 5.0 is installed on this Mac"),
         .informativeText =
             localized("Quillet will not be able to format the text for this email due to a known "
                       "applescript issue caused by Safari 5.0.\n\nIf you would like to use the "
                       "standard text format that Quillet uses, format the font of the new email "
                       "message to Monaco, size 10.\n"),
         .buttonTitles = {localized("Close"), localized("Ignore")}});
    if (chosen == ignore) {
        settings::safari50ExportNotice.write(with_.settings, true);
    }
}

void TextExport::sendToMail() {
    const std::optional<QString> text = takenText();
    if (!text) {
        return;
    }
    const bool isBroken = isScriptingOfStylesBroken();
    if (isBroken) {
        showBrowserNotice();
    }
    const bool isPlain = isBroken || kind_.mailStyle == MailStyle::Plain;
    const auto style =
        isPlain ? std::nullopt : std::optional(reportMailStyle(with_.textColor.textColor()));
    // Who runs it tells the user what goes wrong; there is nothing more to do here.
    std::ignore =
        with_.scriptRunner.run(mailScript({.subject = titledPeriod(formatEmailNameDate),
                                           .content = text->isEmpty() ? QStringLiteral(" ") : *text,
                                           .style = style}));
}

} // namespace quillet
