"""One program runs in a session, whoever starts it and however often; files come over the bus."""

import os
import subprocess
import sys
import time

from accessibility import wait_for
from months import entries, titles, write_calendars
from program import CALENDARS, Quillet, write_event
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


def start(**environment):
    return subprocess.Popen([sys.argv[1]], env={**os.environ, **environment})


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


def check_second_starts(program):
    wait_for("the name", owner)
    for environment in ({}, {"DESKTOP_STARTUP_ID": f"desktop-1_TIME{2**31 - 1}"}):
        wait_for("the window", lambda: active_window() == "Quillet")
        minimize()
        assert start(**environment).wait(timeout=30) == 0
        wait_for("the window to come to the front", lambda: active_window() == "Quillet")
        assert processes() == {owner()}
    assert program.find("Events") is not None or program.find("Tick All Calendars") is not None


def check_opening_files(program):
    elsewhere = CALENDARS.parent.parent / "elsewhere" / "Fair & <b>trade<b> 100%.ics"
    elsewhere.parent.mkdir()
    write_event(elsewhere.parent, "fair", "Fair", *fair_times())
    (elsewhere.parent / "fair.ics").rename(elsewhere)
    (elsewhere.parent / "displayname").unlink()
    ask("Open", [elsewhere.as_uri()], {})
    program.wait_for_text(f"Add “{elsewhere.name}” as a calendar?")
    program.press("Cancel")
    ask("Open", [elsewhere.as_uri()], {"activation-token": GLib.Variant("s", "any")})
    program.wait_for_text("as a calendar?")
    program.press("Add")
    program.wait_for_calendars(sorted(["Home", "Work", elsewhere.stem]))
    assert (CALENDARS / elsewhere.name).resolve() == elsewhere
    ask("Open", [elsewhere.as_uri()], {})
    program.wait_for_text("as a calendar?")
    program.press("Add")
    program.wait_for_text("is among the calendars already.")
    program.press("OK")
    ask("Open", ["https://quillet.example/a.ics"], {})
    program.wait_for_text("Only files on this computer")
    program.press("OK")


def fair_times():
    first = entries(0)[0]
    return first.start, first.end


def check_actions(program):
    ask("ActivateAction", "this-week", [], {})
    program.wait_for_text(" · ")
    ask("ActivateAction", "no such action", [GLib.Variant("s", "x")], {})
    ask("ActivateAction", "this-month", [], {})
    program.wait_for_text(entries(0)[0].start.strftime("%B"))


def check_restart(program):
    old = owner()
    program.press_menu_item("Restart Quillet")
    new = wait_for("another process", lambda: owner() not in (None, old) and owner())
    assert program.wait_for_end() == 0
    Quillet.running(new).control("Events")
    assert processes() == {new}
    return new


def check_many_at_once():
    """All but one of them end by themselves."""
    started = [start() for _ in range(6)]
    running = wait_for("one program", owner)
    wait_for("the others to end", lambda: sum(one.poll() is None for one in started) == 1)
    time.sleep(0.5)
    assert processes() == {running}
    return running


def end(process):
    Quillet.running(process).press_menu_item("Quit")
    wait_for("the end", lambda: process not in processes())


def check_without_a_bus():
    alone = [start(DBUS_SESSION_BUS_ADDRESS=f"unix:path={os.environ['HOME']}/no-bus")
             for _ in range(2)]
    for one in alone:
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(one.pid),
                        "--name", "^Quillet$"], check=True, stdout=subprocess.DEVNULL)
        assert one.poll() is None
    for one in alone:
        one.terminate()
        one.wait(timeout=30)


def main():
    write_calendars()
    program = Quillet()
    with program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        check_second_starts(program)
        check_opening_files(program)
        check_actions(program)
        program.leave_to_itself()
        copy = check_restart(program)
    end(copy)
    end(check_many_at_once())
    check_without_a_bus()


main()
