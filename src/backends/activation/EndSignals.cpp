#include "backends/activation/EndSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <thread>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace quillet {

namespace {

constexpr std::array endSignals{SIGTERM, SIGINT, SIGHUP};

/// A handler may do nothing but write into the one end; the event loop listens at the other. Open
/// for as long as the process lives, for a handler may still be running.
std::array<int, 2>& pipeEnds() {
    static std::array ends{-1, -1};
    return ends;
}

int openPipe() {
    if (pipeEnds().front() < 0) {
        std::ignore = ::pipe2(pipeEnds().data(), O_CLOEXEC | O_NONBLOCK);
    }
    return pipeEnds().front();
}

void passOn(int /*signal*/) {
    const int error = errno;
    std::ignore = ::write(pipeEnds().back(), "", 1);
    errno = error;
}

} // namespace

void endWithin(std::chrono::milliseconds time, int status) {
    std::thread([time, status] {
        std::this_thread::sleep_for(time);
        std::_Exit(status);
    }).detach();
}

EndSignals::EndSignals(std::function<void()> end)
    : notifier_(openPipe(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_,
                     [this, end = std::move(end)] {
                         notifier_.setEnabled(false);
                         char byte = 0;
                         std::ignore = ::read(pipeEnds().front(), &byte, 1);
                         end();
                     });
    for (const int signal : endSignals) {
        struct sigaction before{};
        struct sigaction action{};
        action.sa_handler = passOn;
        // The next of its kind meets the system's own handler.
        action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
        if (::sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) {
            ::sigaction(signal, &action, nullptr);
        }
    }
}

EndSignals::~EndSignals() {
    for (const int signal : endSignals) {
        struct sigaction current{};
        if (::sigaction(signal, nullptr, &current) == 0 && current.sa_handler == passOn) {
            std::ignore = std::signal(signal, SIG_DFL);
        }
    }
}

} // namespace quillet
