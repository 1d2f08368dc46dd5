#include "window/calendars/GroupsSheet.h"

#include "window/WindowFixture.h"

#include "backends/settingsfile/SettingsFile.h"
#include "window/calendars/GroupChooser.h"
#include "window/main/NameListModel.h"
#include "window/widgets/EmptyState.h"
#include "window/widgets/NameListView.h"
#include "window/widgets/NamedComboBox.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <QTemporaryDir>
#include <QTest>

namespace quillet {

namespace {

QStringList texts(const QAbstractItemModel& model) {
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row) {
        result << model.index(row, 0).data().toString();
    }
    return result;
}

} // namespace

class GroupsSheetTest : public test::WindowFixture {
protected:
    void openSheet() {
        open();
        named<QAbstractButton>("openCalendarGroupsSheet")->click();
        sheet = window->findChild<GroupsSheet*>();
        list = named<NameListView>("Calendar Groups");
        checks = named<NameListView>("Calendars in Group");
        chooser = named<QComboBox>("Calendar Group");
    }
    void press(const char* button) {
        named<QAbstractButton>(button)->click();
        QApplication::processEvents();
    }
    /// Types into the name that is being edited.
    void typeName(const QString& name) {
        auto* editor = list->findChild<QLineEdit*>();
        ASSERT_NE(editor, nullptr);
        editor->selectAll();
        QTest::keyClicks(editor, name);
    }
    void addGroup(const QString& name) {
        press("addCalendarGroup");
        typeName(name);
        list->commitEditing();
        // The editor goes at the next turn of the loop.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void tick(int row, Qt::CheckState state = Qt::Checked) {
        checks->model()->setData(checks->model()->index(row, 0), state, Qt::CheckStateRole);
    }
    void select(int row) { list->setCurrentIndex(list->model()->index(row, 0)); }
    void closeSheet() {
        press("closeCalendarGroupsSheet");
        fetch();
    }
    QStringList shownCalendars() const { return texts(*named<QTableView>("Calendars")->model()); }
    QStringList chooserTexts() const {
        QStringList names;
        for (int position = 0; position < chooser->count(); ++position) {
            names << chooser->itemText(position);
        }
        return names;
    }

    GroupsSheet* sheet = nullptr;
    NameListView* list = nullptr;
    NameListView* checks = nullptr;
    QComboBox* chooser = nullptr;
};

TEST_F(GroupsSheetTest, AGroupMadeInTheSheetNarrowsCalendarsAndEvents) {
    openSheet();
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    EXPECT_TRUE(boolForKey(settings, "isCalendarGroupsSheetActive"));
    EXPECT_EQ(texts(*list->model()), QStringList{"All Calendars"});
    EXPECT_FALSE(checks->isVisible()) << "the first group has no checklist";
    addGroup("Billable");
    EXPECT_EQ(texts(*list->model()), (QStringList{"All Calendars", "Billable"}));
    EXPECT_TRUE(checks->isVisible());
    EXPECT_EQ(texts(*checks->model()), (QStringList{"Home", "Work"}));
    tick(1);
    EXPECT_EQ(checks->model()->index(1, 0).data(Qt::CheckStateRole), QVariant(Qt::Checked));
    closeSheet();
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_FALSE(boolForKey(settings, "isCalendarGroupsSheetActive"));
    EXPECT_EQ(shownCalendars().size(), 2);
    chooser->setCurrentIndex(1);
    Q_EMIT chooser->activated(1);
    fetch();
    ASSERT_EQ(shownCalendars().size(), 1);
    EXPECT_TRUE(shownCalendars().first().startsWith("Work"));
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(integerForKey(settings, "calendarGroupsSelectedIndex"), 1);
}

TEST_F(GroupsSheetTest, UntickingCountsOnlyOnceTheSheetCloses) {
    openSheet();
    addGroup("Billable");
    tick(1);
    groupsFilter.setCalendarGroupsSelectedIndex(1);
    fetch();
    ASSERT_EQ(shownCalendars().size(), 1);
    tick(0);
    tick(1, Qt::Unchecked);
    fetch();
    EXPECT_TRUE(shownCalendars().first().startsWith("Work"));
    closeSheet();
    ASSERT_EQ(shownCalendars().size(), 1);
    EXPECT_TRUE(shownCalendars().first().startsWith("Home"));
}

