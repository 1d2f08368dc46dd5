"""The desktop's calendar service of this session, used as the desktop's calendar program does."""

import os
import signal
from datetime import timezone

import gi

gi.require_version("ECal", "2.0")
gi.require_version("EDataServer", "1.2")
from gi.repository import ECal, EDataServer, Gio, GLib, ICalGLib  # noqa: E402

from accessibility import wait_for

WITHOUT_WAITING = 0xFFFFFFFF


def in_utc(moment):
    return moment.astimezone(timezone.utc).strftime("%Y%m%dT%H%M%SZ")


class CalendarService:
    def __init__(self):
        self._registry = EDataServer.SourceRegistry.new_sync(None)
        self._clients = {}

    def add_calendar(self, title):
        source = EDataServer.Source.new(None, None)
        source.set_parent("local-stub")
        source.set_display_name(title)
        source.get_extension(EDataServer.SOURCE_EXTENSION_CALENDAR).set_backend_name("local")
        self._registry.commit_source_sync(source, None)
        return wait_for(f"the source {title}",
                        lambda: self._registry.ref_source(source.get_uid()))

    def remove_calendar(self, source):
        source.remove_sync(None)

    def rename(self, source, title):
        source.set_display_name(title)
        self._registry.commit_source_sync(source, None)

    def add_event(self, source, uid, title, start, end, extra=()):
        self._client(source).create_object_sync(
            self._component(uid, title, start, end, extra), ECal.OperationFlags.NONE, None)

    def move_occurrence(self, source, uid, occurrence, title, start, end):
        """Makes an exception of the occurrence that was to start then."""
        component = self._component(uid, title, start, end, [f"RECURRENCE-ID:{in_utc(occurrence)}"])
        self._client(source).modify_object_sync(component, ECal.ObjModType.THIS,
                                                ECal.OperationFlags.NONE, None)

    def remove_event(self, source, uid):
        self._client(source).remove_object_sync(uid, None, ECal.ObjModType.ALL,
                                                ECal.OperationFlags.NONE, None)

    def signal_processes(self, source, number):
        """Sends a signal to everything that serves the calendar's events."""
        names = [self._client(source).dup_bus_name(), "org.gnome.evolution.dataserver.Calendar8"]
        for process in [self._process(name) for name in names]:
            os.kill(process, number)
        if number == signal.SIGKILL:
            self._clients.clear()

    @staticmethod
    def _component(uid, title, start, end, extra):
        lines = ["BEGIN:VEVENT", f"UID:{uid}", f"DTSTART:{in_utc(start)}", f"DTEND:{in_utc(end)}",
                 f"SUMMARY:{title}", *extra, "END:VEVENT", ""]
        return ICalGLib.Component.new_from_string("\r\n".join(lines))

    def _client(self, source):
        uid = source.get_uid()
        if uid not in self._clients:
            self._clients[uid] = ECal.Client.connect_sync(
                source, ECal.ClientSourceType.EVENTS, WITHOUT_WAITING, None)
        return self._clients[uid]

    @staticmethod
    def _process(name):
        bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        answer = bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                               "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                               GLib.Variant("(s)", (name,)), None, Gio.DBusCallFlags.NONE, -1, None)
        return answer.unpack()[0]
