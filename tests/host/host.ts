<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>host::MenuScreen</name>
    <message>
        <source>TXT_RID_HEADER_RECENT_CALLS</source>
        <comment>Recent Calls</comment>
        <translation>Anrufe zuletzt geführt</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallTimesView</name>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Gesprächszeiten</translation>
    </message>
</context>
</TS>
