#pragma once

#include "backends/icsfolder/CalendarContents.h"
#include "backends/icsfolder/RawEvent.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <memory>
#include <set>
#include <string>
#include <vector>

struct icalcomponent_impl;

namespace quillet {

/// The events of one calendar of the service, made of the components that the service sends: all
/// of them at first, then the ones that change.
class SourceContents {
public:
    SourceContents(std::shared_ptr<const StoreCalendar> calendar, ZoneCatalog& zones);

    /// Shows only in what is read afterwards.
    void setCalendar(std::shared_ptr<const StoreCalendar> calendar);

    /// Begins to read everything. What was there before stays until the end of the reading.
    void beginReading();
    void read(icalcomponent_impl& component);
    void endReading();

    /// A component that is new or has changed. What it means cannot always be told from it alone,
    /// and never during a reading, which may have met it before or after the change: then its UID
    /// becomes doubtful.
    void noteChanged(icalcomponent_impl& component);
    /// Something under that UID is gone, the event or an exception of it.
    void noteRemoved(const QString& uid);
    /// The UIDs of which everything has to be read again, each answered by one replace().
    [[nodiscard]] QSet<QString> takeDoubtful() { return std::exchange(doubtful_, {}); }
    /// Everything that the calendar holds under that UID now.
    void replace(const QString& uid, const std::vector<icalcomponent_impl*>& components);
    /// Brings what was noted and replaced into contents(). Whether there was anything.
    [[nodiscard]] bool apply();

    /// The names of time zones that were met since the last call and mean nothing here. define() is
    /// to be called for each.
    [[nodiscard]] std::vector<std::string> takeUnknownZones();
    /// Takes the service's VTIMEZONE for such a zone; empty when it has none. What was read with
    /// that zone before has to be read again. Whether the definition can be used.
    bool define(const std::string& name, const std::string& definition);

    /// Immutable, for any thread.
    [[nodiscard]] const std::shared_ptr<const CalendarContents>& contents() const {
        return contents_;
    }
    /// What could not be read, each in a sentence fragment.
    [[nodiscard]] QStringList problems() const;

private:
    struct Known {
        std::shared_ptr<const IcsFile> file;
        bool hasExceptions = false;
        int withoutStart = 0;
    };

    [[nodiscard]] Known knownFrom(std::vector<RawEvent> events, WorkBudget& budget) const;
    /// Whether an event whose zone means nothing now may be understood soon.
    [[nodiscard]] bool areZonesAwaited() const;
    void setKnown(const QString& uid, Known known);
    void forget(const QString& uid);

    std::shared_ptr<const StoreCalendar> calendar_;
    ReadingContext context_;
    bool isReading_ = false;
    QHash<QString, std::vector<RawEvent>> reading_;
    QHash<QString, Known> known_;
    QSet<QString> doubtful_;
    std::size_t reportedZones_ = 0;
    /// Those of the reported ones that define() was not called for yet.
    std::set<std::string> awaitedZones_;
    /// What is in contents() but no longer holds, and what is not in it yet. By UID, so that of
    /// several changes only the last one counts.
    QHash<QString, std::shared_ptr<const IcsFile>> gone_;
    QHash<QString, std::shared_ptr<const IcsFile>> fresh_;
    std::shared_ptr<const CalendarContents> contents_;
};

} // namespace quillet
