#include "export/DelimitedExport.h"

#include "export/DelimitedText.h"
#include "export/ExportNames.h"
#include "export/ExportSelection.h"
#include "platform/Localized.h"

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

/// TSV goes by the same keys as CSV.
DelimitedSettings storedSettings(const SettingsStore& settings) {
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

QString DelimitedExport::text() const {
    const DelimitedSettings settings = storedSettings(with_.settings);
    DelimitedText text(visibleColumns(with_.eventListTableView), settings, with_.fields,
                       format_.separator);
    if (settings.hasHeader) {
        text.appendHeader();
    }
    const ListController<Event>& list = with_.eventsArrayController;
    if (areOnlySelectedEventsExported(with_.settings)) {
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

void DelimitedExport::save() {
    saveThroughPanel(
        with_.savePanel, with_.settings, format_.file,
        {.message = areOnlySelectedEventsExported(with_.settings) ? localized("Selected Events")
                                                                  : localized("All Events"),
         .nameFieldLabel = localized("Export as:"),
         .suggestedName = periodName(with_.settings, with_.fields.formats(), formatFileNameDate)},
        text());
}

} // namespace quillet
