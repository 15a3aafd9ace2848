<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
  <name>DialogSettings</name>
  <message>
    <source>Global Settings</source>
    <translation>Globale Einstellungen</translation>
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
    <source>General</source>
    <translation>Allgemein</translation>
  </message>
  <message>
    <source>Localisation</source>
    <translation>Sprachen</translation>
  </message>
  <message>
    <source>Load on system start-up</source>
    <translation>Beim Systemstart laden</translation>
  </message>
  <message>
    <source>Requires registry entry</source>
    <translation>Erfordert einen Eintrag in der Registrierung</translation>
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
    <source>Donate</source>
    <translation>Spenden</translation>
  </message>
  <message>
    <source>Translation: Kavrondel</source>
    <translation>Übersetzung: Kavrondel</translation>
  </message>
</context>
<context>
  <name>DialogNotice</name>
  <message>
    <source>Advice</source>
    <translation>Hinweis</translation>
  </message>
  <message>
    <source>Close</source>
    <translation>Schließen</translation>
  </message>
  <message>
    <source>Don't show this message again.</source>
    <translation>Diese Nachricht nicht mehr anzeigen.</translation>
  </message>
</context>
<context>
  <name>DialogStart</name>
  <message>
    <source>&amp;Next</source>
    <translation>&amp;Weiter</translation>
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
    <source>Automatically check for new versions</source>
    <translation>Automatisch nach neuen Versionen suchen</translation>
  </message>
  <message>
    <source>Discover more products from us:</source>
    <translation>Entdecken Sie weitere Produkte von uns:</translation>
  </message>
</context>
</TS>
