<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Quillet</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 à l’octet %2</translation>
    </message>
    <message>
        <source>%1 event</source>
        <translation>%1 événement</translation>
    </message>
    <message>
        <source>%1 events</source>
        <translation>%1 événements</translation>
    </message>
    <message>
        <source>%1 events cannot be read</source>
        <translation>%1 événements sont illisibles</translation>
    </message>
    <message>
        <source>%1 events without a start</source>
        <translation>%1 événements sans début</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 hour</source>
        <translation>%1 heure</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 heures</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <translation>%1 minute</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutes</translation>
    </message>
    <message>
        <source>%1 more events are in other files too, in newer versions, which count</source>
        <translation>%1 autres événements figurent aussi dans d’autres fichiers, dans des versions plus récentes, qui comptent</translation>
    </message>
    <message>
        <source>%1 more lines cannot be read</source>
        <translation>%1 autres lignes sont illisibles</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 du %2</translation>
    </message>
    <message>
        <source>%1 of %2 choices</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 of “%2”</source>
        <translation>%1 de « %2 »</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 par rapport à %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, ligne %2</translation>
    </message>
    <message>
        <source>%1: %2. Please correct it in your calendar program.</source>
        <translation>%1 : %2. Corrigez-le dans votre logiciel de calendrier.</translation>
    </message>
    <message>
        <source>(no location)</source>
        <translation>(sans lieu)</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>(no title)</source>
        <translation>(sans titre)</translation>
    </message>
    <message>
        <source>A folder holds a calendar with one file an event; a file holds a whole calendar.</source>
        <translation>Un dossier contient un calendrier avec un fichier par événement ; un fichier contient un calendrier entier.</translation>
    </message>
    <message>
        <source>a folder that cannot be reached</source>
        <translation>un dossier inaccessible</translation>
    </message>
    <message>
        <source>A last row with the sums of the columns</source>
        <translation>Une dernière ligne avec les sommes des colonnes</translation>
    </message>
    <message>
        <source>a link that leads nowhere</source>
        <translation>un lien qui ne mène nulle part</translation>
    </message>
    <message>
        <source>A preset holds the switches and texts of the text report. Applying one sets them all; a new one takes them as they are now.</source>
        <translation>Un préréglage contient les options et les textes du rapport. L’appliquer les définit tous ; un nouveau les reprend tels qu’ils sont.</translation>
    </message>
    <message>
        <source>a spreadsheet would take the title “%1” for a formula</source>
        <translation>un tableur prendrait le titre « %1 » pour une formule</translation>
    </message>
    <message>
        <source>a text or event that is too long was cut</source>
        <translation>un texte ou un événement trop long a été coupé</translation>
    </message>
    <message>
        <source>&amp;About Quillet</source>
        <translation>À &amp;propos de Quillet</translation>
    </message>
    <message>
        <source>About Quillet</source>
        <translation>À propos de Quillet</translation>
    </message>
    <message>
        <source>Above the Table</source>
        <translation>Au-dessus du tableau</translation>
    </message>
    <message>
        <source>Access Denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add a folder or a file of calendars, or drop one here.</source>
        <translation>Ajoutez un dossier ou un fichier de calendriers, ou déposez-le ici.</translation>
    </message>
    <message>
        <source>Add Calendar File</source>
        <translation>Ajouter un fichier de calendrier</translation>
    </message>
    <message>
        <source>Add Calendar Folder</source>
        <translation>Ajouter un dossier de calendrier</translation>
    </message>
    <message>
        <source>&amp;Add Calendar Folder or File…</source>
        <translation>&amp;Ajouter un dossier ou un fichier de calendrier…</translation>
    </message>
    <message>
        <source>Add Calendar Folder or File…</source>
        <translation>Ajouter un dossier ou un fichier de calendrier…</translation>
    </message>
    <message>
        <source>Add these %1 files as calendars?</source>
        <translation>Ajouter ces %1 fichiers comme calendriers ?</translation>
    </message>
    <message>
        <source>Add “%1” as a calendar?</source>
        <translation>Ajouter « %1 » comme calendrier ?</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>All Calendars</source>
        <translation>Tous les calendriers</translation>
    </message>
    <message>
        <source>All Events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>All-day events are neither listed nor counted in totals and exports</source>
        <translation>Les événements sur la journée ne sont ni affichés ni comptés dans les totaux et les exportations</translation>
    </message>
    <message>
        <source>All-day events:</source>
        <translation>Événements sur la journée :</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Allow Calendar A&amp;ccess…</source>
        <translation>Autoriser l’a&amp;ccès aux calendriers…</translation>
    </message>
    <message>
        <source>Allow Calendar Access…</source>
        <translation>Autoriser l’accès aux calendriers…</translation>
    </message>
    <message>
        <source>an all-day event, in days of 24 hours</source>
        <translation>un événement d’une journée entière, en jours de 24 heures</translation>
    </message>
    <message>
        <source>an empty file</source>
        <translation>un fichier vide</translation>
    </message>
    <message>
        <source>an entry in it has no end</source>
        <translation>une de ses entrées n’a pas de fin</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 autres</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Arranges the columns as the selected layout has them</source>
        <translation>Place les colonnes comme dans la disposition sélectionnée</translation>
    </message>
    <message>
        <source>as it is shown</source>
        <translation>tel qu’affiché</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Au moins</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>&amp;Average time</source>
        <translation>Durée &amp;moyenne</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>&amp;Beginning date</source>
        <translation>Date de dé&amp;but</translation>
    </message>
    <message>
        <source>Beginning Date</source>
        <translation>Date de début</translation>
    </message>
    <message>
        <source>Billed</source>
        <translation>Facturé</translation>
    </message>
    <message>
        <source>Billed: %1 of “%2”</source>
        <translation>Facturé : %1 de « %2 »</translation>
    </message>
    <message>
        <source>Bring column titles back, too</source>
        <translation>Rétablir aussi les titres des colonnes</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Calendar Group</source>
        <translation>Groupe de calendriers</translation>
    </message>
    <message>
        <source>Calendar Groups</source>
        <translation>Groupes de calendriers</translation>
    </message>
    <message>
        <source>Calendar without a name</source>
        <translation>Calendrier sans nom</translation>
    </message>
    <message>
        <source>&amp;Calendars</source>
        <translation>&amp;Calendriers</translation>
    </message>
    <message>
        <source>C&amp;alendars</source>
        <translation>&amp;Calendriers</translation>
    </message>
    <message>
        <source>Calendars</source>
        <translation>Calendriers</translation>
    </message>
    <message>
        <source>Calendars (*.ics)</source>
        <translation>Calendriers (*.ics)</translation>
    </message>
    <message>
        <source>&amp;Calendars in Group</source>
        <translation>&amp;Calendriers du groupe</translation>
    </message>
    <message>
        <source>Calendars in Group</source>
        <translation>Calendriers du groupe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation>inaccessible : %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>illisible : %1</translation>
    </message>
    <message>
        <source>Cannot delete All Calendars</source>
        <translation>Impossible de supprimer « Tous les calendriers »</translation>
    </message>
    <message>
        <source>Cannot delete Default layout</source>
        <translation>Impossible de supprimer la disposition par défaut</translation>
    </message>
    <message>
        <source>Cannot delete Default settings</source>
        <translation>Impossible de supprimer les réglages par défaut</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Rechercher des &amp;mises à jour…</translation>
    </message>
    <message>
        <source>Choose what the report tells</source>
        <translation>Choisir ce que contient le rapport</translation>
    </message>
    <message>
        <source>Choose where to search</source>
        <translation>Choisir où rechercher</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Fe&amp;rmer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Column &amp;Layouts</source>
        <translation>&amp;Dispositions des colonnes</translation>
    </message>
    <message>
        <source>Column Layouts</source>
        <translation>Dispositions des colonnes</translation>
    </message>
    <message>
        <source>Column &amp;Preferences…</source>
        <translation>Préférences des c&amp;olonnes…</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Completion date</source>
        <translation>Date d’achèvement</translation>
    </message>
    <message>
        <source>Control-click ticks or clears all calendars</source>
        <translation>Un clic avec Ctrl coche ou décoche tous les calendriers</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Coût</translation>
    </message>
    <message>
        <source>Counts from</source>
        <translation>Compte à partir de</translation>
    </message>
    <message>
        <source>Counts until</source>
        <translation>Compte jusqu’à</translation>
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
        <translation>En cours</translation>
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
        <translation>Date</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Jour</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>&amp;Days</source>
        <translation>&amp;Jours</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Default layout cannot be deleted.</source>
        <translation>La disposition par défaut ne peut pas être supprimée.</translation>
    </message>
    <message>
        <source>Default settings cannot be deleted.</source>
        <translation>Les réglages par défaut ne peuvent pas être supprimés.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>&amp;Delete Layout</source>
        <translation>&amp;Supprimer une disposition</translation>
    </message>
    <message>
        <source>Delete the group?</source>
        <translation>Supprimer le groupe ?</translation>
    </message>
    <message>
        <source>Delete the record?</source>
        <translation>Supprimer l’enregistrement ?</translation>
    </message>
    <message>
        <source>Deleted records cannot be restored.</source>
        <translation>Les enregistrements supprimés ne peuvent pas être restaurés.</translation>
    </message>
    <message>
        <source>Desktop calendars</source>
        <translation>Calendriers du bureau</translation>
    </message>
    <message>
        <source>Don’t Allow</source>
        <translation>Ne pas autoriser</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Date d’échéance</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>each event is rounded by itself</source>
        <translation>chaque événement est arrondi séparément</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Edit Calendar Groups</source>
        <translation>Modifier les groupes de calendriers</translation>
    </message>
    <message>
        <source>Edit calendar groups</source>
        <translation>Modifier les groupes de calendriers</translation>
    </message>
    <message>
        <source>Edit Calendar &amp;Groups…</source>
        <translation>Modifier les &amp;groupes de calendriers…</translation>
    </message>
    <message>
        <source>Edit Calendar Groups…</source>
        <translation>Modifier les groupes de calendriers…</translation>
    </message>
    <message>
        <source>&amp;Edit Layouts…</source>
        <translation>&amp;Modifier les dispositions…</translation>
    </message>
    <message>
        <source>&amp;Encoding of saved files:</source>
        <translation>&amp;Encodage des fichiers enregistrés :</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>End Date</source>
        <translation>Date de fin</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>End Weekday</source>
        <translation>Jour de fin</translation>
    </message>
    <message>
        <source>E&amp;nding date</source>
        <translation>Date de &amp;fin</translation>
    </message>
    <message>
        <source>Ending Date</source>
        <translation>Date de fin</translation>
    </message>
    <message>
        <source>ends in the middle</source>
        <translation>est incomplet</translation>
    </message>
    <message>
        <source>Event &amp;Notes</source>
        <translation>&amp;Notes des événements</translation>
    </message>
    <message>
        <source>Event Notes</source>
        <translation>Notes des événements</translation>
    </message>
    <message>
        <source>event without a title</source>
        <translation>événement sans titre</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Events counted in more than one row: %1</source>
        <translation>Événements comptés dans plus d’une ligne : %1</translation>
    </message>
    <message>
        <source>Events with notes: %1</source>
        <translation>Avec notes : %1</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exact</translation>
    </message>
    <message>
        <source>exact %1, billed %2</source>
        <translation>exact %1, facturé %2</translation>
    </message>
    <message>
        <source>Exact sum</source>
        <translation>Somme exacte</translation>
    </message>
    <message>
        <source>Export as:</source>
        <translation>Exporter sous :</translation>
    </message>
    <message>
        <source>F2 or a double click renames</source>
        <translation>F2 ou un double-clic renomme</translation>
    </message>
    <message>
        <source>Fetching Events</source>
        <translation>Récupération des événements</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>F&amp;ile…</source>
        <translation>&amp;Fichier…</translation>
    </message>
    <message>
        <source>Find &amp;In</source>
        <translation>Rechercher &amp;dans</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Rechercher…</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>&amp;Dossier…</translation>
    </message>
    <message>
        <source>for each event that begins</source>
        <translation>pour chaque événement qui commence</translation>
    </message>
    <message>
        <source>for which an all-day event counts</source>
        <translation>pour lesquelles compte un événement d’une journée entière</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Gives every column its first title back</source>
        <translation>Rend à chaque colonne son titre d’origine</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Groupes</translation>
    </message>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Hourly Rate</source>
        <translation>Taux horaire</translation>
    </message>
    <message>
        <source>Hourly &amp;rate (%1):</source>
        <translation>&amp;Taux horaire (%1) :</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Hours a day</source>
        <translation>Heures par jour</translation>
    </message>
    <message>
        <source>&amp;Hours for each day:</source>
        <translation>&amp;Heures par jour :</translation>
    </message>
    <message>
        <source>Hours for money</source>
        <translation>Heures pour le coût</translation>
    </message>
    <message>
        <source>hours times rate, exact</source>
        <translation>heures multipliées par le taux, exact</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>In Quotation Marks</source>
        <translation>Entre guillemets</translation>
    </message>
    <message>
        <source>in the zone %1</source>
        <translation>dans le fuseau %1</translation>
    </message>
    <message>
        <source>In titles, notes, locations and calendars, for programs that take every line for an event</source>
        <translation>Dans les titres, notes, lieux et calendriers, pour les programmes qui prennent chaque ligne pour un événement</translation>
    </message>
    <message>
        <source>In&amp;spector</source>
        <translation>In&amp;specteur</translation>
    </message>
    <message>
        <source>Install a calendar program, or choose one among the default applications of your desktop, to open events in it.</source>
        <translation>Installez un logiciel de calendrier, ou choisissez-en un parmi les applications par défaut de votre bureau, pour y ouvrir des événements.</translation>
    </message>
    <message>
        <source>Install a mail program, or choose one among the default applications of your desktop, and press Mail again.</source>
        <translation>Installez un logiciel de messagerie, ou choisissez-en un parmi les applications par défaut de votre bureau, puis cliquez de nouveau sur Courriel.</translation>
    </message>
    <message>
        <source>Install the newer version in the way in which you installed Quillet.</source>
        <translation>Installez la nouvelle version de la même façon que vous avez installé Quillet.</translation>
    </message>
    <message>
        <source>is still being read</source>
        <translation>est encore en cours de lecture</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>il dépasse %1 Mo</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>Il n’est pas installé.</translation>
    </message>
    <message>
        <source>It is on the clipboard: paste it into the new message.</source>
        <translation>Il est dans le presse-papiers : collez-le dans le nouveau message.</translation>
    </message>
    <message>
        <source>its server is not reachable since %1, retrying</source>
        <translation>son serveur est injoignable depuis %1, nouvel essai à venir</translation>
    </message>
    <message>
        <source>Keeps all this under a name, and brings it back</source>
        <translation>Conserve tout ceci sous un nom, et le rétablit</translation>
    </message>
    <message>
        <source>Keeps arrangements of the columns under names</source>
        <translation>Conserve des dispositions de colonnes sous des noms</translation>
    </message>
    <message>
        <source>Keeps the columns as they are now</source>
        <translation>Conserve les colonnes telles qu’elles sont</translation>
    </message>
    <message>
        <source>larger than 128 MB</source>
        <translation>plus grand que 128 Mo</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Dispositions</translation>
    </message>
    <message>
        <source>&amp;Leave all-day events out</source>
        <translation>&amp;Laisser de côté les événements sur la journée</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Line Breaks</source>
        <translation>Retours à la ligne</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation>&amp;Lieux</translation>
    </message>
    <message>
        <source>Lock End Date</source>
        <translation>Verrouiller la date de fin</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrouillée</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Le plus long</translation>
    </message>
    <message>
        <source>&amp;Longest event</source>
        <translation>Événement le plus &amp;long</translation>
    </message>
    <message>
        <source>Looking for newer versions…</source>
        <translation>Recherche de nouvelles versions…</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>Courrie&amp;l</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>May Quillet read your calendars?</source>
        <translation>Quillet peut-il lire vos calendriers ?</translation>
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
        <translation>Minutes</translation>
    </message>
    <message>
        <source>minutes divided by 60, rounded to two decimals</source>
        <translation>minutes divisées par 60, arrondies à deux décimales</translation>
    </message>
    <message>
        <source>minutes divided by 60, shown with two decimals</source>
        <translation>minutes divisées par 60, affichées avec deux décimales</translation>
    </message>
    <message>
        <source>minutes times the rate of a minute, exact</source>
        <translation>minutes multipliées par le taux d’une minute, exact</translation>
    </message>
    <message>
        <source>&amp;Money</source>
        <translation>Mont&amp;ants</translation>
    </message>
    <message>
        <source>money is switched off</source>
        <translation>les montants sont désactivés</translation>
    </message>
    <message>
        <source>Money:</source>
        <translation>Montants :</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mois</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>more than 300,000 events; the others are left out</source>
        <translation>plus de 300 000 événements ; les autres sont laissés de côté</translation>
    </message>
    <message>
        <source>needs its password, which the calendar program asks for</source>
        <translation>a besoin de son mot de passe, que demande le programme de calendrier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>New Group</source>
        <translation>Nouveau groupe</translation>
    </message>
    <message>
        <source>New Layout</source>
        <translation>Nouvelle disposition</translation>
    </message>
    <message>
        <source>New Settings</source>
        <translation>Nouveaux réglages</translation>
    </message>
    <message>
        <source>Newer Version</source>
        <translation>Nouvelle version</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>No calendar in this group</source>
        <translation>Aucun calendrier dans ce groupe</translation>
    </message>
    <message>
        <source>No calendar is ticked</source>
        <translation>Aucun calendrier n’est coché</translation>
    </message>
    <message>
        <source>No calendar program is set up</source>
        <translation>Aucun logiciel de calendrier n’est configuré</translation>
    </message>
    <message>
        <source>No calendars</source>
        <translation>Aucun calendrier</translation>
    </message>
    <message>
        <source>No event of this period matches the search.</source>
        <translation>Aucun événement de cette période ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>No events in this period</source>
        <translation>Aucun événement dans cette période</translation>
    </message>
    <message>
        <source>No mail program could be reached</source>
        <translation>Aucun logiciel de messagerie n’a pu être joint</translation>
    </message>
    <message>
        <source>No mail program is set up</source>
        <translation>Aucun logiciel de messagerie n’est configuré</translation>
    </message>
    <message>
        <source>no rate is stored for the calendar “%1”</source>
        <translation>aucun taux n’est enregistré pour le calendrier « %1 »</translation>
    </message>
    <message>
        <source>No software centre was found</source>
        <translation>Aucune logithèque n’a été trouvée</translation>
    </message>
    <message>
        <source>not a calendar file</source>
        <translation>n’est pas un fichier de calendrier</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>n’est pas un fichier</translation>
    </message>
    <message>
        <source>not reachable since %1, retrying</source>
        <translation>injoignable depuis %1, nouvel essai à venir</translation>
    </message>
    <message>
        <source>not reachable, for there is no session bus</source>
        <translation>injoignables, car il n’y a pas de bus de session</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notes</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Rien trouvé</translation>
    </message>
    <message>
        <source>N&amp;umber of events</source>
        <translation>Nombre d’é&amp;vénements</translation>
    </message>
    <message>
        <source>Number of reminders</source>
        <translation>Nombre de rappels</translation>
    </message>
    <message>
        <source>Occurrence</source>
        <translation>Occurrence</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>On how many days there are events</source>
        <translation>Le nombre de jours avec des événements</translation>
    </message>
    <message>
        <source>one event cannot be read</source>
        <translation>un événement est illisible</translation>
    </message>
    <message>
        <source>One event stands in two rows</source>
        <translation>Un événement figure dans deux lignes</translation>
    </message>
    <message>
        <source>one event without a start</source>
        <translation>un événement sans début</translation>
    </message>
    <message>
        <source>one more line cannot be read</source>
        <translation>une autre ligne est illisible</translation>
    </message>
    <message>
        <source>&amp;One rate for all calendars</source>
        <translation>&amp;Un seul taux pour tous les calendriers</translation>
    </message>
    <message>
        <source>one rate for all calendars</source>
        <translation>un taux pour tous les calendriers</translation>
    </message>
    <message>
        <source>Only files on this computer can be added as calendars.</source>
        <translation>Seuls des fichiers de cet ordinateur peuvent être ajoutés comme calendriers.</translation>
    </message>
    <message>
        <source>&amp;Open in Calendar</source>
        <translation>&amp;Ouvrir dans le calendrier</translation>
    </message>
    <message>
        <source>Open Software Centre</source>
        <translation>Ouvrir la logithèque</translation>
    </message>
    <message>
        <source>Op&amp;tions…</source>
        <translation>&amp;Options…</translation>
    </message>
    <message>
        <source>&amp;Period</source>
        <translation>&amp;Période</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>Preparing the events…</source>
        <translation>Préparation des événements…</translation>
    </message>
    <message>
        <source>Preparing the text…</source>
        <translation>Préparation du texte…</translation>
    </message>
    <message>
        <source>&amp;Presets…</source>
        <translation>&amp;Préréglages…</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produit</translation>
    </message>
    <message>
        <source>Put the report into a new message</source>
        <translation>Placer le rapport dans un nouveau message</translation>
    </message>
    <message>
        <source>Quillet %1

