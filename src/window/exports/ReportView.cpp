#include "window/exports/ReportView.h"

#include "texts/Localized.h"
#include "window/widgets/CaretMoves.h"
#include "window/widgets/LetterWidth.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTextLayout>

namespace quillet {

namespace {

constexpr int margin = 4;
constexpr int dragScrollMilliseconds = 50;

} // namespace

ReportView::ReportView(QWidget* parent)
    : QAbstractScrollArea(parent) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    // Columns of figures run from left to right in every language.
    setLayoutDirection(Qt::LeftToRight);
}

ReportView::~ReportView() = default;

void ReportView::setLines(TextLines lines) {
    lines_ = std::move(lines);
    caret_ = 0;
    anchor_ = 0;
    updateScrollBars();
    viewport()->update();
    // Assistive programs read the new text from the view: a long one is no matter for a message.
    QAccessibleEvent event(this, QAccessible::VisibleDataChanged);
    QAccessible::updateAccessibility(&event);
}

void ReportView::select(qsizetype anchor, qsizetype caret) {
    const auto inText = [this](qsizetype position) {
        return std::clamp<qsizetype>(position, 0, text().size());
    };
    anchor_ = inText(anchor);
    caret_ = inText(caret);
    scrollTo(caret_);
    viewport()->update();
    tellSelection();
}

void ReportView::selectAll() {
    anchor_ = 0;
    caret_ = text().size();
    viewport()->update();
    tellSelection();
}

void ReportView::tellSelection() {
    QAccessibleTextSelectionEvent event(this, static_cast<int>(std::min(anchor_, caret_)),
                                        static_cast<int>(std::max(anchor_, caret_)));
    event.setCursorPosition(static_cast<int>(caret_));
    QAccessible::updateAccessibility(&event);
}

QString ReportView::selectedText() const {
    return text().sliced(std::min(anchor_, caret_), std::abs(caret_ - anchor_));
}

void ReportView::copy() const {
    if (anchor_ != caret_) {
        QGuiApplication::clipboard()->setText(selectedText());
    }
}

int ReportView::lineHeight() const {
    return fontMetrics().lineSpacing();
}

int ReportView::linesOnScreen() const {
    return std::max(1, (viewport()->height() - 2 * margin) / lineHeight());
}

void ReportView::updateScrollBars() {
    verticalScrollBar()->setPageStep(linesOnScreen());
    verticalScrollBar()->setRange(
        0, static_cast<int>(std::max<qsizetype>(0, lines_.count() - linesOnScreen())));
    const double width =
        static_cast<double>(lines_.longestLength()) * QFontMetricsF(font()).horizontalAdvance(u'0');
    horizontalScrollBar()->setSingleStep(letterWidth(fontMetrics()) * 4);
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(
        0, std::max(0, static_cast<int>(width) + 2 * margin - viewport()->width()));
}

QString ReportView::shownLine(qsizetype number) const {
    QString line = lines_.line(number).toString();
    // They end a line of a layout, but none of this text.
    line.replace(QChar::LineSeparator, u' ').replace(QChar::ParagraphSeparator, u' ');
    // The report's widths count it as one character; a jump would put the columns out of line.
    line.replace(QChar::Tabulation, u' ');
    return line;
}

void ReportView::layOut(QTextLayout& layout) const {
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

void ReportView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    const qsizetype first = verticalScrollBar()->value();
    const int left = margin - horizontalScrollBar()->value();
    for (qsizetype number = first; number < lines_.count(); ++number) {
        const int top = margin + static_cast<int>(number - first) * lineHeight();
        if (top > event->rect().bottom()) {
            return;
        }
        paintLine(painter, number, QPoint(left, top));
    }
}

void ReportView::paintLine(QPainter& painter, qsizetype number, QPoint place) const {
    const QString line = shownLine(number);
    const qsizetype start = lines_.start(number);
    QTextLayout layout(line, font(), viewport());
    layOut(layout);
    QList<QTextLayout::FormatRange> ranges;
    const qsizetype from = std::clamp<qsizetype>(std::min(anchor_, caret_) - start, 0, line.size());
    const qsizetype to = std::clamp<qsizetype>(std::max(anchor_, caret_) - start, 0, line.size());
    if (from < to) {
        const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
        QTextLayout::FormatRange range{static_cast<int>(from), static_cast<int>(to - from), {}};
        range.format.setBackground(palette().brush(group, QPalette::Highlight));
        range.format.setForeground(palette().brush(group, QPalette::HighlightedText));
        ranges.append(range);
    }
    layout.draw(&painter, place, ranges);
    if (hasFocus() && lines_.lineAt(caret_) == number) {
        layout.drawCursor(&painter, place, static_cast<int>(caret_ - start));
    }
}

QRect ReportView::characterRect(qsizetype position) const {
    const qsizetype number = lines_.lineAt(position);
    QTextLayout layout(shownLine(number), font(), viewport());
    layOut(layout);
    const int offset = static_cast<int>(position - lines_.start(number));
    const double left = layout.lineAt(0).cursorToX(offset);
    const double right = layout.lineAt(0).cursorToX(offset + 1);
    const qsizetype row = number - verticalScrollBar()->value();
    return QRect(margin - horizontalScrollBar()->value() + static_cast<int>(left),
                 margin + static_cast<int>(row) * lineHeight(),
                 std::max(1, static_cast<int>(right - left)), lineHeight());
}

qsizetype ReportView::positionAt(QPoint point) const {
    const int row = point.y() < 0 ? -1 : std::max(point.y() - margin, 0) / lineHeight();
    const qsizetype number =
        std::clamp<qsizetype>(verticalScrollBar()->value() + row, 0, lines_.count() - 1);
    QTextLayout layout(shownLine(number), font(), viewport());
    layOut(layout);
    return lines_.start(number) +
           layout.lineAt(0).xToCursor(point.x() - margin + horizontalScrollBar()->value());
}

void ReportView::scrollTo(qsizetype position) {
    const auto number = static_cast<int>(lines_.lineAt(position));
    QScrollBar& vertical = *verticalScrollBar();
    vertical.setValue(std::clamp(vertical.value(), number - linesOnScreen() + 1, number));
    const QRect rect = characterRect(position);
    QScrollBar& horizontal = *horizontalScrollBar();
    if (rect.left() < margin) {
        horizontal.setValue(horizontal.value() + rect.left() - margin);
    } else if (rect.right() > viewport()->width() - margin) {
        const int value = horizontal.value() + rect.right() - viewport()->width() + margin;
        // Wide characters reach farther than their number tells.
        horizontal.setMaximum(std::max(horizontal.maximum(), value));
        horizontal.setValue(value);
    }
}

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
    const TextRange word = wordAt(lines_, positionAt(event->pos()));
    select(word.start, word.end);
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
    } else if (const auto key = caretKeyOf(*event)) {
        const qsizetype position = movedCaret(lines_, caret_, key->move, linesOnScreen());
        select(key->selection == CaretKey::Selection::Grows ? anchor_ : position, position);
    } else {
        QAbstractScrollArea::keyPressEvent(event);
    }
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
