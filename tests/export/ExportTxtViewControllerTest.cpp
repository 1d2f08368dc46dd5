#include "export/ExportTxtViewController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/ColumnTable.h"
#include "eventtable/EventColumns.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::timedEvent;
using test::utc;

class ExportTxtViewControllerTest : public testing::Test {
protected:
    ExportTxtViewControllerTest() {
        for (const EventColumn& column : eventColumns()) {
            settings.setObject(column.title.name(), column.title.firstRunValue().toString());
        }
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31, 23, 59, 59)));
        settings.setObject("isSingleRate", true);
        settings.setObject("timeTypeSelection", 1);
        show({{"title", 60}, {"hours", 40}});
        const Instant start = utc(2024, 3, 4, 9);
        list.setContent(
            std::vector{timedEvent(start, start + std::chrono::minutes(90)),
                        timedEvent(start, start + std::chrono::minutes(45), "home", "Call")});
    }
    void show(std::initializer_list<std::pair<const char*, double>> columns) {
        for (int position = 0; position < table.columnCount(); ++position) {
            table.columnAt(position).setHidden(true);
        }
        int next = 0;
        for (const auto& [identifier, width] : columns) {
            table.column(identifier).setHidden(false);
            table.column(identifier).setWidthPoints(width);
            table.moveColumn(table.positionOf(identifier), next++);
        }
    }
    [[nodiscard]] QString headerWith(const char* key) {
        settings.setObject(key, true);
        const QString header = controller.headerString();
        settings.setObject(key, false);
        return header;
    }

    test::MemorySettings settings;
    ColumnTable table{settings};
    ListController<Event> list;
    ListController<CalendarRecord> calendars;
    IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    BillingSettingsSource billing{settings, calendar};
    EventFields fields{billing, formats, calendar, calendar};
    ExportTxtViewController controller{{.settings = settings,
                                        .eventItemTableView = table,
                                        .eventsArrayController = list,
                                        .calendarsArrayController = calendars,
                                        .fields = fields}};
};

const QString titles = "Title    Hours \n---------------\n";

} // namespace

TEST_F(ExportTxtViewControllerTest, ShowsTheVisibleColumnsInDisplayOrderAtTheirWidths) {
    EXPECT_EQ(controller.tableViewString(), titles + "Meeting  1.5   \nCall     0.75  \n");
    show({{"hours", 14}, {"calendar", 72}, {"title", 43.2}});
    EXPECT_EQ(controller.tableViewString(), "Ho Calendar   Title  \n"
                                            "---------------------\n"
                                            "1. work       Mee... \n"
                                            "0. home       Call   \n");
}

TEST_F(ExportTxtViewControllerTest, TitlesAreThoseOfTheSettings) {
    settings.setObject("titleColumnTitle", "Task");
    settings.remove("hoursColumnTitle");
    EXPECT_EQ(controller.tableViewString().section(u'\n', 0, 0), "Task           ");
}

TEST_F(ExportTxtViewControllerTest, AColumnThatNobodyKnowsHasNoTitle) {
    ColumnTable unknown(settings, {"colour"});
    unknown.column("colour").setWidthPoints(36);
    const ExportTxtViewController other({.settings = settings,
                                         .eventItemTableView = unknown,
                                         .eventsArrayController = list,
                                         .calendarsArrayController = calendars,
                                         .fields = fields});
    EXPECT_EQ(other.tableViewString(), "      \n------\n\n\n");
}

TEST_F(ExportTxtViewControllerTest, EachSwitchIsASettingOfItsOwn) {
    settings.setObject("isDollarsOn", true);
    settings.setObject("hourlyRate", 100);
    calendars.setContent(std::vector{CalendarRecord{.calendarIdentifier = "work",
                                                    .title = "Work",
                                                    .rate = {},
                                                    .isSelected = true,
                                                    .titleWithRate = {},
                                                    .otherMembers = {}}});
    EXPECT_EQ(controller.headerString(), "");
    EXPECT_EQ(headerWith("isTXTCalTitle"), "Work\n");
    EXPECT_EQ(headerWith("isTXTBeginDate"), "Beginning Date: 3/1/24\n");
    EXPECT_EQ(headerWith("isTXTEndDate"), "Ending Date: 3/31/24\n");
    EXPECT_EQ(headerWith("isTXTTotalHours"), "Hours: 2.25\n");
    EXPECT_EQ(headerWith("isTXTMin"), "Min: 0.75\n");
    EXPECT_EQ(headerWith("isTXTMax"), "Max: 1.5\n");
    EXPECT_EQ(headerWith("isTXTAverage"), "Avg: 1.12\n");
    EXPECT_EQ(headerWith("isTXTTotalDays"), "Days: 31\n");
    EXPECT_EQ(headerWith("isTXTTotalEvents"), "Events: 2\n");
    // Money from hours, the second of which is rounded to 0.75.
    EXPECT_EQ(headerWith("isTXTDollars"), "Hourly Rate: $100.00\nCost: $225.00\n");
    settings.setObject("txtHeader", "Invoice");
    EXPECT_EQ(controller.headerString(), "Invoice\n\n");
}

