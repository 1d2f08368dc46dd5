#include "export/MailScript.h"

#include <QStringList>

namespace quillet {

namespace {

/// Six decimals and a point, whatever the locale.
QString fraction(double value) {
    return QString::number(value, 'f', 6);
}

/// The blanks that end the first two lines belong to the script.
QStringList styleLines(const MessageStyle& style) {
    return {QStringLiteral("set font of content to \"%1\" ").arg(style.fontName),
            QStringLiteral("set size of content to %1 ").arg(style.fontSizePoints),
            QStringLiteral("set color of content to {%1,%2,%3}")
                .arg(fraction(style.color.red), fraction(style.color.green),
                     fraction(style.color.blue))};
}

/// Each line indented; the mail program's scripts have always looked so.
QString messageSource(const MessageRequest& request) {
    const QString indent(19, u' ');
    const QString lineBreak = u'\n' + indent;
    const QStringList head{"tell application \"Mail\"",
                           "activate",
                           "set MyEmail to make new outgoing message",
                           "tell MyEmail",
                           "set visible to true",
                           "set content to (\""};
    const QStringList tail =
        QStringList{"\")"} + (request.style ? styleLines(*request.style) : QStringList()) +
        QStringList{"set subject to \"" + request.subject + u'"', "end tell", "end tell"};
    // The content of a long report is the better part of the memory that this takes.
    const QString content = removeQuotesFromString(request.content);
    QString source = indent + head.join(lineBreak);
    const QString end = tail.join(lineBreak);
    source.reserve(source.size() + content.size() + end.size());
    return source.append(content).append(end);
}

} // namespace

QString removeQuotesFromString(const QString& text) {
    // In one pass: replacing in place moves the rest of a long text again and again.
    return text.contains(u'"') ? text.split(u'"').join(QStringLiteral("\\\"")) : text;
}

MessageStyle reportMailStyle(const ColorFractions& color) {
    constexpr double sizePoints = 10;
    return {.fontName = QStringLiteral("Monaco"), .fontSizePoints = sizePoints, .color = color};
}

Script mailScript(MessageRequest request) {
    QString source = messageSource(request);
    return {.source = std::move(source), .request = std::move(request)};
}

} // namespace quillet
