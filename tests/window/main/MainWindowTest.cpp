#include "window/WindowFixture.h"

#include "window/calendars/CalendarListModel.h"
#include "window/calendars/CalendarPane.h"
#include "window/widgets/EmptyState.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QCalendarWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace quillet {

using test::utc;
using MainWindowTest = test::WindowFixture;

TEST_F(MainWindowTest, ShowsTheEventsOfThePeriodWithTheirFigures) {
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    open();
    ASSERT_EQ(model.rowCount(), 3);
    const auto cell = [&](int row, const char* column) {
        const int position = columns.positionOf(column);
        return model.index(row, table->horizontalHeader()->logicalIndex(position))
            .data()
            .toString();
    };
    EXPECT_EQ(cell(0, "title"), QStringLiteral("Planning"));
    EXPECT_EQ(cell(0, "hours"), QStringLiteral("2"));
    EXPECT_EQ(cell(0, "cost"), QStringLiteral("$180.00"));
    EXPECT_EQ(cell(0, "date"), QStringLiteral("3/4/24"));
    EXPECT_EQ(cell(1, "calendar"), QStringLiteral("Home"));
    EXPECT_TRUE(table->isVisible());
    settings.setObject("isDollarsOn", false);
    EXPECT_TRUE(columns.column("cost").isHidden());
}

TEST_F(MainWindowTest, TheColumnsStandInTheirFirstOrderAndCanBeMoved) {
    open();
    EXPECT_EQ(columns.positionOf("date"), 0);
    EXPECT_EQ(columns.positionOf("calendar"), 1);
    columns.moveColumn(columns.positionOf("title"), 0);
    EXPECT_EQ(columns.columnAt(0).identifier(), QStringLiteral("title"));
    const QByteArray state = table->columnState();
    columns.moveColumn(0, 5);
    EXPECT_TRUE(table->restoreColumnState(state));
    EXPECT_EQ(columns.positionOf("title"), 0);
}

TEST_F(MainWindowTest, AHiddenColumnKeepsItsWidth) {
    open();
    TableColumn& title = columns.column("title");
    title.setWidthPoints(333);
    const int pixels = table->horizontalHeader()->sectionSize(2);
    settings.setObject("isTitleColumn", false);
    EXPECT_TRUE(title.isHidden());
    EXPECT_EQ(title.widthPoints(), 333);
    settings.setObject("isTitleColumn", true);
    EXPECT_EQ(title.widthPoints(), 333);
    EXPECT_EQ(table->horizontalHeader()->sectionSize(2), pixels);
}

TEST_F(MainWindowTest, AWidthGivenToAHiddenColumnIsItsWhenItShows) {
    open();
    TableColumn& title = columns.column("title");
    title.setWidthPoints(222);
    const int pixels = table->horizontalHeader()->sectionSize(2);
    title.setWidthPoints(333);
    settings.setObject("isTitleColumn", false);
    title.setWidthPoints(222);
    settings.setObject("isTitleColumn", true);
    EXPECT_EQ(title.widthPoints(), 222);
    EXPECT_EQ(table->horizontalHeader()->sectionSize(2), pixels);
}

TEST_F(MainWindowTest, HiddenColumnsKeepTheirWidthsOverAStart) {
    open();
    TableColumn& title = columns.column("title");
    title.setWidthPoints(222);
    settings.setObject("isTitleColumn", false);
    const QByteArray state = table->columnState();
    title.setWidthPoints(333);
    ASSERT_TRUE(table->restoreColumnState(state));
    EXPECT_TRUE(title.isHidden());
    EXPECT_EQ(title.widthPoints(), 222);
}

TEST_F(MainWindowTest, AColumnShowsAsManyCharactersAsTheReportHas) {
    open();
    TableColumn& date = columns.column("date");
    date.setWidthPoints(80);
    for (const int pointSize : {7, 10, 20}) {
        QFont font = table->font();
        font.setPointSize(pointSize);
        table->horizontalHeader()->setFont(font);
        date.setWidthPoints(80);
        const QFontMetrics metrics = table->horizontalHeader()->fontMetrics();
        EXPECT_GT(table->horizontalHeader()->sectionSize(0),
                  metrics.horizontalAdvance("12/31/2026"));
        EXPECT_LT(table->horizontalHeader()->sectionSize(0), metrics.horizontalAdvance("0") * 13);
    }
}

