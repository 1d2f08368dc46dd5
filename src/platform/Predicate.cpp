#include "platform/Predicate.h"

#include "platform/PredicateParser.h"

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

namespace quillet {

namespace {

bool isMissing(const QVariant& value) {
    return !value.isValid() || (value.typeId() == QMetaType::QString && value.toString().isNull());
}

bool matchesComparison(const Predicate::Comparison& comparison, const QVariant& value) {
    if (isMissing(value)) {
        return false;
    }
    switch (comparison.operation) {
    case Predicate::Operation::Equal:
        return comparison.value.typeId() == QMetaType::QString
                   ? value.typeId() == QMetaType::QString &&
                         value.toString() == comparison.value.toString()
                   : value.typeId() != QMetaType::QString &&
                         value.toLongLong() == comparison.value.toLongLong();
    case Predicate::Operation::Contains:
        return value.toString().contains(comparison.value.toString());
    case Predicate::Operation::ContainsFolded:
        return value.toString().toCaseFolded().contains(comparison.value.toString());
    }
    return false;
}

bool matchesNode(const Predicate::Node& node, const Predicate::FieldReader& field);

bool matchesAll(const std::vector<Predicate::Node>& nodes, const Predicate::FieldReader& field) {
    return std::ranges::all_of(nodes, [&](const auto& node) { return matchesNode(node, field); });
}

bool matchesAny(const std::vector<Predicate::Node>& nodes, const Predicate::FieldReader& field) {
    return std::ranges::any_of(nodes, [&](const auto& node) { return matchesNode(node, field); });
}

bool matchesNode(const Predicate::Node& node, const Predicate::FieldReader& field) {
    if (const auto* comparison = std::get_if<Predicate::Comparison>(&node.content)) {
        return matchesComparison(*comparison, field(comparison->key));
    }
    if (const auto* all = std::get_if<Predicate::All>(&node.content)) {
        return matchesAll(all->nodes, field);
    }
    return matchesAny(std::get<Predicate::Any>(node.content).nodes, field);
}

} // namespace

Predicate::Predicate(QString text, std::shared_ptr<const Node> root)
    : text_(std::move(text))
    , root_(std::move(root)) {}

std::optional<Predicate> Predicate::parse(const QString& text) {
    auto root = PredicateParser(text).parse();
    if (!root) {
        return std::nullopt;
    }
    return Predicate(text, std::make_shared<const Node>(*std::move(root)));
}

bool Predicate::matches(const FieldReader& field) const {
    return matchesNode(*root_, field);
}

} // namespace quillet
