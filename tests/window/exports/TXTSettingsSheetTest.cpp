#include "window/exports/TXTSettingsSheet.h"

#include "export/TextReportRefresh.h"
#include "window/WindowFixture.h"
#include "window/main/NameListEditor.h"

#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class TXTSettingsSheetTest : public test::WindowFixture {
protected:
    TXTSettingsSheetTest() { open(); }

    void trigger(const char* action) const { window->findChild<QAction*>(action)->trigger(); }
    [[nodiscard]] QDialog* sheet() const { return window->findChild<QDialog*>("txtSettingsSheet"); }
    [[nodiscard]] QListView& list() const { return *sheet()->findChild<QListView*>(); }
    [[nodiscard]] QPushButton& button(const char* name) const {
        return *sheet()->findChild<QPushButton*>(name);
    }
    void press(const char* name) const {
        QTest::mouseClick(&button(name), Qt::LeftButton);
        QApplication::processEvents();
    }
    /// The field in which a name is being typed, or nothing.
    [[nodiscard]] QLineEdit* nameField() const { return list().findChild<QLineEdit*>(); }
    void endTyping(Qt::Key key) const {
        QTest::keyClick(nameField(), key);
        QApplication::processEvents();
    }
    [[nodiscard]] QString storedName(qsizetype position) const {
        return arrayForKey(settings, "txtSettings")
            .at(position)
            .toMap()
            .value("txtSettingsName")
            .toString();
    }
    [[nodiscard]] qsizetype storedCount() const {
        return arrayForKey(settings, "txtSettings").size();
    }
};

} // namespace

TEST_F(TXTSettingsSheetTest, TheSheetBlocksTheMainWindowUntilItIsClosed) {
    EXPECT_EQ(sheet(), nullptr);
    trigger("openTXTSettingsSheet");
    ASSERT_NE(sheet(), nullptr);
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(sheet()->parentWidget(), window.get());
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_FALSE(sheet()->isVisible());
    trigger("openTXTSettingsSheet");
    EXPECT_TRUE(sheet()->isVisible()) << "opens again";
    sheet()->close();
    EXPECT_FALSE(sheet()->isVisible());
}

TEST_F(TXTSettingsSheetTest, TheWindowInWhichItWasAskedForGetsTheKeysBack) {
    QWidget preferences(window.get(), Qt::Window);
    for (QWidget* asking : {&preferences, static_cast<QWidget*>(window.get())}) {
        asking->show();
        asking->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(asking));
        trigger("openTXTSettingsSheet");
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet()));
        QTest::keyClick(sheet(), Qt::Key_Escape);
        EXPECT_TRUE(QTest::qWaitForWindowActive(asking));
    }
}

TEST_F(TXTSettingsSheetTest, AWindowThatIsGoneGetsNoKeys) {
    auto preferences = std::make_unique<QWidget>(window.get(), Qt::Window);
    preferences->show();
    preferences->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(preferences.get()));
    trigger("openTXTSettingsSheet");
    preferences.reset();
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_FALSE(sheet()->isVisible());
}

TEST_F(TXTSettingsSheetTest, ANewPresetIsNamedAtOnceInItsPlace) {
    trigger("openTXTSettingsSheet");
    press("saveTXTSettings");
    press("saveTXTSettings");
    EXPECT_EQ(storedCount(), 3);
    QLineEdit* field = nameField();
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->selectedText(), QStringLiteral("New Settings 3"));
    QTest::keyClicks(field, "Invoice");
    endTyping(Qt::Key_Return);
    EXPECT_EQ(storedName(2), QStringLiteral("Invoice"));
    EXPECT_EQ(list().currentIndex().row(), 2);
    EXPECT_EQ(txtSettings.selectedRows(), std::vector<std::size_t>{2});
    EXPECT_TRUE(sheet()->isVisible());
}

TEST_F(TXTSettingsSheetTest, EscapeWhileNamingGivesTheOldNameBackAndLeavesTheSheetOpen) {
    trigger("openTXTSettingsSheet");
    press("saveTXTSettings");
    QTest::keyClicks(nameField(), "Nonsense");
    endTyping(Qt::Key_Escape);
    EXPECT_EQ(storedName(1), QStringLiteral("New Settings 2"));
    EXPECT_TRUE(sheet()->isVisible());
}

TEST_F(TXTSettingsSheetTest, ANameThatIsBeingTypedCountsWhenTheSheetIsClosed) {
    trigger("openTXTSettingsSheet");
    press("saveTXTSettings");
    QTest::keyClicks(nameField(), "Quarter");
    sheet()->close();
    EXPECT_EQ(storedName(1), QStringLiteral("Quarter"));
}

TEST_F(TXTSettingsSheetTest, ApplyingSetsTheSwitchesAndAsksForTheReportOnce) {
    settings.setObject("isTXTMax", true);
    trigger("openTXTSettingsSheet");
    press("saveTXTSettings");
    endTyping(Qt::Key_Return);
    settings.setObject("isTXTMax", false);
    settings.setObject("txtFooter", "Thanks");
    settings.setObject("isExportTXTViewOn", true);
    int rebuilds = 0;
    QObject::connect(&report, &ExportTxtViewController::eventsAttributedStringChanged,
                     [&] { ++rebuilds; });
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(settings.object("isTXTMax"), QVariant(true));
    EXPECT_EQ(settings.object("txtFooter"), QVariant(""));
    EXPECT_EQ(settings.object("isApplyTXTSettingsOn"), QVariant(false));
    EXPECT_EQ(rebuilds, 1);
    press("setTXTSettings");
    EXPECT_EQ(rebuilds, 2);
}

TEST_F(TXTSettingsSheetTest, TheFirstPresetIsNotDeletedAndTheOthersOnlyOnceTheUserAgrees) {
    trigger("openTXTSettingsSheet");
    press("saveTXTSettings");
    endTyping(Qt::Key_Return);
    list().setCurrentIndex(list().model()->index(0, 0));
    press("removeTXTSettings");
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].messageText, "Cannot delete Default settings");
    EXPECT_EQ(storedCount(), 2);
    list().setCurrentIndex(list().model()->index(1, 0));
    press("removeTXTSettings");
    EXPECT_EQ(alerts.shown[1].messageText, "Delete the record?");
    EXPECT_EQ(storedCount(), 1);
    EXPECT_EQ(list().model()->rowCount(), 1);
    EXPECT_EQ(txtSettings.selectedRows(), std::vector<std::size_t>{0});
}

TEST_F(TXTSettingsSheetTest, WithoutASelectionThereIsNothingToApplyOrDelete) {
    trigger("openTXTSettingsSheet");
    list().clearSelection();
    QApplication::processEvents();
    EXPECT_TRUE(txtSettings.selectedRows().empty());
    EXPECT_FALSE(button("setTXTSettings").isEnabled());
    EXPECT_FALSE(button("removeTXTSettings").isEnabled());
    EXPECT_TRUE(button("saveTXTSettings").isEnabled());
    settings.writes.clear();
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(TXTSettingsSheetTest, PresetsThatAnotherCopyWroteAreShown) {
    trigger("openTXTSettingsSheet");
    settings.setObject("txtSettings",
                       QVariantList{QVariantMap{{"txtSettingsName", "Theirs"}}, 4, "no preset"});
    EXPECT_EQ(list().model()->rowCount(), 1);
    EXPECT_EQ(list().model()->index(0, 0).data(), QVariant("Theirs"));
    settings.setObject("txtSettings", "no list");
    EXPECT_EQ(list().model()->rowCount(), 0);
}

} // namespace quillet
