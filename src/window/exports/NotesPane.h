#pragma once

#include "platform/SettingsStore.h"
#include "results/EventNotesViewController.h"
#include "window/exports/ExportPane.h"

#include <QTimer>

#include <optional>

namespace quillet {

class StyledTextView;

/// The notes of the listed events under their headings, with the switches of what a heading tells.
class NotesPane : public ExportPane {
    Q_OBJECT

public:
    NotesPane(EventNotesViewController& notes, SettingsStore& settings, Actions actions,
              QWidget* parent = nullptr);
    ~NotesPane() override;
    Q_DISABLE_COPY_MOVE(NotesPane)

    /// The notes that stand here, or are about to: a long text is filled in bit by bit. Nothing
    /// while newer ones are awaited.
    [[nodiscard]] std::optional<QString> shownText() const;

private:
    NotesPane(StyledTextView* view, EventNotesViewController& notes, SettingsStore& settings,
              Actions actions, QWidget* parent);
    void refresh();

    EventNotesViewController& notes_;
    StyledTextView* view_;
    QString text_;
    /// Several changes at once are shown once.
    QTimer refreshing_;
};

} // namespace quillet
