#pragma once

#include "eventdata/EventFields.h"
#include "eventtable/ColumnTable.h"
#include "platform/ListController.h"
#include "platform/Pasteboard.h"

namespace quillet {

/// What the event table can do with its rows.
class EventItemTableView {
public:
    struct Collaborators {
        ListController<Event>& eventsArrayController;
        const ColumnTable& table;
        const EventFields& fields;
        Pasteboard& pasteboard;
    };

    explicit EventItemTableView(const Collaborators& collaborators)
        : with_(collaborators) {}

    /// The standard copy command.
    void copy() { copyDataFromTableView(); }
    /// The table's own action.
    void copyFromEventItemTableView() { copyDataFromTableView(); }
    /// Replaces what is on the pasteboard with the selected events as text, in arranged order; see
    /// rowsText(). Without a selection the pasteboard is left alone.
    void copyDataFromTableView();

private:
    Collaborators with_;
};

} // namespace quillet
