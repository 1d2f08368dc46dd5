#pragma once

#include <QString>

#include <functional>

namespace quillet {

/// Reads an environment variable; empty when it is not set.
using EnvironmentReader = std::function<QString(const char* name)>;

/// Reads the environment of this process.
[[nodiscard]] inline EnvironmentReader processEnvironment() {
    return [](const char* name) { return qEnvironmentVariable(name); };
}

} // namespace quillet
