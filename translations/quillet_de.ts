<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Quillet</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 bei Byte %2</translation>
    </message>
    <message>
        <source>%1 event</source>
        <translation>%1 Termin</translation>
    </message>
    <message>
        <source>%1 events</source>
        <translation>%1 Termine</translation>
    </message>
    <message>
        <source>%1 events cannot be read</source>
        <translation>%1 Termine sind nicht lesbar</translation>
    </message>
    <message>
        <source>%1 events without a start</source>
        <translation>%1 Termine ohne Anfang</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 hour</source>
        <translation>%1 Stunde</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <translation>%1 Minute</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>%1 more events are in other files too, in newer versions, which count</source>
        <translation>%1 weitere Termine stehen auch in anderen Dateien, in neueren Fassungen, die zählen</translation>
    </message>
    <message>
        <source>%1 more lines cannot be read</source>
        <translation>%1 weitere Zeilen sind nicht lesbar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 vom %2</translation>
    </message>
    <message>
        <source>%1 of %2 choices</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>%1 von „%2“</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 gegenüber %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>%1: %2. Please correct it in your calendar program.</source>
        <translation>%1: %2. Bitte im Kalenderprogramm berichtigen.</translation>
    </message>
    <message>
        <source>(no location)</source>
        <translation>(ohne Ort)</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>(no title)</source>
        <translation>(ohne Titel)</translation>
    </message>
    <message>
        <source>A folder holds a calendar with one file an event; a file holds a whole calendar.</source>
        <translation>Ein Ordner enthält einen Kalender mit einer Datei je Termin, eine Datei einen ganzen Kalender.</translation>
    </message>
    <message>
        <source>a folder that cannot be reached</source>
        <translation>ein Ordner, der nicht erreichbar ist</translation>
    </message>
    <message>
        <source>A last row with the sums of the columns</source>
        <translation>Eine letzte Zeile mit den Summen der Spalten</translation>
    </message>
    <message>
        <source>a link that leads nowhere</source>
        <translation>eine Verknüpfung, die ins Leere führt</translation>
    </message>
    <message>
        <source>A preset holds the switches and texts of the text report. Applying one sets them all; a new one takes them as they are now.</source>
        <translation>Eine Vorlage enthält die Schalter und Texte des Textberichts. Beim Anwenden werden alle gesetzt; eine neue übernimmt sie, wie sie jetzt sind.</translation>
    </message>
    <message>
        <source>a spreadsheet would take the title “%1” for a formula</source>
        <translation>eine Tabellenkalkulation hielte den Titel „%1“ für eine Formel</translation>
    </message>
    <message>
        <source>a text or event that is too long was cut</source>
        <translation>ein zu langer Text oder Termin wurde gekürzt</translation>
    </message>
    <message>
        <source>&amp;About Quillet</source>
        <translation>Ü&amp;ber Quillet</translation>
    </message>
    <message>
        <source>About Quillet</source>
        <translation>Über Quillet</translation>
    </message>
    <message>
        <source>Above the Table</source>
        <translation>Über der Tabelle</translation>
    </message>
    <message>
        <source>Access Denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add a folder or a file of calendars, or drop one here.</source>
        <translation>Fügen Sie einen Kalenderordner oder eine Kalenderdatei hinzu, oder ziehen Sie sie hierher.</translation>
    </message>
    <message>
        <source>Add Calendar File</source>
        <translation>Kalenderdatei hinzufügen</translation>
    </message>
    <message>
        <source>Add Calendar Folder</source>
        <translation>Kalenderordner hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add Calendar Folder or File…</source>
        <translation>Kalenderordner oder -datei &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Add Calendar Folder or File…</source>
        <translation>Kalenderordner oder -datei hinzufügen…</translation>
    </message>
    <message>
        <source>Add these %1 files as calendars?</source>
        <translation>Diese %1 Dateien als Kalender hinzufügen?</translation>
    </message>
    <message>
        <source>Add “%1” as a calendar?</source>
        <translation>„%1“ als Kalender hinzufügen?</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>All Calendars</source>
        <translation>Alle Kalender</translation>
    </message>
    <message>
        <source>All Events</source>
        <translation>Alle Termine</translation>
    </message>
    <message>
        <source>All-day events are neither listed nor counted in totals and exports</source>
        <translation>Ganztägige Termine werden weder aufgelistet noch in Summen und Exporten gezählt</translation>
    </message>
    <message>
        <source>All-day events:</source>
        <translation>Ganztägige Termine:</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Allow Calendar A&amp;ccess…</source>
        <translation>Kalender&amp;zugriff erlauben…</translation>
    </message>
    <message>
        <source>Allow Calendar Access…</source>
        <translation>Kalenderzugriff erlauben…</translation>
    </message>
    <message>
        <source>an all-day event, in days of 24 hours</source>
        <translation>ein ganztägiger Termin, in Tagen zu 24 Stunden</translation>
    </message>
    <message>
        <source>an empty file</source>
        <translation>eine leere Datei</translation>
    </message>
    <message>
        <source>an entry in it has no end</source>
        <translation>ein Eintrag darin hat kein Ende</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Arranges the columns as the selected layout has them</source>
        <translation>Ordnet die Spalten so an, wie das ausgewählte Layout sie enthält</translation>
    </message>
    <message>
        <source>as it is shown</source>
        <translation>wie es angezeigt wird</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Mindestens</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>&amp;Average time</source>
        <translation>&amp;Durchschnittliche Zeit</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>&amp;Beginning date</source>
        <translation>&amp;Anfangsdatum</translation>
    </message>
    <message>
        <source>Beginning Date</source>
        <translation>Anfangsdatum</translation>
    </message>
    <message>
        <source>Billed</source>
        <translation>Berechnet</translation>
    </message>
    <message>
        <source>Billed: %1 of “%2”</source>
        <translation>Berechnet: %1 von „%2“</translation>
    </message>
    <message>
        <source>Bring column titles back, too</source>
        <translation>Auch Spaltentitel zurückholen</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Calendar Group</source>
        <translation>Kalendergruppe</translation>
    </message>
    <message>
        <source>Calendar Groups</source>
        <translation>Kalendergruppen</translation>
    </message>
    <message>
        <source>Calendar without a name</source>
        <translation>Kalender ohne Namen</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>&amp;Kalender</translation>
    </message>
    <message>
        <source>C&amp;alendars</source>
        <translation>K&amp;alender</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Calendars (*.ics)</source>
        <translation>Kalender (*.ics)</translation>
    </message>
    <message>
        <source>&amp;Calendars in Group</source>
        <translation>&amp;Kalender der Gruppe</translation>
    </message>
    <message>
        <source>Calendars in Group</source>
        <translation>Kalender der Gruppe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation>nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Cannot delete All Calendars</source>
        <translation>„Alle Kalender“ kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Cannot delete Default layout</source>
        <translation>Das Standardlayout kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Cannot delete Default settings</source>
        <translation>Die Standardeinstellungen können nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Nach &amp;Aktualisierungen suchen…</translation>
    </message>
    <message>
        <source>Choose what the report tells</source>
        <translation>Festlegen, was im Bericht steht</translation>
    </message>
    <message>
        <source>Choose where to search</source>
        <translation>Festlegen, wo gesucht wird</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>Fenster sch&amp;ließen</translation>
    </message>
    <message>
        <source>Column &amp;Layouts</source>
        <translation>Spalten&amp;layouts</translation>
    </message>
    <message>
        <source>Column Layouts</source>
        <translation>Spaltenlayouts</translation>
    </message>
    <message>
        <source>Column &amp;Preferences…</source>
        <translation>Spalten&amp;einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Completion date</source>
        <translation>Erledigungsdatum</translation>
    </message>
    <message>
        <source>Control-click ticks or clears all calendars</source>
        <translation>Ein Klick mit Strg wählt alle Kalender aus oder ab</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>Counts from</source>
        <translation>Zählt ab</translation>
    </message>
    <message>
        <source>Counts until</source>
        <translation>Zählt bis</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>CSV/TSV</source>
        <translation>CSV/TSV</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation>&amp;Eigener</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigener</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Tag</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>&amp;Days</source>
        <translation>&amp;Tage</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Default layout cannot be deleted.</source>
        <translation>Das Standardlayout lässt sich nicht löschen.</translation>
    </message>
    <message>
        <source>Default settings cannot be deleted.</source>
        <translation>Die Standardeinstellungen lassen sich nicht löschen.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>&amp;Delete Layout</source>
        <translation>Layout &amp;löschen</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>Die Gruppe löschen?</translation>
    </message>
    <message>
        <source>Delete the record?</source>
        <translation>Den Eintrag löschen?</translation>
    </message>
    <message>
        <source>Deleted records cannot be restored.</source>
        <translation>Gelöschte Einträge können nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Desktop calendars</source>
        <translation>Kalender des Desktops</translation>
    </message>
    <message>
        <source>Don’t Allow</source>
        <translation>Nicht erlauben</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fälligkeitsdatum</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>each event is rounded by itself</source>
        <translation>jeder Termin wird für sich gerundet</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Edit Calendar Groups</source>
        <translation>Kalendergruppen bearbeiten</translation>
    </message>
    <message>
        <source>Edit calendar groups</source>
        <translation>Kalendergruppen bearbeiten</translation>
    </message>
    <message>
        <source>Edit Calendar &amp;Groups…</source>
        <translation>Kalender&amp;gruppen bearbeiten…</translation>
    </message>
    <message>
        <source>Edit Calendar Groups…</source>
        <translation>Kalendergruppen bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Edit Layouts…</source>
        <translation>Layouts &amp;bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Encoding of saved files:</source>
        <translation>&amp;Kodierung gespeicherter Dateien:</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>End Date</source>
        <translation>Enddatum</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Endzeit</translation>
    </message>
    <message>
        <source>End Weekday</source>
        <translation>Wochentag (Ende)</translation>
    </message>
    <message>
        <source>E&amp;nding date</source>
        <translation>&amp;Enddatum</translation>
    </message>
    <message>
        <source>Ending Date</source>
        <translation>Enddatum</translation>
    </message>
    <message>
        <source>ends in the middle</source>
        <translation>bricht mittendrin ab</translation>
    </message>
    <message>
        <source>Event &amp;Notes</source>
        <translation>Termin&amp;notizen</translation>
    </message>
    <message>
        <source>Event Notes</source>
        <translation>Terminnotizen</translation>
    </message>
    <message>
        <source>event without a title</source>
        <translation>Termin ohne Titel</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Termine</translation>
    </message>
    <message>
        <source>Events counted in more than one row: %1</source>
        <translation>In mehr als einer Zeile gezählte Termine: %1</translation>
    </message>
    <message>
        <source>Events with notes: %1</source>
        <translation>Termine mit Notizen: %1</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Genau</translation>
    </message>
    <message>
        <source>exact %1, billed %2</source>
        <translation>genau %1, berechnet %2</translation>
    </message>
    <message>
        <source>Exact sum</source>
        <translation>Genaue Summe</translation>
    </message>
    <message>
        <source>Export as:</source>
        <translation>Exportieren als:</translation>
    </message>
    <message>
        <source>F2 or a double click renames</source>
        <translation>F2 oder ein Doppelklick benennt um</translation>
    </message>
    <message>
        <source>Fetching Events</source>
        <translation>Termine werden geholt</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>F&amp;ile…</source>
        <translation>&amp;Datei…</translation>
    </message>
    <message>
        <source>Find &amp;In</source>
        <translation>Suchen &amp;in</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen…</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>&amp;Ordner…</translation>
    </message>
    <message>
        <source>for each event that begins</source>
        <translation>für jeden Termin, der beginnt</translation>
    </message>
    <message>
        <source>for which an all-day event counts</source>
        <translation>für die ein ganztägiger Termin zählt</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Gives every column its first title back</source>
        <translation>Gibt jeder Spalte ihren ursprünglichen Titel zurück</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Gruppen</translation>
    </message>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Hourly Rate</source>
        <translation>Stundensatz</translation>
    </message>
    <message>
        <source>Hourly &amp;rate (%1):</source>
        <translation>S&amp;tundensatz (%1):</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Hours a day</source>
        <translation>Stunden am Tag</translation>
    </message>
    <message>
        <source>&amp;Hours for each day:</source>
        <translation>&amp;Stunden für jeden Tag:</translation>
    </message>
    <message>
        <source>Hours for money</source>
        <translation>Stunden für die Kosten</translation>
    </message>
    <message>
        <source>hours times rate, exact</source>
        <translation>Stunden mal Satz, genau</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>In Quotation Marks</source>
        <translation>In Anführungszeichen</translation>
    </message>
    <message>
        <source>in the zone %1</source>
        <translation>in der Zeitzone %1</translation>
    </message>
    <message>
        <source>In titles, notes, locations and calendars, for programs that take every line for an event</source>
        <translation>In Titeln, Notizen, Orten und Kalendern, für Programme, die jede Zeile für einen Termin halten</translation>
    </message>
    <message>
        <source>In&amp;spector</source>
        <translation>&amp;Inspektor</translation>
    </message>
    <message>
        <source>Install a calendar program, or choose one among the default applications of your desktop, to open events in it.</source>
        <translation>Installieren Sie ein Kalenderprogramm oder wählen Sie eines unter den Standardanwendungen Ihres Desktops, um Termine darin zu öffnen.</translation>
    </message>
    <message>
        <source>Install a mail program, or choose one among the default applications of your desktop, and press Mail again.</source>
        <translation>Installieren Sie ein E-Mail-Programm oder wählen Sie eines unter den Standardanwendungen Ihres Desktops und klicken Sie erneut auf E-Mail.</translation>
    </message>
    <message>
        <source>Install the newer version in the way in which you installed Quillet.</source>
        <translation>Installieren Sie die neuere Version auf dem Weg, auf dem Sie Quillet installiert haben.</translation>
    </message>
    <message>
        <source>is still being read</source>
        <translation>wird noch gelesen</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>sie ist größer als %1 MB</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>Es ist nicht installiert.</translation>
    </message>
    <message>
        <source>It is on the clipboard: paste it into the new message.</source>
        <translation>Er liegt in der Zwischenablage: Fügen Sie ihn in die neue Nachricht ein.</translation>
    </message>
    <message>
        <source>its server is not reachable since %1, retrying</source>
        <translation>sein Server ist seit %1 nicht erreichbar, neuer Versuch folgt</translation>
    </message>
    <message>
        <source>Keeps all this under a name, and brings it back</source>
        <translation>Bewahrt all dies unter einem Namen auf und holt es zurück</translation>
    </message>
    <message>
        <source>Keeps arrangements of the columns under names</source>
        <translation>Bewahrt Anordnungen der Spalten unter Namen auf</translation>
    </message>
    <message>
        <source>Keeps the columns as they are now</source>
        <translation>Bewahrt die Spalten auf, wie sie jetzt sind</translation>
    </message>
    <message>
        <source>larger than 128 MB</source>
        <translation>größer als 128 MB</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
    <message>
        <source>&amp;Leave all-day events out</source>
        <translation>Ganztägige Termine &amp;weglassen</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Line Breaks</source>
        <translation>Zeilenumbrüche</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation>&amp;Orte</translation>
    </message>
    <message>
        <source>Lock End Date</source>
        <translation>Enddatum sperren</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Längster</translation>
    </message>
    <message>
        <source>&amp;Longest event</source>
        <translation>&amp;Längster Termin</translation>
    </message>
    <message>
        <source>Looking for newer versions…</source>
        <translation>Neuere Versionen werden gesucht …</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>E-&amp;Mail</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>May Quillet read your calendars?</source>
        <translation>Darf Quillet Ihre Kalender lesen?</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>minutes divided by 60, rounded to two decimals</source>
        <translation>Minuten durch 60, auf zwei Stellen gerundet</translation>
    </message>
    <message>
        <source>minutes divided by 60, shown with two decimals</source>
        <translation>Minuten durch 60, mit zwei Stellen angezeigt</translation>
    </message>
    <message>
        <source>minutes times the rate of a minute, exact</source>
        <translation>Minuten mal Satz einer Minute, genau</translation>
    </message>
    <message>
        <source>&amp;Money</source>
        <translation>&amp;Beträge</translation>
    </message>
    <message>
        <source>money is switched off</source>
        <translation>Kosten sind ausgeschaltet</translation>
    </message>
    <message>
        <source>Money:</source>
        <translation>Beträge:</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Monat</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>more than 300,000 events; the others are left out</source>
        <translation>mehr als 300.000 Termine; die übrigen werden weggelassen</translation>
    </message>
    <message>
        <source>needs its password, which the calendar program asks for</source>
        <translation>braucht sein Passwort, nach dem das Kalenderprogramm fragt</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>New Group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>New Layout</source>
        <translation>Neues Layout</translation>
    </message>
    <message>
        <source>New Settings</source>
        <translation>Neue Einstellungen</translation>
    </message>
    <message>
        <source>Newer Version</source>
        <translation>Neuere Version</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>No calendar in this group</source>
        <translation>Kein Kalender in dieser Gruppe</translation>
    </message>
    <message>
        <source>No calendar is ticked</source>
        <translation>Kein Kalender ist ausgewählt</translation>
    </message>
    <message>
        <source>No calendar program is set up</source>
        <translation>Es ist kein Kalenderprogramm eingerichtet</translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation>Keine Kalender</translation>
    </message>
    <message>
        <source>No event of this period matches the search.</source>
        <translation>Kein Termin dieses Zeitraums passt zur Suche.</translation>
    </message>
    <message>
        <source>No events in this period</source>
        <translation>Keine Termine in diesem Zeitraum</translation>
    </message>
    <message>
        <source>No mail program could be reached</source>
        <translation>Es war kein E-Mail-Programm erreichbar</translation>
    </message>
    <message>
        <source>No mail program is set up</source>
        <translation>Es ist kein E-Mail-Programm eingerichtet</translation>
    </message>
    <message>
        <source>no rate is stored for the calendar “%1”</source>
        <translation>für den Kalender „%1“ ist kein Satz gespeichert</translation>
    </message>
    <message>
        <source>No software centre was found</source>
        <translation>Es wurde kein Softwarezentrum gefunden</translation>
    </message>
    <message>
        <source>not a calendar file</source>
        <translation>keine Kalenderdatei</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>not reachable since %1, retrying</source>
        <translation>seit %1 nicht erreichbar, neuer Versuch folgt</translation>
    </message>
    <message>
        <source>not reachable, for there is no session bus</source>
        <translation>nicht erreichbar, denn es gibt keinen Sitzungsbus</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>N&amp;umber of events</source>
        <translation>Anzahl der Te&amp;rmine</translation>
    </message>
    <message>
        <source>Number of reminders</source>
        <translation>Anzahl der Erinnerungen</translation>
    </message>
    <message>
        <source>Occurrence</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>On how many days there are events</source>
        <translation>An wie vielen Tagen es Termine gibt</translation>
    </message>
    <message>
        <source>one event cannot be read</source>
        <translation>ein Termin ist nicht lesbar</translation>
    </message>
    <message>
        <source>One event stands in two rows</source>
        <translation>Ein Termin steht in zwei Zeilen</translation>
    </message>
    <message>
        <source>one event without a start</source>
        <translation>ein Termin ohne Anfang</translation>
    </message>
    <message>
        <source>one more line cannot be read</source>
        <translation>eine weitere Zeile ist nicht lesbar</translation>
    </message>
    <message>
        <source>&amp;One rate for all calendars</source>
        <translation>&amp;Ein Stundensatz für alle Kalender</translation>
    </message>
    <message>
        <source>one rate for all calendars</source>
        <translation>ein Satz für alle Kalender</translation>
    </message>
    <message>
        <source>Only files on this computer can be added as calendars.</source>
        <translation>Nur Dateien auf diesem Rechner können als Kalender hinzugefügt werden.</translation>
    </message>
    <message>
        <source>&amp;Open in Calendar</source>
        <translation>Im Kalender ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open Software Centre</source>
        <translation>Softwarezentrum öffnen</translation>
    </message>
    <message>
        <source>Op&amp;tions…</source>
        <translation>&amp;Optionen…</translation>
    </message>
    <message>
        <source>&amp;Period</source>
        <translation>&amp;Zeitraum</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>Preparing the events…</source>
        <translation>Termine werden vorbereitet…</translation>
    </message>
    <message>
        <source>Preparing the text…</source>
        <translation>Text wird vorbereitet…</translation>
    </message>
    <message>
        <source>&amp;Presets…</source>
        <translation>&amp;Vorlagen…</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Put the report into a new message</source>
        <translation>Den Bericht in eine neue Nachricht setzen</translation>
    </message>
    <message>
        <source>Quillet %1

