#pragma once

#include <QList>
#include <QMap>
#include <QString>

namespace quillet::test {

/// An entry of a string table as it is kept beside the sources.
struct TableEntry {
    QString source;
    QString translation;
    bool isFinished = false;
};

/// The texts that the sources give to localized() and localizable(), with the place of the first
/// use ("src/window/MainWindow.cpp:53").
[[nodiscard]] QMap<QString, QString> textsOfSources();

/// The entries of translations/quillet_<language>.ts, in their order; a file that is none fails the
/// test.
[[nodiscard]] QList<TableEntry> stringTable(const QString& language);

/// Literals of the window's sources that look like words for a reader, and are in no table, with
/// their places.
[[nodiscard]] QStringList wordsWithoutTable();

} // namespace quillet::test
