#include "backends/icsfolder/SharedEvents.h"

#include "backends/icsfolder/EventAssembly.h"
#include "texts/Localized.h"

#include <QFile>

#include <algorithm>

namespace quillet {

namespace {

/// Of more copies than this only the newest is looked at.
constexpr std::size_t mostToPutTogether = 50;
constexpr std::int64_t workBudget = 20'000'000;
constexpr qsizetype longestTitle = 60;

QString shownName(const std::string& file) {
    return QFile::decodeName(QByteArray::fromStdString(file));
}

} // namespace

void SharedEvents::add(const std::string& file, const IcsFile& content) {
    for (const FamilyMark& mark : content.families) {
        auto& holders = holders_[mark.uid];
        const auto place = std::ranges::lower_bound(holders, file, {}, &Holder::file);
        holders.insert(place, {file, mark});
        if (holders.size() > 1) {
            touched_.insert(mark.uid);
        }
    }
}

void SharedEvents::remove(const std::string& file, const IcsFile& content) {
    for (const FamilyMark& mark : content.families) {
        const auto found = holders_.find(mark.uid);
        if (found == holders_.end()) {
            continue;
        }
        std::erase_if(*found, [&](const Holder& holder) { return holder.file == file; });
        if (shared_.contains(mark.uid)) {
            touched_.insert(mark.uid);
        }
        if (found->empty()) {
            holders_.erase(found);
        }
    }
}

SharedEvents::Changes SharedEvents::settle(const std::shared_ptr<const StoreCalendar>& calendar,
                                           const RawReader& readRaw) {
    Changes changes;
    QSet<QString> contested;
    for (const QString& uid : std::exchange(touched_, {})) {
        const Shared before = shared_.take(uid);
        if (before.assembled) {
            changes.gone.push_back(before.assembled);
        }
        const std::vector<Holder> holders = holders_.value(uid);
        for (const Holder& holder : holders) {
            changes.files.insert(holder.file);
        }
        if (holders.size() < 2) {
            continue;
        }
        Shared& shared = shared_[uid];
        shared.owner = ownerAmong(holders);
        if (shared.owner.empty()) {
            contested.insert(uid);
        }
    }
    RawByUid events = readContested(contested, readRaw);
    for (auto event = events.begin(); event != events.end(); ++event) {
        Shared shared = assembled(std::move(event.value()), calendar);
        changes.fresh.push_back(shared.assembled);
        shared_[event.key()] = std::move(shared);
    }
    return changes;
}

std::string SharedEvents::ownerAmong(const std::vector<Holder>& holders) {
    const auto differs = [&](const Holder& holder) {
        return holder.mark.digest != holders.front().mark.digest;
    };
    if (std::ranges::none_of(holders, differs)) {
        return holders.front().file;
    }
    if (holders.size() <= mostToPutTogether) {
        return {};
    }
    const auto rank = [](const Holder& holder) {
        return std::pair(holder.mark.hasMaster, holder.mark.version);
    };
    return std::ranges::max(holders, {}, rank).file;
}

SharedEvents::RawByUid SharedEvents::readContested(const QSet<QString>& uids,
                                                   const RawReader& readRaw) const {
    std::set<std::string> files;
    for (const QString& uid : uids) {
        for (const Holder& holder : holders_.value(uid)) {
            files.insert(holder.file);
        }
    }
    RawByUid events;
    for (const std::string& file : files) {
        for (RawEvent& event : readRaw(file)) {
            if (uids.contains(event.uid)) {
                auto& known = events[event.uid];
                known.emplace_back(file, std::move(event));
            }
        }
    }
    return events;
}

SharedEvents::Shared SharedEvents::assembled(std::vector<std::pair<std::string, RawEvent>> events,
                                             const std::shared_ptr<const StoreCalendar>& calendar) {
    Shared shared;
    const auto isVersion = [](const RawEvent& event) {
        return !event.recurrenceId && !event.hasUnreadableRecurrenceId;
    };
    std::pair<EventVersion, std::string> newest;
    for (const auto& event : events) {
        if (isVersion(event.second) &&
            (newest.second.empty() || newest.first <= event.second.version)) {
            newest = {event.second.version, event.first};
        }
    }
    std::vector<RawEvent> raw;
    for (auto& [file, event] : events) {
        if (isVersion(event) && file != newest.second) {
            shared.olderCopies.emplace_back(
                file, localized("“%1” is also in “%2”, in a newer version, which counts")
                          .arg(event.title.left(longestTitle), shownName(newest.second)));
            continue;
        }
        // Its own file tells of them.
        event.complaints.clear();
        raw.push_back(std::move(event));
    }
    WorkBudget budget(workBudget);
    auto file = std::make_shared<IcsFile>();
    assembleEvents(std::move(raw), calendar, budget, *file);
    shared.assembled = std::move(file);
    return shared;
}

std::shared_ptr<const IcsFile>
SharedEvents::shownOf(const std::string& file,
                      const std::shared_ptr<const IcsFile>& content) const {
    const auto isElsewhere = [&](const QString& uid) {
        const auto shared = shared_.constFind(uid);
        return shared != shared_.constEnd() && shared->owner != file;
    };
    const auto& families = content->families;
    if (shared_.isEmpty() || std::ranges::none_of(families, isElsewhere, &FamilyMark::uid)) {
        return content;
    }
    auto shown = std::make_shared<IcsFile>();
    std::ranges::copy_if(
        content->events, std::back_inserter(shown->events),
        [&](const Event& event) { return !isElsewhere(event.details->eventIdentifier); });
    std::ranges::copy_if(
        content->series, std::back_inserter(shown->series),
        [&](const auto& series) { return !isElsewhere(series->details->eventIdentifier); });
    return shown;
}

std::vector<std::pair<std::string, QString>> SharedEvents::problems() const {
    std::vector<std::pair<std::string, QString>> found;
    for (const Shared& shared : shared_) {
        std::ranges::copy(shared.olderCopies, std::back_inserter(found));
    }
    std::ranges::sort(found);
    return found;
}

} // namespace quillet
