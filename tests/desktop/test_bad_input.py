"""What cannot be read or written costs only itself, and the window says so."""

import os
from pathlib import Path

from accessibility import wait_for
from months import csv_bytes, entries, show_this_month, write_calendars
from program import CALENDARS, SETTINGS, Quillet

DESKTOP = Path(os.environ["HOME"]) / "Desktop"
# Even the administrator can create no file there.
UNWRITABLE = Path("/proc/report.csv")
BROKEN_SETTINGS = b'{ "allDayHours": 8, "isDollarsOn": tr'


def write_bad_files():
    (CALENDARS / "Work" / "garbage.ics").write_bytes(b"\x00\xffnot a calendar")
    (CALENDARS / "Broken export.ics").write_text("<html>Please sign in</html>")
    SETTINGS.parent.mkdir(parents=True, exist_ok=True)
    SETTINGS.write_bytes(BROKEN_SETTINGS)


def check_settings(program):
    program.wait_for_text("quillet.json.broken-1")
    kept = SETTINGS.with_name("quillet.json.broken-1")
    assert kept.read_bytes() == BROKEN_SETTINGS


def check_unwritable_place(program):
    program.save("CSV", UNWRITABLE)
    program.wait_for_log("CSV file write issue")
    assert not UNWRITABLE.exists()
    path = DESKTOP / "month.csv"
    program.save("CSV", path)
    wait_for("the saved file", path.exists)
    assert path.read_bytes() == csv_bytes(entries(0))
    assert os.listdir(DESKTOP) == ["month.csv"]


def main():
    write_calendars()
    write_bad_files()
    with Quillet() as program:
        check_settings(program)
        program.press("Allow")
        show_this_month(program)
        program.wait_for_text("garbage.ics")
        program.wait_for_text("Broken export")
        check_unwritable_place(program)
    wait_for("settings of a first run", SETTINGS.exists)
    assert '"allDayHours": 24' in SETTINGS.read_text()


main()
