#include "eventdata/Duration.h"

namespace quillet {

QString makeDurationFromMinutes(std::int64_t minutes) {
    if (minutes < 1) {
        return QStringLiteral("0h");
    }
    const qlonglong hours = minutes / 60;
    const qlonglong rest = minutes % 60;
    if (rest == 0) {
        return QStringLiteral("%1h").arg(hours);
    }
    return QStringLiteral("%1h %2m").arg(hours).arg(rest);
}

} // namespace quillet
