<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Start in edit mode.</source>
        <translation>Iniciar en modo de edición.</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>Guardar una imagen del dibujo en ARCHIVO (.png, .svg o .pdf) y salir.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
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
        <source>It cannot be read.</source>
        <translation>No se puede leer.</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>No se puede guardar la imagen.</translation>
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
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>It is a binary file. Only the text form of DXF can be read.</source>
        <translation>Es un archivo binario. Solo se puede leer DXF en formato de texto (ASCII).</translation>
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
</context>
<context>
    <name>DrawingFiles</name>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>No se puede abrir el dibujo.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>No se puede leer.</translation>
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
</context>
<context>
    <name>EditHistory</name>
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
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Export &amp;Picture…</source>
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
        <source>There are no polylines in this drawing, so nothing is shown.</source>
        <translation>Este dibujo no contiene polilíneas, por lo que no se muestra nada.</translation>
    </message>
    <message>
        <source>No drawing</source>
        <translation>Sin dibujo</translation>
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
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>¿Guardar el dibujo editado?</translation>
    </message>
    <message>
        <source>Replace the drawing that was opened?</source>
        <translation>¿Reemplazar el dibujo abierto?</translation>
    </message>
    <message>
        <source>%1

Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>%1

Solo se guardan capas, tipos de línea y polilíneas. Todo lo demás que contiene el archivo se pierde: líneas, arcos, textos, cotas, sombreados, bloques y los colores propios de cada polilínea. Una vez que se ha borrado algo, las polilíneas cerradas pierden su segmento de cierre y los arcos de las polilíneas se vuelven rectos.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
</context>
</TS>
