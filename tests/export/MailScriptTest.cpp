#include "export/MailScript.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace quillet {

TEST(MailScriptTest, ThePlainScriptIsExactlyThis) {
    EXPECT_EQ(plainMailScript("BODY", "SUBJECT").toStdString(),
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
    EXPECT_EQ(
        styledMailScript("BODY", {.red = 0, .green = 0.5, .blue = 1}, "SUBJECT").toStdString(),
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
    const QString script = styledMailScript("BODY", {}, "SUBJECT");
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
        styledMailScript("b", {.red = 1.0 / 3, .green = 2.0 / 3, .blue = 0.0000004}, "s");
    QLocale::setDefault(before);
    EXPECT_TRUE(script.contains("{0.333333,0.666667,0.000000}")) << script.toStdString();
}

TEST(MailScriptTest, BodyAndSubjectAreNeverTakenForPlaceholders) {
    const QString script = styledMailScript("50% %1 %2 %@", {}, "%1 %L2 %%");
    EXPECT_TRUE(script.contains("set content to (\"50% %1 %2 %@\")\n"));
    EXPECT_TRUE(script.contains("set subject to \"%1 %L2 %%\"\n"));
    EXPECT_TRUE(script.contains("{0.000000,0.000000,0.000000}"));
}

TEST(MailScriptTest, TheLinesOfTheBodyAreNotIndented) {
    EXPECT_TRUE(plainMailScript("one\ntwo\r\n\tthree", "s")
                    .contains("set content to (\"one\ntwo\r\n\tthree\")\n"));
}

TEST(MailScriptTest, QuotesAreEscapedAndBackslashesAreNot) {
    EXPECT_EQ(removeQuotesFromString("say \"hi\"").toStdString(), "say \\\"hi\\\"");
    EXPECT_EQ(removeQuotesFromString("C:\\").toStdString(), "C:\\");
    EXPECT_EQ(removeQuotesFromString("\\\"").toStdString(), "\\\\\"");
    EXPECT_EQ(removeQuotesFromString("“typographic” 'single'").toStdString(),
              "“typographic” 'single'");
}

} // namespace quillet
