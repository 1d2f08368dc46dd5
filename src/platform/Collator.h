#pragma once

#include <QByteArray>
#include <QString>

namespace quillet {

/// The order of texts in the user's language. Implementations are safe to read from any thread.
class Collator {
public:
    virtual ~Collator() = default;

    /// Bytes that compare, byte by byte without a sign, as the texts do in the language: letters
    /// with their accents beside those without, upper case beside lower case. Equal for texts that
    /// the language does not tell apart. Smallest for the empty text.
    [[nodiscard]] virtual QByteArray sortKey(const QString& text) const = 0;
};

} // namespace quillet
