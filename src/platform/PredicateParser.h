#pragma once

#include "platform/CaseFoldedText.h"
#include "platform/Predicate.h"

#include <QString>
#include <QVariant>

#include <optional>
#include <variant>
#include <vector>

namespace quillet {

enum class Predicate::Operation { Equal, Contains, ContainsFolded };

struct Predicate::Comparison {
    /// The position among the keys that were met.
    std::size_t key;
    Operation operation;
    /// A text, a bool or a whole number.
    QVariant value;
    /// The text, for ContainsFolded.
    CaseFoldedText folded;
};

struct Predicate::All {
    std::vector<Node> nodes;
};

struct Predicate::Any {
    std::vector<Node> nodes;
};

/// Whether a text equals one of many, in one step: a condition may name thousands of calendars.
struct Predicate::OneOf {
    /// The position among the keys that were met.
    std::size_t key;
    /// Sorted.
    std::vector<QString> values;
};

struct Predicate::Node {
    std::variant<Comparison, OneOf, All, Any> content;
};

/// A recursive-descent parser for the grammar in Predicate.h. For platform/ alone.
class PredicateParser {
public:
    explicit PredicateParser(QStringView text)
        : rest_(text) {}

    /// The whole text as a condition, or nothing.
    [[nodiscard]] std::optional<Predicate::Node> parse();
    /// The keys that were met, each once.
    [[nodiscard]] const QStringList& keys() const { return keys_; }

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

    [[nodiscard]] std::size_t positionOf(const QString& key);

    QStringView rest_;
    QStringList keys_;
};

} // namespace quillet
