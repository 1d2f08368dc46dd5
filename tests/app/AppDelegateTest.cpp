#include "app/AppDelegate.h"

#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

/// In the order in which they are written.
const char* const startupKeys =
    "viewMode allDayHours allDayEventsNotIncluded isDollarsOn "
    "fileEncodingPopUpIndex isCSVQuotesForTitle isCSVQuotesForLocation "
    "isCSVQuotesForNote isCSVQuotesForCalendar isCSVHeader isCSVRemoveReturns "
    "isCSVIncludeUID isTXTWrapping isTXTSummaryRow isTXTTotalEvents isTXTDollars "
    "isTXTTotalHours isTXTMax isTXTMin isTXTAverage isTXTEndDate isTXTBeginDate "
    "isTXTCalTitle isTXTTotalDays txtHeader txtFooter isTodoCSVIncludeUID "
    "isTodoCSVCalendar isTodoCSVTitle isTodoCSVCompleted isTodoCSVCompletedDate "
    "isTodoCSVPriority isTodoCSVDueDate isTodoCSVURL isTodoCSVNotes "
    "isTodoTXTIncludeCount isTodoTXTCalendar isTodoTXTTitle isTodoTXTCompleted "
    "isTodoTXTCompletedDate isTodoTXTPriority isTodoTXTDueDate isTodoTXTURL "
    "isTodoTXTNotes";

class AppDelegateTest : public testing::Test {
protected:
    test::MemorySettings settings;
    test::FakeWorkspace workspace;
    test::FakeTaskLauncher launcher;
    test::FakeUpdater updater;
    AppDelegate delegate{{settings, workspace, launcher, updater, "/notes.rtf"}};
};

} // namespace

TEST_F(AppDelegateTest, TheFirstLaunchWritesTheTableAndNothingElse) {
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(settings.keys().size(), 44);
    EXPECT_EQ(settings.writes, QString::fromLatin1(startupKeys).split(u' '));
    EXPECT_EQ(settings.keys().filter("isTodo").size(), 18);
    EXPECT_EQ(settings.object("allDayHours"), QVariant::fromValue<qint64>(24));
    EXPECT_EQ(settings.object("isCSVHeader"), QVariant(true));
    EXPECT_EQ(settings.object("isCSVIncludeUID"), QVariant(false));
    EXPECT_EQ(settings.object("isDollarsOn"), QVariant(false));
    EXPECT_EQ(settings.object("txtHeader"), QVariant(QString("")));
    EXPECT_TRUE(settings.object("txtFooter").isValid());
}

TEST_F(AppDelegateTest, StoredValuesSurviveEveryLaunch) {
    settings.setObject("allDayHours", 8);
    settings.setObject("isCSVHeader", false);
    settings.setObject("viewMode", "nonsense");
    delegate.applicationDidFinishLaunching();
    const auto writes = settings.writes.size();
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(settings.writes.size(), writes);
    EXPECT_EQ(settings.object("allDayHours"), QVariant(8));
    EXPECT_EQ(settings.object("isCSVHeader"), QVariant(false));
    EXPECT_EQ(settings.object("viewMode"), QVariant("nonsense"));
}

TEST_F(AppDelegateTest, ClosingTheWindowEndsTheProgram) {
    EXPECT_TRUE(AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
}

TEST_F(AppDelegateTest, RelaunchingStartsTheProgramWithItsOldProcessIdentifier) {
    delegate.relaunch();
    ASSERT_EQ(launcher.launched.size(), 1);
    EXPECT_EQ(launcher.launched[0].first, QStringLiteral("/opt/quillet/quillet"));
    EXPECT_EQ(launcher.launched[0].second, QStringList{"4711"});
    EXPECT_EQ(launcher.terminations, 1);
}

TEST_F(AppDelegateTest, MenuActionsReachTheDesktop) {
    delegate.openReleaseNotes();
    EXPECT_EQ(workspace.openedFiles, QStringList{"/notes.rtf"});
    delegate.openWebsite();
    ASSERT_EQ(workspace.openedAddresses.size(), 1);
    EXPECT_EQ(workspace.openedAddresses[0], QStringLiteral("http://quillet.example/desktop"));
    delegate.checkForUpdates();
    EXPECT_EQ(updater.checks, 1);
    delegate.accessGranted();
    EXPECT_EQ(settings.object("isCalendarAccessGranted"), QVariant(true));
}

} // namespace quillet
