#pragma once

#include "window/preferences/PreferencesPage.h"

namespace quillet {

/// What exports of reminders hold.
class PreferencesRemindersPage : public PreferencesPage {
    Q_OBJECT

public:
    PreferencesRemindersPage(SettingsStore& settings, QWidget* parent);
};

} // namespace quillet
