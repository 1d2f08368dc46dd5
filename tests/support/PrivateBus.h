#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet::test {

/// A session bus that nobody else is on, and that starts none of the machine's own services.
class PrivateBus {
public:
    PrivateBus() {
        QFile configuration(folder_.filePath("bus.conf"));
        EXPECT_TRUE(configuration.open(QIODevice::WriteOnly));
        configuration.write(
            "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
            " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
            "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><servicedir>" +
            QFile::encodeName(folder_.path()) +
            "</servicedir><policy context=\"default\">"
            "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
            "<allow own=\"*\"/></policy></busconfig>\n");
        configuration.close();
        daemon_.start("dbus-daemon", {"--config-file", configuration.fileName(), "--nofork",
                                      "--nopidfile", "--print-address"});
        if (daemon_.waitForReadyRead()) {
            address_ = QString::fromLatin1(daemon_.readLine().trimmed());
        }
    }
    ~PrivateBus() { end(); }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    /// A new connection each time, as that of another program.
    [[nodiscard]] QDBusConnection connection() const {
        static int number = 0;
        return QDBusConnection::connectToBus(address_, QStringLiteral("private-%1").arg(++number));
    }
    /// Lets the bus start a command for whoever asks for that name.
    void addService(const QString& name, const QString& command) const {
        QFile file(folder_.filePath(name + ".service"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(("[D-BUS Service]\nName=" + name + "\nExec=" + command + "\n").toUtf8());
    }
    void end() {
        daemon_.terminate();
        daemon_.waitForFinished();
    }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
};

} // namespace quillet::test
