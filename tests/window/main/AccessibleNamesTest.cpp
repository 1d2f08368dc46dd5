#include "window/WindowFixture.h"

#include "window/main/NameListEditor.h"
#include "window/widgets/Popover.h"

#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>

namespace quillet {

namespace {

class AccessibleNamesTest : public test::WindowFixture {
protected:
    AccessibleNamesTest() {
        open();
        window->activateWindow();
        QApplication::processEvents();
    }

    void trigger(const char* action) const {
        window->findChild<QAction*>(action)->trigger();
        QApplication::processEvents();
    }
    /// Opens the first name of each list for editing.
    static void editNames(const QWidget& place) {
        for (auto* list : place.findChildren<NameListEditor*>()) {
            list->editName(0);
            EXPECT_NE(list->findChild<QLineEdit*>(), nullptr) << "the editor is open";
        }
    }
    /// How many widgets the focus can reach, each of which must have a name.
    static int reached(const QWidget& place) {
        int count = 0;
        for (QWidget* each : place.findChildren<QWidget*>()) {
            // Fields inside of spin boxes and the like speak through those.
            const bool isPart = each->objectName().startsWith(u"qt_");
            if (each->focusPolicy() == Qt::NoFocus || !each->isVisible() || isPart) {
                continue;
            }
            EXPECT_FALSE(
                QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name).isEmpty())
                << each->metaObject()->className() << ' ' << each->objectName().toStdString();
            ++count;
        }
        return count;
    }
};

} // namespace

TEST_F(AccessibleNamesTest, OfTheMainWindow) {
    for (const char* view : {"isExportTXTViewOn", "isNotesViewOn"}) {
        settings.setObject("isExportTXTViewOn", false);
        settings.setObject("isNotesViewOn", false);
        settings.setObject(view, true);
        QApplication::processEvents();
        EXPECT_GE(reached(*window), 20) << view;
    }
}

TEST_F(AccessibleNamesTest, OfTheLayoutsPopoverAndTheNameBeingTyped) {
    trigger("showColumnLayoutsPopover");
    const auto& popover = *window->findChild<Popover*>();
    EXPECT_EQ(reached(popover), 5) << "the list, three buttons and the switch";
    editNames(popover);
    EXPECT_EQ(reached(popover), 6);
}

TEST_F(AccessibleNamesTest, OfTheSheetsAndTheNamesBeingTyped) {
    trigger("openTXTSettingsSheet");
    const auto& presets = *window->findChild<QDialog*>("txtSettingsSheet");
    EXPECT_EQ(reached(presets), 5) << "the list, its three buttons and Close";
    editNames(presets);
    EXPECT_EQ(reached(presets), 6);
    trigger("openCalendarGroupsSheet");
    bool isFound = false;
    for (const QDialog* sheet : window->findChildren<QDialog*>()) {
        if (sheet != &presets) {
            editNames(*sheet);
            EXPECT_GE(reached(*sheet), 5);
            isFound = true;
        }
    }
    EXPECT_TRUE(isFound);
}

TEST_F(AccessibleNamesTest, OfEachPaneOfThePreferences) {
    trigger("showPreferences");
    auto& panes = *window->findChild<QTabWidget*>("preferencesPanes");
    int count = 0;
    for (int pane = 0; pane < panes.count(); ++pane) {
        panes.setCurrentIndex(pane);
        QApplication::processEvents();
        const int inPane = reached(*panes.currentWidget());
        EXPECT_GE(inPane, 5) << panes.tabText(pane).toStdString();
        count += inPane;
    }
    EXPECT_GE(count, 70);
    EXPECT_GE(reached(*panes.window()), 2) << "with the tabs and Close";
}

} // namespace quillet
