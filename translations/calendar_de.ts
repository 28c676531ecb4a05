<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AllDayStrip</name>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="187"/>
        <location filename="../src/ui/TimelineView.cpp" line="123"/>
        <source>all-day</source>
        <translation>ganztägig</translation>
    </message>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="235"/>
        <source>+%1 more</source>
        <translation>+%1 weitere</translation>
    </message>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="237"/>
        <source>+%1</source>
        <translation>+%1</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <location filename="../src/app/Application.cpp" line="97"/>
        <source>Database Error</source>
        <translation>Datenbankfehler</translation>
    </message>
    <message>
        <location filename="../src/app/Application.cpp" line="98"/>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>Die Datenbank konnte nicht initialisiert werden.

Datenordner: %1

Bitte prüfen Sie die Dateiberechtigungen und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>CalendarChoice</name>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="27"/>
        <source>There is no calendar %1.</source>
        <translation>Es gibt keinen Kalender %1.</translation>
    </message>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="29"/>
        <source>The calendar %1 is read-only.</source>
        <translation>Der Kalender %1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="48"/>
        <source>There is no calendar to add events to.</source>
        <translation>Es gibt keinen Kalender, in den Termine eingetragen werden können.</translation>
    </message>
</context>
<context>
    <name>CalendarList</name>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="19"/>
        <source>Calendars</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="118"/>
        <source>%1: shown (click to hide)</source>
        <translation>%1: eingeblendet (zum Ausblenden klicken)</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="119"/>
        <source>%1: hidden (click to show)</source>
        <translation>%1: ausgeblendet (zum Einblenden klicken)</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="121"/>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
</context>
<context>
    <name>ColorSwatchPicker</name>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="35"/>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="103"/>
        <source>Event colour</source>
        <translation>Terminfarbe</translation>
    </message>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="223"/>
        <source>Calendar colour</source>
        <translation>Kalenderfarbe</translation>
    </message>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="225"/>
        <source>Other colour…</source>
        <translation>Andere Farbe…</translation>
    </message>
</context>
<context>
    <name>EventEditor</name>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="98"/>
        <source>The event no longer exists.</source>
        <translation>Der Termin existiert nicht mehr.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="113"/>
        <source>The series of this event no longer exists.</source>
        <translation>Die Serie dieses Termins existiert nicht mehr.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="121"/>
        <location filename="../src/ui/EventEditor.cpp" line="144"/>
        <location filename="../src/ui/EventEditor.cpp" line="271"/>
        <location filename="../src/ui/EventEditor.cpp" line="319"/>
        <location filename="../src/ui/EventEditor.cpp" line="336"/>
        <source>The event &quot;%1&quot; could not be saved.</source>
        <translation>Der Termin &quot;%1&quot; konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="155"/>
        <source>Moved &quot;%1&quot;</source>
        <translation>&quot;%1&quot; verschoben</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="162"/>
        <source>Resized &quot;%1&quot;</source>
        <translation>Dauer von &quot;%1&quot; geändert</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="372"/>
        <source>Deleted &quot;%1&quot;</source>
        <translation>&quot;%1&quot; gelöscht</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="377"/>
        <source>The event &quot;%1&quot; could not be deleted.</source>
        <translation>Der Termin &quot;%1&quot; konnte nicht gelöscht werden.</translation>
    </message>
</context>
<context>
    <name>EventFormDialog</name>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="181"/>
        <source>Add title</source>
        <translation>Titel hinzufügen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="188"/>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="225"/>
        <source>A repeat rule: FREQ=DAILY, WEEKLY, MONTHLY or YEARLY, with INTERVAL, COUNT, UNTIL and BYDAY</source>
        <translation>Eine Wiederholungsregel: FREQ=DAILY, WEEKLY, MONTHLY oder YEARLY, mit INTERVAL, COUNT, UNTIL und BYDAY</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="260"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="790"/>
        <source>Add location</source>
        <translation>Ort hinzufügen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="267"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="791"/>
        <source>Add description</source>
        <translation>Beschreibung hinzufügen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="284"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="411"/>
        <source>Does not repeat</source>
        <translation>Keine Wiederholung</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="413"/>
        <source>Custom…</source>
        <translation>Benutzerdefiniert…</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="415"/>
        <source>Every weekday (Monday to Friday)</source>
        <translation>Jeden Werktag (Montag bis Freitag)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="475"/>
        <source>There is no calendar to add events to.</source>
        <translation>Es gibt keinen Kalender, in den Termine eingetragen werden können.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="481"/>
        <source>This calendar repeats by FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY or FREQ=YEARLY; start the rule with one of them.</source>
        <translation>Dieser Kalender wiederholt nach FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY oder FREQ=YEARLY; beginnen Sie die Regel mit einem davon.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="512"/>
        <source>(No title)</source>
        <translation>(Kein Titel)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="616"/>
        <source>Save repeating event</source>
        <translation>Serientermin speichern</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="619"/>
        <source>A new repeat applies to this and following events, or to all events.</source>
        <translation>Eine neue Wiederholung gilt für diesen und alle folgenden Termine oder für alle Termine.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="636"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="647"/>
        <source>New Event</source>
        <translation>Neuer Termin</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="747"/>
        <source>Event Details</source>
        <translation>Termindetails</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="747"/>
        <source>Edit Event</source>
        <translation>Termin bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="763"/>
        <source>A repeating event stays in its calendar.</source>
        <translation>Ein Serientermin bleibt in seinem Kalender.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="786"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="786"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="801"/>
        <source>This event is in &quot;%1&quot;, which is read-only.</source>
        <translation>Dieser Termin befindet sich in &quot;%1&quot; (schreibgeschützt).</translation>
    </message>
