#include "platform/NamedRecordsController.h"

#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

constexpr Setting<QVariantList> list{"views"};
const QString listKey = list.name();

class Views final : public NamedRecordsController {
public:
    Views(SettingsStore& settings, AlertPresenter& alerts)
        : NamedRecordsController(settings, alerts,
                                 {.list = list,
                                  .nameMember = QStringLiteral("viewName"),
                                  .firstStaysMessage = "It stays",
                                  .firstStaysReason = "It is the first."}) {}

    using NamedRecordsController::append;
    using NamedRecordsController::followStoredList;
    using NamedRecordsController::numberedName;
    using NamedRecordsController::removeSelected;
    using NamedRecordsController::selectFirstUnlessSelected;
};

QVariantMap view(const QString& name) {
    return {{"viewName", name}};
}

class NamedRecordsControllerTest : public testing::Test {
protected:
    [[nodiscard]] QVariantList stored() const { return arrayForKey(settings, listKey); }
    [[nodiscard]] QStringList shown() const {
        QStringList names;
        for (const NamedRecord& record : *views.content()) {
            names << record.name;
        }
        return names;
    }

    test::MemorySettings settings;
    test::FakeAlerts alerts;
    Views views{settings, alerts};
};

} // namespace

TEST_F(NamedRecordsControllerTest, AnAbsentListIsStoredEmptyAndAPresentOneIsNotWritten) {
    views.followStoredList();
    EXPECT_EQ(settings.object(listKey), QVariant(QVariantList()));
    views.append("One", {{"width", 3}});
    settings.writes.clear();
    Views later(settings, alerts);
    later.followStoredList();
    EXPECT_TRUE(settings.writes.isEmpty());
    ASSERT_EQ(later.arrangedCount(), 1U);
    EXPECT_EQ(later.arranged(0).members, (QVariantMap{{"viewName", "One"}, {"width", 3}}));
}

TEST_F(NamedRecordsControllerTest, ARecordKeepsExactlyItsMembers) {
    const QVariantMap odd{{"viewName", 7}, {"width", "wide"}, {"parts", QVariantList{1, "two"}}};
    const QVariantMap nameless{{"width", 5.5}};
    settings.setObject(listKey, QVariantList{view("First"), odd, nameless, QVariantMap()});
    views.followStoredList();
    EXPECT_EQ(shown(), (QStringList{"First", "7", QString(), QString()}));
    views.rename(0, "Renamed");
    EXPECT_EQ(stored(), (QVariantList{view("Renamed"), odd, nameless, QVariantMap()}));
    views.rename(2, "Named");
    EXPECT_EQ(stored().at(2), (QVariantMap{{"viewName", "Named"}, {"width", 5.5}}));
    EXPECT_EQ(stored().at(1), odd);
    EXPECT_EQ(stored().at(3), QVariantMap());
}

TEST_F(NamedRecordsControllerTest, WhatIsNoRecordIsKeptBehindTheRecords) {
    settings.setObject(listKey, QVariantList{3, view("A"), "text", view("B")});
    views.followStoredList();
    EXPECT_EQ(shown(), (QStringList{"A", "B"}));
    EXPECT_EQ(stored().first(), QVariant(3)) << "reading mends nothing";
    views.rename(1, "Bee");
    EXPECT_EQ(stored(), (QVariantList{view("A"), view("Bee"), 3, "text"}));
    views.append("C", {});
    EXPECT_EQ(stored(), (QVariantList{view("A"), view("Bee"), view("C"), 3, "text"}));
    settings.setObject(listKey, QVariantList{view("A")});
    views.rename(0, "Only");
    EXPECT_EQ(stored(), QVariantList{view("Only")}) << "others were removed by hand";
}

