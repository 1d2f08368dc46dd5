#pragma once

#include "app/PreferencesWindowController.h"
#include "platform/LocaleFormats.h"
#include "platform/SettingsStore.h"

#include <QDialog>

#include <functional>

class QTabWidget;

namespace quillet {

/// What the panes of the preferences work on.
struct PreferencesCollaborators {
    SettingsStore& settings;
    const LocaleFormats& formats;
    std::function<void()> resetAllColumnTitles;
    /// Shows the presets of the text report.
    std::function<void()> openTXTSettingsSheet;
};

/// The settings that have no place in the main window. Every control takes effect at once.
class PreferencesDialog : public QDialog {
    Q_OBJECT

public:
    explicit PreferencesDialog(const PreferencesCollaborators& collaborators,
                               QWidget* parent = nullptr);
    ~PreferencesDialog() override;
    Q_DISABLE_COPY_MOVE(PreferencesDialog)

    /// Brings a pane to the front.
    void showPane(PreferencesPane pane);

Q_SIGNALS:
    /// The user chose the tab of a pane.
    void paneChosen(quillet::PreferencesPane pane);

private:
    void addPane(PreferencesPane pane, const char* title, QWidget* page);

    QTabWidget* pages_;
};

} // namespace quillet
