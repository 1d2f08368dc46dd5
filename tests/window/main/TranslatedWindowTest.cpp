#include "window/WindowFixture.h"

#include "app/StartupSettings.h"
#include "backends/translations/Translations.h"
#include "texts/Localized.h"
#include "window/calendars/CalendarPane.h"
#include "window/preferences/PreferencesDialog.h"
#include "window/widgets/ElidedLabel.h"
#include "window/widgets/PaneScroller.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QToolButton>

#include <map>

namespace quillet {

namespace {

/// The string table is in use before the window and its parts are made, as it is in the program.
class SpokenLanguage {
protected:
    explicit SpokenLanguage(const char* language)
        : translations_({QString::fromLatin1(language)}) {}

private:
    const Translations translations_;
};

class TranslatedWindowTest : public testing::WithParamInterface<const char*>,
                             private SpokenLanguage,
                             public test::WindowFixture {
protected:
    TranslatedWindowTest()
        : SpokenLanguage(GetParam()) {}

    void inEachExportPane(const std::function<void(const char* view)>& check) {
        ExportActions& actions = window->exportActions();
        for (auto [action, view] :
             {std::pair{&actions.text, "report"}, std::pair{&actions.notes, "notes"}}) {
            action->trigger();
            fetch();
            check(view);
            settings.setObject("isExportTXTViewOn", false);
            settings.setObject("isNotesViewOn", false);
        }
    }
};

/// The letters that reach the texts, each with the texts that it reaches.
std::map<QChar, QStringList> keysOf(const QStringList& texts) {
    std::map<QChar, QStringList> keys;
    for (const QString& text : texts) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) {
            keys[key.toString().back()] << text;
        }
    }
    return keys;
}

void expectKeysOfTheirOwn(const QStringList& texts, const QString& place) {
    for (const auto& [key, reached] : keysOf(texts)) {
        EXPECT_EQ(reached.size(), 1) << place.toStdString() << ", " << QString(key).toStdString()
                                     << ": " << reached.join(" | ").toStdString();
    }
}

/// Of a menu or the menu bar.
QStringList textsOf(const QWidget& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        texts << action->text();
    }
    return texts;
}

/// What the letters of a window's buttons and fields are marked in, while they are shown.
QStringList buttonTexts(const QWidget& window) {
    QStringList texts;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        // Those of the toolbar show their action's text, whose letter is the menu's.
        const auto* tool = qobject_cast<const QToolButton*>(button);
        if (button->isVisible() && (tool == nullptr || tool->defaultAction() == nullptr)) {
            texts << button->text();
        }
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr) {
            texts << label->text();
        }
    }
    return texts;
}

QStringList cutTexts(const QWidget& window) {
    QStringList cut;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && !button->text().isEmpty() &&
            button->width() < button->sizeHint().width()) {
            cut << button->text();
        }
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->wordWrap() &&
            qobject_cast<const ElidedLabel*>(label) == nullptr &&
            label->width() < label->sizeHint().width()) {
            cut << label->text();
        }
    }
    return cut;
}

} // namespace

TEST_P(TranslatedWindowTest, NoMenuHasALetterForTwoOfItsItems) {
    open();
    EXPECT_GE(textsOf(*window->menuBar()).size(), 6);
    expectKeysOfTheirOwn(textsOf(*window->menuBar()), "menu bar");
    const QList<QMenu*> menus = window->menuBar()->findChildren<QMenu*>() +
                                window->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_GE(menus.size(), 9) << "with those in menus";
    for (const QMenu* menu : menus) {
        expectKeysOfTheirOwn(textsOf(*menu), menu->title());
    }
}

TEST_P(TranslatedWindowTest, NoLetterReachesAMenuAndAButton) {
    open();
    QStringList menus;
    for (const QAction* item : window->menuBar()->actions()) {
        menus << item->text();
    }
    inEachExportPane([&](const char* pane) {
        const QStringList buttons = buttonTexts(*window);
        EXPECT_TRUE(buttons.contains(localized("&Save…"))) << pane;
        expectKeysOfTheirOwn(menus + buttons, pane);
    });
}

TEST_P(TranslatedWindowTest, ASmallScreenHoldsAllOfTheMainWindow) {
    open();
    inEachExportPane([&](const char* pane) {
        // As the program begins where there is no room for it.
        window->findChild<QAction*>("showInspector")->setChecked(false);
        window->resize(1024, 700);
        QApplication::processEvents();
        EXPECT_EQ(window->size(), QSize(1024, 700)) << pane;
        EXPECT_EQ(cutTexts(*window), QStringList()) << pane;
        for (const auto* scroller : window->findChildren<PaneScroller*>()) {
            EXPECT_EQ(scroller->horizontalScrollBar()->maximum(), 0) << pane;
            EXPECT_EQ(scroller->verticalScrollBar()->maximum(), 0) << pane;
        }
        EXPECT_GE(named<QWidget>("hourlyRate")->width(), 60) << pane;
        EXPECT_GE(window->findChild<CalendarPane*>()->width(), 140) << pane;
    });
}

TEST_P(TranslatedWindowTest, ThePreferencesGiveEachLetterToOneControlOfAPane) {
    writeStartupSettings(settings);
    PreferencesDialog dialog({settings, formats, [] {}, [] {}});
    dialog.show();
    auto& panes = *dialog.findChild<QTabWidget*>();
    for (int pane = 0; pane < panes.count(); ++pane) {
        panes.setCurrentIndex(pane);
        QApplication::processEvents();
        EXPECT_GE(buttonTexts(dialog).size(), 3);
        expectKeysOfTheirOwn(buttonTexts(dialog), panes.tabText(pane));
        EXPECT_EQ(cutTexts(*panes.currentWidget()), QStringList());
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedWindowTest,
                         testing::Values("en", "de", "es", "fr", "ja"),
                         [](const auto& each) { return std::string(each.param); });

} // namespace quillet
