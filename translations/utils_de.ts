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
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>Utils::ChartPlotter</name>
    <message>
        <source>Min %1</source>
        <translation>Min %1</translation>
    </message>
    <message>
        <source>Max %1</source>
        <translation>Max %1</translation>
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
    <name>Utils::Charts::AbstractChart</name>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Reset Zoom</source>
        <translation>Zoom zurücksetzen</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
</context>
<context>
    <name>Utils::Charts::GenericChartColor</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Signal %1</source>
        <translation>Signal %1</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
</context>
<context>
    <name>Utils::ColorChart</name>
    <message>
        <source>Black level...</source>
        <translation>Schwarzwert...</translation>
    </message>
    <message>
        <source>Calibrate the black level: the reading with the sensor covered</source>
        <translation>Schwarzwert abgleichen: der Messwert bei abgedecktem Sensor</translation>
    </message>
    <message>
        <source>White level...</source>
        <translation>Weißwert...</translation>
    </message>
    <message>
        <source>Calibrate the white level: the reading of a white target</source>
        <translation>Weißwert abgleichen: der Messwert eines weißen Ziels</translation>
    </message>
</context>
<context>
    <name>Utils::ConnectionStatus</name>
    <message>
        <source>Sensor Connected</source>
        <translation>Sensor verbunden</translation>
    </message>
    <message>
        <source>Sensor disconnected</source>
        <translation>Sensor getrennt</translation>
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
    <name>Utils::FilePathEditor</name>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
</context>
<context>
    <name>Utils::FilterLineEdit</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>Text löschen</translation>
    </message>
</context>
<context>
    <name>Utils::LevelCalibrationPrompt</name>
    <message>
        <source>Cover the sensor so that no light reaches it.</source>
        <translation>Decken Sie den Sensor ab, sodass kein Licht auf ihn fällt.</translation>
    </message>
    <message>
        <source>Present a white target to the sensor at its working distance.</source>
        <translation>Halten Sie dem Sensor ein weißes Ziel im Arbeitsabstand vor.</translation>
    </message>
    <message>
        <source>Black level calibration</source>
        <translation>Schwarzwertabgleich</translation>
    </message>
    <message>
        <source>White level calibration</source>
        <translation>Weißwertabgleich</translation>
    </message>
    <message>
        <source>When the reading below is steady, click Confirm.</source>
        <translation>Sobald der Messwert unten stabil ist, klicken Sie auf Bestätigen.</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Waiting for a reading from the sensor...</source>
        <translation>Warten auf einen Messwert des Sensors...</translation>
    </message>
    <message>
        <source>Reading: R %1  G %2  B %3</source>
        <translation>Messwert: R %1  G %2  B %3</translation>
    </message>
</context>
<context>
    <name>Utils::LoggingSystem::LogViewer</name>
    <message>
        <source>Log View </source>
        <translation>Protokollansicht </translation>
    </message>
    <message>
        <source>Filter log entries</source>
        <translation>Protokolleinträge filtern</translation>
    </message>
    <message>
        <source>Save Log As...</source>
        <translation>Protokoll speichern unter...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Log viewer</source>
        <translation>Protokollansicht</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message>
        <source>Are you sure ?</source>
        <translation>Sind Sie sicher?</translation>
    </message>
</context>
<context>
    <name>Utils::OutputSelector</name>
    <message>
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Switching output %1</source>
        <translation>Schaltausgang %1</translation>
    </message>
    <message>
        <source>Choose the switching output</source>
        <translation>Schaltausgang wählen</translation>
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
    <name>Utils::PlotDocument</name>
    <message>
        <source>Calibration Protocol</source>
        <translation>Kalibrierprotokoll</translation>
    </message>
    <message>
        <source>Laser Distance Sensor Triangulation</source>
        <translation>Laser-Distanzsensor Triangulation</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Seriennummer: </translation>
    </message>
    <message>
        <source>Order Number: </source>
        <translation>Bestellnummer: </translation>
    </message>
    <message>
        <source>Supplier: </source>
        <translation>Lieferant: </translation>
    </message>
    <message>
        <source>Measurement Conditions</source>
        <translation>Messbedingungen</translation>
    </message>
    <message>
        <source>Working Range</source>
        <translation>Arbeitsbereich</translation>
    </message>
    <message>
        <source>Linearity Deviation</source>
        <translation>Linearitätsabweichung</translation>
    </message>
    <message>
        <source>Measured Surface</source>
        <translation>Messoberfläche</translation>
    </message>
    <message>
        <source>White (90%) lambertian</source>
        <translation>Weiß (90 %) lambertsch</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>3 (default)</source>
        <translation>3 (Standard)</translation>
    </message>
    <message>
        <source>Sensor warmed up</source>
        <translation>Sensor aufgewärmt</translation>
    </message>
    <message>
        <source>&gt;5min</source>
        <translation>&gt;5min</translation>
    </message>
    <message>
        <source>Differences of these Data can appear because of: </source>
        <translation>Abweichungen von diesen Daten können entstehen durch: </translation>
    </message>
    <message>
        <source>-  Target material and surface</source>
        <translation>-  Material und Oberfläche des Messobjekts</translation>
    </message>
    <message>
        <source>-  Sensor mounting (tilt)</source>
        <translation>-  Montage des Sensors (Neigung)</translation>
    </message>
    <message>
        <source>-  Temperature fluctuation during the measurement</source>
        <translation>-  Temperaturschwankungen während der Messung</translation>
    </message>
    <message>
        <source>-  Circulation of warm air between sensor and target</source>
        <translation>-  Warmluftzirkulation zwischen Sensor und Messobjekt</translation>
    </message>
    <message>
        <source>-  Ambient light</source>
        <translation>-  Fremdlicht</translation>
    </message>
    <message>
        <source>Document was created electronically and thus valid without signature </source>
        <translation>Dieses Dokument wurde elektronisch erstellt und ist ohne Unterschrift gültig </translation>
    </message>
    <message>
        <source>Inspector: </source>
        <translation>Prüfer: </translation>
    </message>
    <message>
        <source>Date: </source>
        <translation>Datum: </translation>
    </message>
</context>
<context>
    <name>Utils::PlotExport</name>
    <message>
        <source>PDF Documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>SVG Documents (*.svg)</source>
        <translation>SVG-Dokumente (*.svg)</translation>
    </message>
    <message>
        <source>Postscript Documents (*.ps)</source>
        <translation>Postscript-Dokumente (*.ps)</translation>
    </message>
    <message>
        <source>Images (</source>
        <translation>Bilder (</translation>
    </message>
    <message>
        <source>Export File Name</source>
        <translation>Dateiname für den Export</translation>
    </message>
</context>
<context>
    <name>Utils::RgbRenderer</name>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Taught</source>
        <translation>Eingelernt</translation>
    </message>
    <message>
        <source>No reading</source>
        <translation>Kein Messwert</translation>
    </message>
    <message>
        <source>R %1  G %2  B %3</source>
        <translation>R %1  G %2  B %3</translation>
    </message>
</context>
<context>
    <name>Utils::SensorProgressBar</name>
    <message>
        <source>%1 %</source>
        <extracomment>%1 is the progress in per cent</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <extracomment>%1 is the operation (e.g. &quot;Teach-in&quot;), %2 the progress in per cent</extracomment>
        <translation>%1 (%2 %)</translation>
    </message>
</context>
<context>
    <name>Utils::ThresholdWindowWidgetUniversal</name>
    <message>
        <source>Window %1</source>
        <translation>Fenster %1</translation>
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
