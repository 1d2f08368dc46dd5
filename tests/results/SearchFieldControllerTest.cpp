#include "results/SearchFieldController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "eventdata/EventsController.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

class SearchFieldControllerTest : public testing::Test {
protected:
    SearchFieldControllerTest() {
        settings.setObject("viewMode", 0);
        events.setContent(std::vector{event("Team meeting", "Agenda", "Berlin"),
                                      event("Lunch", QString(), "Meeting room"),
                                      event("Call", "Prepare the meeting", QString()),
                                      event("Invoices", "50% done", "C:\\Bills \"2024\"")});
    }
    static Event event(const QString& title, const QString& notes, const QString& location) {
        EventDetails details;
        details.calendar = test::calendarNamed("work");
        details.title = title;
        details.notes = notes;
        details.location = location;
        details.eventIdentifier = title;
        return {utc(2024, 3, 4, 9), utc(2024, 3, 4, 10), Instant(),
                std::make_shared<const EventDetails>(std::move(details))};
    }
    void type(const QString& text) { controller.setSearchText(text); }
    QStringList shown() const {
        QStringList titles;
        for (std::size_t row = 0; row < events.arrangedCount(); ++row) {
            titles << events.arranged(row).details->title;
        }
        return titles;
    }
    QStringList menuTitles() const {
        QStringList titles;
        for (const SearchMenuItem& item : controller.searchMenuTemplate().items) {
            titles << item.title + ' ' + QString::number(item.tag) + (item.isTicked ? "✓" : "");
        }
        return titles;
    }

    const QStringList all{"Team meeting", "Lunch", "Call", "Invoices"};
    test::MemorySettings settings;
    ListController<Event> events{eventIdentityHash, isSameEvent};
    SearchFieldController controller{settings, events};
};

constexpr std::size_t titleItem = 1;
constexpr std::size_t notesItem = 2;
constexpr std::size_t locationItem = 3;

} // namespace

TEST_F(SearchFieldControllerTest, OffersFourPlacesForEvents) {
    controller.awakeFromNib();
    EXPECT_EQ(controller.searchMenuTemplate().title, QStringLiteral("Search Menu"));
    EXPECT_EQ(menuTitles(), (QStringList{"All 1✓", "Title 2", "Notes 3", "Location 4"}));
    EXPECT_EQ(controller.toolbarItemLabel(), QStringLiteral("Search Events"));
    EXPECT_EQ(controller.placeholderString(), QStringLiteral("All"));
    EXPECT_EQ(controller.searchCategory(), 1);
}

TEST_F(SearchFieldControllerTest, OffersThreePlacesForReminders) {
    settings.setObject("viewMode", 1);
    controller.awakeFromNib();
    EXPECT_EQ(menuTitles(), (QStringList{"All 1✓", "Title 2", "Notes 3"}));
    EXPECT_EQ(controller.toolbarItemLabel(), QStringLiteral("Search Reminders"));
    EXPECT_EQ(controller.placeholderString(), QStringLiteral("All"));
}

TEST_F(SearchFieldControllerTest, AnyOtherViewHasAnEmptyMenuAndKeepsTheRest) {
    controller.awakeFromNib();
    controller.setSearchCategoryFrom(titleItem);
    type("meet");
    settings.setObject("viewMode", 2);
    EXPECT_EQ(controller.searchMenuTemplate().title, QStringLiteral("Search Menu"));
    EXPECT_TRUE(controller.searchMenuTemplate().items.empty());
    EXPECT_EQ(controller.toolbarItemLabel(), QStringLiteral("Search Events"));
    EXPECT_EQ(controller.placeholderString(), QStringLiteral("Title"));
    EXPECT_EQ(controller.searchCategory(), 2);
    EXPECT_EQ(shown(), QStringList{"Team meeting"});
    controller.setSearchCategoryFrom(0);
    EXPECT_EQ(controller.searchCategory(), 2);
    type("lunch");
    EXPECT_EQ(shown(), QStringList{"Team meeting"}) << "nothing happens in such a view";
}

TEST_F(SearchFieldControllerTest, AnEmptyTextShowsEveryEventInAnyOtherViewToo) {
    controller.awakeFromNib();
    for (int view : {2, 3, -1}) {
        settings.setObject("viewMode", 0);
        type("lunch");
        settings.setObject("viewMode", view);
        EXPECT_EQ(shown(), QStringList{"Lunch"}) << view;
        type("");
        EXPECT_EQ(shown(), all) << view;
    }
}

