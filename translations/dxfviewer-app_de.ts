<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Appearance</name>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Weiß</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>&amp;Hintergrund</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>GROUND</source>
        <translation>HINTERGRUND</translation>
    </message>
    <message>
        <source>Start in edit mode.</source>
        <translation>Im Bearbeitungsmodus starten.</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>Ein Bild der Zeichnung in DATEI speichern (.png, .svg oder .pdf) und beenden.</translation>
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
        <source>The picture cannot be written.</source>
        <translation>Das Bild kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The report cannot be written.</source>
        <translation>Der Bericht kann nicht geschrieben werden.</translation>
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
    <message>
        <source>What a picture lies on: dark, light or white (the default).</source>
        <translation>Hintergrund eines Bildes: dark (dunkel), light (hell) oder white (weiß, die Vorgabe).</translation>
    </message>
    <message>
        <source>Print a line for each drawing, with tabs between: the file, the length of all lines, the least x and y, the greatest x and y, and how many objects of which kind are not shown.</source>
        <translation>Für jede Zeichnung eine Zeile ausgeben, mit Tabulatoren dazwischen: die Datei, die Länge aller Linien, das kleinste x und y, das größte x und y, und wie viele Objekte welcher Art nicht dargestellt werden.</translation>
    </message>
    <message>
        <source>Print what is read and left out.</source>
        <translation>Ausgeben, was gelesen und was ausgelassen wird.</translation>
    </message>
    <message>
        <source>The ground of a picture is dark, light or white.</source>
        <translation>Der Hintergrund eines Bildes ist dark, light oder white.</translation>
    </message>
    <message>
        <source>There is no drawing to report on.</source>
        <translation>Es gibt keine Zeichnung, über die berichtet werden kann.</translation>
    </message>
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
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
    <message>
        <source>It is a binary file, but no DXF drawing.</source>
        <translation>Es ist eine Binärdatei, aber keine DXF-Zeichnung.</translation>
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
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Neu &amp;laden</translation>
    </message>
</context>
<context>
    <name>DrawingSaver</name>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>DXF-Zeichnungen (*.dxf *.DXF)</translation>
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
        <source>Another program has changed it since it was saved. These changes are lost.</source>
        <translation>Ein anderes Programm hat sie geändert, seit sie gespeichert wurde. Diese Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>What it holds now is lost.</source>
        <translation>Ihr jetziger Inhalt geht verloren.</translation>
    </message>
