#include "backends/programs/DesktopPortal.h"

#include "backends/programs/LiveWait.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QFile>

namespace quillet {

namespace {

constexpr int longestSubject = 200;
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

} // namespace

bool isInSandbox() {
    return QFile::exists(QStringLiteral("/.flatpak-info"));
}

void PortalAnswer::responded(const QDBusMessage& response) {
    constexpr unsigned int otherEnd = 2;
    const QVariantList arguments = response.arguments();
    // One that the user called off has not failed.
    hasFailed_ = !arguments.isEmpty() && arguments.front().toUInt() == otherEnd;
    Q_EMIT came();
}

SessionBusPortal::SessionBusPortal(QDBusConnection bus, Patience patience)
    : bus_(std::move(bus))
    , patience_(patience) {}

std::expected<void, QString> SessionBusPortal::composeEmail(const QString& subject,
                                                            const QString& body) {
    // Longer subjects and those of several lines are refused.
    QVariantMap options{{QStringLiteral("subject"), subject.simplified().left(longestSubject)}};
    if (!body.isEmpty()) {
        // No text on the bus goes beyond one.
        options.insert(QStringLiteral("body"), QString(body).remove(QChar::Null));
    }
    return call("Email", "ComposeEmail", {}, std::move(options));
}

std::expected<void, QString> SessionBusPortal::openAddress(const QString& address) {
    return call("OpenURI", "OpenURI", {address}, {});
}

std::expected<void, QString> SessionBusPortal::openFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::unexpected(file.errorString());
    }
    return call("OpenURI", "OpenFile",
                {QVariant::fromValue(QDBusUnixFileDescriptor(file.handle()))}, {});
}

std::expected<void, QString> SessionBusPortal::call(const char* interface, const char* method,
                                                    const QVariantList& subject,
                                                    QVariantMap options) {
    // The answer may come before the path is known that it comes from, so that path is named.
    const QString token = QStringLiteral("quillet%1").arg(++requests_);
    options.insert(QStringLiteral("handle_token"), token);
    const QString sender = bus_.baseService().mid(1).replace(u'.', u'_');
    const QString path =
        QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
    PortalAnswer answer;
    LiveWait wait(patience_.response);
    QObject::connect(&answer, &PortalAnswer::came, [&wait] { wait.end(); });
    bus_.connect(service, path, requestInterface, QStringLiteral("Response"), &answer,
                 SLOT(responded(QDBusMessage)));
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/portal/desktop"),
        QLatin1StringView("org.freedesktop.portal.") + QLatin1StringView(interface),
        QString::fromLatin1(method));
    // No window of this program is named as the parent of what is shown.
    message.setArguments(QVariantList{QString()} + subject + QVariantList{options});
    const QDBusMessage reply = liveAnswer(bus_, message, patience_.reply);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return std::unexpected(reply.errorMessage());
    }
    // The user may take a long time to choose a program; a failure comes at once.
    if (wait.run() && answer.hasFailed()) {
        return std::unexpected(QStringLiteral("no program could be started"));
    }
    return {};
}

} // namespace quillet
