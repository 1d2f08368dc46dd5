#include "backends/settingsfile/SettingsFile.h"
#include "backends/settingsfile/SettingsJson.h"
#include "support/ExpectedLog.h"
#include "support/FullDisk.h"
#include "support/WaitUntil.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include <sys/stat.h>

namespace quillet {

namespace {

class VanishedSettingsTest : public testing::Test {
protected:
    void write(const QByteArray& text) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    [[nodiscard]] QByteArray contents() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    QString path = folder.filePath("quillet.json");
};

} // namespace

TEST_F(VanishedSettingsTest, WhatVanishedFromTheDiskIsWrittenAgainWhole) {
    const auto takeAway = std::to_array<std::pair<const char*, std::function<void()>>>(
        {{"the file", [this] { QFile::remove(path); }},
         {"its content", [this] { write(""); }},
         {"one key of it", [this] { write("{\"other\": 7}"); }},
         {"the folder", [this] { QDir(folder.filePath("settings")).removeRecursively(); }}});
    path = folder.filePath("settings/quillet.json");
    for (const auto& [what, gone] : takeAway) {
        SettingsFile settings(path);
        settings.setObject("other", 1);
        settings.setObject("rate", QVariant::fromValue(Decimal::fromString(u"100.50")));
        settings.flush();
        const QVariantMap whole = settingsFromText(contents()).value();
        gone();
        settings.setObject("rate", whole.value("rate"));
        settings.flush();
        const QVariantMap now = settingsFromText(contents()).value();
        EXPECT_EQ(now.keys(), whole.keys()) << what;
        EXPECT_EQ(now.value("rate"), whole.value("rate")) << what;
    }
}

TEST_F(VanishedSettingsTest, AFileThatIsGoneComesBackThoughNothingIsChanged) {
    {
        SettingsFile settings(path);
        settings.setObject("rate", 100);
        settings.flush();
        const QByteArray before = contents();
        QFile::remove(path);
        EXPECT_TRUE(test::waitUntil([&] { return contents() == before; }));
        QFile::remove(path);
    }
    EXPECT_FALSE(contents().isEmpty()) << "at the end, too";
}

TEST_F(VanishedSettingsTest, WhatAnotherCopyWroteIntoTheNewFileWins) {
    SettingsFile settings(path);
    settings.setObject("both", "mine");
    settings.setObject("onlyMine", "mine");
    settings.flush();
    write("{\"both\": \"theirs\", \"onlyTheirs\": \"theirs\"}");
    settings.setObject("changed", "mine");
    settings.flush();
    EXPECT_EQ(settingsFromText(contents()).value(), (QVariantMap{{"both", "theirs"},
                                                                 {"changed", "mine"},
                                                                 {"onlyMine", "mine"},
                                                                 {"onlyTheirs", "theirs"}}));
}

TEST_F(VanishedSettingsTest, ANumberThatNoFileCanHoldIsNotWrittenForEver) {
    SettingsFile settings(path);
    settings.setObject("nothing", std::numeric_limits<double>::quiet_NaN());
    settings.flush();
    bool isWritten = false;
    const QFileSystemWatcher watcher({folder.path()});
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, [&] { isWritten = true; });
    settings.setObject("something", 1);
    settings.flush();
    EXPECT_TRUE(test::waitUntil([&] { return isWritten; }));
    QThread::msleep(100);
    QCoreApplication::processEvents();
    isWritten = false;
    EXPECT_FALSE(test::waitUntil([&] { return isWritten; }, 1000));
}

TEST_F(VanishedSettingsTest, APipeADeviceOrAHugeFileIsMovedAsideAtOnce) {
    const auto places = std::to_array<std::pair<const char*, std::function<void()>>>(
        {{"pipe", [this] { ::mkfifo(QFile::encodeName(path).constData(), 0600); }},
         {"device", [this] { QFile::link("/dev/zero", path); }},
         {"huge file", [this] {
              write("{");
              ASSERT_TRUE(QFile::resize(path, 300'000'000));
          }}});
    int kept = 0;
    for (const auto& [what, put] : places) {
        QFile::remove(path);
        put();
        QElapsedTimer timer;
        timer.start();
        SettingsFile settings(path);
        EXPECT_TRUE(settings.startMessage()) << what;
        settings.setObject("key", 1);
        settings.flush();
        EXPECT_TRUE(settingsFromText(contents()).has_value()) << what;
        QFile::remove(path);
        put();
        settings.setObject("key", 2);
        {
            kept += 2;
            const test::ExpectedLog log("settings file spoilt by another program kept as " + path +
                                        ".broken-" + QString::number(kept));
            settings.flush();
        }
        EXPECT_TRUE(settingsFromText(contents()).has_value()) << what << " during the run";
        EXPECT_LT(timer.elapsed(), 1000) << what;
    }
}

TEST_F(VanishedSettingsTest, TellsWhetherAllIsOnTheDisk) {
    SettingsFile settings(path);
    settings.setObject("key", 1);
    EXPECT_FALSE(settings.isWritten());
    settings.flush();
    EXPECT_TRUE(settings.isWritten());
    settings.setObject("text", QString(8000, u'x'));
    {
        const test::FullDisk disk(4096);
        settings.flush();
    }
    EXPECT_FALSE(settings.isWritten());
}

} // namespace quillet
