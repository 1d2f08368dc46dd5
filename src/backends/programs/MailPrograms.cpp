#include "backends/programs/MailPrograms.h"

#include "backends/programs/MailMessage.h"
#include "texts/Localized.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <tuple>

namespace quillet {

namespace {

/// Long enough for a mail program to start, however slow the machine is.
constexpr qint64 messageFileMinutes = 15;
const QString messageFiles = QStringLiteral("message-");

enum class Program { Thunderbird, KMail, Other };

/// Programs in containers are started through another one, and would not see a file.
Program programOf(const DesktopEntry& entry) {
    if (entry.command.contains(QStringLiteral("/snap/"))) {
        return Program::Other;
    }
    const QString name = QFileInfo(entry.executable).fileName();
    if (name.startsWith(u"thunderbird")) {
        return Program::Thunderbird;
    }
    return name == u"kmail" ? Program::KMail : Program::Other;
}

QStringList thunderbirdArguments(const MessageRequest& request, const QString& file) {
    return {QStringLiteral("-compose"), composeArgument(request, file)};
}

MessageRequest withoutStyle(const MessageRequest& request) {
    return {.subject = request.subject, .content = request.content, .style = {}};
}

void removeOldFiles(const QString& folder) {
    const QDateTime limit = QDateTime::currentDateTime().addSecs(-messageFileMinutes * 60);
    for (const QFileInfo& file :
         QDir(folder).entryInfoList({messageFiles + QStringLiteral("*")}, QDir::Files)) {
        if (file.lastModified() < limit) {
            QFile::remove(file.filePath());
        }
    }
}

} // namespace

std::expected<void, QString> MailPrograms::compose(const MessageRequest& request) const {
    if (with_.portal != nullptr) {
        return composeThroughPortal(request);
    }
    const auto handlers = with_.applications.handlers(QStringLiteral("x-scheme-handler/mailto"));
    if (handlers.empty()) {
        tell(localized("No mail program is set up"),
             localized("Install a mail program, or choose one among the default applications of "
                       "your desktop, and press Mail again."));
        return std::unexpected(QStringLiteral("no mail program"));
    }
    const DesktopEntry& entry = handlers.front();
    auto result = composeIn(entry, request);
    if (!result) {
        tell(localized("“%1” could not be started").arg(entry.name), result.error());
    }
    return result;
}

std::expected<void, QString> MailPrograms::composeIn(const DesktopEntry& entry,
                                                     const MessageRequest& request) const {
    switch (programOf(entry)) {
    case Program::Thunderbird:
        return composeWithFile(entry, request, thunderbirdArguments);
    case Program::KMail:
        // It decodes a whole address before it takes it apart: an event's text could name further
        // recipients, or files to attach.
        return composeWithFile(entry, withoutStyle(request), kmailArguments);
    case Program::Other:
        break;
    }
    return composeWithAddress(request, [&](const QString& body) {
        return Applications::open(entry, {mailtoAddress(request.subject, body)});
    });
}

std::expected<void, QString>
MailPrograms::composeThroughPortal(const MessageRequest& request) const {
    const auto result = composeWithAddress(request, [&](const QString& body) {
        return with_.portal->composeEmail(request.subject, body);
    });
    if (!result) {
        tell(localized("No mail program could be reached"),
             localized("Your desktop answered: %1").arg(result.error()));
    }
    return result;
}

std::expected<void, QString> MailPrograms::composeWithAddress(
    const MessageRequest& request,
    const std::function<std::expected<void, QString>(const QString& body)>& send) const {
    // A very long text need not be encoded to see that.
    const bool isTooLong =
        request.content.size() > Applications::longestArgumentBytes ||
        mailtoAddress(request.subject, request.content).size() > Applications::longestArgumentBytes;
    if (!isTooLong) {
        return send(request.content);
    }
    with_.pasteboard.writeText(request.content);
    auto result = send({});
    if (result) {
        tell(localized("The text is too long to hand over to your mail program"),
             localized("It is on the clipboard: paste it into the new message."));
    }
    return result;
}

std::expected<void, QString> MailPrograms::composeWithFile(
    const DesktopEntry& entry, const MessageRequest& request,
    QStringList (*arguments)(const MessageRequest& request, const QString& file)) const {
    const auto file = writtenFile(request);
    if (!file) {
        return std::unexpected(file.error());
    }
    return with_.applications.start(entry, arguments(request, *file));
}

std::expected<QString, QString> MailPrograms::writtenFile(const MessageRequest& request) const {
    removeOldFiles(with_.messageFolder);
    QDir().mkpath(with_.messageFolder);
    // Readable by this user only. It stays, since nobody tells when it has been read.
    QTemporaryFile file(with_.messageFolder + u'/' + messageFiles + QStringLiteral("XXXXXX") +
                        (request.style ? QStringLiteral(".html") : QStringLiteral(".txt")));
    file.setAutoRemove(false);
    const QByteArray content =
        request.style ? messagePage(request.content, *request.style) : request.content.toUtf8();
    if (!file.open() || file.write(content) != content.size() || !file.flush()) {
        const QString reason = file.errorString();
        file.setAutoRemove(true);
        return std::unexpected(
            localized("The text cannot be written to “%1”: %2").arg(with_.messageFolder, reason));
    }
    return file.fileName();
}

void MailPrograms::tell(const QString& message, const QString& explanation) const {
    std::ignore = with_.alerts.runModal({.style = AlertStyle::Warning,
                                         .messageText = message,
                                         .informativeText = explanation,
                                         .buttonTitles = {localized("OK")}});
}

} // namespace quillet
