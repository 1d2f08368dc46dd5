#include "calendars/CalendarGroupsController.h"

#include "calendars/CalendarGroupsArrayController.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

CalendarRecord record(const QString& identifier) {
    CalendarRecord result;
    result.calendarIdentifier = identifier;
    result.isSelected = true;
    return result;
}

CalendarGroupEntry entry(const QString& identifier, bool isSelected) {
    return {.calendarIdentifier = identifier,
            .title = identifier,
            .isSelected = isSelected,
            .otherMembers = {}};
}

class CalendarGroupsControllerTest : public testing::Test {
protected:
    CalendarGroupsControllerTest() {
        calendars.setContent({record("A"), record("B"), record("C")});
        setGroup({entry("A", true), entry("B", false), entry("C", true)});
        settings.setObject("isCalendarGroupsSheetActive", false);
    }
    /// The list of "All Calendars" and one group of these entries.
    void setGroup(CalendarGroupEntries entries) {
        std::vector<CalendarGroup> list(2);
        list[1].calendarGroupArray = std::move(entries);
        groups.setContent(std::move(list));
    }
    QString shown() const {
        QString identifiers;
        for (std::size_t row = 0; row < calendars.arrangedCount(); ++row) {
            identifiers += calendars.arranged(row).calendarIdentifier;
        }
        return identifiers;
    }
    void choose(const QVariant& index) { settings.setObject("calendarGroupsSelectedIndex", index); }

    test::MemorySettings settings;
    test::FakeTimer timer;
    ListController<CalendarRecord> calendars;
    ListController<CalendarGroup> groups;
    CalendarGroupsController controller{{settings, calendars, groups, timer}};
};

} // namespace

TEST_F(CalendarGroupsControllerTest, AtFirstAllCalendarsAreChosenAndNoneIsFiltered) {
    controller.awakeFromNib();
    EXPECT_EQ(settings.object("calendarGroupsSelectedIndex"), QVariant(qint64{0}));
    EXPECT_EQ(shown(), QStringLiteral("ABC"));
    EXPECT_TRUE(calendars.filterName().isEmpty());
}

TEST_F(CalendarGroupsControllerTest, TheFirstFetchIsAskedForALittleLater) {
    controller.awakeFromNib();
    EXPECT_FALSE(hasKey(settings, "datesChangedTrigger"));
    ASSERT_EQ(timer.pending.size(), 1U);
    EXPECT_EQ(timer.pending[0].first, 1.5);
    timer.fireAll();
    EXPECT_EQ(settings.object("datesChangedTrigger"), QVariant(true));
    controller.triggerEventsArrayUpdate();
    EXPECT_EQ(settings.object("datesChangedTrigger"), QVariant(false));
}

TEST_F(CalendarGroupsControllerTest, AGroupLeavesItsTickedCalendars) {
    controller.awakeFromNib();
    const auto triggers = settings.writes.count("datesChangedTrigger");
    controller.setCalendarGroupsSelectedIndex(1);
    EXPECT_EQ(calendars.filterName(),
              QStringLiteral("calendarIdentifier = \"A\" OR calendarIdentifier = \"C\""));
    EXPECT_EQ(shown(), QStringLiteral("AC"));
    EXPECT_EQ(settings.writes.count("datesChangedTrigger"), triggers)
        << "the rearranged list is what makes the events follow";
    controller.setCalendarGroupsSelectedIndex(0);
    EXPECT_EQ(shown(), QStringLiteral("ABC"));
}

TEST_F(CalendarGroupsControllerTest, AGroupChosenInTheLastRunFiltersFromTheStart) {
    choose(1);
    controller.awakeFromNib();
    EXPECT_EQ(shown(), QStringLiteral("AC"));
}

TEST_F(CalendarGroupsControllerTest, AGroupWithoutATickedCalendarLeavesNone) {
    setGroup({entry("A", false)});
    choose(1);
    controller.awakeFromNib();
    EXPECT_EQ(calendars.filterName(), QStringLiteral("calendarIdentifier = \"000\""));
    EXPECT_EQ(shown(), QString());
}

