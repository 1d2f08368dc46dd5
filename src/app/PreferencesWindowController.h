#pragma once

#include "platform/SettingsStore.h"

#include <QString>

namespace quillet {

/// The panes of the preferences window, in toolbar order.
enum class PreferencesPane { General, Columns, Text, Csv, Reminders };

/// The preferences window on screen.
class PreferencesWindow {
public:
    virtual ~PreferencesWindow() = default;
    /// Brings the window up.
    virtual void showWindow() = 0;
    virtual void setTitle(const QString& title) = 0;
    virtual void removePane(PreferencesPane pane) = 0;
    /// Adds the pane; it fills the window's container and grows and shrinks with it.
    virtual void installPane(PreferencesPane pane) = 0;
    virtual void setSelectedToolbarItem(const QString& identifier) = 0;
};

/// Switches the panes of the preferences window and remembers the one chosen last.
class PreferencesWindowController {
public:
    PreferencesWindowController(SettingsStore& settings, PreferencesWindow& window);

    /// The window always starts on the General pane.
    void awakeFromNib();
    /// A click on the pane's toolbar item.
    void toolbarItemClicked(PreferencesPane pane);
    /// Shows the pane of an index; one above 4 leaves pane and title as they are.
    void changePreferencesViewSubview(quint64 index);
    void showWindowWithTextPreferencesView();
    void showWindowWithColumnsPreferencesView();

    /// "general", "columns", "text", "csv" or "reminders".
    [[nodiscard]] static QString toolbarItemIdentifier(PreferencesPane pane);

private:
    void showWindowWith(PreferencesPane pane);

    SettingsStore& settings_;
    PreferencesWindow& window_;
    bool isPaneShown_ = false;
    PreferencesPane shownPane_ = PreferencesPane::General;
};

} // namespace quillet
