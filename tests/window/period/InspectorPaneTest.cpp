#include "window/period/InspectorPane.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include "window/WindowFixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QCalendarWidget>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

/// The window on March 2024.
class PeriodPickersTest : public test::WindowFixture {
protected:
    void SetUp() override {
        open();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        start = named<QCalendarWidget>("Start Date");
        end = named<QCalendarWidget>("End Date");
    }
    [[nodiscard]] static QTableView* gridOf(QCalendarWidget* picker) {
        return picker->findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
    }
    /// Where the grid shows the day of its month, before which it has some of the month before.
    [[nodiscard]] static QPoint placeOf(QCalendarWidget* picker, int day) {
        const QTableView* grid = gridOf(picker);
        bool isInMonth = false;
        for (int cell = 0; cell < grid->model()->rowCount() * grid->model()->columnCount();
             ++cell) {
            const QModelIndex index = grid->model()->index(cell / grid->model()->columnCount(),
                                                           cell % grid->model()->columnCount());
            isInMonth = isInMonth || index.data().toInt() == 1;
            if (isInMonth && index.data().toInt() == day) {
                return grid->visualRect(index).center();
            }
        }
        return {};
    }
    [[nodiscard]] std::string period() const {
        const auto text = [this](const char* key) {
            return formats.shortDate(*dateForKey(settings, key)).toStdString();
        };
        return text("filterStartDate") + " - " + text("filterEndDate");
    }

    QCalendarWidget* start = nullptr;
    QCalendarWidget* end = nullptr;
};

} // namespace

using test::utc;

TEST_F(PeriodPickersTest, AClickActsAsSoonAsTheButtonGoesDown) {
    QWidget* grid = gridOf(end)->viewport();
    QTest::mousePress(grid, Qt::LeftButton, Qt::NoModifier, placeOf(end, 12));
    EXPECT_EQ(period(), "3/1/24 - 3/12/24");
    const std::size_t flips = settings.writes.count("datesChangedTrigger");
    QTest::mouseRelease(grid, Qt::LeftButton, Qt::NoModifier, placeOf(end, 20));
    EXPECT_EQ(period(), "3/1/24 - 3/12/24") << "where it goes up does not count";
    EXPECT_EQ(settings.writes.count("datesChangedTrigger"), flips);
    named<QAbstractButton>("Month")->click();
    QTest::mousePress(gridOf(start)->viewport(), Qt::RightButton, Qt::NoModifier,
                      placeOf(start, 12));
    EXPECT_EQ(period(), "3/1/24 - 3/31/24") << "only the left button picks";
    QTest::mousePress(gridOf(start)->viewport(), Qt::LeftButton, Qt::NoModifier,
                      placeOf(start, 12));
    EXPECT_EQ(period(), "3/12/24 - 4/11/24");
}

TEST_F(PeriodPickersTest, ADayThatTheKeyboardReachedIsPickedWithReturnOrForgotten) {
    QTableView* grid = gridOf(start);
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Right);
    EXPECT_EQ(start->selectedDate(), QDate(2024, 3, 2));
    gridOf(end)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(start->selectedDate(), QDate(2024, 3, 1)) << "the picker shows the period";
    EXPECT_EQ(period(), "3/1/24 - 3/31/24");
    grid->setFocus(Qt::BacktabFocusReason);
    QTest::keyClick(grid, Qt::Key_Right);
    QTest::keyClick(grid, Qt::Key_Return);
    EXPECT_EQ(period(), "3/2/24 - 4/1/24");
}

TEST_F(PeriodPickersTest, TheDayThatTheKeyboardIsOnShowsIt) {
    const auto isRinged = [this] {
        const QTableView* grid = gridOf(start);
        const QRect cell = grid->visualRect(grid->indexAt(placeOf(start, 1)));
        const QImage picture = grid->viewport()->grab(cell).toImage();
        // Beside the figure the cell has the colour of the selection.
        return picture.pixelColor(2, picture.height() / 2) ==
               start->palette().color(QPalette::HighlightedText);
    };
    start->setFocus();
    EXPECT_TRUE(isRinged());
    end->setFocus();
    EXPECT_FALSE(isRinged());
}

