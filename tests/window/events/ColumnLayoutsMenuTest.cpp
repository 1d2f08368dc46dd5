#include "window/events/ColumnLayoutsMenu.h"

#include "window/WindowFixture.h"
#include "window/widgets/Popover.h"

#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

const QString layoutsKey = QStringLiteral("columnLayouts");

class ColumnLayoutsMenuTest : public test::WindowFixture {
protected:
    ColumnLayoutsMenuTest() {
        open();
        window->activateWindow();
        QApplication::processEvents();
    }

    [[nodiscard]] ColumnLayoutsMenu& menu() const {
        return *window->findChild<ColumnLayoutsMenu*>();
    }
    [[nodiscard]] QMenu& deletion() const { return *menu().findChild<QMenu*>(); }
    /// The texts of a menu's entries, as they are when it comes up.
    QStringList texts(QMenu& shown) const {
        Q_EMIT menu().aboutToShow();
        QStringList entries;
        for (const QAction* entry : shown.actions()) {
            entries << entry->text();
        }
        return entries;
    }
    void choose(QMenu& shown, const QString& text) {
        Q_EMIT menu().aboutToShow();
        for (QAction* entry : shown.actions()) {
            if (entry->text() == text) {
                entry->trigger();
                QApplication::processEvents();
                return;
            }
        }
        ADD_FAILURE() << "no entry " << text.toStdString();
    }
    void add(const QString& name) {
        columnLayouts.createColumnLayout();
        columnLayouts.rename(columnLayouts.arrangedCount() - 1, name);
    }
    [[nodiscard]] QStringList names() const {
        QStringList stored;
        for (const NamedRecord& layout : *columnLayouts.content()) {
            stored << layout.name;
        }
        return stored;
    }
};

} // namespace

TEST_F(ColumnLayoutsMenuTest, ListsTheLayoutsAndOffersAllButTheFirstForDeletion) {
    EXPECT_EQ(texts(menu()), (QStringList{"&Edit Layouts…", "&Save as New Layout", "&Delete Layout",
                                          "", "Default"}));
    EXPECT_FALSE(deletion().isEnabled()) << "there is none to delete";
    add("R&D");
    add(QString(300, u'x'));
    add("Two\nlines");
    settings.setObject(layoutsKey, arrayForKey(settings, layoutsKey) + QVariantList{QVariantMap()});
    const QStringList entries = texts(menu()).mid(4);
    ASSERT_EQ(entries.size(), 5);
    EXPECT_EQ(entries[1], "R&&D");
    EXPECT_LT(entries[2].size(), 100);
    EXPECT_EQ(entries[3], "Two lines");
    EXPECT_EQ(entries[4], "(no name)");
    EXPECT_EQ(texts(deletion()), entries.mid(1));
    EXPECT_TRUE(deletion().isEnabled());
    settings.setObject(layoutsKey, QVariantList());
    EXPECT_EQ(texts(menu()).size(), 4);
    EXPECT_TRUE(texts(deletion()).isEmpty());
}

TEST_F(ColumnLayoutsMenuTest, ChoosingALayoutAppliesIt) {
    columns.column("title").setWidthPoints(133);
    add("Narrow");
    columns.column("title").setWidthPoints(300);
    add("Wide");
    choose(menu(), "Narrow");
    EXPECT_EQ(columns.column("title").widthPoints(), 133.0);
    EXPECT_EQ(columnLayouts.selectedRows(), std::vector<std::size_t>{1});
    choose(menu(), "Wide");
    EXPECT_EQ(columns.column("title").widthPoints(), 300.0);
}

TEST_F(ColumnLayoutsMenuTest, ALayoutIsDeletedOnceTheUserAgrees) {
    add("Narrow");
    add("Wide");
    alerts.answer = 1;
    choose(deletion(), "Narrow");
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, "Delete the record?");
    EXPECT_EQ(names(), (QStringList{"Default", "Narrow", "Wide"}));
    alerts.answer = 0;
    choose(deletion(), "Narrow");
    EXPECT_EQ(names(), (QStringList{"Default", "Wide"}));
}

TEST_F(ColumnLayoutsMenuTest, AnEntryWhoseLayoutIsGoneDoesNothing) {
    add("Narrow");
    add("Wide");
    Q_EMIT menu().aboutToShow();
    QAction* narrow = deletion().actions().front();
    const QVariantList layouts = arrayForKey(settings, layoutsKey);
    settings.setObject(layoutsKey, QVariantList{layouts[0], layouts[2]});
    narrow->trigger();
    QApplication::processEvents();
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(names(), (QStringList{"Default", "Wide"}));
}

TEST_F(ColumnLayoutsMenuTest, ANewLayoutIsNamedInThePopover) {
    for (const char* name : {"Narrow", "Wide"}) {
        window->findChild<QAction*>("saveColumnLayout")->trigger();
        QApplication::processEvents();
        auto* popover = window->findChild<Popover*>();
        ASSERT_NE(popover, nullptr);
        EXPECT_TRUE(popover->isVisible()) << name;
        QLineEdit* field = nullptr;
        for (auto* each : popover->findChildren<QLineEdit*>()) {
            field = each->isVisible() ? each : field;
        }
        ASSERT_NE(field, nullptr) << name;
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents();
    }
    EXPECT_EQ(names(), (QStringList{"Default", "Narrow", "Wide"}));
}

TEST_F(ColumnLayoutsMenuTest, TheTitlesOfAllColumnsAreResetFromTheMenuOfTheColumns) {
    settings.setObject("titleColumnTitle", "R&D");
    auto* columnsMenu =
        qobject_cast<QMenu*>(window->findChild<QAction*>("isTitleColumn")->parent());
    Q_EMIT columnsMenu->aboutToShow();
    EXPECT_EQ(window->findChild<QAction*>("isTitleColumn")->text(), "R&&D")
        << "no letter of a menu";
    window->findChild<QAction*>("resetAllColumnTitles")->trigger();
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Title"));
}

} // namespace quillet
