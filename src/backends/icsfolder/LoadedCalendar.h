#pragma once

#include "backends/icsfolder/CalendarContents.h"
#include "backends/icsfolder/CalendarSources.h"
#include "backends/icsfolder/SharedEvents.h"
#include "platform/EventStore.h"

#include <compare>
#include <map>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace quillet {

/// What tells one state of a file from another without reading it.
struct FileStamp {
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    std::int64_t size = 0;
    std::uint64_t inode = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// One file that may have changed, and what came of reading it again.
struct FileCheck {
    enum class Mode { IfStampDiffers, Always };
    enum class Outcome { Unchanged, Gone, Read };

    std::size_t calendarIndex = 0;
    /// Empty for a calendar that is one file.
    std::string name;
    Mode mode = Mode::IfStampDiffers;
    Outcome outcome = Outcome::Unchanged;
    FileStamp stamp;
    std::shared_ptr<const IcsFile> content;
};

/// One calendar with what is known of its files. Belongs to the loader's thread; only check() may
/// be called from several threads at once.
class LoadedCalendar {
public:
    explicit LoadedCalendar(CalendarSource source);

    [[nodiscard]] const CalendarSource& source() const { return source_; }
    [[nodiscard]] const std::shared_ptr<const CalendarContents>& contents() const {
        return contents_;
    }
    /// A source that says the same about the same calendar.
    void setSource(CalendarSource source) { source_ = std::move(source); }

    /// Whether all its files are to be looked at, as at first.
    [[nodiscard]] bool needsListing() const { return needsListing_; }
    void requireListing() { needsListing_ = true; }
    /// Every file that is there or was there at the last look. A folder that cannot be listed
    /// becomes a problem and keeps the events that it had.
    [[nodiscard]] std::vector<std::string> filesToCheck();
    /// Reads a file again where needed.
    void check(FileCheck& check, ZoneCatalog& zones, const std::stop_token& stop) const;
    /// Takes over what the checks found. Whether that changed anything.
    [[nodiscard]] bool apply(const std::vector<const FileCheck*>& checks, ZoneCatalog& zones);

    void appendProblems(std::vector<StoreProblem>& problems) const;

private:
    struct KnownFile {
        FileStamp stamp;
        std::shared_ptr<const IcsFile> content;
        /// Of the content, what no other file shows. Null before apply() has looked.
        std::shared_ptr<const IcsFile> shown;
    };

    [[nodiscard]] std::vector<RawEvent> readRaw(const std::string& name, ZoneCatalog& zones) const;
    void appendCopies(std::vector<StoreProblem>& problems) const;

    [[nodiscard]] std::string pathOf(const std::string& name) const;
    [[nodiscard]] QString shownPathOf(const std::string& name) const;

    CalendarSource source_;
    bool needsListing_ = true;
    std::optional<QString> listingProblem_;
    std::map<std::string, KnownFile> files_;
    SharedEvents shared_;
    std::shared_ptr<const CalendarContents> contents_;
};

} // namespace quillet
