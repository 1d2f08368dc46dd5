"""The session in which the program runs: its name on the bus, its processes, what is in front."""

import os
import subprocess
import sys

from accessibility import wait_for
from gi.repository import Gio, GLib

NAME = "org.quillet.Quillet"
BUS = Gio.bus_get_sync(Gio.BusType.SESSION)


def on_the_bus(method, parameters, reply):
    return BUS.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         method, parameters, GLib.VariantType(reply), 0, -1).unpack()[0]


def owner():
    """The running program's process; None while there is none."""
    try:
        return on_the_bus("GetConnectionUnixProcessID", GLib.Variant("(s)", [NAME]), "(u)")
    except GLib.Error:
        return None


def ask(method, *parameters):
    types = {"Activate": "(a{sv})", "Open": "(asa{sv})", "ActivateAction": "(sava{sv})"}
    BUS.call_sync(NAME, "/org/quillet/Quillet", "org.freedesktop.Application", method,
                  GLib.Variant(types[method], parameters), None, 0, -1)


def start(output=None, **environment):
    return subprocess.Popen([sys.argv[1]], stdout=output, stderr=output,
                            env={**os.environ, **environment})


def processes():
    """Every living process of the program under test, however it was started."""
    found = set()
    for number in filter(str.isdigit, os.listdir("/proc")):
        try:
            if (os.readlink(f"/proc/{number}/exe") == os.path.realpath(sys.argv[1])
                    and f"HOME={os.environ['HOME']}\0".encode()
                    in open(f"/proc/{number}/environ", "rb").read()):
                found.add(int(number))
        except OSError:
            pass
    return found


def active_window():
    result = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], capture_output=True,
                            text=True, check=False)
    return result.stdout.strip()


def minimize():
    subprocess.run(["xdotool", "getactivewindow", "windowminimize"], check=True)
    wait_for("the window to go", lambda: active_window() != "Quillet")
