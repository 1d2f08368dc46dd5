#include "window/widgets/ClearIndicators.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionButton>

#include <gtest/gtest.h>

#include <cmath>

namespace quillet {

namespace {

/// Relative luminance as the Web Content Accessibility Guidelines 2.1 define it.
double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QPalette palette(const QColor& ground, const QColor& text) {
    QPalette colors(ground);
    colors.setColor(QPalette::Base, ground.darker(130));
    colors.setColor(QPalette::Text, text);
    colors.setColor(QPalette::WindowText, text);
    return colors;
}

/// Of the strongest outline pixel on the middle line of an unticked box, against the ground.
double outlineContrast(const QStyle& style, QStyle::PrimitiveElement element,
                       const QPalette& colors) {
    constexpr int side = 16;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    const QColor ground = colors.color(QPalette::Window);
    image.fill(ground);
    QStyleOptionButton option;
    option.rect = image.rect();
    option.palette = colors;
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter, nullptr);
    painter.end();
    double strongest = 1;
    for (int x = 0; x < 3; ++x) {
        strongest = std::max(strongest, contrast(image.pixelColor(x, side / 2), ground));
    }
    return strongest;
}

constexpr double enoughForControls = 3;

} // namespace

TEST(ClearIndicatorsTest, UntickedBoxesAndButtonsStandOutFromADarkGround) {
    const ClearIndicators style(QStyleFactory::create("fusion"));
    const QPalette dark = palette(QColor(0x35, 0x35, 0x35), Qt::white);
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton,
                               QStyle::PE_IndicatorItemViewItemCheck}) {
        EXPECT_GE(outlineContrast(style, element, dark), enoughForControls) << element;
    }
}

TEST(ClearIndicatorsTest, OnALightGroundTheyLookAsTheStyleDrawsThem) {
    const ClearIndicators style(QStyleFactory::create("fusion"));
    const std::unique_ptr<QStyle> plain(QStyleFactory::create("fusion"));
    const QPalette light = palette(QColor(0xef, 0xef, 0xef), Qt::black);
    EXPECT_EQ(outlineContrast(style, QStyle::PE_IndicatorCheckBox, light),
              outlineContrast(*plain, QStyle::PE_IndicatorCheckBox, light));
}

} // namespace quillet
