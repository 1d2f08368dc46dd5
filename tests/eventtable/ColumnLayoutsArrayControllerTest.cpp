#include "ColumnLayoutsFixture.h"

namespace quillet {

namespace {

using test::layoutsKey;

class ColumnLayoutsArrayControllerTest : public test::ColumnLayoutsFixture {};

} // namespace

TEST_F(ColumnLayoutsArrayControllerTest, TheFirstStartStoresTheDefaultLayout) {
    controller.awakeFromNib();
    EXPECT_EQ(storedCount(), 1);
    EXPECT_EQ(settings.object("isDefaultColumnLayoutsCreated"), QVariant(true));
    EXPECT_EQ(settings.object("isColumnLayoutUsesNames"), QVariant(true));
    EXPECT_EQ(settings.object("isApplyColumnLayoutOn"), QVariant(false));
    const QVariantMap layout = stored(0);
    EXPECT_EQ(layout.size(), 65);
    EXPECT_EQ(layout.value("columnLayoutName"), QVariant("Default"));
    struct Row {
        const char* stem;
        const char* name;
        int width;
        int index;
        bool isHidden;
    };
    for (const Row& row :
         {Row{"date", "Start Date", 80, 0, false}, Row{"hours", "Hours", 70, 4, false},
          Row{"title", "Title", 240, 3, false}, Row{"notes", "Notes", 128, 14, true},
          Row{"url", "URL", 123, 7, true}, Row{"location", "Location", 119, 8, true},
          Row{"weekday", "Start Weekday", 105, 11, true},
          Row{"endWeekday", "End Weekday", 105, 15, true}, Row{"cost", "Cost", 86, 5, true},
          Row{"startTime", "Start Time", 80, 9, true}, Row{"endTime", "End Time", 80, 10, true},
          Row{"endDate", "End Date", 86, 12, true}, Row{"calendar", "Calendar", 89, 1, false},
          Row{"rate", "Rate", 86, 14, true}, Row{"duration", "Duration", 70, 4, true},
          Row{"minutes", "Minutes", 70, 4, true}}) {
        const QString stem = QString::fromLatin1(row.stem);
        EXPECT_EQ(layout.value(stem + "ColumnName"), QVariant(row.name)) << row.stem;
        EXPECT_EQ(layout.value(stem + "ColumnWidth"), QVariant(row.width)) << row.stem;
        EXPECT_EQ(layout.value(stem + "ColumnIndex"), QVariant(row.index)) << row.stem;
        EXPECT_EQ(layout.value(stem + "ColumnIsHidden"), QVariant(row.isHidden)) << row.stem;
    }
}

TEST_F(ColumnLayoutsArrayControllerTest, ALaterStartKeepsTheLayoutsAndRenamesOnlyTheFirst) {
    controller.awakeFromNib();
    controller.saveColumnLayout();
    controller.rename(0, "Mine");
    controller.rename(1, "Invoice");
    settings.setObject("isApplyColumnLayoutOn", true);
    settings.setObject("isColumnLayoutUsesNames", false);
    ColumnLayoutsArrayController next(
        {.settings = settings, .eventsTableView = table, .alerts = alerts});
    next.awakeFromNib();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Default"));
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("Invoice"));
    EXPECT_EQ(settings.object("isApplyColumnLayoutOn"), QVariant(false));
    EXPECT_EQ(settings.object("isColumnLayoutUsesNames"), QVariant(false));
}

TEST_F(ColumnLayoutsArrayControllerTest, AStartWritesInItsOrder) {
    controller.awakeFromNib();
    EXPECT_EQ(settings.writes,
              (QStringList{layoutsKey, "isColumnLayoutUsesNames", layoutsKey,
                           "isDefaultColumnLayoutsCreated", "isApplyColumnLayoutOn", layoutsKey}));
    settings.writes.clear();
    ColumnLayoutsArrayController later(
        {.settings = settings, .eventsTableView = table, .alerts = alerts});
    later.awakeFromNib();
    EXPECT_EQ(settings.writes, (QStringList{"isApplyColumnLayoutOn", layoutsKey}));
}

TEST_F(ColumnLayoutsArrayControllerTest, TheDefaultLayoutIsMadeWhereItsKeyIsAbsentNotWhereItIsOff) {
    settings.setObject("isDefaultColumnLayoutsCreated", false);
    controller.awakeFromNib();
    EXPECT_EQ(storedCount(), 0);
    EXPECT_EQ(settings.object("isDefaultColumnLayoutsCreated"), QVariant(false));
}

