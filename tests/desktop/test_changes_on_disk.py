"""Changes of the calendar files show within a second and leave the selection alone."""

from datetime import timedelta, timezone

from accessibility import wait_for
from months import entries, titles, write_calendars
from program import CALENDARS, Quillet, write_event

SECONDS = 1.0


def write_changed(title, entry, name):
    write_event(CALENDARS / entry.calendar, name, title, entry.start.astimezone(timezone.utc),
                entry.end.astimezone(timezone.utc))


def main():
    write_calendars()
    expected = entries(0)
    with Quillet() as program:
        program.press("Allow")
        program.press("Month")
        program.press("Current")
        program.wait_for_titles(titles(expected))
        selected = expected[3].title
        program.select_row(expected.index(expected[3]))
        assert program.selected_titles() == [selected]

        write_changed("Renamed", expected[1], "event-0-1")
        program.wait_for_titles(["Renamed" if entry is expected[1] else entry.title
                                 for entry in expected], SECONDS)
        assert program.selected_titles() == [selected]

        (CALENDARS / "Work" / "event-0-0.ics").unlink()
        after = ["Renamed", *titles(expected[2:])]
        program.wait_for_titles(after, SECONDS)
        assert program.selected_titles() == [selected]

        start = expected[0].start.astimezone(timezone.utc) + timedelta(hours=2)
        write_event(CALENDARS / "Errands", "new", "Bank", start, start + timedelta(minutes=20))
        wait_for("the new calendar", lambda: "Errands" in program.calendar_titles())
        program.wait_for_titles(["Bank", *after])
        assert program.selected_titles() == [selected]
    assert program.log == "", f"the program logged:\n{program.log}"


main()
