#include "window/WindowFixture.h"

#include "support/ExpectedLog.h"

#include <QHeaderView>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace quillet {

namespace {

/// The event table under the mouse.
class EventTableViewTest : public test::WindowFixture {
protected:
    void SetUp() override {
        open();
        header = table->horizontalHeader();
    }
    [[nodiscard]] int sectionOf(const char* column) const {
        return header->logicalIndex(columns.positionOf(column));
    }
    /// Where the column's title stands.
    [[nodiscard]] QPoint middleOf(const char* column) const {
        const int section = sectionOf(column);
        return {header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
                header->height() / 2};
    }
    void drag(const QPoint& from, const QPoint& to) const {
        QWidget* viewport = header->viewport();
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(viewport, (from + to) / 2);
        QTest::mouseMove(viewport, to);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, to);
    }
    [[nodiscard]] std::string titles() const {
        std::string result;
        for (int row = 0; row < model.rowCount(); ++row) {
            result += model.index(row, sectionOf("title")).data().toString().toStdString() + ' ';
        }
        return result;
    }
    /// Opens the header's menu and does something with it.
    void withHeaderMenu(const std::function<void(QMenu&)>& action) const {
        QTimer::singleShot(0, header, [&action] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            action(*menu);
            menu->close();
        });
        // A screen that is none says this of every menu.
        const test::ExpectedLog raising("This plugin does not support raise()");
        const test::ExpectedLog grabbing("This plugin does not support grabbing the keyboard");
        Q_EMIT header->customContextMenuRequested(middleOf("title"));
    }
    static void trigger(const QMenu& menu, const QString& text) {
        for (QAction* action : menu.actions()) {
            if (action->text() == text) {
                EXPECT_TRUE(action->isVisible()) << text.toStdString();
                return action->trigger();
            }
        }
        ADD_FAILURE() << "no entry " << text.toStdString();
    }

    QHeaderView* header = nullptr;
};

} // namespace

TEST_F(EventTableViewTest, TheHeaderShowsTheColumnsAsTheyStand) {
    const auto expectMirrored = [this] {
        for (int position = 0; position < columns.columnCount(); ++position) {
            const TableColumn& column = columns.columnAt(position);
            const int section = header->logicalIndex(position);
            EXPECT_EQ(eventColumns()[static_cast<std::size_t>(section)].identifier,
                      column.identifier());
            EXPECT_EQ(header->isSectionHidden(section), column.isHidden());
        }
    };
    expectMirrored();
    columns.moveColumn(0, 9);
    columns.moveColumn(12, 3);
    columns.column("url").setHidden(false);
    columns.column("title").setHidden(true);
    expectMirrored();
    header->moveSection(2, 7);
    header->moveSection(15, 0);
    expectMirrored();
}

TEST_F(EventTableViewTest, AnotherTableOverTheSameColumnsBeginsAsTheyStand) {
    columns.moveColumn(columns.positionOf("cost"), 0);
    columns.column("date").setHidden(true);
    columns.column("cost").setWidthPoints(133);
    const EventTableView other(model, columns, events, settings, {});
    EXPECT_EQ(other.horizontalHeader()->logicalIndex(0), sectionOf("cost"));
    EXPECT_TRUE(other.horizontalHeader()->isSectionHidden(sectionOf("date")));
    EXPECT_EQ(other.horizontalHeader()->sectionSize(sectionOf("cost")),
              header->sectionSize(sectionOf("cost")));
    EXPECT_EQ(columns.column("cost").widthPoints(), 133);
}

TEST_F(EventTableViewTest, AColumnIsMovedByItsHeader) {
    ASSERT_EQ(columns.positionOf("title"), 2);
    drag(middleOf("title"), {3, header->height() / 2});
    EXPECT_EQ(columns.positionOf("title"), 0);
    EXPECT_EQ(columns.positionOf("date"), 1);
    EXPECT_EQ(exportCSV.text().section(u'\n', 0, 0),
              QString("\"Title\",\"Start Date\",\"Calendar\",\"Hours\",\"Cost\""));
}

TEST_F(EventTableViewTest, AColumnIsWidenedByItsEdge) {
    const double before = columns.column("hours").widthPoints();
    const int section = sectionOf("hours");
    const int pixels = header->sectionSize(section);
    const QPoint edge(header->sectionViewportPosition(section) + pixels - 1, header->height() / 2);
    drag(edge, edge + QPoint(50, 0));
    EXPECT_EQ(header->sectionSize(section), pixels + 50);
    EXPECT_GT(columns.column("hours").widthPoints(), before);
}

TEST_F(EventTableViewTest, ClicksOnAHeaderSortUpDownAndNoMore) {
    const auto click = [this](const char* column) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(column));
        fetch();
    };
    EXPECT_EQ(titles(), "Planning Dentist Workshop ") << "chronological at first";
    click("cost");
    EXPECT_EQ(titles(), "Dentist Planning Workshop ") << "1, 2 and 8 hours";
    click("cost");
    EXPECT_EQ(titles(), "Workshop Planning Dentist ");
    click("cost");
    EXPECT_EQ(titles(), "Planning Dentist Workshop ");
}

TEST_F(EventTableViewTest, ATableSortedByCostFollowsNewRates) {
    settings.setObject("isSingleRate", false);
    calendars.setRate(0, Decimal::fromInteger(10));
    calendars.setRate(1, Decimal::fromInteger(10));
    fetch();
    header->setSortIndicator(sectionOf("cost"), Qt::AscendingOrder);
    fetch();
    EXPECT_EQ(titles(), "Dentist Planning Workshop ");
    ASSERT_EQ(calendars.arranged(0).title, QStringLiteral("Home"));
    calendars.setRate(0, Decimal::fromInteger(1000));
    fetch();
    EXPECT_EQ(titles(), "Planning Workshop Dentist ");
}

TEST_F(EventTableViewTest, TheHeadersMenuShowsAndHidesColumnsAndKnowsOneTimeAlone) {
    withHeaderMenu([](QMenu& menu) {
        QStringList shown;
        for (const QAction* action : menu.actions()) {
            if (action->isVisible()) {
                shown << action->text() + (action->isChecked() ? QString("+") : QString());
            }
        }
        EXPECT_EQ(shown, (QStringList{"Start Date+", "Hours+", "Title+", "Notes", "URL", "Location",
                                      "Start Weekday", "End Weekday", "Cost+", "Start Time",
                                      "End Time", "End Date", "Calendar+", "Rate"}));
        trigger(menu, "Location");
    });
    EXPECT_TRUE(boolForKey(settings, "isLocationColumn"));
    EXPECT_FALSE(header->isSectionHidden(sectionOf("location")));
    settings.setObject("timeTypeSelection", 2);
    settings.setObject("minutesColumnTitle", "Min");
    withHeaderMenu([](QMenu& menu) { trigger(menu, "Min"); });
    EXPECT_FALSE(boolForKey(settings, "isHoursColumn"));
    EXPECT_TRUE(header->isSectionHidden(sectionOf("minutes")));
}

} // namespace quillet
