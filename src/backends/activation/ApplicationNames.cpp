#include "backends/activation/ApplicationNames.h"

namespace quillet {

QString applicationIdentifier() {
    return QStringLiteral("org.quillet.Quillet");
}

QString applicationObjectPath() {
    return QStringLiteral("/org/quillet/Quillet");
}

QString applicationInterface() {
    return QStringLiteral("org.freedesktop.Application");
}

QString activationTokenKey() {
    return QStringLiteral("activation-token");
}

QString startupIdentifierKey() {
    return QStringLiteral("desktop-startup-id");
}

QString startToken(const EnvironmentReader& environment) {
    const QString token = environment("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? environment("DESKTOP_STARTUP_ID") : token;
}

} // namespace quillet
