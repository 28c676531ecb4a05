<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>AllDayStrip</name>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="187"/>
        <location filename="../src/ui/TimelineView.cpp" line="123"/>
        <source>all-day</source>
        <translation>todo el día</translation>
    </message>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="235"/>
        <source>+%1 more</source>
        <translation>+%1 más</translation>
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
        <translation>Error de la base de datos</translation>
    </message>
    <message>
        <location filename="../src/app/Application.cpp" line="98"/>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>No se pudo inicializar la base de datos.

Carpeta de datos: %1

Comprueba los permisos de los archivos e inténtalo de nuevo.</translation>
    </message>
</context>
<context>
    <name>CalendarChoice</name>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="27"/>
        <source>There is no calendar %1.</source>
        <translation>No existe el calendario %1.</translation>
    </message>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="29"/>
        <source>The calendar %1 is read-only.</source>
        <translation>El calendario %1 es de solo lectura.</translation>
    </message>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="48"/>
        <source>There is no calendar to add events to.</source>
        <translation>No hay ningún calendario al que añadir eventos.</translation>
    </message>
</context>
<context>
    <name>CalendarList</name>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="19"/>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="118"/>
        <source>%1: shown (click to hide)</source>
        <translation>%1: visible (haz clic para ocultarlo)</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="119"/>
        <source>%1: hidden (click to show)</source>
        <translation>%1: oculto (haz clic para mostrarlo)</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="121"/>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
</context>
<context>
    <name>ColorSwatchPicker</name>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="35"/>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="103"/>
        <source>Event colour</source>
        <translation>Color del evento</translation>
    </message>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="223"/>
        <source>Calendar colour</source>
        <translation>Color del calendario</translation>
    </message>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="225"/>
        <source>Other colour…</source>
        <translation>Otro color…</translation>
    </message>
</context>
<context>
    <name>EventEditor</name>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="98"/>
        <source>The event no longer exists.</source>
        <translation>El evento ya no existe.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="113"/>
        <source>The series of this event no longer exists.</source>
        <translation>La serie de este evento ya no existe.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="121"/>
        <location filename="../src/ui/EventEditor.cpp" line="144"/>
        <location filename="../src/ui/EventEditor.cpp" line="271"/>
        <location filename="../src/ui/EventEditor.cpp" line="319"/>
        <location filename="../src/ui/EventEditor.cpp" line="336"/>
        <source>The event &quot;%1&quot; could not be saved.</source>
        <translation>No se pudo guardar el evento &quot;%1&quot;.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="155"/>
        <source>Moved &quot;%1&quot;</source>
        <translation>&quot;%1&quot; movido</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="162"/>
        <source>Resized &quot;%1&quot;</source>
        <translation>Duración de &quot;%1&quot; cambiada</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="372"/>
        <source>Deleted &quot;%1&quot;</source>
        <translation>&quot;%1&quot; eliminado</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="377"/>
        <source>The event &quot;%1&quot; could not be deleted.</source>
        <translation>No se pudo eliminar el evento &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>EventFormDialog</name>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="181"/>
        <source>Add title</source>
        <translation>Añadir título</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="188"/>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="225"/>
        <source>A repeat rule: FREQ=DAILY, WEEKLY, MONTHLY or YEARLY, with INTERVAL, COUNT, UNTIL and BYDAY</source>
        <translation>Una regla de repetición: FREQ=DAILY, WEEKLY, MONTHLY o YEARLY, con INTERVAL, COUNT, UNTIL y BYDAY</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="260"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="790"/>
        <source>Add location</source>
        <translation>Añadir ubicación</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="267"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="791"/>
        <source>Add description</source>
        <translation>Añadir descripción</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="284"/>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="411"/>
        <source>Does not repeat</source>
        <translation>No se repite</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="413"/>
        <source>Custom…</source>
        <translation>Personalizado…</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="415"/>
        <source>Every weekday (Monday to Friday)</source>
        <translation>Todos los días laborables (de lunes a viernes)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="475"/>
        <source>There is no calendar to add events to.</source>
        <translation>No hay ningún calendario al que añadir eventos.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="481"/>
        <source>This calendar repeats by FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY or FREQ=YEARLY; start the rule with one of them.</source>
        <translation>Este calendario repite con FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY o FREQ=YEARLY; empieza la regla con uno de ellos.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="512"/>
        <source>(No title)</source>
        <translation>(Sin título)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="616"/>
        <source>Save repeating event</source>
        <translation>Guardar evento periódico</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="619"/>
        <source>A new repeat applies to this and following events, or to all events.</source>
        <translation>Una nueva repetición se aplica a este evento y a los siguientes, o a todos los eventos.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="636"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="647"/>
        <source>New Event</source>
        <translation>Nuevo evento</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="747"/>
        <source>Event Details</source>
        <translation>Detalles del evento</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="747"/>
        <source>Edit Event</source>
        <translation>Editar evento</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="763"/>
        <source>A repeating event stays in its calendar.</source>
        <translation>Un evento periódico se queda en su calendario.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="786"/>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="786"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="801"/>
        <source>This event is in &quot;%1&quot;, which is read-only.</source>
        <translation>Este evento está en &quot;%1&quot;, que es de solo lectura.</translation>
    </message>
