#include "app/AppDelegate.h"

#include "app/StartupSettings.h"
#include "platform/Logging.h"
#include "platform/Settings.h"

#include <QUrl>

namespace quillet {

namespace {

/// Host and path of the program's web site, as a person would read it.
constexpr const char* websiteHostAndPath = "quillet.example/desktop";

void logFailure(const std::expected<void, QString>& result) {
    if (!result) {
        qCWarning(quilletLog).noquote() << result.error();
    }
}

} // namespace

AppDelegate::AppDelegate(Collaborators collaborators)
    : with_(std::move(collaborators)) {}

void AppDelegate::applicationDidFinishLaunching() {
    writeStartupSettings(with_.settings);
}

void AppDelegate::accessGranted() {
    settings::isCalendarAccessGranted.write(with_.settings, true);
}

void AppDelegate::checkForUpdates() {
    with_.updater.checkForUpdates();
}

void AppDelegate::openReleaseNotes() {
    logFailure(with_.workspace.openFile(with_.releaseNotesPath));
}

void AppDelegate::openWebsite() {
    const QByteArray encoded =
        QUrl::toPercentEncoding(QString::fromLatin1(websiteHostAndPath), "/:@!$&'()*+,;=");
    logFailure(with_.workspace.openWebAddress(
        QStringLiteral("%1%2").arg(QStringLiteral("http://"), QString::fromLatin1(encoded))));
}

void AppDelegate::relaunch() {
    const QString argument = QString::number(with_.taskLauncher.processIdentifier());
    logFailure(with_.taskLauncher.launch(with_.taskLauncher.executablePath(), {argument}));
    with_.taskLauncher.terminate();
}

} // namespace quillet
