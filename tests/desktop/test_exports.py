"""Everything that leaves the program: the report, the notes, TSV and copied rows."""

import os
import subprocess
from datetime import timedelta, timezone
from decimal import Decimal
from pathlib import Path

from accessibility import ROLE, press_key, text_of, wait_for
from months import csv_bytes, entries, first_day, show_this_month, titles, write_calendars
from program import CALENDARS, Quillet, write_event

DESKTOP = Path(os.environ["HOME"]) / "Desktop"
# Of the four columns that a first start shows: their characters and the blank behind them.
WIDTHS = {"Start Date": 80, "Calendar": 89, "Title": 240, "Hours": 70}


def length(title):
    return int(WIDTHS[title] / 7.2)


def short_date(day):
    return f"{day.month}/{day.day}/{day.year % 100:02}"


def hours_of(expected):
    hours = Decimal(sum(entry.minutes for entry in expected)) / 60
    return f"{hours:.2f}".rstrip("0").rstrip(".")


def line_of(texts):
    return "".join(text.ljust(length(title))[:length(title)] + " "
                   for title, text in zip(WIDTHS, texts)) + "\n"


def wrapped(title):
    """At the last blank that fits; none of these titles takes more than two lines."""
    width = length("Title")
    if len(title) <= width:
        return [title]
    cut = title.rindex(" ", 0, width) + 1
    return [title[:cut], title[cut:]]


def lines_of(entry):
    first, *more = wrapped(entry.title)
    return (line_of([entry.date_text, entry.calendar, first, entry.hours_text])
            + "".join(line_of(["", "", rest, ""]) for rest in more))


def report(expected):
    dashes = "-" * sum(length(title) + 1 for title in WIDTHS) + "\n"
    last = first_day(1) - timedelta(days=1)
    header = (f"Home, Work\nBeginning Date: {short_date(first_day(0))}\n"
              f"Ending Date: {short_date(last)}\nHours: {hours_of(expected)}\n")
    table = line_of(WIDTHS) + dashes + "".join(map(lines_of, expected))
    summary = dashes + line_of(["", "", "", hours_of(expected)])[:-1]
    return "\n" + header + "\n" + table + summary + "\n"


def tsv(expected):
    return csv_bytes(expected).decode().replace('","', '"\t"')


def notes(expected, text):
    headings = "".join(f"{entry.calendar} - {entry.date_text} - {entry.title}\n{text}\n\n\n"
                       for entry in expected)
    return "\n" + headings


def check_file(program, button, name, expected):
    path = DESKTOP / name
    program.save(button, path)
    wait_for(f"the file {name}", path.exists)
    content = path.read_bytes().decode()
    assert content == expected, f"{name} holds\n{content!r}\nand not\n{expected!r}"


def shown_text(program, name):
    view = program.find(name, {ROLE.TEXT})
    return text_of(view) if view else None


def wait_for_view(program, name, expected):
    try:
        wait_for(f"the view {name}", lambda: shown_text(program, name) == expected, 10)
    except AssertionError as error:
        raise AssertionError(f"{name} shows\n{shown_text(program, name)!r}\nand not\n"
                             f"{expected!r}") from error


def check_report(program):
    program.press("Text")
    wait_for_view(program, "Text Report", report(entries(0)))
    check_file(program, "Save…", "report.txt", report(entries(0)))
    program.toggle_calendar("Home")
    work = [entry for entry in entries(0) if entry.calendar == "Work"]
    wait_for_view(program, "Text Report", report(work).replace("Home, Work", "Work"))
    program.toggle_calendar("Home")
    wait_for_view(program, "Text Report", report(entries(0)))
    program.press("Close")
    wait_for("the report to close", lambda: program.find("Text Report", {ROLE.TEXT}) is None)


def check_selected(program):
    """Exports follow the tab of the results. The copied row is still selected."""
    program.select_row(1)
    program.press("Selected Events")
    program.press("Text")
    wait_for_view(program, "Text Report", report(entries(0)[:2]))
    press_key("Escape")
    check_file(program, "TSV", "selected.txt", tsv(entries(0)[:2]))
    program.press("All Events")


def check_notes(program):
    """An event gets its notes while the pane is open."""
    program.press("Notes")
    wait_for_view(program, "Event Notes", "\n")
    noted = entries(0)[3]
    write_event(CALENDARS / noted.calendar, "event-0-3", noted.title,
                noted.start.astimezone(timezone.utc), noted.end.astimezone(timezone.utc),
                ["DESCRIPTION:Bring the drawings\\n100% of them"])
    expected = notes([noted], "Bring the drawings\n100% of them")
    wait_for_view(program, "Event Notes", expected)
    check_file(program, "Save…", "notes.txt", expected)
    program.press("Close")


def clipboard():
    return subprocess.run(["xclip", "-selection", "clipboard", "-out"], capture_output=True,
                          check=False, timeout=10).stdout.decode()


def check_copy(program):
    program.select_row(0)
    program.press_menu_item("Copy")
    first = entries(0)[0]
    wait_for("the copied row", lambda: clipboard() ==
             f"{first.date_text}\t{first.calendar}\t{first.title}\t{first.hours_text}\n")


def main():
    write_calendars()
    with Quillet() as program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        show_this_month(program)
        check_report(program)
        check_file(program, "TSV", "month.txt", tsv(entries(0)))
        check_copy(program)
        check_selected(program)
        check_notes(program)
    assert program.log == "", f"the program logged:\n{program.log}"


main()
