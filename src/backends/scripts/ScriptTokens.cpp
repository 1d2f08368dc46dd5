#include "backends/scripts/ScriptTokens.h"

namespace quillet {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool isLetter(QChar character) {
    const QChar lower = character.toLower();
    return (lower >= u'a' && lower <= u'z') || character == u'_';
}

class Tokenizer {
public:
    explicit Tokenizer(QStringView source)
        : source_(source) {}

    std::expected<std::vector<ScriptToken>, QString> run() {
        while (position_ < source_.size()) {
            const QChar character = source_[position_];
            if (character == u' ' || character == u'\t') {
                ++position_;
            } else if (character == u'\n' || character == u'\r') {
                endLine();
                ++position_;
            } else if (character == u'"') {
                if (!takeText()) {
                    return wrong(QStringLiteral("a text that does not end"));
                }
            } else if (isLetter(character)) {
                takeWord();
            } else if (isDigit(character) || character == u'-') {
                if (!takeNumber()) {
                    return wrong(QStringLiteral("not a number"));
                }
            } else if (QStringView(u"(){},").contains(character)) {
                add(ScriptToken::Kind::Sign, source_.sliced(position_++, 1).toString());
            } else {
                return wrong(QStringLiteral("an unexpected character, U+%1")
                                 .arg(character.unicode(), 4, 16, QLatin1Char('0')));
            }
        }
        endLine();
        return std::move(tokens_);
    }

private:
    [[nodiscard]] std::unexpected<QString> wrong(const QString& what) const {
        return std::unexpected(QStringLiteral("line %1: %2").arg(line_).arg(what));
    }

    void add(ScriptToken::Kind kind, QString text, double number = 0) {
        tokens_.push_back({kind, std::move(text), number, line_});
    }

    void endLine() {
        if (!tokens_.empty() && tokens_.back().kind != ScriptToken::Kind::LineEnd) {
            add(ScriptToken::Kind::LineEnd, {});
        }
        if (position_ < source_.size() && source_[position_] == u'\n') {
            ++line_;
        }
    }

    void takeWord() {
        const qsizetype start = position_;
        while (position_ < source_.size() &&
               (isLetter(source_[position_]) || isDigit(source_[position_]))) {
            ++position_;
        }
        add(ScriptToken::Kind::Word, source_.sliced(start, position_ - start).toString());
    }

    bool takeNumber() {
        const qsizetype start = position_++;
        while (position_ < source_.size() &&
               (isDigit(source_[position_]) || source_[position_] == u'.')) {
            ++position_;
        }
        bool isNumber = false;
        const double number =
            source_.sliced(start, position_ - start).toLatin1().toDouble(&isNumber);
        add(ScriptToken::Kind::Number, {}, number);
        return isNumber;
    }

    /// False when the source ends first.
    bool takeText() {
        QString text;
        int lineBreaks = 0;
        qsizetype plainStart = ++position_;
        const auto takePlain = [&] { text += source_.sliced(plainStart, position_ - plainStart); };
        for (; position_ < source_.size(); ++position_) {
            const QChar character = source_[position_];
            if (character == u'"') {
                takePlain();
                ++position_;
                add(ScriptToken::Kind::Text, std::move(text));
                line_ += lineBreaks;
                return true;
            }
            if (character == u'\n') {
                ++lineBreaks;
            }
            const bool isEscape =
                character == u'\\' && position_ + 1 < source_.size() &&
                (source_[position_ + 1] == u'"' || source_[position_ + 1] == u'\\');
            if (isEscape) {
                takePlain();
                plainStart = ++position_;
            }
        }
        return false;
    }

    QStringView source_;
    qsizetype position_ = 0;
    int line_ = 1;
    std::vector<ScriptToken> tokens_;
};

} // namespace

std::expected<std::vector<ScriptToken>, QString> scriptTokens(QStringView source) {
    return Tokenizer(source).run();
}

} // namespace quillet
