#include "StringTables.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

const QString literal = QStringLiteral(R"("(?:[^"\\\n]|\\.)*")");

struct Source {
    QString name;
    QString text;

    [[nodiscard]] QString place(qsizetype offset) const {
        return QStringLiteral("%1:%2").arg(name).arg(QStringView(text).left(offset).count(u'\n') +
                                                     1);
    }
};

QString contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QList<Source> sources() {
    const QDir folder(QStringLiteral(QUILLET_SOURCES));
    QList<Source> all;
    QDirIterator files(folder.path(), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        all.append({"src/" + folder.relativeFilePath(path), contentOf(path)});
    }
    std::ranges::sort(all, {}, &Source::name);
    return all;
}

/// What one or more adjacent literals stand for.
QString valueOf(const QString& literals) {
    static const QRegularExpression each(literal);
    QString value;
    for (const QRegularExpressionMatch& match : each.globalMatch(literals)) {
        const QString written = match.captured().mid(1, match.capturedLength() - 2);
        for (qsizetype i = 0; i < written.size(); ++i) {
            if (written[i] != u'\\') {
                value += written[i];
                continue;
            }
            const QChar escaped = written[++i];
            value += escaped == u'n' ? QChar(u'\n') : escaped == u't' ? QChar(u'\t') : escaped;
        }
    }
    return value;
}

QRegularExpression localizedCall() {
    return QRegularExpression(
        QStringLiteral(R"(\blocaliz(?:ed|able)\(\s*(%1(?:\s*%1)*))").arg(literal));
}

/// Of the same length, with blanks for what no user ever sees.
QString withoutHiddenParts(QString text) {
    static const QList<QRegularExpression> hidden{
        localizedCall(), QRegularExpression(R"(//[^\n]*)"), QRegularExpression(R"(#include[^\n]*)"),
        QRegularExpression(R"(qC?(Warning|Info|Debug|Critical)\([^;]*;)")};
    for (const QRegularExpression& pattern : hidden) {
        for (const QRegularExpressionMatch& match : pattern.globalMatch(QString(text))) {
            for (qsizetype i = match.capturedStart(); i < match.capturedEnd(); ++i) {
                text[i] = text[i] == u'\n' ? u'\n' : u' ';
            }
        }
    }
    return text;
}

} // namespace

QMap<QString, QString> textsOfSources() {
    const QRegularExpression call = localizedCall();
    QMap<QString, QString> places;
    for (const Source& source : sources()) {
        for (const QRegularExpressionMatch& match : call.globalMatch(source.text)) {
            const QString text = valueOf(match.captured(1));
            if (!places.contains(text)) {
                places.insert(text, source.place(match.capturedStart()));
            }
        }
    }
    return places;
}

QList<TableEntry> stringTable(const QString& language) {
    QXmlStreamReader reader(
        contentOf(QStringLiteral(QUILLET_STRING_TABLES "/quillet_%1.ts").arg(language)));
    QList<TableEntry> entries;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == u"source") {
            entries.append({.source = reader.readElementText(), .translation = {}});
        } else if (reader.name() == u"translation" && !entries.isEmpty()) {
            entries.last().isFinished = !reader.attributes().hasAttribute("type");
            entries.last().translation = reader.readElementText();
        }
    }
    EXPECT_FALSE(reader.hasError())
        << language.toStdString() << ": " << reader.errorString().toStdString();
    return entries;
}

QStringList wordsWithoutTable() {
    static const QRegularExpression words(QStringLiteral(R"(^&?\p{Lu}\p{Ll}|\p{L}\p{Ll}+ \p{L})"));
    static const QRegularExpression each(literal);
    const QStringList names{"Quillet", "quillet/Release Notes.rtf"};
    QStringList found;
    for (const Source& source : sources()) {
        if (!source.name.startsWith("src/window/") && source.name.count(u'/') != 1) {
            continue;
        }
        for (const QRegularExpressionMatch& match :
             each.globalMatch(withoutHiddenParts(source.text))) {
            const QString value = valueOf(match.captured());
            if (words.match(value).hasMatch() && !names.contains(value)) {
                found.append(source.place(match.capturedStart()) + ": " + match.captured());
            }
        }
    }
    return found;
}

} // namespace quillet::test
