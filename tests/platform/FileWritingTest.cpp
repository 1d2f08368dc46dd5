#include "platform/FileWriting.h"

#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet {

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(FileWritingTest, Utf8HasNoByteOrderMark) {
    EXPECT_EQ(encodedText(QString::fromUtf8("a\u00e4\U0001F600"), TextEncoding::Utf8),
              QByteArray("a\xC3\xA4\xF0\x9F\x98\x80"));
    EXPECT_EQ(encodedText(QString(), TextEncoding::Utf8), QByteArray());
}

TEST(FileWritingTest, Utf16IsLittleEndianWithAByteOrderMark) {
    EXPECT_EQ(encodedText(QString::fromUtf8("a\u00e4"), TextEncoding::Utf16),
              QByteArray("\xFF\xFE\x61\x00\xE4\x00", 6));
}

TEST(FileWritingTest, WritesExactlyTheBytes) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("out.csv");
    ASSERT_TRUE(writeAtomically(path, "first and longer"));
    ASSERT_TRUE(writeAtomically(path, "second"));
    EXPECT_EQ(contents(path), QByteArray("second"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST(FileWritingTest, AFailureSaysWhyAndLeavesNothing) {
    const QTemporaryDir folder;
    const auto result = writeAtomically(folder.filePath("missing/out.csv"), "text");
    ASSERT_FALSE(result);
    EXPECT_FALSE(result.error().isEmpty());
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(FileWritingTest, AFullDiskLeavesTheOldFileAndNothingElse) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("out.csv");
    ASSERT_TRUE(writeAtomically(path, "old"));
    for (const qsizetype size : {5'000, 5'000'000}) {
        const test::FullDisk disk(4096);
        const auto result = writeAtomically(path, QByteArray(size, 'x'));
        ASSERT_FALSE(result) << size;
        EXPECT_FALSE(result.error().isEmpty());
    }
    EXPECT_EQ(contents(path), QByteArray("old"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

} // namespace quillet
