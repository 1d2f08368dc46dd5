#include "backends/programs/DesktopPrograms.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>
#include <QUrl>

namespace quillet {

namespace {

std::expected<void, QString> opened(const QUrl& url) {
    if (QDesktopServices::openUrl(url)) {
        return {};
    }
    return std::unexpected(QStringLiteral("no program opens ") + url.toString());
}

} // namespace

std::expected<void, QString> DesktopWorkspace::openFile(const QString& path) {
    if (!QFileInfo(path).isFile()) {
        return std::unexpected(QStringLiteral("no such file: ") + path);
    }
    return opened(QUrl::fromLocalFile(path));
}

std::expected<void, QString> DesktopWorkspace::openWebAddress(const QString& address) {
    const QUrl url(address, QUrl::StrictMode);
    if (!url.isValid() || (url.scheme() != u"http" && url.scheme() != u"https")) {
        return std::unexpected(QStringLiteral("not a web address: ") + address);
    }
    return opened(url);
}

qint64 ProcessTaskLauncher::processIdentifier() const {
    return QCoreApplication::applicationPid();
}

QString ProcessTaskLauncher::executablePath() const {
    return QCoreApplication::applicationFilePath();
}

std::expected<void, QString> ProcessTaskLauncher::launch(const QString& path,
                                                         const QStringList& arguments) {
    prepare_();
    if (QProcess::startDetached(path, arguments)) {
        return {};
    }
    return std::unexpected(QStringLiteral("cannot start ") + path);
}

void ProcessTaskLauncher::terminate() {
    beforeEnd_();
    QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
}

} // namespace quillet
