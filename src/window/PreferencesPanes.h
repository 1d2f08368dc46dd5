#pragma once

#include "app/PreferencesWindowController.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace quillet {

class PreferencesDialog;

/// The preferences window, which is built when it is first shown.
class PreferencesPanes final : public PreferencesWindow {
public:
    PreferencesPanes(SettingsStore& settings, std::function<void()> resetAllColumnTitles,
                     QWidget& parent);

    ~PreferencesPanes() override;
    PreferencesPanes(const PreferencesPanes&) = delete;
    PreferencesPanes& operator=(const PreferencesPanes&) = delete;

    [[nodiscard]] PreferencesWindowController& controller() { return controller_; }

    void showWindow() override;
    void setTitle(const QString& title) override;
    /// A page of tabs gives way to the next by itself.
    void removePane(PreferencesPane pane) override;
    void installPane(PreferencesPane pane) override;
    /// The tab of a pane is its toolbar item: showing the pane selects it.
    void setSelectedToolbarItem(const QString& identifier) override;

private:
    SettingsStore& settings_;
    std::function<void()> resetAllColumnTitles_;
    QWidget& parent_;
    std::unique_ptr<PreferencesDialog> dialog_;
    QString title_;
    PreferencesPane pane_ = PreferencesPane::General;
    PreferencesWindowController controller_;
};

} // namespace quillet
