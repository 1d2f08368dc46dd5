#include "window/events/SearchBox.h"

#include "window/WindowFixture.h"

#include "support/ExpectedLog.h"
#include "window/widgets/EmptyState.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace quillet {

using test::utc;

class SearchBoxTest : public test::WindowFixture {
protected:
    SearchBox& openWithSearch() {
        open();
        window->activateWindow();
        return *named<SearchBox>("Search Events");
    }
    QStringList shown() const {
        QStringList titles;
        for (std::size_t row = 0; row < events.arrangedCount(); ++row) {
            titles << events.arranged(row).details->title;
        }
        return titles;
    }
    static QStringList ticked(const QMenu& menu) {
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            if (action->isChecked()) {
                texts << action->text();
            }
        }
        return texts;
    }

    const QStringList all{"Planning", "Dentist", "Workshop"};
};

TEST_F(SearchBoxTest, TypingNarrowsTheTableAndItsTotals) {
    SearchBox& box = openWithSearch();
    QTest::keyClicks(&box, "WORK");
    fetch();
    EXPECT_EQ(shown(), QStringList{"Workshop"});
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(named<QLabel>("total")->text(), QStringLiteral("8"));
    QTest::keyClick(&box, Qt::Key_Escape);
    fetch();
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(shown(), all);
    EXPECT_EQ(named<QLabel>("total")->text(), QStringLiteral("11"));
}

TEST_F(SearchBoxTest, TheCommandFindLeadsToTheFieldAndEscapeBackToTheTable) {
    SearchBox& box = openWithSearch();
    auto* find = window->findChild<QAction*>("startSearch");
    EXPECT_EQ(find->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_F));
    QTest::keyClicks(&box, "plan");
    table->setFocus();
    find->trigger();
    EXPECT_EQ(window->focusWidget(), &box);
    EXPECT_EQ(box.selectedText(), QStringLiteral("plan"));
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(window->focusWidget(), &box) << "there was something to clear";
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(window->focusWidget(), table);
}

TEST_F(SearchBoxTest, TheMenuTicksThePlaceThatIsSearched) {
    SearchBox& box = openWithSearch();
    EXPECT_EQ(box.menu().title(), QStringLiteral("Search Menu"));
    ASSERT_EQ(box.menu().actions().size(), 4);
    EXPECT_EQ(ticked(box.menu()), QStringList{"All"});
    EXPECT_EQ(box.placeholderText(), QStringLiteral("All"));
    QTest::keyClicks(&box, "shop");
    box.menu().actions()[3]->trigger();
    fetch();
    EXPECT_EQ(ticked(box.menu()), QStringList{"Location"});
    EXPECT_EQ(box.placeholderText(), QStringLiteral("Location"));
    EXPECT_EQ(shown(), QStringList());
    box.menu().actions()[1]->trigger();
    fetch();
    EXPECT_EQ(shown(), QStringList{"Workshop"});
    box.menu().actions()[1]->trigger();
    EXPECT_EQ(ticked(box.menu()), QStringList{"Title"}) << "the chosen one again";
}

TEST_F(SearchBoxTest, TheKeyboardAndTheSymbolOpenTheMenu) {
    SearchBox& box = openWithSearch();
    for (const auto& open : std::vector<std::function<void()>>{
             [&] { QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier); },
             [&] { named<QAbstractButton>("Search In")->click(); }}) {
        // A screen that is none says this of every menu.
        const test::ExpectedLog raising("This plugin does not support raise()");
        const test::ExpectedLog grabbing("This plugin does not support grabbing the keyboard");
        open();
        EXPECT_TRUE(box.menu().isVisible());
        box.menu().close();
    }
}

TEST_F(SearchBoxTest, TheMenuBarOffersThePlacesOfTheView) {
    SearchBox& box = openWithSearch();
    settings.setObject("viewMode", 1);
    EXPECT_EQ(box.accessibleName(), QStringLiteral("Search Reminders"));
    EXPECT_EQ(box.toolTip(), QStringLiteral("Search Reminders"));
    EXPECT_EQ(box.menu().actions().size(), 3);
    QMenu* edit = window->menuBar()->actions()[1]->menu();
    Q_EMIT edit->aboutToShow();
    const QList<QAction*> entries = edit->actions();
    const auto findIn = std::ranges::find_if(
        entries, [](const QAction* action) { return action->menu() != nullptr; });
    ASSERT_NE(findIn, entries.end());
    EXPECT_EQ((*findIn)->menu()->actions(), box.menu().actions());
    settings.setObject("viewMode", 0);
    EXPECT_EQ(box.accessibleName(), QStringLiteral("Search Events"));
    EXPECT_EQ(box.menu().actions().size(), 4);
}

TEST_F(SearchBoxTest, ASearchThatFindsNothingSaysSoAndCanBeCleared) {
    SearchBox& box = openWithSearch();
    auto* empty = window->findChild<EmptyState*>();
    QTest::keyClicks(&box, "q\"uux\\");
    fetch();
    ASSERT_TRUE(empty->isVisible());
    auto* clear = empty->findChild<QAbstractButton*>();
    EXPECT_EQ(clear->text(), QStringLiteral("Clear Search"));
    clear->click();
    fetch();
    EXPECT_FALSE(empty->isVisible());
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(shown(), all);
}

TEST_F(SearchBoxTest, TheSearchGoesOnInTheNextPeriod) {
    SearchBox& box = openWithSearch();
    store.storedEvents.push_back({utc(2024, 4, 2, 9), utc(2024, 4, 2, 10), Instant(),
                                  event("w", "Workshop II", 2, 9, 10).details});
    store.storedEvents.push_back({utc(2024, 4, 3, 9), utc(2024, 4, 3, 10), Instant(),
                                  event("w", "Review", 3, 9, 10).details});
    QTest::keyClicks(&box, "work");
    fetch();
    window->findChild<QAction*>("setQuickDatesNext")->trigger();
    fetch();
    EXPECT_EQ(shown(), QStringList{"Workshop II"});
}

TEST_F(SearchBoxTest, ASelectedEventStaysSelectedWhileItIsFound) {
    SearchBox& box = openWithSearch();
    table->selectRow(2);
    QTest::keyClicks(&box, "work");
    fetch();
    EXPECT_EQ(events.selectedRows(), std::vector<std::size_t>{0});
    EXPECT_TRUE(table->selectionModel()->isRowSelected(0));
    box.clear();
    fetch();
    EXPECT_EQ(events.selectedRows(), std::vector<std::size_t>{2});
}

} // namespace quillet
