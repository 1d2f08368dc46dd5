#include "backends/icsfolder/KnownZones.h"

#include <unicode/strenum.h>
#include <unicode/timezone.h>
#include <unicode/ures.h>

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <memory>

namespace quillet {

namespace {

struct ResourceDeleter {
    void operator()(UResourceBundle* bundle) const { ures_close(bundle); }
};
using ResourcePointer = std::unique_ptr<UResourceBundle, ResourceDeleter>;

/// Whether a name can be that of a zone and of nothing else on the disk. "right" zones count leap
/// seconds, which no calendar does.
bool isZoneName(const QByteArray& name) {
    static const QRegularExpression pattern(
        QStringLiteral("^(?!right/)[A-Za-z][A-Za-z0-9_+-]*(/[A-Za-z0-9][A-Za-z0-9_+-]*)*$"));
    return pattern.match(QString::fromLatin1(name)).hasMatch();
}

/// Whether there may be such a zone. A word that names none would be read as the short name of a
/// zone without an offset, that is, as UTC.
bool isInDatabase(const QByteArray& name) {
    return name.contains('/') ||
           QFileInfo::exists(QStringLiteral("/usr/share/zoneinfo/") + QString::fromLatin1(name));
}

QTimeZone exactZone(const QByteArray& name) {
    return isZoneName(name) && isInDatabase(name) ? QTimeZone(name) : QTimeZone();
}

/// All names that there are or were; the system's list lacks the older ones ("Asia/Calcutta").
QList<QByteArray> allNames() {
    QList<QByteArray> names = QTimeZone::availableTimeZoneIds();
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> further(
        icu::TimeZone::createTimeZoneIDEnumeration(UCAL_ZONE_TYPE_ANY, nullptr, nullptr, status));
    while (U_SUCCESS(status) && further) {
        const char* name = further->next(nullptr, status);
        if (name == nullptr) {
            break;
        }
        names.append(name);
    }
    return names;
}

/// Names in small letters with the names as they are.
const QHash<QByteArray, QByteArray>& databaseNames() {
    static const QHash<QByteArray, QByteArray> all = [] {
        QHash<QByteArray, QByteArray> known{{"z", "UTC"},
                                            {"coordinated universal time", "UTC"},
                                            {"universal time", "UTC"},
                                            {"greenwich mean time", "UTC"}};
        for (const QByteArray& name : allNames()) {
            known.insert(name.toLower(), name);
        }
        return known;
    }();
    return all;
}

/// Windows names in small letters with the zone that stands for each in the whole world.
const QHash<QByteArray, QByteArray>& windowsNames() {
    static const QHash<QByteArray, QByteArray> all = [] {
        QHash<QByteArray, QByteArray> known;
        UErrorCode status = U_ZERO_ERROR;
        const ResourcePointer bundle(ures_openDirect(nullptr, "windowsZones", &status));
        const ResourcePointer table(ures_getByKey(bundle.get(), "mapTimezones", nullptr, &status));
        while (U_SUCCESS(status) && ures_hasNext(table.get()) != 0) {
            const ResourcePointer zone(ures_getNextResource(table.get(), nullptr, &status));
            int32_t length = 0;
            const char16_t* name = ures_getStringByKey(zone.get(), "001", &length, &status);
            if (U_SUCCESS(status)) {
                known.insert(QByteArray(ures_getKey(zone.get())).toLower(),
                             QString::fromUtf16(name, length).toLatin1());
            }
        }
        return known;
    }();
    return all;
}

/// Places in small letters with the zones that are named after them.
const QMultiHash<QByteArray, QByteArray>& places() {
    static const QMultiHash<QByteArray, QByteArray> all = [] {
        QMultiHash<QByteArray, QByteArray> known;
        for (const QByteArray& name : allNames()) {
            const bool isPlace =
                name.contains('/') && !name.startsWith("Etc/") && !name.startsWith("SystemV/");
            if (isPlace) {
                QByteArray place = name.mid(name.lastIndexOf('/') + 1).toLower();
                known.insert(place.replace('_', ' '), name);
            }
        }
        return known;
    }();
    return all;
}

} // namespace

QTimeZone zoneOfDatabase(const QByteArray& name) {
    if (QTimeZone zone = exactZone(name); zone.isValid()) {
        return zone;
    }
    return exactZone(databaseNames().value(name.toLower()));
}

QTimeZone zoneOfWindows(const QByteArray& name) {
    const QByteArray known = windowsNames().value(name.toLower());
    return known.isEmpty() ? QTimeZone() : QTimeZone(known);
}

QTimeZone zoneOfPlace(const QByteArray& place) {
    QTimeZone found;
    for (const QByteArray& name : places().values(place.toLower())) {
        const QTimeZone zone = exactZone(name);
        if (!zone.isValid()) {
            continue;
        }
        if (found.isValid() && !behaveAlike(found, zone)) {
            return {};
        }
        // Of several names the newer, longer one is the one in use.
        if (!found.isValid() || zone.id().size() > found.id().size()) {
            found = zone;
        }
    }
    return found;
}

bool behaveAlike(const QTimeZone& left, const QTimeZone& right) {
    for (int year = 2010; year < 2030; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const QDateTime time(QDate(year, month, 15), QTime(12, 0), Qt::UTC);
            if (left.offsetFromUtc(time) != right.offsetFromUtc(time)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace quillet
