#include "platform/FileReading.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quillet {

namespace {

using Kind = FileRefusal::Kind;

class FileReadingTest : public testing::Test {
protected:
    [[nodiscard]] QString file(const QByteArray& content) const {
        QFile written(path);
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(content);
        return path;
    }
    static Kind refusal(const QString& path, qint64 mostBytes = 1000) {
        const auto contents = contentsOfFile(path, mostBytes);
        EXPECT_FALSE(contents);
        EXPECT_FALSE(contents.error().reason.isEmpty());
        return contents.error().kind;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QString::fromUtf8("ä file"));
};

} // namespace

TEST_F(FileReadingTest, AFileIsReadWholeUpToTheLimit) {
    EXPECT_EQ(contentsOfFile(file("four"), 4).value(), QByteArray("four"));
    EXPECT_EQ(contentsOfFile(file(""), 4).value(), QByteArray());
    EXPECT_EQ(refusal(file("fiveX"), 4), Kind::TooLarge);
}

TEST_F(FileReadingTest, WhatIsNotThereIsMissing) {
    EXPECT_EQ(refusal(path), Kind::Missing);
    EXPECT_EQ(refusal(file("text") + "/below"), Kind::Missing);
    ASSERT_TRUE(QFile::link("/nowhere/at/all", folder.filePath("link")));
    EXPECT_EQ(refusal(folder.filePath("link")), Kind::Missing);
}

TEST_F(FileReadingTest, FoldersPipesAndDevicesAreRefusedWithoutWaiting) {
    EXPECT_EQ(refusal(folder.path()), Kind::NotAFile);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(refusal(path), Kind::NotAFile);
    EXPECT_EQ(refusal("/dev/zero"), Kind::NotAFile);
}

} // namespace quillet
