<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AllDayStrip</name>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="187"/>
        <location filename="../src/ui/TimelineView.cpp" line="123"/>
        <source>all-day</source>
        <translation>journée</translation>
    </message>
    <message>
        <location filename="../src/ui/AllDayStrip.cpp" line="235"/>
        <source>+%1 more</source>
        <translation>+%1 de plus</translation>
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
        <translation>Erreur de base de données</translation>
    </message>
    <message>
        <location filename="../src/app/Application.cpp" line="98"/>
        <source>Failed to initialize the database.

Data directory: %1

Please check file permissions and try again.</source>
        <translation>Impossible d’initialiser la base de données.

Dossier de données&#xa0;: %1

Vérifiez les autorisations des fichiers, puis réessayez.</translation>
    </message>
</context>
<context>
    <name>CalendarChoice</name>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="27"/>
        <source>There is no calendar %1.</source>
        <translation>Le calendrier %1 n’existe pas.</translation>
    </message>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="29"/>
        <source>The calendar %1 is read-only.</source>
        <translation>Le calendrier %1 est en lecture seule.</translation>
    </message>
    <message>
        <location filename="../src/storage/CalendarChoice.cpp" line="48"/>
        <source>There is no calendar to add events to.</source>
        <translation>Aucun calendrier ne permet d’ajouter des événements.</translation>
    </message>
</context>
<context>
    <name>CalendarList</name>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="19"/>
        <source>Calendars</source>
        <translation>Calendriers</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="118"/>
        <source>%1: shown (click to hide)</source>
        <translation>%1&#xa0;: affiché (cliquez pour le masquer)</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="119"/>
        <source>%1: hidden (click to show)</source>
        <translation>%1&#xa0;: masqué (cliquez pour l’afficher)</translation>
    </message>
    <message>
        <location filename="../src/ui/CalendarList.cpp" line="121"/>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
</context>
<context>
    <name>ColorSwatchPicker</name>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="35"/>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="103"/>
        <source>Event colour</source>
        <translation>Couleur de l’événement</translation>
    </message>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="223"/>
        <source>Calendar colour</source>
        <translation>Couleur du calendrier</translation>
    </message>
    <message>
        <location filename="../src/ui/ColorSwatchPicker.cpp" line="225"/>
        <source>Other colour…</source>
        <translation>Autre couleur…</translation>
    </message>
</context>
<context>
    <name>EventEditor</name>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="98"/>
        <source>The event no longer exists.</source>
        <translation>L’événement n’existe plus.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="113"/>
        <source>The series of this event no longer exists.</source>
        <translation>La série de cet événement n’existe plus.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="121"/>
        <location filename="../src/ui/EventEditor.cpp" line="144"/>
        <location filename="../src/ui/EventEditor.cpp" line="271"/>
        <location filename="../src/ui/EventEditor.cpp" line="319"/>
        <location filename="../src/ui/EventEditor.cpp" line="336"/>
        <source>The event &quot;%1&quot; could not be saved.</source>
        <translation>Impossible d’enregistrer l’événement &quot;%1&quot;.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="155"/>
        <source>Moved &quot;%1&quot;</source>
        <translation>&quot;%1&quot; déplacé</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="162"/>
        <source>Resized &quot;%1&quot;</source>
        <translation>Durée de &quot;%1&quot; modifiée</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="372"/>
        <source>Deleted &quot;%1&quot;</source>
        <translation>&quot;%1&quot; supprimé</translation>
    </message>
    <message>
        <location filename="../src/ui/EventEditor.cpp" line="377"/>
        <source>The event &quot;%1&quot; could not be deleted.</source>
        <translation>Impossible de supprimer l’événement &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>EventFormDialog</name>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="181"/>
        <source>Add title</source>
        <translation>Ajouter un titre</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="188"/>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="225"/>
        <source>A repeat rule: FREQ=DAILY, WEEKLY, MONTHLY or YEARLY, with INTERVAL, COUNT, UNTIL and BYDAY</source>
        <translation>Une règle de répétition&#xa0;: FREQ=DAILY, WEEKLY, MONTHLY ou YEARLY, avec INTERVAL, COUNT, UNTIL et BYDAY</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="260"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="790"/>
        <source>Add location</source>
        <translation>Ajouter un lieu</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="267"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="791"/>
        <source>Add description</source>
        <translation>Ajouter une description</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="284"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="411"/>
        <source>Does not repeat</source>
        <translation>Ne se répète pas</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="413"/>
        <source>Custom…</source>
        <translation>Personnalisé…</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="415"/>
        <source>Every weekday (Monday to Friday)</source>
        <translation>Tous les jours ouvrés (du lundi au vendredi)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="475"/>
        <source>There is no calendar to add events to.</source>
        <translation>Aucun calendrier ne permet d’ajouter des événements.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="481"/>
        <source>This calendar repeats by FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY or FREQ=YEARLY; start the rule with one of them.</source>
        <translation>Ce calendrier répète selon FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY ou FREQ=YEARLY&#xa0;; commencez la règle par l’un d’eux.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="512"/>
        <source>(No title)</source>
        <translation>(Sans titre)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="616"/>
        <source>Save repeating event</source>
        <translation>Enregistrer l’événement récurrent</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="619"/>
        <source>A new repeat applies to this and following events, or to all events.</source>
        <translation>Une nouvelle répétition s’applique à cet événement et aux suivants, ou à tous les événements.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="636"/>
        <location filename="../src/ui/EventFormDialog.cpp" line="647"/>
        <source>New Event</source>
        <translation>Nouvel événement</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="747"/>
        <source>Event Details</source>
        <translation>Détails de l’événement</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="747"/>
        <source>Edit Event</source>
        <translation>Modifier l’événement</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="763"/>
        <source>A repeating event stays in its calendar.</source>
        <translation>Un événement récurrent reste dans son calendrier.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="786"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="786"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location filename="../src/ui/EventFormDialog.cpp" line="801"/>
        <source>This event is in &quot;%1&quot;, which is read-only.</source>
        <translation>Cet événement se trouve dans &quot;%1&quot;, en lecture seule.</translation>
    </message>
