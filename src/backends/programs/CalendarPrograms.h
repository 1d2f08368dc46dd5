#pragma once

#include "backends/programs/Applications.h"
#include "backends/programs/CalendarBus.h"
#include "backends/programs/DesktopPortal.h"
#include "backends/programs/EventPlace.h"
#include "platform/Alert.h"
#include "platform/ScriptRunner.h"

#include <expected>
#include <functional>
#include <optional>

namespace quillet {

/// Asks the user's calendar program to show an event.
class CalendarPrograms {
public:
    using FindEvent = std::function<EventPlace(const EventRequest& request)>;

    struct Collaborators {
        const Applications& applications;
        CalendarBus& bus;
        AlertPresenter& alerts;
        FindEvent findEvent;
        /// In a sandbox; null outside.
        DesktopPortal* portal = nullptr;
    };

    explicit CalendarPrograms(Collaborators collaborators)
        : with_(std::move(collaborators)) {}

    /// Shows the event in the user's preferred program of those that can show one. An event that
    /// comes from a file is opened as that file. The user is told when there is no program for
    /// calendars at all; any other error is a text for the log alone. The windows of this program
    /// stay alive meanwhile. An event that is asked for while another one is being shown is shown
    /// after it, by the call that shows the first; of several only the last.
    [[nodiscard]] std::expected<void, QString> show(const EventRequest& request);

private:
    struct Wanted {
        EventPlace place;
        QString uid;

        friend bool operator==(const Wanted&, const Wanted&) = default;
    };

    [[nodiscard]] std::expected<void, QString> showAt(const EventPlace& place,
                                                      const QString& uid) const;
    [[nodiscard]] std::expected<void, QString> showOfService(const EventPlace& place,
                                                             const QString& uid) const;
    [[nodiscard]] std::expected<void, QString>
    showIn(const DesktopEntry& entry, const EventPlace& place, const QString& uid) const;
    [[nodiscard]] std::expected<void, QString>
    showInEvolution(const DesktopEntry& entry, const EventPlace& place, const QString& uid) const;
    [[nodiscard]] std::expected<void, QString> openFile(const QString& path) const;
    [[nodiscard]] std::expected<void, QString> noProgram() const;

    Collaborators with_;
    /// While a program is waited for.
    std::optional<Wanted> shown_;
    std::optional<Wanted> next_;
};

} // namespace quillet
