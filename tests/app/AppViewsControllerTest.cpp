#include "app/AppViewsController.h"

#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace quillet {

namespace {

/// What a window shows that follows the controller.
struct FakePanes {
    explicit FakePanes(const AppViewsController& views) {
        QObject::connect(&views, &AppViewsController::contentsChanged, [this, &views](Pane pane) {
            const auto& shown = views.contents(pane);
            contentsOf[pane] = {shown.begin(), shown.end()};
            if (!shown.empty()) {
                topmost[pane] = shown.back();
            }
        });
        QObject::connect(&views, &AppViewsController::isPaneHiddenChanged,
                         [this, &views](Pane pane) { hidden[pane] = views.isPaneHidden(pane); });
        QObject::connect(&views, &AppViewsController::isProgressIndicatorShownChanged,
                         [this, &views] { isBusy = views.isProgressIndicatorShown(); });
        QObject::connect(
            &views, &AppViewsController::areExportToolbarItemsEnabledChanged,
            [this, &views] { areItemsEnabled = views.areExportToolbarItemsEnabled(); });
    }

    std::map<Pane, std::multiset<PaneContent>> contentsOf;
    std::map<Pane, PaneContent> topmost;
    std::map<Pane, bool> hidden;
    bool isBusy = true;
    bool areItemsEnabled = false;
};

using Contents = std::multiset<PaneContent>;

class AppViewsControllerTest : public testing::Test {
protected:
    test::MemorySettings settings;
    AppViewsController controller{settings};
    FakePanes panes{controller};
    const QRectF divider{0, 100, 400, 5};
};

} // namespace

TEST_F(AppViewsControllerTest, TheFirstLaunchShowsTheEventsView) {
    controller.awakeFromNib();
    EXPECT_EQ(settings.object("viewMode"), QVariant(0));
    EXPECT_EQ(settings.object("isProgressIndicatorOn"), QVariant(false));
    EXPECT_EQ(settings.object("isExportTXTViewOn"), QVariant(false));
    EXPECT_EQ(settings.object("isNotesViewOn"), QVariant(false));
    EXPECT_EQ(panes.contentsOf[Pane::List], Contents{PaneContent::CalendarListView});
    EXPECT_EQ(panes.contentsOf[Pane::Item], Contents{PaneContent::EventItemView});
    EXPECT_EQ(panes.contentsOf[Pane::Inspector], Contents{PaneContent::DateInspectorView});
    EXPECT_TRUE(panes.hidden[Pane::Export]);
    EXPECT_TRUE(panes.areItemsEnabled);
    EXPECT_FALSE(panes.isBusy);
}

TEST_F(AppViewsControllerTest, ExportPanesAlwaysStartClosed) {
    settings.setObject("isExportTXTViewOn", true);
    settings.setObject("isNotesViewOn", true);
    controller.awakeFromNib();
    EXPECT_EQ(settings.object("isExportTXTViewOn"), QVariant(false));
    EXPECT_EQ(settings.object("isNotesViewOn"), QVariant(false));
    EXPECT_TRUE(panes.hidden[Pane::Export]);
}

TEST_F(AppViewsControllerTest, TheRatePaneFollowsTheMoneySwitchAtOnce) {
    controller.awakeFromNib();
    EXPECT_TRUE(panes.hidden[Pane::Rate]);
    settings.setObject("isDollarsOn", true);
    EXPECT_FALSE(panes.hidden[Pane::Rate]);
    settings.setObject("isDollarsOn", 2);
    EXPECT_TRUE(panes.hidden[Pane::Rate]) << "exactly 1 shows it";
}

TEST_F(AppViewsControllerTest, OpeningAnExportPaneDisablesTheExportsUntilItIsClosed) {
    controller.awakeFromNib();
    controller.exportTxtToolbarItemClicked();
    EXPECT_FALSE(panes.areItemsEnabled);
    EXPECT_EQ(settings.object("isExportTXTViewOn"), QVariant(true));
    EXPECT_FALSE(panes.hidden[Pane::Export]);
    EXPECT_EQ(panes.contentsOf[Pane::Export], Contents{PaneContent::ExportTxtView});
    controller.turnTxtExportViewOff();
    EXPECT_TRUE(panes.areItemsEnabled);
    EXPECT_TRUE(panes.hidden[Pane::Export]);
    EXPECT_EQ(panes.contentsOf[Pane::Export], Contents{});
    controller.exportNotesToolbarItemClicked();
    EXPECT_EQ(panes.contentsOf[Pane::Export], Contents{PaneContent::ExportNotesView});
    controller.turnNotesExportViewOff();
    EXPECT_TRUE(panes.hidden[Pane::Export]);
}

