#include "CalendarService.h"

#include "backends/evolution/EvolutionStore.h"
#include "backends/evolution/SourceDescription.h"

namespace quillet {

std::unique_ptr<EventStore> makeCalendarService(CalendarAccess& access, const QString& stateFolder,
                                                std::function<QString(Instant)> shortTime) {
    return std::make_unique<EvolutionStore>(
        access,
        EvolutionStore::Setup{.stateFolder = stateFolder, .shortTime = std::move(shortTime)});
}

QString identifierWithinService(const QString& calendarIdentifier) {
    return sourceUidFrom(calendarIdentifier);
}

} // namespace quillet
