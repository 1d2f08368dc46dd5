#pragma once

#include "backends/activation/DesktopRequest.h"

#include <QDBusConnection>

#include <chrono>
#include <functional>

namespace quillet {

/// Hands a request to the one program of the session, which it starts when none runs. For desktops
/// that start programs by their command line: the program itself reads none.
class RequestForwarder {
public:
    enum class Outcome {
        Delivered,
        /// There is no session bus to deliver by. Nothing was started.
        NoBus,
        /// The program could not be started, ended again, or does not answer.
        NoProgram
    };

    /// `startProgram` answers whether the program was started.
    RequestForwarder(QDBusConnection bus, std::function<bool()> startProgram);

    /// Waits for a program that is starting or ending, but not longer than for the patience.
    [[nodiscard]] Outcome forward(const DesktopRequest& request, const QString& token,
                                  std::chrono::milliseconds patience);

private:
    QDBusConnection bus_;
    std::function<bool()> startProgram_;
};

} // namespace quillet
