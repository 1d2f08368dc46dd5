#pragma once

#include <QString>

namespace quillet {

/// What is known of programs that are installed beside this one. Here none answers to a path; asked
/// for is the one browser that the mail export is defined to fear.
class InstalledPrograms {
public:
    virtual ~InstalledPrograms() = default;
    /// The short version ("5.0") of the program at a path; null when there is none.
    [[nodiscard]] virtual QString shortVersion(const QString& path) const = 0;
};

} // namespace quillet
