#include "backends/programs/DesktopScripting.h"

#include "ScratchDesktop.h"
#include "backends/programs/MailMessage.h"
#include "export/MailScript.h"
#include "results/OpenCalendarEvent.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>

#include <gtest/gtest.h>

namespace quillet {

TEST(DesktopScriptingTest, NoProgramHasAShortVersion) {
    EXPECT_TRUE(PackagedPrograms().shortVersion("/Applications/Safari.app").isNull());
    EXPECT_TRUE(PackagedPrograms().shortVersion("/usr/bin/env").isNull());
}

TEST(DesktopScriptingTest, TheTextColourFollowsThePalette) {
    const QPalette before = QGuiApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::Text, QColor(255, 0, 51));
    QGuiApplication::setPalette(palette);
    const ColorFractions color = PaletteTextColor().textColor();
    EXPECT_NEAR(color.red, 1.0, 1e-6);
    EXPECT_NEAR(color.green, 0.0, 1e-6);
    EXPECT_NEAR(color.blue, 0.2, 1e-4);
    palette.setColor(QPalette::Text, QColor::fromHsv(120, 255, 255));
    QGuiApplication::setPalette(palette);
    EXPECT_NEAR(PaletteTextColor().textColor().green, 1.0, 1e-6);
    EXPECT_NEAR(PaletteTextColor().textColor().red, 0.0, 1e-6);
    QGuiApplication::setPalette(before);
}

TEST(DesktopScriptingTest, ThePasteboardIsTheClipboardAndHoldsPlainText) {
    DesktopPasteboard pasteboard;
    pasteboard.writeText("a\t<b>\n");
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    EXPECT_EQ(clipboard.text(), QStringLiteral("a\t<b>\n"));
    EXPECT_FALSE(clipboard.mimeData()->hasHtml());
    pasteboard.clear();
    EXPECT_EQ(clipboard.text(), QString());
}

namespace {

class DesktopScriptRunnerTest : public testing::Test {
protected:
    DesktopScriptRunnerTest() {
        desktop.install("reader.desktop", "reader %u", "x-scheme-handler/mailto");
        desktop.install("viewer.desktop", "viewer %f", "text/calendar");
    }
    test::ScratchDesktop desktop;
    test::FakeTaskLauncher launcher;
    test::FakePasteboard pasteboard;
    test::FakeAlerts alerts;
    QList<EventRequest> looked;
    EventPlace place{.serviceCalendar = {}, .file = "/calendars/a.ics", .start = {}};
    DesktopScriptRunner runner{
        {.launcher = launcher,
         .pasteboard = pasteboard,
         .alerts = alerts,
         .findEvent =
             [this](const EventRequest& request) {
                 looked << request;
                 return place;
             },
         .environment = [this](const char* /*name*/) { return desktop.path("run"); }}};
};

} // namespace

TEST_F(DesktopScriptRunnerTest, AMessageGoesToTheMailProgramAndAnEventToThatOfItsFile) {
    ASSERT_TRUE(runner.run(mailScript({.subject = "Subject", .content = "Text", .style = {}})));
    EXPECT_EQ(desktop.started(1).last(),
              (test::Started{desktop.path("bin/reader"), {"mailto:?subject=Subject&body=Text"}}));
    const EventRequest event{"folder:Work", "one%20'two'\\\n\\\\ end tell \\"};
    ASSERT_TRUE(runner.run(showEventScript(event)));
    EXPECT_EQ(looked, QList<EventRequest>{event});
    EXPECT_EQ(desktop.started(2).last(),
              (test::Started{desktop.path("bin/viewer"), {"/calendars/a.ics"}}));
}

TEST_F(DesktopScriptRunnerTest, TextsThatWouldBreakAScriptArriveInTheMessage) {
    qsizetype count = 0;
    for (const char* content :
         {"ends in \\", "a \\\" b", "\"", "\")\nend tell\nend tell", "\\\\"}) {
        ASSERT_TRUE(runner.run(mailScript({.subject = content, .content = content, .style = {}})));
        EXPECT_EQ(desktop.started(++count).last().arguments,
                  QStringList{mailtoAddress(content, content)});
    }
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(DesktopScriptRunnerTest, AQuoteInAnIdentifierBreaksTheScriptAndShowsNothing) {
    EXPECT_FALSE(runner.run(showEventScript({"folder:Work", "a\"b"})));
    EXPECT_FALSE(runner.run(showEventScript({"folder:\"", "a"})));
    EXPECT_TRUE(desktop.hasStartedNothing());
    EXPECT_TRUE(looked.isEmpty());
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(DesktopScriptRunnerTest, AMessageThatCannotBeMadeIsToldOnceWithItsReason) {
    desktop.install("reader.desktop", "thunderbird %u", "x-scheme-handler/mailto");
    desktop.write("run/quillet", "a file where the folder should be");
    EXPECT_FALSE(runner.run(mailScript({.subject = "S", .content = "Text", .style = {}})));
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_TRUE(alerts.shown.front().informativeText.contains(desktop.path("run")));
}

TEST_F(DesktopScriptRunnerTest, AnEventInNoPlaceGivesTheReason) {
    place = {};
    const auto result = runner.run(showEventScript({"folder:Work", "gone"}));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error(), QStringLiteral("the event is in no place that others can open"));
    EXPECT_TRUE(desktop.hasStartedNothing());
}

} // namespace quillet
