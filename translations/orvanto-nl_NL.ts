<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>Er staan geen bestanden op het klembord</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Map toevoegen</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Bestanden toevoegen</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Bestanden toevoegen…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Map toevoegen…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Alles of niets</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Alles of niets: een uitvoering hernoemt alle bestanden van de lijst, of geen</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1: er wordt niets hernoemd (%2 niet mogelijk)</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Nieuwe namen tot nu toe: %1 van %2. Alles terugzetten, of behouden wat klaar is?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Alles terugzetten</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Behouden wat klaar is</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Hernoemen wat kan</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Er is niets hernoemd, want niet elk bestand kan worden hernoemd.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Er is niets hernoemd: één bestand is mislukt, en de andere hebben hun oude naam weer.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Er is niets hernoemd: de uitvoering is geannuleerd.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>De uitvoering kon niet helemaal worden teruggezet; bestanden zonder hun oude naam: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Er is niets hernoemd: het logboek van de uitvoering kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>De uitvoering is nog niet voltooid.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>Kon bestand &apos;%1&apos; niet terugzetten: het heet &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Dit bericht niet meer tonen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Mededeling</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Algemene instellingen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Uitbreidingen</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Doneren</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Vereist een vermelding in het register</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Starten bij opstarten van het systeem</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Minimaliseren bij het starten</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Opstartscherm uitschakelen</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Vensterindeling herstellen</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Venstergrootte en -positie herstellen</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Minimaliseren naar systeemvak</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Automatisch controleren op nieuwe versie</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Nu controleren</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>Vertaling: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Steun dit project</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Dit programma is freeware en blijft altijd gratis. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Met een kleine bijdrage helpt u ons onze producten te ontwikkelen, te verbeteren en te onderhouden.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Programmamap</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Map met programmagegevens</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Onze website bezoeken</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Feedback sturen</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Gemaakt door Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>De opdracht is voltooid.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>De opdracht kon niet worden uitgevoerd.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Zorg dat u beheerdersrechten hebt.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>Automatisch controleren op nieuwe versies</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Volgende</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Wij danken u voor uw vertrouwen en wensen u veel plezier met dit programma.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Ontdek onze andere producten:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Wij zoeken moedertaalsprekers als vertalers.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Neem contact met ons op via: </translation>
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
        <translation>Foto’s nummeren</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Spaties in plaats van underscores</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Hoofdletters en kleine letters opschonen</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Zonder cameravoorvoegsels</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Datums als 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Tracknummers met twee cijfers</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>“Titel - Artiest” in plaats van “Artiest - Titel”</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>het bestand is er niet</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>de nieuwe naam is leeg of bestaat alleen uit punten</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>die map bestaat niet</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>het bestandssysteem accepteert de nieuwe naam niet</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>de nieuwe naam is te lang</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>in deze map kan niets worden hernoemd</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>de nieuwe naam bevat een half teken</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>het systeem heeft geweigerd</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>de naam is al in gebruik</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>rij %1 krijgt de naam %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>rij %1 heeft nog de naam %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 bestand</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 bestanden</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 houdt zijn naam</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 houden hun naam</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>controleren…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>Naar de volgende rij met een probleem (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 geselecteerd</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1: %2 met nieuwe naam, %3, %4 niet mogelijk</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1: %2 met nieuwe naam, %3, %4 niet mogelijk, %5 onbekend</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Houdt zijn naam.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>Niet te zeggen vóór het hernoemen.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Blijft zoals het is: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Wordt verplaatst naar de map %1.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>De nieuwe naam leidt naar de map %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Niet hernoemd: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Details tonen…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Niet hernoemd</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nieuwe naam</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>een ander bestand heeft die naam</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Regels</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Actieve regels</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschappen</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Lijst wissen</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Bestandslijst</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Naamfilter</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorvertoning</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Volledig pad tonen</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Programmalogboek</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Logboeken opslaan</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Debugberichten opnemen</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Logboekmap openen</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Algemene instellingen</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Bestandsverkenner</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Even geduld</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Bestanden verzamelen</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Hernoemen van bestanden gestart</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Hernoemen mislukt voor bestand</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totaal</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Verwerkt</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Steun ons als dit programma u bevalt en u onze dienst in stand wilt houden.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Hartelijk dank!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>Het programma is geminimaliseerd.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Klik op het pictogram in het systeemvak om het te tonen.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Altijd op de voorgrond</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Laatste uitvoering ongedaan maken</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Ongedaan maken, opnieuw en eerdere uitvoeringen</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Bestanden en mappen toevoegen</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Bestanden sorteren</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Sleep bestanden of mappen hierheen, of druk op Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Kies hierboven een soort regel, vul de velden in en druk op “%1”</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Persoonlijke map</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureaublad</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muziek</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenten</translation>
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
        <translation>Station</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-bestand</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Time-out bij een socketbewerking</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles selecteren</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Verhogen</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Ver&amp;lagen</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Losmaken</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Maakt het paneel los of weer vast</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Sluit het paneel</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nieuwe map</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Openen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Hernoemen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Opslaan</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Naar detailweergave gaan</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Naar lijstweergave gaan</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Nieuwe map maken</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Een nieuwe map maken</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detailweergave</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Bestands&amp;naam:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Bestanden van type:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vooruit</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Teruggaan</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vooruitgaan</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Naar de bovenliggende map gaan</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Lijstweergave</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lijst met plaatsen en bladwijzers</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Zoeken in:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Bovenliggende map</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Verborgen bestanden &amp;tonen</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Zijbalk</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 bestaat al.
Wilt u het vervangen?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Het bestand is niet gevonden.
Controleer de bestandsnaam.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Toon </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Kiezen</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
De map is niet gevonden.
Controleer of de naam klopt.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Gewijzigd op</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Verbinding geweigerd</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Verbinding gesloten</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Host %1 niet gevonden</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>On&amp;gedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Op&amp;nieuw</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Knippen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opiëren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plakken</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Host onbereikbaar</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Netwerk onbereikbaar</translation>
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
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierheen schuiven</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linkerrand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Bovenrand</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechterrand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onderrand</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina naar links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina omhoog</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina naar rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina omlaag</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Naar links schuiven</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Omhoog schuiven</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Naar rechts schuiven</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Omlaag schuiven</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opiëren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadres kopiëren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Deze waarden in de plaats van de regel zetten</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>De regel laten zoals hij is</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Regelsets</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importeren…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Regelsets</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>De actieve regels onder een naam opslaan en weer gebruiken</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>De regels zijn sindsdien gewijzigd.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Laatst gebruikt</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Opslaan als…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Beheren…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Bestand openen…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Voorbeelden</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Regelsets</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>De actieve regels zijn niet opgeslagen. Vervangen?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Er is al een regelset “%1”. Vervangen?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>De regelset “%1” verwijderen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Regelset opslaan</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Naam van de regelset</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Regelset openen</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>Er zijn geen regels geladen uit %1:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>De regelset kon niet worden opgeslagen:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>De regelset kon niet worden verwijderd:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>De regelset kon niet worden hernoemd:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>regel %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>moet een object zijn</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>te groot</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>regel %1 van het bestand is geen JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>moet een tekst van hoogstens %1 tekens zijn</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>moet een naam zijn zonder spaties aan het begin of einde</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>moet een geheel getal van %1 tot en met %2 zijn</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>moet true of false zijn</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>moet %1 zijn</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>moet een van deze zijn: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>moet een lijst van hoogstens %1 regels zijn</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>dit bestand is door een nieuwere versie van het programma geschreven</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>dit veld is niet bekend</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>ontbreekt</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>is geen bestand</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>een andere regelset heeft deze naam</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>het bestand met de oude naam kon niet worden verwijderd</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Richting</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Begin</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Einde</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Hoofdlettergebruik</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Hoofdletters</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Kleine letters</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Elk woord met een hoofdletter</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Bestandsextensie negeren</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Nummeren</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Beginnummer</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Voorloopnullen</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Tekst invoegen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Zoeken naar</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Vervangen door</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Reguliere expressie</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Inkorten</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>Geen geldig patroon: het zal niets wijzigen.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Dit patroon zou te lang duren: het zal niets wijzigen.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Hoofdletters en kleine letters verschillen; er wordt zoveel mogelijk gevonden.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>een willekeurig teken</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>de punt zelf</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>een van deze tekens</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>elk ander teken</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>een cijfer</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>een letter, een cijfer of _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>een spatie</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>een willekeurig aantal a’s, ook geen</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>een of meer a’s</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>een a of geen</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>twee tot vier a’s</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>ab of cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>het begin van de naam</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>het einde van de naam</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>een groep: \1 in de nieuwe tekst is wat die vond</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Ongedaan maken is onderbroken; de rest kan nog worden teruggedraaid</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>De uitvoering van %1 is onderbroken; wat is hernoemd, kan worden teruggedraaid</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Deze uitvoering kan niet ongedaan worden gemaakt</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>De laatste hernoemingen van deze uitvoering kunnen niet ongedaan worden gemaakt: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 mappen</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>1 hernoeming van %1 in %2 terugdraaien</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>%1 hernoemingen van %2 in %3 terugdraaien</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Een ander venster van het programma is met deze uitvoering bezig.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Deze uitvoering komt van een andere computer of van een nieuwere versie van het programma.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Een latere uitvoering heeft enkele van deze bestanden hernoemd. Draai die eerst terug.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>Van deze uitvoering valt niets meer terug te draaien.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Terugdraaien gestart</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>Kon de hernoeming van bestand &apos;%1&apos; niet terugdraaien: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>%1 hernoemingen van %2 in %3 mappen terugdraaien</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Uitvoeringen</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wanneer</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Hernoemd</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>deels teruggedraaid</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>teruggedraaid</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>volledig</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>onderbroken</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>bezig</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>van een andere computer</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>van een nieuwere versie</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>onleesbaar</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, later opnieuw hernoemd</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>De uitvoering van %1 heeft enkele van deze bestanden hernoemd. Draai die eerst terug.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Terugdraaien</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Bestanden tonen</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergeten</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Alles vergeten</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Alle uitvoeringen vergeten? De bestanden blijven zoals ze zijn en geen uitvoering kan nog worden teruggedraaid.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>Bestanden van de uitvoering van %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Oude naam</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nieuwe naam</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>heeft de nieuwe naam</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>heeft de oude naam</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>daar staat een ander bestand</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>is er niet</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Uitvoeringen…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Deze uitvoering is onderbroken; “Uitvoeringen…” kan deze ook voltooien</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Deze uitvoering zou alle bestanden hernoemen of geen, en is onderbroken. Voltooi de uitvoering, zet alles terug, of laat de bestanden zoals ze zijn.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Terugzetten</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Zo laten</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Voltooien van een uitvoering gestart</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>De uitvoering van %1 is onderbroken; “Uitvoeringen…” kan deze voltooien of terugzetten</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pad</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extensie</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Wijzigingstijd</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Volgorde van toevoegen</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, oplopend</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, aflopend</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Fout bij de gegevensoverdracht</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Versiecontrole mislukt</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Fout bij het verbinden met de server.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Controleer het zelf op:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>Er is een nieuwe versie beschikbaar!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Wilt u deze nu downloaden?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Downloaden</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>Wat is er nieuw?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Versie overslaan</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>U gebruikt de nieuwste versie.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
</TS>
