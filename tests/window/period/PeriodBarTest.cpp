#include "window/period/PeriodBar.h"

#include "window/WindowFixture.h"
#include "window/period/PeriodTitle.h"
#include "window/widgets/SegmentedControl.h"

#include <QAction>
#include <QMenu>
#include <QRadioButton>
#include <QTest>

namespace quillet {

namespace {

/// The window on March 2024, a Wednesday of which is today.
class PeriodBarTest : public test::WindowFixture {
protected:
    void SetUp() override { open(); }

    [[nodiscard]] PeriodTitle* title() const { return named<PeriodTitle>("reportingPeriod"); }
    [[nodiscard]] QStringList menuTexts() const {
        Q_EMIT title()->menu()->aboutToShow();
        QStringList texts;
        for (const QAction* action : title()->menu()->actions()) {
            if (!action->isSeparator()) {
                texts << action->text();
            }
        }
        return texts;
    }
};

} // namespace

TEST_F(PeriodBarTest, NamesThePeriodAndFollowsIt) {
    EXPECT_EQ(title()->text(), "March 2024");
    window->findChild<QAction*>("setQuickDatesPrevious")->trigger();
    EXPECT_EQ(title()->text(), "February 2024");
    named<QRadioButton>("Year")->click();
    EXPECT_EQ(title()->text(), "2024");
    EXPECT_EQ(named<SegmentedControl>("Period")->chosen(), 3);
}

TEST_F(PeriodBarTest, ItsMenuLeadsToTheTwelvePeriodsBefore) {
    const QStringList texts = menuTexts();
    ASSERT_EQ(texts.size(), 13);
    EXPECT_EQ(texts.first(), "February 2024");
    EXPECT_EQ(texts.at(11), "March 2023");
    title()->menu()->actions().at(1)->trigger();
    EXPECT_EQ(title()->text(), "January 2024");
    EXPECT_EQ(named<SegmentedControl>("Period")->chosen(), 2);
}

TEST_F(PeriodBarTest, ACustomPeriodHasNoneBefore) {
    named<QRadioButton>("Custom")->click();
    EXPECT_EQ(menuTexts().size(), 1) << "the inspector alone";
}

TEST_F(PeriodBarTest, SaysItsDaysInTheTooltip) {
    EXPECT_EQ(title()->toolTip(), QString::fromUtf8("Month · March 1, 2024 - March 31, 2024"));
    settings.setObject("quickDatePeriod", 17);
    inspector.awakeFromNib();
    EXPECT_EQ(title()->toolTip(), "March 1, 2024 - March 31, 2024")
        << "a kind that nobody knows has no name";
}

TEST_F(PeriodBarTest, ANameThatFindsNoRoomMakesNobodyWider) {
    PeriodTitle narrow;
    narrow.setText("Wednesday, September 30, 2026");
    EXPECT_LT(narrow.minimumSizeHint().width(), narrow.sizeHint().width() / 2);
}

} // namespace quillet
