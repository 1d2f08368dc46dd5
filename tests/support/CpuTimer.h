#pragma once

#include <ctime>

namespace quillet::test {

/// The time that this thread has spent working since the timer was made. Unlike that of a clock on
/// the wall it does not grow while other programs have the processor.
class CpuTimer {
public:
    [[nodiscard]] double milliseconds() const { return now() - start_; }

private:
    [[nodiscard]] static double now() {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    double start_ = now();
};

} // namespace quillet::test
