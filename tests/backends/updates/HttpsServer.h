#pragma once

#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace quillet::test {

/// A server on this computer with a certificate of its own, made for one run of the tests.
class HttpsServer {
public:
    /// Writes the whole answer, head and all, or leaves it at that.
    using Answer = std::function<void(QSslSocket& client)>;

    /// The certificate's name is by default that of address(): no name that would have to be found
    /// out, as not every system knows one for itself.
    explicit HttpsServer(const QString& certifiedName = "IP:127.0.0.1") {
        const QSslCertificate certificate = madeCertificate(certifiedName);
        QSslConfiguration own = QSslConfiguration::defaultConfiguration();
        own.setLocalCertificate(certificate);
        own.setPrivateKey(readKey());
        server_.setSslConfiguration(own);
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
        QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_,
                         [this] { serve(); });
        trusting_.setCaCertificates({certificate});
    }

    void answer(const QString& path, const Answer& answer) { answers_[path] = answer; }
    void answer(const QString& path, const QByteArray& body, const QByteArray& status = "200 OK",
                const QByteArray& headers = {}) {
        answers_[path] = [=](QSslSocket& client) {
            client.write("HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " +
                         QByteArray::number(body.size()) + "\r\n" + headers + "\r\n" + body);
            client.disconnectFromHost();
        };
    }
    void redirect(const QString& path, const QString& target) {
        answer(path, {}, "302 Found", "Location: " + target.toUtf8() + "\r\n");
    }
    [[nodiscard]] QUrl address(const QString& path) const {
        return QUrl(QStringLiteral("https://127.0.0.1:%1%2").arg(server_.serverPort()).arg(path));
    }
    /// What a client needs to trust this server, and no other.
    [[nodiscard]] QSslConfiguration trusting() const { return trusting_; }
    /// The heads of all requests so far.
    [[nodiscard]] QByteArray requests() const { return requests_; }

private:
    QSslCertificate madeCertificate(const QString& name) {
        QProcess openssl;
        openssl.start("openssl",
                      {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                       "/CN=Test", "-addext", "subjectAltName=" + name, "-keyout",
                       folder_.filePath("key.pem"), "-out", folder_.filePath("certificate.pem")});
        EXPECT_TRUE(openssl.waitForFinished() && openssl.exitCode() == 0)
            << openssl.readAllStandardError().constData();
        const auto certificates = QSslCertificate::fromPath(folder_.filePath("certificate.pem"));
        EXPECT_EQ(certificates.size(), 1);
        return certificates.value(0);
    }
    QSslKey readKey() {
        QFile file(folder_.filePath("key.pem"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return {&file, QSsl::Rsa};
    }
    void serve() {
        auto* client = qobject_cast<QSslSocket*>(server_.nextPendingConnection());
        QObject::connect(client, &QSslSocket::readyRead, client, [this, client] {
            const QByteArray head = client->readAll();
            requests_ += head;
            const QString path = QString::fromLatin1(head.split(' ').value(1));
            ASSERT_TRUE(answers_.contains(path)) << head.constData();
            answers_[path](*client);
        });
        QObject::connect(client, &QSslSocket::disconnected, client, &QObject::deleteLater);
    }

    QTemporaryDir folder_;
    QSslServer server_;
    QSslConfiguration trusting_ = QSslConfiguration::defaultConfiguration();
    std::map<QString, Answer> answers_;
    QByteArray requests_;
};

} // namespace quillet::test
