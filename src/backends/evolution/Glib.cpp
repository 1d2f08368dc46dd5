#include "backends/evolution/Glib.h"

#include <pthread.h>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace quillet {

namespace {

thread_local int pendingCalls = 0;

constexpr std::chrono::milliseconds longestEnd{1000};
/// How long calls that were given up are waited for, so that they free what they hold.
constexpr std::chrono::milliseconds longestDrain{500};

} // namespace

SignalHandler::SignalHandler(gpointer instance, const char* signal, GCallback callback,
                             gpointer data)
    : instance_(newReference(G_OBJECT(instance)))
    , identifier_(g_signal_connect(instance, signal, callback, data)) {}

SignalHandler::~SignalHandler() {
    if (instance_) {
        g_signal_handler_disconnect(instance_.get(), identifier_);
    }
}

void LoopTimer::start(std::chrono::milliseconds delay, std::function<void()> callback) {
    stop();
    callback_ = std::move(callback);
    source_ = g_timeout_source_new(static_cast<guint>(delay.count()));
    g_source_set_callback(source_, expired, this, nullptr);
    g_source_attach(source_, g_main_context_get_thread_default());
}

void LoopTimer::stop() {
    if (source_ != nullptr) {
        g_source_destroy(source_);
        g_source_unref(source_);
        source_ = nullptr;
    }
}

gboolean LoopTimer::expired(gpointer timer) {
    auto* self = static_cast<LoopTimer*>(timer);
    self->stop();
    // A copy, since the callback may start the timer again or end it.
    const auto callback = std::exchange(self->callback_, nullptr);
    callback();
    return G_SOURCE_REMOVE;
}

gpointer pendingCall(CallFinish finish) {
    ++pendingCalls;
    return new CallFinish(std::move(finish));
}

void finishCall(GObject* source, GAsyncResult* result, gpointer pending) {
    --pendingCalls;
    const std::unique_ptr<CallFinish> finish(static_cast<CallFinish*>(pending));
    (*finish)(source, result);
}

int pendingCallCount() {
    return pendingCalls;
}

/// What the thread and its owner both hold, so that either may be the last.
struct LoopThread::Shared {
    Shared()
        : context(g_main_context_new())
        , loop(g_main_loop_new(context, FALSE)) {}
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;
    ~Shared() {
        g_main_loop_unref(loop);
        g_main_context_unref(context);
    }

    void run(const std::function<std::shared_ptr<void>()>& begin) {
        g_main_context_push_thread_default(context);
        std::shared_ptr<void> resident = begin();
        g_main_loop_run(loop);
        resident.reset();
        drain();
        g_main_context_pop_thread_default(context);
        {
            const std::scoped_lock lock(mutex);
            hasEnded = true;
        }
        ended.notify_all();
    }

    void drain() const {
        bool isOver = false;
        LoopTimer patience;
        patience.start(longestDrain, [&] { isOver = true; });
        while (pendingCallCount() > 0 && !isOver) {
            g_main_context_iteration(context, TRUE);
        }
        patience.stop();
        while (g_main_context_iteration(context, FALSE) != FALSE) {
        }
    }

    void post(std::function<void()> task) const {
        GSource* source = g_idle_source_new();
        g_source_set_priority(source, G_PRIORITY_DEFAULT);
        g_source_set_callback(
            source,
            [](gpointer data) -> gboolean {
                (*static_cast<std::function<void()>*>(data))();
                return G_SOURCE_REMOVE;
            },
            new std::function<void()>(std::move(task)),
            [](gpointer data) { delete static_cast<std::function<void()>*>(data); });
        g_source_attach(source, context);
        g_source_unref(source);
    }

    GMainContext* context;
    GMainLoop* loop;
    std::mutex mutex;
    std::condition_variable ended;
    bool hasEnded = false;
};

LoopThread::LoopThread(std::function<std::shared_ptr<void>()> begin)
    : shared_(std::make_shared<Shared>()) {
    std::thread thread([shared = shared_, begin = std::move(begin)] {
        pthread_setname_np(pthread_self(), "calendarservice");
        shared->run(begin);
    });
    thread.detach();
}

LoopThread::~LoopThread() {
    // Posted, so that a loop that has not begun yet ends as well.
    shared_->post([loop = shared_->loop] { g_main_loop_quit(loop); });
    std::unique_lock lock(shared_->mutex);
    shared_->ended.wait_for(lock, longestEnd, [this] { return shared_->hasEnded; });
}

void LoopThread::post(std::function<void()> task) {
    shared_->post(std::move(task));
}

} // namespace quillet