TEST_F(GroupsSheetTest, AGroupWithoutCalendarsSaysSoAndOffersTheSheet) {
    openSheet();
    addGroup("Nothing");
    closeSheet();
    ASSERT_EQ(model.rowCount(), 3);
    const int queries = store.queries;
    groupsFilter.setCalendarGroupsSelectedIndex(1);
    fetch();
    EXPECT_EQ(store.queries, queries) << "without a calendar the store is not asked";
    auto* empty = window->findChild<EmptyState*>();
    ASSERT_TRUE(empty->isVisible());
    EXPECT_EQ(model.rowCount(), 0);
    empty->findChild<QAbstractButton*>()->click();
    EXPECT_TRUE(sheet->isVisible());
}

TEST_F(GroupsSheetTest, ClosingKeepsTheNameThatIsBeingTyped) {
    openSheet();
    press("addCalendarGroup");
    typeName("Half typed");
    closeSheet();
    EXPECT_EQ(groups.arranged(1).calendarGroupName, QStringLiteral("Half typed"));
    EXPECT_EQ(chooserTexts(), (QStringList{"All Calendars", "Half typed"}));
}

TEST_F(GroupsSheetTest, TheFieldOfANameSaysWhatIsNamed) {
    openSheet();
    press("addCalendarGroup");
    auto* editor = list->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->accessibleName(), QStringLiteral("Calendar Groups"));
}

TEST_F(GroupsSheetTest, WhereTextRunsFromTheRightTheGroupsStandRightOfTheirCalendars) {
    openSheet();
    addGroup("Billable");
    for (QWidget* top : {static_cast<QWidget*>(window.get()), static_cast<QWidget*>(sheet)}) {
        top->setLayoutDirection(Qt::RightToLeft);
        QApplication::processEvents();
    }
    const auto left = [](const QWidget& widget) { return widget.mapToGlobal(QPoint()).x(); };
    EXPECT_GT(left(*list), left(*checks));
    EXPECT_GT(left(*list), left(*named<QAbstractButton>("closeCalendarGroupsSheet")));
    EXPECT_GT(left(*chooser), left(*named<QAbstractButton>("openCalendarGroupsSheet")));
}

TEST_F(GroupsSheetTest, EscapeClosesTheSheet) {
    openSheet();
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_FALSE(boolForKey(settings, "isCalendarGroupsSheetActive"));
}

TEST_F(GroupsSheetTest, GroupsAreRemovedAfterAskingButNeverTheFirst) {
    openSheet();
    addGroup("A");
    addGroup("B");
    select(0);
    press("removeCalendarGroup");
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown.back().messageText, QStringLiteral("Cannot delete All Calendars"));
    EXPECT_EQ(alerts.shown.back().buttonTitles, QStringList{"OK"});
    select(1);
    alerts.answer = 1;
    press("removeCalendarGroup");
    EXPECT_EQ(alerts.shown.back().messageText, QStringLiteral("Delete the group?"));
    EXPECT_EQ(alerts.shown.back().buttonTitles, (QStringList{"OK", "Cancel"}));
    EXPECT_EQ(list->model()->rowCount(), 3);
    alerts.answer = 0;
    press("removeCalendarGroup");
    EXPECT_EQ(texts(*list->model()), (QStringList{"All Calendars", "B"}));
    EXPECT_EQ(list->selectionModel()->selectedRows().first().row(), 1);
    EXPECT_EQ(chooserTexts(), (QStringList{"All Calendars", "B"}));
}

