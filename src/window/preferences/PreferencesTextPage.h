#pragma once

#include "window/preferences/PreferencesPage.h"

#include <functional>

namespace quillet {

/// What the text report holds.
class PreferencesTextPage : public PreferencesPage {
    Q_OBJECT

public:
    PreferencesTextPage(SettingsStore& settings, std::function<void()> openTXTSettingsSheet,
                        QWidget* parent);

private:
    /// A label and a field of a few lines for one of the report's free texts.
    [[nodiscard]] QWidget* makeFreeText(const QString& label, const QString& toolTip,
                                        const Setting<QString>& setting);
};

} // namespace quillet
