#!/usr/bin/python3
"""Writes data/expected: what the summaries, grids and explanations of data/cases.json are to say.

This is a second implementation of those texts, beside the one of the tables and reports whose
formats it shares. It is run by hand (Debian: python3-icu) after a change of the cases or of a rule;
InsightGoldenTest.cpp only reads what it wrote. Where the two differ, one of them is wrong: never copy
the program's output here.
"""

import json
import sys
from datetime import date, datetime, timedelta
from decimal import ROUND_HALF_EVEN, ROUND_HALF_UP, Decimal
from pathlib import Path

import icu

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "golden"))
from write_expected import Locale, Zone, duration_text, plain  # noqa: E402

DATA = Path(__file__).resolve().parent / "data"
ALL_DECIMALS = Decimal(1).scaleb(-30)


def cell(text):
    return text.replace("\t", " ").replace("\n", " ")


def quantized(value, places):
    return value.quantize(Decimal(1).scaleb(-places), ROUND_HALF_EVEN)


class Event:
    def __init__(self, entry, zone):
        self.calendar, self.title, self.location = entry["calendar"], entry["title"], entry["location"]
        self.start, self.end = (zone.instant(datetime.fromisoformat(entry[key])) for key in ("start", "end"))
        self.is_all_day = entry.get("isAllDay", False)


class Amounts:
    def __init__(self, minutes=0, cost=Decimal(0)):
        self.minutes, self.cost = minutes, cost

    def add(self, other):
        self.minutes += other.minutes
        self.cost += other.cost


class Row:
    def __init__(self):
        self.amounts, self.events, self.children = Amounts(), set(), {}


