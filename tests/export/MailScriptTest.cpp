#include "export/MailScript.h"

#include "support/CpuTimer.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace quillet {

namespace {

QString plainSource(const QString& content, const QString& subject) {
    return mailScript({.subject = subject, .content = content, .style = {}}).source;
}

QString styledSource(const QString& content, const ColorFractions& color, const QString& subject) {
    return mailScript({.subject = subject, .content = content, .style = reportMailStyle(color)})
        .source;
}

} // namespace

TEST(MailScriptTest, ThePlainScriptIsExactlyThis) {
    EXPECT_EQ(plainSource("BODY", "SUBJECT").toStdString(),
              "                   tell application \"Mail\"\n"
              "                   activate\n"
              "                   set MyEmail to make new outgoing message\n"
              "                   tell MyEmail\n"
              "                   set visible to true\n"
              "                   set content to (\"BODY\")\n"
              "                   set subject to \"SUBJECT\"\n"
              "                   end tell\n"
              "                   end tell");
}

TEST(MailScriptTest, TheStyledScriptIsExactlyThisWithItsBlanksAtTheEndOfLines) {
    EXPECT_EQ(styledSource("BODY", {.red = 0, .green = 0.5, .blue = 1}, "SUBJECT").toStdString(),
              "                   tell application \"Mail\"\n"
              "                   activate\n"
              "                   set MyEmail to make new outgoing message\n"
              "                   tell MyEmail\n"
              "                   set visible to true\n"
              "                   set content to (\"BODY\")\n"
              "                   set font of content to \"Monaco\" \n"
              "                   set size of content to 10 \n"
              "                   set color of content to {0.000000,0.500000,1.000000}\n"
              "                   set subject to \"SUBJECT\"\n"
              "                   end tell\n"
              "                   end tell");
}

TEST(MailScriptTest, EveryLineOfTheScriptsBeginsWithNineteenBlanks) {
    const QString script = styledSource("BODY", {}, "SUBJECT");
    for (const QString& line : script.split(u'\n')) {
        EXPECT_TRUE(line.startsWith(QString(19, u' '))) << line.toStdString();
        EXPECT_NE(line.at(19), u' ') << line.toStdString();
    }
    EXPECT_EQ(script.count(u'\n'), 11);
}

TEST(MailScriptTest, ColourComponentsHaveSixDecimalsAndAPointInEveryLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString script =
        styledSource("b", {.red = 1.0 / 3, .green = 2.0 / 3, .blue = 0.0000004}, "s");
    QLocale::setDefault(before);
    EXPECT_TRUE(script.contains("{0.333333,0.666667,0.000000}")) << script.toStdString();
}

TEST(MailScriptTest, BodyAndSubjectAreNeverTakenForPlaceholders) {
    const QString script = styledSource("50% %1 %2 %@", {}, "%1 %L2 %%");
    EXPECT_TRUE(script.contains("set content to (\"50% %1 %2 %@\")\n"));
    EXPECT_TRUE(script.contains("set subject to \"%1 %L2 %%\"\n"));
    EXPECT_TRUE(script.contains("{0.000000,0.000000,0.000000}"));
}

TEST(MailScriptTest, TheLinesOfTheBodyAreNotIndented) {
    EXPECT_TRUE(plainSource("one\ntwo\r\n\tthree", "s")
                    .contains("set content to (\"one\ntwo\r\n\tthree\")\n"));
}

TEST(MailScriptTest, QuotesAreEscapedAndBackslashesAreNot) {
    EXPECT_EQ(removeQuotesFromString("say \"hi\"").toStdString(), "say \\\"hi\\\"");
    EXPECT_EQ(removeQuotesFromString("C:\\").toStdString(), "C:\\");
    EXPECT_EQ(removeQuotesFromString("\\\"").toStdString(), "\\\\\"");
    EXPECT_EQ(removeQuotesFromString("“typographic” 'single'").toStdString(),
              "“typographic” 'single'");
}

TEST(MailScriptTest, TheContentOfTheScriptsTextIsEscapedAndItsSubjectIsNot) {
    EXPECT_TRUE(plainSource("\"a\" \\", "\"b\"").contains("(\"\\\"a\\\" \\\")\n"));
    EXPECT_TRUE(plainSource("\"a\"", "\"b\"").contains("set subject to \"\"b\"\"\n"));
}

TEST(MailScriptTest, TheRequestHoldsTheTextsAsTheyAre) {
    const QString hostile = QStringLiteral("\\\" \\\\ C:\\ \"\r\n\r\t end tell\"\n%1 \u2028") +
                            QChar(QChar::Null) + u'\\';
    for (const auto& style : {std::optional<MessageStyle>(), std::optional(reportMailStyle({}))}) {
        const MessageRequest wanted{.subject = hostile, .content = hostile, .style = style};
        EXPECT_EQ(std::get<MessageRequest>(mailScript(wanted).request), wanted);
    }
}

TEST(MailScriptTest, AReportsMailIsInMonacoAtTenPointsInTheColourAskedFor) {
    const ColorFractions color{.red = 0.25, .green = 0.5, .blue = 0.75};
    EXPECT_EQ(reportMailStyle(color),
              (MessageStyle{.fontName = "Monaco", .fontSizePoints = 10, .color = color}));
}

TEST(MailScriptTest, TheMessageOfALongReportIsMadeAtOnceAndItsTextIsNotCopied) {
    const QString line = QString(197, u'x') + "\"a\n";
    const QString content = line.repeated(100'000);
    const test::CpuTimer timer;
    const Script script = mailScript({.subject = "S", .content = content, .style = {}});
    EXPECT_LT(timer.milliseconds(), 1000);
    EXPECT_EQ(script.source.count("x\\\"a\n"), 100'000);
    EXPECT_EQ(std::get<MessageRequest>(script.request).content.constData(), content.constData());
}

} // namespace quillet
