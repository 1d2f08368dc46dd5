#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariant>

#include <chrono>
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

/// What comes of a request to the portal.
class PortalAnswer : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] bool hasFailed() const { return hasFailed_; }

public Q_SLOTS:
    void responded(const QDBusMessage& response);

Q_SIGNALS:
    void came();

private:
    bool hasFailed_ = false;
};

/// The portal on the session bus. The windows of this program stay alive while it is asked.
class SessionBusPortal final : public DesktopPortal {
public:
    struct Patience {
        /// How long the portal may take to accept a request.
        std::chrono::milliseconds reply = std::chrono::seconds(10);
        /// How long a failure of the request may take to be told. One that nobody tells of within
        /// this time counts as fulfilled, for the user may still be choosing a program.
        std::chrono::milliseconds response = std::chrono::seconds(3);
    };

    explicit SessionBusPortal(QDBusConnection bus = QDBusConnection::sessionBus())
        : SessionBusPortal(std::move(bus), Patience()) {}
    SessionBusPortal(QDBusConnection bus, Patience patience);

    std::expected<void, QString> composeEmail(const QString& subject, const QString& body) override;
    std::expected<void, QString> openAddress(const QString& address) override;
    std::expected<void, QString> openFile(const QString& path) override;

private:
    /// `subject` stands between the parent window and the options.
    [[nodiscard]] std::expected<void, QString> call(const char* interface, const char* method,
                                                    const QVariantList& subject,
                                                    QVariantMap options);

    QDBusConnection bus_;
    Patience patience_;
    int requests_ = 0;
};

} // namespace quillet
