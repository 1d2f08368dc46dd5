#include "window/PreferencesPanes.h"

#include "support/MemorySettings.h"

#include <QApplication>
#include <QDialog>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace quillet {

namespace {

const QString paneKey = QStringLiteral("selectedPreferencesToolbarItem");

class PreferencesPanesTest : public testing::Test {
protected:
    [[nodiscard]] QDialog* dialog() const { return parent.findChild<QDialog*>(); }
    [[nodiscard]] QTabWidget& tabs() const { return *parent.findChild<QTabWidget*>(); }
    [[nodiscard]] QString shownTab() const { return tabs().tabText(tabs().currentIndex()); }

    test::MemorySettings settings;
    QWidget parent;
    PreferencesPanes panes{settings, [] {}, parent};
};

} // namespace

TEST_F(PreferencesPanesTest, TheWindowIsBuiltWhenFirstShownOnTheGeneralPane) {
    settings.setObject(paneKey, 3);
    panes.controller().awakeFromNib();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(settings.object(paneKey), QVariant(0));
    panes.showWindow();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_EQ(dialog()->windowTitle(), "General");
    EXPECT_EQ(shownTab(), "General");
}

TEST_F(PreferencesPanesTest, ChoosingATabTitlesTheWindowAndStoresThePane) {
    panes.controller().awakeFromNib();
    panes.showWindow();
    tabs().setCurrentIndex(2);
    EXPECT_EQ(dialog()->windowTitle(), "CSV/TSV");
    EXPECT_EQ(settings.object(paneKey), QVariant(3));
    tabs().setCurrentIndex(1);
    EXPECT_EQ(dialog()->windowTitle(), "Columns");
    EXPECT_EQ(settings.object(paneKey), QVariant(1));
}

TEST_F(PreferencesPanesTest, TheWindowCanBeOpenedOnTheColumns) {
    panes.controller().awakeFromNib();
    panes.controller().showWindowWithColumnsPreferencesView();
    EXPECT_EQ(shownTab(), "Columns");
    EXPECT_EQ(dialog()->windowTitle(), "Columns");
    EXPECT_EQ(settings.object(paneKey), QVariant(1));
}

} // namespace quillet
