#pragma once

#include "backends/scripts/ScriptRequests.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quillet {

/// The address that asks for a new message. Everything but letters and digits is encoded, line
/// breaks as mail has them. An empty body is left out.
[[nodiscard]] QString mailtoAddress(const QString& subject, const QString& body);

/// Whether the request says how its content is to be set.
[[nodiscard]] bool isStyled(const MessageRequest& request);

/// The content as a page that shows it to the letter, in the font, size and colour of the request;
/// the content itself is text, whatever it holds. UTF-8.
[[nodiscard]] QByteArray messagePage(const MessageRequest& request);

/// What Thunderbird is told to compose: the request's subject, and as its body the file, which
/// holds a messagePage() when the request is styled and plain text when not.
[[nodiscard]] QString composeArgument(const MessageRequest& request, const QString& file);

/// What KMail is started with: the request's subject, and as the body the file, which holds plain
/// text, for the program takes no other.
[[nodiscard]] QStringList kmailArguments(const MessageRequest& request, const QString& file);

} // namespace quillet
