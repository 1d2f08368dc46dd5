#include "backends/updates/ReleaseList.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

std::vector<ReleaseNews> read(const QByteArray& xml, const QStringList& languages = {}) {
    const auto releases = readReleaseList(xml, languages);
    EXPECT_TRUE(releases.has_value()) << xml.constData();
    return releases.value_or(std::vector<ReleaseNews>());
}

QString notesOf(const QByteArray& description, const QStringList& languages = {}) {
    const auto releases = read("<releases><release version='1'><description>" + description +
                                   "</description></release></releases>",
                               languages);
    return releases.empty() ? QString() : releases.front().notes;
}

QStringList versions(const std::vector<ReleaseNews>& releases) {
    QStringList texts;
    for (const ReleaseNews& release : releases) {
        texts << release.version;
    }
    return texts;
}

} // namespace

TEST(ReleaseListTest, ReadsVersionsDatesAndNotes) {
    const auto releases = read(R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- newest first -->
<releases>
  <release version="0.3.0" date="2027-02-01" type="stable" urgency="low">
    <url>https://quillet.example/0.3.0</url>
    <description><p>Groups of
       calendars, and <em>faster</em> <code>CSV</code>.</p></description>
    <artifacts><artifact type="source"><location>x</location></artifact></artifacts>
  </release>
  <release version=" 0.2.0 " timestamp="1798761600"/>
  <release version="0.1.0" date="2026-11-21T10:00:00Z"><description/></release>
</releases>)");
    ASSERT_EQ(releases.size(), 3U);
    EXPECT_EQ(releases[0].version, QStringLiteral("0.3.0"));
    EXPECT_EQ(releases[0].date, QDate(2027, 2, 1));
    EXPECT_EQ(releases[0].notes, QStringLiteral("Groups of calendars, and faster CSV."));
    EXPECT_EQ(releases[1].version, QStringLiteral("0.2.0"));
    EXPECT_EQ(releases[1].date, QDate(2027, 1, 1));
    EXPECT_EQ(releases[1].notes, QString());
    EXPECT_EQ(releases[2].date, QDate(2026, 11, 21));
}

TEST(ReleaseListTest, ReadsTheListWithinTheProgramsDescriptionToo) {
    const auto releases =
        read("<component type='desktop-application'><id>a</id><name>releases</name>"
             "<description><p>x</p></description><releases><release version='1'/></releases>"
             "<releases><release version='2'/></releases></component>");
    EXPECT_EQ(versions(releases), QStringList{"1"});
}

TEST(ReleaseListTest, LeavesOutWhatIsNotForEverybody) {
    const auto releases =
        read("<releases><release version='2~rc1' type='development'/>"
             "<release version='3' type='snapshot'/><release/>"
             "<release version=''/><release version='" +
             QByteArray(65, '1') + "'/><news version='4'/><release version='1'/></releases>");
    EXPECT_EQ(versions(releases), QStringList{"1"});
}

TEST(ReleaseListTest, AListOfNothingButTrialsIsAListAllTheSame) {
    const auto releases =
        readReleaseList("<releases><release type='development' version='2'/></releases>", {});
    ASSERT_TRUE(releases.has_value());
    EXPECT_TRUE(releases->empty());
}

TEST(ReleaseListTest, WritesParagraphsAndListsAsPlainText) {
    EXPECT_EQ(notesOf("<p>New:</p><ul><li>One &lt;b&gt;</li><li> two\n words</li></ul><p>Also:</p>"
                      "<ol><li>first</li><li>second</li></ol><p/>"),
              QStringLiteral("New:\n\n• One <b>\n• two words\n\nAlso:\n\n1. first\n2. second"));
}

