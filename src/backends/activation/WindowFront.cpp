#include "backends/activation/WindowFront.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace quillet {

namespace {

using X11 = QNativeInterface::QX11Application;

constexpr std::size_t messageBytes = 20;

xcb_atom_t atomOf(xcb_connection_t* connection, const QByteArray& name) {
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(
            connection,
            xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.constData()),
            nullptr),
        &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t rootOf(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

void send(xcb_connection_t* connection, const xcb_client_message_event_t& event, uint32_t mask) {
    xcb_send_event(connection, 0, rootOf(connection), mask, reinterpret_cast<const char*>(&event));
}

/// The time of the user's click, which a start-up identifier carries at its end; 0 when it has
/// none.
uint32_t timeIn(const QString& token) {
    const auto at = token.lastIndexOf(QStringLiteral("_TIME"));
    return at < 0 ? 0 : token.mid(at + 5).toUInt();
}

/// Window managers keep a window from coming up by itself, unless the user's click on the start
/// is newer than what the user did last.
void activate(xcb_connection_t* connection, const QWindow& window, uint32_t time) {
    constexpr uint32_t fromApplication = 1;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<xcb_window_t>(window.winId());
    event.type = atomOf(connection, "_NET_ACTIVE_WINDOW");
    event.data.data32[0] = fromApplication;
    event.data.data32[1] = time;
    send(connection, event,
         XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
}

/// Tells the desktop that the start has come to its end, in messages of twenty bytes.
void endStartup(xcb_connection_t* connection, const QString& token) {
    QByteArray identifier = token.toUtf8();
    identifier.replace('\\', "\\\\").replace('"', "\\\"");
    const QByteArray text = "remove: ID=\"" + identifier + '"' + '\0';
    const xcb_window_t sender = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, sender, rootOf(connection), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = sender;
    event.type = atomOf(connection, "_NET_STARTUP_INFO_BEGIN");
    for (auto at = std::size_t{0}; at < static_cast<std::size_t>(text.size()); at += messageBytes) {
        const auto count = std::min(messageBytes, static_cast<std::size_t>(text.size()) - at);
        std::ranges::fill(event.data.data8, uint8_t{0});
        std::copy_n(text.cbegin() + static_cast<qsizetype>(at), count, event.data.data8);
        send(connection, event, XCB_EVENT_MASK_PROPERTY_CHANGE);
        event.type = atomOf(connection, "_NET_STARTUP_INFO");
    }
    xcb_destroy_window(connection, sender);
}

void bringToFrontOnX11(X11& application, const QWindow& window, const QString& token) {
    xcb_connection_t* connection = application.connection();
    if (const uint32_t time = timeIn(token); time != 0) {
        activate(connection, window, time);
    }
    endStartup(connection, token);
    xcb_flush(connection);
}

} // namespace

void bringToFront(QWindow& window, const QString& token) {
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.setVisible(true);
    window.raise();
    if (!token.isEmpty() && QGuiApplication::platformName().startsWith(u"wayland")) {
        // Where the toolkit's Wayland part looks for it.
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    }
    // What is modal takes the keys; a window behind it would swallow them.
    QWindow* const modal = QGuiApplication::modalWindow();
    QWindow& active = modal != nullptr ? *modal : window;
    active.requestActivate();
    if (auto* x11 = qGuiApp->nativeInterface<X11>(); x11 != nullptr && !token.isEmpty()) {
        bringToFrontOnX11(*x11, active, token);
    }
}

} // namespace quillet
