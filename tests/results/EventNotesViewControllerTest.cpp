#include "results/EventNotesViewController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;
using enum StyledText::Style;
using Parts = std::vector<StyledText::Part>;

class EventNotesViewControllerTest : public testing::Test {
protected:
    void add(const QString& notes, const QString& title = "Meeting",
             const QString& location = "Room 1", const QString& calendar = "Work") {
        EventDetails details;
        details.calendar = test::calendarNamed(calendar);
        details.title = title;
        details.location = location;
        details.notes = notes;
        content.push_back({utc(2024, 3, 4, 9), utc(2024, 3, 4, 10), Instant(),
                           std::make_shared<const EventDetails>(std::move(details))});
        events.setContent(content);
    }
    void setSwitches(bool calendar, bool date, bool title, bool location) {
        settings.setObject("isEventNotesCalendar", calendar);
        settings.setObject("isEventNotesDate", date);
        settings.setObject("isEventNotesTitle", title);
        settings.setObject("isEventNotesLocation", location);
    }

    test::MemorySettings settings;
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    IcuCalendarArithmetic gregorian{"en_US", "UTC", CalendarSystem::Gregorian};
    ListController<Event> events;
    std::vector<Event> content;
    EventNotesViewController controller{{.settings = settings,
                                         .eventsArrayController = events,
                                         .formats = formats,
                                         .calendar = gregorian}};
};

} // namespace

TEST_F(EventNotesViewControllerTest, WakingCreatesTheFiveSwitches) {
    settings.setObject("isEventNotesDate", false);
    settings.writes.clear();
    controller.awakeFromNib();
    EXPECT_EQ(settings.writes, (QStringList{"isEventNotesCalendar", "isEventNotesLocation",
                                            "isEventNotesTitle", "isNotesViewOn"}));
    EXPECT_EQ(settings.object("isEventNotesCalendar"), QVariant(true));
    EXPECT_EQ(settings.object("isEventNotesDate"), QVariant(false));
    EXPECT_EQ(settings.object("isNotesViewOn"), QVariant(false));
}

TEST_F(EventNotesViewControllerTest, WithoutEventsTheTextIsOneLineFeed) {
    controller.awakeFromNib();
    EXPECT_EQ(controller.notes().parts, (Parts{{"\n", Plain}}));
    EXPECT_FALSE(controller.notes().hasTextColor);
    EXPECT_EQ(controller.notesCount(), 0);
}

TEST_F(EventNotesViewControllerTest, EachNoteStandsUnderItsHeading) {
    controller.awakeFromNib();
    add("Bring\nthe plan");
    add(QString());
    add("Call");
    EXPECT_EQ(controller.notes().parts, (Parts{{"\n", Plain},
                                               {"Work - 3/4/24 - Meeting - Room 1", Bold},
                                               {"\n", Plain},
                                               {"Bring\nthe plan", Regular},
                                               {"\n\n\n", Plain},
                                               {"Work - 3/4/24 - Meeting - Room 1", Bold},
                                               {"\n", Plain},
                                               {"Call", Regular},
                                               {"\n\n\n", Plain}}));
    EXPECT_TRUE(controller.notes().hasTextColor);
    EXPECT_EQ(controller.notesCount(), 2);
}

TEST_F(EventNotesViewControllerTest, WithAllSwitchesOffANoteStandsAlone) {
    controller.awakeFromNib();
    setSwitches(false, false, false, false);
    add("Call");
    EXPECT_EQ(controller.notes().parts,
              (Parts{{"\n", Plain}, {"Call", Regular}, {"\n\n\n", Plain}}));
}

TEST_F(EventNotesViewControllerTest, AMissingTitleLeavesNoHeadingWhenItIsTheOnlyItem) {
    controller.awakeFromNib();
    setSwitches(false, false, true, false);
    add("Call", QString());
    add("Mail", "");
    EXPECT_EQ(controller.notes().parts, (Parts{{"\n", Plain},
                                               {"Call", Regular},
                                               {"\n\n\n", Plain},
                                               {"Mail", Regular},
                                               {"\n\n\n", Plain}}));
}

TEST_F(EventNotesViewControllerTest, HeadingsHoldTheChosenItemsInTheirOrder) {
    controller.awakeFromNib();
    setSwitches(true, false, false, true);
    add("Call");
    EXPECT_EQ(controller.notes().parts.at(1), (StyledText::Part{"Work - Room 1", Bold}));
    add("Mail", "Meeting", "");
    EXPECT_EQ(controller.notes().parts.at(5), (StyledText::Part{"Work", Bold}))
        << "an empty location is no item";
}

