#include "export/TXTSettingsArrayController.h"

#include "export/TextReportRefresh.h"
#include "platform/Event.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quillet {

namespace {

const QString presetsKey = QStringLiteral("txtSettings");

class TXTSettingsArrayControllerTest : public testing::Test {
protected:
    [[nodiscard]] QVariantMap stored(qsizetype position) const {
        return arrayForKey(settings, presetsKey).at(position).toMap();
    }
    [[nodiscard]] qsizetype storedCount() const { return arrayForKey(settings, presetsKey).size(); }

    test::MemorySettings settings;
    test::FakeAlerts alerts;
    TXTSettingsArrayController controller{settings, alerts};
};

} // namespace

TEST_F(TXTSettingsArrayControllerTest, AFreshInstallationHasTheDefaultPresetAlone) {
    controller.awakeFromNib();
    EXPECT_EQ(settings.object("isDefaultTXTSettingsCreated"), QVariant(true));
    ASSERT_EQ(storedCount(), 1);
    EXPECT_EQ(stored(0), (QVariantMap{{"txtSettingsName", "Default"},
                                      {"txtSettingsIsTXTWrapping", true},
                                      {"txtSettingsIsTXTSummaryRow", true},
                                      {"txtSettingsIsTXTTotalEvents", false},
                                      {"txtSettingsIsTXTDollars", true},
                                      {"txtSettingsIsTXTTotalHours", true},
                                      {"txtSettingsIsTXTMax", false},
                                      {"txtSettingsIsTXTMin", false},
                                      {"txtSettingsIsTXTAverage", false},
                                      {"txtSettingsIsTXTEndDate", true},
                                      {"txtSettingsIsTXTBeginDate", true},
                                      {"txtSettingsIsTXTCalTitle", true},
                                      {"txtSettingsIsTXTTotalDays", false},
                                      {"txtSettingsTxtHeader", ""},
                                      {"txtSettingsTxtFooter", ""}}));
    EXPECT_FALSE(stored(0).value("txtSettingsTxtHeader").toString().isNull());
    TXTSettingsArrayController next(settings, alerts);
    next.awakeFromNib();
    EXPECT_EQ(storedCount(), 1);
}

TEST_F(TXTSettingsArrayControllerTest, SettingsKeptForMailsBecomeAPresetOnce) {
    settings.setObject("isTXTWrapping", true);
    settings.setObject("isTXTTotalDays", true);
    for (const char* key : {"isMailCalTitle", "isMailTotalEvents", "isMailMax"}) {
        settings.setObject(key, true);
    }
    settings.setObject("isMailDollars", false);
    settings.setObject("mailHeader", "Dear all");
    controller.awakeFromNib();
    ASSERT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(1), (QVariantMap{{"txtSettingsName", "Mail"},
                                      {"txtSettingsIsTXTWrapping", true},
                                      {"txtSettingsIsTXTSummaryRow", false},
                                      {"txtSettingsIsTXTTotalEvents", true},
                                      {"txtSettingsIsTXTDollars", false},
                                      {"txtSettingsIsTXTTotalHours", false},
                                      {"txtSettingsIsTXTMax", true},
                                      {"txtSettingsIsTXTMin", false},
                                      {"txtSettingsIsTXTAverage", false},
                                      {"txtSettingsIsTXTEndDate", false},
                                      {"txtSettingsIsTXTBeginDate", false},
                                      {"txtSettingsIsTXTCalTitle", true},
                                      {"txtSettingsIsTXTTotalDays", false},
                                      {"txtSettingsTxtHeader", "Dear all"},
                                      {"txtSettingsTxtFooter", ""}}));
    EXPECT_TRUE(settings.keys().filter(QRegularExpression("[mM]ail")).isEmpty());
    EXPECT_EQ(settings.object("isTXTWrapping"), QVariant(true));
    TXTSettingsArrayController next(settings, alerts);
    next.awakeFromNib();
    EXPECT_EQ(storedCount(), 2);
}

TEST_F(TXTSettingsArrayControllerTest, TheMailPresetWrapsOnlyWhereTheReportDid) {
    settings.setObject("isMailMax", true);
    controller.awakeFromNib();
    EXPECT_EQ(stored(1).value("txtSettingsIsTXTWrapping"), QVariant(false)) << "absent";
    EXPECT_FALSE(hasKey(settings, "isTXTWrapping"));
    settings.setObject("isTXTWrapping", false);
    settings.setObject("isMailMax", true);
    controller.migrateMailSettings();
    EXPECT_EQ(stored(2).value("txtSettingsIsTXTWrapping"), QVariant(false));
    EXPECT_EQ(settings.object("isTXTWrapping"), QVariant(false));
}

