"""The report and the notes in a new message, and an event in the calendar program: with programs
that write down how they are started, and without any."""

import os
import re
import subprocess
from datetime import timezone
from html import unescape
from pathlib import Path

from accessibility import ROLE, press_key, text_of, wait_for
from months import entries, show_this_month, titles, write_calendars
from program import CALENDARS, Quillet, write_event
from recorder import Recorder, choose, composed, mail_in

MAILTO = "x-scheme-handler/mailto"
CALENDAR = "text/calendar"
HOSTILE = "50% \\; rm -rf ~ $(touch x) `y` 'z' <b>&amp\\; C:\\\\new"
SHOWN = "50% ; rm -rf ~ $(touch x) `y` 'z' <b>&amp; C:\\new"


def long_date(day):
    return f"{day:%B} {day.day}, {day.year}"


def period():
    month = entries(0)
    return f"{long_date(month[0].start)} - {long_date(month[-1].end)}"


def text_in(program, view):
    return text_of(program.control(view, {ROLE.TEXT}))


def close(program, view):
    """So that the toolbar's Mail no longer means the pane's text."""
    program.press("Close")
    wait_for(f"{view} to close", lambda: program.find(view, {ROLE.TEXT}) is None)


def dismiss(program, message):
    program.wait_for_text(message)
    program.press("OK")
    wait_for(f'"{message}" to close', lambda: message not in program.texts())


def clipboard():
    return subprocess.run(["xclip", "-selection", "clipboard", "-out"], capture_output=True,
                          check=False, timeout=10).stdout.decode()


def write_hostile_event(notes):
    entry = entries(0)[1]
    start, end = (time.astimezone(timezone.utc) for time in (entry.start, entry.end))
    write_event(CALENDARS / "Work", "event-0-1", HOSTILE, start, end, [f"DESCRIPTION:{notes}"])
    return [SHOWN if title == entry.title else title for title in titles(entries(0))]


def check_report(program, reader):
    """The address holds the whole report, whatever stands in its titles."""
    program.press("Mail")
    arguments = reader.started()["arguments"]
    assert len(arguments) == 1, arguments
    subject, body = mail_in(arguments[0])
    assert subject == period(), subject
    # Reports double the percent sign.
    assert SHOWN.replace("%", "%%")[:20] in body, body
    program.press("Text")
    wait_for("the mailed report in its pane",
             lambda: text_in(program, "Text Report") == body.replace("\r\n", "\n"), 10)
    close(program, "Text Report")


def check_notes(program, reader):
    program.press("Notes")
    notes = wait_for("the notes", lambda: text_in(program, "Event Notes"))
    press_key("alt+m")
    subject, body = mail_in(reader.started()["arguments"][0])
    assert subject == f"Event Notes - {period()}", subject
    assert body.replace("\r\n", "\n") == notes, (body, notes)
    assert "Bring the \"drawings\"" in body, body
    assert "from C:\\\"\\" in body, body


def check_long_notes(program, reader):
    """What no program can be given as an argument goes through the clipboard. The notes are open."""
    long_line = "Bring the drawings. " * 10_000
    write_hostile_event(long_line)
    wait_for("the long notes", lambda: long_line in text_in(program, "Event Notes"))
    press_key("alt+m")
    assert mail_in(reader.started()["arguments"][0])[1] == ""
    dismiss(program, "The text is too long to hand over to your mail program")
    wait_for("the notes on the clipboard", lambda: clipboard() == text_in(program, "Event Notes"))
    close(program, "Event Notes")


def check_styles(program, thunderbird):
    """A mail program that takes styles gets them, from a file."""
    program.press("Mail")
    started = thunderbird.started()
    assert started["arguments"][0] == "-compose", started
    parts = composed(started["arguments"][1])
    assert (parts["subject"], parts["format"]) == (period(), "html"), parts
    page = started["message"]
    style, content = re.search(r'<pre style="(.*?)">(.*)</pre>', page, re.DOTALL).groups()
    assert re.search(r"font-family:.*monospace;font-size:10pt;color:#[0-9a-f]{6}$", style), style
    program.press("Text")
    wait_for("the report in its pane", lambda: text_in(program, "Text Report") ==
             unescape(content.replace("<br>", "\n")), 10)
    close(program, "Text Report")


def check_events(program, calendar):
    """By a double click, then by the Enter key: the event's own file."""
    program.double_click_event(3)
    assert calendar.started()["arguments"] == [str(CALENDARS / "Work" / "event-0-3.ics")]
    assert program.selected_titles() == [entries(0)[3].title]
    press_key("Down", "Return")
    assert calendar.started()["arguments"] == [str(CALENDARS / "Work" / "event-0-4.ics")]
    program.press_menu_item("Select All Events")
    press_key("Return")
    # A fetch that still runs shows that nothing keeps the program busy.
    write_hostile_event("other notes")
    expected = write_hostile_event("other notes")
    program.wait_for_titles(expected)
    assert not calendar.was_started()


def check_with_programs():
    reader = Recorder("reader", MAILTO)
    with Quillet() as program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        show_this_month(program)
        program.wait_for_titles(write_hostile_event(
            "Bring the \"drawings\"\\nand 100% of them from C:\\\\\"\\\\"))
        check_report(program, reader)
        check_notes(program, reader)
        check_long_notes(program, reader)
        check_styles(program, Recorder("thunderbird", MAILTO))
        choose("reader", MAILTO)
        check_report(program, reader)
        check_events(program, Recorder("dates", CALENDAR))
    assert program.log == "", f"the program logged:\n{program.log}"


def check_without_programs():
    """A desktop on which nothing is installed: each press gives one message, and that is all."""
    empty = Path(os.environ["HOME"]) / "empty"
    os.environ["XDG_DATA_DIRS"] = str(empty)
    for entry in (Path(os.environ["XDG_DATA_HOME"]) / "applications").iterdir():
        entry.unlink()
    with Quillet() as program:
        expected = titles(entries(0))
        wait_for("the events", lambda: len(program.rows("Events")) == len(expected))
        program.wait_for_window("Quillet")
        press_key("ctrl+m")
        dismiss(program, "No mail program is set up")
        program.double_click_event(2)
        dismiss(program, "No calendar program is set up")
        assert program.selected_titles() == [expected[2]]
    assert program.log.strip() == "quillet: it was an error", f"the program logged:\n{program.log}"


def main():
    write_calendars()
    check_with_programs()
    check_without_programs()


main()
