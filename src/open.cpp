#include "backends/activation/ApplicationNames.h"
#include "backends/activation/RequestForwarder.h"
#include "platform/Logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include <unistd.h>

namespace {

/// How long a start may take, or the running program to answer.
constexpr std::chrono::seconds patienceWithTheProgram{25};

QString programPath() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/" QUILLET_PROGRAM));
}

} // namespace

/// What the desktop entry runs where the desktop does not speak to the program over the session
/// bus itself.
int main(int argc, char** argv) {
    using Outcome = quillet::RequestForwarder::Outcome;
    const QCoreApplication application(argc, argv);
    const quillet::DesktopRequest request =
        quillet::desktopRequest(QCoreApplication::arguments().mid(1), QDir::currentPath());
    const QString token = quillet::startToken(quillet::processEnvironment());
    quillet::RequestForwarder forwarder(QDBusConnection::sessionBus(),
                                        [] { return QProcess::startDetached(programPath(), {}); });
    switch (forwarder.forward(request, token, patienceWithTheProgram)) {
    case Outcome::Delivered:
        return 0;
    case Outcome::NoBus: {
        if (!request.addresses.isEmpty()) {
            qCWarning(quillet::quilletLog).noquote()
                << "without a session bus the program starts, but takes no files";
        }
        const QByteArray path = programPath().toLocal8Bit();
        ::execl(path.constData(), path.constData(), nullptr);
        break;
    }
    case Outcome::NoProgram:
        break;
    }
    qCWarning(quillet::quilletLog).noquote() << "the program does not start, or does not answer";
    return 1;
}
