#include "window/WindowFixture.h"

#include "window/exports/ReportView.h"

#include <QAction>
#include <QSettings>
#include <QSplitter>
#include <QTemporaryDir>

namespace quillet {

namespace {

class WindowPanesTest : public test::WindowFixture {
protected:
    void openReport() {
        window->exportActions().text.trigger();
        fetch();
    }
    void openNotes() {
        window->exportActions().notes.trigger();
        fetch();
    }
    void close() {
        for (const char* name : {"displayTxtExportView", "displayNotesExportView"}) {
            auto* action = window->findChild<QAction*>(QString::fromLatin1(name));
            if (action->isChecked()) {
                action->trigger();
            }
        }
        fetch();
    }
    [[nodiscard]] QSplitter& centre() const { return *named<QSplitter>("centre"); }
    [[nodiscard]] int tableRoom() const { return centre().sizes().at(0); }
    [[nodiscard]] int exportRoom() const { return centre().sizes().at(1); }
    /// As a user drags the divider.
    void giveExportPane(int height) const {
        const QList<int> sizes = centre().sizes();
        centre().setSizes({sizes.at(0) + sizes.at(1) - height, height, sizes.at(2)});
    }
    [[nodiscard]] int tolerance() const { return centre().handleWidth(); }
};

} // namespace

TEST_F(WindowPanesTest, TheExportPaneTakesHalfOfTheTablesRoom) {
    open();
    const int room = tableRoom();
    openReport();
    EXPECT_NEAR(exportRoom(), room / 2, tolerance());
    EXPECT_NEAR(tableRoom(), room / 2, tolerance());
    close();
    EXPECT_EQ(tableRoom(), room);
}

TEST_F(WindowPanesTest, TheExportPaneKeepsTheRoomThatTheUserGaveIt) {
    open();
    openReport();
    giveExportPane(exportRoom() * 5 / 4);
    const int given = exportRoom();
    ASSERT_GT(given, tableRoom() + tolerance());
    close();
    openReport();
    EXPECT_EQ(exportRoom(), given);
    close();
    openNotes();
    EXPECT_NEAR(exportRoom(), given, tolerance()) << "the notes stand in the same place";
}

TEST_F(WindowPanesTest, TheExportPaneKeepsItsRoomOverAStart) {
    const QTemporaryDir folder;
    const QString state = folder.filePath("window.ini");
    open();
    openReport();
    giveExportPane(exportRoom() * 5 / 4);
    const int given = exportRoom();
    window->saveState(state);
    giveExportPane(given * 3 / 5);
    close();
    window->restoreState(state);
    fetch();
    openReport();
    EXPECT_NEAR(exportRoom(), given, tolerance()) << "saved while it was open";
    close();
    window->saveState(state);
    openReport();
    giveExportPane(given * 3 / 5);
    close();
    window->restoreState(state);
    openReport();
    EXPECT_NEAR(exportRoom(), given, tolerance()) << "saved while it was closed";
}

TEST_F(WindowPanesTest, ARoomThatNoWindowHasLeavesTheTableItsOwn) {
    const QTemporaryDir folder;
    open();
    for (const char* room : {"1000000", "-5", "much", ""}) {
        const QString state = folder.filePath(QString::fromLatin1(room) + "window.ini");
        QSettings(state, QSettings::IniFormat).setValue("exportPane", QString::fromLatin1(room));
        window->restoreState(state);
        openReport();
        EXPECT_GT(tableRoom(), 0) << room;
        EXPECT_GT(exportRoom(), 0) << room;
        EXPECT_TRUE(window->findChild<ReportView*>()->isVisible()) << room;
        close();
    }
}

} // namespace quillet
