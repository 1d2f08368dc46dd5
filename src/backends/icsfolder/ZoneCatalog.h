#pragma once

#include "platform/ZoneRules.h"

#include <QString>

#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

namespace quillet {

/// Finds the rules of time zones, by name or from the definition in a file, and keeps them, since
/// thousands of files name the same few. Callable from any thread.
class ZoneCatalog {
public:
    using Rules = std::shared_ptr<const ZoneRules>;
    struct Definition {
        /// The TZID that it is defined for; empty when the definition is of no use.
        std::string name;
        Rules rules;
    };

    explicit ZoneCatalog(const QTimeZone& systemZone);

    /// The zone of floating times and whole days.
    [[nodiscard]] const Rules& systemZone() const { return systemZone_; }
    /// By a name of the time zone database, also one behind a vendor's path
    /// ("/vendor/Europe/Paris"), or by a Windows name. Nothing for a name that means nothing.
    [[nodiscard]] Rules named(const std::string& name);
    /// A VTIMEZONE in lines without folds.
    [[nodiscard]] Definition defined(const char* block);

private:
    Rules systemZone_;
    std::mutex mutex_;
    std::unordered_map<std::string, Rules> named_;
    std::unordered_map<std::string, Definition> defined_;
};

/// Makes libical ready for several threads at once; every call but the first does nothing.
void prepareLibical();

} // namespace quillet
