#include "backends/icsfolder/FolderWatch.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <poll.h>
#include <set>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace quillet {

using std::chrono::milliseconds;

namespace {

constexpr std::uint32_t wantedChanges = IN_CLOSE_WRITE | IN_MODIFY | IN_ATTRIB | IN_CREATE |
                                        IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF |
                                        IN_MOVE_SELF;
/// A program that writes many files is left to finish, but the user waits for no more than a
/// second.
constexpr milliseconds quietTime{100};
constexpr milliseconds longestGathering{400};

} // namespace

FolderWatch::FolderWatch()
    : notifier_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    , waker_(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}

FolderWatch::~FolderWatch() {
    for (const int descriptor : {notifier_, waker_}) {
        if (descriptor >= 0) {
            ::close(descriptor);
        }
    }
}

bool FolderWatch::watchOnly(const std::vector<std::string>& folders) {
    std::map<std::string, int> wanted;
    bool isComplete = notifier_ >= 0;
    for (const std::string& folder : folders) {
        // Watching a folder again answers the watch that it has.
        const int watch = ::inotify_add_watch(notifier_, folder.c_str(), wantedChanges);
        if (watch >= 0) {
            wanted.emplace(folder, watch);
        } else {
            isComplete = false;
        }
    }
    std::set<int> used;
    for (const auto& [folder, watch] : wanted) {
        used.insert(watch);
    }
    for (const auto& [folder, watch] : watchByFolder_) {
        if (!used.contains(watch)) {
            ::inotify_rm_watch(notifier_, watch);
        }
    }
    watchByFolder_ = std::move(wanted);
    return isComplete;
}

std::vector<FolderWatch::Change> FolderWatch::wait(milliseconds longest) {
    std::vector<Change> changes;
    if (waitOnce(longest) != Wakeup::Changes) {
        return changes;
    }
    const auto end = std::chrono::steady_clock::now() + longestGathering;
    do {
        readInto(changes);
    } while (std::chrono::steady_clock::now() < end && waitOnce(quietTime) == Wakeup::Changes);
    return changes;
}

void FolderWatch::wake() const {
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(waker_, &one, sizeof one);
}

FolderWatch::Wakeup FolderWatch::waitOnce(milliseconds longest) {
    std::array<pollfd, 2> descriptors{{{notifier_, POLLIN, 0}, {waker_, POLLIN, 0}}};
    const int ready =
        ::poll(descriptors.data(), descriptors.size(), static_cast<int>(longest.count()));
    if (ready > 0 && (descriptors[1].revents & POLLIN) != 0) {
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t size = ::read(waker_, &count, sizeof count);
        return Wakeup::Woken;
    }
    return ready > 0 ? Wakeup::Changes : Wakeup::TimeOut;
}

void FolderWatch::readInto(std::vector<Change>& changes) {
    alignas(inotify_event) std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t size = ::read(notifier_, buffer.data(), buffer.size());
        if (size <= 0) {
            return;
        }
        for (const char* place = buffer.data(); place < buffer.data() + size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(place);
            place += sizeof(inotify_event) + event->len;
            const bool isLost = (event->mask & IN_Q_OVERFLOW) != 0;
            for (const auto& [folder, watch] : watchByFolder_) {
                if (isLost || watch == event->wd) {
                    changes.push_back({folder, isLost || event->len == 0 ? "" : event->name});
                }
            }
        }
    }
}

} // namespace quillet
