#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/ColumnTable.h"
#include "eventtable/EventColumns.h"
#include "export/ExportTxtViewController.h"
#include "platform/SerialQueue.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>

namespace quillet {

namespace {

using test::utc;

constexpr int eventCount = 4000;

EventList sampleEvents() {
    EventList events;
    for (int number = 0; number < eventCount; ++number) {
        const Instant start = utc(2024, 3, 1) + std::chrono::minutes(10 * number);
        events.push_back(test::timedEvent(start, start + std::chrono::minutes(5 + number % 90),
                                          number % 2 == 0 ? "work" : "home",
                                          QStringLiteral("Meeting %1, 5% done").arg(number)));
    }
    return events;
}

/// Long reports are built on a thread of their own while the window goes on working.
class BackgroundReportTest : public testing::Test {
protected:
    BackgroundReportTest() {
        for (const EventColumn& column : eventColumns()) {
            settings.setObject(column.title.name(), column.title.firstRunValue().toString());
        }
        for (const char* key : {"isDollarsOn", "isSingleRate", "isTXTDollars", "isTXTTotalHours",
                                "isTXTSummaryRow", "isTXTWrapping", "isTXTTotalEvents"}) {
            settings.setObject(key, true);
        }
        settings.setObject("hourlyRate", 90);
        settings.setObject("timeTypeSelection", 1);
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31, 23, 59, 59)));
        list.setContent(sampleEvents());
    }
    /// The report of now, for the other thread: with formats and a calendar of its own.
    [[nodiscard]] TextReportContent contentForTheBackground() const {
        TextReportContent content = controller.content();
        content.formats = &backgroundFormats;
        content.calendar = &backgroundCalendar;
        return content;
    }
    /// What a user may do meanwhile.
    void workOn() {
        (void)controller.eventsAttributedString();
        list.setOrder([](const Event& left, const Event& right) {
            return left.details->title > right.details->title;
        });
        settings.setObject("hourlyRate", 120);
        settings.setObject("txtFooter", "Thanks");
        table.column("title").setWidthPoints(40);
        list.setSelectedRows({1, 2, 3});
        (void)controller.eventsAttributedString();
        list.setContent(EventList());
    }

    test::MemorySettings settings;
    ColumnTable table{settings};
    ListController<Event> list;
    ListController<CalendarRecord> calendars;
    IcuCalendarArithmetic calendar{"en_US", "Europe/Berlin", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "Europe/Berlin"};
    IcuCalendarArithmetic backgroundCalendar{"en_US", "Europe/Berlin", CalendarSystem::Gregorian};
    IcuLocaleFormats backgroundFormats{{"en_US", "en_US", "en_US"}, "Europe/Berlin"};
    BillingSettingsSource billing{settings, calendar};
    EventFields fields{billing, formats, calendar, calendar};
    ExportTxtViewController controller{{.settings = settings,
                                        .eventItemTableView = table,
                                        .eventsArrayController = list,
                                        .calendarsArrayController = calendars,
                                        .fields = fields}};
    std::binary_semaphore begun{0};
    std::binary_semaphore finished{0};
    std::unique_ptr<SerialQueue> queue = makeBackgroundQueue("textReport");
};

} // namespace

TEST_F(BackgroundReportTest, IsTheReportOfTheMomentWhenItWasAskedForWhateverChangesMeanwhile) {
    const QString expected = controller.eventsAttributedString().text();
    QString built;
    queue->async([&, content = contentForTheBackground()] {
        begun.release();
        built = textReport(content).value_or(StyledText()).text();
        finished.release();
    });
    begun.acquire();
    workOn();
    finished.acquire();
    EXPECT_EQ(built.toStdString(), expected.toStdString());
    EXPECT_EQ(built.count(u'\n') > eventCount, true);
}

TEST_F(BackgroundReportTest, IsGivenUpFromTheOtherThread) {
    std::atomic<bool> isGivenUp = false;
    bool isBuilt = true;
    queue->async([&, content = contentForTheBackground()] {
        isBuilt = textReport(content, [&](std::size_t, std::size_t) {
                      begun.release();
                      // Until the other thread has given it up: no time limit decides.
                      isGivenUp.wait(false);
                      return isGivenUp ? ExportAnswer::Cancel : ExportAnswer::GoOn;
                  }).has_value();
        finished.release();
    });
    begun.acquire();
    isGivenUp = true;
    isGivenUp.notify_one();
    workOn();
    finished.acquire();
    EXPECT_FALSE(isBuilt);
}

} // namespace quillet
