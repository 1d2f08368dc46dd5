#pragma once

#include <QByteArray>
#include <QString>

#include <expected>
#include <optional>

namespace quillet {

/// Why a file was not read.
struct FileRefusal {
    enum class Kind {
        Missing,    ///< There is no such file, or a link that leads nowhere.
        NotAFile,   ///< A folder, a pipe, a device.
        TooLarge,   ///< It holds more bytes than it may.
        Unreadable, ///< The system says no.
        Spoilt,     ///< Its content is not what it should be; said by who understands it.
    };
    Kind kind = Kind::Missing;
    /// For the user.
    QString reason;
};

/// The whole content of a regular file of at most so many bytes. It never waits: nothing else is
/// read, whatever lies in the file's place, and of a file that is larger not one byte.
[[nodiscard]] std::expected<QByteArray, FileRefusal> contentsOfFile(const QString& path,
                                                                    qint64 mostBytes);

/// Gives what lies there the name "<path>.broken-1", or the next free number, and tells the name;
/// nothing when it cannot be renamed.
[[nodiscard]] std::optional<QString> movedAside(const QString& path);

} // namespace quillet
