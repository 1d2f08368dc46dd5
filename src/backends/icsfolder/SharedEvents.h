#pragma once

#include "backends/icsfolder/IcsFile.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quillet {

/// The events of a folder that stand in several of its files: copies, versions that programs could
/// not settle between them, and exceptions that have a file of their own. Each counts once.
class SharedEvents {
public:
    /// The events of a file, before they are put together.
    using RawReader = std::function<std::vector<RawEvent>(const std::string& file)>;
    /// What settle() changed.
    struct Changes {
        /// Files of which other events are to be shown.
        std::set<std::string> files;
        /// Events that were and are put together of several files.
        std::vector<std::shared_ptr<const IcsFile>> gone;
        std::vector<std::shared_ptr<const IcsFile>> fresh;
    };

    /// A file is there now, or no more.
    void add(const std::string& file, const IcsFile& content);
    void remove(const std::string& file, const IcsFile& content);
    /// Finds what holds of the events that the files have which were added or removed.
    [[nodiscard]] Changes settle(const std::shared_ptr<const StoreCalendar>& calendar,
                                 const RawReader& readRaw);
    /// Without what another file or several together show.
    [[nodiscard]] std::shared_ptr<const IcsFile>
    shownOf(const std::string& file, const std::shared_ptr<const IcsFile>& content) const;

    /// Of the files that hold older versions: their names, and what to tell of them.
    [[nodiscard]] std::vector<std::pair<std::string, QString>> problems() const;

private:
    struct Holder {
        std::string file;
        FamilyMark mark;
    };
    /// An event that several files hold.
    struct Shared {
        /// The file that shows it; empty when it is put together of several.
        std::string owner;
        std::shared_ptr<const IcsFile> assembled;
        std::vector<std::pair<std::string, QString>> olderCopies;
    };
    using RawByUid = QHash<QString, std::vector<std::pair<std::string, RawEvent>>>;

    [[nodiscard]] static std::string ownerAmong(const std::vector<Holder>& holders);
    [[nodiscard]] RawByUid readContested(const QSet<QString>& uids, const RawReader& readRaw) const;
    [[nodiscard]] static Shared assembled(std::vector<std::pair<std::string, RawEvent>> events,
                                          const std::shared_ptr<const StoreCalendar>& calendar);

    /// Every UID, with the files that hold it, by name.
    QHash<QString, std::vector<Holder>> holders_;
    QHash<QString, Shared> shared_;
    QSet<QString> touched_;
};

} // namespace quillet