</context>
<context>
    <name>EventImport</name>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="52"/>
        <source>Could not read the calendar %1: %2</source>
        <translation>Der Kalender %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="54"/>
        <source>There is no calendar %1.</source>
        <translation>Es gibt keinen Kalender %1.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="56"/>
        <source>The calendar %1 is read-only.</source>
        <translation>Der Kalender %1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="144"/>
        <source>The file %1 is empty.</source>
        <translation>Die Datei %1 ist leer.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="148"/>
        <source>The file %1 is not an iCalendar file.</source>
        <translation>Die Datei %1 ist keine iCalendar-Datei.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="153"/>
        <source>The file %1 holds no events.</source>
        <translation>Die Datei %1 enthält keine Termine.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="180"/>
        <source>Could not start the import: %1</source>
        <translation>Der Import konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="212"/>
        <source>Could not store the event &quot;%1&quot; from %2; nothing was imported.</source>
        <translation>Der Termin &quot;%1&quot; aus %2 konnte nicht gespeichert werden; es wurde nichts importiert.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="220"/>
        <source>Could not save the import: %1</source>
        <translation>Der Import konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="231"/>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="239"/>
        <source>Imported 1 event into %1.</source>
        <translation>1 Termin in %1 importiert.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="240"/>
        <source>Imported %1 events into %2.</source>
        <translation>%1 Termine in %2 importiert.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="244"/>
        <source>Updated 1 existing event in %1.</source>
        <translation>1 vorhandener Termin in %1 aktualisiert.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="245"/>
        <source>Updated %1 existing events in %2.</source>
        <translation>%1 vorhandene Termine in %2 aktualisiert.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="247"/>
        <source>Imported %1 and updated %2 in %3.</source>
        <translation>In %3: %1 importiert, %2 aktualisiert.</translation>
    </message>