</context>
<context>
    <name>EventImport</name>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="52"/>
        <source>Could not read the calendar %1: %2</source>
        <translation>Impossible de lire le calendrier %1&#xa0;: %2</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="54"/>
        <source>There is no calendar %1.</source>
        <translation>Le calendrier %1 n’existe pas.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="56"/>
        <source>The calendar %1 is read-only.</source>
        <translation>Le calendrier %1 est en lecture seule.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="144"/>
        <source>The file %1 is empty.</source>
        <translation>Le fichier %1 est vide.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="148"/>
        <source>The file %1 is not an iCalendar file.</source>
        <translation>Le fichier %1 n’est pas un fichier iCalendar.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="153"/>
        <source>The file %1 holds no events.</source>
        <translation>Le fichier %1 ne contient aucun événement.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="180"/>
        <source>Could not start the import: %1</source>
        <translation>Impossible de démarrer l’importation&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="212"/>
        <source>Could not store the event &quot;%1&quot; from %2; nothing was imported.</source>
        <translation>Impossible d’enregistrer l’événement &quot;%1&quot; de %2&#xa0;; rien n’a été importé.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="220"/>
        <source>Could not save the import: %1</source>
        <translation>Impossible d’enregistrer l’importation&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="231"/>
        <source>Cannot read %1: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="239"/>
        <source>Imported 1 event into %1.</source>
        <translation>1 événement importé dans %1.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="240"/>
        <source>Imported %1 events into %2.</source>
        <translation>%1 événements importés dans %2.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="244"/>
        <source>Updated 1 existing event in %1.</source>
        <translation>1 événement existant mis à jour dans %1.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="245"/>
        <source>Updated %1 existing events in %2.</source>
        <translation>%1 événements existants mis à jour dans %2.</translation>
    </message>
    <message>
        <location filename="../src/storage/EventImport.cpp" line="247"/>
        <source>Imported %1 and updated %2 in %3.</source>
        <translation>Dans %3&#xa0;: %1 importé(s), %2 mis à jour.</translation>
    </message>
</context>
<context>
    <name>EventPopover</name>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="72"/>
        <source>Going</source>
        <translation>Participe</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="74"/>
        <source>Not going</source>
        <translation>Ne participe pas</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="76"/>
        <source>Maybe</source>
        <translation>Peut-être</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="78"/>
        <source>Delegated</source>
        <translation>Délégué</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="79"/>
        <source>Awaiting reply</source>
        <translation>En attente de réponse</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="204"/>
        <location filename="../src/ui/EventPopover.cpp" line="432"/>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="206"/>
        <source>Delete this event (Delete)</source>
        <translation>Supprimer cet événement (Delete)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="207"/>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="209"/>
        <source>Open the event to change it (Enter)</source>
        <translation>Ouvrir l’événement pour le modifier (Enter)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="315"/>
        <source>%1 (read-only)</source>
        <translation>%1 (lecture seule)</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="325"/>
        <source>Join online meeting</source>
        <translation>Rejoindre la réunion en ligne</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="342"/>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="425"/>
        <source>Delete repeating event</source>
        <translation>Supprimer l’événement récurrent</translation>
    </message>
    <message>
        <location filename="../src/ui/EventPopover.cpp" line="428"/>
        <source>Delete event?</source>
        <translation>Supprimer l’événement&#xa0;?</translation>
    </message>
</context>
<context>
    <name>EventTimeEditor</name>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="48"/>
        <source>ddd, MMM d, yyyy</source>
        <translation>ddd d MMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="75"/>
        <source>All day</source>
        <translation>Toute la journée</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="87"/>
        <source>Time zone of the event: its times are shown and edited in it</source>
        <translation>Fuseau horaire de l’événement&#xa0;: ses heures y sont affichées et modifiées</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="254"/>
        <location filename="../src/ui/EventTimeEditor.cpp" line="258"/>
        <source>The event ends before it starts.</source>
        <translation>L’événement se termine avant de commencer.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="256"/>
        <source>&quot;%1&quot; is not a time zone this computer knows.</source>
        <translation>&quot;%1&quot; n’est pas un fuseau horaire connu de cet ordinateur.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventTimeEditor.cpp" line="388"/>
        <source>%1 in your time zone</source>
        <translation>%1 dans votre fuseau horaire</translation>
    </message>
</context>
<context>
    <name>EventWording</name>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="107"/>
        <source>%1 · All day</source>
        <translation>%1 · Toute la journée</translation>
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
        <translation>Tous les %1 jours, le %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="70"/>
        <location filename="../src/ui/EventWording.cpp" line="153"/>
        <source>Every day</source>
        <translation>Tous les jours</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="28"/>
        <source>%1, %2 %3</source>
        <translation>%1 %3 %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="29"/>
        <source>%1, %2 %3, %4</source>
        <translation>%1 %3 %2 %4</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="34"/>
        <source>%1 %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="46"/>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="46"/>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="70"/>
        <source>Every %1 days</source>
        <translation>Tous les %1 jours</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="72"/>
        <source>Every weekday</source>
        <translation>Tous les jours ouvrés</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="74"/>
        <source>Every week on %1</source>
        <translation>Chaque semaine le %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="75"/>
        <source>Every %1 weeks on %2</source>
        <translation>Toutes les %1 semaines le %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="153"/>
        <source>Every %1 weeks, every day</source>
        <translation>Toutes les %1 semaines, tous les jours</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="158"/>
        <source>Every month on day %1</source>
        <translation>Tous les mois le %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="159"/>
        <source>Every %1 months on day %2</source>
        <translation>Tous les %1 mois le %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="162"/>
        <source>Every year on %1</source>
        <translation>Tous les ans le %1</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="163"/>
        <source>Every %1 years on %2</source>
        <translation>Tous les %1 ans le %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="169"/>
        <source>%1, once</source>
        <translation>%1, une fois</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="171"/>
        <source>%1, %2 times</source>
        <translation>%1, %2 fois</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="173"/>
        <source>%1, until %2</source>
        <translation>%1, jusqu’au %2</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="174"/>
        <source>MMMM d, yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="180"/>
        <source>Delete &quot;%1&quot;? You can undo with %2.</source>
        <translation>Supprimer &quot;%1&quot;&#xa0;? Vous pourrez annuler avec %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/EventWording.cpp" line="186"/>
        <source>(No title)</source>
        <translation>(Sans titre)</translation>
    </message>
