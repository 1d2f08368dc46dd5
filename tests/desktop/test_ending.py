"""A session that ends, a terminal that closes and a user at the keyboard lose nothing."""

import json
import os
import signal
import time
from pathlib import Path

from accessibility import wait_for
from months import show_this_month, write_calendars
from program import CALENDARS, SETTINGS, Quillet

# Of which the machine may take most for others.
LONGEST_END_SECONDS = 0.5
WINDOW_STATE = Path(os.environ["XDG_STATE_HOME"]) / "quillet" / "window.ini"


def end(program, number):
    program.leave_to_itself()
    os.kill(program.process_identifier, number)
    code = program.wait_for_end()
    assert code == 0, f"{number.name} ended the program with {code}"


def check_signal(number, kind):
    """What was done a moment before is on the disk, though a dialog was open."""
    WINDOW_STATE.unlink(missing_ok=True)
    with Quillet() as program:
        program.wait_for_calendars(["Home", "Work"])
        program.press_menu_item(kind)
        program.press_menu_item("About Quillet")
        program.wait_for_text("ready to bill")
        end(program, number)
    assert WINDOW_STATE.exists(), f"{number.name} left no window state"
    return json.loads(SETTINGS.read_text())["quickDatePeriod"]


def check_signals():
    kinds = {signal.SIGTERM: ("Week", 1), signal.SIGINT: ("Year", 3), signal.SIGHUP: ("Month", 2)}
    for number, (kind, stored) in kinds.items():
        assert check_signal(number, kind) == stored, number.name


def check_end_during_the_first_reading():
    """What is still being read is waited for by nobody."""
    event = ("BEGIN:VEVENT\r\nUID:{0}\r\nDTSTART:20240304T090000Z\r\nDTEND:20240304T100000Z\r\n"
             "RRULE:FREQ=DAILY\r\nSUMMARY:Event {0}\r\nEND:VEVENT\r\n")
    for number in range(8):
        events = "".join(event.format(f"{number}-{count}") for count in range(30_000))
        (CALENDARS / f"Large {number}.ics").write_text(
            f"BEGIN:VCALENDAR\r\nVERSION:2.0\r\n{events}END:VCALENDAR\r\n", newline="")
    with Quillet() as program:
        started = time.monotonic()
        end(program, signal.SIGTERM)
        took = time.monotonic() - started
    print(f"ended {took * 1000:.0f} ms after the signal, during the first reading")
    assert took < LONGEST_END_SECONDS, took
    for path in CALENDARS.glob("Large *.ics"):
        path.unlink()


def check_settings_that_vanish():
    before = json.loads(SETTINGS.read_text())
    with Quillet() as program:
        program.wait_for_calendars(["Home", "Work"])
        SETTINGS.unlink()
        program.press_menu_item("Money")
        wait_for("the settings to be there again", SETTINGS.exists)
    after = json.loads(SETTINGS.read_text())
    assert before.keys() <= after.keys(), before.keys() - after.keys()


def check_pipe_in_place():
    """Of the settings and of the window's state: the program starts, and says what it found."""
    for path in (SETTINGS, WINDOW_STATE):
        path.unlink()
        os.mkfifo(path)
    with Quillet() as program:
        program.wait_for_text("quillet.json.broken-1")
    assert SETTINGS.is_file() and WINDOW_STATE.is_file()


def main():
    write_calendars()
    with Quillet() as program:
        program.press("Allow")
        show_this_month(program)
    check_signals()
    check_end_during_the_first_reading()
    check_settings_that_vanish()
    check_pipe_in_place()


main()
