#include "backends/scripts/ScriptRequests.h"

#include "backends/scripts/Script.h"

#include <QHash>

#include <memory>

namespace quillet {

namespace {

struct Message {
    MessageRequest request;
    bool isVisible = false;
};

struct FoundCalendar {
    QString uid;
};

struct FoundEvent {
    QString calendarUid;
    QString uid;
};

using Object = std::variant<std::shared_ptr<Message>, FoundCalendar, FoundEvent>;

enum class Application { None, Mail, Calendar };

/// Runs the statements on objects of its own and keeps what the script wants shown.
class Interpreter {
public:
    std::expected<std::vector<ScriptRequest>, QString>
    run(const std::vector<ScriptStatement>& statements) {
        if (!runAll(statements, {})) {
            return std::unexpected(error_);
        }
        std::vector<ScriptRequest> requests;
        for (const Shown& shown : shown_) {
            if (const auto* event = std::get_if<EventRequest>(&shown)) {
                requests.emplace_back(*event);
            } else if (const auto& message = std::get<std::shared_ptr<Message>>(shown);
                       message->isVisible) {
                requests.emplace_back(message->request);
            }
        }
        return requests;
    }

private:
    using Shown = std::variant<std::shared_ptr<Message>, EventRequest>;

    /// What a statement is told to.
    struct Scope {
        Application application = Application::None;
        std::shared_ptr<Message> message;
        std::optional<FoundCalendar> calendar;
    };

    bool fail(const QString& what) {
        error_ = QStringLiteral("line %1: %2").arg(line_).arg(what);
        return false;
    }

    bool runAll(const std::vector<ScriptStatement>& statements, const Scope& scope) {
        for (const ScriptStatement& statement : statements) {
            line_ = statement.line;
            const bool isDone = std::visit([&](const auto& content) { return run(content, scope); },
                                           statement.content);
            if (!isDone) {
                return false;
            }
        }
        return true;
    }

    bool run(const TellBlock& block, const Scope& scope) {
        Scope inner = scope;
        if (block.target == TellBlock::Target::Application) {
            inner = {};
            if (block.name == u"Mail") {
                inner.application = Application::Mail;
            } else if (block.name == u"Calendar") {
                inner.application = Application::Calendar;
            } else {
                return fail(QStringLiteral("there is no application “%1”").arg(block.name));
            }
            return runAll(block.statements, inner);
        }
        const auto object = variables_.constFind(block.name);
        if (object == variables_.constEnd()) {
            return fail(QStringLiteral("“%1” is not set").arg(block.name));
        }
        if (const auto* message = std::get_if<std::shared_ptr<Message>>(&*object)) {
            inner.message = *message;
        } else if (const auto* calendar = std::get_if<FoundCalendar>(&*object)) {
            inner.calendar = *calendar;
        } else {
            return fail(QStringLiteral("an event cannot be told anything"));
        }
        return runAll(block.statements, inner);
    }

    bool run(const ActivateStatement&, const Scope& scope) {
        return scope.application != Application::None ||
               fail(QStringLiteral("nothing to activate"));
    }

    bool run(const SwitchViewStatement& statement, const Scope& scope) {
        if (scope.application != Application::Calendar) {
            return fail(QStringLiteral("only calendars have views"));
        }
        return statement.view == u"day" ||
               fail(QStringLiteral("there is no %1 view").arg(statement.view));
    }

    bool run(const ShowStatement& statement, const Scope& scope) {
        const auto object = variables_.constFind(statement.variable);
        if (object == variables_.constEnd()) {
            return fail(QStringLiteral("“%1” is not set").arg(statement.variable));
        }
        const auto* event = std::get_if<FoundEvent>(&*object);
        if (event == nullptr || scope.application != Application::Calendar) {
            return fail(QStringLiteral("“%1” cannot be shown").arg(statement.variable));
        }
        shown_.emplace_back(EventRequest{event->calendarUid, event->uid});
        return true;
    }

    bool run(const SetStatement& statement, const Scope& scope) {
        if (const auto* made = std::get_if<MakeNew>(&statement.value)) {
            return make(*made, statement.names, scope);
        }
        if (const auto* found = std::get_if<FirstWhoseUid>(&statement.value)) {
            return find(*found, statement.names, scope);
        }
        if (!scope.message) {
            return fail(QStringLiteral("there is nothing that has a %1")
                            .arg(statement.names.join(QStringLiteral(" of "))));
        }
        return setProperty(*scope.message, statement);
    }

    bool setVariable(const QStringList& names, const Object& object) {
        if (names.size() != 1) {
            return fail(QStringLiteral("a variable expected"));
        }
        variables_.insert(names.front(), object);
        return true;
    }

    bool make(const MakeNew& made, const QStringList& names, const Scope& scope) {
        if (scope.application != Application::Mail) {
            return fail(QStringLiteral("no %1 can be made here").arg(made.kind));
        }
        auto message = std::make_shared<Message>();
        shown_.emplace_back(message);
        return setVariable(names, std::move(message));
    }

    bool find(const FirstWhoseUid& found, const QStringList& names, const Scope& scope) {
        if (scope.application == Application::Calendar && found.kind == u"calendar") {
            return setVariable(names, FoundCalendar{found.uid});
        }
        if (scope.calendar && found.kind == u"event") {
            return setVariable(names, FoundEvent{scope.calendar->uid, found.uid});
        }
        return fail(QStringLiteral("no %1 can be found here").arg(found.kind));
    }

    bool setProperty(Message& message, const SetStatement& statement) {
        const QString property = statement.names.join(QStringLiteral(" of "));
        MessageRequest& request = message.request;
        const auto* text = std::get_if<QString>(&statement.value);
        const auto* number = std::get_if<double>(&statement.value);
        const auto* flag = std::get_if<bool>(&statement.value);
        const auto* color = std::get_if<std::vector<double>>(&statement.value);
        if (property == u"subject" && text != nullptr) {
            request.subject = *text;
        } else if (property == u"content" && text != nullptr) {
            request.content = *text;
        } else if (property == u"visible" && flag != nullptr) {
            message.isVisible = *flag;
        } else if (property == u"font of content" && text != nullptr) {
            request.fontName = *text;
        } else if (property == u"size of content" && number != nullptr && *number > 0) {
            request.fontSizePoints = *number;
        } else if (property == u"color of content" && color != nullptr && color->size() == 3) {
            request.color = ColorFractions{(*color)[0], (*color)[1], (*color)[2]};
        } else {
            return fail(QStringLiteral("“%1” cannot be set to that").arg(property));
        }
        return true;
    }

    QHash<QString, Object> variables_;
    std::vector<Shown> shown_;
    int line_ = 1;
    QString error_;
};

} // namespace

std::expected<std::vector<ScriptRequest>, QString> requestsOfScript(const QString& source) {
    const auto statements = parsedScript(source);
    if (!statements) {
        return std::unexpected(statements.error());
    }
    return Interpreter().run(*statements);
}

} // namespace quillet
