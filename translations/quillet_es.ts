<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Quillet</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 en el byte %2</translation>
    </message>
    <message>
        <source>%1 event</source>
        <translation>%1 evento</translation>
    </message>
    <message>
        <source>%1 events</source>
        <translation>%1 eventos</translation>
    </message>
    <message>
        <source>%1 events cannot be read</source>
        <translation>no se pueden leer %1 eventos</translation>
    </message>
    <message>
        <source>%1 events without a start</source>
        <translation>%1 eventos sin inicio</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 hour</source>
        <translation>%1 hora</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 horas</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <translation>%1 minuto</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutos</translation>
    </message>
    <message>
        <source>%1 more events are in other files too, in newer versions, which count</source>
        <translation>%1 eventos más están también en otros archivos, en versiones más recientes, que son las que cuentan</translation>
    </message>
    <message>
        <source>%1 more lines cannot be read</source>
        <translation>no se pueden leer %1 líneas más</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 del %2</translation>
    </message>
    <message>
        <source>%1 of %2 choices</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>%1 de «%2»</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 frente a %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, línea %2</translation>
    </message>
    <message>
        <source>%1: %2. Please correct it in your calendar program.</source>
        <translation>%1: %2. Corríjalo en su programa de calendario.</translation>
    </message>
    <message>
        <source>(no location)</source>
        <translation>(sin lugar)</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>(no title)</source>
        <translation>(sin título)</translation>
    </message>
    <message>
        <source>A folder holds a calendar with one file an event; a file holds a whole calendar.</source>
        <translation>Una carpeta contiene un calendario con un archivo por evento; un archivo contiene un calendario entero.</translation>
    </message>
    <message>
        <source>a folder that cannot be reached</source>
        <translation>una carpeta que no está disponible</translation>
    </message>
    <message>
        <source>A last row with the sums of the columns</source>
        <translation>Una última fila con las sumas de las columnas</translation>
    </message>
    <message>
        <source>a link that leads nowhere</source>
        <translation>un enlace que no lleva a ninguna parte</translation>
    </message>
    <message>
        <source>A preset holds the switches and texts of the text report. Applying one sets them all; a new one takes them as they are now.</source>
        <translation>Un preajuste contiene las opciones y los textos del informe de texto. Al aplicarlo se establecen todos; uno nuevo los toma tal como están ahora.</translation>
    </message>
    <message>
        <source>a spreadsheet would take the title “%1” for a formula</source>
        <translation>una hoja de cálculo tomaría el título «%1» por una fórmula</translation>
    </message>
    <message>
        <source>a text or event that is too long was cut</source>
        <translation>se ha recortado un texto o evento demasiado largo</translation>
    </message>
    <message>
        <source>&amp;About Quillet</source>
        <translation>Acerca &amp;de Quillet</translation>
    </message>
    <message>
        <source>About Quillet</source>
        <translation>Acerca de Quillet</translation>
    </message>
    <message>
        <source>Above the Table</source>
        <translation>Encima de la tabla</translation>
    </message>
    <message>
        <source>Access Denied</source>
        <translation>Acceso denegado</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add a folder or a file of calendars, or drop one here.</source>
        <translation>Añada una carpeta o un archivo de calendarios, o suéltelo aquí.</translation>
    </message>
    <message>
        <source>Add Calendar File</source>
        <translation>Añadir archivo de calendario</translation>
    </message>
    <message>
        <source>Add Calendar Folder</source>
        <translation>Añadir carpeta de calendario</translation>
    </message>
    <message>
        <source>&amp;Add Calendar Folder or File…</source>
        <translation>&amp;Añadir carpeta o archivo de calendario…</translation>
    </message>
    <message>
        <source>Add Calendar Folder or File…</source>
        <translation>Añadir carpeta o archivo de calendario…</translation>
    </message>
    <message>
        <source>Add these %1 files as calendars?</source>
        <translation>¿Añadir estos %1 archivos como calendarios?</translation>
    </message>
    <message>
        <source>Add “%1” as a calendar?</source>
        <translation>¿Añadir «%1» como calendario?</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>All Calendars</source>
        <translation>Todos los calendarios</translation>
    </message>
    <message>
        <source>All Events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>All-day events are neither listed nor counted in totals and exports</source>
        <translation>Los eventos de todo el día no se muestran ni se cuentan en los totales y las exportaciones</translation>
    </message>
    <message>
        <source>All-day events:</source>
        <translation>Eventos de todo el día:</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Allow Calendar A&amp;ccess…</source>
        <translation>&amp;Permitir el acceso a los calendarios…</translation>
    </message>
    <message>
        <source>Allow Calendar Access…</source>
        <translation>Permitir el acceso a los calendarios…</translation>
    </message>
    <message>
        <source>an all-day event, in days of 24 hours</source>
        <translation>un evento de todo el día, en días de 24 horas</translation>
    </message>
    <message>
        <source>an empty file</source>
        <translation>un archivo vacío</translation>
    </message>
    <message>
        <source>an entry in it has no end</source>
        <translation>una de sus entradas no tiene final</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Arranges the columns as the selected layout has them</source>
        <translation>Coloca las columnas como en la disposición seleccionada</translation>
    </message>
    <message>
        <source>as it is shown</source>
        <translation>tal como se muestra</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Como mínimo</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>&amp;Average time</source>
        <translation>Tiempo &amp;medio</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>&amp;Beginning date</source>
        <translation>Fecha de &amp;inicio</translation>
    </message>
    <message>
        <source>Beginning Date</source>
        <translation>Fecha de inicio</translation>
    </message>
    <message>
        <source>Billed</source>
        <translation>Facturado</translation>
    </message>
    <message>
        <source>Billed: %1 of “%2”</source>
        <translation>Facturado: %1 de «%2»</translation>
    </message>
    <message>
        <source>Bring column titles back, too</source>
        <translation>Recuperar también los títulos de las columnas</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Calendar Group</source>
        <translation>Grupo de calendarios</translation>
    </message>
    <message>
        <source>Calendar Groups</source>
        <translation>Grupos de calendarios</translation>
    </message>
    <message>
        <source>Calendar without a name</source>
        <translation>Calendario sin nombre</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>&amp;Calendarios</translation>
    </message>
    <message>
        <source>C&amp;alendars</source>
        <translation>&amp;Calendarios</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
    <message>
        <source>Calendars (*.ics)</source>
        <translation>Calendarios (*.ics)</translation>
    </message>
    <message>
        <source>&amp;Calendars in Group</source>
        <translation>&amp;Calendarios del grupo</translation>
    </message>
    <message>
        <source>Calendars in Group</source>
        <translation>Calendarios del grupo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation>inaccesible: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ilegible: %1</translation>
    </message>
    <message>
        <source>Cannot delete All Calendars</source>
        <translation>No se puede eliminar «Todos los calendarios»</translation>
    </message>
    <message>
        <source>Cannot delete Default layout</source>
        <translation>No se puede eliminar la disposición predeterminada</translation>
    </message>
    <message>
        <source>Cannot delete Default settings</source>
        <translation>No se pueden eliminar los ajustes predeterminados</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Choose what the report tells</source>
        <translation>Elegir qué contiene el informe</translation>
    </message>
    <message>
        <source>Choose where to search</source>
        <translation>Elegir dónde buscar</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>Cerrar la &amp;ventana</translation>
    </message>
    <message>
        <source>Column &amp;Layouts</source>
        <translation>Disposiciones de co&amp;lumnas</translation>
    </message>
    <message>
        <source>Column Layouts</source>
        <translation>Disposiciones de columnas</translation>
    </message>
    <message>
        <source>Column &amp;Preferences…</source>
        <translation>&amp;Preferencias de columnas…</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Completion date</source>
        <translation>Fecha de finalización</translation>
    </message>
    <message>
        <source>Control-click ticks or clears all calendars</source>
        <translation>Un clic con Ctrl marca o desmarca todos los calendarios</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Coste</translation>
    </message>
    <message>
        <source>Counts from</source>
        <translation>Cuenta desde</translation>
    </message>
    <message>
        <source>Counts until</source>
        <translation>Cuenta hasta</translation>
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
        <translation>Actual</translation>
    </message>
    <message>
        <source>C&amp;ustom</source>
        <translation>&amp;Libre</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Día</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>&amp;Days</source>
        <translation>&amp;Días</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Default layout cannot be deleted.</source>
        <translation>La disposición predeterminada no se puede eliminar.</translation>
    </message>
    <message>
        <source>Default settings cannot be deleted.</source>
        <translation>Los ajustes predeterminados no se pueden eliminar.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>&amp;Delete Layout</source>
        <translation>&amp;Eliminar disposición</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>¿Eliminar el grupo?</translation>
    </message>
    <message>
        <source>Delete the record?</source>
        <translation>¿Eliminar el registro?</translation>
    </message>
    <message>
        <source>Deleted records cannot be restored.</source>
        <translation>Los registros eliminados no se pueden recuperar.</translation>
    </message>
    <message>
        <source>Desktop calendars</source>
        <translation>Calendarios del escritorio</translation>
    </message>
    <message>
        <source>Don’t Allow</source>
        <translation>No permitir</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fecha de vencimiento</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>each event is rounded by itself</source>
        <translation>cada evento se redondea por separado</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Edit Calendar Groups</source>
        <translation>Editar grupos de calendarios</translation>
    </message>
    <message>
        <source>Edit calendar groups</source>
        <translation>Editar los grupos de calendarios</translation>
    </message>
    <message>
        <source>Edit Calendar &amp;Groups…</source>
        <translation>Editar &amp;grupos de calendarios…</translation>
    </message>
    <message>
        <source>Edit Calendar Groups…</source>
        <translation>Editar grupos de calendarios…</translation>
    </message>
    <message>
        <source>&amp;Edit Layouts…</source>
        <translation>E&amp;ditar disposiciones…</translation>
    </message>
    <message>
        <source>&amp;Encoding of saved files:</source>
        <translation>&amp;Codificación de los archivos guardados:</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>End Date</source>
        <translation>Fecha de fin</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Hora de fin</translation>
    </message>
    <message>
        <source>End Weekday</source>
        <translation>Día de fin</translation>
    </message>
    <message>
        <source>E&amp;nding date</source>
        <translation>Fecha de &amp;fin</translation>
    </message>
    <message>
        <source>Ending Date</source>
        <translation>Fecha de fin</translation>
    </message>
    <message>
        <source>ends in the middle</source>
        <translation>está incompleto</translation>
    </message>
    <message>
        <source>Event &amp;Notes</source>
        <translation>&amp;Notas de los eventos</translation>
    </message>
    <message>
        <source>Event Notes</source>
        <translation>Notas de los eventos</translation>
    </message>
    <message>
        <source>event without a title</source>
        <translation>evento sin título</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Events counted in more than one row: %1</source>
        <translation>Eventos contados en más de una fila: %1</translation>
    </message>
    <message>
        <source>Events with notes: %1</source>
        <translation>Eventos con notas: %1</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exacto</translation>
    </message>
    <message>
        <source>exact %1, billed %2</source>
        <translation>exacto %1, facturado %2</translation>
    </message>
    <message>
        <source>Exact sum</source>
        <translation>Suma exacta</translation>
    </message>
    <message>
        <source>Export as:</source>
        <translation>Exportar como:</translation>
    </message>
    <message>
        <source>F2 or a double click renames</source>
        <translation>F2 o una doble pulsación cambia el nombre</translation>
    </message>
    <message>
        <source>Fetching Events</source>
        <translation>Obteniendo los eventos</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>F&amp;ile…</source>
        <translation>&amp;Archivo…</translation>
    </message>
    <message>
        <source>Find &amp;In</source>
        <translation>Buscar &amp;en</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>&amp;Carpeta…</translation>
    </message>
    <message>
        <source>for each event that begins</source>
        <translation>por cada evento que empieza</translation>
    </message>
    <message>
        <source>for which an all-day event counts</source>
        <translation>por las que cuenta un evento de todo el día</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Gives every column its first title back</source>
        <translation>Devuelve a cada columna su título original</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Grupos</translation>
    </message>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Hourly Rate</source>
        <translation>Tarifa por hora</translation>
    </message>
    <message>
        <source>Hourly &amp;rate (%1):</source>
        <translation>&amp;Tarifa por hora (%1):</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>Hours a day</source>
        <translation>Horas al día</translation>
    </message>
    <message>
        <source>&amp;Hours for each day:</source>
        <translation>&amp;Horas por cada día:</translation>
    </message>
    <message>
        <source>Hours for money</source>
        <translation>Horas para el coste</translation>
    </message>
    <message>
        <source>hours times rate, exact</source>
        <translation>horas por tarifa, exacto</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>In Quotation Marks</source>
        <translation>Entre comillas</translation>
    </message>
    <message>
        <source>in the zone %1</source>
        <translation>en la zona horaria %1</translation>
    </message>
    <message>
        <source>In titles, notes, locations and calendars, for programs that take every line for an event</source>
        <translation>En títulos, notas, lugares y calendarios, para programas que toman cada línea por un evento</translation>
    </message>
    <message>
        <source>In&amp;spector</source>
        <translation>&amp;Inspector</translation>
    </message>
    <message>
        <source>Install a calendar program, or choose one among the default applications of your desktop, to open events in it.</source>
        <translation>Instale un programa de calendario o elija uno entre las aplicaciones predeterminadas de su escritorio para abrir eventos en él.</translation>
    </message>
    <message>
        <source>Install a mail program, or choose one among the default applications of your desktop, and press Mail again.</source>
        <translation>Instale un programa de correo o elija uno entre las aplicaciones predeterminadas de su escritorio, y pulse Correo otra vez.</translation>
    </message>
    <message>
        <source>Install the newer version in the way in which you installed Quillet.</source>
        <translation>Instale la versión más reciente de la misma forma en que instaló Quillet.</translation>
    </message>
    <message>
        <source>is still being read</source>
        <translation>todavía se está leyendo</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>ocupa más de %1 MB</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>No está instalado.</translation>
    </message>
    <message>
        <source>It is on the clipboard: paste it into the new message.</source>
        <translation>Está en el portapapeles: péguelo en el mensaje nuevo.</translation>
    </message>
    <message>
        <source>its server is not reachable since %1, retrying</source>
        <translation>su servidor no está disponible desde las %1; se reintentará</translation>
    </message>
    <message>
        <source>Keeps all this under a name, and brings it back</source>
        <translation>Guarda todo esto con un nombre y lo recupera</translation>
    </message>
    <message>
        <source>Keeps arrangements of the columns under names</source>
        <translation>Guarda disposiciones de las columnas con un nombre</translation>
    </message>
    <message>
        <source>Keeps the columns as they are now</source>
        <translation>Guarda las columnas tal como están ahora</translation>
    </message>
    <message>
        <source>larger than 128 MB</source>
        <translation>mayor de 128 MB</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposiciones</translation>
    </message>
    <message>
        <source>&amp;Leave all-day events out</source>
        <translation>&amp;Omitir los eventos de todo el día</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Line Breaks</source>
        <translation>Saltos de línea</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation>&amp;Lugares</translation>
    </message>
    <message>
        <source>Lock End Date</source>
        <translation>Bloquear la fecha de fin</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueada</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>El más largo</translation>
    </message>
    <message>
        <source>&amp;Longest event</source>
        <translation>Evento más &amp;largo</translation>
    </message>
    <message>
        <source>Looking for newer versions…</source>
        <translation>Buscando versiones más recientes…</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>C&amp;orreo</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>May Quillet read your calendars?</source>
        <translation>¿Puede Quillet leer sus calendarios?</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>minutes divided by 60, rounded to two decimals</source>
        <translation>minutos divididos entre 60, redondeado a dos decimales</translation>
    </message>
    <message>
        <source>minutes divided by 60, shown with two decimals</source>
        <translation>minutos divididos entre 60, mostrado con dos decimales</translation>
    </message>
    <message>
        <source>minutes times the rate of a minute, exact</source>
        <translation>minutos por la tarifa de un minuto, exacto</translation>
    </message>
    <message>
        <source>&amp;Money</source>
        <translation>Impo&amp;rtes</translation>
    </message>
    <message>
        <source>money is switched off</source>
        <translation>el coste está desactivado</translation>
    </message>
    <message>
        <source>Money:</source>
        <translation>Importes:</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mes</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>more than 300,000 events; the others are left out</source>
        <translation>más de 300 000 eventos; los demás se omiten</translation>
    </message>
    <message>
        <source>needs its password, which the calendar program asks for</source>
        <translation>necesita su contraseña, que pide el programa de calendario</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>New Group</source>
        <translation>Grupo nuevo</translation>
    </message>
    <message>
        <source>New Layout</source>
        <translation>Disposición nueva</translation>
    </message>
    <message>
        <source>New Settings</source>
        <translation>Ajustes nuevos</translation>
    </message>
    <message>
        <source>Newer Version</source>
        <translation>Versión más reciente</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>No calendar in this group</source>
        <translation>Ningún calendario en este grupo</translation>
    </message>
    <message>
        <source>No calendar is ticked</source>
        <translation>No hay ningún calendario marcado</translation>
    </message>
    <message>
        <source>No calendar program is set up</source>
        <translation>No hay ningún programa de calendario configurado</translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation>No hay calendarios</translation>
    </message>
    <message>
        <source>No event of this period matches the search.</source>
        <translation>Ningún evento de este periodo coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>No events in this period</source>
        <translation>No hay eventos en este periodo</translation>
    </message>
    <message>
        <source>No mail program could be reached</source>
        <translation>No se pudo contactar con ningún programa de correo</translation>
    </message>
    <message>
        <source>No mail program is set up</source>
        <translation>No hay ningún programa de correo configurado</translation>
    </message>
    <message>
        <source>no rate is stored for the calendar “%1”</source>
        <translation>no hay tarifa guardada para el calendario «%1»</translation>
    </message>
    <message>
        <source>No software centre was found</source>
        <translation>No se encontró ningún centro de software</translation>
    </message>
    <message>
        <source>not a calendar file</source>
        <translation>no es un archivo de calendario</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>not reachable since %1, retrying</source>
        <translation>no disponible desde las %1; se reintentará</translation>
    </message>
    <message>
        <source>not reachable, for there is no session bus</source>
        <translation>no disponibles, pues no hay bus de sesión</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notas</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se ha encontrado nada</translation>
    </message>
    <message>
        <source>N&amp;umber of events</source>
        <translation>&amp;Número de eventos</translation>
    </message>
    <message>
        <source>Number of reminders</source>
        <translation>Número de recordatorios</translation>
    </message>
    <message>
        <source>Occurrence</source>
        <translation>Repetición</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>On how many days there are events</source>
        <translation>En cuántos días hay eventos</translation>
    </message>
    <message>
        <source>one event cannot be read</source>
        <translation>no se puede leer un evento</translation>
    </message>
    <message>
        <source>One event stands in two rows</source>
        <translation>Un evento está en dos filas</translation>
    </message>
    <message>
        <source>one event without a start</source>
        <translation>un evento sin inicio</translation>
    </message>
    <message>
        <source>one more line cannot be read</source>
        <translation>no se puede leer una línea más</translation>
    </message>
    <message>
        <source>&amp;One rate for all calendars</source>
        <translation>U&amp;na tarifa para todos los calendarios</translation>
    </message>
    <message>
        <source>one rate for all calendars</source>
        <translation>una tarifa para todos los calendarios</translation>
    </message>
    <message>
        <source>Only files on this computer can be added as calendars.</source>
        <translation>Solo se pueden añadir como calendarios archivos de este equipo.</translation>
    </message>
    <message>
        <source>&amp;Open in Calendar</source>
        <translation>&amp;Abrir en el calendario</translation>
    </message>
    <message>
        <source>Open Software Centre</source>
        <translation>Abrir el centro de software</translation>
    </message>
    <message>
        <source>Op&amp;tions…</source>
        <translation>Opc&amp;iones…</translation>
    </message>
    <message>
        <source>&amp;Period</source>
        <translation>&amp;Periodo</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periodo</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>Preparing the events…</source>
        <translation>Preparando los eventos…</translation>
    </message>
    <message>
        <source>Preparing the text…</source>
        <translation>Preparando el texto…</translation>
    </message>
    <message>
        <source>&amp;Presets…</source>
        <translation>&amp;Preajustes…</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Producto</translation>
    </message>
    <message>
        <source>Put the report into a new message</source>
        <translation>Poner el informe en un mensaje nuevo</translation>
    </message>
    <message>
        <source>Quillet %1

