"""The user asks for newer versions on a computer that cannot reach the list, or where nobody
answers: one clear sentence, a search that can be given up, and an end that waits for nothing."""

import os
import socket
import time

from accessibility import wait_for
from months import write_calendars
from program import Quillet

SENTENCE = "The list of versions cannot be reached."
SEARCH = "Looking for newer versions…"


def go_through(address):
    """Whatever connection the machine has, the program has just this one."""
    for variable in ("http_proxy", "https_proxy", "all_proxy"):
        os.environ[variable] = address


def check_offline():
    with Quillet() as program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        for _ in range(2):
            program.press_menu_item("Check for Updates…")
            program.wait_for_text(SENTENCE)
            program.press("OK")
        program.wait_for_calendars(["Home", "Work"])


def check_a_server_that_says_nothing(program, server):
    """Its search is given up, and the next one asks afresh."""
    for _ in range(2):
        program.press_menu_item("Check for Updates…")
        with server.accept()[0]:
            program.wait_for_text(SEARCH)
            program.press("Cancel")
            wait_for("the search to go",
                     lambda: not any(SEARCH in text for text in program.texts()))


def main():
    write_calendars()
    go_through("http://127.0.0.1:9")
    check_offline()
    with socket.create_server(("127.0.0.1", 0)) as server:
        server.settimeout(30)
        go_through(f"http://127.0.0.1:{server.getsockname()[1]}")
        with Quillet() as program:
            program.wait_for_calendars(["Home", "Work"])
            check_a_server_that_says_nothing(program, server)
            # Before the search shows itself.
            program.press_menu_item("Check for Updates…")
            asked_to_end = time.monotonic()
        assert time.monotonic() - asked_to_end < 15, "the end waited for the answer"


main()
