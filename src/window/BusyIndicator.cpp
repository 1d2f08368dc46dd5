#include "window/BusyIndicator.h"

#include "platform/Localized.h"

#include <QEvent>

namespace quillet {

namespace {

constexpr int delayMilliseconds = 200;

} // namespace

BusyIndicator::BusyIndicator(QWidget* parent)
    : QProgressBar(parent) {
    setRange(0, 0);
    setTextVisible(false);
    setAccessibleName(localized("Fetching Events"));
    resize(fontMetrics().averageCharWidth() * 24, sizeHint().height());
    hide();
    delay_.setSingleShot(true);
    delay_.setInterval(delayMilliseconds);
    connect(&delay_, &QTimer::timeout, this, &BusyIndicator::showCentred);
    parent->installEventFilter(this);
}

BusyIndicator::~BusyIndicator() = default;

void BusyIndicator::start() {
    if (!delay_.isActive() && !isVisible()) {
        delay_.start();
    }
}

void BusyIndicator::stop() {
    delay_.stop();
    hide();
}

bool BusyIndicator::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        centre();
    }
    return QProgressBar::eventFilter(watched, event);
}

void BusyIndicator::showCentred() {
    centre();
    raise();
    show();
}

void BusyIndicator::centre() {
    move(parentWidget()->rect().center() - rect().center());
}

} // namespace quillet