TEST_F(AppViewsControllerTest, ShowingAnExportPaneLeavesTheExportsEnabled) {
    controller.awakeFromNib();
    controller.displayTxtExportView();
    EXPECT_EQ(panes.contentsOf[Pane::Export], Contents{PaneContent::ExportTxtView});
    EXPECT_EQ(settings.object("isExportTXTViewOn"), QVariant(true));
    EXPECT_TRUE(panes.areItemsEnabled) << "only the toolbar's way in disables them";
    controller.turnTxtExportViewOff();
    controller.displayNotesExportView();
    EXPECT_EQ(panes.contentsOf[Pane::Export], Contents{PaneContent::ExportNotesView});
    EXPECT_EQ(settings.object("isNotesViewOn"), QVariant(true));
}

TEST_F(AppViewsControllerTest, WithBothExportsOnTheNotesLieOverTheReport) {
    controller.awakeFromNib();
    settings.setObject("isExportTXTViewOn", true);
    settings.setObject("isNotesViewOn", true);
    controller.changeExportViewController();
    EXPECT_EQ(panes.contentsOf[Pane::Export],
              (Contents{PaneContent::ExportTxtView, PaneContent::ExportNotesView}));
    EXPECT_EQ(panes.topmost[Pane::Export], PaneContent::ExportNotesView);
    EXPECT_FALSE(panes.hidden[Pane::Export]);
    controller.turnNotesExportViewOff();
    EXPECT_EQ(panes.topmost[Pane::Export], PaneContent::ExportTxtView);
    EXPECT_FALSE(panes.hidden[Pane::Export]);
}

TEST_F(AppViewsControllerTest, TheDividerCanBeDraggedOnlyWithAnExportPaneOpen) {
    controller.awakeFromNib();
    EXPECT_TRUE(AppViewsController::shouldHideDivider());
    EXPECT_EQ(controller.effectiveRect(divider), QRectF());
    controller.exportTxtToolbarItemClicked();
    EXPECT_EQ(controller.effectiveRect(divider), divider);
    controller.turnTxtExportViewOff();
    controller.exportNotesToolbarItemClicked();
    EXPECT_EQ(controller.effectiveRect(divider), divider);
}

TEST_F(AppViewsControllerTest, ABusyFlagSetTwiceIsTakenBackAtOnce) {
    controller.awakeFromNib();
    settings.setObject("isProgressIndicatorOn", true);
    settings.setObject("isProgressIndicatorOn", true);
    EXPECT_TRUE(panes.isBusy);
    settings.setObject("isProgressIndicatorOn", false);
    EXPECT_FALSE(panes.isBusy);
}

TEST_F(AppViewsControllerTest, PanesAreArrangedOnceWhateverTheModeBecomes) {
    controller.awakeFromNib();
    panes.contentsOf.clear();
    controller.setViewMode(1);
    EXPECT_TRUE(panes.contentsOf.empty());
    EXPECT_EQ(settings.object("viewMode"), QVariant(1));
}

TEST_F(AppViewsControllerTest, InAnotherModeThePanesKeepTheirContent) {
    controller.awakeFromNib();
    controller.setViewMode(1);
    controller.observeValueForKeyPath("viewMode");
    EXPECT_EQ(panes.contentsOf[Pane::List], Contents{PaneContent::CalendarListView});
    EXPECT_EQ(panes.contentsOf[Pane::Rate], Contents{PaneContent::EventRateView});
}

TEST_F(AppViewsControllerTest, AWindowThatIsBuiltLaterFindsWhatItShows) {
    controller.awakeFromNib();
    settings.setObject("isProgressIndicatorOn", true);
    controller.exportTxtToolbarItemClicked();
    EXPECT_EQ(controller.contents(Pane::Item), std::vector{PaneContent::EventItemView});
    EXPECT_EQ(controller.contents(Pane::Export), std::vector{PaneContent::ExportTxtView});
    EXPECT_FALSE(controller.isPaneHidden(Pane::Export));
    EXPECT_TRUE(controller.isPaneHidden(Pane::Rate));
    EXPECT_TRUE(controller.isProgressIndicatorShown());
    EXPECT_FALSE(controller.areExportToolbarItemsEnabled());
}

TEST_F(AppViewsControllerTest, AnAbsentViewModeIsStoredWhenRead) {
    EXPECT_EQ(controller.viewMode(), 0);
    EXPECT_EQ(settings.object("viewMode"), QVariant(0));
    settings.setObject("viewMode", 1);
    EXPECT_EQ(controller.viewMode(), 1);
}

} // namespace quillet
