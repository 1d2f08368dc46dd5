#pragma once

#include <QProgressBar>
#include <QTimer>

class QMainWindow;

namespace quillet {

/// Shows, in the middle of a window's content and above all else there, that a fetch runs, once
/// that takes long enough to be felt.
class BusyIndicator : public QProgressBar {
    Q_OBJECT

public:
    /// Becomes the window's.
    explicit BusyIndicator(QMainWindow& window);
    ~BusyIndicator() override;
    Q_DISABLE_COPY_MOVE(BusyIndicator)

    /// Starting what runs already changes nothing.
    void start();
    void stop();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showCentred();
    void centre();

    QMainWindow& window_;
    QTimer delay_;
};

} // namespace quillet
