#pragma once

#include <QString>

#include <expected>

namespace quillet {

/// What a program in a sandbox asks of the desktop, since it sees no other program.
class DesktopPortal {
public:
    virtual ~DesktopPortal() = default;
    /// Shows a new message. The error is a text for the log.
    virtual std::expected<void, QString> composeEmail(const QString& subject,
                                                      const QString& body) = 0;
    /// Opens an address with whatever program the user chooses.
    virtual std::expected<void, QString> openAddress(const QString& address) = 0;
    virtual std::expected<void, QString> openFile(const QString& path) = 0;
};

/// Whether this program runs in a sandbox.
[[nodiscard]] bool isInSandbox();

/// The portal on the session bus.
class SessionBusPortal final : public DesktopPortal {
public:
    std::expected<void, QString> composeEmail(const QString& subject, const QString& body) override;
    std::expected<void, QString> openAddress(const QString& address) override;
    std::expected<void, QString> openFile(const QString& path) override;
};

} // namespace quillet