</context>
<context>
    <name>IcsImportFlow</name>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="53"/>
        <source>Import 1 event from &quot;%1&quot; into:</source>
        <translation>Importer 1 événement de &quot;%1&quot; dans&#xa0;:</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="54"/>
        <source>Import %1 events from &quot;%2&quot; into:</source>
        <translation>Importer %1 événements de &quot;%2&quot; dans&#xa0;:</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="66"/>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="82"/>
        <source>Import Calendar File</source>
        <translation>Importer un fichier de calendrier</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="84"/>
        <source>iCalendar files (*.ics *.ICS);;All files (*)</source>
        <translation>Fichiers iCalendar (*.ics *.ICS);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="92"/>
        <source>Couldn&apos;t open file</source>
        <translation>Impossible d’ouvrir le fichier</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="93"/>
        <source>Couldn&apos;t open &quot;%1&quot; for reading.</source>
        <translation>Impossible d’ouvrir &quot;%1&quot; en lecture.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="101"/>
        <source>Nothing to import</source>
        <translation>Rien à importer</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="102"/>
        <source>No events found in &quot;%1&quot;.</source>
        <translation>Aucun événement trouvé dans &quot;%1&quot;.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="111"/>
        <source>No calendars configured</source>
        <translation>Aucun calendrier configuré</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="112"/>
        <source>Add a writable calendar first; then re-import &quot;%1&quot;.</source>
        <translation>Ajoutez d’abord un calendrier modifiable, puis importez à nouveau &quot;%1&quot;.</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="124"/>
        <source>Importing events…</source>
        <translation>Importation des événements…</translation>
    </message>
    <message>
        <location filename="../src/ui/IcsImportFlow.cpp" line="51"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="125"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="134"/>
        <location filename="../src/ui/IcsImportFlow.cpp" line="137"/>
        <source>Import events</source>
        <translation>Importer des événements</translation>
    </message>
</context>
<context>
    <name>KettUpdate::UpdateDialog</name>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="17"/>
        <source>Update available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="19"/>
        <source>%1 %2 is available. You have %3.</source>
        <translation>%1 %2 est disponible. Vous avez la version %3.</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="28"/>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <location filename="../src/ui/UpdateDialog.cpp" line="29"/>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>MainToolbar</name>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="24"/>
        <source>Show or hide the sidebar</source>
        <translation>Afficher ou masquer la barre latérale</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="26"/>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="28"/>
        <source>Go to today (T)</source>
        <translation>Aller à aujourd’hui (T)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="29"/>
        <source>Previous (Left)</source>
        <translation>Période précédente (Left)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="30"/>
        <source>Next (Right)</source>
        <translation>Période suivante (Right)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="33"/>
        <source>Back (Alt+Left)</source>
        <translation>Retour (Alt+Left)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="34"/>
        <source>Forward (Alt+Right)</source>
        <translation>Avancer (Alt+Right)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="47"/>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="47"/>
        <source>Day view (D)</source>
        <translation>Vue Jour (D)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="48"/>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="48"/>
        <source>Week view (W)</source>
        <translation>Vue Semaine (W)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="49"/>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="49"/>
        <source>Month view (M)</source>
        <translation>Vue Mois (M)</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="53"/>
        <source> days</source>
        <translation> jours</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="54"/>
        <source>Number of days in the multi-day view</source>
        <translation>Nombre de jours de la vue sur plusieurs jours</translation>
    </message>
    <message>
        <location filename="../src/ui/MainToolbar.cpp" line="59"/>
        <source>Quick add: Lunch with Sam tomorrow at 12:30</source>
        <translation>Ajout rapide&#xa0;: Lunch with Sam tomorrow at 12:30</translation>
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
        <translation>Masqués par les règles de filtre&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="108"/>
        <source>Undone: %1</source>
        <translation>Annulé&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="150"/>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="151"/>
        <source>&amp;New Event…</source>
        <translation>&amp;Nouvel événement…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="153"/>
        <source>&amp;Import Calendar File…</source>
        <translation>&amp;Importer un fichier de calendrier…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="159"/>
        <source>&amp;Manage Calendars…</source>
        <translation>&amp;Gérer les calendriers…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="161"/>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="164"/>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="165"/>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="170"/>
        <source>&amp;Quick Add</source>
        <translation>Ajout &amp;rapide</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="176"/>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="183"/>
        <source>&amp;Today</source>
        <translation>&amp;Aujourd’hui</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="184"/>
        <source>&amp;Previous</source>
        <translation>Période &amp;précédente</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="185"/>
        <source>&amp;Next</source>
        <translation>Période s&amp;uivante</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="187"/>
        <source>&amp;Day</source>
        <translation>&amp;Jour</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="188"/>
        <source>&amp;Week</source>
        <translation>&amp;Semaine</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="189"/>
        <source>&amp;Month</source>
        <translation>&amp;Mois</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="191"/>
        <source>&amp;Back</source>
        <translation>Re&amp;tour</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="192"/>
        <source>&amp;Forward</source>
        <translation>A&amp;vancer</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="193"/>
        <source>Zoom &amp;In</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="194"/>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="197"/>
        <source>Show Week &amp;Numbers</source>
        <translation>Afficher les &amp;numéros de semaine</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="202"/>
        <source>24-Hour Clock</source>
        <translation>Format 24 heures</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="209"/>
        <source>T&amp;heme</source>
        <translation>T&amp;hème</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="212"/>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="221"/>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="222"/>
        <source>Add &amp;Sample Data</source>
        <translation>Ajouter des &amp;données d’exemple</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="223"/>
        <source>&amp;Clear Sample Data…</source>
        <translation>&amp;Effacer les données d’exemple…</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="225"/>
        <source>Send &amp;Test Notification</source>
        <translation>Envoyer une notification de &amp;test</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="229"/>
        <source>Notifications need a system tray, and this desktop has none.</source>
        <translation>Les notifications nécessitent une zone de notification, et ce bureau n’en a pas.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="232"/>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="233"/>
        <source>&amp;About Kettlebrook Calendar</source>
        <translation>À &amp;propos de Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="234"/>
        <source>About Kettlebrook Calendar</source>
        <translation>À propos de Kettlebrook Calendar</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="235"/>
        <source>&lt;b&gt;Kettlebrook Calendar&lt;/b&gt; %1&lt;br&gt;Your calendars and tasks, on your desktop.</source>
        <translation>&lt;b&gt;Kettlebrook Calendar&lt;/b&gt; %1&lt;br&gt;Vos calendriers et vos tâches, sur votre bureau.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="281"/>
        <source>Kettlebrook Calendar is still running</source>
        <translation>Kettlebrook Calendar est toujours en cours d’exécution</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="282"/>
        <source>Reminders keep coming. Click the tray icon to open the calendar.</source>
        <translation>Les rappels continuent d’arriver. Cliquez sur l’icône de la zone de notification pour ouvrir le calendrier.</translation>
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
        <translation>dddd d MMMM yyyy</translation>
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
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="448"/>
        <source>Quick-add ignored: no calendars configured.</source>
        <translation>Ajout rapide ignoré&#xa0;: aucun calendrier configuré.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="453"/>
        <source>Quick-add couldn&apos;t parse: &quot;%1&quot;</source>
        <translation>Ajout rapide&#xa0;: impossible d’interpréter &quot;%1&quot;</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="457"/>
        <source>Quick-add couldn&apos;t save: &quot;%1&quot;</source>
        <translation>Ajout rapide&#xa0;: impossible d’enregistrer &quot;%1&quot;</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="460"/>
        <source>Added: %1</source>
        <translation>Ajouté&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="517"/>
        <source>Nothing to sync: this calendar has no remote accounts yet.</source>
        <translation>Rien à synchroniser&#xa0;: ce calendrier n’a pas encore de compte distant.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="523"/>
        <source>Sample data added.</source>
        <translation>Données d’exemple ajoutées.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="528"/>
        <source>Clear sample data?</source>
        <translation>Effacer les données d’exemple&#xa0;?</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="529"/>
        <source>This removes the sample calendars with all their events and tasks.</source>
        <translation>Les calendriers d’exemple seront supprimés avec tous leurs événements et tâches.</translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="538"/>
        <source>Removed %1 sample items.</source>
        <translation>%1 éléments d’exemple supprimés.</translation>
    </message>
