#pragma once

#include "platform/Event.h"
#include "platform/ListController.h"
#include "platform/LocaleFormats.h"
#include "platform/Observation.h"
#include "platform/SettingsStore.h"

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

namespace quillet {

/// A text in which parts are bold.
struct StyledText {
    /// Bold and Regular are 12 points high; Plain parts have no font of their own.
    enum class Style { Plain, Bold, Regular };
    struct Part {
        QString text;
        Style style = Style::Plain;

        friend bool operator==(const Part&, const Part&) = default;
    };

    std::vector<Part> parts;
    /// Whether it is shown in the desktop's text colour.
    bool hasTextColor = false;
};

/// The notes of all shown events as one text, each under a heading.
class EventNotesViewController : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        ListController<Event>& eventsArrayController;
        const LocaleFormats& formats;
    };

    explicit EventNotesViewController(const Collaborators& collaborators);

    void awakeFromNib();
    [[nodiscard]] StyledText notes() const;
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
    [[nodiscard]] bool isOn(const char* key) const;
    /// Nothing where no item is to be written; a calendar's empty title is an item.
    [[nodiscard]] std::optional<QString> heading(const Event& event) const;

    Collaborators with_;
    ListController<Event>::Content content_;
    QString filterName_;
    std::vector<Observation> observations_;
};

} // namespace quillet
