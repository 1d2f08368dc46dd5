#include "window/preferences/PreferencesPanes.h"

#include "backends/icu/IcuLocaleFormats.h"
#include "support/MemorySettings.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

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
    const IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    PreferencesWindowController controller{settings};
    PreferencesPanes panes{controller, {settings, formats, [] {}, [] {}}, parent};
};

} // namespace

TEST_F(PreferencesPanesTest, TheWindowIsBuiltWhenFirstShownOnTheGeneralPane) {
    settings.setObject(paneKey, 3);
    controller.awakeFromNib();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(settings.object(paneKey), QVariant(0));
    panes.showWindow();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_EQ(dialog()->windowTitle(), "General");
    EXPECT_EQ(shownTab(), "General");
}

TEST_F(PreferencesPanesTest, ChoosingATabTitlesTheWindowAndStoresThePane) {
    controller.awakeFromNib();
    panes.showWindow();
    tabs().setCurrentIndex(3);
    EXPECT_EQ(dialog()->windowTitle(), "CSV/TSV");
    EXPECT_EQ(settings.object(paneKey), QVariant(3));
    tabs().setCurrentIndex(1);
    EXPECT_EQ(dialog()->windowTitle(), "Columns");
    EXPECT_EQ(settings.object(paneKey), QVariant(1));
}

TEST_F(PreferencesPanesTest, TheWindowCanBeOpenedOnTheColumns) {
    controller.awakeFromNib();
    controller.showWindowWithColumnsPreferencesView();
    EXPECT_EQ(shownTab(), "Columns");
    EXPECT_EQ(dialog()->windowTitle(), "Columns");
    EXPECT_EQ(settings.object(paneKey), QVariant(1));
}

TEST_F(PreferencesPanesTest, TheWindowCanBeOpenedOnTheTextReport) {
    controller.awakeFromNib();
    controller.showWindowWithTextPreferencesView();
    EXPECT_EQ(shownTab(), "Text");
    EXPECT_EQ(dialog()->windowTitle(), "Text");
    EXPECT_EQ(settings.object(paneKey), QVariant(2));
}

TEST_F(PreferencesPanesTest, ThereAreFivePanesOfWhichOneIsShown) {
    controller.awakeFromNib();
    panes.showWindow();
    QStringList titles;
    QStringList identifiers;
    for (int tab = 0; tab < tabs().count(); ++tab) {
        titles << tabs().tabText(tab);
        identifiers << tabs().widget(tab)->objectName();
    }
    EXPECT_EQ(titles, (QStringList{"General", "Columns", "Text", "CSV/TSV", "Reminders"}));
    EXPECT_EQ(identifiers, (QStringList{"general", "columns", "text", "csv", "reminders"}));
    for (const int tab : {1, 2, 3, 4, 0}) {
        tabs().setCurrentIndex(tab);
        for (int other = 0; other < tabs().count(); ++other) {
            EXPECT_EQ(tabs().widget(other)->isVisible(), other == tab);
        }
    }
}

TEST_F(PreferencesPanesTest, AnIndexOfNoPaneLeavesPaneAndTitle) {
    controller.awakeFromNib();
    controller.showWindowWithTextPreferencesView();
    for (const quint64 index : {quint64(5), quint64(7), ~quint64(0)}) {
        controller.changePreferencesViewSubview(index);
        EXPECT_EQ(shownTab(), "Text");
        EXPECT_TRUE(tabs().currentWidget()->isVisible());
        EXPECT_EQ(dialog()->windowTitle(), "Text");
        EXPECT_EQ(settings.object(paneKey), QVariant(2));
    }
}

TEST_F(PreferencesPanesTest, TheShownPaneIsResizedWithTheWindow) {
    panes.showWindow();
    QApplication::processEvents();
    const QSize before = tabs().currentWidget()->size();
    dialog()->resize(dialog()->size() + QSize(120, 90));
    QApplication::processEvents();
    EXPECT_EQ(tabs().currentWidget()->size(), before + QSize(120, 90));
}

TEST_F(PreferencesPanesTest, ReturnEndsTheTypingAndEscapeClosesTheWindow) {
    controller.showWindowWithColumnsPreferencesView();
    auto* field = parent.findChild<QLineEdit*>("titleColumnTitle");
    QTest::keyClicks(field, "Task");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_EQ(settings.object("titleColumnTitle"), QVariant("Task"));
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(dialog()->isVisible());
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
