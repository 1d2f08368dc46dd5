#pragma once

#include "backends/combined/CalendarAccess.h"
#include "platform/EventStore.h"
#include "platform/UserTimeZone.h"

#include <functional>
#include <memory>

namespace quillet {

/// The desktop's calendar service as a store; null in a build without it. `shortTime` tells a time
/// to the user. Whole days are those of the zone, whose changes are followed. `access` must outlive
/// the store.
[[nodiscard]] std::unique_ptr<EventStore>
makeCalendarService(CalendarAccess& access, const QString& stateFolder,
                    std::function<QString(Instant)> shortTime,
                    std::shared_ptr<const UserTimeZone> zone);

/// The identifier under which the service itself knows a calendar; a null QString when the calendar
/// is none of the service's.
[[nodiscard]] QString identifierWithinService(const QString& calendarIdentifier);

} // namespace quillet
