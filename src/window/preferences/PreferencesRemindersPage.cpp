#include "window/preferences/PreferencesRemindersPage.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace quillet {

namespace {

constexpr std::array<PreferencesSwitch, 9> csvSwitches{{
    {&settings::isTodoCSVIncludeUID, localizable("Identifier"),
     localizable("The calendar's own identifier of the reminder")},
    {&settings::isTodoCSVCalendar, localizable("Calendar"), nullptr},
    {&settings::isTodoCSVTitle, localizable("Title"), nullptr},
    {&settings::isTodoCSVCompleted, localizable("Completed"),
     localizable("Whether the reminder is done")},
    {&settings::isTodoCSVCompletedDate, localizable("Completion date"), nullptr},
    {&settings::isTodoCSVPriority, localizable("Priority"), nullptr},
    {&settings::isTodoCSVDueDate, localizable("Due date"), nullptr},
    {&settings::isTodoCSVURL, localizable("URL"), nullptr},
    {&settings::isTodoCSVNotes, localizable("Notes"), nullptr},
}};

constexpr std::array<PreferencesSwitch, 9> textSwitches{{
    {&settings::isTodoTXTIncludeCount, localizable("Number of reminders"), nullptr},
    {&settings::isTodoTXTCalendar, localizable("Calendar"), nullptr},
    {&settings::isTodoTXTTitle, localizable("Title"), nullptr},
    {&settings::isTodoTXTCompleted, localizable("Completed"),
     localizable("Whether the reminder is done")},
    {&settings::isTodoTXTCompletedDate, localizable("Completion date"), nullptr},
    {&settings::isTodoTXTPriority, localizable("Priority"), nullptr},
    {&settings::isTodoTXTDueDate, localizable("Due date"), nullptr},
    {&settings::isTodoTXTURL, localizable("URL"), nullptr},
    {&settings::isTodoTXTNotes, localizable("Notes"), nullptr},
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
