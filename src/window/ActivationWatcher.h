#pragma once

#include <QObject>

#include <functional>

namespace quillet {

/// Tells when the user comes back to the program from another one. The program's own dialogs do
/// not count, or an alert that coming back shows would bring up the next one for ever.
class ActivationWatcher : public QObject {
    Q_OBJECT

public:
    explicit ActivationWatcher(std::function<void()> becameActive, QObject* parent = nullptr);
    ~ActivationWatcher() override;
    Q_DISABLE_COPY_MOVE(ActivationWatcher)

private:
    void stateChanged(Qt::ApplicationState state);

    std::function<void()> becameActive_;
    bool wasLeft_ = false;
};

} // namespace quillet
