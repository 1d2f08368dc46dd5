#include "window/ActivationWatcher.h"

#include <QApplication>
#include <QTimer>

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
    if (std::exchange(wasLeft_, false)) {
        // An alert that opened in the midst of the change of focus would not get the keys.
        QTimer::singleShot(0, this, [this] {
            if (QApplication::activeModalWidget() == nullptr) {
                becameActive_();
            }
        });
    }
}

} // namespace quillet
