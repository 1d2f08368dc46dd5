"""Every pane of the preferences, presets of the report and column layouts, mostly by keyboard."""

import json

from accessibility import ROLE, Atspi, has_state, press_key, type_keys, wait_for
from months import entries, show_this_month, titles, write_calendars
from program import SETTINGS, Quillet


def stored(key):
    """What the settings file holds; it is written within a second."""
    return json.loads(SETTINGS.read_text()).get(key) if SETTINGS.exists() else None


def wait_for_stored(key, value):
    wait_for(f"{key} to be stored as {value!r}", lambda: stored(key) == value)


def is_checked(program, name):
    return has_state(program.control(name, {ROLE.CHECK_BOX}), Atspi.StateType.CHECKED)


def check_switch(program, name, key):
    """On and off again; each takes effect at once."""
    before = is_checked(program, name)
    for value in (not before, before):
        program.press(name)
        wait_for_stored(key, value)


def check_panes(program):
    program.wait_for_window("Quillet")
    press_key("ctrl+comma")
    program.wait_for_window("General")
    check_switch(program, "Leave all-day events out", "allDayEventsNotIncluded")
    check_switch(program, "Show money", "isDollarsOn")
    program.type_and_confirm("Hourly Rate", "82.5")
    wait_for_stored("hourlyRate", {"$decimal": "82.5"})
    program.type_and_confirm("Hours for each day", "8")
    wait_for_stored("allDayHours", 8)

    press_key("ctrl+Tab")
    program.wait_for_window("Columns")
    wait_for_stored("selectedPreferencesToolbarItem", 1)
    program.type_and_confirm("Title of “Title”", "Task")
    wait_for("the table's own title",
             lambda: "Task" in program.column_titles("Events"))
    check_switch(program, "Location", "isLocationColumn")
    program.press("Reset All Titles")
    wait_for("the first title",
             lambda: "Title" in program.column_titles("Events"))

    press_key("ctrl+Tab")
    program.wait_for_window("Text")
    check_switch(program, "Wrap long texts", "isTXTWrapping")
    check_switch(program, "Longest event", "isTXTMax")
    press_key("ctrl+Tab")
    program.wait_for_window("CSV/TSV")
    check_switch(program, "Write a header record", "isCSVHeader")
    press_key("ctrl+Tab")
    program.wait_for_window("Reminders")
    check_switch(program, "Number of reminders", "isTodoTXTIncludeCount")
    press_key("Escape")
    wait_for("the preferences to close", lambda: not program.find("Number of reminders"))


def name_new(program, listed, name):
    """Adds to the list of names, and types the new one's."""
    count = len(program.names(listed))
    program.press("New")
    wait_for("the new row", lambda: len(program.names(listed)) == count + 1)
    type_keys(name)
    press_key("Return")
    wait_for("the new name", lambda: program.names(listed)[-1] == name)


def delete(program, words):
    """Deletes the selected name, and says OK to what is asked or told."""
    program.press("Delete")
    program.wait_for_text(words)
    program.press("OK")
    wait_for("the alert to close", lambda: not any(words in text for text in program.texts()))


def check_presets(program):
    program.press_menu_item("Text Report Preferences…")
    program.wait_for_window("Text")
    program.press("Longest event")
    program.press("Presets…")
    program.wait_for_window("Text Report Presets")
    name_new(program, "Text Report Presets", "Invoice")
    assert program.names("Text Report Presets") == ["Default", "Invoice"]
    press_key("Home", "Return")
    wait_for_stored("isTXTMax", False)
    press_key("Down", "Return")
    wait_for_stored("isTXTMax", True)
    delete(program, "Deleted records cannot be restored.")
    wait_for("the preset to go",
             lambda: program.names("Text Report Presets") == ["Default"])
    delete(program, "Default settings cannot be deleted.")
    program.wait_for_window("Text Report Presets")
    press_key("Escape")
    wait_for("the sheet to close", lambda: not program.find("Text Report Presets"))
    program.wait_for_window("Text")
    press_key("Escape")
    wait_for("the preferences to close", lambda: not program.find("Longest event"))


def check_layouts(program):
    program.wait_for_window("Quillet")
    press_key("ctrl+l")
    program.control("Column Layouts", {ROLE.LIST})
    before = program.column_titles("Events")
    name_new(program, "Column Layouts", "Wide")
    assert program.names("Column Layouts") == ["Default", "Wide"]
    press_key("Escape")
    wait_for("the popover to go", lambda: not program.find("Bring column titles back, too"))
    program.press_menu_item("End Date")
    wait_for("another column", lambda: "End Date" in program.column_titles("Events"))
    program.press("Layouts")
    program.control("Column Layouts", {ROLE.LIST})
    press_key("End", "Return")
    wait_for("the columns as they were", lambda: program.column_titles("Events") == before)
    press_key("Home")
    delete(program, "Default layout cannot be deleted.")
    assert program.names("Column Layouts") == ["Default", "Wide"]
    press_key("Escape")


def main():
    write_calendars()
    with Quillet() as program:
        program.press("Allow")
        show_this_month(program)
        check_panes(program)
        check_presets(program)
        check_layouts(program)
    assert program.log == "", f"the program logged:\n{program.log}"
    with Quillet() as program:
        program.wait_for_titles(titles(entries(0)))
        program.wait_for_window("Quillet")
        press_key("ctrl+l")
        assert program.names("Column Layouts") == ["Default", "Wide"], "kept for the next start"


main()
