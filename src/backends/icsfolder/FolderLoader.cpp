#include "backends/icsfolder/FolderLoader.h"

#include "texts/Localized.h"

namespace quillet {

namespace {

/// How long the main thread waits for a slow folder before it shows what is remembered of it.
constexpr std::chrono::milliseconds longestWait{300};

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

} // namespace quillet
