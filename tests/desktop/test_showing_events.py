"""Events of the desktop's calendar service in the calendar program that the user has chosen, which
here only writes down how it was started."""
# needs the calendar service

import os
from datetime import timedelta
from urllib.parse import quote

from accessibility import GLib
from months import first_day, moment
from program import Quillet
from recorder import PROGRAMS, Recorder
from service import CalendarService, in_utc
from session import on_the_bus

CALENDAR = "text/calendar"
UID = "100%25 of it's ä &x=y #1"
HOUR = timedelta(hours=1)
FIRST = first_day(0)
SINGLE = moment(FIRST.replace(day=3), "12:00")
SERIES = moment(FIRST.replace(day=5), "10:00")
REPLACED = moment(FIRST.replace(day=12), "10:00")
MOVED = moment(FIRST.replace(day=13), "15:00")
LAST = moment(FIRST.replace(day=19), "10:00")
TITLES = ["Single", "Weekly", "Moved", "Weekly"]


def check_evolution(program, source):
    """The day, then the event: an exception by its name, of a series else the whole."""
    evolution = Recorder("evolution", CALENDAR, "org.gnome.Evolution")
    for row, (day, event) in enumerate([
            (SINGLE, quote(UID, safe="")), (SERIES, "weekly"),
            (MOVED, f"weekly&comp-rid={in_utc(REPLACED)}"), (LAST, "weekly")]):
        program.double_click_event(row)
        arguments = evolution.started()["arguments"]
        assert arguments == [f"calendar:///?startdate={day:%Y%m%d}",
                             f"calendar:///?source-uid={source.get_uid()}&comp-uid={event}"], arguments


def check_gnome_calendar(program, source):
    """The day, then the event: every occurrence by its name."""
    calendar = Recorder("gnome-calendar", CALENDAR, "org.gnome.Calendar")
    for row, (day, event) in enumerate([
            (SINGLE, UID), (SERIES, f"weekly:{in_utc(SERIES)}"),
            (MOVED, f"weekly:{in_utc(REPLACED)}"), (LAST, f"weekly:{in_utc(LAST)}")]):
        program.double_click_event(row)
        arguments = calendar.started()["arguments"] + calendar.started()["arguments"]
        assert arguments == ["--date", f"{day:%m/%d/%Y %H:%M}",
                             "--uuid", f"{source.get_uid()}:{event}"], arguments


def main():
    os.environ["PATH"] = f"{PROGRAMS}:{os.environ['PATH']}"
    for name in ("org.gnome.Evolution", "org.gnome.Calendar"):
        on_the_bus("RequestName", GLib.Variant("(su)", [name, 0]), "(u)")
    service = CalendarService()
    source = service.add_calendar("Projects")
    service.add_event(source, UID, "Single", SINGLE, SINGLE + HOUR)
    service.add_event(source, "weekly", "Weekly", SERIES, SERIES + HOUR,
                      ["RRULE:FREQ=WEEKLY;COUNT=3"])
    service.move_occurrence(source, "weekly", REPLACED, "Moved", MOVED, MOVED + HOUR)
    with Quillet() as program:
        program.press("Allow")
        program.press("Month")
        program.press("Current")
        program.wait_for_titles(TITLES)
        check_evolution(program, source)
        check_gnome_calendar(program, source)
    assert program.log == "", f"the program logged:\n{program.log}"


main()
