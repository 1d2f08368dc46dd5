#include "backends/programs/MailMessage.h"

#include <QUrl>
#include <QUrlQuery>

#include <gtest/gtest.h>

namespace quillet {

namespace {

MessageRequest plain(const QString& subject, const QString& content) {
    return {
        .subject = subject, .content = content, .fontName = {}, .fontSizePoints = {}, .color = {}};
}

MessageRequest styled(const QString& content) {
    return {.subject = "S",
            .content = content,
            .fontName = "Monaco",
            .fontSizePoints = 10,
            .color = ColorFractions{.red = 1, .green = 0.5, .blue = 0}};
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
    EXPECT_EQ(messagePage(styled("a  b\n<b>&amp; \"x\"</b>\n\n c")),
              QByteArray("<html><head><meta charset=\"utf-8\"></head><body>"
                         "<pre style=\"margin:0;font-family:Monaco, monospace;font-size:10pt;"
                         "color:#ff8000\">a  b<br>&lt;b&gt;&amp;amp; &quot;x&quot;&lt;/b&gt;<br>"
                         "<br> c</pre></body></html>"));
}

TEST(MailMessageTest, ThePageIsUtf8AndHoldsNoLineFeed) {
    const QByteArray page = messagePage(styled(QString::fromUtf8("für\r\n„Anna“ 🎉")));
    EXPECT_FALSE(page.contains('\n'));
    EXPECT_TRUE(page.contains("für<br>„Anna“ 🎉</pre>"));
}

TEST(MailMessageTest, AStyleCannotLeaveItsPlace) {
    MessageRequest request = styled("x");
    request.fontName = "a\";}</style><script>b'\\";
    request.fontSizePoints = 1e9;
    request.color = ColorFractions{.red = -5, .green = 7, .blue = 0};
    EXPECT_TRUE(messagePage(request).contains(
        "<pre style=\"margin:0;font-family:astylescriptb, monospace;font-size:100pt;"
        "color:#00ff00\">x</pre>"));
    request.fontName = "\"";
    request.fontSizePoints.reset();
    request.color.reset();
    EXPECT_TRUE(messagePage(request).contains("<pre style=\"margin:0;font-family:monospace\">x"));
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

TEST(MailMessageTest, AnyOneStyleMakesARequestStyled) {
    MessageRequest request = plain("s", "x");
    EXPECT_FALSE(isStyled(request));
    request.fontSizePoints = 10;
    EXPECT_TRUE(isStyled(request));
    request.fontSizePoints.reset();
    request.color = ColorFractions();
    EXPECT_TRUE(isStyled(request));
}

} // namespace quillet
