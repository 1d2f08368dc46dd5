"""The program under test: its files in the scratch home, its process and its window."""

import os
import subprocess
import sys
import time
from pathlib import Path

from accessibility import (ROLE, Atspi, GLib, Vanished, application, below, cell,
                           cell_names, children, column_titles, grid, has_state, look, present,
                           press, press_key, row_names, type_keys, type_text, wait_for)

CALENDARS = Path(os.environ["XDG_DATA_HOME"]) / "calendars"
LOG = Path(os.environ["HOME"]) / "log"
TABLES = {ROLE.TABLE, ROLE.TREE, ROLE.TREE_TABLE}
SETTINGS = Path(os.environ["XDG_CONFIG_HOME"]) / "quillet" / "quillet.json"
STILL_SECONDS = 0.4
STALE_QUESTION = "QAccessibleTable::cellAt: invalid index:"


def write_event(folder, uid, title, start, end, extra=()):
    """One event in one file, replaced at once as synchronising programs do. Times are UTC."""
    form = "%Y%m%dT%H%M%SZ"
    lines = ["BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//test//EN", "BEGIN:VEVENT", f"UID:{uid}",
             "DTSTAMP:20240101T000000Z", f"DTSTART:{start.strftime(form)}",
             f"DTEND:{end.strftime(form)}", f"SUMMARY:{title}", *extra, "END:VEVENT",
             "END:VCALENDAR", ""]
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "displayname").write_text(folder.name)
    scratch = folder / f"{uid}.tmp"
    scratch.write_bytes("\r\n".join(lines).encode())
    scratch.rename(folder / f"{uid}.ics")


