#pragma once

#include "platform/TextColorSource.h"

#include <QString>

#include <expected>
#include <optional>
#include <variant>
#include <vector>

namespace quillet {

/// A new message, shown to the user and not sent.
struct MessageRequest {
    QString subject;
    QString content;
    /// How the content is set; absent where the mail program shall decide.
    std::optional<QString> fontName;
    std::optional<double> fontSizePoints;
    std::optional<ColorFractions> color;

    friend bool operator==(const MessageRequest&, const MessageRequest&) = default;
};

/// An event, shown in its calendar.
struct EventRequest {
    QString calendarIdentifier;
    QString eventIdentifier;

    friend bool operator==(const EventRequest&, const EventRequest&) = default;
};

using ScriptRequest = std::variant<MessageRequest, EventRequest>;

/// What a script asks of other programs, in the order in which it asks. Nothing is done yet. The
/// error says what the script gets wrong and in which line, for the log.
///
/// A script is made of lines:
///     tell application "Mail"  …  end tell
///     tell <variable>          …  end tell
///     set <variable> to make new outgoing message
///     set <variable> to (first calendar whose uid is "…")
///     set <variable> to (first event whose uid is "…")
///     set <property> [of content] to <value>
///     activate
///     switch view to day view
///     show <variable>
/// A value is a text, a number, true, false or a list of numbers such as {0,0.5,1}, in parentheses
/// or not. In a text, which may hold line breaks, \" stands for a double quote and \\ for a
/// backslash; before any other character a backslash stands for itself.
[[nodiscard]] std::expected<std::vector<ScriptRequest>, QString>
requestsOfScript(const QString& source);

} // namespace quillet
