#include "export/ExportTSV.h"

#include "DelimitedFixture.h"
#include "export/ExportCSV.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace quillet {

namespace {

class ExportTSVTest : public test::DelimitedFixture {
protected:
    [[nodiscard]] ExportTSV exporter() { return ExportTSV(collaborators()); }
    [[nodiscard]] std::string text() { return exporter().text().toStdString(); }
};

} // namespace

TEST_F(ExportTSVTest, WritesTheRecordsOfTheCsvFileWithTabsBetweenTheFields) {
    addEvent("Meeting", "Bring \"it\"");
    show({"date", "hours", "title", "notes", "url", "location", "cost"});
    settings.setObject("isCSVIncludeUID", true);
    EXPECT_EQ(text(), "\"uid\"\t\"Start Date\"\t\"Hours\"\t\"Title\"\t\"Notes\"\t\"URL\"\t"
                      "\"Location\"\t\"Cost\"\n"
                      "\"uid-1\"\t\"3/4/24\"\t\"1.5\"\t\"Meeting\"\t\"Bring \"\"it\"\"\"\t\t\t"
                      "\"$150.00\"\n");
}

TEST_F(ExportTSVTest, ADecimalCommaChangesTheNumbersAndNotTheSeparator) {
    useLocale("de_DE");
    addEvent("Treffen");
    show({"title", "hours"});
    EXPECT_EQ(text(), "\"Hours\"\t\"Title\"\n\"1,5\"\t\"Treffen\"\n");
}

TEST_F(ExportTSVTest, ATabInAValueSplitsItsField) {
    EventDetails details;
    details.calendar = test::calendarNamed("wo\trk");
    details.title = "one\ttwo";
    details.notes = "three\tfour";
    details.location = "five\tsix";
    addEvent(std::move(details));
    show({"title", "notes", "location", "calendar"});
    settings.setObject("isCSVHeader", false);
    EXPECT_EQ(text(), "\"one\ttwo\"\t\"three\tfour\"\t\"five\tsix\"\t\"wo\trk\"\n");
    for (const char* key : {"isCSVQuotesForTitle", "isCSVQuotesForNote", "isCSVQuotesForLocation",
                            "isCSVQuotesForCalendar"}) {
        settings.setObject(key, false);
    }
    EXPECT_EQ(text(), "one\ttwo\tthree\tfour\tfive\tsix\two\trk\n");
}

TEST_F(ExportTSVTest, TheSwitchesOfTheCsvFileServeItToo) {
    addEvent("say \"a\"\nb");
    show({"title"});
    settings.setObject("isCSVHeader", false);
    settings.setObject("isCSVRemoveReturns", true);
    EXPECT_EQ(text(), "\"say \"\"a\"\" b\"\n");
    settings.setObject("isCSVQuotesForTitle", false);
    EXPECT_EQ(text(), "say \"a\" b\n");
}

TEST_F(ExportTSVTest, WithoutAnyFieldTheWholeFileIsOneLineFeed) {
    addEvent("a");
    addEvent("b");
    show({});
    EXPECT_EQ(text(), "\n");
}

TEST_F(ExportTSVTest, WithoutHeaderAndEventsTheFileIsEmpty) {
    settings.setObject("isCSVHeader", false);
    EXPECT_EQ(text(), "");
}

TEST_F(ExportTSVTest, AnEmptySelectionLeavesTheHeaderAlone) {
    addEvent("a");
    show({"title"});
    settings.setObject("totalsTabViewSelection", 1);
    EXPECT_EQ(text(), "\"Title\"\n");
    exporter().saveAsTSV();
    EXPECT_EQ(panel.requests[0].message, QStringLiteral("Selected Events"));
}

TEST_F(ExportTSVTest, ThePanelAsksForATextFile) {
    exporter().saveAsTSV();
    ASSERT_EQ(panel.requests.size(), 1U);
    EXPECT_EQ(panel.requests[0].fileType, QStringLiteral("txt"));
    EXPECT_EQ(panel.requests[0].message, QStringLiteral("All Events"));
    EXPECT_EQ(panel.requests[0].nameFieldLabel, QStringLiteral("Export as:"));
    EXPECT_EQ(panel.requests[0].suggestedName, QStringLiteral("March 1 2024 - March 31 2024"));
    EXPECT_EQ(panel.requests[0].startingFolder,
              QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
}

TEST_F(ExportTSVTest, SavingLeavesTheModalSessionAlone) {
    const QTemporaryDir folder;
    addEvent("Ünï");
    show({"title"});
    settings.setObject("fileEncodingPopUpIndex", 2);
    exporter().saveAsTSV();
    panel.pending(folder.filePath("a.txt"));
    EXPECT_EQ(bytesOf(folder.filePath("a.txt")), QByteArray("\"Title\"\n\"Ünï\"\n"));
    EXPECT_TRUE(panel.stopCodes.empty());
}

TEST_F(ExportTSVTest, SavesUtf16WithAByteOrderMarkWhenAskedTo) {
    const QTemporaryDir folder;
    addEvent("a");
    addEvent("b");
    show({"title", "location"});
    settings.setObject("isCSVHeader", false);
    settings.setObject("fileEncodingPopUpIndex", 1);
    exporter().saveAsTSV();
    panel.pending(folder.filePath("a.txt"));
    EXPECT_EQ(bytesOf(folder.filePath("a.txt")),
              QByteArray("\xFF\xFE\"\0a\0\"\0\t\0\n\0\"\0b\0\"\0\t\0\n\0", 22));
}

TEST_F(ExportTSVTest, AFailedWriteIsLoggedAndLeavesNothing) {
    const QTemporaryDir folder;
    exporter().saveAsTSV();
    const test::ExpectedLog log("TSV file write issue");
    panel.pending(folder.filePath("missing/a.txt"));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_TRUE(panel.stopCodes.empty());
}

TEST_F(ExportTSVTest, CancellingWritesNothing) {
    exporter().saveAsTSV();
    panel.pending(std::nullopt);
    EXPECT_TRUE(panel.stopCodes.empty());
}

} // namespace quillet
