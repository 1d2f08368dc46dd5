#pragma once

#include <QSocketNotifier>

#include <chrono>
#include <functional>

namespace quillet {

/// Ends the process with that status when it has not ended by itself by then. For the end of a
/// program that has saved everything: what its threads still work at is of no use to anybody.
void endWithin(std::chrono::milliseconds time, int status);

/// What a session, a terminal or a service manager sends to make the program end: SIGTERM, SIGINT
/// and SIGHUP. While this lives, the first of them calls back in the event loop of the thread that
/// made it, so that the program can end in order; another one ends a program that hangs as it would
/// have ended without. A signal that the starter had ignored, as nohup does, stays ignored.
///
/// One object lives at a time.
class EndSignals {
public:
    explicit EndSignals(std::function<void()> end);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    QSocketNotifier notifier_;
};

} // namespace quillet
