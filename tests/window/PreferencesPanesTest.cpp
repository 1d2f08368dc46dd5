#include "window/PreferencesPanes.h"

#include "support/MemorySettings.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
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

    /// The fields of time columns that are there, by their keys.
    [[nodiscard]] QStringList timeFields() const {
        QStringList shown;
        for (const char* key : {"hoursColumnTitle", "minutesColumnTitle", "durationColumnTitle"}) {
            if (!parent.findChild<QLineEdit*>(key)->isHidden()) {
                shown << key;
            }
        }
        return shown;
    }

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

TEST_F(PreferencesPanesTest, OfTheTimeColumnsThatOfTheTimeTypeCanBeSet) {
    panes.showWindow();
    EXPECT_EQ(settings.object("timeTypeSelection"), QVariant(1));
    EXPECT_EQ(timeFields(), QStringList{"hoursColumnTitle"});
    settings.setObject("timeTypeSelection", 2);
    EXPECT_EQ(timeFields(), QStringList{"minutesColumnTitle"});
    settings.setObject("timeTypeSelection", 3);
    EXPECT_EQ(timeFields(), QStringList{"durationColumnTitle"});
    settings.setObject("timeTypeSelection", 0);
    EXPECT_EQ(timeFields(), QStringList());
}

TEST_F(PreferencesPanesTest, ATitleThatAnAssistiveProgramPutsInIsTaken) {
    panes.showWindow();
    auto* field = parent.findChild<QLineEdit*>("titleColumnTitle");
    QAccessible::queryAccessibleInterface(field)->setText(QAccessible::Value, "Task");
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Task"));
    settings.setObject("titleColumnTitle", "Other");
    EXPECT_EQ(field->text(), QStringLiteral("Other"));
}

} // namespace quillet
