#pragma once

#include "backends/programs/Applications.h"
#include "support/Fakes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet::test {

/// The folders of a desktop that holds just the programs that the test installs.
class ScratchDesktop {
public:
    ScratchDesktop() {
        for (const char* folder : {"bin", "config", "data/applications", "system/applications"}) {
            QDir(root_.path()).mkpath(folder);
        }
    }

    [[nodiscard]] QString path(const QString& name) const { return root_.filePath(name); }
    void write(const QString& name, const QString& text) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }
    void addExecutable(const QString& name) const {
        write("bin/" + name, "#!/bin/false\n");
        QFile::setPermissions(path("bin/" + name), QFile::ReadOwner | QFile::ExeOwner);
    }
    /// An entry of the system, and the program that its command names first.
    void install(const QString& id, const QString& exec, const QString& mimeTypes,
                 const QString& more = {}) const {
        addExecutable(exec.section(u' ', 0, 0));
        write("system/applications/" + id, entryText(exec, mimeTypes, more));
    }
    static QString entryText(const QString& exec, const QString& mimeTypes,
                             const QString& more = {}) {
        return "[Desktop Entry]\nType=Application\nName=The Program\nExec=" + exec +
               "\nMimeType=" + mimeTypes + ";\n" + more + "\n";
    }
    [[nodiscard]] DesktopFolders folders() const {
        return {.configuration = {path("config")},
                .data = {path("data"), path("system")},
                .desktopNames = {"gnome"},
                .executables = {path("bin")}};
    }
    [[nodiscard]] Applications applications(TaskLauncher& launcher) const {
        return {DesktopEntries(folders()), launcher, "org.example.This.desktop"};
    }

private:
    QTemporaryDir root_;
};

} // namespace quillet::test
