#include "backends/programs/DesktopEntries.h"

#include "ScratchDesktop.h"
#include "backends/programs/KeyFile.h"

#include <map>

namespace quillet {

namespace {

const QString mailto = QStringLiteral("x-scheme-handler/mailto");

class DesktopEntriesTest : public testing::Test {
protected:
    QStringList handlers(const QString& type = mailto) const {
        QStringList ids;
        for (const DesktopEntry& entry : DesktopEntries(desktop.folders()).handlers(type)) {
            ids.append(entry.id.chopped(8));
        }
        return ids;
    }
    void installThree() const {
        for (const char* name : {"alpha", "beta", "gamma"}) {
            desktop.install(QString(name) + ".desktop", QString(name) + " %u", mailto);
        }
    }

    test::ScratchDesktop desktop;
};

} // namespace

TEST_F(DesktopEntriesTest, WithoutAChoiceEveryProgramThatNamesTheTypeIsFound) {
    installThree();
    desktop.install("other.desktop", "other %u", "text/plain;text/calendar");
    EXPECT_EQ(handlers(), (QStringList{"alpha", "beta", "gamma"}));
    EXPECT_EQ(handlers("text/calendar"), QStringList{"other"});
    EXPECT_EQ(handlers("text/unknown"), QStringList());
}

TEST_F(DesktopEntriesTest, HiddenProgramsComeLastUnlessTheUserChoseThem) {
    desktop.install("korganizer-view.desktop", "korganizer --view %u", mailto, "NoDisplay=true");
    desktop.install("org.kde.korganizer.desktop", "korganizer %U", mailto);
    EXPECT_EQ(handlers(), (QStringList{"org.kde.korganizer", "korganizer-view"}));
    desktop.write("config/mimeapps.list",
                  "[Default Applications]\n" + mailto + "=korganizer-view.desktop");
    EXPECT_EQ(handlers(), (QStringList{"korganizer-view", "org.kde.korganizer"}));
}

TEST_F(DesktopEntriesTest, TheUsersChoiceComesFirst) {
    installThree();
    desktop.write("config/mimeapps.list", "[Default Applications]\n" + mailto + "=gamma.desktop\n");
    EXPECT_EQ(handlers(), (QStringList{"gamma", "alpha", "beta"}));
}

TEST_F(DesktopEntriesTest, TheUsersChoiceHoldsBeforeThatOfTheSystem) {
    installThree();
    desktop.write("system/applications/mimeapps.list",
                  "[Default Applications]\n" + mailto + "=alpha.desktop\n");
    desktop.write("config/mimeapps.list", "[Default Applications]\n" + mailto + "=beta.desktop\n");
    EXPECT_EQ(handlers(), (QStringList{"beta", "alpha", "gamma"}));
}

TEST_F(DesktopEntriesTest, TheChoiceForThisDesktopHoldsBeforeThatForAll) {
    installThree();
    desktop.write("config/mimeapps.list", "[Default Applications]\n" + mailto + "=beta.desktop\n");
    desktop.write("config/gnome-mimeapps.list",
                  "[Default Applications]\n" + mailto + "=gamma.desktop;\n");
    desktop.write("config/kde-mimeapps.list",
                  "[Default Applications]\n" + mailto + "=alpha.desktop\n");
    EXPECT_EQ(handlers().mid(0, 2), (QStringList{"gamma", "beta"}));
}

TEST_F(DesktopEntriesTest, AChosenProgramThatIsGoneIsPassedOver) {
    installThree();
    desktop.write("config/mimeapps.list",
                  "[Default Applications]\n" + mailto + "=gone.desktop;beta.desktop\n");
    EXPECT_EQ(handlers(), (QStringList{"beta", "alpha", "gamma"}));
    QFile::remove(desktop.path("bin/beta"));
    EXPECT_EQ(handlers(), (QStringList{"alpha", "gamma"}));
}

TEST_F(DesktopEntriesTest, AddedProgramsComeBeforeOthersAndRemovedOnesNotAtAll) {
    installThree();
    desktop.install("extra.desktop", "extra", "text/plain");
    desktop.write("config/mimeapps.list", "[Added Associations]\n" + mailto +
                                              "=extra.desktop\n[Removed Associations]\n" + mailto +
                                              "=alpha.desktop\n");
    desktop.write("system/applications/mimeapps.list",
                  "[Added Associations]\n" + mailto + "=alpha.desktop;gamma.desktop\n");
    EXPECT_EQ(handlers(), (QStringList{"extra", "gamma", "beta"}));
}

TEST_F(DesktopEntriesTest, TheUsersEntryStandsForTheSystems) {
    installThree();
    desktop.write("data/applications/alpha.desktop",
                  test::ScratchDesktop::entryText("alpha --mine %u", mailto));
    desktop.write("data/applications/beta.desktop",
                  test::ScratchDesktop::entryText("beta", mailto, "Hidden=true"));
    EXPECT_EQ(handlers(), (QStringList{"alpha", "gamma"}));
    EXPECT_EQ(DesktopEntries(desktop.folders()).handlers(mailto).front().exec,
              QStringLiteral("alpha --mine %u"));
}

TEST_F(DesktopEntriesTest, EntriesInSubfoldersHaveTheFolderInTheirName) {
    desktop.install("kde/mail.desktop", "mail %u", mailto);
    desktop.write("config/mimeapps.list",
                  "[Default Applications]\n" + mailto + "=kde-mail.desktop\n");
    EXPECT_EQ(handlers(), QStringList{"kde-mail"});
}

TEST_F(DesktopEntriesTest, WhatCannotBeStartedIsNoHandler) {
    desktop.install("a.desktop", "program", mailto, "TryExec=missing");
    desktop.write("system/applications/b.desktop",
                  test::ScratchDesktop::entryText("missing %u", mailto));
    desktop.write("system/applications/c.desktop", test::ScratchDesktop::entryText("", mailto));
    desktop.write("system/applications/d.desktop",
                  test::ScratchDesktop::entryText("\"program", mailto));
    desktop.write("system/applications/e.desktop", test::ScratchDesktop::entryText("%u", mailto));
    desktop.write("system/applications/f.desktop",
                  "[Desktop Entry]\nType=Link\nExec=program\nMimeType=" + mailto + "\n");
    desktop.write("system/applications/g.desktop", QString(QChar(0xfffd)).repeated(5000));
    EXPECT_EQ(handlers(), QStringList());
    desktop.install("h.desktop", "program", mailto, "TryExec=program");
    EXPECT_EQ(handlers(), QStringList{"h"});
}

TEST_F(DesktopEntriesTest, KeysOfActionsAreNotThoseOfTheEntry) {
    desktop.install("a.desktop", "program %u", mailto,
                    "[Desktop Action compose]\nName=Compose\nExec=program mailto:\nHidden=true");
    const auto entries = DesktopEntries(desktop.folders()).handlers(mailto);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries.front().exec, QStringLiteral("program %u"));
    EXPECT_EQ(entries.front().name, QStringLiteral("The Program"));
}

