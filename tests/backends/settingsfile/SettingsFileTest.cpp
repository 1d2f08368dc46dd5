#include "backends/settingsfile/SettingsFile.h"

#include "backends/settingsfile/SettingsJson.h"
#include "support/ExpectedLog.h"
#include "support/FullDisk.h"
#include "support/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <future>

namespace quillet {

namespace {

class SettingsFileTest : public testing::Test {
protected:
    void write(const QByteArray& text) const {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    [[nodiscard]] QByteArray contents(const QString& suffix = {}) const {
        QFile file(path + suffix);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    QString path = folder.filePath("quillet.json");
};

} // namespace

TEST_F(SettingsFileTest, EveryKindOfValueSurvivesARestart) {
    const Instant date(std::chrono::milliseconds(1'709'251'200'000));
    const QVariantMap values{
        {"bool", true},
        {"integer", QVariant::fromValue<qint64>(9'007'199'254'740'993)},
        {"double", 0.1},
        {"text", QString::fromUtf8("a, \"b\"\n@c \\ ä %20 \U0001F600")},
        {"emptyText", QString::fromLatin1("")},
        {"date", QVariant::fromValue(date)},
        {"exactDate", QVariant::fromValue(date + std::chrono::milliseconds(7))},
        {"decimal", QVariant::fromValue(Decimal::fromString(u"100.50"))},
        {"list", QVariantList{QVariantMap{{"rate", QVariant::fromValue(Decimal::fromInteger(7))},
                                          {"isSelected", false}}}},
    };
    {
        SettingsFile settings(path);
        for (auto value = values.begin(); value != values.end(); ++value) {
            settings.setObject(value.key(), value.value());
        }
    }
    const SettingsFile settings(path);
    EXPECT_FALSE(settings.startMessage());
    EXPECT_EQ(settings.keys(), values.keys());
    for (auto value = values.begin(); value != values.end(); ++value) {
        EXPECT_EQ(settings.object(value.key()), value.value()) << value.key().toStdString();
    }
    EXPECT_EQ(settings.object("bool").typeId(), QMetaType::Bool);
    EXPECT_FALSE(settings.object("emptyText").toString().isNull());
}

TEST_F(SettingsFileTest, TheFileIsReadableAndSorted) {
    SettingsFile settings(path);
    settings.setObject("b", QVariant::fromValue(Instant(std::chrono::seconds(1'709'251'200))));
    settings.setObject("a", QVariant::fromValue(Decimal::fromString(u"100.5")));
    settings.flush();
    EXPECT_EQ(contents(), QByteArray("{\n"
                                     "    \"a\": {\n"
                                     "        \"$decimal\": \"100.5\"\n"
                                     "    },\n"
                                     "    \"b\": {\n"
                                     "        \"$date\": \"2024-03-01T00:00:00Z\"\n"
                                     "    }\n"
                                     "}\n"));
}

TEST_F(SettingsFileTest, ObserversReadTheNewValueAndAreToldOfEqualWritesToo) {
    SettingsFile settings(path);
    QStringList seen;
    const Observation first =
        settings.observe("key", [&] { seen << "1:" + settings.object("key").toString(); });
    const Observation second =
        settings.observe("key", [&] { seen << "2:" + settings.object("key").toString(); });
    settings.setObject("key", "a");
    settings.setObject("key", "a");
    settings.setObject("other", "b");
    settings.remove("key");
    EXPECT_EQ(seen, (QStringList{"1:a", "2:a", "1:a", "2:a", "1:", "2:"}));
    EXPECT_FALSE(settings.object("key").isValid());
}

TEST_F(SettingsFileTest, WhatAnotherCopyWroteIsKept) {
    SettingsFile settings(path);
    settings.setObject("mine", 1);
    settings.flush();
    {
        SettingsFile other(path);
        other.setObject("theirs", 2);
    }
    settings.setObject("mine", 3);
    settings.flush();
    EXPECT_EQ(settingsFromText(contents()).value(),
              (QVariantMap{{"mine", QVariant::fromValue<qint64>(3)},
                           {"theirs", QVariant::fromValue<qint64>(2)}}));
}

TEST_F(SettingsFileTest, AnArrayThatTwoCopiesWroteHoldsWhatBothAdded) {
    SettingsFile settings(path);
    settings.setObject("groups", QVariantList{"All"});
    settings.flush();
    SettingsFile other(path);
    settings.setObject("groups", QVariantList{"All", "mine"});
    other.setObject("groups", QVariantList{"All", "theirs"});
    other.flush();
    settings.flush();
    const QVariant both = QVariantList{"All", "theirs", "mine"};
    EXPECT_EQ(settingsFromText(contents()).value().value("groups"), both);
    EXPECT_EQ(settings.object("groups"), both);
    settings.setObject("groups", QVariantList{"All", "theirs"});
    settings.flush();
    EXPECT_EQ(settingsFromText(contents()).value().value("groups"),
              QVariant(QVariantList{"All", "theirs"}))
        << "what was merged is the base of the next merging";
}

TEST_F(SettingsFileTest, AnArrayFromOutsideIsTakenInAndObserversAreTold) {
    SettingsFile settings(path);
    settings.setObject("groups", QVariantList{"All"});
    settings.setObject("index", 0);
    settings.flush();
    QVariantList seen;
    const Observation groups =
        settings.observe("groups", [&] { seen.append(settings.object("groups")); });
    const Observation index = settings.observe("index", [&] { seen.append("index"); });
    {
        SettingsFile other(path);
        other.setObject("groups", QVariantList{"All", "theirs"});
        other.setObject("index", 1);
    }
    const QVariant theirs = QVariantList{"All", "theirs"};
    EXPECT_TRUE(test::waitUntil([&] { return settings.object("groups") == theirs; }));
    EXPECT_EQ(seen, QVariantList{theirs}) << "told once, of the array alone";
    EXPECT_EQ(settings.object("index"), QVariant(0)) << "the state of this window";
    settings.setObject("unrelated", true);
    settings.flush();
    EXPECT_EQ(settingsFromText(contents()).value().value("index").toInt(), 1);
}

TEST_F(SettingsFileTest, AFileEditedInPlaceIsTakenIn) {
    SettingsFile settings(path);
    settings.setObject("groups", QVariantList{"All"});
    settings.flush();
    write(R"({"groups": ["All", "typed"]})");
    EXPECT_TRUE(test::waitUntil(
        [&] { return settings.object("groups") == QVariant(QVariantList{"All", "typed"}); }));
    write(R"({"groups": ["All", )");
    write(R"({"groups": ["again"]})");
    EXPECT_TRUE(test::waitUntil(
        [&] { return settings.object("groups") == QVariant(QVariantList{"again"}); }));
}

TEST_F(SettingsFileTest, AnArrayWrittenAsItWasTakesNothingFromTheOtherCopy) {
    SettingsFile settings(path);
    settings.setObject("groups", QVariantList{"All"});
    settings.flush();
    SettingsFile other(path);
    other.setObject("groups", QVariantList{"All", "theirs"});
    other.flush();
    settings.setObject("groups", QVariantList{"All"});
    settings.flush();
    EXPECT_EQ(settingsFromText(contents()).value().value("groups"),
              QVariant(QVariantList{"All", "theirs"}));
}

TEST_F(SettingsFileTest, AMalformedFileIsKeptBesideAndNamed) {
    write("{ \"allDayHours\": 8,");
    {
        SettingsFile settings(path);
        EXPECT_TRUE(settings.keys().isEmpty());
        ASSERT_TRUE(settings.startMessage());
        EXPECT_TRUE(settings.startMessage()->contains(path + ".broken-1"));
        settings.setObject("allDayHours", 24);
    }
    EXPECT_EQ(contents(".broken-1"), QByteArray("{ \"allDayHours\": 8,"));
    EXPECT_EQ(settingsFromText(contents()).value().value("allDayHours").toInt(), 24);
    write("[1]");
    const SettingsFile again(path);
    EXPECT_EQ(contents(".broken-2"), QByteArray("[1]"));
}

TEST_F(SettingsFileTest, AFileSpoiltDuringTheRunIsKeptAndNothingOfTheRunIsLost) {
    SettingsFile settings(path);
    settings.setObject("first", 1);
    settings.flush();
    write("{ spoilt");
    settings.setObject("second", 2);
    {
        const test::ExpectedLog log("settings file spoilt by another program kept as " + path +
                                    ".broken-1");
        settings.flush();
    }
    EXPECT_EQ(contents(".broken-1"), QByteArray("{ spoilt"));
    EXPECT_EQ(settingsFromText(contents()).value().keys(), (QStringList{"first", "second"}));
}

TEST_F(SettingsFileTest, EveryValueReadsBackAsItWasWritten) {
    const auto leaf = [] {
        switch (*rc::gen::inRange(0, 6)) {
        case 0:
            return QVariant(*rc::gen::arbitrary<bool>());
        case 1:
            return QVariant::fromValue(*rc::gen::arbitrary<qint64>());
        case 2: {
            QString text;
            for (const char16_t unit : *rc::gen::container<std::vector<char16_t>>(
                     rc::gen::inRange<char16_t>(0, 0xD800))) {
                text += QChar(unit);
            }
            return QVariant(QString::fromLatin1("") + text);
        }
        case 3:
            // Milliseconds of the years 1 to 9999, as the file can name them: there is no year 0.
            return QVariant::fromValue(Instant(std::chrono::milliseconds(
                *rc::gen::inRange<qint64>(-62'135'596'800'000, 253'402'300'800'000))));
        case 4:
            return QVariant::fromValue(Decimal::fromInteger(*rc::gen::arbitrary<qint64>()) /
                                       Decimal::fromInteger(*rc::gen::inRange(1, 1'000'000)));
        default:
            return QVariant(*rc::gen::arbitrary<qint32>() / 1024.0 + 0.0001);
        }
    };
    EXPECT_TRUE(rc::check("values in a settings text", [&] {
        QVariantMap record;
        QVariantList list;
        const int count = *rc::gen::inRange(0, 6);
        for (int number = 0; number < count; ++number) {
            record.insert(QStringLiteral("member%1").arg(number), leaf());
            list.append(leaf());
        }
        const QVariantMap values{{"leaf", leaf()},
                                 {"list", list},
                                 {"nested", QVariantList{record, list}},
                                 {"r", record}};
        const auto read = settingsFromText(settingsText(values));
        RC_ASSERT(read.has_value());
        RC_ASSERT(*read == values);
    }));
}

TEST_F(SettingsFileTest, AFolderInPlaceOfTheFileIsMovedAsideToo) {
    QDir().mkpath(path);
    SettingsFile settings(path);
    ASSERT_TRUE(settings.startMessage());
    settings.setObject("key", 1);
    settings.flush();
    EXPECT_FALSE(contents().isEmpty());
}

TEST_F(SettingsFileTest, AnEmptyFileIsAFirstRun) {
    write("");
    const SettingsFile settings(path);
    EXPECT_FALSE(settings.startMessage());
    EXPECT_TRUE(settings.keys().isEmpty());
}

TEST_F(SettingsFileTest, AFailingWriteIsReportedOnceAndItsRecoveryToo) {
    // A file where the folder should be: nobody, root included, can write below it.
    const QString blocked = folder.filePath("blocked");
    QFile blocker(blocked);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    SettingsFile settings(blocked + "/quillet.json");
    QStringList reports;
    const Observation token =
        settings.observeWriteProblem([&](const QString& text) { reports << text; });
    settings.setObject("key", 1);
    settings.flush();
    settings.flush();
    EXPECT_EQ(reports.size(), 1);
    EXPECT_EQ(settings.object("key"), QVariant(1));
    QFile::remove(blocked);
    settings.flush();
    ASSERT_EQ(reports.size(), 2);
    EXPECT_TRUE(reports.back().isEmpty());
    EXPECT_TRUE(QFile::exists(blocked + "/quillet.json"));
}

TEST_F(SettingsFileTest, AFullDiskLeavesTheFileAsItWasAndIsReported) {
    SettingsFile settings(path);
    settings.setObject("key", 1);
    settings.flush();
    const QByteArray before = contents();
    ASSERT_FALSE(before.isEmpty());
    QStringList reports;
    const Observation token =
        settings.observeWriteProblem([&](const QString& text) { reports << text; });
    settings.setObject("text", QString(8000, u'x'));
    {
        const test::FullDisk disk(4096);
        settings.flush();
    }
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(reports.size(), 1);
    settings.flush();
    EXPECT_GT(contents().size(), 8000) << "written when there is room again";
}

TEST_F(SettingsFileTest, ReadingIsSafeOnAnotherThread) {
    SettingsFile settings(path);
    settings.setObject("key", 0);
    std::atomic<bool> isOver = false;
    auto reader = std::async(std::launch::async, [&] {
        qint64 highest = 0;
        while (!isOver) {
            highest = std::max(highest, integerForKey(settings, "key"));
        }
        return std::max(highest, integerForKey(settings, "key"));
    });
    for (int value = 1; value <= 2000; ++value) {
        settings.setObject("key", value);
    }
    isOver = true;
    EXPECT_EQ(reader.get(), 2000);
}

} // namespace quillet
