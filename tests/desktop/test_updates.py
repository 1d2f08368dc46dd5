"""The user asks for newer versions on a computer that cannot reach the list: one clear sentence."""

import os

from months import write_calendars
from program import Quillet


def main():
    # Whatever connection the machine has, the program has none.
    for variable in ("http_proxy", "https_proxy", "all_proxy"):
        os.environ[variable] = "http://127.0.0.1:9"
    write_calendars()
    with Quillet() as program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        for _ in range(2):
            program.press_menu_item("Check for Updates…")
            program.wait_for_text("The list of versions cannot be reached.")
            program.press("OK")
        program.wait_for_calendars(["Home", "Work"])


main()
