#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace quillet {

/// A file of groups of keys and values, as desktop entries are. Localised keys keep their brackets;
/// what is malformed is skipped.
class KeyFile {
public:
    /// Empty when the file cannot be read.
    [[nodiscard]] static KeyFile read(const QString& path);

    /// Without escapes; a null QString when there is no such key. The first of several equal keys
    /// holds.
    [[nodiscard]] QString text(const QString& group, const QString& key) const;
    /// The parts between semicolons, without empty ones.
    [[nodiscard]] QStringList list(const QString& group, const QString& key) const;
    [[nodiscard]] bool isTrue(const QString& group, const QString& key) const;

private:
    /// By group and key.
    QHash<QString, QHash<QString, QString>> values_;
};

} // namespace quillet
