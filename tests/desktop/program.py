"""The program under test: its files in the scratch home, its process and its window."""

import os
import subprocess
import sys
from pathlib import Path

from accessibility import (ROLE, Atspi, NotSeen, application, below, children, has_state, press,
                           row_names, type_text, wait_for)

CALENDARS = Path(os.environ["XDG_DATA_HOME"]) / "calendars"
SETTINGS = Path(os.environ["XDG_CONFIG_HOME"]) / "quillet" / "quillet.json"


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
    """with Quillet() as program: … starts the program and ends it; what it logged is in `log`."""

    def __init__(self):
        self.log = ""
        self._process = None

    def __enter__(self):
        self._process = subprocess.Popen([sys.argv[1]], stdout=subprocess.PIPE,
                                         stderr=subprocess.STDOUT, text=True)
        try:
            self._application = wait_for("the program on the accessibility bus", self._find)
        except NotSeen:
            self._end(is_failing=True)
            raise
        return self

    def __exit__(self, kind, value, trace):
        self._end(is_failing=kind is not None)
        if kind is None and self._process.returncode != 0:
            raise AssertionError(f"the program ended with {self._process.returncode}:\n{self.log}")

    def _find(self):
        if self._process.poll() is not None:
            raise AssertionError(f"the program ended at its start:\n{self._process.stdout.read()}")
        return application(self._process.pid)

    def _end(self, is_failing):
        if is_failing:
            self._print_what_is_shown()
            self._process.kill()
        elif self._process.poll() is None:
            press(self.control("Quit", {ROLE.MENU_ITEM}, is_shown=False))
        try:
            self.log = self._process.communicate(timeout=30)[0]
        except subprocess.TimeoutExpired:
            self._process.kill()
            self.log = self._process.communicate()[0]
            raise AssertionError(f"the program did not quit:\n{self.log}") from None
        if is_failing:
            print(self.log, file=sys.stderr)

    def _print_what_is_shown(self):
        found = application(self._process.pid)
        for window in children(found) if found else []:
            for control in below(window):
                if has_state(control, Atspi.StateType.SHOWING):
                    print(control.get_role_name(), repr(control.get_name()), file=sys.stderr)

    def find(self, name, roles=None, is_shown=True):
        """The control of that name, or nothing."""
        for window in children(self._application):
            for control in below(window):
                if (control.get_name() == name and (roles is None or control.get_role() in roles)
                        and (not is_shown or has_state(control, Atspi.StateType.SHOWING))):
                    return control
        return None

    def control(self, name, roles=None, is_shown=True):
        return wait_for(f'a control "{name}"', lambda: self.find(name, roles, is_shown))

    def press(self, name, roles=None):
        press(self.control(name, roles))

    def texts(self):
        """Every name that is shown outside tables."""
        return [control.get_name() for window in children(self._application)
                for control in below(window)
                if control.get_name() and has_state(control, Atspi.StateType.SHOWING)]

    def wait_for_text(self, *parts):
        return wait_for(f"a text with {parts}", lambda: [
            text for text in self.texts() if all(part in text for part in parts)])[0]

    def rows(self, table):
        return row_names(self.control(table))

    def save(self, toolbar_button, path):
        """Through the save dialog, typing the path."""
        self.press(toolbar_button)
        dialog = wait_for("the save dialog", self._file_dialog)
        field = next(control for control in below(dialog) if control.get_role() == ROLE.TEXT)
        type_text(field, str(path))
        press(next(control for control in below(dialog) if control.get_name() in ("Save", "&Save")))
        wait_for("the save dialog to close", lambda: not self._file_dialog())

    def _file_dialog(self):
        for window in children(self._application):
            if window.get_role() in (ROLE.DIALOG, ROLE.FILE_CHOOSER):
                if any(control.get_name() == "Save" for control in below(window)):
                    return window
        return None