TEST_F(PeriodPickersTest, WithoutAccessNoControlChangesThePeriod) {
    const auto kinds = [this] {
        QList<QAction*> found;
        for (QAction* action : window->findChildren<QAction*>()) {
            if (action->objectName().startsWith(QStringLiteral("setQuickDate"))) {
                found << action;
            }
        }
        return found;
    };
    ASSERT_EQ(kinds().size(), 8) << "five kinds and three steps";
    settings.setObject("isCalendarAccessGranted", false);
    for (QAction* action : kinds()) {
        EXPECT_FALSE(action->isEnabled()) << action->text().toStdString();
        action->trigger();
    }
    for (const char* name : {"Day", "Week", "Month", "Year", "Custom", "Lock End Date"}) {
        EXPECT_FALSE(named<QAbstractButton>(name)->isEnabled()) << name;
    }
    EXPECT_FALSE(start->isEnabled());
    EXPECT_FALSE(end->isEnabled());
    EXPECT_EQ(period(), "3/1/24 - 3/31/24");
    settings.setObject("isCalendarAccessGranted", true);
    for (QAction* action : kinds()) {
        EXPECT_TRUE(action->isEnabled()) << action->text().toStdString();
    }
}

TEST_F(PeriodPickersTest, TheLabelsOfTheTableShowTheReportingPeriod) {
    EXPECT_EQ(itemView.periodLabelString(), QStringLiteral("Month"));
    EXPECT_EQ(itemView.dateRangeLabelString(), QStringLiteral("March 1, 2024 - March 31, 2024"));
    EXPECT_EQ(table->accessibleDescription(),
              QStringLiteral("Month, March 1, 2024 - March 31, 2024"));
    inspector.pickEndDate(utc(2024, 3, 12, 12));
    EXPECT_EQ(itemView.periodLabelString(), QStringLiteral("Custom"));
    EXPECT_EQ(itemView.dateRangeLabelString(), QStringLiteral("March 1, 2024 - March 12, 2024"));
    named<QAbstractButton>("Lock End Date")->click();
    EXPECT_EQ(itemView.periodLabelString(), QStringLiteral("12 Days"));
    EXPECT_EQ(table->accessibleDescription(),
              QStringLiteral("12 Days, March 1, 2024 - March 12, 2024"));
    inspector.choosePeriodKind(PeriodKind::Day);
    EXPECT_EQ(itemView.periodLabelString(), QStringLiteral("Day"));
    EXPECT_EQ(itemView.totalDays(), 1);
}

/// In locales that write dates in a calendar of their own.
TEST(InspectorPaneTest, ThePickersShowAndTakeGregorianDatesInEveryLocale) {
    for (const char* locale : {"fa_IR", "ar_SA", "th_TH", "en_US"}) {
        test::MemorySettings settings;
        const test::FakeClock clock{utc(2024, 3, 6, 15)};
        const IcuCalendarArithmetic gregorian(locale, "UTC", CalendarSystem::Gregorian);
        const IcuCalendarArithmetic current(locale, "UTC", CalendarSystem::OfLocale);
        const IcuLocaleFormats formats({"en_US", "en_US", "en_US"}, "UTC");
        DateInspectorController inspector({settings, clock, gregorian, current, formats});
        settings.setObject("isCalendarAccessGranted", true);
        inspector.awakeFromNib();
        InspectorPane pane(inspector, settings, gregorian);
        inspector.choosePeriodKind(PeriodKind::Month);
        QList<QCalendarWidget*> pickers = pane.findChildren<QCalendarWidget*>();
        ASSERT_EQ(pickers.size(), 2);
        if (pickers[0]->accessibleName() != u"Start Date") {
            pickers.swapItemsAt(0, 1);
        }
        EXPECT_EQ(pickers[0]->selectedDate(), QDate(2024, 3, 1)) << locale;
        EXPECT_EQ(pickers[1]->selectedDate(), QDate(2024, 3, 31)) << locale;
        Q_EMIT pickers[1]->clicked(QDate(2024, 3, 30));
        EXPECT_EQ(inspector.endDate(), utc(2024, 3, 30, 23, 59, 59)) << locale;
        EXPECT_EQ(pickers[0]->firstDayOfWeek(),
                  locale == std::string_view("fa_IR") ? Qt::Saturday : Qt::Sunday)
            << locale;
    }
}

} // namespace quillet