class Case:
    def __init__(self, cases, locale, zone):
        self.locale, self.zone, self.zone_name = Locale(locale, zone), Zone(zone), zone
        self.months = icu.SimpleDateFormat(
            icu.DateTimePatternGenerator.createInstance(icu.Locale(locale)).getBestPattern("yMMMM"),
            icu.Locale(locale))
        self.months.setTimeZone(icu.TimeZone.createTimeZone(zone))
        self.first_weekday = icu.GregorianCalendar(icu.Locale(locale)).getFirstDayOfWeek()
        self.days = [date.fromisoformat(cases["firstDay"])]
        while self.days[-1] < date.fromisoformat(cases["lastDay"]):
            self.days.append(self.days[-1] + timedelta(days=1))
        self.period = (self.zone.midnight(self.days[0]), self.zone.midnight(self.days[-1]) + 86400)
        self.all_day_hours = cases["allDayHours"]
        self.is_from_hours = cases["isMoneyFromHours"][zone]
        self.rates = {calendar: Decimal(rate) for calendar, rate in cases["rates"].items()}
        self.events = [Event(entry, self.zone) for entry in cases["events"]]
        self.currency_places = self.locale.money.getMaximumFractionDigits()

    # --- Figures

    def span(self, event, period_end=None):
        return max(event.start, self.period[0]), min(event.end, period_end or self.period[1])

    def minutes(self, event, period_end=None):
        start, end = self.span(event, period_end)
        if event.is_all_day:
            exact = Decimal(self.all_day_hours) * Decimal(repr((end - start) / 86400)) * 60
        else:
            exact = Decimal(end - start) / 60
        return int(exact.quantize(Decimal(1), ROUND_HALF_UP))

    def hours_for_money(self, minutes):
        return abs(quantized(Decimal(minutes) / 60, 2))

    def rate_of_a_minute(self, rate):
        return quantized(rate / 60, 15)

    def cost(self, event, minutes):
        rate = self.rates[event.calendar]
        if self.is_from_hours:
            return rate * self.hours_for_money(minutes)
        return self.rate_of_a_minute(rate) * minutes

    def amounts(self, event, period_end=None):
        minutes = self.minutes(event, period_end)
        return Amounts(minutes, self.cost(event, minutes))

    def day_shares(self, event):
        """What each day has of the event: what the event counts in a period that ends with the day,
        less what it counts in one that ends before."""
        start, end = self.span(event)
        before = Amounts()
        for index, day in enumerate(self.days):
            is_last = index == len(self.days) - 1
            day_end = self.period[1] if is_last else self.zone.midnight(self.days[index + 1])
            if start >= day_end:
                continue
            upto = self.amounts(event, day_end)
            yield day, Amounts(upto.minutes - before.minutes, upto.cost - before.cost)
            before = upto
            if end <= day_end:
                return

    # --- Texts

    def number(self, value, places=2):
        text = plain(abs(quantized(value, places))).replace(".", self.locale.separator)
        return text

    def exact(self, value):
        sign = "−" if value < 0 else ""
        return sign + plain(abs(value.quantize(ALL_DECIMALS))).replace(".", self.locale.separator)

    def hours(self, minutes):
        return self.number(Decimal(minutes) / 60)

    def share(self, amounts, total):
        if total.minutes == 0:
            return ""
        return self.number(Decimal(amounts.minutes) / total.minutes * 100, 1) + "%"

    def date(self, day):
        return self.locale.date(self.zone.midnight(day))

    def when(self, event, instant):
        date_text = self.locale.date(instant)
        return date_text if event.is_all_day else f"{date_text} {self.locale.time(instant)}"

    def until(self, event, instant):
        return self.locale.date(instant - 1) if event.is_all_day else self.when(event, instant)

    # --- Summary

    def week_of(self, day):
        weekday = day.isoweekday() % 7 + 1
        first = day - timedelta(days=(weekday - self.first_weekday) % 7)
        return max(first, self.days[0]), min(first + timedelta(days=6), self.days[-1])

    def tree(self, outer, inner):
        rows, total = {}, Amounts()
        for index, event in enumerate(self.events):
            for day, share in self.day_shares(event):
                row = rows.setdefault(outer(event, day), Row())
                child = row.children.setdefault(inner(event, day), Row())
                for each in (row, child):
                    each.amounts.add(share)
                    each.events.add(index)
                total.add(share)
        return rows, total

    def difference(self, rows, whole, event_count, unit):
        def shown_time(minutes):
            return quantized(Decimal(minutes) / 60, 2) if unit == "Hours" else Decimal(minutes)

        events = sum(len(row.events) for row in rows) - event_count
        time = shown_time(whole.minutes) - sum(shown_time(row.amounts.minutes) for row in rows)
        places = self.currency_places
        money = quantized(whole.cost, places) - sum(quantized(row.amounts.cost, places) for row in rows)
        sentences, amounts = [], []
        if events == 1:
            sentences.append("One event stands in two rows")
        elif events:
            sentences.append(f"Events counted in more than one row: {events}")
        for value, text in ((time, self.number(time)), (money, self.locale.currency(abs(money)))):
            if value:
                amounts.append(("−" if value < 0 else "+") + text)
        if amounts:
            sentences.append("Rounding: " + ", ".join(amounts))
        return ["; ".join(sentences)] if sentences else []

    def summary(self, outer, inner, name, inner_name, unit, is_ordered):
        rows, total = self.tree(outer, inner)
        lines = [f"\t\tEvents\t{unit}\tCost\tShare"]

        def line(first, second, amounts, count):
            time = self.hours(amounts.minutes) if unit == "Hours" else duration_text(Decimal(amounts.minutes))
            lines.append("\t".join([cell(first), cell(second), str(count), time,
                                    self.locale.currency(amounts.cost), self.share(amounts, total)]))

        for key in sorted(rows) if is_ordered else rows:
            row = rows[key]
            line(name(key), "", row.amounts, len(row.events))
            for inner_key, child in row.children.items():
                line("", inner_name(inner_key), child.amounts, len(child.events))
            lines += self.difference(row.children.values(), row.amounts, len(row.events), unit)
        lines += self.difference(rows.values(), total, len(self.events), unit)
        line("Total", "", total, len(self.events))
        return "\n".join(lines)

    def summaries(self):
        weeks = self.summary(lambda event, day: self.week_of(day), lambda event, day: event.calendar,
                             lambda week: f"{self.date(week[0])} – {self.date(week[1])}",
                             lambda calendar: calendar, "Hours", True)
        months = self.summary(lambda event, day: (day.year, day.month), lambda event, day: event.title,
                              lambda month: self.months.format(float(self.zone.midnight(date(*month, 2)))),
                              lambda title: title or "(no title)", "Duration", True)
        return weeks + "\n\n" + months

    # --- Grid

    def grid(self, value):
        total = Amounts()
        weeks = {}
        for day in self.days:
            weeks.setdefault(self.monday(day), {})
        for event in self.events:
            for day, share in self.day_shares(event):
                cells = weeks[self.monday(day)].setdefault(event.calendar, {})
                cells.setdefault(day, Amounts()).add(share)
                total.add(share)
        blocks = [self.grid_week(first, rows, value) for first, rows in weeks.items()]
        return "\n\n".join(blocks) + f"\n\nTotal\t{value(total)}"

    def monday(self, day):
        return day - timedelta(days=(day.isoweekday() % 7 + 1 - self.first_weekday) % 7)

    def grid_week(self, first, rows, value):
        days = [first + timedelta(days=number) for number in range(7)]
        midnights = [self.zone.midnight(day) for day in days]
        lines = ["\t" + "\t".join(f"{self.locale.weekday(each)} {self.locale.date(each)}" for each in midnights)
                 + "\tTotal"]
        sums, week = {}, Amounts()
        for calendar, cells in rows.items():
            of_row = Amounts()
            for day, amounts in cells.items():
                of_row.add(amounts)
                sums.setdefault(day, Amounts()).add(amounts)
                week.add(amounts)
            texts = [value(cells[day]) if day in cells else "" for day in days]
            lines.append("\t".join([calendar, *texts, value(of_row)]))
        texts = [value(sums[day]) if day in sums else "" for day in days]
        lines.append("\t".join(["Total", *texts, value(week) if rows else ""]))
        return "\n".join(lines)

    def grids(self):
        return (self.grid(lambda amounts: self.hours(amounts.minutes)) + "\n\n"
                + self.grid(lambda amounts: self.locale.currency(amounts.cost)))

    # --- Why

    def entry_steps(self, event):
        zone = f"in the zone {self.zone_name}"
        start, end = self.span(event)
        yield "Calendar", event.calendar
        yield "Start", self.when(event, event.start), zone
        yield "End", self.until(event, event.end), zone
        if start != event.start:
            yield "Counts from", self.when(event, start), "the period begins after the event"
        if end != event.end:
            yield "Counts until", self.until(event, end), "the period ends before the event"
        if event.is_all_day:
            yield ("Days", self.number(Decimal(end - start) / 86400, 4),
                   "an all-day event, in days of 24 hours")
            yield "Hours a day", str(self.all_day_hours), "for which an all-day event counts"
        else:
            yield "Length", self.number(Decimal(end - start) / 60, 4) + " min"
        yield ("Minutes", str(self.minutes(event)),
               "rounded to a whole minute, halves away from zero")

    def why_hours(self, event):
        yield from self.entry_steps(event)
        yield "Hours", self.hours(self.minutes(event)), "minutes divided by 60, shown with two decimals"

    def why_cost(self, event):
        yield from self.entry_steps(event)
        minutes, rate = self.minutes(event), self.rates[event.calendar]
        cost = self.cost(event, minutes)
        yield "Rate", self.locale.currency(rate), f"the rate of the calendar “{event.calendar}”"
        if self.is_from_hours:
            yield ("Hours for money", self.number(self.hours_for_money(minutes)),
                   "minutes divided by 60, rounded to two decimals")
            yield "Product", self.exact(cost), "hours times rate, exact"
        else:
            yield ("Rate of a minute", self.exact(self.rate_of_a_minute(rate)),
                   "the rate divided by 60, rounded to fifteen decimals")
            yield "Product", self.exact(cost), "minutes times the rate of a minute, exact"
        yield "Cost", self.locale.currency(cost), "shown with the decimals of the currency"

    def why_total(self, exact, shown_value, title, whole_text):
        yield "Events", str(len(self.events))
        parts, whole, shown = {}, Amounts(), Decimal(0)
        for event in self.events:
            amounts = self.amounts(event)
            parts.setdefault(event.calendar, Amounts()).add(amounts)
            whole.add(amounts)
            shown += shown_value(amounts)
        for calendar, amounts in parts.items():
            yield calendar, exact(amounts)
        yield ("Sum of the rounded values", self.exact(shown),
               "what adding up the rows as shown would give")
        yield "Exact sum", exact(whole), "rounded once, at the end"
        yield title, whole_text(whole), "as it is shown"

    def whys(self):
        def text(title, steps):
            return "\n".join([cell(title), *("\t".join(map(cell, step)) for step in steps)])

        blocks = []
        for event in self.events:
            blocks.append(text(f"Hours of “{event.title}”", self.why_hours(event)))
            blocks.append(text(f"Cost of “{event.title}”", self.why_cost(event)))
        blocks.append(text("Total: Hours", self.why_total(
            lambda amounts: f"{amounts.minutes} min",
            lambda amounts: quantized(Decimal(amounts.minutes) / 60, 2), "Hours",
            lambda amounts: self.hours(amounts.minutes))))
        blocks.append(text("Total: Cost", self.why_total(
            lambda amounts: self.exact(amounts.cost),
            lambda amounts: quantized(amounts.cost, self.currency_places), "Cost",
            lambda amounts: self.locale.currency(amounts.cost))))
        return "\n\n".join(blocks)


def main():
    cases = json.loads((DATA / "cases.json").read_text(encoding="utf-8"))
    for locale in cases["locales"]:
        for zone in cases["zones"]:
            case = Case(cases, locale, zone)
            folder = DATA / "expected" / f"{locale}-{zone.replace('/', '-')}"
            folder.mkdir(parents=True, exist_ok=True)
            for name, text in (("summary", case.summaries()), ("grid", case.grids()), ("why", case.whys())):
                (folder / f"{name}.txt").write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
