#include "backends/evolution/ServiceFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillet::test {

namespace {

constexpr int patientMilliseconds = 30'000;
const QString unreachable = QStringLiteral("its server is not reachable since 14:02, retrying");

int freePort() {
    const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    EXPECT_EQ(bind(descriptor, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &size), 0);
    close(descriptor);
    return ntohs(address.sin_port);
}

QByteArray eventFile(const QByteArray& uid, const QByteArray& lines) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//test//EN\r\nBEGIN:VEVENT\r\nUID:" + uid +
           "\r\nDTSTAMP:20240101T000000Z\r\n" + lines + "\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
}

/// A calendar of a CalDAV server on the loopback interface, which keeps one file for each event.
class RemoteCalendarTest : public ServiceFixture {
protected:
    RemoteCalendarTest() {
        limits.longestRetry = std::chrono::milliseconds(500);
        QDir().mkpath(collection);
        write(QStringLiteral(".Radicale.props"), "{\"tag\": \"VCALENDAR\"}");
        write(QStringLiteral("one.ics"),
              eventFile("one", "DTSTART;TZID=Europe/Berlin:20240304T100000\r\nDURATION:PT1H\r\n"
                               "SUMMARY:Daily\r\nRRULE:FREQ=DAILY;COUNT=2"));
    }
    ~RemoteCalendarTest() override { stopServer(); }

    void write(const QString& name, const QByteArray& content) const {
        QFile file(collection + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    void startServer(const QString& authentication = QStringLiteral("none")) {
        server.setStandardErrorFile(QProcess::nullDevice());
        server.start(QStringLiteral("radicale"),
                     {"--config", "", "--server-hosts", QStringLiteral("127.0.0.1:%1").arg(port),
                      "--auth-type", authentication, "--auth-htpasswd-filename",
                      folder.filePath(QStringLiteral("users")), "--auth-htpasswd-encryption",
                      "plain", "--storage-filesystem-folder", folder.filePath("server")});
        ASSERT_TRUE(server.waitForStarted());
        ASSERT_TRUE(waitUntil([this] { return isListening(); }));
    }

    void stopServer() {
        server.kill();
        server.waitForFinished();
    }

    [[nodiscard]] bool isListening() const {
        const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        const bool isOpen =
            connect(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof(address)) == 0;
        close(descriptor);
        return isOpen;
    }

    ESource* addRemote(const char* authentication = "none") {
        return addCalendar(QStringLiteral("Remote"), {}, "caldav", [&](ESource* source) {
            auto* webdav = static_cast<ESourceWebdav*>(
                e_source_get_extension(source, E_SOURCE_EXTENSION_WEBDAV_BACKEND));
            e_source_webdav_set_resource_path(webdav, "/user/work/");
            auto* login = static_cast<ESourceAuthentication*>(
                e_source_get_extension(source, E_SOURCE_EXTENSION_AUTHENTICATION));
            e_source_authentication_set_host(login, "127.0.0.1");
            e_source_authentication_set_port(login, static_cast<guint16>(port));
            e_source_authentication_set_user(login, "user");
            e_source_authentication_set_method(login, authentication);
        });
    }

    /// What the calendar program does when the user asks for the newest state.
    void refresh(ESource* source) {
        CallError error;
        e_client_refresh_sync(E_CLIENT(clientOf(source)), nullptr, error.slot());
        EXPECT_FALSE(error) << error.message().toStdString();
    }

    int port = freePort();
    QString collection = folder.filePath(QStringLiteral("server/collection-root/user/work"));
    QProcess server;
};

TEST_F(RemoteCalendarTest, showsTheEventsOfTheServerAndFollowsThem) {
    startServer();
    ESource* remote = addRemote();
    open();
    ASSERT_TRUE(waitForTitles({"Daily", "Daily"}, patientMilliseconds));
    EXPECT_EQ(events()[0].startDate, utc(2024, 3, 4, 9));
    EXPECT_TRUE(store->problems().empty());

    write(QStringLiteral("two.ics"),
          eventFile("two", "DTSTART:20240306T100000Z\r\nDURATION:PT1H\r\nSUMMARY:Once"));
    refresh(remote);
    ASSERT_TRUE(waitForTitles({"Daily", "Daily", "Once"}, patientMilliseconds));
    QFile::remove(collection + QStringLiteral("/one.ics"));
    refresh(remote);
    EXPECT_TRUE(waitForTitles({"Once"}, patientMilliseconds));
}

TEST_F(RemoteCalendarTest, readsACalendarWhoseServerComesLater) {
    addRemote();
    open();
    ASSERT_TRUE(waitForCalendars({"Remote"}));
    EXPECT_TRUE(waitUntil([&] { return problemOf("Remote") == unreachable; }, patientMilliseconds));
    EXPECT_EQ(titles(), QStringList());
    startServer();
    ASSERT_TRUE(waitForTitles({"Daily", "Daily"}, patientMilliseconds));
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }, patientMilliseconds));
}

TEST_F(RemoteCalendarTest, readsACalendarWhoseServerWasMissedBeforeAnyoneLooked) {
    ESource* remote = addRemote();
    (void)clientOf(remote);
    // The service tells its first failure once, to whoever listens then.
    constexpr int failureMilliseconds = 3000;
    EXPECT_FALSE(waitUntil([] { return false; }, failureMilliseconds));
    EXPECT_EQ(e_source_get_connection_status(remote),
              E_SOURCE_CONNECTION_STATUS_AWAITING_CREDENTIALS);
    open();
    EXPECT_TRUE(waitUntil([&] { return problemOf("Remote") == unreachable; }, patientMilliseconds));
    startServer();
    EXPECT_TRUE(waitForTitles({"Daily", "Daily"}, patientMilliseconds));
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }, patientMilliseconds));
}

TEST_F(RemoteCalendarTest, keepsWhatWasFetchedWhileTheServerIsAway) {
    startServer();
    ESource* remote = addRemote();
    open();
    ASSERT_TRUE(waitForTitles({"Daily", "Daily"}, patientMilliseconds));
    stopServer();
    // The service drops a request to refresh while it is still refreshing.
    bool isTold = false;
    constexpr int requests = 10;
    for (int request = 0; request < requests && !isTold; ++request) {
        refresh(remote);
        isTold = waitUntil([&] { return problemOf("Remote") == unreachable; },
                           patientMilliseconds / requests);
    }
    EXPECT_TRUE(isTold);
    EXPECT_EQ(titles(), QStringList({"Daily", "Daily"}));
    write(QStringLiteral("two.ics"),
          eventFile("two", "DTSTART:20240306T100000Z\r\nDURATION:PT1H\r\nSUMMARY:Once"));
    startServer();
    EXPECT_TRUE(waitForTitles({"Daily", "Daily", "Once"}, patientMilliseconds));
    EXPECT_TRUE(waitUntil([&] { return store->problems().empty(); }, patientMilliseconds));
}

TEST_F(RemoteCalendarTest, saysThatACalendarNeedsItsPassword) {
    QFile users(folder.filePath(QStringLiteral("users")));
    ASSERT_TRUE(users.open(QIODevice::WriteOnly));
    users.write("user:open sesame\n");
    users.close();
    startServer(QStringLiteral("htpasswd"));
    addRemote("plain/password");
    open();
    ASSERT_TRUE(waitForCalendars({"Remote"}));
    EXPECT_TRUE(waitUntil(
        [&] {
            return problemOf("Remote") ==
                   QStringLiteral("needs its password, which the calendar program asks for");
        },
        patientMilliseconds));
    EXPECT_EQ(titles(), QStringList());
}

} // namespace

} // namespace quillet::test
