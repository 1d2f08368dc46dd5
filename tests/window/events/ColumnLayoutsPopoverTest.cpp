#include "window/events/ColumnLayoutsPopoverController.h"

#include "eventtable/EventColumns.h"
#include "window/WindowFixture.h"
#include "window/widgets/Popover.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace quillet {

namespace {

const QString layoutsKey = QStringLiteral("columnLayouts");

class ColumnLayoutsPopoverTest : public test::WindowFixture {
protected:
    ColumnLayoutsPopoverTest() {
        open();
        window->resize(1024, 700);
        window->activateWindow();
        QApplication::processEvents();
    }

    void trigger() const {
        window->findChild<QAction*>("showColumnLayoutsPopover")->trigger();
        QApplication::processEvents();
    }
    [[nodiscard]] QToolButton& anchor() const {
        return *window->findChild<QToolButton*>("columnLayouts");
    }
    [[nodiscard]] Popover* popover() const { return window->findChild<Popover*>(); }
    [[nodiscard]] QListView& list() const { return *popover()->findChild<QListView*>(); }
    void press(const char* name) const {
        QTest::mouseClick(popover()->findChild<QPushButton*>(name), Qt::LeftButton);
        QApplication::processEvents();
    }
    void select(int row) const {
        list().setCurrentIndex(list().model()->index(row, 0));
        QApplication::processEvents();
    }
    [[nodiscard]] QLineEdit* nameField() const { return list().findChild<QLineEdit*>(); }
    void endTyping(Qt::Key key) const {
        QTest::keyClick(nameField(), key);
        QApplication::processEvents();
    }
    [[nodiscard]] QVariantMap stored(qsizetype position) const {
        return arrayForKey(settings, layoutsKey).at(position).toMap();
    }
    [[nodiscard]] qsizetype storedCount() const { return arrayForKey(settings, layoutsKey).size(); }
};

} // namespace

TEST_F(ColumnLayoutsPopoverTest, TheButtonShowsThePopoverBelowItselfAndTakesItAway) {
    EXPECT_EQ(popover(), nullptr);
    QTest::mouseClick(&anchor(), Qt::LeftButton);
    ASSERT_NE(popover(), nullptr);
    EXPECT_TRUE(popover()->isVisible());
    EXPECT_EQ(popover()->y(), anchor().mapTo(window.get(), QPoint(0, anchor().height())).y());
    EXPECT_TRUE(window->rect().contains(popover()->geometry()));
    EXPECT_TRUE(list().hasFocus());
    QTest::mouseClick(&anchor(), Qt::LeftButton);
    EXPECT_FALSE(popover()->isVisible());
}

TEST_F(ColumnLayoutsPopoverTest, EscapeOrAClickBesideItTakesItAway) {
    table->setFocus();
    trigger();
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(popover()->isVisible());
    EXPECT_TRUE(table->hasFocus()) << "the focus is back where it was";
    trigger();
    QTest::mouseClick(table->viewport(), Qt::LeftButton);
    EXPECT_FALSE(popover()->isVisible());
    trigger();
    table->setFocus();
    EXPECT_FALSE(popover()->isVisible()) << "the focus moved on";
}

TEST_F(ColumnLayoutsPopoverTest, APopoverStaysInsideAWindowThatShrinks) {
    trigger();
    window->resize(window->minimumSizeHint());
    QApplication::processEvents();
    EXPECT_TRUE(window->rect().contains(popover()->geometry()));
}

