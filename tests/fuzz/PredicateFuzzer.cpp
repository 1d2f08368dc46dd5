#include "platform/Predicate.h"

#include <cstdint>
#include <cstdlib>

namespace {

QVariant field(const QString& key) {
    if (key == u"title") {
        return QStringLiteral("Planning with \"Anna\" (50%) \\ Straße");
    }
    if (key == u"isSelected") {
        return true;
    }
    return key == u"number" ? QVariant(42) : QVariant();
}

} // namespace

// A text that parses is a condition that any record can be tried with, in either way.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto predicate = quillet::Predicate::parse(text);
    if (!predicate) {
        return 0;
    }
    if (predicate->text() != text) {
        std::abort();
    }
    const auto again = quillet::Predicate::parse(text);
    if (!again || again->matches(field) != predicate->matches(field)) {
        std::abort();
    }
    const QString value = QStringLiteral("planning with anna");
    (void)predicate->matchesTexts([&](std::size_t key) {
        return key < static_cast<std::size_t>(predicate->keys().size()) ? QStringView(value)
                                                                        : QStringView();
    });
    return 0;
}
