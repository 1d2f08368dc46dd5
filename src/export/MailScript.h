#pragma once

#include "platform/TextColorSource.h"

#include <QString>

namespace quillet {

/// Puts a backslash before every double quote, so that the text can stand in a script's string.
/// Backslashes stay single: a text with one before a quote or at its end breaks the string.
[[nodiscard]] QString removeQuotesFromString(QString text);

/// A script that opens a new message with this body and subject. Both stand in it as they are;
/// see removeQuotesFromString().
[[nodiscard]] QString plainMailScript(const QString& body, const QString& subject);

/// The same, with the body in Monaco at 10 points and in this colour.
[[nodiscard]] QString styledMailScript(const QString& body, const ColorFractions& color,
                                       const QString& subject);

} // namespace quillet
