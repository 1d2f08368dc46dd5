#include "results/EventResultsViewController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::calendarNamed;
using test::timedEvent;
using test::utc;

/// A panel with fields of tokens.
struct FakeResultsPanel {
    explicit FakeResultsPanel(EventResultsViewController& results) {
        QObject::connect(&results, &EventResultsViewController::tabContentInstalled,
                         [this](ResultsTab tab) { tabs.push_back(tab); });
        QObject::connect(&results, &EventResultsViewController::tokenizingCharactersChanged,
                         [this](const QString& fieldName, const QString& separators) {
                             fields.append(fieldName);
                             characters = separators;
                         });
    }

    std::vector<ResultsTab> tabs;
    QStringList fields;
    QString characters;
};

class EventResultsViewControllerTest : public testing::Test {
protected:
    EventResultsViewControllerTest() {
        settings.setObject("viewMode", 0);
        settings.setObject("isCalendarAccessGranted", true);
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31, 23, 59, 59)));
        settings.setObject("hourlyRate", 600);
        settings.setObject("isDollarsOn", true);
        store.storedCalendars = {calendarNamed("work")};
        store.storedEvents = {timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 10, 30)),
                              timedEvent(utc(2024, 3, 5, 9), utc(2024, 3, 5, 9, 45)),
                              timedEvent(utc(2024, 3, 6, 9), utc(2024, 3, 6, 9, 20))};
        CalendarRecord record;
        record.calendarIdentifier = "work";
        record.isSelected = true;
        records.setContent(std::vector{record});
    }
    void wake() {
        events.awakeFromNib();
        results.awakeFromNib();
        fetch();
    }
    void fetch() {
        background.runAll();
        main.runAll();
    }
    std::string all(ResultField field) {
        return results.text(ResultsTab::AllEvents, field).toStdString();
    }
    std::string selected(ResultField field) {
        return results.text(ResultsTab::SelectedEvents, field).toStdString();
    }
    [[nodiscard]] std::string hiddenGroups() const {
        return std::string(results.isHoursHidden() ? "h" : "") +
               (results.isMinutesHidden() ? "m" : "") + (results.isDurationHidden() ? "d" : "");
    }

    test::MemorySettings settings;
    test::FakeEventStore store;
    test::FakeAlerts alerts;
    test::FakeQueue background;
    test::FakeQueue main;
    IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    BillingSettingsSource billing{settings, calendar};
    EventKitManager manager{store, settings, alerts, main};
    ListController<Event> list{eventIdentityHash, isSameEvent};
    ListController<CalendarRecord> records;
    EventsController events{
        {manager, settings, billing, calendar, list, records, background, main}};
    EventResultsViewController results{{.settings = settings,
                                        .eventsController = events,
                                        .eventsArrayController = list,
                                        .billing = billing,
                                        .formats = formats}};
    FakeResultsPanel panel{results};
};

} // namespace

TEST_F(EventResultsViewControllerTest, ThePanelAlwaysOpensOnAllEvents) {
    settings.setObject("totalsTabViewSelection", 1);
    wake();
    EXPECT_EQ(settings.object("totalsTabViewSelection"), QVariant(0));
    EXPECT_EQ(settings.object("timeTypeSelection"), QVariant(1));
    EXPECT_EQ(panel.tabs, (std::vector{ResultsTab::AllEvents, ResultsTab::SelectedEvents}));
}

TEST_F(EventResultsViewControllerTest, AStoredTimeTypeIsKept) {
    settings.setObject("timeTypeSelection", 3);
    wake();
    EXPECT_EQ(settings.object("timeTypeSelection"), QVariant(3));
    EXPECT_EQ(hiddenGroups(), "hm");
}

TEST_F(EventResultsViewControllerTest, TheTimeTypeChoosesTheGroupShown) {
    wake();
    EXPECT_EQ(hiddenGroups(), "md");
    settings.setObject("timeTypeSelection", 2);
    EXPECT_EQ(hiddenGroups(), "hd");
    settings.setObject("timeTypeSelection", 3);
    EXPECT_EQ(hiddenGroups(), "hm");
}

TEST_F(EventResultsViewControllerTest, AnUnknownTimeTypeLeavesTheGroupsButAnnouncesThem) {
    wake();
    settings.setObject("timeTypeSelection", 2);
    QStringList announced;
    const auto note = [&](auto signal, const char* name) {
        QObject::connect(&results, signal, &results, [&announced, name] { announced << name; });
    };
    using Controller = EventResultsViewController;
    note(&Controller::isHoursHiddenWillChange, "will hours");
    note(&Controller::isMinutesHiddenWillChange, "will minutes");
    note(&Controller::isDurationHiddenWillChange, "will duration");
    note(&Controller::isHoursHiddenChanged, "did hours");
    note(&Controller::isMinutesHiddenChanged, "did minutes");
    note(&Controller::isDurationHiddenChanged, "did duration");
    settings.setObject("timeTypeSelection", 0);
    EXPECT_EQ(hiddenGroups(), "hd");
    EXPECT_EQ(announced, (QStringList{"will hours", "will minutes", "will duration", "did hours",
                                      "did minutes", "did duration"}));
}

