#pragma once

#include "results/EventNotesViewController.h"

#include <QPlainTextEdit>
#include <QTimer>

#include <optional>

namespace quillet {

/// Shows a text with bold headings, read only. A long one is filled in bit by bit, so that the
/// window stays alive.
class StyledTextView : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit StyledTextView(QWidget* parent = nullptr);
    ~StyledTextView() override;
    Q_DISABLE_COPY_MOVE(StyledTextView)

    /// Replaces the text; what was scrolled to stays where the new text reaches as far.
    void show(StyledText text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fillIn();

    StyledText text_;
    std::size_t nextPart_ = 0;
    /// Where to return to once the text reaches as far; given up when the user scrolls.
    std::optional<int> scrollPosition_;
    QTimer filling_;
};

} // namespace quillet
