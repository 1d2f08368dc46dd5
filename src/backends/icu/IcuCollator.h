#pragma once

#include "platform/Collator.h"

#include <memory>

namespace quillet {

/// A language's order of texts by ICU.
class IcuCollator final : public Collator {
public:
    /// An ICU locale name; an unknown one has the order that all languages share.
    explicit IcuCollator(const QString& locale);
    ~IcuCollator() override;
    IcuCollator(const IcuCollator&) = delete;
    IcuCollator& operator=(const IcuCollator&) = delete;

    [[nodiscard]] QByteArray sortKey(const QString& text) const override;

private:
    struct Rules;
    std::unique_ptr<Rules> rules_;
};

} // namespace quillet