The hours in your calendars, ready to bill.</source>
        <translation>Quillet %1

Die Stunden in Ihren Kalendern, fertig zum Abrechnen.</translation>
    </message>
    <message>
        <source>Quillet %1 is available; you have version %2. Your system's software centre installs it.</source>
        <translation>Quillet %1 ist verfügbar; Sie haben Version %2. Das Softwarezentrum Ihres Systems installiert es.</translation>
    </message>
    <message>
        <source>Quillet doesn't have access to your Calendars.</source>
        <translation>Quillet hat keinen Zugriff auf Ihre Kalender.</translation>
    </message>
    <message>
        <source>Quillet is up to date</source>
        <translation>Quillet ist aktuell</translation>
    </message>
    <message>
        <source>Quillet lists the events of your calendars and adds up their hours. It reads them on this computer only, and changes nothing.</source>
        <translation>Quillet listet die Termine Ihrer Kalender auf und summiert ihre Stunden. Es liest sie nur auf diesem Rechner und ändert nichts.</translation>
    </message>
    <message>
        <source>Quillet may not read your calendars yet</source>
        <translation>Quillet darf Ihre Kalender noch nicht lesen</translation>
    </message>
    <message>
        <source>Quillet reads calendars where they are and shows their events beside those of your other calendars. It changes nothing in them.</source>
        <translation>Quillet liest Kalender, wo sie liegen, und zeigt ihre Termine neben denen Ihrer anderen Kalender. Es ändert nichts an ihnen.</translation>
    </message>
    <message>
        <source>Quillet will not be able to format the text for this email due to a known applescript issue caused by Safari 5.0.

