#include "platform/PredicateParser.h"

#include <algorithm>
#include <map>
#include <utility>

namespace quillet {

namespace {

/// Parentheses nested deeper than any sensible condition are refused before they exhaust the stack.
constexpr int deepestNesting = 200;

bool isWordCharacter(QChar character) {
    return character.isLetterOrNumber() || character == u'_' || character == u'.';
}

/// Whether it asks for equality with a text.
const Predicate::Comparison* textEquality(const Predicate::Node& node) {
    const auto* comparison = std::get_if<Predicate::Comparison>(&node.content);
    return comparison != nullptr && comparison->operation == Predicate::Operation::Equal &&
                   comparison->value.typeId() == QMetaType::QString
               ? comparison
               : nullptr;
}

/// Makes one term of all that compare a key with texts.
void gatherTexts(Predicate::Any& any) {
    std::map<std::size_t, Predicate::OneOf> byKey;
    std::erase_if(any.nodes, [&](const Predicate::Node& node) {
        const auto* comparison = textEquality(node);
        if (comparison != nullptr) {
            auto& gathered = byKey.try_emplace(comparison->key).first->second;
            gathered.key = comparison->key;
            gathered.values.push_back(comparison->value.toString());
        }
        return comparison != nullptr;
    });
    for (auto& [key, gathered] : byKey) {
        std::ranges::sort(gathered.values);
        any.nodes.push_back({std::move(gathered)});
    }
}

} // namespace

std::optional<Predicate::Node> PredicateParser::parse() {
    auto root = condition(0);
    skipBlanks();
    return rest_.isEmpty() ? std::move(root) : std::nullopt;
}

PredicateParser::Node PredicateParser::condition(int depth) {
    auto first = conjunction(depth);
    if (!first) {
        return std::nullopt;
    }
    Predicate::Any any;
    any.nodes.push_back(*std::move(first));
    while (skipWord(u"OR")) {
        auto next = conjunction(depth);
        if (!next) {
            return std::nullopt;
        }
        any.nodes.push_back(*std::move(next));
    }
    if (any.nodes.size() == 1) {
        return std::move(any.nodes.front());
    }
    gatherTexts(any);
    return Predicate::Node{std::move(any)};
}

PredicateParser::Node PredicateParser::conjunction(int depth) {
    auto first = term(depth);
    if (!first) {
        return std::nullopt;
    }
    Predicate::All all;
    all.nodes.push_back(*std::move(first));
    while (skipWord(u"AND")) {
        auto next = term(depth);
        if (!next) {
            return std::nullopt;
        }
        all.nodes.push_back(*std::move(next));
    }
    return all.nodes.size() == 1 ? std::move(all.nodes.front()) : Predicate::Node{std::move(all)};
}

PredicateParser::Node PredicateParser::term(int depth) {
    if (!skip(u"(")) {
        return comparison();
    }
    if (depth >= deepestNesting) {
        return std::nullopt;
    }
    auto inner = condition(depth + 1);
    return inner && skip(u")") ? std::move(inner) : std::nullopt;
}

PredicateParser::Node PredicateParser::comparison() {
    const QString key = word();
    const auto found = key.isEmpty() ? std::nullopt : operation();
    if (!found) {
        return std::nullopt;
    }
    QVariant operand = value();
    if (!operand.isValid()) {
        return std::nullopt;
    }
    if (*found != Predicate::Operation::Equal && operand.typeId() != QMetaType::QString) {
        return std::nullopt;
    }
    CaseFoldedText folded;
    if (*found == Predicate::Operation::ContainsFolded) {
        folded = CaseFoldedText(operand.toString());
    }
    return Predicate::Node{Predicate::Comparison{positionOf(key), *found, operand, folded}};
}

std::size_t PredicateParser::positionOf(const QString& key) {
    if (!keys_.contains(key)) {
        keys_ << key;
    }
    return static_cast<std::size_t>(keys_.indexOf(key));
}

std::optional<Predicate::Operation> PredicateParser::operation() {
    if (skip(u"==") || skip(u"=")) {
        return Predicate::Operation::Equal;
    }
    if (!skipWord(u"contains")) {
        return std::nullopt;
    }
    return skip(u"[c]") || skip(u"[C]") ? Predicate::Operation::ContainsFolded
                                        : Predicate::Operation::Contains;
}

QVariant PredicateParser::value() {
    skipBlanks();
    if (rest_.startsWith(u'"')) {
        return quotedText();
    }
    const QString text = word();
    if (text.compare(u"YES", Qt::CaseInsensitive) == 0) {
        return true;
    }
    if (text.compare(u"NO", Qt::CaseInsensitive) == 0) {
        return false;
    }
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    return isNumber ? QVariant(number) : QVariant();
}

QVariant PredicateParser::quotedText() {
    // Not null even when nothing stands between the quotes: the empty text is a value.
    QString text = QLatin1String("");
    for (qsizetype position = 1; position < rest_.size(); ++position) {
        if (rest_[position] == u'"') {
            rest_ = rest_.sliced(position + 1);
            return text;
        }
        if (rest_[position] == u'\\') {
            ++position;
        }
        if (position == rest_.size()) {
            break;
        }
        text.append(rest_[position]);
    }
    return {};
}

QString PredicateParser::word() {
    skipBlanks();
    qsizetype length = 0;
    while (length < rest_.size() && isWordCharacter(rest_[length])) {
        ++length;
    }
    const QString text = rest_.first(length).toString();
    rest_ = rest_.sliced(length);
    return text;
}

bool PredicateParser::skip(QStringView token) {
    skipBlanks();
    if (!rest_.startsWith(token)) {
        return false;
    }
    rest_ = rest_.sliced(token.size());
    return true;
}

bool PredicateParser::skipWord(QStringView keyword) {
    const QStringView before = rest_;
    if (word().compare(keyword, Qt::CaseInsensitive) == 0) {
        return true;
    }
    rest_ = before;
    return false;
}

void PredicateParser::skipBlanks() {
    rest_ = rest_.trimmed();
}

} // namespace quillet