TEST_F(CalendarGroupsControllerTest, AnIndexThatIsNoPositionCountsAsAllCalendars) {
    controller.awakeFromNib();
    for (const QVariant& index : {QVariant(2), QVariant(-1), QVariant(1e300), QVariant("abc")}) {
        choose(1);
        choose(index);
        EXPECT_EQ(shown(), QStringLiteral("ABC")) << index.toString().toStdString();
        EXPECT_EQ(controller.calendarGroupsSelectedIndex(), 0U);
    }
    choose("1");
    EXPECT_EQ(controller.calendarGroupsSelectedIndex(), 1U);
}

TEST_F(CalendarGroupsControllerTest, TicksCountWhenTheSheetCloses) {
    choose(1);
    controller.awakeFromNib();
    settings.setObject("isCalendarGroupsSheetActive", true);
    setGroup({entry("A", false), entry("B", true)});
    EXPECT_EQ(shown(), QStringLiteral("AC"));
    settings.setObject("isCalendarGroupsSheetActive", false);
    EXPECT_EQ(shown(), QStringLiteral("B"));
}

TEST_F(CalendarGroupsControllerTest, TicksCountInTheOpenSheetOnceTheArrangedCalendarsChange) {
    choose(1);
    controller.awakeFromNib();
    settings.setObject("isCalendarGroupsSheetActive", true);
    setGroup({entry("A", false), entry("B", true)});
    ASSERT_EQ(shown(), QStringLiteral("AC"));
    calendars.setContent({record("A"), record("B"), record("C"), record("D")});
    EXPECT_EQ(shown(), QStringLiteral("B"));
}

TEST_F(CalendarGroupsControllerTest, IdentifiersStandInTheConditionAsTheyAre) {
    choose(1);
    controller.awakeFromNib();
    setGroup({entry("A\" OR calendarIdentifier = \"C", true)});
    controller.updateFilterPredicate();
    EXPECT_EQ(calendars.filterName(),
              QStringLiteral(R"(calendarIdentifier = "A" OR calendarIdentifier = "C")"));
    EXPECT_EQ(shown(), QStringLiteral("AC"));
    setGroup({entry("\\B", true)});
    controller.updateFilterPredicate();
    EXPECT_EQ(calendars.filterName(), QStringLiteral(R"(calendarIdentifier = "\B")"));
    EXPECT_EQ(shown(), QStringLiteral("B")) << "a backslash takes the letter behind it";
}

TEST_F(CalendarGroupsControllerTest, ThePredicateThatIsKeptIsNotTheFilter) {
    choose(1);
    controller.awakeFromNib();
    EXPECT_FALSE(controller.calendarsArrayControllerFilterPredicate().has_value());
    const auto kept = Predicate::parse("calendarIdentifier = \"B\"");
    controller.setCalendarsArrayControllerFilterPredicate(kept);
    controller.updateFilterPredicate();
    EXPECT_EQ(controller.calendarsArrayControllerFilterPredicate(), kept);
    EXPECT_EQ(shown(), QStringLiteral("AC"));
}

TEST_F(CalendarGroupsControllerTest, AnArrivedCalendarIsFilteredToo) {
    choose(1);
    controller.awakeFromNib();
    calendars.setContent({record("C"), record("D")});
    EXPECT_EQ(shown(), QStringLiteral("C"));
}

TEST_F(CalendarGroupsControllerTest, AFilterAlreadyInForceIsNotAnnouncedAgain) {
    choose(1);
    controller.awakeFromNib();
    int notices = 0;
    QObject::connect(&calendars, &ListControllerNotices::arrangedObjectsChanged,
                     [&] { ++notices; });
    controller.updateFilterPredicate();
    EXPECT_EQ(notices, 0);
    setGroup({entry("B", true)});
    controller.updateFilterPredicate();
    EXPECT_EQ(notices, 1);
    calendars.setContent({record("B")});
    EXPECT_EQ(notices, 2);
}

