#include "window/preferences/PreferencesRemindersPage.h"

#include "texts/Localized.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace quillet {

namespace {

constexpr std::array<PreferencesSwitch, 9> csvSwitches{{
    {"isTodoCSVIncludeUID", localizable("Identifier"),
     localizable("The calendar's own identifier of the reminder")},
    {"isTodoCSVCalendar", localizable("Calendar"), nullptr},
    {"isTodoCSVTitle", localizable("Title"), nullptr},
    {"isTodoCSVCompleted", localizable("Completed"), localizable("Whether the reminder is done")},
    {"isTodoCSVCompletedDate", localizable("Completion date"), nullptr},
    {"isTodoCSVPriority", localizable("Priority"), nullptr},
    {"isTodoCSVDueDate", localizable("Due date"), nullptr},
    {"isTodoCSVURL", localizable("URL"), nullptr},
    {"isTodoCSVNotes", localizable("Notes"), nullptr},
}};

constexpr std::array<PreferencesSwitch, 9> textSwitches{{
    {"isTodoTXTIncludeCount", localizable("Number of reminders"), nullptr},
    {"isTodoTXTCalendar", localizable("Calendar"), nullptr},
    {"isTodoTXTTitle", localizable("Title"), nullptr},
    {"isTodoTXTCompleted", localizable("Completed"), localizable("Whether the reminder is done")},
    {"isTodoTXTCompletedDate", localizable("Completion date"), nullptr},
    {"isTodoTXTPriority", localizable("Priority"), nullptr},
    {"isTodoTXTDueDate", localizable("Due date"), nullptr},
    {"isTodoTXTURL", localizable("URL"), nullptr},
    {"isTodoTXTNotes", localizable("Notes"), nullptr},
}};

} // namespace

PreferencesRemindersPage::PreferencesRemindersPage(SettingsStore& settings, QWidget* parent)
    : PreferencesPage(settings, parent) {
    auto* layout = new QVBoxLayout(&body());
    layout->addWidget(makeNote(localized(
        "This version lists events only. What you choose here is kept for exports of reminders.")));
    auto* groups = new QHBoxLayout;
    groups->addWidget(makeGroup(localized("CSV/TSV"), csvSwitches, 1), 1);
    groups->addWidget(makeGroup(localized("Text"), textSwitches, 1), 1);
    layout->addLayout(groups);
    layout->addStretch(1);
}

} // namespace quillet
