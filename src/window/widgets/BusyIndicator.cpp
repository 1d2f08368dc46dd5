#include "window/widgets/BusyIndicator.h"

#include "texts/Localized.h"
#include "window/widgets/LetterWidth.h"

#include <QEvent>
#include <QMainWindow>

namespace quillet {

namespace {

constexpr int delayMilliseconds = 200;

} // namespace

BusyIndicator::BusyIndicator(QMainWindow& window)
    : QProgressBar(&window)
    , window_(window) {
    setRange(0, 0);
    setTextVisible(false);
    setAccessibleName(localized("Fetching Events"));
    resize(letterWidth(fontMetrics()) * 24, sizeHint().height());
    hide();
    delay_.setSingleShot(true);
    delay_.setInterval(delayMilliseconds);
    connect(&delay_, &QTimer::timeout, this, &BusyIndicator::showCentred);
    window_.installEventFilter(this);
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
    const QWidget* content = window_.centralWidget();
    const QRect area = content != nullptr ? content->geometry() : window_.rect();
    move(area.center() - rect().center());
}

} // namespace quillet
