#include "results/EventNotesViewController.h"

namespace quillet {

namespace {

struct Switch {
    const char* key;
    bool isOnByDefault;
};

constexpr Switch switches[] = {{"isEventNotesCalendar", true},
                               {"isEventNotesDate", true},
                               {"isEventNotesLocation", true},
                               {"isEventNotesTitle", true},
                               {"isNotesViewOn", false}};

} // namespace

EventNotesViewController::EventNotesViewController(const Collaborators& collaborators)
    : with_(collaborators) {}

void EventNotesViewController::awakeFromNib() {
    connect(&with_.eventsArrayController, &ListControllerNotices::arrangedObjectsChanged, this,
            &EventNotesViewController::listChanged);
    for (const Switch& each : switches) {
        observations_.push_back(
            with_.settings.observe(QString::fromLatin1(each.key), [this] { refresh(); }));
    }
    for (const Switch& each : switches) {
        setIfAbsent(with_.settings, QString::fromLatin1(each.key), each.isOnByDefault);
    }
}

void EventNotesViewController::listChanged() {
    const auto& list = with_.eventsArrayController;
    const bool isOnlyReordered = list.content() == content_ && list.filterName() == filterName_;
    content_ = list.content();
    filterName_ = list.filterName();
    if (!isOnlyReordered) {
        refresh();
    }
}

void EventNotesViewController::refresh() {
    if (isOn("isNotesViewOn")) {
        Q_EMIT notesChanged();
        Q_EMIT notesCountChanged();
    }
}

bool EventNotesViewController::isOn(const char* key) const {
    return boolForKey(with_.settings, QString::fromLatin1(key));
}

EventNotesViewController::HeadingItems EventNotesViewController::headingItems() const {
    return {.hasCalendar = isOn("isEventNotesCalendar"),
            .hasDate = isOn("isEventNotesDate"),
            .hasTitle = isOn("isEventNotesTitle"),
            .hasLocation = isOn("isEventNotesLocation")};
}

std::optional<QString> EventNotesViewController::heading(const Event& event,
                                                         const HeadingItems& wanted) const {
    const EventDetails& details = *event.details;
    std::optional<QString> heading;
    const auto append = [&heading](const QString& item) {
        heading = heading ? *heading + QStringLiteral(" - ") + item : item;
    };
    if (wanted.hasCalendar) {
        append(details.calendar->title);
    }
    if (wanted.hasDate) {
        append(with_.formats.shortDate(event.startDate));
    }
    if (wanted.hasTitle && !details.title.isEmpty()) {
        append(details.title);
    }
    if (wanted.hasLocation && !details.location.isEmpty()) {
        append(details.location);
    }
    return heading;
}

StyledText EventNotesViewController::notes() const {
    using enum StyledText::Style;
    const QString lineFeed = QStringLiteral("\n");
    const QString behindNotes = QStringLiteral("\n\n\n");
    StyledText digest;
    digest.parts.push_back({lineFeed, Plain});
    const auto& list = with_.eventsArrayController;
    if (list.arrangedCount() == 0) {
        return digest;
    }
    const HeadingItems wanted = headingItems();
    for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
        const Event& event = list.arranged(row);
        if (event.details->notes.isNull()) {
            continue;
        }
        if (const auto items = heading(event, wanted)) {
            digest.parts.push_back({*items, Bold});
            digest.parts.push_back({lineFeed, Plain});
        }
        digest.parts.push_back({event.details->notes, Regular});
        digest.parts.push_back({behindNotes, Plain});
    }
    digest.hasTextColor = true;
    return digest;
}

QString EventNotesViewController::shownText() const {
    if (notesTextView_ && isOn("isNotesViewOn")) {
        if (auto shown = notesTextView_()) {
            return *std::move(shown);
        }
    }
    return notes().text();
}

qint64 EventNotesViewController::notesCount() const {
    const auto& list = with_.eventsArrayController;
    qint64 count = 0;
    for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
        count += list.arranged(row).details->notes.isNull() ? 0 : 1;
    }
    return count;
}

} // namespace quillet
