#include "backends/icsfolder/CalendarSources.h"

#include "backends/icsfolder/IcsText.h"
#include "texts/Localized.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillet {

namespace {

constexpr std::size_t headBytes = 16384;
constexpr qsizetype longestTitle = 200;

bool hasIcsSuffix(std::string_view name) {
    return name.size() > 4 &&
           QByteArrayView(name.substr(name.size() - 4)).compare(".ics", Qt::CaseInsensitive) == 0;
}

QString shown(const std::string& name) {
    return QFile::decodeName(QByteArray::fromStdString(name));
}

/// The name in a form that fits into conditions and stays the same for ever.
QString identifierFor(const std::string& name) {
    const QByteArray encoded = QByteArray::fromStdString(name).toPercentEncoding(" ");
    return QStringLiteral("folder:") + QString::fromLatin1(encoded);
}

QString withoutSuffix(const std::string& name) {
    const QString text = shown(name);
    return hasIcsSuffix(name) ? text.chopped(4) : text;
}

/// "#RRGGBB" of what programs write ("#RRGGBBAA" too); empty for anything else.
/// "#RRGGBB" (what follows, an opacity, is dropped) or a CSS colour name.
QString colorFrom(const QString& text) {
    const QString trimmed = text.trimmed();
    const auto isLetter = [](QChar character) {
        return character.toLower() >= u'a' && character.toLower() <= u'z';
    };
    if (!trimmed.isEmpty() && std::ranges::all_of(trimmed, isLetter)) {
        return trimmed.toLower();
    }
    const QString color = trimmed.left(7).toUpper();
    const auto isHexDigit = [](QChar digit) {
        return (digit >= u'0' && digit <= u'9') || (digit >= u'A' && digit <= u'F');
    };
    const bool isHex = color.size() == 7 && color.startsWith(u'#') &&
                       std::all_of(color.begin() + 1, color.end(), isHexDigit);
    return isHex ? color : QString();
}

QString lineOf(const std::string& path) {
    const auto content = readFileHead(path, headBytes);
    return content ? QString::fromStdString(asUtf8(*content)).section(u'\n', 0, 0).simplified()
                   : QString();
}

void describeFolder(StoreCalendar& calendar, const std::string& path) {
    const QString title = lineOf(path + "/displayname").left(longestTitle);
    calendar.title = title.isEmpty() ? calendar.title : title;
    calendar.colorName = colorFrom(lineOf(path + "/color"));
}

void describeFile(StoreCalendar& calendar, const std::string& path) {
    if (auto head = readFileHead(path, headBytes)) {
        const IcsBlocks blocks = takeApart(asUtf8(*std::move(head)));
        calendar.title = blocks.name.isEmpty() ? calendar.title : blocks.name.left(longestTitle);
        calendar.colorName = colorFrom(blocks.color);
    }
}

std::optional<CalendarSource> sourceFor(const std::string& rootPath, const std::string& name) {
    CalendarSource source{
        .name = name, .path = rootPath + "/" + name, .calendar = {}, .problem = {}};
    StoreCalendar calendar{identifierFor(name), withoutSuffix(name), QString()};
    struct stat status{};
    if (::stat(source.path.c_str(), &status) != 0) {
        // Most likely on a disk that is not there now. Its rates must not be lost with it.
        source.problem =
            localized("cannot be reached: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
    } else if (S_ISDIR(status.st_mode)) {
        source.kind = CalendarSource::Kind::Folder;
        describeFolder(calendar, source.path);
    } else if (S_ISREG(status.st_mode) && hasIcsSuffix(name)) {
        source.kind = CalendarSource::Kind::File;
        describeFile(calendar, source.path);
    } else {
        return std::nullopt;
    }
    source.calendar = std::make_shared<const StoreCalendar>(std::move(calendar));
    return source;
}

std::string freeNameFor(const QDir& root, const QFileInfo& file) {
    const QString base = file.isDir() ? file.fileName() : file.completeBaseName();
    const QString suffix = file.isDir() ? QString() : QStringLiteral(".ics");
    QString name = base + suffix;
    for (int number = 2; QFileInfo(root.filePath(name)).isSymLink() || root.exists(name);
         ++number) {
        name = QStringLiteral("%1 %2%3").arg(base).arg(number).arg(suffix);
    }
    return QFile::encodeName(name).toStdString();
}

} // namespace

std::expected<std::vector<CalendarSource>, QString> findCalendars(const std::string& rootPath) {
    DIR* folder = ::opendir(rootPath.c_str());
    if (folder == nullptr) {
        return std::unexpected(QString::fromLocal8Bit(std::strerror(errno)));
    }
    std::vector<std::string> names;
    while (const dirent* entry = ::readdir(folder)) {
        if (entry->d_name[0] != '.') {
            names.emplace_back(entry->d_name);
        }
    }
    ::closedir(folder);
    std::ranges::sort(names);
    std::vector<CalendarSource> sources;
    for (const std::string& name : names) {
        if (auto source = sourceFor(rootPath, name)) {
            sources.push_back(*std::move(source));
        }
    }
    return sources;
}

bool isEventFileName(std::string_view name) {
    return !name.starts_with('.') && hasIcsSuffix(name);
}

std::expected<void, QString> linkCalendar(const QString& rootPath, const QString& path) {
    const QFileInfo file(path);
    const QString target = file.canonicalFilePath();
    if (target.isEmpty()) {
        return std::unexpected(localized("“%1” does not exist.").arg(path));
    }
    if (!file.isDir() && !(file.isFile() && hasIcsSuffix(QFile::encodeName(path).toStdString()))) {
        return std::unexpected(
            localized("“%1” is neither a folder nor an .ics file.").arg(file.fileName()));
    }
    if (!file.isReadable() || (file.isDir() && !file.isExecutable())) {
        return std::unexpected(localized("“%1” cannot be read.").arg(file.fileName()));
    }
    const QDir root(rootPath);
    if (target == root.canonicalPath() || root.canonicalPath().startsWith(target + u'/')) {
        return std::unexpected(
            localized("“%1” holds the calendars themselves.").arg(file.fileName()));
    }
    for (const QFileInfo& entry : root.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        const QString existing = entry.canonicalFilePath();
        // A file of a folder counts as part of it, and would count twice.
        if (existing == target || (file.isFile() && existing == QFileInfo(target).path())) {
            return std::unexpected(
                localized("“%1” is among the calendars already.").arg(file.fileName()));
        }
    }
    const std::string link =
        QFile::encodeName(rootPath).toStdString() + "/" + freeNameFor(root, QFileInfo(target));
    if (::symlink(QFile::encodeName(target).constData(), link.c_str()) != 0) {
        return std::unexpected(
            localized("“%1” cannot be added: %2")
                .arg(file.fileName(), QString::fromLocal8Bit(std::strerror(errno))));
    }
    return {};
}

} // namespace quillet