The hours in your calendars, ready to bill.</source>
        <translation>Quillet %1

Las horas de sus calendarios, listas para facturar.</translation>
    </message>
    <message>
        <source>Quillet %1 is available; you have version %2. Your system's software centre installs it.</source>
        <translation>Quillet %1 está disponible; usted tiene la versión %2. El centro de software de su sistema la instala.</translation>
    </message>
    <message>
        <source>Quillet doesn't have access to your Calendars.</source>
        <translation>Quillet no tiene acceso a sus calendarios.</translation>
    </message>
    <message>
        <source>Quillet is up to date</source>
        <translation>Quillet está actualizado</translation>
    </message>
    <message>
        <source>Quillet lists the events of your calendars and adds up their hours. It reads them on this computer only, and changes nothing.</source>
        <translation>Quillet muestra los eventos de sus calendarios y suma sus horas. Los lee solo en este equipo y no cambia nada.</translation>
    </message>
    <message>
        <source>Quillet may not read your calendars yet</source>
        <translation>Quillet aún no puede leer sus calendarios</translation>
    </message>
    <message>
        <source>Quillet reads calendars where they are and shows their events beside those of your other calendars. It changes nothing in them.</source>
        <translation>Quillet lee los calendarios donde están y muestra sus eventos junto a los de sus otros calendarios. No cambia nada en ellos.</translation>
    </message>
    <message>
        <source>Quillet will not be able to format the text for this email due to a known applescript issue caused by Safari 5.0.

