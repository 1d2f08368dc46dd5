#include "backends/icsfolder/FolderLoader.h"

#include "texts/Localized.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <future>
#include <malloc.h>
#include <tuple>
#include <utility>

namespace quillet {

using std::chrono::milliseconds;

namespace {

/// How long the main thread waits for a slow folder before it shows what is remembered of it.
constexpr milliseconds longestWait{300};

/// How often calendars are looked after that no notice would come from.
constexpr milliseconds pollingTime{2000};
/// Below this many files a second thread costs more than it gains.
constexpr std::size_t filesWorthASecondThread = 16;

/// A file's folder and name, behind any number of links.
std::pair<std::string, std::string> placeOf(const std::string& path) {
    char* resolved = ::realpath(path.c_str(), nullptr);
    const std::string place = resolved == nullptr ? path : resolved;
    std::free(resolved); // NOLINT(cppcoreguidelines-no-malloc)
    const std::size_t slash = place.rfind('/');
    return {place.substr(0, std::max<std::size_t>(slash, 1)), place.substr(slash + 1)};
}

bool isSameSource(const CalendarSource& left, const CalendarSource& right) {
    return left.kind == right.kind && *left.calendar == *right.calendar;
}

/// Checks each file once, of those that were named more than once.
void dropRepetitions(std::vector<FileCheck>& checks) {
    std::ranges::sort(checks, [](const FileCheck& left, const FileCheck& right) {
        return std::tie(left.calendarIndex, left.name, right.mode) <
               std::tie(right.calendarIndex, right.name, left.mode);
    });
    const auto repeated =
        std::ranges::unique(checks, [](const FileCheck& left, const FileCheck& right) {
            return left.calendarIndex == right.calendarIndex && left.name == right.name;
        });
    checks.erase(repeated.begin(), repeated.end());
}

} // namespace

FolderLoader::FolderLoader(std::string rootPath, const QTimeZone& zone, CalendarMemory memory,
                           std::function<void()> changed)
    : rootPath_(std::move(rootPath))
    , zones_(zone)
    , memory_(std::move(memory))
    , changed_(std::move(changed))
    , picture_(std::make_shared<const Picture>()) {
    const CalendarList remembered = memory_.calendars();
    thread_ = std::jthread([this](const std::stop_token& stop) { run(stop); });
    std::unique_lock lock(mutex_);
    if (remembered.empty()) {
        // Without any calendar the program would forget what it knows of each.
        listed_.wait(lock, [this] { return isListed_; });
    } else if (!listed_.wait_for(lock, longestWait, [this] { return isListed_; })) {
        isListingLate_ = true;
        auto known = std::make_shared<Picture>();
        known->calendars = remembered;
        picture_ = std::move(known);
    }
}

FolderLoader::~FolderLoader() {
    thread_.request_stop();
    watch_.wake();
    {
        const std::scoped_lock lock(mutex_);
        isStopped_ = true;
    }
    loadEnded_.notify_all();
}

CalendarList FolderLoader::calendars() const {
    return picture()->calendars;
}

EventList FolderLoader::events(const CalendarList& calendars, Instant from, Instant to) const {
    std::shared_ptr<const Picture> current;
    {
        std::unique_lock lock(mutex_);
        loadEnded_.wait(lock, [this] { return isStopped_ || picture_->isLoaded; });
        current = picture_;
    }
    std::vector<std::shared_ptr<const CalendarContents>> wanted;
    std::set<QString> asked;
    for (const auto& calendar : calendars) {
        const auto contents = current->contents.constFind(calendar->calendarIdentifier);
        if (contents != current->contents.constEnd() &&
            asked.insert(calendar->calendarIdentifier).second) {
            wanted.push_back(*contents);
        }
    }
    CalendarsAnswer answer = eventsOf(wanted, from, to);
    hasTooMany_ = !answer.isComplete;
    return std::move(answer.events);
}

std::vector<StoreProblem> FolderLoader::problems() const {
    std::vector<StoreProblem> problems = picture()->problems;
    if (hasTooMany_) {
        problems.insert(problems.begin(), {localized("Calendars"),
                                           localized("repetitions too many to show them all")});
    }
    return problems;
}

bool FolderLoader::isLoading() const {
    return !picture()->isLoaded;
}

std::shared_ptr<const FolderLoader::Picture> FolderLoader::picture() const {
    const std::scoped_lock lock(mutex_);
    return picture_;
}

void FolderLoader::findCalendarsFirst() {
    // Watching begins before looking, so that no change falls in between.
    (void)watch_.watchOnly({rootPath_});
    findCalendarsAgain({});
    if (rootProblem_) {
        listRemembered();
    }
    publish(false);
    bool isLate = false;
    {
        const std::scoped_lock lock(mutex_);
        isListed_ = true;
        isLate = isListingLate_;
    }
    listed_.notify_all();
    if (isLate) {
        changed_();
    }
}

void FolderLoader::run(const std::stop_token& stop) {
    findCalendarsFirst();
    (void)watchFolders();
    std::vector<FileCheck> checks;
    addListedFiles(checks);
    (void)readFiles(checks, stop);
    checks = {};
    // Reading leaves much free memory behind in small pieces.
    ::malloc_trim(0);
    publish(true);
    changed_();
    while (!stop.stop_requested()) {
        const bool isAnyAway = std::ranges::any_of(loaded_, [](const LoadedCalendar& calendar) {
            return calendar.source().kind == CalendarSource::Kind::Unreachable;
        });
        const bool needsPolling = isAnyAway || rootProblem_ || !isWatchComplete_;
        takeIn(watch_.wait(needsPolling ? pollingTime : milliseconds(-1)), stop);
    }
}

void FolderLoader::takeIn(const std::vector<FolderWatch::Change>& changes,
                          const std::stop_token& stop) {
    if (stop.stop_requested()) {
        return;
    }
    const auto before = picture();
    std::vector<FileCheck> checks;
    std::set<std::string> touched;
    // Without a change it was time to look after what cannot be watched.
    bool isRootTouched = changes.empty();
    for (const FolderWatch::Change& change : changes) {
        isRootTouched = touchesCalendars(change, touched) || isRootTouched;
    }
    if (isRootTouched) {
        if (!isWatchComplete_) {
            for (const LoadedCalendar& calendar : loaded_) {
                touched.insert(calendar.source().name);
            }
        }
        findCalendarsAgain(touched);
        if (watchFolders()) {
            // What happened in a new folder before it was watched.
            findCalendarsAgain({});
        }
        addListedFiles(checks);
    }
    for (const FolderWatch::Change& change : changes) {
        addChangedFile(change, checks);
    }
    dropRepetitions(checks);
    const bool areEventsChanged = readFiles(checks, stop);
    publish(true);
    const auto after = picture();
    if (areEventsChanged || after->problems != before->problems ||
        after->calendars != before->calendars) {
        changed_();
    }
}

bool FolderLoader::touchesCalendars(const FolderWatch::Change& change,
                                    std::set<std::string>& touched) const {
    bool isTouched = false;
    if (change.folder == rootPath_) {
        if (change.name.empty()) {
            for (const LoadedCalendar& calendar : loaded_) {
                touched.insert(calendar.source().name);
            }
        } else {
            touched.insert(change.name);
        }
        isTouched = true;
    }
    const auto watched = watchedByFolder_.find(change.folder);
    if (watched == watchedByFolder_.end()) {
        return isTouched;
    }
    for (const Watched& one : watched->second) {
        const bool isFolderItself = change.name.empty();
        const bool isDescription =
            one.fileName.empty() && (change.name == "displayname" || change.name == "color");
        const bool isCalendarFile = !one.fileName.empty() && one.fileName == change.name;
        if (isFolderItself || isDescription || isCalendarFile) {
            touched.insert(one.calendarName);
            isTouched = true;
        }
    }
    return isTouched;
}

void FolderLoader::addChangedFile(const FolderWatch::Change& change,
                                  std::vector<FileCheck>& checks) const {
    const auto watched = watchedByFolder_.find(change.folder);
    if (watched == watchedByFolder_.end() || !isEventFileName(change.name)) {
        return;
    }
    for (const Watched& one : watched->second) {
        if (!one.fileName.empty()) {
            continue;
        }
        const auto calendar = std::ranges::find(
            loaded_, one.calendarName, [](const LoadedCalendar& loaded) -> const std::string& {
                return loaded.source().name;
            });
        if (calendar != loaded_.end()) {
            checks.push_back({.calendarIndex = static_cast<std::size_t>(calendar - loaded_.begin()),
                              .name = change.name,
                              .mode = FileCheck::Mode::Always,
                              .stamp = {},
                              .content = {}});
        }
    }
}

std::unordered_map<std::string, std::size_t> FolderLoader::calendarsByName() const {
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t index = 0; index < loaded_.size(); ++index) {
        places.emplace(loaded_[index].source().name, index);
    }
    return places;
}

