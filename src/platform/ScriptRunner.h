#pragma once

#include "platform/TextColorSource.h"

#include <QString>

#include <expected>
#include <optional>
#include <variant>

namespace quillet {

/// How the content of a message is set.
struct MessageStyle {
    QString fontName;
    double fontSizePoints = 0;
    ColorFractions color;

    friend bool operator==(const MessageStyle&, const MessageStyle&) = default;
};

/// A new message, shown to the user and not sent. Its texts are what the message is to hold,
/// without escapes, whatever characters stand in them.
struct MessageRequest {
    QString subject;
    QString content;
    /// Absent where the mail program shall decide.
    std::optional<MessageStyle> style;

    friend bool operator==(const MessageRequest&, const MessageRequest&) = default;
};

/// An event, shown in its calendar.
struct EventRequest {
    QString calendarIdentifier;
    QString eventIdentifier;

    friend bool operator==(const EventRequest&, const EventRequest&) = default;
};

/// What one script asks of another program. Its text says the same in a language that no program
/// here reads: it is made because the exports and the double click are defined by it.
struct Script {
    QString source;
    std::variant<MessageRequest, EventRequest> request;
};

/// Asks other programs for something.
class ScriptRunner {
public:
    virtual ~ScriptRunner() = default;
    /// Fulfils the script's request and returns when that is done. The error, why it was not, is a
    /// text for the log.
    virtual std::expected<void, QString> run(const Script& script) = 0;
};

} // namespace quillet
