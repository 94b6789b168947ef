<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Start in edit mode.</source>
        <translation>Im Bearbeitungsmodus starten.</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>Ein Bild der Zeichnung in DATEI speichern (.png, .svg oder .pdf) und beenden.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>Zeigt DXF-Zeichnungen an und radiert Teile davon aus.</translation>
    </message>
    <message>
        <source>A .dxf file to open.</source>
        <translation>Zu öffnende .dxf-Datei.</translation>
    </message>
    <message>
        <source>%1
%2
%3</source>
        <translation>%1
%2
%3</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>Die Zeichnung kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>DXF Viewer</source>
        <translation>DXF-Betrachter</translation>
    </message>
    <message>
        <source>Only one drawing can be opened.</source>
        <translation>Es kann nur eine Zeichnung geöffnet werden.</translation>
    </message>
    <message>
        <source>There is no drawing to make a picture of.</source>
        <translation>Es ist keine Zeichnung für das Bild angegeben.</translation>
    </message>
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>It is a binary file. Only the text form of DXF can be read.</source>
        <translation>Das ist eine Binärdatei. Nur DXF im Textformat (ASCII) kann gelesen werden.</translation>
    </message>
    <message>
        <source>It is not a DXF drawing.</source>
        <translation>Das ist keine DXF-Zeichnung.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Das ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
</context>
<context>
    <name>DrawingFiles</name>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>Die Zeichnung kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>DXF-Zeichnungen (*.dxf *.DXF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>The drawing could not be written to a temporary file. The folder for temporary files may be full.</source>
        <translation>Die Zeichnung konnte nicht in eine temporäre Datei geschrieben werden. Vielleicht ist der Ordner für temporäre Dateien voll.</translation>
    </message>
    <message>
        <source>The drawing cannot be saved.</source>
        <translation>Die Zeichnung kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Export &amp;Picture…</source>
        <translation>&amp;Bild exportieren …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>There are no polylines in this drawing, so nothing is shown.</source>
        <translation>Diese Zeichnung enthält keine Polylinien, daher ist nichts zu sehen.</translation>
    </message>
    <message>
        <source>No drawing</source>
        <translation>Keine Zeichnung</translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>The name of a picture must end in .png, .svg or .pdf.</source>
        <translation>Der Name eines Bildes muss auf .png, .svg oder .pdf enden.</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large for a picture.</source>
        <translation>Die Koordinaten der Zeichnung sind für ein Bild zu groß.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>Der Speicher reicht für das Bild nicht aus.</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>%1-Bilder (*.%2)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>Die bearbeitete Zeichnung speichern?</translation>
    </message>
    <message>
        <source>Replace the drawing that was opened?</source>
        <translation>Die geöffnete Zeichnung ersetzen?</translation>
    </message>
    <message>
        <source>%1

Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>%1

Nur Layer, Linientypen und Polylinien werden gespeichert. Alles andere in der Datei geht verloren: Linien, Bögen, Texte, Bemaßungen, Schraffuren, Blöcke und die Farben einzelner Polylinien. Sobald etwas ausradiert wurde, verlieren geschlossene Polylinien ihr schließendes Segment, und Bögen in Polylinien werden gerade.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
</TS>
