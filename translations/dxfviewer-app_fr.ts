<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Appearance</name>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Blanc</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>Arrière-p&amp;lan</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>GROUND</source>
        <translation>FOND</translation>
    </message>
    <message>
        <source>Start in edit mode.</source>
        <translation>Démarrer en mode édition.</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>Enregistrer une image du dessin dans FICHIER (.png, .svg ou .pdf) et quitter.</translation>
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
        <source>The picture cannot be written.</source>
        <translation>Impossible d’enregistrer l’image.</translation>
    </message>
    <message>
        <source>The report cannot be written.</source>
        <translation>Impossible d’écrire le rapport.</translation>
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
    <message>
        <source>What a picture lies on: dark, light or white (the default).</source>
        <translation>Arrière-plan d’une image : dark (sombre), light (clair) ou white (blanc, par défaut).</translation>
    </message>
    <message>
        <source>Print a line for each drawing, with tabs between: the file, the length of all lines, the least x and y, the greatest x and y, and how many objects of which kind are not shown.</source>
        <translation>Afficher une ligne par dessin, séparée par des tabulations : le fichier, la longueur de toutes les lignes, les x et y minimaux, les x et y maximaux et le nombre d’objets de chaque sorte non représentés.</translation>
    </message>
    <message>
        <source>Print what is read and left out.</source>
        <translation>Afficher ce qui est lu et ce qui est laissé de côté.</translation>
    </message>
    <message>
        <source>The ground of a picture is dark, light or white.</source>
        <translation>L’arrière-plan d’une image est dark, light ou white.</translation>
    </message>
    <message>
        <source>There is no drawing to report on.</source>
        <translation>Il n’y a pas de dessin à décrire.</translation>
    </message>
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
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
    <message>
        <source>It is a binary file, but no DXF drawing.</source>
        <translation>C’est un fichier binaire, mais pas un dessin DXF.</translation>
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
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Re&amp;charger</translation>
    </message>
</context>
<context>
    <name>DrawingSaver</name>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>Dessins DXF (*.dxf *.DXF)</translation>
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
        <source>Another program has changed it since it was saved. These changes are lost.</source>
        <translation>Un autre programme l’a modifié depuis son enregistrement. Ces modifications seront perdues.</translation>
    </message>
    <message>
        <source>What it holds now is lost.</source>
        <translation>Son contenu actuel sera perdu.</translation>
    </message>
