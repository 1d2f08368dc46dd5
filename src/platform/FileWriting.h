#pragma once

#include <QByteArray>
#include <QString>

#include <expected>

namespace quillet {

enum class TextEncoding {
    Utf8,  ///< Without a byte-order mark.
    Utf16, ///< Little-endian, with a byte-order mark.
};

/// The bytes of a text in an encoding.
[[nodiscard]] QByteArray encodedText(const QString& text, TextEncoding encoding);

/// Writes a file whole or not at all: either the old state stays, or the file holds exactly these
/// bytes. The error is the system's reason.
[[nodiscard]] std::expected<void, QString> writeAtomically(const QString& path,
                                                           const QByteArray& bytes);

} // namespace quillet
