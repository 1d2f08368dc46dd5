#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

namespace quillet {

/// A parsed condition on records whose fields are read by key.
///
/// Grammar (keywords in any case; AND binds tighter than OR; parentheses group):
///     condition  := conjunction { OR conjunction }
///     conjunction:= term { AND term }
///     term       := '(' condition ')' | key operator value
///     operator   := '==' | '=' | 'contains[c]' | 'contains'
///     value      := '"' text '"' | YES | NO | whole number
/// Between double quotes, backslash escapes the character behind it. `[c]` compares by Unicode case
/// folding. A field that is missing (an invalid QVariant or a null text) matches nothing.
class Predicate {
public:
    /// Reads a record's field; an invalid QVariant when it has none of that name.
    using FieldReader = std::function<QVariant(const QString& key)>;
    /// Reads a record's text where it lies, by the key's position in keys(); a null view when the
    /// record has none.
    using TextReader = std::function<QStringView(std::size_t key)>;

    /// The parsed form; see PredicateParser.h.
    struct Node;
    struct Comparison;
    struct OneOf;
    struct All;
    struct Any;
    enum class Operation;

    /// The condition, or nothing when the text does not parse.
    [[nodiscard]] static std::optional<Predicate> parse(const QString& text);

    [[nodiscard]] bool matches(const FieldReader& field) const;
    /// The same for records all of whose fields are texts, at a fraction of the cost.
    [[nodiscard]] bool matchesTexts(const TextReader& text) const;
    /// The keys that the condition reads, each once.
    [[nodiscard]] const QStringList& keys() const { return keys_; }
    /// The text that was parsed.
    [[nodiscard]] const QString& text() const { return text_; }

    /// Equal texts make equal predicates.
    friend bool operator==(const Predicate& left, const Predicate& right) {
        return left.text_ == right.text_;
    }

private:
    Predicate(QString text, QStringList keys, std::shared_ptr<const Node> root);

    QString text_;
    QStringList keys_;
    std::shared_ptr<const Node> root_;
};

} // namespace quillet
