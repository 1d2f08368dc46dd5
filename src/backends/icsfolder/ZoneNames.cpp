#include "backends/icsfolder/ZoneNames.h"

#include "backends/icsfolder/DisplayedZoneNames.h"
#include "backends/icsfolder/KnownZones.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

/// What is left of a name that was written into a parameter, with backslashes and blanks too many.
QByteArray plainName(QByteArray name) {
    name.replace('\\', "").replace('"', "");
    return name.simplified();
}

/// "US-Eastern" and "America/New York" are known by other signs.
QTimeZone zoneWithOtherSigns(const QByteArray& name) {
    QByteArray underlined = name;
    underlined.replace(' ', '_');
    if (const QTimeZone zone = zoneOfDatabase(underlined); zone.isValid()) {
        return zone;
    }
    QByteArray slashed = underlined;
    const qsizetype dash = slashed.indexOf('-');
    if (dash <= 0) {
        return {};
    }
    slashed[dash] = '/';
    return zoneOfDatabase(slashed);
}

QTimeZone zoneOfWindowsName(const QByteArray& name) {
    if (const QTimeZone zone = zoneOfWindows(name); zone.isValid()) {
        return zone;
    }
    // "W. Europe", and the name that a zone has while its clocks are put forward.
    for (const QByteArray& ending :
         {QByteArray(), QByteArray(" Daylight Time"), QByteArray(" Summer Time")}) {
        if (name.toLower().endsWith(ending.toLower())) {
            const QByteArray stem = name.chopped(ending.size());
            if (const QTimeZone zone = zoneOfWindows(stem + " Standard Time"); zone.isValid()) {
                return zone;
            }
        }
    }
    return {};
}

/// Some programs put a path of their own before the name, which has three parts at the most.
QTimeZone zoneBehindPath(const QByteArray& name) {
    const QList<QByteArray> parts = name.split('/');
    for (qsizetype count = std::min<qsizetype>(3, parts.size() - 1); count > 0; --count) {
        const QByteArray tail = parts.last(count).join('/');
        for (const auto reader : {zoneOfDatabase, zoneOfWindows}) {
            if (QTimeZone zone = reader(tail); zone.isValid()) {
                return zone;
            }
        }
    }
    return {};
}

bool isOneWord(const QByteArray& name) {
    return std::ranges::all_of(name, [](char each) {
        return (each >= 'A' && each <= 'Z') || (each >= 'a' && each <= 'z');
    });
}

/// Whether the zone's clocks have gone by that name in these years.
bool hasAbbreviation(const QTimeZone& zone, const QByteArray& name) {
    for (const int month : {1, 7}) {
        const QDateTime time(QDate(2024, month, 1), QTime(12, 0), Qt::UTC);
        if (zone.abbreviation(time).compare(QString::fromLatin1(name), Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

QTimeZone zoneNamed(const QByteArray& written) {
    const QByteArray name = plainName(written);
    if (name.isEmpty() || name.size() > 200) {
        return {};
    }
    using Reader = QTimeZone (*)(const QByteArray&);
    for (const Reader reader :
         std::array<Reader, 5>{zoneOfDatabase, zoneOfWindowsName, zoneOfOffset, zoneAsDisplayed,
                               zoneWithOtherSigns}) {
        if (QTimeZone zone = reader(name); zone.isValid()) {
            return zone;
        }
    }
    return zoneBehindPath(name);
}

QTimeZone zoneNamed(const QByteArray& written, const QList<QTimeZone>& hints) {
    const QByteArray name = plainName(written);
    if (name.isEmpty() || name.size() > 200) {
        return {};
    }
    const QTimeZone ofPlace = zoneOfPlace(name);
    for (const QTimeZone& hint : hints) {
        const bool isItsPlace = ofPlace.isValid() && behaveAlike(ofPlace, hint);
        if (isItsPlace || (isOneWord(name) && hasAbbreviation(hint, name))) {
            return hint;
        }
    }
    return {};
}

} // namespace quillet