TEST_F(DesktopEntriesTest, TheFoldersComeFromTheEnvironmentOrAreTheDefaults) {
    std::map<std::string, QString> variables;
    const EnvironmentReader environment = [&](const char* name) { return variables[name]; };
    const QString home = QDir::homePath();
    DesktopFolders folders = desktopFolders(environment);
    EXPECT_EQ(folders.configuration, (QStringList{home + "/.config", "/etc/xdg"}));
    EXPECT_EQ(folders.data,
              (QStringList{home + "/.local/share", "/usr/local/share", "/usr/share"}));
    EXPECT_TRUE(folders.desktopNames.isEmpty());
    variables = {{"XDG_CONFIG_HOME", "/c"},
                 {"XDG_CONFIG_DIRS", "/d:relative:/e/"},
                 {"XDG_DATA_HOME", "relative"},
                 {"XDG_DATA_DIRS", "/f:/g"},
                 {"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"},
                 {"PATH", "/bin:.:/opt/bin"}};
    folders = desktopFolders(environment);
    EXPECT_EQ(folders.configuration, (QStringList{"/c", "/d", "/e"}));
    EXPECT_EQ(folders.data, (QStringList{home + "/.local/share", "/f", "/g"}));
    EXPECT_EQ(folders.desktopNames, (QStringList{"ubuntu", "gnome"}));
    EXPECT_EQ(folders.executables, (QStringList{"/bin", "/opt/bin"}));
}

TEST_F(DesktopEntriesTest, KeyFilesUnescapeTextsAndKeepTheFirstOfEqualKeys) {
    desktop.write("file", "# comment\nstray\n=none\n[A]\nkey = one\\stwo\\n\\\\s\\x \nkey=again\n"
                          "list=a; b;;c\nflag=true\r\n[B]\nkey=other");
    const KeyFile file = KeyFile::read(desktop.path("file"));
    EXPECT_EQ(file.text("A", "key"), QStringLiteral("one two\n\\s\\x"));
    EXPECT_EQ(file.text("B", "key"), QStringLiteral("other"));
    EXPECT_EQ(file.list("A", "list"), (QStringList{"a", "b", "c"}));
    EXPECT_TRUE(file.isTrue("A", "flag"));
    EXPECT_TRUE(file.text("C", "key").isNull());
    EXPECT_TRUE(KeyFile::read(desktop.path("missing")).text("A", "key").isNull());
}

