#include "backends/icsfolder/LoadedCalendar.h"

#include "texts/Localized.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <new>
#include <sys/stat.h>

namespace quillet {

namespace {

std::expected<std::vector<std::string>, QString> eventFilesIn(const std::string& path) {
    DIR* folder = ::opendir(path.c_str());
    if (folder == nullptr) {
        return std::unexpected(QString::fromLocal8Bit(std::strerror(errno)));
    }
    std::vector<std::string> names;
    while (const dirent* entry = ::readdir(folder)) {
        if (isEventFileName(entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    ::closedir(folder);
    return names;
}

std::optional<FileStamp> stampOf(const std::string& path) {
    struct stat status{};
    if (::stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return FileStamp{status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size, status.st_ino};
}

std::shared_ptr<const IcsFile> unreadable(const QString& reason) {
    auto file = std::make_shared<IcsFile>();
    file->problems.append(reason);
    return file;
}

bool holdsEvents(const std::shared_ptr<const IcsFile>& file) {
    return !file->events.empty() || !file->series.empty();
}

std::vector<const IcsFile*> pointersTo(const std::vector<std::shared_ptr<const IcsFile>>& files) {
    std::vector<const IcsFile*> pointers;
    pointers.reserve(files.size());
    for (const auto& file : files) {
        pointers.push_back(file.get());
    }
    return pointers;
}

/// A file that fails costs its own events, whatever it fails of.
std::shared_ptr<const IcsFile> read(const std::string& path, const CalendarSource& source,
                                    ZoneCatalog& zones, const std::stop_token& stop) {
    try {
        auto bytes = readWholeFile(path);
        if (!bytes) {
            return unreadable(bytes.error());
        }
        auto file =
            std::make_shared<IcsFile>(readIcs(*std::move(bytes), source.calendar, zones, stop));
        if (source.kind == CalendarSource::Kind::File) {
            // No other file can hold the same.
            file->families = {};
        }
        return file;
    } catch (const std::bad_alloc&) {
        return unreadable(localized("too large for the memory that is left"));
    }
}

} // namespace

LoadedCalendar::LoadedCalendar(CalendarSource source)
    : source_(std::move(source))
    , contents_(std::make_shared<const CalendarContents>()) {}

std::vector<std::string> LoadedCalendar::filesToCheck() {
    needsListing_ = false;
    listingProblem_.reset();
    std::vector<std::string> names;
    if (source_.kind == CalendarSource::Kind::File) {
        names.emplace_back();
    } else if (source_.kind == CalendarSource::Kind::Folder) {
        auto listed = eventFilesIn(source_.path);
        if (!listed) {
            listingProblem_ = localized("cannot be read: %1").arg(listed.error());
            return {};
        }
        names = *std::move(listed);
    }
    std::ranges::sort(names);
    std::vector<std::string> gone;
    for (const auto& [name, file] : files_) {
        if (!std::ranges::binary_search(names, name)) {
            gone.push_back(name);
        }
    }
    std::ranges::move(gone, std::back_inserter(names));
    return names;
}

void LoadedCalendar::check(FileCheck& check, ZoneCatalog& zones,
                           const std::stop_token& stop) const {
    const std::string path = pathOf(check.name);
    const auto known = files_.find(check.name);
    const auto stamp = stampOf(path);
    if (!stamp || source_.kind == CalendarSource::Kind::Unreachable) {
        // A link that leads nowhere is a file that cannot be read; any other is gone.
        struct stat link{};
        const bool isBroken =
            ::lstat(path.c_str(), &link) == 0 && source_.kind == CalendarSource::Kind::Folder;
        check.outcome = isBroken ? FileCheck::Outcome::Read : FileCheck::Outcome::Gone;
        check.content = isBroken ? unreadable(localized("a link that leads nowhere")) : nullptr;
        return;
    }
    if (check.mode == FileCheck::Mode::IfStampDiffers && known != files_.end() &&
        known->second.stamp == *stamp) {
        return;
    }
    check.outcome = FileCheck::Outcome::Read;
    check.stamp = *stamp;
    check.content = read(path, source_, zones, stop);
}

bool LoadedCalendar::apply(const std::vector<const FileCheck*>& checks, ZoneCatalog& zones) {
    // Kept until the end: what is gone is told by where it lies.
    std::vector<std::shared_ptr<const IcsFile>> gone;
    std::vector<std::shared_ptr<const IcsFile>> fresh;
    bool isAnyProblem = false;
    std::set<std::string> changed;
    for (const FileCheck* check : checks) {
        if (check->outcome == FileCheck::Outcome::Unchanged) {
            continue;
        }
        changed.insert(check->name);
        if (const auto known = files_.find(check->name); known != files_.end()) {
            isAnyProblem = isAnyProblem || !known->second.content->problems.isEmpty();
            shared_.remove(check->name, *known->second.content);
            gone.push_back(std::move(known->second.shown));
            files_.erase(known);
        }
        if (check->outcome == FileCheck::Outcome::Read) {
            isAnyProblem = isAnyProblem || !check->content->problems.isEmpty();
            shared_.add(check->name, *check->content);
            files_.emplace(check->name, KnownFile{check->stamp, check->content, nullptr});
        }
    }
    SharedEvents::Changes shared = shared_.settle(
        source_.calendar, [&](const std::string& name) { return readRaw(name, zones); });
    shared.files.merge(changed);
    for (const std::string& name : shared.files) {
        if (const auto known = files_.find(name); known != files_.end()) {
            auto shown = shared_.shownOf(name, known->second.content);
            if (shown != known->second.shown) {
                fresh.push_back(shown);
                gone.push_back(std::exchange(known->second.shown, std::move(shown)));
            }
        }
    }
    std::ranges::move(shared.gone, std::back_inserter(gone));
    std::ranges::move(shared.fresh, std::back_inserter(fresh));
    std::erase(gone, nullptr);
    if (!isAnyProblem && std::ranges::none_of(gone, holdsEvents) &&
        std::ranges::none_of(fresh, holdsEvents)) {
        return false;
    }
    contents_ = std::make_shared<const CalendarContents>(
        contents_->withReplaced(pointersTo(gone), pointersTo(fresh)));
    return true;
}

std::vector<RawEvent> LoadedCalendar::readRaw(const std::string& name, ZoneCatalog& zones) const {
    auto bytes = readWholeFile(pathOf(name));
    return bytes ? readRawEvents(*std::move(bytes), zones) : std::vector<RawEvent>();
}

void LoadedCalendar::appendProblems(std::vector<StoreProblem>& problems) const {
    for (const auto& problem : {source_.problem, listingProblem_}) {
        if (problem) {
            problems.push_back({source_.calendar->title, *problem});
        }
    }
    for (const auto& [name, file] : files_) {
        for (const QString& problem : file.content->problems) {
            problems.push_back({shownPathOf(name), problem});
        }
    }
    appendCopies(problems);
}

void LoadedCalendar::appendCopies(std::vector<StoreProblem>& problems) const {
    const auto copies = shared_.problems();
    const std::size_t named = std::min(copies.size(), mostComplaintsInFile);
    for (std::size_t index = 0; index < named; ++index) {
        problems.push_back({shownPathOf(copies[index].first), copies[index].second});
    }
    if (copies.size() > named) {
        problems.push_back(
            {source_.calendar->title,
             localized("%1 more events are in other files too, in newer versions, which count")
                 .arg(copies.size() - named)});
    }
}

QString LoadedCalendar::shownPathOf(const std::string& name) const {
    const std::string& path = name.empty() ? source_.name : source_.name + "/" + name;
    return QFile::decodeName(QByteArray::fromStdString(path));
}

std::string LoadedCalendar::pathOf(const std::string& name) const {
    return name.empty() ? source_.path : source_.path + "/" + name;
}

} // namespace quillet
