#pragma once

#include <QLoggingCategory>

namespace quillet {

/// Everything that the program writes to the system log.
Q_DECLARE_LOGGING_CATEGORY(quilletLog)

} // namespace quillet
