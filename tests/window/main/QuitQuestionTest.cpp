#include "window/main/QuitQuestion.h"

#include "window/WindowFixture.h"

namespace quillet {

namespace {

/// A disk that refuses so many times.
struct Disk {
    int refusals = 0;
    bool takes() { return refusals-- <= 0; }
};

} // namespace

using QuitQuestionTest = test::WindowFixture;

TEST(QuitWithoutAQuestionTest, NobodyIsAskedWhenAllIsSaved) {
    test::FakeAlerts alerts;
    QuitQuestion question([] { return true; }, alerts);
    EXPECT_TRUE(question.mayQuit());
    EXPECT_TRUE(alerts.shown.empty());
}

TEST(QuitWithoutAQuestionTest, TryingAgainMayHelp) {
    test::FakeAlerts alerts;
    alerts.answer = 0;
    Disk disk{.refusals = 2};
    QuitQuestion question([&] { return disk.takes(); }, alerts);
    EXPECT_TRUE(question.mayQuit());
    EXPECT_EQ(alerts.shown.size(), 2U);
}

TEST(QuitWithoutAQuestionTest, WhoGivesItUpIsAskedOnce) {
    test::FakeAlerts alerts;
    alerts.answer = 1;
    QuitQuestion question([] { return false; }, alerts);
    EXPECT_TRUE(question.mayQuit());
    EXPECT_TRUE(question.mayQuit());
    EXPECT_EQ(alerts.shown.size(), 1U);
}

TEST_F(QuitQuestionTest, TheWindowStaysWhenTheUserSaysCancel) {
    alerts.answer = 2;
    QuitQuestion question([] { return false; }, alerts);
    mayQuit = [&] { return question.mayQuit(); };
    open();
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(alerts.shown.size(), 1U);
    alerts.answer = 1;
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(window->isVisible());
}

} // namespace quillet