If you would like to use the standard text format that Quillet uses, format the font of the new email message to Monaco, size 10.
</source>
        <translation>Quillet no podrá dar formato al texto de este correo debido a un problema conocido de AppleScript causado por Safari 5.0.

Si desea el formato de texto habitual de Quillet, cambie el tipo de letra del mensaje nuevo a Monaco, tamaño 10.
</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Salir de todos modos</translation>
    </message>
    <message>
        <source>Quoted fields may hold separators and quotation marks</source>
        <translation>Los campos entre comillas pueden contener separadores y comillas</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Tarifa</translation>
    </message>
    <message>
        <source>Rate and cost, while money is shown</source>
        <translation>Tarifa y coste, mientras se muestran los importes</translation>
    </message>
    <message>
        <source>Rate of a minute</source>
        <translation>Tarifa de un minuto</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Tarifas</translation>
    </message>
    <message>
        <source>Rates and costs are shown in the window and in exports</source>
        <translation>Las tarifas y los costes se muestran en la ventana y en las exportaciones</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>&amp;Release Notes</source>
        <translation>&amp;Notas de la versión</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Recordatorios</translation>
    </message>
    <message>
        <source>repetitions too many to show them all</source>
        <translation>demasiadas repeticiones para mostrarlas todas</translation>
    </message>
    <message>
        <source>Replace line &amp;breaks by blanks</source>
        <translation>&amp;Sustituir los saltos de línea por espacios</translation>
    </message>
    <message>
        <source>&amp;Reset All Titles</source>
        <translation>&amp;Restablecer todos los títulos</translation>
    </message>
    <message>
        <source>R&amp;estart Quillet</source>
        <translation>R&amp;einiciar Quillet</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>rounded down</source>
        <translation>redondeado hacia abajo</translation>
    </message>
    <message>
        <source>rounded once, at the end</source>
        <translation>redondeado una vez, al final</translation>
    </message>
    <message>
        <source>rounded to a whole minute, halves away from zero</source>
        <translation>redondeado a minutos enteros, las mitades alejándose de cero</translation>
    </message>
    <message>
        <source>rounded to the nearest, halfway up</source>
        <translation>redondeado al más cercano, las mitades hacia arriba</translation>
    </message>
    <message>
        <source>rounded up</source>
        <translation>redondeado hacia arriba</translation>
    </message>
    <message>
        <source>Rounding: %1</source>
        <translation>Redondeo: %1</translation>
    </message>
    <message>
        <source>Safari 5.0 is installed on this Mac</source>
        <translation>Safari 5.0 está instalado en este Mac</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>Guardar como &amp;CSV…</translation>
    </message>
    <message>
        <source>&amp;Save as New Layout</source>
        <translation>&amp;Guardar como disposición nueva</translation>
    </message>
    <message>
        <source>Save as &amp;TSV…</source>
        <translation>Guardar como &amp;TSV…</translation>
    </message>
    <message>
        <source>Save Event &amp;Notes…</source>
        <translation>Guardar las &amp;notas de los eventos…</translation>
    </message>
    <message>
        <source>Save Text &amp;Report…</source>
        <translation>Guardar el &amp;informe de texto…</translation>
    </message>
    <message>
        <source>Save the listed events as a CSV file</source>
        <translation>Guardar los eventos mostrados en un archivo CSV</translation>
    </message>
    <message>
        <source>Save the listed events as a TSV file</source>
        <translation>Guardar los eventos mostrados en un archivo TSV</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>Say Totals A&amp;gain</source>
        <translation>Vol&amp;ver a decir los totales</translation>
    </message>
    <message>
        <source>Search Events</source>
        <translation>Buscar eventos</translation>
    </message>
    <message>
        <source>Search In</source>
        <translation>Buscar en</translation>
    </message>
    <message>
        <source>Search Menu</source>
        <translation>Menú de búsqueda</translation>
    </message>
    <message>
        <source>Search Reminders</source>
        <translation>Buscar recordatorios</translation>
    </message>
    <message>
        <source>Select a calendar to set its hourly rate</source>
        <translation>Seleccione un calendario para fijar su tarifa por hora</translation>
    </message>
    <message>
        <source>Select a group to choose its calendars.</source>
        <translation>Seleccione un grupo para elegir sus calendarios.</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Select &amp;All Events</source>
        <translation>Seleccionar &amp;todos los eventos</translation>
    </message>
    <message>
        <source>Selected Events</source>
        <translation>Eventos seleccionados</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1. They are kept until they can.</source>
        <translation>Los ajustes no se pueden guardar en %1. Se conservan hasta que sea posible.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Proporción</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>El más corto</translation>
    </message>
    <message>
        <source>S&amp;hortest event</source>
        <translation>Evento más c&amp;orto</translation>
    </message>
    <message>
        <source>Show &amp;money</source>
        <translation>&amp;Mostrar los importes</translation>
    </message>
    <message>
        <source>Show the Current Period</source>
        <translation>Mostrar el periodo actual</translation>
    </message>
    <message>
        <source>Show the listed events as a text report</source>
        <translation>Mostrar los eventos como informe de texto</translation>
    </message>
    <message>
        <source>Show the notes of the listed events</source>
        <translation>Mostrar las notas de los eventos</translation>
    </message>
    <message>
        <source>Show &amp;time as:</source>
        <translation>Mostrar el &amp;tiempo en:</translation>
    </message>
    <message>
        <source>shown with the decimals of the currency</source>
        <translation>mostrado con los decimales de la moneda</translation>
    </message>
    <message>
        <source>Shows the days to pick a period from</source>
        <translation>Muestra los días entre los que se elige un periodo</translation>
    </message>
    <message>
        <source>Stands before everything else in the report</source>
        <translation>Va antes de todo lo demás en el informe</translation>
    </message>
    <message>
        <source>Stands behind everything else in the report</source>
        <translation>Va después de todo lo demás en el informe</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Start Date</source>
        <translation>Fecha de inicio</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>Start Weekday</source>
        <translation>Día de inicio</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Sum of the rounded values</source>
        <translation>Suma de los valores redondeados</translation>
    </message>
    <message>
        <source>&amp;Summary row</source>
        <translation>Fila de re&amp;sumen</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>Tell the calendar in each heading</source>
        <translation>Indicar el calendario en cada encabezado</translation>
    </message>
    <message>
        <source>Tell the date in each heading</source>
        <translation>Indicar la fecha en cada encabezado</translation>
    </message>
    <message>
        <source>Tell the location in each heading</source>
        <translation>Indicar el lugar en cada encabezado</translation>
    </message>
    <message>
        <source>Tell the title in each heading</source>
        <translation>Indicar el título en cada encabezado</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Te&amp;xt above the report:</source>
        <translation>Te&amp;xto encima del informe:</translation>
    </message>
    <message>
        <source>Text below the repo&amp;rt:</source>
        <translation>Texto d&amp;ebajo del informe:</translation>
    </message>
    <message>
        <source>&amp;Text Report</source>
        <translation>Informe de &amp;texto</translation>
    </message>
    <message>
        <source>Text Report</source>
        <translation>Informe de texto</translation>
    </message>
    <message>
        <source>Te&amp;xt Report Preferences…</source>
        <translation>Preferencias del informe de te&amp;xto…</translation>
    </message>
    <message>
        <source>Text Report Presets</source>
        <translation>Preajustes del informe de texto</translation>
    </message>
    <message>
        <source>Text Report P&amp;resets…</source>
        <translation>Preaju&amp;stes del informe de texto…</translation>
    </message>
    <message>
        <source>Texts that are longer than their column go on in the next line; when off, they are cut</source>
        <translation>Los textos más largos que su columna siguen en la línea siguiente; si no, se recortan</translation>
    </message>
    <message>
        <source>the additional date “%1” cannot be read and is left out</source>
        <translation>la fecha adicional «%1» no se puede leer y se omite</translation>
    </message>
    <message>
        <source>The calendar could not be added</source>
        <translation>No se ha podido añadir el calendario</translation>
    </message>
    <message>
        <source>the calendar “%1” has no rate, others have one</source>
        <translation>el calendario «%1» no tiene tarifa, otros sí</translation>
    </message>
    <message>
        <source>the calendar “%1” has the rate 0, others have more</source>
        <translation>el calendario «%1» tiene la tarifa 0, otros más</translation>
    </message>
    <message>
        <source>The calendar's own identifier of the reminder</source>
        <translation>El identificador que el calendario da al recordatorio</translation>
    </message>
    <message>
        <source>The calendars of the chosen group are listed</source>
        <translation>Se muestran los calendarios del grupo elegido</translation>
    </message>
    <message>
        <source>the clock changes during “%1”; %2 count</source>
        <translation>durante «%1» cambia la hora; cuentan %2</translation>
    </message>
    <message>
        <source>The disk does not take the settings. When Quillet quits now, it forgets what was changed since they were last saved.</source>
        <translation>El disco no admite los ajustes. Si Quillet se cierra ahora, se perderá lo que cambió desde que se guardaron por última vez.</translation>
    </message>
    <message>
        <source>the end “%1” cannot be read and does not count</source>
        <translation>el final «%1» no se puede leer y no cuenta</translation>
    </message>
    <message>
        <source>the end “%1” is before the start; no time is counted to it</source>
        <translation>el final «%1» es anterior al inicio; no se cuenta tiempo</translation>
    </message>
    <message>
        <source>the event ends before it begins, or lies outside the period</source>
        <translation>el evento termina antes de empezar o está fuera del periodo</translation>
    </message>
    <message>
        <source>the exceptions “%1” cannot be followed; what they leave out is shown</source>
        <translation>las excepciones «%1» no se pueden seguir; se muestra lo que omiten</translation>
    </message>
    <message>
        <source>The first column is the calendar's own identifier of the event</source>
        <translation>La primera columna es el identificador que el calendario da al evento</translation>
    </message>
    <message>
        <source>The first day of the period</source>
        <translation>El primer día del periodo</translation>
    </message>
    <message>
        <source>The first line of the file names the columns</source>
        <translation>La primera línea del archivo nombra las columnas</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be reached.</source>
        <translation>La carpeta «%1» es inaccesible.</translation>
    </message>
    <message>
        <source>The hours for which one day of an all-day event counts</source>
        <translation>Las horas por las que cuenta un día de un evento de todo el día</translation>
    </message>
    <message>
        <source>The last day of the period</source>
        <translation>El último día del periodo</translation>
    </message>
    <message>
        <source>the left-out date “%1” cannot be read; what is on it is shown</source>
        <translation>la fecha omitida «%1» no se puede leer; se muestra lo que hay en ella</translation>
    </message>
    <message>
        <source>the length “%1” cannot be read and does not count</source>
        <translation>la duración «%1» no se puede leer y no cuenta</translation>
    </message>
    <message>
        <source>the length “%1” is below zero and counts as none</source>
        <translation>la duración «%1» es menor que cero y cuenta como ninguna</translation>
    </message>
    <message>
        <source>the length “%1” is over a hundred years and is cut to that</source>
        <translation>la duración «%1» supera los cien años y se recorta a ellos</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached. Are you connected to the Internet?</source>
        <translation>No se puede acceder a la lista de versiones. ¿Está conectado a Internet?</translation>
    </message>
    <message>
        <source>The list of versions did not come in time. Please try again later.</source>
        <translation>La lista de versiones no llegó a tiempo. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The list of versions is not where it should be.</source>
        <translation>La lista de versiones no está donde debería.</translation>
    </message>
    <message>
        <source>The list of versions was not read, as the connection to it is not secure.</source>
        <translation>La lista de versiones no se leyó porque la conexión con ella no es segura.</translation>
    </message>
    <message>
        <source>The mean of an event</source>
        <translation>La media por evento</translation>
    </message>
    <message>
        <source>the period begins after the event</source>
        <translation>el periodo empieza después del evento</translation>
    </message>
    <message>
        <source>the period cuts “%1”: %2 of %3 count</source>
        <translation>el periodo corta «%1»: cuentan %2 de %3</translation>
    </message>
    <message>
        <source>the period ends before the event</source>
        <translation>el periodo termina antes que el evento</translation>
    </message>
    <message>
        <source>the rate divided by 60, rounded to fifteen decimals</source>
        <translation>la tarifa dividida entre 60, redondeada a quince decimales</translation>
    </message>
    <message>
        <source>The rate of an hour, while all calendars have the same</source>
        <translation>La tarifa de una hora, mientras todos los calendarios tengan la misma</translation>
    </message>
    <message>
        <source>the rate of the calendar “%1”</source>
        <translation>la tarifa del calendario «%1»</translation>
    </message>
    <message>
        <source>the repetition “%1” cannot be followed; only the first event is shown</source>
        <translation>la repetición «%1» no se puede seguir; solo se muestra el primer evento</translation>
    </message>
    <message>
        <source>the repetitions are too many to count; only the first event is shown</source>
        <translation>las repeticiones son demasiadas para contarlas; solo se muestra el primer evento</translation>
    </message>
    <message>
        <source>The settings file %2 could not be read (%1) nor moved aside. Quillet starts with its first-run settings.</source>
        <translation>El archivo de ajustes %2 no se ha podido leer (%1) ni apartar. Quillet se inicia con los ajustes del primer inicio.</translation>
    </message>
    <message>
        <source>The settings file could not be read (%1). It was kept as %2, and Quillet starts with its first-run settings.</source>
        <translation>El archivo de ajustes no se ha podido leer (%1). Se ha conservado como %2, y Quillet se inicia con los ajustes del primer inicio.</translation>
    </message>
    <message>
        <source>the start “%1” cannot be read; the event is left out</source>
        <translation>el inicio «%1» no se puede leer; el evento se omite</translation>
    </message>
    <message>
        <source>The sum in hours, minutes or as a duration</source>
        <translation>La suma en horas, en minutos o como duración</translation>
    </message>
    <message>
        <source>The table has this column only while money is shown</source>
        <translation>La tabla tiene esta columna solo mientras se muestran los importes</translation>
    </message>
    <message>
        <source>The text cannot be written to “%1”: %2</source>
        <translation>No se puede escribir el texto en «%1»: %2</translation>
    </message>
    <message>
        <source>the text is not a JSON object</source>
        <translation>el texto no es un objeto JSON</translation>
    </message>
    <message>
        <source>The text is too long to hand over to your mail program</source>
        <translation>El texto es demasiado largo para entregarlo a su programa de correo</translation>
    </message>
    <message>
        <source>The ticked calendars have no events on these days.</source>
        <translation>Los calendarios marcados no tienen eventos en estos días.</translation>
    </message>
    <message>
        <source>the time zone is not certain; it was read as “%1”, which the calendar names elsewhere</source>
        <translation>la zona horaria no es segura; se leyó como «%1», que el calendario nombra en otro lugar</translation>
    </message>
    <message>
        <source>The titles of the ticked calendars</source>
        <translation>Los títulos de los calendarios marcados</translation>
    </message>
    <message>
        <source>There is a file named %1 already. Replace it?</source>
        <translation>Ya hay un archivo llamado %1. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>These hold for CSV and TSV files alike.</source>
        <translation>Esto vale tanto para los archivos CSV como para los TSV.</translation>
    </message>
    <message>
        <source>This group stands for all calendars.</source>
        <translation>Este grupo representa todos los calendarios.</translation>
    </message>
    <message>
        <source>This version lists events only. What you choose here is kept for exports of reminders.</source>
        <translation>Esta versión solo muestra eventos. Lo que elija aquí se guarda para exportaciones de recordatorios.</translation>
    </message>
    <message>
        <source>Tick All Calendars</source>
        <translation>Marcar todos los calendarios</translation>
    </message>
    <message>
        <source>&amp;Tick or Clear All</source>
        <translation>&amp;Marcar o desmarcar todos</translation>
    </message>
    <message>
        <source>Tick the calendars that belong to it.</source>
        <translation>Marque los calendarios que pertenecen a él.</translation>
    </message>
    <message>
        <source>Tick the calendars whose time counts.</source>
        <translation>Marque los calendarios cuyo tiempo cuenta.</translation>
    </message>
    <message>
        <source>Tick the columns that the table shows. Their titles also stand in reports and exports.</source>
        <translation>Marque las columnas que muestra la tabla. Sus títulos aparecen también en los informes y las exportaciones.</translation>
    </message>
    <message>
        <source>Time as &amp;Duration</source>
        <translation>Tiempo como &amp;duración</translation>
    </message>
    <message>
        <source>Time as &amp;Hours</source>
        <translation>Tiempo en &amp;horas</translation>
    </message>
    <message>
        <source>Time as M&amp;inutes</source>
        <translation>Tiempo en &amp;minutos</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Title of “%1”</source>
        <translation>Título de «%1»</translation>
    </message>
    <message>
        <source>&amp;Titles</source>
        <translation>&amp;Títulos</translation>
    </message>
    <message>
        <source>too large for the memory that is left</source>
        <translation>demasiado grande para la memoria libre</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>&amp;Total time</source>
        <translation>Tiempo &amp;total</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Total: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>TSV</source>
        <translation>TSV</translation>
    </message>
    <message>
        <source>unknown time zone “%1”, taken as local time</source>
        <translation>zona horaria «%1» desconocida, tomada como hora local</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>Desbloqueada</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Actualizando…</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>UTF-8 suits nearly every program; some spreadsheets want UTF-16</source>
        <translation>UTF-8 vale para casi todos los programas; algunas hojas de cálculo piden UTF-16</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>La versión %1 es la más reciente.</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>&amp;Sitio web</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semana</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>what a day has of a title is rounded as one</source>
        <translation>lo que un día tiene de un título se redondea junto</translation>
    </message>
    <message>
        <source>what adding up the rows as shown would give</source>
        <translation>lo que daría sumar las filas tal como se muestran</translation>
    </message>
    <message>
        <source>What came is no list of versions.</source>
        <translation>Lo recibido no es una lista de versiones.</translation>
    </message>
    <message>
        <source>What came is too large for a list of versions.</source>
        <translation>Lo recibido es demasiado grande para una lista de versiones.</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>what lasts past midnight is cut there</source>
        <translation>lo que pasa de medianoche se corta ahí</translation>
    </message>
    <message>
        <source>What would you like to add?</source>
        <translation>¿Qué desea añadir?</translation>
    </message>
    <message>
        <source>When off, applying a layout leaves the titles as they are</source>
        <translation>Si no, aplicar una disposición deja los títulos como están</translation>
    </message>
    <message>
        <source>When off, each calendar has a rate of its own: select the calendar in the main window to set it</source>
        <translation>Si no, cada calendario tiene su propia tarifa: seleccione el calendario en la ventana principal para fijarla</translation>
    </message>
    <message>
        <source>where the series has it</source>
        <translation>donde lo tiene la serie</translation>
    </message>
    <message>
        <source>where the series has it; it was moved</source>
        <translation>donde lo tiene la serie; se ha movido</translation>
    </message>
    <message>
        <source>Whether the reminder is done</source>
        <translation>Si el recordatorio está completado</translation>
    </message>
    <message>
        <source>Whether there is a newer version could not be found out</source>
        <translation>No se pudo averiguar si hay una versión más reciente</translation>
    </message>
    <message>
        <source>which occurrence it replaces cannot be read (“%1”); the series is shown without this change</source>
        <translation>no se puede leer qué repetición sustituye («%1»); la serie se muestra sin este cambio</translation>
    </message>
    <message>
        <source>Which time column the table, the results and reports show</source>
        <translation>Qué columna de tiempo muestran la tabla, los resultados y los informes</translation>
    </message>
    <message>
        <source>While locked, the end moves with the start</source>
        <translation>Bloqueada, el fin se mueve con el inicio</translation>
    </message>
    <message>
        <source>&amp;Wrap long texts</source>
        <translation>&amp;Ajustar los textos largos</translation>
    </message>
    <message>
        <source>Write a &amp;header record</source>
        <translation>Escribir una línea de &amp;encabezado</translation>
    </message>
    <message>
        <source>Write the event's &amp;identifier</source>
        <translation>Escribir el &amp;identificador del evento</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Año</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Your desktop answered: %1</source>
        <translation>Su escritorio respondió: %1</translation>
    </message>
    <message>
        <source>Your events appear here once you allow it.</source>
        <translation>Sus eventos aparecerán aquí en cuanto lo permita.</translation>
    </message>
    <message>
        <source>Your last changes cannot be saved</source>
        <translation>No se pueden guardar los últimos cambios</translation>
    </message>
    <message>
        <source>“%1” and “%2” overlap for %3</source>
        <translation>«%1» y «%2» coinciden durante %3</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2</source>
        <translation>«%1» no se puede añadir: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>«%1» no se puede leer.</translation>
    </message>
    <message>
        <source>“%1” cannot be run.</source>
        <translation>No se puede ejecutar «%1».</translation>
    </message>
    <message>
        <source>“%1” could not be started</source>
        <translation>No se pudo iniciar «%1»</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>«%1» no existe.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins</source>
        <translation>«%1» termina antes de empezar</translation>
    </message>
    <message>
        <source>“%1” has %2 at night</source>
        <translation>«%1» tiene %2 de noche</translation>
    </message>
    <message>
        <source>“%1” has %2 on a holiday</source>
        <translation>«%1» tiene %2 en un día festivo</translation>
    </message>
    <message>
        <source>“%1” has %2 on a weekend</source>
        <translation>«%1» tiene %2 en fin de semana</translation>
    </message>
    <message>
        <source>“%1” has no length</source>
        <translation>«%1» no tiene duración</translation>
    </message>
    <message>
        <source>“%1” holds the calendars themselves.</source>
        <translation>«%1» contiene los propios calendarios.</translation>
    </message>
    <message>
        <source>“%1” is also in “%2”, in a newer version, which counts</source>
        <translation>«%1» está también en «%2», en una versión más reciente, que es la que cuenta</translation>
    </message>
    <message>
        <source>“%1” is among the calendars already.</source>
        <translation>«%1» ya está entre los calendarios.</translation>
    </message>
    <message>
        <source>“%1” is in the calendars “%2” and “%3”</source>
        <translation>«%1» está en los calendarios «%2» y «%3»</translation>
    </message>
    <message>
        <source>“%1” is neither a folder nor an .ics file.</source>
        <translation>«%1» no es ni una carpeta ni un archivo .ics.</translation>
    </message>
    <message>
        <source>“%1” is not a rate; the old one was kept.</source>
        <translation>«%1» no es una tarifa; se ha conservado la anterior.</translation>
    </message>
    <message>
        <source>“%1” is there twice at once, for %2</source>
        <translation>«%1» está dos veces a la vez, durante %2</translation>
    </message>
    <message>
        <source>“%1” lasts %2, longer than a working day of %3</source>
        <translation>«%1» dura %2, más que una jornada de %3</translation>
    </message>
    <message>
        <source>“%1” lasts all day and counts %2</source>
        <translation>«%1» dura todo el día y cuenta %2</translation>
    </message>
</context>
</TS>
