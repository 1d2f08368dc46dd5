#include "ScratchDesktop.h"

#include "support/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <gio/gio.h>
#include <gtest/gtest.h>

namespace quillet::test {

namespace {

QString root() {
    static const QTemporaryDir folder;
    return folder.path();
}

/// Whether the desktop has told of a change.
bool isNoticed = false;

void followDesktop() {
    static GAppInfoMonitor* const monitor = g_app_info_monitor_get();
    static const gulong handler =
        g_signal_connect(monitor, "changed", G_CALLBACK(+[] { isNoticed = true; }), nullptr);
    EXPECT_NE(handler, 0U);
}

QStringList recordsIn(const QString& folder) {
    return QDir(folder).entryList({"*.done"}, QDir::Files, QDir::Name);
}

} // namespace

void ScratchDesktop::setEnvironment() {
    const auto set = [](const char* name, const QString& folders) {
        qputenv(name, QFile::encodeName(folders));
    };
    set("XDG_CONFIG_HOME", root() + "/config");
    set("XDG_CONFIG_DIRS", root() + "/system-config");
    set("XDG_DATA_HOME", root() + "/data");
    set("XDG_DATA_DIRS", root() + "/system");
    set("XDG_CURRENT_DESKTOP", "GNOME");
    set("PATH", root() + "/bin:" + qEnvironmentVariable("PATH"));
}

ScratchDesktop::ScratchDesktop() {
    for (const char* name : {"config", "data/applications", "system/applications"}) {
        QDir folder(path(name));
        if (folder.exists() && !folder.isEmpty()) {
            change([&folder] {
                for (const QFileInfo& left :
                     folder.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
                    left.isDir() ? QDir(left.filePath()).removeRecursively()
                                 : QFile::remove(left.filePath());
                }
            });
        }
        QDir().mkpath(folder.path());
    }
    for (const QFileInfo& left :
         QDir(root()).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        if (!QStringList{"config", "data", "system"}.contains(left.fileName())) {
            left.isDir() ? QDir(left.filePath()).removeRecursively()
                         : QFile::remove(left.filePath());
        }
    }
    QDir().mkpath(path("bin"));
    QDir().mkpath(path("started"));
}

QString ScratchDesktop::path(const QString& name) const {
    return root() + u'/' + name;
}

void ScratchDesktop::change(const std::function<void()>& what) {
    followDesktop();
    // Whoever has asked for the programs once hears of the next change.
    g_list_free_full(g_app_info_get_all(), g_object_unref);
    isNoticed = false;
    what();
    EXPECT_TRUE(waitUntil([] {
        g_main_context_iteration(nullptr, FALSE);
        return isNoticed;
    })) << "the desktop does not notice what is installed";
}

void ScratchDesktop::write(const QString& name, const QString& text) const {
    const auto save = [&] {
        QDir().mkpath(QFileInfo(path(name)).path());
        QSaveFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
        ASSERT_TRUE(file.commit());
    };
    if (name.contains("applications/") || name.startsWith("config/")) {
        change(save);
    } else {
        save();
    }
}

void ScratchDesktop::addExecutable(const QString& name) const {
    write("bin/" + name, "#!/bin/sh\nrecord=" + path("started/") +
                             "$(/bin/date +%s%N)\n"
                             "for text in \"$0\" \"$@\"; do printf '%s\\0' \"$text\"; done >"
                             "$record.new\n/bin/mv $record.new $record.done\n");
    QFile::setPermissions(path("bin/" + name), QFile::ReadOwner | QFile::ExeOwner);
}

void ScratchDesktop::install(const QString& id, const QString& exec, const QString& mimeTypes,
                             const QString& more) const {
    addExecutable(exec.section(u' ', 0, 0));
    write("system/applications/" + id, entryText(exec, mimeTypes, more));
}

QString ScratchDesktop::entryText(const QString& exec, const QString& mimeTypes,
                                  const QString& more) {
    return "[Desktop Entry]\nType=Application\nName=The Program\nExec=" + exec +
           "\nMimeType=" + mimeTypes + ";\n" + more + "\n";
}

QList<Started> ScratchDesktop::started(qsizetype count) const {
    const QString folder = path("started");
    EXPECT_TRUE(waitUntil([&] { return recordsIn(folder).size() >= count; }));
    QList<Started> all;
    for (const QString& record : recordsIn(folder)) {
        QFile file(folder + u'/' + record);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList texts = QString::fromUtf8(file.readAll()).split(QChar::Null);
        // Each has one behind it.
        texts.removeLast();
        const QString program = texts.takeFirst();
        all.append({program, texts});
    }
    EXPECT_EQ(all.size(), count);
    return all;
}

bool ScratchDesktop::hasStartedNothing() const {
    constexpr int momentMilliseconds = 200;
    return !waitUntil([this] { return !QDir(path("started")).isEmpty(); }, momentMilliseconds);
}

Applications ScratchDesktop::applications(TaskLauncher& launcher) {
    return {launcher, "org.example.This.desktop"};
}

} // namespace quillet::test
