#include "support/ExpectedLog.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <mutex>

namespace quillet::test {

namespace {

std::mutex mutex;
QStringList expected;

void judge(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    // Qt's platform without a screen says this of every window that it shows.
    const bool isHabit =
        message == QLatin1StringView("This plugin does not support propagateSizeHints()");
    if (type == QtDebugMsg || type == QtInfoMsg || isHabit) {
        return;
    }
    const std::scoped_lock lock(mutex);
    if (!expected.removeOne(message)) {
        ADD_FAILURE() << "unexpected log message: " << message.toStdString();
    }
}

} // namespace

void failOnUnexpectedLog() {
    qInstallMessageHandler(judge);
}

ExpectedLog::ExpectedLog(QString message)
    : message_(std::move(message)) {
    const std::scoped_lock lock(mutex);
    expected.append(message_);
}

ExpectedLog::~ExpectedLog() {
    const std::scoped_lock lock(mutex);
    if (expected.removeOne(message_)) {
        ADD_FAILURE() << "log message did not come: " << message_.toStdString();
    }
}

} // namespace quillet::test
