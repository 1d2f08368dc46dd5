#pragma once

#include <QScrollArea>

namespace quillet {

/// Holds panes that are scrolled where the screen is too small for them: at large scale factors and
/// with large letters a window would reach beyond its edges. Elsewhere it is never smaller than
/// what it holds, and is not seen.
class PaneScroller final : public QScrollArea {
    Q_OBJECT

public:
    /// Takes the content over.
    PaneScroller(QWidget& content, QWidget* parent);
    ~PaneScroller() override;
    Q_DISABLE_COPY_MOVE(PaneScroller)

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Of the screen, less what a window has around its panes.
    [[nodiscard]] QSize roomOnScreen() const;
};

} // namespace quillet
