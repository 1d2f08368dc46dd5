#include "window/WindowFixture.h"

#include "window/exports/ReportView.h"

#include <QAction>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace quillet {

namespace {

class CopyCommandTest : public test::WindowFixture {
protected:
    CopyCommandTest() { QApplication::clipboard()->setText(QStringLiteral("before")); }
    void openWithSelection(std::vector<std::size_t> rows) {
        open();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        events.setSelectedRows(std::move(rows));
    }
    /// Puts a widget over the window and the focus into it.
    template <typename Widget>
    Widget& focused(Widget* widget) {
        widget->setParent(window.get());
        widget->show();
        widget->setFocus();
        EXPECT_TRUE(widget->hasFocus());
        return *widget;
    }
    void chooseCopy() const { window->findChild<QAction*>("copy")->trigger(); }
    void pressCopy() const {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
    }
    [[nodiscard]] std::string rows() const { return pasteboard.content.toStdString(); }
    [[nodiscard]] static std::string clipboard() {
        return QApplication::clipboard()->text().toStdString();
    }
};

const std::string untouched = "something of another program";

} // namespace

TEST_F(CopyCommandTest, TheShortcutCopiesTheSelectedRowsInTheColumnsOfTheTable) {
    openWithSelection({0, 2});
    table->setFocus();
    pressCopy();
    EXPECT_EQ(rows(), "3/4/24\tWork\tPlanning\t2\t$180.00\n3/11/24\tWork\tWorkshop\t8\t$720.00\n");
}

TEST_F(CopyCommandTest, AMovedColumnMovesItsFieldAndAHiddenFirstOneLeavesItsTab) {
    openWithSelection({0});
    columns.moveColumn(columns.positionOf("title"), 0);
    chooseCopy();
    EXPECT_EQ(rows(), "Planning\t3/4/24\tWork\t2\t$180.00\n");
    settings.setObject("isTitleColumn", false);
    chooseCopy();
    EXPECT_EQ(rows(), "\t3/4/24\tWork\t2\t$180.00\n");
}

TEST_F(CopyCommandTest, WithoutASelectionThePasteboardIsLeftAlone) {
    openWithSelection({});
    table->setFocus();
    table->setCurrentIndex(QModelIndex());
    pressCopy();
    EXPECT_EQ(rows(), untouched);
    EXPECT_EQ(clipboard(), "before");
}

TEST_F(CopyCommandTest, TheTablesContextMenuCopiesToo) {
    openWithSelection({1});
    EXPECT_EQ(table->contextMenuPolicy(), Qt::ActionsContextMenu);
    ASSERT_EQ(table->actions().size(), 2);
    EXPECT_EQ(table->actions().first()->objectName(), QStringLiteral("copyFromEventItemTableView"));
    table->actions().first()->trigger();
    EXPECT_EQ(rows(), "3/5/24\tHome\tDentist\t1\t$90.00\n");
}

TEST_F(CopyCommandTest, ATextThatHasTheFocusIsCopiedInstead) {
    openWithSelection({0});
    auto& field = focused(new QLineEdit(QStringLiteral("typed")));
    field.selectAll();
    chooseCopy();
    EXPECT_EQ(clipboard(), "typed");
    field.setText(QStringLiteral("pressed"));
    field.selectAll();
    pressCopy();
    EXPECT_EQ(clipboard(), "pressed");
    EXPECT_EQ(rows(), untouched);
}

TEST_F(CopyCommandTest, AReportThatHasTheFocusIsCopiedInstead) {
    openWithSelection({0});
    auto& focusedReport = focused(new ReportView);
    focusedReport.setLines(TextLines(QStringLiteral("one\ntwo\n")));
    focusedReport.select(0, 3);
    chooseCopy();
    EXPECT_EQ(clipboard(), "one");
    QTest::keyClick(&focusedReport, Qt::Key_A, Qt::ControlModifier);
    pressCopy();
    EXPECT_EQ(clipboard(), "one\ntwo\n");
    EXPECT_EQ(rows(), untouched);
    EXPECT_EQ(events.selectedRows(), (std::vector<std::size_t>{0}));
}

TEST_F(CopyCommandTest, AFigureThatIsSelectedIsCopiedInstead) {
    openWithSelection({0});
    auto& label = focused(new QLabel(QStringLiteral("1,234.50")));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label.setFocus();
    chooseCopy();
    EXPECT_NE(rows(), untouched) << "nothing of the label is selected";
    label.setSelection(0, 5);
    chooseCopy();
    EXPECT_EQ(clipboard(), "1,234");
}

} // namespace quillet