TEST_F(SearchFieldControllerTest, InAnyOtherViewBothLabelsStayThoseOfTheViewBefore) {
    settings.setObject("viewMode", 1);
    controller.awakeFromNib();
    for (int view : {2, 3, -1}) {
        settings.setObject("viewMode", view);
        EXPECT_EQ(controller.toolbarItemLabel(), QStringLiteral("Search Reminders")) << view;
        EXPECT_EQ(controller.toolbarItemLabel(), QStringLiteral("Search Reminders")) << view;
    }
}

TEST_F(SearchFieldControllerTest, ACategoryThatIsNoneOfTheMenusSearchesEverywhere) {
    controller.awakeFromNib();
    for (const qint64 category : {qint64{0}, qint64{1}, qint64{5}, qint64{-1}}) {
        controller.setSearchCategory(category);
        type("");
        type("MEET");
        EXPECT_EQ(shown(), (QStringList{"Team meeting", "Lunch", "Call"})) << category;
    }
}

TEST_F(SearchFieldControllerTest, AllFindsTitlesLocationsAndNotesInAnyCase) {
    controller.awakeFromNib();
    type("MEET");
    EXPECT_EQ(shown(), (QStringList{"Team meeting", "Lunch", "Call"}));
    EXPECT_EQ(events.filterName(),
              QStringLiteral(R"((title contains[c] "MEET") or (notes contains[c] "MEET") or )"
                             R"((location contains[c] "MEET"))"));
}

TEST_F(SearchFieldControllerTest, EachPlaceIsSearchedAlone) {
    controller.awakeFromNib();
    type("meeting");
    controller.setSearchCategoryFrom(titleItem);
    EXPECT_EQ(controller.searchCategory(), 2);
    EXPECT_EQ(shown(), QStringList{"Team meeting"});
    EXPECT_EQ(events.filterName(), QStringLiteral(R"((title contains[c] "meeting"))"));
    controller.setSearchCategoryFrom(notesItem);
    EXPECT_EQ(controller.searchCategory(), 3);
    EXPECT_EQ(shown(), QStringList{"Call"});
    EXPECT_EQ(events.filterName(), QStringLiteral(R"((notes contains[c] "meeting"))"));
    controller.setSearchCategoryFrom(locationItem);
    EXPECT_EQ(controller.searchCategory(), 4);
    EXPECT_EQ(shown(), QStringList{"Lunch"});
    EXPECT_EQ(events.filterName(), QStringLiteral(R"((location contains[c] "meeting"))"));
}

