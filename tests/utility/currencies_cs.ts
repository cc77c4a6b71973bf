<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>PHONE_UI_RecentCallCostSetupView</name>
    <message>
        <source>TXT_RID_LIST_A_CHINA_RENMINBI_YUAN_CNY</source>
        <comment>CHINA  RENMINBI ¥UAN  (CNY)</comment>
        <translation>ČÍNA  RENMINBI ŽEN-MIN-PI JÜAN  (CNY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COSTA_RICA_COLON_CRC</source>
        <comment>COSTA RICA  COLÓN  (CRC)</comment>
        <translation>KOSTARIKA  KOLÓN  (CRC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NICARAGUA_GOLD_CORDOBA_NIO</source>
        <comment>NICARAGUA  GOLD CÓRDOBA  (NIO)</comment>
        <translation>NIKARAGUA  ZLATÁ CÓRDOBA  (NIO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAO_TOME_PRINCIPE_DOBRA_SRD</source>
        <comment>SÃO TOMÉ; PRINCIPE  DOBRA  (SRD)</comment>
        <translation>SVATÝ TOMÁŠ; PRINCŮV OSTROV  DOBRA  (SRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EL_SALVADOR_COLON_SVC</source>
        <comment>EL SALVADOR  COLÓN  (SVC)</comment>
        <translation>SALVADOR  KOLÓN  (SVC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IVORY_COAST_CFA_FRANC_XOF</source>
        <comment>IVORY COAST CFA-FRANC  (XOF) </comment>
        <translation>POBŘEŽÍ SLONOVINY  FRANK CFA  (XOF) </translation>
    </message>
</context>
</TS>
