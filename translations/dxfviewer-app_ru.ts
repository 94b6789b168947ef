<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Appearance</name>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Тёмный</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Светлый</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Белый</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>&amp;Фон</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>FILE</source>
        <translation>ФАЙЛ</translation>
    </message>
    <message>
        <source>GROUND</source>
        <translation>ФОН</translation>
    </message>
    <message>
        <source>Start in edit mode.</source>
        <translation>Сразу включить режим редактирования.</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>Сохранить изображение чертежа в ФАЙЛ (.png, .svg или .pdf) и выйти.</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>Показывает чертежи DXF и стирает их части.</translation>
    </message>
    <message>
        <source>A .dxf file to open.</source>
        <translation>Открываемый файл .dxf.</translation>
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
        <translation>Не удаётся открыть чертёж.</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>Не удаётся сохранить изображение.</translation>
    </message>
    <message>
        <source>The report cannot be written.</source>
        <translation>Не удаётся записать отчёт.</translation>
    </message>
    <message>
        <source>DXF Viewer</source>
        <translation>Просмотр DXF</translation>
    </message>
    <message>
        <source>Only one drawing can be opened.</source>
        <translation>Можно открыть только один чертёж.</translation>
    </message>
    <message>
        <source>There is no drawing to make a picture of.</source>
        <translation>Не указан чертёж для изображения.</translation>
    </message>
    <message>
        <source>What a picture lies on: dark, light or white (the default).</source>
        <translation>Фон изображения: dark (тёмный), light (светлый) или white (белый, по умолчанию).</translation>
    </message>
    <message>
        <source>Print a line for each drawing, with tabs between: the file, the length of all lines, the least x and y, the greatest x and y, and how many objects of which kind are not shown.</source>
        <translation>Вывести строку для каждого чертежа, поля через табуляцию: файл, длина всех линий, наименьшие x и y, наибольшие x и y и сколько объектов какого вида не показано.</translation>
    </message>
    <message>
        <source>Print what is read and left out.</source>
        <translation>Выводить, что прочитано и что пропущено.</translation>
    </message>
    <message>
        <source>The ground of a picture is dark, light or white.</source>
        <translation>Фон изображения: dark, light или white.</translation>
    </message>
    <message>
        <source>There is no drawing to report on.</source>
        <translation>Нет чертежа для отчёта.</translation>
    </message>
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>It is not a DXF drawing.</source>
        <translation>Это не чертёж DXF.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Файл не существует.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Это не обычный файл.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Файл слишком большой.</translation>
    </message>
    <message>
        <source>It is a binary file, but no DXF drawing.</source>
        <translation>Это двоичный файл, но не чертёж DXF.</translation>
    </message>
