#include "window/exports/StyledTextView.h"

#include <QElapsedTimer>
#include <QScrollBar>

namespace quillet {

namespace {

/// Half of a frame at sixty a second.
constexpr qint64 sliceMilliseconds = 8;

} // namespace

StyledTextView::StyledTextView(QWidget* parent)
    : QPlainTextEdit(parent) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // Tab leaves the text, as from every other control.
    setTabChangesFocus(true);
    filling_.setInterval(0);
    connect(&filling_, &QTimer::timeout, this, &StyledTextView::fillIn);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this,
            [this] { scrollPosition_.reset(); });
}

StyledTextView::~StyledTextView() = default;

void StyledTextView::show(StyledText text) {
    scrollPosition_ = verticalScrollBar()->value();
    text_ = std::move(text);
    nextPart_ = 0;
    clear();
    filling_.start();
    fillIn();
}

void StyledTextView::keyPressEvent(QKeyEvent* event) {
    scrollPosition_.reset();
    QPlainTextEdit::keyPressEvent(event);
}

void StyledTextView::fillIn() {
    QElapsedTimer slice;
    slice.start();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    // At least one part each time, however busy the machine is.
    for (bool isFirst = true;
         nextPart_ < text_.parts.size() && (isFirst || slice.elapsed() < sliceMilliseconds);
         isFirst = false) {
        const StyledText::Part& part = text_.parts[nextPart_++];
        QTextCharFormat format;
        if (part.style == StyledText::Style::Bold) {
            format.setFontWeight(QFont::Bold);
        }
        cursor.insertText(part.text, format);
    }
    if (scrollPosition_) {
        verticalScrollBar()->setValue(*scrollPosition_);
    }
    if (nextPart_ == text_.parts.size()) {
        filling_.stop();
        text_ = {};
        nextPart_ = 0;
        scrollPosition_.reset();
    }
}

} // namespace quillet
