#include "backends/settingsfile/SettingsFile.h"
#include "calendars/CalendarGroupsArrayController.h"
#include "eventtable/ColumnLayoutsArrayController.h"
#include "eventtable/ColumnTable.h"
#include "export/TXTSettingsArrayController.h"
#include "support/Fakes.h"
#include "support/WaitUntil.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet {

namespace {

/// One of two copies of the program that run at the same time over one settings file.
struct Copy {
    explicit Copy(const QString& path)
        : settings(path) {
        groups.awakeFromNib();
        layouts.awakeFromNib();
        presets.awakeFromNib();
    }

    [[nodiscard]] QStringList groupNames() const {
        QStringList names;
        for (const CalendarGroup& group : *groups.content()) {
            names << group.calendarGroupName;
        }
        return names;
    }
    [[nodiscard]] QStringList layoutNames() const {
        QStringList names;
        for (const NamedRecord& layout : *layouts.content()) {
            names << layout.name;
        }
        return names;
    }
    [[nodiscard]] QStringList presetNames() const {
        QStringList names;
        for (const NamedRecord& preset : *presets.content()) {
            names << preset.name;
        }
        return names;
    }

    SettingsFile settings;
    test::FakeAlerts alerts;
    ColumnTable table{settings};
    CalendarGroupsArrayController groups{settings, alerts};
    ColumnLayoutsArrayController layouts{
        {.settings = settings, .eventsTableView = table, .alerts = alerts}};
    TXTSettingsArrayController presets{settings, alerts};
};

class TwoCopiesTest : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath("quillet.json");
    /// The first start of all has made the default entries.
    bool isPrepared = (Copy(path), true);
    Copy first{path};
    Copy second{path};
};

} // namespace

TEST_F(TwoCopiesTest, ShowEachOthersGroupsLayoutsAndPresets) {
    first.groups.addCalendarGroup();
    first.groups.setCalendarGroupName(1, "Clients");
    first.layouts.createColumnLayout();
    first.presets.createTXTSettings();
    first.settings.flush();
    EXPECT_TRUE(test::waitUntil([this] { return second.groupNames() == first.groupNames(); }));
    EXPECT_EQ(second.groupNames(), (QStringList{"All Calendars", "Clients"}));
    EXPECT_EQ(second.layoutNames(), (QStringList{"Default", "New Layout 2"}));
    EXPECT_EQ(second.presetNames(), (QStringList{"Default", "New Settings 2"}));
}

TEST_F(TwoCopiesTest, KeepWhatBothMadeBeforeTheyHeardOfEachOther) {
    first.groups.addCalendarGroup();
    first.groups.setCalendarGroupName(1, "Clients");
    second.groups.addCalendarGroup();
    second.groups.setCalendarGroupName(1, "Family");
    first.layouts.createColumnLayout();
    first.layouts.rename(1, "Wide");
    second.layouts.createColumnLayout();
    second.layouts.rename(1, "Narrow");
    first.presets.createTXTSettings();
    first.presets.rename(1, "Long");
    second.presets.createTXTSettings();
    second.presets.rename(1, "Short");
    first.settings.flush();
    second.settings.flush();
    EXPECT_TRUE(test::waitUntil([this] { return first.groupNames() == second.groupNames(); }));
    for (const Copy* copy : {&first, &second}) {
        EXPECT_EQ(copy->groupNames(), (QStringList{"All Calendars", "Clients", "Family"}));
        EXPECT_EQ(copy->layoutNames(), (QStringList{"Default", "Wide", "Narrow"}));
        EXPECT_EQ(copy->presetNames(), (QStringList{"Default", "Long", "Short"}));
    }
}

TEST_F(TwoCopiesTest, AStartTakesNothingFromTheCopyThatRuns) {
    first.groups.addCalendarGroup();
    first.layouts.createColumnLayout();
    // It starts from what the file held before, and writes the names of the defaults.
    const Copy third(path);
    first.settings.flush();
    EXPECT_EQ(Copy(path).groupNames(), (QStringList{"All Calendars", "New Group 1"}));
    EXPECT_EQ(Copy(path).layoutNames(), (QStringList{"Default", "New Layout 2"}));
}

} // namespace quillet
