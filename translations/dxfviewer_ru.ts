<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Viewer</name>
    <message>
        <source>MainWindow</source>
        <translation>Главное окно</translation>
    </message>
    <message>
        <source>Open .dxf</source>
        <translation>Открыть .dxf</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save .dxf</source>
        <translation>Сохранить .dxf</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Edit .dxf</source>
        <translation>Редактировать .dxf</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Delete Objects</source>
        <translation>Удалить объекты</translation>
    </message>
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
