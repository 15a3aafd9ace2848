<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>Negli appunti non ci sono file</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Aggiungi file</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Aggiungi file…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Aggiungi cartella…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Tutto o niente</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Tutto o niente: un’esecuzione rinomina tutti i file dell’elenco o nessuno</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1: niente sarà rinominato, a causa di %2 con problemi</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Nuovi nomi finora: %1 di %2. Ripristinare tutto o mantenere ciò che è fatto?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Ripristina tutto</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Mantieni ciò che è fatto</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Mantenuti</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Rinomina dove possibile</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Niente è stato rinominato, perché non tutti i file possono esserlo.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Niente è stato rinominato: un file ha dato errore e gli altri hanno di nuovo il vecchio nome.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Niente è stato rinominato: l’esecuzione è stata annullata.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>Non è stato possibile ripristinare tutto; file senza il vecchio nome: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Niente è stato rinominato: impossibile scrivere il diario dell’esecuzione.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>L’esecuzione non è ancora stata completata.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>Impossibile ripristinare il file &apos;%1&apos;: si chiama &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Non mostrare più questo messaggio.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Avviso</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Impostazioni generali</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Estensioni</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Dona</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Richiede una voce nel registro di sistema</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Esegui all’avvio del sistema</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Riduci a icona all’avvio</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Disattiva la schermata iniziale</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Ripristina la disposizione della finestra</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Ripristina dimensioni e posizione della finestra</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Riduci nell’area di notifica</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Cerca automaticamente nuove versioni</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Cerca ora</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugin</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Paese</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>Traduzione: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Sostieni questo progetto</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Questa applicazione è gratuita e lo resterà per sempre. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Con un piccolo contributo è possibile aiutarci a sviluppare, migliorare e mantenere i nostri prodotti.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Cartella dell’applicazione</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Cartella dei dati dell’applicazione</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Visita il nostro sito web</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Invia un commento</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Realizzato da Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>Il comando è stato completato correttamente.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>Impossibile eseguire il comando.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Assicurarsi di disporre dei diritti di amministratore.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Paese</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>Cerca automaticamente nuove versioni</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Avanti</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Grazie per la fiducia. Ci auguriamo che questo programma sia di gradimento.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Altri nostri prodotti:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Cerchiamo traduttori madrelingua.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Per contattarci: </translation>
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
        <translation>Numera le foto</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Spazi al posto dei trattini bassi</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Uniforma maiuscole e minuscole</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Senza prefissi della fotocamera</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Date come 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Numeri di traccia a due cifre</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>«Titolo - Artista» al posto di «Artista - Titolo»</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>il nuovo nome è vuoto o fatto solo di punti</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>la cartella non esiste</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>il file system non accetta il nuovo nome</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>il nuovo nome è troppo lungo</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>in questa cartella non si può rinominare nulla</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>il nuovo nome contiene mezzo carattere</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>il sistema ha rifiutato</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>il nome è già in uso</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>la riga %1 prende il nome %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>la riga %1 ha ancora il nome %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 file</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 file</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 mantiene il nome</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 mantengono il nome</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>controllo in corso…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>Vai alla prossima riga con problemi (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, selezionati: %2</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1: %2 con nuovo nome, %3, %4 con problemi</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1: %2 con nuovo nome, %3, %4 con problemi, %5 in dubbio</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Mantiene il nome.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>Non si può sapere prima di rinominare.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Resta com’è: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Verrà spostato nella cartella %1.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>Il nuovo nome porta alla cartella %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Non rinominato: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Mostra dettagli…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>File non rinominati</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nuovo nome</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>un altro file ha il suo nome</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Regole</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Regole attive</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regola</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Svuota l’elenco</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Elenco dei file</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Filtro dei nomi</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Mostra il percorso completo</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Log dell’applicazione</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Salva i log</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Includi i messaggi di debug</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Apri la cartella dei log</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Impostazioni generali</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Esplora file</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Attendere</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Acquisizione dei file</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Rinomina dei file avviata</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Impossibile rinominare il file</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Elaborati</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riusciti</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Resoconto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Chi apprezza questo programma e desidera che il nostro servizio continui può sostenerci.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Grazie!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>L’applicazione è stata ridotta a icona.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Fare clic sull’icona nell’area di notifica per mostrarla.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Sempre in primo piano</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Annulla l’ultima esecuzione</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Annulla, ripeti ed esecuzioni precedenti</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Aggiungi file e cartelle</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Ordina i file</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Trascinare qui file o cartelle oppure premere Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Scegliere sopra un tipo di regola, compilarne i campi e premere «%1»</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Cartella personale</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Scrivania</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musica</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Scaricati</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>File %1</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Tempo scaduto per un’operazione del socket</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>A&amp;umenta</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuisci</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Sgancia</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Sgancia o riaggancia il pannello</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Chiude il pannello</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nuova cartella</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Passa alla vista dettagliata</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Passa alla vista a elenco</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crea nuova cartella</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crea una nuova cartella</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista dettagliata</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome file:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>File di tipo:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Torna indietro</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vai avanti</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Vai alla cartella superiore</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista a elenco</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Elenco dei luoghi e dei segnalibri</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Cerca in:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Cartella superiore</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostra i file n&amp;ascosti</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Cartella:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 esiste già.
Sostituirlo?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File non trovato.
Verificare il nome del file.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostra </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Scegli</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Cartella non trovata.
Controllare che il nome sia corretto.</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data di modifica</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Connessione chiusa</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Host %1 non trovato</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Host non raggiungibile</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Rete non raggiungibile</translation>
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
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scorri fin qui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bordo sinistro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bordo destro</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina a sinistra</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina a destra</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina giù</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scorri a sinistra</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scorri in alto</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scorri a destra</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scorri in basso</translation>
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
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Canc</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Invio</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copia l’indirizzo del &amp;link</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Metti questi valori al posto della regola</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Lascia la regola com’è</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Insiemi di regole</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importa…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Insiemi di regole</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Salva le regole attive con un nome e riprendile</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>Le regole sono state modificate da allora.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Ultime usate</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Salva con nome…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Gestisci…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Apri file…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Esempi</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Insiemi di regole</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>Le regole attive non sono salvate. Sostituirle?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Esiste già un insieme di regole «%1». Sostituirlo?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>Eliminare l’insieme di regole «%1»?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Salva insieme di regole</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Nome dell’insieme di regole</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Apri insieme di regole</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>Nessuna regola caricata da %1:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>Impossibile salvare l’insieme di regole:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>Impossibile eliminare l’insieme di regole:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>Impossibile rinominare l’insieme di regole:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>regola %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>deve essere un oggetto</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>troppo grande</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>la riga %1 non è JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>deve essere un testo di al massimo %1 caratteri</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>deve essere un nome senza spazi all’inizio e alla fine</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>deve essere un numero intero da %1 a %2</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>deve essere true o false</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>deve essere %1</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>deve essere uno di questi valori: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>deve essere un elenco di al massimo %1 regole</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>questo file è stato scritto da una versione più recente del programma</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>questo campo non è riconosciuto</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>un altro insieme di regole ha questo nome</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>impossibile rimuovere il file con il vecchio nome</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Maiuscole/minuscole</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Lettere maiuscole</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Lettere minuscole</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Iniziale maiuscola per ogni parola</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Ignora l’estensione del file</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Numera</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Numero iniziale</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Zeri iniziali</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Inserisci testo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Sostituisci con</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Espressione regolare</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Accorcia</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>Il modello non è valido: non cambierà nulla.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Questo modello richiederebbe troppo tempo: non cambierà nulla.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Maiuscole e minuscole sono distinte; viene trovato quanto più testo possibile.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>un carattere qualsiasi</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>il punto stesso</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>uno di questi caratteri</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>qualsiasi altro carattere</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>una cifra</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>una lettera, una cifra o _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>uno spazio</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>un numero qualsiasi di a, anche nessuna</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>una a o più</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>una a o nessuna</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>da due a quattro a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>ab oppure cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>l’inizio del nome</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>la fine del nome</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>un gruppo: \1 nel nuovo testo è ciò che ha trovato</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Un annullamento è stato interrotto; il resto può ancora essere annullato</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>L’esecuzione di %1 è stata interrotta; i cambi di nome già fatti possono essere annullati</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Questa esecuzione non può essere annullata</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>Gli ultimi cambi di nome di questa esecuzione non possono essere annullati: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 cartelle</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>Annulla 1 cambio di nome (%1) in %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>Annulla %1 cambi di nome (%2) in %3</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Un’altra finestra del programma sta lavorando su questa esecuzione.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Questa esecuzione proviene da un altro computer o da una versione più recente del programma.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Un’esecuzione successiva ha rinominato alcuni di questi file. Annullare prima quella.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>Di questa esecuzione non resta nulla da annullare.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Annullamento avviato</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>Impossibile annullare il cambio di nome del file &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>Annulla %1 cambi di nome (%2) in %3 cartelle</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Esecuzioni</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quando</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominati</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>annullata in parte</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>annullata</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completa</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>interrotta dall’utente</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrotta</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>in corso</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>di un altro computer</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>di una versione più recente</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>illeggibile</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, modificata da un’esecuzione successiva</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>L’esecuzione di %1 ha rinominato alcuni di questi file. Annullare prima quella.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Annulla esecuzione</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Mostra i file</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Dimentica</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Dimentica tutte</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Dimenticare tutte le esecuzioni? I file restano come sono e nessuna esecuzione potrà più essere annullata.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>File dell’esecuzione di %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Vecchio nome</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nuovo nome</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>ha il nuovo nome</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>ha il vecchio nome</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>lì c’è un altro file</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>non c’è</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Esecuzioni…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Questa esecuzione è stata interrotta; «Esecuzioni…» può anche completarla</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Questa esecuzione doveva rinominare tutti i file o nessuno ed è stata interrotta. È possibile completarla, ripristinare tutto o lasciare i file come sono.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Completa</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Lascia così</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Avviato il completamento di un’esecuzione</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>L’esecuzione di %1 è stata interrotta; «Esecuzioni…» può completarla o ripristinare tutto</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Estensione</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Data di modifica</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Ordine di aggiunta</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, crescente</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, decrescente</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Errore di trasmissione dei dati</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Verifica della versione non riuscita</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Errore di connessione al server.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Verificare manualmente all’indirizzo:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>È disponibile una nuova versione!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Scaricarla ora?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>Cosa c’è di nuovo?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Ignora questa versione</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>L’ultima versione è già in uso.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
</TS>
