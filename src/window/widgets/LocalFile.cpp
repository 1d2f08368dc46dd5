#include "window/widgets/LocalFile.h"

#include <QSysInfo>

namespace quillet {

namespace {

bool isThisComputer(const QString& host) {
    return host.isEmpty() || host == u"localhost" ||
           host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

} // namespace

QString localPath(const QUrl& address) {
    if (!address.isLocalFile() || !isThisComputer(address.host())) {
        return {};
    }
    // With its host the toolkit would make it a path that begins with two slashes.
    QUrl withoutHost = address;
    withoutHost.setHost({});
    const QString path = withoutHost.toLocalFile();
    // No file's name has it, and what follows it would go unseen.
    return path.contains(QChar::Null) ? QString() : path;
}

} // namespace quillet
