#include "window/widgets/Figure.h"

#include "window/widgets/Palettes.h"
#include "window/widgets/Tones.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

TEST(FigureTest, SaysWhatItIsAndItsValueInOneText) {
    Figure figure("Total", Figure::Size::Large);
    figure.setValue("82", "h", "82 hours");
    EXPECT_EQ(figure.text(), "82");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&figure)->text(QAccessible::Name),
              "Total: 82 hours");
    figure.setValue("3h 20m");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&figure)->text(QAccessible::Name),
              "Total: 3h 20m");
}

TEST(FigureTest, IsPlainTextWhateverItHolds) {
    Figure figure("Total", Figure::Size::Small);
    figure.setValue("<b>1</b>");
    EXPECT_EQ(figure.textFormat(), Qt::PlainText);
}

TEST(FigureTest, ALargeOneIsTwiceAsHighAndHasRoomForItsUnit) {
    Figure small("Total", Figure::Size::Small);
    Figure large("Total", Figure::Size::Large);
    small.setValue("82");
    large.setValue("82");
    EXPECT_NEAR(large.font().pointSizeF(), small.font().pointSizeF() * 2, 0.01);
    EXPECT_TRUE(large.font().bold());
    EXPECT_FALSE(small.font().bold());
    const int bare = large.sizeHint().width();
    large.setValue("82", "hours");
    EXPECT_GE(large.sizeHint().width(), bare + small.fontMetrics().horizontalAdvance("hours"));
}

TEST(FigureTest, ASmallOneHasRoomForItsCaption) {
    Figure figure("A rather long caption", Figure::Size::Small);
    figure.setValue("1");
    EXPECT_GE(figure.sizeHint().expandedTo(figure.minimumSize()).width(),
              figure.fontMetrics().horizontalAdvance("A rather long caption"));
    EXPECT_GE(figure.sizeHint().height(), 2 * figure.fontMetrics().height());
}

TEST(FigureTest, ItsCaptionCanBeReadInThePalettesOfAllDesktops) {
    for (const auto& [name, palette] : palettesOfDesktops()) {
        Figure figure("MMMMMMMM", Figure::Size::Small);
        figure.setPalette(palette);
        figure.setValue(" ");
        figure.resize(figure.sizeHint().expandedTo(figure.minimumSize()));
        const QImage image = figure.grab().toImage();
        double best = 1;
        for (int y = 0; y < image.height() / 2; ++y) {
            for (int x = 0; x < image.width(); ++x) {
                best = std::max(
                    best, contrastOf(image.pixelColor(x, y), palette.color(QPalette::Window)));
            }
        }
        // Thin strokes are mixed with what lies behind them at their edges.
        EXPECT_GE(best, leastMarkContrast) << name;
    }
}

} // namespace

} // namespace quillet::test
