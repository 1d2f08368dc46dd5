#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <expected>

namespace quillet {

/// The text of a settings file: one JSON object, its members sorted, one to a line. An instant is
/// {"$date": "2024-03-01T00:00:00Z"}, a decimal {"$decimal": "100.5"}.
[[nodiscard]] QByteArray settingsText(const QVariantMap& values);

/// Reads such a text. The error says what is wrong and where.
[[nodiscard]] std::expected<QVariantMap, QString> settingsFromText(const QByteArray& text);

} // namespace quillet
