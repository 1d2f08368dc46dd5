#include "window/ActivationWatcher.h"

#include <QApplication>

namespace quillet {

ActivationWatcher::ActivationWatcher(std::function<void()> becameActive, QObject* parent)
    : QObject(parent)
    , becameActive_(std::move(becameActive)) {
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            &ActivationWatcher::stateChanged);
}

ActivationWatcher::~ActivationWatcher() = default;

void ActivationWatcher::stateChanged(Qt::ApplicationState state) {
    if (state != Qt::ApplicationActive) {
        wasLeft_ = QApplication::activeModalWidget() == nullptr;
        return;
    }
    if (std::exchange(wasLeft_, false) && QApplication::activeModalWidget() == nullptr) {
        becameActive_();
    }
}

} // namespace quillet