TEST_F(GroupsSheetTest, TheChecklistIsThatOfTheSelectedGroup) {
    openSheet();
    addGroup("A");
    tick(0);
    addGroup("B");
    EXPECT_EQ(checks->model()->index(0, 0).data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
    select(1);
    EXPECT_EQ(groups.selectionIndex(), 1U);
    EXPECT_EQ(checks->model()->index(0, 0).data(Qt::CheckStateRole), QVariant(Qt::Checked));
    select(0);
    EXPECT_FALSE(checks->isVisible());
}

TEST_F(GroupsSheetTest, WithNoGroupSelectedThereIsNothingToTickOrToDelete) {
    openSheet();
    addGroup("A");
    EXPECT_TRUE(named<QAbstractButton>("removeCalendarGroup")->isEnabled());
    list->clearSelection();
    QApplication::processEvents();
    EXPECT_FALSE(checks->isVisible());
    EXPECT_FALSE(named<QAbstractButton>("removeCalendarGroup")->isEnabled());
}

TEST_F(GroupsSheetTest, CalendarsThatComeAndGoShowInTheOpenSheetWithoutEndingAnEdit) {
    openSheet();
    addGroup("A");
    tick(1);
    list->edit(list->model()->index(1, 0));
    typeName("Renamed");
    store.storedCalendars = {calendar("w", "Werk", "red"), calendar("n", "New", "blue")};
    calendars.storeChanged();
    EXPECT_EQ(texts(*checks->model()), (QStringList{"New", "Werk"}));
    EXPECT_EQ(checks->model()->index(1, 0).data(Qt::CheckStateRole), QVariant(Qt::Checked));
    ASSERT_NE(list->findChild<QLineEdit*>(), nullptr) << "the name is still being typed";
    closeSheet();
    EXPECT_EQ(groups.arranged(1).calendarGroupName, QStringLiteral("Renamed"));
}

TEST_F(GroupsSheetTest, WhereEveryCalendarVanishesTheOpenSheetStaysAndTheListIsEmpty) {
    openSheet();
    addGroup("A");
    tick(0);
    tick(1);
    store.storedCalendars = {};
    store.storedEvents = {};
    calendars.storeChanged();
    fetch();
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_TRUE(checks->isVisible());
    EXPECT_EQ(checks->model()->rowCount(), 0);
    EXPECT_EQ(shownCalendars(), QStringList());
    addGroup("B");
    EXPECT_EQ(checks->model()->rowCount(), 0);
    store.storedCalendars = {calendar("w", "Work", "red")};
    calendars.storeChanged();
    EXPECT_EQ(texts(*checks->model()), QStringList{"Work"});
    select(1);
    EXPECT_EQ(texts(*checks->model()), QStringList{"Work"});
    EXPECT_EQ(checks->model()->index(0, 0).data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
    closeSheet();
    EXPECT_EQ(chooserTexts(), (QStringList{"All Calendars", "A", "B"}));
}

TEST_F(GroupsSheetTest, TypedNamesOfEveryKindAreThereAtTheNextStart) {
    const QString quoted = QStringLiteral(R"(Q "1" 'n' \ 100% %1 %@ &quot; {"x": 1})");
    const QString longName = QString(5000, u'x') + QString(5000, u'y');
    openSheet();
    addGroup(quoted);
    press("addCalendarGroup");
    // Keys cannot type these quickly, or at all: they are pasted.
    list->findChild<QLineEdit*>()->setText(longName);
    list->commitEditing();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    press("addCalendarGroup");
    list->findChild<QLineEdit*>()->setText("two\nlines\r\nand\u2028three");
    list->commitEditing();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    addGroup(" ");
    closeSheet();

    const QTemporaryDir folder;
    const QString path = folder.filePath("settings.json");
    {
        SettingsFile file(path);
        for (const QString& key : settings.keys()) {
            file.setObject(key, settings.object(key));
        }
    }
    SettingsFile file(path);
    CalendarGroupsArrayController next(file, alerts);
    next.awakeFromNib();
    QStringList names;
    for (const CalendarGroup& group : *next.content()) {
        names << group.calendarGroupName;
    }
    EXPECT_EQ(names, (QStringList{"All Calendars", quoted, longName, "two lines and three",
                                  "New Group 4"}))
        << "a name that nobody could see is refused";
    EXPECT_FALSE(file.startMessage().has_value());
}

TEST_F(GroupsSheetTest, NamesOfEveryKindAreShownOnOneLine) {
    const QString longName(5000, u'x');
    openSheet();
    for (const char* name : {"Q \"1\" & <b>2</b>", "two"}) {
        addGroup(QString::fromUtf8(name));
    }
    groups.setCalendarGroupName(2, "two\nlines");
    EXPECT_EQ(texts(*list->model()),
              (QStringList{"All Calendars", "Q \"1\" & <b>2</b>", "two lines"}));
    EXPECT_EQ(list->model()->index(1, 0).data(Qt::ToolTipRole),
              QVariant("Q &quot;1&quot; &amp; &lt;b&gt;2&lt;/b&gt;"));
    groups.setCalendarGroupName(2, longName);
    groups.setCalendarGroupName(1, "  ");
    EXPECT_EQ(chooserTexts(), (QStringList{"All Calendars", "(no name)", longName}));
    EXPECT_LT(chooser->sizeHint().width(), window->width() / 2);
    EXPECT_LT(chooser->view()->window()->maximumWidth(), window->width() / 2);
}

TEST_F(GroupsSheetTest, AChosenNameWithoutRoomEndsInAnEllipsisForTheEyeAlone) {
    struct Box final : NamedComboBox {
        [[nodiscard]] QString drawnText() const {
            QStyleOptionComboBox option;
            initStyleOption(&option);
            return option.currentText;
        }
    };
    Box box;
    box.resize(box.fontMetrics().averageCharWidth() * 20, box.sizeHint().height());
    box.addItems({"Short", QStringLiteral("Long ").repeated(20)});
    EXPECT_EQ(box.drawnText(), QStringLiteral("Short"));
    box.setCurrentIndex(1);
    EXPECT_TRUE(box.drawnText().startsWith("Long L")) << box.drawnText().toStdString();
    EXPECT_TRUE(box.drawnText().endsWith(u'…')) << box.drawnText().toStdString();
    EXPECT_EQ(box.currentText(), QStringLiteral("Long ").repeated(20));
}

TEST_F(GroupsSheetTest, AListChangedFromElsewhereIsShownAndEditsOfVanishedGroupsAreDropped) {
    openSheet();
    addGroup("A");
    addGroup("B");
    list->edit(list->model()->index(2, 0));
    typeName("C");
    settings.setObject("calendarGroups",
                       QVariantList{QVariantMap{{"calendarGroupName", "All Calendars"}},
                                    QVariantMap{{"calendarGroupName", "A"}, {"later", 1}}});
    EXPECT_EQ(texts(*list->model()), (QStringList{"All Calendars", "A"}));
    groups.setCalendarGroupName(2, "C");
    groups.setCalendarGroupArray(2, {});
    closeSheet();
    EXPECT_EQ(chooserTexts(), (QStringList{"All Calendars", "A"}));
    EXPECT_EQ(arrayForKey(settings, "calendarGroups").at(1).toMap().value("later"), QVariant(1));
}

TEST_F(GroupsSheetTest, AssistiveProgramsKnowTheChooserByItsNameAndTheGroupAsItsValue) {
    openSheet();
    addGroup("Billable");
    closeSheet();
    groupsFilter.setCalendarGroupsSelectedIndex(1);
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(chooser);
    EXPECT_EQ(accessible->role(), QAccessible::ComboBox);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Calendar Group"));
    EXPECT_EQ(accessible->text(QAccessible::Value), QStringLiteral("Billable"));
    ASSERT_EQ(accessible->childCount(), 1);
    EXPECT_EQ(accessible->child(0)->childCount(), 2);
    EXPECT_EQ(accessible->indexOfChild(accessible->child(0)), 0);
}

TEST_F(GroupsSheetTest, AnIndexBeyondTheListAndAnEmptyListCountAsAllCalendars) {
    settings.setObject("calendarGroupsSelectedIndex", 7);
    settings.setObject("calendarGroups", QVariantList());
    settings.setObject("isDefaultAllCalendarsGroupCreated", true);
    openSheet();
    EXPECT_EQ(chooserTexts(), QStringList{"All Calendars"});
    EXPECT_EQ(chooser->currentIndex(), 0);
    EXPECT_EQ(shownCalendars().size(), 2);
    addGroup("A");
    EXPECT_EQ(chooserTexts(), (QStringList{"All Calendars", "A"}));
}

} // namespace quillet
