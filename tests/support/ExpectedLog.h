#pragma once

#include <QString>

namespace quillet::test {

/// From now on every warning or error that is logged, and was not announced by an ExpectedLog,
/// fails the running test.
void failOnUnexpectedLog();

/// Announces one log message, whole; fails the test when it has not come by the end of the scope.
class ExpectedLog {
public:
    explicit ExpectedLog(QString message);
    ~ExpectedLog();
    ExpectedLog(const ExpectedLog&) = delete;
    ExpectedLog& operator=(const ExpectedLog&) = delete;

private:
    QString message_;
};

} // namespace quillet::test
