#include "eventtable/TextRanks.h"

#include <algorithm>

namespace quillet {

namespace {

/// Texts of a list that is not shown any more are forgotten beyond this many.
constexpr std::size_t mostUnusedTexts = 50'000;

} // namespace

std::vector<std::uint32_t> TextRanks::ranksOf(const std::vector<const QString*>& texts) {
    std::vector<std::uint32_t> ranks;
    ranks.reserve(texts.size());
    for (const QString* text : texts) {
        const auto found = known_.find(*text);
        if (found == known_.end()) {
            learn(texts);
            return ranksOf(texts);
        }
        ranks.push_back(found->second.rank);
    }
    return ranks;
}

void TextRanks::learn(const std::vector<const QString*>& texts) {
    if (known_.size() > texts.size() + mostUnusedTexts) {
        known_.clear();
    }
    for (const QString* text : texts) {
        if (const auto [known, isNew] = known_.try_emplace(*text); isNew) {
            known->second.sortKey = collator_.sortKey(*text);
        }
    }
    rankAll();
}

void TextRanks::rankAll() {
    std::vector<Known*> order;
    order.reserve(known_.size());
    for (auto& [text, known] : known_) {
        order.push_back(&known);
    }
    std::ranges::sort(order, {}, [](const Known* known) { return QByteArrayView(known->sortKey); });
    std::uint32_t rank = 0;
    for (std::size_t index = 0; index < order.size(); ++index) {
        if (index > 0 && order[index]->sortKey != order[index - 1]->sortKey) {
            ++rank;
        }
        order[index]->rank = rank;
    }
}

} // namespace quillet
