"""In the user's language: what the window says, what it saves, and what follows a change."""

import json
import os
from pathlib import Path

from accessibility import ROLE, wait_for
from months import entries, titles, write_calendars
from program import SETTINGS, Quillet

FILE = Path(os.environ["HOME"]) / "Desktop" / "stunden.csv"
GERMAN = {"Quit": "Beenden", "Save": "Speichern", "Events": "Termine", "Title": "Titel"}
FRENCH = {"Quit": "Quitter", "Events": "Événements", "Title": "Titel"}


def german_csv(expected):
    lines = [["Startdatum", "Kalender", "Titel", "Stunden"]]
    for entry in expected:
        day = f"{entry.start.day:02}.{entry.start.month:02}.{entry.start.year % 100:02}"
        lines.append([day, entry.calendar, entry.title, entry.hours_text.replace(".", ",")])
    return "".join(";".join('"' + text.replace('"', '""') + '"' for text in line) + "\n"
                   for line in lines)


def check_german(program):
    program.press("Erlauben")
    program.press("Monat")
    program.wait_for_titles(titles(entries(0)))
    expected = ["Datei", "Bearbeiten", "Ansicht", "Zeitraum", "Kalender", "Hilfe"]
    assert program.menus() == expected, program.menus()
    program.wait_for_choice("Monat")
    for tab in ("Alle Termine", "Ausgewählte Termine"):
        program.control(tab, {ROLE.RADIO_BUTTON})
    program.save("CSV", FILE)
    wait_for("the saved file", FILE.exists)
    content = FILE.read_bytes().decode()
    assert content == german_csv(entries(0)), content
    assert "1,5" in content


def stored_names():
    settings = json.loads(SETTINGS.read_text())
    return [settings["calendarGroups"][0]["calendarGroupName"],
            settings["columnLayouts"][0]["columnLayoutName"], settings["titleColumnTitle"]]


def main():
    write_calendars()
    with Quillet("de_DE.UTF-8", GERMAN) as program:
        check_german(program)
    assert stored_names() == ["Alle Kalender", "Standard", "Titel"], stored_names()
    # The default group and layout follow the language; a column's title is the user's own by now.
    with Quillet("fr_FR.UTF-8", FRENCH) as program:
        program.wait_for_titles(titles(entries(0)))
        assert program.menus()[0] == "Fichier", program.menus()
    assert stored_names() == ["Tous les calendriers", "Par défaut", "Titel"], stored_names()


main()
