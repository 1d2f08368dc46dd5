#pragma once

#include <QProgressBar>
#include <QTimer>

namespace quillet {

/// Shows, in the centre of its parent and above all else there, that a fetch runs, once that takes
/// long enough to be felt.
class BusyIndicator : public QProgressBar {
    Q_OBJECT

public:
    explicit BusyIndicator(QWidget* parent);
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

    QTimer delay_;
};

} // namespace quillet
