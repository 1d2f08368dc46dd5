"""Groups narrow the calendars, the search the events of those: by keyboard and as a screen reader
does."""

import json

from accessibility import (ROLE, Atspi, children, has_state, present, press_key, type_keys,
                           type_text, wait_for)
from months import entries, show_this_month, titles, write_calendars
from program import SETTINGS, Quillet

TICKED = Atspi.StateType.CHECKED
GROUP = 'Bill "1" & 100% %@'


def group_names(program):
    return program.names("Calendar Groups")


def make_group(program, name, calendar):
    program.press("Edit Calendar Groups")
    program.wait_for_window("Calendar Groups")
    program.press("New")
    wait_for("the new group", lambda: len(group_names(program)) == 2)
    press_key("ctrl+a")
    type_keys(name)
    press_key("Return")
    wait_for("its name", lambda: group_names(program) == ["All Calendars", name])
    row = program.names("Calendars in Group").index(calendar)
    for _ in range(3):
        program.press_tab()
    press_key("ctrl+Home", *["Down"] * row, "space")
    wait_for("the tick", lambda: has_state(
        children(program.control("Calendars in Group", {ROLE.LIST}))[row], TICKED))
    program.press("Close")
    wait_for("the sheet to close", lambda: program.find("Calendar Groups", {ROLE.LIST}) is None)


def choose_group(program, key):
    chooser = program.control("Calendar Group", {ROLE.COMBO_BOX})
    present(chooser.get_component_iface()).grab_focus()
    wait_for("the chooser's focus", lambda: has_state(chooser, Atspi.StateType.FOCUSED))
    press_key(key)


def check_groups(program):
    make_group(program, GROUP, "Work")
    choose_group(program, "Down")
    program.wait_for_calendars(["Work"])
    program.wait_for_titles(titles([entry for entry in entries(0) if entry.calendar == "Work"]))


def check_search(program):
    this_month = entries(0)
    program.wait_for_window("Quillet")
    press_key("ctrl+f")
    type_keys("WORKSHOP")
    program.wait_for_titles([entry.title for entry in this_month if "Workshop" in entry.title])
    press_key("ctrl+a")
    type_keys("dentist")
    program.wait_for_text("Nothing found")
    choose_group(program, "Up")
    program.wait_for_titles([entry.title for entry in this_month if "Dentist" in entry.title])
    program.press_menu_item("Location")
    program.wait_for_text("Nothing found")
    program.press_menu_item("Title")
    program.wait_for_titles([entry.title for entry in this_month if "Dentist" in entry.title])
    type_text(program.control("Search Events", {ROLE.TEXT}), '"finals"')
    program.wait_for_titles([entry.title for entry in this_month if '"finals"' in entry.title])
    press_key("ctrl+f", "Escape")
    program.wait_for_titles(titles(this_month))


def check_removal(program):
    program.press("Edit Calendar Groups")
    wait_for("the groups", lambda: group_names(program) == ["All Calendars", GROUP])
    program.focus("Calendar Groups", {ROLE.LIST})
    press_key("Home")
    program.press("Delete")
    program.wait_for_text("Cannot delete All Calendars")
    program.press("OK")
    program.focus("Calendar Groups", {ROLE.LIST})
    press_key("Down")
    program.press("Delete")
    program.wait_for_text("Delete the group?")
    program.press("Cancel")
    assert group_names(program) == ["All Calendars", GROUP]
    program.press("Delete")
    program.press("OK")
    wait_for("the group to go", lambda: group_names(program) == ["All Calendars"])
    press_key("Escape")
    wait_for("the sheet to close", lambda: program.find("Calendar Groups", {ROLE.LIST}) is None)


def main():
    write_calendars()
    with Quillet() as program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        show_this_month(program)
        check_groups(program)
    with Quillet() as program:
        program.wait_for_calendars(["Work"])
        check_search(program)
        check_removal(program)
    assert program.log == "", f"the program logged:\n{program.log}"
    groups = json.loads(SETTINGS.read_text())["calendarGroups"]
    assert [group["calendarGroupName"] for group in groups] == ["All Calendars"]


main()
