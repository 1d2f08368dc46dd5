#include "export/ExportCSV.h"

#include "DelimitedFixture.h"
#include "export/DelimitedText.h"

#include <QDir>
#include <QTemporaryDir>

namespace quillet {

namespace {

class ExportCSVTest : public test::DelimitedFixture {
protected:
    [[nodiscard]] ExportCSV exporter() { return ExportCSV(collaborators()); }
    [[nodiscard]] std::string text() { return exporter().text().toStdString(); }
};

} // namespace

TEST_F(ExportCSVTest, WritesTheVisibleColumnsInDisplayOrder) {
    addEvent("Meeting", "Bring \"it\"");
    EXPECT_EQ(text(),
              "\"Start Date\",\"Hours\",\"Title\",\"Notes\",\"URL\",\"Location\",\"Start Weekday\","
              "\"End Weekday\",\"Cost\",\"Start Time\",\"End Time\",\"End Date\",\"Calendar\","
              "\"Rate\",\"Duration\",\"Minutes\"\n"
              "\"3/4/24\",\"1.5\",\"Meeting\",\"Bring \"\"it\"\"\",,,\"Monday\",\"Monday\","
              "\"$150.00\",\"9:00\u202fAM\",\"10:30\u202fAM\",\"3/4/24\",\"work\",\"$100.00\","
              "\"1h 30m\",\"90\"\n");
    show({"title", "hours"});
    table.moveColumn(table.positionOf("title"), 0);
    EXPECT_EQ(text(), "\"Title\",\"Hours\"\n\"Meeting\",\"1.5\"\n");
}

TEST_F(ExportCSVTest, ADecimalCommaMakesSemicolons) {
    useLocale("de_DE");
    addEvent("Treffen");
    show({"title", "hours", "cost"});
    EXPECT_EQ(text(), "\"Hours\";\"Title\";\"Cost\"\n\"1,5\";\"Treffen\";\"150,00\u00a0€\"\n");
    EXPECT_EQ(csvSeparator("."), u',');
    EXPECT_EQ(csvSeparator(","), u';');
    EXPECT_EQ(csvSeparator(QString::fromUtf8("٫")), u',');
}

TEST_F(ExportCSVTest, WithQuotingOffATextIsBareAndNotEscaped) {
    addEvent("Say \"hi\"");
    show({"title"});
    settings.setObject("isCSVHeader", false);
    EXPECT_EQ(text(), "\"Say \"\"hi\"\"\"\n");
    settings.setObject("isCSVQuotesForTitle", false);
    EXPECT_EQ(text(), "Say \"hi\"\n");
}

TEST_F(ExportCSVTest, LineFeedsStayUnlessTheyAreRemoved) {
    addEvent("T", "one\ntwo\r\nthree");
    show({"notes"});
    settings.setObject("isCSVHeader", false);
    EXPECT_EQ(text(), "\"one\ntwo\r\nthree\"\n");
    settings.setObject("isCSVQuotesForNote", false);
    EXPECT_EQ(text(), "one\ntwo\r\nthree\n");
    settings.setObject("isCSVRemoveReturns", true);
    EXPECT_EQ(text(), "one two\r three\n") << "only line feeds are replaced";
}

TEST_F(ExportCSVTest, MissingTextsAreEmptyFields) {
    addEvent("T");
    show({"title", "notes", "url", "location"});
    EXPECT_EQ(text(), "\"Title\",\"Notes\",\"URL\",\"Location\"\n\"T\",,,\n");
    addEvent(nullptr, "N");
    EXPECT_TRUE(QString::fromStdString(text()).endsWith("\n,\"N\",,\n"));
}

TEST_F(ExportCSVTest, EmptyTextsAreNotMissingAndAreQuotedWhereQuotingIsOn) {
    EventDetails details;
    details.title = "";
    details.notes = "";
    details.location = "";
    details.url = "";
    addEvent(std::move(details));
    show({"title", "notes", "location", "url"});
    settings.setObject("isCSVHeader", false);
    EXPECT_EQ(text(), "\"\",\"\",\"\",\"\"\n");
    settings.setObject("isCSVQuotesForNote", false);
    EXPECT_EQ(text(), "\"\",,\"\",\"\"\n");
}

TEST_F(ExportCSVTest, TheIdentifierComesFirst) {
    addEvent("T");
    show({"title"});
    settings.setObject("isCSVIncludeUID", true);
    EXPECT_EQ(text(), "\"uid\",\"Title\"\n\"uid-1\",\"T\"\n");
}

TEST_F(ExportCSVTest, WithoutAnyFieldTheWholeFileIsOneLineFeed) {
    addEvent("a");
    addEvent("b");
    show({});
    EXPECT_EQ(text(), "\n");
    settings.setObject("isCSVHeader", false);
    EXPECT_EQ(text(), "\n");
}

TEST_F(ExportCSVTest, WithoutHeaderAndEventsTheFileIsEmpty) {
    settings.setObject("isCSVHeader", false);
    EXPECT_EQ(text(), "");
}

TEST_F(ExportCSVTest, TitlesOfColumnsAreNotEscaped) {
    settings.setObject("titleColumnTitle", "A \"B\"");
    show({"title"});
    EXPECT_EQ(text(), "\"A \"B\"\"\n");
}

TEST_F(ExportCSVTest, WithMoneyOffTheCostIsAMissingValue) {
    addEvent("T");
    show({"cost"});
    settings.setObject("isDollarsOn", false);
    settings.setObject("isCSVHeader", false);
    EXPECT_EQ(text(), "\"(null)\"\n");
}

TEST_F(ExportCSVTest, AMissingIdentifierOrCalendarTitleIsNullInParentheses) {
    EventDetails details;
    details.title = "T";
    details.calendar = test::calendarNamed(QString());
    events.push_back({test::utc(2024, 3, 4, 9), test::utc(2024, 3, 4, 10), Instant(),
                      std::make_shared<const EventDetails>(std::move(details))});
    list.setContent(events);
    show({"calendar"});
    settings.setObject("isCSVHeader", false);
    settings.setObject("isCSVIncludeUID", true);
    EXPECT_EQ(text(), "\"(null)\",\"(null)\"\n");
    settings.setObject("isCSVQuotesForCalendar", false);
    EXPECT_EQ(text(), "\"(null)\",(null)\n");
}

TEST_F(ExportCSVTest, TheSelectedEventsAloneCanBeExported) {
    addEvent("a");
    addEvent("b");
    show({"title"});
    list.setSelectedRows({1});
    settings.setObject("totalsTabViewSelection", 1);
    EXPECT_EQ(text(), "\"Title\"\n\"b\"\n");
    exporter().saveAsCSV();
    EXPECT_EQ(panel.requests.back().message, QStringLiteral("Selected Events"));
}

TEST_F(ExportCSVTest, ThePanelSuggestsThePeriod) {
    exporter().saveAsCSV();
    ASSERT_EQ(panel.requests.size(), 1U);
    EXPECT_EQ(panel.requests[0].suggestedName, QStringLiteral("March 1 2024 - March 31 2024"));
    EXPECT_EQ(panel.requests[0].fileType, QStringLiteral("csv"));
    EXPECT_EQ(panel.requests[0].message, QStringLiteral("All Events"));
    EXPECT_EQ(panel.requests[0].nameFieldLabel, QStringLiteral("Export as:"));
}

TEST_F(ExportCSVTest, SavesTheTextAsItWasWhenThePanelOpened) {
    const QTemporaryDir folder;
    addEvent("Ünï");
    show({"title"});
    settings.setObject("isCSVHeader", false);
    exporter().saveAsCSV();
    list.setContent(std::vector<Event>());
    panel.pending(folder.filePath("a.csv"));
    EXPECT_EQ(bytesOf(folder.filePath("a.csv")), QByteArray("\"Ünï\"\n"));
    EXPECT_EQ(panel.stopCodes, std::vector<int>{1});
}

TEST_F(ExportCSVTest, SavesUtf16WithAByteOrderMarkWhenAskedTo) {
    const QTemporaryDir folder;
    addEvent("a");
    show({"title"});
    settings.setObject("isCSVHeader", false);
    settings.setObject("fileEncodingPopUpIndex", 1);
    exporter().saveAsCSV();
    panel.pending(folder.filePath("a.csv"));
    EXPECT_EQ(bytesOf(folder.filePath("a.csv")), QByteArray("\xFF\xFE\"\0a\0\"\0\n\0", 10));
}

TEST_F(ExportCSVTest, AFailedWriteIsLoggedAndLeavesNothing) {
    const QTemporaryDir folder;
    exporter().saveAsCSV();
    const test::ExpectedLog log("CSV file write issue");
    panel.pending(folder.filePath("missing/a.csv"));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_EQ(panel.stopCodes, std::vector<int>{1});
}

TEST_F(ExportCSVTest, ThePanelSuggestsTheLongDatesWithoutSlashesAndCommas) {
    useLocale("ja_JP");
    exporter().saveAsCSV();
    EXPECT_EQ(panel.requests[0].suggestedName, QString::fromUtf8("2024年3月1日 - 2024年3月31日"));
    settings.remove("filterEndDate");
    exporter().saveAsCSV();
    EXPECT_EQ(panel.requests[1].suggestedName, QString::fromUtf8("2024年3月1日 - (null)"));
}

TEST_F(ExportCSVTest, TheEncodingIsTheOneOfTheMomentWhenTheUserConfirms) {
    const QTemporaryDir folder;
    settings.setObject("isCSVHeader", false);
    addEvent("a");
    show({"title"});
    exporter().saveAsCSV();
    settings.setObject("fileEncodingPopUpIndex", 1);
    panel.pending(folder.filePath("a.csv"));
    EXPECT_EQ(bytesOf(folder.filePath("a.csv")), QByteArray("\xFF\xFE\"\0a\0\"\0\n\0", 10));
}

TEST_F(ExportCSVTest, ATextBeyondTheBasicPlaneKeepsItsPairsInUtf16) {
    const QTemporaryDir folder;
    settings.setObject("isCSVHeader", false);
    settings.setObject("isCSVQuotesForTitle", false);
    settings.setObject("fileEncodingPopUpIndex", 1);
    addEvent("😀");
    show({"title"});
    exporter().saveAsCSV();
    panel.pending(folder.filePath("a.csv"));
    EXPECT_EQ(bytesOf(folder.filePath("a.csv")), QByteArray("\xFF\xFE\x3D\xD8\x00\xDE\n\0", 8));
}

TEST_F(ExportCSVTest, AFailedWriteLeavesTheOldFileAsItWas) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.csv");
    {
        QFile old(path);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        ASSERT_EQ(old.write("old"), 3);
    }
    // A folder stands where the file should be written: nobody can write it, the superuser neither.
    ASSERT_TRUE(QDir(folder.path()).mkdir("taken.csv"));
    addEvent("new");
    exporter().saveAsCSV();
    {
        const test::ExpectedLog log("CSV file write issue");
        panel.pending(folder.filePath("taken.csv"));
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{"a.csv", "taken.csv"}));
    EXPECT_EQ(bytesOf(path), QByteArray("old"));
}