</context>
<context>
    <name>EventPopover</name>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="72"/>
        <source>Going</source>
        <translation>Nimmt teil</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="74"/>
        <source>Not going</source>
        <translation>Nimmt nicht teil</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="76"/>
        <source>Maybe</source>
        <translation>Vielleicht</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="78"/>
        <source>Delegated</source>
        <translation>Delegiert</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="79"/>
        <source>Awaiting reply</source>
        <translation>Antwort ausstehend</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="204"/>
        <location filename="../src/ui/EventPopover.cpp" line="432"/>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="206"/>
        <source>Delete this event (Delete)</source>
        <translation>Diesen Termin löschen (Delete)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="207"/>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="209"/>
        <source>Open the event to change it (Enter)</source>
        <translation>Termin zum Ändern öffnen (Enter)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="315"/>
        <source>%1 (read-only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="325"/>
        <source>Join online meeting</source>
        <translation>An Onlinebesprechung teilnehmen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="342"/>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="425"/>
        <source>Delete repeating event</source>
        <translation>Serientermin löschen</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="428"/>
        <source>Delete event?</source>
        <translation>Termin löschen?</translation>
    </message>
</context>
<context>
    <name>EventTimeEditor</name>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="48"/>
        <source>ddd, MMM d, yyyy</source>
        <translation>ddd, d. MMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="75"/>
        <source>All day</source>
        <translation>Ganztägig</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="87"/>
        <source>Time zone of the event: its times are shown and edited in it</source>
        <translation>Zeitzone des Termins: Seine Zeiten werden darin angezeigt und bearbeitet</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="254"/>
        <location filename="../src/ui/EventTimeEditor.cpp" line="258"/>
        <source>The event ends before it starts.</source>
        <translation>Der Termin endet, bevor er beginnt.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="256"/>
        <source>&quot;%1&quot; is not a time zone this computer knows.</source>
        <translation>&quot;%1&quot; ist keine Zeitzone, die dieser Computer kennt.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="388"/>
        <source>%1 in your time zone</source>
        <translation>%1 in Ihrer Zeitzone</translation>
    </message>
</context>
<context>
    <name>EventWording</name>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="107"/>
        <source>%1 · All day</source>
        <translation>%1 · Ganztägig</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="108"/>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="113"/>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="119"/>
        <source>%1 · %2 – %3</source>
        <translation>%1 · %2 – %3</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="123"/>
        <source>%1, %2 – %3, %4</source>
        <translation>%1, %2 – %3, %4</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="148"/>
        <source>Every %1 days, on %2</source>
        <translation>Alle %1 Tage, am %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="70"/>
        <location filename="../src/ui/EventWording.cpp" line="153"/>
        <source>Every day</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="28"/>
        <source>%1, %2 %3</source>
        <translation>%1, %3. %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="29"/>
        <source>%1, %2 %3, %4</source>
        <translation>%1, %3. %2 %4</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="34"/>
        <source>%1 %2</source>
        <translation>%2. %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="46"/>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="46"/>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="70"/>
        <source>Every %1 days</source>
        <translation>Alle %1 Tage</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="72"/>
        <source>Every weekday</source>
        <translation>Jeden Werktag</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="74"/>
        <source>Every week on %1</source>
        <translation>Jede Woche am %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="75"/>
        <source>Every %1 weeks on %2</source>
        <translation>Alle %1 Wochen am %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="153"/>
        <source>Every %1 weeks, every day</source>
        <translation>Alle %1 Wochen, jeden Tag</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="158"/>
        <source>Every month on day %1</source>
        <translation>Jeden Monat am %1.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="159"/>
        <source>Every %1 months on day %2</source>
        <translation>Alle %1 Monate am %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="162"/>
        <source>Every year on %1</source>
        <translation>Jedes Jahr am %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="163"/>
        <source>Every %1 years on %2</source>
        <translation>Alle %1 Jahre am %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="169"/>
        <source>%1, once</source>
        <translation>%1, einmal</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="171"/>
        <source>%1, %2 times</source>
        <translation>%1, %2-mal</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="173"/>
        <source>%1, until %2</source>
        <translation>%1, bis %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="174"/>
        <source>MMMM d, yyyy</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="180"/>
        <source>Delete &quot;%1&quot;? You can undo with %2.</source>
        <translation>&quot;%1&quot; löschen? Sie können das mit %2 rückgängig machen.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="186"/>
        <source>(No title)</source>
        <translation>(Kein Titel)</translation>
    </message>
</context>
<context>
    <name>IcsImportFlow</name>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="53"/>
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation>1 Termin aus &quot;%1&quot; importieren in:</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="54"/>
        <source>Import %1 events from &quot;%2&quot; into:</source>
        <translation>%1 Termine aus &quot;%2&quot; importieren in:</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="66"/>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="82"/>
        <source>Import Calendar File</source>
        <translation>Kalenderdatei importieren</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="84"/>
        <source>iCalendar files (*.ics *.ICS);;All files (*)</source>
        <translation>iCalendar-Dateien (*.ics *.ICS);;Alle Dateien (*)</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="92"/>
        <source>Couldn&apos;t open file</source>
        <translation>Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="93"/>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation>&quot;%1&quot; konnte nicht zum Lesen geöffnet werden.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="101"/>
        <source>Nothing to import</source>
        <translation>Nichts zu importieren</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="102"/>
        <source>No events found in &quot;%1&quot;.</source>
        <translation>In &quot;%1&quot; wurden keine Termine gefunden.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="111"/>
        <source>No calendars configured</source>
        <translation>Keine Kalender eingerichtet</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="112"/>
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation>Fügen Sie zuerst einen beschreibbaren Kalender hinzu und importieren Sie &quot;%1&quot; dann erneut.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="124"/>
        <source>Importing events…</source>
        <translation>Termine werden importiert…</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="51"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="125"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="134"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="137"/>
        <source>Import events</source>
        <translation>Termine importieren</translation>
    </message>
</context>
<context>
    <name>KettUpdate::UpdateDialog</name>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="17"/>
        <source>Update available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="19"/>
        <source>%1 %2 is available. You have %3.</source>
        <translation>%1 %2 ist verfügbar. Sie haben Version %3.</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="28"/>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="29"/>
        <source>Later</source>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>MainToolbar</name>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="24"/>
        <source>Show or hide the sidebar</source>
        <translation>Seitenleiste ein- oder ausblenden</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="26"/>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="28"/>
        <source>Go to today (T)</source>
        <translation>Zu heute wechseln (T)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="29"/>
        <source>Previous (Left)</source>
        <translation>Vorheriger Zeitraum (Left)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="30"/>
        <source>Next (Right)</source>
        <translation>Nächster Zeitraum (Right)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="33"/>
        <source>Back (Alt+Left)</source>
        <translation>Zurück (Alt+Left)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="34"/>
        <source>Forward (Alt+Right)</source>
        <translation>Vorwärts (Alt+Right)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="47"/>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="47"/>
        <source>Day view (D)</source>
        <translation>Tagesansicht (D)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="48"/>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="48"/>
        <source>Week view (W)</source>
        <translation>Wochenansicht (W)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="49"/>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="49"/>
        <source>Month view (M)</source>
        <translation>Monatsansicht (M)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="53"/>
        <source> days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="54"/>
        <source>Number of days in the multi-day view</source>
        <translation>Anzahl der Tage in der Mehrtagesansicht</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="59"/>
        <source>Quick add: Lunch with Sam tomorrow at 12:30</source>
        <translation>Schnelleingabe: Lunch with Sam tomorrow at 12:30</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="57"/>
        <location filename="../src/ui/MainWindow.cpp" line="407"/>
        <source>Kettlebrook Calendar</source>
        <translation>Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="105"/>
        <source>%1 hidden by filter rules</source>
        <translation>Durch Filterregeln ausgeblendet: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="108"/>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="150"/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="151"/>
        <source>&amp;New Event…</source>
        <translation>&amp;Neuer Termin…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="153"/>
        <source>&amp;Import Calendar File…</source>
        <translation>Kalenderdatei &amp;importieren…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="159"/>
        <source>&amp;Manage Calendars…</source>
        <translation>Kalender &amp;verwalten…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="161"/>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="164"/>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="165"/>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="170"/>
        <source>&amp;Quick Add</source>
        <translation>&amp;Schnelleingabe</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="176"/>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="183"/>
        <source>&amp;Today</source>
        <translation>&amp;Heute</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="184"/>
        <source>&amp;Previous</source>
        <translation>Vo&amp;rheriger Zeitraum</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="185"/>
        <source>&amp;Next</source>
        <translation>&amp;Nächster Zeitraum</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="187"/>
        <source>&amp;Day</source>
        <translation>&amp;Tag</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="188"/>
        <source>&amp;Week</source>
        <translation>&amp;Woche</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="189"/>
        <source>&amp;Month</source>
        <translation>&amp;Monat</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="191"/>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="192"/>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="193"/>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="194"/>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="197"/>
        <source>Show Week &amp;Numbers</source>
        <translation>K&amp;alenderwochen anzeigen</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="202"/>
        <source>24-Hour Clock</source>
        <translation>24-Stunden-Format</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="209"/>
        <source>T&amp;heme</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="221"/>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="222"/>
        <source>Add &amp;Sample Data</source>
        <translation>&amp;Beispieldaten hinzufügen</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="223"/>
        <source>&amp;Clear Sample Data…</source>
        <translation>Beispieldaten &amp;entfernen…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="225"/>
        <source>Send &amp;Test Notification</source>
        <translation>&amp;Testbenachrichtigung senden</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="229"/>
        <source>Notifications need a system tray, and this desktop has none.</source>
        <translation>Benachrichtigungen benötigen einen Infobereich, und diese Arbeitsumgebung hat keinen.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="232"/>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="233"/>
        <source>&amp;About Kettlebrook Calendar</source>
        <translation>Ü&amp;ber Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="234"/>
        <source>About Kettlebrook Calendar</source>
        <translation>Über Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="235"/>
        <source>&lt;b&gt;Kettlebrook Calendar&lt;/b&gt; %1&lt;br&gt;Your calendars and tasks, on your desktop.</source>
        <translation>&lt;b&gt;Kettlebrook Calendar&lt;/b&gt; %1&lt;br&gt;Ihre Kalender und Aufgaben auf Ihrem Desktop.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="281"/>
        <source>Kettlebrook Calendar is still running</source>
        <translation>Kettlebrook Calendar läuft weiter</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="282"/>
        <source>Reminders keep coming. Click the tray icon to open the calendar.</source>
        <translation>Erinnerungen kommen weiterhin. Klicken Sie auf das Symbol im Infobereich, um den Kalender zu öffnen.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="388"/>
        <source>MMMM yyyy</source>
        <extracomment>Date format (QDate::toString) of the month view&apos;s title</extracomment>
        <translation>MMMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="391"/>
        <source>dddd, MMMM d, yyyy</source>
        <extracomment>Date format (QDate::toString) of the day view&apos;s title</extracomment>
        <translation>dddd, d. MMMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="397"/>
        <location filename="../src/ui/MainWindow.cpp" line="398"/>
        <source>MMM d, yyyy</source>
        <extracomment>Date format (QDate::toString) of both ends of a range across two years</extracomment>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="400"/>
        <source>MMM d</source>
        <comment>first day of a range across two months</comment>
        <translation>d. MMM</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="401"/>
        <source>MMM d, yyyy</source>
        <comment>last day of a range across two months</comment>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="403"/>
        <source>MMMM d</source>
        <comment>first day of a range within one month</comment>
        <translation>d.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="404"/>
        <source>d, yyyy</source>
        <comment>last day of a range within one month</comment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="448"/>
        <source>Quick-add ignored: no calendars configured.</source>
        <translation>Schnelleingabe ignoriert: keine Kalender eingerichtet.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="453"/>
        <source>Quick-add couldn&apos;t parse: &quot;%1&quot;</source>
        <translation>Schnelleingabe nicht verstanden: &quot;%1&quot;</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="457"/>
        <source>Quick-add couldn&apos;t save: &quot;%1&quot;</source>
        <translation>Schnelleingabe konnte nicht gespeichert werden: &quot;%1&quot;</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="460"/>
        <source>Added: %1</source>
        <translation>Hinzugefügt: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="517"/>
        <source>Nothing to sync: this calendar has no remote accounts yet.</source>
        <translation>Nichts zu synchronisieren: Dieser Kalender hat noch keine Online-Konten.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="523"/>
        <source>Sample data added.</source>
        <translation>Beispieldaten hinzugefügt.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="528"/>
        <source>Clear sample data?</source>
        <translation>Beispieldaten entfernen?</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="529"/>
        <source>This removes the sample calendars with all their events and tasks.</source>
        <translation>Dadurch werden die Beispielkalender mit allen Terminen und Aufgaben entfernt.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="538"/>
        <source>Removed %1 sample items.</source>
        <translation>%1 Beispieleinträge entfernt.</translation>
    </message>
</context>
<context>
    <name>ManageSourcesDialog</name>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="75"/>
        <source>Calendars</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="79"/>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="86"/>
        <source>New Calendar…</source>
        <translation>Neuer Kalender…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="87"/>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="88"/>
        <source>Make Default</source>
        <translation>Als Standard festlegen</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="89"/>
        <source>Delete…</source>
        <translation>Löschen…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="122"/>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="149"/>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="171"/>
        <source>New Calendar</source>
        <translation>Neuer Kalender</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="155"/>
        <source>On This Device</source>
        <translation>Auf diesem Gerät</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="171"/>
        <source>The calendar could not be saved.</source>
        <translation>Der Kalender konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="180"/>
        <source>Edit Calendar</source>
        <translation>Kalender bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="199"/>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="214"/>
        <source>Delete calendar?</source>
        <translation>Kalender löschen?</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="200"/>
        <source>Delete &quot;%1&quot; with all its events and tasks? This cannot be undone.</source>
        <translation>&quot;%1&quot; mit allen Terminen und Aufgaben löschen? Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="214"/>
        <source>The calendar could not be deleted.</source>
        <translation>Der Kalender konnte nicht gelöscht werden.</translation>
    </message>
</context>
<context>
    <name>MiniMonth</name>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="48"/>
        <source>Month calendar</source>
        <translation>Monatskalender</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="59"/>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="61"/>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="278"/>
        <source>MMMM yyyy</source>
        <extracomment>Date format (QDate::toString) of the title of the small month calendar</extracomment>
        <translation>MMMM yyyy</translation>
    </message>
</context>
<context>
    <name>MonthView</name>
    <message>
        <location filename="../src/ui/MonthPainter.cpp" line="339"/>
        <source>All day</source>
        <translation>Ganztägig</translation>
    </message>
    <message>
        <location filename="../src/ui/MonthView.cpp" line="187"/>
        <source>MMM d</source>
        <extracomment>Date format (QDate::toString) of the first day of a month in its cell</extracomment>
        <translation>d. MMM</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/MonthView.cpp" line="232"/>
        <source>+%n more</source>
        <translation>
            <numerusform>+%n weiterer</numerusform>
            <numerusform>+%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/MonthView.cpp" line="322"/>
        <source>Move repeating event</source>
        <translation>Serientermin verschieben</translation>
    </message>
</context>
<context>
    <name>NLParser</name>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="391"/>
        <source>the reference time is not valid</source>
        <translation>die Bezugszeit ist ungültig</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="393"/>
        <source>&quot;%1&quot; is not a valid date</source>
        <translation>&quot;%1&quot; ist kein gültiges Datum</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="395"/>
        <source>&quot;%1&quot; is not a valid time</source>
        <translation>&quot;%1&quot; ist keine gültige Uhrzeit</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="397"/>
        <source>&quot;%1&quot; is too long</source>
        <translation>&quot;%1&quot; ist zu lang</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="400"/>
        <source>&quot;%1&quot; falls outside the years 1 to 9999</source>
        <translation>&quot;%1&quot; liegt außerhalb der Jahre 1 bis 9999</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="401"/>
        <source>the event would fall outside the years 1 to 9999</source>
        <translation>der Termin läge außerhalb der Jahre 1 bis 9999</translation>
    </message>
</context>
<context>
    <name>NotificationService</name>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="66"/>
        <source>Starting now (%1)</source>
        <translation>Beginnt jetzt (%1)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="68"/>
        <source>In %1 minutes (%2)</source>
        <translation>In %1 Min. (%2)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="70"/>
        <source>In %1h (%2)</source>
        <translation>In %1 Std. (%2)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="72"/>
        <source>Tomorrow at %1</source>
        <translation>Morgen um %1</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="78"/>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="114"/>
        <source>Test reminder</source>
        <translation>Testerinnerung</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="115"/>
        <source>If you can see this, your desktop notifications are wired up correctly. Real reminders look just like this one.</source>
        <translation>Wenn Sie dies sehen, sind Ihre Desktop-Benachrichtigungen richtig eingerichtet. Echte Erinnerungen sehen genauso aus.</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="125"/>
        <source>At time of event</source>
        <translation>Zum Terminbeginn</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="127"/>
        <source>%1 min before</source>
        <translation>%1 Min. vorher</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="129"/>
        <source>%1 hour(s) before</source>
        <translation>%1 Std. vorher</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="130"/>
        <source>%1 day(s) before</source>
        <translation>%1 Tag(e) vorher</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="50"/>
        <source>Calendar colour</source>
        <translation>Kalenderfarbe</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="56"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="57"/>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>RecurrenceScopeDialog</name>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="43"/>
        <source>This is one event of a repeating series. Apply to:</source>
        <translation>Dies ist ein Termin einer Serie. Anwenden auf:</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="57"/>
        <source>Only this event</source>
        <translation>Nur diesen Termin</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="58"/>
        <source>This and following events</source>
        <translation>Diesen und alle folgenden Termine</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="59"/>
        <source>All events</source>
        <translation>Alle Termine</translation>
    </message>
</context>
<context>
    <name>ReminderListEditor</name>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="32"/>
        <source>Add reminder</source>
        <translation>Erinnerung hinzufügen</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="113"/>
        <source>No reminders</source>
        <translation>Keine Erinnerungen</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="132"/>
        <source>Remove this reminder</source>
        <translation>Diese Erinnerung entfernen</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="133"/>
        <source>Remove reminder %1</source>
        <translation>Erinnerung %1 entfernen</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="110"/>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="113"/>
        <source>Calendars</source>
        <translation>Kalender</translation>
    </message>
</context>
<context>
    <name>TimelineHeader</name>
    <message>
        <location filename="../src/ui/TimelineHeader.cpp" line="94"/>
        <source>W%1</source>
        <translation>KW %1</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <location filename="../src/ui/TimelineView.cpp" line="221"/>
        <source>Resize repeating event</source>
        <translation>Dauer des Serientermins ändern</translation>
    </message>
    <message>
        <location filename="../src/ui/TimelineView.cpp" line="221"/>
        <source>Move repeating event</source>
        <translation>Serientermin verschieben</translation>
    </message>
    <message>
        <location filename="../src/ui/TimelineMath.cpp" line="129"/>
        <source>%1 AM</source>
        <translation>%1 AM</translation>
    </message>
    <message>
        <location filename="../src/ui/TimelineMath.cpp" line="129"/>
        <source>%1 PM</source>
        <translation>%1 PM</translation>
    </message>
</context>
<context>
    <name>TrayManager</name>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="25"/>
        <source>Kettlebrook Calendar</source>
        <translation>Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="28"/>
        <source>Open Calendar</source>
        <translation>Kalender öffnen</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="35"/>
        <source>New Event…</source>
        <translation>Neuer Termin…</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="36"/>
        <source>Sync Now</source>
        <translation>Jetzt synchronisieren</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="38"/>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>ViewList</name>
    <message>
        <location filename="../src/ui/ViewList.cpp" line="16"/>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
</context>
<context>
    <name>kbcal</name>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="53"/>
        <source>cannot create the data folder %1</source>
        <translation>der Datenordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="61"/>
        <source>cannot open the calendar database in %1: %2</source>
        <translation>die Kalenderdatenbank in %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="63"/>
        <source>cannot prepare the calendar database in %1: %2</source>
        <translation>die Kalenderdatenbank in %1 kann nicht vorbereitet werden: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="14"/>
        <source>Create or migrate the database.</source>
        <translation>Datenbank anlegen oder migrieren.</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="15"/>
        <source>Creates the calendar database in the data folder, or brings an existing one up to date.</source>
        <translation>Legt die Kalenderdatenbank im Datenordner an oder bringt eine vorhandene auf den neuesten Stand.</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="28"/>
        <source>Database ready: %1 (schema version %2)</source>
        <translation>Datenbank bereit: %1 (Schemaversion %2)</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="23"/>
        <source>enabled</source>
        <translation>aktiviert</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="23"/>
        <source>disabled</source>
        <translation>deaktiviert</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="25"/>
        <source>last sync %1</source>
        <translation>zuletzt synchronisiert %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="27"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="35"/>
        <source>sync error: %1</source>
        <translation>Synchronisierungsfehler: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="38"/>
        <source>List the accounts.</source>
        <translation>Konten auflisten.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="39"/>
        <source>Lists the accounts (calendar sources) in the order the desktop program shows them. Removed accounts whose removal has not been synced yet are not listed. With --json, prints the account records.</source>
        <translation>Listet die Konten (Kalenderquellen) in der Reihenfolge auf, in der das Desktop-Programm sie zeigt. Entfernte Konten, deren Entfernung noch nicht synchronisiert wurde, werden nicht aufgeführt. Mit --json werden die Kontodatensätze ausgegeben.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="52"/>
        <source>No accounts.</source>
        <translation>Keine Konten.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>TYPE</source>
        <translation>TYP</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>SERVER</source>
        <translation>SERVER</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>USER</source>
        <translation>BENUTZER</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="56"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>STATE</source>
        <translation>STATUS</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="27"/>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="27"/>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="43"/>
        <source>Title:    %1</source>
        <translation>Titel:       %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="44"/>
        <source>Start:    %1</source>
        <translation>Beginn:      %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="45"/>
        <source>End:      %1</source>
        <translation>Ende:        %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="46"/>
        <source>All day:  %1</source>
        <translation>Ganztägig:   %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="47"/>
        <source>Has time: %1</source>
        <translation>Mit Uhrzeit: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="57"/>
        <source>Add an event from one line of text (quick-add).</source>
        <translation>Einen Termin aus einer Textzeile hinzufügen (Schnelleingabe).</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="58"/>
        <source>Joins the words into one line and reads it as the desktop quick-add box does, for example:
  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min
T is an ISO 8601 date-time (2024-01-05T09:00:00Z, 2024-01-05T10:00:00+01:00, or local time without an offset) or a date (2024-01-05, local midnight). With --dry-run nothing is stored and the reading is printed. Put -- before the text when one of its words begins with a dash.</source>
        <translation>Fügt die Wörter zu einer Zeile zusammen und liest sie wie das Schnelleingabefeld des Desktop-Programms, zum Beispiel:
  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min
T ist ein Datum mit Uhrzeit nach ISO 8601 (2024-01-05T09:00:00Z, 2024-01-05T10:00:00+01:00 oder Ortszeit ohne Versatz) oder ein Datum (2024-01-05, Mitternacht Ortszeit). Mit --dry-run wird nichts gespeichert, sondern die Lesart ausgegeben. Setzen Sie -- vor den Text, wenn eines seiner Wörter mit einem Bindestrich beginnt.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="65"/>
        <source>Add the event to the calendar with this id.</source>
        <translation>Den Termin zum Kalender mit dieser ID hinzufügen.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="67"/>
        <source>Read the text as if it were this time (default: now).</source>
        <translation>Den Text so lesen, als wäre es diese Zeit (Standard: jetzt).</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="69"/>
        <source>Print how the text is read; store nothing.</source>
        <translation>Ausgeben, wie der Text gelesen wird; nichts speichern.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="76"/>
        <source>the text of the event is empty</source>
        <translation>der Text des Termins ist leer</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="82"/>
        <source>&apos;%1&apos; is not a date or date-time for --now</source>
        <translation>&apos;%1&apos; ist kein Datum und keine Datum-Uhrzeit für --now</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="104"/>
        <source>the event could not be stored in %1</source>
        <translation>der Termin konnte nicht in %1 gespeichert werden</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="113"/>
        <source>Added &quot;%1&quot; on %2 to %3</source>
        <translation>&quot;%1&quot; am %2 zu %3 hinzugefügt</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="57"/>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="26"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="103"/>
        <source>all day</source>
        <translation>ganztägig</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="84"/>
        <source>No events from %1 to %2.</source>
        <translation>Keine Termine vom %1 bis %2.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="100"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="94"/>
        <source>(no title)</source>
        <translation>(kein Titel)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="106"/>
        <source>(dimmed)</source>
        <translation>(abgeblendet)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="108"/>
        <source>(reminders off)</source>
        <translation>(Erinnerungen aus)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="114"/>
        <source>1 event hidden by filter rules.</source>
        <translation>1 Termin durch Filterregeln ausgeblendet.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="115"/>
        <source>%1 events hidden by filter rules.</source>
        <translation>%1 Termine durch Filterregeln ausgeblendet.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="141"/>
        <source>Show the events of a span of days.</source>
        <translation>Die Termine eines Zeitraums anzeigen.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="142"/>
        <source>Shows the occurrences of the stored events from --from (default: today at 00:00 local time) up to, not including, --to, or for --days days (default: 7), exactly as the calendar views show them: recurring events expanded, and the enabled filter rules applied (hidden events are counted, dimmed ones marked). A date without a time is local midnight. Without --calendar, the visible calendars are shown.</source>
        <translation>Zeigt die Vorkommen der gespeicherten Termine ab --from (Standard: heute um 00:00 Ortszeit) bis ausschließlich --to oder für --days Tage (Standard: 7), genau wie die Kalenderansichten sie zeigen: Serientermine aufgelöst und die aktiven Filterregeln angewendet (ausgeblendete Termine werden gezählt, abgeblendete markiert). Ein Datum ohne Uhrzeit bedeutet Mitternacht Ortszeit. Ohne --calendar werden die sichtbaren Kalender gezeigt.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="148"/>
        <source>Start of the span (date or date-time).</source>
        <translation>Beginn des Zeitraums (Datum oder Datum mit Uhrzeit).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="150"/>
        <source>End of the span, not included (date or date-time).</source>
        <translation>Ende des Zeitraums, ausschließlich (Datum oder Datum mit Uhrzeit).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="152"/>
        <source>Length of the span in days (1 to 36600).</source>
        <translation>Länge des Zeitraums in Tagen (1 bis 36600).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="154"/>
        <source>Show this calendar (repeatable).</source>
        <translation>Diesen Kalender zeigen (wiederholbar).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="164"/>
        <source>invalid date for --from: &apos;%1&apos;</source>
        <translation>ungültiges Datum für --from: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="167"/>
        <source>--to and --days cannot be used together</source>
        <translation>--to und --days können nicht zusammen verwendet werden</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="173"/>
        <source>invalid date for --to: &apos;%1&apos;</source>
        <translation>ungültiges Datum für --to: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="175"/>
        <source>--to must be later than the start of the span</source>
        <translation>--to muss nach dem Beginn des Zeitraums liegen</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="181"/>
        <source>invalid number of days: &apos;%1&apos;</source>
        <translation>ungültige Anzahl von Tagen: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="200"/>
        <source>no calendar with the id %1</source>
        <translation>kein Kalender mit der ID %1</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="25"/>
        <source>default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="27"/>
        <source>hidden</source>
        <translation>ausgeblendet</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="29"/>
        <source>read-only</source>
        <translation>schreibgeschützt</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="31"/>
        <source>shared</source>
        <translation>geteilt</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="33"/>
        <source>shared with me</source>
        <translation>mit mir geteilt</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="46"/>
        <source>List the calendars.</source>
        <translation>Kalender auflisten.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="47"/>
        <source>Lists every calendar in the order the desktop program shows them, with its account, colour and state. With --json, prints the calendar records.</source>
        <translation>Listet alle Kalender in der Reihenfolge auf, in der das Desktop-Programm sie zeigt, mit Konto, Farbe und Status. Mit --json werden die Kalenderdatensätze ausgegeben.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="59"/>
        <source>No calendars.</source>
        <translation>Keine Kalender.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>ACCOUNT</source>
        <translation>KONTO</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>COLOUR</source>
        <translation>FARBE</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="24"/>
        <source>Print exactly one JSON document on standard output.</source>
        <translation>Genau ein JSON-Dokument auf der Standardausgabe ausgeben.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="29"/>
        <source>Report progress of long work on standard error.</source>
        <translation>Fortschritt langer Vorgänge auf der Standardfehlerausgabe melden.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="34"/>
        <source>Use the calendar data in DIR.</source>
        <translation>Die Kalenderdaten in DIR verwenden.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="40"/>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="92"/>
        <source>missing value for --data-dir</source>
        <translation>Wert für --data-dir fehlt</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="97"/>
        <source>unknown option &apos;%1&apos;</source>
        <translation>unbekannte Option &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="101"/>
        <source>missing command</source>
        <translation>Befehl fehlt</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="115"/>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unbekannter Befehl &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="140"/>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="155"/>
        <source>missing argument</source>
        <translation>Argument fehlt</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="158"/>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>unerwartetes Argument &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="168"/>
        <source>The command-line companion of Kettlebrook Calendar: the same calendar store, from a terminal.</source>
        <translation>Das Kommandozeilenwerkzeug zu Kettlebrook Calendar: derselbe Kalenderspeicher, im Terminal.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="170"/>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="174"/>
        <source>Global options:</source>
        <translation>Globale Optionen:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="176"/>
        <source>Use the calendar data in DIR (default: CALENDAR_DATA_DIR, else the desktop program&apos;s data folder).</source>
        <translation>Die Kalenderdaten in DIR verwenden (Standard: CALENDAR_DATA_DIR, sonst der Datenordner des Desktop-Programms).</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="179"/>
        <source>Show the program&apos;s log output on standard error.</source>
        <translation>Die Protokollausgabe des Programms auf der Standardfehlerausgabe zeigen.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="180"/>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="182"/>
        <source>Run &apos;kbcal COMMAND --help&apos; for the options of a command.</source>
        <translation>&apos;kbcal COMMAND --help&apos; zeigt die Optionen eines Befehls.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="191"/>
        <source>Run &apos;kbcal --help&apos; for the list of commands.</source>
        <translation>&apos;kbcal --help&apos; zeigt die Liste der Befehle.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="81"/>
        <source>Write the stored events as one iCalendar object.</source>
        <translation>Die gespeicherten Termine als ein iCalendar-Objekt ausgeben.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="82"/>
        <source>Writes the events of the named calendars (every calendar when none is named) to standard output as one iCalendar object, each event in the text it was stored with.</source>
        <translation>Gibt die Termine der genannten Kalender (aller Kalender, wenn keiner genannt ist) als ein iCalendar-Objekt auf der Standardausgabe aus, jeden Termin in dem Text, mit dem er gespeichert wurde.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="85"/>
        <source>Export the calendar ID (may be repeated).</source>
        <translation>Den Kalender ID exportieren (wiederholbar).</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="101"/>
        <location filename="../src/cli/TasksCommand.cpp" line="57"/>
        <source>there is no calendar %1</source>
        <translation>es gibt keinen Kalender %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="57"/>
        <source>Expand the events of iCalendar text over a span.</source>
        <translation>Die Termine eines iCalendar-Texts über einen Zeitraum auflösen.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="59"/>
        <source>Reads iCalendar text from FILE, or from standard input when FILE is &apos;-&apos; or absent, and lists the occurrences of its events in the span [--from, --to) exactly as the calendar views show them: single events first, then each series&apos; occurrences with changed occurrences in place. T is an ISO 8601 date-time or a date (local midnight). No database is used.</source>
        <translation>Liest iCalendar-Text aus FILE oder von der Standardeingabe, wenn FILE &apos;-&apos; ist oder fehlt, und listet die Vorkommen seiner Termine im Zeitraum [--from, --to) genau so auf, wie die Kalenderansichten sie zeigen: zuerst Einzeltermine, dann die Vorkommen jeder Serie mit geänderten Vorkommen an ihrer Stelle. T ist ein Datum mit Uhrzeit nach ISO 8601 oder ein Datum (Mitternacht Ortszeit). Es wird keine Datenbank verwendet.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="65"/>
        <source>Start of the span (included).</source>
        <translation>Beginn des Zeitraums (einschließlich).</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="66"/>
        <source>End of the span (excluded).</source>
        <translation>Ende des Zeitraums (ausschließlich).</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="72"/>
        <source>both --from and --to are required</source>
        <translation>sowohl --from als auch --to sind erforderlich</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="75"/>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="78"/>
        <source>invalid time &apos;%1&apos;</source>
        <translation>ungültige Zeit &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="80"/>
        <source>the span is empty: --to must be after --from</source>
        <translation>der Zeitraum ist leer: --to muss nach --from liegen</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="89"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="134"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="137"/>
        <source>cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="105"/>
        <source>repeats %1</source>
        <translation>wiederholt %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="107"/>
        <source>changed occurrence %1</source>
        <translation>geändertes Vorkommen %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="108"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="119"/>
        <source>uid %1</source>
        <translation>uid %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="116"/>
        <source>due %1</source>
        <translation>fällig %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="118"/>
        <source>categories %1</source>
        <translation>Kategorien %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="159"/>
        <source>No events or tasks found.</source>
        <translation>Keine Termine oder Aufgaben gefunden.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="171"/>
        <source>Read iCalendar text and print its events and tasks.</source>
        <translation>iCalendar-Text lesen und seine Termine und Aufgaben ausgeben.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="173"/>
        <source>Reads iCalendar text from FILE, or from standard input when FILE is - or absent, with the calendar&apos;s own reader, and prints the events and the tasks it finds, each in the order of the text. The calendar database is not touched.</source>
        <translation>Liest iCalendar-Text aus FILE oder von der Standardeingabe, wenn FILE - ist oder fehlt, mit dem kalendereigenen Leser und gibt die gefundenen Termine und Aufgaben jeweils in der Reihenfolge des Texts aus. Die Kalenderdatenbank bleibt unberührt.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="27"/>
        <source>Import the events of an iCalendar file.</source>
        <translation>Die Termine einer iCalendar-Datei importieren.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="29"/>
        <source>Imports the events of FILE into a calendar: --calendar, else the calendar chosen for new events (the preference ui/defaultCalendarId, else the default calendar, else the first one). An event already in the calendar (same UID and recurrence id) is updated, any other is added. Either the whole file is imported or, on an error, nothing.</source>
        <translation>Importiert die Termine aus FILE in einen Kalender: --calendar, sonst den für neue Termine gewählten Kalender (die Einstellung ui/defaultCalendarId, sonst den Standardkalender, sonst den ersten). Ein Termin, der schon im Kalender ist (gleiche UID und Wiederholungs-ID), wird aktualisiert, jeder andere hinzugefügt. Entweder wird die ganze Datei importiert oder bei einem Fehler nichts.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="34"/>
        <source>Import into the calendar ID.</source>
        <translation>In den Kalender ID importieren.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="51"/>
        <source>Importing: %1 of %2 events</source>
        <translation>Import: %1 von %2 Terminen</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="36"/>
        <source>Add a sample week of events and tasks.</source>
        <translation>Eine Beispielwoche mit Terminen und Aufgaben hinzufügen.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="38"/>
        <source>Adds the account &quot;Sample Data&quot; with four calendars, a week of events around today and a few tasks, to show what the calendar looks like. Whatever of it is already there is left as it is. &apos;kbcal sample-data remove&apos; takes it away again.</source>
        <translation>Fügt das Konto &quot;Sample Data&quot; mit vier Kalendern, einer Woche Termine rund um heute und einigen Aufgaben hinzu, um zu zeigen, wie der Kalender aussieht. Was davon schon vorhanden ist, bleibt unverändert. &apos;kbcal sample-data remove&apos; entfernt es wieder.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="64"/>
        <source>Sample data: %1 calendars, %2 events, %3 tasks.</source>
        <translation>Beispieldaten: %1 Kalender, %2 Termine, %3 Aufgaben.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="80"/>
        <source>Remove the sample events, tasks, calendars and account.</source>
        <translation>Die Beispieltermine, -aufgaben, -kalender und das Beispielkonto entfernen.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="81"/>
        <source>Deletes everything &apos;kbcal sample-data add&apos; created and prints how many rows went.</source>
        <translation>Löscht alles, was &apos;kbcal sample-data add&apos; angelegt hat, und gibt aus, wie viele Zeilen entfernt wurden.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="90"/>
        <source>Removed %1 sample rows.</source>
        <translation>%1 Beispielzeilen entfernt.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="34"/>
        <source>there is no task %1</source>
        <translation>es gibt keine Aufgabe %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="36"/>
        <source>could not change the task %1</source>
        <translation>die Aufgabe %1 konnte nicht geändert werden</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="44"/>
        <source>Reopened: %1</source>
        <translation>Wieder geöffnet: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="46"/>
        <source>Completed: %1</source>
        <translation>Erledigt: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="48"/>
        <source>Done; next due %1: %2</source>
        <translation>Erledigt; nächste Fälligkeit %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="50"/>
        <source>Done; next start %1: %2</source>
        <translation>Erledigt; nächster Beginn %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="78"/>
        <source>Complete a task.</source>
        <translation>Eine Aufgabe erledigen.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="79"/>
        <source>Marks the task ID as completed. A repeating task is not closed: it moves on to its next date and stays open. Prints the task after the change.</source>
        <translation>Markiert die Aufgabe ID als erledigt. Eine wiederkehrende Aufgabe wird nicht abgeschlossen: Sie rückt auf ihr nächstes Datum vor und bleibt offen. Gibt die Aufgabe nach der Änderung aus.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="86"/>
        <source>Reopen a completed task.</source>
        <translation>Eine erledigte Aufgabe wieder öffnen.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="87"/>
        <source>Marks the task ID as not completed. Prints the task after the change.</source>
        <translation>Markiert die Aufgabe ID als nicht erledigt. Gibt die Aufgabe nach der Änderung aus.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="40"/>
        <source>List tasks.</source>
        <translation>Aufgaben auflisten.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="42"/>
        <source>Lists the tasks of the calendar ID, or of every calendar, by due date; tasks without a due date come last in each calendar. Deleted tasks are not listed.</source>
        <translation>Listet die Aufgaben des Kalenders ID oder aller Kalender nach Fälligkeit auf; Aufgaben ohne Fälligkeitsdatum stehen in jedem Kalender am Ende. Gelöschte Aufgaben werden nicht aufgeführt.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="45"/>
        <source>List the tasks of the calendar ID.</source>
        <translation>Die Aufgaben des Kalenders ID auflisten.</translation>
    </message>
</context>
</TS>
