#include "export/DelimitedExport.h"

#include "export/DelimitedText.h"
#include "export/ExportNames.h"
#include "export/ExportSelection.h"
#include "export/ExportedEvents.h"
#include "platform/Settings.h"
#include "texts/Localized.h"

namespace quillet {

namespace {

bool isQuoted(const EventColumn* known, const SettingsStore& settings) {
    return known == nullptr || known->quotes == nullptr || known->quotes->read(settings);
}

std::vector<ExportColumn> visibleColumns(const ColumnTable& table, const SettingsStore& settings) {
    std::vector<ExportColumn> columns;
    for (int position = 0; position < table.columnCount(); ++position) {
        const TableColumn& column = table.columnAt(position);
        if (!column.isHidden()) {
            columns.push_back(
                {column.identifier(), column.headerTitle(), isQuoted(column.known(), settings)});
        }
    }
    return columns;
}

/// TSV goes by the same keys as CSV.
DelimitedSettings storedSettings(const SettingsStore& settings) {
    return {.hasHeader = settings::isCSVHeader.read(settings),
            .includesIdentifier = settings::isCSVIncludeUID.read(settings),
            .removesReturns = settings::isCSVRemoveReturns.read(settings)};
}

} // namespace

std::optional<QString> DelimitedExport::text(const ExportProgress& progress) const {
    const DelimitedSettings settings = storedSettings(with_.settings);
    DelimitedText text(visibleColumns(with_.eventListTableView, with_.settings), settings,
                       with_.fields, format_.separator);
    if (settings.hasHeader) {
        text.appendHeader();
    }
    const auto events = ExportedEvents::chosen(with_.eventsArrayController, with_.settings);
    ExportSteps steps(progress, events.size());
    for (std::size_t position = 0; position < events.size(); ++position) {
        text.appendEvent(events[position]);
        if (!steps.goOn()) {
            return std::nullopt;
        }
    }
    return text.text();
}

void DelimitedExport::save() {
    const ExportFileTexts texts{
        .message = areOnlySelectedEventsExported(with_.settings) ? localized("Selected Events")
                                                                 : localized("All Events"),
        .nameFieldLabel = localized("Export as:"),
        .suggestedName = periodName(with_.settings, with_.fields.formats(), formatFileNameDate)};
    auto run = with_.progress.begin(localized("Preparing the events…"));
    std::optional<QString> built = text(shownProgress(*run));
    run.reset();
    if (built) {
        saveThroughPanel(with_.savePanel, with_.settings, format_.file, texts, *std::move(built));
    }
}

} // namespace quillet
