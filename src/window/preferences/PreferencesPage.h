#pragma once

#include "platform/Setting.h"

#include <QScrollArea>

#include <span>

class QCheckBox;
class QLabel;

namespace quillet {

/// What a switch of the preferences shows, in English, and the setting that it stands for.
struct PreferencesSwitch {
    const Setting<bool>* setting;
    const char* label;
    /// Null where the label says it all.
    const char* toolTip = nullptr;
};

/// A pane of the preferences window. It scrolls where the window is smaller than its controls.
class PreferencesPage : public QScrollArea {
    Q_OBJECT

public:
    [[nodiscard]] QSize sizeHint() const override;

protected:
    explicit PreferencesPage(SettingsStore& settings, QWidget* parent);

    [[nodiscard]] SettingsStore& settings() const { return settings_; }
    /// The parent of the controls.
    [[nodiscard]] QWidget& body() const { return *widget(); }
    [[nodiscard]] QCheckBox* makeCheckBox(const PreferencesSwitch& each);
    /// A titled box of switches in columns, filled from the top and then from the left.
    [[nodiscard]] QWidget* makeGroup(const QString& title,
                                     std::span<const PreferencesSwitch> switches, int columns);
    /// A label of a few lines that explains.
    [[nodiscard]] QLabel* makeNote(const QString& text);

private:
    SettingsStore& settings_;
};

/// A label's text as assistive programs tell it, without mnemonic and colon.
[[nodiscard]] QString spokenLabel(QString label);

} // namespace quillet