</context>
<context>
    <name>EventImport</name>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="52"/>
        <source>Could not read the calendar %1: %2</source>
        <translation>No se pudo leer el calendario %1: %2</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="54"/>
        <source>There is no calendar %1.</source>
        <translation>No existe el calendario %1.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="56"/>
        <source>The calendar %1 is read-only.</source>
        <translation>El calendario %1 es de solo lectura.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="144"/>
        <source>The file %1 is empty.</source>
        <translation>El archivo %1 está vacío.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="148"/>
        <source>The file %1 is not an iCalendar file.</source>
        <translation>El archivo %1 no es un archivo iCalendar.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="153"/>
        <source>The file %1 holds no events.</source>
        <translation>El archivo %1 no contiene eventos.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="180"/>
        <source>Could not start the import: %1</source>
        <translation>No se pudo iniciar la importación: %1</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="212"/>
        <source>Could not store the event &quot;%1&quot; from %2; nothing was imported.</source>
        <translation>No se pudo guardar el evento &quot;%1&quot; de %2; no se importó nada.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="220"/>
        <source>Could not save the import: %1</source>
        <translation>No se pudo guardar la importación: %1</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="231"/>
        <source>Cannot read %1: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="239"/>
        <source>Imported 1 event into %1.</source>
        <translation>Se importó 1 evento en %1.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="240"/>
        <source>Imported %1 events into %2.</source>
        <translation>Se importaron %1 eventos en %2.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="244"/>
        <source>Updated 1 existing event in %1.</source>
        <translation>Se actualizó 1 evento existente en %1.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="245"/>
        <source>Updated %1 existing events in %2.</source>
        <translation>Se actualizaron %1 eventos existentes en %2.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="247"/>
        <source>Imported %1 and updated %2 in %3.</source>
        <translation>En %3: importados %1, actualizados %2.</translation>
    </message>
</context>
<context>
    <name>EventPopover</name>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="72"/>
        <source>Going</source>
        <translation>Asiste</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="74"/>
        <source>Not going</source>
        <translation>No asiste</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="76"/>
        <source>Maybe</source>
        <translation>Quizás</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="78"/>
        <source>Delegated</source>
        <translation>Delegado</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="79"/>
        <source>Awaiting reply</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="204"/>
        <location filename="../src/ui/EventPopover.cpp" line="432"/>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="206"/>
        <source>Delete this event (Delete)</source>
        <translation>Eliminar este evento (Delete)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="207"/>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="209"/>
        <source>Open the event to change it (Enter)</source>
        <translation>Abrir el evento para cambiarlo (Enter)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="315"/>
        <source>%1 (read-only)</source>
        <translation>%1 (solo lectura)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="325"/>
        <source>Join online meeting</source>
        <translation>Unirse a la reunión en línea</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="342"/>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="425"/>
        <source>Delete repeating event</source>
        <translation>Eliminar evento periódico</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="428"/>
        <source>Delete event?</source>
        <translation>¿Eliminar evento?</translation>
    </message>
</context>
<context>
    <name>EventTimeEditor</name>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="48"/>
        <source>ddd, MMM d, yyyy</source>
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="75"/>
        <source>All day</source>
        <translation>Todo el día</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="87"/>
        <source>Time zone of the event: its times are shown and edited in it</source>
        <translation>Zona horaria del evento: sus horas se muestran y editan en ella</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="254"/>
        <location filename="../src/ui/EventTimeEditor.cpp" line="258"/>
        <source>The event ends before it starts.</source>
        <translation>El evento termina antes de empezar.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="256"/>
        <source>&quot;%1&quot; is not a time zone this computer knows.</source>
        <translation>&quot;%1&quot; no es una zona horaria que conozca este ordenador.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="388"/>
        <source>%1 in your time zone</source>
        <translation>%1 en tu zona horaria</translation>
    </message>
</context>
<context>
    <name>EventWording</name>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="107"/>
        <source>%1 · All day</source>
        <translation>%1 · Todo el día</translation>
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
        <translation>Cada %1 días: %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="70"/>
        <location filename="../src/ui/EventWording.cpp" line="153"/>
        <source>Every day</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="28"/>
        <source>%1, %2 %3</source>
        <translation>%1, %3 de %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="29"/>
        <source>%1, %2 %3, %4</source>
        <translation>%1, %3 de %2 de %4</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="34"/>
        <source>%1 %2</source>
        <translation>%2 de %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="46"/>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="46"/>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="70"/>
        <source>Every %1 days</source>
        <translation>Cada %1 días</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="72"/>
        <source>Every weekday</source>
        <translation>Todos los días laborables</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="74"/>
        <source>Every week on %1</source>
        <translation>Cada semana, el %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="75"/>
        <source>Every %1 weeks on %2</source>
        <translation>Cada %1 semanas, el %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="153"/>
        <source>Every %1 weeks, every day</source>
        <translation>Cada %1 semanas, todos los días</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="158"/>
        <source>Every month on day %1</source>
        <translation>Cada mes, el día %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="159"/>
        <source>Every %1 months on day %2</source>
        <translation>Cada %1 meses, el día %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="162"/>
        <source>Every year on %1</source>
        <translation>Cada año, el %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="163"/>
        <source>Every %1 years on %2</source>
        <translation>Cada %1 años, el %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="169"/>
        <source>%1, once</source>
        <translation>%1, una vez</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="171"/>
        <source>%1, %2 times</source>
        <translation>%1, %2 veces</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="173"/>
        <source>%1, until %2</source>
        <translation>%1, hasta el %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="174"/>
        <source>MMMM d, yyyy</source>
        <translation>d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="180"/>
        <source>Delete &quot;%1&quot;? You can undo with %2.</source>
        <translation>¿Eliminar &quot;%1&quot;? Puedes deshacerlo con %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="186"/>
        <source>(No title)</source>
        <translation>(Sin título)</translation>
    </message>
