"""Finding and using the program's controls as a screen reader does, waiting for conditions only."""

import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE_SECONDS = 30
ROLE = Atspi.Role


class NotSeen(AssertionError):
    """A condition that the window never met."""


class Vanished(Exception):
    """A part of the window that was there a moment ago."""


def wait_for(what, condition, seconds=PATIENCE_SECONDS):
    """The condition's first true value; controls that vanish while being looked at are looked for
    again."""
    deadline = time.monotonic() + seconds
    while True:
        try:
            if value := condition():
                return value
        except (GLib.Error, Vanished):
            pass
        if time.monotonic() > deadline:
            raise NotSeen(f"not within {seconds} seconds: {what}")
        time.sleep(0.02)


def look(what, read):
    """What is read in one go, whatever it is; a window that changes meanwhile is read again."""
    return wait_for(what, lambda: (read(),))[0]


def present(part):
    """Neither a control that has gone nor an interface of it is there to be asked."""
    if part is None:
        raise Vanished
    return part


def children(control):
    return [child for index in range(control.get_child_count())
            if (child := control.get_child_at_index(index)) is not None]


def is_table(control):
    return control.get_role() in (ROLE.TABLE, ROLE.TREE, ROLE.TREE_TABLE, ROLE.LIST)


def below(control):
    """The control and everything in it; a table's cells are read through the table instead."""
    yield control
    if not is_table(control):
        for child in children(control):
            yield from below(child)


def has_state(control, state):
    return control.get_state_set().contains(state)


def application(process_identifier):
    desktop = Atspi.get_desktop(0)
    desktop.clear_cache()
    for child in children(desktop):
        if child.get_process_id() == process_identifier:
            child.set_cache_mask(Atspi.Cache.NONE)
            return child
    return None


def press(what, find):
    """What Space or a click does to the control that is found, once it can be used."""
    def usable():
        control = find()
        action = control and present(control.get_action_iface())
        for index in range(action.get_n_actions() if action else 0):
            if action.get_action_name(index) in ("Press", "Toggle"):
                return action, index
        return None

    action, index = wait_for(f"{what} to be usable", usable)
    action.do_action(index)


def type_text(control, text):
    present(control.get_editable_text_iface()).set_text_contents(text)


def text_of(control):
    text = present(control.get_text_iface())
    return text.get_text(0, text.get_character_count())


def press_key(*names):
    """Keys typed into whatever has the focus."""
    subprocess.run(["xdotool", "key", *names], check=True)


def type_keys(text):
    subprocess.run(["xdotool", "type", text], check=True)


def grid(table):
    return present(table.get_table_iface())


def cell(table, row, column):
    return present(grid(table).get_accessible_at(row, column))


def cell_names(table, column):
    return [cell(table, row, column).get_name() for row in range(grid(table).get_n_rows())]


def row_names(table):
    """The texts of a table's cells, row by row."""
    cells = grid(table)
    return [[cell(table, row, column).get_name() for column in range(cells.get_n_columns())]
            for row in range(cells.get_n_rows())]


def column_titles(table):
    cells = grid(table)
    return [present(cells.get_column_header(column)).get_name()
            for column in range(cells.get_n_columns())]
