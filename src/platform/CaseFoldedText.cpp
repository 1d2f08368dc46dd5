#include "platform/CaseFoldedText.h"

#include "platform/CaseFolding.h"

#include <QStringList>

#include <algorithm>

namespace quillet {

namespace {

constexpr qsizetype mostSpellings = 16;

/// The ways to write a folded text with "ß" for "ss", where a "ß" at either end may stand for one
/// "s" that is wanted and one that is not; the way without any comes last. Stops when there are
/// more than `mostSpellings`.
class SharpSSpellings {
public:
    explicit SharpSSpellings(const QString& folded)
        : folded_(folded) {
        if (folded.startsWith(u's')) {
            extend(QStringLiteral("ß"), 1);
        }
        extend({}, 0);
    }
    [[nodiscard]] const QStringList& all() const { return all_; }

private:
    void extend(const QString& written, qsizetype position) {
        const qsizetype next = folded_.indexOf(u's', position);
        if (all_.size() > mostSpellings) {
            return;
        }
        if (next < 0) {
            all_ << written + folded_.mid(position);
            return;
        }
        const QString before = written + folded_.mid(position, next - position);
        const bool isLast = next + 1 == folded_.size();
        if (isLast || folded_.at(next + 1) == u's') {
            extend(before + u'ß', next + (isLast ? 1 : 2));
        }
        extend(before + u's', next + 1);
    }

    const QString& folded_;
    QStringList all_;
};

/// The longest piece of characters that neither marks nor a "ß" can be part of.
QString sturdyPiece(const QString& folded) {
    QString longest;
    QString piece;
    for (const QChar unit : folded) {
        piece = unit < QChar(0x80) && unit != u's' ? piece + unit : QString();
        if (piece.size() > longest.size()) {
            longest = piece;
        }
    }
    return longest;
}

} // namespace

CaseFoldedText::CaseFoldedText(const QString& text)
    : folded_(caseFolded(text))
    , asItStands_(folded_)
    , piece_(sturdyPiece(folded_)) {
    QStringList spellings = SharpSSpellings(folded_).all();
    isWithSharpSComplete_ = spellings.size() <= mostSpellings;
    spellings.removeAll(folded_);
    std::ranges::transform(spellings, std::back_inserter(withSharpS_),
                           [](const QString& spelling) { return CasePattern(spelling); });
}

bool CaseFoldedText::isIn(QStringView text) const {
    const FoldingNeeds needs = foldingNeeds(text);
    if (has(needs, FoldingNeeds::Whole)) {
        return isInFolded(text);
    }
    if (has(needs, FoldingNeeds::Marks)) {
        return piece_.isIn(text) && isInFolded(text);
    }
    if (asItStands_.isIn(text)) {
        return true;
    }
    if (!has(needs, FoldingNeeds::SharpS)) {
        return false;
    }
    return std::ranges::any_of(withSharpS_,
                               [&](const auto& spelling) { return spelling.isIn(text); }) ||
           (!isWithSharpSComplete_ && isInFolded(text));
}

bool CaseFoldedText::isInFolded(QStringView text) const {
    return caseFolded(text.toString()).contains(folded_);
}

} // namespace quillet
