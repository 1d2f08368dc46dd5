#include "platform/ListController.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace quillet {

namespace {

struct Entry {
    int identity = 0;
    std::string text;
};

std::string joined(const std::vector<Entry>& entries) {
    std::string texts;
    for (const Entry& entry : entries) {
        texts += entry.text;
    }
    return texts;
}

bool isSame(const Entry& left, const Entry& right) {
    return left.identity == right.identity;
}

bool byText(const Entry& left, const Entry& right) {
    return left.text < right.text;
}

class ListControllerTest : public testing::Test {
protected:
    ListControllerTest() {
        QObject::connect(&list, &ListControllerNotices::arrangedObjectsWillChange,
                         [this] { notices += "will "; });
        QObject::connect(&list, &ListControllerNotices::arrangedObjectsChanged,
                         [this] { notices += "arranged "; });
        QObject::connect(&list, &ListControllerNotices::selectedObjectsChanged,
                         [this] { notices += "selected "; });
    }

    std::string arranged() const {
        std::vector<Entry> entries;
        for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
            entries.push_back(list.arranged(row));
        }
        return joined(entries);
    }

    ListController<Entry> list{
        [](const Entry& entry) { return static_cast<std::size_t>(entry.identity); }, isSame};
    std::string notices;
};

} // namespace

TEST_F(ListControllerTest, ShowsItsContentInItsOrder) {
    list.setContent(std::vector<Entry>{{1, "c"}, {2, "a"}, {3, "b"}});
    EXPECT_EQ(arranged(), "cab");
    EXPECT_EQ(notices, "will arranged selected ");
}

TEST_F(ListControllerTest, FiltersAndSortsStably) {
    list.setContent(std::vector<Entry>{{1, "c"}, {2, "a"}, {3, "b"}, {4, "a"}});
    list.setOrder(byText);
    EXPECT_EQ(arranged(), "aabc");
    EXPECT_EQ(list.arranged(0).identity, 2);
    EXPECT_EQ(list.arranged(1).identity, 4);
    list.setFilter("not c", [](const Entry& entry) { return entry.text != "c"; });
    EXPECT_EQ(arranged(), "aab");
    list.setFilter({}, {});
    list.setSorter({});
    EXPECT_EQ(arranged(), "caba");
}

TEST_F(ListControllerTest, AFilterEqualToTheOneInForceAnnouncesNothing) {
    list.setContent(std::vector<Entry>{{1, "a"}, {2, "b"}});
    list.setFilter("a", [](const Entry& entry) { return entry.text == "a"; });
    notices.clear();
    list.setFilter("a", [](const Entry& entry) { return entry.text == "a"; });
    EXPECT_EQ(notices, "");
    EXPECT_EQ(arranged(), "a");
}

TEST_F(ListControllerTest, TheSelectionFollowsItsRecordsThroughANewContent) {
    list.setContent(std::vector<Entry>{{1, "a"}, {2, "b"}, {3, "c"}});
    list.setSelectedRows({0, 2});
    list.setContent(std::vector<Entry>{{3, "C"}, {4, "d"}, {2, "b"}});
    EXPECT_EQ(joined(list.selectedObjects()), "C");
    EXPECT_EQ(list.selectedRows(), std::vector<std::size_t>{0});
}

TEST_F(ListControllerTest, TheSelectionFollowsItsRecordsThroughSortingAndFiltering) {
    list.setContent(std::vector<Entry>{{1, "c"}, {2, "a"}, {3, "b"}});
    list.setSelectedRows({0, 1});
    list.setOrder(byText);
    EXPECT_EQ(list.selectedRows(), (std::vector<std::size_t>{0, 2}));
    list.setFilter("b or c", [](const Entry& entry) { return entry.text != "a"; });
    EXPECT_EQ(joined(list.selectedObjects()), "c");
}

TEST_F(ListControllerTest, RecordsOfEqualHashButAnotherIdentityAreNotSelected) {
    ListController<Entry> colliding([](const Entry&) { return std::size_t{7}; }, isSame);
    std::vector<Entry> entries;
    std::vector<std::size_t> selected;
    for (int identity = 0; identity < 20; ++identity) {
        entries.push_back({identity, "x"});
        if (identity % 2 == 0) {
            selected.push_back(static_cast<std::size_t>(identity));
        }
    }
    colliding.setContent(entries);
    colliding.setSelectedRows(selected);
    std::ranges::reverse(entries);
    entries.push_back({99, "new"});
    colliding.setContent(entries);
    ASSERT_EQ(colliding.selectedRows().size(), 10U);
    for (const Entry& entry : colliding.selectedObjects()) {
        EXPECT_EQ(entry.identity % 2, 0);
    }
}

TEST_F(ListControllerTest, SelectingIsAnnouncedOnlyWhenItChangesSomething) {
    list.setContent(std::vector<Entry>{{1, "a"}, {2, "b"}});
    notices.clear();
    list.setSelectedRows({1, 1, 9, 0});
    EXPECT_EQ(list.selectedRows(), (std::vector<std::size_t>{0, 1}));
    list.setSelectedRows({0, 1});
    EXPECT_EQ(notices, "selected ");
}

TEST_F(ListControllerTest, ObserversSeeTheNewState) {
    std::string seen;
    QObject::connect(&list, &ListControllerNotices::arrangedObjectsChanged,
                     [&] { seen = arranged(); });
    list.setContent(std::vector<Entry>{{1, "x"}});
    EXPECT_EQ(seen, "x");
}

TEST_F(ListControllerTest, TheOldRecordsAreReadableUntilTheNewOnesCome) {
    list.setContent(std::vector<Entry>{{1, "old"}});
    std::string seen;
    QObject::connect(&list, &ListControllerNotices::arrangedObjectsWillChange,
                     [&] { seen = arranged(); });
    list.setContent(std::vector<Entry>{{1, "new"}});
    EXPECT_EQ(seen, "old");
}

} // namespace quillet