The hours in your calendars, ready to bill.</source>
        <translation>Quillet %1

Les heures de vos calendriers, prêtes à facturer.</translation>
    </message>
    <message>
        <source>Quillet %1 is available; you have version %2. Your system's software centre installs it.</source>
        <translation>Quillet %1 est disponible ; vous avez la version %2. La logithèque de votre système l’installe.</translation>
    </message>
    <message>
        <source>Quillet doesn't have access to your Calendars.</source>
        <translation>Quillet n’a pas accès à vos calendriers.</translation>
    </message>
    <message>
        <source>Quillet is up to date</source>
        <translation>Quillet est à jour</translation>
    </message>
    <message>
        <source>Quillet lists the events of your calendars and adds up their hours. It reads them on this computer only, and changes nothing.</source>
        <translation>Quillet affiche les événements de vos calendriers et additionne leurs heures. Il les lit uniquement sur cet ordinateur et ne modifie rien.</translation>
    </message>
    <message>
        <source>Quillet may not read your calendars yet</source>
        <translation>Quillet ne peut pas encore lire vos calendriers</translation>
    </message>
    <message>
        <source>Quillet reads calendars where they are and shows their events beside those of your other calendars. It changes nothing in them.</source>
        <translation>Quillet lit les calendriers là où ils se trouvent et affiche leurs événements à côté de ceux de vos autres calendriers. Il n’y modifie rien.</translation>
    </message>
    <message>
        <source>Quillet will not be able to format the text for this email due to a known applescript issue caused by Safari 5.0.