If you would like to use the standard text format that Quillet uses, format the font of the new email message to Monaco, size 10.
</source>
        <translation>Quillet kann den Text dieser E-Mail wegen eines bekannten AppleScript-Fehlers, den Safari 5.0 verursacht, nicht formatieren.

Möchten Sie das übliche Textformat von Quillet verwenden, stellen Sie die Schrift der neuen E-Mail auf Monaco, Größe 10.
</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Quoted fields may hold separators and quotation marks</source>
        <translation>Felder in Anführungszeichen dürfen Trennzeichen und Anführungszeichen enthalten</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Satz</translation>
    </message>
    <message>
        <source>Rate and cost, while money is shown</source>
        <translation>Satz und Kosten, solange Beträge gezeigt werden</translation>
    </message>
    <message>
        <source>Rate of a minute</source>
        <translation>Satz einer Minute</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Sätze</translation>
    </message>
    <message>
        <source>Rates and costs are shown in the window and in exports</source>
        <translation>Sätze und Kosten werden im Fenster und in Exporten gezeigt</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>&amp;Release Notes</source>
        <translation>&amp;Versionshinweise</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message>
        <source>repetitions too many to show them all</source>
        <translation>zu viele Wiederholungen, um alle zu zeigen</translation>
    </message>
    <message>
        <source>Replace line &amp;breaks by blanks</source>
        <translation>Zeilen&amp;umbrüche durch Leerzeichen ersetzen</translation>
    </message>
    <message>
        <source>&amp;Reset All Titles</source>
        <translation>Alle Titel &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>R&amp;estart Quillet</source>
        <translation>Quillet neu &amp;starten</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>rounded down</source>
        <translation>abgerundet</translation>
    </message>
    <message>
        <source>rounded once, at the end</source>
        <translation>einmal gerundet, am Ende</translation>
    </message>
    <message>
        <source>rounded to a whole minute, halves away from zero</source>
        <translation>auf ganze Minuten gerundet, halbe von null weg</translation>
    </message>
    <message>
        <source>rounded to the nearest, halfway up</source>
        <translation>zum nächsten gerundet, halbe nach oben</translation>
    </message>
    <message>
        <source>rounded up</source>
        <translation>aufgerundet</translation>
    </message>
    <message>
        <source>Rounding: %1</source>
        <translation>Rundung: %1</translation>
    </message>
    <message>
        <source>Safari 5.0 is installed on this Mac</source>
        <translation>Auf diesem Mac ist Safari 5.0 installiert</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>Als &amp;CSV speichern…</translation>
    </message>
    <message>
        <source>&amp;Save as New Layout</source>
        <translation>Als &amp;neues Layout speichern</translation>
    </message>
    <message>
        <source>Save as &amp;TSV…</source>
        <translation>Als &amp;TSV speichern…</translation>
    </message>
    <message>
        <source>Save Event &amp;Notes…</source>
        <translation>Termin&amp;notizen speichern…</translation>
    </message>
    <message>
        <source>Save Text &amp;Report…</source>
        <translation>Textbe&amp;richt speichern…</translation>
    </message>
    <message>
        <source>Save the listed events as a CSV file</source>
        <translation>Die aufgelisteten Termine als CSV-Datei speichern</translation>
    </message>
    <message>
        <source>Save the listed events as a TSV file</source>
        <translation>Die aufgelisteten Termine als TSV-Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>Say Totals A&amp;gain</source>
        <translation>Summen noch einmal sa&amp;gen</translation>
    </message>
    <message>
        <source>Search Events</source>
        <translation>Termine suchen</translation>
    </message>
    <message>
        <source>Search In</source>
        <translation>Suchen in</translation>
    </message>
    <message>
        <source>Search Menu</source>
        <translation>Suchmenü</translation>
    </message>
    <message>
        <source>Search Reminders</source>
        <translation>Erinnerungen suchen</translation>
    </message>
    <message>
        <source>Select a calendar to set its hourly rate</source>
        <translation>Kalender für Stundensatz auswählen</translation>
    </message>
    <message>
        <source>Select a group to choose its calendars.</source>
        <translation>Wählen Sie eine Gruppe, um ihre Kalender festzulegen.</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select &amp;All Events</source>
        <translation>&amp;Alle Termine auswählen</translation>
    </message>
    <message>
        <source>Selected Events</source>
        <translation>Ausgewählte Termine</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1. They are kept until they can.</source>
        <translation>Die Einstellungen lassen sich nicht in %1 speichern. Sie bleiben erhalten, bis es wieder geht.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>Kürzester</translation>
    </message>
    <message>
        <source>S&amp;hortest event</source>
        <translation>Kür&amp;zester Termin</translation>
    </message>
    <message>
        <source>Show &amp;money</source>
        <translation>&amp;Beträge anzeigen</translation>
    </message>
    <message>
        <source>Show the Current Period</source>
        <translation>Aktuellen Zeitraum anzeigen</translation>
    </message>
    <message>
        <source>Show the listed events as a text report</source>
        <translation>Die aufgelisteten Termine als Textbericht zeigen</translation>
    </message>
    <message>
        <source>Show the notes of the listed events</source>
        <translation>Die Notizen der aufgelisteten Termine zeigen</translation>
    </message>
    <message>
        <source>Show &amp;time as:</source>
        <translation>Zeit &amp;anzeigen als:</translation>
    </message>
    <message>
        <source>shown with the decimals of the currency</source>
        <translation>mit den Stellen der Währung angezeigt</translation>
    </message>
    <message>
        <source>Shows the days to pick a period from</source>
        <translation>Zeigt die Tage, aus denen man einen Zeitraum wählt</translation>
    </message>
    <message>
        <source>Stands before everything else in the report</source>
        <translation>Steht vor allem anderen im Bericht</translation>
    </message>
    <message>
        <source>Stands behind everything else in the report</source>
        <translation>Steht hinter allem anderen im Bericht</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Start Date</source>
        <translation>Startdatum</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>Start Weekday</source>
        <translation>Wochentag (Start)</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Sum of the rounded values</source>
        <translation>Summe der gerundeten Werte</translation>
    </message>
    <message>
        <source>&amp;Summary row</source>
        <translation>&amp;Summenzeile</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Tell the calendar in each heading</source>
        <translation>In jeder Überschrift den Kalender nennen</translation>
    </message>
    <message>
        <source>Tell the date in each heading</source>
        <translation>In jeder Überschrift das Datum nennen</translation>
    </message>
    <message>
        <source>Tell the location in each heading</source>
        <translation>In jeder Überschrift den Ort nennen</translation>
    </message>
    <message>
        <source>Tell the title in each heading</source>
        <translation>In jeder Überschrift den Titel nennen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Te&amp;xt above the report:</source>
        <translation>Te&amp;xt über dem Bericht:</translation>
    </message>
    <message>
        <source>Text below the repo&amp;rt:</source>
        <translation>Text unter dem Ber&amp;icht:</translation>
    </message>
    <message>
        <source>&amp;Text Report</source>
        <translation>&amp;Textbericht</translation>
    </message>
    <message>
        <source>Text Report</source>
        <translation>Textbericht</translation>
    </message>
    <message>
        <source>Te&amp;xt Report Preferences…</source>
        <translation>Einstellungen des Te&amp;xtberichts…</translation>
    </message>
    <message>
        <source>Text Report Presets</source>
        <translation>Vorlagen des Textberichts</translation>
    </message>
    <message>
        <source>Text Report P&amp;resets…</source>
        <translation>&amp;Vorlagen des Textberichts…</translation>
    </message>
    <message>
        <source>Texts that are longer than their column go on in the next line; when off, they are cut</source>
        <translation>Texte, die länger als ihre Spalte sind, gehen in der nächsten Zeile weiter; sonst werden sie abgeschnitten</translation>
    </message>
    <message>
        <source>the additional date “%1” cannot be read and is left out</source>
        <translation>der zusätzliche Tag „%1“ ist nicht lesbar und entfällt</translation>
    </message>
    <message>
        <source>The calendar could not be added</source>
        <translation>Der Kalender konnte nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>the calendar “%1” has no rate, others have one</source>
        <translation>der Kalender „%1“ hat keinen Satz, andere haben einen</translation>
    </message>
    <message>
        <source>the calendar “%1” has the rate 0, others have more</source>
        <translation>der Kalender „%1“ hat den Satz 0, andere haben mehr</translation>
    </message>
    <message>
        <source>The calendar's own identifier of the reminder</source>
        <translation>Die Kennung, die der Kalender der Erinnerung gibt</translation>
    </message>
    <message>
        <source>The calendars of the chosen group are listed</source>
        <translation>Aufgeführt sind die Kalender der gewählten Gruppe</translation>
    </message>
    <message>
        <source>the clock changes during “%1”; %2 count</source>
        <translation>während „%1“ wird die Uhr umgestellt; %2 zählen</translation>
    </message>
    <message>
        <source>The disk does not take the settings. When Quillet quits now, it forgets what was changed since they were last saved.</source>
        <translation>Die Einstellungen lassen sich nicht auf die Platte schreiben. Wird Quillet jetzt beendet, geht verloren, was seit dem letzten Speichern geändert wurde.</translation>
    </message>
    <message>
        <source>the end “%1” cannot be read and does not count</source>
        <translation>das Ende „%1“ ist nicht lesbar und zählt nicht</translation>
    </message>
    <message>
        <source>the end “%1” is before the start; no time is counted to it</source>
        <translation>das Ende „%1“ liegt vor dem Anfang; bis dahin zählt keine Zeit</translation>
    </message>
    <message>
        <source>the event ends before it begins, or lies outside the period</source>
        <translation>der Termin endet vor seinem Anfang oder liegt außerhalb des Zeitraums</translation>
    </message>
    <message>
        <source>the exceptions “%1” cannot be followed; what they leave out is shown</source>
        <translation>die Ausnahmen „%1“ sind nicht zu befolgen; was sie auslassen, wird gezeigt</translation>
    </message>
    <message>
        <source>The first column is the calendar's own identifier of the event</source>
        <translation>Die erste Spalte ist die Kennung, die der Kalender dem Termin gibt</translation>
    </message>
    <message>
        <source>The first day of the period</source>
        <translation>Der erste Tag des Zeitraums</translation>
    </message>
    <message>
        <source>The first line of the file names the columns</source>
        <translation>Die erste Zeile der Datei nennt die Spalten</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be reached.</source>
        <translation>Der Ordner „%1“ ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The hours for which one day of an all-day event counts</source>
        <translation>Die Stunden, als die ein Tag eines ganztägigen Termins zählt</translation>
    </message>
    <message>
        <source>The last day of the period</source>
        <translation>Der letzte Tag des Zeitraums</translation>
    </message>
    <message>
        <source>the left-out date “%1” cannot be read; what is on it is shown</source>
        <translation>der ausgelassene Tag „%1“ ist nicht lesbar; was auf ihn fällt, wird gezeigt</translation>
    </message>
    <message>
        <source>the length “%1” cannot be read and does not count</source>
        <translation>die Dauer „%1“ ist nicht lesbar und zählt nicht</translation>
    </message>
    <message>
        <source>the length “%1” is below zero and counts as none</source>
        <translation>die Dauer „%1“ ist kleiner als null und zählt als keine</translation>
    </message>
    <message>
        <source>the length “%1” is over a hundred years and is cut to that</source>
        <translation>die Dauer „%1“ ist länger als hundert Jahre und wird darauf gekürzt</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached. Are you connected to the Internet?</source>
        <translation>Die Liste der Versionen ist nicht erreichbar. Sind Sie mit dem Internet verbunden?</translation>
    </message>
    <message>
        <source>The list of versions did not come in time. Please try again later.</source>
        <translation>Die Liste der Versionen kam nicht rechtzeitig an. Bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The list of versions is not where it should be.</source>
        <translation>Die Liste der Versionen ist nicht dort, wo sie sein sollte.</translation>
    </message>
    <message>
        <source>The list of versions was not read, as the connection to it is not secure.</source>
        <translation>Die Liste der Versionen wurde nicht gelesen, weil die Verbindung zu ihr nicht sicher ist.</translation>
    </message>
    <message>
        <source>The mean of an event</source>
        <translation>Das Mittel je Termin</translation>
    </message>
    <message>
        <source>the period begins after the event</source>
        <translation>der Zeitraum beginnt nach dem Termin</translation>
    </message>
    <message>
        <source>the period cuts “%1”: %2 of %3 count</source>
        <translation>der Zeitraum schneidet „%1“ ab: %2 von %3 zählen</translation>
    </message>
    <message>
        <source>the period ends before the event</source>
        <translation>der Zeitraum endet vor dem Termin</translation>
    </message>
    <message>
        <source>the rate divided by 60, rounded to fifteen decimals</source>
        <translation>der Satz durch 60, auf fünfzehn Stellen gerundet</translation>
    </message>
    <message>
        <source>The rate of an hour, while all calendars have the same</source>
        <translation>Der Satz einer Stunde, solange alle Kalender denselben haben</translation>
    </message>
    <message>
        <source>the rate of the calendar “%1”</source>
        <translation>der Satz des Kalenders „%1“</translation>
    </message>
    <message>
        <source>the repetition “%1” cannot be followed; only the first event is shown</source>
        <translation>die Wiederholung „%1“ ist nicht zu befolgen; nur der erste Termin wird gezeigt</translation>
    </message>
    <message>
        <source>the repetitions are too many to count; only the first event is shown</source>
        <translation>die Wiederholungen sind zu viele zum Zählen; nur der erste Termin wird gezeigt</translation>
    </message>
    <message>
        <source>The settings file %2 could not be read (%1) nor moved aside. Quillet starts with its first-run settings.</source>
        <translation>Die Einstellungsdatei %2 konnte weder gelesen (%1) noch beiseitegelegt werden. Quillet startet mit den Einstellungen des ersten Starts.</translation>
    </message>
    <message>
        <source>The settings file could not be read (%1). It was kept as %2, and Quillet starts with its first-run settings.</source>
        <translation>Die Einstellungsdatei konnte nicht gelesen werden (%1). Sie wurde als %2 aufbewahrt, und Quillet startet mit den Einstellungen des ersten Starts.</translation>
    </message>
    <message>
        <source>the start “%1” cannot be read; the event is left out</source>
        <translation>der Anfang „%1“ ist nicht lesbar; der Termin entfällt</translation>
    </message>
    <message>
        <source>The sum in hours, minutes or as a duration</source>
        <translation>Die Summe in Stunden, Minuten oder als Dauer</translation>
    </message>
    <message>
        <source>The table has this column only while money is shown</source>
        <translation>Die Tabelle hat diese Spalte nur, solange Beträge gezeigt werden</translation>
    </message>
    <message>
        <source>The text cannot be written to “%1”: %2</source>
        <translation>Der Text lässt sich nicht in „%1“ schreiben: %2</translation>
    </message>
    <message>
        <source>the text is not a JSON object</source>
        <translation>der Text ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>The text is too long to hand over to your mail program</source>
        <translation>Der Text ist zu lang, um ihn Ihrem E-Mail-Programm zu übergeben</translation>
    </message>
    <message>
        <source>The ticked calendars have no events on these days.</source>
        <translation>Die ausgewählten Kalender haben an diesen Tagen keine Termine.</translation>
    </message>
    <message>
        <source>the time zone is not certain; it was read as “%1”, which the calendar names elsewhere</source>
        <translation>die Zeitzone ist nicht sicher; sie wurde als „%1“ gelesen, das der Kalender an anderer Stelle nennt</translation>
    </message>
    <message>
        <source>The titles of the ticked calendars</source>
        <translation>Die Titel der ausgewählten Kalender</translation>
    </message>
    <message>
        <source>There is a file named %1 already. Replace it?</source>
        <translation>Es gibt bereits eine Datei namens %1. Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>These hold for CSV and TSV files alike.</source>
        <translation>Dies gilt für CSV- und TSV-Dateien gleichermaßen.</translation>
    </message>
    <message>
        <source>This group stands for all calendars.</source>
        <translation>Diese Gruppe steht für alle Kalender.</translation>
    </message>
    <message>
        <source>This version lists events only. What you choose here is kept for exports of reminders.</source>
        <translation>Diese Version listet nur Termine auf. Was Sie hier wählen, wird für Exporte von Erinnerungen aufbewahrt.</translation>
    </message>
    <message>
        <source>Tick All Calendars</source>
        <translation>Alle Kalender auswählen</translation>
    </message>
    <message>
        <source>&amp;Tick or Clear All</source>
        <translation>&amp;Alle aus- oder abwählen</translation>
    </message>
    <message>
        <source>Tick the calendars that belong to it.</source>
        <translation>Wählen Sie die Kalender aus, die dazugehören.</translation>
    </message>
    <message>
        <source>Tick the calendars whose time counts.</source>
        <translation>Wählen Sie die Kalender aus, deren Zeit zählt.</translation>
    </message>
    <message>
        <source>Tick the columns that the table shows. Their titles also stand in reports and exports.</source>
        <translation>Wählen Sie die Spalten aus, die die Tabelle zeigt. Ihre Titel stehen auch in Berichten und Exporten.</translation>
    </message>
    <message>
        <source>Time as &amp;Duration</source>
        <translation>Zeit als &amp;Dauer</translation>
    </message>
    <message>
        <source>Time as &amp;Hours</source>
        <translation>Zeit in &amp;Stunden</translation>
    </message>
    <message>
        <source>Time as M&amp;inutes</source>
        <translation>Zeit in &amp;Minuten</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of “%1”</source>
        <translation>Titel von „%1“</translation>
    </message>
    <message>
        <source>&amp;Titles</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>too large for the memory that is left</source>
        <translation>zu groß für den freien Speicher</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>&amp;Total time</source>
        <translation>&amp;Gesamtzeit</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Summe: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>TSV</source>
        <translation>TSV</translation>
    </message>
    <message>
        <source>unknown time zone “%1”, taken as local time</source>
        <translation>unbekannte Zeitzone „%1“, als Ortszeit genommen</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>Entsperrt</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Wird aktualisiert…</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>UTF-8 suits nearly every program; some spreadsheets want UTF-16</source>
        <translation>UTF-8 passt für fast jedes Programm; manche Tabellenkalkulationen möchten UTF-16</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>Version %1 ist die neueste.</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Woche</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>what a day has of a title is rounded as one</source>
        <translation>was ein Tag von einem Titel hat, wird zusammen gerundet</translation>
    </message>
    <message>
        <source>what adding up the rows as shown would give</source>
        <translation>was das Zusammenzählen der angezeigten Zeilen ergäbe</translation>
    </message>
    <message>
        <source>What came is no list of versions.</source>
        <translation>Was ankam, ist keine Liste von Versionen.</translation>
    </message>
    <message>
        <source>What came is too large for a list of versions.</source>
        <translation>Was ankam, ist zu groß für eine Liste von Versionen.</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Was ist neu</translation>
    </message>
    <message>
        <source>what lasts past midnight is cut there</source>
        <translation>was über Mitternacht dauert, wird dort geteilt</translation>
    </message>
    <message>
        <source>What would you like to add?</source>
        <translation>Was möchten Sie hinzufügen?</translation>
    </message>
    <message>
        <source>When off, applying a layout leaves the titles as they are</source>
        <translation>Sonst lässt das Anwenden eines Layouts die Titel, wie sie sind</translation>
    </message>
    <message>
        <source>When off, each calendar has a rate of its own: select the calendar in the main window to set it</source>
        <translation>Sonst hat jeder Kalender seinen eigenen Satz: Wählen Sie den Kalender im Hauptfenster, um ihn festzulegen</translation>
    </message>
    <message>
        <source>where the series has it</source>
        <translation>wo die Serie ihn hat</translation>
    </message>
    <message>
        <source>where the series has it; it was moved</source>
        <translation>wo die Serie ihn hat; er wurde verschoben</translation>
    </message>
    <message>
        <source>Whether the reminder is done</source>
        <translation>Ob die Erinnerung erledigt ist</translation>
    </message>
    <message>
        <source>Whether there is a newer version could not be found out</source>
        <translation>Ob es eine neuere Version gibt, ließ sich nicht feststellen</translation>
    </message>
    <message>
        <source>which occurrence it replaces cannot be read (“%1”); the series is shown without this change</source>
        <translation>welchen Termin der Serie er ersetzt, ist nicht lesbar („%1“); die Serie wird ohne diese Änderung gezeigt</translation>
    </message>
    <message>
        <source>Which time column the table, the results and reports show</source>
        <translation>Welche Zeitspalte die Tabelle, die Ergebnisse und Berichte zeigen</translation>
    </message>
    <message>
        <source>While locked, the end moves with the start</source>
        <translation>Solange gesperrt, wandert das Ende mit dem Anfang</translation>
    </message>
    <message>
        <source>&amp;Wrap long texts</source>
        <translation>Lange Texte &amp;umbrechen</translation>
    </message>
    <message>
        <source>Write a &amp;header record</source>
        <translation>&amp;Kopfzeile schreiben</translation>
    </message>
    <message>
        <source>Write the event's &amp;identifier</source>
        <translation>Kennung des Termins &amp;schreiben</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Jahr</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Your desktop answered: %1</source>
        <translation>Ihr Desktop antwortete: %1</translation>
    </message>
    <message>
        <source>Your events appear here once you allow it.</source>
        <translation>Ihre Termine erscheinen hier, sobald Sie es erlauben.</translation>
    </message>
    <message>
        <source>Your last changes cannot be saved</source>
        <translation>Ihre letzten Änderungen können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>“%1” and “%2” overlap for %3</source>
        <translation>„%1“ und „%2“ überschneiden sich für %3</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2</source>
        <translation>„%1“ kann nicht hinzugefügt werden: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>„%1“ ist nicht lesbar.</translation>
    </message>
    <message>
        <source>“%1” cannot be run.</source>
        <translation>„%1“ lässt sich nicht ausführen.</translation>
    </message>
    <message>
        <source>“%1” could not be started</source>
        <translation>„%1“ konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>„%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins</source>
        <translation>„%1“ endet vor seinem Anfang</translation>
    </message>
    <message>
        <source>“%1” has %2 at night</source>
        <translation>„%1“ hat %2 in der Nacht</translation>
    </message>
    <message>
        <source>“%1” has %2 on a holiday</source>
        <translation>„%1“ hat %2 an einem Feiertag</translation>
    </message>
    <message>
        <source>“%1” has %2 on a weekend</source>
        <translation>„%1“ hat %2 an einem Wochenende</translation>
    </message>
    <message>
        <source>“%1” has no length</source>
        <translation>„%1“ hat keine Länge</translation>
    </message>
    <message>
        <source>“%1” holds the calendars themselves.</source>
        <translation>„%1“ enthält die Kalender selbst.</translation>
    </message>
    <message>
        <source>“%1” is also in “%2”, in a newer version, which counts</source>
        <translation>„%1“ steht auch in „%2“, in einer neueren Fassung, die zählt</translation>
    </message>
    <message>
        <source>“%1” is among the calendars already.</source>
        <translation>„%1“ ist schon unter den Kalendern.</translation>
    </message>
    <message>
        <source>“%1” is in the calendars “%2” and “%3”</source>
        <translation>„%1“ steht in den Kalendern „%2“ und „%3“</translation>
    </message>
    <message>
        <source>“%1” is neither a folder nor an .ics file.</source>
        <translation>„%1“ ist weder ein Ordner noch eine .ics-Datei.</translation>
    </message>
    <message>
        <source>“%1” is not a rate; the old one was kept.</source>
        <translation>„%1“ ist kein Satz; der alte wurde behalten.</translation>
    </message>
    <message>
        <source>“%1” is there twice at once, for %2</source>
        <translation>„%1“ ist zweimal zugleich da, für %2</translation>
    </message>
    <message>
        <source>“%1” lasts %2, longer than a working day of %3</source>
        <translation>„%1“ dauert %2, länger als ein Arbeitstag von %3</translation>
    </message>
    <message>
        <source>“%1” lasts all day and counts %2</source>
        <translation>„%1“ dauert den ganzen Tag und zählt %2</translation>
    </message>
</context>
</TS>
