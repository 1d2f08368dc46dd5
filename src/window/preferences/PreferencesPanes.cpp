#include "window/preferences/PreferencesPanes.h"

#include <QScreen>

#include <utility>

namespace quillet {

PreferencesPanes::PreferencesPanes(PreferencesWindowController& controller,
                                   PreferencesCollaborators collaborators, QWidget& parent)
    : controller_(controller)
    , with_(std::move(collaborators))
    , parent_(parent) {
    connect(&controller_, &PreferencesWindowController::windowShown, this,
            &PreferencesPanes::showWindow);
    connect(&controller_, &PreferencesWindowController::titleChanged, this,
            [this](const QString& title) {
                if (dialog_ != nullptr) {
                    dialog_->setWindowTitle(title);
                }
            });
    // Showing a pane takes the one before away and selects its tab, which is its toolbar item.
    connect(&controller_, &PreferencesWindowController::paneInstalled, this,
            [this](PreferencesPane pane) {
                if (dialog_ != nullptr) {
                    dialog_->showPane(pane);
                }
            });
}

PreferencesPanes::~PreferencesPanes() = default;

void PreferencesPanes::showWindow() {
    if (dialog_ == nullptr) {
        dialog_ = std::make_unique<PreferencesDialog>(with_, &parent_);
        dialog_->setWindowTitle(controller_.title());
        dialog_->showPane(controller_.shownPane());
        // All that a pane holds, where the screen has room: dialogs take two thirds by themselves.
        constexpr double mostOfTheScreen = 0.9;
        const QSize available = parent_.screen()->availableSize() * mostOfTheScreen;
        dialog_->resize(dialog_->sizeHint().boundedTo(available));
        QObject::connect(dialog_.get(), &PreferencesDialog::paneChosen, dialog_.get(),
                         [this](PreferencesPane pane) { controller_.toolbarItemClicked(pane); });
    }
    dialog_->show();
    dialog_->activateWindow();
}

} // namespace quillet
