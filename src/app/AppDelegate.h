#pragma once

#include "platform/InterfaceItems.h"
#include "platform/SettingsStore.h"
#include "platform/SoftwareUpdater.h"
#include "platform/TaskLauncher.h"
#include "platform/Workspace.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

namespace quillet {

/// One setting that start-up creates.
struct StartUpSetting {
    QString key;
    QVariant defaultValue;
};

/// In the order in which they are written.
[[nodiscard]] const std::vector<StartUpSetting>& startUpSettings();

/// The program's start and end, and the menu actions that belong to no part of the window.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    struct ExportToolbarItems {
        ToolbarItem& exportTxtToolbarItem;
        ToolbarItem& exportCsvToolbarItem;
        ToolbarItem& exportTsvToolbarItem;
        ToolbarItem& exportMailToolbarItem;
        ToolbarItem& exportNotesToolbarItem;
    };

    struct Collaborators {
        SettingsStore& settings;
        /// Makes the updater at its first call and answers that one from then on.
        std::function<SoftwareUpdater&()> sharedUpdater;
        Workspace& workspace;
        TaskLauncher& taskLauncher;
        ExportToolbarItems toolbarItems;
        /// Where the program's own files lie, "Release Notes.rtf" among them.
        QString resourcesFolder;
    };

    explicit AppDelegate(const Collaborators& collaborators);

    /// Creates the shared updater and enables the export toolbar items.
    void awakeFromNib();
    /// Writes startUpSettings() where the keys are absent.
    void applicationDidFinishLaunching();
    /// Always true: closing the main window quits.
    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() const;
    void applicationWillTerminate();
    /// Notes that the calendars may be read.
    void accessGranted();

    void checkForUpdates();
    void openReleaseNotes();
    void openWebsite();
    /// Starts the program anew, with this process's identifier as its argument, and ends this one.
    /// When the new one cannot be started this one goes on.
    void relaunch();

    /// Held weakly: null once the window is gone.
    [[nodiscard]] QObject* window() const { return window_; }
    void setWindow(QObject* window) { window_ = window; }

private:
    Collaborators with_;
    QPointer<QObject> window_;
};

} // namespace quillet