void FolderLoader::findCalendarsAgain(const std::set<std::string>& touched) {
    auto sources = findCalendars(rootPath_);
    if (!sources) {
        // What was known stays: a disk that is away for a moment takes no rates along.
        rootProblem_ = sources.error();
        return;
    }
    rootProblem_.reset();
    std::vector<LoadedCalendar> found;
    const auto knownByName = calendarsByName();
    for (CalendarSource& source : *sources) {
        const auto place = knownByName.find(source.name);
        const auto known = place == knownByName.end()
                               ? loaded_.end()
                               : loaded_.begin() + static_cast<std::ptrdiff_t>(place->second);
        if (known != loaded_.end() && source.kind == CalendarSource::Kind::Unreachable) {
            source.calendar = known->source().calendar;
        }
        if (known == loaded_.end() || !isSameSource(known->source(), source)) {
            found.emplace_back(std::move(source));
            continue;
        }
        if (touched.contains(source.name)) {
            known->requireListing();
        }
        // Every event points at the calendar that it was read with.
        source.calendar = known->source().calendar;
        known->setSource(std::move(source));
        found.push_back(std::move(*known));
    }
    loaded_ = std::move(found);
}

void FolderLoader::addListedFiles(std::vector<FileCheck>& checks) {
    for (std::size_t index = 0; index < loaded_.size(); ++index) {
        if (!loaded_[index].needsListing()) {
            continue;
        }
        for (std::string& name : loaded_[index].filesToCheck()) {
            checks.push_back(
                {.calendarIndex = index, .name = std::move(name), .stamp = {}, .content = {}});
        }
    }
}