TEST_F(EventNotesViewControllerTest, ACalendarsTitleIsWrittenEvenWhenEmpty) {
    controller.awakeFromNib();
    setSwitches(true, false, true, false);
    add("Call", "Meeting", "Room", "");
    EXPECT_EQ(controller.notes().parts.at(1), (StyledText::Part{" - Meeting", Bold}));
    setSwitches(true, false, false, false);
    EXPECT_EQ(controller.notes().parts.at(1), (StyledText::Part{"", Bold}));
    EXPECT_EQ(controller.notes().parts.at(2), (StyledText::Part{"\n", Plain}));
}

TEST_F(EventNotesViewControllerTest, EmptyNotesStillHaveAHeadingAndCount) {
    controller.awakeFromNib();
    setSwitches(false, false, true, false);
    add("");
    EXPECT_EQ(
        controller.notes().parts,
        (Parts{{"\n", Plain}, {"Meeting", Bold}, {"\n", Plain}, {"", Regular}, {"\n\n\n", Plain}}));
    EXPECT_EQ(controller.notesCount(), 1);
}

TEST_F(EventNotesViewControllerTest, ChangesAreAnnouncedOnlyWhileThePaneIsOpen) {
    controller.awakeFromNib();
    int notes = 0;
    int counts = 0;
    QObject::connect(&controller, &EventNotesViewController::notesChanged, [&] { ++notes; });
    QObject::connect(&controller, &EventNotesViewController::notesCountChanged, [&] { ++counts; });
    add("Call");
    settings.setObject("isEventNotesDate", false);
    EXPECT_EQ(notes, 0);
    settings.setObject("isNotesViewOn", true);
    EXPECT_EQ(notes, 1);
    settings.setObject("isEventNotesDate", true);
    EXPECT_EQ(notes, 2);
    add("Mail");
    EXPECT_EQ(notes, 3);
    events.setFilter("none", [](const Event&) { return false; });
    EXPECT_EQ(notes, 4);
    EXPECT_EQ(counts, 4);
}

TEST_F(EventNotesViewControllerTest, LongNotesTellHowFarTheyAreAndCanBeCancelled) {
    constexpr std::size_t many = 2500;
    for (std::size_t number = 0; number < many; ++number) {
        content.push_back({utc(2024, 3, 4, 9), utc(2024, 3, 4, 10), Instant(), nullptr});
        EventDetails details;
        details.calendar = test::calendarNamed("Work");
        details.notes = "Call";
        content.back().details = std::make_shared<const EventDetails>(std::move(details));
    }
    events.setContent(content);
    std::vector<std::size_t> told;
    ExportAnswer answer = ExportAnswer::GoOn;
    const ExportProgress progress = [&](std::size_t finished, std::size_t all) {
        EXPECT_EQ(all, many);
        told.push_back(finished);
        // The user's calendars may change while the progress is shown.
        events.setContent(std::vector<Event>());
        return answer;
    };
    const QString whole = controller.notes().text();
    EXPECT_EQ(controller.shownText(progress), whole);
    EXPECT_EQ(told, (std::vector<std::size_t>{1000, 2000}));
    events.setContent(content);
    answer = ExportAnswer::Cancel;
    EXPECT_EQ(controller.shownText(progress), std::nullopt);
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(EventNotesViewControllerTest, WhatLeavesTheProgramIsWhatThePaneShows) {
    controller.awakeFromNib();
    add("Call");
    const QString fresh = controller.notes().text();
    std::optional<QString> shown = "as they stand in the pane";
    EXPECT_EQ(controller.shownText({}), fresh) << "no pane";
    controller.setNotesTextView([&] { return shown; });
    EXPECT_EQ(controller.shownText({}), fresh) << "a closed pane";
    settings.setObject("isNotesViewOn", true);
    EXPECT_EQ(controller.shownText({}), "as they stand in the pane");
    shown.reset();
    EXPECT_EQ(controller.shownText({}), fresh) << "a pane that waits for newer ones";
}

TEST_F(EventNotesViewControllerTest, AnotherOrderAloneIsNotAnnounced) {
    controller.awakeFromNib();
    settings.setObject("isNotesViewOn", true);
    add("Call");
    int notes = 0;
    QObject::connect(&controller, &EventNotesViewController::notesChanged, [&] { ++notes; });
    events.setOrder(
        [](const Event& left, const Event& right) { return left.endDate < right.endDate; });
    EXPECT_EQ(notes, 0);
}

} // namespace quillet
