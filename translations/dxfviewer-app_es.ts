<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Appearance</name>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Blanco</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>&amp;Fondo</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>GROUND</source>
        <translation>FONDO</translation>
    </message>
    <message>
        <source>Start in edit mode.</source>
        <translation>Iniciar en modo de edición.</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>Guardar una imagen del dibujo en ARCHIVO (.png, .svg o .pdf) y salir.</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>Muestra dibujos DXF y borra partes de ellos.</translation>
    </message>
    <message>
        <source>A .dxf file to open.</source>
        <translation>Archivo .dxf que se abrirá.</translation>
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
        <translation>No se puede abrir el dibujo.</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>No se puede guardar la imagen.</translation>
    </message>
    <message>
        <source>The report cannot be written.</source>
        <translation>No se puede escribir el informe.</translation>
    </message>
    <message>
        <source>DXF Viewer</source>
        <translation>Visor DXF</translation>
    </message>
    <message>
        <source>Only one drawing can be opened.</source>
        <translation>Solo se puede abrir un dibujo.</translation>
    </message>
    <message>
        <source>There is no drawing to make a picture of.</source>
        <translation>No hay ningún dibujo del que hacer una imagen.</translation>
    </message>
    <message>
        <source>What a picture lies on: dark, light or white (the default).</source>
        <translation>Fondo de la imagen: dark (oscuro), light (claro) o white (blanco, el predeterminado).</translation>
    </message>
    <message>
        <source>Print a line for each drawing, with tabs between: the file, the length of all lines, the least x and y, the greatest x and y, and how many objects of which kind are not shown.</source>
        <translation>Imprimir una línea por dibujo, separada por tabuladores: el archivo, la longitud de todas las líneas, las x e y mínimas, las x e y máximas y cuántos objetos de cada tipo no se muestran.</translation>
    </message>
    <message>
        <source>Print what is read and left out.</source>
        <translation>Mostrar lo que se lee y lo que se omite.</translation>
    </message>
    <message>
        <source>The ground of a picture is dark, light or white.</source>
        <translation>El fondo de una imagen es dark, light o white.</translation>
    </message>
    <message>
        <source>There is no drawing to report on.</source>
        <translation>No hay ningún dibujo sobre el que informar.</translation>
    </message>
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>It is not a DXF drawing.</source>
        <translation>No es un dibujo DXF.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>El archivo es demasiado grande.</translation>
    </message>
    <message>
        <source>It is a binary file, but no DXF drawing.</source>
        <translation>Es un archivo binario, pero no un dibujo DXF.</translation>
    </message>