</context>
<context>
    <name>ManageSourcesDialog</name>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="75"/>
        <source>Calendars</source>
        <translation>Calendriers</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="79"/>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="86"/>
        <source>New Calendar…</source>
        <translation>Nouveau calendrier…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="87"/>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="88"/>
        <source>Make Default</source>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="89"/>
        <source>Delete…</source>
        <translation>Supprimer…</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="122"/>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="149"/>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="171"/>
        <source>New Calendar</source>
        <translation>Nouveau calendrier</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="155"/>
        <source>On This Device</source>
        <translation>Sur cet appareil</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="171"/>
        <source>The calendar could not be saved.</source>
        <translation>Impossible d’enregistrer le calendrier.</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="180"/>
        <source>Edit Calendar</source>
        <translation>Modifier le calendrier</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="199"/>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="214"/>
        <source>Delete calendar?</source>
        <translation>Supprimer le calendrier&#xa0;?</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="200"/>
        <source>Delete &quot;%1&quot; with all its events and tasks? This cannot be undone.</source>
        <translation>Supprimer &quot;%1&quot; avec tous ses événements et tâches&#xa0;? Cette action est irréversible.</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="214"/>
        <source>The calendar could not be deleted.</source>
        <translation>Impossible de supprimer le calendrier.</translation>
    </message>
</context>
<context>
    <name>MiniMonth</name>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="48"/>
        <source>Month calendar</source>
        <translation>Calendrier mensuel</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="59"/>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <location filename="../src/ui/MiniMonth.cpp" line="61"/>
        <source>Next month</source>
        <translation>Mois suivant</translation>
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
        <translation>Toute la journée</translation>
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
            <numerusform>+%n autre</numerusform>
            <numerusform>+%n autres</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/MonthView.cpp" line="322"/>
        <source>Move repeating event</source>
        <translation>Déplacer l’événement récurrent</translation>
    </message>
</context>
<context>
    <name>NLParser</name>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="391"/>
        <source>the reference time is not valid</source>
        <translation>l’heure de référence n’est pas valide</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="393"/>
        <source>&quot;%1&quot; is not a valid date</source>
        <translation>&quot;%1&quot; n’est pas une date valide</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="395"/>
        <source>&quot;%1&quot; is not a valid time</source>
        <translation>&quot;%1&quot; n’est pas une heure valide</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="397"/>
        <source>&quot;%1&quot; is too long</source>
        <translation>&quot;%1&quot; est trop long</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="400"/>
        <source>&quot;%1&quot; falls outside the years 1 to 9999</source>
        <translation>&quot;%1&quot; est en dehors des années 1 à 9999</translation>
    </message>
    <message>
        <location filename="../src/ical/NLParser.cpp" line="401"/>
        <source>the event would fall outside the years 1 to 9999</source>
        <translation>l’événement serait en dehors des années 1 à 9999</translation>
    </message>
