#include "app/StartupSettings.h"

#include "platform/Settings.h"

namespace quillet {

void writeStartupSettings(SettingsStore& settings) {
    for (const SettingKey* setting : settings::ofLaunch) {
        setting->writeIfAbsent(settings);
    }
}

} // namespace quillet
