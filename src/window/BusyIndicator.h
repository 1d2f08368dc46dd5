#pragma once

#include "platform/SettingsStore.h"

#include <QProgressBar>
#include <QTimer>

namespace quillet {

/// Shows, in the centre of its parent, that a fetch runs, once that takes long enough to be felt.
class BusyIndicator : public QProgressBar {
    Q_OBJECT

public:
    BusyIndicator(SettingsStore& settings, QWidget* parent);
    ~BusyIndicator() override;
    Q_DISABLE_COPY_MOVE(BusyIndicator)

private:
    void showCentred();

    QTimer delay_;
};

} // namespace quillet