</context>
<context>
    <name>NotificationService</name>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="66"/>
        <source>Starting now (%1)</source>
        <translation>Commence maintenant (%1)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="68"/>
        <source>In %1 minutes (%2)</source>
        <translation>Dans %1 min (%2)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="70"/>
        <source>In %1h (%2)</source>
        <translation>Dans %1 h (%2)</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="72"/>
        <source>Tomorrow at %1</source>
        <translation>Demain à %1</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="78"/>
        <source>Reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="114"/>
        <source>Test reminder</source>
        <translation>Rappel de test</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="115"/>
        <source>If you can see this, your desktop notifications are wired up correctly. Real reminders look just like this one.</source>
        <translation>Si vous voyez ceci, vos notifications de bureau sont correctement configurées. Les vrais rappels ressemblent exactement à celui-ci.</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="125"/>
        <source>At time of event</source>
        <translation>À l’heure de l’événement</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="127"/>
        <source>%1 min before</source>
        <translation>%1 min avant</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="129"/>
        <source>%1 hour(s) before</source>
        <translation>%1 h avant</translation>
    </message>
    <message>
        <location filename="../src/app/NotificationService.cpp" line="130"/>
        <source>%1 day(s) before</source>
        <translation>%1 jour(s) avant</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="50"/>
        <source>Calendar colour</source>
        <translation>Couleur du calendrier</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="56"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location filename="../src/ui/ManageSourcesDialog.cpp" line="57"/>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
</context>
<context>
    <name>RecurrenceScopeDialog</name>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="43"/>
        <source>This is one event of a repeating series. Apply to:</source>
        <translation>Cet événement fait partie d’une série récurrente. Appliquer à&#xa0;:</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="57"/>
        <source>Only this event</source>
        <translation>Cet événement uniquement</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="58"/>
        <source>This and following events</source>
        <translation>Cet événement et les suivants</translation>
    </message>
    <message>
        <location filename="../src/ui/RecurrenceScopeDialog.cpp" line="59"/>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
</context>
<context>
    <name>ReminderListEditor</name>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="32"/>
        <source>Add reminder</source>
        <translation>Ajouter un rappel</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="113"/>
        <source>No reminders</source>
        <translation>Aucun rappel</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="132"/>
        <source>Remove this reminder</source>
        <translation>Supprimer ce rappel</translation>
    </message>
    <message>
        <location filename="../src/ui/ReminderListEditor.cpp" line="133"/>
        <source>Remove reminder %1</source>
        <translation>Supprimer le rappel %1</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="110"/>
        <source>Views</source>
        <translation>Vues</translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="113"/>
        <source>Calendars</source>
        <translation>Calendriers</translation>
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
        <translation>Modifier la durée de l’événement récurrent</translation>
    </message>
    <message>
        <location filename="../src/ui/TimelineView.cpp" line="221"/>
        <source>Move repeating event</source>
        <translation>Déplacer l’événement récurrent</translation>
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
        <translation>Ouvrir le calendrier</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="35"/>
        <source>New Event…</source>
        <translation>Nouvel événement…</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="36"/>
        <source>Sync Now</source>
        <translation>Synchroniser maintenant</translation>
    </message>
    <message>
        <location filename="../src/ui/TrayManager.cpp" line="38"/>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>ViewList</name>
    <message>
        <location filename="../src/ui/ViewList.cpp" line="16"/>
        <source>Views</source>
        <translation>Vues</translation>
    </message>
</context>
<context>
    <name>kbcal</name>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="53"/>
        <source>cannot create the data folder %1</source>
        <translation>impossible de créer le dossier de données %1</translation>
    </message>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="61"/>
        <source>cannot open the calendar database in %1: %2</source>
        <translation>impossible d’ouvrir la base de données du calendrier dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/CommandContext.cpp" line="63"/>
        <source>cannot prepare the calendar database in %1: %2</source>
        <translation>impossible de préparer la base de données du calendrier dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="14"/>
        <source>Create or migrate the database.</source>
        <translation>Créer ou migrer la base de données.</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="15"/>
        <source>Creates the calendar database in the data folder, or brings an existing one up to date.</source>
        <translation>Crée la base de données du calendrier dans le dossier de données, ou met à jour une base existante.</translation>
    </message>
    <message>
        <location filename="../src/cli/InitCommand.cpp" line="28"/>
        <source>Database ready: %1 (schema version %2)</source>
        <translation>Base de données prête&#xa0;: %1 (version du schéma %2)</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="23"/>
        <source>enabled</source>
        <translation>activé</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="23"/>
        <source>disabled</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="25"/>
        <source>last sync %1</source>
        <translation>dernière synchronisation %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="27"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="35"/>
        <source>sync error: %1</source>
        <translation>erreur de synchronisation&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="38"/>
        <source>List the accounts.</source>
        <translation>Lister les comptes.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="39"/>
        <source>Lists the accounts (calendar sources) in the order the desktop program shows them. Removed accounts whose removal has not been synced yet are not listed. With --json, prints the account records.</source>
        <translation>Liste les comptes (sources de calendriers) dans l’ordre où le programme de bureau les affiche. Les comptes supprimés dont la suppression n’a pas encore été synchronisée ne sont pas listés. Avec --json, affiche les enregistrements des comptes.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="52"/>
        <source>No accounts.</source>
        <translation>Aucun compte.</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>NAME</source>
        <translation>NOM</translation>
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
        <translation>TYPE</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>SERVER</source>
        <translation>SERVEUR</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="55"/>
        <source>USER</source>
        <translation>UTILISATEUR</translation>
    </message>
    <message>
        <location filename="../src/cli/AccountsCommand.cpp" line="56"/>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>STATE</source>
        <translation>ÉTAT</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="27"/>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="27"/>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="43"/>
        <source>Title:    %1</source>
        <translation>Titre&#xa0;:            %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="44"/>
        <source>Start:    %1</source>
        <translation>Début&#xa0;:            %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="45"/>
        <source>End:      %1</source>
        <translation>Fin&#xa0;:              %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="46"/>
        <source>All day:  %1</source>
        <translation>Toute la journée&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="47"/>
        <source>Has time: %1</source>
        <translation>Heure précisée&#xa0;:   %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="57"/>
        <source>Add an event from one line of text (quick-add).</source>
        <translation>Ajouter un événement à partir d’une ligne de texte (ajout rapide).</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="58"/>
        <source>Joins the words into one line and reads it as the desktop quick-add box does, for example:
  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min
