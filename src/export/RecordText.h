#pragma once

#include "eventdata/BillingSettings.h"
#include "platform/CalendarArithmetic.h"
#include "platform/Event.h"
#include "platform/LocaleFormats.h"
#include "platform/SettingsStore.h"

#include <QString>

#include <vector>

namespace quillet {

/// The switches of the separated-text exports; each serves CSV and TSV alike.
struct RecordSwitches {
    bool isHeader = false;
    bool isUIDIncluded = false;
    bool isTitleQuoted = false;
    bool areNotesQuoted = false;
    bool isLocationQuoted = false;
    bool isCalendarQuoted = false;
    bool areReturnsRemoved = false;
};

[[nodiscard]] RecordSwitches recordSwitches(const SettingsStore& settings);

struct RecordColumn {
    QString identifier;
    /// The text in the column's header cell.
    QString headerTitle;
};

/// Everything that the text of one export depends on, beside the locale.
struct RecordSnapshot {
    /// Visible columns only, in display order.
    std::vector<RecordColumn> columns;
    /// In the order in which they are written.
    EventList events;
    RecordSwitches switches;
    BillingSettings billing;
    QString separator;
};

/// ";" where the decimal separator is ",", else ",": a number never holds the separator.
[[nodiscard]] QString fieldSeparator(const LocaleFormats& formats);

/// One record for the header, where it is on, and one for each event; each ends with a line feed.
/// Only the four free-text fields are escaped, and only where they are quoted.
///
/// Without any field a record is nothing but its line feed, and takes the place of the one before:
/// the whole text is then a single line feed.
[[nodiscard]] QString recordsText(const RecordSnapshot& snapshot, const LocaleFormats& formats,
                                  const CalendarArithmetic& calendar);

/// Every double quote doubled.
[[nodiscard]] QString escapeQuotesInString(QString text);

} // namespace quillet
