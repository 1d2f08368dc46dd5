#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace quillet {

/// Tells which entries of folders change, by inotify. One thread only, but for wake().
class FolderWatch {
public:
    struct Change {
        /// The watched folder, as it was given.
        std::string folder;
        /// The entry in it; empty when the folder itself was moved or removed, or when changes were
        /// lost, so that everything in the folder has to be looked at.
        std::string name;
    };

    FolderWatch();
    ~FolderWatch();
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    /// Watches exactly these folders from now on. False when one of them cannot be watched.
    bool watchOnly(const std::vector<std::string>& folders);
    /// Waits for changes, then until none has come for a little while, but not for long. Empty when
    /// woken or when the time ran out; a negative time never runs out.
    [[nodiscard]] std::vector<Change> wait(std::chrono::milliseconds longest);
    /// Ends the running or the next wait. Callable from any thread.
    void wake() const;

private:
    enum class Wakeup { Changes, Woken, TimeOut };

    [[nodiscard]] Wakeup waitOnce(std::chrono::milliseconds longest);
    void readInto(std::vector<Change>& changes);

    int notifier_;
    int waker_;
    std::map<std::string, int> watchByFolder_;
};

} // namespace quillet