TEST_F(TXTSettingsArrayControllerTest, EachOldKeyAloneStartsTheMigration) {
    for (const char* key :
         {"isMailCalTitle", "isMailDollars", "isMailTotalEvents", "isMailBeginDate",
          "isMailEndDate", "isMailTotalHours", "isMailAverage", "isMailMin", "isMailMax",
          "isMailSummaryRow", "mailHeader", "mailFooter"}) {
        test::MemorySettings old;
        old.setObject(key, false);
        TXTSettingsArrayController migrating(old, alerts);
        migrating.awakeFromNib();
        EXPECT_EQ(arrayForKey(old, presetsKey).size(), 2) << key;
        EXPECT_FALSE(hasKey(old, key)) << key;
    }
}

TEST_F(TXTSettingsArrayControllerTest, SavingKeepsThePresentSwitchesUnderANewName) {
    controller.awakeFromNib();
    std::size_t edited = 0;
    QObject::connect(&controller, &TXTSettingsArrayController::nameEditingRequested,
                     [&](std::size_t row) { edited = row; });
    controller.saveTXTSettings();
    settings.setObject("isTXTMin", true);
    settings.setObject("txtFooter", "Thanks");
    controller.saveTXTSettings();
    EXPECT_EQ(edited, 2U);
    EXPECT_EQ(stored(2).value("txtSettingsName"), QVariant("New Settings 3"));
    EXPECT_EQ(stored(2).value("txtSettingsIsTXTMin"), QVariant(true));
    EXPECT_EQ(stored(2).value("txtSettingsTxtFooter"), QVariant("Thanks"));
    EXPECT_EQ(stored(1).value("txtSettingsIsTXTMin"), QVariant(false));
    controller.rename(2, "Invoice");
    EXPECT_EQ(stored(2).value("txtSettingsName"), QVariant("Invoice"));
    EXPECT_EQ(controller.selectedRows(), std::vector<std::size_t>{2});
}

TEST_F(TXTSettingsArrayControllerTest, ApplyingWritesTheSwitchesAndRebuildsTheReportOnce) {
    ListController<Event> events;
    TextReportRefresh report(settings, events);
    controller.awakeFromNib();
    report.awakeFromNib();
    settings.setObject("isExportTXTViewOn", true);
    settings.setObject("isTXTWrapping", false);
    settings.setObject("txtHeader", "Old");
    int rebuilds = 0;
    QObject::connect(&report, &TextReportRefresh::eventsAttributedStringChanged,
                     [&] { ++rebuilds; });
    settings.writes.clear();
    controller.setSelectedRows({0});
    controller.setTXTSettings();
    EXPECT_EQ(
        settings.writes,
        (QStringList{"isApplyTXTSettingsOn", "isTXTWrapping", "isTXTSummaryRow", "isTXTTotalEvents",
                     "isTXTDollars", "isTXTTotalHours", "isTXTMax", "isTXTMin", "isTXTAverage",
                     "isTXTEndDate", "isTXTBeginDate", "isTXTCalTitle", "isTXTTotalDays",
                     "txtHeader", "txtFooter", "isApplyTXTSettingsOn"}));
    EXPECT_EQ(rebuilds, 1);
    EXPECT_EQ(settings.object("isTXTWrapping"), QVariant(true));
    EXPECT_EQ(settings.object("txtHeader"), QVariant(""));
    EXPECT_EQ(settings.object("isApplyTXTSettingsOn"), QVariant(false));
}

TEST_F(TXTSettingsArrayControllerTest, ALaterStartSelectsTheFirstPreset) {
    controller.awakeFromNib();
    TXTSettingsArrayController later(settings, alerts);
    later.awakeFromNib();
    EXPECT_EQ(later.selectedRows(), std::vector<std::size_t>{0});
}

TEST_F(TXTSettingsArrayControllerTest, WithoutASelectionNothingIsApplied) {
    controller.awakeFromNib();
    controller.setSelectedRows({});
    settings.writes.clear();
    controller.setTXTSettings();
    EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(TXTSettingsArrayControllerTest, TheFirstPresetCannotBeDeleted) {
    controller.awakeFromNib();
    controller.setSelectedRows({0});
    controller.removeTXTSettings();
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, "Cannot delete Default settings");
    EXPECT_EQ(alerts.shown[0].informativeText, "Default settings cannot be deleted.");
    EXPECT_EQ(alerts.shown[0].buttonTitles, QStringList{"OK"});
    EXPECT_EQ(storedCount(), 1);
}

