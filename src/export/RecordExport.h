#pragma once

#include "eventdata/BillingSettings.h"
#include "export/RecordText.h"
#include "platform/ListController.h"
#include "platform/SavePanel.h"
#include "platform/TableColumn.h"

namespace quillet {

/// The objects that every export of the event table works with.
struct RecordExportCollaborators {
    SettingsStore& settings;
    ColumnTable& eventListTableView;
    ListController<Event>& eventsArrayController;
    BillingSettingsSource& billing;
    const LocaleFormats& formats;
    /// Gregorian, in the system time zone.
    const CalendarArithmetic& calendar;
    SavePanel& savePanel;
    /// The user's home folder.
    QString homeFolder;
};

/// What sets one kind of separated-text export apart from the others.
struct RecordExportKind {
    QString separator;
    /// The only one that the panel allows, without the dot.
    QString fileType;
    /// Logged when the file could not be written.
    QString failureMessage;
    enum class AfterWriting { EndModalSession, Nothing } afterWriting;
};

/// The columns, events and settings as they are now: the selected events when
/// `totalsTabViewSelection` is 1, else all that are listed.
[[nodiscard]] RecordSnapshot recordSnapshot(const RecordExportCollaborators& collaborators,
                                            const QString& separator);

/// Builds the text, then asks where to save and writes it, whole or not at all. A failed write is
/// only logged.
void saveRecords(const RecordExportCollaborators& collaborators, const RecordExportKind& kind);

} // namespace quillet
