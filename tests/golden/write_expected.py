#!/usr/bin/python3
"""Writes data/expected: what each case of data/cases.json is to give, as report, CSV, TSV, copied
rows and notes.

This is a second implementation of those texts, written without a look at the first. It is run by
hand (Debian: python3-icu) after a change of the cases or of a rule; GoldenTest.cpp only reads what it
wrote. Where the two differ, one of them is wrong: never copy the program's output here.

write_expected.py           writes the files
write_expected.py --check   only says which files would change
"""

import json
import shutil
import sys
from datetime import date, datetime, timedelta
from decimal import ROUND_DOWN, ROUND_HALF_EVEN, ROUND_HALF_UP, Context, Decimal, setcontext
from fractions import Fraction
from pathlib import Path
from zoneinfo import ZoneInfo

import icu

DATA = Path(__file__).resolve().parent / "data"
NOT_A_NUMBER = Decimal("NaN")
TITLE_KEYS = {
    "date": ("dateColumnTitle", "Start Date"),
    "hours": ("hoursColumnTitle", "Hours"),
    "title": ("titleColumnTitle", "Title"),
    "notes": ("notesColumnTitle", "Notes"),
    "url": ("urlColumnTitle", "URL"),
    "location": ("locationColumnTitle", "Location"),
    "weekday": ("startWeekdayColumnTitle", "Start Weekday"),
    "endWeekday": ("endWeekdayColumnTitle", "End Weekday"),
    "cost": ("costColumnTitle", "Cost"),
    "start": ("startTimeColumnTitle", "Start Time"),
    "end": ("endTimeColumnTitle", "End Time"),
    "endDate": ("endDateColumnTitle", "End Date"),
    "calendar": ("calendarColumnTitle", "Calendar"),
    "rate": ("rateColumnTitle", "Rate"),
    "duration": ("durationColumnTitle", "Duration"),
    "minutes": ("minutesColumnTitle", "Minutes"),
}

setcontext(Context(prec=38, rounding=ROUND_HALF_UP))


# --- Texts are kept as UTF-16 units, one to a character, since widths count those.

def units(text):
    if text is None:
        return None
    packed = text.encode("utf-16-le", "surrogatepass")
    return "".join(chr(int.from_bytes(packed[at:at + 2], "little")) for at in range(0, len(packed), 2))


def characters(text):
    return text.encode("utf-16-le", "surrogatepass").decode("utf-16-le")


# --- The fixture

def unescaped(text):
    result, rest = "", iter(text)
    for character in rest:
        if character == "\\":
            following = next(rest)
            character = "\n" if following in "nN" else following
        result += character
    return result


def content_lines(path):
    unfolded = path.read_bytes().replace(b"\r\n ", b"").decode("utf-8")
    for line in unfolded.split("\r\n"):
        if line:
            head, _, value = line.partition(":")
            name, *parameters = head.split(";")
            yield name, dict(parameter.split("=") for parameter in parameters), value


class Zone:
    """Instants are seconds since 1970, whole or not."""

    def __init__(self, name):
        self.info = ZoneInfo(name)

    def instant(self, local):
        return int(local.replace(tzinfo=self.info).timestamp())

    def local(self, instant):
        return datetime.fromtimestamp(instant, self.info)

    def midnight(self, day):
        return self.instant(datetime(day.year, day.month, day.day))

    def start_of_day(self, instant):
        return self.midnight(self.local(instant))


def moment(parameters, value, zone):
    """The instant, and whether it is a whole day."""
    if parameters.get("VALUE") == "DATE":
        return zone.midnight(datetime.strptime(value, "%Y%m%d")), True
    if value.endswith("Z"):
        return Zone("UTC").instant(datetime.strptime(value, "%Y%m%dT%H%M%SZ")), False
    where = Zone(parameters["TZID"]) if "TZID" in parameters else zone
    return where.instant(datetime.strptime(value, "%Y%m%dT%H%M%S")), False


