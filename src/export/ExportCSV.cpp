#include "export/ExportCSV.h"

#include "export/CsvText.h"
#include "export/ExportSelection.h"
#include "platform/FileWriting.h"
#include "platform/Localized.h"
#include "platform/Logging.h"

#include <QStandardPaths>

namespace quillet {

namespace {

std::vector<ExportColumn> visibleColumns(ColumnTable& table) {
    std::vector<ExportColumn> columns;
    for (int position = 0; position < table.columnCount(); ++position) {
        const TableColumn& column = table.columnAt(position);
        if (!column.isHidden()) {
            columns.push_back({column.identifier(), column.headerTitle()});
        }
    }
    return columns;
}

CsvSettings csvSettings(const SettingsStore& settings) {
    const auto isOn = [&](const char* key) {
        return boolForKey(settings, QString::fromLatin1(key));
    };
    return {.hasHeader = isOn("isCSVHeader"),
            .includesIdentifier = isOn("isCSVIncludeUID"),
            .quotesTitle = isOn("isCSVQuotesForTitle"),
            .quotesNotes = isOn("isCSVQuotesForNote"),
            .quotesLocation = isOn("isCSVQuotesForLocation"),
            .quotesCalendar = isOn("isCSVQuotesForCalendar"),
            .removesReturns = isOn("isCSVRemoveReturns")};
}

} // namespace

bool ExportCSV::exportsSelection() const {
    return areOnlySelectedEventsExported(with_.settings);
}

QString ExportCSV::text() const {
    const CsvSettings settings = csvSettings(with_.settings);
    CsvText text(visibleColumns(with_.eventListTableView), settings, with_.fields);
    if (settings.hasHeader) {
        text.appendHeader();
    }
    const ListController<Event>& list = with_.eventsArrayController;
    if (exportsSelection()) {
        for (const std::size_t row : list.selectedRows()) {
            text.appendEvent(list.arranged(row));
        }
    } else {
        for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
            text.appendEvent(list.arranged(row));
        }
    }
    return text.text();
}

QString ExportCSV::suggestedName() const {
    const auto date = [this](const char* key) {
        const auto stored = dateForKey(with_.settings, QString::fromLatin1(key));
        return stored ? formatFileNameDate(with_.fields.formats(), *stored) : QString();
    };
    return QStringLiteral("%1 - %2").arg(date("filterStartDate"), date("filterEndDate"));
}

void ExportCSV::saveAsCSV() {
    const auto encoding =
        integerForKey(with_.settings, QStringLiteral("fileEncodingPopUpIndex")) == 1
            ? TextEncoding::Utf16
            : TextEncoding::Utf8;
    const SavePanelRequest request{
        .fileType = QStringLiteral("csv"),
        .message = exportsSelection() ? localized("Selected Events") : localized("All Events"),
        .nameFieldLabel = localized("Export as:"),
        .startingFolder = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation),
        .suggestedName = suggestedName()};
    with_.savePanel.beginSheet(request, [&savePanel = with_.savePanel, finished = text(),
                                         encoding](const std::optional<QString>& path) {
        if (!path) {
            return;
        }
        if (!writeAtomically(*path, encodedText(finished, encoding))) {
            qCWarning(quilletLog).noquote() << "CSV file write issue";
        }
        savePanel.stopModal(1);
    });
}

QString formatFileNameDate(const LocaleFormats& formats, Instant date) {
    QString text = formats.longDate(date);
    text.replace(u'/', u' ');
    text.remove(u',');
    return text;
}

} // namespace quillet
