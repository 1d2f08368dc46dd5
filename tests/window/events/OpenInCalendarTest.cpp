#include "window/WindowFixture.h"

#include "support/ExpectedLog.h"

#include <QAction>
#include <QHeaderView>
#include <QTest>

namespace quillet {

namespace {

class OpenInCalendarTest : public test::WindowFixture {
protected:
    OpenInCalendarTest() { open(); }

    /// Both clicks, as the window system sends them.
    void doubleClick(int row, Qt::KeyboardModifiers modifiers = {},
                     Qt::MouseButton button = Qt::LeftButton) {
        const QPoint position = table->visualRect(table->model()->index(row, 0)).center();
        QTest::mouseClick(table->viewport(), button, modifiers, position);
        QTest::mouseDClick(table->viewport(), button, modifiers, position);
    }
    void doubleClickBelowTheRows() {
        const QPoint position(5, table->viewport()->height() - 2);
        ASSERT_FALSE(table->indexAt(position).isValid());
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, position);
    }
    bool isBusy() const { return boolForKey(settings, QStringLiteral("isProgressIndicatorOn")); }
    QAction& action() { return table->openInCalendarAction(); }
};

} // namespace

TEST_F(OpenInCalendarTest, ADoubleClickOpensTheEventOfItsRowOnce) {
    doubleClick(1);
    ASSERT_EQ(scripts.sources.size(), 1);
    EXPECT_TRUE(scripts.sources.front().contains("event whose uid is \"Dentist\""));
    EXPECT_TRUE(scripts.sources.front().contains("calendar whose uid is \"h\""));
    EXPECT_FALSE(isBusy());
}

TEST_F(OpenInCalendarTest, ADoubleClickThatLeavesSeveralSelectedOpensNothing) {
    events.setSelectedRows({0, 1});
    doubleClick(2, Qt::ShiftModifier);
    EXPECT_GT(events.selectedRows().size(), 1U);
    EXPECT_TRUE(scripts.sources.isEmpty());
    EXPECT_FALSE(isBusy());
}

TEST_F(OpenInCalendarTest, ADoubleClickOnNoRowOpensNothing) {
    events.setSelectedRows({1});
    doubleClickBelowTheRows();
    EXPECT_TRUE(scripts.sources.isEmpty());
    events.setSelectedRows({});
    doubleClickBelowTheRows();
    EXPECT_TRUE(scripts.sources.isEmpty());
    EXPECT_FALSE(isBusy());
}

TEST_F(OpenInCalendarTest, ADoubleClickThatTakesItsRowOutOfTheSelectionOpensNothing) {
    events.setSelectedRows({0, 2});
    const QPoint position = table->visualRect(table->model()->index(2, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ControlModifier, position);
    ASSERT_EQ(events.selectedRows(), std::vector<std::size_t>{0});
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::ControlModifier, position);
    for (const QString& source : scripts.sources) {
        EXPECT_FALSE(source.contains("\"Planning\"")) << "another row's event was opened";
    }
    EXPECT_FALSE(isBusy());
}

TEST_F(OpenInCalendarTest, OtherButtonsOpenNothing) {
    doubleClick(1, {}, Qt::MiddleButton);
    doubleClick(1, {}, Qt::RightButton);
    EXPECT_TRUE(scripts.sources.isEmpty());
    EXPECT_FALSE(isBusy());
}

TEST_F(OpenInCalendarTest, TheEnterKeyOpensTheOneSelectedEvent) {
    events.setSelectedRows({2});
    window->activateWindow();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Return);
    ASSERT_EQ(scripts.sources.size(), 1);
    EXPECT_TRUE(scripts.sources.front().contains("\"Workshop\""));
}

TEST_F(OpenInCalendarTest, TheActionIsEnabledForJustOneEventAndStandsInAMenu) {
    EXPECT_FALSE(action().isEnabled());
    events.setSelectedRows({0});
    EXPECT_TRUE(action().isEnabled());
    events.setSelectedRows({0, 1});
    EXPECT_FALSE(action().isEnabled());
    EXPECT_TRUE(table->actions().contains(&action()));
    EXPECT_EQ(action().associatedObjects().size(), 2);
}

TEST_F(OpenInCalendarTest, AnEventThatCannotBeShownIsOnlyLogged) {
    scripts.answer = std::unexpected(QStringLiteral("no calendar program"));
    const test::ExpectedLog log("it was an error");
    doubleClick(0);
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_FALSE(isBusy());
}

} // namespace quillet
