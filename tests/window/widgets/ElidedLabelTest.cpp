#include "window/widgets/ElidedLabel.h"

#include <QImage>

#include <gtest/gtest.h>

namespace quillet {

namespace {

QImage imageOf(ElidedLabel& label, int width) {
    label.resize(width, label.sizeHint().height());
    QImage image(label.size(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    label.render(&image);
    return image;
}

/// The columns of the image with any ink, from the left.
int inkedWidth(const QImage& image) {
    for (int x = image.width() - 1; x >= 0; --x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y).lightness() < 128) {
                return x + 1;
            }
        }
    }
    return 0;
}

int inkedHeight(const QImage& image) {
    return inkedWidth(image.transformed(QTransform().rotate(-90).scale(1, 1)));
}

class ElidedLabelTest : public testing::Test {
protected:
    ElidedLabelTest() { label.setText(QStringLiteral("1 de noviembre de 2026 & R&D <b>x</b>")); }

    ElidedLabel label;
};

} // namespace

TEST_F(ElidedLabelTest, NeedsRoomForAFewCharactersOnly) {
    EXPECT_LT(label.minimumSizeHint().width(), label.sizeHint().width() / 3);
    EXPECT_GT(label.minimumSizeHint().width(), label.fontMetrics().averageCharWidth() * 4);
    label.setText(QStringLiteral("1"));
    EXPECT_LE(label.minimumSizeHint().width(), label.sizeHint().width());
}

TEST_F(ElidedLabelTest, ShowsAllOfATextThatFitsLetterByLetter) {
    const int needed = label.fontMetrics().horizontalAdvance(label.text());
    EXPECT_NEAR(inkedWidth(imageOf(label, needed + 50)), needed, 4);
}

TEST_F(ElidedLabelTest, EndsInAnEllipsisWhereThereIsNoRoom) {
    ElidedLabel cut;
    cut.setText(label.fontMetrics().elidedText(label.text(), Qt::ElideRight, 90));
    ASSERT_TRUE(cut.text().endsWith(u'…'));
    EXPECT_EQ(imageOf(label, 90), imageOf(cut, 90));
    EXPECT_TRUE(label.text().endsWith(QStringLiteral("</b>")));
}

TEST_F(ElidedLabelTest, MakesItsLettersSmallerBeforeItCutsThem) {
    const int needed = label.fontMetrics().horizontalAdvance(label.text());
    const int height = inkedHeight(imageOf(label, needed + 50));
    label.setSmallestScale(0.5);
    const QImage smaller = imageOf(label, needed * 7 / 10);
    EXPECT_GT(inkedWidth(smaller), needed * 6 / 10);
    EXPECT_LT(inkedHeight(smaller), height);
}

} // namespace quillet