TEST_F(ExportTxtViewControllerTest, RatesOfCalendarsShowTheTitleOfTheirColumn) {
    settings.setObject("isDollarsOn", true);
    settings.setObject("isSingleRate", false);
    settings.setObject("calendarColumnTitle", "Client");
    settings.setObject("calendars",
                       QVariantList{QVariantMap{{"calendarIdentifier", "work"}, {"rate", 10}},
                                    QVariantMap{{"calendarIdentifier", "home"}, {"rate", 20}}});
    EXPECT_EQ(headerWith("isTXTDollars"), "Hourly Rate: Client Rates\nCost: $30.00\n");
}

TEST_F(ExportTxtViewControllerTest, CalendarsAreTheTickedOnesThatPassTheGroup) {
    const auto record = [](const char* title, bool isSelected) {
        return CalendarRecord{.calendarIdentifier = QString::fromLatin1(title),
                              .title = QString::fromLatin1(title),
                              .rate = {},
                              .isSelected = isSelected,
                              .titleWithRate = {},
                              .otherMembers = {}};
    };
    EXPECT_EQ(headerWith("isTXTCalTitle"), "\n") << "no calendar";
    calendars.setContent(std::vector{record("Work", true), record("Home", false),
                                     record("Clients", true), record("Archive", true)});
    calendars.setFilter("group",
                        [](const CalendarRecord& each) { return each.title != u"Archive"; });
    EXPECT_EQ(headerWith("isTXTCalTitle"), "Clients, Work\n");
}

TEST_F(ExportTxtViewControllerTest, FollowsTheTabOfSelectedEvents) {
    list.setSelectedRows({1});
    settings.setObject("totalsTabViewSelection", 1);
    settings.setObject("timeTypeSelection", 3);
    show({{"title", 60}, {"duration", 60}});
    EXPECT_EQ(controller.tableViewString().section(u'\n', 2), "Call     0h 45m   \n");
    EXPECT_EQ(controller.summaryRow().section(u'\n', 1), "         0h 45m   ");
    EXPECT_EQ(headerWith("isTXTTotalHours"), "Duration: 0h 45m\n");
    EXPECT_EQ(headerWith("isTXTTotalEvents"), "Events: 1\n");
    EXPECT_EQ(headerWith("isTXTTotalDays"), "Days: 1\n") << "the days of the selection";
    list.setSelectedRows({});
    EXPECT_EQ(headerWith("isTXTTotalEvents"), "");
    settings.setObject("totalsTabViewSelection", 0);
    EXPECT_EQ(headerWith("isTXTTotalHours"), "Duration: 2h 15m\n");
}

TEST_F(ExportTxtViewControllerTest, FollowsSearchAndSortOrder) {
    list.setOrder([](const Event& left, const Event& right) {
        return left.details->title < right.details->title;
    });
    EXPECT_EQ(controller.tableViewString(), titles + "Call     0.75  \nMeeting  1.5   \n");
    list.setFilter("call", [](const Event& event) { return event.details->title == u"Call"; });
    EXPECT_EQ(controller.tableViewString(), titles + "Call     0.75  \n");
    EXPECT_EQ(headerWith("isTXTTotalEvents"), "Events: 1\n");
}

TEST_F(ExportTxtViewControllerTest, WrapsWhereTheSwitchIsOn) {
    EXPECT_EQ(controller.makeCellWithString("Weekly planning meeting", 10, 1), "Weekly ... ");
    settings.setObject("isTXTWrapping", true);
    EXPECT_EQ(controller.makeCellWithString("Weekly planning meeting", 10, 1), "planning   ");
    EXPECT_EQ(controller.makeCellWithString(QString(), 10, 0), "           ");
    show({{"title", 36}});
    EXPECT_EQ(controller.tableViewString().section(u'\n', 2), "Meet  \ning   \nCall  \n");
}

