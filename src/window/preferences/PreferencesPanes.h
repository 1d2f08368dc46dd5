#pragma once

#include "app/PreferencesWindowController.h"
#include "window/preferences/PreferencesDialog.h"

#include <QWidget>

#include <memory>

namespace quillet {

/// The preferences window, which is built when it is first shown.
class PreferencesPanes : public QObject {
    Q_OBJECT

public:
    PreferencesPanes(PreferencesWindowController& controller,
                     PreferencesCollaborators collaborators, QWidget& parent);
    ~PreferencesPanes() override;
    Q_DISABLE_COPY_MOVE(PreferencesPanes)

    void showWindow();

private:
    PreferencesWindowController& controller_;
    PreferencesCollaborators with_;
    QWidget& parent_;
    std::unique_ptr<PreferencesDialog> dialog_;
};

} // namespace quillet
