<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>In der Zwischenablage sind keine Dateien</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Dateien hinzufügen …</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Alles oder nichts</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Alles oder nichts: Ein Lauf benennt alle Dateien der Liste um oder keine</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1: nichts wird umbenannt, da %2 nicht möglich</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Neue Namen bisher: %1 von %2. Alles zurücksetzen oder Erledigtes behalten?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Erledigtes behalten</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Soweit möglich umbenennen</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Nichts wurde umbenannt, da nicht jede Datei umbenannt werden kann.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Nichts wurde umbenannt: Eine Datei schlug fehl, und die anderen haben wieder ihre alten Namen.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Nichts wurde umbenannt: Der Lauf wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>Der Lauf konnte nicht ganz zurückgesetzt werden; Dateien ohne ihren alten Namen: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Nichts wurde umbenannt: Das Protokoll des Laufs kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>Der Lauf ist noch nicht zu Ende.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>Datei &apos;%1&apos; konnte nicht zurückgesetzt werden: Sie heißt &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Diese Meldung nicht mehr anzeigen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Globale Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Erweiterungen</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Spenden</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Erfordert einen Registrierungseintrag</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Beim Systemstart ausführen</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Minimiert starten</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Startbild nicht anzeigen</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Fensteraufteilung wiederherstellen</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Fenstergröße und -position wiederherstellen</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>In den Infobereich minimieren</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Automatisch nach neuer Version suchen</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>Übersetzung: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Dieses Projekt unterstützen</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Dieses Programm ist Freeware und wird immer kostenlos bleiben. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Mit einem kleinen Beitrag helfen Sie uns, unsere Produkte zu entwickeln, zu verbessern und zu pflegen.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Programmordner</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Datenordner des Programms</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Unsere Website besuchen</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Rückmeldung senden</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Entwickelt von Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>Der Befehl wurde erfolgreich ausgeführt.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>Der Befehl konnte nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Stellen Sie sicher, dass Sie über Administratorrechte verfügen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>Automatisch nach neuen Versionen suchen</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Wir danken Ihnen für Ihr Vertrauen und wünschen Ihnen viel Freude mit diesem Programm.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Entdecken Sie weitere Produkte von uns:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Wir suchen Muttersprachler als Übersetzer.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Bitte kontaktieren Sie uns unter: </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>Fotos nummerieren</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Leerzeichen statt Unterstriche</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Groß- und Kleinschreibung ordnen</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Ohne Kamerakürzel</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Datum als 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Titelnummern zweistellig</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>„Titel - Interpret“ statt „Interpret - Titel“</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>die Datei ist nicht vorhanden</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>der neue Name ist leer oder besteht nur aus Punkten</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>das Dateisystem nimmt den neuen Namen nicht an</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>der neue Name ist zu lang</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>in diesem Ordner lässt sich nichts umbenennen</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>der neue Name enthält ein halbes Zeichen</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>das System hat es abgelehnt</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>der Name ist vergeben</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>Zeile %1 bekommt den Namen %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>Zeile %1 hat noch den Namen %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 behält ihren Namen</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 behalten ihren Namen</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>Prüfung läuft …</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>Zur nächsten problematischen Zeile (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 ausgewählt</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1: %2 umbenennbar, %3, %4 nicht möglich</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1: %2 umbenennbar, %3, %4 nicht möglich, %5 unklar</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Behält ihren Namen.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>Lässt sich vor dem Umbenennen nicht sagen.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Bleibt unverändert: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Wird in den Ordner %1 verschoben.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>Der neue Name führt in den Ordner %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Nicht umbenannt: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Details anzeigen …</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Nicht umbenannt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>eine andere Datei hat ihren Namen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Aktive Regeln</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Dateiliste</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Namensfilter</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Vollständigen Pfad anzeigen</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Programmprotokoll</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Protokolle speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Debug-Meldungen einbeziehen</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Protokollordner öffnen</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Globale Einstellungen</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Datei-Explorer</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Bitte warten</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Dateien werden erfasst</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Umbenennen der Dateien gestartet</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Umbenennen fehlgeschlagen für Datei</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Verarbeitet</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Bitte unterstützen Sie uns, wenn Ihnen dieses Programm gefällt und unser Angebot bestehen bleiben soll.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Vielen Dank!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>Das Programm wurde minimiert.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Klicken Sie zum Anzeigen auf das Symbol im Infobereich.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Immer im Vordergrund</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Letzten Lauf rückgängig machen</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Rückgängig, Wiederholen und frühere Läufe</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Dateien und Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Dateien sortieren</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Ziehen Sie Dateien oder Ordner hierher, oder drücken Sie Strg+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Wählen Sie oben eine Art von Regel, füllen Sie ihre Felder aus und drücken Sie „%1“</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Zeitüberschreitung bei einer Socket-Operation</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>Alles au&amp;swählen</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Er&amp;höhen</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Verringern</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Abdocken</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Dockt das Andockfenster ab oder wieder an</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Schließt das Andockfenster</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Zur Detailansicht wechseln</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Zur Listenansicht wechseln</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Einen neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detailansicht</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Zurückgehen</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vorwärtsgehen</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Zum übergeordneten Ordner gehen</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Listenansicht</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Liste der Orte und Lesezeichen</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Versteckte Dateien anzeigen</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist schon vorhanden.
Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Die Datei wurde nicht gefunden.
Bitte prüfen Sie den Dateinamen.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Zeige </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Aus&amp;wählen</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Der Ordner wurde nicht gefunden.
Bitte prüfen Sie, ob der Name stimmt.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Änderungsdatum</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Verbindung verweigert</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Verbindung beendet</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Host %1 nicht gefunden</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Host nicht erreichbar</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Netzwerk nicht erreichbar</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierher scrollen</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unterer Rand</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Seite nach links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Seite nach oben</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Seite nach rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Seite nach unten</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links scrollen</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben scrollen</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Nach rechts scrollen</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten scrollen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadresse kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Diese Werte an die Stelle der Regel setzen</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Die Regel lassen, wie sie ist</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Regelsätze</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Regelsätze</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Die aktiven Regeln unter einem Namen speichern und wieder laden</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>Die Regeln wurden seitdem geändert.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Verwalten …</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Datei öffnen …</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Regelsätze</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>Die aktiven Regeln sind nicht gespeichert. Sollen sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Es gibt schon einen Regelsatz „%1“. Soll er ersetzt werden?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>Den Regelsatz „%1“ löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Regelsatz speichern</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Name des Regelsatzes</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Regelsatz öffnen</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>Aus %1 wurden keine Regeln geladen:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>Der Regelsatz konnte nicht gespeichert werden:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>Der Regelsatz konnte nicht gelöscht werden:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>Der Regelsatz konnte nicht umbenannt werden:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>Regel %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>muss ein Objekt sein</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>Zeile %1 ist kein JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>muss ein Text von höchstens %1 Zeichen sein</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>muss ein Name ohne Leerzeichen am Anfang und Ende sein</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>muss eine ganze Zahl von %1 bis %2 sein</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>muss true oder false sein</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>muss %1 sein</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>muss eines von diesen sein: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>muss eine Liste von höchstens %1 Regeln sein</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>eine neuere Version des Programms hat diese Datei geschrieben</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>dieses Feld ist nicht bekannt</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>ein anderer Regelsatz hat diesen Namen</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>die Datei mit dem alten Namen ließ sich nicht entfernen</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Großbuchstaben</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Jedes Wort groß beginnen</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Dateiendung ignorieren</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Nummerieren</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Startwert</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Führende Nullen</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Text einfügen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Suchen nach</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Kürzen</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>Kein gültiges Muster: Es wird nichts ändern.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Dieses Muster würde zu lange dauern: Es wird nichts ändern.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Groß- und Kleinbuchstaben werden unterschieden; gefunden wird so viel wie möglich.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>ein beliebiges Zeichen</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>der Punkt selbst</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>eines dieser Zeichen</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>jedes andere Zeichen</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>eine Ziffer</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>ein Buchstabe, eine Ziffer oder _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>ein Leerzeichen</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>beliebig viele a, auch keines</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>ein a oder mehr</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>ein a oder keines</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>zwei bis vier a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>entweder ab oder cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>der Anfang des Namens</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>das Ende des Namens</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>eine Gruppe: \1 im neuen Text ist, was sie gefunden hat</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Ein Rückgängigmachen wurde unterbrochen; der Rest kann noch zurückgenommen werden</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>Der Lauf von %1 wurde unterbrochen; was er umbenannt hat, kann zurückgenommen werden</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Dieser Lauf kann nicht rückgängig gemacht werden</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>Die letzten Umbenennungen dieses Laufs können nicht rückgängig gemacht werden: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 Ordner</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>1 Umbenennung (%1) im Ordner %2 zurücknehmen</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>%1 Umbenennungen (%2) im Ordner %3 zurücknehmen</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Ein anderes Fenster des Programms arbeitet gerade an diesem Lauf.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Dieser Lauf stammt von einem anderen Rechner oder von einer neueren Programmversion.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Ein späterer Lauf hat einige dieser Dateien umbenannt. Nehmen Sie zuerst diesen zurück.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>Von diesem Lauf ist nichts mehr zurückzunehmen.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Zurücknehmen gestartet</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>Umbenennung der Datei &apos;%1&apos; konnte nicht zurückgenommen werden: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>%1 Umbenennungen (%2) in %3 Ordnern zurücknehmen</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>teilweise zurückgenommen</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>zurückgenommen</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>in Arbeit</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>von einem anderen Rechner</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>von einer neueren Version</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, später erneut umbenannt</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>Der Lauf von %1 hat einige dieser Dateien umbenannt. Nehmen Sie zuerst diesen zurück.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Dateien zeigen</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Alle vergessen</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Alle Läufe vergessen? Die Dateien bleiben, wie sie sind, und kein Lauf kann mehr zurückgenommen werden.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>Dateien des Laufs von %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Alter Name</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>hat den neuen Namen</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>hat den alten Namen</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>dort ist eine andere Datei</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>ist nicht da</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Läufe …</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Dieser Lauf wurde unterbrochen; „Läufe …“ kann ihn auch zu Ende führen</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Dieser Lauf sollte alle Dateien umbenennen oder keine und wurde unterbrochen. Führen Sie ihn zu Ende, setzen Sie alles zurück, oder belassen Sie die Dateien, wie sie sind.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zu Ende führen</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>So belassen</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Ein Lauf wird zu Ende geführt</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>Der Lauf von %1 wurde unterbrochen; „Läufe …“ kann ihn zu Ende führen oder zurücksetzen</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Dateiendung</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Änderungszeit</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Reihenfolge des Hinzufügens</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, aufsteigend</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, absteigend</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Fehler bei der Datenübertragung</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Versionsprüfung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Fehler bei der Verbindung zum Server.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Bitte prüfen Sie selbst unter:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>Eine neue Version ist verfügbar!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Möchten Sie sie jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>Was ist neu?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Version überspringen</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>Sie verwenden die neueste Version.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
