#include "backends/updates/ReleaseListUpdater.h"
#include "HttpsServer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace quillet {

namespace {

class ShownTexts final : public UpdatePresenter {
public:
    void showSearch(std::function<void()> cancel) override {
        ++searches;
        cancelSearch = std::move(cancel);
    }
    void showUpToDate(const QString& installedVersion) override {
        shown << "up to date " + installedVersion;
    }
    void showNews(const QString& installedVersion, const std::vector<ReleaseNews>& newer,
                  std::function<bool()> openSoftwareCentre) override {
        shown << "newer than " + installedVersion;
        for (const ReleaseNews& release : newer) {
            shown << release.version + ": " + release.notes;
        }
        openCentre = std::move(openSoftwareCentre);
    }
    void showFailure(const QString& reason) override { shown << reason; }

    int searches = 0;
    std::function<void()> cancelSearch;
    std::function<bool()> openCentre;
    QStringList shown;
};

const QByteArray goodList =
    "<releases><release version='0.2'><description><p>New.</p><p xml:lang='de'>Neu.</p>"
    "</description></release><release version='0.1'/></releases>";

const QString unreachable =
    "The list of versions cannot be reached. Are you connected to the Internet?";
const QString notSecure =
    "The list of versions was not read, as the connection to it is not secure.";
const QString notFound = "The list of versions is not where it should be.";
const QString tooLarge = "What came is too large for a list of versions.";
const QString tooSlow = "The list of versions did not come in time. Please try again later.";
const QString noList = "What came is no list of versions.";

class ReleaseListUpdaterTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        // The server is on this computer, whatever the developer's way to the Internet is.
        for (const char* variable :
             {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"}) {
            qunsetenv(variable);
        }
    }
    ReleaseListUpdaterTest() { server.answer("/releases.xml", goodList); }

    ReleaseListUpdater updater(const QUrl& address, const QString& installed = "0.1",
                               HttpsDownload::Limits limits = {.bytes = 1 << 20, .time = 20s}) {
        return ReleaseListUpdater({.presenter = presenter,
                                   .address = address,
                                   .installedVersion = installed,
                                   .languages = {"de_AT"},
                                   .openSoftwareCentre = [this] { return ++opened > 1; },
                                   .security = [this] { return security; },
                                   .limits = limits});
    }
    static bool waitFor(const std::function<bool()>& condition,
                        std::chrono::milliseconds time = 25s) {
        const QDeadlineTimer deadline(time);
        while (!condition() && !deadline.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents,
                                            10);
        }
        return condition();
    }
    QStringList shownAfter(ReleaseListUpdater updater) {
        updater.checkForUpdates();
        EXPECT_EQ(presenter.shown, QStringList()) << "shown while the menu is still open";
        EXPECT_TRUE(waitFor([this] { return !presenter.shown.isEmpty(); }));
        return presenter.shown;
    }
    QStringList shownFor(const QString& path,
                         HttpsDownload::Limits limits = {.bytes = 1 << 20, .time = 20s}) {
        return shownAfter(updater(server.address(path), "0.1", limits));
    }

    test::HttpsServer server;
    QSslConfiguration security = server.trusting();
    ShownTexts presenter;
    int opened = 0;
};

} // namespace

TEST_F(ReleaseListUpdaterTest, ShowsWhatIsNewInTheUsersLanguage) {
    EXPECT_EQ(shownFor("/releases.xml"), (QStringList{"newer than 0.1", "0.2: Neu."}));
    EXPECT_EQ(presenter.searches, 1);
    EXPECT_FALSE(presenter.openCentre());
    EXPECT_TRUE(presenter.openCentre());
}

TEST_F(ReleaseListUpdaterTest, SaysThatNothingIsNewer) {
    EXPECT_EQ(shownAfter(updater(server.address("/releases.xml"), "0.2")),
              QStringList{"up to date 0.2"});
}

TEST_F(ReleaseListUpdaterTest, TellsTheServerNothingOfTheComputer) {
    shownFor("/releases.xml");
    EXPECT_TRUE(server.requests().startsWith("GET /releases.xml HTTP/1.1\r\n"));
    EXPECT_TRUE(server.requests().contains("User-Agent: Quillet\r\n"));
    // What came packed could unfold beyond every limit.
    EXPECT_TRUE(server.requests().contains("Accept-Encoding: identity\r\n"));
}

