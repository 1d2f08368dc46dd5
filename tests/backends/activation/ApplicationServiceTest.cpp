#include "backends/activation/ApplicationService.h"

#include "RunningProgram.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <map>

using namespace std::chrono_literals;

namespace quillet {

namespace {

using Standing = ApplicationService::Standing;

QDBusMessage callTo(const char* method) {
    return QDBusMessage::createMethodCall(applicationIdentifier(), "/org/quillet/Quillet",
                                          "org.freedesktop.Application", method);
}

class ApplicationServiceTest : public testing::Test {
protected:
    /// A start of the program in this thread.
    Standing start(const QString& token = {}, std::chrono::milliseconds patience = 10s) const {
        ApplicationService service(bus.connection());
        return service.claim(token, patience);
    }
    QDBusMessage ask(const QDBusMessage& message) const { return bus.connection().call(message); }

    PrivateBus bus;
};

} // namespace

TEST_F(ApplicationServiceTest, WithoutABusEveryStartIsTheFirst) {
    ApplicationService service(QDBusConnection::connectToBus("unix:path=/nowhere/at/all", "none"));
    EXPECT_EQ(service.claim("token", 10s), Standing::First);
    service.serve({});
    service.endSoon();
}

TEST_F(ApplicationServiceTest, TheFirstStartRunsAndTheSecondBringsItToTheFront) {
    RunningProgram program(bus);
    EXPECT_EQ(program.standing(), Standing::First);
    EXPECT_EQ(start("click-7_TIME99"), Standing::HandedOver);
    EXPECT_EQ(start(), Standing::HandedOver);
    EXPECT_EQ(program.requests(2), (QStringList{"activate click-7_TIME99", "activate "}));
}

TEST_F(ApplicationServiceTest, AStartAfterTheEndIsTheFirstAgain) {
    {
        const RunningProgram program(bus);
    }
    EXPECT_EQ(start(), Standing::First);
}

TEST_F(ApplicationServiceTest, TheNameIsFreeOnceTheServiceEndsWhateverBecomesOfItsConnection) {
    const QDBusConnection own = bus.connection();
    auto ending = std::make_unique<ApplicationService>(own);
    ASSERT_EQ(ending->claim({}, 10s), Standing::First);
    ending.reset();
    EXPECT_FALSE(own.interface()->isServiceRegistered(applicationIdentifier()));
    EXPECT_EQ(start({}, 1s), Standing::First);
    EXPECT_TRUE(own.isConnected());
}

TEST_F(ApplicationServiceTest, ADialogThatARequestOpensKeepsNoCallerWaiting) {
    RunningProgram program(bus);
    QSemaphore isOpen;
    QSemaphore close;
    program.duringRequest = [&] {
        isOpen.release();
        close.acquire();
    };
    EXPECT_EQ(start("click", 5s), Standing::HandedOver);
    EXPECT_TRUE(isOpen.tryAcquire(1, 10'000));
    close.release();
    EXPECT_EQ(program.requests(1), QStringList{"activate click"});
}

TEST_F(ApplicationServiceTest, FilesAndActionsArriveWithTheirTokens) {
    RunningProgram program(bus);
    ask(callTo("Open") << QStringList{"file:///tmp/a%20b.ics", "nonsense"}
                       << QVariantMap{{"desktop-startup-id", "start"}});
    ask(callTo("ActivateAction") << "this-week" << QVariantList{1, "ignored"}
                                 << QVariantMap{{"activation-token", "token"},
                                                {"desktop-startup-id", "start"}});
    EXPECT_EQ(ask(callTo("Activate") << QVariantMap{{"activation-token", 5}}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(program.requests(3), (QStringList{"open file:///tmp/a%20b.ics,nonsense start",
                                                "action this-week token", "activate 5"}));
}

TEST_F(ApplicationServiceTest, WhatComesBeforeTheWindowIsThereIsKeptInOrder) {
    RunningProgram program(bus, RunningProgram::Serving::Later);
    EXPECT_EQ(start("early"), Standing::HandedOver);
    ask(callTo("Open") << QStringList{"file:///a.ics"} << QVariantMap{});
    program.inside([&] { program.serve(); });
    EXPECT_EQ(start("late"), Standing::HandedOver);
    EXPECT_EQ(program.requests(3),
              (QStringList{"activate early", "open file:///a.ics ", "activate late"}));
}

TEST_F(ApplicationServiceTest, TheCopyThatARelaunchStartsWaitsForTheEndAndRunsAlone) {
    RunningProgram program(bus);
    program.endSoon();
    QElapsedTimer watch;
    watch.start();
    constexpr auto untilTheEnd = 300ms;
    const std::unique_ptr<QThread> end(QThread::create([&] {
        QThread::msleep(untilTheEnd.count());
        program.end();
    }));
    end->start();
    ApplicationService copy(bus.connection());
    EXPECT_EQ(copy.claim({}, 10s), Standing::First);
    EXPECT_GE(std::chrono::milliseconds(watch.elapsed()), untilTheEnd);
    end->wait();
    EXPECT_EQ(program.requests(0), QStringList());
    EXPECT_TRUE(bus.connection().interface()->isServiceRegistered(applicationIdentifier()));
}

TEST_F(ApplicationServiceTest, AnEndingProgramTakesNoFilesEither) {
    RunningProgram program(bus);
    program.endSoon();
    const auto reply = ask(callTo("Open") << QStringList{"file:///a.ics"} << QVariantMap{});
    EXPECT_EQ(reply.errorName(), QStringLiteral("org.quillet.Quillet.Error.Ending"));
    EXPECT_EQ(program.requests(0), QStringList());
}

TEST_F(ApplicationServiceTest, AProgramThatHangsKeepsNobodyFromStarting) {
    RunningProgram program(bus);
    QSemaphore isHanging;
    QSemaphore goOn;
    const std::unique_ptr<QThread> hang(QThread::create([&] {
        program.inside([&] {
            isHanging.release();
            goOn.acquire();
        });
    }));
    hang->start();
    isHanging.acquire();
    QElapsedTimer watch;
    watch.start();
    EXPECT_EQ(start({}, 300ms), Standing::First);
    EXPECT_GE(std::chrono::milliseconds(watch.elapsed()), 280ms);
    EXPECT_LT(std::chrono::milliseconds(watch.elapsed()), 5s);
    goOn.release();
    hang->wait();
}

TEST_F(ApplicationServiceTest, AProgramThatHasNoObjectAnyMoreIsWaitedForToo) {
    QDBusConnection ending = bus.connection();
    ASSERT_TRUE(ending.registerService(applicationIdentifier()));
    const std::unique_ptr<QThread> end(QThread::create([&] {
        QThread::msleep(300);
        ending.unregisterService(applicationIdentifier());
    }));
    end->start();
    const QDBusConnection own = bus.connection();
    ApplicationService copy(own);
    EXPECT_EQ(copy.claim({}, 10s), Standing::First);
    end->wait();
    EXPECT_EQ(own.interface()->serviceOwner(applicationIdentifier()).value(), own.baseService());
}

TEST_F(ApplicationServiceTest, ShowsJustTheStandardMethods) {
    const RunningProgram program(bus);
    const QString description =
        ask(QDBusMessage::createMethodCall(applicationIdentifier(), "/org/quillet/Quillet",
                                           "org.freedesktop.DBus.Introspectable", "Introspect"))
            .arguments()
            .value(0)
            .toString();
    const auto start = description.indexOf("<interface name=\"org.freedesktop.Application\">");
    ASSERT_GE(start, 0);
    const QString own = description.mid(start, description.indexOf("</interface>", start) - start);
    EXPECT_EQ(own.count("<method "), 3);
    for (const char* method : {"Activate", "Open", "ActivateAction"}) {
        EXPECT_TRUE(own.contains(QStringLiteral("<method name=\"%1\">").arg(method))) << method;
    }
}

TEST(StartTokenTest, TheActivationTokenComesBeforeTheStartUpIdentifier) {
    const auto token = [](std::map<std::string, QString> environment) {
        return startToken([&](const char* name) { return environment[name]; });
    };
    EXPECT_EQ(token({{"XDG_ACTIVATION_TOKEN", "a"}, {"DESKTOP_STARTUP_ID", "b"}}), "a");
    EXPECT_EQ(token({{"DESKTOP_STARTUP_ID", "b"}}), "b");
    EXPECT_EQ(token({}), QString());
}

} // namespace quillet
