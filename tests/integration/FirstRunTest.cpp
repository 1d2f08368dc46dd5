#include "app/Core.h"
#include "results/PreferencesColumnsViewController.h"
#include "support/FakeOutside.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

/// One start after the other over one store of settings.
class FirstRunTest : public testing::Test {
protected:
    /// One start of the program: all wake up, then the delegate hears of the launch.
    void launch() {
        core = std::make_unique<Core>(outside.seams());
        core->wake();
        PreferencesColumnsViewController(settings).awakeFromNib();
        core->finishLaunching();
    }

    test::FakeOutside outside;
    test::MemorySettings& settings = outside.settings;
    std::unique_ptr<Core> core;
};

} // namespace

TEST_F(FirstRunTest, TheFirstStartStoresExactlyTheseSettings) {
    launch();
    QVariantMap expected;
    for (const char* key : {"allDayEventsNotIncluded",
                            "datesChangedTrigger",
                            "hiddenColumnsChangedTrigger",
                            "isApplyColumnLayoutOn",
                            "isApplyTXTSettingsOn",
                            "isCSVIncludeUID",
                            "isCSVRemoveReturns",
                            "isCalendarAccessGranted",
                            "isCalendarGroupsSheetActive",
                            "isDollarsOn",
                            "isEndDateColumn",
                            "isEndTimeColumn",
                            "isEndWeekdayColumn",
                            "isExportTXTViewOn",
                            "isLocationColumn",
                            "isNotesColumn",
                            "isNotesViewOn",
                            "isProgressIndicatorOn",
                            "isRateColumn",
                            "isStartTimeColumn",
                            "isTXTAverage",
                            "isTXTMax",
                            "isTXTMin",
                            "isTXTTotalDays",
                            "isTXTTotalEvents",
                            "isTodoCSVIncludeUID",
                            "isUrlColumn",
                            "isWeekdayColumn"}) {
        expected.insert(key, false);
    }
    for (const char* key : {"isCSVHeader",
                            "isCSVQuotesForCalendar",
                            "isCSVQuotesForLocation",
                            "isCSVQuotesForNote",
                            "isCSVQuotesForTitle",
                            "isCalendarColumn",
                            "isColumnLayoutUsesNames",
                            "isCostColumn",
                            "isDateColumn",
                            "isDefaultAllCalendarsGroupCreated",
                            "isDefaultColumnLayoutsCreated",
                            "isDefaultTXTSettingsCreated",
                            "isEventNotesCalendar",
                            "isEventNotesDate",
                            "isEventNotesLocation",
                            "isEventNotesTitle",
                            "isHoursColumn",
                            "isSingleRate",
                            "isTXTBeginDate",
                            "isTXTCalTitle",
                            "isTXTDollars",
                            "isTXTEndDate",
                            "isTXTSummaryRow",
                            "isTXTTotalHours",
                            "isTXTWrapping",
                            "isTitleColumn",
                            "isTodoCSVCalendar",
                            "isTodoCSVCompleted",
                            "isTodoCSVCompletedDate",
                            "isTodoCSVDueDate",
                            "isTodoCSVNotes",
                            "isTodoCSVPriority",
                            "isTodoCSVTitle",
                            "isTodoCSVURL",
                            "isTodoTXTCalendar",
                            "isTodoTXTCompleted",
                            "isTodoTXTCompletedDate",
                            "isTodoTXTDueDate",
                            "isTodoTXTIncludeCount",
                            "isTodoTXTNotes",
                            "isTodoTXTPriority",
                            "isTodoTXTTitle",
                            "isTodoTXTURL"}) {
        expected.insert(key, true);
    }
    const QMap<QString, qint64> numbers{{"allDayHours", 24},
                                        {"calendarGroupsSelectedIndex", 0},
                                        {"fileEncodingPopUpIndex", 0},
                                        {"quickDatePeriod", 1},
                                        {"selectedPreferencesToolbarItem", 0},
                                        {"timeTypeSelection", 1},
                                        {"totalsTabViewSelection", 0},
                                        {"viewMode", 0}};
    for (auto number = numbers.begin(); number != numbers.end(); ++number) {
        expected.insert(number.key(), number.value());
    }
    const QMap<QString, QString> texts{{"calendarColumnTitle", "Calendar"},
                                       {"costColumnTitle", "Cost"},
                                       {"dateColumnTitle", "Start Date"},
                                       {"durationColumnTitle", "Duration"},
                                       {"endDateColumnTitle", "End Date"},
                                       {"endTimeColumnTitle", "End Time"},
                                       {"endWeekdayColumnTitle", "End Weekday"},
                                       {"hoursColumnTitle", "Hours"},
                                       {"locationColumnTitle", "Location"},
                                       {"minutesColumnTitle", "Minutes"},
                                       {"notesColumnTitle", "Notes"},
                                       {"rateColumnTitle", "Rate"},
                                       {"startTimeColumnTitle", "Start Time"},
                                       {"startWeekdayColumnTitle", "Start Weekday"},
                                       {"titleColumnTitle", "Title"},
                                       {"txtFooter", ""},
                                       {"txtHeader", ""},
                                       {"urlColumnTitle", "URL"}};
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        expected.insert(text.key(), text.value());
    }
    // Wednesday, 6 March 2024 lies in the week that begins on Sunday the 3rd.
    expected.insert("selectedDate", QVariant::fromValue(utc(2024, 3, 3)));
    expected.insert("filterStartDate", QVariant::fromValue(utc(2024, 3, 3)));
    expected.insert("filterEndDate", QVariant::fromValue(utc(2024, 3, 9, 23, 59, 59)));
    expected.insert("tempNumberRate", QVariant::fromValue(Decimal::fromInteger(1)));
    expected.insert("calendars", QVariantList());
    expected.insert("calendarGroups",
                    QVariantList{QVariantMap{{"calendarGroupName", "All Calendars"},
                                             {"calendarGroupArray", QVariantList()}}});
    // What these hold is told by the tests of their controllers.
    for (const char* key : {"columnLayouts", "txtSettings"}) {
        ASSERT_EQ(arrayForKey(settings, key).size(), 1) << key;
        expected.insert(key, settings.object(key));
    }
    EXPECT_EQ(settings.keys(), expected.keys());
    for (auto value = expected.begin(); value != expected.end(); ++value) {
        const QVariant stored = settings.object(value.key());
        EXPECT_EQ(stored, value.value()) << value.key().toStdString();
        EXPECT_EQ(stored.metaType(), value.value().metaType()) << value.key().toStdString();
    }
    EXPECT_FALSE(settings.object("txtHeader").toString().isNull());
}

