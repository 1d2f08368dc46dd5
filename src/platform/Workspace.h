#pragma once

#include <QString>

#include <expected>

namespace quillet {

/// Opens things with the desktop's default programs.
class Workspace {
public:
    virtual ~Workspace() = default;
    /// The error is a text for the log and the user.
    virtual std::expected<void, QString> openFile(const QString& path) = 0;
    virtual std::expected<void, QString> openWebAddress(const QString& address) = 0;
};

} // namespace quillet