class Quillet:
    """with Quillet() as program: … starts the program, and quits it as a user does. What it wrote
    to its standard output and error is in `log`. In another locale than the neutral one, the words
    say what stands there for the English ones of this file."""

    def __init__(self, locale=None, words=None):
        self._environment = dict(os.environ)
        if locale:
            del self._environment["LC_ALL"]
            self._environment["LANG"] = locale
        self._words = words or {}
        self._process = None
        self._application = None
        self._is_left = False

    @classmethod
    def running(cls, process_identifier):
        """A program that something else has started."""
        program = cls()
        program._application = wait_for("the program on the accessibility bus", lambda: next(
            (found for found in [application(process_identifier)] if found and children(found)),
            None))
        return program

    @property
    def log(self):
        """Without what Qt says of a reader that asks for a row which has gone a moment ago."""
        return "".join(line for line in LOG.read_text(errors="replace").splitlines(keepends=True)
                       if not line.startswith(STALE_QUESTION))

    def __enter__(self):
        with LOG.open("w") as log:
            self._process = subprocess.Popen([sys.argv[1]], stdout=log, stderr=log,
                                             env=self._environment)
        try:
            self._application = wait_for("the program on the accessibility bus", self._started)
        except AssertionError:
            self._give_up()
            raise
        return self

    def __exit__(self, kind, value, trace):
        if kind is not None:
            self._give_up()
            return
        if self._is_left:
            return
        try:
            self.press_menu_item(self._word("Quit"))
            code = self._process.wait(timeout=30)
        except (AssertionError, subprocess.TimeoutExpired):
            self._give_up()
            raise
        if code != 0:
            raise AssertionError(f"the program ended with {code}:\n{self.log}")

    @property
    def process_identifier(self):
        return self._process.pid

    def leave_to_itself(self):
        """The program is about to end by itself, for what the test does next."""
        self._is_left = True

    def wait_for_end(self):
        return self._process.wait(timeout=30)

    def _word(self, english):
        return self._words.get(english, english)

    def _started(self):
        if self._process.poll() is not None:
            raise AssertionError("the program ended at its start")
        found = application(self._process.pid)
        return found if found and children(found) else None

    def _give_up(self):
        try:
            self._print_controls()
        except GLib.Error as error:
            print(f"the controls changed meanwhile: {error}", file=sys.stderr)
        self._process.kill()
        self._process.wait()
        print(self.log, file=sys.stderr)

    def _print_controls(self):
        for control in self._controls() if self._application else []:
            if has_state(control, Atspi.StateType.SHOWING):
                print(control.get_role_name(), repr(control.get_name()), file=sys.stderr)

    def _controls(self):
        for window in children(self._application):
            yield from below(window)

    def find(self, name, roles=None):
        """The shown control of that name, or nothing."""
        return look(f'whether there is a control "{name}"', lambda: next(
            (control for control in self._controls()
             if control.get_name() == name and (roles is None or control.get_role() in roles)
             and has_state(control, Atspi.StateType.SHOWING)), None))

    def control(self, name, roles=None):
        return wait_for(f'a control "{name}"', lambda: self.find(name, roles))

    def wait_for_window(self, title):
        """Until keys go to the window of that title."""
        wait_for(f'the window "{title}"', lambda: any(
            window.get_name() == title and has_state(window, Atspi.StateType.ACTIVE)
            for window in children(self._application)))

    def wait_until_left(self):
        """Until the program knows that keys go to another one, which is a while after they do."""
        wait_for("no active window", lambda: not any(
            has_state(window, Atspi.StateType.ACTIVE) for window in children(self._application)))

    def press(self, name):
        """A button of any kind."""
        press(f'"{name}"', lambda: self.find(name, {ROLE.PUSH_BUTTON, ROLE.TOGGLE_BUTTON,
                                                    ROLE.RADIO_BUTTON, ROLE.CHECK_BOX}))

    def wait_for_choice(self, name):
        """Until the one of several that bears the name is the chosen one."""
        wait_for(f'"{name}" to be chosen',
                 lambda: has_state(self.control(name, {ROLE.RADIO_BUTTON}), Atspi.StateType.CHECKED))

    def press_menu_item(self, name):
        items = {ROLE.MENU_ITEM, ROLE.CHECK_MENU_ITEM, ROLE.RADIO_MENU_ITEM}
        press(f'the menu item "{name}"', lambda: next(
            (control for control in self._controls()
             if control.get_role() in items and control.get_name() == name), None))

    def menus(self):
        return look("the menus", lambda: [
            menu.get_name() for control in self._controls()
            if control.get_role() == ROLE.MENU_BAR for menu in children(control)])

    def texts(self):
        """Every name that is shown outside tables."""
        return look("the window's texts", lambda: [
            control.get_name() for control in self._controls()
            if control.get_name() and has_state(control, Atspi.StateType.SHOWING)])

    def wait_for_text(self, part):
        wait_for(f'a text with "{part}"', lambda: any(part in text for text in self.texts()))

    def names(self, listed):
        """Of a list of names."""
        return look(f'the names in "{listed}"', lambda: [
            child.get_name() for child in children(present(self.find(listed, {ROLE.LIST})))])

    def wait_for_log(self, part):
        wait_for(f'"{part}" in the log', lambda: part in self.log)

    def type_and_confirm(self, field, text):
        control = self.control(field, {ROLE.TEXT, ROLE.SPIN_BUTTON})
        self._focus(control)
        press_key("ctrl+a")
        type_keys(text)
        press_key("Return")

    def focused(self):
        """The control that has the focus; of tabs the bar has it, whatever the chosen one says."""
        return next((control for control in self._controls()
                     if control.get_role() != ROLE.PAGE_TAB
                     and has_state(control, Atspi.StateType.FOCUSED)), None)

    def press_tab(self, key="Tab"):
        """And waits until the focus has moved: keys that follow would go elsewhere."""
        before = wait_for("a control with the focus", self.focused)
        press_key(key)
        wait_for(f'the focus to leave "{before.get_name()}"',
                 lambda: not has_state(before, Atspi.StateType.FOCUSED))

    def _focus(self, control):
        """Tables take the focus from keys only."""
        if not present(control.get_component_iface()).grab_focus():
            for _ in range(60):
                if has_state(control, Atspi.StateType.FOCUSED):
                    break
                self.press_tab()
        wait_for(f'"{control.get_name()}" to have the focus',
                 lambda: has_state(control, Atspi.StateType.FOCUSED))

    def _table(self, name):
        return present(self.find(self._word(name), TABLES))

    def rows(self, table):
        return look(f'the rows of "{table}"', lambda: row_names(self._table(table)))

    def column_titles(self, table):
        return look(f'the columns of "{table}"', lambda: column_titles(self._table(table)))

    def titles(self):
        """Of the events that are shown; none while something else stands in the table's place."""
        return look("the events", lambda: self._titles_in(self.find(self._word("Events"), TABLES)))

    def _titles_in(self, events):
        columns = column_titles(events) if events else []
        titles = self._word("Title")
        return cell_names(events, columns.index(titles)) if titles in columns else []

    def wait_for_titles(self, titles, seconds=30):
        """Until the table shows just these events, in this order."""
        wait_for(f"the events {titles}", lambda: self.titles() == titles, seconds)

    def select_row(self, row):
        wait_for(f"row {row} to be selected",
                 lambda: grid(self._table("Events")).add_row_selection(row))

    def double_click_event(self, row):
        """As people do: once nothing moves any more. A table that shows what was read anew takes
        two clicks, one before and one after it, for no double click."""
        area = wait_for("a table that holds still", lambda: self._still_area(row))
        subprocess.run(["xdotool", "mousemove", str(area.x + 5), str(area.y + area.height // 2),
                        "click", "--repeat", "2", "--delay", "50", "1"], check=True)

    def _still_area(self, row):
        """Of a cell that was the same one for a while; each reading of events makes new ones."""
        first = cell(self._table("Events"), row, 0)
        until = time.monotonic() + STILL_SECONDS
        while time.monotonic() < until:
            present(first.get_component_iface())
            time.sleep(0.05)
        return present(first.get_component_iface()).get_extents(0)

    def selected_titles(self):
        def selected():
            events = self._table("Events")
            titles = self._titles_in(events)
            chosen = [title for row, title in enumerate(titles)
                      if grid(events).is_row_selected(row)]
            if self._titles_in(events) != titles:
                raise Vanished
            return chosen

        return look("the selected events", selected)

    def calendar_titles(self):
        return [" ".join(row).strip() for row in self.rows("Calendars")]

    def wait_for_calendars(self, titles):
        wait_for(f"the calendars {titles}", lambda: self.calendar_titles() == titles)

    def focus(self, name, roles=None):
        self._focus(self.control(name, roles))

    def toggle_calendar(self, title):
        """With the keyboard; tables take no action of a single cell."""
        row = self.calendar_titles().index(title)
        self._focus(self.control("Calendars", TABLES))
        press_key("ctrl+Home", *["Down"] * row, "space")

    def save(self, button, path):
        """Through the save dialog, typing the path."""
        self.press(button)
        field = wait_for("the save dialog", lambda: self._in_file_dialog(
            lambda control: control.get_role() == ROLE.TEXT
            and has_state(control, Atspi.StateType.EDITABLE)))
        type_text(field, str(path))
        press("the save dialog's button", lambda: self._in_file_dialog(self._saves))
        wait_for("the save dialog to close", lambda: not self._file_dialog())

    def _saves(self, control):
        return control.get_name() == self._word("Save")

    def _in_file_dialog(self, condition):
        dialog = self._file_dialog()
        return dialog and next(filter(condition, below(dialog)), None)

    def _file_dialog(self):
        for window in children(self._application):
            if (window.get_role() in (ROLE.DIALOG, ROLE.FILE_CHOOSER)
                    and has_state(window, Atspi.StateType.SHOWING)):
                if any(map(self._saves, below(window))):
                    return window
        return None
