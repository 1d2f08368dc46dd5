"""From a folder of calendars to hours, money and a saved file, as a newcomer does it."""

import json
import os
from pathlib import Path

from accessibility import wait_for
from months import csv_bytes, entries, show_this_month, titles, write_calendars
from program import SETTINGS, Quillet

DESKTOP = Path(os.environ["HOME"]) / "Desktop"
SETTINGS_TEXT = Path(__file__).resolve().parents[2] / "docs" / "settings.md"


def saved(program, name):
    path = DESKTOP / name
    program.save("CSV", path)
    wait_for(f"the file {name}", path.exists)
    return path.read_bytes()


def check_saved(program, name, expected):
    content = saved(program, name)
    assert content == expected, f"{name} holds\n{content.decode()}\nand not\n{expected.decode()}"


def check_ticks(program):
    this_month = entries(0)
    program.toggle_calendar("Home")
    program.wait_for_titles(titles([entry for entry in this_month if entry.calendar == "Work"]))
    check_saved(program, "work.csv",
                csv_bytes([entry for entry in this_month if entry.calendar == "Work"]))
    program.toggle_calendar("Home")
    program.wait_for_titles(titles(this_month))


def check_steps(program):
    program.press("Next")
    program.wait_for_titles(titles(entries(1)))
    program.press("Previous")
    program.wait_for_titles(titles(entries(0)))
    program.press("Previous")
    program.wait_for_titles(titles(entries(-1)))
    check_saved(program, "last-month.csv", csv_bytes(entries(-1)))
    program.press("Current")
    program.wait_for_titles(titles(entries(0)))


def check_money(program):
    program.press_menu_item("Money")
    program.type_and_confirm("Hourly Rate", "80")
    wait_for("the cost of an hour and a half",
             lambda: any("$120.00" in row for row in program.rows("Events")))
    check_saved(program, "money.csv", csv_bytes(entries(0), rate=80))


def check_settings():
    """The program stores nothing that its users are not told of."""
    described = SETTINGS_TEXT.read_text()
    stored = json.loads(SETTINGS.read_text())
    assert len(stored) > 100
    assert [key for key in stored if f"`{key}`" not in described] == []


def main():
    write_calendars()
    with Quillet() as program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        show_this_month(program)
        check_saved(program, "month.csv", csv_bytes(entries(0)))
        check_ticks(program)
        check_steps(program)
        check_money(program)
    assert program.log == "", f"the program logged:\n{program.log}"
    check_settings()


main()
