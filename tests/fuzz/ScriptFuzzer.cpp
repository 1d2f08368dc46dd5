#include "backends/scripts/ScriptRequests.h"

#include <cstdint>
#include <cstdlib>

// Any bytes are a script or are not; what it asks for is asked for again by the same script.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString source =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto first = quillet::requestsOfScript(source);
    const auto second = quillet::requestsOfScript(source);
    if (first.has_value() != second.has_value() || (first && *first != *second)) {
        std::abort();
    }
    if (!first && first.error().isEmpty()) {
        std::abort();
    }
    return 0;
}
