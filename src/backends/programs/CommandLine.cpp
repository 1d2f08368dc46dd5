#include "backends/programs/DesktopEntries.h"

namespace quillet {

namespace {

/// Takes an entry's command apart and puts the addresses in.
class Command {
public:
    Command(const DesktopEntry& entry, const QStringList& addresses)
        : entry_(entry)
        , addresses_(addresses) {}

    std::optional<QStringList> run() {
        for (; position_ < entry_.exec.size(); ++position_) {
            const QChar character = entry_.exec[position_];
            if (character == u'"') {
                if (!takeQuoted()) {
                    return std::nullopt;
                }
            } else if (character == u' ') {
                endArgument();
            } else if (character == u'%') {
                takeFieldCode();
            } else {
                isWithinArgument_ = true;
                argument_ += character;
            }
        }
        endArgument();
        if (isMalformed_ || arguments_.isEmpty() || arguments_.front().isEmpty()) {
            return std::nullopt;
        }
        if (!hasAddress_ && !addresses_.isEmpty()) {
            arguments_.append(addresses_.back());
        }
        return arguments_;
    }

private:
    void endArgument() {
        if (isWithinArgument_) {
            arguments_.append(argument_);
        }
        argument_.clear();
        isWithinArgument_ = false;
    }

    /// False when the quotes do not end.
    bool takeQuoted() {
        isWithinArgument_ = true;
        for (++position_; position_ < entry_.exec.size(); ++position_) {
            const QChar character = entry_.exec[position_];
            if (character == u'"') {
                return true;
            }
            const bool isEscape = character == u'\\' && position_ + 1 < entry_.exec.size() &&
                                  QStringView(u"\"`$\\").contains(entry_.exec[position_ + 1]);
            if (character == u'%') {
                takeFieldCode();
            } else {
                position_ += isEscape ? 1 : 0;
                argument_ += entry_.exec[position_];
            }
        }
        return false;
    }

    void takeFieldCode() {
        const QChar code = position_ + 1 < entry_.exec.size() ? entry_.exec[++position_] : QChar();
        if (code == u'%') {
            append(QStringLiteral("%"));
        } else if (QStringView(u"uUfF").contains(code)) {
            // An address is never the program.
            isMalformed_ = isMalformed_ || arguments_.isEmpty();
            // Once is enough, and some entries name several.
            if (!hasAddress_ && !addresses_.isEmpty()) {
                if (code.isUpper() && !isWithinArgument_) {
                    arguments_.append(addresses_.first(addresses_.size() - 1));
                }
                append(addresses_.back());
            }
            hasAddress_ = true;
        } else if (code == u'c') {
            append(entry_.name);
        } else if (code == u'k') {
            append(entry_.path);
        } else if (code == u'i' && !entry_.icon.isEmpty()) {
            endArgument();
            arguments_ << QStringLiteral("--icon") << entry_.icon;
        }
    }

    void append(const QString& text) {
        isWithinArgument_ = true;
        argument_ += text;
    }

    const DesktopEntry& entry_;
    const QStringList& addresses_;
    qsizetype position_ = 0;
    QStringList arguments_;
    QString argument_;
    bool isWithinArgument_ = false;
    bool hasAddress_ = false;
    bool isMalformed_ = false;
};

} // namespace

std::optional<QStringList> commandLine(const DesktopEntry& entry, const QStringList& addresses) {
    return Command(entry, addresses).run();
}

} // namespace quillet
