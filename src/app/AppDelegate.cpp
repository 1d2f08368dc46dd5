#include "app/AppDelegate.h"

#include "platform/Logging.h"

#include <QUrl>

namespace quillet {

namespace {

void logFailure(const std::expected<void, QString>& result) {
    if (!result) {
        qCWarning(quilletLog).noquote() << result.error();
    }
}

QString websiteAddress() {
    // What may stand in the path of an address as it is.
    static const QByteArray pathCharacters = "!$&'()*+,/:=@";
    const QByteArray hostAndPath =
        QUrl::toPercentEncoding(QStringLiteral("www.quillet.example/desktop"), pathCharacters);
    return QStringLiteral("http://") + QString::fromLatin1(hostAndPath);
}

} // namespace

AppDelegate::AppDelegate(const Collaborators& collaborators)
    : with_(collaborators) {}

void AppDelegate::awakeFromNib() {
    with_.sharedUpdater();
    const ExportToolbarItems& items = with_.toolbarItems;
    for (ToolbarItem* item :
         {&items.exportTxtToolbarItem, &items.exportCsvToolbarItem, &items.exportTsvToolbarItem,
          &items.exportMailToolbarItem, &items.exportNotesToolbarItem}) {
        item->setEnabled(true);
    }
}

void AppDelegate::applicationDidFinishLaunching() {
    for (const StartUpSetting& setting : startUpSettings()) {
        setIfAbsent(with_.settings, setting.key, setting.defaultValue);
    }
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() const {
    return true;
}

void AppDelegate::applicationWillTerminate() {}

void AppDelegate::accessGranted() {
    with_.settings.setObject(QStringLiteral("isCalendarAccessGranted"), true);
}

void AppDelegate::checkForUpdates() {
    with_.sharedUpdater().checkForUpdates();
}

void AppDelegate::openReleaseNotes() {
    logFailure(with_.workspace.openFile(with_.resourcesFolder + "/Release Notes.rtf"));
}

void AppDelegate::openWebsite() {
    logFailure(with_.workspace.openWebAddress(websiteAddress()));
}

void AppDelegate::relaunch() {
    const QString processIdentifier = QString::number(with_.taskLauncher.processIdentifier());
    const auto launched =
        with_.taskLauncher.launch(with_.taskLauncher.executablePath(), {processIdentifier});
    logFailure(launched);
    if (launched) {
        with_.taskLauncher.terminate();
    }
}

} // namespace quillet
