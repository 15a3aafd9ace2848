<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Rules</name>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
</context>
</TS>
