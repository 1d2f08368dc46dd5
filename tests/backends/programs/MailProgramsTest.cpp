#include "backends/programs/MailPrograms.h"

#include "ScratchDesktop.h"
#include "backends/programs/MailMessage.h"

#include <QUrl>

namespace quillet {

namespace {

const QString mailto = QStringLiteral("x-scheme-handler/mailto");

class FakePortal final : public DesktopPortal {
public:
    std::expected<void, QString> composeEmail(const QString& subject,
                                              const QString& body) override {
        messages.append({subject, body});
        return answer;
    }
    std::expected<void, QString> openAddress(const QString&) override { return answer; }
    std::expected<void, QString> openFile(const QString&) override { return answer; }

    QList<QPair<QString, QString>> messages;
    std::expected<void, QString> answer;
};

class MailProgramsTest : public testing::Test {
protected:
    std::expected<void, QString> compose(const QString& content,
                                         std::optional<double> fontSizePoints = {}) {
        MessageRequest request{.subject = "March \"2024\", 100%", .content = content, .style = {}};
        if (fontSizePoints) {
            request.style = {.fontName = {}, .fontSizePoints = *fontSizePoints, .color = {}};
        }
        return mail.compose(request);
    }
    void installReader() { desktop.install("reader.desktop", "reader --new %u", mailto); }
    void installThunderbird() { desktop.install("thunderbird.desktop", "thunderbird %u", mailto); }
    QStringList messageFiles() const {
        return QDir(desktop.path("run/quillet")).entryList(QDir::Files);
    }
    QByteArray contentOf(const QString& name) const {
        QFile file(desktop.path("run/quillet/" + name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    const QString tooLong = QString(60'000, QChar(u'ü'));
    test::ScratchDesktop desktop;
    test::FakeTaskLauncher launcher;
    test::FakePasteboard pasteboard;
    test::FakeAlerts alerts;
    Applications applications = test::ScratchDesktop::applications(launcher);
    MailPrograms mail{{.applications = applications,
                       .pasteboard = pasteboard,
                       .alerts = alerts,
                       .messageFolder = desktop.path("run/quillet")}};
};

} // namespace

TEST_F(MailProgramsTest, TheDefaultProgramGetsSubjectAndBodyAsOneAddress) {
    installReader();
    installThunderbird();
    desktop.write("config/mimeapps.list", "[Default Applications]\n" + mailto + "=reader.desktop");
    ASSERT_TRUE(compose("Tab\there, \"quotes\" & 50%\nnext 'line' $(x) `y` ü"));
    const test::Started reader = desktop.started(1).value(0);
    EXPECT_EQ(reader.program, desktop.path("bin/reader"));
    EXPECT_EQ(reader.arguments,
              (QStringList{"--new", "mailto:?subject=March%20%222024%22%2C%20100%25&body="
                                    "Tab%09here%2C%20%22quotes%22%20%26%2050%25%0D%0A"
                                    "next%20%27line%27%20%24%28x%29%20%60y%60%20%C3%BC"}));
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_TRUE(pasteboard.calls.isEmpty());
}

TEST_F(MailProgramsTest, ThunderbirdGetsAStyledPageInAFileOfTheUsersAlone) {
    installThunderbird();
    ASSERT_TRUE(compose("<b>\n\"x\"", 10));
    ASSERT_EQ(messageFiles().size(), 1);
    const QString name = messageFiles().front();
    EXPECT_TRUE(name.endsWith(".html"));
    EXPECT_EQ(QFile::permissions(desktop.path("run/quillet/" + name)) &
                  (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
              QFile::Permissions());
    EXPECT_TRUE(contentOf(name).contains(
        "font-size:10pt;color:#000000\">&lt;b&gt;<br>&quot;x&quot;</pre>"));
    ASSERT_EQ(launcher.launched.size(), 1);
    EXPECT_EQ(launcher.launched.front().first, desktop.path("bin/thunderbird"));
    const QString file =
        QString::fromLatin1(QUrl::toPercentEncoding(desktop.path("run/quillet/" + name)));
    EXPECT_EQ(launcher.launched.front().second,
              (QStringList{"-compose",
                           "subject=March%20%222024%22%2C%20100%25,format=html,message=" + file}));
}

TEST_F(MailProgramsTest, ThunderbirdGetsPlainTextAsItIs) {
    installThunderbird();
    ASSERT_TRUE(compose("<b> & ü\n"));
    ASSERT_EQ(messageFiles().size(), 1);
    EXPECT_TRUE(messageFiles().front().endsWith(".txt"));
    EXPECT_EQ(contentOf(messageFiles().front()), QByteArray("<b> & ü\n"));
    EXPECT_TRUE(launcher.launched.front().second.value(1).contains(",format=text,"));
}

TEST_F(MailProgramsTest, KMailGetsPlainTextFromAFileWhereItFindsNoRecipientsAndAttachments) {
    desktop.install("org.kde.kmail2.desktop", "kmail -qwindowtitle %c %u", mailto);
    const QString content = "Talk &cc=eve@example.org&attach=/etc/passwd\n" + tooLong;
    ASSERT_TRUE(compose(content, 10));
    ASSERT_EQ(messageFiles().size(), 1);
    const QString name = messageFiles().front();
    EXPECT_TRUE(name.endsWith(".txt"));
    EXPECT_EQ(contentOf(name), content.toUtf8());
    ASSERT_EQ(launcher.launched.size(), 1);
    EXPECT_EQ(launcher.launched.front().first, desktop.path("bin/kmail"));
    EXPECT_EQ(launcher.launched.front().second,
              (QStringList{"--composer", "--subject=March \"2024\", 100%", "--msg",
                           desktop.path("run/quillet/" + name)}));
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_TRUE(pasteboard.calls.isEmpty());
}

TEST_F(MailProgramsTest, NoTextIsTooLongForThunderbird) {
    installThunderbird();
    ASSERT_TRUE(compose(tooLong, 10));
    EXPECT_TRUE(contentOf(messageFiles().front()).contains(tooLong.toUtf8()));
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_TRUE(pasteboard.calls.isEmpty());
}

TEST_F(MailProgramsTest, FilesOfOldMessagesAreRemovedAndNewOnesStay) {
    installThunderbird();
    ASSERT_TRUE(compose("first"));
    ASSERT_TRUE(compose("second"));
    ASSERT_EQ(messageFiles().size(), 2);
    const QString old = desktop.path("run/quillet/" + messageFiles().front());
    QFile file(old);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(-3600), QFile::FileModificationTime);
    file.close();
    desktop.write("run/quillet/notes.txt", "not of this program's making");
    QFile other(desktop.path("run/quillet/notes.txt"));
    ASSERT_TRUE(other.open(QIODevice::ReadWrite));
    other.setFileTime(QDateTime::currentDateTime().addSecs(-3600), QFile::FileModificationTime);
    other.close();
    ASSERT_TRUE(compose("third"));
    EXPECT_EQ(messageFiles().size(), 3);
    EXPECT_FALSE(QFile::exists(old));
    EXPECT_TRUE(other.exists());
}

TEST_F(MailProgramsTest, AFileThatCannotBeWrittenIsToldWithItsReason) {
    installThunderbird();
    desktop.write("run/quillet", "a file where the folder should be");
    EXPECT_FALSE(compose("text", 10));
    EXPECT_TRUE(launcher.launched.isEmpty());
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_TRUE(alerts.shown.front().informativeText.contains(desktop.path("run/quillet")));
}

TEST_F(MailProgramsTest, AThunderbirdInAContainerIsAskedByAddress) {
    desktop.install("a.desktop", "flatpak run --command=thunderbird org.mozilla.Thunderbird %u",
                    mailto);
    ASSERT_TRUE(compose("text", 10));
    EXPECT_EQ(desktop.started(1).last().arguments.last(),
              mailtoAddress("March \"2024\", 100%", "text"));
    EXPECT_TRUE(messageFiles().isEmpty());
    desktop.install("a.desktop", "env HINT=x /snap/bin/thunderbird %u", mailto);
    ASSERT_TRUE(compose("text", 10));
    EXPECT_EQ(desktop.started(2).last().program, desktop.path("bin/env"));
    EXPECT_TRUE(messageFiles().isEmpty());
    const QString snap = desktop.path("snap/bin/thunderbird");
    desktop.addExecutable("../snap/bin/thunderbird");
    desktop.write("system/applications/a.desktop",
                  test::ScratchDesktop::entryText(snap + " %u", mailto));
    ASSERT_TRUE(compose("text", 10));
    EXPECT_EQ(desktop.started(3).last().program, snap);
    EXPECT_TRUE(messageFiles().isEmpty());
}

TEST_F(MailProgramsTest, ALongTextGoesThroughTheClipboardAndTheUserIsToldOnce) {
    installReader();
    ASSERT_TRUE(compose(tooLong));
    EXPECT_EQ(pasteboard.content, tooLong);
    EXPECT_EQ(desktop.started(1).front().arguments.last(),
              mailtoAddress("March \"2024\", 100%", {}));
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown.front().messageText,
              QStringLiteral("The text is too long to hand over to your mail program"));
    EXPECT_EQ(alerts.shown.front().informativeText,
              QStringLiteral("It is on the clipboard: paste it into the new message."));
}

TEST_F(MailProgramsTest, TheLongestArgumentIsStillHandedOver) {
    installReader();
    const qsizetype room = Applications::longestArgumentBytes -
                           mailtoAddress("March \"2024\", 100%", QStringLiteral("x")).size();
    ASSERT_TRUE(compose(QString(room + 1, u'x')));
    EXPECT_TRUE(alerts.shown.empty());
    ASSERT_TRUE(compose(QString(room + 2, u'x')));
    EXPECT_EQ(alerts.shown.size(), 1U);
}

TEST_F(MailProgramsTest, WithoutAnyMailProgramTheUserIsToldOnce) {
    const auto result = compose("text");
    EXPECT_EQ(result.error(), QStringLiteral("no mail program"));
    EXPECT_TRUE(launcher.launched.isEmpty());
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown.front().messageText, QStringLiteral("No mail program is set up"));
    EXPECT_EQ(alerts.shown.front().buttonTitles, QStringList{"OK"});
    EXPECT_TRUE(pasteboard.calls.isEmpty());
}

TEST_F(MailProgramsTest, AProgramThatDoesNotStartIsNamedWithTheReason) {
    installThunderbird();
    launcher.answer = std::unexpected(QStringLiteral("no memory"));
    EXPECT_FALSE(compose("text"));
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown.front().messageText,
              QString::fromUtf8("“The Program” could not be started"));
    EXPECT_EQ(alerts.shown.front().informativeText,
              QString::fromUtf8("“%1” cannot be run.").arg(desktop.path("bin/thunderbird")));
}

TEST_F(MailProgramsTest, ALongTextWhoseProgramDoesNotStartGivesOneMessage) {
    desktop.install("reader.desktop", "reader %u", mailto, "Path=/nonexistent");
    EXPECT_FALSE(compose(tooLong));
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_FALSE(alerts.shown.front().informativeText.isEmpty());
}

TEST_F(MailProgramsTest, InASandboxThePortalComposes) {
    installThunderbird();
    FakePortal portal;
    const MailPrograms sandboxed({.applications = applications,
                                  .pasteboard = pasteboard,
                                  .alerts = alerts,
                                  .messageFolder = desktop.path("run/quillet"),
                                  .portal = &portal});
    const MessageRequest request{
        .subject = "S", .content = "line\n100% \"x\"", .style = MessageStyle{"Monaco", 10, {}}};
    ASSERT_TRUE(sandboxed.compose(request));
    EXPECT_EQ(portal.messages, (QList<QPair<QString, QString>>{{"S", "line\n100% \"x\""}}));
    EXPECT_TRUE(launcher.launched.isEmpty());
    MessageRequest longRequest = request;
    longRequest.content = tooLong;
    ASSERT_TRUE(sandboxed.compose(longRequest));
    EXPECT_EQ(portal.messages.last(), qMakePair(QString("S"), QString()));
    EXPECT_EQ(pasteboard.content, tooLong);
    EXPECT_EQ(alerts.shown.size(), 1U);
    portal.answer = std::unexpected(QStringLiteral("no such name"));
    EXPECT_FALSE(sandboxed.compose(request));
    ASSERT_EQ(alerts.shown.size(), 2U);
    EXPECT_EQ(alerts.shown.back().messageText, QStringLiteral("No mail program could be reached"));
}

} // namespace quillet
