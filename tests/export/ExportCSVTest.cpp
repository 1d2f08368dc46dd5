#include "export/ExportCSV.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "support/EventSamples.h"
#include "support/EventTableFake.h"
#include "support/ExpectedLog.h"
#include "support/MemorySettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

class ExportCSVTest : public testing::Test {
protected:
    ExportCSVTest() {
        for (const char* key :
             {"isCSVHeader", "isCSVQuotesForTitle", "isCSVQuotesForNote", "isCSVQuotesForLocation",
              "isCSVQuotesForCalendar", "isSingleRate", "isDollarsOn"}) {
            settings.setObject(key, true);
        }
        settings.setObject("hourlyRate", 100);
        settings.setObject("timeTypeSelection", 1);
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31, 23, 59, 59)));
        useLocale("en_US");
    }
    void useLocale(const char* locale) {
        const QString name = QString::fromLatin1(locale);
        exporter.reset();
        formats = std::make_unique<IcuLocaleFormats>(LocaleNames{name, name, name}, "UTC");
        fields = std::make_unique<EventFields>(source, *formats, calendar, calendar);
        exporter = std::make_unique<ExportCSV>(
            ExportCSV::Collaborators{settings, table, list, *fields, panel});
    }
    void show(std::initializer_list<const char*> identifiers) {
        for (const auto& column : table.columns) {
            column->hidden = true;
        }
        for (const char* identifier : identifiers) {
            table.column(identifier).hidden = false;
        }
    }
    void addEvent(const char* title, const char* notes = nullptr) {
        EventDetails details;
        details.calendar = test::calendarNamed("work");
        details.title = QString::fromUtf8(title);
        details.notes = QString::fromUtf8(notes);
        details.eventIdentifier = "uid-1";
        events.push_back({utc(2024, 3, 4, 9), utc(2024, 3, 4, 10, 30), Instant(),
                          std::make_shared<const EventDetails>(std::move(details))});
        list.setContent(events);
    }
    std::string text() { return exporter->text().toStdString(); }

    test::MemorySettings settings;
    test::FakeTable table = test::eventTable();
    test::FakeSavePanel panel;
    ListController<Event> list;
    std::vector<Event> events;
    IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    BillingSettingsSource source{settings, calendar};
    std::unique_ptr<IcuLocaleFormats> formats;
    std::unique_ptr<EventFields> fields;
    std::unique_ptr<ExportCSV> exporter;
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
    table.column("title").title = "A \"B\"";
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

TEST_F(ExportCSVTest, TheSelectedEventsAloneCanBeExported) {
    addEvent("a");
    addEvent("b");
    show({"title"});
    list.setSelectedRows({1});
    settings.setObject("totalsTabViewSelection", 1);
    EXPECT_EQ(text(), "\"Title\"\n\"b\"\n");
    exporter->saveAsCSV();
    EXPECT_EQ(panel.requests.back().message, QStringLiteral("Selected Events"));
}

TEST_F(ExportCSVTest, ThePanelSuggestsThePeriod) {
    exporter->saveAsCSV();
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
    exporter->saveAsCSV();
    list.setContent(std::vector<Event>());
    panel.pending(folder.filePath("a.csv"));
    QFile file(folder.filePath("a.csv"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("\"Ünï\"\n"));
    EXPECT_EQ(panel.stopCodes, std::vector<int>{1});
}

TEST_F(ExportCSVTest, SavesUtf16WithAByteOrderMarkWhenAskedTo) {
    const QTemporaryDir folder;
    addEvent("a");
    show({"title"});
    settings.setObject("isCSVHeader", false);
    settings.setObject("fileEncodingPopUpIndex", 1);
    exporter->saveAsCSV();
    panel.pending(folder.filePath("a.csv"));
    QFile file(folder.filePath("a.csv"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("\xFF\xFE\"\0a\0\"\0\n\0", 10));
}

TEST_F(ExportCSVTest, AFailedWriteIsLoggedAndLeavesNothing) {
    const QTemporaryDir folder;
    exporter->saveAsCSV();
    const test::ExpectedLog log("CSV file write issue");
    panel.pending(folder.filePath("missing/a.csv"));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_EQ(panel.stopCodes, std::vector<int>{1});
}

TEST_F(ExportCSVTest, CancellingWritesNothing) {
    exporter->saveAsCSV();
    panel.pending(std::nullopt);
    EXPECT_TRUE(panel.stopCodes.empty());
}

} // namespace quillet