</context>
<context>
    <name>IcsImportFlow</name>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="53"/>
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation>Importar 1 evento de &quot;%1&quot; en:</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="54"/>
        <source>Import %1 events from &quot;%2&quot; into:</source>
        <translation>Importar %1 eventos de &quot;%2&quot; en:</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="66"/>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="82"/>
        <source>Import Calendar File</source>
        <translation>Importar archivo de calendario</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="84"/>
        <source>iCalendar files (*.ics *.ICS);;All files (*)</source>
        <translation>Archivos iCalendar (*.ics *.ICS);;Todos los archivos (*)</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="92"/>
        <source>Couldn&apos;t open file</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="93"/>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation>No se pudo abrir &quot;%1&quot; para leerlo.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="101"/>
        <source>Nothing to import</source>
        <translation>Nada que importar</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="102"/>
        <source>No events found in &quot;%1&quot;.</source>
        <translation>No se encontraron eventos en &quot;%1&quot;.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="111"/>
        <source>No calendars configured</source>
        <translation>No hay calendarios configurados</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="112"/>
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation>Primero añade un calendario con permiso de escritura y vuelve a importar &quot;%1&quot;.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="124"/>
        <source>Importing events…</source>
        <translation>Importando eventos…</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="51"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="125"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="134"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="137"/>
        <source>Import events</source>
        <translation>Importar eventos</translation>
    </message>
</context>
<context>
    <name>KettUpdate::UpdateDialog</name>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="17"/>
        <source>Update available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="19"/>
        <source>%1 %2 is available. You have %3.</source>
        <translation>%1 %2 está disponible. Tienes la versión %3.</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="28"/>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="29"/>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>MainToolbar</name>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="24"/>
        <source>Show or hide the sidebar</source>
        <translation>Mostrar u ocultar la barra lateral</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="26"/>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="28"/>
        <source>Go to today (T)</source>
        <translation>Ir a hoy (T)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="29"/>
        <source>Previous (Left)</source>
        <translation>Anterior (Left)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="30"/>
        <source>Next (Right)</source>
        <translation>Siguiente (Right)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="33"/>
        <source>Back (Alt+Left)</source>
        <translation>Atrás (Alt+Left)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="34"/>
        <source>Forward (Alt+Right)</source>
        <translation>Adelante (Alt+Right)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="47"/>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="47"/>
        <source>Day view (D)</source>
        <translation>Vista de día (D)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="48"/>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="48"/>
        <source>Week view (W)</source>
        <translation>Vista de semana (W)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="49"/>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="49"/>
        <source>Month view (M)</source>
        <translation>Vista de mes (M)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="53"/>
        <source> days</source>
        <translation> días</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="54"/>
        <source>Number of days in the multi-day view</source>
        <translation>Número de días de la vista de varios días</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="59"/>
        <source>Quick add: Lunch with Sam tomorrow at 12:30</source>
        <translation>Entrada rápida: Lunch with Sam tomorrow at 12:30</translation>
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
        <translation>Ocultos por reglas de filtro: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="108"/>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="150"/>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="151"/>
        <source>&amp;New Event…</source>
        <translation>&amp;Nuevo evento…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="153"/>
        <source>&amp;Import Calendar File…</source>
        <translation>&amp;Importar archivo de calendario…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="159"/>
        <source>&amp;Manage Calendars…</source>
        <translation>&amp;Gestionar calendarios…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="161"/>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="164"/>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="165"/>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="170"/>
        <source>&amp;Quick Add</source>
        <translation>Entrada &amp;rápida</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="176"/>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="183"/>
        <source>&amp;Today</source>
        <translation>&amp;Hoy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="184"/>
        <source>&amp;Previous</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="185"/>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="187"/>
        <source>&amp;Day</source>
        <translation>&amp;Día</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="188"/>
        <source>&amp;Week</source>
        <translation>Sema&amp;na</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="189"/>
        <source>&amp;Month</source>
        <translation>&amp;Mes</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="191"/>
        <source>&amp;Back</source>
        <translation>At&amp;rás</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="192"/>
        <source>&amp;Forward</source>
        <translation>Ade&amp;lante</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="193"/>
        <source>Zoom &amp;In</source>
        <translation>Ampl&amp;iar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="194"/>
        <source>Zoom &amp;Out</source>
        <translation>Red&amp;ucir</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="197"/>
        <source>Show Week &amp;Numbers</source>
        <translation>M&amp;ostrar números de semana</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="202"/>
        <source>24-Hour Clock</source>
        <translation>Formato de 24 horas</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="209"/>
        <source>T&amp;heme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="221"/>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="222"/>
        <source>Add &amp;Sample Data</source>
        <translation>Añadir datos de &amp;ejemplo</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="223"/>
        <source>&amp;Clear Sample Data…</source>
        <translation>&amp;Borrar datos de ejemplo…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="225"/>
        <source>Send &amp;Test Notification</source>
        <translation>Enviar notificación de &amp;prueba</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="229"/>
        <source>Notifications need a system tray, and this desktop has none.</source>
        <translation>Las notificaciones necesitan una bandeja del sistema y este escritorio no tiene.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="232"/>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="233"/>
        <source>&amp;About Kettlebrook Calendar</source>
        <translation>&amp;Acerca de Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="234"/>
        <source>About Kettlebrook Calendar</source>
        <translation>Acerca de Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="235"/>
        <source>&lt;b&gt;Kettlebrook Calendar&lt;/b&gt; %1&lt;br&gt;Your calendars and tasks, on your desktop.</source>
        <translation>&lt;b&gt;Kettlebrook Calendar&lt;/b&gt; %1&lt;br&gt;Tus calendarios y tareas, en tu escritorio.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="281"/>
        <source>Kettlebrook Calendar is still running</source>
        <translation>Kettlebrook Calendar sigue en ejecución</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="282"/>
        <source>Reminders keep coming. Click the tray icon to open the calendar.</source>
        <translation>Seguirás recibiendo recordatorios. Haz clic en el icono de la bandeja para abrir el calendario.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="388"/>
        <source>MMMM yyyy</source>
        <extracomment>Date format (QDate::toString) of the month view&apos;s title</extracomment>
        <translation>MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="391"/>
        <source>dddd, MMMM d, yyyy</source>
        <extracomment>Date format (QDate::toString) of the day view&apos;s title</extracomment>
        <translation>dddd, d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="397"/>
        <location filename="../src/ui/MainWindow.cpp" line="398"/>
        <source>MMM d, yyyy</source>
        <extracomment>Date format (QDate::toString) of both ends of a range across two years</extracomment>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="400"/>
        <source>MMM d</source>
        <comment>first day of a range across two months</comment>
        <translation>d MMM</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="401"/>
        <source>MMM d, yyyy</source>
        <comment>last day of a range across two months</comment>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="403"/>
        <source>MMMM d</source>
        <comment>first day of a range within one month</comment>
        <translation>d</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="404"/>
        <source>d, yyyy</source>
        <comment>last day of a range within one month</comment>
        <translation>d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="448"/>
        <source>Quick-add ignored: no calendars configured.</source>
        <translation>Entrada rápida ignorada: no hay calendarios configurados.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="453"/>
        <source>Quick-add couldn&apos;t parse: &quot;%1&quot;</source>
        <translation>La entrada rápida no pudo interpretar: &quot;%1&quot;</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="457"/>
        <source>Quick-add couldn&apos;t save: &quot;%1&quot;</source>
        <translation>La entrada rápida no pudo guardar: &quot;%1&quot;</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="460"/>
        <source>Added: %1</source>
        <translation>Añadido: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="517"/>
        <source>Nothing to sync: this calendar has no remote accounts yet.</source>
        <translation>Nada que sincronizar: este calendario aún no tiene cuentas remotas.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="523"/>
        <source>Sample data added.</source>
        <translation>Datos de ejemplo añadidos.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="528"/>
        <source>Clear sample data?</source>
        <translation>¿Borrar los datos de ejemplo?</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="529"/>
        <source>This removes the sample calendars with all their events and tasks.</source>
        <translation>Se eliminarán los calendarios de ejemplo con todos sus eventos y tareas.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="538"/>
        <source>Removed %1 sample items.</source>
        <translation>Se eliminaron %1 elementos de ejemplo.</translation>
    </message>
