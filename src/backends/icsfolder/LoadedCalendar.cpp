#include "backends/icsfolder/LoadedCalendar.h"

#include "texts/Localized.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <dirent.h>
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

bool holdsSomething(const IcsFile& file) {
    return !file.events.empty() || !file.series.empty() || !file.problems.isEmpty();
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

void LoadedCalendar::check(FileCheck& check, ZoneCatalog& zones) const {
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
    auto bytes = readWholeFile(path);
    check.content =
        bytes ? std::make_shared<const IcsFile>(readIcs(*std::move(bytes), source_.calendar, zones))
              : unreadable(bytes.error());
}

bool LoadedCalendar::apply(const std::vector<const FileCheck*>& checks) {
    std::vector<std::shared_ptr<const IcsFile>> replaced;
    std::vector<const IcsFile*> oldFiles;
    std::vector<const IcsFile*> newFiles;
    for (const FileCheck* check : checks) {
        if (check->outcome == FileCheck::Outcome::Unchanged) {
            continue;
        }
        if (const auto known = files_.find(check->name); known != files_.end()) {
            replaced.push_back(std::move(known->second.content));
            oldFiles.push_back(replaced.back().get());
            files_.erase(known);
        }
        if (check->outcome == FileCheck::Outcome::Read) {
            newFiles.push_back(check->content.get());
            files_.emplace(check->name, KnownFile{check->stamp, check->content});
        }
    }
    const auto holds = [](const IcsFile* file) { return holdsSomething(*file); };
    if (std::ranges::none_of(oldFiles, holds) && std::ranges::none_of(newFiles, holds)) {
        return false;
    }
    contents_ =
        std::make_shared<const CalendarContents>(contents_->withReplaced(oldFiles, newFiles));
    return true;
}

void LoadedCalendar::appendProblems(std::vector<StoreProblem>& problems) const {
    for (const auto& problem : {source_.problem, listingProblem_}) {
        if (problem) {
            problems.push_back({source_.calendar->title, *problem});
        }
    }
    for (const auto& [name, file] : files_) {
        for (const QString& problem : file.content->problems) {
            const std::string& shown = name.empty() ? source_.name : source_.name + "/" + name;
            problems.push_back({QFile::decodeName(QByteArray::fromStdString(shown)), problem});
        }
    }
}

std::string LoadedCalendar::pathOf(const std::string& name) const {
    return name.empty() ? source_.path : source_.path + "/" + name;
}

} // namespace quillet
