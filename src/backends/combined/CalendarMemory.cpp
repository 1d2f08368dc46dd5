#include "backends/combined/CalendarMemory.h"

#include "platform/FileReading.h"
#include "platform/FileWriting.h"
#include "platform/Logging.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

const QString identifierKey = QStringLiteral("identifier");
const QString titleKey = QStringLiteral("title");
const QString colorKey = QStringLiteral("color");
constexpr qint64 largestFile = 1'000'000;

CalendarList readFrom(const QString& path) {
    const auto text = contentsOfFile(path, largestFile);
    if (!text) {
        return {};
    }
    CalendarList calendars;
    for (const auto& value : QJsonDocument::fromJson(*text).array()) {
        const QJsonObject kept = value.toObject();
        StoreCalendar calendar{kept[identifierKey].toString(), kept[titleKey].toString(),
                               kept[colorKey].toString()};
        if (!calendar.calendarIdentifier.isEmpty()) {
            calendars.push_back(std::make_shared<const StoreCalendar>(std::move(calendar)));
        }
    }
    return calendars;
}

bool isSame(const CalendarList& left, const CalendarList& right) {
    return std::ranges::equal(left, right,
                              [](const auto& one, const auto& other) { return *one == *other; });
}

std::expected<void, QString> write(const QString& path, const CalendarList& calendars) {
    QJsonArray kept;
    for (const auto& calendar : calendars) {
        kept.append(QJsonObject{{identifierKey, calendar->calendarIdentifier},
                                {titleKey, calendar->title},
                                {colorKey, calendar->colorName}});
    }
    const QString folder = QFileInfo(path).path();
    return QDir().mkpath(folder)
               ? writeAtomically(path, QJsonDocument(kept).toJson())
               : std::unexpected(QStringLiteral("%1: cannot be created").arg(folder));
}

} // namespace

CalendarMemory::CalendarMemory(QString path)
    : path_(std::move(path))
    , calendars_(path_.isEmpty() ? CalendarList() : readFrom(path_)) {}

void CalendarMemory::keep(const CalendarList& calendars) {
    if (path_.isEmpty() || isSame(calendars, calendars_)) {
        return;
    }
    calendars_ = calendars;
    if (const auto written = write(path_, calendars); !written) {
        qCWarning(quilletLog).noquote()
            << "the list of calendars cannot be kept: " + written.error();
    }
}

} // namespace quillet
