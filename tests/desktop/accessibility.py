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
    """A part of a table that was there a moment ago, while its rows were counted."""


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


def press(control):
    """What Space or a click does, once the control can be used."""
    action = control.get_action_iface()

    def usable():
        names = [action.get_action_name(index) for index in range(action.get_n_actions())]
        return next((index for index, name in enumerate(names) if name in ("Press", "Toggle")), None)

    action.do_action(wait_for(f'"{control.get_name()}" to be usable',
                              lambda: None if usable() is None else (usable(),))[0])


def type_text(control, text):
    control.get_editable_text_iface().set_text_contents(text)


def text_of(control):
    text = control.get_text_iface()
    return text.get_text(0, text.get_character_count())


def press_key(*names):
    """Keys typed into whatever has the focus."""
    subprocess.run(["xdotool", "key", *names], check=True)


def type_keys(text):
    subprocess.run(["xdotool", "type", text], check=True)


def present(part):
    if part is None:
        raise Vanished
    return part


def cell(table, row, column):
    return present(table.get_table_iface().get_accessible_at(row, column))


def cell_names(table, column):
    return [cell(table, row, column).get_name()
            for row in range(table.get_table_iface().get_n_rows())]


def row_names(table):
    """The texts of a table's cells, row by row."""
    cells = table.get_table_iface()
    return [[cell(table, row, column).get_name() for column in range(cells.get_n_columns())]
            for row in range(cells.get_n_rows())]


def column_titles(table):
    cells = table.get_table_iface()
    return [present(cells.get_column_header(column)).get_name()
            for column in range(cells.get_n_columns())]
