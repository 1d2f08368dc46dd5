#pragma once

#include "platform/Event.h"

#include <QString>

#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillet {

/// One entry of the root folder that stands for a calendar.
struct CalendarSource {
    enum class Kind { Folder, File, Unreachable };

    /// The entry's name in the root folder.
    std::string name;
    std::string path;
    Kind kind = Kind::Unreachable;
    std::shared_ptr<const StoreCalendar> calendar;
    /// Why it cannot be read.
    std::optional<QString> problem;
};

/// The calendars of a root folder, sorted by name. Reads names and colours only. The error says why
/// the root cannot be read.
[[nodiscard]] std::expected<std::vector<CalendarSource>, QString>
findCalendars(const std::string& rootPath);

/// Whether a file of that name in a calendar's folder holds an event.
[[nodiscard]] bool isEventFileName(std::string_view name);

/// Links a folder or an .ics file into the root folder under a name that is free there. The error
/// is a sentence for the user.
[[nodiscard]] std::expected<void, QString> linkCalendar(const QString& rootPath,
                                                        const QString& path);

} // namespace quillet
