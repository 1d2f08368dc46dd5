#pragma once

#include "window/preferences/PreferencesPage.h"

namespace quillet {

/// What files of comma- and tab-separated values hold.
class PreferencesCsvPage : public PreferencesPage {
    Q_OBJECT

public:
    PreferencesCsvPage(SettingsStore& settings, QWidget* parent);
};

} // namespace quillet
