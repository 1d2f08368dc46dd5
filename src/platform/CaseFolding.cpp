#include "platform/CaseFolding.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace quillet {

namespace {

constexpr QChar sharpS = u'ß';
constexpr QChar capitalSharpS = u'ẞ';
constexpr std::size_t unitCount = 0x10000;
using Flag = std::uint8_t;

constexpr Flag flagOf(FoldingNeeds needs) {
    return static_cast<Flag>(needs);
}

/// Half open.
struct UnitRange {
    std::uint32_t first;
    std::uint32_t end;
};

/// Units of characters that fold to one character each, and that stand composed whatever stands
/// beside them: what most texts consist of. Of pairs, those of CJK and pictures.
constexpr auto plainRanges = std::to_array<UnitRange>({
    {0x0000, 0x00DF}, {0x00E0, 0x0130}, {0x0131, 0x0149}, {0x014A, 0x01F0}, {0x01F1, 0x0300},
    {0x0388, 0x0390}, {0x0391, 0x03B0}, {0x03B1, 0x0400}, {0x0400, 0x0483}, {0x048A, 0x0530},
    {0x0531, 0x0587}, {0x05D0, 0x05EB}, {0x0620, 0x064B}, {0x1E00, 0x1E96}, {0x1EA0, 0x1F00},
    {0x2002, 0x20D0}, {0x2100, 0x2126}, {0x2150, 0x2300}, {0x2460, 0x27C0}, {0x3000, 0x302A},
    {0x3030, 0x3099}, {0x309B, 0xA000}, {0xAC00, 0xD7A4}, {0xD83C, 0xD87E}, {0xDC00, 0xE000},
    {0xFE00, 0xFE10}, {0xFF01, 0xFFF0},
});
constexpr UnitRange latinMarks{0x0300, 0x0370};

std::array<Flag, unitCount> unitFlags() {
    std::array<Flag, unitCount> flags{};
    flags.fill(flagOf(FoldingNeeds::Whole));
    for (const auto& [first, end] : plainRanges) {
        std::fill(flags.begin() + first, flags.begin() + end, flagOf(FoldingNeeds::None));
    }
    std::fill(flags.begin() + latinMarks.first, flags.begin() + latinMarks.end,
              flagOf(FoldingNeeds::Marks));
    flags[sharpS.unicode()] = flagOf(FoldingNeeds::SharpS);
    return flags;
}

bool isAscii(QStringView text) {
    // Compilers make this look at many units at a time, as long as it stays this plain.
    std::uint16_t bits = 0;
    for (const QChar unit : text) {
        bits = static_cast<std::uint16_t>(bits | unit.unicode());
    }
    return bits < 0x80;
}

/// One character, or half a pair, which stands for itself.
void appendFolded(QString& folded, QString character) {
    character.replace(capitalSharpS, sharpS);
    // A character that folds to several is, but for the capital "ẞ", one of several capitals.
    const QString capitals = character.toUpper();
    folded += (capitals.size() > character.size() ? capitals : character).toCaseFolded();
}

} // namespace

QString caseFolded(const QString& text) {
    if (isAscii(text)) {
        return text.toCaseFolded();
    }
    QString folded;
    folded.reserve(text.size());
    const QString decomposed = text.normalized(QString::NormalizationForm_D);
    for (qsizetype position = 0; position < decomposed.size(); ++position) {
        const QChar unit = decomposed.at(position);
        if (unit < QChar(0x80)) {
            folded += unit.toCaseFolded();
        } else {
            const bool isPair = unit.isHighSurrogate() && position + 1 < decomposed.size() &&
                                decomposed.at(position + 1).isLowSurrogate();
            appendFolded(folded, decomposed.mid(position, isPair ? 2 : 1));
            position += isPair ? 1 : 0;
        }
    }
    return folded.normalized(QString::NormalizationForm_C);
}

FoldingNeeds foldingNeeds(QStringView text) {
    if (isAscii(text)) {
        return FoldingNeeds::None;
    }
    static const std::array<Flag, unitCount> flags = unitFlags();
    Flag found = 0;
    for (const QChar unit : text) {
        found = static_cast<Flag>(found | flags[unit.unicode()]);
    }
    return static_cast<FoldingNeeds>(found);
}

} // namespace quillet
