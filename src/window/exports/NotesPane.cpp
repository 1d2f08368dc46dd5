#include "window/exports/NotesPane.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/exports/StyledTextView.h"
#include "window/preferences/SettingsBinding.h"

#include <QCheckBox>

namespace quillet {

NotesPane::NotesPane(EventNotesViewController& notes, SettingsStore& settings, Actions actions,
                     QWidget* parent)
    : NotesPane(new StyledTextView, notes, settings, std::move(actions), parent) {}

NotesPane::NotesPane(StyledTextView* view, EventNotesViewController& notes, SettingsStore& settings,
                     Actions actions, QWidget* parent)
    : ExportPane(localized("Event Notes"), *view, std::move(actions), parent)
    , notes_(notes)
    , view_(view) {
    struct Switch {
        const Setting<bool>* setting;
        const char* text;
        const char* toolTip;
    };
    for (const Switch& item : {Switch{&settings::isEventNotesCalendar, localizable("Calendar"),
                                      localizable("Tell the calendar in each heading")},
                               Switch{&settings::isEventNotesDate, localizable("Date"),
                                      localizable("Tell the date in each heading")},
                               Switch{&settings::isEventNotesTitle, localizable("Title"),
                                      localizable("Tell the title in each heading")},
                               Switch{&settings::isEventNotesLocation, localizable("Location"),
                                      localizable("Tell the location in each heading")}}) {
        auto* box = new QCheckBox(localized(item.text), this);
        box->setToolTip(localized(item.toolTip));
        bindCheckBox(*box, settings, *item.setting);
        addSwitch(*box);
    }
    refreshing_.setSingleShot(true);
    refreshing_.setInterval(0);
    connect(&refreshing_, &QTimer::timeout, this, &NotesPane::refresh);
    for (const auto change :
         {&EventNotesViewController::notesChanged, &EventNotesViewController::notesCountChanged}) {
        connect(&notes_, change, &refreshing_, qOverload<>(&QTimer::start));
    }
}

NotesPane::~NotesPane() = default;

void NotesPane::refresh() {
    setRemark(localized("Events with notes: %1").arg(notes_.notesCount()));
    StyledText notes = notes_.notes();
    text_ = notes.text();
    view_->show(std::move(notes));
}

std::optional<QString> NotesPane::shownText() const {
    return refreshing_.isActive() ? std::nullopt : std::optional(text_);
}

} // namespace quillet
