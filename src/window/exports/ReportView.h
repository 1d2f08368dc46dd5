#pragma once

#include "window/widgets/TextLines.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>

class QTextLayout;

namespace quillet {

/// A long plain text in a fixed-width font, read only: only the lines on screen are laid out, so
/// that a text of any length is shown at once. It can be read, selected and copied by mouse, by
/// keyboard and by assistive programs.
class ReportView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit ReportView(QWidget* parent = nullptr);
    ~ReportView() override;
    Q_DISABLE_COPY_MOVE(ReportView)

    /// Shows another text where the old one was scrolled to. The caret returns to the start.
    void setLines(TextLines lines);
    [[nodiscard]] const TextLines& lines() const { return lines_; }
    [[nodiscard]] const QString& text() const { return lines_.text(); }

    /// Where the caret stands, and where the selection that ends there began.
    [[nodiscard]] qsizetype caret() const { return caret_; }
    [[nodiscard]] qsizetype anchor() const { return anchor_; }
    /// Positions outside the text are moved into it. The caret is scrolled into view.
    void select(qsizetype anchor, qsizetype caret);
    void selectAll();
    [[nodiscard]] QString selectedText() const;
    /// Puts the selected text on the clipboard; nothing selected changes nothing there.
    Q_INVOKABLE void copy() const;

    /// In the coordinates of the viewport.
    [[nodiscard]] QRect characterRect(qsizetype position) const;
    [[nodiscard]] qsizetype positionAt(QPoint point) const;
    void scrollTo(qsizetype position);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] int linesOnScreen() const;
    /// As long as the line itself.
    [[nodiscard]] QString shownLine(qsizetype number) const;
    void layOut(QTextLayout& layout) const;
    void paintLine(QPainter& painter, qsizetype number, QPoint place) const;
    void updateScrollBars();
    void tellSelection();

    TextLines lines_;
    qsizetype caret_ = 0;
    qsizetype anchor_ = 0;
    QPoint dragPoint_;
    /// Runs while the mouse selects beyond the edge.
    QBasicTimer dragScrolling_;
};

} // namespace quillet
