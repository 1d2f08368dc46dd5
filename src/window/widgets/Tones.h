#pragma once

#include <QColor>
#include <QPalette>

namespace quillet {

/// How much of the text's colour is mixed into what lies behind it.
enum class Tone {
    /// What explains, beside what is read; as quiet as it may be and still have the contrast of
    /// text.
    Explaining,
    /// A line that parts one thing from another, or an outline.
    Line,
    /// A ground that is told from its surroundings when one looks for it.
    Ground,
};

/// The least contrast of a text with what lies behind it, and of a mark that tells something.
constexpr double leastTextContrast = 4.5;
constexpr double leastMarkContrast = 3.0;

/// The contrast of two opaque colours after WCAG 2.1 (relative luminance, section "contrast
/// ratio"): from 1, the same, to 21, black on white.
[[nodiscard]] double contrastOf(const QColor& one, const QColor& other);

/// The colour, or where it has less than the contrast with the ground, the nearest one on its way
/// to black or white that has it, and black or white where nothing does.
[[nodiscard]] QColor readableOn(const QColor& ground, const QColor& wanted, double leastContrast);

/// A colour between the palette's text and background: of its windows, or of its lists and fields
/// with `QPalette::Base`. A mixture, since palettes of desktops choose muted colours of their own
/// that can be all but invisible.
[[nodiscard]] QColor toned(const QPalette& palette, Tone tone,
                           QPalette::ColorRole background = QPalette::Window);

} // namespace quillet
