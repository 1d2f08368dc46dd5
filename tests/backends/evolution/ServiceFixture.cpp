#include "backends/evolution/ServiceFixture.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

namespace quillet::test {

namespace {

ObjectPointer<ICalComponent> eventFrom(const QByteArray& lines) {
    const QByteArray text = "BEGIN:VEVENT\r\n" + lines + "\r\nEND:VEVENT\r\n";
    return ObjectPointer<ICalComponent>(i_cal_component_new_from_string(text.constData()));
}

} // namespace

ServiceFixture::ServiceFixture() {
    limits.firstRetry = std::chrono::milliseconds(100);
    limits.longestRetry = std::chrono::milliseconds(1000);
    access.request([](bool, const std::optional<QString>&) {});
    meetService();
    // What a new home has of its own accord.
    const ObjectPointer<ESource> own(
        e_source_registry_ref_source(registry_.get(), "system-calendar"));
    if (own) {
        e_source_set_enabled(own.get(), FALSE);
        commit(own.get());
    }
}

ServiceFixture::~ServiceFixture() {
    observation.reset();
    store.reset();
    clients_.clear();
    for (const auto& source : sources_) {
        e_source_remove_sync(source.get(), nullptr, nullptr);
    }
}

void ServiceFixture::leaveService() {
    clients_.clear();
    sources_.clear();
    registry_.reset();
}

void ServiceFixture::meetService() {
    CallError error;
    registry_.reset(e_source_registry_new_sync(nullptr, error.slot()));
    EXPECT_FALSE(error) << error.message().toStdString();
}

ESource* ServiceFixture::addCalendar(const QString& title, const QByteArray& uid) {
    return addCalendar(title, uid, "local", [](ESource*) {});
}

ESource* ServiceFixture::addCalendar(const QString& title, const QByteArray& uid,
                                     const char* backend,
                                     const std::function<void(ESource*)>& describe) {
    CallError error;
    ESource* source = uid.isEmpty() ? e_source_new(nullptr, nullptr, error.slot())
                                    : e_source_new_with_uid(uid.constData(), nullptr, error.slot());
    EXPECT_FALSE(error) << error.message().toStdString();
    sources_.emplace_back(source);
    const bool isLocal = QByteArrayView(backend) == "local";
    e_source_set_parent(source, isLocal ? "local-stub" : "caldav-stub");
    e_source_set_display_name(source, title.toUtf8().constData());
    auto* extension =
        static_cast<ESourceBackend*>(e_source_get_extension(source, E_SOURCE_EXTENSION_CALENDAR));
    e_source_backend_set_backend_name(extension, backend);
    describe(source);
    commit(source);
    // From now on the service's own copy of it.
    const QString name = QString::fromUtf8(e_source_get_uid(source));
    sources_.pop_back();
    return sourceNamed(name);
}

ESource* ServiceFixture::sourceNamed(const QString& uid) {
    EXPECT_TRUE(waitUntil([&] {
        sources_.emplace_back(
            e_source_registry_ref_source(registry_.get(), uid.toUtf8().constData()));
        if (!sources_.back()) {
            sources_.pop_back();
            return false;
        }
        return true;
    }));
    return sources_.back().get();
}

void ServiceFixture::commit(ESource* source) const {
    CallError error;
    e_source_registry_commit_source_sync(registry_.get(), source, nullptr, error.slot());
    EXPECT_FALSE(error) << error.message().toStdString();
}

void ServiceFixture::remove(ESource* source) {
    CallError error;
    e_source_remove_sync(source, nullptr, error.slot());
    EXPECT_FALSE(error) << error.message().toStdString();
    std::erase_if(clients_, [&](const auto& client) { return client.first == source; });
    std::erase_if(sources_, [&](const auto& one) { return one.get() == source; });
}

ECalClient* ServiceFixture::clientOf(ESource* source) {
    for (const auto& [known, client] : clients_) {
        if (known == source) {
            return client.get();
        }
    }
    EClient* client = nullptr;
    QString reason;
    // The process that opens calendars hears of a new one a moment after the registry has it.
    EXPECT_TRUE(waitUntil([&] {
        CallError error;
        client = e_cal_client_connect_sync(source, E_CAL_CLIENT_SOURCE_TYPE_EVENTS,
                                           static_cast<guint32>(-1), nullptr, error.slot());
        reason = error.message();
        return client != nullptr;
    })) << reason.toStdString();
    clients_.emplace_back(source, E_CAL_CLIENT(client));
    return clients_.back().second.get();
}

void ServiceFixture::addEvent(ESource* source, const QByteArray& lines) {
    CallError error;
    e_cal_client_create_object_sync(clientOf(source), eventFrom(lines).get(),
                                    E_CAL_OPERATION_FLAG_NONE, nullptr, nullptr, error.slot());
    EXPECT_FALSE(error) << error.message().toStdString();
}

void ServiceFixture::changeEvent(ESource* source, const QByteArray& lines, ECalObjModType what) {
    CallError error;
    e_cal_client_modify_object_sync(clientOf(source), eventFrom(lines).get(), what,
                                    E_CAL_OPERATION_FLAG_NONE, nullptr, error.slot());
    EXPECT_FALSE(error) << error.message().toStdString();
}

void ServiceFixture::removeEvent(ESource* source, const char* uid, const char* recurrenceId,
                                 ECalObjModType what) {
    CallError error;
    e_cal_client_remove_object_sync(clientOf(source), uid, recurrenceId, what,
                                    E_CAL_OPERATION_FLAG_NONE, nullptr, error.slot());
    EXPECT_FALSE(error) << error.message().toStdString();
}

void ServiceFixture::writeCalendarFile(const QString& uid, const QByteArray& content) {
    const QString path =
        qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/evolution/calendar/") + uid;
    QDir().mkpath(path);
    QFile file(path + QStringLiteral("/calendar.ics"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void ServiceFixture::writeManyEvents(const QString& uid, int count) {
    QByteArray content = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//test//EN\r\n";
    const QDateTime first(QDate(2021, 1, 1), QTime(0, 0), Qt::UTC);
    for (int index = 0; index < count; ++index) {
        const QDateTime start = first.addSecs(qint64(index) * 60);
        content += "BEGIN:VEVENT\r\nUID:event-" + QByteArray::number(index) +
                   "@example.org\r\nDTSTART:" +
                   start.toString(QStringLiteral("yyyyMMddTHHmmssZ")).toLatin1() +
                   "\r\nDURATION:PT1M\r\nSUMMARY:Event number " + QByteArray::number(index) +
                   "\r\nDESCRIPTION:Some words about it\r\nEND:VEVENT\r\n";
    }
    writeCalendarFile(uid, content + "END:VCALENDAR\r\n");
}

std::optional<pid_t> ServiceFixture::processOf(const QByteArray& busName) {
    const ObjectPointer<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    GVariant* answer = g_dbus_connection_call_sync(
        bus.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "GetConnectionUnixProcessID", g_variant_new("(s)", busName.constData()), nullptr,
        G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
    if (answer == nullptr) {
        return std::nullopt;
    }
    guint32 process = 0;
    g_variant_get(answer, "(u)", &process);
    g_variant_unref(answer);
    return static_cast<pid_t>(process);
}

std::optional<pid_t> ServiceFixture::factory() {
    return processOf("org.gnome.evolution.dataserver.Calendar8");
}

std::optional<pid_t> ServiceFixture::registryProcess() {
    return processOf("org.gnome.evolution.dataserver.Sources5");
}

pid_t ServiceFixture::holderOf(ESource* source) {
    const QString name = takenText(e_client_dup_bus_name(E_CLIENT(clientOf(source))));
    const auto process = processOf(name.toUtf8());
    EXPECT_TRUE(process.has_value());
    return process.value_or(0);
}

EvolutionStore& ServiceFixture::open() {
    store = std::make_unique<EvolutionStore>(
        access, EvolutionStore::Setup{
                    .stateFolder = folder.filePath(QStringLiteral("state")),
                    .shortTime = [](Instant) { return QStringLiteral("14:02"); },
                    .zone = UserTimeZone::named(QStringLiteral("Europe/Berlin")),
                    .limits = limits,
                });
    observation = store->observeChanges([this] { ++notices; });
    return *store;
}

QStringList ServiceFixture::calendarTitles() const {
    QStringList found;
    for (const auto& calendar : store->calendars()) {
        found.append(calendar->title);
    }
    return found;
}

EventList ServiceFixture::events(Instant from, Instant to) {
    return store->events(store->calendars(), from, to);
}

QStringList ServiceFixture::titles() {
    QStringList found;
    for (const Event& event : events()) {
        found.append(event.details->title);
    }
    return found;
}

std::vector<Instant> ServiceFixture::starts() {
    std::vector<Instant> found;
    for (const Event& event : events()) {
        found.push_back(event.startDate);
    }
    return found;
}

bool ServiceFixture::waitForTitles(const QStringList& expected, int milliseconds) {
    const bool isSeen = waitUntil([&] { return titles() == expected; }, milliseconds);
    EXPECT_EQ(titles(), expected);
    return isSeen;
}

bool ServiceFixture::waitForCalendars(const QStringList& expected, int milliseconds) {
    const bool isSeen = waitUntil([&] { return calendarTitles() == expected; }, milliseconds);
    EXPECT_EQ(calendarTitles(), expected);
    return isSeen;
}

QString ServiceFixture::problemOf(const QString& subject) const {
    for (const StoreProblem& problem : store->problems()) {
        if (problem.subject == subject) {
            return problem.reason;
        }
    }
    return {};
}

} // namespace quillet::test
