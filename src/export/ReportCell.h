#pragma once

#include <QString>
#include <QStringView>

#include <cstddef>

namespace quillet {

enum class CellWrapping { Off, On };

/// How many characters fit into a column of the event table: its width divided by the 7.2 points of
/// one character, the fraction dropped, and at least 2.
[[nodiscard]] qsizetype reportColumnLength(double widthPoints);

/// Deals the text of one cell out, line by line. Lengths and positions count UTF-16 units.
///
/// Unwrapped, a text is one line: cut to the length, with "..." as its last three characters where
/// the length is 5 or more.
///
/// Wrapped, a line that does not hold the rest of the text ends behind the last blank in its
/// length; where it has none, it is cut one character short of the length. A rest of exactly the
/// length is shown whole, and then cut all the same: what does not fit before that cut comes again
/// on the next line. A line feed does not end a line.
///
/// No cut parts the halves of a surrogate pair: it moves before the pair, or behind it when the
/// line would stay empty.
class ReportCellLines {
public:
    /// The text must stay where it is. A missing text is an empty one. The length is at least 2.
    ReportCellLines(QStringView text, qsizetype length, CellWrapping wrapping)
        : text_(text)
        , length_(length)
        , wrapping_(wrapping) {}

    struct Line {
        QStringView text;
        /// Whether "..." follows the text.
        bool isShortened = false;
        /// Whether the text does not end here.
        bool hasMore = false;
    };
    /// The next line; at most `length` characters. Empty ones when the text is used up.
    [[nodiscard]] Line next();

private:
    [[nodiscard]] Line unwrapped() const;
    [[nodiscard]] qsizetype nextStart() const;

    QStringView text_;
    qsizetype length_;
    CellWrapping wrapping_;
    qsizetype start_ = 0;
    bool isUsedUp_ = false;
};

/// Writes a line into a cell of blanks, line feeds as blanks.
void writeCellLine(QChar* cell, const ReportCellLines::Line& line);

/// A text padded with blanks to `length`, or cut to it, and one blank behind it.
[[nodiscard]] QString paddedCell(QStringView text, qsizetype length);

/// One line of a cell, counted from 0: max(length, 2) + 1 characters, of which the last is blank.
[[nodiscard]] QString reportCell(QStringView text, qsizetype length, std::size_t line,
                                 CellWrapping wrapping);

} // namespace quillet
