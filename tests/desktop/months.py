"""The calendars of the desktop tests and what saving them must give.

The program shows the real month, so the events are made for this month and its neighbours. The
expected files are written here, from the events and from nothing of the program's: what a United
States locale and the time zone of the session make of them.
"""

from dataclasses import dataclass
from datetime import date, datetime, time, timedelta, timezone
from decimal import Decimal
from zoneinfo import ZoneInfo

from program import CALENDARS, write_event

ZONE = ZoneInfo("Europe/Berlin")
TODAY = datetime.now(ZONE).date()


@dataclass(frozen=True, order=True)
class Entry:
    start: datetime
    end: datetime
    title: str
    calendar: str

    @property
    def minutes(self):
        return int((self.end - self.start).total_seconds()) // 60

    @property
    def hours_text(self):
        hours = Decimal(self.minutes) / 60
        return f"{hours:.2f}".rstrip("0").rstrip(".")

    @property
    def date_text(self):
        return f"{self.start.month}/{self.start.day}/{self.start.year % 100:02}"


def first_day(months_from_now):
    months = TODAY.year * 12 + TODAY.month - 1 + months_from_now
    return date(months // 12, months % 12 + 1, 1)


def moment(day, text):
    return datetime.combine(day, time.fromisoformat(text), ZONE)


def entries(months_from_now):
    """What the two calendars hold in that month, in the order in which the window shows it."""
    first = first_day(months_from_now)
    last = first_day(months_from_now + 1) - timedelta(days=1)
    sign = "past, this, next".split(", ")[months_from_now + 1]
    rows = [
        (first, "00:00", "00:45", f"First minute ({sign})", "Work"),
        (first.replace(day=3), "09:00", "10:30", f"Plans; drafts, and \"finals\" ({sign})", "Work"),
        (first.replace(day=10), "14:00", "15:00", f"Dentist ({sign})", "Home"),
        (first.replace(day=10), "14:00", "17:45", f"Workshop ({sign})", "Work"),
        (first.replace(day=24), "08:15", "12:35", f"Übergabe ({sign})", "Work"),
        (last, "23:00", "23:59", f"Last minute ({sign})", "Home"),
    ]
    return [Entry(moment(day, start), moment(day, end), title, calendar)
            for day, start, end, title, calendar in rows]


def write_calendars():
    for months_from_now in (-1, 0, 1):
        for number, entry in enumerate(entries(months_from_now)):
            title = entry.title.replace(";", "\\;").replace(",", "\\,")
            write_event(CALENDARS / entry.calendar, f"event-{months_from_now}-{number}", title,
                        entry.start.astimezone(timezone.utc), entry.end.astimezone(timezone.utc))


def titles(expected):
    return [entry.title for entry in expected]


def quoted(text):
    return '"' + text.replace('"', '""') + '"'


def csv_bytes(expected, rate=None):
    """The saved file: with a rate there is a column of costs, which are those of the hours that
    stand beside them."""
    heads = ["Start Date", "Calendar", "Title", "Hours"] + (["Cost"] if rate else [])
    lines = [heads]
    for entry in expected:
        cost = [f"${Decimal(entry.hours_text) * rate:,.2f}"] if rate else []
        lines.append([entry.date_text, entry.calendar, entry.title, entry.hours_text, *cost])
    return "".join(",".join(map(quoted, line)) + "\n" for line in lines).encode()


def show_this_month(program):
    program.press("Month")
    program.press("Current")
    program.wait_for_titles(titles(entries(0)))
