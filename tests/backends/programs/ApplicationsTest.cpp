#include "backends/programs/Applications.h"

#include "ScratchDesktop.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillet {

namespace {

const QString mailto = QStringLiteral("x-scheme-handler/mailto");

class ApplicationsTest : public testing::Test {
protected:
    QStringList handlers(const QString& type = mailto) const {
        QStringList ids;
        for (const DesktopEntry& entry : applications.handlers(type)) {
            ids.append(entry.id.chopped(8));
        }
        return ids;
    }
    void installThree() const {
        for (const char* name : {"alpha", "beta", "gamma"}) {
            desktop.install(QString(name) + ".desktop", QString(name) + " %u", mailto);
        }
    }
    /// What a package of the system does behind installing entries.
    void index(const QString& types) const {
        desktop.write("system/applications/mimeinfo.cache", "[MIME Cache]\n" + types + "\n");
    }
    void indexThree() const { index(mailto + "=alpha.desktop;beta.desktop;gamma.desktop;"); }
    void choose(const QString& choices) const {
        desktop.write("config/mimeapps.list", "[Default Applications]\n" + choices + "\n");
    }
    QStringList argumentsOf(const QString& exec, const QStringList& addresses) const {
        const test::ScratchDesktop empty;
        desktop.install("one.desktop", exec, mailto);
        const auto entries = applications.handlers(mailto);
        EXPECT_EQ(entries.size(), 1U) << exec.toStdString();
        EXPECT_TRUE(Applications::open(entries.front(), addresses)) << exec.toStdString();
        return desktop.started(1).value(0).arguments;
    }

    test::ScratchDesktop desktop;
    test::FakeTaskLauncher launcher;
    Applications applications = test::ScratchDesktop::applications(launcher);
};

} // namespace

TEST_F(ApplicationsTest, WithoutAChoiceEveryProgramThatNamesTheTypeIsFound) {
    installThree();
    desktop.install("other.desktop", "other %u", "text/plain;text/calendar");
    indexThree();
    EXPECT_EQ(handlers(), (QStringList{"alpha", "beta", "gamma"}));
    EXPECT_EQ(handlers("text/unknown"), QStringList());
}

TEST_F(ApplicationsTest, ProgramsAreFoundWhereNobodyKeepsAnIndexOfTypes) {
    installThree();
    desktop.install("other.desktop", "other %u", "text/plain;text/calendar");
    EXPECT_EQ(handlers(), (QStringList{"alpha", "beta", "gamma"}));
    EXPECT_EQ(handlers("text/calendar"), QStringList{"other"});
}

TEST_F(ApplicationsTest, AProgramThatIsInstalledOrGoesWhileThisOneRunsIsSeenByTheNextRequest) {
    EXPECT_EQ(handlers(), QStringList());
    desktop.install("alpha.desktop", "alpha %u", mailto);
    EXPECT_EQ(handlers(), QStringList{"alpha"});
    desktop.install("beta.desktop", "beta %u", mailto);
    EXPECT_EQ(handlers(), (QStringList{"alpha", "beta"}));
    indexThree();
    choose(mailto + "=beta.desktop");
    EXPECT_EQ(handlers(), (QStringList{"beta", "alpha"}));
    choose(mailto + "=alpha.desktop");
    EXPECT_EQ(handlers(), (QStringList{"alpha", "beta"}));
    desktop.install("gamma.desktop", "gamma %u", mailto);
    EXPECT_EQ(handlers(), (QStringList{"alpha", "beta", "gamma"}));
    QFile::remove(desktop.path("bin/alpha"));
    EXPECT_EQ(handlers(), (QStringList{"beta", "gamma"}));
}

TEST_F(ApplicationsTest, HiddenProgramsComeLastUnlessTheUserChoseThem) {
    desktop.install("korganizer-view.desktop", "korganizer --view %u", mailto, "NoDisplay=true");
    desktop.install("org.kde.korganizer.desktop", "korganizer %U", mailto);
    for (const bool isIndexed : {false, true}) {
        if (isIndexed) {
            index(mailto + "=korganizer-view.desktop;org.kde.korganizer.desktop;");
        }
        EXPECT_EQ(handlers().first(2), (QStringList{"org.kde.korganizer", "korganizer-view"}));
    }
    choose(mailto + "=korganizer-view.desktop");
    EXPECT_EQ(handlers(), (QStringList{"korganizer-view", "org.kde.korganizer"}));
}