TEST_F(ExportCSVTest, AColumnOfAnUnknownIdentifierHasATitleAndNoField) {
    addEvent("T");
    DelimitedText csv({{"title", "Title"}, {"colour", "Colour"}}, {}, *fields, u',');
    csv.appendHeader();
    csv.appendEvent(events.front());
    EXPECT_EQ(csv.text(), "\"Title\",\"Colour\"\n\"T\"\n");
}

TEST_F(ExportCSVTest, TimeOutsideThePeriodIsWrittenWithoutItsMinusSign) {
    addEvent("T");
    show({"hours", "minutes", "cost"});
    settings.setObject("isCSVHeader", false);
    settings.setObject("filterStartDate", QVariant::fromValue(test::utc(2024, 3, 5)));
    EXPECT_EQ(text(), "\"13.5\",\"$1,350.00\",\"810\"\n");
}

TEST_F(ExportCSVTest, OnlyTheFourFreeTextsAreEscapedAndFreedOfLineFeeds) {
    EventDetails details;
    details.calendar = test::calendarNamed("wo\n\"rk\"");
    details.title = "ti\n\"tle\"";
    details.notes = "no\n\"tes\"";
    details.location = "pla\n\"ce\"";
    details.url = "https://a/\n\"b\"";
    addEvent(std::move(details));
    show({"title", "notes", "url", "location", "calendar"});
    settings.setObject("isCSVHeader", false);
    settings.setObject("isCSVRemoveReturns", true);
    EXPECT_EQ(text(), "\"ti \"\"tle\"\"\",\"no \"\"tes\"\"\",\"https://a/\n\"b\"\","
                      "\"pla \"\"ce\"\"\",\"wo \"\"rk\"\"\"\n");
}

