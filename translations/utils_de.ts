<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AssistantManager</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Do you want to save the settings ?</source>
        <translation>Möchten Sie die Einstellungen speichern?</translation>
    </message>
</context>
<context>
    <name>Utils::ChartTimeLine</name>
    <message>
        <source>Go to the first samples</source>
        <translation>Zu den ersten Werten</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Go to the newest samples</source>
        <translation>Zu den neuesten Werten</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Reset Zoom</source>
        <translation>Zoom zurücksetzen</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
</context>
<context>
    <name>Utils::DataFrameSenderUi</name>
    <message>
        <source>Sending...</source>
        <translation>Senden...</translation>
    </message>
    <message>
        <source>Step %1/%2</source>
        <translation>Schritt %1/%2</translation>
    </message>
</context>
<context>
    <name>Utils::ExportDialog</name>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Separated by</source>
        <translation>Getrennt durch</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Speicherort</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Output Preview</source>
        <translation>Ausgabevorschau</translation>
    </message>
</context>
<context>
    <name>Utils::Plot</name>
    <message>
        <source>Reset Zoom</source>
        <translation>Zoom zurücksetzen</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Date + Time</source>
        <translation>Datum + Zeit</translation>
    </message>
</context>
<context>
    <name>Utils::ValueMarker</name>
    <message>
        <source>Signal %1</source>
        <translation>Signal %1</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>S</source>
        <comment>numbered signal entry of the list label: S1, S2, ...</comment>
        <translation>S</translation>
    </message>
    <message>
        <source>R</source>
        <comment>red channel</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>G</source>
        <comment>green channel</comment>
        <translation>G</translation>
    </message>
    <message>
        <source>B</source>
        <comment>blue channel</comment>
        <translation>B</translation>
    </message>
</context>
</TS>