TEST_F(EventResultsViewControllerTest, OnlyNewlinesPartTheTextOfAField) {
    wake();
    ASSERT_EQ(panel.fields.size(), 30);
    EXPECT_EQ(panel.fields.first(), "sumCostTokenField");
    EXPECT_EQ(panel.fields.at(14), "countEventsTokenField");
    EXPECT_EQ(panel.fields.at(15), "sumSelectedCostTokenField");
    EXPECT_EQ(panel.fields.at(28), "totalSelectedDaysTokenField");
    EXPECT_EQ(panel.fields.last(), "countSelectedEventsTokenField");
    EXPECT_EQ(QSet<QString>(panel.fields.begin(), panel.fields.end()).size(), 30);
    EXPECT_EQ(panel.characters, u"\n\v\f\r\u0085\u2028\u2029"_qs) << "all that end a line";
    for (const QChar character : QStringLiteral("1,234.50 h")) {
        EXPECT_FALSE(panel.characters.contains(character));
    }
}

TEST_F(EventResultsViewControllerTest, FieldsTellTheFiguresOfAllListedEvents) {
    wake();
    EXPECT_EQ(all(ResultField::CountEvents), "3");
    EXPECT_EQ(all(ResultField::SumMinutes), "155");
    EXPECT_EQ(all(ResultField::AvgMinutes), "51.67");
    EXPECT_EQ(all(ResultField::MinMinutes), "20");
    EXPECT_EQ(all(ResultField::MaxMinutes), "90");
    EXPECT_EQ(all(ResultField::SumHours), "2.58");
    EXPECT_EQ(all(ResultField::AvgHours), "0.86");
    EXPECT_EQ(all(ResultField::MinHours), "0.33");
    EXPECT_EQ(all(ResultField::MaxHours), "1.5");
    EXPECT_EQ(all(ResultField::SumDuration), "2h 35m");
    EXPECT_EQ(all(ResultField::AvgDuration), "0h 51m");
    EXPECT_EQ(all(ResultField::MinDuration), "0h 20m");
    EXPECT_EQ(all(ResultField::MaxDuration), "1h 30m");
    EXPECT_EQ(all(ResultField::TotalDays), "31");
    // By hours of two decimals each: 1.5, 0.75 and 0.33.
    EXPECT_EQ(all(ResultField::SumCost), "$1,548.00");
}

TEST_F(EventResultsViewControllerTest, FieldsOfTheOtherTabFollowTheSelection) {
    wake();
    EXPECT_EQ(selected(ResultField::CountEvents), "0");
    EXPECT_EQ(selected(ResultField::SumHours), "0");
    EXPECT_EQ(selected(ResultField::SumMinutes), "0");
    EXPECT_EQ(selected(ResultField::SumCost), "$0.00");
    EXPECT_EQ(selected(ResultField::AvgHours), "0") << "a mean, like a sum, is 0";
    EXPECT_EQ(selected(ResultField::AvgMinutes), "0");
    EXPECT_EQ(selected(ResultField::MinHours), "") << "of nothing there is no shortest";
    EXPECT_EQ(selected(ResultField::MaxHours), "");
    EXPECT_EQ(selected(ResultField::MaxMinutes), "");
    EXPECT_EQ(selected(ResultField::AvgDuration), "0h");
    EXPECT_EQ(selected(ResultField::MinDuration), "0h");
    EXPECT_EQ(selected(ResultField::MaxDuration), "0h");
    EXPECT_EQ(selected(ResultField::MinMinutes), "");
    EXPECT_EQ(selected(ResultField::SumDuration), "0h");
    EXPECT_EQ(selected(ResultField::TotalDays), "0");
    int announcements = 0;
    QObject::connect(&results, &EventResultsViewController::textsChanged, [&] { ++announcements; });
    list.setSelectedRows({1, 2});
    EXPECT_GT(announcements, 0);
    EXPECT_EQ(selected(ResultField::CountEvents), "2");
    EXPECT_EQ(selected(ResultField::SumMinutes), "65");
    EXPECT_EQ(selected(ResultField::TotalDays), "2");
    EXPECT_EQ(selected(ResultField::SumCost), "$648.00");
    EXPECT_EQ(all(ResultField::CountEvents), "3");
}

TEST_F(EventResultsViewControllerTest, CostsFollowRateTimeTypeAndTheMoneySwitch) {
    wake();
    EXPECT_EQ(all(ResultField::SumCost), "$1,548.00");
    settings.setObject("timeTypeSelection", 2);
    EXPECT_EQ(all(ResultField::SumCost), "$1,550.00");
    settings.setObject("hourlyRate", 60);
    EXPECT_EQ(all(ResultField::SumCost), "$155.00");
    settings.setObject("isDollarsOn", false);
    EXPECT_EQ(all(ResultField::SumCost), "");
}

TEST_F(EventResultsViewControllerTest, FieldsFollowANewFetch) {
    wake();
    EXPECT_EQ(all(ResultField::CountEvents), "3");
    store.storedEvents.pop_back();
    flipBool(settings, "datesChangedTrigger");
    fetch();
    EXPECT_EQ(all(ResultField::CountEvents), "2");
    EXPECT_EQ(all(ResultField::MinMinutes), "45");
}

} // namespace quillet
