#include "backends/programs/DesktopPortal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>
#include <QFile>

namespace quillet {

namespace {

constexpr int longestSubject = 200;

std::expected<void, QString> called(const char* interface, const char* method,
                                    const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QLatin1StringView("org.freedesktop.portal.") + QLatin1StringView(interface),
        QString::fromLatin1(method));
    // No window of this program is named as the parent of what is shown.
    message.setArguments(QVariantList{QString()} + arguments);
    const QDBusMessage reply = QDBusConnection::sessionBus().call(message);
    if (reply.type() == QDBusMessage::ReplyMessage) {
        return {};
    }
    return std::unexpected(reply.errorMessage());
}

} // namespace

bool isInSandbox() {
    return QFile::exists(QStringLiteral("/.flatpak-info"));
}

std::expected<void, QString> SessionBusPortal::composeEmail(const QString& subject,
                                                            const QString& body) {
    // Longer subjects and those of several lines are refused.
    QVariantMap options{{QStringLiteral("subject"), subject.simplified().left(longestSubject)}};
    if (!body.isEmpty()) {
        options.insert(QStringLiteral("body"), body);
    }
    return called("Email", "ComposeEmail", {options});
}

std::expected<void, QString> SessionBusPortal::openAddress(const QString& address) {
    return called("OpenURI", "OpenURI", {address, QVariantMap()});
}

std::expected<void, QString> SessionBusPortal::openFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::unexpected(file.errorString());
    }
    return called("OpenURI", "OpenFile",
                  {QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())), QVariantMap()});
}

} // namespace quillet
