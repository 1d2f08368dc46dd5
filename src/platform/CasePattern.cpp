#include "platform/CasePattern.h"

#include <QHash>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <numeric>
#include <ranges>
#include <string_view>

namespace quillet {

namespace {

/// The characters that fold to each character that is not alone in that.
using Variants = QHash<char32_t, std::vector<char32_t>>;

const Variants& variants() {
    static const Variants found = [] {
        Variants result;
        for (char32_t code = 0; code <= QChar::LastValidCodePoint; ++code) {
            if (const char32_t folded = QChar::toCaseFolded(code); folded != code) {
                std::vector<char32_t>& codes = result[folded];
                if (codes.empty()) {
                    codes.push_back(folded);
                }
                codes.push_back(code);
            }
        }
        return result;
    }();
    return found;
}

std::vector<char32_t> variantsOf(char32_t code) {
    const char32_t folded = QChar::toCaseFolded(code);
    const auto found = variants().constFind(folded);
    return found == variants().cend() ? std::vector{folded} : *found;
}

/// Half a pair stands for itself.
char32_t codeAt(const QString& text, qsizetype position) {
    const QChar unit = text.at(position);
    const QChar next = position + 1 < text.size() ? text.at(position + 1) : QChar();
    return unit.isHighSurrogate() && next.isLowSurrogate() ? QChar::surrogateToUcs4(unit, next)
                                                           : unit.unicode();
}

/// How often a character stands in texts: the higher, the more often. Only the order counts, and
/// that of languages in Latin letters will do: a wrong guess costs time, nothing else.
std::ptrdiff_t commonnessOf(char16_t unit) {
    constexpr std::u16string_view fromRareToCommon = u"qxjzkvbywgpfmucldhrsinoaet ";
    return static_cast<std::ptrdiff_t>(fromRareToCommon.find(unit) + 1);
}

} // namespace

CasePattern::CasePattern(const QString& text) {
    for (qsizetype position = 0; position < text.size(); ++position) {
        const char32_t code = codeAt(text, position);
        const std::vector<char32_t> codes = variantsOf(code);
        std::vector<char16_t> units;
        if (QChar::requiresSurrogates(code)) {
            ++position;
            // The variants of such a character differ in their second units only.
            units_.push_back(unitOf({QChar::highSurrogate(code)}));
            std::ranges::transform(codes, std::back_inserter(units), QChar::lowSurrogate);
        } else {
            std::ranges::transform(codes, std::back_inserter(units),
                                   [](char32_t variant) { return static_cast<char16_t>(variant); });
        }
        units_.push_back(unitOf(units));
    }
    chooseProbes();
}

CasePattern::Unit CasePattern::unitOf(const std::vector<char16_t>& variants) {
    Unit unit;
    for (std::size_t index = 0; index < unit.size(); ++index) {
        unit[index] = variants[std::min(index, variants.size() - 1)];
    }
    return unit;
}

void CasePattern::chooseProbes() {
    if (units_.empty()) {
        return;
    }
    std::vector<std::size_t> positions(units_.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    const auto hasTwoVariants = [this](std::size_t position) {
        return units_[position][1] == units_[position].back();
    };
    isProbingTwoVariants_ = std::ranges::any_of(positions, hasTwoVariants);
    if (isProbingTwoVariants_) {
        std::erase_if(positions, std::not_fn(hasTwoVariants));
    }
    const auto commonness = [this](std::size_t position) {
        return commonnessOf(units_[position].front());
    };
    const auto rarest = std::ranges::min_element(positions, {}, commonness);
    firstProbe_ = *rarest;
    if (positions.size() > 1) {
        positions.erase(rarest);
    }
    secondProbe_ = *std::ranges::min_element(positions | std::views::reverse, {}, commonness);
}

bool CasePattern::isIn(QStringView text) const {
    const std::ptrdiff_t places = text.size() - static_cast<std::ptrdiff_t>(units_.size()) + 1;
    if (units_.empty() || places <= 0) {
        return units_.empty();
    }
    return isProbingTwoVariants_ ? isAtAnyOf<2>(text.utf16(), places)
                                 : isAtAnyOf<mostVariants>(text.utf16(), places);
}

template <std::size_t variants>
bool CasePattern::isAtAnyOf(const char16_t* first, std::ptrdiff_t count) const {
    // Compilers make this look at many units at a time, as long as it stays this plain.
    const auto isOneOf = [](char16_t unit, const Unit& wanted) {
        std::uint16_t found = 0;
        for (std::size_t index = 0; index < variants; ++index) {
            found = static_cast<std::uint16_t>(found | std::uint16_t{unit == wanted[index]});
        }
        return found;
    };
    const Unit firstWanted = units_[firstProbe_];
    const Unit secondWanted = units_[secondProbe_];
    constexpr std::ptrdiff_t blockSize = 16;
    std::ptrdiff_t done = 0;
    while (count - done >= blockSize) {
        const char16_t* firstProbe = first + done + firstProbe_;
        const char16_t* secondProbe = first + done + secondProbe_;
        std::uint16_t found = 0;
        for (std::ptrdiff_t index = 0; index < blockSize; ++index) {
            found = static_cast<std::uint16_t>(found | (isOneOf(firstProbe[index], firstWanted) &
                                                        isOneOf(secondProbe[index], secondWanted)));
        }
        if (found != 0 && standsAmong(first + done, blockSize)) {
            return true;
        }
        // The last block overlaps the one before rather than leaving a rest.
        done = count - done < 2 * blockSize && count - done > blockSize ? count - blockSize
                                                                        : done + blockSize;
    }
    return standsAmong(first + done, count - done);
}

bool CasePattern::standsAmong(const char16_t* first, std::ptrdiff_t count) const {
    for (std::ptrdiff_t place = 0; place < count; ++place) {
        if (standsAt(first + place)) {
            return true;
        }
    }
    return false;
}

bool CasePattern::standsAt(const char16_t* place) const {
    return std::ranges::all_of(units_, [&place](const Unit& wanted) {
        const char16_t unit = *place++;
        return unit == wanted[0] || unit == wanted[1] || unit == wanted[2] || unit == wanted[3];
    });
}

} // namespace quillet
