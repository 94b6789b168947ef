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
        <source>&amp;Save As…</source>
        <translation>&amp;Сохранить как…</translation>
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
</context>
<context>
    <name>EditHistory</name>
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
    <name>Questions</name>
    <message>
        <source>Save the edited drawing?</source>
        <translation>Сохранить изменённый чертёж?</translation>
    </message>
    <message>
        <source>Replace the drawing that was opened?</source>
        <translation>Заменить открытый чертёж?</translation>
    </message>
    <message>
        <source>%1

Only layers, line types and polylines are saved. Everything else that the file holds is lost: lines, arcs, texts, dimensions, hatches, blocks and the colours of single polylines. Once anything was erased, closed polylines lose their closing edge, and bulges become straight.</source>
        <translation>%1

Сохраняются только слои, типы линий и полилинии. Всё остальное, что есть в файле, теряется: отрезки, дуги, тексты, размеры, штриховки, блоки и цвета отдельных полилиний. Как только что-либо стёрто, замкнутые полилинии теряют замыкающий сегмент, а дуги полилиний становятся прямыми.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
</context>
</TS>