If you would like to use the standard text format that Quillet uses, format the font of the new email message to Monaco, size 10.
</source>
        <translation>Quillet ne pourra pas mettre en forme le texte de ce courriel en raison d’un problème AppleScript connu causé par Safari 5.0.

Si vous souhaitez le format de texte habituel de Quillet, choisissez pour le nouveau message la police Monaco, taille 10.
</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Quoted fields may hold separators and quotation marks</source>
        <translation>Les champs entre guillemets peuvent contenir des séparateurs et des guillemets</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Taux</translation>
    </message>
    <message>
        <source>Rate and cost, while money is shown</source>
        <translation>Taux et coût, tant que les montants sont affichés</translation>
    </message>
    <message>
        <source>Rate of a minute</source>
        <translation>Taux d’une minute</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Taux</translation>
    </message>
    <message>
        <source>Rates and costs are shown in the window and in exports</source>
        <translation>Les taux et les coûts sont affichés dans la fenêtre et dans les exportations</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>&amp;Release Notes</source>
        <translation>&amp;Notes de version</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>Rappels</translation>
    </message>
    <message>
        <source>repetitions too many to show them all</source>
        <translation>trop de répétitions pour les afficher toutes</translation>
    </message>
    <message>
        <source>Replace line &amp;breaks by blanks</source>
        <translation>&amp;Remplacer les retours à la ligne par des espaces</translation>
    </message>
    <message>
        <source>&amp;Reset All Titles</source>
        <translation>&amp;Réinitialiser tous les titres</translation>
    </message>
    <message>
        <source>R&amp;estart Quillet</source>
        <translation>R&amp;edémarrer Quillet</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>rounded down</source>
        <translation>arrondi au-dessous</translation>
    </message>
    <message>
        <source>rounded once, at the end</source>
        <translation>arrondi une seule fois, à la fin</translation>
    </message>
    <message>
        <source>rounded to a whole minute, halves away from zero</source>
        <translation>arrondi à la minute entière, les moitiés en s’éloignant de zéro</translation>
    </message>
    <message>
        <source>rounded to the nearest, halfway up</source>
        <translation>arrondi au plus proche, la moitié vers le haut</translation>
    </message>
    <message>
        <source>rounded up</source>
        <translation>arrondi au-dessus</translation>
    </message>
    <message>
        <source>Rounding: %1</source>
        <translation>Arrondi : %1</translation>
    </message>
    <message>
        <source>Safari 5.0 is installed on this Mac</source>
        <translation>Safari 5.0 est installé sur ce Mac</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>Enregistrer en &amp;CSV…</translation>
    </message>
    <message>
        <source>&amp;Save as New Layout</source>
        <translation>&amp;Enregistrer comme nouvelle disposition</translation>
    </message>
    <message>
        <source>Save as &amp;TSV…</source>
        <translation>Enregistrer en &amp;TSV…</translation>
    </message>
    <message>
        <source>Save Event &amp;Notes…</source>
        <translation>Enregistrer les &amp;notes des événements…</translation>
    </message>
    <message>
        <source>Save Text &amp;Report…</source>
        <translation>Enregistrer le &amp;rapport texte…</translation>
    </message>
    <message>
        <source>Save the listed events as a CSV file</source>
        <translation>Enregistrer les événements affichés dans un fichier CSV</translation>
    </message>
    <message>
        <source>Save the listed events as a TSV file</source>
        <translation>Enregistrer les événements affichés dans un fichier TSV</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>Enre&amp;gistrer…</translation>
    </message>
    <message>
        <source>Say Totals A&amp;gain</source>
        <translation>Red&amp;ire les totaux</translation>
    </message>
    <message>
        <source>Search Events</source>
        <translation>Rechercher des événements</translation>
    </message>
    <message>
        <source>Search In</source>
        <translation>Rechercher dans</translation>
    </message>
    <message>
        <source>Search Menu</source>
        <translation>Menu de recherche</translation>
    </message>
    <message>
        <source>Search Reminders</source>
        <translation>Rechercher des rappels</translation>
    </message>
    <message>
        <source>Select a calendar to set its hourly rate</source>
        <translation>Sélectionnez un calendrier pour définir son taux horaire</translation>
    </message>
    <message>
        <source>Select a group to choose its calendars.</source>
        <translation>Sélectionnez un groupe pour choisir ses calendriers.</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select &amp;All Events</source>
        <translation>&amp;Sélectionner tous les événements</translation>
    </message>
    <message>
        <source>Selected Events</source>
        <translation>Événements sélectionnés</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1. They are kept until they can.</source>
        <translation>Les réglages ne peuvent pas être enregistrés dans %1. Ils sont conservés jusqu’à ce que ce soit possible.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Part</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>Le plus court</translation>
    </message>
    <message>
        <source>S&amp;hortest event</source>
        <translation>Événement le plus c&amp;ourt</translation>
    </message>
    <message>
        <source>Show &amp;money</source>
        <translation>Afficher les &amp;montants</translation>
    </message>
    <message>
        <source>Show the Current Period</source>
        <translation>Afficher la période en cours</translation>
    </message>
    <message>
        <source>Show the listed events as a text report</source>
        <translation>Afficher les événements sous forme de rapport texte</translation>
    </message>
    <message>
        <source>Show the notes of the listed events</source>
        <translation>Afficher les notes des événements</translation>
    </message>
    <message>
        <source>Show &amp;time as:</source>
        <translation>Afficher la &amp;durée en :</translation>
    </message>
    <message>
        <source>shown with the decimals of the currency</source>
        <translation>affiché avec les décimales de la devise</translation>
    </message>
    <message>
        <source>Shows the days to pick a period from</source>
        <translation>Affiche les jours parmi lesquels choisir une période</translation>
    </message>
    <message>
        <source>Stands before everything else in the report</source>
        <translation>Placé avant tout le reste du rapport</translation>
    </message>
    <message>
        <source>Stands behind everything else in the report</source>
        <translation>Placé après tout le reste du rapport</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Start Date</source>
        <translation>Date de début</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>Start Weekday</source>
        <translation>Jour de début</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Sum of the rounded values</source>
        <translation>Somme des valeurs arrondies</translation>
    </message>
    <message>
        <source>&amp;Summary row</source>
        <translation>Ligne de &amp;synthèse</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Tell the calendar in each heading</source>
        <translation>Indiquer le calendrier dans chaque en-tête</translation>
    </message>
    <message>
        <source>Tell the date in each heading</source>
        <translation>Indiquer la date dans chaque en-tête</translation>
    </message>
    <message>
        <source>Tell the location in each heading</source>
        <translation>Indiquer le lieu dans chaque en-tête</translation>
    </message>
    <message>
        <source>Tell the title in each heading</source>
        <translation>Indiquer le titre dans chaque en-tête</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Te&amp;xt above the report:</source>
        <translation>Te&amp;xte au-dessus du rapport :</translation>
    </message>
    <message>
        <source>Text below the repo&amp;rt:</source>
        <translation>Texte &amp;en dessous du rapport :</translation>
    </message>
    <message>
        <source>&amp;Text Report</source>
        <translation>Rapport &amp;texte</translation>
    </message>
    <message>
        <source>Text Report</source>
        <translation>Rapport texte</translation>
    </message>
    <message>
        <source>Te&amp;xt Report Preferences…</source>
        <translation>Préférences du rapport te&amp;xte…</translation>
    </message>
    <message>
        <source>Text Report Presets</source>
        <translation>Préréglages du rapport texte</translation>
    </message>
    <message>
        <source>Text Report P&amp;resets…</source>
        <translation>Prérégla&amp;ges du rapport texte…</translation>
    </message>
    <message>
        <source>Texts that are longer than their column go on in the next line; when off, they are cut</source>
        <translation>Les textes plus longs que leur colonne continuent à la ligne suivante ; sinon, ils sont coupés</translation>
    </message>
    <message>
        <source>the additional date “%1” cannot be read and is left out</source>
        <translation>la date supplémentaire « %1 » est illisible et est ignorée</translation>
    </message>
    <message>
        <source>The calendar could not be added</source>
        <translation>Le calendrier n’a pas pu être ajouté</translation>
    </message>
    <message>
        <source>the calendar “%1” has no rate, others have one</source>
        <translation>le calendrier « %1 » n’a pas de taux, d’autres en ont un</translation>
    </message>
    <message>
        <source>the calendar “%1” has the rate 0, others have more</source>
        <translation>le calendrier « %1 » a le taux 0, d’autres ont plus</translation>
    </message>
    <message>
        <source>The calendar's own identifier of the reminder</source>
        <translation>L’identifiant que le calendrier donne au rappel</translation>
    </message>
    <message>
        <source>The calendars of the chosen group are listed</source>
        <translation>Les calendriers du groupe choisi sont affichés</translation>
    </message>
    <message>
        <source>the clock changes during “%1”; %2 count</source>
        <translation>l’heure change pendant « %1 » ; %2 comptent</translation>
    </message>
    <message>
        <source>The disk does not take the settings. When Quillet quits now, it forgets what was changed since they were last saved.</source>
        <translation>Le disque n’accepte pas les réglages. Si Quillet quitte maintenant, ce qui a changé depuis le dernier enregistrement est perdu.</translation>
    </message>
    <message>
        <source>the end “%1” cannot be read and does not count</source>
        <translation>la fin « %1 » est illisible et ne compte pas</translation>
    </message>
    <message>
        <source>the end “%1” is before the start; no time is counted to it</source>
        <translation>la fin « %1 » précède le début ; aucun temps n’est compté</translation>
    </message>
    <message>
        <source>the event ends before it begins, or lies outside the period</source>
        <translation>l’événement finit avant de commencer ou se trouve hors de la période</translation>
    </message>
    <message>
        <source>the exceptions “%1” cannot be followed; what they leave out is shown</source>
        <translation>les exceptions « %1 » ne peuvent pas être suivies ; ce qu’elles excluent est affiché</translation>
    </message>
    <message>
        <source>The first column is the calendar's own identifier of the event</source>
        <translation>La première colonne est l’identifiant que le calendrier donne à l’événement</translation>
    </message>
    <message>
        <source>The first day of the period</source>
        <translation>Le premier jour de la période</translation>
    </message>
    <message>
        <source>The first line of the file names the columns</source>
        <translation>La première ligne du fichier nomme les colonnes</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be reached.</source>
        <translation>Le dossier « %1 » est inaccessible.</translation>
    </message>
    <message>
        <source>The hours for which one day of an all-day event counts</source>
        <translation>Les heures que compte une journée d’un événement sur la journée</translation>
    </message>
    <message>
        <source>The last day of the period</source>
        <translation>Le dernier jour de la période</translation>
    </message>
    <message>
        <source>the left-out date “%1” cannot be read; what is on it is shown</source>
        <translation>la date exclue « %1 » est illisible ; ce qui y tombe est affiché</translation>
    </message>
    <message>
        <source>the length “%1” cannot be read and does not count</source>
        <translation>la durée « %1 » est illisible et ne compte pas</translation>
    </message>
    <message>
        <source>the length “%1” is below zero and counts as none</source>
        <translation>la durée « %1 » est négative et compte pour zéro</translation>
    </message>
    <message>
        <source>the length “%1” is over a hundred years and is cut to that</source>
        <translation>la durée « %1 » dépasse cent ans et y est ramenée</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached. Are you connected to the Internet?</source>
        <translation>La liste des versions est inaccessible. Êtes-vous connecté à Internet ?</translation>
    </message>
    <message>
        <source>The list of versions did not come in time. Please try again later.</source>
        <translation>La liste des versions n’est pas arrivée à temps. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The list of versions is not where it should be.</source>
        <translation>La liste des versions n’est pas là où elle devrait être.</translation>
    </message>
    <message>
        <source>The list of versions was not read, as the connection to it is not secure.</source>
        <translation>La liste des versions n’a pas été lue, car la connexion n’est pas sûre.</translation>
    </message>
    <message>
        <source>The mean of an event</source>
        <translation>La moyenne d’un événement</translation>
    </message>
    <message>
        <source>the period begins after the event</source>
        <translation>la période commence après l’événement</translation>
    </message>
    <message>
        <source>the period cuts “%1”: %2 of %3 count</source>
        <translation>la période coupe « %1 » : %2 sur %3 comptent</translation>
    </message>
    <message>
        <source>the period ends before the event</source>
        <translation>la période finit avant l’événement</translation>
    </message>
    <message>
        <source>the rate divided by 60, rounded to fifteen decimals</source>
        <translation>le taux divisé par 60, arrondi à quinze décimales</translation>
    </message>
    <message>
        <source>The rate of an hour, while all calendars have the same</source>
        <translation>Le taux d’une heure, tant que tous les calendriers ont le même</translation>
    </message>
    <message>
        <source>the rate of the calendar “%1”</source>
        <translation>le taux du calendrier « %1 »</translation>
    </message>
    <message>
        <source>the repetition “%1” cannot be followed; only the first event is shown</source>
        <translation>la répétition « %1 » ne peut pas être suivie ; seul le premier événement est affiché</translation>
    </message>
    <message>
        <source>the repetitions are too many to count; only the first event is shown</source>
        <translation>les répétitions sont trop nombreuses pour être comptées ; seul le premier événement est affiché</translation>
    </message>
    <message>
        <source>The settings file %2 could not be read (%1) nor moved aside. Quillet starts with its first-run settings.</source>
        <translation>Le fichier de réglages %2 n’a pu être ni lu (%1) ni mis de côté. Quillet démarre avec les réglages du premier lancement.</translation>
    </message>
    <message>
        <source>The settings file could not be read (%1). It was kept as %2, and Quillet starts with its first-run settings.</source>
        <translation>Le fichier de réglages n’a pas pu être lu (%1). Il a été conservé sous %2, et Quillet démarre avec les réglages du premier lancement.</translation>
    </message>
    <message>
        <source>the start “%1” cannot be read; the event is left out</source>
        <translation>le début « %1 » est illisible ; l’événement est ignoré</translation>
    </message>
    <message>
        <source>The sum in hours, minutes or as a duration</source>
        <translation>La somme en heures, en minutes ou en durée</translation>
    </message>
    <message>
        <source>The table has this column only while money is shown</source>
        <translation>Le tableau n’a cette colonne que lorsque les montants sont affichés</translation>
    </message>
    <message>
        <source>The text cannot be written to “%1”: %2</source>
        <translation>Le texte ne peut pas être écrit dans « %1 » : %2</translation>
    </message>
    <message>
        <source>the text is not a JSON object</source>
        <translation>le texte n’est pas un objet JSON</translation>
    </message>
    <message>
        <source>The text is too long to hand over to your mail program</source>
        <translation>Le texte est trop long pour être transmis à votre logiciel de messagerie</translation>
    </message>
    <message>
        <source>The ticked calendars have no events on these days.</source>
        <translation>Les calendriers cochés n’ont aucun événement ces jours-là.</translation>
    </message>
    <message>
        <source>the time zone is not certain; it was read as “%1”, which the calendar names elsewhere</source>
        <translation>le fuseau horaire n’est pas certain ; il a été lu comme « %1 », que le calendrier nomme ailleurs</translation>
    </message>
    <message>
        <source>The titles of the ticked calendars</source>
        <translation>Les titres des calendriers cochés</translation>
    </message>
    <message>
        <source>There is a file named %1 already. Replace it?</source>
        <translation>Il y a déjà un fichier nommé %1. Le remplacer ?</translation>
    </message>
    <message>
        <source>These hold for CSV and TSV files alike.</source>
        <translation>Ces réglages valent pour les fichiers CSV comme pour les fichiers TSV.</translation>
    </message>
    <message>
        <source>This group stands for all calendars.</source>
        <translation>Ce groupe représente tous les calendriers.</translation>
    </message>
    <message>
        <source>This version lists events only. What you choose here is kept for exports of reminders.</source>
        <translation>Cette version n’affiche que des événements. Vos choix sont conservés ici pour les exportations de rappels.</translation>
    </message>
    <message>
        <source>Tick All Calendars</source>
        <translation>Cocher tous les calendriers</translation>
    </message>
    <message>
        <source>&amp;Tick or Clear All</source>
        <translation>&amp;Tout cocher ou décocher</translation>
    </message>
    <message>
        <source>Tick the calendars that belong to it.</source>
        <translation>Cochez les calendriers qui en font partie.</translation>
    </message>
    <message>
        <source>Tick the calendars whose time counts.</source>
        <translation>Cochez les calendriers dont le temps compte.</translation>
    </message>
    <message>
        <source>Tick the columns that the table shows. Their titles also stand in reports and exports.</source>
        <translation>Cochez les colonnes que le tableau affiche. Leurs titres figurent aussi dans les rapports et les exportations.</translation>
    </message>
    <message>
        <source>Time as &amp;Duration</source>
        <translation>Temps en d&amp;urée</translation>
    </message>
    <message>
        <source>Time as &amp;Hours</source>
        <translation>Temps en &amp;heures</translation>
    </message>
    <message>
        <source>Time as M&amp;inutes</source>
        <translation>Temps en &amp;minutes</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title of “%1”</source>
        <translation>Titre de « %1 »</translation>
    </message>
    <message>
        <source>&amp;Titles</source>
        <translation>&amp;Titres</translation>
    </message>
    <message>
        <source>too large for the memory that is left</source>
        <translation>trop volumineux pour la mémoire restante</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>&amp;Total time</source>
        <translation>Durée &amp;totale</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>Total : %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>TSV</source>
        <translation>TSV</translation>
    </message>
    <message>
        <source>unknown time zone “%1”, taken as local time</source>
        <translation>fuseau horaire « %1 » inconnu, pris pour l’heure locale</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>Déverrouillée</translation>
    </message>
    <message>
        <source>Updating…</source>
        <translation>Mise à jour…</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>UTF-8 suits nearly every program; some spreadsheets want UTF-16</source>
        <translation>UTF-8 convient à presque tous les programmes ; certains tableurs demandent de l’UTF-16</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>La version %1 est la plus récente.</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>&amp;Site web</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semaine</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>what a day has of a title is rounded as one</source>
        <translation>ce qu’un jour a d’un même titre est arrondi ensemble</translation>
    </message>
    <message>
        <source>what adding up the rows as shown would give</source>
        <translation>ce que donnerait l’addition des lignes affichées</translation>
    </message>
    <message>
        <source>What came is no list of versions.</source>
        <translation>Ce qui a été reçu n’est pas une liste de versions.</translation>
    </message>
    <message>
        <source>What came is too large for a list of versions.</source>
        <translation>Ce qui a été reçu est trop volumineux pour une liste de versions.</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>what lasts past midnight is cut there</source>
        <translation>ce qui dure au-delà de minuit y est coupé</translation>
    </message>
    <message>
        <source>What would you like to add?</source>
        <translation>Que souhaitez-vous ajouter ?</translation>
    </message>
    <message>
        <source>When off, applying a layout leaves the titles as they are</source>
        <translation>Sinon, appliquer une disposition laisse les titres tels qu’ils sont</translation>
    </message>
    <message>
        <source>When off, each calendar has a rate of its own: select the calendar in the main window to set it</source>
        <translation>Sinon, chaque calendrier a son propre taux : sélectionnez le calendrier dans la fenêtre principale pour le définir</translation>
    </message>
    <message>
        <source>where the series has it</source>
        <translation>là où la série le place</translation>
    </message>
    <message>
        <source>where the series has it; it was moved</source>
        <translation>là où la série le place ; il a été déplacé</translation>
    </message>
    <message>
        <source>Whether the reminder is done</source>
        <translation>Si le rappel est terminé</translation>
    </message>
    <message>
        <source>Whether there is a newer version could not be found out</source>
        <translation>Impossible de savoir s’il existe une nouvelle version</translation>
    </message>
    <message>
        <source>which occurrence it replaces cannot be read (“%1”); the series is shown without this change</source>
        <translation>l’occurrence remplacée est illisible (« %1 ») ; la série est affichée sans cette modification</translation>
    </message>
    <message>
        <source>Which time column the table, the results and reports show</source>
        <translation>La colonne de temps que montrent le tableau, les résultats et les rapports</translation>
    </message>
    <message>
        <source>While locked, the end moves with the start</source>
        <translation>Verrouillée, la fin suit le début</translation>
    </message>
    <message>
        <source>&amp;Wrap long texts</source>
        <translation>&amp;Renvoyer les textes longs à la ligne</translation>
    </message>
    <message>
        <source>Write a &amp;header record</source>
        <translation>Écrire une ligne d’&amp;en-tête</translation>
    </message>
    <message>
        <source>Write the event's &amp;identifier</source>
        <translation>Écrire l’&amp;identifiant de l’événement</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Année</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Your desktop answered: %1</source>
        <translation>Votre bureau a répondu : %1</translation>
    </message>
    <message>
        <source>Your events appear here once you allow it.</source>
        <translation>Vos événements s’affichent ici dès que vous l’autorisez.</translation>
    </message>
    <message>
        <source>Your last changes cannot be saved</source>
        <translation>Vos dernières modifications ne peuvent pas être enregistrées</translation>
    </message>
    <message>
        <source>“%1” and “%2” overlap for %3</source>
        <translation>« %1 » et « %2 » se chevauchent pendant %3</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2</source>
        <translation>« %1 » ne peut pas être ajouté : %2</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>« %1 » est illisible.</translation>
    </message>
    <message>
        <source>“%1” cannot be run.</source>
        <translation>« %1 » ne peut pas être exécuté.</translation>
    </message>
    <message>
        <source>“%1” could not be started</source>
        <translation>« %1 » n’a pas pu être démarré</translation>
    </message>
    <message>
        <source>“%1” does not exist.</source>
        <translation>« %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins</source>
        <translation>« %1 » finit avant de commencer</translation>
    </message>
    <message>
        <source>“%1” has %2 at night</source>
        <translation>« %1 » a %2 de nuit</translation>
    </message>
    <message>
        <source>“%1” has %2 on a holiday</source>
        <translation>« %1 » a %2 un jour férié</translation>
    </message>
    <message>
        <source>“%1” has %2 on a weekend</source>
        <translation>« %1 » a %2 le week-end</translation>
    </message>
    <message>
        <source>“%1” has no length</source>
        <translation>« %1 » n’a pas de durée</translation>
    </message>
    <message>
        <source>“%1” holds the calendars themselves.</source>
        <translation>« %1 » contient les calendriers eux-mêmes.</translation>
    </message>
    <message>
        <source>“%1” is also in “%2”, in a newer version, which counts</source>
        <translation>« %1 » figure aussi dans « %2 », dans une version plus récente, qui compte</translation>
    </message>
    <message>
        <source>“%1” is among the calendars already.</source>
        <translation>« %1 » figure déjà parmi les calendriers.</translation>
    </message>
    <message>
        <source>“%1” is in the calendars “%2” and “%3”</source>
        <translation>« %1 » est dans les calendriers « %2 » et « %3 »</translation>
    </message>
    <message>
        <source>“%1” is neither a folder nor an .ics file.</source>
        <translation>« %1 » n’est ni un dossier ni un fichier .ics.</translation>
    </message>
    <message>
        <source>“%1” is not a rate; the old one was kept.</source>
        <translation>« %1 » n’est pas un taux ; l’ancien a été conservé.</translation>
    </message>
    <message>
        <source>“%1” is there twice at once, for %2</source>
        <translation>« %1 » est là deux fois à la fois, pendant %2</translation>
    </message>
    <message>
        <source>“%1” lasts %2, longer than a working day of %3</source>
        <translation>« %1 » dure %2, plus qu’une journée de travail de %3</translation>
    </message>
    <message>
        <source>“%1” lasts all day and counts %2</source>
        <translation>« %1 » dure toute la journée et compte %2</translation>
    </message>
</context>
</TS>
