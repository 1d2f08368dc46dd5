#include "backends/programs/MailMessage.h"

#include "support/CpuTimer.h"

#include <QUrl>
#include <QUrlQuery>

#include <gtest/gtest.h>

namespace quillet {

namespace {

MessageRequest plain(const QString& subject, const QString& content) {
    return {.subject = subject, .content = content, .style = {}};
}

const MessageStyle style{
    .fontName = "Monaco", .fontSizePoints = 10, .color = {.red = 1, .green = 0.5, .blue = 0}};

MessageRequest styled(const QString& content) {
    return {.subject = "S", .content = content, .style = style};
}

} // namespace

TEST(MailMessageTest, TheAddressHoldsSubjectAndBodyEncoded) {
    EXPECT_EQ(mailtoAddress("March 1, 2024", "a b"),
              QStringLiteral("mailto:?subject=March%201%2C%202024&body=a%20b"));
    EXPECT_EQ(mailtoAddress("x", ""), QStringLiteral("mailto:?subject=x"));
    EXPECT_EQ(mailtoAddress("", "&body=x?#+%20\"'"),
              QStringLiteral("mailto:?subject=&body=%26body%3Dx%3F%23%2B%2520%22%27"));
    EXPECT_EQ(mailtoAddress("", QString::fromUtf8("ü€")),
              QStringLiteral("mailto:?subject=&body=%C3%BC%E2%82%AC"));
}

TEST(MailMessageTest, LinesOfTheBodyEndAsMailHasThem) {
    for (const char* body : {"a\nb\n", "a\r\nb\r\n", "a\rb\r"}) {
        EXPECT_EQ(mailtoAddress("", body), QStringLiteral("mailto:?subject=&body=a%0D%0Ab%0D%0A"));
    }
}

TEST(MailMessageTest, TheSubjectIsOneLineSoThatItCannotAddHeaders) {
    EXPECT_EQ(mailtoAddress("a\r\nBcc: b\tc", ""),
              QStringLiteral("mailto:?subject=a%20%20Bcc%3A%20b%20c"));
}

TEST(MailMessageTest, NothingInTheTextsReachesTheAddressRaw) {
    QString all;
    for (char16_t character = 1; character < 0x250; ++character) {
        all += QChar(character);
    }
    const QString address = mailtoAddress(all, all);
    for (const QChar character : QString(address).remove("&body=").mid(16)) {
        EXPECT_TRUE(character.isLetterOrNumber() || QStringView(u"-._~%").contains(character))
            << int(character.unicode());
    }
    QString expected = all;
    expected.replace('\r', '\n').replace("\n", "\r\n");
    EXPECT_EQ(QUrlQuery(QUrl(address)).queryItemValue("body", QUrl::FullyDecoded), expected);
}

TEST(MailMessageTest, ThePageShowsTheTextToTheLetterInItsStyle) {
    EXPECT_EQ(messagePage("a  b\n<b>&amp; \"x\"</b>\n\n c", style),
              QByteArray("<html><head><meta charset=\"utf-8\"></head><body>"
                         "<pre style=\"margin:0;font-family:Monaco, monospace;font-size:10pt;"
                         "color:#ff8000\">a  b<br>&lt;b&gt;&amp;amp; &quot;x&quot;&lt;/b&gt;<br>"
                         "<br> c</pre></body></html>"));
}

TEST(MailMessageTest, ThePageIsUtf8AndHoldsNoLineFeed) {
    const QByteArray page = messagePage(QString::fromUtf8("für\r\n„Anna“ 🎉"), style);
    EXPECT_FALSE(page.contains('\n'));
    EXPECT_TRUE(page.contains("für<br>„Anna“ 🎉</pre>"));
}

TEST(MailMessageTest, APageHoldsALineBreakForEachOfTheTextAndEveryCharacterButNull) {
    EXPECT_TRUE(
        messagePage("\ra\r\n\r\n\nb\n\r", style).contains("\"><br>a<br><br><br>b<br><br></pre>"));
    EXPECT_TRUE(messagePage(QStringLiteral("a") + QChar(QChar::Null) + "b\x01\\\"", style)
                    .contains("\">ab\x01\\&quot;</pre>"));
    EXPECT_TRUE(messagePage("", style).contains("\"></pre>"));
}

TEST(MailMessageTest, ThePageOfALongReportIsMadeInOnePass) {
    const QString content = QString(QString(197, u'x') + "<\"\n").repeated(100'000);
    const test::CpuTimer timer;
    const QByteArray page = messagePage(content, style);
    EXPECT_LT(timer.milliseconds(), 2000);
    EXPECT_EQ(page.count("x&lt;&quot;<br>"), 100'000);
}

TEST(MailMessageTest, AStyleCannotLeaveItsPlace) {
    const MessageStyle hostile{.fontName = "a\";}</style><script>b'\\",
                               .fontSizePoints = 1e9,
                               .color = {.red = -5, .green = 7, .blue = 0}};
    EXPECT_TRUE(messagePage("x", hostile)
                    .contains("<pre style=\"margin:0;font-family:astylescriptb, monospace;"
                              "font-size:100pt;color:#00ff00\">x</pre>"));
    EXPECT_TRUE(messagePage("x", {.fontName = "\"", .fontSizePoints = 0, .color = {}})
                    .contains("<pre style=\"margin:0;font-family:monospace;font-size:1pt;"));
}

TEST(MailMessageTest, WhatIsComposedFromAFileNamesItAndItsForm) {
    EXPECT_EQ(composeArgument(styled("x"), "/run/user/1000/quillet/message-1.html"),
              QStringLiteral("subject=S,format=html,"
                             "message=%2Frun%2Fuser%2F1000%2Fquillet%2Fmessage-1.html"));
    EXPECT_EQ(composeArgument(plain("a,body='x',b=\"y\"\nc", "x"), "/it's, mine/x.txt"),
              QStringLiteral("subject=a%2Cbody%3D%27x%27%2Cb%3D%22y%22%20c,format=text,"
                             "message=%2Fit%27s%2C%20mine%2Fx.txt"));
}

TEST(MailMessageTest, KMailGetsTheSubjectInOneArgumentWhateverItHolds) {
    EXPECT_EQ(kmailArguments(plain("--attach=/etc/passwd\n100% ü", "x"), "/a b/x.txt"),
              (QStringList{"--composer", "--subject=--attach=/etc/passwd 100% ü", "--msg",
                           "/a b/x.txt"}));
}

} // namespace quillet