</context>
<context>
    <name>DrawingFiles</name>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Открыть…</translation>
    </message>
    <message>
        <source>The drawing cannot be opened.</source>
        <translation>Не удаётся открыть чертёж.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>Чертежи DXF (*.dxf *.DXF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Открыть &amp;недавние</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Пере&amp;загрузить</translation>
    </message>
</context>
<context>
    <name>DrawingSaver</name>
    <message>
        <source>Save &amp;As…</source>
        <translation>Сохранить &amp;как…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>DXF drawings (*.dxf *.DXF)</source>
        <translation>Чертежи DXF (*.dxf *.DXF)</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>The drawing could not be written to a temporary file. The folder for temporary files may be full.</source>
        <translation>Не удалось записать чертёж во временный файл. Возможно, папка временных файлов заполнена.</translation>
    </message>
    <message>
        <source>The drawing cannot be saved.</source>
        <translation>Не удаётся сохранить чертёж.</translation>
    </message>
    <message>
        <source>Another program has changed it since it was saved. These changes are lost.</source>
        <translation>После сохранения его изменила другая программа. Эти изменения будут потеряны.</translation>
    </message>
    <message>
        <source>What it holds now is lost.</source>
        <translation>Его нынешнее содержимое будет потеряно.</translation>
    </message>
</context>
<context>
    <name>DrawingRead</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Не удаётся прочитать чертёж.</translation>
    </message>
    <message>
        <source>It has more lines and curves than can be shown.</source>
        <translation>В нём больше линий и кривых, чем можно показать.</translation>
    </message>
    <message>
        <source>There is not enough memory for the drawing.</source>
        <translation>Недостаточно памяти для чертежа.</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>The stroke was too long: its first part can no longer be undone.</source>
        <translation>Штрих был слишком длинным: его начало уже нельзя отменить.</translation>
    </message>
    <message>
        <source>The edits stay in the drawing, but they can no longer be undone.</source>
        <translation>Правки остаются в чертеже, но отменить их уже нельзя.</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>How to &amp;Erase</source>
        <translation>Как &amp;стирать</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>How to Erase</source>
        <translation>Как стирать</translation>
    </message>
    <message>
        <source>Switch “Edit .dxf” on (Ctrl+E), hold the left button and sweep over the lines. What comes under the round eraser is erased, piece by piece: a piece reaches from one corner to the next.</source>
        <translation>Включите «Редактировать .dxf» (Ctrl+E), удерживайте левую кнопку и ведите по линиям. Всё, что попадает под круглый ластик, стирается по частям: часть тянется от одного угла до следующего.</translation>
    </message>
    <message>
        <source>Zoom in first where lines are close: the eraser has the same size at every zoom. Ctrl and the wheel zoom, the middle button moves the drawing.</source>
        <translation>Там, где линии расположены близко, сначала увеличьте масштаб: размер ластика одинаков при любом масштабе. Ctrl и колесо меняют масштаб, средняя кнопка двигает чертёж.</translation>
    </message>
    <message>
        <source>Ctrl+Z takes a whole stroke back, Ctrl+Y takes it up again.</source>
        <translation>Ctrl+Z отменяет штрих целиком, Ctrl+Y возвращает его.</translation>
    </message>
    <message>
        <source>Escape ends erasing. The edits stay, but they can no longer be undone then.</source>
        <translation>Esc завершает стирание. Правки остаются, но отменить их после этого уже нельзя.</translation>
    </message>
    <message>
        <source>Ctrl+S saves. The first time it asks for a name, so that the drawing that was opened stays as it is.</source>
        <translation>Ctrl+S сохраняет. В первый раз запрашивается имя, чтобы открытый чертёж остался прежним.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>О программе %1</translation>
    </message>
    <message>
        <source>Views DXF drawings and erases parts of them.</source>
        <translation>Показывает чертежи DXF и стирает их части.</translation>
    </message>
    <message>
        <source>Qt %1, dxflib %2</source>
        <translation>Qt %1, dxflib %2</translation>
    </message>
    <message>
        <source>Licence: GNU General Public License, version 2 or later. It comes without any warranty.</source>
        <translation>Лицензия: GNU General Public License, версия 2 или новее. Программа поставляется без каких-либо гарантий.</translation>
    </message>
</context>
<context>
    <name>KindWords</name>
    <message>
        <source>1 line</source>
        <translation>1 отрезок</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n отрезок</numerusform>
            <numerusform>%n отрезка</numerusform>
            <numerusform>%n отрезков</numerusform>
        </translation>
    </message>
    <message>
        <source>1 arc</source>
        <translation>1 дуга</translation>
    </message>
    <message numerus="yes">
        <source>%n arcs</source>
        <translation>
            <numerusform>%n дуга</numerusform>
            <numerusform>%n дуги</numerusform>
            <numerusform>%n дуг</numerusform>
        </translation>
    </message>
    <message>
        <source>1 circle</source>
        <translation>1 окружность</translation>
    </message>
    <message numerus="yes">
        <source>%n circles</source>
        <translation>
            <numerusform>%n окружность</numerusform>
            <numerusform>%n окружности</numerusform>
            <numerusform>%n окружностей</numerusform>
        </translation>
    </message>
    <message>
        <source>1 ellipse</source>
        <translation>1 эллипс</translation>
    </message>
    <message numerus="yes">
        <source>%n ellipses</source>
        <translation>
            <numerusform>%n эллипс</numerusform>
            <numerusform>%n эллипса</numerusform>
            <numerusform>%n эллипсов</numerusform>
        </translation>
    </message>
    <message>
        <source>1 spline</source>
        <translation>1 сплайн</translation>
    </message>
    <message numerus="yes">
        <source>%n splines</source>
        <translation>
            <numerusform>%n сплайн</numerusform>
            <numerusform>%n сплайна</numerusform>
            <numerusform>%n сплайнов</numerusform>
        </translation>
    </message>
    <message>
        <source>1 point</source>
        <translation>1 точка</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n точка</numerusform>
            <numerusform>%n точки</numerusform>
            <numerusform>%n точек</numerusform>
        </translation>
    </message>
    <message>
        <source>1 block</source>
        <translation>1 блок</translation>
    </message>
    <message numerus="yes">
        <source>%n blocks</source>
        <translation>
            <numerusform>%n блок</numerusform>
            <numerusform>%n блока</numerusform>
            <numerusform>%n блоков</numerusform>
        </translation>
    </message>
    <message>
        <source>1 dimension</source>
        <translation>1 размер</translation>
    </message>
    <message numerus="yes">
        <source>%n dimensions</source>
        <translation>
            <numerusform>%n размер</numerusform>
            <numerusform>%n размера</numerusform>
            <numerusform>%n размеров</numerusform>
        </translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 текст</translation>
    </message>
    <message numerus="yes">
        <source>%n texts</source>
        <translation>
            <numerusform>%n текст</numerusform>
            <numerusform>%n текста</numerusform>
            <numerusform>%n текстов</numerusform>
        </translation>
    </message>
    <message>
        <source>1 leader</source>
        <translation>1 выноска</translation>
    </message>
    <message numerus="yes">
        <source>%n leaders</source>
        <translation>
            <numerusform>%n выноска</numerusform>
            <numerusform>%n выноски</numerusform>
            <numerusform>%n выносок</numerusform>
        </translation>
    </message>
    <message>
        <source>1 filled area</source>
        <translation>1 заливка</translation>
    </message>
    <message numerus="yes">
        <source>%n filled areas</source>
        <translation>
            <numerusform>%n заливка</numerusform>
            <numerusform>%n заливки</numerusform>
            <numerusform>%n заливок</numerusform>
        </translation>
    </message>
    <message>
        <source>1 face</source>
        <translation>1 грань</translation>
    </message>
    <message numerus="yes">
        <source>%n faces</source>
        <translation>
            <numerusform>%n грань</numerusform>
            <numerusform>%n грани</numerusform>
            <numerusform>%n граней</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hatch</source>
        <translation>1 штриховка</translation>
    </message>
    <message numerus="yes">
        <source>%n hatches</source>
        <translation>
            <numerusform>%n штриховка</numerusform>
            <numerusform>%n штриховки</numerusform>
            <numerusform>%n штриховок</numerusform>
        </translation>
    </message>
    <message>
        <source>1 image</source>
        <translation>1 изображение</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n изображение</numerusform>
            <numerusform>%n изображения</numerusform>
            <numerusform>%n изображений</numerusform>
        </translation>
    </message>
    <message>
        <source>1 infinite line</source>
        <translation>1 бесконечная прямая</translation>
    </message>
    <message numerus="yes">
        <source>%n infinite lines</source>
        <translation>
            <numerusform>%n бесконечная прямая</numerusform>
            <numerusform>%n бесконечные прямые</numerusform>
            <numerusform>%n бесконечных прямых</numerusform>
        </translation>
    </message>
    <message>
        <source>1 other object</source>
        <translation>1 другой объект</translation>
    </message>
    <message numerus="yes">
        <source>%n other objects</source>
        <translation>
            <numerusform>%n другой объект</numerusform>
            <numerusform>%n других объекта</numerusform>
            <numerusform>%n других объектов</numerusform>
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
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>Not shown: %1</source>
        <translation>Не показано: %1</translation>
    </message>
    <message>
        <source>It is the drawing that was opened.</source>
        <translation>Это открытый чертёж.</translation>
    </message>
    <message>
        <source>%1 becomes polylines.</source>
        <translation>%1 превратится в полилинии.</translation>
    </message>
    <message>
        <source>%1 become polylines.</source>
        <translation>%1 превратятся в полилинии.</translation>
    </message>
    <message>
        <source>%1 is lost.</source>
        <translation>Будет потеряно: %1.</translation>
    </message>
    <message>
        <source>%1 are lost.</source>
        <translation>Будет потеряно: %1.</translation>
    </message>
    <message>
        <source>Only layers, line types and polylines are saved.</source>
        <translation>Сохраняются только слои, типы линий и полилинии.</translation>
    </message>
    <message>
        <source>It is the drawing that was opened. Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>Это открытый чертёж. Сохраняются только слои, типы линий и полилинии. Всё остальное содержимое файла теряется: отрезки, дуги, тексты, размеры, штриховки, блоки и цвета отдельных полилиний. Как только что-либо стёрто, замкнутые полилинии теряют замыкающий сегмент, а дуговые сегменты становятся прямыми.</translation>
    </message>
    <message>
        <source>What lies on layouts is lost.</source>
        <translation>То, что лежит на листах, будет потеряно.</translation>
    </message>
    <message>
        <source>What is invisible is lost.</source>
        <translation>То, что невидимо, будет потеряно.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Export Picture…</source>
        <translation>&amp;Экспорт изображения…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>No drawing</source>
        <translation>Нет чертежа</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Печать…</translation>
    </message>
    <message>
        <source>Print Pre&amp;view…</source>
        <translation>Предп&amp;росмотр печати…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Open a drawing, or drop one here</source>
        <translation>Откройте чертёж или перетащите его сюда</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>В этом чертеже нет ничего, что можно показать.</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large to be shown.</source>
        <translation>Координаты чертежа слишком велики, чтобы его показать.</translation>
    </message>
</context>
<context>
    <name>Navigation</name>
    <message>
        <source>As &amp;Stored (y Downwards)</source>
        <translation>&amp;Как в файле (ось y вниз)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>У&amp;величить</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>У&amp;меньшить</translation>
    </message>
    <message>
        <source>&amp;Fit in Window</source>
        <translation>В&amp;писать в окно</translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>The name of a picture must end in .png, .svg or .pdf.</source>
        <translation>Имя файла изображения должно заканчиваться на .png, .svg или .pdf.</translation>
    </message>
    <message>
        <source>The drawing&apos;s coordinates are too large for a picture.</source>
        <translation>Координаты чертежа слишком велики для изображения.</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>Для изображения не хватает памяти.</translation>
    </message>
    <message>
        <source>There is nothing in this drawing that can be shown.</source>
        <translation>В этом чертеже нет ничего, что можно показать.</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>%1 pictures (*.%2)</source>
        <translation>Изображения %1 (*.%2)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Экспорт изображения</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>Не удаётся сохранить изображение.</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>The drawing cannot be printed.</source>
        <translation>Не удаётся напечатать чертёж.</translation>
    </message>
    <message>
        <source>The printer does not take it.</source>
        <translation>Принтер его не принимает.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Не удаётся записать %1.</translation>
    </message>
    <message>
        <source>%1 could not be written to its end. The disk may be full.</source>
        <translation>%1 не удалось записать до конца. Возможно, диск переполнен.</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>Сохранить изменённый чертёж?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Заменить файл?</translation>
    </message>
</context>
<context>
    <name>ReadingBar</name>
    <message>
        <source>Reading %1</source>
        <translation>Чтение %1</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No drawing was opened yet</source>
        <translation>Ещё не открыто ни одного чертежа</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Очистить список</translation>
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
        <translation>Полилинии: %1, сегменты: %2</translation>
    </message>
    <message>
        <source>Drag with the left mouse button to erase, with the middle one to move the drawing.</source>
        <translation>Тяните левой кнопкой мыши, чтобы стирать, средней — чтобы двигать чертёж.</translation>
    </message>
</context>
<context>
    <name>StrokeHistory</name>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>ViewChoices</name>
    <message>
        <source>&amp;Texts</source>
        <translation>&amp;Тексты</translation>
    </message>
    <message>
        <source>Only &amp;Polylines</source>
        <translation>Только поли&amp;линии</translation>
    </message>
</context>
</TS>
