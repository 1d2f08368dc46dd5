#pragma once

#include "platform/ScriptRunner.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quillet {

/// The address that asks for a new message. Everything but letters and digits is encoded, line
/// breaks as mail has them. An empty body is left out.
[[nodiscard]] QString mailtoAddress(const QString& subject, const QString& body);

/// The content as a page that shows it to the letter in that style; the content itself is text,
/// whatever it holds. Null characters, which no page can hold, are left out. UTF-8.
[[nodiscard]] QByteArray messagePage(const QString& content, const MessageStyle& style);

/// What Thunderbird is told to compose: the request's subject, and as its body the file, which
/// holds a messagePage() when the request is styled and plain text when not.
[[nodiscard]] QString composeArgument(const MessageRequest& request, const QString& file);

/// What KMail is started with: the request's subject, and as the body the file, which holds plain
/// text, for the program takes no other.
[[nodiscard]] QStringList kmailArguments(const MessageRequest& request, const QString& file);

} // namespace quillet
