#pragma once

#include <QDBusMessage>
#include <QString>
#include <QStringList>

namespace quillet {

/// What the desktop asks of the program: to open addresses, to perform one of the desktop entry's
/// actions, or, with neither, to come to the front.
struct DesktopRequest {
    QStringList addresses;
    QString action;

    friend bool operator==(const DesktopRequest&, const DesktopRequest&) = default;
};

/// Reads the arguments of a desktop entry's command line: addresses and paths, or "--action" and
/// a name. Paths become addresses, relative ones from the folder, which is absolute; addresses stay
/// as they are, nonsense included, so that the program says itself what is wrong with them.
[[nodiscard]] DesktopRequest desktopRequest(const QStringList& arguments, const QString& folder);

/// The call by which the running program gets the request (org.freedesktop.Application), with the
/// token by which its window may come to the front; empty when there is none. Nobody is started by
/// the bus for it.
[[nodiscard]] QDBusMessage callFor(const DesktopRequest& request, const QString& token);

} // namespace quillet
