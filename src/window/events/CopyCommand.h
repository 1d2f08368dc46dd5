#pragma once

namespace quillet {

class EventTableView;

/// The standard copy command: copies from the widget that has the focus where that can be copied
/// from, else the selected rows of the table.
void copyWhatHasTheFocus(EventTableView& table);

} // namespace quillet