TEST(ReleaseListTest, ChoosesTheUsersLanguage) {
    const QByteArray text = "<p>Hours</p><p xml:lang='de'>Stunden</p><p xml:lang='pt-BR'>Horas</p>"
                            "<ol><li>one</li><li xml:lang='de'>eins</li><li>two</li>"
                            "<li xml:lang='de'>zwei</li></ol>";
    EXPECT_EQ(notesOf(text), QStringLiteral("Hours\n\n1. one\n2. two"));
    EXPECT_EQ(notesOf(text, {"de_AT"}), QStringLiteral("Stunden\n\n1. eins\n2. zwei"));
    EXPECT_EQ(notesOf(text, {"it", "de"}), QStringLiteral("Stunden\n\n1. eins\n2. zwei"));
    EXPECT_EQ(notesOf(text, {"pt_BR"}), QStringLiteral("Horas"));
    EXPECT_EQ(notesOf(text, {"en_GB", "de"}), QStringLiteral("Hours\n\n1. one\n2. two"));
    EXPECT_EQ(notesOf(text, {"it"}), QStringLiteral("Hours\n\n1. one\n2. two"));
}

TEST(ReleaseListTest, WhatIsNoListIsNothing) {
    for (const char* text :
         {"", " ", "{}", "<html><body>Sign in to the network</body></html>", "<releases>",
          "<releases/>", "<releases></releases><releases/>", "<component/>",
          "<component><releases/></component>",
          "<releases><release/><news version='1'/></releases>",
          "<releases><release version='1'/></release>", "<releases><release version='1'/>",
          "<releases><release version='1'/></releases>tail",
          "<releases><release version='1'><description><p>a</releases>", "\xff\xfe<", "\0\0"}) {
        EXPECT_FALSE(readReleaseList(text, {}).has_value()) << text;
    }
}

TEST(ReleaseListTest, EntitiesCannotBeDeclared) {
    EXPECT_FALSE(readReleaseList("<!DOCTYPE releases [<!ENTITY a 'aaaaaaaaaa'>"
                                 "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;'>]>"
                                 "<releases><release version='1&b;'/></releases>",
                                 {}));
    EXPECT_FALSE(readReleaseList("<!DOCTYPE r SYSTEM 'file:///etc/passwd'>"
                                 "<releases><release version='1'/></releases>",
                                 {}));
}

TEST(ReleaseListTest, NeitherDepthNorLengthHurts) {
    constexpr int depth = 100'000;
    const QByteArray deep = QByteArray("<p>").repeated(depth) + QByteArray("</p>").repeated(depth);
    EXPECT_EQ(notesOf(deep + "<p>end</p>"), QStringLiteral("end"));
    const QByteArray deepItems =
        QByteArray("<ul>").repeated(depth) + "<li>x</li>" + QByteArray("</ul>").repeated(depth);
    EXPECT_EQ(notesOf(deepItems), QStringLiteral("• x"));
    EXPECT_EQ(notesOf("<p>" + QByteArray(500'000, 'a') + "</p>").size(), 10'001);
    QByteArray many = "<releases>";
    for (int number = 0; number < 20'000; ++number) {
        many += "<release version='" + QByteArray::number(number) + "'/>";
    }
    EXPECT_EQ(read(many + "</releases>").size(), 1000U);
    const auto odd = read("<releases><release version='1' date='soon'/><release version='2' "
                          "timestamp='99999999999999999999'/><release version='3' "
                          "timestamp='-5'/></releases>");
    for (const ReleaseNews& release : odd) {
        EXPECT_FALSE(release.date.isValid()) << release.version.toStdString();
    }
}

TEST(ReleaseListTest, NewerReleasesComeNewestFirst) {
    const auto releases =
        read("<releases><release version='0.9'/><release version='0.10'/><release version='0.2'/>"
             "<release version='0.10~rc1'/><release version='0.2.1'/></releases>");
    EXPECT_EQ(versions(newerReleases(releases, "0.2")),
              (QStringList{"0.10", "0.10~rc1", "0.9", "0.2.1"}));
    EXPECT_EQ(versions(newerReleases(releases, "0.10")), QStringList());
    EXPECT_EQ(versions(newerReleases(releases, "1")), QStringList());
}

} // namespace quillet
