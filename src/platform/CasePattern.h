#pragma once

#include <QString>

#include <array>
#include <vector>

namespace quillet {

/// A text that is looked for in others in any case of its characters, each of which stands for one
/// character alone. The others are neither copied nor folded, so that many can be searched.
class CasePattern {
public:
    CasePattern() = default;
    explicit CasePattern(const QString& text);

    /// Whether the other text holds this one. The empty text is in every text.
    [[nodiscard]] bool isIn(QStringView text) const;

private:
    static constexpr std::size_t mostVariants = 4;
    /// The UTF-16 units that count as one unit of the text; the last is repeated to fill.
    using Unit = std::array<char16_t, mostVariants>;

    [[nodiscard]] static Unit unitOf(const std::vector<char16_t>& variants);
    void chooseProbes();
    [[nodiscard]] bool standsAt(const char16_t* place) const;
    [[nodiscard]] bool standsAmong(const char16_t* first, std::ptrdiff_t count) const;
    template <std::size_t variants>
    [[nodiscard]] bool isAtAnyOf(const char16_t* first, std::ptrdiff_t count) const;

    std::vector<Unit> units_;
    /// The positions of two units that are looked at first: of few variants, of characters that
    /// stand in few texts, and of equals the ones farthest apart.
    std::size_t firstProbe_ = 0;
    std::size_t secondProbe_ = 0;
    bool isProbingTwoVariants_ = false;
};

} // namespace quillet
