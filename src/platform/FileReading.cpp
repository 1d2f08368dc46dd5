#include "platform/FileReading.h"

#include "texts/Localized.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillet {

namespace {

constexpr qint64 bytesInMegabyte = qint64(1024) * 1024;

std::unexpected<FileRefusal> systemRefusal() {
    auto kind = FileRefusal::Kind::Unreadable;
    if (errno == ENOENT || errno == ENOTDIR) {
        kind = FileRefusal::Kind::Missing;
    } else if (errno == ENXIO) {
        // A socket cannot be opened at all.
        kind = FileRefusal::Kind::NotAFile;
    }
    return std::unexpected(FileRefusal{
        kind, QString::fromLocal8Bit(std::strerror(errno))}); // NOLINT(concurrency-mt-unsafe)
}

} // namespace

std::expected<QByteArray, FileRefusal> contentsOfFile(const QString& path, qint64 mostBytes) {
    // Not blocking: opening a pipe that lies there must not wait for its writer.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) {
        return systemRefusal();
    }
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return std::unexpected(FileRefusal{FileRefusal::Kind::Unreadable, file.errorString()});
    }
    struct stat status{};
    if (::fstat(descriptor, &status) != 0) {
        return systemRefusal();
    }
    if (!S_ISREG(status.st_mode)) {
        return std::unexpected(
            FileRefusal{FileRefusal::Kind::NotAFile, localized("it is not a file")});
    }
    if (status.st_size > mostBytes) {
        return std::unexpected(
            FileRefusal{FileRefusal::Kind::TooLarge,
                        localized("it is larger than %1 MB").arg(mostBytes / bytesInMegabyte)});
    }
    QByteArray bytes = file.read(status.st_size);
    if (file.error() != QFileDevice::NoError) {
        return std::unexpected(FileRefusal{FileRefusal::Kind::Unreadable, file.errorString()});
    }
    return bytes;
}

std::optional<QString> movedAside(const QString& path) {
    int number = 1;
    const auto name = [&] { return QStringLiteral("%1.broken-%2").arg(path).arg(number); };
    while (QFileInfo::exists(name())) {
        ++number;
    }
    return QFile::rename(path, name()) ? std::optional(name()) : std::nullopt;
}

} // namespace quillet
