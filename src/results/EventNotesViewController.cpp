#include "results/EventNotesViewController.h"

#include "platform/Settings.h"

namespace quillet {

EventNotesViewController::EventNotesViewController(const Collaborators& collaborators)
    : with_(collaborators) {}

void EventNotesViewController::awakeFromNib() {
    connect(&with_.eventsArrayController, &ListControllerNotices::arrangedObjectsChanged, this,
            &EventNotesViewController::listChanged);
    for (const SettingKey* each : settings::ofEventNotes) {
        observations_.push_back(each->observe(with_.settings, [this] { refresh(); }));
    }
    for (const SettingKey* each : settings::ofEventNotes) {
        each->writeIfAbsent(with_.settings);
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
    if (settings::isNotesViewOn.read(with_.settings)) {
        Q_EMIT notesChanged();
        Q_EMIT notesCountChanged();
    }
}

EventNotesViewController::HeadingItems EventNotesViewController::headingItems() const {
    const SettingsStore& settings = with_.settings;
    return {.hasCalendar = settings::isEventNotesCalendar.read(settings),
            .hasDate = settings::isEventNotesDate.read(settings),
            .hasTitle = settings::isEventNotesTitle.read(settings),
            .hasLocation = settings::isEventNotesLocation.read(settings)};
}

std::optional<QString> EventNotesViewController::heading(const Event& event,
                                                         const HeadingItems& wanted,
                                                         EventTexts& texts) {
    const EventDetails& details = *event.details;
    std::optional<QString> heading;
    const auto append = [&heading](const QString& item) {
        heading = heading ? *heading + QStringLiteral(" - ") + item : item;
    };
    if (wanted.hasCalendar) {
        append(details.calendar->title);
    }
    if (wanted.hasDate) {
        texts.setEvent(event);
        append(texts.startDate());
    }
    if (wanted.hasTitle && !details.title.isEmpty()) {
        append(details.title);
    }
    if (wanted.hasLocation && !details.location.isEmpty()) {
        append(details.location);
    }
    return heading;
}

std::vector<Event> EventNotesViewController::eventsWithNotes() const {
    const auto& list = with_.eventsArrayController;
    std::vector<Event> events;
    for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
        if (!list.arranged(row).details->notes.isNull()) {
            events.push_back(list.arranged(row));
        }
    }
    return events;
}

StyledText EventNotesViewController::notes() const {
    return *notes({});
}

std::optional<StyledText> EventNotesViewController::notes(const ExportProgress& progress) const {
    using enum StyledText::Style;
    const QString lineFeed = QStringLiteral("\n");
    const QString behindNotes = QStringLiteral("\n\n\n");
    StyledText digest;
    digest.parts.push_back({lineFeed, Plain});
    if (with_.eventsArrayController.arrangedCount() == 0) {
        return digest;
    }
    const HeadingItems wanted = headingItems();
    // Whoever is shown the progress may change the list meanwhile.
    const std::vector<Event> events = eventsWithNotes();
    const BillingSettings noBilling;
    EventTexts texts(noBilling, with_.formats, with_.calendar);
    ExportSteps steps(progress, events.size());
    for (const Event& event : events) {
        if (const auto items = heading(event, wanted, texts)) {
            digest.parts.push_back({*items, Bold});
            digest.parts.push_back({lineFeed, Plain});
        }
        digest.parts.push_back({event.details->notes, Regular});
        digest.parts.push_back({behindNotes, Plain});
        if (!steps.goOn()) {
            return std::nullopt;
        }
    }
    digest.hasTextColor = true;
    return digest;
}

std::optional<QString> EventNotesViewController::shownText(const ExportProgress& progress) const {
    if (notesTextView_ && settings::isNotesViewOn.read(with_.settings)) {
        if (auto shown = notesTextView_()) {
            return shown;
        }
    }
    const std::optional<StyledText> now = notes(progress);
    return now ? std::optional(now->text()) : std::nullopt;
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
