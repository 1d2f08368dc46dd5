"""The main job without a mouse: every step is a key that a user can press; the accessibility
interface only tells what the window shows."""

import os
from pathlib import Path

from accessibility import (ROLE, Atspi, children, has_state, press_key, text_of, type_keys, wait_for)
from months import csv_bytes, entries, titles, write_calendars
from program import TABLES, Quillet

DESKTOP = Path(os.environ["HOME"]) / "Desktop"


def tab_to(program, name, roles):
    """Tab goes around the whole window, so it comes by everything that can take the focus."""
    for _ in range(80):
        control = program.find(name, roles)
        if control and has_state(control, Atspi.StateType.FOCUSED):
            return control
        program.press_tab()
    raise AssertionError(f'Tab never came to "{name}"')


def dialog_of(program):
    return next((window for window in children(program._application)
                 if window.get_role() in (ROLE.DIALOG, ROLE.ALERT, ROLE.FILE_CHOOSER)
                 and has_state(window, Atspi.StateType.ACTIVE)), None)


def save_with_keys(program, keys, name, expected):
    path = DESKTOP / name
    press_key(*keys)
    wait_for("the save dialog", lambda: dialog_of(program))
    press_key("ctrl+a")
    type_keys(str(path))
    press_key("Return")
    wait_for(f"the file {name}", path.exists)
    content = path.read_bytes()
    assert content == expected, f"{name} holds\n{content.decode()}\nand not\n{expected.decode()}"
    wait_for("the save dialog to close", lambda: dialog_of(program) is None)
    program.wait_for_window("Quillet")


def choose_month(program):
    press_key("ctrl+3")
    press_key("ctrl+t")
    program.wait_for_titles(titles(entries(0)))
    press_key("alt+Right")
    program.wait_for_titles(titles(entries(1)))
    press_key("alt+Left")
    program.wait_for_titles(titles(entries(0)))


def untick_home(program):
    tab_to(program, "Calendars", TABLES)
    press_key("ctrl+Home", "space")
    work = [entry for entry in entries(0) if entry.calendar == "Work"]
    program.wait_for_titles(titles(work))
    return work


def set_rate(program):
    """Through the menu, then in the field."""
    press_key("alt+v", "m")
    field = tab_to(program, "Hourly Rate", {ROLE.TEXT})
    press_key("ctrl+a")
    type_keys("80")
    press_key("Return")
    wait_for("the rate", lambda: text_of(field) == "80")


def read_report(program, expected_title):
    press_key("ctrl+r")
    view = program.control("Text Report", {ROLE.TEXT})
    wait_for("the report to have the focus", lambda: has_state(view, Atspi.StateType.FOCUSED))
    wait_for("the report's text", lambda: expected_title in text_of(view))
    press_key("Escape")
    wait_for("the report to close", lambda: program.find("Text Report", {ROLE.TEXT}) is None)


def main():
    write_calendars()
    with Quillet() as program:
        wait_for("the question", lambda: dialog_of(program))
        press_key("Return")
        program.wait_for_calendars(["Home", "Work"])
        program.wait_for_window("Quillet")
        choose_month(program)
        work = untick_home(program)
        set_rate(program)
        save_with_keys(program, ["ctrl+s"], "work.csv", csv_bytes(work, rate=80))
        read_report(program, work[0].title)
    assert program.log == "", f"the program logged:\n{program.log}"


main()
