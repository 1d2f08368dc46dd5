#include "export/MailScript.h"

#include <QStringList>

namespace quillet {

namespace {

/// Six decimals and a point, whatever the locale.
QString fraction(double value) {
    return QString::number(value, 'f', 6);
}

/// Each line indented; the mail program's scripts have always looked so.
QString messageScript(const QString& body, const QStringList& styleLines, const QString& subject) {
    const QStringList lines =
        QStringList{"tell application \"Mail\"",
                    "activate",
                    "set MyEmail to make new outgoing message",
                    "tell MyEmail",
                    "set visible to true",
                    QStringLiteral("set content to (\"%1\")").arg(body)} +
        styleLines +
        QStringList{QStringLiteral("set subject to \"%1\"").arg(subject), "end tell", "end tell"};
    const QString indent(19, u' ');
    return indent + lines.join(u'\n' + indent);
}

} // namespace

QString removeQuotesFromString(QString text) {
    return text.replace(QStringLiteral("\""), QStringLiteral("\\\""));
}

QString plainMailScript(const QString& body, const QString& subject) {
    return messageScript(body, {}, subject);
}

QString styledMailScript(const QString& body, const ColorFractions& color, const QString& subject) {
    // The blanks that end the first two lines belong to the script.
    return messageScript(
        body,
        {"set font of content to \"Monaco\" ", "set size of content to 10 ",
         QStringLiteral("set color of content to {%1,%2,%3}")
             .arg(fraction(color.red), fraction(color.green), fraction(color.blue))},
        subject);
}

} // namespace quillet
