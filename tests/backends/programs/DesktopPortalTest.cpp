#include "backends/programs/DesktopPortal.h"

#include "support/PrivateBus.h"

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QTimer>

#include <optional>

namespace quillet {

using namespace std::chrono_literals;

/// The portal as its interfaces describe it: a call is answered with the request's path, and what
/// comes of it is told from there, to the caller alone.
class FakeDesktopPortal : public QObject {
    Q_OBJECT

public:
    explicit FakeDesktopPortal(const QDBusConnection& bus)
        : bus_(bus) {}

    QDBusObjectPath answer(const QDBusMessage& call, const QVariantMap& given) {
        signature = call.signature();
        options = given;
        const QString path = "/org/freedesktop/portal/desktop/request/" +
                             call.service().mid(1).replace('.', '_') + "/" +
                             given.value("handle_token").toString();
        if (response) {
            QDBusMessage told = QDBusMessage::createTargetedSignal(
                call.service(), path, "org.freedesktop.portal.Request", "Response");
            told.setArguments({*response, QVariantMap()});
            bus_.send(told);
        }
        return QDBusObjectPath(path);
    }

    std::optional<unsigned int> response = 0U;
    QString signature;
    QString parentWindow;
    QString address;
    QByteArray content;
    QVariantMap options;

private:
    QDBusConnection bus_;
};

class FakeEmail : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Email")

public:
    explicit FakeEmail(FakeDesktopPortal* portal)
        : QDBusAbstractAdaptor(portal)
        , portal_(*portal) {}

public Q_SLOTS:
    QDBusObjectPath ComposeEmail(const QString& parent, const QVariantMap& options,
                                 const QDBusMessage& call) {
        portal_.parentWindow = parent;
        return portal_.answer(call, options);
    }

private:
    FakeDesktopPortal& portal_;
};

class FakeOpenUri : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.OpenURI")

public:
    explicit FakeOpenUri(FakeDesktopPortal* portal)
        : QDBusAbstractAdaptor(portal)
        , portal_(*portal) {}

public Q_SLOTS:
    QDBusObjectPath OpenURI(const QString& parent, const QString& address,
                            const QVariantMap& options, const QDBusMessage& call) {
        portal_.parentWindow = parent;
        portal_.address = address;
        return portal_.answer(call, options);
    }
    QDBusObjectPath OpenFile(const QString& parent, const QDBusUnixFileDescriptor& descriptor,
                             const QVariantMap& options, const QDBusMessage& call) {
        portal_.parentWindow = parent;
        QFile file;
        if (file.open(descriptor.fileDescriptor(), QIODevice::ReadOnly)) {
            portal_.content = file.readAll();
        }
        return portal_.answer(call, options);
    }

private:
    FakeDesktopPortal& portal_;
};

namespace {

class DesktopPortalTest : public testing::Test {
protected:
    DesktopPortalTest() {
        new FakeEmail(&fake);
        new FakeOpenUri(&fake);
        EXPECT_TRUE(other.registerObject("/org/freedesktop/portal/desktop", &fake));
        EXPECT_TRUE(other.registerService("org.freedesktop.portal.Desktop"));
    }

    test::PrivateBus daemon;
    QDBusConnection other = daemon.connection();
    FakeDesktopPortal fake{other};
    SessionBusPortal portal{daemon.connection(), {.reply = 500ms, .response = 300ms}};
};

} // namespace

TEST_F(DesktopPortalTest, AMessageIsComposedWithSubjectAndBody) {
    const QString body = QStringLiteral("100% \"x\"\nä\t") + QChar(u'\0') + QStringLiteral("end");
    const auto composed = portal.composeEmail("March\n2024", body);
    ASSERT_TRUE(composed) << qPrintable(composed.error());
    EXPECT_EQ(fake.signature, QStringLiteral("sa{sv}"));
    EXPECT_EQ(fake.parentWindow, QString());
    EXPECT_EQ(fake.options.value("subject"), QVariant(QStringLiteral("March 2024")))
        << "subjects of several lines are refused";
    EXPECT_EQ(fake.options.value("body"), QVariant(QStringLiteral("100% \"x\"\nä\tend")));
    ASSERT_TRUE(portal.composeEmail(QString(300, u'x'), {}));
    EXPECT_EQ(fake.options.value("subject"), QVariant(QString(200, u'x')));
    EXPECT_FALSE(fake.options.contains("body"));
}

TEST_F(DesktopPortalTest, AddressesAndFilesAreOpened) {
    ASSERT_TRUE(portal.openAddress("calendar:///?source-uid=a%20b"));
    EXPECT_EQ(fake.signature, QStringLiteral("ssa{sv}"));
    EXPECT_EQ(fake.address, QStringLiteral("calendar:///?source-uid=a%20b"));
    QTemporaryDir folder;
    QFile file(folder.filePath("a b.ics"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("BEGIN:VCALENDAR");
    file.close();
    ASSERT_TRUE(portal.openFile(file.fileName()));
    EXPECT_EQ(fake.signature, QStringLiteral("sha{sv}"));
    EXPECT_EQ(fake.content, QByteArray("BEGIN:VCALENDAR"));
    EXPECT_FALSE(portal.openFile(folder.filePath("missing.ics")));
}

TEST_F(DesktopPortalTest, ARequestThatFailsAfterItWasAcceptedHasFailed) {
    fake.response = 2U;
    EXPECT_EQ(portal.composeEmail("S", "B").error(), QStringLiteral("no program could be started"));
    fake.response = 1U;
    EXPECT_TRUE(portal.composeEmail("S", "B")) << "the user called it off";
}

TEST_F(DesktopPortalTest, AUserWhoIsStillChoosingAProgramIsNotWaitedFor) {
    fake.response.reset();
    int beats = 0;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&beats] { ++beats; });
    heart.start(10ms);
    EXPECT_TRUE(portal.composeEmail("S", "B"));
    EXPECT_GE(beats, 10) << "the window lives meanwhile";
}

TEST_F(DesktopPortalTest, APortalThatIsNotThereIsTheReason) {
    ASSERT_TRUE(other.unregisterService("org.freedesktop.portal.Desktop"));
    EXPECT_FALSE(portal.composeEmail("S", "B").error().isEmpty());
    EXPECT_FALSE(SessionBusPortal().openAddress("calendar:///").error().isEmpty());
}

} // namespace quillet

#include "DesktopPortalTest.moc"
