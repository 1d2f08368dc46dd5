#include "app/PreferencesWindowController.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

#include <array>

namespace quillet {

namespace {

struct PaneName {
    const char* identifier;
    const char* title;
};

/// In the order of the panes.
constexpr std::array<PaneName, 5> paneNames{{
    {"general", localizable("General")},
    {"columns", localizable("Columns")},
    {"text", localizable("Text")},
    {"csv", localizable("CSV/TSV")},
    {"reminders", localizable("Reminders")},
}};

const PaneName& nameOf(PreferencesPane pane) {
    return paneNames.at(static_cast<std::size_t>(pane));
}

} // namespace

PreferencesWindowController::PreferencesWindowController(SettingsStore& settings)
    : settings_(settings) {}

PreferencesWindowController::~PreferencesWindowController() = default;

QString PreferencesWindowController::toolbarItemIdentifier(PreferencesPane pane) {
    return QString::fromLatin1(nameOf(pane).identifier);
}

void PreferencesWindowController::awakeFromNib() {
    settings::selectedPreferencesToolbarItem.reset(settings_);
    const qint64 stored = settings::selectedPreferencesToolbarItem.read(settings_);
    changePreferencesViewSubview(static_cast<quint64>(stored));
    const bool isPane = stored >= 0 && stored < std::ssize(paneNames);
    Q_EMIT toolbarItemSelected(toolbarItemIdentifier(isPane ? static_cast<PreferencesPane>(stored)
                                                            : PreferencesPane::General));
}

void PreferencesWindowController::toolbarItemClicked(PreferencesPane pane) {
    changePreferencesViewSubview(static_cast<quint64>(pane));
    settings::selectedPreferencesToolbarItem.write(settings_, static_cast<qint64>(pane));
}

void PreferencesWindowController::changePreferencesViewSubview(quint64 index) {
    if (isPaneShown_) {
        Q_EMIT paneRemoved(shownPane_);
    }
    if (index < paneNames.size()) {
        shownPane_ = static_cast<PreferencesPane>(index);
        isPaneShown_ = true;
        title_ = localized(nameOf(shownPane_).title);
        Q_EMIT titleChanged(title_);
    }
    if (isPaneShown_) {
        Q_EMIT paneInstalled(shownPane_);
    }
}

void PreferencesWindowController::showWindowWithTextPreferencesView() {
    showWindowWith(PreferencesPane::Text);
}

void PreferencesWindowController::showWindowWithColumnsPreferencesView() {
    showWindowWith(PreferencesPane::Columns);
}

void PreferencesWindowController::showWindowWith(PreferencesPane pane) {
    settings::selectedPreferencesToolbarItem.write(settings_, static_cast<qint64>(pane));
    Q_EMIT windowShown();
    changePreferencesViewSubview(static_cast<quint64>(pane));
    Q_EMIT toolbarItemSelected(toolbarItemIdentifier(pane));
}

} // namespace quillet
