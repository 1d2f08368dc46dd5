#pragma once

#include <QFrame>
#include <QPointer>

namespace quillet {

/// A panel that hangs below a control of its window until the user turns to something else: by
/// Escape, by a click beside it, or by moving the focus on. Dialogs over the window leave it open.
class Popover : public QFrame {
    Q_OBJECT

public:
    explicit Popover(QWidget& window);
    ~Popover() override;
    Q_DISABLE_COPY_MOVE(Popover)

    /// Shows it below the anchor, inside the window, and gives it the focus.
    void showBelow(QWidget& anchor);
    /// Takes it away; the focus returns to where it was, unless it has gone elsewhere.
    void dismiss();

Q_SIGNALS:
    /// It is about to be taken away.
    void aboutToDismiss();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void place();
    void followFocus(QWidget* now);
    [[nodiscard]] bool holds(const QWidget* widget) const;

    QPointer<QWidget> anchor_;
    QPointer<QWidget> previousFocus_;
};

} // namespace quillet
