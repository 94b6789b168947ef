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
        <source>The drawing cannot be opened.</source>
        <translation>Impossible d’ouvrir le dessin.</translation>
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
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Re&amp;charger</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Another program has changed it since it was saved. These changes are lost.</source>
        <translation>Un autre programme l’a modifié depuis son enregistrement. Ces modifications seront perdues.</translation>
    </message>
    <message>
        <source>What it holds now is lost.</source>
        <translation>Son contenu actuel sera perdu.</translation>
    </message>
    <message>
        <source>It is the drawing that was opened. Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>C’est le dessin qui a été ouvert. Seuls les calques, les types de ligne et les polylignes sont enregistrés. Tout le reste du fichier est perdu : lignes, arcs, textes, cotes, hachures, blocs et couleurs propres à chaque polyligne. Dès que quelque chose est effacé, les polylignes fermées perdent leur segment de fermeture et les segments courbes deviennent droits.</translation>
    </message>
</context>
<context>
    <name>DrawingRead</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Impossible de le lire.</translation>
    </message>
    <message>
        <source>There is not enough memory for the drawing.</source>
        <translation>La mémoire ne suffit pas pour le dessin.</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>The stroke was too long: its first part can no longer be undone.</source>
        <translation>Le trait était trop long : sa première partie ne peut plus être annulée.</translation>
    </message>
    <message>
        <source>The edits stay in the drawing, but they can no longer be undone.</source>
        <translation>Les modifications restent dans le dessin, mais ne peuvent plus être annulées.</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>How to &amp;Erase</source>
        <translation>Comment &amp;effacer</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>How to Erase</source>
        <translation>Comment effacer</translation>
    </message>
    <message>
        <source>Switch “Edit .dxf” on (Ctrl+E), hold the left button and sweep over the lines. What comes under the round eraser is erased, piece by piece: a piece reaches from one corner to the next.</source>
        <translation>Activez « Modifier .dxf » (Ctrl+E), maintenez le bouton gauche et passez sur les lignes. Ce qui passe sous la gomme ronde est effacé morceau par morceau : un morceau va d’un coin au suivant.</translation>
    </message>
    <message>
        <source>Zoom in first where lines are close: the eraser has the same size at every zoom. Ctrl and the wheel zoom, the middle button moves the drawing.</source>
        <translation>Là où les lignes sont serrées, agrandissez d’abord : la gomme garde la même taille à tout agrandissement. Ctrl et la molette agrandissent, le bouton du milieu déplace le dessin.</translation>
    </message>
    <message>
        <source>Ctrl+Z takes a whole stroke back, Ctrl+Y takes it up again.</source>
        <translation>Ctrl+Z annule un trait entier, Ctrl+Y le rétablit.</translation>
    </message>
    <message>
        <source>Escape ends erasing. The edits stay, but they can no longer be undone then.</source>
        <translation>Échap met fin à l’effacement. Les modifications restent, mais ne peuvent alors plus être annulées.</translation>
    </message>
    <message>
        <source>Ctrl+S saves. The first time it asks for a name, so that the drawing that was opened stays as it is.</source>
        <translation>Ctrl+S enregistre. La première fois, un nom est demandé, pour que le dessin ouvert reste tel quel.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>Affiche des dessins DXF et en efface des parties.</translation>
    </message>
    <message>
        <source>Qt %1, dxflib %2</source>
        <translation>Qt %1, dxflib %2</translation>
    </message>
    <message>
        <source>Licence: GNU General Public License, version 2 or later. It comes without any warranty.</source>
        <translation>Licence : GNU General Public License, version 2 ou ultérieure. Le programme est fourni sans aucune garantie.</translation>
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
    <message>
        <source>&amp;Print…</source>
        <translation>Im&amp;primer…</translation>
    </message>
    <message>
        <source>Print Pre&amp;view…</source>
        <translation>Aperçu a&amp;vant impression…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
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
    <name>Printing</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>The drawing cannot be printed.</source>
        <translation>Impossible d’imprimer le dessin.</translation>
    </message>
    <message>
        <source>The printer does not take it.</source>
        <translation>L’imprimante ne l’accepte pas.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Impossible d’écrire %1.</translation>
    </message>
    <message>
        <source>%1 could not be written to its end. The disk may be full.</source>
        <translation>%1 n’a pas pu être écrit jusqu’au bout. Le disque est peut-être plein.</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>Enregistrer le dessin modifié ?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Remplacer le fichier ?</translation>
    </message>
</context>
<context>
    <name>ReadingBar</name>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No drawing was opened yet</source>
        <translation>Aucun dessin n’a encore été ouvert</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Effacer la liste</translation>
    </message>
</context>
<context>
    <name>StrokeHistory</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
</context>
</TS>
