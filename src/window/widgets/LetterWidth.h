#pragma once

#include <QFontMetrics>

#include <algorithm>

namespace quillet {

/// How wide, in pixels, a letter of a Latin text is on average: what widths of controls are made
/// of. Where a font has Chinese characters, or others come in for them, the toolkit's own average
/// is as wide as one of these, and twice as wide as what is shown.
[[nodiscard]] inline int letterWidth(const QFontMetrics& metrics) {
    return std::min(metrics.averageCharWidth(), metrics.horizontalAdvance(u'0'));
}

} // namespace quillet
