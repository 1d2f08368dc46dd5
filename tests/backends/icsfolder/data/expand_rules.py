"""Expands recurrence rules with dateutil, as the second opinion of a test.

Reads one JSON case per line: rule, start (local), zone, exceptions (local), from and to (UTC).
Writes one JSON list of UTC seconds per line.
"""

import datetime as datetime_module
import json
import sys
from datetime import datetime, timedelta, timezone

from dateutil import tz
from dateutil.rrule import rrulestr

# Where dateutil gives up on rules that never match; no case asks for later times.
datetime_module.MAXYEAR = 2032


def instant(local, zone):
    """Skipped times are read with the offset before the jump, repeated ones as the first."""
    before = local.replace(tzinfo=zone, fold=0)
    if not tz.datetime_exists(before):
        # zoneinfo's and dateutil's rules differ for skipped times; this is the wanted one.
        day_before = local.replace(hour=0, minute=0, tzinfo=zone)
        offset = day_before.utcoffset()
        return (local - offset).replace(tzinfo=timezone.utc)
    return before.astimezone(timezone.utc)


def expand(case):
    zone = tz.gettz(case["zone"])
    start = datetime.fromisoformat(case["start"])
    first = datetime.fromtimestamp(case["from"], timezone.utc)
    last = datetime.fromtimestamp(case["to"], timezone.utc)
    rule = rrulestr(case["rule"], dtstart=start)
    parts = dict(part.split("=") for part in case["rule"].split(";"))
    fits = bool(rule.between(start, start, inc=True))
    if "COUNT" in parts and not fits:
        # The start is the first occurrence even where it does not fit.
        count = int(parts["COUNT"]) - 1
        parts["COUNT"] = str(count)
        others = ";".join(f"{key}={value}" for key, value in parts.items())
        times = list(rrulestr(others, dtstart=start)) if count > 0 else []
    else:
        times = rule.between(start, last.replace(tzinfo=None) + timedelta(days=3), inc=True)
    exceptions = {datetime.fromisoformat(text) for text in case["exceptions"]}
    wanted = {instant(time, zone) for time in [start, *times] if time not in exceptions}
    return sorted(int(time.timestamp()) for time in wanted if first <= time < last)


for line in sys.stdin:
    print(json.dumps(expand(json.loads(line))))