TEST_F(TXTSettingsArrayControllerTest, OtherPresetsAreDeletedOnceTheUserAgrees) {
    controller.awakeFromNib();
    controller.createTXTSettings();
    controller.createTXTSettings();
    controller.setSelectedRows({1});
    alerts.answer = 1;
    controller.removeTXTSettings();
    EXPECT_EQ(storedCount(), 3);
    alerts.answer = 0;
    controller.removeTXTSettings();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_EQ(stored(1).value("txtSettingsName"), QVariant("New Settings 3"));
    EXPECT_EQ(controller.selectedRows(), std::vector<std::size_t>{1});
    ASSERT_EQ(alerts.shown.size(), 2U);
    EXPECT_EQ(alerts.shown[1].messageText, "Delete the record?");
    EXPECT_EQ(alerts.shown[1].informativeText, "Deleted records cannot be restored.");
    EXPECT_EQ(alerts.shown[1].buttonTitles, (QStringList{"OK", "Cancel"}));
    controller.setSelectedRows({});
    controller.removeTXTSettings();
    EXPECT_EQ(alerts.shown.size(), 2U);
}

TEST_F(TXTSettingsArrayControllerTest, APresetEditedByHandIsAppliedAsFarAsItGoes) {
    controller.awakeFromNib();
    for (const char* key : {"isTXTWrapping", "isTXTMin", "isTXTAverage"}) {
        settings.setObject(key, true);
    }
    settings.setObject("txtHeader", "Dear all");
    settings.setObject("txtFooter", "Thanks");
    const QVariantMap edited{{"txtSettingsIsTXTMax", "YES"},
                             {"txtSettingsIsTXTMin", QVariantList{false}},
                             {"txtSettingsIsTXTAverage", 0},
                             {"txtSettingsTxtHeader", 7},
                             {"txtSettingsTxtFooter", QVariantMap{{"text", "Bye"}}}};
    settings.setObject(presetsKey, QVariantList{stored(0), 7, edited});
    ASSERT_EQ(controller.arrangedCount(), 2U);
    controller.setSelectedRows({1});
    controller.setTXTSettings();
    EXPECT_EQ(settings.object("isTXTMax"), QVariant(true));
    EXPECT_EQ(settings.object("isTXTAverage"), QVariant(false));
    EXPECT_EQ(settings.object("txtHeader"), QVariant("7"));
    EXPECT_EQ(settings.object("isTXTWrapping"), QVariant(true)) << "missing in the preset";
    EXPECT_EQ(settings.object("isTXTMin"), QVariant(true)) << "not to be read";
    EXPECT_EQ(settings.object("txtFooter"), QVariant("Thanks")) << "not to be read";
}

TEST_F(TXTSettingsArrayControllerTest, AStartAndAnotherPresetAddNothingToAPresetEditedByHand) {
    const QVariantList edited{QVariantMap{{"txtSettingsIsTXTMax", "YES"}},
                              QVariantMap{{"txtSettingsName", 7}, {"txtSettingsTxtHeader", 12}}};
    settings.setObject("isDefaultTXTSettingsCreated", true);
    settings.setObject(presetsKey, edited);
    controller.awakeFromNib();
    EXPECT_EQ(arrayForKey(settings, presetsKey), edited);
    controller.createTXTSettings();
    EXPECT_EQ(arrayForKey(settings, presetsKey).first(2), edited);
    EXPECT_EQ(stored(2).size(), 15);
}

TEST_F(TXTSettingsArrayControllerTest, TheDefaultPresetIsMadeWhereItsKeyIsAbsentNotWhereItIsOff) {
    settings.setObject("isDefaultTXTSettingsCreated", false);
    controller.awakeFromNib();
    EXPECT_EQ(storedCount(), 0);
}

TEST_F(TXTSettingsArrayControllerTest, WhatCannotBeReadInAPresetIsNotLost) {
    controller.awakeFromNib();
    const QVariantMap edited{{"txtSettingsName", "Odd"},
                             {"txtSettingsIsTXTMin", QVariantList{false}},
                             {"txtSettingsTxtFooter", QVariant::fromValue(test::utc(2024, 3, 1))}};
    settings.setObject(presetsKey, QVariantList{stored(0), edited});
    controller.rename(0, "Mine");
    EXPECT_EQ(stored(0).value("txtSettingsName"), QVariant("Mine"));
    EXPECT_EQ(stored(0).size(), 15);
    EXPECT_EQ(stored(1), edited);
    controller.rename(1, "Short");
    EXPECT_EQ(stored(1).value("txtSettingsName"), QVariant("Short"));
    EXPECT_EQ(stored(1).value("txtSettingsIsTXTMin"), QVariant(QVariantList{false}));
}

TEST_F(TXTSettingsArrayControllerTest, MembersOfANewerVersionAreCarriedAlong) {
    controller.awakeFromNib();
    QVariantMap preset = stored(0);
    preset.insert("colour", "blue");
    settings.setObject(presetsKey, QVariantList{preset});
    controller.rename(0, "Mine");
    EXPECT_EQ(stored(0).value("colour"), QVariant("blue"));
}

} // namespace quillet