TEST_F(ColumnLayoutsArrayControllerTest, AStartAddsNothingToLayoutsEditedByHand) {
    const QVariantMap bare{{"columnLayoutName", "Bare"}, {"titleColumnWidth", "wide"}};
    const QVariantMap odd{{"dateColumnIndex", QVariantList{1}}, {"rateColumnIsHidden", "YES"}};
    settings.setObject("isDefaultColumnLayoutsCreated", true);
    settings.setObject(layoutsKey, QVariantList{bare, odd});
    controller.awakeFromNib();
    QVariantMap renamed = bare;
    renamed["columnLayoutName"] = "Default";
    EXPECT_EQ(arrayForKey(settings, layoutsKey), (QVariantList{renamed, odd}));
    controller.createColumnLayout();
    EXPECT_EQ(stored(0), renamed);
    EXPECT_EQ(stored(1), odd);
    EXPECT_EQ(stored(2).size(), 65);
}

TEST_F(ColumnLayoutsArrayControllerTest, TheNumberOfANewLayoutCountsThoseThatAreLeft) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    controller.createColumnLayout();
    controller.setSelectedRows({1});
    controller.removeColumnLayout();
    controller.createColumnLayout();
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("New Layout 3"));
    EXPECT_EQ(stored(2).value("columnLayoutName"), QVariant("New Layout 3")) << "a name may repeat";
}

TEST_F(ColumnLayoutsArrayControllerTest, TheDefaultLayoutIsAPlaceAndNotAName) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    controller.rename(0, "Mine");
    controller.rename(1, "Default");
    controller.setSelectedRows({0});
    controller.removeColumnLayout();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_EQ(alerts.shown.back().messageText, "Cannot delete Default layout");
    controller.setSelectedRows({1});
    controller.removeColumnLayout();
    ASSERT_EQ(storedCount(), 1);
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Mine"));
}

TEST_F(ColumnLayoutsArrayControllerTest, TheFirstLayoutsNewNameIsAnnouncedAroundTheWrite) {
    controller.awakeFromNib();
    controller.rename(0, "Mine");
    QStringList told;
    QObject::connect(&controller, &ListControllerNotices::arrangedObjectsWillChange,
                     [&] { told << "from " + controller.arranged(0).name; });
    QObject::connect(&controller, &ListControllerNotices::arrangedObjectsChanged,
                     [&] { told << "to " + controller.arranged(0).name; });
    controller.updateDefaultColumnLayoutsName();
    EXPECT_EQ(told, (QStringList{"from Mine", "to Default"}));
}

TEST_F(ColumnLayoutsArrayControllerTest, AStoreWhoseLayoutsWereEmptiedByHandStillStarts) {
    settings.setObject("isDefaultColumnLayoutsCreated", true);
    settings.setObject(layoutsKey, QVariantList());
    controller.awakeFromNib();
    EXPECT_EQ(storedCount(), 0);
    controller.applyColumnLayout();
    controller.removeColumnLayout();
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(ColumnLayoutsArrayControllerTest, TheNextCreationInAnEmptiedStorePutsTheDefaultLayoutFirst) {
    settings.setObject("isDefaultColumnLayoutsCreated", true);
    controller.awakeFromNib();
    controller.saveColumnLayout();
    ASSERT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Default"));
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("New Layout 2"));
}

TEST_F(ColumnLayoutsArrayControllerTest, ALayoutThatChangesUnderTheQuestionIsNotDeleted) {
    class Rewriting final : public AlertPresenter {
    public:
        explicit Rewriting(SettingsStore& settings)
            : settings_(settings) {}
        [[nodiscard]] int runModal(const Alert& /*alert*/) override {
            QVariantList layouts = arrayForKey(settings_, layoutsKey);
            layouts.removeAt(1);
            settings_.setObject(layoutsKey, layouts);
            return 0;
        }

    private:
        SettingsStore& settings_;
    };
    Rewriting rewriting(settings);
    ColumnLayoutsArrayController layouts(
        {.settings = settings, .eventsTableView = table, .alerts = rewriting});
    layouts.awakeFromNib();
    layouts.createColumnLayout();
    layouts.createColumnLayout();
    layouts.setSelectedRows({1});
    layouts.removeColumnLayout();
    ASSERT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("New Layout 3"));
}

