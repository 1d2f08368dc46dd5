"""Programs of the desktop that only write down what they were started with."""

import json
import os
import stat
from pathlib import Path
from urllib.parse import parse_qs, unquote, urlsplit

from accessibility import wait_for

HOME = Path(os.environ["HOME"])
APPLICATIONS = Path(os.environ["XDG_DATA_HOME"]) / "applications"
CHOICES = Path(os.environ["XDG_CONFIG_HOME"]) / "mimeapps.list"
PROGRAMS = HOME / "bin"
SOURCE = """#!/usr/bin/python3
import json, os, sys, time, urllib.parse
started = {"arguments": sys.argv[1:], "message": None}
for part in sys.argv[-1].split(","):
    if part.startswith("message="):
        with open(urllib.parse.unquote(part[8:]), encoding="utf-8", newline="") as file:
            started["message"] = file.read()
with open(__file__ + ".new", "w") as file:
    json.dump(started, file)
os.rename(__file__ + ".new", f"{__file__}.{time.time_ns()}.started")
"""


class Recorder:
    """An installed program that the user has chosen for a type. Its desktop entry is named like it,
    unless it has an identifier."""

    def __init__(self, name, mime_type, identifier=None):
        self._program = PROGRAMS / name
        PROGRAMS.mkdir(exist_ok=True)
        APPLICATIONS.mkdir(parents=True, exist_ok=True)
        self._program.write_text(SOURCE)
        self._program.chmod(stat.S_IRWXU)
        (APPLICATIONS / f"{identifier or name}.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName={name.title()}\n"
            f"Exec=\"{self._program}\" %U\nMimeType={mime_type};\n")
        choose(identifier or name, mime_type)

    def started(self):
        """What it was started with; once for each start, the first one first."""
        record = wait_for(f"{self._program.name} to be started", self._records)[0]
        started = json.loads(record.read_text())
        record.unlink()
        return started

    def was_started(self):
        return bool(self._records())

    def _records(self):
        return sorted(PROGRAMS.glob(f"{self._program.name}.*.started"))


def choose(name, mime_type):
    CHOICES.parent.mkdir(parents=True, exist_ok=True)
    CHOICES.write_text(f"[Default Applications]\n{mime_type}={name}.desktop\n")


def mail_in(address):
    """Subject and body of a mailto address, as any mail program reads them."""
    parts = urlsplit(address)
    assert (parts.scheme, parts.netloc, parts.path) == ("mailto", "", ""), address
    fields = parse_qs(parts.query, keep_blank_values=True, strict_parsing=True)
    assert set(fields) <= {"subject", "body"}, fields
    return fields["subject"][0], fields.get("body", [""])[0]


def composed(argument):
    """The parts of what Thunderbird is told to compose."""
    return {key: unquote(value) for key, value in
            (part.split("=", 1) for part in argument.split(","))}