def calendar_events(path, zone):
    calendar, found, properties = None, [], {}
    for name, parameters, value in content_lines(path):
        if name == "X-WR-CALNAME":
            calendar = unescaped(value)
        elif (name, value) == ("BEGIN", "VEVENT"):
            properties = {}
        elif (name, value) == ("END", "VEVENT"):
            found.append((calendar, properties))
        else:
            properties[name] = (parameters, value)
    return [event_of(calendar, properties, zone) for calendar, properties in found]


def event_of(calendar, properties, zone):
    def text(name, convert=unescaped):
        return convert(properties[name][1]) if name in properties else None

    start, is_all_day = moment(*properties["DTSTART"], zone)
    if "DTEND" in properties:
        end, _ = moment(*properties["DTEND"], zone)
    elif "DURATION" in properties:
        end = start + 60 * int(properties["DURATION"][1].removeprefix("PT").removesuffix("M"))
    else:
        end = zone.midnight(zone.local(start) + timedelta(days=1)) if is_all_day else start
    return Event(calendar, text("UID"), start, end, is_all_day, text("SUMMARY"),
                 text("DESCRIPTION"), text("LOCATION"), text("URL", str))


def further_events():
    """Those that no calendar file can carry."""
    for entry in json.loads((DATA / "events.json").read_text(encoding="utf-8")):
        start, end = (int(datetime.fromisoformat(entry[key].replace("Z", "+00:00")).timestamp())
                      for key in ("start", "end"))
        yield Event(entry["calendar"], entry["uid"], start, end, False, entry["title"],
                    entry["notes"], entry["location"], entry["url"])


class Event:
    def __init__(self, calendar, identifier, start, end, is_all_day, title, notes, location, url):
        self.calendar, self.identifier = units(calendar), units(identifier)
        self.start, self.end, self.is_all_day = start, end, is_all_day
        self.title, self.notes = units(title), units(notes)
        self.location, self.url = units(location), units(url)


# --- The locale

class Locale:
    """Formats local times: ICU has zone rules of its own, which are not the system's."""

    def __init__(self, name, zone):
        self.zone = zone
        locale = icu.Locale(name)
        self.separator = icu.DecimalFormatSymbols(locale).getSymbol(
            icu.DecimalFormatSymbols.kDecimalSeparatorSymbol)
        self.not_a_number = icu.DecimalFormatSymbols(locale).getSymbol(
            icu.DecimalFormatSymbols.kNaNSymbol)
        self.money = icu.NumberFormat.createCurrencyInstance(locale)
        self.dates = icu.DateFormat.createDateInstance(icu.DateFormat.kShort, locale)
        self.times = icu.DateFormat.createTimeInstance(icu.DateFormat.kShort, locale)
        self.weekdays = icu.SimpleDateFormat("EEEE", locale)
        for formatter in (self.dates, self.times, self.weekdays):
            formatter.setTimeZone(icu.TimeZone.getGMT())

    def local(self, instant):
        return float(instant + self.zone.local(instant).utcoffset().total_seconds())

    def date(self, instant):
        return units(self.dates.format(self.local(instant)))

    def time(self, instant):
        return units(self.times.format(self.local(instant)))

    def weekday(self, instant):
        return units(self.weekdays.format(self.local(instant)))

    def number(self, value):
        if value.is_nan():
            return units(self.not_a_number)
        return units(plain(two_decimals(value)).replace(".", self.separator))

    def currency(self, value):
        if value.is_nan():
            return units(self.money.format(float("nan")))
        places = Decimal(1).scaleb(-self.money.getMaximumFractionDigits())
        return units(self.money.format(float(value.quantize(places, ROUND_HALF_EVEN))))


def two_decimals(value):
    """What is left of a number that was written with "0.##;0.##": its sign is not."""
    return abs(value.quantize(Decimal("0.01"), ROUND_HALF_EVEN))


def plain(value):
    text = f"{value:f}"
    return text.rstrip("0").rstrip(".") if "." in text else text


def without_sign_of_zero(value):
    return abs(value) if value == 0 else value


# --- One case

