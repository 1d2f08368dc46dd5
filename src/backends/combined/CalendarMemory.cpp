#include "backends/evolution/RememberedCalendars.h"

#include "platform/FileWriting.h"
#include "platform/Logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillet {

namespace {

const QString identifierKey = QStringLiteral("identifier");
const QString titleKey = QStringLiteral("title");
const QString colorKey = QStringLiteral("color");
constexpr qint64 largestFile = 1'000'000;

} // namespace

CalendarList rememberedCalendars(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile) {
        return {};
    }
    CalendarList calendars;
    for (const auto& value : QJsonDocument::fromJson(file.readAll()).array()) {
        const QJsonObject kept = value.toObject();
        StoreCalendar calendar{kept[identifierKey].toString(), kept[titleKey].toString(),
                               kept[colorKey].toString()};
        if (!calendar.calendarIdentifier.isEmpty()) {
            calendars.push_back(std::make_shared<const StoreCalendar>(std::move(calendar)));
        }
    }
    return calendars;
}

void rememberCalendars(const QString& path, const CalendarList& calendars) {
    QJsonArray kept;
    for (const auto& calendar : calendars) {
        kept.append(QJsonObject{{identifierKey, calendar->calendarIdentifier},
                                {titleKey, calendar->title},
                                {colorKey, calendar->colorName}});
    }
    const QString folder = QFileInfo(path).path();
    const auto written = QDir().mkpath(folder)
                             ? writeAtomically(path, QJsonDocument(kept).toJson())
                             : std::unexpected(QStringLiteral("%1: cannot be created").arg(folder));
    if (!written) {
        qCWarning(quilletLog).noquote()
            << "the list of desktop calendars cannot be kept: " + written.error();
    }
}

} // namespace quillet