T is an ISO 8601 date-time (2024-01-05T09:00:00Z, 2024-01-05T10:00:00+01:00, or local time without an offset) or a date (2024-01-05, local midnight). With --dry-run nothing is stored and the reading is printed. Put -- before the text when one of its words begins with a dash.</source>
        <translation>Réunit les mots en une ligne et la lit comme le champ d’ajout rapide du programme de bureau, par exemple&#xa0;:
  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min
T est une date et heure ISO 8601 (2024-01-05T09:00:00Z, 2024-01-05T10:00:00+01:00, ou heure locale sans décalage) ou une date (2024-01-05, minuit heure locale). Avec --dry-run, rien n’est enregistré et l’interprétation est affichée. Placez -- avant le texte lorsqu’un de ses mots commence par un tiret.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="65"/>
        <source>Add the event to the calendar with this id.</source>
        <translation>Ajouter l’événement au calendrier portant cet identifiant.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="67"/>
        <source>Read the text as if it were this time (default: now).</source>
        <translation>Lire le texte comme s’il était cette heure-là (par défaut&#xa0;: maintenant).</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="69"/>
        <source>Print how the text is read; store nothing.</source>
        <translation>Afficher l’interprétation du texte&#xa0;; ne rien enregistrer.</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="76"/>
        <source>the text of the event is empty</source>
        <translation>le texte de l’événement est vide</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="82"/>
        <source>&apos;%1&apos; is not a date or date-time for --now</source>
        <translation>&apos;%1&apos; n’est ni une date ni une date et heure pour --now</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="104"/>
        <source>the event could not be stored in %1</source>
        <translation>impossible d’enregistrer l’événement dans %1</translation>
    </message>
    <message>
        <location filename="../src/cli/AddCommand.cpp" line="113"/>
        <source>Added &quot;%1&quot; on %2 to %3</source>
        <translation>&quot;%1&quot; ajouté le %2 à %3</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="57"/>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="26"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="103"/>
        <source>all day</source>
        <translation>toute la journée</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="84"/>
        <source>No events from %1 to %2.</source>
        <translation>Aucun événement du %1 au %2.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="100"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="94"/>
        <source>(no title)</source>
        <translation>(sans titre)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="106"/>
        <source>(dimmed)</source>
        <translation>(estompé)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="108"/>
        <source>(reminders off)</source>
        <translation>(rappels désactivés)</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="114"/>
        <source>1 event hidden by filter rules.</source>
        <translation>1 événement masqué par les règles de filtre.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="115"/>
        <source>%1 events hidden by filter rules.</source>
        <translation>%1 événements masqués par les règles de filtre.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="141"/>
        <source>Show the events of a span of days.</source>
        <translation>Afficher les événements d’une période.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="142"/>
        <source>Shows the occurrences of the stored events from --from (default: today at 00:00 local time) up to, not including, --to, or for --days days (default: 7), exactly as the calendar views show them: recurring events expanded, and the enabled filter rules applied (hidden events are counted, dimmed ones marked). A date without a time is local midnight. Without --calendar, the visible calendars are shown.</source>
        <translation>Affiche les occurrences des événements enregistrés de --from (par défaut&#xa0;: aujourd’hui à 00:00, heure locale) jusqu’à --to non compris, ou pendant --days jours (par défaut&#xa0;: 7), exactement comme les vues du calendrier les montrent&#xa0;: événements récurrents développés et règles de filtre actives appliquées (les événements masqués sont comptés, les estompés sont signalés). Une date sans heure désigne minuit, heure locale. Sans --calendar, les calendriers visibles sont affichés.</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="148"/>
        <source>Start of the span (date or date-time).</source>
        <translation>Début de la période (date ou date et heure).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="150"/>
        <source>End of the span, not included (date or date-time).</source>
        <translation>Fin de la période, non comprise (date ou date et heure).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="152"/>
        <source>Length of the span in days (1 to 36600).</source>
        <translation>Durée de la période en jours (de 1 à 36600).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="154"/>
        <source>Show this calendar (repeatable).</source>
        <translation>Afficher ce calendrier (répétable).</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="164"/>
        <source>invalid date for --from: &apos;%1&apos;</source>
        <translation>date non valide pour --from&#xa0;: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="167"/>
        <source>--to and --days cannot be used together</source>
        <translation>--to et --days ne peuvent pas être utilisés ensemble</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="173"/>
        <source>invalid date for --to: &apos;%1&apos;</source>
        <translation>date non valide pour --to&#xa0;: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="175"/>
        <source>--to must be later than the start of the span</source>
        <translation>--to doit être postérieur au début de la période</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="181"/>
        <source>invalid number of days: &apos;%1&apos;</source>
        <translation>nombre de jours non valide&#xa0;: &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/AgendaCommand.cpp" line="200"/>
        <source>no calendar with the id %1</source>
        <translation>aucun calendrier avec l’identifiant %1</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="25"/>
        <source>default</source>
        <translation>par défaut</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="27"/>
        <source>hidden</source>
        <translation>masqué</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="29"/>
        <source>read-only</source>
        <translation>lecture seule</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="31"/>
        <source>shared</source>
        <translation>partagé</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="33"/>
        <source>shared with me</source>
        <translation>partagé avec moi</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="46"/>
        <source>List the calendars.</source>
        <translation>Lister les calendriers.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="47"/>
        <source>Lists every calendar in the order the desktop program shows them, with its account, colour and state. With --json, prints the calendar records.</source>
        <translation>Liste tous les calendriers dans l’ordre où le programme de bureau les affiche, avec leur compte, leur couleur et leur état. Avec --json, affiche les enregistrements des calendriers.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="59"/>
        <source>No calendars.</source>
        <translation>Aucun calendrier.</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>ACCOUNT</source>
        <translation>COMPTE</translation>
    </message>
    <message>
        <location filename="../src/cli/CalendarsCommand.cpp" line="66"/>
        <source>COLOUR</source>
        <translation>COULEUR</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="24"/>
        <source>Print exactly one JSON document on standard output.</source>
        <translation>Écrire exactement un document JSON sur la sortie standard.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="29"/>
        <source>Report progress of long work on standard error.</source>
        <translation>Signaler la progression des longs traitements sur la sortie d’erreur standard.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="34"/>
        <source>Use the calendar data in DIR.</source>
        <translation>Utiliser les données de calendrier de DIR.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="40"/>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="92"/>
        <source>missing value for --data-dir</source>
        <translation>valeur manquante pour --data-dir</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="97"/>
        <source>unknown option &apos;%1&apos;</source>
        <translation>option inconnue &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="101"/>
        <source>missing command</source>
        <translation>commande manquante</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="115"/>
        <source>unknown command &apos;%1&apos;</source>
        <translation>commande inconnue &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="140"/>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="155"/>
        <source>missing argument</source>
        <translation>argument manquant</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="158"/>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argument inattendu &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="168"/>
        <source>The command-line companion of Kettlebrook Calendar: the same calendar store, from a terminal.</source>
        <translation>Le compagnon en ligne de commande de Kettlebrook Calendar&#xa0;: les mêmes calendriers, depuis un terminal.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="170"/>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="174"/>
        <source>Global options:</source>
        <translation>Options globales&#xa0;:</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="176"/>
        <source>Use the calendar data in DIR (default: CALENDAR_DATA_DIR, else the desktop program&apos;s data folder).</source>
        <translation>Utiliser les données de calendrier de DIR (par défaut&#xa0;: CALENDAR_DATA_DIR, sinon le dossier de données du programme de bureau).</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="179"/>
        <source>Show the program&apos;s log output on standard error.</source>
        <translation>Afficher le journal du programme sur la sortie d’erreur standard.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="180"/>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="182"/>
        <source>Run &apos;kbcal COMMAND --help&apos; for the options of a command.</source>
        <translation>Lancez &apos;kbcal COMMAND --help&apos; pour voir les options d’une commande.</translation>
    </message>
    <message>
        <location filename="../src/cli/Cli.cpp" line="191"/>
        <source>Run &apos;kbcal --help&apos; for the list of commands.</source>
        <translation>Lancez &apos;kbcal --help&apos; pour voir la liste des commandes.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="81"/>
        <source>Write the stored events as one iCalendar object.</source>
        <translation>Écrire les événements enregistrés sous forme d’un objet iCalendar.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="82"/>
        <source>Writes the events of the named calendars (every calendar when none is named) to standard output as one iCalendar object, each event in the text it was stored with.</source>
        <translation>Écrit sur la sortie standard les événements des calendriers indiqués (tous si aucun n’est indiqué) sous forme d’un seul objet iCalendar, chaque événement dans le texte avec lequel il a été enregistré.</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="85"/>
        <source>Export the calendar ID (may be repeated).</source>
        <translation>Exporter le calendrier ID (répétable).</translation>
    </message>
    <message>
        <location filename="../src/cli/ExportCommand.cpp" line="101"/>
        <location filename="../src/cli/TasksCommand.cpp" line="57"/>
        <source>there is no calendar %1</source>
        <translation>le calendrier %1 n’existe pas</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="57"/>
        <source>Expand the events of iCalendar text over a span.</source>
        <translation>Développer les événements d’un texte iCalendar sur une période.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="59"/>
        <source>Reads iCalendar text from FILE, or from standard input when FILE is &apos;-&apos; or absent, and lists the occurrences of its events in the span [--from, --to) exactly as the calendar views show them: single events first, then each series&apos; occurrences with changed occurrences in place. T is an ISO 8601 date-time or a date (local midnight). No database is used.</source>
        <translation>Lit du texte iCalendar depuis FILE, ou depuis l’entrée standard lorsque FILE vaut &apos;-&apos; ou est absent, et liste les occurrences de ses événements dans la période [--from, --to) exactement comme les vues du calendrier les montrent&#xa0;: d’abord les événements simples, puis les occurrences de chaque série avec les occurrences modifiées à leur place. T est une date et heure ISO 8601 ou une date (minuit, heure locale). Aucune base de données n’est utilisée.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="65"/>
        <source>Start of the span (included).</source>
        <translation>Début de la période (inclus).</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="66"/>
        <source>End of the span (excluded).</source>
        <translation>Fin de la période (exclue).</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="72"/>
        <source>both --from and --to are required</source>
        <translation>--from et --to sont tous deux requis</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="75"/>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="78"/>
        <source>invalid time &apos;%1&apos;</source>
        <translation>heure non valide &apos;%1&apos;</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="80"/>
        <source>the span is empty: --to must be after --from</source>
        <translation>la période est vide&#xa0;: --to doit être après --from</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsExpandCommand.cpp" line="89"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="134"/>
        <location filename="../src/cli/IcsParseCommand.cpp" line="137"/>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="105"/>
        <source>repeats %1</source>
        <translation>se répète %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="107"/>
        <source>changed occurrence %1</source>
        <translation>occurrence modifiée %1</translation>
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
        <translation>échéance %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="118"/>
        <source>categories %1</source>
        <translation>catégories %1</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="159"/>
        <source>No events or tasks found.</source>
        <translation>Aucun événement ni aucune tâche trouvés.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="171"/>
        <source>Read iCalendar text and print its events and tasks.</source>
        <translation>Lire du texte iCalendar et afficher ses événements et ses tâches.</translation>
    </message>
    <message>
        <location filename="../src/cli/IcsParseCommand.cpp" line="173"/>
        <source>Reads iCalendar text from FILE, or from standard input when FILE is - or absent, with the calendar&apos;s own reader, and prints the events and the tasks it finds, each in the order of the text. The calendar database is not touched.</source>
        <translation>Lit du texte iCalendar depuis FILE, ou depuis l’entrée standard lorsque FILE vaut - ou est absent, avec le lecteur du calendrier lui-même, et affiche les événements et les tâches trouvés, chacun dans l’ordre du texte. La base de données du calendrier n’est pas modifiée.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="27"/>
        <source>Import the events of an iCalendar file.</source>
        <translation>Importer les événements d’un fichier iCalendar.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="29"/>
        <source>Imports the events of FILE into a calendar: --calendar, else the calendar chosen for new events (the preference ui/defaultCalendarId, else the default calendar, else the first one). An event already in the calendar (same UID and recurrence id) is updated, any other is added. Either the whole file is imported or, on an error, nothing.</source>
        <translation>Importe les événements de FILE dans un calendrier&#xa0;: --calendar, sinon le calendrier choisi pour les nouveaux événements (la préférence ui/defaultCalendarId, sinon le calendrier par défaut, sinon le premier). Un événement déjà présent dans le calendrier (même UID et même identifiant de récurrence) est mis à jour, tout autre est ajouté. Soit le fichier entier est importé, soit, en cas d’erreur, rien ne l’est.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="34"/>
        <source>Import into the calendar ID.</source>
        <translation>Importer dans le calendrier ID.</translation>
    </message>
    <message>
        <location filename="../src/cli/ImportCommand.cpp" line="51"/>
        <source>Importing: %1 of %2 events</source>
        <translation>Importation&#xa0;: %1 événements sur %2</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="36"/>
        <source>Add a sample week of events and tasks.</source>
        <translation>Ajouter une semaine d’exemple avec des événements et des tâches.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="38"/>
        <source>Adds the account &quot;Sample Data&quot; with four calendars, a week of events around today and a few tasks, to show what the calendar looks like. Whatever of it is already there is left as it is. &apos;kbcal sample-data remove&apos; takes it away again.</source>
        <translation>Ajoute le compte &quot;Sample Data&quot; avec quatre calendriers, une semaine d’événements autour d’aujourd’hui et quelques tâches, pour montrer à quoi ressemble le calendrier. Ce qui en existe déjà est laissé tel quel. &apos;kbcal sample-data remove&apos; le retire.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="64"/>
        <source>Sample data: %1 calendars, %2 events, %3 tasks.</source>
        <translation>Données d’exemple&#xa0;: %1 calendriers, %2 événements, %3 tâches.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="80"/>
        <source>Remove the sample events, tasks, calendars and account.</source>
        <translation>Retirer les événements, tâches, calendriers et le compte d’exemple.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="81"/>
        <source>Deletes everything &apos;kbcal sample-data add&apos; created and prints how many rows went.</source>
        <translation>Supprime tout ce que &apos;kbcal sample-data add&apos; a créé et indique combien de lignes ont été retirées.</translation>
    </message>
    <message>
        <location filename="../src/cli/SampleDataCommand.cpp" line="90"/>
        <source>Removed %1 sample rows.</source>
        <translation>%1 lignes d’exemple retirées.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="34"/>
        <source>there is no task %1</source>
        <translation>la tâche %1 n’existe pas</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="36"/>
        <source>could not change the task %1</source>
        <translation>impossible de modifier la tâche %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="44"/>
        <source>Reopened: %1</source>
        <translation>Rouverte&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="46"/>
        <source>Completed: %1</source>
        <translation>Terminée&#xa0;: %1</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="48"/>
        <source>Done; next due %1: %2</source>
        <translation>Fait&#xa0;; prochaine échéance %1&#xa0;: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="50"/>
        <source>Done; next start %1: %2</source>
        <translation>Fait&#xa0;; prochain début %1&#xa0;: %2</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="78"/>
        <source>Complete a task.</source>
        <translation>Terminer une tâche.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="79"/>
        <source>Marks the task ID as completed. A repeating task is not closed: it moves on to its next date and stays open. Prints the task after the change.</source>
        <translation>Marque la tâche ID comme terminée. Une tâche récurrente n’est pas close&#xa0;: elle passe à sa date suivante et reste ouverte. Affiche la tâche après la modification.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="86"/>
        <source>Reopen a completed task.</source>
        <translation>Rouvrir une tâche terminée.</translation>
    </message>
    <message>
        <location filename="../src/cli/TaskCommand.cpp" line="87"/>
        <source>Marks the task ID as not completed. Prints the task after the change.</source>
        <translation>Marque la tâche ID comme non terminée. Affiche la tâche après la modification.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="40"/>
        <source>List tasks.</source>
        <translation>Lister les tâches.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="42"/>
        <source>Lists the tasks of the calendar ID, or of every calendar, by due date; tasks without a due date come last in each calendar. Deleted tasks are not listed.</source>
        <translation>Liste les tâches du calendrier ID, ou de tous les calendriers, par date d’échéance&#xa0;; les tâches sans échéance viennent en dernier dans chaque calendrier. Les tâches supprimées ne sont pas listées.</translation>
    </message>
    <message>
        <location filename="../src/cli/TasksCommand.cpp" line="45"/>
        <source>List the tasks of the calendar ID.</source>
        <translation>Lister les tâches du calendrier ID.</translation>
    </message>
</context>
</TS>
