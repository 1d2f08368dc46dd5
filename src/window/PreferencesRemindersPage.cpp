#include "window/PreferencesRemindersPage.h"

#include "platform/Localized.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace quillet {

namespace {

constexpr std::array<PreferencesSwitch, 9> csvSwitches{{
    {"isTodoCSVIncludeUID", "Identifier", "The calendar's own identifier of the reminder"},
    {"isTodoCSVCalendar", "Calendar", nullptr},
    {"isTodoCSVTitle", "Title", nullptr},
    {"isTodoCSVCompleted", "Completed", "Whether the reminder is done"},
    {"isTodoCSVCompletedDate", "Completion date", nullptr},
    {"isTodoCSVPriority", "Priority", nullptr},
    {"isTodoCSVDueDate", "Due date", nullptr},
    {"isTodoCSVURL", "URL", nullptr},
    {"isTodoCSVNotes", "Notes", nullptr},
}};

constexpr std::array<PreferencesSwitch, 9> textSwitches{{
    {"isTodoTXTIncludeCount", "Number of reminders", nullptr},
    {"isTodoTXTCalendar", "Calendar", nullptr},
    {"isTodoTXTTitle", "Title", nullptr},
    {"isTodoTXTCompleted", "Completed", "Whether the reminder is done"},
    {"isTodoTXTCompletedDate", "Completion date", nullptr},
    {"isTodoTXTPriority", "Priority", nullptr},
    {"isTodoTXTDueDate", "Due date", nullptr},
    {"isTodoTXTURL", "URL", nullptr},
    {"isTodoTXTNotes", "Notes", nullptr},
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
    layout->addStretch();
}

} // namespace quillet
