#include "export/ExportFile.h"

#include "platform/Logging.h"
#include "platform/Settings.h"

#include <QStandardPaths>

namespace quillet {

namespace {

TextEncoding chosenEncoding(const SettingsStore& settings) {
    return settings::fileEncodingPopUpIndex.read(settings) == 1 ? TextEncoding::Utf16
                                                                : TextEncoding::Utf8;
}

} // namespace

void saveThroughPanel(SavePanel& panel, const SettingsStore& settings, const ExportFileKind& kind,
                      const ExportFileTexts& texts, QString text) {
    const SavePanelRequest request{
        .fileType = kind.fileType,
        .message = texts.message,
        .nameFieldLabel = texts.nameFieldLabel,
        .startingFolder = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation),
        .suggestedName = texts.suggestedName};
    panel.beginSheet(request, [&panel, &settings, kind,
                               finished = std::move(text)](const std::optional<QString>& path) {
        if (!path) {
            return;
        }
        if (!writeAtomically(*path, encodedText(finished, chosenEncoding(settings)))) {
            qCWarning(quilletLog).noquote() << kind.writeIssue;
        }
        if (kind.modalCode) {
            panel.stopModal(*kind.modalCode);
        }
    });
}

} // namespace quillet
