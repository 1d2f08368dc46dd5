#include "export/ExportTXT.h"

#include "TextExportFixture.h"
#include "export/MailScript.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace quillet {

namespace {

using test::utc;

class ExportTXTTest : public test::TextExportFixture {
protected:
    [[nodiscard]] ExportTXT exporter() { return ExportTXT(collaborators()); }
};

const std::string noticeText =
    "Quillet will not be able to format the text for this email due to a known applescript issue "
    "caused by Safari 5.0.\n\nIf you would like to use the standard text format that Quillet uses, "
    "format the font of the new email message to Monaco, size 10.\n";

const std::string plainScript = "                   tell application \"Mail\"\n"
                                "                   activate\n"
                                "                   set MyEmail to make new outgoing message\n"
                                "                   tell MyEmail\n"
                                "                   set visible to true\n"
                                "                   set content to (\"Report\")\n"
                                "                   set subject to \"January 1, 2015 - January 31, "
                                "2015\"\n"
                                "                   end tell\n"
                                "                   end tell";

} // namespace

TEST_F(ExportTXTTest, ThePanelAsksForATextFileAndHasNoMessage) {
    exporter().saveAsTxt();
    ASSERT_EQ(panel.requests.size(), 1U);
    EXPECT_EQ(panel.requests[0].fileType, QStringLiteral("txt"));
    EXPECT_EQ(panel.requests[0].message, QString());
    EXPECT_EQ(panel.requests[0].nameFieldLabel, QStringLiteral("Export as:"));
    EXPECT_EQ(panel.requests[0].startingFolder,
              QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    EXPECT_EQ(panel.requests[0].suggestedName, QStringLiteral("January 1 2015 - January 31 2015"));
}

TEST_F(ExportTXTTest, TheTimeOfDayOfThePeriodDoesNotShowInTheName) {
    settings.setObject("filterStartDate", QVariant::fromValue(utc(2015, 1, 1, 23, 59, 59)));
    settings.setObject("filterEndDate", QVariant::fromValue(utc(2015, 1, 31)));
    exporter().saveAsTxt();
    EXPECT_EQ(panel.requests[0].suggestedName, QStringLiteral("January 1 2015 - January 31 2015"));
}

TEST_F(ExportTXTTest, ThePanelSpeaksTheLanguageOfTheUser) {
    const test::CapitalTranslator translator;
    exporter().saveAsTxt();
    EXPECT_EQ(panel.requests[0].nameFieldLabel, QStringLiteral("EXPORT AS:"));
}

TEST_F(ExportTXTTest, SavesTheTextOfTheMomentWhenThePanelOpened) {
    const QTemporaryDir folder;
    text = QStringLiteral("Ünï \"50%\"\tcode\r\nzwei 😀");
    exporter().saveAsTxt();
    text = QStringLiteral("later");
    panel.pending(folder.filePath("a.txt"));
    EXPECT_EQ(bytesOf(folder.filePath("a.txt")), QByteArray("Ünï \"50%\"\tcode\r\nzwei 😀"));
    EXPECT_TRUE(panel.stopCodes.empty());
}

TEST_F(ExportTXTTest, SavesAnEmptyReportAsAnEmptyFile) {
    const QTemporaryDir folder;
    text = QString();
    exporter().saveAsTxt();
    panel.pending(folder.filePath("a.txt"));
    EXPECT_EQ(bytesOf(folder.filePath("a.txt")), QByteArray());
}

TEST_F(ExportTXTTest, OnlyTheSecondEncodingIsUtf16) {
    const QTemporaryDir folder;
    text = QStringLiteral("é");
    for (const auto& [stored, bytes] :
         {std::pair<QVariant, QByteArray>{1, QByteArray("\xFF\xFE\xE9\x00", 4)},
          {0, QByteArray("\xC3\xA9")},
          {2, QByteArray("\xC3\xA9")},
          {QString("1"), QByteArray("\xFF\xFE\xE9\x00", 4)},
          {QVariant(), QByteArray("\xC3\xA9")}}) {
        settings.setObject("fileEncodingPopUpIndex", stored);
        exporter().saveAsTxt();
        panel.pending(folder.filePath("a.txt"));
        EXPECT_EQ(bytesOf(folder.filePath("a.txt")), bytes);
    }
}

TEST_F(ExportTXTTest, AFailedWriteIsLoggedAndLeavesNothing) {
    const QTemporaryDir folder;
    exporter().saveAsTxt();
    const test::ExpectedLog log("TXT file write issue");
    panel.pending(folder.filePath("missing/a.txt"));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_TRUE(panel.stopCodes.empty());
}

TEST_F(ExportTXTTest, CancellingWritesNothing) {
    exporter().saveAsTxt();
    panel.pending(std::nullopt);
    EXPECT_TRUE(panel.stopCodes.empty());
}

TEST_F(ExportTXTTest, WithoutThatBrowserTheMailIsStyledInTheDesktopsTextColour) {
    color.color = {.red = 0.25, .green = 0.5, .blue = 0.75};
    exporter().sendToMail();
    EXPECT_EQ(script(), "                   tell application \"Mail\"\n"
                        "                   activate\n"
                        "                   set MyEmail to make new outgoing message\n"
                        "                   tell MyEmail\n"
                        "                   set visible to true\n"
                        "                   set content to (\"Report\")\n"
                        "                   set font of content to \"Monaco\" \n"
                        "                   set size of content to 10 \n"
                        "                   set color of content to {0.250000,0.500000,0.750000}\n"
                        "                   set subject to \"January 1, 2015 - January 31, 2015\"\n"
                        "                   end tell\n"
                        "                   end tell");
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(ExportTXTTest, OnlyExactlyThatVersionOfTheBrowserIsFeared) {
    for (const char* version : {"5.0.1", "5", "5.00", " 5.0", "15.0", ""}) {
        runner.sources.clear();
        installBrowser(version);
        exporter().sendToMail();
        EXPECT_NE(script().find("Monaco"), std::string::npos) << version;
    }
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(ExportTXTTest, WithThatBrowserTheUserIsWarnedAndTheMailIsPlain) {
    installBrowser("5.0");
    exporter().sendToMail();
    EXPECT_EQ(script(), plainScript);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].style, AlertStyle::Warning);
    EXPECT_EQ(alerts.shown[0].messageText, QStringLiteral("Safari 5.0 is installed on this Mac"));
    EXPECT_EQ(alerts.shown[0].informativeText.toStdString(), noticeText);
    EXPECT_EQ(alerts.shown[0].buttonTitles, (QStringList{"Close", "Ignore"}));
}

TEST_F(ExportTXTTest, ClosingTheWarningLetsItComeAgain) {
    installBrowser("5.0");
    exporter().sendToMail();
    EXPECT_FALSE(hasKey(settings, "safari50ExportNotice"));
    exporter().sendToMail();
    EXPECT_EQ(alerts.shown.size(), 2U);
    EXPECT_EQ(runner.sources.size(), 2);
}

TEST_F(ExportTXTTest, IgnoringTheWarningEndsItForGood) {
    installBrowser("5.0");
    alerts.answer = 1;
    exporter().sendToMail();
    EXPECT_EQ(settings.object("safari50ExportNotice"), QVariant(true));
    EXPECT_EQ(script(), plainScript) << "the export goes on";
    exporter().sendToMail();
    EXPECT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(runner.sources.size(), 2);
}

TEST_F(ExportTXTTest, TheWarningStaysAwayForAnyStoredAnswer) {
    installBrowser("5.0");
    settings.setObject("safari50ExportNotice", false);
    exporter().sendToMail();
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(script(), plainScript);
}

TEST_F(ExportTXTTest, QuotesInTheReportAreEscapedForTheScript) {
    text = QStringLiteral("say \"hi\" at 50%%\nC:\\");
    exporter().sendToMail();
    EXPECT_NE(script().find("set content to (\"say \\\"hi\\\" at 50%%\nC:\\\")\n"),
              std::string::npos)
        << script();
}

TEST_F(ExportTXTTest, TheMessageHoldsTheReportAsItIsWhateverStandsInIt) {
    text = QStringLiteral("say \"hi\" at 50%%\nC:\\new \\\"\r\n\tend tell") + QChar(QChar::Null) +
           u'\\';
    color.color = {.red = 0.25, .green = 0.5, .blue = 0.75};
    exporter().sendToMail();
    ASSERT_EQ(runner.requests.size(), 1U);
    EXPECT_EQ(std::get<MessageRequest>(runner.requests.front()),
              (MessageRequest{.subject = "January 1, 2015 - January 31, 2015",
                              .content = text,
                              .style = reportMailStyle(color.color)}));
}

TEST_F(ExportTXTTest, AnEmptyReportIsMailedAsABlank) {
    text = QString();
    exporter().sendToMail();
    EXPECT_EQ(std::get<MessageRequest>(runner.requests.front()).content, QStringLiteral(" "));
    EXPECT_NE(script().find("set content to (\" \")\n"), std::string::npos);
}

TEST_F(ExportTXTTest, ALongReportShowsItsProgressUntilItIsThere) {
    exporter().saveAsTxt();
    exporter().sendToMail();
    EXPECT_EQ(progress.labels, (QStringList{"Preparing the text…", "Preparing the text…"}));
    EXPECT_EQ(progress.steps,
              (std::vector<std::pair<std::size_t, std::size_t>>{{1000, 1500}, {1000, 1500}}));
    EXPECT_EQ(progress.openRuns, 0);
}

TEST_F(ExportTXTTest, ACancelledReportIsNeitherSavedNorMailed) {
    progress.answer = [] { return false; };
    installBrowser("5.0");
    exporter().saveAsTxt();
    exporter().sendToMail();
    EXPECT_TRUE(panel.requests.empty());
    EXPECT_TRUE(runner.sources.isEmpty());
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(ExportTXTTest, AScriptThatFailsIsNotTold) {
    runner.answer = std::unexpected(QStringLiteral("no mail program"));
    exporter().sendToMail();
    EXPECT_EQ(runner.sources.size(), 1);
    EXPECT_TRUE(alerts.shown.empty());
}

} // namespace quillet
