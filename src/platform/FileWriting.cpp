#include "platform/FileWriting.h"

#include <QSaveFile>
#include <QStringEncoder>

namespace quillet {

QByteArray encodedText(const QString& text, TextEncoding encoding) {
    if (encoding == TextEncoding::Utf8) {
        return text.toUtf8();
    }
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    return encoder(text);
}

std::expected<void, QString> writeAtomically(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    // A short write of what was buffered is told by flush() alone: commit() would pass it over.
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit()) {
        return std::unexpected(file.errorString());
    }
    return {};
}

} // namespace quillet