namespace {

QStringList commandOf(const QString& exec, const QStringList& addresses) {
    const DesktopEntry entry{.id = "a.desktop",
                             .path = "/apps/a.desktop",
                             .name = "The %u Program",
                             .icon = "an icon",
                             .exec = exec,
                             .mimeTypes = {}};
    return commandLine(entry, addresses).value_or(QStringList{"(none)"});
}

QStringList commandOf(const QString& exec, const QString& address) {
    return commandOf(exec, address.isEmpty() ? QStringList() : QStringList{address});
}

} // namespace

TEST(CommandLineTest, TheAddressTakesThePlaceOfItsCode) {
    EXPECT_EQ(commandOf("mail %u", "mailto:a"), (QStringList{"mail", "mailto:a"}));
    EXPECT_EQ(commandOf("mail -x %U -y", "mailto:a"),
              (QStringList{"mail", "-x", "mailto:a", "-y"}));
    EXPECT_EQ(commandOf("mail --to=%f", "/a b"), (QStringList{"mail", "--to=/a b"}));
    EXPECT_EQ(commandOf("mail %u %F", "mailto:a"), (QStringList{"mail", "mailto:a"}));
    EXPECT_EQ(commandOf("mail", "mailto:a"), (QStringList{"mail", "mailto:a"}));
    EXPECT_EQ(commandOf("mail %u", ""), QStringList{"mail"});
}

TEST(CommandLineTest, SeveralAddressesGoWhereTheEntryTakesSeveralAndElseTheLastGoes) {
    const QStringList two{"a 1", "b"};
    EXPECT_EQ(commandOf("show -x %U -y", two), (QStringList{"show", "-x", "a 1", "b", "-y"}));
    EXPECT_EQ(commandOf("show %F", two), (QStringList{"show", "a 1", "b"}));
    EXPECT_EQ(commandOf("show @@u %U @@", two), (QStringList{"show", "@@u", "a 1", "b", "@@"}));
    for (const char* one : {"show %u", "show %f", "show \"%U\"", "show"}) {
        EXPECT_EQ(commandOf(one, two), (QStringList{"show", "b"})) << one;
    }
    EXPECT_EQ(commandOf("show --at=%U", two), (QStringList{"show", "--at=b"}));
}

TEST(CommandLineTest, TheAddressIsDataWhateverItHolds) {
    const QString hostile = "mailto:\"; rm -rf ~ $(x) `y` %u %% \\ 'q' \n\t&|<>*?";
    EXPECT_EQ(commandOf("mail %u", hostile), (QStringList{"mail", hostile}));
    EXPECT_EQ(commandOf("mail \"%u\"", hostile), (QStringList{"mail", hostile}));
    EXPECT_EQ(commandOf("sh -c \"mail '%u'\"", "x"), (QStringList{"sh", "-c", "mail 'x'"}));
}

TEST(CommandLineTest, QuotesHoldAnArgumentTogetherAndEscapesStandWithinThem) {
    EXPECT_EQ(commandOf(R"("/opt/my mail/run" "a \"b\" \$c \`d \\e \f")", ""),
              (QStringList{"/opt/my mail/run", "a \"b\" $c `d \\e \\f"}));
    EXPECT_EQ(commandOf("mail \"\" x", ""), (QStringList{"mail", "", "x"}));
    EXPECT_EQ(commandOf("mail   a  ", ""), (QStringList{"mail", "a"}));
}

TEST(CommandLineTest, OtherCodesStandForTheEntryItselfOrForNothing) {
    EXPECT_EQ(
        commandOf("mail %i -n %c %k", ""),
        (QStringList{"mail", "--icon", "an icon", "-n", "The %u Program", "/apps/a.desktop"}));
    EXPECT_EQ(commandOf("mail 100%% %d %m x%", "y"), (QStringList{"mail", "100%", "x", "y"}));
}

TEST(CommandLineTest, MalformedCommandsAndThoseThatRunTheAddressGiveNone) {
    for (const char* exec : {"", "   ", "\"mail", "\"\" x", "%u", "%u mail", "\"%f\" x", "a%u b"}) {
        EXPECT_EQ(commandOf(exec, "/bin/evil"), QStringList{"(none)"}) << exec;
        EXPECT_EQ(commandOf(exec, ""), QStringList{"(none)"}) << exec;
    }
}

} // namespace quillet
