#pragma once

#include <csignal>
#include <sys/resource.h>
#include <tuple>

namespace quillet::test {

/// A disk on which, as long as this lives, no file of the process can grow beyond so many bytes.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
        : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &oldLimit_);
        const rlimit limit{bytes, oldLimit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &oldLimit_);
        std::ignore = std::signal(SIGXFSZ, oldHandler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit oldLimit_{};
    void (*oldHandler_)(int);
};

} // namespace quillet::test
