<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>TestView</name>
    <message>
        <source>TXT_RID_SOFTKEY_YES</source>
        <comment>Yes</comment>
        <translation>Sí</translation>
    </message>
    <message>
        <source>TXT_RID_WITHOUT_COMMENT</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>TXT_RID_ACCENTED_DEFAULT</source>
        <comment>Café</comment>
        <translation>Té</translation>
    </message>
    <message>
        <source>TXT_RID_UNFINISHED</source>
        <comment>Unfinished</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>TXT_RID_SOFTKEY_YES</source>
        <comment>Yes</comment>
        <translation>Que sí</translation>
    </message>
</context>
</TS>
