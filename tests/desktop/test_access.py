"""Without the user's consent nothing is read; it can be given later and is asked for once."""

from months import entries, show_this_month, titles, write_calendars
from program import Quillet


def main():
    write_calendars()
    with Quillet() as program:
        program.press("Don’t Allow")
        program.wait_for_text("may not read your calendars")
        assert program.calendar_titles() == []
        program.press("Allow Calendar Access…")
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        show_this_month(program)
    with Quillet() as program:
        program.wait_for_titles(titles(entries(0)))
        assert "Allow" not in program.texts()


main()
