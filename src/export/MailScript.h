#pragma once

#include "platform/ScriptRunner.h"

#include <QString>

namespace quillet {

/// Puts a backslash before every double quote, so that the text can stand in a script's string.
/// Backslashes stay single: a text with one before a quote or at its end breaks the string.
[[nodiscard]] QString removeQuotesFromString(const QString& text);

/// How mailed reports are set: in Monaco at 10 points and in this colour.
[[nodiscard]] MessageStyle reportMailStyle(const ColorFractions& color);

/// A script that opens a new message. In its text the content stands as removeQuotesFromString()
/// leaves it, the subject as it is.
[[nodiscard]] Script mailScript(MessageRequest request);

} // namespace quillet
