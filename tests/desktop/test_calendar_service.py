"""The calendars of the desktop's service show beside those of the folder, follow its changes within
a second, and outlive its death."""
# needs the calendar service

import signal
from datetime import timedelta

from accessibility import wait_for
from months import entries, first_day, moment, titles, write_calendars
from program import Quillet
from service import CalendarService

SECONDS = 1.0
CALENDARS = ["Home", "Personal", "Projects", "Work"]


def main():
    write_calendars()
    service = CalendarService()
    projects = service.add_calendar("Projects")
    start = moment(first_day(0).replace(day=2), "10:00")
    service.add_event(projects, "weekly", "Weekly", start, start + timedelta(hours=1),
                      ["RRULE:FREQ=WEEKLY;COUNT=2"])
    from_folder = entries(0)
    shown = sorted([(entry.start, entry.title) for entry in from_folder]
                   + [(start, "Weekly"), (start + timedelta(days=7), "Weekly")])
    expected = [title for _, title in shown]
    with Quillet() as program:
        program.press("Allow")
        program.wait_for_calendars(CALENDARS)
        program.press("Month")
        program.press("Current")
        program.wait_for_titles(expected)

        service.add_event(projects, "new", "Call", start - timedelta(hours=2), start)
        with_call = [*expected[:1], "Call", *expected[1:]]
        program.wait_for_titles(with_call, SECONDS)
        service.remove_event(projects, "new")
        program.wait_for_titles(expected, SECONDS)

        service.rename(projects, "Clients")
        program.wait_for_calendars(["Clients", "Home", "Personal", "Work"])
        service.rename(projects, "Projects")
        program.wait_for_calendars(CALENDARS)
        program.wait_for_titles(expected)

        program.toggle_calendar("Projects")
        program.wait_for_titles(titles(from_folder))
        program.toggle_calendar("Projects")
        program.wait_for_titles(expected)

        service.signal_processes(projects, signal.SIGKILL)
        program.wait_for_text("Projects: not reachable since ")
        assert program.calendar_titles() == CALENDARS
        program.wait_for_titles(expected)
        wait_for("the service to be back", lambda: not any(
            "not reachable" in text for text in program.texts()))
        service.add_event(projects, "new", "Call", start - timedelta(hours=2), start)
        program.wait_for_titles(with_call, SECONDS)
    assert program.log == "", f"the program logged:\n{program.log}"

    service.signal_processes(projects, signal.SIGSTOP)
    with Quillet() as program:
        program.wait_for_calendars(CALENDARS)
        program.wait_for_titles(titles(from_folder))
        program.wait_for_text("Projects: is still being read")
        service.signal_processes(projects, signal.SIGCONT)
        program.wait_for_titles(with_call)

        service.remove_calendar(projects)
        program.wait_for_calendars(["Home", "Personal", "Work"])
        program.wait_for_titles(titles(from_folder))


main()