def decimal_of(value):
    if isinstance(value, dict):
        return Decimal(value["$decimal"])
    return Decimal(repr(value)) if isinstance(value, float) else Decimal(value)


def duration_text(minutes):
    whole = int(minutes.to_integral_value(ROUND_DOWN))
    if whole < 1:
        return "0h"
    hours, rest = divmod(whole, 60)
    text = f"{hours}h" if whole >= 60 else ""
    if rest:
        text += ("0h " if whole < 60 else " ") + f"{rest}m"
    return text


class Case:
    def __init__(self, case):
        self.zone = Zone(case["zone"])
        self.locale = Locale(case["locale"], self.zone)
        self.settings = {key: value for key, value in case["settings"].items() if value is not None}
        first, last = (date.fromisoformat(case[key]) for key in ("firstDay", "lastDay"))
        self.filter_start = self.zone.midnight(first)
        self.filter_end = self.zone.instant(datetime(last.year, last.month, last.day, 23, 59, 59))
        self.records = [{**record, "title": units(record["title"])} for record in case["calendars"]]
        self.set_titles(case["settings"])
        self.columns = [self.column(text) for text in case["columns"]]
        self.visible = [column for column in self.columns if not column["isHidden"]]
        self.shown = self.arranged(case)
        self.selected = [event for event in self.shown
                         if event.identifier in map(units, case["selected"])]
        self.read_costs_once()

    def set_titles(self, given):
        for key, default in TITLE_KEYS.values():
            if key not in given:
                self.settings[key] = default

    def column(self, text):
        identifier, width = text.removeprefix("-").split(":")
        key = TITLE_KEYS.get(identifier, (None,))[0]
        return {"identifier": identifier, "isHidden": text.startswith("-"), "isKnown": key is not None,
                "title": units(self.settings.get(key, "")),
                "length": max(2, int(float(width) / 7.199999809265137))}

    def arranged(self, case):
        events = list(further_events())
        for path in sorted((DATA / "calendars").glob("*.ics")):
            events += calendar_events(path, self.zone)
        ticked = {record["title"] for record in self.records if record["isSelected"]}

        def is_within(event):
            if event.start >= self.filter_end:
                return False
            if event.start == event.end:
                return event.start >= self.filter_start
            return event.end > self.filter_start

        events = [event for event in events if event.calendar in ticked and is_within(event)]
        events.sort(key=lambda event: (event.start, event.end, event.title or ""))
        if "search" in case:
            events = [event for event in events if units(case["search"]) in (event.title or "")]
        if case.get("order") == "latestFirst":
            events.sort(key=lambda event: -event.start)
        return events

    def read_costs_once(self):
        """The table on screen has read every cost before anything is exported, which writes."""
        if not self.shown:
            return
        if "tempNumberRate" not in self.settings:
            if "hourlyRate" in self.settings:
                stored = self.settings["hourlyRate"]
                text = stored if isinstance(stored, str) else plain(decimal_of(stored))
                text = text.replace(",", ".")
                self.settings["tempNumberRate"] = text
                self.settings["hourlyRate"] = float(text)
            else:
                self.settings["tempNumberRate"] = 1
        if self.is_on("isDollarsOn") and "hourlyRate" not in self.settings:
            self.settings["hourlyRate"] = 0

    def is_on(self, key):
        return self.settings.get(key) is True

    @property
    def time_type(self):
        return self.settings.get("timeTypeSelection", 0)

    @property
    def is_of_selection(self):
        return self.settings.get("totalsTabViewSelection") == 1

    @property
    def exported(self):
        return self.selected if self.is_of_selection else self.shown

    # --- Fields of an event

    def minutes(self, event):
        start = max(event.start, self.zone.start_of_day(self.filter_start))
        end = min(event.end, self.zone.start_of_day(self.filter_end) + 86400)
        span = float(end - start)
        if not event.is_all_day:
            exact = Decimal(repr(span)) / 60
        else:
            hours = self.settings.get("allDayHours", 24)
            exact = (24 if hours >= 25 else hours) * Decimal(repr(span / 86400)) * 60
        return without_sign_of_zero(exact.quantize(Decimal(1), ROUND_HALF_UP))

    def hours(self, event):
        return self.minutes(event) / 60

    def rate(self, event):
        if self.is_on("isSingleRate"):
            return two_decimals(decimal_of(self.settings.get("hourlyRate", 0)))
        rate = NOT_A_NUMBER
        for record in self.records:
            if record["title"] == event.calendar and record.get("isStored", True):
                rate = two_decimals(decimal_of(record.get("rate", 0)))
        return rate

    def cost(self, event):
        if not self.is_on("isDollarsOn"):
            return None
        rate = self.rate(event)
        if rate.is_nan():
            return rate
        if self.time_type == 1:
            return rate * two_decimals(self.hours(event))
        per_minute = (rate / 60).quantize(Decimal("1e-15"), ROUND_HALF_EVEN)
        return without_sign_of_zero(per_minute * self.minutes(event))

    def adjusted_end(self, event):
        return event.end - event.end % 60 - 1

    def duration(self, event):
        return duration_text(self.minutes(event))

    def sum_of(self, field):
        total = Decimal(0)
        for event in self.exported:
            value = field(event)
            total += Decimal(0) if value is None else value
        return total

    # --- The report

    def report_text(self, event, identifier):
        """None: missing."""
        def doubled(text):
            return None if text is None else text.replace("%", "%%")

        cost = self.cost(event)
        return {
            "calendar": lambda: doubled(event.calendar),
            "title": lambda: doubled(event.title),
            "date": lambda: self.locale.date(event.start),
            "endDate": lambda: self.locale.date(self.adjusted_end(event)),
            "hours": lambda: self.locale.number(self.hours(event)),
            "minutes": lambda: self.locale.number(self.minutes(event)),
            "duration": lambda: self.duration(event),
            "notes": lambda: doubled(event.notes),
            "url": lambda: event.url,
            "location": lambda: doubled(event.location),
            "start": lambda: self.locale.time(event.start),
            "end": lambda: self.locale.time(event.end),
            "cost": lambda: None if cost is None else self.locale.currency(cost),
            "rate": lambda: self.locale.currency(self.rate(event)),
            "weekday": lambda: self.locale.weekday(event.start),
            "endWeekday": lambda: self.locale.weekday(self.adjusted_end(event)),
        }[identifier]()

    def separator_line(self):
        return "".join("-" * (column["length"] + 1) for column in self.visible) + "\n"

    def table(self):
        lines = "".join(padded(column["title"], column["length"]) for column in self.visible) + "\n"
        lines += self.separator_line()
        for event in self.exported:
            cells = [(self.report_text(event, column["identifier"]), column["length"])
                     for column in self.visible if column["isKnown"]]
            index, has_more = 0, True
            while has_more:
                has_more = False
                for text, length in cells:
                    cell, more = report_cell(text, length, index, self.is_on("isTXTWrapping"))
                    has_more = has_more or more
                    lines += cell
                lines += "\n"
                index += 1
        return lines

    def summary(self):
        texts = {
            "cost": lambda: self.locale.currency(self.sum_of(self.cost)),
            "hours": lambda: self.locale.number(self.sum_of(self.minutes) / 60),
            "minutes": lambda: self.locale.number(self.sum_of(self.minutes)),
            "duration": lambda: duration_text(self.sum_of(self.minutes)),
        }
        cells = (report_cell(texts.get(column["identifier"], lambda: None)(), column["length"], 0,
                             self.is_on("isTXTWrapping"))[0] for column in self.visible)
        return self.separator_line() + "".join(cells)

    def figure(self, combined):
        """A header figure over the events, by the time type. It is exact before it is rounded."""
        minutes = combined([Fraction(self.minutes(event)) for event in self.exported])
        if self.time_type == 1:
            return self.locale.number(rounded(minutes / 60))
        if self.time_type == 2:
            return self.locale.number(rounded(minutes))
        return duration_text(rounded(minutes))

    def days(self):
        first, last = self.filter_start, self.filter_end
        if self.is_of_selection:
            first = min(event.start for event in self.selected)
            last = max(event.end for event in self.selected)
        first = self.zone.start_of_day(first)
        last = self.zone.start_of_day(last - 1) + 86399
        return str((last - first + 43200) // 86400)

    def header(self):
        if not self.exported:
            return ""
        lines = units(self.settings["txtHeader"]) + "\n\n" if self.settings.get("txtHeader") else ""
        if self.is_on("isTXTCalTitle"):
            titles = sorted(record["title"] for record in self.records if record["isSelected"])
            lines += ", ".join(titles) + "\n"
        if self.is_on("isTXTBeginDate"):
            lines += f"Beginning Date: {self.locale.date(self.filter_start)}\n"
        if self.is_on("isTXTEndDate"):
            lines += f"Ending Date: {self.locale.date(self.filter_end)}\n"
        if self.time_type in (1, 2, 3):
            lines += self.header_figures()
        if self.is_on("isTXTTotalDays"):
            lines += f"Days: {self.days()}\n"
        if self.is_on("isTXTTotalEvents"):
            lines += f"Events: {len(self.exported)}\n"
        if self.is_on("isDollarsOn") and self.is_on("isTXTDollars"):
            lines += self.header_money()
        return lines

    def header_figures(self):
        total_label = {1: "Hours", 2: "Minutes", 3: "Duration"}[self.time_type]
        kinds = (("isTXTTotalHours", total_label, sum), ("isTXTMin", "Min", min),
                 ("isTXTMax", "Max", max),
                 ("isTXTAverage", "Avg", lambda values: sum(values) / len(values)))
        return "".join(f"{label}: {self.figure(combined)}\n"
                       for key, label, combined in kinds if self.is_on(key))

    def header_money(self):
        lines = ""
        if not self.is_on("isSingleRate"):
            title = units(self.settings.get("calendarColumnTitle", ""))
            lines += f"Hourly Rate: {title} Rates\n"
        elif "hourlyRate" in self.settings:
            rate = decimal_of(self.settings["hourlyRate"])
            lines += f"Hourly Rate: {self.locale.currency(rate)}\n"
        return lines + f"Cost: {self.locale.currency(self.sum_of(self.cost))}\n"

    def report(self):
        header = self.header()
        text = "\n" + (header + "\n" if header else "") + self.table()
        if self.is_on("isTXTSummaryRow"):
            text += self.summary()
        if self.settings.get("txtFooter"):
            text += "\n\n\n" + units(self.settings["txtFooter"])
        return text + "\n"

    # --- Separated values

    def free_text(self, text, switch, separator):
        if text is None:
            return separator
        if self.is_on("isCSVRemoveReturns"):
            text = text.replace("\n", " ")
        if self.is_on(switch):
            text = '"' + text.replace('"', '""') + '"'
        return text + separator

    def field(self, event, identifier, separator):
        free = {"title": (event.title, "isCSVQuotesForTitle"),
                "notes": (event.notes, "isCSVQuotesForNote"),
                "location": (event.location, "isCSVQuotesForLocation"),
                "calendar": (event.calendar, "isCSVQuotesForCalendar")}
        if identifier in free:
            return self.free_text(*free[identifier], separator)
        value = self.report_text(event, identifier)
        if value is None:
            return separator if identifier == "url" else f'"(null)"{separator}'
        return f'"{value}"{separator}'

    def separated(self, separator):
        text = ""
        has_identifier = self.is_on("isCSVIncludeUID")
        if self.is_on("isCSVHeader"):
            text += f'"uid"{separator}' if has_identifier else ""
            text += "".join(f'"{column["title"]}"{separator}' for column in self.visible)
            text = text[:-1] + "\n"
        for event in self.exported:
            text += f'"{event.identifier}"{separator}' if has_identifier else ""
            text += "".join(self.field(event, column["identifier"], separator)
                            for column in self.visible if column["isKnown"])
            text = text[:-1] + "\n"
        return text

    def csv(self):
        return self.separated(";" if self.locale.separator == "," else ",")

    # --- Copied rows and notes

    def rows(self):
        text = ""
        for event in self.selected:
            for position, column in enumerate(self.columns):
                if column["isHidden"]:
                    continue
                text += "\t" if position > 0 else ""
                if column["isKnown"]:
                    value = self.report_text(event, column["identifier"])
                    text += "(null)" if value is None else value
            text += "\n"
        return text

    def notes(self):
        text = "\n"
        for event in self.shown:
            if event.notes is None:
                continue
            items = [event.calendar] if self.is_on("isEventNotesCalendar") else []
            items += [self.locale.date(event.start)] if self.is_on("isEventNotesDate") else []
            items += [event.title] if self.is_on("isEventNotesTitle") and event.title else []
            items += [event.location] if self.is_on("isEventNotesLocation") and event.location else []
            text += " - ".join(items) + ("\n" if items else "") + event.notes + "\n\n\n"
        return text

    def files(self):
        """The bytes of every file of the case, by name. Nothing selected: nothing is copied."""
        encoding = "utf-8"
        if self.settings.get("fileEncodingPopUpIndex") == 1:
            encoding = "utf-16-le"
        mark = "\ufeff" if encoding == "utf-16-le" else ""
        found = {
            "report.txt": characters(self.report()).encode(),
            "events.csv": (mark + characters(self.csv())).encode(encoding),
            "events.tsv": (mark + characters(self.separated("\t"))).encode(encoding),
            "notes.txt": characters(self.notes()).encode(),
        }
        if self.selected:
            found["rows.txt"] = characters(self.rows()).encode()
        return found


def rounded(exact):
    """To 38 digits."""
    return Decimal(exact.numerator) / Decimal(exact.denominator)


# --- Cells

def is_inside_pair(text, at):
    return (0 < at < len(text) and 0xD800 <= ord(text[at - 1]) < 0xDC00
            and 0xDC00 <= ord(text[at]) < 0xE000)


def whole_cut(text, start, at):
    """A cut that would part a surrogate pair moves before it, or behind where nothing is left."""
    if not is_inside_pair(text, at):
        return at
    return at - 1 if at - 1 > start else at + 1


def padded(text, length):
    return text[:whole_cut(text, 0, length)].ljust(length) + " "


def next_start(text, start, length):
    end = start + length
    if text[end - 1] == " ":
        return end
    for at in range(end - 1, start, -1):
        if text[at - 1] == " ":
            return at
    return whole_cut(text, start, end - 1)


def report_cell(text, length, index, is_wrapping):
    """The cell, and whether more of its text is left."""
    text, length, has_more = " " if text is None else text, max(length, 2), False
    if not is_wrapping:
        if len(text) > length:
            text = (text[:whole_cut(text, 0, length)] if length < 5
                    else text[:whole_cut(text, 0, length - 3)] + "...")
    else:
        start = 0
        for _ in range(index):
            if start + length > len(text):
                return " " * (length + 1), False
            start = next_start(text, start, length)
        if len(text) - start <= length:
            text = text[start:]
        else:
            text, has_more = text[start:next_start(text, start, length)], True
    return padded(text.replace("\n", " "), length), has_more


def main():
    described = json.loads((DATA / "cases.json").read_text(encoding="utf-8"))
    defaults = described["defaults"]
    expected, wanted = DATA / "expected", {}
    for case in described["cases"]:
        settings = {**defaults["settings"], **case.get("settings", {})}
        for name, content in Case({**defaults, **case, "settings": settings}).files().items():
            wanted[expected / case["name"] / name] = content
    present = {path: path.read_bytes() for path in expected.glob("*/*")}
    changed = sorted(path for path in wanted.keys() | present.keys()
                     if wanted.get(path) != present.get(path))
    for path in changed:
        print(path.relative_to(DATA))
    if "--check" in sys.argv:
        return 1 if changed else 0
    shutil.rmtree(expected, ignore_errors=True)
    for path, content in wanted.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
    return 0


if __name__ == "__main__":
    sys.exit(main())
