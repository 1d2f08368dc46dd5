#include "backends/evolution/ServiceFixture.h"

#include <memory>
#include <mutex>

namespace quillet::test {

namespace {

/// Holds back the first call of a method that this process makes over the bus.
class HeldCall {
public:
    explicit HeldCall(const char* method)
        : bus_(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr))
        , state_(std::make_shared<State>(method)) {
        filter_ = g_dbus_connection_add_filter(
            bus_.get(),
            +[](GDBusConnection*, GDBusMessage* message, gboolean isIncoming, gpointer data) {
                return (*static_cast<std::shared_ptr<State>*>(data))->pass(message, isIncoming);
            },
            new std::shared_ptr<State>(state_),
            +[](gpointer data) { delete static_cast<std::shared_ptr<State>*>(data); });
    }
    HeldCall(const HeldCall&) = delete;
    HeldCall& operator=(const HeldCall&) = delete;
    ~HeldCall() { g_dbus_connection_remove_filter(bus_.get(), filter_); }

    [[nodiscard]] bool isHeld() const {
        const std::scoped_lock lock(state_->mutex);
        return state_->message != nullptr;
    }
    /// Lets the call go where it was going; its answer is awaited still.
    void release() {
        const std::scoped_lock lock(state_->mutex);
        EXPECT_TRUE(g_dbus_connection_send_message(bus_.get(), state_->message.get(),
                                                   G_DBUS_SEND_MESSAGE_FLAGS_PRESERVE_SERIAL,
                                                   nullptr, nullptr));
    }

private:
    struct State {
        explicit State(const char* heldMethod)
            : method(heldMethod) {}

        GDBusMessage* pass(GDBusMessage* passing, gboolean isIncoming) {
            const std::scoped_lock lock(mutex);
            const bool isCall =
                g_dbus_message_get_message_type(passing) == G_DBUS_MESSAGE_TYPE_METHOD_CALL;
            if (isIncoming != FALSE || !isCall || message ||
                method != QByteArrayView(g_dbus_message_get_member(passing))) {
                return passing;
            }
            // What has been on its way is locked.
            message.reset(g_dbus_message_copy(passing, nullptr));
            g_object_unref(passing);
            return nullptr;
        }

        std::mutex mutex;
        QByteArray method;
        ObjectPointer<GDBusMessage> message;
    };

    ObjectPointer<GDBusConnection> bus_;
    std::shared_ptr<State> state_;
    guint filter_ = 0;
};

class ChangesWhileReadingTest : public ServiceFixture {
protected:
    /// Opens a calendar that holds events of this zone, and changes it when it has been read but
    /// for the zone.
    void changeBeforeZoneComes(const QByteArray& zone, const QByteArray& definition) {
        const auto event = [&](const QByteArray& uid, const QByteArray& title, int hour) {
            return "UID:" + uid + "\r\nDTSTART;TZID=" + zone + ":20240304T" +
                   QByteArray::number(hour) + "0000\r\nDURATION:PT1H\r\nSUMMARY:" + title;
        };
        QByteArray content = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + definition;
        for (const QByteArray& lines : {event("stays", "Stays", 10), event("changes", "Old", 11),
                                        event("goes", "Goes", 12)}) {
            content += "BEGIN:VEVENT\r\n" + lines + "\r\nEND:VEVENT\r\n";
        }
        const QByteArray name = "read-" + QByteArray::number(definition.size());
        writeCalendarFile(QString::fromLatin1(name), content + "END:VCALENDAR\r\n");
        ESource* source = addCalendar(QStringLiteral("Read"), name);
        HeldCall zoneCall("GetTimezone");
        open();
        ASSERT_TRUE(waitUntil([&] { return zoneCall.isHeld(); }));
        changeEvent(source, event("changes", "New", 11), E_CAL_OBJ_MOD_ALL);
        removeEvent(source, "goes", nullptr, E_CAL_OBJ_MOD_ALL);
        addEvent(source, event("comes", "Comes", 13));
        // Until the store has been told.
        (void)waitUntil([] { return false; }, 300);
        EXPECT_EQ(titles(), QStringList()) << "before the zone is there nothing has been read";
        zoneCall.release();
        EXPECT_TRUE(waitForTitles({"Stays", "New", "Comes"}));
    }
};

TEST_F(ChangesWhileReadingTest, areNotLostBeforeAZoneComesThatNobodyKnows) {
    changeBeforeZoneComes("Nowhere", {});
    EXPECT_EQ(problemOf(QStringLiteral("Read")),
              QStringLiteral("unknown time zone “Nowhere”, taken as local time"));
}

TEST_F(ChangesWhileReadingTest, areNotLostBeforeAZoneComesForWhichAllIsReadAgain) {
    changeBeforeZoneComes("Our Office", "BEGIN:VTIMEZONE\r\nTZID:Our Office\r\nBEGIN:STANDARD\r\n"
                                        "DTSTART:20000101T000000\r\nTZOFFSETFROM:+0540\r\n"
                                        "TZOFFSETTO:+0540\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n");
    EXPECT_EQ(starts().front(), utc(2024, 3, 4, 4, 20));
    EXPECT_TRUE(store->problems().empty());
}

} // namespace

} // namespace quillet::test
