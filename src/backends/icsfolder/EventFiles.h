#pragma once

#include <QString>
#include <QTimeZone>

#include <string>

namespace quillet {

/// The path of the file that holds an event of a calendar in the root folder; a null QString when
/// there is none. The zone is that of floating times. Reads as many files as it takes.
[[nodiscard]] QString findEventFile(const std::string& rootPath, const QString& calendarIdentifier,
                                    const QString& eventIdentifier, const QTimeZone& zone);

} // namespace quillet
