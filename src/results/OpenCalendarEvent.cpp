#include "results/OpenCalendarEvent.h"

#include "platform/Logging.h"
#include "platform/Settings.h"

#include <QStringList>

namespace quillet {

Script showEventScript(EventRequest request) {
    const QStringList lines{
        "tell application \"Calendar\"",
        "set vCalendar to (first calendar whose uid is \"" + request.calendarIdentifier + "\")",
        "tell vCalendar",
        "set vEventInfo to (first event whose uid is \"" + request.eventIdentifier + "\")",
        "activate",
        "switch view to day view",
        "show vEventInfo",
        "end tell",
        "end tell"};
    const QString indent(19, u' ');
    return {.source = indent + lines.join(u'\n' + indent), .request = std::move(request)};
}

OpenCalendarEvent::OpenCalendarEvent(const Collaborators& collaborators)
    : with_(collaborators) {}

void OpenCalendarEvent::awakeFromNib() {
    connect(&with_.eventsArrayController, &ListControllerNotices::selectedObjectsChanged, this,
            &OpenCalendarEvent::isOpenInCalendarEnabledChanged);
}

bool OpenCalendarEvent::isOpenInCalendarEnabled() const {
    return with_.eventsArrayController.selectedRows().size() < 2;
}

void OpenCalendarEvent::openEventInCalendar() {
    settings::isProgressIndicatorOn.write(with_.settings, true);
    if (with_.eventsArrayController.selectedRows().size() != 1) {
        return;
    }
    const Event event = with_.eventsArrayController.selectedObjects().front();
    const auto result = with_.scriptRunner.run(
        showEventScript({.calendarIdentifier = event.details->calendar->calendarIdentifier,
                         .eventIdentifier = event.details->eventIdentifier}));
    if (!result) {
        qCWarning(quilletLog).noquote() << "it was an error";
    }
    settings::isProgressIndicatorOn.write(with_.settings, false);
}

} // namespace quillet
