#include "support/ExpectedLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr const char* marker = "QUILLET_TEST_ON_PRIVATE_BUS";

bool onlyLists(int argc, char** argv) {
    return std::any_of(argv, argv + argc, [](const char* argument) {
        return QByteArrayView(argument).startsWith("--gtest_list_tests");
    });
}

/// A home without anything of the developer's, in which the calendar service takes the loopback
/// interface for a network.
void prepareHome(const QDir& home) {
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS"}) {
        qunsetenv(display);
    }
    for (const auto& [variable, folder] :
         {std::pair("HOME", "."), std::pair("XDG_RUNTIME_DIR", "run"),
          std::pair("XDG_CONFIG_HOME", "config"), std::pair("XDG_DATA_HOME", "data"),
          std::pair("XDG_CACHE_HOME", "cache"), std::pair("XDG_STATE_HOME", "state")}) {
        home.mkpath(QString::fromLatin1(folder));
        qputenv(variable, QFile::encodeName(QDir::cleanPath(home.filePath(QLatin1String(folder)))));
    }
    QFile::setPermissions(home.filePath(QStringLiteral("run")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "Europe/Berlin");
    qputenv("GSETTINGS_BACKEND", "keyfile");
    qputenv(marker, "1");
    home.mkpath(QStringLiteral("config/glib-2.0/settings"));
    QFile settings(home.filePath(QStringLiteral("config/glib-2.0/settings/keyfile")));
    if (settings.open(QIODevice::WriteOnly)) {
        settings.write("[org/gnome/evolution-data-server]\n"
                       "network-monitor-gio-name='always-online'\n");
    }
}

pid_t session = 0;

void endSession(int /*signal*/) {
    kill(-session, SIGKILL);
    _exit(1);
}

/// The same program again, on a session bus of its own that ends with it and with everything that
/// was started over it.
int runOnPrivateBus(char** argv) {
    const QTemporaryDir folder;
    prepareHome(QDir(folder.path()));
    session = fork();
    if (session == 0) {
        setpgid(0, 0);
        std::vector<char*> command{const_cast<char*>("dbus-run-session"), const_cast<char*>("--")};
        const QByteArray self =
            QFile::symLinkTarget(QStringLiteral("/proc/self/exe")).toLocal8Bit();
        command.push_back(const_cast<char*>(self.constData()));
        for (char** argument = argv + 1; *argument != nullptr; ++argument) {
            command.push_back(*argument);
        }
        command.push_back(nullptr);
        execvp(command.front(), command.data());
        _exit(127);
    }
    setpgid(session, session);
    std::signal(SIGTERM, endSession);
    std::signal(SIGINT, endSession);
    int status = 0;
    waitpid(session, &status, 0);
    kill(-session, SIGKILL);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet(marker) && !onlyLists(argc, argv)) {
        return runOnPrivateBus(argv);
    }
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    quillet::test::failOnUnexpectedLog();
    return RUN_ALL_TESTS();
}