TEST_F(NamedRecordsControllerTest, ARowThatIsNotThereIsNotRenamed) {
    views.followStoredList();
    settings.writes.clear();
    views.rename(0, "Nobody");
    EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(NamedRecordsControllerTest, ARenameIsAnnouncedBeforeAndAfterIt) {
    settings.setObject(listKey, QVariantList{view("Old"), view("Other")});
    views.followStoredList();
    QStringList told;
    QObject::connect(&views, &ListControllerNotices::arrangedObjectsWillChange,
                     [&] { told << "from " + views.arranged(0).name; });
    QObject::connect(&views, &ListControllerNotices::arrangedObjectsChanged,
                     [&] { told << "to " + views.arranged(0).name; });
    views.rename(0, "New");
    EXPECT_EQ(told, (QStringList{"from Old", "to New"}));
}

TEST_F(NamedRecordsControllerTest, NumbersCountTheRecordsSoThatANameMayComeAgain) {
    views.followStoredList();
    for (int count = 0; count < 3; ++count) {
        views.append(views.numberedName("View"), {});
    }
    EXPECT_EQ(shown(), (QStringList{"View 1", "View 2", "View 3"}));
    views.setSelectedRows({1});
    views.removeSelected();
    EXPECT_EQ(views.numberedName("View"), "View 3");
}

TEST_F(NamedRecordsControllerTest, TheFirstStaysWhateverItsNameAndTheOthersGo) {
    settings.setObject(listKey, QVariantList{view("Mine"), view("Default"), view("Last")});
    views.followStoredList();
    views.setSelectedRows({0});
    views.removeSelected();
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, "It stays");
    EXPECT_EQ(alerts.shown[0].informativeText, "It is the first.");
    EXPECT_EQ(alerts.shown[0].buttonTitles, QStringList{"OK"});
    EXPECT_EQ(stored().size(), 3);
    views.setSelectedRows({1});
    views.removeSelected();
    ASSERT_EQ(alerts.shown.size(), 2U);
    EXPECT_EQ(alerts.shown[1].messageText, "Delete the record?");
    EXPECT_EQ(stored(), (QVariantList{view("Mine"), view("Last")}));
    EXPECT_EQ(views.selectedRows(), std::vector<std::size_t>{1}) << "the next one";
    views.removeSelected();
    EXPECT_EQ(views.selectedRows(), std::vector<std::size_t>{0});
}

TEST_F(NamedRecordsControllerTest, TheSelectionStaysWithItsRecordWhenTheListIsWrittenElsewhere) {
    settings.setObject(listKey, QVariantList{view("A"), view("B"), view("C")});
    views.followStoredList();
    views.selectFirstUnlessSelected();
    EXPECT_EQ(views.selectedRows(), std::vector<std::size_t>{0});
    views.setSelectedRows({2});
    views.selectFirstUnlessSelected();
    EXPECT_EQ(views.selectedRows(), std::vector<std::size_t>{2});
    settings.setObject(listKey, QVariantList{view("A"), view("C"), view("New")});
    EXPECT_EQ(views.selectedRows(), std::vector<std::size_t>{1});
    settings.setObject(listKey, QVariantList{view("A"), view("Sea"), view("New")});
    EXPECT_EQ(views.selectedRows(), std::vector<std::size_t>{1}) << "renamed";
    settings.setObject(listKey, QVariantList{view("A")});
    EXPECT_TRUE(views.selectedRows().empty());
    settings.setObject(listKey, QVariantList());
    views.selectFirstUnlessSelected();
    EXPECT_TRUE(views.selectedRows().empty());
}

TEST_F(NamedRecordsControllerTest, TwinsAreToldApartByTheirPlaces) {
    settings.setObject(listKey, QVariantList{view("A"), view("Twin"), view("Twin")});
    views.followStoredList();
    views.setSelectedRows({2});
    settings.setObject(listKey, QVariantList{view("Ay"), view("Twin"), view("Twin")});
    EXPECT_EQ(views.selectedRows(), std::vector<std::size_t>{2});
}

TEST_F(NamedRecordsControllerTest, ListsMapsAndDatesAreNoMembersToBeRead) {
    for (const QVariant& value : {QVariant(true), QVariant(3), QVariant(0.5), QVariant("text")}) {
        EXPECT_TRUE(isReadableMember(value)) << value.typeName();
    }
    for (const QVariant& value : {QVariant(), QVariant(QVariantList{1}), QVariant(QVariantMap()),
                                  QVariant::fromValue(test::utc(2024, 3, 1))}) {
        EXPECT_FALSE(isReadableMember(value)) << value.typeName();
    }
}

} // namespace quillet
