#pragma once

#include "platform/Event.h"

#include <libedataserver/libedataserver.h>

#include <QString>

namespace quillet {

/// The identifier under which the program knows the calendar of a source, and back. Holds no double
/// quote, backslash or control character, whatever the source's own identifier holds.
[[nodiscard]] QString calendarIdentifierFor(const QString& sourceUid);
/// The source's own identifier; a null QString when it is no calendar of the service.
[[nodiscard]] QString sourceUidFrom(const QString& calendarIdentifier);

/// Name, colour and identifier of a source as it is now.
[[nodiscard]] StoreCalendar calendarFrom(ESource* source);

/// Whether the source is a calendar of the user's own making: birthdays and weather are not.
[[nodiscard]] bool isUserCalendar(ESource* source);

/// The user's own order of the sources, then by name.
[[nodiscard]] bool isListedBefore(ESource* left, ESource* right);

} // namespace quillet
