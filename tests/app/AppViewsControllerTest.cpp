#include "app/AppViewsController.h"

#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <set>

namespace quillet {

namespace {

class FakePanes final : public MainWindowPanes {
public:
    void remove(PaneContent content) override {
        for (auto& [pane, contents] : contentsOf) {
            contents.erase(content);
        }
    }
    void install(PaneContent content, Pane pane) override {
        contentsOf[pane].insert(content);
        topmost[pane] = content;
    }
    void setPaneHidden(Pane pane, bool isHidden) override { hidden[pane] = isHidden; }
    void removeProgressIndicator() override { indicators = 0; }
    void addProgressIndicator() override { ++indicators; }
    void setProgressAnimated(bool animated) override { isAnimated = animated; }

    std::map<Pane, std::multiset<PaneContent>> contentsOf;
    std::map<Pane, PaneContent> topmost;
    std::map<Pane, bool> hidden;
    int indicators = 0;
    bool isAnimated = true;
};

using Contents = std::multiset<PaneContent>;

class AppViewsControllerTest : public testing::Test {
protected:
    [[nodiscard]] std::string enabledItems() const {
        return std::string(txt.isEnabled ? "txt " : "") + (csv.isEnabled ? "csv " : "") +
               (tsv.isEnabled ? "tsv " : "") + (notes.isEnabled ? "notes" : "");
    }

    test::MemorySettings settings;
    FakePanes panes;
    test::FakeToolbarItem txt;
    test::FakeToolbarItem csv;
    test::FakeToolbarItem tsv;
    test::FakeToolbarItem notes;
    AppViewsController controller{{.settings = settings,
                                   .panes = panes,
                                   .exportTxtToolbarItem = txt,
                                   .exportCsvToolbarItem = csv,
                                   .exportTsvToolbarItem = tsv,
                                   .exportNotesToolbarItem = notes}};
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
    EXPECT_EQ(enabledItems(), "txt csv tsv notes");
    EXPECT_FALSE(panes.isAnimated);
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
    EXPECT_EQ(enabledItems(), "");
    EXPECT_EQ(settings.object("isExportTXTViewOn"), QVariant(true));
    EXPECT_FALSE(panes.hidden[Pane::Export]);
    EXPECT_EQ(panes.contentsOf[Pane::Export], Contents{PaneContent::ExportTxtView});
    controller.turnTxtExportViewOff();
    EXPECT_EQ(enabledItems(), "txt csv tsv notes");
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
    EXPECT_EQ(enabledItems(), "txt csv tsv notes") << "only the toolbar's way in disables them";
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

TEST_F(AppViewsControllerTest, ABusyFlagSetTwiceLeavesOneIndicator) {
    controller.awakeFromNib();
    settings.setObject("isProgressIndicatorOn", true);
    settings.setObject("isProgressIndicatorOn", true);
    EXPECT_EQ(panes.indicators, 1);
    EXPECT_TRUE(panes.isAnimated);
    settings.setObject("isProgressIndicatorOn", false);
    EXPECT_EQ(panes.indicators, 0);
    EXPECT_FALSE(panes.isAnimated);
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

TEST_F(AppViewsControllerTest, AnAbsentViewModeIsStoredWhenRead) {
    EXPECT_EQ(controller.viewMode(), 0);
    EXPECT_EQ(settings.object("viewMode"), QVariant(0));
    settings.setObject("viewMode", 1);
    EXPECT_EQ(controller.viewMode(), 1);
}

} // namespace quillet
