<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Start in edit mode.</source>
        <translation>Сразу включить режим редактирования.</translation>
    </message>
    <message>
        <source>Write a picture of the drawing to FILE (.png, .svg or .pdf) and exit.</source>
        <translation>Сохранить изображение чертежа в ФАЙЛ (.png, .svg или .pdf) и выйти.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ФАЙЛ</translation>
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
        <source>It cannot be read.</source>
        <translation>Не удаётся прочитать чертёж.</translation>
    </message>
    <message>
        <source>The picture cannot be written.</source>
        <translation>Не удаётся сохранить изображение.</translation>
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
</context>
<context>
    <name>DrawingFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>It is a binary file. Only the text form of DXF can be read.</source>
        <translation>Это двоичный файл. Поддерживается только текстовый формат (ASCII) DXF.</translation>
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
        <source>Open &amp;Recent</source>
        <translation>Открыть &amp;недавние</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Пере&amp;загрузить</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Сохранить &amp;как…</translation>
    </message>
    <message>
        <source>Another program has changed it since it was saved. These changes are lost.</source>
        <translation>После сохранения его изменила другая программа. Эти изменения будут потеряны.</translation>
    </message>
    <message>
        <source>What it holds now is lost.</source>
        <translation>Его нынешнее содержимое будет потеряно.</translation>
    </message>
    <message>
        <source>It is the drawing that was opened. Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>Это открытый чертёж. Сохраняются только слои, типы линий и полилинии. Всё остальное содержимое файла теряется: отрезки, дуги, тексты, размеры, штриховки, блоки и цвета отдельных полилиний. Как только что-либо стёрто, замкнутые полилинии теряют замыкающий сегмент, а дуговые сегменты становятся прямыми.</translation>
    </message>
</context>
<context>
    <name>DrawingRead</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Не удаётся прочитать чертёж.</translation>
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
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Export &amp;Picture…</source>
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
        <source>There are no polylines in this drawing, so nothing is shown.</source>
        <translation>В этом чертеже нет полилиний, поэтому ничего не показано.</translation>
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
        <translation>Пред&amp;просмотр печати…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
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
</TS>
