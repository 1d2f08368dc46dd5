#pragma once

#include "eventdata/EventFields.h"
#include "eventtable/ColumnTable.h"
#include "platform/Event.h"

#include <QString>

namespace quillet {

/// Events as tab-separated text: a line an event, each ended by a line feed, without a header.
///
/// A field for each visible column in display order. A tab stands before every field but one of the
/// leftmost column: where that column is hidden, every line begins with a tab. A column of an
/// unknown identifier is an empty field. A missing value is "(null)". In calendar, title, duration,
/// notes and location every "%" is doubled; tabs and line feeds in them stay as they are.
[[nodiscard]] QString rowsText(const EventList& events, const ColumnTable& table,
                               const EventFields& fields);

} // namespace quillet
