#pragma once

#include "eventtable/EventTexts.h"
#include "platform/CalendarArithmetic.h"
#include "platform/Event.h"
#include "platform/ExportProgress.h"
#include "platform/ListController.h"
#include "platform/LocaleFormats.h"
#include "platform/Observation.h"
#include "platform/SettingsStore.h"
#include "platform/StyledText.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace quillet {

/// The notes of all shown events as one text, each under a heading.
class EventNotesViewController : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        ListController<Event>& eventsArrayController;
        const LocaleFormats& formats;
        /// The Gregorian one in the zone of the formats.
        const CalendarArithmetic& calendar;
    };

    explicit EventNotesViewController(const Collaborators& collaborators);

    void awakeFromNib();
    [[nodiscard]] StyledText notes() const;
    /// Nothing once the progress has been told to cancel.
    [[nodiscard]] std::optional<StyledText> notes(const ExportProgress& progress) const;
    /// The pane that shows the notes: what it shows, or nothing while it waits for newer ones.
    void setNotesTextView(std::function<std::optional<QString>()> shownText) {
        notesTextView_ = std::move(shownText);
    }
    /// What is saved and mailed: the notes exactly as their pane shows them, which does not follow
    /// the order of the list; without a pane, those of now. Nothing once it was cancelled.
    [[nodiscard]] std::optional<QString> shownText(const ExportProgress& progress) const;
    /// Of the shown events with notes; an empty text counts as notes.
    [[nodiscard]] qint64 notesCount() const;

Q_SIGNALS:
    /// Sent only while the notes pane is open.
    void notesChanged();
    void notesCountChanged();

private:
    /// Another order alone is no reason to build the text anew.
    void listChanged();
    void refresh();
    struct HeadingItems {
        bool hasCalendar;
        bool hasDate;
        bool hasTitle;
        bool hasLocation;
    };
    [[nodiscard]] HeadingItems headingItems() const;
    /// Nothing where no item is to be written; a calendar's empty title is an item.
    [[nodiscard]] static std::optional<QString>
    heading(const Event& event, const HeadingItems& wanted, EventTexts& texts);
    /// In the order of the list.
    [[nodiscard]] std::vector<Event> eventsWithNotes() const;

    Collaborators with_;
    ListController<Event>::Content content_;
    QString filterName_;
    std::function<std::optional<QString>()> notesTextView_;
    std::vector<Observation> observations_;
};

} // namespace quillet
