#pragma once

#include <QByteArray>
#include <QList>
#include <QTimeZone>

namespace quillet {

/// The zone that a calendar file means by a name, where the name alone says it: one of the zone
/// database, in any case and also behind a vendor's path ("/vendor/Europe/Paris", "US-Eastern"),
/// one of Windows ("W. Europe Standard Time", "W. Europe"), what mail programs of the desktop show
/// ("(UTC+01:00) Amsterdam, Berlin, Bern"), or an offset ("GMT+0100", "+01:00"). Not valid for all
/// others.
[[nodiscard]] QTimeZone zoneNamed(const QByteArray& written);

/// The zone for a name that may mean several ("CEST", "BST", "Berlin"), where one of the zones that
/// are hinted at elsewhere in the same file goes by it. Not valid otherwise.
[[nodiscard]] QTimeZone zoneNamed(const QByteArray& written, const QList<QTimeZone>& hints);

} // namespace quillet
