#include "export/ExportNotes.h"

#include "TextExportFixture.h"

#include <QDir>
#include <QTemporaryDir>

namespace quillet {

namespace {

class ExportNotesTest : public test::TextExportFixture {
protected:
    [[nodiscard]] ExportNotes exporter() { return ExportNotes(collaborators()); }
};

const std::string plainScript =
    "                   tell application \"Mail\"\n"
    "                   activate\n"
    "                   set MyEmail to make new outgoing message\n"
    "                   tell MyEmail\n"
    "                   set visible to true\n"
    "                   set content to (\"Report\")\n"
    "                   set subject to \"Event Notes - January 1, 2015 - January 31, 2015\"\n"
    "                   end tell\n"
    "                   end tell";

} // namespace

TEST_F(ExportNotesTest, TheNameBeginsWithWhatItIs) {
    exporter().saveAsTxt();
    ASSERT_EQ(panel.requests.size(), 1U);
    EXPECT_EQ(panel.requests[0].suggestedName,
              QStringLiteral("Event Notes - January 1 2015 - January 31 2015"));
    EXPECT_EQ(panel.requests[0].fileType, QStringLiteral("txt"));
    EXPECT_EQ(panel.requests[0].message, QString());
}

TEST_F(ExportNotesTest, TheTitleIsTranslatedAndTheLabelOfTheFieldIsNot) {
    const test::CapitalTranslator translator;
    exporter().saveAsTxt();
    exporter().sendToMail();
    EXPECT_EQ(panel.requests[0].nameFieldLabel, QStringLiteral("Export as:"));
    EXPECT_EQ(panel.requests[0].suggestedName,
              QStringLiteral("EVENT NOTES - January 1 2015 - January 31 2015"));
    EXPECT_NE(script().find("\"EVENT NOTES - January 1, 2015 - January 31, 2015\""),
              std::string::npos);
}

TEST_F(ExportNotesTest, SavesTheDigestInTheChosenEncoding) {
    const QTemporaryDir folder;
    text = QStringLiteral("n\n");
    exporter().saveAsTxt();
    panel.pending(folder.filePath("a.txt"));
    EXPECT_EQ(bytesOf(folder.filePath("a.txt")), QByteArray("n\n"));
    settings.setObject("fileEncodingPopUpIndex", 1);
    exporter().saveAsTxt();
    panel.pending(folder.filePath("a.txt"));
    EXPECT_EQ(bytesOf(folder.filePath("a.txt")), QByteArray("\xFF\xFEn\0\n\0", 6));
    EXPECT_TRUE(panel.stopCodes.empty());
}

TEST_F(ExportNotesTest, AFailedWriteHasALineOfItsOwn) {
    const QTemporaryDir folder;
    exporter().saveAsTxt();
    const test::ExpectedLog log("Notes TXT file write issue");
    panel.pending(folder.filePath("missing/a.txt"));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(ExportNotesTest, TheMailIsPlainEvenWhereTheReportsIsStyled) {
    exporter().sendToMail();
    EXPECT_EQ(script(), plainScript);
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(ExportNotesTest, ThatBrowserOnlyBringsTheWarning) {
    installBrowser("5.0");
    alerts.answer = 1;
    exporter().sendToMail();
    exporter().sendToMail();
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, QStringLiteral("Safari 5.0 is installed on this Mac"));
    EXPECT_EQ(settings.object("safari50ExportNotice"), QVariant(true));
    EXPECT_EQ(runner.sources.size(), 2);
    EXPECT_EQ(script(), plainScript);
}

TEST_F(ExportNotesTest, WithoutNotesTheMailHoldsABlank) {
    text = QStringLiteral("");
    exporter().sendToMail();
    EXPECT_NE(script().find("set content to (\" \")\n"), std::string::npos);
}

} // namespace quillet
