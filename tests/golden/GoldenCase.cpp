#include "golden/GoldenCase.h"

#include "backends/combined/EventOrder.h"
#include "backends/settingsfile/SettingsJson.h"
#include "eventtable/EventColumns.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <ostream>
#include <stdexcept>

namespace quillet::golden {

namespace {

QJsonDocument jsonFile(const QString& name) {
    const auto text = fileContent(dataPath() + u'/' + name);
    const auto document = QJsonDocument::fromJson(text.value_or(QByteArray()));
    if (document.isNull()) {
        throw std::runtime_error("cannot read " + name.toStdString());
    }
    return document;
}

QJsonObject merged(QJsonObject values, const QJsonObject& over) {
    for (auto member = over.begin(); member != over.end(); ++member) {
        values.insert(member.key(), member.value());
    }
    return values;
}

/// As a settings file with these members would be read; null members are absent.
QVariantMap settingsValues(const QJsonObject& values) {
    const auto read = settingsFromText(QJsonDocument(values).toJson());
    if (!read) {
        throw std::runtime_error(read.error().toStdString());
    }
    return *read;
}

/// The default title of every column, under its key.
QJsonObject defaultTitles() {
    QJsonObject titles;
    for (const EventColumn& column : eventColumns()) {
        titles.insert(column.title.name(), column.title.firstRunValue().toString());
    }
    return titles;
}

/// "title:150", or "-title:150" for a hidden one.
CaseColumn columnFrom(const QString& text) {
    const bool isHidden = text.startsWith(u'-');
    const QStringList parts = text.sliced(isHidden ? 1 : 0).split(u':');
    return {.identifier = parts.at(0), .widthPoints = parts.at(1).toDouble(), .isHidden = isHidden};
}

CaseCalendar calendarFrom(const QJsonObject& entry) {
    return {.title = entry.value(u"title").toString(),
            .isSelected = entry.value(u"isSelected").toBool(),
            .isStored = entry.value(u"isStored").toBool(true),
            .rate = settingsValues(entry).value(QStringLiteral("rate"))};
}

GoldenCase caseFrom(const QJsonObject& entry, const QJsonObject& settings) {
    GoldenCase described;
    described.name = entry.value(u"name").toString();
    described.locale = entry.value(u"locale").toString();
    described.zone = entry.value(u"zone").toString();
    described.firstDay = QDate::fromString(entry.value(u"firstDay").toString(), Qt::ISODate);
    described.lastDay = QDate::fromString(entry.value(u"lastDay").toString(), Qt::ISODate);
    described.search = entry.value(u"search").toString();
    described.isLatestFirst = entry.value(u"order").toString() == u"latestFirst";
    described.settings = settingsValues(merged(defaultTitles(), settings));
    for (const QJsonValue& column : entry.value(u"columns").toArray()) {
        described.columns.push_back(columnFrom(column.toString()));
    }
    for (const QJsonValue& calendar : entry.value(u"calendars").toArray()) {
        described.calendars.push_back(calendarFrom(calendar.toObject()));
    }
    for (const QJsonValue& identifier : entry.value(u"selected").toArray()) {
        described.selected.append(identifier.toString());
    }
    return described;
}

std::vector<GoldenCase> readCases() {
    const QJsonObject document = jsonFile(QStringLiteral("cases.json")).object();
    const QJsonObject defaults = document.value(u"defaults").toObject();
    std::vector<GoldenCase> cases;
    for (const QJsonValue& value : document.value(u"cases").toArray()) {
        const QJsonObject entry = value.toObject();
        cases.push_back(
            caseFrom(merged(defaults, entry), merged(defaults.value(u"settings").toObject(),
                                                     entry.value(u"settings").toObject())));
    }
    return cases;
}

Instant instantFrom(const QJsonValue& value) {
    const QDateTime time = QDateTime::fromString(value.toString(), Qt::ISODate);
    return Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
}

/// Null where the member is: a missing text is not an empty one.
QString textFrom(const QJsonValue& value) {
    return value.isNull() ? QString() : QStringLiteral("") + value.toString();
}

} // namespace

void PrintTo(const GoldenCase& described, std::ostream* out) {
    *out << described.name.toStdString();
}

QString dataPath() {
    return QStringLiteral(QUILLET_TEST_DATA);
}

std::optional<QByteArray> fileContent(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

const std::vector<GoldenCase>& goldenCases() {
    static const std::vector<GoldenCase> cases = readCases();
    return cases;
}

EventList furtherEvents(const std::vector<std::shared_ptr<const StoreCalendar>>& all) {
    EventList events;
    for (const QJsonValue& value : jsonFile(QStringLiteral("events.json")).array()) {
        const QJsonObject entry = value.toObject();
        const auto calendar = std::ranges::find(all, entry.value(u"calendar").toString(),
                                                [](const auto& each) { return each->title; });
        if (calendar == all.end()) {
            throw std::runtime_error("events.json names a calendar that is not there");
        }
        auto details = std::make_shared<EventDetails>();
        details->calendar = *calendar;
        details->title = textFrom(entry.value(u"title"));
        details->location = textFrom(entry.value(u"location"));
        details->notes = textFrom(entry.value(u"notes"));
        details->url = textFrom(entry.value(u"url"));
        details->eventIdentifier = entry.value(u"uid").toString();
        events.push_back({.startDate = instantFrom(entry.value(u"start")),
                          .endDate = instantFrom(entry.value(u"end")),
                          .occurrenceDate = {},
                          .details = std::move(details)});
    }
    std::ranges::stable_sort(events, isDeliveredBefore);
    return events;
}

} // namespace quillet::golden
