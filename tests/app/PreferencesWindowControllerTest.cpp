#include "app/PreferencesWindowController.h"

#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillet {

namespace {

/// A window that follows the controller.
struct FakePreferencesWindow {
    explicit FakePreferencesWindow(const PreferencesWindowController& controller) {
        using Controller = PreferencesWindowController;
        QObject::connect(&controller, &Controller::windowShown, [this] {
            steps << "show";
            isShown = true;
        });
        QObject::connect(&controller, &Controller::titleChanged, [this](const QString& text) {
            steps << "title " + text;
            title = text;
        });
        QObject::connect(&controller, &Controller::paneRemoved, [this](PreferencesPane pane) {
            steps << "remove " + Controller::toolbarItemIdentifier(pane);
            std::erase(panes, pane);
        });
        QObject::connect(&controller, &Controller::paneInstalled, [this](PreferencesPane pane) {
            steps << "install " + Controller::toolbarItemIdentifier(pane);
            panes.push_back(pane);
        });
        QObject::connect(&controller, &Controller::toolbarItemSelected,
                         [this](const QString& identifier) {
                             steps << "select " + identifier;
                             selectedItem = identifier;
                         });
    }

    QStringList steps;

    bool isShown = false;
    QString title;
    std::vector<PreferencesPane> panes;
    QString selectedItem;
};

using Panes = std::vector<PreferencesPane>;

class PreferencesWindowControllerTest : public testing::Test {
protected:
    [[nodiscard]] QVariant stored() const {
        return settings.object("selectedPreferencesToolbarItem");
    }

    test::MemorySettings settings;
    PreferencesWindowController controller{settings};
    FakePreferencesWindow window{controller};
};

} // namespace

TEST_F(PreferencesWindowControllerTest, TheWindowStartsOnTheGeneralPaneWhateverWasStored) {
    settings.setObject("selectedPreferencesToolbarItem", 3);
    controller.awakeFromNib();
    EXPECT_EQ(stored(), QVariant(0));
    EXPECT_EQ(window.panes, Panes{PreferencesPane::General});
    EXPECT_EQ(window.title, "General");
    EXPECT_EQ(window.selectedItem, "general");
    EXPECT_FALSE(window.isShown);
}

TEST_F(PreferencesWindowControllerTest, EachToolbarItemShowsAndStoresItsPane) {
    controller.awakeFromNib();
    struct Case {
        PreferencesPane pane;
        const char* identifier;
        const char* title;
    };
    int index = 0;
    for (const Case& each :
         {Case{PreferencesPane::General, "general", "General"},
          Case{PreferencesPane::Columns, "columns", "Columns"},
          Case{PreferencesPane::Text, "text", "Text"}, Case{PreferencesPane::Csv, "csv", "CSV/TSV"},
          Case{PreferencesPane::Reminders, "reminders", "Reminders"}}) {
        controller.toolbarItemClicked(each.pane);
        EXPECT_EQ(stored(), QVariant(index++));
        EXPECT_EQ(window.panes, Panes{each.pane});
        EXPECT_EQ(window.title, QString::fromLatin1(each.title));
        EXPECT_EQ(PreferencesWindowController::toolbarItemIdentifier(each.pane),
                  QString::fromLatin1(each.identifier));
    }
}

TEST_F(PreferencesWindowControllerTest, TheWindowCanOpenOnTheColumnsOrTheTextPane) {
    controller.awakeFromNib();
    controller.showWindowWithColumnsPreferencesView();
    EXPECT_TRUE(window.isShown);
    EXPECT_EQ(window.panes, Panes{PreferencesPane::Columns});
    EXPECT_EQ(window.title, "Columns");
    EXPECT_EQ(window.selectedItem, "columns");
    EXPECT_EQ(stored(), QVariant(1));
    controller.showWindowWithTextPreferencesView();
    EXPECT_EQ(window.selectedItem, "text");
    EXPECT_EQ(stored(), QVariant(2));
}

TEST_F(PreferencesWindowControllerTest, AClickShowsThenStoresAndOpeningStoresThenShows) {
    const Observation observation = settings.observe("selectedPreferencesToolbarItem", [this] {
        window.steps << "store " + QString::number(stored().toInt());
    });
    controller.awakeFromNib();
    EXPECT_EQ(window.steps,
              (QStringList{"store 0", "title General", "install general", "select general"}));
    window.steps.clear();
    controller.toolbarItemClicked(PreferencesPane::Csv);
    EXPECT_EQ(window.steps,
              (QStringList{"remove general", "title CSV/TSV", "install csv", "store 3"}));
    window.steps.clear();
    controller.showWindowWithTextPreferencesView();
    EXPECT_EQ(window.steps, (QStringList{"store 2", "show", "remove csv", "title Text",
                                         "install text", "select text"}));
}

TEST_F(PreferencesWindowControllerTest, AnIndexOfNoPaneChangesNothing) {
    controller.awakeFromNib();
    controller.toolbarItemClicked(PreferencesPane::Text);
    controller.changePreferencesViewSubview(7);
    EXPECT_EQ(window.panes, Panes{PreferencesPane::Text});
    EXPECT_EQ(window.title, "Text");
}

} // namespace quillet
