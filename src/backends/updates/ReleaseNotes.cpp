#include "backends/updates/ReleaseNotes.h"

#include <QList>

#include <algorithm>

namespace quillet {

namespace {

/// A paragraph or an item of a list.
struct Block {
    QString language;
    QString text;
    bool isItem = false;
};

QString languageOf(const QXmlStreamReader& xml, const QString& inherited) {
    const auto attribute = xml.attributes().value(
        QStringLiteral("http://www.w3.org/XML/1998/namespace"), QStringLiteral("lang"));
    return attribute.isEmpty() ? inherited : attribute.toString().replace(u'-', u'_');
}

/// The text up to the end of the element, of the elements in it too. Not by recursion: a hostile
/// text may nest as deeply as it is long.
QString textOfElement(QXmlStreamReader& xml) {
    QString text;
    for (int depth = 1; depth > 0 && !xml.atEnd();) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            ++depth;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::Characters:
            text += xml.text();
            break;
        default:
            break;
        }
    }
    return text.simplified();
}

QList<Block> readBlocks(QXmlStreamReader& xml) {
    QList<Block> blocks;
    const QString language = languageOf(xml, {});
    int items = 0;
    bool isNumbered = false;
    for (int depth = 1; depth > 0 && !xml.atEnd();) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::EndElement) {
            --depth;
        } else if (token == QXmlStreamReader::StartElement && xml.name() == u"p") {
            const QString own = languageOf(xml, language);
            blocks.append({own, textOfElement(xml)});
        } else if (token == QXmlStreamReader::StartElement && xml.name() == u"li") {
            const QString own = languageOf(xml, language);
            // Translations stand beside the item and share its number.
            items += own.isEmpty() ? 1 : 0;
            const QString mark =
                isNumbered ? QStringLiteral("%1. ").arg(items) : QStringLiteral("• ");
            blocks.append({own, mark + textOfElement(xml), true});
        } else if (token == QXmlStreamReader::StartElement) {
            ++depth;
            items = 0;
            isNumbered = xml.name() == u"ol";
        }
    }
    return blocks;
}

/// The first language that something is written in; empty for the untranslated text, which is
/// English.
QString chosenLanguage(const QList<Block>& blocks, const QStringList& languages) {
    for (QString language : languages) {
        while (!language.isEmpty()) {
            if (language == u"en") {
                return {};
            }
            if (std::ranges::find(blocks, language, &Block::language) != blocks.end()) {
                return language;
            }
            language.truncate(std::max<qsizetype>(language.lastIndexOf(u'_'), 0));
        }
    }
    return {};
}

} // namespace

QString readReleaseNotes(QXmlStreamReader& xml, const QStringList& languages) {
    constexpr qsizetype longestNotes = 10'000;
    const QList<Block> blocks = readBlocks(xml);
    const QString language = chosenLanguage(blocks, languages);
    QString notes;
    bool wasItem = false;
    for (const Block& block : blocks) {
        if (block.language != language || block.text.isEmpty()) {
            continue;
        }
        if (!notes.isEmpty()) {
            notes += wasItem && block.isItem ? QStringLiteral("\n") : QStringLiteral("\n\n");
        }
        notes += block.text;
        wasItem = block.isItem;
    }
    return notes.size() > longestNotes ? notes.left(longestNotes) + u'…' : notes;
}

} // namespace quillet
