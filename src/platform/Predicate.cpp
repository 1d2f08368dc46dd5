#include "platform/Predicate.h"

#include "platform/PredicateParser.h"

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

namespace quillet {

namespace {

bool matchesText(const Predicate::Comparison& comparison, QStringView text) {
    if (text.isNull() || comparison.value.typeId() != QMetaType::QString) {
        return false;
    }
    switch (comparison.operation) {
    case Predicate::Operation::Equal:
        return text == comparison.value.toString();
    case Predicate::Operation::Contains:
        return text.contains(comparison.value.toString());
    case Predicate::Operation::ContainsFolded:
        return comparison.folded.isIn(text);
    }
    return false;
}

bool matchesText(const Predicate::OneOf& oneOf, QStringView text) {
    return !text.isNull() &&
           std::binary_search(oneOf.values.begin(), oneOf.values.end(), text,
                              [](QStringView left, QStringView right) { return left < right; });
}

bool matchesValue(const Predicate::OneOf& oneOf, const QVariant& value) {
    return value.typeId() == QMetaType::QString && matchesText(oneOf, value.toString());
}

bool matchesValue(const Predicate::Comparison& comparison, const QVariant& value) {
    if (value.typeId() == QMetaType::QString ||
        comparison.operation != Predicate::Operation::Equal) {
        return matchesText(comparison, value.toString());
    }
    return value.isValid() && comparison.value.typeId() != QMetaType::QString &&
           value.toLongLong() == comparison.value.toLongLong();
}

/// `matchesOne` tells whether a comparison holds for the record.
template <typename MatchesOne>
bool matchesNode(const Predicate::Node& node, const MatchesOne& matchesOne) {
    const auto matches = [&](const Predicate::Node& inner) {
        return matchesNode(inner, matchesOne);
    };
    if (const auto* comparison = std::get_if<Predicate::Comparison>(&node.content)) {
        return matchesOne(*comparison);
    }
    if (const auto* oneOf = std::get_if<Predicate::OneOf>(&node.content)) {
        return matchesOne(*oneOf);
    }
    if (const auto* all = std::get_if<Predicate::All>(&node.content)) {
        return std::ranges::all_of(all->nodes, matches);
    }
    return std::ranges::any_of(std::get<Predicate::Any>(node.content).nodes, matches);
}

} // namespace

Predicate::Predicate(QString text, QStringList keys, std::shared_ptr<const Node> root)
    : text_(std::move(text))
    , keys_(std::move(keys))
    , root_(std::move(root)) {}

std::optional<Predicate> Predicate::parse(const QString& text) {
    PredicateParser parser(text);
    auto root = parser.parse();
    if (!root) {
        return std::nullopt;
    }
    return Predicate(text, parser.keys(), std::make_shared<const Node>(*std::move(root)));
}

bool Predicate::matches(const FieldReader& field) const {
    return matchesNode(*root_, [&](const auto& comparison) {
        return matchesValue(comparison, field(keys_[static_cast<qsizetype>(comparison.key)]));
    });
}

bool Predicate::matchesTexts(const TextReader& text) const {
    return matchesNode(*root_, [&](const auto& comparison) {
        return matchesText(comparison, text(comparison.key));
    });
}

} // namespace quillet
