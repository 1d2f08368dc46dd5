#include "eventtable/EventItemTableView.h"

#include "eventtable/RowsText.h"

namespace quillet {

void EventItemTableView::copyDataFromTableView() {
    const EventList selected = with_.eventsArrayController.selectedObjects();
    if (selected.empty()) {
        return;
    }
    with_.pasteboard.clear();
    with_.pasteboard.writeText(rowsText(selected, with_.table, with_.fields));
}

} // namespace quillet
