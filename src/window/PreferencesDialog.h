#pragma once

#include "app/PreferencesWindowController.h"
#include "platform/SettingsStore.h"
#include "results/PreferencesColumnsViewController.h"

#include <QDialog>

class QTabWidget;

namespace quillet {

/// The settings that have no place in the main window. Every control takes effect at once.
class PreferencesDialog : public QDialog {
    Q_OBJECT

public:
    PreferencesDialog(SettingsStore& settings, std::function<void()> resetAllColumnTitles,
                      QWidget* parent = nullptr);
    ~PreferencesDialog() override;
    Q_DISABLE_COPY_MOVE(PreferencesDialog)

    /// Brings a pane to the front; nothing for one that this window does not have.
    void showPane(PreferencesPane pane);

Q_SIGNALS:
    /// The user chose the tab of a pane.
    void paneChosen(quillet::PreferencesPane pane);

private:
    [[nodiscard]] QWidget* makeGeneralPage();
    [[nodiscard]] QWidget* makeColumnsPage(std::function<void()> resetAllColumnTitles);
    [[nodiscard]] QWidget* makeCsvPage();
    QWidget* makeCheckBox(const QString& text, const char* key);

    SettingsStore& settings_;
    PreferencesColumnsViewController timeColumns_;
    QTabWidget* pages_;
};

} // namespace quillet
