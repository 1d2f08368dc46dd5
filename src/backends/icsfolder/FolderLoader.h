#pragma once

#include "backends/combined/CalendarMemory.h"
#include "backends/icsfolder/FolderWatch.h"
#include "backends/icsfolder/LoadedCalendar.h"
#include "platform/EventStore.h"

#include <QHash>
#include <QTimeZone>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <stop_token>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

namespace quillet {

/// Reads the calendars of a root folder on a thread of its own and keeps them up to date. Its
/// answers come from an immutable picture of all calendars, which is replaced as a whole.
class FolderLoader {
public:
    /// Waits a moment for the calendars to be found, or longer when the memory holds none; their
    /// events follow. Until they are found, and while the root folder cannot be reached, the
    /// calendars are those that the memory holds. `changed` is called on the loader's
    /// thread after each change, and once when the first load has ended.
    FolderLoader(std::string rootPath, const QTimeZone& zone, CalendarMemory memory,
                 std::function<void()> changed);
    ~FolderLoader();
    FolderLoader(const FolderLoader&) = delete;
    FolderLoader& operator=(const FolderLoader&) = delete;

    /// All of these may be called from any thread.
    [[nodiscard]] CalendarList calendars() const;
    /// Waits for the first load to end.
    [[nodiscard]] EventList events(const CalendarList& calendars, Instant from, Instant to) const;
    [[nodiscard]] std::vector<StoreProblem> problems() const;
    [[nodiscard]] bool isLoading() const;

private:
    struct Picture {
        CalendarList calendars;
        QHash<QString, std::shared_ptr<const CalendarContents>> contents;
        std::vector<StoreProblem> problems;
        bool isLoaded = false;
    };
    /// A calendar that changes in a folder bring up to date: any for a folder of events, one file
    /// of that name for a calendar that is a file.
    struct Watched {
        std::string calendarName;
        std::string fileName;
    };

    void run(const std::stop_token& stop);
    void findCalendarsFirst();
    void takeIn(const std::vector<FolderWatch::Change>& changes, const std::stop_token& stop);
    /// Whether a change means more than other events in a folder; says which entries of the root
    /// are then to be looked at.
    [[nodiscard]] bool touchesCalendars(const FolderWatch::Change& change,
                                        std::set<std::string>& touched) const;
    void addChangedFile(const FolderWatch::Change& change, std::vector<FileCheck>& checks) const;
    /// Finds the calendars anew. Those that are new or touched then need listing.
    void findCalendarsAgain(const std::set<std::string>& touched);
    /// Where each calendar stands among those that are loaded, by its entry in the root folder.
    [[nodiscard]] std::unordered_map<std::string, std::size_t> calendarsByName() const;
    /// Watches the folders of all calendars. Whether one of them was not watched before.
    bool watchFolders();
    /// Adds the files of all calendars that need listing.
    void addListedFiles(std::vector<FileCheck>& checks);
    /// Whether any event or problem changed.
    [[nodiscard]] bool readFiles(std::vector<FileCheck>& checks, const std::stop_token& stop);
    void listRemembered();
    void publish(bool isLoaded);
    [[nodiscard]] std::shared_ptr<const Picture> picture() const;

    std::string rootPath_;
    ZoneCatalog zones_;
    CalendarMemory memory_;
    std::function<void()> changed_;
    std::vector<LoadedCalendar> loaded_;
    std::optional<QString> rootProblem_;
    std::map<std::string, std::vector<Watched>> watchedByFolder_;
    bool isWatchComplete_ = false;
    std::vector<std::string> watchedFolders_;
    FolderWatch watch_;

    mutable std::mutex mutex_;
    mutable std::condition_variable loadEnded_;
    std::shared_ptr<const Picture> picture_;
    bool isStopped_ = false;
    std::condition_variable listed_;
    bool isListed_ = false;
    /// Whether the constructor returned before the calendars were found.
    bool isListingLate_ = false;
    mutable std::atomic<bool> hasTooMany_ = false;
    std::jthread thread_;
};

} // namespace quillet
