#pragma once

#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

namespace quillet {

/// Reads the description of a release, whose start the reader stands at, up to its end: plain text,
/// paragraphs separated by empty lines, the items of lists marked. Long ones are cut off.
[[nodiscard]] QString readReleaseNotes(QXmlStreamReader& xml, const QStringList& languages);

} // namespace quillet