TEST_F(ColumnLayoutsArrayControllerTest, SavingCapturesPlacesAndCutsWidths) {
    controller.awakeFromNib();
    table.moveColumn(table.positionOf("title"), 0);
    table.column("title").setWidthPoints(80.7);
    table.column("notes").setHidden(true);
    settings.setObject("costColumnTitle", "Price");
    std::optional<std::size_t> edited;
    QObject::connect(&controller, &ColumnLayoutsArrayController::nameEditingRequested,
                     [&](std::size_t row) { edited = row; });
    controller.saveColumnLayout();
    EXPECT_EQ(edited, 1U);
    EXPECT_EQ(controller.selectedRows(), std::vector<std::size_t>{1});
    const QVariantMap layout = stored(1);
    EXPECT_EQ(layout.size(), 65);
    EXPECT_EQ(layout.value("columnLayoutName"), QVariant("New Layout 2"));
    EXPECT_EQ(layout.value("titleColumnWidth"), QVariant(80));
    EXPECT_EQ(layout.value("titleColumnIndex"), QVariant(0));
    EXPECT_EQ(layout.value("dateColumnIndex"), QVariant(1));
    EXPECT_EQ(layout.value("notesColumnIsHidden"), QVariant(true));
    EXPECT_EQ(layout.value("costColumnName"), QVariant("Price"));
    controller.saveColumnLayout();
    EXPECT_EQ(stored(2).value("columnLayoutName"), QVariant("New Layout 3"));
}

TEST_F(ColumnLayoutsArrayControllerTest, TheDefaultLayoutCannotBeDeleted) {
    controller.awakeFromNib();
    controller.setSelectedRows({0});
    controller.removeColumnLayout();
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, "Cannot delete Default layout");
    EXPECT_EQ(alerts.shown[0].informativeText, "Default layout cannot be deleted.");
    EXPECT_EQ(alerts.shown[0].buttonTitles, QStringList{"OK"});
    EXPECT_EQ(storedCount(), 1);
}

TEST_F(ColumnLayoutsArrayControllerTest, OtherLayoutsAreDeletedOnceTheUserAgrees) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    controller.createColumnLayout();
    controller.setSelectedRows({1});
    alerts.answer = 1;
    controller.removeColumnLayout();
    EXPECT_EQ(storedCount(), 3);
    alerts.answer = 0;
    controller.removeColumnLayout();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("New Layout 3"));
    ASSERT_EQ(alerts.shown.size(), 2U);
    EXPECT_EQ(alerts.shown[1].style, AlertStyle::Warning);
    EXPECT_EQ(alerts.shown[1].messageText, "Delete the record?");
    EXPECT_EQ(alerts.shown[1].informativeText, "Deleted records cannot be restored.");
    EXPECT_EQ(alerts.shown[1].buttonTitles, (QStringList{"OK", "Cancel"}));
}

TEST_F(ColumnLayoutsArrayControllerTest, ALaterStartSelectsTheFirstLayout) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    ColumnLayoutsArrayController later(
        {.settings = settings, .eventsTableView = table, .alerts = alerts});
    later.awakeFromNib();
    EXPECT_EQ(later.selectedRows(), std::vector<std::size_t>{0});
}

TEST_F(ColumnLayoutsArrayControllerTest, WithoutASelectionNothingIsAppliedOrDeleted) {
    controller.awakeFromNib();
    controller.setSelectedRows({});
    settings.writes.clear();
    controller.setColumnLayout();
    controller.removeColumnLayout();
    EXPECT_TRUE(settings.writes.isEmpty());
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(ColumnLayoutsArrayControllerTest, MembersOfANewerVersionAreCarriedAlong) {
    controller.awakeFromNib();
    change("colour", "blue");
    controller.rename(0, "Mine");
    EXPECT_EQ(stored(0).value("colour"), QVariant("blue"));
    EXPECT_EQ(stored(0).value("columnLayoutName"), QVariant("Mine"));
}

TEST_F(ColumnLayoutsArrayControllerTest, TheSelectionSurvivesARename) {
    controller.awakeFromNib();
    controller.createColumnLayout();
    controller.setSelectedRows({1});
    controller.rename(1, "Invoice");
    EXPECT_EQ(controller.selectedRows(), std::vector<std::size_t>{1});
}

} // namespace quillet
