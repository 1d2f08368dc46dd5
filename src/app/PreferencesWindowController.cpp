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

PreferencesWindowController::PreferencesWindowController(SettingsStore& settings,
                                                         PreferencesWindow& window)
    : settings_(settings)
    , window_(window) {}

QString PreferencesWindowController::toolbarItemIdentifier(PreferencesPane pane) {
    return QString::fromLatin1(nameOf(pane).identifier);
}

void PreferencesWindowController::awakeFromNib() {
    settings::selectedPreferencesToolbarItem.reset(settings_);
    const qint64 stored = settings::selectedPreferencesToolbarItem.read(settings_);
    changePreferencesViewSubview(static_cast<quint64>(stored));
    const bool isPane = stored >= 0 && stored < std::ssize(paneNames);
    window_.setSelectedToolbarItem(toolbarItemIdentifier(
        isPane ? static_cast<PreferencesPane>(stored) : PreferencesPane::General));
}

void PreferencesWindowController::toolbarItemClicked(PreferencesPane pane) {
    changePreferencesViewSubview(static_cast<quint64>(pane));
    settings::selectedPreferencesToolbarItem.write(settings_, static_cast<qint64>(pane));
}

void PreferencesWindowController::changePreferencesViewSubview(quint64 index) {
    if (isPaneShown_) {
        window_.removePane(shownPane_);
    }
    if (index < paneNames.size()) {
        shownPane_ = static_cast<PreferencesPane>(index);
        isPaneShown_ = true;
        window_.setTitle(localized(nameOf(shownPane_).title));
    }
    if (isPaneShown_) {
        window_.installPane(shownPane_);
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
    window_.showWindow();
    changePreferencesViewSubview(static_cast<quint64>(pane));
    window_.setSelectedToolbarItem(toolbarItemIdentifier(pane));
}

} // namespace quillet
