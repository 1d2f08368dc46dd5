#pragma once

#include "platform/Environment.h"

#include <QString>

namespace quillet {

/// The program's name on the session bus, which is that of its desktop entry too.
[[nodiscard]] QString applicationIdentifier();
[[nodiscard]] QString applicationObjectPath();
[[nodiscard]] QString applicationInterface();

/// Under these comes, with a request, what lets the window come to the front.
[[nodiscard]] QString activationTokenKey();
[[nodiscard]] QString startupIdentifierKey();

/// What the environment of a start says so that the window may come to the front: the activation
/// token, else the start-up identifier; empty when there is neither. To be asked for before the
/// toolkit starts, which takes both away.
[[nodiscard]] QString startToken(const EnvironmentReader& environment);

} // namespace quillet
