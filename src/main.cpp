#include "Program.h"
#include "backends/activation/EndSignals.h"
#include "backends/translations/Translations.h"
#include "window/exports/ReportViewAccessible.h"
#include "window/widgets/ClearIndicators.h"
#include "window/widgets/SheetFocus.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

/// How long a start waits for the running program to come to the front, or to end.
constexpr std::chrono::seconds patienceWithAnother{10};

/// How long the end may take once everything is saved: it waits for what is being read.
constexpr std::chrono::milliseconds longestEnd{50};

/// The XDG state folder, which Qt does not know yet.
QString stateHome() {
    const QString configured = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(configured) ? configured
                                            : QDir::homePath() + QStringLiteral("/.local/state");
}

quillet::ProgramPaths programPaths(const QStringList& languages) {
    const auto home = [](QStandardPaths::StandardLocation location) {
        return QStandardPaths::writableLocation(location);
    };
    return {.settingsFile = home(QStandardPaths::GenericConfigLocation) + "/quillet/quillet.json",
            .calendarsFolder = home(QStandardPaths::GenericDataLocation) + "/calendars",
            .stateFolder = stateHome() + "/quillet",
            .releaseNotes = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                   "quillet/Release Notes.rtf"),
            .languages = languages};
}

} // namespace

int main(int argc, char** argv) {
    const QString token = quillet::startToken(quillet::processEnvironment());
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quillet"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quillet"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    QApplication::setDesktopFileName(quillet::applicationIdentifier());
    quillet::ApplicationService service(QDBusConnection::sessionBus());
    if (service.claim(token, patienceWithAnother) ==
        quillet::ApplicationService::Standing::HandedOver) {
        return 0;
    }
    QApplication::setWindowIcon(QIcon::fromTheme(quillet::applicationIdentifier()));
    QApplication::setQuitOnLastWindowClosed(
        quillet::AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    const QStringList languages = quillet::messageLanguages(quillet::processEnvironment());
    const quillet::Translations translations(languages);
    quillet::installReportViewAccessibility();
    quillet::installClearIndicators();
    const quillet::SheetFocus sheetFocus;
    quillet::Program program(programPaths(languages), service);
    QObject::connect(&application, &QApplication::lastWindowClosed, &service,
                     &quillet::ApplicationService::endSoon);
    const quillet::EndSignals endSignals([&service] {
        service.endSoon();
        // Dialogs that are open end as well, unanswered; the settings and the window's sizes are
        // written as at any other end.
        QApplication::exit(0);
    });
    program.start();
    const int status = QApplication::exec();
    program.save();
    quillet::endWithin(longestEnd, status);
    return status;
}