TEST_F(ExportCSVTest, AsksAfterEveryThousandEventsWhetherToGoOn) {
    addEvent("T");
    list.setContent(EventList(2500, events[0]));
    exporter().saveAsCSV();
    EXPECT_EQ(progress.steps,
              (std::vector<std::pair<std::size_t, std::size_t>>{{1000, 2500}, {2000, 2500}}));
    EXPECT_EQ(progress.labels, (QStringList{"Preparing the events…"}));
    EXPECT_EQ(progress.openRuns, 0) << "the progress is gone when the panel opens";
    EXPECT_EQ(panel.requests.size(), 1U);
}

TEST_F(ExportCSVTest, ACancelledExportAsksForNoPlace) {
    addEvent("T");
    list.setContent(EventList(2500, events[0]));
    progress.answer = [] { return false; };
    exporter().saveAsCSV();
    EXPECT_EQ(progress.steps.size(), 1U);
    EXPECT_EQ(progress.openRuns, 0);
    EXPECT_TRUE(panel.requests.empty());
    EXPECT_TRUE(panel.stopCodes.empty());
}

TEST_F(ExportCSVTest, WhatChangesWhileALongExportRunsDoesNotShowInIt) {
    addEvent("T");
    list.setContent(EventList(1500, events[0]));
    settings.setObject("isCSVHeader", false);
    show({"title", "cost"});
    const QTemporaryDir folder;
    progress.answer = [this] {
        settings.setObject("hourlyRate", 1);
        settings.setObject("isCSVQuotesForTitle", false);
        table.column("title").setHidden(true);
        list.setContent(EventList());
        return true;
    };
    exporter().saveAsCSV();
    panel.pending(folder.filePath("a.csv"));
    EXPECT_EQ(bytesOf(folder.filePath("a.csv")), QByteArray("\"T\",\"$150.00\"\n").repeated(1500));
}

TEST_F(ExportCSVTest, CancellingWritesNothing) {
    exporter().saveAsCSV();
    panel.pending(std::nullopt);
    EXPECT_TRUE(panel.stopCodes.empty());
}

} // namespace quillet
