"""One program runs in a session, whoever starts it and however often."""

import json
import os
import subprocess
import time
from pathlib import Path

from accessibility import Atspi, has_state, wait_for
from months import entries, write_calendars
from program import SETTINGS, Quillet
from session import active_window, ask, minimize, owner, processes, start
from gi.repository import GLib


def check_second_starts(program):
    wait_for("the name", owner)
    for environment in ({}, {"DESKTOP_STARTUP_ID": f"desktop-1_TIME{2**31 - 1}"}):
        wait_for("the window", lambda: active_window() == "Quillet")
        minimize()
        assert start(**environment).wait(timeout=30) == 0
        wait_for("the window to come to the front", lambda: active_window() == "Quillet")
        assert processes() == {owner()}
    assert program.find("Events") or program.find("Tick All Calendars")


def check_actions(program):
    ask("ActivateAction", "this-week", [], {})
    program.wait_for_choice("Week")
    ask("ActivateAction", "no such action", [GLib.Variant("s", "x")], {})
    ask("ActivateAction", "this-month", [], {})
    program.wait_for_choice("Month")
    program.wait_for_text(entries(0)[0].start.strftime("%B"))


def check_restart(program):
    old = owner()
    # What was changed last is what the copy must find.
    program.press("Year")
    program.press_menu_item("Restart Quillet")
    new = wait_for("another process", lambda: owner() not in (None, old) and owner())
    assert program.wait_for_end() == 0
    copy = Quillet.running(new)
    wait_for("the chosen year", lambda: has_state(copy.control("Year"), Atspi.StateType.CHECKED))
    assert json.loads(SETTINGS.read_text())["quickDatePeriod"] == 3
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
    """Each start is a program of its own; a missing bus is nothing that a user need read of."""
    log = Path(os.environ["HOME"]) / "alone"
    with log.open("w") as output:
        alone = [start(output, DBUS_SESSION_BUS_ADDRESS=f"unix:path={os.environ['HOME']}/no-bus")
                 for _ in range(2)]
    for one in alone:
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(one.pid),
                        "--name", "^Quillet$"], check=True, stdout=subprocess.DEVNULL)
        assert one.poll() is None
    time.sleep(1)
    for one in alone:
        one.terminate()
        one.wait(timeout=30)
    assert log.read_text() == "", log.read_text()


def main():
    write_calendars()
    program = Quillet()
    with program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        check_second_starts(program)
        check_actions(program)
        program.leave_to_itself()
        copy = check_restart(program)
    end(copy)
    end(check_many_at_once())
    check_without_a_bus()


main()
