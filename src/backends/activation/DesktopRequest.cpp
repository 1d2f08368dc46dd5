#include "backends/activation/DesktopRequest.h"

#include "backends/activation/ApplicationNames.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>
#include <QVariantMap>

namespace quillet {

namespace {

const QString actionOption = QStringLiteral("--action");

QVariantMap platformDataWith(const QString& token) {
    if (token.isEmpty()) {
        return {};
    }
    return {{activationTokenKey(), token}, {startupIdentifierKey(), token}};
}

bool isAddress(const QString& argument) {
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]+:"));
    return scheme.match(argument).hasMatch();
}

/// A file may be called like an address: what is there is meant.
QString addressOf(const QString& argument, const QDir& folder) {
    if (isAddress(argument) && !QFileInfo::exists(folder.absoluteFilePath(argument))) {
        return argument;
    }
    return QString::fromLatin1(
        QUrl::fromLocalFile(QDir::cleanPath(folder.absoluteFilePath(argument))).toEncoded());
}

} // namespace

DesktopRequest desktopRequest(const QStringList& arguments, const QString& folder) {
    DesktopRequest request;
    if (arguments.size() == 2 && arguments.first() == actionOption) {
        request.action = arguments.last();
        return request;
    }
    for (const QString& argument : arguments) {
        if (!argument.isEmpty()) {
            request.addresses << addressOf(argument, QDir(folder));
        }
    }
    return request;
}

QDBusMessage callFor(const DesktopRequest& request, const QString& token) {
    const auto callOf = [](const QString& method) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            applicationIdentifier(), applicationObjectPath(), applicationInterface(), method);
        // An owner that has gone meanwhile is not to be started by the bus, which may know no
        // screen: whoever asks does.
        call.setAutoStartService(false);
        return call;
    };
    const QVariantMap platformData = platformDataWith(token);
    if (!request.action.isEmpty()) {
        return callOf(QStringLiteral("ActivateAction"))
               << request.action << QVariantList() << platformData;
    }
    if (!request.addresses.isEmpty()) {
        return callOf(QStringLiteral("Open")) << request.addresses << platformData;
    }
    return callOf(QStringLiteral("Activate")) << platformData;
}

} // namespace quillet
