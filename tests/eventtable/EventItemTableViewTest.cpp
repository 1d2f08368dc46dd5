#include "eventtable/EventItemTableView.h"
#include "eventtable/RowsText.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventdata/EventFigures.h"
#include "eventtable/ColumnTable.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

class EventItemTableViewTest : public testing::Test {
protected:
    EventItemTableViewTest() {
        settings.setObject("isDollarsOn", true);
        settings.setObject("isSingleRate", true);
        settings.setObject("hourlyRate", 100);
        settings.setObject("timeTypeSelection", 1);
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31)));
        useLocale("en_US");
    }
    void useLocale(const char* locale) {
        const QString name = QString::fromLatin1(locale);
        formats = std::make_unique<IcuLocaleFormats>(LocaleNames{name, name, name}, "UTC");
        fields = std::make_unique<EventFields>(source, *formats, calendar, calendar);
    }
    /// Shows these columns alone, as the table's leftmost ones.
    void show(std::initializer_list<const char*> identifiers) {
        for (int position = 0; position < table.columnCount(); ++position) {
            table.columnAt(position).setHidden(true);
        }
        int next = 0;
        for (const char* identifier : identifiers) {
            table.moveColumn(table.positionOf(identifier), next++);
            table.column(identifier).setHidden(false);
        }
    }
    void addEvent(EventDetails details, int minutes = 90) {
        if (!details.calendar) {
            details.calendar = test::calendarNamed("Work");
        }
        const Instant start = utc(2024, 3, 4, 9);
        events.push_back({start, start + std::chrono::minutes(minutes), Instant(),
                          std::make_shared<const EventDetails>(std::move(details))});
        list.setContent(events);
    }
    void addEvent(const char* title, int minutes = 90) {
        EventDetails details;
        details.title = QString::fromUtf8(title);
        addEvent(std::move(details), minutes);
    }
    void selectAll() {
        std::vector<std::size_t> rows(list.arrangedCount());
        std::iota(rows.begin(), rows.end(), std::size_t(0));
        list.setSelectedRows(rows);
    }
    /// What copying the whole list leaves on the pasteboard.
    [[nodiscard]] std::string copied() {
        selectAll();
        view().copy();
        return pasteboard.content.toStdString();
    }
    [[nodiscard]] EventItemTableView view() {
        return EventItemTableView({list, table, *fields, pasteboard});
    }

    test::MemorySettings settings;
    ColumnTable table{settings};
    test::FakePasteboard pasteboard;
    ListController<Event> list;
    EventList events;
    IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    BillingSettingsSource source{settings, calendar};
    std::unique_ptr<IcuLocaleFormats> formats;
    std::unique_ptr<EventFields> fields;
};

} // namespace

TEST_F(EventItemTableViewTest, WithoutASelectionThePasteboardIsLeftAlone) {
    addEvent("a");
    view().copy();
    view().copyFromEventItemTableView();
    view().copyDataFromTableView();
    EXPECT_TRUE(pasteboard.calls.isEmpty());
    EXPECT_EQ(pasteboard.content, QStringLiteral("something of another program"));
}

TEST_F(EventItemTableViewTest, ThePasteboardIsClearedAndGivenOneText) {
    addEvent("a");
    addEvent("b");
    selectAll();
    view().copy();
    EXPECT_EQ(pasteboard.calls, (QStringList{"clear", "write"}));
}

TEST_F(EventItemTableViewTest, EachLineHoldsTheVisibleColumnsInTheirOrder) {
    addEvent("Meeting");
    addEvent("Call", 30);
    show({"date", "calendar", "title", "hours"});
    EXPECT_EQ(copied(), "3/4/24\tWork\tMeeting\t1.5\n3/4/24\tWork\tCall\t0.5\n");
}

TEST_F(EventItemTableViewTest, TheStandardCommandAndTheTablesOwnActionCopyTheSame) {
    addEvent("Meeting");
    show({"title"});
    selectAll();
    for (const auto action :
         {&EventItemTableView::copy, &EventItemTableView::copyFromEventItemTableView,
          &EventItemTableView::copyDataFromTableView}) {
        pasteboard.content.clear();
        EventItemTableView copying = view();
        (copying.*action)();
        EXPECT_EQ(pasteboard.content, QStringLiteral("Meeting\n"));
    }
}

TEST_F(EventItemTableViewTest, AHiddenLeftmostColumnLeavesItsTab) {
    addEvent("Meeting");
    addEvent("Call");
    show({"date", "title", "hours"});
    table.column("date").setHidden(true);
    EXPECT_EQ(copied(), "\tMeeting\t1.5\n\tCall\t1.5\n");
}

