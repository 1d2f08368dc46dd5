#pragma once

#include <ctime>

namespace quillet::test {

/// The time that a thread, or all of the process, has spent working since the timer was made.
/// Unlike that of a clock on the wall it does not grow while other programs have the processor.
class CpuTimer {
public:
    enum class Of { ThisThread, Process };

    explicit CpuTimer(Of whose = Of::ThisThread)
        : clock_(whose == Of::ThisThread ? CLOCK_THREAD_CPUTIME_ID : CLOCK_PROCESS_CPUTIME_ID) {}

    [[nodiscard]] double milliseconds() const { return now() - start_; }

private:
    [[nodiscard]] double now() const {
        timespec time{};
        clock_gettime(clock_, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    clockid_t clock_;
    double start_ = now();
};

} // namespace quillet::test
