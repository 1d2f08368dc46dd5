#include "backends/settingsfile/DatesZone.h"

#include "platform/FileWriting.h"
#include "platform/Logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quillet {

namespace {

constexpr qint64 longestName = 200;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(longestName).trimmed() : QByteArray();
}

} // namespace

QTimeZone DatesZone::kept() const {
    const QByteArray name = contentOf(path_);
    // No name leads out of the zone database.
    return name.isEmpty() || name.contains("..") || name.startsWith('/') ? QTimeZone()
                                                                         : QTimeZone(name);
}

void DatesZone::keep(const QTimeZone& zone) const {
    const QByteArray name = zone.isValid() ? zone.id() : QByteArray();
    if (contentOf(path_) == name) {
        return;
    }
    if (name.isEmpty()) {
        QFile::remove(path_);
        return;
    }
    QDir().mkpath(QFileInfo(path_).path());
    if (const auto written = writeAtomically(path_, name + '\n'); !written) {
        qCWarning(quilletLog).noquote() << path_ + QStringLiteral(": ") + written.error();
    }
}

} // namespace quillet