TEST_F(FirstRunTest, EverySettingIsDescribedForItsUsers) {
    QFile file(QDir::cleanPath(QUILLET_TEST_DATA "/../../../docs/settings.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    launch();
    for (const QString& key : settings.keys()) {
        EXPECT_TRUE(text.contains('`' + key + '`')) << key.toStdString();
    }
}

TEST_F(FirstRunTest, ASecondStartChangesNothingButTheTriggers) {
    launch();
    QVariantMap before;
    for (const QString& key : settings.keys()) {
        before.insert(key, settings.object(key));
    }
    launch();
    EXPECT_EQ(settings.keys(), before.keys());
    for (auto value = before.begin(); value != before.end(); ++value) {
        if (value.key() != u"hiddenColumnsChangedTrigger") {
            EXPECT_EQ(settings.object(value.key()), value.value()) << value.key().toStdString();
        }
    }
}

TEST_F(FirstRunTest, TransientSettingsAreResetAndAllOthersKeptAtEveryStart) {
    for (const char* key :
         {"isProgressIndicatorOn", "isCalendarGroupsSheetActive", "isExportTXTViewOn",
          "isNotesViewOn", "isApplyColumnLayoutOn", "isApplyTXTSettingsOn"}) {
        settings.setObject(key, true);
    }
    settings.setObject("totalsTabViewSelection", 1);
    settings.setObject("selectedPreferencesToolbarItem", 3);
    settings.setObject("timeTypeSelection", 3);
    settings.setObject("isCSVHeader", false);
    settings.setObject("isEventNotesDate", false);
    settings.setObject("titleColumnTitle", "Task");
    settings.setObject("isNotesColumn", true);
    launch();
    for (const char* key :
         {"isProgressIndicatorOn", "isCalendarGroupsSheetActive", "isExportTXTViewOn",
          "isNotesViewOn", "isApplyColumnLayoutOn", "isApplyTXTSettingsOn"}) {
        EXPECT_EQ(settings.object(key), QVariant(false)) << key;
    }
    EXPECT_EQ(settings.object("totalsTabViewSelection"), QVariant(0));
    EXPECT_EQ(settings.object("selectedPreferencesToolbarItem"), QVariant(0));
    EXPECT_EQ(settings.object("timeTypeSelection"), QVariant(3));
    EXPECT_EQ(settings.object("isCSVHeader"), QVariant(false));
    EXPECT_EQ(settings.object("isEventNotesDate"), QVariant(false));
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Task"));
    EXPECT_EQ(settings.object("isNotesColumn"), QVariant(true));
}

} // namespace quillet