TEST_F(ReleaseListUpdaterTest, KeepsNothingByWhichTheServerCouldKnowItAgain) {
    server.answer("/releases.xml", goodList, "200 OK", "Set-Cookie: known=again; Path=/\r\n");
    ReleaseListUpdater search = updater(server.address("/releases.xml"));
    for (const int results : {2, 4}) {
        search.checkForUpdates();
        EXPECT_TRUE(waitFor([&] { return presenter.shown.size() == results; }));
    }
    EXPECT_EQ(server.requests().count("GET /releases.xml"), 2);
    EXPECT_FALSE(server.requests().contains("Cookie"));
}

TEST_F(ReleaseListUpdaterTest, FollowsRedirectionsThatStaySecure) {
    server.redirect("/old", server.address("/older").toString());
    server.redirect("/older", "/releases.xml");
    EXPECT_EQ(shownFor("/old").value(0), QStringLiteral("newer than 0.1"));
}

TEST_F(ReleaseListUpdaterTest, RefusesARedirectionToAPlainConnection) {
    QTcpServer plain;
    ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
    server.redirect("/old",
                    QStringLiteral("http://127.0.0.1:%1/releases.xml").arg(plain.serverPort()));
    EXPECT_EQ(shownFor("/old"), QStringList{notSecure});
    EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(ReleaseListUpdaterTest, RefusesRedirectionsToFilesAndEndlessOnes) {
    server.redirect("/file", "file:///etc/passwd");
    EXPECT_EQ(shownFor("/file"), QStringList{notSecure});
    presenter.shown.clear();
    server.redirect("/again", "/again");
    EXPECT_EQ(shownFor("/again"), QStringList{notFound});
}

TEST_F(ReleaseListUpdaterTest, RefusesAServerThatNobodyVouchesFor) {
    security = QSslConfiguration::defaultConfiguration();
    EXPECT_EQ(shownFor("/releases.xml"), QStringList{notSecure});
    EXPECT_EQ(server.requests(), QByteArray());
}

TEST_F(ReleaseListUpdaterTest, RefusesACertificateForAnotherName) {
    test::HttpsServer other("DNS:elsewhere.example");
    other.answer("/releases.xml", goodList);
    security = other.trusting();
    EXPECT_EQ(shownAfter(updater(other.address("/releases.xml"))), QStringList{notSecure});
    EXPECT_EQ(other.requests(), QByteArray());
}

TEST_F(ReleaseListUpdaterTest, RefusesPlainAddressesWithoutAskingAnybody) {
    QTcpServer plain;
    ASSERT_TRUE(plain.listen(QHostAddress::LocalHost));
    EXPECT_EQ(
        shownAfter(updater(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(plain.serverPort())))),
        QStringList{notSecure});
    EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(ReleaseListUpdaterTest, SaysWhenNobodyAnswers) {
    quint16 port = 0;
    {
        QTcpServer closed;
        ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
        port = closed.serverPort();
    }
    EXPECT_EQ(shownAfter(updater(QUrl(QStringLiteral("https://127.0.0.1:%1/").arg(port)))),
              QStringList{unreachable});
}

TEST_F(ReleaseListUpdaterTest, SaysWhenTheConnectionIsCut) {
    server.answer("/cut", [](QSslSocket& client) {
        client.write("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n" + goodList);
        client.disconnectFromHost();
    });
    EXPECT_EQ(shownFor("/cut"), QStringList{unreachable});
    presenter.shown.clear();
    server.answer("/nothing", [](QSslSocket& client) { client.disconnectFromHost(); });
    EXPECT_EQ(shownFor("/nothing"), QStringList{unreachable});
}

TEST_F(ReleaseListUpdaterTest, SaysWhenTheListIsNotThere) {
    for (const char* status :
         {"404 Not Found", "403 Forbidden", "500 Broken", "503 Later", "410 Gone", "401 Who?"}) {
        presenter.shown.clear();
        server.answer("/gone", goodList, status);
        EXPECT_EQ(shownFor("/gone"), QStringList{notFound}) << status;
    }
}

TEST_F(ReleaseListUpdaterTest, VersionsForTryingOutAreNoNews) {
    server.answer("/trials", "<releases><release type='development' version='9'/></releases>");
    EXPECT_EQ(shownFor("/trials"), QStringList{"up to date 0.1"});
}

TEST_F(ReleaseListUpdaterTest, SaysWhenWhatCameIsNoList) {
    for (const char* text : {"", "<html><body>Sign in to this network</body></html>", "\0\0",
                             "<releases><release version='9'>"}) {
        presenter.shown.clear();
        server.answer("/portal", text);
        EXPECT_EQ(shownFor("/portal"), QStringList{noList}) << text;
    }
}

TEST_F(ReleaseListUpdaterTest, TakesNoMoreThanAListCanHave) {
    server.answer("/big", "<releases>" + QByteArray(2 << 20, ' ') + "</releases>");
    EXPECT_EQ(shownFor("/big"), QStringList{tooLarge});
    presenter.shown.clear();
    server.answer("/endless", [](QSslSocket& client) {
        client.write("HTTP/1.1 200 OK\r\n\r\n<releases>");
        QObject::connect(&client, &QSslSocket::encryptedBytesWritten, &client,
                         [&client] { client.write(QByteArray(65536, ' ')); });
    });
    EXPECT_EQ(shownFor("/endless"), QStringList{tooLarge});
    presenter.shown.clear();
    server.answer("/exact", goodList);
    EXPECT_EQ(shownFor("/exact", {.bytes = goodList.size(), .time = 20s}).value(0),
              QStringLiteral("newer than 0.1"));
    presenter.shown.clear();
    EXPECT_EQ(shownFor("/exact", {.bytes = goodList.size() - 1, .time = 20s}),
              QStringList{tooLarge});
}

TEST_F(ReleaseListUpdaterTest, WaitsNoLongerThanItMay) {
    constexpr HttpsDownload::Limits shortTime{.bytes = 1 << 20, .time = 300ms};
    server.answer("/silent", [](QSslSocket&) {});
    EXPECT_EQ(shownFor("/silent", shortTime), QStringList{tooSlow});
    presenter.shown.clear();
    // Each piece comes soon after the last, but the whole never does.
    server.answer("/drops", [](QSslSocket& client) {
        client.write("HTTP/1.1 200 OK\r\n\r\n<releases>");
        auto* drops = new QTimer(&client);
        QObject::connect(drops, &QTimer::timeout, &client, [&client] { client.write(" "); });
        drops->start(20ms);
    });
    EXPECT_EQ(shownFor("/drops", shortTime), QStringList{tooSlow});
}

TEST_F(ReleaseListUpdaterTest, ShowsNothingOnceTheUserHasCancelled) {
    ReleaseListUpdater search = updater(server.address("/releases.xml"));
    search.checkForUpdates();
    presenter.cancelSearch();
    EXPECT_FALSE(waitFor([this] { return !presenter.shown.isEmpty(); }, 300ms));
    search.checkForUpdates();
    EXPECT_TRUE(waitFor([this] { return !presenter.shown.isEmpty(); }));
    EXPECT_EQ(presenter.searches, 2);
    EXPECT_EQ(presenter.shown, (QStringList{"newer than 0.1", "0.2: Neu."}));
}

TEST_F(ReleaseListUpdaterTest, OneSearchRunsAtATime) {
    ReleaseListUpdater search = updater(server.address("/releases.xml"));
    search.checkForUpdates();
    search.checkForUpdates();
    EXPECT_EQ(presenter.searches, 1);
    EXPECT_TRUE(waitFor([this] { return !presenter.shown.isEmpty(); }));
    EXPECT_FALSE(waitFor([this] { return presenter.shown.size() > 2; }, 200ms));
}

TEST_F(ReleaseListUpdaterTest, MayEndWhileItSearches) {
    server.answer("/silent", [](QSslSocket&) {});
    {
        ReleaseListUpdater search = updater(server.address("/silent"));
        search.checkForUpdates();
        waitFor([this] { return server.requests().contains("/silent"); });
    }
    EXPECT_FALSE(waitFor([this] { return !presenter.shown.isEmpty(); }, 200ms));
}

TEST(ReleaseListAddressTest, IsAWebAddressThatIsSecure) {
    EXPECT_TRUE(releaseListAddress().isValid());
    EXPECT_EQ(releaseListAddress().scheme(), QStringLiteral("https"));
}

} // namespace quillet