TEST_F(SearchFieldControllerTest, LocationDoesNotMatchATitleAlone) {
    controller.awakeFromNib();
    controller.setSearchCategoryFrom(locationItem);
    type("team");
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(SearchFieldControllerTest, AChosenPlaceIsTickedAloneAndNamedInTheField) {
    controller.awakeFromNib();
    controller.setSearchCategoryFrom(notesItem);
    EXPECT_EQ(menuTitles(), (QStringList{"All 1", "Title 2", "Notes 3✓", "Location 4"}));
    EXPECT_EQ(controller.placeholderString(), QStringLiteral("Notes"));
    controller.setSearchCategoryFrom(4);
    EXPECT_EQ(controller.searchCategory(), 3) << "there is no fifth entry";
}

TEST_F(SearchFieldControllerTest, ClearingTheFieldShowsEveryEventAgain) {
    controller.awakeFromNib();
    type("team");
    type("");
    EXPECT_EQ(shown(), all);
    EXPECT_EQ(events.filterName(), QString());
}

TEST_F(SearchFieldControllerTest, MissingNotesAndLocationsMatchNothing) {
    controller.awakeFromNib();
    controller.setSearchCategoryFrom(notesItem);
    type("e");
    EXPECT_EQ(shown(), (QStringList{"Team meeting", "Call", "Invoices"}));
    type(" ");
    EXPECT_EQ(shown(), (QStringList{"Call", "Invoices"})) << "a blank is a text like any other";
}

TEST_F(SearchFieldControllerTest, QuotesBackslashesAndPercentSignsAreFoundLiterally) {
    controller.awakeFromNib();
    for (const char* text : {"50%", "C:\\b", "\"2024\"", "\\bills \"", "%"}) {
        type(text);
        EXPECT_EQ(shown(), QStringList{"Invoices"}) << text;
    }
    for (const char* text : {"%@", "\\\"", "100%", "C\\:", "\") or (title contains[c] \"", "%%"}) {
        type(text);
        EXPECT_EQ(shown(), QStringList()) << text;
    }
}

TEST_F(SearchFieldControllerTest, WhatLooksLikeAPlaceholderOfTheConditionIsAText) {
    events.setContent(std::vector{event("%@ done", QString(), QString()),
                                  event("done", "no %1 here", QString())});
    controller.awakeFromNib();
    type("%@");
    EXPECT_EQ(shown(), QStringList{"%@ done"});
    type("%1");
    EXPECT_EQ(shown(), QStringList{"done"});
}

TEST_F(SearchFieldControllerTest, GoingToAnotherViewAndBackChoosesAllAgain) {
    controller.awakeFromNib();
    controller.setSearchCategoryFrom(locationItem);
    type("meeting");
    ASSERT_EQ(shown(), QStringList{"Lunch"});
    settings.setObject("viewMode", 1);
    EXPECT_EQ(controller.searchCategory(), 1);
    settings.setObject("viewMode", 0);
    EXPECT_EQ(controller.searchCategory(), 1);
    EXPECT_EQ(controller.placeholderString(), QStringLiteral("All"));
    EXPECT_EQ(shown(), (QStringList{"Team meeting", "Lunch", "Call"}))
        << "the field's text filters by the new choice";
}

TEST_F(SearchFieldControllerTest, TypingInTheRemindersViewLeavesTheListAsItWas) {
    settings.setObject("viewMode", 1);
    controller.awakeFromNib();
    for (std::size_t item = 0; item < 3; ++item) {
        controller.setSearchCategoryFrom(item);
        type("lunch");
        EXPECT_EQ(shown(), all);
    }
}

TEST_F(SearchFieldControllerTest, TheRemindersViewNeitherSetsNorRemovesTheFilterOfEvents) {
    controller.awakeFromNib();
    type("lunch");
    settings.setObject("viewMode", 1);
    EXPECT_EQ(shown(), QStringList{"Lunch"});
    type("team");
    EXPECT_EQ(shown(), QStringList{"Lunch"});
    type("");
    EXPECT_EQ(shown(), all) << "an empty field filters nothing in every view";
}

TEST_F(SearchFieldControllerTest, TheChoiceIsNotStored) {
    controller.awakeFromNib();
    controller.setSearchCategoryFrom(notesItem);
    EXPECT_EQ(settings.keys(), QStringList{"viewMode"});
}

TEST_F(SearchFieldControllerTest, TheSameTextAgainRearrangesNothing) {
    controller.awakeFromNib();
    type("lunch");
    int notices = 0;
    QObject::connect(&events, &ListControllerNotices::arrangedObjectsChanged, [&] { ++notices; });
    controller.updateFilter();
    EXPECT_EQ(notices, 0);
    type("lunc");
    EXPECT_EQ(notices, 1);
}

TEST_F(SearchFieldControllerTest, EventsThatComeLaterAreFilteredToo) {
    controller.awakeFromNib();
    type("new");
    EXPECT_EQ(shown(), QStringList());
    events.setContent(
        std::vector{event("Old", QString(), QString()), event("A new one", QString(), QString())});
    EXPECT_EQ(shown(), QStringList{"A new one"});
}

TEST_F(SearchFieldControllerTest, TypingWhileIdleFetchesOnce) {
    settings.setObject("isCalendarAccessGranted", true);
    settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
    settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31, 23, 59, 59)));
    test::FakeEventStore store;
    test::FakeAlerts alerts;
    test::FakeQueue background;
    test::FakeQueue main;
    const IcuCalendarArithmetic calendar("en_US", "UTC", CalendarSystem::Gregorian);
    BillingSettingsSource billing(settings, calendar);
    EventKitManager manager(store, settings, alerts, main);
    store.storedCalendars = {test::calendarNamed("work")};
    CalendarRecord record;
    record.calendarIdentifier = "work";
    record.isSelected = true;
    ListController<CalendarRecord> records;
    records.setContent(std::vector{record});
    EventsController fetching(
        {manager, settings, billing, calendar, events, records, background, main});
    fetching.awakeFromNib();
    const auto finish = [&] {
        while (background.runOne() || main.runOne()) {
        }
    };
    finish();
    controller.awakeFromNib();
    const int before = store.queries;
    type("t");
    type("te");
    finish();
    EXPECT_EQ(store.queries, before + 1) << "the second key came during the fetch";
    type("tea");
    finish();
    EXPECT_EQ(store.queries, before + 2);
}

} // namespace quillet
