#include "backends/scripts/Script.h"
#include "backends/scripts/ScriptTokens.h"

#include <optional>

namespace quillet {

namespace {

/// Deeper scripts are refused, so that none can exhaust the stack.
constexpr int deepestNesting = 32;

/// Recursive descent. After the first error every function returns without doing anything.
class Parser {
public:
    explicit Parser(std::vector<ScriptToken> tokens)
        : tokens_(std::move(tokens)) {}

    std::expected<std::vector<ScriptStatement>, QString> run() {
        std::vector<ScriptStatement> statements = takeStatements(0);
        if (error_.isEmpty() && position_ < tokens_.size()) {
            fail(QStringLiteral("an end without its beginning"));
        }
        if (!error_.isEmpty()) {
            return std::unexpected(error_);
        }
        return statements;
    }

private:
    using Kind = ScriptToken::Kind;

    void fail(const QString& what) {
        if (error_.isEmpty()) {
            error_ = QStringLiteral("line %1: %2").arg(line()).arg(what);
        }
    }
    [[nodiscard]] int line() const {
        const std::size_t last = tokens_.empty() ? 0 : tokens_.size() - 1;
        return tokens_.empty() ? 1 : tokens_[std::min(position_, last)].line;
    }

    [[nodiscard]] bool isNext(Kind kind, QStringView text) const {
        return error_.isEmpty() && position_ < tokens_.size() && tokens_[position_].kind == kind &&
               tokens_[position_].text == text;
    }
    [[nodiscard]] bool isNextWord(QStringView word) const { return isNext(Kind::Word, word); }

    bool takeIfWord(QStringView word) {
        const bool isTaken = isNextWord(word);
        position_ += isTaken ? 1 : 0;
        return isTaken;
    }
    bool takeIfSign(QStringView sign) {
        const bool isTaken = isNext(Kind::Sign, sign);
        position_ += isTaken ? 1 : 0;
        return isTaken;
    }
    void takeWords(std::initializer_list<QStringView> words) {
        for (const QStringView word : words) {
            if (!takeIfWord(word)) {
                fail(QStringLiteral("“%1” expected").arg(word));
            }
        }
    }
    void takeSign(QStringView sign) {
        if (!takeIfSign(sign)) {
            fail(QStringLiteral("“%1” expected").arg(sign));
        }
    }
    ScriptToken takeOf(Kind kind, const char* name) {
        if (error_.isEmpty() && position_ < tokens_.size() && tokens_[position_].kind == kind) {
            return std::move(tokens_[position_++]);
        }
        fail(QStringLiteral("%1 expected").arg(QLatin1StringView(name)));
        return {};
    }
    QString takeName() { return takeOf(Kind::Word, "a name").text; }
    QString takeText() { return takeOf(Kind::Text, "a text").text; }
    void takeLineEnd() { (void)takeOf(Kind::LineEnd, "the end of the line"); }

    /// Up to an "end" or the end of the script.
    std::vector<ScriptStatement> takeStatements(int nesting) {
        std::vector<ScriptStatement> statements;
        while (error_.isEmpty() && position_ < tokens_.size() && !isNextWord(u"end")) {
            const int startLine = line();
            auto content = takeStatement(nesting);
            takeLineEnd();
            statements.push_back({std::move(content), startLine});
        }
        return statements;
    }

    decltype(ScriptStatement::content) takeStatement(int nesting) {
        if (takeIfWord(u"tell")) {
            return takeTellBlock(nesting);
        }
        if (takeIfWord(u"set")) {
            return takeSetStatement();
        }
        if (takeIfWord(u"activate")) {
            return ActivateStatement();
        }
        if (takeIfWord(u"switch")) {
            takeWords({u"view", u"to"});
            SwitchViewStatement statement{takeName()};
            takeWords({u"view"});
            return statement;
        }
        if (takeIfWord(u"show")) {
            return ShowStatement{takeName()};
        }
        fail(QStringLiteral("a statement expected"));
        return ActivateStatement();
    }

    TellBlock takeTellBlock(int nesting) {
        TellBlock block;
        if (nesting == deepestNesting) {
            fail(QStringLiteral("nested too deeply"));
            return block;
        }
        if (takeIfWord(u"application")) {
            block.name = takeText();
        } else {
            block.target = TellBlock::Target::Variable;
            block.name = takeName();
        }
        takeLineEnd();
        block.statements = takeStatements(nesting + 1);
        takeWords({u"end", u"tell"});
        return block;
    }

    SetStatement takeSetStatement() {
        SetStatement statement;
        do {
            statement.names.append(takeName());
        } while (takeIfWord(u"of"));
        takeWords({u"to"});
        int parentheses = 0;
        while (takeIfSign(u"(")) {
            ++parentheses;
        }
        statement.value = takeValue();
        while (parentheses-- > 0) {
            takeSign(u")");
        }
        return statement;
    }

    ScriptValue takeValue() {
        if (takeIfWord(u"true")) {
            return true;
        }
        if (takeIfWord(u"false")) {
            return false;
        }
        if (takeIfWord(u"make")) {
            takeWords({u"new", u"outgoing", u"message"});
            return MakeNew{QStringLiteral("outgoing message")};
        }
        if (takeIfWord(u"first")) {
            FirstWhoseUid value{takeName(), {}};
            takeWords({u"whose", u"uid", u"is"});
            value.uid = takeText();
            return value;
        }
        if (takeIfSign(u"{")) {
            return takeNumbers();
        }
        if (position_ < tokens_.size() && tokens_[position_].kind == Kind::Number) {
            return tokens_[position_++].number;
        }
        return takeText();
    }

    /// Behind the opening brace.
    std::vector<double> takeNumbers() {
        std::vector<double> numbers;
        do {
            numbers.push_back(takeOf(Kind::Number, "a number").number);
        } while (takeIfSign(u","));
        takeSign(u"}");
        return numbers;
    }

    std::vector<ScriptToken> tokens_;
    std::size_t position_ = 0;
    QString error_;
};

} // namespace

std::expected<std::vector<ScriptStatement>, QString> parsedScript(const QString& source) {
    auto tokens = scriptTokens(source);
    if (!tokens) {
        return std::unexpected(tokens.error());
    }
    return Parser(*std::move(tokens)).run();
}

} // namespace quillet
