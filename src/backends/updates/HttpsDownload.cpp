#include "backends/updates/HttpsDownload.h"

#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QSslSocket>

#include <utility>

namespace quillet {

namespace {

class SystemProxies final : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return systemProxyForQuery(query);
    }
};

QNetworkRequest requestFor(const QUrl& address, const QSslConfiguration& security) {
    QNetworkRequest request(address);
    request.setSslConfiguration(security);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    constexpr int mostRedirections = 5;
    request.setMaximumRedirectsAllowed(mostRedirections);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // Says nothing of the computer.
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Quillet"));
    // Bytes that are counted as they come, and cannot unfold.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

HttpsDownload::Failure failureOf(const QNetworkReply& reply) {
    using Failure = HttpsDownload::Failure;
    switch (reply.error()) {
    case QNetworkReply::SslHandshakeFailedError:
    case QNetworkReply::InsecureRedirectError:
    case QNetworkReply::ProtocolUnknownError:
        return Failure::NotSecure;
    case QNetworkReply::TooManyRedirectsError:
        return Failure::NotFound;
    default:
        return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() >= 400
                   ? Failure::NotFound
                   : Failure::Unreachable;
    }
}

} // namespace

HttpsDownload::HttpsDownload(const QSslConfiguration& security, Limits limits, QObject* parent)
    : QObject(parent)
    , security_(security)
    , limits_(limits) {
    manager_.setProxyFactory(new SystemProxies);
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this,
            [this] { finish(std::unexpected(Failure::TooSlow)); });
}

HttpsDownload::~HttpsDownload() {
    cancel();
}

void HttpsDownload::start(const QUrl& address, Completion completion) {
    cancel();
    completion_ = std::move(completion);
    deadline_.start(limits_.time);
    QMetaObject::invokeMethod(this, [this, address] { begin(address); }, Qt::QueuedConnection);
}

void HttpsDownload::begin(const QUrl& address) {
    if (!completion_ || reply_) {
        return;
    }
    if (address.scheme() != u"https" || !QSslSocket::supportsSsl()) {
        finish(std::unexpected(Failure::NotSecure));
        return;
    }
    reply_ = manager_.get(requestFor(address, security_));
    // More is not taken from the connection before this much has been read.
    reply_->setReadBufferSize(limits_.bytes + 1);
    connect(reply_, &QNetworkReply::readyRead, this, &HttpsDownload::receive);
    connect(reply_, &QNetworkReply::finished, this, [this] {
        if (reply_->error() != QNetworkReply::NoError) {
            finish(std::unexpected(failureOf(*reply_)));
            return;
        }
        receive();
        finish(std::exchange(received_, {}));
    });
}

void HttpsDownload::receive() {
    if (!reply_) {
        return;
    }
    received_ += reply_->read(limits_.bytes + 1 - received_.size());
    if (received_.size() > limits_.bytes) {
        finish(std::unexpected(Failure::TooLarge));
    }
}

void HttpsDownload::finish(const std::expected<QByteArray, Failure>& result) {
    if (const Completion completion = std::exchange(completion_, {})) {
        cancel();
        completion(result);
    }
}

void HttpsDownload::cancel() {
    completion_ = {};
    deadline_.stop();
    received_.clear();
    if (QNetworkReply* reply = std::exchange(reply_, {})) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

} // namespace quillet
