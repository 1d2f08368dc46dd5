#include "backends/programs/DesktopPrograms.h"

#include "ScratchDesktop.h"
#include "support/WaitUntil.h"

#include <QDesktopServices>
#include <QUrl>

namespace quillet {

/// What the desktop is asked to open.
class OpenedUrls : public QObject {
    Q_OBJECT

public:
    OpenedUrls() {
        for (const char* scheme : schemes) {
            QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "open");
        }
    }
    ~OpenedUrls() override {
        for (const char* scheme : schemes) {
            QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
        }
    }
    Q_DISABLE_COPY_MOVE(OpenedUrls)

    Q_INVOKABLE void open(const QUrl& url) { opened << url.toString(QUrl::FullyEncoded); }

    QStringList opened;

private:
    static constexpr std::array schemes{"http", "https", "file", "mailto", "appstream"};
};

namespace {

class DesktopWorkspaceTest : public testing::Test {
protected:
    OpenedUrls urls;
    test::ScratchDesktop desktop;
    DesktopWorkspace workspace;
};

class ProcessTaskLauncherTest : public testing::Test {
protected:
    /// A program that writes down each of its arguments, with a stop behind it.
    QString recorder() const {
        desktop.addExecutable("recorder");
        const QString list = desktop.path("arguments");
        desktop.write("bin/recorder", "#!/bin/sh\nfor a in \"$@\"; do printf '%s|' \"$a\"; done >" +
                                          list + ".new\nmv " + list + ".new " + list + "\n");
        return desktop.path("bin/recorder");
    }
    QString arguments() const {
        EXPECT_TRUE(test::waitUntil([this] { return QFile::exists(desktop.path("arguments")); }));
        QFile file(desktop.path("arguments"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    test::ScratchDesktop desktop;
    QStringList calls;
    ProcessTaskLauncher launcher{[this] {
                                     calls << "prepare";
                                     EXPECT_FALSE(QFile::exists(desktop.path("arguments")));
                                 },
                                 [this] { calls << "before the end"; }};
};

} // namespace

TEST_F(DesktopWorkspaceTest, OpensWebAddressesAndNoOthers) {
    EXPECT_TRUE(workspace.openWebAddress("http://quillet.example/desktop"));
    EXPECT_TRUE(workspace.openWebAddress("https://quillet.example/a%20b"));
    for (const char* address :
         {"", "quillet.example", "file:///etc/passwd", "mailto:a@quillet.example",
          "appstream:org.quillet.Quillet", "javascript:alert(1)", "http://quillet.example/a b"}) {
        EXPECT_FALSE(workspace.openWebAddress(address)) << address;
    }
    EXPECT_EQ(urls.opened,
              (QStringList{"http://quillet.example/desktop", "https://quillet.example/a%20b"}));
}

TEST_F(DesktopWorkspaceTest, OpensFilesThatAreThereWhateverTheirNames) {
    const QString name = desktop.path("Release Notes 100% #1?.rtf");
    EXPECT_FALSE(workspace.openFile(name));
    EXPECT_FALSE(workspace.openFile({}));
    EXPECT_FALSE(workspace.openFile(desktop.path("bin"))) << "a folder";
    EXPECT_TRUE(urls.opened.isEmpty());
    desktop.write("Release Notes 100% #1?.rtf", "{}");
    EXPECT_TRUE(workspace.openFile(name));
    ASSERT_EQ(urls.opened.size(), 1);
    EXPECT_EQ(QUrl(urls.opened.front()).toLocalFile(), name);
}

TEST_F(ProcessTaskLauncherTest, StartsAProgramOnceWhatItReadsIsOnDisk) {
    ASSERT_TRUE(launcher.launch(recorder(), {"4711"}));
    EXPECT_EQ(calls, QStringList{"prepare"});
    EXPECT_EQ(arguments(), QStringLiteral("4711|"));
}

TEST_F(ProcessTaskLauncherTest, ArgumentsAreDataAndNoShellReadsThem) {
    const QString hostile = "$(touch " + desktop.path("touched") + ") `id` \"; exit 'x' \\ * %u\n";
    ASSERT_TRUE(launcher.launch(recorder(), {hostile, "", "two words"}));
    EXPECT_EQ(arguments(), hostile + "||two words|");
    EXPECT_FALSE(QFile::exists(desktop.path("touched")));
}

TEST_F(ProcessTaskLauncherTest, SaysWhatCannotBeStarted) {
    const auto result = launcher.launch(desktop.path("bin/missing"), {});
    ASSERT_FALSE(result);
    EXPECT_TRUE(result.error().contains(desktop.path("bin/missing")));
}

TEST_F(ProcessTaskLauncherTest, TellsOfTheEndBeforeItEndsTheProgram) {
    bool hasEnded = false;
    const auto quitting =
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, [&hasEnded] { hasEnded = true; });
    launcher.terminate();
    EXPECT_EQ(calls, QStringList{"before the end"});
    EXPECT_FALSE(hasEnded) << "the action that asked for it is still running";
    QCoreApplication::exec();
    EXPECT_TRUE(hasEnded);
    QObject::disconnect(quitting);
}

TEST_F(ProcessTaskLauncherTest, KnowsItself) {
    EXPECT_EQ(launcher.processIdentifier(), QCoreApplication::applicationPid());
    EXPECT_TRUE(QFileInfo(launcher.executablePath()).isExecutable());
}

} // namespace quillet

#include "DesktopProgramsTest.moc"
