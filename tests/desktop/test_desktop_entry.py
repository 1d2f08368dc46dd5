"""Desktops that do not speak to the program over the bus run the command lines of its desktop
entry: files and actions arrive all the same, and one program runs."""

import os
import subprocess
import sys
from datetime import timezone
from pathlib import Path

from accessibility import wait_for
from months import entries, write_calendars
from program import Quillet, write_event
from session import owner, processes
from gi.repository import Gio, GLib

HOME = Path(os.environ["HOME"])
ENTRY = Path(__file__).parents[2] / "share" / "org.quillet.Quillet.desktop.in"


def install():
    """Beside each other as an installation has them; the helper by a copy, for it looks for the
    program from where it is itself."""
    libexec, program = HOME / "prefix" / "libexec", Path(sys.argv[1])
    helper = libexec / "quillet" / "quillet-open"
    (HOME / "prefix" / "bin").mkdir(parents=True)
    helper.parent.mkdir(parents=True)
    (HOME / "prefix" / "bin" / "quillet").symlink_to(program)
    helper.write_bytes(program.with_name("quillet-open").read_bytes())
    helper.chmod(0o755)
    text = ENTRY.read_text().replace("@CMAKE_INSTALL_FULL_LIBEXECDIR@", str(libexec))
    assert "@" not in text
    return helper, text


def entry_without_bus(text):
    key_file = GLib.KeyFile()
    key_file.load_from_data(text, len(text.encode()), GLib.KeyFileFlags.KEEP_TRANSLATIONS)
    key_file.set_boolean("Desktop Entry", "DBusActivatable", False)
    return Gio.DesktopAppInfo.new_from_keyfile(key_file)


def exports():
    first = entries(0)[0]
    for name in ("one 100%", "über"):
        write_event(HOME / "elsewhere", name, name, first.start.astimezone(timezone.utc),
                    first.end.astimezone(timezone.utc))
    return sorted((HOME / "elsewhere").glob("*.ics"))


def running():
    return Quillet.running(wait_for("the program", owner))


def end(program):
    process = owner()
    program.press_menu_item("Quit")
    wait_for("the end", lambda: process not in processes())


def check_files_start_the_program(entry, files):
    assert entry.launch_uris([file.as_uri() for file in files], None)
    program = running()
    program.press("Allow")
    program.wait_for_text("Add these 2 files as calendars?")
    program.press("Add")
    program.wait_for_calendars(sorted(["Home", "Work", *(file.stem for file in files)]))
    return program


def check_the_running_program_gets_them(program, entry, helper, files):
    assert entry.launch([], None)
    assert entry.launch_uris([files[0].as_uri()], None)
    program.wait_for_text(f"Add “{files[0].name}” as a calendar?")
    program.press("Cancel")
    subprocess.run([helper, files[1].name], cwd=files[1].parent, check=True, timeout=30)
    program.wait_for_text(f"Add “{files[1].name}” as a calendar?")
    program.press("Cancel")
    for action in ("this-week", "this-month"):
        entry.launch_action(action, None)
        program.wait_for_choice("Week" if action == "this-week" else "Month")
    assert processes() == {owner()}


def check_without_a_bus(helper, files):
    """The program starts in the helper's place, and only the helper has something to say."""
    environment = {**os.environ, "DBUS_SESSION_BUS_ADDRESS": f"unix:path={HOME}/no-bus"}
    for arguments, said in ([], []), ([files[0]], ["takes no files"]):
        with subprocess.Popen([helper, *arguments], env=environment, text=True,
                              stderr=subprocess.PIPE) as alone:
            subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid",
                            str(alone.pid), "--name", "^Quillet$"], check=True,
                           stdout=subprocess.DEVNULL)
            assert processes() == {alone.pid}
            alone.terminate()
            lines = alone.stderr.read().splitlines()
        assert len(lines) == len(said) and all(map(str.__contains__, lines, said)), lines


def main():
    write_calendars()
    helper, text = install()
    entry, files = entry_without_bus(text), exports()
    program = check_files_start_the_program(entry, files)
    check_the_running_program_gets_them(program, entry, helper, files)
    end(program)
    check_without_a_bus(helper, files)


main()