TEST_F(ExportTxtViewControllerTest, TheWholeReportHasSummaryAndFooterWhereTheyAreSet) {
    EXPECT_EQ(controller.eventsAttributedString().text(),
              "\n" + controller.tableViewString() + "\n");
    settings.setObject("isTXTTotalEvents", true);
    settings.setObject("isTXTSummaryRow", true);
    settings.setObject("txtFooter", "Thank you");
    EXPECT_EQ(controller.eventsAttributedString().text(),
              "\nEvents: 2\n\n" + controller.tableViewString() + controller.summaryRow() +
                  "\n\n\nThank you\n");
    EXPECT_EQ(controller.summaryRow(), "---------------\n         2.25  ");
}

TEST_F(ExportTxtViewControllerTest, AReportInTheMakingDoesNotFollowTheList) {
    const TextReportContent content = controller.content();
    const QString before = controller.eventsAttributedString().text();
    list.setContent(EventList());
    settings.setObject("txtFooter", "Thank you");
    show({});
    EXPECT_EQ(textReport(content).value_or(StyledText()).text(), before);
}

TEST_F(ExportTxtViewControllerTest, ALongReportCanBeCancelled) {
    list.setContent(EventList(1000, list.arranged(0)));
    const auto cancel = [](std::size_t, std::size_t) { return ExportAnswer::Cancel; };
    EXPECT_FALSE(controller.eventsAttributedString(cancel).has_value());
    EXPECT_TRUE(controller.eventsAttributedString(ExportProgress()).has_value());
}

TEST_F(ExportTxtViewControllerTest, WhatLeavesTheProgramIsWhatThePaneShows) {
    const QString fresh = controller.eventsAttributedString().text();
    EXPECT_EQ(controller.shownText({}), fresh) << "no pane";
    std::optional<QString> shown = "as it stands in the pane";
    controller.setEventTextView([&] { return shown; });
    EXPECT_EQ(controller.shownText({}), fresh) << "a closed pane";
    settings.setObject("isExportTXTViewOn", true);
    EXPECT_EQ(controller.shownText({}), shown);
    shown.reset();
    EXPECT_EQ(controller.shownText({}), fresh) << "a pane that waits for a newer report";
    list.setContent(EventList(1000, list.arranged(0)));
    EXPECT_FALSE(
        controller.shownText([](std::size_t, std::size_t) { return ExportAnswer::Cancel; }));
}

TEST_F(ExportTxtViewControllerTest, DurationsAreOfAllAndOfTheSelectedEvents) {
    EXPECT_EQ(controller.totalSelectedDuration(), "0h");
    EXPECT_EQ(controller.minSelectedDuration(), "0h");
    EXPECT_EQ(controller.maxSelectedDuration(), "0h");
    EXPECT_EQ(controller.avgSelectedDuration(), "0h");
    list.setSelectedRows({1});
    EXPECT_EQ(controller.totalDuration(), "2h 15m");
    EXPECT_EQ(controller.minDuration(), "0h 45m");
    EXPECT_EQ(controller.maxDuration(), "1h 30m");
    EXPECT_EQ(controller.avgDuration(), "1h 7m") << "67.5 minutes, their fraction dropped";
    EXPECT_EQ(controller.totalSelectedDuration(), "0h 45m");
    EXPECT_EQ(controller.minSelectedDuration(), "0h 45m");
    EXPECT_EQ(controller.maxSelectedDuration(), "0h 45m");
    EXPECT_EQ(controller.avgSelectedDuration(), "0h 45m");
}

TEST_F(ExportTxtViewControllerTest, DaysAreOfThePeriodAndOfTheSelectedEvents) {
    EXPECT_EQ(controller.totalDays(), 31);
    EXPECT_EQ(controller.totalSelectedDays(), 0);
    list.setSelectedRows({1});
    EXPECT_EQ(controller.totalSelectedDays(), 1);
}

TEST_F(ExportTxtViewControllerTest, TellsThatTheReportChangedWhileItsPaneIsOpen) {
    int told = 0;
    QObject::connect(&controller, &ExportTxtViewController::eventsAttributedStringChanged,
                     [&] { ++told; });
    controller.awakeFromNib();
    EXPECT_EQ(settings.object("isApplyTXTSettingsOn"), QVariant(false));
    controller.updateEventsAttributedString();
    controller.tableViewChanged();
    EXPECT_EQ(told, 0);
    settings.setObject("isExportTXTViewOn", true);
    EXPECT_EQ(told, 1);
    settings.setObject("txtFooter", "Thank you");
    EXPECT_EQ(told, 2);
    controller.tableViewChanged();
    EXPECT_EQ(told, 3);
    settings.setObject("isApplyTXTSettingsOn", true);
    settings.setObject("txtFooter", "");
    EXPECT_EQ(told, 3);
    settings.setObject("isApplyTXTSettingsOn", false);
    EXPECT_EQ(told, 4);
}

} // namespace quillet