TEST_F(MainWindowTest, WidthsSurviveTheNextStart) {
    open();
    TableColumn& title = columns.column("title");
    for (const double points : {72.0, 115.0, 240.0, 333.0}) {
        title.setWidthPoints(points);
        const QByteArray state = table->columnState();
        title.setWidthPoints(50);
        ASSERT_TRUE(table->restoreColumnState(state));
        EXPECT_EQ(title.widthPoints(), points);
    }
}

TEST_F(MainWindowTest, HeadersFollowTheirTitles) {
    open();
    settings.setObject("titleColumnTitle", "What");
    EXPECT_EQ(columns.column("title").headerTitle(), QStringLiteral("What"));
}

TEST_F(MainWindowTest, ClicksOnAHeaderSortAndTheThirdRestoresTheOrderOfTime) {
    open();
    const auto first = [&] { return model.index(0, 2).data().toString().toStdString(); };
    table->horizontalHeader()->setSortIndicator(2, Qt::AscendingOrder);
    fetch();
    EXPECT_EQ(first(), "Dentist");
    table->horizontalHeader()->setSortIndicator(2, Qt::DescendingOrder);
    fetch();
    EXPECT_EQ(first(), "Workshop");
    table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    fetch();
    EXPECT_EQ(first(), "Planning");
}

