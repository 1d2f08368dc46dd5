#pragma once

#include "backends/icsfolder/IcsText.h"
#include "backends/icsfolder/RawEvent.h"
#include "backends/icsfolder/Series.h"
#include "backends/icsfolder/ZoneCatalog.h"
#include "platform/Event.h"

#include <QStringList>

#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace quillet {

/// What one file holds under one UID.
struct FamilyMark {
    QString uid;
    /// Equal for equal texts.
    std::size_t digest = 0;
    /// Of the newest event that is no exception; of the newest exception where there is none.
    EventVersion version;
    bool hasMaster = false;
};

/// The events of one calendar file.
struct IcsFile {
    /// Events and occurrences that stand for themselves, in no order.
    EventList events;
    std::vector<std::shared_ptr<const Series>> series;
    /// What could not be read, each in a sentence fragment.
    QStringList problems;
    /// How many more there are than can be shown.
    std::size_t unnamedProblems = 0;
    /// Each UID once; events that no file names are not among them.
    std::vector<FamilyMark> families;

    /// Once for each that is the same.
    void complain(const QString& problem);
    /// Says how many there are beside those that are shown. After the last one.
    void closeProblems();
};

/// Reads the content of a calendar file, whatever it is. Callable from any thread. Once a stop is
/// requested what it gives is of no use.
[[nodiscard]] IcsFile readIcs(std::string bytes,
                              const std::shared_ptr<const StoreCalendar>& calendar,
                              ZoneCatalog& zones, const std::stop_token& stop = {});
/// The events of a file before they are put together, those with a start only.
[[nodiscard]] std::vector<RawEvent> readRawEvents(std::string bytes, ZoneCatalog& zones);

} // namespace quillet
