#include "window/main/ActivationWatcher.h"

#include <QApplication>
#include <QTimer>

namespace quillet {

ActivationWatcher::ActivationWatcher(const Clock& clock, std::function<void()> becameActive,
                                     QObject* parent)
    : QObject(parent)
    , clock_(clock)
    , becameActive_(std::move(becameActive)) {
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            &ActivationWatcher::stateChanged);
}

ActivationWatcher::~ActivationWatcher() = default;

void ActivationWatcher::stateChanged(Qt::ApplicationState state) {
    if (state != Qt::ApplicationActive) {
        left_.reset();
        if (QApplication::activeModalWidget() == nullptr) {
            left_ = clock_.now();
        }
        return;
    }
    const auto left = std::exchange(left_, std::nullopt);
    if (left && clock_.now() - *left >= shortestAbsence) {
        // An alert that opened in the midst of the change of focus would not get the keys.
        QTimer::singleShot(0, this, [this] {
            if (QApplication::activeModalWidget() == nullptr) {
                becameActive_();
            }
        });
    }
}

} // namespace quillet