bool FolderLoader::readFiles(std::vector<FileCheck>& checks, const std::stop_token& stop) {
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t index = next++; index < checks.size() && !stop.stop_requested();
             index = next++) {
            loaded_[checks[index].calendarIndex].check(checks[index], zones_, stop);
        }
    };
    std::future<void> helper;
    if (checks.size() >= filesWorthASecondThread) {
        helper = std::async(std::launch::async, work);
    }
    work();
    if (helper.valid()) {
        helper.get();
    }
    if (stop.stop_requested()) {
        return false;
    }
    bool isChanged = false;
    std::vector<std::vector<const FileCheck*>> byCalendar(loaded_.size());
    for (const FileCheck& check : checks) {
        byCalendar[check.calendarIndex].push_back(&check);
    }
    for (std::size_t index = 0; index < loaded_.size(); ++index) {
        isChanged = loaded_[index].apply(byCalendar[index], zones_) || isChanged;
    }
    return isChanged;
}

bool FolderLoader::watchFolders() {
    std::vector<std::string> folders{rootPath_};
    watchedByFolder_.clear();
    for (const LoadedCalendar& calendar : loaded_) {
        const CalendarSource& source = calendar.source();
        if (source.kind == CalendarSource::Kind::Folder) {
            watchedByFolder_[source.path].push_back({source.name, {}});
        } else if (source.kind == CalendarSource::Kind::File) {
            const auto [folder, file] = placeOf(source.path);
            watchedByFolder_[folder].push_back({source.name, file});
        }
    }
    for (const auto& [folder, watched] : watchedByFolder_) {
        folders.push_back(folder);
    }
    isWatchComplete_ = watch_.watchOnly(folders);
    std::ranges::sort(folders);
    const bool hasNewFolder = !std::ranges::includes(watchedFolders_, folders);
    watchedFolders_ = std::move(folders);
    return hasNewFolder;
}

void FolderLoader::listRemembered() {
    for (const auto& calendar : memory_.calendars()) {
        CalendarSource source;
        // No entry of a folder has an empty name: what the folder holds is read anew later.
        source.calendar = calendar;
        loaded_.emplace_back(std::move(source));
    }
}

void FolderLoader::publish(bool isLoaded) {
    auto next = std::make_shared<Picture>();
    next->isLoaded = isLoaded;
    if (rootProblem_) {
        next->problems.push_back(
            {QFile::decodeName(QByteArray::fromStdString(rootPath_)), *rootProblem_});
    }
    for (const LoadedCalendar& calendar : loaded_) {
        next->calendars.push_back(calendar.source().calendar);
        next->contents.insert(calendar.source().calendar->calendarIdentifier, calendar.contents());
        calendar.appendProblems(next->problems);
    }
    if (isLoaded && !rootProblem_) {
        // Before that the main thread may be waiting.
        memory_.keep(next->calendars);
    }
    {
        const std::scoped_lock lock(mutex_);
        picture_ = std::move(next);
    }
    loadEnded_.notify_all();
}

} // namespace quillet
