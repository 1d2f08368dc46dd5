"""Without the user's consent nothing is read. A refusal is told when the program comes to the front,
once each time, and can be taken back. So are calendars that were never within reach; those that are
known wait in the list until they are back, and keep their ticks."""

import os
import shutil
import subprocess
import sys
import time
from pathlib import Path

import session
from accessibility import Atspi, has_state, press_key, wait_for
from months import entries, show_this_month, titles, write_calendars
from program import CALENDARS, SETTINGS, Quillet

KEPT = CALENDARS.with_name("kept")
STATE = Path(os.environ["XDG_STATE_HOME"]) / "quillet"
ALERT = "Access Denied"
REASON = "Quillet doesn't have access to your Calendars."
# A second alert would follow the first at once.
WATCHED_SECONDS = 1.0
ABSENCE_SECONDS = 0.6


def dismiss_only_alert(program):
    """With the keyboard; nothing may come after it."""
    program.wait_for_text(REASON)
    assert ALERT in program.texts()
    wait_for("keys to go to the alert",
             lambda: has_state(program.control("OK"), Atspi.StateType.FOCUSED))
    press_key("Return")
    wait_for("the alert to close", lambda: ALERT not in program.texts())
    deadline = time.monotonic() + WATCHED_SECONDS
    while time.monotonic() < deadline:
        assert ALERT not in program.texts(), "the alert came again by itself"
        time.sleep(0.05)


def come_back(program):
    """After an absence that counts: a window manager takes the focus away for a moment, too."""
    session.minimize()
    program.wait_until_left()
    time.sleep(ABSENCE_SECONDS)
    session.ask("Activate", {})


def check_refusals():
    with Quillet() as program:
        program.press("Don’t Allow")
        program.wait_for_text("may not read your calendars")
        assert program.calendar_titles() == []
        assert ALERT not in program.texts()
        come_back(program)
        dismiss_only_alert(program)
    with Quillet() as program:
        dismiss_only_alert(program)
        come_back(program)
        dismiss_only_alert(program)
        program.press("Allow Calendar Access…")
        program.press("Don’t Allow")
        dismiss_only_alert(program)
        program.wait_for_window("Quillet")
        press_key("alt+c", "c")
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        show_this_month(program)


def at_work():
    return titles([entry for entry in entries(0) if entry.calendar == "Work"])


def check_consent():
    with Quillet() as program:
        program.wait_for_titles(titles(entries(0)))
        assert "Allow" not in program.texts()
        come_back(program)
        program.wait_for_window("Quillet")
        assert ALERT not in program.texts()
        program.toggle_calendar("Home")
        program.wait_for_titles(at_work())


def block():
    """A file stands where the folder of calendars should be."""
    CALENDARS.rename(KEPT)
    CALENDARS.write_text("not a folder")


def unblock():
    CALENDARS.unlink()
    KEPT.rename(CALENDARS)


def has_folder_only():
    """Whether the program was built to read nothing else."""
    libraries = subprocess.run(["ldd", sys.argv[1]], check=True, capture_output=True, text=True)
    return "libecal" not in libraries.stdout


def check_out_of_reach():
    block()
    with Quillet() as program:
        if has_folder_only():
            # There is nothing yet that could be allowed.
            dismiss_only_alert(program)
        else:
            program.press("Allow")
            program.wait_for_text("a folder that cannot be reached")
        come_back(program)
        dismiss_only_alert(program)
        unblock()
        come_back(program)
        if has_folder_only():
            program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        show_this_month(program)
        assert ALERT not in program.texts()
    shutil.rmtree(STATE)
    SETTINGS.unlink()


def check_known_calendars_stay():
    block()
    with Quillet() as program:
        program.wait_for_text(f"{CALENDARS}: Not a directory")
        program.wait_for_calendars(["Home", "Work"])
        program.wait_for_titles([])
        unblock()
        program.wait_for_titles(at_work())
        assert ALERT not in program.texts()


def main():
    write_calendars()
    check_out_of_reach()
    check_refusals()
    check_consent()
    check_known_calendars_stay()


main()
