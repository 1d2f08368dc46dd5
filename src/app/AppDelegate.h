#pragma once

#include "platform/SettingsStore.h"
#include "platform/SoftwareUpdater.h"
#include "platform/TaskLauncher.h"
#include "platform/Workspace.h"

namespace quillet {

/// What the program does as a whole: its first-run settings, its menu actions that concern no
/// pane, and restarting itself.
class AppDelegate {
public:
    struct Collaborators {
        SettingsStore& settings;
        Workspace& workspace;
        TaskLauncher& taskLauncher;
        SoftwareUpdater& updater;
        /// The release notes, rich text.
        QString releaseNotesPath;
    };

    explicit AppDelegate(Collaborators collaborators);

    /// Writes the first-run value of each setting that is absent; stored values stay as they are.
    void applicationDidFinishLaunching();
    /// Closing the main window ends the program.
    [[nodiscard]] static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }
    void accessGranted();
    void checkForUpdates();
    void openReleaseNotes();
    void openWebsite();
    /// Starts the program anew, with this process's identifier as its only argument, and ends this
    /// one.
    void relaunch();

private:
    Collaborators with_;
};

} // namespace quillet
