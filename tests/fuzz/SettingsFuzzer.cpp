#include "backends/settingsfile/SettingsJson.h"

#include <cstdint>
#include <cstdlib>

// What can be read can be written, and reads as the same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto values = quillet::settingsFromText(text);
    if (!values) {
        if (values.error().isEmpty()) {
            std::abort();
        }
        return 0;
    }
    const QByteArray written = quillet::settingsText(*values);
    const auto again = quillet::settingsFromText(written);
    if (!again || quillet::settingsText(*again) != written) {
        std::abort();
    }
    return 0;
}
