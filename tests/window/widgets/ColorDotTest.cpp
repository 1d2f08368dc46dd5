#include "window/widgets/ColorDot.h"

#include <QImage>

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

constexpr int size = 64;

QImage pictureOf(const QColor& color) {
    return colorDot(color).pixmap(size, size).toImage();
}

TEST(ColorDotTest, isFilledWithItsColour) {
    const QImage dot = pictureOf(QColor(Qt::red));
    EXPECT_EQ(dot.pixelColor(size / 2, size / 2), QColor(Qt::red));
    EXPECT_EQ(dot.pixelColor(0, 0).alpha(), 0);
}

TEST(ColorDotTest, keepsItsColourOnASelectedRowAndStandsOutFromIt) {
    const QColor blue(0x2f, 0x6f, 0xde);
    const QImage dot = colorDot(blue).pixmap(QSize(size, size), QIcon::Selected).toImage();
    EXPECT_EQ(dot.pixelColor(size / 2, size / 2), blue);
    EXPECT_EQ(dot.pixelColor(12, size / 2), QColor(Qt::white));
    EXPECT_EQ(dot.pixelColor(0, 0).alpha(), 0);
}

TEST(ColorDotTest, isARingOfTheSameSizeWithoutAColour) {
    const QImage ring = pictureOf(QColor());
    EXPECT_EQ(ring.size(), pictureOf(QColor(Qt::red)).size());
    EXPECT_EQ(ring.pixelColor(size / 2, size / 2).alpha(), 0);
    const QImage black = pictureOf(QColor(Qt::black));
    EXPECT_EQ(black.pixelColor(size / 2, size / 2), QColor(Qt::black));
    EXPECT_NE(ring, black);
    EXPECT_GT(ring.pixelColor(12, size / 2).alpha(), 0);
}

} // namespace

} // namespace quillet::test
