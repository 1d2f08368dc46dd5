#pragma once

#include <QString>

namespace quillet {

/// The clipboard that all programs share.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;
    virtual void clear() = 0;
    /// Puts one plain text there.
    virtual void writeText(const QString& text) = 0;
};

} // namespace quillet
