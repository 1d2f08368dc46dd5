#pragma once

#include "backends/activation/ApplicationNames.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <vector>

namespace quillet {

/// The one running program of a session, and what the desktop asks of it
/// (org.freedesktop.Application). A second start hands itself over to the first and ends. Without a
/// session bus there is nobody to ask, and every start is the first.
class ApplicationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Standing {
        /// Nobody else runs, or nobody who can be asked.
        First,
        /// The running program has come to the front; this one is to end.
        HandedOver
    };

    /// What came with a request may be used once to bring the window to the front; often empty.
    using Token = QString;
    struct Handlers {
        std::function<void(const Token&)> activate;
        /// The addresses are as the desktop wrote them: "file:///…", any others, or nonsense.
        std::function<void(const QStringList& addresses, const Token&)> open;
        /// Any name may come; one of the desktop entry's actions is meant.
        std::function<void(const QString& action, const Token&)> activateAction;
    };

    explicit ApplicationService(QDBusConnection bus, QObject* parent = nullptr);
    ~ApplicationService() override;
    Q_DISABLE_COPY_MOVE(ApplicationService)

    /// Takes the name, or brings the program that has it to the front with the token. One that is
    /// ending is waited for, and one that hangs, but not longer than for the patience.
    [[nodiscard]] Standing claim(const Token& token, std::chrono::milliseconds patience);
    /// Hands the requests to the handlers from now on, first those that came before.
    void serve(Handlers handlers);
    /// The program ends, whatever is asked of it: starts from now on wait until it has, and become
    /// the running program themselves. To be called before a relaunch gives its copy the chance.
    void endSoon();

public Q_SLOTS: // The methods of the interface.
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE void Open(const QStringList& addresses, const QVariantMap& platformData);
    Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameters,
                                     const QVariantMap& platformData);

private:
    [[nodiscard]] bool takeName();
    [[nodiscard]] bool comesToFront(const Token& token, std::chrono::milliseconds patience) const;
    void handle(std::function<void()> request);

    QDBusConnection bus_;
    Handlers handlers_;
    std::vector<std::function<void()>> waiting_;
    bool isServing_ = false;
    bool isEnding_ = false;
};

} // namespace quillet
