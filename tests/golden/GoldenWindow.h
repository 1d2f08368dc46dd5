#pragma once

#include "backends/icsfolder/IcsFolderStore.h"
#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/EventItemTableView.h"
#include "export/ExportCSV.h"
#include "export/ExportTSV.h"
#include "export/ExportTxtViewController.h"
#include "golden/GoldenCase.h"
#include "results/EventNotesViewController.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QTemporaryDir>

namespace quillet::golden {

/// Everything below the window that gives out texts, over the calendars of the fixture, as one case
/// describes it.
class GoldenWindow {
public:
    explicit GoldenWindow(const GoldenCase& described);

    [[nodiscard]] QByteArray report() const;
    /// The bytes of the saved file.
    [[nodiscard]] QByteArray csv();
    [[nodiscard]] QByteArray tsv();
    [[nodiscard]] QByteArray notes() const;
    /// What the copy command puts on the pasteboard; nothing where it leaves that alone.
    [[nodiscard]] std::optional<QByteArray> copiedRows();

    /// The lines of the report's table and summary row.
    [[nodiscard]] QStringList tableLines() const;

private:
    void fillSettings();
    void fillTable();
    void fillCalendars();
    void fillEvents();
    [[nodiscard]] Instant instant(QDate day, int hour, int minute, int second) const;
    [[nodiscard]] QByteArray savedFile();

    const GoldenCase& case_;
    QTemporaryDir folder_;
    CalendarAccess access_;
    IcsFolderStore store_;
    IcuCalendarArithmetic calendar_;
    IcuLocaleFormats formats_;
    test::MemorySettings settings_;
    test::FakeTable table_;
    test::FakeSavePanel savePanel_;
    test::FakeProgress progress_;
    test::FakePasteboard pasteboard_;
    ListController<Event> events_{eventIdentityHash, isSameEvent};
    ListController<CalendarRecord> calendars_;
    BillingSettingsSource billing_{settings_, calendar_};
    EventFields fields_{billing_, formats_, calendar_, calendar_};
    ExportTxtViewController report_{{.settings = settings_,
                                     .eventItemTableView = table_,
                                     .eventsArrayController = events_,
                                     .calendarsArrayController = calendars_,
                                     .fields = fields_}};
    DelimitedExport::Collaborators delimited_{.settings = settings_,
                                              .eventListTableView = table_,
                                              .eventsArrayController = events_,
                                              .fields = fields_,
                                              .savePanel = savePanel_,
                                              .progress = progress_};
    ExportCSV csv_{delimited_};
    ExportTSV tsv_{delimited_};
    EventItemTableView rows_{{.eventsArrayController = events_,
                              .table = table_,
                              .fields = fields_,
                              .pasteboard = pasteboard_}};
    EventNotesViewController notes_{{.settings = settings_,
                                     .eventsArrayController = events_,
                                     .formats = formats_,
                                     .calendar = calendar_}};
};

} // namespace quillet::golden
