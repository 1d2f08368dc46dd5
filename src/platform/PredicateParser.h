#pragma once

#include "platform/Predicate.h"

#include <QString>
#include <QVariant>

#include <optional>
#include <variant>
#include <vector>

namespace quillet {

enum class Predicate::Operation { Equal, Contains, ContainsFolded };

struct Predicate::Comparison {
    QString key;
    Operation operation;
    /// A text (already folded for ContainsFolded), a bool or a whole number.
    QVariant value;
};

struct Predicate::All {
    std::vector<Node> nodes;
};

struct Predicate::Any {
    std::vector<Node> nodes;
};

struct Predicate::Node {
    std::variant<Comparison, All, Any> content;
};

/// A recursive-descent parser for the grammar in Predicate.h. For platform/ alone.
class PredicateParser {
public:
    explicit PredicateParser(QStringView text)
        : rest_(text) {}

    /// The whole text as a condition, or nothing.
    [[nodiscard]] std::optional<Predicate::Node> parse();

private:
    using Node = std::optional<Predicate::Node>;

    Node condition(int depth);
    Node conjunction(int depth);
    Node term(int depth);
    Node comparison();
    std::optional<Predicate::Operation> operation();
    QVariant value();
    QVariant quotedText();
    QString word();
    bool skip(QStringView token);
    bool skipWord(QStringView keyword);
    void skipBlanks();

    QStringView rest_;
};

} // namespace quillet
