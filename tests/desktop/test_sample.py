"""What a newcomer sees first: the sample's month, with hours, rates and costs, to play with."""

import csv
import io
import os
import subprocess
from decimal import ROUND_HALF_EVEN, Decimal
from pathlib import Path

from accessibility import wait_for
from program import Quillet

HOME = Path(os.environ["HOME"])
MAKE_SAMPLE = Path(__file__).parents[2] / "share" / "sample" / "make-sample-home"
RATES = {"Clients": Decimal(110), "Home": Decimal(0), "Work": Decimal("85.50")}


def money(text):
    return Decimal(text.removeprefix("$").replace(",", ""))


def saved_rows(program, name):
    path = HOME / "Desktop" / name
    program.save("CSV", path)
    wait_for(f"the file {name}", path.exists)
    return list(csv.DictReader(io.StringIO(path.read_bytes().decode(), newline="")))


def check_figures(rows):
    assert list(rows[0]) == ["Start Date", "Calendar", "Title", "Hours", "Cost", "Rate"], rows[0]
    assert {row["Calendar"] for row in rows} == set(RATES)
    for row in rows:
        rate, hours = money(row["Rate"]), Decimal(row["Hours"])
        assert rate == RATES[row["Calendar"]], row
        assert hours > 0, row
        cost = (hours * rate).quantize(Decimal("0.01"), ROUND_HALF_EVEN)
        assert money(row["Cost"]) == cost, row


def main():
    subprocess.run([MAKE_SAMPLE, HOME], check=True)
    with Quillet() as program:
        program.wait_for_calendars(["Clients", "Home", "Work"])
        program.wait_for_choice("Month")
        wait_for("the month's events", lambda: "Trade fair" in program.titles())
        rows = saved_rows(program, "month.csv")
        check_figures(rows)
        assert [row["Title"] for row in rows] == program.titles()
        program.press("Custom")
        program.wait_for_choice("Custom")
        program.press("Next")
        wait_for("the month's events to go", lambda: "Trade fair" not in program.titles())
        program.press("Previous")
        wait_for("them to come back", lambda: program.titles() == [row["Title"] for row in rows])
    assert program.log == "", f"the program logged:\n{program.log}"


main()
