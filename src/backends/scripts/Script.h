#pragma once

#include <QString>
#include <QStringList>

#include <expected>
#include <variant>
#include <vector>

namespace quillet {

/// "make new outgoing message"
struct MakeNew {
    QString kind;
};

/// "first event whose uid is …"
struct FirstWhoseUid {
    QString kind;
    QString uid;
};

using ScriptValue =
    std::variant<QString, double, bool, std::vector<double>, MakeNew, FirstWhoseUid>;

struct ScriptStatement;

struct TellBlock {
    enum class Target { Application, Variable };

    Target target = Target::Application;
    QString name;
    std::vector<ScriptStatement> statements;
};

struct SetStatement {
    /// The innermost name first: "size of content" is {"size", "content"}.
    QStringList names;
    ScriptValue value;
};

struct ActivateStatement {};

struct SwitchViewStatement {
    QString view;
};

struct ShowStatement {
    QString variable;
};

struct ScriptStatement {
    std::variant<TellBlock, SetStatement, ActivateStatement, SwitchViewStatement, ShowStatement>
        content;
    /// From 1.
    int line = 1;
};

/// The statements of a script, whatever its names mean. The error says what is wrong and in which
/// line.
[[nodiscard]] std::expected<std::vector<ScriptStatement>, QString>
parsedScript(const QString& source);

} // namespace quillet
