#include "backends/settingsfile/DatesZone.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class DatesZoneTest : public testing::Test {
protected:
    void write(const QByteArray& content) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("dates-zone"));
    DatesZone memory{path};
};

} // namespace

TEST_F(DatesZoneTest, KnowsNothingAtFirst) {
    EXPECT_FALSE(memory.kept().isValid());
}

TEST_F(DatesZoneTest, KeepsAZoneFromOneRunToTheNext) {
    memory.keep(QTimeZone("Europe/Berlin"));
    EXPECT_EQ(DatesZone(path).kept(), QTimeZone("Europe/Berlin"));
    memory.keep(QTimeZone("Asia/Tokyo"));
    EXPECT_EQ(DatesZone(path).kept(), QTimeZone("Asia/Tokyo"));
}

TEST_F(DatesZoneTest, MakesTheFolderThatIsMissing) {
    const QString deeper = folder.filePath(QStringLiteral("state/quillet/dates-zone"));
    DatesZone(deeper).keep(QTimeZone("Europe/Berlin"));
    EXPECT_EQ(DatesZone(deeper).kept(), QTimeZone("Europe/Berlin"));
}

TEST_F(DatesZoneTest, KeepsNothingOfAZoneWithoutAName) {
    memory.keep(QTimeZone("Europe/Berlin"));
    memory.keep(QTimeZone());
    EXPECT_FALSE(memory.kept().isValid());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(DatesZoneTest, BelievesNoFileThatNamesNoZone) {
    for (const QByteArray& content :
         {QByteArray(), QByteArray("\n"), QByteArray("Moon/Tycho\n"), QByteArray("/etc/passwd"),
          QByteArray("../../../etc/localtime"), QByteArray(100'000, 'x'), QByteArray(8, '\0')}) {
        write(content);
        EXPECT_FALSE(memory.kept().isValid()) << content.left(40).toStdString();
    }
}

} // namespace quillet
