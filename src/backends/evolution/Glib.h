#pragma once

#include <QString>

#include <gio/gio.h>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

namespace quillet {

struct ObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
/// One reference to an object of the GLib world.
template <typename Object>
using ObjectPointer = std::unique_ptr<Object, ObjectUnref>;

/// A reference of one's own to a borrowed object.
template <typename Object>
[[nodiscard]] ObjectPointer<Object> newReference(Object* object) {
    if (object != nullptr) {
        g_object_ref(object);
    }
    return ObjectPointer<Object>(object);
}

/// Where a call puts its error.
class CallError {
public:
    CallError() = default;
    CallError(const CallError&) = delete;
    CallError& operator=(const CallError&) = delete;
    ~CallError() { g_clear_error(&error_); }

    [[nodiscard]] GError** slot() { return &error_; }
    [[nodiscard]] explicit operator bool() const { return error_ != nullptr; }
    [[nodiscard]] bool is(GQuark domain, int code) const {
        return g_error_matches(error_, domain, code) != FALSE;
    }
    [[nodiscard]] bool isOf(GQuark domain) const {
        return error_ != nullptr && error_->domain == domain;
    }
    /// The name that the other side gave its error; empty when it did not come over the bus.
    [[nodiscard]] QByteArray remoteName() const {
        const std::unique_ptr<char, decltype(&g_free)> name(
            error_ == nullptr ? nullptr : g_dbus_error_get_remote_error(error_), g_free);
        return QByteArray(name.get());
    }
    [[nodiscard]] QString message() const {
        return error_ == nullptr ? QString() : QString::fromUtf8(error_->message);
    }

private:
    GError* error_ = nullptr;
};

/// A text that the caller was given to free; a null QString for none.
[[nodiscard]] inline QString takenText(char* text) {
    const std::unique_ptr<char, decltype(&g_free)> owner(text, g_free);
    return text == nullptr ? QString() : QString::fromUtf8(text);
}

/// A signal handler that ends with this object.
class SignalHandler {
public:
    SignalHandler(gpointer instance, const char* signal, GCallback callback, gpointer data);
    SignalHandler(SignalHandler&& other) noexcept = default;
    SignalHandler& operator=(SignalHandler&&) = delete;
    SignalHandler(const SignalHandler&) = delete;
    SignalHandler& operator=(const SignalHandler&) = delete;
    ~SignalHandler();

private:
    ObjectPointer<GObject> instance_;
    gulong identifier_ = 0;
};

/// Calls back once on the thread that started it, which needs a main context of its own.
class LoopTimer {
public:
    LoopTimer() = default;
    LoopTimer(const LoopTimer&) = delete;
    LoopTimer& operator=(const LoopTimer&) = delete;
    ~LoopTimer() { stop(); }

    /// Starts anew; what was waited for before does not come.
    void start(std::chrono::milliseconds delay, std::function<void()> callback);
    void stop();
    [[nodiscard]] bool isRunning() const { return source_ != nullptr; }

private:
    static gboolean expired(gpointer timer);

    GSource* source_ = nullptr;
    std::function<void()> callback_;
};

/// Takes the result of an asynchronous call. Has to finish it whatever happened meanwhile.
using CallFinish = std::function<void(GObject* source, GAsyncResult* result)>;

/// Makes a CallFinish fit for a C interface: `call(…, finishCall, pendingCall(finish))`.
[[nodiscard]] gpointer pendingCall(CallFinish finish);
void finishCall(GObject* source, GAsyncResult* result, gpointer pending);
/// How many calls of this thread have not been finished yet.
[[nodiscard]] int pendingCallCount();

/// A thread with a main context of its own, on which something lives.
class LoopThread {
public:
    /// `begin` runs on the thread; what it answers is destroyed there at the end.
    explicit LoopThread(std::function<std::shared_ptr<void>()> begin);
    LoopThread(const LoopThread&) = delete;
    LoopThread& operator=(const LoopThread&) = delete;
    /// Ends the loop. A thread that hangs in a call for more than a second is left to itself.
    ~LoopThread();

    /// Runs the task on the thread, later; not at all once the loop has ended.
    void post(std::function<void()> task);

private:
    struct Shared;
    std::shared_ptr<Shared> shared_;
};

} // namespace quillet
