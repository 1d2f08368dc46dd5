<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Quillet</name>
    <message>
        <source>%1 events cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 events without a start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder holds a calendar with one file an event; a file holds a whole calendar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A last row with the sums of the columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a link that leads nowhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A preset holds the switches and texts of the text report. Applying one sets them all; a new one takes them as they are now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a repetition that cannot be followed; only its first event is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text or event that is too long was cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Quillet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Quillet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Above the Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access Denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a folder or a file of calendars, or drop one here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Calendar File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Calendar Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Calendar Folder or File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Calendar Folder or File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All-day events are neither listed nor counted in totals and exports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All-day events:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Calendar A&amp;ccess…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Calendar Access…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an empty file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arranges the columns as the selected layout has them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Average time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Beginning date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beginning Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring column titles back, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;alendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendars (*.ics)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot delete All Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot delete Default layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot delete Default settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose what the report tells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose where to search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column Layouts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column &amp;Layouts…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column &amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completion date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control-click ticks or clears all calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV/TSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default layout cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default settings cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the record?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleted records cannot be restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don’t Allow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encoding of saved files:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Weekday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;nding date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ending Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ends in the middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event &amp;Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events with notes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export as:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2 or a double click renames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetching Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ile…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives every column its first title back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hourly Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hourly &amp;rate (%1):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hours for each day:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Quotation Marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In titles, notes, locations and calendars, for programs that take every line for an event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps all this under a name, and brings it back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps arrangements of the columns under names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the columns as they are now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>larger than 128 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave all-day events out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line Breaks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock End Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Longest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Longest event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail (no mail program can be reached yet)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May Quillet read your calendars?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Money</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than 300,000 events; the others are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No calendar is ticked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No event of this period matches the search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No events in this period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a calendar file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N&amp;umber of events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of reminders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On how many days there are events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;One rate for all calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Software Centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing the events…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing the text…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Presets…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the report into a new message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillet %1

The hours in your calendars, ready to bill.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillet doesn't have access to your Calendars.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillet is updated with your system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillet lists the events of your calendars and adds up their hours. It reads them on this computer only, and changes nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillet may not read your calendars yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillet will not be able to format the text for this email due to a known applescript issue caused by Safari 5.0.

If you would like to use the standard text format that Quillet uses, format the font of the new email message to Monaco, size 10.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quoted fields may hold separators and quotation marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate and cost, while money is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rates and costs are shown in the window and in exports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Release Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>repetitions too many to count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>repetitions too many to show them all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace line &amp;breaks by blanks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset All Titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restart Quillet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safari 5.0 is installed on this Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as &amp;TSV…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Event &amp;Notes…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Text &amp;Report…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the listed events as a CSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the listed events as a TSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Reminders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a calendar to set its hourly rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1. They are kept until they can.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hortest event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;money</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the Current Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the listed events as a text report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the notes of the listed events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;time as:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stands before everything else in the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stands behind everything else in the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Weekday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Summary row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell the calendar in each heading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell the date in each heading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell the location in each heading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell the title in each heading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;xt above the report:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text below the repo&amp;rt:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;xt Report Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Report Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Report P&amp;resets…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts that are longer than their column go on in the next line; when off, they are cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The calendar could not be added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The calendar's own identifier of the reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first column is the calendar's own identifier of the event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first day of the period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first line of the file names the columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder “%1” cannot be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hours for which one day of an all-day event counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last day of the period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mean of an event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rate of an hour, while all calendars have the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file %2 could not be read (%1) nor moved aside. Quillet starts with its first-run settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file could not be read (%1). It was kept as %2, and Quillet starts with its first-run settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sum in hours, minutes or as a duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table has this column only while money is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ticked calendars have no events on these days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The titles of the ticked calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These hold for CSV and TSV files alike.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is version %1. Newer versions arrive with the updates of your system; its software centre shows them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This version lists events only. What you choose here is kept for exports of reminders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick All Calendars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tick or Clear All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick the calendars whose time counts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick the columns that the table shows. Their titles also stand in reports and exports.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time as &amp;Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time as &amp;Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time as M&amp;inutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title of “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Total time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown time zone “%1”, taken as local time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-8 suits nearly every program; some spreadsheets want UTF-16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What would you like to add?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When off, applying a layout leaves the titles as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When off, each calendar has a rate of its own: select the calendar in the main window to set it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the reminder is done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which time column the table, the results and reports show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While locked, the end moves with the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wrap long texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a &amp;header record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the event's &amp;identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your events appear here once you allow it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” holds the calendars themselves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is among the calendars already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is neither a folder nor an .ics file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a rate; the old one was kept.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
