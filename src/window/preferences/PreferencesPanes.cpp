#include "window/preferences/PreferencesPanes.h"

#include <QScreen>

#include <utility>

namespace quillet {

PreferencesPanes::PreferencesPanes(PreferencesCollaborators collaborators, QWidget& parent)
    : with_(std::move(collaborators))
    , parent_(parent)
    , controller_(with_.settings, *this) {}

PreferencesPanes::~PreferencesPanes() = default;

void PreferencesPanes::showWindow() {
    if (dialog_ == nullptr) {
        dialog_ = std::make_unique<PreferencesDialog>(with_, &parent_);
        dialog_->setWindowTitle(title_);
        dialog_->showPane(pane_);
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

void PreferencesPanes::setTitle(const QString& title) {
    title_ = title;
    if (dialog_ != nullptr) {
        dialog_->setWindowTitle(title);
    }
}

void PreferencesPanes::removePane(PreferencesPane /*pane*/) {}

void PreferencesPanes::installPane(PreferencesPane pane) {
    pane_ = pane;
    if (dialog_ != nullptr) {
        dialog_->showPane(pane);
    }
}

void PreferencesPanes::setSelectedToolbarItem(const QString& /*identifier*/) {}

} // namespace quillet
