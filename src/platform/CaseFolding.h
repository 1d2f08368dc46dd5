#pragma once

#include <QString>

namespace quillet {

/// The text with its differences of case and of spelling taken out, by Unicode's full folding and
/// canonical composition: "STRASSE", "strasse" and "Straße" are one text afterwards, and so are
/// letters in one piece and letters with their marks behind them.
[[nodiscard]] QString caseFolded(const QString& text);

/// What of a text keeps it from being compared with a folded one character by character. Flags.
enum class FoldingNeeds : unsigned char {
    None = 0,
    SharpS = 1, ///< It has "ß", which is "ss" folded.
    Marks = 2,  ///< It has Latin marks of their own, which may belong to the letter before.
    Whole = 4,  ///< It has characters of which nothing is known here.
};

[[nodiscard]] constexpr bool has(FoldingNeeds needs, FoldingNeeds flag) {
    return (static_cast<unsigned char>(needs) & static_cast<unsigned char>(flag)) != 0;
}

[[nodiscard]] FoldingNeeds foldingNeeds(QStringView text);

} // namespace quillet
