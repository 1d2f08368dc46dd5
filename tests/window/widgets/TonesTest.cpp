#include "window/widgets/Tones.h"

#include "window/widgets/Palettes.h"

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

TEST(TonesTest, BlackOnWhiteHasTheGreatestContrastAndAColourNoneWithItself) {
    EXPECT_DOUBLE_EQ(contrastOf(Qt::black, Qt::white), 21.0);
    EXPECT_DOUBLE_EQ(contrastOf(Qt::white, Qt::black), 21.0);
    EXPECT_DOUBLE_EQ(contrastOf(QColor("#3584e4"), QColor("#3584e4")), 1.0);
    // The worked example that guides to WCAG give for the darkest grey that fails on white.
    EXPECT_NEAR(contrastOf(QColor("#777777"), Qt::white), 4.48, 0.005);
}

TEST(TonesTest, AColourThatCanBeReadStaysAsItIs) {
    EXPECT_EQ(readableOn(Qt::white, QColor("#15539e"), leastTextContrast), QColor("#15539e"));
}

TEST(TonesTest, AColourThatCannotBeReadIsMovedUntilItCan) {
    const QColor ground("#3daee9");
    const QColor mended = readableOn(ground, Qt::white, leastTextContrast);
    EXPECT_LT(contrastOf(Qt::white, ground), leastTextContrast);
    EXPECT_GE(contrastOf(mended, ground), leastTextContrast);
}

TEST(TonesTest, NoContrastThatCannotBeHadIsLookedForForEver) {
    EXPECT_EQ(readableOn(QColor("#777777"), Qt::white, 21.0), QColor(Qt::black));
}

TEST(TonesTest, ExplanationsAreReadableInThePalettesOfAllDesktops) {
    for (const auto& [name, palette] : palettesOfDesktops()) {
        for (const auto background : {QPalette::Window, QPalette::Base}) {
            const QColor ground = palette.color(background);
            const QColor quiet = toned(palette, Tone::Explaining, background);
            EXPECT_GE(contrastOf(quiet, ground), leastTextContrast) << name;
            EXPECT_LE(contrastOf(quiet, ground),
                      contrastOf(palette.color(QPalette::WindowText), ground) + 1)
                << name << ": louder than what it explains";
        }
    }
}

TEST(TonesTest, LinesAndGroundsAreSeenAndStayQuiet) {
    for (const auto& [name, palette] : palettesOfDesktops()) {
        const QColor window = palette.color(QPalette::Window);
        const double line = contrastOf(toned(palette, Tone::Line), window);
        const double ground = contrastOf(toned(palette, Tone::Ground), window);
        EXPECT_GT(ground, 1.0) << name;
        EXPECT_GT(line, ground) << name;
        EXPECT_LT(line, leastMarkContrast) << name;
    }
}

} // namespace

} // namespace quillet::test
