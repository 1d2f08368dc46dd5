#include "platform/Event.h"

#include <QHashFunctions>

namespace quillet {

bool isSameEvent(const Event& left, const Event& right) {
    return left.occurrenceDate == right.occurrenceDate &&
           left.details->eventIdentifier == right.details->eventIdentifier &&
           left.details->calendar->calendarIdentifier ==
               right.details->calendar->calendarIdentifier;
}

std::size_t eventIdentityHash(const Event& event) {
    return qHashMulti(0, event.details->eventIdentifier,
                      static_cast<qint64>(event.occurrenceDate.time_since_epoch().count()));
}

} // namespace quillet
