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
    /// By what programs write for the name of a zone (`zoneNamed()`). Nothing for a name that does
    /// not say by itself which one is meant.
    [[nodiscard]] Rules named(const std::string& name);
    /// A VTIMEZONE in lines without folds. Where it says nothing, before its first change and
    /// behind the last of those that it lists one by one, the zone holds that its name stands for.
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
