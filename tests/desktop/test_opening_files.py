"""What the file manager opens with the program is offered as a calendar, whatever it is, and takes
nothing from what the user is typing."""

from datetime import timezone

from accessibility import press_key, type_keys, wait_for
from months import entries, write_calendars
from program import CALENDARS, Quillet, write_event
from session import ask
from gi.repository import GLib

ELSEWHERE = CALENDARS.parent.parent / "elsewhere"
QUESTION = "as a calendar?"


def write_export(name):
    """A file of one event, as programs export it."""
    first = entries(0)[0]
    write_event(ELSEWHERE, "export", "Fair", first.start.astimezone(timezone.utc),
                first.end.astimezone(timezone.utc))
    (ELSEWHERE / "displayname").unlink()
    return (ELSEWHERE / "export.ics").rename(ELSEWHERE / name)


def check_one(program):
    fair = write_export("Fair & <b>trade<b> 100%.ics")
    ask("Open", [fair.as_uri()], {})
    program.wait_for_text(f"Add “{fair.name}” as a calendar?")
    program.press("Cancel")
    ask("Open", [fair.as_uri()], {"activation-token": GLib.Variant("s", "any")})
    program.wait_for_text(QUESTION)
    program.press("Add")
    program.wait_for_calendars(sorted(["Home", "Work", fair.stem]))
    assert (CALENDARS / fair.name).resolve() == fair
    refused(program, fair.as_uri(), "is among the calendars already.")


def refused(program, address, reason):
    """After the question, which asks nothing of the file."""
    ask("Open", [address], {})
    program.wait_for_text(QUESTION)
    program.press("Add")
    program.wait_for_text(reason)
    program.press("OK")
    wait_for("the message to close", lambda: program.find("OK") is None)


def check_what_cannot_be_added(program):
    before = program.calendar_titles()
    refused(program, (ELSEWHERE / "gone.ics").as_uri(), "gone.ics” does not exist.")
    refused(program, "file:///etc/hostname", "is neither a folder nor an .ics file.")
    refused(program, (CALENDARS / "Work" / "event-0-0.ics").as_uri(),
            "is among the calendars already.")
    for address in ("https://quillet.example/a.ics", "file://elsewhere.example/a.ics", "a.ics", "",
                    "file:///a.ics%00b", "\n"):
        ask("Open", [address], {})
        program.wait_for_text("Only files on this computer")
        program.press("OK")
        wait_for("the message to close", lambda: program.find("OK") is None)
    assert program.calendar_titles() == before


def check_several(program):
    """Files and a folder, and one that is elsewhere."""
    trips, travel = write_export("Trips.ics"), ELSEWHERE / "Travel"
    first = entries(0)[0]
    write_event(travel, "travel", "Train", first.start.astimezone(timezone.utc),
                first.end.astimezone(timezone.utc))
    before = program.calendar_titles()
    ask("Open", [trips.as_uri(), "webcal://quillet.example/a", travel.as_uri()], {})
    program.wait_for_text("Only files on this computer")
    program.press("OK")
    program.wait_for_text("Add these 2 files as calendars?")
    program.press("Add")
    program.wait_for_calendars(sorted(before + ["Travel", "Trips"]))


def check_typing_goes_on(program):
    """A name is being typed when the desktop opens a file."""
    program.press("Edit Calendar Groups")
    program.wait_for_window("Calendar Groups")
    program.press("New")
    wait_for("the new group", lambda: len(program.names("Calendar Groups")) == 2)
    press_key("ctrl+a")
    type_keys("Bill")
    ask("Open", [write_export("Late.ics").as_uri()], {})
    # Answered once the request is served, which is no sign yet of what came to the front.
    program.wait_for_window("Calendar Groups")
    type_keys("able")
    press_key("Return")
    wait_for("the whole name",
             lambda: program.names("Calendar Groups") == ["All Calendars", "Billable"])
    assert not any(QUESTION in text for text in program.texts()), "a question over the sheet"
    program.press("Close")
    program.wait_for_text("Add “Late.ics” as a calendar?")
    program.press("Cancel")


def main():
    write_calendars()
    with Quillet() as program:
        program.press("Allow")
        program.wait_for_calendars(["Home", "Work"])
        check_one(program)
        check_what_cannot_be_added(program)
        check_several(program)
        check_typing_goes_on(program)


main()
