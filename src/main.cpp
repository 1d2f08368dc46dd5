#include "Program.h"
#include "backends/translations/Translations.h"
#include "window/ReportViewAccessible.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

/// The XDG state folder, which Qt does not know yet.
QString stateHome() {
    const QString configured = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(configured) ? configured
                                            : QDir::homePath() + QStringLiteral("/.local/state");
}

quillet::ProgramPaths programPaths() {
    const auto home = [](QStandardPaths::StandardLocation location) {
        return QStandardPaths::writableLocation(location);
    };
    return {.settingsFile = home(QStandardPaths::GenericConfigLocation) + "/quillet/quillet.json",
            .calendarsFolder = home(QStandardPaths::GenericDataLocation) + "/calendars",
            .stateFolder = stateHome() + "/quillet",
            .releaseNotes = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                   "quillet/Release Notes.rtf")};
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quillet"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quillet"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("quillet"));
    QApplication::setQuitOnLastWindowClosed(
        quillet::AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    const quillet::Translations translations(
        quillet::messageLanguages(quillet::processEnvironment()));
    quillet::installReportViewAccessibility();
    quillet::Program program(programPaths());
    program.start();
    return QApplication::exec();
}
