#include "texts/Localized.h"
#include "window/exports/ReportView.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <optional>

namespace quillet {

namespace {

constexpr int dragScrollMilliseconds = 50;

} // namespace

bool ReportView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
            // Meant for this text, not for what the window's menus do with the same keys.
            event->accept();
            return true;
        }
    }
    return QAbstractScrollArea::event(event);
}

void ReportView::resizeEvent(QResizeEvent* /*event*/) {
    updateScrollBars();
}

void ReportView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateScrollBars();
    }
}

void ReportView::focusInEvent(QFocusEvent* /*event*/) {
    viewport()->update();
}

void ReportView::focusOutEvent(QFocusEvent* /*event*/) {
    viewport()->update();
}

void ReportView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        const qsizetype position = positionAt(event->pos());
        select(event->modifiers().testFlag(Qt::ShiftModifier) ? anchor_ : position, position);
    }
}

void ReportView::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    dragPoint_ = event->pos();
    if (viewport()->rect().contains(dragPoint_)) {
        dragScrolling_.stop();
    } else if (!dragScrolling_.isActive()) {
        dragScrolling_.start(dragScrollMilliseconds, this);
    }
    select(anchor_, positionAt(dragPoint_));
}

void ReportView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    dragScrolling_.stop();
}

void ReportView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == dragScrolling_.timerId()) {
        select(anchor_, positionAt(dragPoint_));
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

void ReportView::mouseDoubleClickEvent(QMouseEvent* event) {
    const qsizetype position = positionAt(event->pos());
    const qsizetype start = lines_.start(lines_.lineAt(position));
    const QString line = lines_.line(lines_.lineAt(position)).toString();
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, line);
    words.setPosition(position - start);
    const qsizetype from = words.isAtBoundary() ? words.position() : words.toPreviousBoundary();
    const qsizetype to = words.toNextBoundary();
    select(start + std::max<qsizetype>(from, 0), start + (to < 0 ? line.size() : to));
}

qsizetype ReportView::movedByLines(qsizetype lines) const {
    const qsizetype from = lines_.lineAt(caret_);
    const qsizetype to = std::clamp<qsizetype>(from + lines, 0, lines_.count() - 1);
    return lines_.start(to) +
           std::min<qsizetype>(caret_ - lines_.start(from), lines_.line(to).size());
}

qsizetype ReportView::moved(Move move) const {
    const qsizetype number = lines_.lineAt(caret_);
    const qsizetype start = lines_.start(number);
    const QTextLayout layout(lines_.line(number).toString());
    const int offset = static_cast<int>(caret_ - start);
    switch (move) {
    case Move::Left:
        return caret_ == start ? caret_ - 1 : start + layout.previousCursorPosition(offset);
    case Move::Right:
        return caret_ == start + lines_.line(number).size()
                   ? caret_ + 1
                   : start + layout.nextCursorPosition(offset);
    case Move::Up:
        return movedByLines(-1);
    case Move::Down:
        return movedByLines(1);
    case Move::PageUp:
        return movedByLines(-linesOnScreen());
    case Move::PageDown:
        return movedByLines(linesOnScreen());
    case Move::LineStart:
        return start;
    case Move::LineEnd:
        return start + lines_.line(number).size();
    case Move::Start:
        return 0;
    case Move::End:
        return text().size();
    }
    return caret_;
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    struct Key {
        QKeySequence::StandardKey moving;
        QKeySequence::StandardKey selecting;
        Move move;
    };
    using enum QKeySequence::StandardKey;
    static constexpr std::array keys{
        Key{MoveToPreviousChar, SelectPreviousChar, Move::Left},
        Key{MoveToNextChar, SelectNextChar, Move::Right},
        Key{MoveToPreviousLine, SelectPreviousLine, Move::Up},
        Key{MoveToNextLine, SelectNextLine, Move::Down},
        Key{MoveToStartOfLine, SelectStartOfLine, Move::LineStart},
        Key{MoveToEndOfLine, SelectEndOfLine, Move::LineEnd},
        Key{MoveToPreviousPage, SelectPreviousPage, Move::PageUp},
        Key{MoveToNextPage, SelectNextPage, Move::PageDown},
        Key{MoveToStartOfDocument, SelectStartOfDocument, Move::Start},
        Key{MoveToEndOfDocument, SelectEndOfDocument, Move::End},
    };
    if (event->matches(QKeySequence::Copy)) {
        copy();
        return;
    }
    if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
        return;
    }
    for (const Key& key : keys) {
        if (event->matches(key.moving)) {
            const qsizetype position = moved(key.move);
            select(position, position);
            return;
        }
        if (event->matches(key.selecting)) {
            select(anchor_, moved(key.move));
            return;
        }
    }
    QAbstractScrollArea::keyPressEvent(event);
}

void ReportView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    QAction* copyAction = menu.addAction(localized("&Copy"), this, &ReportView::copy);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setEnabled(anchor_ != caret_);
    QAction* allAction = menu.addAction(localized("Select &All"), this, &ReportView::selectAll);
    allAction->setShortcut(QKeySequence::SelectAll);
    menu.exec(event->globalPos());
}

} // namespace quillet
