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

QString styleOf(const MessageRequest& request) {
    QString family = request.fontName.value_or(QString());
    // Only what cannot leave its place in the style.
    erase_if(family, [](QChar character) {
        return !character.isLetterOrNumber() && character != u' ' && character != u'-';
    });
    QString style = QStringLiteral("margin:0;font-family:%1monospace")
                        .arg(family.isEmpty() ? QString() : family + QStringLiteral(", "));
    if (request.fontSizePoints) {
        constexpr double largestPoints = 100;
        style += QStringLiteral(";font-size:%1pt")
                     .arg(std::clamp(*request.fontSizePoints, 1.0, largestPoints));
    }
    if (request.color) {
        const auto part = [](double fraction) {
            return static_cast<float>(std::clamp(fraction, 0.0, 1.0));
        };
        style += QStringLiteral(";color:%1")
                     .arg(QColor::fromRgbF(part(request.color->red), part(request.color->green),
                                           part(request.color->blue))
                              .name());
    }
    return style;
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

bool isStyled(const MessageRequest& request) {
    return request.fontName || request.fontSizePoints || request.color;
}

QByteArray messagePage(const MessageRequest& request) {
    QString content = withPlainLineBreaks(request.content).toHtmlEscaped();
    // Line feeds would be read as blanks.
    content.replace(u'\n', QStringLiteral("<br>"));
    return (QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><pre style=\"") +
            styleOf(request) + QStringLiteral("\">") + content +
            QStringLiteral("</pre></body></html>"))
        .toUtf8();
}

QString composeArgument(const MessageRequest& request, const QString& file) {
    // Values without quotes are decoded, so that no character of theirs can end them.
    return QStringLiteral("subject=") + encoded(inOneLine(request.subject)) +
           (isStyled(request) ? QStringLiteral(",format=html") : QStringLiteral(",format=text")) +
           QStringLiteral(",message=") + encoded(file);
}

QStringList kmailArguments(const MessageRequest& request, const QString& file) {
    return {QStringLiteral("--composer"), QStringLiteral("--subject=") + inOneLine(request.subject),
            QStringLiteral("--msg"), file};
}

} // namespace quillet
