<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Start in edit mode.</source>
        <translation>Démarrer en mode édition.</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>Enregistrer une image du dessin dans FICHIER (.png, .svg ou .pdf) et quitter.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>Affiche des dessins DXF et en efface des parties.</translation>
    </message>
    <message>
        <source>A .dxf file to open.</source>
        <translation>Fichier .dxf à ouvrir.</translation>
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
        <translation>Impossible d’ouvrir le dessin.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Impossible de le lire.</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>Impossible d’enregistrer l’image.</translation>
    </message>
    <message>
        <source>DXF Viewer</source>
        <translation>Visionneuse DXF</translation>
    </message>
    <message>
        <source>Only one drawing can be opened.</source>
        <translation>Un seul dessin peut être ouvert.</translation>
    </message>
    <message>
        <source>There is no drawing to make a picture of.</source>
        <translation>Aucun dessin n’est donné pour l’image.</translation>
    </message>
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>It is a binary file. Only the text form of DXF can be read.</source>
        <translation>C’est un fichier binaire. Seul le format DXF texte (ASCII) peut être lu.</translation>
    </message>
    <message>
        <source>It is not a DXF drawing.</source>
        <translation>Ce n’est pas un dessin DXF.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Le fichier est trop volumineux.</translation>
    </message>
</context>
<context>
    <name>DrawingFiles</name>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>Impossible d’ouvrir le dessin.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Impossible de le lire.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>Dessins DXF (*.dxf *.DXF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>The drawing could not be written to a temporary file. The folder for temporary files may be full.</source>
        <translation>Le dessin n’a pas pu être écrit dans un fichier temporaire. Le dossier des fichiers temporaires est peut-être plein.</translation>
    </message>
    <message>
        <source>The drawing cannot be saved.</source>
        <translation>Impossible d’enregistrer le dessin.</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Export &amp;Picture…</source>
        <translation>Exporter en tant qu’&amp;image…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>There are no polylines in this drawing, so nothing is shown.</source>
        <translation>Ce dessin ne contient aucune polyligne : rien n’est affiché.</translation>
    </message>
    <message>
        <source>No drawing</source>
        <translation>Aucun dessin</translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>The name of a picture must end in .png, .svg or .pdf.</source>
        <translation>Le nom d’une image doit se terminer par .png, .svg ou .pdf.</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large for a picture.</source>
        <translation>Les coordonnées du dessin sont trop grandes pour une image.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>Il n’y a pas assez de mémoire pour l’image.</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>Images %1 (*.%2)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Exporter en tant qu’image</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>Impossible d’enregistrer l’image.</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>Enregistrer le dessin modifié ?</translation>
    </message>
    <message>
        <source>Replace the drawing that was opened?</source>
        <translation>Remplacer le dessin ouvert ?</translation>
    </message>
    <message>
        <source>%1

Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>%1

Seuls les calques, les types de ligne et les polylignes sont enregistrés. Tout le reste du fichier est perdu : lignes, arcs, textes, cotes, hachures, blocs et couleurs propres à chaque polyligne. Dès que quelque chose a été effacé, les polylignes fermées perdent leur segment de fermeture et les arcs des polylignes deviennent droits.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
</context>
</TS>