TEST_F(EventItemTableViewTest, AHiddenColumnInTheMiddleLeavesNothing) {
    addEvent("Meeting");
    show({"date", "title", "hours"});
    table.column("title").setHidden(true);
    EXPECT_EQ(copied(), "3/4/24\t1.5\n");
}

TEST_F(EventItemTableViewTest, MovingAColumnMovesItsField) {
    addEvent("Meeting");
    show({"date", "title", "hours"});
    table.moveColumn(2, 0);
    EXPECT_EQ(copied(), "1.5\t3/4/24\tMeeting\n");
}

TEST_F(EventItemTableViewTest, WithoutAVisibleColumnEachEventIsAnEmptyLine) {
    addEvent("a");
    addEvent("b");
    show({});
    EXPECT_EQ(copied(), "\n\n");
}

TEST_F(EventItemTableViewTest, EveryFieldHasItsForm) {
    EventDetails details;
    details.calendar = test::calendarNamed("Work 20%");
    details.title = "50% done";
    details.notes = "100%\nsure\tthing";
    details.location = "5% Road";
    details.url = "https://example.org/a%20b";
    addEvent(std::move(details));
    for (const auto& [identifier, field] :
         std::map<const char*, const char*>{{"calendar", "Work 20%%"},
                                            {"title", "50%% done"},
                                            {"date", "3/4/24"},
                                            {"endDate", "3/4/24"},
                                            {"hours", "1.5"},
                                            {"minutes", "90"},
                                            {"duration", "1h 30m"},
                                            {"notes", "100%%\nsure\tthing"},
                                            {"url", "https://example.org/a%20b"},
                                            {"location", "5%% Road"},
                                            {"start", "9:00\u202fAM"},
                                            {"end", "10:30\u202fAM"},
                                            {"cost", "$150.00"},
                                            {"rate", "$100.00"},
                                            {"weekday", "Monday"},
                                            {"endWeekday", "Monday"}}) {
        show({identifier});
        EXPECT_EQ(copied(), std::string(field) + "\n") << identifier;
    }
}

TEST_F(EventItemTableViewTest, MissingValuesAreNullInParentheses) {
    addEvent("T");
    show({"title", "notes", "url", "location"});
    EXPECT_EQ(copied(), "T\t(null)\t(null)\t(null)\n");
}

TEST_F(EventItemTableViewTest, EmptyValuesAreNotMissing) {
    EventDetails details;
    details.title = "";
    details.notes = "";
    details.location = "";
    details.url = "";
    addEvent(std::move(details));
    show({"title", "notes", "url", "location"});
    EXPECT_EQ(copied(), "\t\t\t\n");
}

TEST_F(EventItemTableViewTest, WithMoneyOffTheCostIsMissing) {
    addEvent("T");
    show({"cost"});
    settings.setObject("isDollarsOn", false);
    EXPECT_EQ(copied(), "(null)\n");
}

TEST_F(EventItemTableViewTest, NumbersHaveAtMostTwoDecimalsAndNoTrailingZeros) {
    addEvent("a", 90);
    addEvent("b", 120);
    addEvent("c", 20);
    show({"hours"});
    EXPECT_EQ(copied(), "1.5\n2\n0.33\n");
    useLocale("de_DE");
    EXPECT_EQ(copied(), "1,5\n2\n0,33\n");
}

TEST_F(EventItemTableViewTest, ANegativeNumberLosesItsMinusSign) {
    addEvent("T");
    settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 5)));
    show({"hours", "minutes", "duration"});
    ASSERT_EQ(billableMinutes(events[0], fields->billing()), -810);
    EXPECT_EQ(copied(), "13.5\t810\t0h\n");
}

TEST_F(EventItemTableViewTest, AColumnOfAnUnknownIdentifierIsItsTabAlone) {
    addEvent("T");
    const ColumnTable unknown(settings, {"title", "colour", "hours"});
    EXPECT_EQ(rowsText(events, unknown, *fields), "T\t\t1.5\n");
}

TEST_F(EventItemTableViewTest, TheSelectedRowsComeInArrangedOrder) {
    addEvent("a");
    addEvent("b");
    addEvent("c");
    show({"title"});
    list.setOrder([](const Event& left, const Event& right) {
        return left.details->title > right.details->title;
    });
    list.setSelectedRows({2, 0});
    view().copy();
    EXPECT_EQ(pasteboard.content, QStringLiteral("c\na\n"));
}

TEST_F(EventItemTableViewTest, TextsBeyondTheBasicPlaneAreCopiedAsTheyAre) {
    addEvent("😀 e\u0301 \"q\"");
    show({"title"});
    EXPECT_EQ(copied(), "😀 e\u0301 \"q\"\n");
}

} // namespace quillet