</context>
<context>
    <name>DrawingRead</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It has more lines and curves than can be shown.</source>
        <translation>Sie hat mehr Linien und Kurven, als dargestellt werden können.</translation>
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
    <name>KindWords</name>
    <message>
        <source>1 line</source>
        <translation>1 Linie</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n Linie</numerusform>
            <numerusform>%n Linien</numerusform>
        </translation>
    </message>
    <message>
        <source>1 arc</source>
        <translation>1 Bogen</translation>
    </message>
    <message numerus="yes">
        <source>%n arcs</source>
        <translation>
            <numerusform>%n Bogen</numerusform>
            <numerusform>%n Bögen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 circle</source>
        <translation>1 Kreis</translation>
    </message>
    <message numerus="yes">
        <source>%n circles</source>
        <translation>
            <numerusform>%n Kreis</numerusform>
            <numerusform>%n Kreise</numerusform>
        </translation>
    </message>
    <message>
        <source>1 ellipse</source>
        <translation>1 Ellipse</translation>
    </message>
    <message numerus="yes">
        <source>%n ellipses</source>
        <translation>
            <numerusform>%n Ellipse</numerusform>
            <numerusform>%n Ellipsen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 spline</source>
        <translation>1 Spline</translation>
    </message>
    <message numerus="yes">
        <source>%n splines</source>
        <translation>
            <numerusform>%n Spline</numerusform>
            <numerusform>%n Splines</numerusform>
        </translation>
    </message>
    <message>
        <source>1 point</source>
        <translation>1 Punkt</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n Punkt</numerusform>
            <numerusform>%n Punkte</numerusform>
        </translation>
    </message>
    <message>
        <source>1 block</source>
        <translation>1 Block</translation>
    </message>
    <message numerus="yes">
        <source>%n blocks</source>
        <translation>
            <numerusform>%n Block</numerusform>
            <numerusform>%n Blöcke</numerusform>
        </translation>
    </message>
    <message>
        <source>1 dimension</source>
        <translation>1 Bemaßung</translation>
    </message>
    <message numerus="yes">
        <source>%n dimensions</source>
        <translation>
            <numerusform>%n Bemaßung</numerusform>
            <numerusform>%n Bemaßungen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 Text</translation>
    </message>
    <message numerus="yes">
        <source>%n texts</source>
        <translation>
            <numerusform>%n Text</numerusform>
            <numerusform>%n Texte</numerusform>
        </translation>
    </message>
    <message>
        <source>1 leader</source>
        <translation>1 Hinweislinie</translation>
    </message>
    <message numerus="yes">
        <source>%n leaders</source>
        <translation>
            <numerusform>%n Hinweislinie</numerusform>
            <numerusform>%n Hinweislinien</numerusform>
        </translation>
    </message>
    <message>
        <source>1 filled area</source>
        <translation>1 gefüllte Fläche</translation>
    </message>
    <message numerus="yes">
        <source>%n filled areas</source>
        <translation>
            <numerusform>%n gefüllte Fläche</numerusform>
            <numerusform>%n gefüllte Flächen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 face</source>
        <translation>1 3D-Fläche</translation>
    </message>
    <message numerus="yes">
        <source>%n faces</source>
        <translation>
            <numerusform>%n 3D-Fläche</numerusform>
            <numerusform>%n 3D-Flächen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hatch</source>
        <translation>1 Schraffur</translation>
    </message>
    <message numerus="yes">
        <source>%n hatches</source>
        <translation>
            <numerusform>%n Schraffur</numerusform>
            <numerusform>%n Schraffuren</numerusform>
        </translation>
    </message>
    <message>
        <source>1 image</source>
        <translation>1 Bild</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>1 infinite line</source>
        <translation>1 unendliche Linie</translation>
    </message>
    <message numerus="yes">
        <source>%n infinite lines</source>
        <translation>
            <numerusform>%n unendliche Linie</numerusform>
            <numerusform>%n unendliche Linien</numerusform>
        </translation>
    </message>
    <message>
        <source>1 other object</source>
        <translation>1 anderes Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%n other objects</source>
        <translation>
            <numerusform>%n anderes Objekt</numerusform>
            <numerusform>%n andere Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a list.</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>The end of a list: all parts but the last, and the last.</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Not shown: %1</source>
        <translation>Nicht dargestellt: %1</translation>
    </message>
    <message>
        <source>It is the drawing that was opened.</source>
        <translation>Das ist die geöffnete Zeichnung.</translation>
    </message>
    <message>
        <source>%1 becomes polylines.</source>
        <translation>%1 wird zu Polylinien.</translation>
    </message>
    <message>
        <source>%1 become polylines.</source>
        <translation>%1 werden zu Polylinien.</translation>
    </message>
    <message>
        <source>%1 is lost.</source>
        <translation>%1 geht verloren.</translation>
    </message>
    <message>
        <source>%1 are lost.</source>
        <translation>%1 gehen verloren.</translation>
    </message>
    <message>
        <source>Only layers, line types and polylines are saved.</source>
        <translation>Nur Layer, Linientypen und Polylinien werden gespeichert.</translation>
    </message>
    <message>
        <source>It is the drawing that was opened. Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>Das ist die geöffnete Zeichnung. Gespeichert werden nur Layer, Linientypen und Polylinien. Alles andere in der Datei geht verloren: Linien, Bögen, Texte, Bemaßungen, Schraffuren, Blöcke und die Farben einzelner Polylinien. Sobald etwas ausradiert wurde, verlieren geschlossene Polylinien ihr schließendes Segment, und Bogensegmente werden gerade.</translation>
    </message>
    <message>
        <source>What lies on layouts is lost.</source>
        <translation>Was auf Layouts liegt, geht verloren.</translation>
    </message>
    <message>
        <source>What is invisible is lost.</source>
        <translation>Was unsichtbar ist, geht verloren.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Export Picture…</source>
        <translation>Bild &amp;exportieren …</translation>
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
    <message>
        <source>Open a drawing, or drop one here</source>
        <translation>Öffnen Sie eine Zeichnung oder ziehen Sie eine hierher</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>In dieser Zeichnung gibt es nichts, was dargestellt werden kann.</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large to be shown.</source>
        <translation>Die Koordinaten der Zeichnung sind zu groß, um sie darzustellen.</translation>
    </message>
</context>
<context>
    <name>Navigation</name>
    <message>
        <source>As &amp;Stored (y Downwards)</source>
        <translation>&amp;Wie gespeichert (y nach unten)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Fit in Window</source>
        <translation>An &amp;Fenster anpassen</translation>
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
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>In dieser Zeichnung gibt es nichts, was dargestellt werden kann.</translation>
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
    <name>StatusLine</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Polylines: %1, segments: %2</source>
        <translation>Polylinien: %1, Segmente: %2</translation>
    </message>
    <message>
        <source>Drag with the left mouse button to erase, with the middle one to move the drawing.</source>
        <translation>Mit der linken Maustaste ziehen, um zu radieren, mit der mittleren, um die Zeichnung zu verschieben.</translation>
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
<context>
    <name>ViewChoices</name>
    <message>
        <source>&amp;Texts</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>Only &amp;Polylines</source>
        <translation>Nur &amp;Polylinien</translation>
    </message>
</context>
</TS>
