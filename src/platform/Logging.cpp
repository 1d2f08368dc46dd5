#include "platform/Logging.h"

namespace quillet {

Q_LOGGING_CATEGORY(quilletLog, "quillet")

} // namespace quillet
