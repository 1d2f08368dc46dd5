#include "backends/settingsfile/DatesZone.h"

#include "platform/FileWriting.h"
#include "platform/Logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace quillet {

namespace {

constexpr qint64 longestName = 200;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(longestName).trimmed() : QByteArray();
}

/// Whether the zone database has it; other words would be read as zones of a name alone, as UTC.
bool isZoneName(const QByteArray& name) {
    static const QRegularExpression pattern(
        QStringLiteral("^[A-Za-z][A-Za-z0-9_+-]*(/[A-Za-z0-9][A-Za-z0-9_+-]*)*$"));
    const QString text = QString::fromLatin1(name);
    return pattern.match(text).hasMatch() &&
           QFileInfo::exists(QStringLiteral("/usr/share/zoneinfo/") + text);
}

} // namespace

QTimeZone DatesZone::kept() const {
    const QByteArray name = contentOf(path_);
    return isZoneName(name) ? QTimeZone(name) : QTimeZone();
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
