#include "backends/settingsfile/SettingsJson.h"

#include "platform/Decimal.h"
#include "platform/Instant.h"
#include "texts/Localized.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>

namespace quillet {

namespace {

constexpr QLatin1StringView dateMember("$date");
constexpr QLatin1StringView decimalMember("$decimal");

QString dateText(Instant instant) {
    const qint64 milliseconds = instant.time_since_epoch().count();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC)
        .toString(milliseconds % 1000 == 0 ? Qt::ISODate : Qt::ISODateWithMs);
}

QJsonValue toJson(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<Instant>()) {
        return QJsonObject{{dateMember, dateText(value.value<Instant>())}};
    }
    if (value.metaType() == QMetaType::fromType<Decimal>()) {
        return QJsonObject{{decimalMember, value.value<Decimal>().toString()}};
    }
    if (value.typeId() == QMetaType::QVariantList) {
        QJsonArray array;
        for (const QVariant& element : value.toList()) {
            array.append(toJson(element));
        }
        return array;
    }
    if (value.typeId() == QMetaType::QVariantMap) {
        QJsonObject object;
        const QVariantMap map = value.toMap();
        for (auto member = map.begin(); member != map.end(); ++member) {
            object.insert(member.key(), toJson(member.value()));
        }
        return object;
    }
    return QJsonValue::fromVariant(value);
}

QVariant fromJson(const QJsonValue& value);

QVariant fromObject(const QJsonObject& object) {
    // The member's name as it is read, not looked up: a byte-order mark in it counts for one only.
    const bool isTyped = object.size() == 1 && object.begin().value().isString();
    if (isTyped && object.begin().key() == dateMember) {
        const QDateTime date =
            QDateTime::fromString(object.begin().value().toString(), Qt::ISODateWithMs);
        if (date.isValid()) {
            return QVariant::fromValue(
                Instant(std::chrono::milliseconds(date.toMSecsSinceEpoch())));
        }
    }
    if (isTyped && object.begin().key() == decimalMember) {
        return QVariant::fromValue(Decimal::fromString(object.begin().value().toString()));
    }
    QVariantMap map;
    for (auto member = object.begin(); member != object.end(); ++member) {
        map.insert(member.key(), fromJson(member.value()));
    }
    return map;
}

QVariant fromJson(const QJsonValue& value) {
    if (value.isObject()) {
        return fromObject(value.toObject());
    }
    if (value.isArray()) {
        QVariantList list;
        for (const QJsonValue element : value.toArray()) {
            list.append(fromJson(element));
        }
        return list;
    }
    return value.toVariant();
}

} // namespace

QByteArray settingsText(const QVariantMap& values) {
    return QJsonDocument(toJson(values).toObject()).toJson(QJsonDocument::Indented);
}

std::expected<QVariantMap, QString> settingsFromText(const QByteArray& text) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        return std::unexpected(
            localized("%1 at byte %2").arg(error.errorString()).arg(error.offset));
    }
    if (!document.isObject()) {
        return std::unexpected(localized("the text is not a JSON object"));
    }
    QVariantMap values;
    const QJsonObject object = document.object();
    for (auto member = object.begin(); member != object.end(); ++member) {
        // A member whose value is null holds nothing, as an absent key does.
        if (!member.value().isNull()) {
            values.insert(member.key(), fromJson(member.value()));
        }
    }
    return values;
}

} // namespace quillet
