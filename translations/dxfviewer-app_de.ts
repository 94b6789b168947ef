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
        <source>The drawing cannot be opened.</source>
        <translation>Die Zeichnung kann nicht geöffnet werden.</translation>
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
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Another program has changed it since it was saved. These changes are lost.</source>
        <translation>Ein anderes Programm hat sie geändert, seit sie gespeichert wurde. Diese Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>What it holds now is lost.</source>
        <translation>Ihr jetziger Inhalt geht verloren.</translation>
    </message>
    <message>
        <source>It is the drawing that was opened. Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>Das ist die geöffnete Zeichnung. Gespeichert werden nur Layer, Linientypen und Polylinien. Alles andere in der Datei geht verloren: Linien, Bögen, Texte, Bemaßungen, Schraffuren, Blöcke und die Farben einzelner Polylinien. Sobald etwas ausradiert wurde, verlieren geschlossene Polylinien ihr schließendes Segment, und Bogensegmente werden gerade.</translation>
    </message>
</context>
<context>
    <name>DrawingRead</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>There is not enough memory for the drawing.</source>
        <translation>Der Speicher reicht für die Zeichnung nicht aus.</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>The stroke was too long: its first part can no longer be undone.</source>
        <translation>Der Strich war zu lang: Sein erster Teil kann nicht mehr rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>The edits stay in the drawing, but they can no longer be undone.</source>
        <translation>Die Änderungen bleiben in der Zeichnung, können aber nicht mehr rückgängig gemacht werden.</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>How to &amp;Erase</source>
        <translation>So wird &amp;radiert</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>How to Erase</source>
        <translation>So wird radiert</translation>
    </message>
    <message>
        <source>Switch “Edit .dxf” on (Ctrl+E), hold the left button and sweep over the lines. What comes under the round eraser is erased, piece by piece: a piece reaches from one corner to the next.</source>
        <translation>„.dxf bearbeiten“ einschalten (Strg+E), die linke Maustaste gedrückt halten und über die Linien fahren. Was unter den runden Radierer kommt, wird Stück für Stück ausradiert: Ein Stück reicht von einer Ecke zur nächsten.</translation>
    </message>
    <message>
        <source>Zoom in first where lines are close: the eraser has the same size at every zoom. Ctrl and the wheel zoom, the middle button moves the drawing.</source>
        <translation>Wo Linien dicht liegen, zuerst vergrößern: Der Radierer ist bei jeder Vergrößerung gleich groß. Strg und das Mausrad vergrößern, die mittlere Taste verschiebt die Zeichnung.</translation>
    </message>
    <message>
        <source>Ctrl+Z takes a whole stroke back, Ctrl+Y takes it up again.</source>
        <translation>Strg+Z nimmt einen ganzen Strich zurück, Strg+Y stellt ihn wieder her.</translation>
    </message>
    <message>
        <source>Escape ends erasing. The edits stay, but they can no longer be undone then.</source>
        <translation>Esc beendet das Radieren. Die Änderungen bleiben, können dann aber nicht mehr rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Ctrl+S saves. The first time it asks for a name, so that the drawing that was opened stays as it is.</source>
        <translation>Strg+S speichert. Beim ersten Mal wird nach einem Namen gefragt, damit die geöffnete Zeichnung bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>Zeigt DXF-Zeichnungen an und radiert Teile davon aus.</translation>
    </message>
    <message>
        <source>Qt %1, dxflib %2</source>
        <translation>Qt %1, dxflib %2</translation>
    </message>
    <message>
        <source>Licence: GNU General Public License, version 2 or later. It comes without any warranty.</source>
        <translation>Lizenz: GNU General Public License, Version 2 oder später. Das Programm kommt ohne jede Gewährleistung.</translation>
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
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>Print Pre&amp;view…</source>
        <translation>Druck&amp;vorschau …</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
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
    <name>Printing</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The drawing cannot be printed.</source>
        <translation>Die Zeichnung kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The printer does not take it.</source>
        <translation>Der Drucker nimmt sie nicht an.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 could not be written to its end. The disk may be full.</source>
        <translation>%1 konnte nicht bis zum Ende geschrieben werden. Vielleicht ist der Datenträger voll.</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>Die bearbeitete Zeichnung speichern?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>ReadingBar</name>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No drawing was opened yet</source>
        <translation>Noch keine Zeichnung geöffnet</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste löschen</translation>
    </message>
</context>
<context>
    <name>StrokeHistory</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
</TS>