TEST_F(ColumnLayoutsPopoverTest, ANewLayoutIsNamedAtOnceInItsPlace) {
    trigger();
    press("saveColumnLayout");
    EXPECT_EQ(storedCount(), 2);
    ASSERT_NE(nameField(), nullptr);
    EXPECT_EQ(nameField()->selectedText(), QStringLiteral("New Layout 2"));
    QTest::keyClicks(nameField(), "Invoice");
    endTyping(Qt::Key_Return);
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("Invoice"));
    EXPECT_TRUE(popover()->isVisible());
    EXPECT_EQ(columnLayouts.selectedRows(), std::vector<std::size_t>{1});
    press("saveColumnLayout");
    QTest::keyClicks(nameField(), "Quarter");
    QTest::keyClick(nameField(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(stored(2).value("columnLayoutName"), QVariant("New Layout 3"));
    EXPECT_TRUE(popover()->isVisible()) << "Escape ended the naming only";
}

TEST_F(ColumnLayoutsPopoverTest, ANameThatIsBeingTypedCountsWhenThePopoverGoes) {
    trigger();
    press("saveColumnLayout");
    QTest::keyClicks(nameField(), "Quarter");
    QTest::mouseClick(&anchor(), Qt::LeftButton);
    EXPECT_FALSE(popover()->isVisible());
    EXPECT_EQ(stored(1).value("columnLayoutName"), QVariant("Quarter"));
}

TEST_F(ColumnLayoutsPopoverTest, ApplyingBringsTheColumnsBackAsTheyWere) {
    columns.moveColumn(columns.positionOf("title"), 0);
    columns.columnAt(0).setWidthPoints(133);
    settings.setObject("isNotesColumn", true);
    settings.setObject("titleColumnTitle", "Task");
    trigger();
    press("saveColumnLayout");
    endTyping(Qt::Key_Return);
    settings.setObject("isNotesColumn", false);
    settings.setObject("titleColumnTitle", "Other");
    columns.moveColumn(0, 5);
    columns.columnAt(5).setWidthPoints(60);
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(columns.positionOf("title"), 0);
    EXPECT_EQ(columns.columnAt(0).widthPoints(), 133.0);
    EXPECT_EQ(settings.object("isNotesColumn"), QVariant(true));
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Task"));
    EXPECT_EQ(settings.object("isApplyColumnLayoutOn"), QVariant(false));

    popover()->findChild<QCheckBox*>("isColumnLayoutUsesNames")->click();
    settings.setObject("titleColumnTitle", "Other");
    press("setColumnLayout");
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Other"));
}

TEST_F(ColumnLayoutsPopoverTest, ANewLayoutHoldsTheTablesOwnPlacesAndWidths) {
    columns.moveColumn(columns.positionOf("title"), 0);
    columns.moveColumn(columns.positionOf("minutes"), 5);
    columns.columnAt(0).setWidthPoints(133.9);
    settings.setObject("isNotesColumn", false);
    settings.setObject("titleColumnTitle", "Task");
    trigger();
    press("saveColumnLayout");
    endTyping(Qt::Key_Return);
    const QVariantMap layout = stored(1);
    for (const EventColumn& column : eventColumns()) {
        const QString stem = QString::fromLatin1(column.stem);
        const int position = columns.positionOf(QString::fromLatin1(column.identifier));
        const TableColumn& shown = columns.columnAt(position);
        EXPECT_EQ(layout.value(stem + "ColumnIndex"), QVariant(position)) << column.stem;
        EXPECT_EQ(layout.value(stem + "ColumnWidth"), QVariant(int(shown.widthPoints())));
        EXPECT_EQ(layout.value(stem + "ColumnIsHidden"), QVariant(shown.isHidden()));
    }
    EXPECT_EQ(layout.value("titleColumnIndex"), QVariant(0));
    EXPECT_EQ(layout.value("titleColumnWidth"), QVariant(133));
    EXPECT_EQ(layout.value("titleColumnName"), QVariant("Task"));
    EXPECT_EQ(layout.value("minutesColumnIndex"), QVariant(5));
    EXPECT_EQ(layout.value("notesColumnIsHidden"), QVariant(true));
}

TEST_F(ColumnLayoutsPopoverTest, AnApplyRebuildsTheReportOnce) {
    columns.moveColumn(columns.positionOf("title"), 9);
    columns.columnAt(3).setWidthPoints(201);
    settings.setObject("isUrlColumn", true);
    settings.setObject("titleColumnTitle", "Task");
    settings.setObject("isExportTXTViewOn", true);
    fetch();
    trigger();
    select(0);
    int rebuilds = 0;
    QObject::connect(&report, &ExportTxtViewController::eventsAttributedStringChanged,
                     [&] { ++rebuilds; });
    press("setColumnLayout");
    fetch();
    EXPECT_EQ(columns.positionOf("title"), 2);
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Title"));
    EXPECT_EQ(rebuilds, 1);
}

TEST_F(ColumnLayoutsPopoverTest, TheDefaultLayoutIsNotDeletedAndTheOthersOnlyOnceTheUserAgrees) {
    trigger();
    press("saveColumnLayout");
    endTyping(Qt::Key_Return);
    select(0);
    press("removeColumnLayout");
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, "Cannot delete Default layout");
    EXPECT_EQ(storedCount(), 2);
    select(1);
    alerts.answer = 1;
    press("removeColumnLayout");
    EXPECT_EQ(storedCount(), 2);
    alerts.answer = 0;
    press("removeColumnLayout");
    EXPECT_EQ(storedCount(), 1);
    EXPECT_EQ(list().model()->rowCount(), 1);
    EXPECT_TRUE(popover()->isVisible());
}

TEST_F(ColumnLayoutsPopoverTest, ALayoutEditedByHandIsShownAndAppliedAsFarAsItGoes) {
    const QVariantMap whole = stored(0);
    settings.setObject(layoutsKey, QVariantList{whole,
                                                QVariantMap{{"columnLayoutName", "Two\nlines"},
                                                            {"titleColumnIndex", 400},
                                                            {"titleColumnWidth", -7},
                                                            {"dateColumnIndex", "far"}},
                                                "no layout", QVariantMap()});
    trigger();
    EXPECT_EQ(list().model()->rowCount(), 3);
    EXPECT_EQ(list().model()->index(1, 0).data(), QVariant("Two lines"));
    for (const int row : {1, 2, 0}) {
        select(row);
        press("setColumnLayout");
        EXPECT_EQ(settings.object("isApplyColumnLayoutOn"), QVariant(false)) << row;
    }
    EXPECT_EQ(stored(0), whole);
    EXPECT_FALSE(columns.column("title").isHidden());
    EXPECT_GT(columns.column("title").widthPoints(), 0.0);
}

TEST_F(ColumnLayoutsPopoverTest, WithoutASelectionThereIsNothingToApplyOrDelete) {
    trigger();
    list().clearSelection();
    QApplication::processEvents();
    EXPECT_FALSE(popover()->findChild<QPushButton*>("setColumnLayout")->isEnabled());
    EXPECT_FALSE(popover()->findChild<QPushButton*>("removeColumnLayout")->isEnabled());
    EXPECT_TRUE(popover()->findChild<QPushButton*>("saveColumnLayout")->isEnabled());
}

} // namespace quillet