</context>
<context>
    <name>DrawingFiles</name>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>No se puede abrir el dibujo.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>Dibujos DXF (*.dxf *.DXF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>R&amp;ecargar</translation>
    </message>
</context>
<context>
    <name>DrawingSaver</name>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>Dibujos DXF (*.dxf *.DXF)</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>The drawing could not be written to a temporary file. The folder for temporary files may be full.</source>
        <translation>No se pudo escribir el dibujo en un archivo temporal. Puede que la carpeta de archivos temporales esté llena.</translation>
    </message>
    <message>
        <source>The drawing cannot be saved.</source>
        <translation>No se puede guardar el dibujo.</translation>
    </message>
    <message>
        <source>Another program has changed it since it was saved. These changes are lost.</source>
        <translation>Otro programa lo ha modificado desde que se guardó. Esos cambios se perderán.</translation>
    </message>
    <message>
        <source>What it holds now is lost.</source>
        <translation>Su contenido actual se perderá.</translation>
    </message>
</context>
<context>
    <name>DrawingRead</name>
    <message>
        <source>It cannot be read.</source>
        <translation>No se puede leer.</translation>
    </message>
    <message>
        <source>It has more lines and curves than can be shown.</source>
        <translation>Tiene más líneas y curvas de las que se pueden mostrar.</translation>
    </message>
    <message>
        <source>There is not enough memory for the drawing.</source>
        <translation>No hay memoria suficiente para el dibujo.</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>The stroke was too long: its first part can no longer be undone.</source>
        <translation>El trazo fue demasiado largo: su primera parte ya no se puede deshacer.</translation>
    </message>
    <message>
        <source>The edits stay in the drawing, but they can no longer be undone.</source>
        <translation>Los cambios permanecen en el dibujo, pero ya no se pueden deshacer.</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>How to &amp;Erase</source>
        <translation>Cómo &amp;borrar</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>How to Erase</source>
        <translation>Cómo borrar</translation>
    </message>
    <message>
        <source>Switch “Edit .dxf” on (Ctrl+E), hold the left button and sweep over the lines. What comes under the round eraser is erased, piece by piece: a piece reaches from one corner to the next.</source>
        <translation>Active «Editar .dxf» (Ctrl+E), mantenga pulsado el botón izquierdo y pase por encima de las líneas. Lo que queda bajo la goma redonda se borra tramo a tramo: un tramo va de una esquina a la siguiente.</translation>
    </message>
    <message>
        <source>Zoom in first where lines are close: the eraser has the same size at every zoom. Ctrl and the wheel zoom, the middle button moves the drawing.</source>
        <translation>Donde las líneas estén juntas, amplíe primero: la goma tiene el mismo tamaño con cualquier ampliación. Ctrl y la rueda amplían, el botón central mueve el dibujo.</translation>
    </message>
    <message>
        <source>Ctrl+Z takes a whole stroke back, Ctrl+Y takes it up again.</source>
        <translation>Ctrl+Z deshace un trazo entero, Ctrl+Y lo rehace.</translation>
    </message>
    <message>
        <source>Escape ends erasing. The edits stay, but they can no longer be undone then.</source>
        <translation>Escape termina el borrado. Los cambios permanecen, pero entonces ya no se pueden deshacer.</translation>
    </message>
    <message>
        <source>Ctrl+S saves. The first time it asks for a name, so that the drawing that was opened stays as it is.</source>
        <translation>Ctrl+S guarda. La primera vez pide un nombre, para que el dibujo abierto quede como está.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>Muestra dibujos DXF y borra partes de ellos.</translation>
    </message>
    <message>
        <source>Qt %1, dxflib %2</source>
        <translation>Qt %1, dxflib %2</translation>
    </message>
    <message>
        <source>Licence: GNU General Public License, version 2 or later. It comes without any warranty.</source>
        <translation>Licencia: GNU General Public License, versión 2 o posterior. El programa se ofrece sin ninguna garantía.</translation>
    </message>
</context>
<context>
    <name>KindWords</name>
    <message>
        <source>1 line</source>
        <translation>1 línea</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n línea</numerusform>
            <numerusform>%n líneas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 arc</source>
        <translation>1 arco</translation>
    </message>
    <message numerus="yes">
        <source>%n arcs</source>
        <translation>
            <numerusform>%n arco</numerusform>
            <numerusform>%n arcos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 circle</source>
        <translation>1 círculo</translation>
    </message>
    <message numerus="yes">
        <source>%n circles</source>
        <translation>
            <numerusform>%n círculo</numerusform>
            <numerusform>%n círculos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 ellipse</source>
        <translation>1 elipse</translation>
    </message>
    <message numerus="yes">
        <source>%n ellipses</source>
        <translation>
            <numerusform>%n elipse</numerusform>
            <numerusform>%n elipses</numerusform>
        </translation>
    </message>
    <message>
        <source>1 spline</source>
        <translation>1 spline</translation>
    </message>
    <message numerus="yes">
        <source>%n splines</source>
        <translation>
            <numerusform>%n spline</numerusform>
            <numerusform>%n splines</numerusform>
        </translation>
    </message>
    <message>
        <source>1 point</source>
        <translation>1 punto</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n punto</numerusform>
            <numerusform>%n puntos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 block</source>
        <translation>1 bloque</translation>
    </message>
    <message numerus="yes">
        <source>%n blocks</source>
        <translation>
            <numerusform>%n bloque</numerusform>
            <numerusform>%n bloques</numerusform>
        </translation>
    </message>
    <message>
        <source>1 dimension</source>
        <translation>1 cota</translation>
    </message>
    <message numerus="yes">
        <source>%n dimensions</source>
        <translation>
            <numerusform>%n cota</numerusform>
            <numerusform>%n cotas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 texto</translation>
    </message>
    <message numerus="yes">
        <source>%n texts</source>
        <translation>
            <numerusform>%n texto</numerusform>
            <numerusform>%n textos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 leader</source>
        <translation>1 línea de referencia</translation>
    </message>
    <message numerus="yes">
        <source>%n leaders</source>
        <translation>
            <numerusform>%n línea de referencia</numerusform>
            <numerusform>%n líneas de referencia</numerusform>
        </translation>
    </message>
    <message>
        <source>1 filled area</source>
        <translation>1 área rellena</translation>
    </message>
    <message numerus="yes">
        <source>%n filled areas</source>
        <translation>
            <numerusform>%n área rellena</numerusform>
            <numerusform>%n áreas rellenas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 face</source>
        <translation>1 cara 3D</translation>
    </message>
    <message numerus="yes">
        <source>%n faces</source>
        <translation>
            <numerusform>%n cara 3D</numerusform>
            <numerusform>%n caras 3D</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hatch</source>
        <translation>1 sombreado</translation>
    </message>
    <message numerus="yes">
        <source>%n hatches</source>
        <translation>
            <numerusform>%n sombreado</numerusform>
            <numerusform>%n sombreados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 image</source>
        <translation>1 imagen</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n imagen</numerusform>
            <numerusform>%n imágenes</numerusform>
        </translation>
    </message>
    <message>
        <source>1 infinite line</source>
        <translation>1 línea infinita</translation>
    </message>
    <message numerus="yes">
        <source>%n infinite lines</source>
        <translation>
            <numerusform>%n línea infinita</numerusform>
            <numerusform>%n líneas infinitas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 other object</source>
        <translation>1 objeto más</translation>
    </message>
    <message numerus="yes">
        <source>%n other objects</source>
        <translation>
            <numerusform>%n objeto más</numerusform>
            <numerusform>%n objetos más</numerusform>
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
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>Not shown: %1</source>
        <translation>No se muestra: %1</translation>
    </message>
    <message>
        <source>It is the drawing that was opened.</source>
        <translation>Es el dibujo abierto.</translation>
    </message>
    <message>
        <source>%1 becomes polylines.</source>
        <translation>%1 se convierte en polilíneas.</translation>
    </message>
    <message>
        <source>%1 become polylines.</source>
        <translation>%1 se convierten en polilíneas.</translation>
    </message>
    <message>
        <source>%1 is lost.</source>
        <translation>%1 se pierde.</translation>
    </message>
    <message>
        <source>%1 are lost.</source>
        <translation>%1 se pierden.</translation>
    </message>
    <message>
        <source>Only layers, line types and polylines are saved.</source>
        <translation>Solo se guardan las capas, los tipos de línea y las polilíneas.</translation>
    </message>
    <message>
        <source>It is the drawing that was opened. Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>Es el dibujo abierto. Solo se guardan capas, tipos de línea y polilíneas. Todo lo demás que contiene el archivo se pierde: líneas, arcos, textos, cotas, sombreados, bloques y los colores propios de cada polilínea. En cuanto se borra algo, las polilíneas cerradas pierden su segmento de cierre y los segmentos curvos se vuelven rectos.</translation>
    </message>
    <message>
        <source>What lies on layouts is lost.</source>
        <translation>Lo que está en las presentaciones se pierde.</translation>
    </message>
    <message>
        <source>What is invisible is lost.</source>
        <translation>Lo que es invisible se pierde.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Export Picture…</source>
        <translation>Exportar &amp;imagen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>No drawing</source>
        <translation>Sin dibujo</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Im&amp;primir…</translation>
    </message>
    <message>
        <source>Print Pre&amp;view…</source>
        <translation>&amp;Vista previa de impresión…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Open a drawing, or drop one here</source>
        <translation>Abra un dibujo o suéltelo aquí</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>En este dibujo no hay nada que se pueda mostrar.</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large to be shown.</source>
        <translation>Las coordenadas del dibujo son demasiado grandes para mostrarlo.</translation>
    </message>
</context>
<context>
    <name>Navigation</name>
    <message>
        <source>As &amp;Stored (y Downwards)</source>
        <translation>&amp;Como está guardado (y hacia abajo)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Fit in Window</source>
        <translation>A&amp;justar a la ventana</translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>The name of a picture must end in .png, .svg or .pdf.</source>
        <translation>El nombre de una imagen debe terminar en .png, .svg o .pdf.</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large for a picture.</source>
        <translation>Las coordenadas del dibujo son demasiado grandes para una imagen.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>No hay memoria suficiente para la imagen.</translation>
    </message>
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>En este dibujo no hay nada que se pueda mostrar.</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>Imágenes %1 (*.%2)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Exportar imagen</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>No se puede guardar la imagen.</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>The drawing cannot be printed.</source>
        <translation>No se puede imprimir el dibujo.</translation>
    </message>
    <message>
        <source>The printer does not take it.</source>
        <translation>La impresora no lo acepta.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>%1 could not be written to its end. The disk may be full.</source>
        <translation>%1 no se pudo escribir hasta el final. Puede que el disco esté lleno.</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>¿Guardar el dibujo editado?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>¿Reemplazar el archivo?</translation>
    </message>
</context>
<context>
    <name>ReadingBar</name>
    <message>
        <source>Reading %1</source>
        <translation>Leyendo %1</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No drawing was opened yet</source>
        <translation>Aún no se ha abierto ningún dibujo</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Borrar la lista</translation>
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
        <translation>Polilíneas: %1, segmentos: %2</translation>
    </message>
    <message>
        <source>Drag with the left mouse button to erase, with the middle one to move the drawing.</source>
        <translation>Arrastre con el botón izquierdo del ratón para borrar y con el central para mover el dibujo.</translation>
    </message>
</context>
<context>
    <name>StrokeHistory</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
</context>
<context>
    <name>ViewChoices</name>
    <message>
        <source>&amp;Texts</source>
        <translation>&amp;Textos</translation>
    </message>
    <message>
        <source>Only &amp;Polylines</source>
        <translation>Solo &amp;polilíneas</translation>
    </message>
</context>
</TS>
