#include "backends/programs/DesktopScripting.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QPalette>
#include <QStandardPaths>

namespace quillet {

namespace {

const QString desktopSuffix = QStringLiteral(".desktop");

/// A folder that is this user's alone, and gone after the session where there is one like that.
QString messageFolder(const EnvironmentReader& environment) {
    const QString runtime = environment("XDG_RUNTIME_DIR");
    return (QDir::isAbsolutePath(runtime)
                ? runtime
                : QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)) +
           QStringLiteral("/quillet");
}

} // namespace

DesktopScriptRunner::DesktopScriptRunner(Collaborators collaborators)
    : applications_(collaborators.launcher, QGuiApplication::desktopFileName() + desktopSuffix)
    , mail_({.applications = applications_,
             .pasteboard = collaborators.pasteboard,
             .alerts = collaborators.alerts,
             .messageFolder = messageFolder(collaborators.environment),
             .portal = isInSandbox() ? &portal_ : nullptr})
    , calendar_({.applications = applications_,
                 .bus = bus_,
                 .alerts = collaborators.alerts,
                 .findEvent = std::move(collaborators.findEvent),
                 .portal = isInSandbox() ? &portal_ : nullptr}) {}

std::expected<void, QString> DesktopScriptRunner::run(const Script& script) {
    if (const auto* message = std::get_if<MessageRequest>(&script.request)) {
        return mail_.compose(*message);
    }
    const auto& event = std::get<EventRequest>(script.request);
    // It would end the script's string too early, and a script that is broken shows nothing.
    if (event.calendarIdentifier.contains(u'"') || event.eventIdentifier.contains(u'"')) {
        return std::unexpected(QStringLiteral("the script is malformed"));
    }
    return calendar_.show(event);
}

QString PackagedPrograms::shortVersion(const QString& /*path*/) const {
    return {};
}

ColorFractions PaletteTextColor::textColor() const {
    const QColor color = QGuiApplication::palette().color(QPalette::Text).toRgb();
    return {.red = color.redF(), .green = color.greenF(), .blue = color.blueF()};
}

void DesktopPasteboard::clear() {
    QGuiApplication::clipboard()->clear();
}

void DesktopPasteboard::writeText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

} // namespace quillet
