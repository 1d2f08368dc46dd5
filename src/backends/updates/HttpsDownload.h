#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QSslConfiguration>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <expected>
#include <functional>

class QNetworkReply;

namespace quillet {

/// Fetches one small file over a secure connection, which has to stay secure when it is redirected.
class HttpsDownload : public QObject {
    Q_OBJECT

public:
    enum class Failure {
        /// Offline, no such host, the connection was cut.
        Unreachable,
        /// The address, a redirection or the server's certificate is not to be trusted.
        NotSecure,
        /// The server answered, but not with the file.
        NotFound,
        TooLarge,
        TooSlow
    };
    struct Limits {
        qint64 bytes;
        std::chrono::milliseconds time;
    };
    using Completion = std::function<void(const std::expected<QByteArray, Failure>&)>;

    HttpsDownload(const QSslConfiguration& security, Limits limits, QObject* parent = nullptr);
    ~HttpsDownload() override;
    Q_DISABLE_COPY_MOVE(HttpsDownload)

    /// Calls the completion once, from the main loop. One file at a time: what runs is cancelled.
    void start(const QUrl& address, Completion completion);
    /// The completion of what runs is not called any more.
    void cancel();

private:
    void begin(const QUrl& address);
    void receive();
    void finish(const std::expected<QByteArray, Failure>& result);

    QSslConfiguration security_;
    Limits limits_;
    QNetworkAccessManager manager_;
    QPointer<QNetworkReply> reply_;
    QByteArray received_;
    QTimer deadline_;
    Completion completion_;
};

} // namespace quillet
