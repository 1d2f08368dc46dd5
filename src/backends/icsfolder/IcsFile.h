#pragma once

#include "backends/icsfolder/IcsText.h"
#include "backends/icsfolder/Series.h"
#include "backends/icsfolder/ZoneCatalog.h"
#include "platform/Event.h"

#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace quillet {

/// The events of one calendar file.
struct IcsFile {
    /// Events and occurrences that stand for themselves, in no order.
    EventList events;
    std::vector<std::shared_ptr<const Series>> series;
    /// What could not be read, each in a sentence fragment.
    QStringList problems;
    /// How many more there are than can be shown.
    std::size_t unnamedProblems = 0;

    /// Once for each that is the same.
    void complain(const QString& problem);
    /// Says how many there are beside those that are shown. After the last one.
    void closeProblems();
};

/// Reads the content of a calendar file, whatever it is. Callable from any thread.
[[nodiscard]] IcsFile readIcs(std::string bytes,
                              const std::shared_ptr<const StoreCalendar>& calendar,
                              ZoneCatalog& zones);

} // namespace quillet
