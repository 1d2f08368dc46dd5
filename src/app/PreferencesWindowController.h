#pragma once

#include "platform/SettingsStore.h"

#include <QObject>
#include <QString>

namespace quillet {

/// The panes of the preferences window, in toolbar order.
enum class PreferencesPane { General, Columns, Text, Csv, Reminders };

/// Switches the panes of the preferences window and remembers the one chosen last.
class PreferencesWindowController : public QObject {
    Q_OBJECT

public:
    explicit PreferencesWindowController(SettingsStore& settings);
    ~PreferencesWindowController() override;
    Q_DISABLE_COPY_MOVE(PreferencesWindowController)

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
    /// The pane that fills the window's container, and what titles the window.
    [[nodiscard]] PreferencesPane shownPane() const { return shownPane_; }
    [[nodiscard]] QString title() const { return title_; }

Q_SIGNALS:
    /// The window is to come up.
    void windowShown();
    void titleChanged(const QString& title);
    void paneRemoved(quillet::PreferencesPane pane);
    void paneInstalled(quillet::PreferencesPane pane);
    void toolbarItemSelected(const QString& identifier);

private:
    void showWindowWith(PreferencesPane pane);

    SettingsStore& settings_;
    QString title_;
    bool isPaneShown_ = false;
    PreferencesPane shownPane_ = PreferencesPane::General;
};

} // namespace quillet
