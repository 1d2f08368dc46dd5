#include "backends/programs/MailMessage.h"

#include <QColor>
#include <QUrl>

#include <algorithm>

namespace quillet {

namespace {

QString encoded(const QString& text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

/// Of a subject, which is one line.
QString inOneLine(QString text) {
    for (QChar& character : text) {
        if (character < u' ') {
            character = u' ';
        }
    }
    return text;
}

QString withPlainLineBreaks(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    return text.remove(QChar::Null);
}

QString styleText(const MessageStyle& style) {
    QString family = style.fontName;
    // Only what cannot leave its place in the style.
    erase_if(family, [](QChar character) {
        return !character.isLetterOrNumber() && character != u' ' && character != u'-';
    });
    constexpr double largestPoints = 100;
    const auto part = [](double fraction) {
        return static_cast<float>(std::clamp(fraction, 0.0, 1.0));
    };
    return QStringLiteral("margin:0;font-family:%1monospace;font-size:%2pt;color:%3")
        .arg(family.isEmpty() ? QString() : family + QStringLiteral(", "))
        .arg(std::clamp(style.fontSizePoints, 1.0, largestPoints))
        .arg(
            QColor::fromRgbF(part(style.color.red), part(style.color.green), part(style.color.blue))
                .name());
}

/// What the character is in a page; null for one that is there as itself.
const char* pageTextOf(QChar character) {
    switch (character.unicode()) {
    case u'<':
        return "&lt;";
    case u'>':
        return "&gt;";
    case u'&':
        return "&amp;";
    case u'"':
        return "&quot;";
    case u'\r':
    case u'\n':
        // As itself it would be read as a blank.
        return "<br>";
    case u'\0':
        return "";
    default:
        return nullptr;
    }
}

/// In one pass over what may be a report of a hundred thousand events.
QByteArray pageText(QStringView content) {
    QByteArray page;
    page.reserve(content.size() + content.size() / 4);
    qsizetype begin = 0;
    for (qsizetype position = 0; position < content.size(); ++position) {
        const char* text = pageTextOf(content[position]);
        if (text == nullptr) {
            continue;
        }
        page += content.sliced(begin, position - begin).toUtf8();
        page += text;
        const bool isPair = content.sliced(position).startsWith(u"\r\n");
        position += isPair ? 1 : 0;
        begin = position + 1;
    }
    return page += content.sliced(begin).toUtf8();
}

} // namespace

QString mailtoAddress(const QString& subject, const QString& body) {
    QString address = QStringLiteral("mailto:?subject=") + encoded(inOneLine(subject));
    if (!body.isEmpty()) {
        QString lines = withPlainLineBreaks(body);
        address += QStringLiteral("&body=") +
                   encoded(lines.replace(QStringLiteral("\n"), QStringLiteral("\r\n")));
    }
    return address;
}

QByteArray messagePage(const QString& content, const MessageStyle& style) {
    return R"(<html><head><meta charset="utf-8"></head><body><pre style=")" +
           styleText(style).toUtf8() + R"(">)" + pageText(content) + "</pre></body></html>";
}

QString composeArgument(const MessageRequest& request, const QString& file) {
    // Values without quotes are decoded, so that no character of theirs can end them.
    return QStringLiteral("subject=") + encoded(inOneLine(request.subject)) +
           (request.style ? QStringLiteral(",format=html") : QStringLiteral(",format=text")) +
           QStringLiteral(",message=") + encoded(file);
}

QStringList kmailArguments(const MessageRequest& request, const QString& file) {
    return {QStringLiteral("--composer"), QStringLiteral("--subject=") + inOneLine(request.subject),
            QStringLiteral("--msg"), file};
}

} // namespace quillet