</context>
<context>
    <name>ManageSourcesDialog</name>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="75"/>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="79"/>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="86"/>
        <source>New Calendar…</source>
        <translation>Nuevo calendario…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="87"/>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="88"/>
        <source>Make Default</source>
        <translation>Establecer como predeterminado</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="89"/>
        <source>Delete…</source>
        <translation>Eliminar…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="122"/>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="149"/>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="171"/>
        <source>New Calendar</source>
        <translation>Nuevo calendario</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="155"/>
        <source>On This Device</source>
        <translation>En este dispositivo</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="171"/>
        <source>The calendar could not be saved.</source>
        <translation>No se pudo guardar el calendario.</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="180"/>
        <source>Edit Calendar</source>
        <translation>Editar calendario</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="199"/>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="214"/>
        <source>Delete calendar?</source>
        <translation>¿Eliminar calendario?</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="200"/>
        <source>Delete &quot;%1&quot; with all its events and tasks? This cannot be undone.</source>
        <translation>¿Eliminar &quot;%1&quot; con todos sus eventos y tareas? Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="214"/>
        <source>The calendar could not be deleted.</source>
        <translation>No se pudo eliminar el calendario.</translation>
    </message>
</context>
<context>
    <name>MiniMonth</name>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="48"/>
        <source>Month calendar</source>
        <translation>Calendario mensual</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="59"/>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="61"/>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="278"/>
        <source>MMMM yyyy</source>
        <extracomment>Date format (QDate::toString) of the title of the small month calendar</extracomment>
        <translation>MMMM &apos;de&apos; yyyy</translation>
    </message>
</context>
<context>
    <name>MonthView</name>
    <message>
        <location filename="../src/ui/MonthPainter.cpp" line="339"/>
        <source>All day</source>
        <translation>Todo el día</translation>
    </message>
    <message>
        <location filename="../src/ui/MonthView.cpp" line="187"/>
        <source>MMM d</source>
        <extracomment>Date format (QDate::toString) of the first day of a month in its cell</extracomment>
        <translation>d MMM</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/MonthView.cpp" line="232"/>
        <source>+%n more</source>
        <translation>
            <numerusform>+%n más</numerusform>
            <numerusform>+%n más</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/MonthView.cpp" line="322"/>
        <source>Move repeating event</source>
        <translation>Mover evento periódico</translation>
    </message>
