#pragma once

#include <QString>

#include <expected>

namespace quillet {

/// Runs scripts that ask other programs for something.
class ScriptRunner {
public:
    virtual ~ScriptRunner() = default;
    /// Runs a script and returns when it has ended. The error, why it gave no result, is a text for
    /// the log.
    virtual std::expected<void, QString> run(const QString& source) = 0;
};

} // namespace quillet
