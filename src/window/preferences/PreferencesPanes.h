#pragma once

#include "app/PreferencesWindowController.h"
#include "window/preferences/PreferencesDialog.h"

#include <QWidget>

#include <memory>

namespace quillet {

/// The preferences window, which is built when it is first shown.
class PreferencesPanes final : public PreferencesWindow {
public:
    PreferencesPanes(PreferencesCollaborators collaborators, QWidget& parent);
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
    PreferencesCollaborators with_;
    QWidget& parent_;
    std::unique_ptr<PreferencesDialog> dialog_;
    QString title_;
    PreferencesPane pane_ = PreferencesPane::General;
    PreferencesWindowController controller_;
};

} // namespace quillet