</context>
<context>
    <name>NLParser</name>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="391"/>
        <source>the reference time is not valid</source>
        <translation>la hora de referencia no es válida</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="393"/>
        <source>&quot;%1&quot; is not a valid date</source>
        <translation>&quot;%1&quot; no es una fecha válida</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="395"/>
        <source>&quot;%1&quot; is not a valid time</source>
        <translation>&quot;%1&quot; no es una hora válida</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="397"/>
        <source>&quot;%1&quot; is too long</source>
        <translation>&quot;%1&quot; es demasiado largo</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="400"/>
        <source>&quot;%1&quot; falls outside the years 1 to 9999</source>
        <translation>&quot;%1&quot; queda fuera de los años 1 a 9999</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="401"/>
        <source>the event would fall outside the years 1 to 9999</source>
        <translation>el evento quedaría fuera de los años 1 a 9999</translation>
    </message>
</context>
<context>
    <name>NotificationService</name>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="66"/>
        <source>Starting now (%1)</source>
        <translation>Empieza ahora (%1)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="68"/>
        <source>In %1 minutes (%2)</source>
        <translation>En %1 min (%2)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="70"/>
        <source>In %1h (%2)</source>
        <translation>En %1 h (%2)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="72"/>
        <source>Tomorrow at %1</source>
        <translation>Mañana a las %1</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="78"/>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="114"/>
        <source>Test reminder</source>
        <translation>Recordatorio de prueba</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="115"/>
        <source>If you can see this, your desktop notifications are wired up correctly. Real reminders look just like this one.</source>
        <translation>Si ves esto, las notificaciones del escritorio están bien configuradas. Los recordatorios reales se ven exactamente así.</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="125"/>
        <source>At time of event</source>
        <translation>A la hora del evento</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="127"/>
        <source>%1 min before</source>
        <translation>%1 min antes</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="129"/>
        <source>%1 hour(s) before</source>
        <translation>%1 h antes</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="130"/>
        <source>%1 day(s) before</source>
        <translation>%1 día(s) antes</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="50"/>
        <source>Calendar colour</source>
        <translation>Color del calendario</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="56"/>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="57"/>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
</context>
<context>
    <name>RecurrenceScopeDialog</name>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="43"/>
        <source>This is one event of a repeating series. Apply to:</source>
        <translation>Este es un evento de una serie periódica. Aplicar a:</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="57"/>
        <source>Only this event</source>
        <translation>Solo este evento</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="58"/>
        <source>This and following events</source>
        <translation>Este evento y los siguientes</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="59"/>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
</context>
<context>
    <name>ReminderListEditor</name>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="32"/>
        <source>Add reminder</source>
        <translation>Añadir recordatorio</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="113"/>
        <source>No reminders</source>
        <translation>Sin recordatorios</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="132"/>
        <source>Remove this reminder</source>
        <translation>Quitar este recordatorio</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="133"/>
        <source>Remove reminder %1</source>
        <translation>Quitar el recordatorio %1</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="110"/>
        <source>Views</source>
        <translation>Vistas</translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="113"/>
        <source>Calendars</source>
        <translation>Calendarios</translation>
    </message>
</context>
<context>
    <name>TimelineHeader</name>
    <message>
        <location filename="../src/ui/TimelineHeader.cpp" line="94"/>
        <source>W%1</source>
        <translation>S%1</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <location filename="../src/ui/TimelineView.cpp" line="221"/>
        <source>Resize repeating event</source>
        <translation>Cambiar la duración del evento periódico</translation>
    </message>
    <message>
        <location filename="../src/ui/TimelineView.cpp" line="221"/>
        <source>Move repeating event</source>
        <translation>Mover evento periódico</translation>
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
        <translation>Abrir calendario</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="35"/>
        <source>New Event…</source>
        <translation>Nuevo evento…</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="36"/>
        <source>Sync Now</source>
        <translation>Sincronizar ahora</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="38"/>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>ViewList</name>
    <message>
        <location filename="../src/ui/ViewList.cpp" line="16"/>
        <source>Views</source>
        <translation>Vistas</translation>
    </message>
</context>
<context>
    <name>kbcal</name>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="53"/>
        <source>cannot create the data folder %1</source>
        <translation>no se puede crear la carpeta de datos %1</translation>
    </message>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="61"/>
        <source>cannot open the calendar database in %1: %2</source>
        <translation>no se puede abrir la base de datos del calendario en %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="63"/>
        <source>cannot prepare the calendar database in %1: %2</source>
        <translation>no se puede preparar la base de datos del calendario en %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="14"/>
        <source>Create or migrate the database.</source>
        <translation>Crear o migrar la base de datos.</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="15"/>
        <source>Creates the calendar database in the data folder, or brings an existing one up to date.</source>
        <translation>Crea la base de datos del calendario en la carpeta de datos o actualiza una existente.</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="28"/>
        <source>Database ready: %1 (schema version %2)</source>
        <translation>Base de datos lista: %1 (versión del esquema %2)</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="23"/>
        <source>enabled</source>
        <translation>activada</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="23"/>
        <source>disabled</source>
        <translation>desactivada</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="25"/>
        <source>last sync %1</source>
        <translation>última sincronización %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="27"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="35"/>
        <source>sync error: %1</source>
        <translation>error de sincronización: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="38"/>
        <source>List the accounts.</source>
        <translation>Listar las cuentas.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="39"/>
        <source>Lists the accounts (calendar sources) in the order the desktop program shows them. Removed accounts whose removal has not been synced yet are not listed. With --json, prints the account records.</source>
        <translation>Lista las cuentas (orígenes de calendarios) en el orden en que las muestra el programa de escritorio. Las cuentas eliminadas cuya eliminación aún no se ha sincronizado no se listan. Con --json, imprime los registros de las cuentas.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="52"/>
        <source>No accounts.</source>
        <translation>No hay cuentas.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>NAME</source>
        <translation>NOMBRE</translation>
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
        <translation>TIPO</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>SERVER</source>
        <translation>SERVIDOR</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>USER</source>
        <translation>USUARIO</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="56"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>STATE</source>
        <translation>ESTADO</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="27"/>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="27"/>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="43"/>
        <source>Title:    %1</source>
        <translation>Título:      %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="44"/>
        <source>Start:    %1</source>
        <translation>Inicio:      %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="45"/>
        <source>End:      %1</source>
        <translation>Fin:         %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="46"/>
        <source>All day:  %1</source>
        <translation>Todo el día: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="47"/>
        <source>Has time: %1</source>
        <translation>Con hora:    %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="57"/>
        <source>Add an event from one line of text (quick-add).</source>
        <translation>Añadir un evento a partir de una línea de texto (entrada rápida).</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="58"/>
        <source>Joins the words into one line and reads it as the desktop quick-add box does, for example:
  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min