TEST_F(ApplicationsTest, TheUsersChoiceHoldsBeforeThatOfTheSystem) {
    installThree();
    indexThree();
    desktop.write("system/applications/mimeapps.list",
                  "[Default Applications]\n" + mailto + "=gamma.desktop\n");
    EXPECT_EQ(handlers(), (QStringList{"gamma", "alpha", "beta"}));
    choose(mailto + "=beta.desktop");
    EXPECT_EQ(handlers(), (QStringList{"beta", "alpha", "gamma"}));
    desktop.write("config/gnome-mimeapps.list",
                  "[Default Applications]\n" + mailto + "=gamma.desktop;\n");
    desktop.write("config/kde-mimeapps.list",
                  "[Default Applications]\n" + mailto + "=alpha.desktop\n");
    EXPECT_EQ(handlers().front(), QStringLiteral("gamma"));
}

TEST_F(ApplicationsTest, AChosenProgramThatNamesNoTypeIsFirst) {
    installThree();
    indexThree();
    desktop.install("extra.desktop", "extra", "text/plain");
    choose(mailto + "=gone.desktop;extra.desktop");
    EXPECT_EQ(handlers(), (QStringList{"extra", "alpha", "beta", "gamma"}));
}

TEST_F(ApplicationsTest, AddedProgramsComeBeforeOthersAndRemovedOnesNotAtAll) {
    installThree();
    indexThree();
    desktop.install("extra.desktop", "extra", "text/plain");
    desktop.write("config/mimeapps.list", "[Added Associations]\n" + mailto +
                                              "=extra.desktop\n[Removed Associations]\n" + mailto +
                                              "=alpha.desktop\n");
    EXPECT_EQ(handlers(), (QStringList{"extra", "beta", "gamma"}));
}

TEST_F(ApplicationsTest, TheUsersEntryStandsForTheSystems) {
    installThree();
    desktop.write("data/applications/alpha.desktop",
                  test::ScratchDesktop::entryText("alpha --mine %u", mailto));
    desktop.write("data/applications/beta.desktop",
                  test::ScratchDesktop::entryText("beta", mailto, "Hidden=true"));
    EXPECT_EQ(handlers(), (QStringList{"alpha", "gamma"}));
    EXPECT_EQ(applications.handlers(mailto).front().command, QStringLiteral("alpha --mine %u"));
}

TEST_F(ApplicationsTest, WhatCannotBeStartedIsNoHandler) {
    desktop.install("a.desktop", "program", mailto, "TryExec=missing");
    for (const auto& [id, exec] :
         {std::pair{"b", "missing %u"}, {"c", ""}, {"d", "\"program"}, {"e", "%u"}}) {
        desktop.write(QString("system/applications/%1.desktop").arg(id),
                      test::ScratchDesktop::entryText(exec, mailto));
    }
    desktop.write("system/applications/f.desktop",
                  "[Desktop Entry]\nType=Link\nExec=program\nMimeType=" + mailto + "\n");
    desktop.write("system/applications/g.desktop", QString(QChar(0xfffd)).repeated(5000));
    EXPECT_EQ(handlers(), QStringList());
    desktop.install("h.desktop", "program", mailto, "TryExec=program");
    EXPECT_EQ(handlers(), QStringList{"h"});
}

TEST_F(ApplicationsTest, AnEntryIsDescribedAsItStandsAndThisProgramIsLeftOut) {
    desktop.install("org.example.This.desktop", "this %u", mailto);
    desktop.install("kde/mail.desktop", "mail --new %u", mailto,
                    "[Desktop Action compose]\nName=Compose\nExec=program mailto:\nHidden=true");
    choose(mailto + "=org.example.This.desktop");
    const auto entries = applications.handlers(mailto);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries.front().id, QStringLiteral("kde-mail.desktop"));
    EXPECT_EQ(entries.front().name, QStringLiteral("The Program"));
    EXPECT_EQ(entries.front().command, QStringLiteral("mail --new %u"));
    EXPECT_EQ(entries.front().executable, QStringLiteral("mail"));
    EXPECT_FALSE(entries.front().isHidden);
}

