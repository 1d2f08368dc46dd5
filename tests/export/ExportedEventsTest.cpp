#include "export/ExportedEvents.h"

#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::timedEvent;
using test::utc;

class ExportedEventsTest : public testing::Test {
protected:
    ExportedEventsTest() {
        const Instant start = utc(2024, 3, 4, 9);
        for (const char* title : {"b", "d", "a", "c"}) {
            content.push_back(timedEvent(start, start, "work", QString::fromLatin1(title)));
        }
        list.setContent(content);
        list.setOrder([](const Event& left, const Event& right) {
            return left.details->title < right.details->title;
        });
    }
    static QStringList titles(const ExportedEvents& events) {
        QStringList result;
        for (std::size_t position = 0; position < events.size(); ++position) {
            result << events[position].details->title;
        }
        return result;
    }

    EventList content;
    ListController<Event> list;
    test::MemorySettings settings;
};

} // namespace

TEST_F(ExportedEventsTest, AllAreThoseThatPassTheFilterAsTheyAreSorted) {
    EXPECT_EQ(titles(ExportedEvents::arranged(list)), (QStringList{"a", "b", "c", "d"}));
    list.setFilter("not c", [](const Event& event) { return event.details->title != u"c"; });
    EXPECT_EQ(titles(ExportedEvents::arranged(list)), (QStringList{"a", "b", "d"}));
}

TEST_F(ExportedEventsTest, SelectedOnesStandInTheSameOrder) {
    EXPECT_TRUE(ExportedEvents::selected(list).isEmpty());
    list.setSelectedRows({3, 0});
    EXPECT_EQ(titles(ExportedEvents::selected(list)), (QStringList{"a", "d"}));
}

TEST_F(ExportedEventsTest, TheTabOfSelectedEventsChoosesThem) {
    list.setSelectedRows({1});
    EXPECT_EQ(ExportedEvents::chosen(list, settings).size(), 4);
    settings.setObject("totalsTabViewSelection", 1);
    EXPECT_EQ(titles(ExportedEvents::chosen(list, settings)), QStringList{"b"});
    settings.setObject("totalsTabViewSelection", 2);
    EXPECT_EQ(ExportedEvents::chosen(list, settings).size(), 4);
}

TEST_F(ExportedEventsTest, StayWhenTheListChanges) {
    list.setSelectedRows({1, 2});
    const ExportedEvents events = ExportedEvents::selected(list);
    list.setContent(EventList());
    EXPECT_EQ(titles(events), (QStringList{"b", "c"}));
}

} // namespace quillet