TEST_F(MainWindowTest, TheSelectionOfTheTableAndOfTheListAreOneAndSurviveAFetch) {
    open();
    table->selectRow(2);
    ASSERT_EQ(events.selectedRows(), std::vector<std::size_t>{2});
    flipBool(settings, "datesChangedTrigger");
    fetch();
    ASSERT_EQ(events.selectedRows(), std::vector<std::size_t>{2});
    ASSERT_EQ(table->selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(table->selectionModel()->selectedRows().first().row(), 2);
}

TEST_F(MainWindowTest, UntickingACalendarTakesItsEventsAway) {
    CalendarListModel listModel(calendars, [](const QString&) { return QColor(); });
    const QAbstractItemModelTester tester(&listModel,
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    open();
    auto* list = named<QTableView>("Calendars");
    ASSERT_EQ(list->model()->rowCount(), 2);
    EXPECT_EQ(list->model()->index(0, 0).data(Qt::AccessibleTextRole), QVariant("Home"));
    list->model()->setData(list->model()->index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
    fetch();
    EXPECT_EQ(model.rowCount(), 2);
}

TEST_F(MainWindowTest, AControlClickOnACalendarClearsAllTicks) {
    open();
    auto* list = named<QTableView>("Calendars");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      list->visualRect(list->model()->index(1, 0)).center());
    EXPECT_FALSE(calendars.arranged(0).isSelected);
    EXPECT_FALSE(calendars.arranged(1).isSelected);
    fetch();
    auto* empty = window->findChild<EmptyState*>();
    ASSERT_TRUE(empty->isVisible());
    empty->findChild<QAbstractButton*>()->click();
    fetch();
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_FALSE(empty->isVisible());
}

TEST_F(MainWindowTest, ThePeriodIsChosenAndStepped) {
    open();
    auto* title = named<QToolButton>("reportingPeriod");
    EXPECT_EQ(title->text(), "March 2024");
    EXPECT_EQ(title->toolTip(), QString::fromUtf8("Month · March 1, 2024 - March 31, 2024"));
    named<QAbstractButton>("Day")->click();
    fetch();
    EXPECT_EQ(title->text(), "Sunday, March 3, 2024");
    EXPECT_EQ(title->toolTip(), QString::fromUtf8("Day · March 3, 2024"));
    EXPECT_TRUE(window->findChild<EmptyState*>()->isVisible());
    window->findChild<QAction*>("setQuickDatesNext")->trigger();
    fetch();
    EXPECT_EQ(title->toolTip(), QString::fromUtf8("Day · March 4, 2024"));
    EXPECT_EQ(model.rowCount(), 1);
    settings.setObject("quickDatePeriod", 99);
    EXPECT_EQ(title->text(), "Monday, March 4, 2024");
    EXPECT_EQ(title->toolTip(), "March 4, 2024 - March 4, 2024");
}

TEST_F(MainWindowTest, PickingAnEndMakesThePeriodCustom) {
    open();
    auto* picker = named<QCalendarWidget>("End Date");
    EXPECT_EQ(picker->selectedDate(), QDate(2024, 3, 31));
    Q_EMIT picker->clicked(QDate(2024, 3, 5));
    fetch();
    EXPECT_TRUE(named<QAbstractButton>("Custom")->isChecked());
    EXPECT_FALSE(named<QAbstractButton>("Lock End Date")->isChecked());
    EXPECT_EQ(model.rowCount(), 2);
    named<QAbstractButton>("Lock End Date")->click();
    Q_EMIT named<QCalendarWidget>("Start Date")->clicked(QDate(2024, 3, 11));
    EXPECT_EQ(picker->selectedDate(), QDate(2024, 3, 15));
}

TEST_F(MainWindowTest, ANewSharedRateChangesTheCosts) {
    open();
    auto* field = named<QLineEdit>("Hourly Rate");
    EXPECT_EQ(field->text(), QStringLiteral("90"));
    field->selectAll();
    QTest::keyClicks(field, "12.5");
    QTest::keyClick(field, Qt::Key_Return);
    fetch();
    EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")), Decimal::fromDouble(12.5));
    field->selectAll();
    QTest::keyClicks(field, "ten");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(field->text(), QStringLiteral("12.5"));
    EXPECT_TRUE(named<QLabel>("hourlyRateProblem")->text().contains("ten"));
    EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")), Decimal::fromDouble(12.5));
}

TEST_F(MainWindowTest, TheResultsFollowTheChosenTab) {
    open();
    table->selectRow(0);
    fetch();
    EXPECT_EQ(named<QLabel>("total")->text(), QStringLiteral("11"));
    settings.setObject("timeTypeSelection", 3);
    fetch();
    EXPECT_EQ(named<QLabel>("total")->text(), QStringLiteral("11h"));
    EXPECT_EQ(named<QLabel>("cost")->text(), QStringLiteral("$990.00"));
    named<QRadioButton>("Selected Events")->click();
    QApplication::processEvents();
    EXPECT_EQ(integerForKey(settings, "totalsTabViewSelection"), 1);
    EXPECT_EQ(named<QLabel>("total")->text(), QStringLiteral("2h"));
    EXPECT_EQ(named<QLabel>("cost")->text(), QStringLiteral("$180.00"));
}

TEST_F(MainWindowTest, TheRatePaneIsThereWhileMoneyIsOn) {
    open();
    auto* field = named<QLineEdit>("Hourly Rate");
    EXPECT_TRUE(field->isVisible());
    settings.setObject("isDollarsOn", false);
    EXPECT_FALSE(field->isVisible());
    settings.setObject("isDollarsOn", true);
    EXPECT_TRUE(field->isVisible());
}

TEST_F(MainWindowTest, ExportPanesStartClosedWhateverTheLastRunStored) {
    settings.setObject("isExportTXTViewOn", true);
    settings.setObject("isNotesViewOn", true);
    open();
    EXPECT_EQ(settings.object("isExportTXTViewOn"), QVariant(false));
    EXPECT_EQ(settings.object("isNotesViewOn"), QVariant(false));
    auto* splitter = named<QSplitter>("centre");
    EXPECT_FALSE(splitter->widget(1)->isVisible());
    EXPECT_FALSE(splitter->handle(1)->isEnabled());
}

TEST_F(MainWindowTest, ALongFetchShowsOneIndicatorInTheMiddle) {
    open();
    settings.setObject("isProgressIndicatorOn", true);
    settings.setObject("isProgressIndicatorOn", true);
    auto* indicator = window->findChild<QProgressBar*>();
    ASSERT_NE(indicator, nullptr);
    EXPECT_EQ(window->findChildren<QProgressBar*>().size(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return indicator->isVisible(); }));
    const auto distance = [&] {
        return (indicator->geometry().center() - window->centralWidget()->geometry().center())
            .manhattanLength();
    };
    EXPECT_LE(distance(), 2);
    window->resize(900, 600);
    EXPECT_TRUE(QTest::qWaitFor([&] { return distance() <= 2; }));
    settings.setObject("isProgressIndicatorOn", false);
    EXPECT_FALSE(indicator->isVisible());
}

TEST_F(MainWindowTest, TheExportActionAsksForAPlace) {
    open();
    window->exportActions().csv.trigger();
    ASSERT_EQ(panel.requests.size(), 1U);
    EXPECT_EQ(exportCSV.text().section(u'\n', 0, 0),
              QString("\"Start Date\",\"Calendar\",\"Title\",\"Hours\",\"Cost\""));
}

TEST_F(MainWindowTest, ProblemsStandAtTheFootOfTheList) {
    open();
    auto* foot = named<QLabel>("calendarProblems");
    EXPECT_FALSE(foot->isVisible());
    problems = {"work.ics: not a calendar file"};
    window->refreshProblems();
    EXPECT_TRUE(foot->isVisible());
    EXPECT_EQ(foot->text(), problems.first());
}

TEST_F(MainWindowTest, ProblemsOfAQueryShowWhenItEnds) {
    open();
    settings.setObject("isProgressIndicatorOn", true);
    problems = {"Calendars: repetitions too many to show them all"};
    settings.setObject("isProgressIndicatorOn", false);
    EXPECT_EQ(named<QLabel>("calendarProblems")->text(), problems.first());
}

TEST_F(MainWindowTest, WithoutAccessTheWindowSaysSo) {
    settings.setObject("isCalendarAccessGranted", false);
    open();
    EXPECT_TRUE(window->findChild<EmptyState*>()->isVisible());
    EXPECT_FALSE(named<QAbstractButton>("Month")->isEnabled());
}

TEST_F(MainWindowTest, TheTwoKindsOfCalendarsToAddStandSideBySideOnEveryDesktop) {
    open();
    QStringList texts;
    QString defaultText;
    QTimer::singleShot(0, window.get(), [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        // As GNOME has it.
        box->setStyleSheet(QStringLiteral("* { button-layout: 3 }"));
        QApplication::processEvents();
        auto buttons = box->findChildren<QPushButton*>();
        std::ranges::sort(buttons, {}, &QWidget::x);
        for (const QPushButton* button : buttons) {
            texts << button->text();
            defaultText = button->isDefault() ? button->text() : defaultText;
        }
        box->reject();
    });
    window->findChild<QAction*>("addCalendar")->trigger();
    ASSERT_EQ(texts.size(), 3);
    EXPECT_EQ(texts.at(0), QStringLiteral("&Folder…"));
    EXPECT_EQ(texts.at(1), QStringLiteral("F&ile…"));
    EXPECT_EQ(defaultText, QStringLiteral("&Folder…"));
}

TEST_F(MainWindowTest, TheStandardKeyForClosingClosesTheWindow) {
    open();
    window->activateWindow();
    QApplication::processEvents();
    QTest::keySequence(window.get(), QKeySequence(QKeySequence::Close));
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindowTest, EveryMenuActionHasANameAndNoShortcutIsTakenTwice) {
    open();
    QStringList shortcuts;
    QList<QMenu*> menus;
    for (const QAction* menu : window->menuBar()->actions()) {
        menus << menu->menu();
    }
    while (!menus.isEmpty()) {
        for (const QAction* action : menus.takeFirst()->actions()) {
            if (action->menu() != nullptr) {
                menus << action->menu();
            }
            EXPECT_TRUE(action->isSeparator() || !action->text().isEmpty());
            if (const QString shortcut = action->shortcut().toString(); !shortcut.isEmpty()) {
                EXPECT_FALSE(shortcuts.contains(shortcut)) << shortcut.toStdString();
                shortcuts << shortcut;
            }
        }
    }
    for (const auto standard :
         {QKeySequence::Save, QKeySequence::Open, QKeySequence::Copy, QKeySequence::SelectAll,
          QKeySequence::Find, QKeySequence::Close, QKeySequence::Quit}) {
        const QString shortcut = QKeySequence(standard).toString();
        EXPECT_TRUE(shortcut.isEmpty() || shortcuts.contains(shortcut)) << shortcut.toStdString();
    }
    if (const QString path = qEnvironmentVariable("QUILLET_TEST_SCREENSHOT"); !path.isEmpty()) {
        window->resize(1280, 800);
        QApplication::processEvents();
        EXPECT_TRUE(window->grab().save(path));
    }
}

} // namespace quillet
