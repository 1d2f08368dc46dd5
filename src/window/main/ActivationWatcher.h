#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <optional>

namespace quillet {

/// Tells when the user comes back to the program from another one. The program's own dialogs do
/// not count, or an alert that coming back shows would bring up the next one for ever; nor does an
/// absence under shortestAbsence: a busy window manager takes the focus away for a moment when a
/// dialog has closed.
class ActivationWatcher : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds shortestAbsence{500};

    ActivationWatcher(const Clock& clock, std::function<void()> becameActive,
                      QObject* parent = nullptr);
    ~ActivationWatcher() override;
    Q_DISABLE_COPY_MOVE(ActivationWatcher)

private:
    void stateChanged(Qt::ApplicationState state);

    const Clock& clock_;
    std::function<void()> becameActive_;
    std::optional<Instant> left_;
};

} // namespace quillet
