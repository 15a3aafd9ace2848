<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>W schowku nie ma plików</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Dodaj pliki</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Dodaj pliki…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Dodaj folder…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Wszystko albo nic</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Wszystko albo nic: przebieg zmienia nazwy wszystkich plików z listy albo żadnego</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1 – nic nie zostanie zmienione, niemożliwe: %2</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Nowe nazwy dotychczas: %1 z %2. Przywrócić wszystko czy zachować zmienione?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Przywróć wszystko</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Zachowaj zmienione</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Bez zmiany</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Zmień, co można</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>Nie zmieniono żadnej nazwy, bo nie można zmienić wszystkich.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>Nie zmieniono żadnej nazwy: przy jednym pliku się to nie udało, a pozostałe mają znów dawne nazwy.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>Nie zmieniono żadnej nazwy: przebieg anulowano.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>Nie udało się przywrócić wszystkiego; pliki bez dawnej nazwy: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>Nie zmieniono żadnej nazwy: nie można zapisać dziennika przebiegu.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>Przebieg nie jest jeszcze dokończony.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>Nie udało się przywrócić nazwy pliku &apos;%1&apos;: nazywa się &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>Nie pokazuj więcej tego komunikatu.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Wskazówka</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Ustawienia globalne</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Dodatki</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Darowizna</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Wymaga wpisu w rejestrze</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Uruchamiaj przy starcie systemu</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Minimalizuj po uruchomieniu</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Wyłącz ekran powitalny</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Przywracaj układ okna</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Przywracaj rozmiar i położenie okna</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Minimalizuj do ikony w zasobniku</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Automatycznie sprawdzaj dostępność nowej wersji</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Sprawdź teraz</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Wtyczki</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Kraj</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>Tłumaczenie: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Wesprzyj ten projekt</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Ten program jest darmowy i zawsze taki pozostanie. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Przekazując niewielką darowiznę, możesz pomóc nam w tworzeniu, ulepszaniu i utrzymywaniu naszych produktów.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Folder programu</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Folder danych programu</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Odwiedź naszą stronę internetową</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Prześlij nam opinię</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Stworzone przez Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>Polecenie zostało wykonane pomyślnie.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>Nie udało się wykonać polecenia.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Upewnij się, że masz uprawnienia administratora.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Kraj</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>Automatycznie sprawdzaj dostępność nowych wersji</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Dziękujemy za zaufanie i mamy nadzieję, że ten program przypadnie Ci do gustu.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Poznaj inne nasze produkty:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Poszukujemy tłumaczy przekładających na swój język ojczysty.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Skontaktuj się z nami pod adresem: </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>Ponumeruj zdjęcia</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Spacje zamiast podkreśleń</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Uporządkuj wielkie i małe litery</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Bez przedrostków aparatu</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Daty jako 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Dwucyfrowe numery utworów</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>„Tytuł - Wykonawca” zamiast „Wykonawca - Tytuł”</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>nie ma takiego pliku</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>nowa nazwa jest pusta lub składa się z samych kropek</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>nie ma takiego folderu</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>system plików nie przyjmuje nowej nazwy</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>nowa nazwa jest za długa</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>w tym folderze nie można zmieniać nazw</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>nowa nazwa zawiera połowę znaku</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>system odmówił</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>nazwa jest zajęta</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>wiersz %1 przejmuje nazwę %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>wiersz %1 ma jeszcze nazwę %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>Pliki: 1</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Pliki: %1</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>bez zmiany nazwy: 1</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>bez zmiany nazwy: %1</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>sprawdzanie…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>Przejdź do następnego problematycznego wiersza (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, zaznaczone: %2</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1 – do zmiany: %2, %3, niemożliwe: %4</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1 – do zmiany: %2, %3, niemożliwe: %4, nieznane: %5</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Zachowuje swoją nazwę.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>Nie da się tego przewidzieć przed zmianą nazw.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Pozostaje bez zmian: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Zostanie przeniesiony do folderu %1.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>Nowa nazwa prowadzi do folderu %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Nie zmieniono nazwy: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Pokaż szczegóły…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Pliki bez zmienionej nazwy</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nowa nazwa</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>inny plik ma jego nazwę</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Reguły</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Aktywne reguły</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Reguła</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Wyczyść listę</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Lista plików</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Filtr nazw</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwy</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Pokaż pełną ścieżkę</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Dziennik programu</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Komunikat</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Zapisuj dziennik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisuj</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Uwzględniaj komunikaty debugowania</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debugowanie</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Otwórz folder dziennika</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Ustawienia globalne</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Eksplorator plików</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Proszę czekać</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Zbieranie plików</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Rozpoczęto zmianę nazw plików</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>Nie udało się zmienić nazwy pliku</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Razem</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Przetworzono</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenia</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Raport</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Jeśli podoba Ci się ten program i chcesz, abyśmy mogli działać dalej, wesprzyj nas.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>Dziękujemy!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>Program został zminimalizowany.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Aby pokazać okno, kliknij ikonę w zasobniku.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Nieprzezroczystość</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Zawsze na wierzchu</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Przenieś w górę</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Przenieś w dół</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Cofnij ostatni przebieg</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Cofnij, ponów i wcześniejsze przebiegi</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Dodaj pliki i foldery</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Sortuj pliki</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Upuść tu pliki lub foldery albo naciśnij Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Wybierz powyżej rodzaj reguły, wypełnij jej pola i naciśnij „%1”</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Folder domowy</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Pulpit</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muzyka</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Pobrane</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Plik %1</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Przekroczono limit czasu operacji gniazda</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Zaznacz wszystko</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Zw&amp;iększ</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Z&amp;mniejsz</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Odłącza i ponownie dołącza panel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Zamyka panel</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nowy folder</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otwórz</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Zmień nazwę</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Przełącz na widok szczegółów</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Przełącz na widok listy</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Utwórz nowy folder</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Utwórz nowy folder</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Widok szczegółów</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nazwa pliku:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Pliki typu:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Przejdź wstecz</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Przejdź dalej</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Przejdź do folderu nadrzędnego</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Widok listy</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista miejsc i zakładek</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Szukaj w:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Folder nadrzędny</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Pokaż u&amp;kryte pliki</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 już istnieje.
Czy zastąpić ten plik?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Nie znaleziono pliku.
Sprawdź nazwę pliku.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Pokaż </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Wybierz</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Nie znaleziono folderu.
Sprawdź, czy nazwa jest poprawna.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data modyfikacji</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Połączenie odrzucone</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Połączenie zamknięte</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>Nie znaleziono hosta %1</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Wy&amp;tnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Wklej</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Host nieosiągalny</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Sieć nieosiągalna</translation>
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
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów próbę</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignoruj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Przewiń tutaj</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Lewa krawędź</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Prawa krawędź</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dół</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Strona w lewo</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Strona w górę</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Strona w prawo</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Strona w dół</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Przewiń w lewo</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Przewiń w górę</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Przewiń w prawo</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Przewiń w dół</translation>
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
        <translation>Góra</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dół</translation>
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
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiuj adres &amp;odnośnika</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Wstaw te wartości w miejsce reguły</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Pozostaw regułę bez zmian</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Zestawy reguł</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importuj…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Zestawy reguł</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Zapisz aktywne reguły pod nazwą i użyj ich ponownie</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>Od tego czasu reguły się zmieniły.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Ostatnio używane</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Zapisz jako…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Zarządzaj…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Otwórz plik…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Przykłady</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Zestawy reguł</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>Aktywne reguły nie są zapisane. Zastąpić je?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Zastąp</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Zestaw reguł „%1” już istnieje. Zastąpić go?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>Usunąć zestaw reguł „%1”?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Zapisz zestaw reguł</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Nazwa zestawu reguł</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Otwórz zestaw reguł</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>Nie wczytano reguł z pliku %1:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>Nie udało się zapisać zestawu reguł:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>Nie udało się usunąć zestawu reguł:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>Nie udało się zmienić nazwy zestawu reguł:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>reguła %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>musi być obiektem</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>plik jest za duży</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>wiersz %1 nie jest poprawnym JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>musi być tekstem o długości najwyżej %1 znaków</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>musi być nazwą bez spacji na początku i na końcu</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>musi być liczbą całkowitą od %1 do %2</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>musi być true lub false</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>musi być %1</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>musi być jedną z wartości: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>musi być listą najwyżej %1 reguł</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>ten plik zapisała nowsza wersja programu</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>nieznane pole</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>brakuje tego pola</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>to nie jest plik</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>inny zestaw reguł ma tę nazwę</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>nie udało się usunąć pliku ze starą nazwą</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Od początku</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Od końca</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Zmień wielkość liter</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Wielkie litery</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Małe litery</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Każde słowo od wielkiej litery</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Ignoruj rozszerzenie pliku</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Ponumeruj</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Numer początkowy</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Zera wiodące</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Wstaw tekst</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Zamień</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Co zamienić</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Na co zamienić</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Wyrażenie regularne</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Przytnij</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Długość</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>Nieprawidłowy wzorzec: niczego nie zmieni.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Ten wzorzec zająłby zbyt dużo czasu: niczego nie zmieni.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Wielkie i małe litery są rozróżniane; znajdowany jest jak najdłuższy tekst.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>dowolny znak</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>sama kropka</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>jeden z tych znaków</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>każdy inny znak</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>cyfra</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>litera, cyfra lub _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>odstęp</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>dowolna liczba liter a, także żadna</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>jedna litera a lub więcej</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>jedna litera a lub żadna</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>od dwóch do czterech liter a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>albo ab, albo cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>początek nazwy</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>koniec nazwy</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>grupa: \1 w nowym tekście oznacza to, co znalazła</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Cofanie zostało przerwane; resztę nadal można cofnąć</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>Przebieg z %1 został przerwany; jego zmiany nazw można cofnąć</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Tego przebiegu nie można cofnąć</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>Ostatnich zmian nazw z tego przebiegu nie można cofnąć: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>Foldery: %1</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>Cofnij 1 zmianę nazwy z %1, folder %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>Cofnij zmiany nazw (%1) z %2, folder %3</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Inne okno programu pracuje teraz nad tym przebiegiem.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Ten przebieg pochodzi z innego komputera albo z nowszej wersji programu.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Późniejszy przebieg zmienił nazwy niektórych z tych plików. Najpierw cofnij tamten.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>Z tego przebiegu nie ma już nic do cofnięcia.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Rozpoczęto cofanie zmian nazw</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>Nie udało się cofnąć zmiany nazwy pliku &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>Cofnij zmiany nazw (%1) z %2, foldery: %3</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Przebiegi</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Kiedy</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmienione</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>częściowo cofnięty</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>cofnięty</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>ukończony</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>anulowany</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>przerwany</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>w toku</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>z innego komputera</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>z nowszej wersji</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>nieczytelny</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, zmieniony przez późniejszy przebieg</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>Przebieg z %1 zmienił nazwy niektórych z tych plików. Najpierw cofnij tamten.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Pokaż pliki</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Zapomnij</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Zapomnij wszystkie</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>Zapomnieć wszystkie przebiegi? Pliki pozostaną bez zmian i żadnego przebiegu nie będzie już można cofnąć.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>Pliki przebiegu z %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Stara nazwa</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nowa nazwa</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>ma nową nazwę</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>ma starą nazwę</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>jest tam inny plik</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>nie ma go</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Przebiegi…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Ten przebieg został przerwany; poleceniem „Przebiegi…” można go też dokończyć</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Ten przebieg miał zmienić nazwy wszystkich plików albo żadnego i został przerwany. Można go dokończyć, przywrócić wszystko albo zostawić pliki takie, jakie są.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokończ</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Zostaw</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Rozpoczęto dokańczanie przebiegu</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>Przebieg z %1 został przerwany; poleceniem „Przebiegi…” można go dokończyć lub przywrócić wszystko</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ścieżka</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Rozszerzenie</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Czas modyfikacji</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Kolejność dodawania</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, rosnąco</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, malejąco</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Przywróć</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Zakończ</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Błąd transmisji danych</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Nie udało się sprawdzić wersji</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Błąd połączenia z serwerem.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Sprawdź ręcznie na stronie:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>Dostępna jest nowa wersja!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>Czy chcesz ją teraz pobrać?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>Co nowego?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Pomiń wersję</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>Używasz najnowszej wersji.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
</TS>
