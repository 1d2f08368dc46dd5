#include "export/TextReportRefresh.h"

#include "platform/Event.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::timedEvent;
using test::utc;

class TextReportRefreshTest : public testing::Test {
protected:
    TextReportRefreshTest() {
        QObject::connect(&report, &TextReportRefresh::eventsAttributedStringChanged,
                         [this] { ++rebuilds; });
    }
    void open() {
        report.awakeFromNib();
        settings.setObject("isExportTXTViewOn", true);
        rebuilds = 0;
    }
    int rebuildsOf(const std::function<void()>& change) {
        rebuilds = 0;
        change();
        return rebuilds;
    }
    int rebuildsOfWriting(const char* key) {
        return rebuildsOf([&] { settings.setObject(key, true); });
    }

    test::MemorySettings settings;
    ListController<Event> events;
    TextReportRefresh report{settings, events};
    int rebuilds = 0;
};

} // namespace

TEST_F(TextReportRefreshTest, WakingStoresTheTabWhereAbsentAndEndsAnApplyLeftOn) {
    settings.setObject("isApplyTXTSettingsOn", true);
    report.awakeFromNib();
    EXPECT_EQ(settings.object("totalsTabViewSelection"), QVariant(0));
    EXPECT_EQ(settings.object("isApplyTXTSettingsOn"), QVariant(false));
    settings.setObject("totalsTabViewSelection", 1);
    TextReportRefresh next(settings, events);
    next.awakeFromNib();
    EXPECT_EQ(settings.object("totalsTabViewSelection"), QVariant(1));
}

TEST_F(TextReportRefreshTest, AClosedPaneIsNotRebuiltAndItsKeyIsCreated) {
    report.awakeFromNib();
    EXPECT_EQ(rebuildsOfWriting("isTXTMax"), 0);
    EXPECT_EQ(settings.object("isExportTXTViewOn"), QVariant(false));
    report.tableViewChanged();
    EXPECT_EQ(rebuilds, 0);
    EXPECT_EQ(rebuildsOfWriting("isExportTXTViewOn"), 1);
}

TEST_F(TextReportRefreshTest, AMovedColumnCreatesTheKeyOfThePaneToo) {
    report.tableViewChanged();
    EXPECT_EQ(rebuilds, 0);
    EXPECT_EQ(settings.object("isExportTXTViewOn"), QVariant(false));
}

TEST_F(TextReportRefreshTest, EveryKeyThatShowsInTheReportRebuildsItOnce) {
    open();
    for (const char* key : {"hiddenColumnsChangedTrigger",
                            "calendarColumnTitle",
                            "titleColumnTitle",
                            "dateColumnTitle",
                            "endDateColumnTitle",
                            "hoursColumnTitle",
                            "minutesColumnTitle",
                            "durationColumnTitle",
                            "notesColumnTitle",
                            "urlColumnTitle",
                            "locationColumnTitle",
                            "startTimeColumnTitle",
                            "endTimeColumnTitle",
                            "costColumnTitle",
                            "rateColumnTitle",
                            "startWeekdayColumnTitle",
                            "endWeekdayColumnTitle",
                            "isDollarsOn",
                            "isSingleRate",
                            "isTXTWrapping",
                            "isTXTSummaryRow",
                            "isTXTTotalEvents",
                            "isTXTDollars",
                            "isTXTTotalHours",
                            "isTXTMax",
                            "isTXTMin",
                            "isTXTAverage",
                            "isTXTEndDate",
                            "isTXTBeginDate",
                            "isTXTCalTitle",
                            "isTXTTotalDays",
                            "txtHeader",
                            "txtFooter",
                            "totalsTabViewSelection"}) {
        EXPECT_EQ(rebuildsOfWriting(key), 1) << key;
    }
    EXPECT_EQ(rebuildsOfWriting("timeTypeSelection"), 0) << "read, but not observed";
}

TEST_F(TextReportRefreshTest, ApplyingHoldsRebuildsBackUntilItEnds) {
    open();
    for (const char* bracket : {"isApplyTXTSettingsOn", "isApplyColumnLayoutOn"}) {
        EXPECT_EQ(rebuildsOfWriting(bracket), 0) << bracket;
        EXPECT_EQ(rebuildsOfWriting("isTXTMax"), 0) << bracket;
        EXPECT_EQ(rebuildsOf([&] { settings.setObject(bracket, false); }), 1) << bracket;
    }
}

TEST_F(TextReportRefreshTest, MovedColumnsRebuildEvenWhileAPresetIsApplied) {
    open();
    settings.setObject("isApplyTXTSettingsOn", true);
    EXPECT_EQ(rebuildsOf([&] { report.tableViewChanged(); }), 1);
    settings.setObject("isApplyColumnLayoutOn", true);
    EXPECT_EQ(rebuildsOf([&] { report.tableViewChanged(); }), 0);
}

TEST_F(TextReportRefreshTest, TheSelectionMattersOnlyToAReportOfTheSelection) {
    open();
    events.setContent(std::vector{timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 10)),
                                  timedEvent(utc(2024, 3, 5, 9), utc(2024, 3, 5, 10))});
    EXPECT_EQ(rebuildsOf([&] { events.setSelectedRows({0}); }), 0);
    settings.setObject("totalsTabViewSelection", 1);
    EXPECT_EQ(rebuildsOf([&] { events.setSelectedRows({1}); }), 1);
}

TEST_F(TextReportRefreshTest, NewContentFilterAndOrderRebuild) {
    open();
    EXPECT_EQ(rebuildsOf([&] { events.setContent(std::vector<Event>()); }), 1);
    EXPECT_EQ(rebuildsOf([&] { events.setFilter("none", [](const Event&) { return false; }); }), 1);
    EXPECT_EQ(rebuildsOf([&] {
                  events.setOrder([](const Event& left, const Event& right) {
                      return left.endDate < right.endDate;
                  });
              }),
              1);
}

} // namespace quillet
