#pragma once

#include "platform/EventStore.h"

namespace quillet {

/// The calendars that the service had when it last answered. A service that is slow to start or
/// away must not look like one without calendars, for then their rates would be dropped. Empty
/// when nothing usable is kept.
[[nodiscard]] CalendarList rememberedCalendars(const QString& path);

/// Keeps them. A failure costs nothing but the memory, and is logged.
void rememberCalendars(const QString& path, const CalendarList& calendars);

} // namespace quillet
