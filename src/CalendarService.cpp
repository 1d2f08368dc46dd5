#include "CalendarService.h"

#include "backends/evolution/EvolutionStore.h"
#include "backends/evolution/SourceDescription.h"

namespace quillet {

std::unique_ptr<EventStore> makeCalendarService(CalendarAccess& access, const QString& stateFolder,
                                                std::function<QString(Instant)> shortTime,
                                                std::shared_ptr<const UserTimeZone> zone) {
    return std::make_unique<EvolutionStore>(access,
                                            EvolutionStore::Setup{.stateFolder = stateFolder,
                                                                  .shortTime = std::move(shortTime),
                                                                  .zone = std::move(zone)});
}

QString identifierWithinService(const QString& calendarIdentifier) {
    return sourceUidFrom(calendarIdentifier);
}

} // namespace quillet
