#pragma once

#include "platform/CasePattern.h"

namespace quillet {

/// A text that is looked for in others as if both were folded by caseFolded(). Only those of the
/// others are copied and folded that cannot be compared as they stand, so that many can be
/// searched.
class CaseFoldedText {
public:
    CaseFoldedText() = default;
    explicit CaseFoldedText(const QString& text);

    /// Whether the other text holds this one. The empty text is in every text.
    [[nodiscard]] bool isIn(QStringView text) const;

private:
    [[nodiscard]] bool isInFolded(QStringView text) const;

    QString folded_;
    CasePattern asItStands_;
    /// The ways in which texts write it with "ß"; incomplete when there are too many.
    std::vector<CasePattern> withSharpS_;
    bool isWithSharpSComplete_ = true;
    /// A piece that also texts hold which write marks behind their letters.
    CasePattern piece_;
};

} // namespace quillet
