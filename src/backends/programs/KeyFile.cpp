#include "backends/programs/KeyFile.h"

#include <QFile>

namespace quillet {

namespace {

/// No honest file of this kind comes near.
constexpr qint64 largestFileBytes = qint64{1024} * 1024;

QString unescaped(const QString& value) {
    QString text;
    text.reserve(value.size());
    for (qsizetype position = 0; position < value.size(); ++position) {
        if (value[position] != u'\\' || position + 1 == value.size()) {
            text += value[position];
            continue;
        }
        const QChar escaped = value[++position];
        if (escaped == u's') {
            text += u' ';
        } else if (escaped == u'n') {
            text += u'\n';
        } else if (escaped == u't') {
            text += u'\t';
        } else if (escaped == u'r') {
            text += u'\r';
        } else if (escaped == u'\\') {
            text += u'\\';
        } else {
            text += u'\\';
            text += escaped;
        }
    }
    return text;
}

} // namespace

KeyFile KeyFile::read(const QString& path) {
    KeyFile result;
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return result;
    }
    const QString content = QString::fromUtf8(file.read(largestFileBytes));
    QString group;
    for (const QStringView part : QStringView(content).split(u'\n')) {
        const QStringView line = part.trimmed();
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            group = line.sliced(1, line.size() - 2).toString();
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'#') || equals <= 0) {
            continue;
        }
        const QString key = line.first(equals).trimmed().toString();
        auto& values = result.values_[group];
        if (!values.contains(key)) {
            values.insert(key, line.sliced(equals + 1).trimmed().toString());
        }
    }
    return result;
}

QString KeyFile::text(const QString& group, const QString& key) const {
    const auto& values = values_.value(group);
    const auto value = values.constFind(key);
    return value == values.constEnd() ? QString() : unescaped(*value);
}

QStringList KeyFile::list(const QString& group, const QString& key) const {
    QStringList parts;
    for (const QString& part : values_.value(group).value(key).split(u';')) {
        if (const QString trimmed = part.trimmed(); !trimmed.isEmpty()) {
            parts.append(trimmed);
        }
    }
    return parts;
}

bool KeyFile::isTrue(const QString& group, const QString& key) const {
    return values_.value(group).value(key) == u"true";
}

} // namespace quillet
