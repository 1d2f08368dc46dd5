#include "window/widgets/CaretMoves.h"

#include <QKeyEvent>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

struct StandardKeys {
    QKeySequence::StandardKey moving;
    QKeySequence::StandardKey selecting;
    CaretMove move;
};

constexpr std::array keys{
    StandardKeys{QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar,
                 CaretMove::Left},
    StandardKeys{QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, CaretMove::Right},
    StandardKeys{QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, CaretMove::Up},
    StandardKeys{QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, CaretMove::Down},
    StandardKeys{QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine,
                 CaretMove::LineStart},
    StandardKeys{QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, CaretMove::LineEnd},
    StandardKeys{QKeySequence::MoveToPreviousPage, QKeySequence::SelectPreviousPage,
                 CaretMove::PageUp},
    StandardKeys{QKeySequence::MoveToNextPage, QKeySequence::SelectNextPage, CaretMove::PageDown},
    StandardKeys{QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument,
                 CaretMove::Start},
    StandardKeys{QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument,
                 CaretMove::End},
};

qsizetype movedByLines(const TextLines& lines, qsizetype caret, qsizetype count) {
    const qsizetype from = lines.lineAt(caret);
    const qsizetype to = std::clamp<qsizetype>(from + count, 0, lines.count() - 1);
    return lines.start(to) + std::min<qsizetype>(caret - lines.start(from), lines.line(to).size());
}

qsizetype movedByCharacter(const TextLines& lines, qsizetype caret, CaretMove move) {
    const qsizetype number = lines.lineAt(caret);
    const qsizetype start = lines.start(number);
    const QTextLayout layout(lines.line(number).toString());
    const int offset = static_cast<int>(caret - start);
    if (move == CaretMove::Left) {
        return caret == start ? caret - 1 : start + layout.previousCursorPosition(offset);
    }
    return caret == start + lines.line(number).size() ? caret + 1
                                                      : start + layout.nextCursorPosition(offset);
}

} // namespace

std::optional<CaretKey> caretKeyOf(QKeyEvent& event) {
    for (const StandardKeys& key : keys) {
        if (event.matches(key.moving)) {
            return CaretKey{key.move, CaretKey::Selection::Ends};
        }
        if (event.matches(key.selecting)) {
            return CaretKey{key.move, CaretKey::Selection::Grows};
        }
    }
    return std::nullopt;
}

qsizetype movedCaret(const TextLines& lines, qsizetype caret, CaretMove move,
                     qsizetype linesOfPage) {
    const qsizetype number = lines.lineAt(caret);
    switch (move) {
    case CaretMove::Left:
    case CaretMove::Right:
        return movedByCharacter(lines, caret, move);
    case CaretMove::Up:
        return movedByLines(lines, caret, -1);
    case CaretMove::Down:
        return movedByLines(lines, caret, 1);
    case CaretMove::PageUp:
        return movedByLines(lines, caret, -linesOfPage);
    case CaretMove::PageDown:
        return movedByLines(lines, caret, linesOfPage);
    case CaretMove::LineStart:
        return lines.start(number);
    case CaretMove::LineEnd:
        return lines.start(number) + lines.line(number).size();
    case CaretMove::Start:
        return 0;
    case CaretMove::End:
        return lines.text().size();
    }
    return caret;
}

TextRange wordAt(const TextLines& lines, qsizetype position) {
    const qsizetype number = lines.lineAt(position);
    const qsizetype start = lines.start(number);
    const QString line = lines.line(number).toString();
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, line);
    words.setPosition(position - start);
    const qsizetype from = words.isAtBoundary() ? words.position() : words.toPreviousBoundary();
    const qsizetype to = words.toNextBoundary();
    return {start + std::max<qsizetype>(from, 0), start + (to < 0 ? line.size() : to)};
}

} // namespace quillet
