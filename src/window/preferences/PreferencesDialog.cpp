#include "window/preferences/PreferencesDialog.h"

#include "texts/Localized.h"
#include "window/preferences/PreferencesColumnsPage.h"
#include "window/preferences/PreferencesCsvPage.h"
#include "window/preferences/PreferencesGeneralPage.h"
#include "window/preferences/PreferencesRemindersPage.h"
#include "window/preferences/PreferencesTextPage.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

namespace quillet {

PreferencesDialog::PreferencesDialog(const PreferencesCollaborators& collaborators, QWidget* parent)
    : QDialog(parent)
    , pages_(new QTabWidget(this)) {
    SettingsStore& settings = collaborators.settings;
    addPane(PreferencesPane::General, localizable("General"),
            new PreferencesGeneralPage(settings, collaborators.formats, this));
    addPane(PreferencesPane::Columns, localizable("Columns"),
            new PreferencesColumnsPage(settings, collaborators.resetAllColumnTitles, this));
    addPane(PreferencesPane::Text, localizable("Text"),
            new PreferencesTextPage(settings, collaborators.openTXTSettingsSheet, this));
    addPane(PreferencesPane::Csv, localizable("CSV/TSV"), new PreferencesCsvPage(settings, this));
    addPane(PreferencesPane::Reminders, localizable("Reminders"),
            new PreferencesRemindersPage(settings, this));
    pages_->setObjectName(QStringLiteral("preferencesPanes"));
    pages_->setAccessibleName(localized("Preferences"));
    connect(pages_, &QTabWidget::currentChanged, this,
            [this](int tab) { Q_EMIT paneChosen(static_cast<PreferencesPane>(tab)); });
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    // The Return key ends the typing in a field, not the window.
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QDialog::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    layout->addWidget(buttons);
}

PreferencesDialog::~PreferencesDialog() {
    // Tabs that go one by one at the end are not chosen by anybody.
    pages_->disconnect(this);
}

void PreferencesDialog::addPane(PreferencesPane pane, const char* title, QWidget* page) {
    page->setObjectName(PreferencesWindowController::toolbarItemIdentifier(pane));
    pages_->insertTab(static_cast<int>(pane), page, localized(title));
}

void PreferencesDialog::showPane(PreferencesPane pane) {
    const QSignalBlocker blocker(pages_);
    pages_->setCurrentIndex(static_cast<int>(pane));
}

} // namespace quillet
