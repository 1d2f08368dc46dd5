#include "backends/programs/CalendarPrograms.h"

#include "texts/Localized.h"

#include <QUrl>

#include <algorithm>
#include <tuple>
#include <utility>

namespace quillet {

namespace {

enum class Program { Evolution, GnomeCalendar, KdeCalendar, Other };

Program programOf(const DesktopEntry& entry) {
    if (entry.id == u"org.gnome.Evolution.desktop") {
        return Program::Evolution;
    }
    if (entry.id == u"org.gnome.Calendar.desktop") {
        return Program::GnomeCalendar;
    }
    const bool isKde = entry.id.startsWith(u"org.kde.") &&
                       (entry.id.contains(u"korganizer") || entry.id.contains(u"kalendar") ||
                        entry.id.contains(u"merkuro"));
    return isKde ? Program::KdeCalendar : Program::Other;
}

std::unexpected<QString> noEventThere() {
    return std::unexpected(QStringLiteral("the event is in no place that others can open"));
}

/// The address under which Evolution opens an event of the calendar service in a window of its own:
/// an exception for itself, and for any other occurrence its whole series, since it refuses to open
/// what only a rule brings forth.
QString eventAddress(const EventPlace& place, const QString& uid) {
    const auto encoded = [](const QString& text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    const QString address = QStringLiteral("calendar:///?source-uid=") +
                            encoded(place.serviceCalendar) + QStringLiteral("&comp-uid=") +
                            encoded(uid);
    return place.isException ? address + QStringLiteral("&comp-rid=") + encoded(place.occurrence)
                             : address;
}

/// The address at which Evolution shows a day.
QString dayAddress(QDate day) {
    return QStringLiteral("calendar:///?startdate=") + day.toString(u"yyyyMMdd");
}

} // namespace

std::expected<void, QString> CalendarPrograms::show(const EventRequest& request) {
    Wanted wanted{with_.findEvent(request), request.eventIdentifier};
    if (shown_) {
        // The user goes on while a program starts: what is asked for last counts.
        next_ = *shown_ == wanted ? std::nullopt : std::optional(std::move(wanted));
        return {};
    }
    shown_ = std::move(wanted);
    auto result = showAt(shown_->place, shown_->uid);
    while (next_) {
        shown_ = std::exchange(next_, std::nullopt);
        result = showAt(shown_->place, shown_->uid);
    }
    shown_.reset();
    return result;
}

std::expected<void, QString> CalendarPrograms::showAt(const EventPlace& place,
                                                      const QString& uid) const {
    if (!place.serviceCalendar.isEmpty()) {
        return showOfService(place, uid);
    }
    return place.file.isEmpty() ? noEventThere() : openFile(place.file);
}

std::expected<void, QString> CalendarPrograms::showOfService(const EventPlace& place,
                                                             const QString& uid) const {
    if (with_.portal != nullptr) {
        return with_.portal->openAddress(eventAddress(place, uid));
    }
    auto entries = with_.applications.handlers(QStringLiteral("text/calendar"));
    for (DesktopEntry& entry :
         with_.applications.handlers(QStringLiteral("x-scheme-handler/calendar"))) {
        if (std::ranges::find(entries, entry.id, &DesktopEntry::id) == entries.end()) {
            entries.push_back(std::move(entry));
        }
    }
    // The service is these programs' own; the others know its events only if they share an account.
    std::ranges::stable_partition(entries, [](const DesktopEntry& entry) {
        return programOf(entry) != Program::KdeCalendar;
    });
    std::expected<void, QString> result = std::unexpected(QString());
    bool isAnyKnown = false;
    for (const DesktopEntry& entry : entries) {
        if (programOf(entry) == Program::Other) {
            continue;
        }
        isAnyKnown = true;
        result = showIn(entry, place, uid);
        if (result) {
            return result;
        }
    }
    return isAnyKnown ? result : noProgram();
}

std::expected<void, QString> CalendarPrograms::showIn(const DesktopEntry& entry,
                                                      const EventPlace& place,
                                                      const QString& uid) const {
    switch (programOf(entry)) {
    case Program::Evolution:
        return showInEvolution(entry, place, uid);
    case Program::GnomeCalendar:
        return with_.bus.showInGnomeCalendar(place, uid);
    case Program::KdeCalendar: {
        const QString service = entry.id.chopped(QLatin1StringView(".desktop").size());
        const auto result = with_.bus.showInKdeCalendar(service, uid, place.start);
        // One that does not run may have no way of being started over the bus.
        return result ? result : with_.applications.start(entry, {});
    }
    case Program::Other:
        break;
    }
    return std::unexpected(QString());
}

std::expected<void, QString> CalendarPrograms::showInEvolution(const DesktopEntry& entry,
                                                               const EventPlace& place,
                                                               const QString& uid) const {
    const QString service = QStringLiteral("org.gnome.Evolution");
    if (!with_.bus.isRunning(service)) {
        // Started with an address, the program drops it and shows nothing at all.
        const auto started =
            with_.applications.start(entry, {QStringLiteral("-c"), QStringLiteral("calendar")});
        if (!started || !with_.bus.waitUntilRunning(service)) {
            return started ? std::unexpected(QStringLiteral("Evolution does not answer")) : started;
        }
    }
    QStringList addresses{eventAddress(place, uid)};
    if (place.start) {
        // Asked for both at once it shows them in this order, and the event stays in front.
        addresses.prepend(dayAddress(place.start->date()));
    }
    return Applications::open(entry, addresses);
}

std::expected<void, QString> CalendarPrograms::openFile(const QString& path) const {
    if (with_.portal != nullptr) {
        return with_.portal->openFile(path);
    }
    const auto entries = with_.applications.handlers(QStringLiteral("text/calendar"));
    const QString address = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    return entries.empty() ? noProgram() : Applications::open(entries.front(), {address});
}

std::expected<void, QString> CalendarPrograms::noProgram() const {
    std::ignore = with_.alerts.runModal(
        {.style = AlertStyle::Warning,
         .messageText = localized("No calendar program is set up"),
         .informativeText =
             localized("Install a calendar program, or choose one among the default applications "
                       "of your desktop, to open events in it."),
         .buttonTitles = {localized("OK")}});
    return std::unexpected(QStringLiteral("no calendar program"));
}

} // namespace quillet