T is an ISO 8601 date-time (2024-01-05T09:00:00Z, 2024-01-05T10:00:00+01:00, or local time without an offset) or a date (2024-01-05, local midnight). With --dry-run nothing is stored and the reading is printed. Put -- before the text when one of its words begins with a dash.</source>
        <translation>Une las palabras en una sola línea y la interpreta como lo hace el cuadro de entrada rápida del programa de escritorio, por ejemplo:
  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min
T es una fecha y hora ISO 8601 (2024-01-05T09:00:00Z, 2024-01-05T10:00:00+01:00, u hora local sin desfase) o una fecha (2024-01-05, medianoche local). Con --dry-run no se guarda nada y se imprime la interpretación. Pon -- antes del texto cuando una de sus palabras empiece por guion.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="65"/>
        <source>Add the event to the calendar with this id.</source>
        <translation>Añadir el evento al calendario con este id.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="67"/>
        <source>Read the text as if it were this time (default: now).</source>
        <translation>Interpretar el texto como si fuera esta hora (predeterminado: ahora).</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="69"/>
        <source>Print how the text is read; store nothing.</source>
        <translation>Imprimir cómo se interpreta el texto; no guardar nada.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="76"/>
        <source>the text of the event is empty</source>
        <translation>el texto del evento está vacío</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="82"/>
        <source>&apos;%1&apos; is not a date or date-time for --now</source>
        <translation>&apos;%1&apos; no es una fecha ni una fecha y hora válida para --now</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="104"/>
        <source>the event could not be stored in %1</source>
        <translation>no se pudo guardar el evento en %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="113"/>
        <source>Added &quot;%1&quot; on %2 to %3</source>
        <translation>Se añadió &quot;%1&quot; el %2 a %3</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="57"/>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="26"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="103"/>
        <source>all day</source>
        <translation>todo el día</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="84"/>
        <source>No events from %1 to %2.</source>
        <translation>No hay eventos del %1 al %2.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="100"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="94"/>
        <source>(no title)</source>
        <translation>(sin título)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="106"/>
        <source>(dimmed)</source>
        <translation>(atenuado)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="108"/>
        <source>(reminders off)</source>
        <translation>(recordatorios desactivados)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="114"/>
        <source>1 event hidden by filter rules.</source>
        <translation>1 evento oculto por reglas de filtro.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="115"/>
        <source>%1 events hidden by filter rules.</source>
        <translation>%1 eventos ocultos por reglas de filtro.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="141"/>
        <source>Show the events of a span of days.</source>
        <translation>Mostrar los eventos de un intervalo de días.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="142"/>
        <source>Shows the occurrences of the stored events from --from (default: today at 00:00 local time) up to, not including, --to, or for --days days (default: 7), exactly as the calendar views show them: recurring events expanded, and the enabled filter rules applied (hidden events are counted, dimmed ones marked). A date without a time is local midnight. Without --calendar, the visible calendars are shown.</source>
        <translation>Muestra las ocurrencias de los eventos guardados desde --from (predeterminado: hoy a las 00:00, hora local) hasta --to, sin incluirlo, o durante --days días (predeterminado: 7), exactamente como las muestran las vistas del calendario: con los eventos periódicos expandidos y las reglas de filtro activas aplicadas (los eventos ocultos se cuentan y los atenuados se marcan). Una fecha sin hora es la medianoche local. Sin --calendar, se muestran los calendarios visibles.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="148"/>
        <source>Start of the span (date or date-time).</source>
        <translation>Inicio del intervalo (fecha o fecha y hora).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="150"/>
        <source>End of the span, not included (date or date-time).</source>
        <translation>Fin del intervalo, no incluido (fecha o fecha y hora).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="152"/>
        <source>Length of the span in days (1 to 36600).</source>
        <translation>Duración del intervalo en días (de 1 a 36600).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="154"/>
        <source>Show this calendar (repeatable).</source>
        <translation>Mostrar este calendario (se puede repetir).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="164"/>
        <source>invalid date for --from: &apos;%1&apos;</source>
        <translation>fecha no válida para --from: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="167"/>
        <source>--to and --days cannot be used together</source>
        <translation>--to y --days no se pueden usar juntos</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="173"/>
        <source>invalid date for --to: &apos;%1&apos;</source>
        <translation>fecha no válida para --to: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="175"/>
        <source>--to must be later than the start of the span</source>
        <translation>--to debe ser posterior al inicio del intervalo</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="181"/>
        <source>invalid number of days: &apos;%1&apos;</source>
        <translation>número de días no válido: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="200"/>
        <source>no calendar with the id %1</source>
        <translation>no hay ningún calendario con el id %1</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="25"/>
        <source>default</source>
        <translation>predeterminado</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="27"/>
        <source>hidden</source>
        <translation>oculto</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="29"/>
        <source>read-only</source>
        <translation>solo lectura</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="31"/>
        <source>shared</source>
        <translation>compartido</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="33"/>
        <source>shared with me</source>
        <translation>compartido conmigo</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="46"/>
        <source>List the calendars.</source>
        <translation>Listar los calendarios.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="47"/>
        <source>Lists every calendar in the order the desktop program shows them, with its account, colour and state. With --json, prints the calendar records.</source>
        <translation>Lista todos los calendarios en el orden en que los muestra el programa de escritorio, con su cuenta, color y estado. Con --json, imprime los registros de los calendarios.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="59"/>
        <source>No calendars.</source>
        <translation>No hay calendarios.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>ACCOUNT</source>
        <translation>CUENTA</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>COLOUR</source>
        <translation>COLOR</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="24"/>
        <source>Print exactly one JSON document on standard output.</source>
        <translation>Imprimir exactamente un documento JSON en la salida estándar.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="29"/>
        <source>Report progress of long work on standard error.</source>
        <translation>Informar del progreso de los trabajos largos en la salida de error estándar.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="34"/>
        <source>Use the calendar data in DIR.</source>
        <translation>Usar los datos del calendario de DIR.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="40"/>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="92"/>
        <source>missing value for --data-dir</source>
        <translation>falta el valor de --data-dir</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="97"/>
        <source>unknown option &apos;%1&apos;</source>
        <translation>opción desconocida &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="101"/>
        <source>missing command</source>
        <translation>falta el comando</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="115"/>
        <source>unknown command &apos;%1&apos;</source>
        <translation>comando desconocido &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="140"/>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="155"/>
        <source>missing argument</source>
        <translation>falta un argumento</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="158"/>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="168"/>
        <source>The command-line companion of Kettlebrook Calendar: the same calendar store, from a terminal.</source>
        <translation>El complemento de línea de comandos de Kettlebrook Calendar: los mismos calendarios, desde un terminal.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="170"/>
        <source>Commands:</source>
        <translation>Comandos:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="174"/>
        <source>Global options:</source>
        <translation>Opciones globales:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="176"/>
        <source>Use the calendar data in DIR (default: CALENDAR_DATA_DIR, else the desktop program&apos;s data folder).</source>
        <translation>Usar los datos del calendario de DIR (predeterminado: CALENDAR_DATA_DIR o, si no, la carpeta de datos del programa de escritorio).</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="179"/>
        <source>Show the program&apos;s log output on standard error.</source>
        <translation>Mostrar el registro del programa en la salida de error estándar.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="180"/>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="182"/>
        <source>Run &apos;kbcal COMMAND --help&apos; for the options of a command.</source>
        <translation>Ejecuta &apos;kbcal COMMAND --help&apos; para ver las opciones de un comando.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="191"/>
        <source>Run &apos;kbcal --help&apos; for the list of commands.</source>
        <translation>Ejecuta &apos;kbcal --help&apos; para ver la lista de comandos.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="81"/>
        <source>Write the stored events as one iCalendar object.</source>
        <translation>Escribir los eventos guardados como un objeto iCalendar.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="82"/>
        <source>Writes the events of the named calendars (every calendar when none is named) to standard output as one iCalendar object, each event in the text it was stored with.</source>
        <translation>Escribe en la salida estándar los eventos de los calendarios indicados (todos si no se indica ninguno) como un único objeto iCalendar, cada evento con el texto con el que se guardó.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="85"/>
        <source>Export the calendar ID (may be repeated).</source>
        <translation>Exportar el calendario ID (se puede repetir).</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="101"/>
        <location filename="../src/cli/TasksCommand.cpp" line="57"/>
        <source>there is no calendar %1</source>
        <translation>no existe el calendario %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="57"/>
        <source>Expand the events of iCalendar text over a span.</source>
        <translation>Expandir los eventos de un texto iCalendar en un intervalo.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="59"/>
        <source>Reads iCalendar text from FILE, or from standard input when FILE is &apos;-&apos; or absent, and lists the occurrences of its events in the span [--from, --to) exactly as the calendar views show them: single events first, then each series&apos; occurrences with changed occurrences in place. T is an ISO 8601 date-time or a date (local midnight). No database is used.</source>
        <translation>Lee texto iCalendar de FILE, o de la entrada estándar cuando FILE es &apos;-&apos; o se omite, y lista las ocurrencias de sus eventos en el intervalo [--from, --to) exactamente como las muestran las vistas del calendario: primero los eventos sueltos, luego las ocurrencias de cada serie con las ocurrencias modificadas en su lugar. T es una fecha y hora ISO 8601 o una fecha (medianoche local). No se usa ninguna base de datos.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="65"/>
        <source>Start of the span (included).</source>
        <translation>Inicio del intervalo (incluido).</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="66"/>
        <source>End of the span (excluded).</source>
        <translation>Fin del intervalo (excluido).</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="72"/>
        <source>both --from and --to are required</source>
        <translation>se necesitan tanto --from como --to</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="75"/>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="78"/>
        <source>invalid time &apos;%1&apos;</source>
        <translation>hora no válida &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="80"/>
        <source>the span is empty: --to must be after --from</source>
        <translation>el intervalo está vacío: --to debe ser posterior a --from</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="89"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="134"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="137"/>
        <source>cannot read %1: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="105"/>
        <source>repeats %1</source>
        <translation>se repite %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="107"/>
        <source>changed occurrence %1</source>
        <translation>ocurrencia modificada %1</translation>
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
        <translation>vence %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="118"/>
        <source>categories %1</source>
        <translation>categorías %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="159"/>
        <source>No events or tasks found.</source>
        <translation>No se encontraron eventos ni tareas.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="171"/>
        <source>Read iCalendar text and print its events and tasks.</source>
        <translation>Leer texto iCalendar e imprimir sus eventos y tareas.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="173"/>
        <source>Reads iCalendar text from FILE, or from standard input when FILE is - or absent, with the calendar&apos;s own reader, and prints the events and the tasks it finds, each in the order of the text. The calendar database is not touched.</source>
        <translation>Lee texto iCalendar de FILE, o de la entrada estándar cuando FILE es - o se omite, con el lector propio del calendario, e imprime los eventos y las tareas que encuentra, cada uno en el orden del texto. No se toca la base de datos del calendario.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="27"/>
        <source>Import the events of an iCalendar file.</source>
        <translation>Importar los eventos de un archivo iCalendar.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="29"/>
        <source>Imports the events of FILE into a calendar: --calendar, else the calendar chosen for new events (the preference ui/defaultCalendarId, else the default calendar, else the first one). An event already in the calendar (same UID and recurrence id) is updated, any other is added. Either the whole file is imported or, on an error, nothing.</source>
        <translation>Importa los eventos de FILE en un calendario: --calendar o, si no, el calendario elegido para los eventos nuevos (la preferencia ui/defaultCalendarId, si no el calendario predeterminado, si no el primero). Un evento que ya está en el calendario (mismo UID e id de recurrencia) se actualiza; cualquier otro se añade. Se importa el archivo entero o, si hay un error, nada.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="34"/>
        <source>Import into the calendar ID.</source>
        <translation>Importar en el calendario ID.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="51"/>
        <source>Importing: %1 of %2 events</source>
        <translation>Importando: %1 de %2 eventos</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="36"/>
        <source>Add a sample week of events and tasks.</source>
        <translation>Añadir una semana de ejemplo con eventos y tareas.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="38"/>
        <source>Adds the account &quot;Sample Data&quot; with four calendars, a week of events around today and a few tasks, to show what the calendar looks like. Whatever of it is already there is left as it is. &apos;kbcal sample-data remove&apos; takes it away again.</source>
        <translation>Añade la cuenta &quot;Sample Data&quot; con cuatro calendarios, una semana de eventos alrededor de hoy y algunas tareas, para mostrar cómo se ve el calendario. Lo que ya exista de ello se deja tal cual. &apos;kbcal sample-data remove&apos; lo vuelve a quitar.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="64"/>
        <source>Sample data: %1 calendars, %2 events, %3 tasks.</source>
        <translation>Datos de ejemplo: %1 calendarios, %2 eventos, %3 tareas.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="80"/>
        <source>Remove the sample events, tasks, calendars and account.</source>
        <translation>Quitar los eventos, tareas, calendarios y cuenta de ejemplo.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="81"/>
        <source>Deletes everything &apos;kbcal sample-data add&apos; created and prints how many rows went.</source>
        <translation>Elimina todo lo que creó &apos;kbcal sample-data add&apos; e imprime cuántas filas se quitaron.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="90"/>
        <source>Removed %1 sample rows.</source>
        <translation>Se quitaron %1 filas de ejemplo.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="34"/>
        <source>there is no task %1</source>
        <translation>no existe la tarea %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="36"/>
        <source>could not change the task %1</source>
        <translation>no se pudo cambiar la tarea %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="44"/>
        <source>Reopened: %1</source>
        <translation>Reabierta: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="46"/>
        <source>Completed: %1</source>
        <translation>Completada: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="48"/>
        <source>Done; next due %1: %2</source>
        <translation>Hecho; próximo vencimiento %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="50"/>
        <source>Done; next start %1: %2</source>
        <translation>Hecho; próximo inicio %1: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="78"/>
        <source>Complete a task.</source>
        <translation>Completar una tarea.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="79"/>
        <source>Marks the task ID as completed. A repeating task is not closed: it moves on to its next date and stays open. Prints the task after the change.</source>
        <translation>Marca la tarea ID como completada. Una tarea periódica no se cierra: pasa a su siguiente fecha y sigue abierta. Imprime la tarea tras el cambio.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="86"/>
        <source>Reopen a completed task.</source>
        <translation>Reabrir una tarea completada.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="87"/>
        <source>Marks the task ID as not completed. Prints the task after the change.</source>
        <translation>Marca la tarea ID como no completada. Imprime la tarea tras el cambio.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="40"/>
        <source>List tasks.</source>
        <translation>Listar tareas.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="42"/>
        <source>Lists the tasks of the calendar ID, or of every calendar, by due date; tasks without a due date come last in each calendar. Deleted tasks are not listed.</source>
        <translation>Lista las tareas del calendario ID, o de todos los calendarios, por fecha de vencimiento; las tareas sin fecha de vencimiento van al final de cada calendario. Las tareas eliminadas no se listan.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="45"/>
        <source>List the tasks of the calendar ID.</source>
        <translation>Listar las tareas del calendario ID.</translation>
    </message>
</context>
</TS>