namespace {

/// The real list of groups before the controller: "All Calendars", then three of one calendar each.
class ChosenGroupTest : public testing::Test {
protected:
    ChosenGroupTest() {
        calendars.setContent({record("A"), record("B"), record("C")});
        settings.setObject("calendars", QVariantList{QVariantMap{{"calendarIdentifier", "A"}}});
        groups.awakeFromNib();
        for (const char* identifier : {"A", "B", "C"}) {
            groups.addCalendarGroup();
            groups.setCalendarGroupArray(groups.arrangedCount() - 1, {entry(identifier, true)});
        }
    }
    void choose(qint64 index) {
        settings.setObject("calendarGroupsSelectedIndex", index);
        controller.awakeFromNib();
    }
    void remove(std::size_t position) {
        groups.setSelectedRows({position});
        groups.removeCalendarGroup();
    }
    void writeFromElsewhere(const std::function<void(QVariantList&)>& change) {
        QVariantList list = settings.object("calendarGroups").toList();
        change(list);
        settings.setObject("calendarGroups", list);
    }
    [[nodiscard]] qint64 index() const {
        return integerForKey(settings, "calendarGroupsSelectedIndex");
    }
    [[nodiscard]] QString shown() const {
        QString identifiers;
        for (std::size_t row = 0; row < calendars.arrangedCount(); ++row) {
            identifiers += calendars.arranged(row).calendarIdentifier;
        }
        return identifiers;
    }

    test::MemorySettings settings;
    test::FakeAlerts alerts;
    test::FakeTimer timer;
    ListController<CalendarRecord> calendars;
    CalendarGroupsArrayController groups{settings, alerts};
    CalendarGroupsController controller{{settings, calendars, groups, timer}};
};

} // namespace

TEST_F(ChosenGroupTest, DeletingTheChosenGroupChoosesAllCalendars) {
    choose(2);
    EXPECT_EQ(shown(), QStringLiteral("B"));
    remove(2);
    EXPECT_EQ(index(), 0);
    EXPECT_EQ(shown(), QStringLiteral("ABC"));
}

TEST_F(ChosenGroupTest, DeletingAnotherGroupKeepsTheChosenOneChosen) {
    choose(2);
    remove(3);
    EXPECT_EQ(index(), 2);
    remove(1);
    EXPECT_EQ(index(), 1);
    EXPECT_EQ(shown(), QStringLiteral("B"));
}

TEST_F(ChosenGroupTest, AnIndexThatPointsNowhereNeverChoosesAGroupMadeLater) {
    choose(4);
    EXPECT_EQ(shown(), QStringLiteral("ABC"));
    groups.addCalendarGroup();
    EXPECT_EQ(index(), 0);
    EXPECT_EQ(shown(), QStringLiteral("ABC"));
}

TEST_F(ChosenGroupTest, AListWrittenFromElsewhereKeepsTheChosenGroupAsFarAsItIsThere) {
    choose(2);
    writeFromElsewhere([](QVariantList& list) { list.removeAt(1); });
    EXPECT_EQ(index(), 1);
    EXPECT_EQ(shown(), QStringLiteral("B"));
    writeFromElsewhere([](QVariantList& list) {
        QVariantMap renamed = list[1].toMap();
        renamed["calendarGroupName"] = "Renamed";
        list[1] = renamed;
    });
    EXPECT_EQ(index(), 1);
    writeFromElsewhere([](QVariantList& list) { list.removeAt(1); });
    EXPECT_EQ(index(), 0);
    EXPECT_EQ(shown(), QStringLiteral("ABC"));
    writeFromElsewhere([](QVariantList& list) { list.clear(); });
    EXPECT_EQ(index(), 0);
}

TEST_F(ChosenGroupTest, ANewChoiceIsFollowedFromThenOn) {
    choose(1);
    controller.setCalendarGroupsSelectedIndex(3);
    remove(1);
    EXPECT_EQ(index(), 2);
    EXPECT_EQ(shown(), QStringLiteral("C"));
}

} // namespace quillet
