#pragma once

#include "backends/programs/Applications.h"
#include "backends/programs/DesktopPortal.h"
#include "platform/Alert.h"
#include "platform/Pasteboard.h"
#include "platform/ScriptRunner.h"

#include <expected>

namespace quillet {

/// Asks the user's mail program for a new message.
class MailPrograms {
public:
    struct Collaborators {
        const Applications& applications;
        Pasteboard& pasteboard;
        AlertPresenter& alerts;
        /// Where texts lie that a mail program reads from a file. Created when it is missing.
        QString messageFolder;
        /// In a sandbox; null outside.
        DesktopPortal* portal = nullptr;
    };

    explicit MailPrograms(Collaborators collaborators)
        : with_(std::move(collaborators)) {}

    /// Shows the message, unsent. Programs that take styles get them, others plain text. A text
    /// that is too long to hand over is put on the clipboard, and the user is told to paste it;
    /// where there is no mail program or it does not start, the user is told as well. The error is
    /// a text for the log.
    [[nodiscard]] std::expected<void, QString> compose(const MessageRequest& request) const;

private:
    [[nodiscard]] std::expected<void, QString> composeIn(const DesktopEntry& entry,
                                                         const MessageRequest& request) const;
    [[nodiscard]] std::expected<void, QString> composeWithAddress(
        const MessageRequest& request,
        const std::function<std::expected<void, QString>(const QString& body)>& send) const;
    [[nodiscard]] std::expected<void, QString> composeWithFile(
        const DesktopEntry& entry, const MessageRequest& request,
        QStringList (*arguments)(const MessageRequest& request, const QString& file)) const;
    [[nodiscard]] std::expected<QString, QString> writtenFile(const MessageRequest& request) const;
    [[nodiscard]] std::expected<void, QString>
    composeThroughPortal(const MessageRequest& request) const;
    void tell(const QString& message, const QString& explanation) const;

    Collaborators with_;
};

} // namespace quillet
