#pragma once

#include "platform/Event.h"
#include "platform/ListController.h"
#include "platform/ScriptRunner.h"
#include "platform/SettingsStore.h"

#include <QObject>

namespace quillet {

/// Shows the selected event in the calendar program.
class OpenCalendarEvent : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        ListController<Event>& eventsArrayController;
        ScriptRunner& scriptRunner;
    };

    explicit OpenCalendarEvent(const Collaborators& collaborators);

    /// Begins to follow the selection.
    void awakeFromNib();
    /// Whether fewer than two events are selected. This and its signal belong to what the class is;
    /// the window needs neither, since it asks for exactly one.
    [[nodiscard]] bool isOpenInCalendarEnabled() const;
    /// The table's double action: runs the script for the one selected event, with the busy flag
    /// set while it runs; a script without a result is only logged. With none or several selected
    /// nothing is run and the flag stays set, so whoever calls this for a user makes sure of one.
    void openEventInCalendar();

Q_SIGNALS:
    /// After every change of the selection, whatever the value.
    void isOpenInCalendarEnabledChanged();

private:
    Collaborators with_;
};

/// The script that shows an event; both identifiers stand in its text as they are.
[[nodiscard]] Script showEventScript(EventRequest request);

} // namespace quillet
