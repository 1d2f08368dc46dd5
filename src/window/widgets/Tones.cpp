#include "window/widgets/Tones.h"

#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

double linear(double channel) {
    // The transfer function of sRGB, as WCAG 2.1 gives it.
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor mixed(const QColor& ground, const QColor& added, double share) {
    const auto channel = [share](float from, float to) {
        return static_cast<float>(from + (to - from) * share);
    };
    return QColor::fromRgbF(channel(ground.redF(), added.redF()),
                            channel(ground.greenF(), added.greenF()),
                            channel(ground.blueF(), added.blueF()));
}

double shareOf(Tone tone) {
    switch (tone) {
    case Tone::Explaining:
        return 0.7;
    case Tone::Line:
        return 0.15;
    case Tone::Ground:
        break;
    }
    return 0.06;
}

} // namespace

double contrastOf(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readableOn(const QColor& ground, const QColor& wanted, double leastContrast) {
    const bool isBlackBetter = contrastOf(Qt::black, ground) > contrastOf(Qt::white, ground);
    const QColor end(isBlackBetter ? Qt::black : Qt::white);
    constexpr int steps = 32;
    for (int step = 0; step < steps; ++step) {
        const QColor candidate = mixed(wanted, end, static_cast<double>(step) / steps);
        if (contrastOf(candidate, ground) >= leastContrast) {
            return candidate;
        }
    }
    return end;
}

QColor toned(const QPalette& palette, Tone tone, QPalette::ColorRole background) {
    const QColor ground = palette.color(background);
    const QColor text =
        palette.color(background == QPalette::Base ? QPalette::Text : QPalette::WindowText);
    const QColor result = mixed(ground, text, shareOf(tone));
    return tone == Tone::Explaining ? readableOn(ground, result, leastTextContrast) : result;
}

} // namespace quillet
