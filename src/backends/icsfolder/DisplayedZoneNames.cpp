#include "backends/icsfolder/DisplayedZoneNames.h"

#include "backends/icsfolder/KnownZones.h"

#include <QDateTime>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace quillet {

namespace {

/// Places that are shown for a zone while no zone is named after them.
const QHash<QByteArray, QByteArray>& morePlaces() {
    static const QHash<QByteArray, QByteArray> places{
        {"abu dhabi", "Asia/Dubai"},
        {"astana", "Asia/Almaty"},
        {"beijing", "Asia/Shanghai"},
        {"brasilia", "America/Sao_Paulo"},
        {"cabo verde is.", "Atlantic/Cape_Verde"},
        {"cape verde is.", "Atlantic/Cape_Verde"},
        {"central america", "America/Guatemala"},
        {"chennai", "Asia/Kolkata"},
        {"ekaterinburg", "Asia/Yekaterinburg"},
        {"greenland", "America/Nuuk"},
        {"international date line west", "Etc/GMT+12"},
        {"marshall is.", "Pacific/Majuro"},
        {"mumbai", "Asia/Kolkata"},
        {"new caledonia", "Pacific/Noumea"},
        {"new delhi", "Asia/Kolkata"},
        {"nuku'alofa", "Pacific/Tongatapu"},
        {"port louis", "Indian/Mauritius"},
        {"solomon is.", "Pacific/Guadalcanal"},
        {"sri jayawardenepura", "Asia/Colombo"},
        {"st. petersburg", "Europe/Moscow"},
        {"wellington", "Pacific/Auckland"},
        {"west central africa", "Africa/Lagos"},
    };
    return places;
}

struct Offset {
    int seconds = 0;
    /// Where the text goes on behind it.
    qsizetype end = 0;
};

/// "(UTC+01:00)", "GMT-0500", "UTC", "+1", also with a full stop for the colon, at the start.
std::optional<Offset> leadingOffset(const QString& text) {
    static const QRegularExpression pattern(
        QStringLiteral(
            "^\\(?\\s*(?:(UTC|GMT)\\s*)?(?:([+\\-\u2212])\\s*(\\d{1,2})(?:[:.]?(\\d{2}))?)?"
            "\\s*(\\)|(?=\\s|$))"),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = pattern.match(text);
    const bool isNamed = match.hasMatch() && match.capturedLength(1) > 0;
    const bool hasNumber = match.hasMatch() && match.capturedLength(2) > 0;
    const bool isClosed = match.captured(5) == u')';
    if ((!isNamed && !hasNumber) || isClosed != text.startsWith(u'(')) {
        return std::nullopt;
    }
    const int minutes = match.captured(3).toInt() * 60 + match.captured(4).toInt();
    const bool isPlus = match.captured(2) == u'+';
    if (minutes > 14 * 60) {
        return std::nullopt;
    }
    return Offset{(isPlus ? 60 : -60) * minutes, match.capturedEnd(0)};
}

bool hasOffset(const QTimeZone& zone, int seconds) {
    for (const int year : {2012, 2020, 2025}) {
        for (const int month : {1, 7}) {
            const QDateTime time(QDate(year, month, 1), QTime(12, 0), Qt::UTC);
            if (zone.offsetFromUtc(time) == seconds) {
                return true;
            }
        }
    }
    return false;
}

/// "Eastern Time (US & Canada)" is "Eastern Standard Time".
QTimeZone zoneOfTimeName(const QString& shown) {
    static const QRegularExpression brackets(QStringLiteral("\\s*\\([^)]*\\)\\s*$"));
    static const QRegularExpression time(QStringLiteral("\\s+(Standard\\s+|Daylight\\s+)?Time$"),
                                         QRegularExpression::CaseInsensitiveOption);
    QString stem = shown;
    stem.remove(brackets).remove(time);
    return zoneOfWindows((stem + QStringLiteral(" Standard Time")).toLatin1());
}

QTimeZone zoneOfShownPlace(QString place) {
    static const QRegularExpression brackets(QStringLiteral("\\s*\\([^)]*\\)"));
    static const QRegularExpression prefix(QStringLiteral("^City of "),
                                           QRegularExpression::CaseInsensitiveOption);
    const QByteArray name = place.remove(brackets).remove(prefix).trimmed().toLower().toUtf8();
    if (const QByteArray known = morePlaces().value(name); !known.isEmpty()) {
        return QTimeZone(known);
    }
    return zoneOfPlace(name);
}

/// The first of the places that has the offset.
QTimeZone zoneOfPlaces(const QString& places, int seconds) {
    static const QRegularExpression separators(QStringLiteral("\\s*[,/;:]\\s*"));
    for (const QString& place : places.split(separators, Qt::SkipEmptyParts)) {
        if (const QTimeZone zone = zoneOfShownPlace(place);
            zone.isValid() && hasOffset(zone, seconds)) {
            return zone;
        }
    }
    return {};
}

/// The zone whose clocks keep both offsets, looked for where most people are who have them.
QTimeZone zoneOfHalfYears(int standard, int daylight) {
    const QDateTime winter(QDate(2024, 1, 1), QTime(12, 0), Qt::UTC);
    const QDateTime summer(QDate(2024, 7, 1), QTime(12, 0), Qt::UTC);
    for (const char* name :
         {"America/New_York", "America/Chicago", "America/Denver", "America/Los_Angeles",
          "America/Anchorage", "America/Halifax", "America/St_Johns", "Europe/London",
          "Europe/Berlin", "Europe/Helsinki", "Australia/Sydney", "Australia/Adelaide",
          "Pacific/Auckland"}) {
        const QTimeZone zone(name);
        const int first = zone.offsetFromUtc(winter);
        const int second = zone.offsetFromUtc(summer);
        if (std::min(first, second) == standard && std::max(first, second) == daylight) {
            return zone;
        }
    }
    return {};
}

} // namespace

QTimeZone zoneOfOffset(const QByteArray& name) {
    const QString text = QString::fromUtf8(name);
    const auto offset = leadingOffset(text);
    if (!offset) {
        return {};
    }
    if (offset->end == text.size()) {
        return offset->seconds == 0 ? QTimeZone::utc() : QTimeZone(offset->seconds);
    }
    static const QRegularExpression halfYears(
        QStringLiteral("^\\s*\\(Standard\\)\\s*/\\s*(.+?)\\s*\\(Daylight\\)$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = halfYears.match(text.sliced(offset->end));
    const auto daylight = match.hasMatch() ? leadingOffset(match.captured(1)) : std::nullopt;
    return daylight ? zoneOfHalfYears(offset->seconds, daylight->seconds) : QTimeZone();
}

QTimeZone zoneAsDisplayed(const QByteArray& name) {
    const QString text = QString::fromUtf8(name);
    const auto offset = leadingOffset(text);
    const QString shown = offset ? text.sliced(offset->end).trimmed() : text;
    if (shown.isEmpty()) {
        return {};
    }
    if (const QTimeZone zone = zoneOfTimeName(shown);
        zone.isValid() && (!offset || hasOffset(zone, offset->seconds))) {
        return zone;
    }
    if (!offset) {
        return {};
    }
    if (shown.startsWith(QStringLiteral("Coordinated Universal Time"), Qt::CaseInsensitive)) {
        return offset->seconds == 0 ? QTimeZone::utc() : QTimeZone(offset->seconds);
    }
    return zoneOfPlaces(shown, offset->seconds);
}

} // namespace quillet
