#include "window/BusyIndicator.h"

#include "platform/Localized.h"
#include "window/SettingsBinding.h"

namespace quillet {

namespace {

constexpr int delayMilliseconds = 200;
const QString progressKey = QStringLiteral("isProgressIndicatorOn");

} // namespace

BusyIndicator::BusyIndicator(SettingsStore& settings, QWidget* parent)
    : QProgressBar(parent) {
    setRange(0, 0);
    setTextVisible(false);
    setAccessibleName(localized("Fetching Events"));
    resize(fontMetrics().averageCharWidth() * 24, sizeHint().height());
    hide();
    delay_.setSingleShot(true);
    delay_.setInterval(delayMilliseconds);
    connect(&delay_, &QTimer::timeout, this, &BusyIndicator::showCentred);
    observeWhileAlive(*this, settings, progressKey, [this, &settings] {
        if (!boolForKey(settings, progressKey)) {
            delay_.stop();
            hide();
        } else if (!delay_.isActive() && !isVisible()) {
            delay_.start();
        }
    });
}

BusyIndicator::~BusyIndicator() = default;

void BusyIndicator::showCentred() {
    move(parentWidget()->rect().center() - rect().center());
    raise();
    show();
}

} // namespace quillet
