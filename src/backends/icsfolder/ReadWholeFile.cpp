#include "backends/icsfolder/IcsText.h"
#include "texts/Localized.h"

#include <QStringDecoder>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillet {

namespace {

/// Closes a file descriptor at the end of its scope.
class OpenFile {
public:
    explicit OpenFile(const std::string& path)
        // Not blocking: opening a pipe that lies about must not wait for its writer.
        : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~OpenFile() {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    [[nodiscard]] int descriptor() const { return descriptor_; }

private:
    int descriptor_;
};

QString systemReason() {
    return QString::fromLocal8Bit(std::strerror(errno)); // NOLINT(concurrency-mt-unsafe)
}

std::expected<std::string, QString> readUpTo(int descriptor, std::size_t bytes) {
    std::string content(bytes, '\0');
    std::size_t filled = 0;
    while (filled < bytes) {
        const ssize_t count = ::read(descriptor, content.data() + filled, bytes - filled);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return std::unexpected(systemReason());
        }
        if (count == 0) {
            break;
        }
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

std::expected<std::string, QString> readRegularFile(const std::string& path, std::size_t bytes) {
    const OpenFile file(path);
    struct stat status{};
    if (file.descriptor() < 0 || ::fstat(file.descriptor(), &status) != 0) {
        return std::unexpected(systemReason());
    }
    if (!S_ISREG(status.st_mode)) {
        return std::unexpected(localized("not a file"));
    }
    if (status.st_size > largestFileBytes) {
        return std::unexpected(localized("larger than 128 MB"));
    }
    return readUpTo(file.descriptor(), std::min(bytes, static_cast<std::size_t>(status.st_size)));
}

std::string utf16AsUtf8(std::string_view bytes, QStringConverter::Encoding encoding) {
    QStringDecoder decoder(encoding);
    const QString text =
        decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return text.toStdString();
}

} // namespace

std::expected<std::string, QString> readWholeFile(const std::string& path) {
    return readRegularFile(path, static_cast<std::size_t>(largestFileBytes));
}

std::expected<std::string, QString> readFileHead(const std::string& path, std::size_t bytes) {
    return readRegularFile(path, bytes);
}

std::string asUtf8(std::string bytes) {
    if (bytes.starts_with("\xFF\xFE")) {
        bytes = utf16AsUtf8(std::string_view(bytes).substr(2), QStringConverter::Utf16LE);
    } else if (bytes.starts_with("\xFE\xFF")) {
        bytes = utf16AsUtf8(std::string_view(bytes).substr(2), QStringConverter::Utf16BE);
    } else if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.erase(0, 3);
    }
    if (bytes.find('\0') != std::string::npos) {
        std::erase(bytes, '\0');
    }
    return bytes;
}

} // namespace quillet