</context>
<context>
    <name>DrawingRead</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Impossible de le lire.</translation>
    </message>
    <message>
        <source>It has more lines and curves than can be shown.</source>
        <translation>Il contient plus de lignes et de courbes qu’il n’est possible d’en représenter.</translation>
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
    <name>KindWords</name>
    <message>
        <source>1 line</source>
        <translation>1 ligne</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>1 arc</source>
        <translation>1 arc</translation>
    </message>
    <message numerus="yes">
        <source>%n arcs</source>
        <translation>
            <numerusform>%n arc</numerusform>
            <numerusform>%n arcs</numerusform>
        </translation>
    </message>
    <message>
        <source>1 circle</source>
        <translation>1 cercle</translation>
    </message>
    <message numerus="yes">
        <source>%n circles</source>
        <translation>
            <numerusform>%n cercle</numerusform>
            <numerusform>%n cercles</numerusform>
        </translation>
    </message>
    <message>
        <source>1 ellipse</source>
        <translation>1 ellipse</translation>
    </message>
    <message numerus="yes">
        <source>%n ellipses</source>
        <translation>
            <numerusform>%n ellipse</numerusform>
            <numerusform>%n ellipses</numerusform>
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
        <translation>1 point</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n point</numerusform>
            <numerusform>%n points</numerusform>
        </translation>
    </message>
    <message>
        <source>1 block</source>
        <translation>1 bloc</translation>
    </message>
    <message numerus="yes">
        <source>%n blocks</source>
        <translation>
            <numerusform>%n bloc</numerusform>
            <numerusform>%n blocs</numerusform>
        </translation>
    </message>
    <message>
        <source>1 dimension</source>
        <translation>1 cote</translation>
    </message>
    <message numerus="yes">
        <source>%n dimensions</source>
        <translation>
            <numerusform>%n cote</numerusform>
            <numerusform>%n cotes</numerusform>
        </translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 texte</translation>
    </message>
    <message numerus="yes">
        <source>%n texts</source>
        <translation>
            <numerusform>%n texte</numerusform>
            <numerusform>%n textes</numerusform>
        </translation>
    </message>
    <message>
        <source>1 leader</source>
        <translation>1 ligne de repère</translation>
    </message>
    <message numerus="yes">
        <source>%n leaders</source>
        <translation>
            <numerusform>%n ligne de repère</numerusform>
            <numerusform>%n lignes de repère</numerusform>
        </translation>
    </message>
    <message>
        <source>1 filled area</source>
        <translation>1 surface remplie</translation>
    </message>
    <message numerus="yes">
        <source>%n filled areas</source>
        <translation>
            <numerusform>%n surface remplie</numerusform>
            <numerusform>%n surfaces remplies</numerusform>
        </translation>
    </message>
    <message>
        <source>1 face</source>
        <translation>1 face 3D</translation>
    </message>
    <message numerus="yes">
        <source>%n faces</source>
        <translation>
            <numerusform>%n face 3D</numerusform>
            <numerusform>%n faces 3D</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hatch</source>
        <translation>1 hachure</translation>
    </message>
    <message numerus="yes">
        <source>%n hatches</source>
        <translation>
            <numerusform>%n hachure</numerusform>
            <numerusform>%n hachures</numerusform>
        </translation>
    </message>
    <message>
        <source>1 image</source>
        <translation>1 image</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>1 infinite line</source>
        <translation>1 ligne infinie</translation>
    </message>
    <message numerus="yes">
        <source>%n infinite lines</source>
        <translation>
            <numerusform>%n ligne infinie</numerusform>
            <numerusform>%n lignes infinies</numerusform>
        </translation>
    </message>
    <message>
        <source>1 other object</source>
        <translation>1 autre objet</translation>
    </message>
    <message numerus="yes">
        <source>%n other objects</source>
        <translation>
            <numerusform>%n autre objet</numerusform>
            <numerusform>%n autres objets</numerusform>
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
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Not shown: %1</source>
        <translation>Non représenté : %1</translation>
    </message>
    <message>
        <source>It is the drawing that was opened.</source>
        <translation>C’est le dessin qui a été ouvert.</translation>
    </message>
    <message>
        <source>%1 becomes polylines.</source>
        <translation>%1 devient des polylignes.</translation>
    </message>
    <message>
        <source>%1 become polylines.</source>
        <translation>%1 deviennent des polylignes.</translation>
    </message>
    <message>
        <source>%1 is lost.</source>
        <translation>%1 est perdu.</translation>
    </message>
    <message>
        <source>%1 are lost.</source>
        <translation>%1 sont perdus.</translation>
    </message>
    <message>
        <source>Only layers, line types and polylines are saved.</source>
        <translation>Seuls les calques, les types de ligne et les polylignes sont enregistrés.</translation>
    </message>
    <message>
        <source>It is the drawing that was opened. Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>C’est le dessin qui a été ouvert. Seuls les calques, les types de ligne et les polylignes sont enregistrés. Tout le reste du fichier est perdu : lignes, arcs, textes, cotes, hachures, blocs et couleurs propres à chaque polyligne. Dès que quelque chose est effacé, les polylignes fermées perdent leur segment de fermeture et les segments courbes deviennent droits.</translation>
    </message>
    <message>
        <source>What lies on layouts is lost.</source>
        <translation>Ce qui se trouve sur les présentations est perdu.</translation>
    </message>
    <message>
        <source>What is invisible is lost.</source>
        <translation>Ce qui est invisible est perdu.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Export Picture…</source>
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
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Open a drawing, or drop one here</source>
        <translation>Ouvrez un dessin ou déposez-en un ici</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>Ce dessin ne contient rien qui puisse être représenté.</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large to be shown.</source>
        <translation>Les coordonnées du dessin sont trop grandes pour qu’il soit représenté.</translation>
    </message>
</context>
<context>
    <name>Navigation</name>
    <message>
        <source>As &amp;Stored (y Downwards)</source>
        <translation>&amp;Tel quel (y vers le bas)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>&amp;Fit in Window</source>
        <translation>&amp;Ajuster à la fenêtre</translation>
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
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>Ce dessin ne contient rien qui puisse être représenté.</translation>
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
    <name>StatusLine</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Polylines: %1, segments: %2</source>
        <translation>Polylignes : %1, segments : %2</translation>
    </message>
    <message>
        <source>Drag with the left mouse button to erase, with the middle one to move the drawing.</source>
        <translation>Faites glisser avec le bouton gauche de la souris pour effacer, avec celui du milieu pour déplacer le dessin.</translation>
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
<context>
    <name>ViewChoices</name>
    <message>
        <source>&amp;Texts</source>
        <translation>Te&amp;xtes</translation>
    </message>
    <message>
        <source>Only &amp;Polylines</source>
        <translation>&amp;Polylignes seulement</translation>
    </message>
</context>
</TS>
