#pragma once

#include "window/widgets/TextLines.h"

#include <optional>

class QKeyEvent;

namespace quillet {

/// Where a caret can go by key.
enum class CaretMove { Left, Right, Up, Down, LineStart, LineEnd, PageUp, PageDown, Start, End };

/// What a key does with a caret.
struct CaretKey {
    enum class Selection { Ends, Grows };

    CaretMove move = CaretMove::Left;
    Selection selection = Selection::Ends;
};

/// A stretch of a text, without its end.
struct TextRange {
    qsizetype start = 0;
    qsizetype end = 0;
};

/// Nothing when the key does not move a caret.
[[nodiscard]] std::optional<CaretKey> caretKeyOf(QKeyEvent& event);
/// Where the move leads, which may be one character outside the text. A page is so many lines.
[[nodiscard]] qsizetype movedCaret(const TextLines& lines, qsizetype caret, CaretMove move,
                                   qsizetype linesOfPage);
/// The word or the gap between words at a position.
[[nodiscard]] TextRange wordAt(const TextLines& lines, qsizetype position);

} // namespace quillet
