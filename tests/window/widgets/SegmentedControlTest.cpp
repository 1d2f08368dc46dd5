#include "window/widgets/SegmentedControl.h"

#include "window/widgets/Palettes.h"
#include "window/widgets/Tones.h"

#include <QAccessible>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

class SegmentedControlTest : public testing::Test {
protected:
    SegmentedControlTest() {
        for (const char* text : {"Day", "Week", "Month"}) {
            control.addSegment(QString::fromLatin1(text));
        }
        control.resize(control.sizeHint());
        control.show();
        control.activateWindow();
    }
    QRadioButton* segment(int place) const {
        return control.findChildren<QRadioButton*>().at(place);
    }
    /// The greatest contrast that any point of the segment has with its ground.
    double contrastOfTextIn(int place) {
        const QImage image = segment(place)->grab().toImage();
        const QColor ground = image.pixelColor(image.width() / 2, 4);
        double best = 1;
        for (int y = image.height() / 4; y < image.height() * 3 / 4; ++y) {
            for (int x = image.width() / 4; x < image.width() * 3 / 4; ++x) {
                best = std::max(best, contrastOf(image.pixelColor(x, y), ground));
            }
        }
        return best;
    }

    SegmentedControl control{"Period"};
    QSignalSpy picked{&control, &SegmentedControl::picked};
};

TEST_F(SegmentedControlTest, HasNoneChosenUntilOneIs) {
    EXPECT_EQ(control.chosen(), -1);
    control.setChosen(1);
    EXPECT_EQ(control.chosen(), 1);
    control.setChosen(7);
    EXPECT_EQ(control.chosen(), -1);
    EXPECT_EQ(picked.count(), 0);
}

TEST_F(SegmentedControlTest, AClickPicksAlsoTheOneThatIsChosen) {
    QTest::mouseClick(segment(2), Qt::LeftButton);
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked.takeFirst().at(0).toInt(), 2);
    QTest::mouseClick(segment(2), Qt::LeftButton);
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked.takeFirst().at(0).toInt(), 2);
}

TEST_F(SegmentedControlTest, AnswersToTheMouseUpToItsEdges) {
    QTest::mouseClick(segment(0), Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_EQ(control.chosen(), 0);
    QTest::mouseClick(segment(1), Qt::LeftButton, {}, QPoint(segment(1)->width() - 2, 1));
    EXPECT_EQ(control.chosen(), 1);
}

TEST_F(SegmentedControlTest, ArrowKeysGoOnFromTheChosenOne) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
    control.setChosen(0);
    segment(0)->setFocus();
    QTest::keyClick(segment(0), Qt::Key_Right);
    EXPECT_EQ(control.chosen(), 1);
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked.takeFirst().at(0).toInt(), 1);
}

TEST_F(SegmentedControlTest, IsARowOfRadioButtonsToAScreenReader) {
    control.setChosen(2);
    QAccessibleInterface* third = QAccessible::queryAccessibleInterface(segment(2));
    EXPECT_EQ(third->role(), QAccessible::RadioButton);
    EXPECT_EQ(third->text(QAccessible::Name), "Month");
    EXPECT_EQ(third->text(QAccessible::Description), "3 of 3 choices");
    EXPECT_TRUE(third->state().checked);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Name), "Period");
}

TEST_F(SegmentedControlTest, TheChosenOneIsGreyWhileNoneCanBeChosen) {
    control.setChosen(1);
    const auto colorOfChosen = [this] {
        const QImage image = segment(1)->grab().toImage();
        return image.pixelColor(image.width() / 2, 4);
    };
    const QPalette palette = control.palette();
    ASSERT_NE(palette.color(QPalette::Disabled, QPalette::Highlight),
              palette.color(QPalette::Active, QPalette::Highlight));
    EXPECT_EQ(colorOfChosen(), palette.color(QPalette::Active, QPalette::Highlight));
    control.setEnabled(false);
    EXPECT_EQ(colorOfChosen(), palette.color(QPalette::Disabled, QPalette::Highlight));
}

TEST_F(SegmentedControlTest, TabGoesToTheChosenOneAlone) {
    const auto stops = [this] {
        std::vector<bool> reached;
        for (int place = 0; place < control.count(); ++place) {
            reached.push_back((segment(place)->focusPolicy() & Qt::TabFocus) != 0);
        }
        return reached;
    };
    EXPECT_EQ(stops(), (std::vector{true, false, false})) << "none is chosen";
    control.setChosen(2);
    EXPECT_EQ(stops(), (std::vector{false, false, true}));
    segment(1)->click();
    EXPECT_EQ(stops(), (std::vector{false, true, false}));
    control.setChosen(-1);
    EXPECT_EQ(stops(), (std::vector{true, false, false}));
}

TEST_F(SegmentedControlTest, CanBeReadInThePalettesOfAllDesktops) {
    QFont font = control.font();
    font.setPixelSize(40);
    control.setFont(font);
    control.resize(control.sizeHint());
    control.setChosen(1);
    for (const auto& [name, palette] : palettesOfDesktops()) {
        control.setPalette(palette);
        EXPECT_GE(contrastOfTextIn(0), leastTextContrast) << name << ", not chosen";
        EXPECT_GE(contrastOfTextIn(1), leastTextContrast) << name << ", chosen";
    }
}

} // namespace

} // namespace quillet::test