TEST_F(ApplicationsTest, TheAddressIsDataWhateverItHolds) {
    const QString hostile =
        "mailto:\"; rm -rf ~ $(touch " + desktop.path("touched") + ") `id` %u %% \\ 'q' \n\t&|<>*?";
    EXPECT_EQ(argumentsOf("mail %u", {hostile}), QStringList{hostile});
    EXPECT_EQ(argumentsOf("mail -x %U -y", {hostile}), (QStringList{"-x", hostile, "-y"}));
    EXPECT_FALSE(QFile::exists(desktop.path("touched")));
}

TEST_F(ApplicationsTest, EveryEntryGetsTheAddressAlsoOneThatNamesNoPlaceOrThatOfAFile) {
    for (const char* exec : {"mail", "mail %f", "mail %F", "mail %u", "mail %U"}) {
        EXPECT_EQ(argumentsOf(exec, {"mailto:a"}), QStringList{"mailto:a"}) << exec;
    }
}

TEST_F(ApplicationsTest, SeveralAddressesGoWhereTheEntryTakesSeveralAndElseTheLastGoes) {
    const QStringList two{"calendar:a%201", "calendar:b"};
    EXPECT_EQ(argumentsOf("show -x %U -y", two), (QStringList{"-x", two[0], two[1], "-y"}));
    EXPECT_EQ(argumentsOf("show @@u %U @@", two), (QStringList{"@@u", two[0], two[1], "@@"}));
    EXPECT_EQ(argumentsOf("show %F", two), two);
    for (const char* one : {"show %u", "show %f", "show"}) {
        EXPECT_EQ(argumentsOf(one, two), QStringList{two[1]}) << one;
    }
}

TEST_F(ApplicationsTest, AFileOfThisComputerIsNamedByItsPath) {
    desktop.write("it's 100% mine.ics", {});
    const QString path = desktop.path("it's 100% mine.ics");
    const QString address = "file://" + desktop.path("it's%20100%25%20mine.ics");
    for (const char* exec : {"show %f", "show %F", "show %u", "show %U", "show"}) {
        EXPECT_EQ(argumentsOf(exec, {address}), QStringList{path}) << exec;
        desktop.write("it's 100% mine.ics", {});
    }
}

TEST_F(ApplicationsTest, ProgramsOfTheTerminalGetTheUsersOne) {
    desktop.install("text.desktop", "textmail -n %u", mailto, "Terminal=true");
    const auto entry = applications.handlers(mailto).front();
    desktop.addExecutable("x-terminal-emulator");
    ASSERT_TRUE(Applications::open(entry, {"mailto:a b"}));
    EXPECT_EQ(desktop.started(1).last(), (test::Started{desktop.path("bin/x-terminal-emulator"),
                                                        {"-e", "textmail", "-n", "mailto:a b"}}));
    desktop.addExecutable("xdg-terminal-exec");
    ASSERT_TRUE(Applications::open(entry, {"mailto:a b"}));
    EXPECT_EQ(desktop.started(2).last(), (test::Started{desktop.path("bin/xdg-terminal-exec"),
                                                        {"textmail", "-n", "mailto:a b"}}));
}

TEST_F(ApplicationsTest, AProgramThatHasGoneMeanwhileIsNotInstalled) {
    installThree();
    const auto entry = applications.handlers(mailto).front();
    QFile::remove(desktop.path("bin/alpha"));
    for (const auto& result :
         {Applications::open(entry, {"mailto:a"}), applications.start(entry, {"x"})}) {
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error(), QStringLiteral("It is not installed."));
    }
}

TEST_F(ApplicationsTest, AProgramCanBeStartedWithOtherArgumentsThanThoseOfItsEntry) {
    desktop.install("a.desktop", "alpha --new %u", mailto);
    const auto entry = applications.handlers(mailto).front();
    ASSERT_TRUE(applications.start(entry, {"-c", "%u $(x)"}));
    ASSERT_EQ(launcher.launched.size(), 1);
    EXPECT_EQ(launcher.launched.front().first, desktop.path("bin/alpha"));
    EXPECT_EQ(launcher.launched.front().second, (QStringList{"-c", "%u $(x)"}));
    launcher.answer = std::unexpected(QStringLiteral("no memory"));
    EXPECT_EQ(applications.start(entry, {}).error(),
              QString::fromUtf8("“%1” cannot be run.").arg(desktop.path("bin/alpha")));
}

} // namespace quillet
