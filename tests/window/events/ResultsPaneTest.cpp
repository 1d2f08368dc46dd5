#include "window/events/ResultsPane.h"

#include "window/WindowFixture.h"

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QRadioButton>

namespace quillet {

namespace {

class ResultsPaneTest : public test::WindowFixture {
protected:
    ResultsPaneTest() {
        open();
        // Room for the small figures, too.
        window->resize(1600, 700);
        events.setSelectedRows({0, 1});
        fetch();
    }
    void chooseTab(int tab) {
        named<QRadioButton>(tab == 0 ? "All Events" : "Selected Events")->click();
        QApplication::processEvents();
    }
    void chooseTimeType(int timeType) {
        settings.setObject("timeTypeSelection", timeType);
        fetch();
    }
    [[nodiscard]] QLabel* figure(const char* name) const {
        return window->findChild<ResultsPane*>()->findChild<QLabel*>(name);
    }
    [[nodiscard]] std::string figures() const {
        QStringList shown;
        for (const char* name :
             {"events", "total", "shortest", "longest", "average", "days", "cost"}) {
            shown << figure(name)->text();
        }
        return shown.join(" | ").toStdString();
    }
};

} // namespace

TEST_F(ResultsPaneTest, EachTimeTypeHasItsOwnFiguresInBothTabs) {
    EXPECT_EQ(figures(), "3 | 11 | 1 | 8 | 3.67 | 31 | $990.00");
    chooseTimeType(2);
    EXPECT_EQ(figures(), "3 | 660 | 60 | 480 | 220 | 31 | $990.00");
    chooseTab(1);
    EXPECT_EQ(figures(), "2 | 180 | 60 | 120 | 90 | 2 | $270.00");
    chooseTimeType(3);
    EXPECT_EQ(figures(), "2 | 3h | 1h | 2h | 1h 30m | 2 | $270.00");
    chooseTimeType(1);
    EXPECT_EQ(figures(), "2 | 3 | 1 | 2 | 1.5 | 2 | $270.00");
    chooseTab(0);
    chooseTimeType(3);
    EXPECT_EQ(figures(), "3 | 11h | 1h | 8h | 3h 40m | 31 | $990.00");
    chooseTimeType(7);
    EXPECT_EQ(figures(), "3 | 11h | 1h | 8h | 3h 40m | 31 | $990.00") << "stay as they are";
}

TEST_F(ResultsPaneTest, OfAnEmptySelectionSumsAndMeansAreZeroAndThereAreNoExtremes) {
    events.setSelectedRows({});
    chooseTab(1);
    EXPECT_EQ(figures(), "0 | 0 |  |  | 0 | 0 | $0.00");
    chooseTimeType(3);
    EXPECT_EQ(figures(), "0 | 0h | 0h | 0h | 0h | 0 | $0.00");
}

TEST_F(ResultsPaneTest, CostsAreShownOnlyWithMoneyOn) {
    EXPECT_TRUE(figure("cost")->isVisible());
    settings.setObject("isDollarsOn", false);
    QApplication::processEvents();
    EXPECT_FALSE(figure("cost")->isVisible());
    EXPECT_TRUE(figure("days")->isVisible());
    settings.setObject("isDollarsOn", true);
    QApplication::processEvents();
    EXPECT_TRUE(figure("cost")->isVisible());
}

TEST_F(ResultsPaneTest, EveryFigureCanBeCopied) {
    for (const char* name : {"events", "total", "shortest", "longest", "average", "days", "cost"}) {
        QLabel& label = *figure(name);
        EXPECT_EQ(label.textFormat(), Qt::PlainText) << name;
        label.setFocus();
        label.setSelection(0, static_cast<int>(label.text().size()));
        ASSERT_TRUE(label.hasSelectedText()) << name;
        EXPECT_TRUE(label.textInteractionFlags().testFlag(Qt::TextSelectableByMouse)) << name;
        EXPECT_TRUE(label.textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard)) << name;
        window->findChild<QAction*>("copy")->trigger();
        EXPECT_EQ(QApplication::clipboard()->text(), label.text()) << name;
    }
}

} // namespace quillet
