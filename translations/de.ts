<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PHONE_UI_RecentCallCostSetupView</name>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Kostenlimit</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Währungsart</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All costs have been reset to 0.00 units.</comment>
        <translation>Alle Kosten wurden auf 0.00 Einheiten zurückgesetzt.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All call costs have been reset to 0.00 units.</comment>
        <translation>Die Kosten aller Anrufe wurden auf 0.00 Einheiten zurückgesetzt.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Dialed call costs have been reset to 0.00 units.</comment>
        <translation>Die Kosten gewählter Anrufe wurden auf 0.00 Einheiten zurückgesetzt.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ANSWERED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Answered call costs have been reset to 0.00 units.</comment>
        <translation>Die Kosten angenommener Anrufe wurden auf 0.00 Einheiten zurückgesetzt.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_ON</source>
        <comment>On</comment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_OFF</source>
        <comment>Off</comment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ON</source>
        <comment>On</comment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OFF</source>
        <comment>Off</comment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUSTOM</source>
        <comment>Custom</comment>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_SAVE</source>
        <comment>Save</comment>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_CALLS</source>
        <comment>Reset Calls</comment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Währung</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CHOOSE_TYPE</source>
        <comment>Choose Type</comment>
        <translation>Währung wählen</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Währung</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Preis pro Minute</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Limit einstellen</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COST_SETUP</source>
        <comment>Call-Cost Setup</comment>
        <translation>Kosteneinstellungen</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_ARAB_EMIRATES_DIRHAM_AED</source>
        <comment>UNITED ARAB EMIRATES  DIRHAM  (AED)</comment>
        <translation>Vereinigte Arabische Emirate: Dirham (AED)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AFGHANISTAN_AFGHANI_AFA</source>
        <comment>AFGHANISTAN  AFGHANI  (AFA)</comment>
        <translation>Afghanistan: Afghani (AFA)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALBANIA_LEK_ALL</source>
        <comment>ALBANIA  LEK  (ALL)</comment>
        <translation>Albanien: Lek (ALL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARMENIA_DRAM_AMD</source>
        <comment>ARMENIA  DRAM  (AMD)</comment>
        <translation>Armenien: Dram (AMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_ANTILLES_GUILDER_ANG</source>
        <comment>NETHERLANDS ANTILLES  GUILDER  (ANG)</comment>
        <translation>Niederländische Antillen: Gulden (ANG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGOLA_NEW_KWANZA_AON</source>
        <comment>ANGOLA  NEW KWANZA  (AON)</comment>
        <translation>Angola: Neuer Kwanza (AON)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARGENTINA_PESO_ARS</source>
        <comment>ARGENTINA  PESO  (ARS)</comment>
        <translation>Argentinien: Peso (ARS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRIA_SCHILLING_ATS</source>
        <comment>AUSTRIA  SCHILLING  (ATS)</comment>
        <translation>Österreich: Schilling (ATS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRALIA_KIRIBATI_DOLLAR_AUD</source>
        <comment>AUSTRALIA KIRIBATI  DOLLAR  (AUD)</comment>
        <translation>Australien, Kiribati: Dollar (AUD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARUBA_FLORIN_AWG</source>
        <comment>ARUBA  FLORIN  (AWG)</comment>
        <translation>Aruba: Florin (AWG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AZERBAIJAN_MANAT_AZM</source>
        <comment>AZERBAIJAN  MANAT  (AZM)</comment>
        <translation>Aserbaidschan: Manat (AZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BARBADOS_DOLLAR_BBD</source>
        <comment>BARBADOS  DOLLAR  (BBD)</comment>
        <translation>Barbados: Dollar (BBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BANGLADESH_TAKA_BDT</source>
        <comment>BANGLADESH  TAKA  (BDT)</comment>
        <translation>Bangladesch: Taka (BDT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELGIUM_FRANC_BEF</source>
        <comment>BELGIUM  FRANC  (BEF)</comment>
        <translation>Belgien: Franken (BEF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BULGARIA_LEW_BGN</source>
        <comment>BULGARIA  LEW  (BGN)</comment>
        <translation>Bulgarien: Lew (BGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHRAIN_DINAR_BHD</source>
        <comment>BAHRAIN  DINAR  (BHD)</comment>
        <translation>Bahrain: Dinar (BHD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURUNDI_FRANC_BIF</source>
        <comment>BURUNDI  FRANC  (BIF)</comment>
        <translation>Burundi: Franken (BIF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BERMUDA_DOLLAR_BMD</source>
        <comment>BERMUDA  DOLLAR  (BMD)</comment>
        <translation>Bermuda: Dollar (BMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRUNEI_DOLLAR_BND</source>
        <comment>BRUNEI  DOLLAR  (BND)</comment>
        <translation>Brunei: Dollar (BND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOLIVIA_BOLIVIANO_BOB</source>
        <comment>BOLIVIA  BOLIVIANO  (BOB)</comment>
        <translation>Bolivien: Boliviano (BOB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRAZIL_REAL_BRL</source>
        <comment>BRAZIL  REAL  (BRL)</comment>
        <translation>Brasilien: Real (BRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHAMAS_DOLLAR_BSD</source>
        <comment>BAHAMAS  DOLLAR  (BSD)</comment>
        <translation>Bahamas: Dollar (BSD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BHUTAN_NGULTRUM_BTN</source>
        <comment>BHUTAN  NGULTRUM  (BTN)</comment>
        <translation>Bhutan: Ngultrum (BTN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOTSWANA_PULA_BWP</source>
        <comment>BOTSWANA  PULA  (BWP)</comment>
        <translation>Botsuana: Pula (BWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELORUS_ROUBLE_BYR</source>
        <comment>BELORUS  ROUBLE  (BYR)</comment>
        <translation>Belarus: Rubel (BYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELIZE_DOLLAR_BZD</source>
        <comment>BELIZE  DOLLAR  (BZD)</comment>
        <translation>Belize: Dollar (BZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CANADA_DOLLAR_CAD</source>
        <comment>CANADA  DOLLAR  (CAD)</comment>
        <translation>Kanada: Dollar (CAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWITZERLAND_LIECHTENSTEIN_FRANC_CHF</source>
        <comment>SWITZERLAND; LIECHTENSTEIN  FRANC  (CHF)</comment>
        <translation>Schweiz, Liechtenstein: Franken (CHF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHILE_PESO_CLP</source>
        <comment>CHILE  PESO  (CLP)</comment>
        <translation>Chile: Peso (CLP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHINA_RENMINBI_YUAN_CNY</source>
        <comment>CHINA  RENMINBI ¥UAN  (CNY)</comment>
        <translation>China: Renminbi Yuan (CNY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COLUMBIA_PESO_COP</source>
        <comment>COLUMBIA  PESO  (COP)</comment>
        <translation>Kolumbien: Peso (COP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COSTA_RICA_COLON_CRC</source>
        <comment>COSTA RICA  COLÓN  (CRC)</comment>
        <translation>Costa Rica: Colón (CRC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUBA_PESO_CUP</source>
        <comment>CUBA  PESO  (CUP)</comment>
        <translation>Kuba: Peso (CUP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAPE_VERDE_ESCUDO_CVE</source>
        <comment>CAPE VERDE  ESCUDO  (CVE)</comment>
        <translation>Kap Verde: Escudo (CVE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CYPRUS_POUND_CYP</source>
        <comment>CYPRUS  POUND  (CYP)</comment>
        <translation>Zypern: Pfund (CYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CZECH_REPUBLIC_KRONER_CZK</source>
        <comment>CZECH REPUBLIC  KRONER  (CZK)</comment>
        <translation>Tschechische Republik: Krone (CZK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GERMANY_MARK_DEM</source>
        <comment>GERMANY  MARK  (DEM)</comment>
        <translation>Deutschland: Mark (DEM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DJIBUTI_FRANC_DJF</source>
        <comment>DJIBUTI  FRANC  (DJF)</comment>
        <translation>Dschibuti: Franken (DJF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DENMARK_KRONE_DKK</source>
        <comment>DENMARK  KRONE  (DKK)</comment>
        <translation>Dänemark: Krone (DKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICAN_REPUBLIC_PESO_DOP</source>
        <comment>DOMINICAN REPUBLIC  PESO  (DOP)</comment>
        <translation>Dominikanische Republik: Peso (DOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALGERIA_DINAR_DZD</source>
        <comment>ALGERIA  DINAR  (DZD)</comment>
        <translation>Algerien: Dinar (DZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ECUADOR_SUCRE_ECS</source>
        <comment>ECUADOR  SUCRE  (ECS)</comment>
        <translation>Ecuador: Sucre (ECS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ESTONIA_KROON_EEK</source>
        <comment>ESTONIA  KROON  (EEK)</comment>
        <translation>Estland: Krone (EEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EGYPT_POUND_EGP</source>
        <comment>EGYPT  POUND  (EGP)</comment>
        <translation>Ägypten: Pfund (EGP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SPAIN_ANDORRA_PESETA_ESP</source>
        <comment>SPAIN ANDORRA  PESETA  (ESP)</comment>
        <translation>Spanien, Andorra: Peseta (ESP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ETHIOPIA_BIRR_ETB</source>
        <comment>ETHIOPIA  BIRR  (ETB)</comment>
        <translation>Äthiopien: Birr (ETB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FINLAND_MARK_FIM</source>
        <comment>FINLAND  MARK  (FIM)</comment>
        <translation>Finnland: Mark (FIM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FIJI_DOLLAR_FJD</source>
        <comment>FIJI  DOLLAR  (FJD)</comment>
        <translation>Fidschi: Dollar (FJD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FALKLAND_ISLES_POUND_FKP</source>
        <comment>FALKLAND ISLES  POUND  (FKP)</comment>
        <translation>Falklandinseln: Pfund (FKP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FRANCE_FRANC_FRF</source>
        <comment>FRANCE  FRANC  (FRF)</comment>
        <translation>Frankreich: Franken (FRF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_KINGDOM_GREAT_BRITAIN_POUND_STERLING_GBP</source>
        <comment>UNITED KINGDOM (GREAT BRITAIN)  POUND STERLING  (GBP)</comment>
        <translation>Vereinigtes Königreich: Pfund Sterling (GBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GEORGIA_COUPON_GEK</source>
        <comment>GEORGIA  COUPON  (GEK)</comment>
        <translation>Georgien: Kupon (GEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GHANA_CEDI_GHC</source>
        <comment>GHANA  CEDI  (GHC)</comment>
        <translation>Ghana: Cedi (GHC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GIBRALTAR_POUND_GIP</source>
        <comment>GIBRALTAR  POUND  (GIP)</comment>
        <translation>Gibraltar: Pfund (GIP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GAMBIA_DALASI_GMD</source>
        <comment>GAMBIA  DALASI  (GMD)</comment>
        <translation>Gambia: Dalasi (GMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_FRANC_GNF</source>
        <comment>GUINEA  FRANC  (GNF)</comment>
        <translation>Guinea: Franken (GNF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GREECE_DRACHMA_GRD</source>
        <comment>GREECE  DRACHMA  (GRD)</comment>
        <translation>Griechenland: Drachme (GRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUATEMALA_QUETZAL_GTQ</source>
        <comment>GUATEMALA  QUETZAL  (GTQ)</comment>
        <translation>Guatemala: Quetzal (GTQ)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_BISSAU_PESO_GWP</source>
        <comment>GUINEA-BISSAU  PESO  (GWP)</comment>
        <translation>Guinea-Bissau: Peso (GWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUYANA_DOLLAR_GYD</source>
        <comment>GUYANA  DOLLAR  (GYD)</comment>
        <translation>Guyana: Dollar (GYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONG_KONG_DOLLAR_HKD</source>
        <comment>HONG KONG  DOLLAR  (HKD)</comment>
        <translation>Hongkong: Dollar (HKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONDURAS_LEMPIRA_HNL</source>
        <comment>HONDURAS  LEMPIRA  (HNL)</comment>
        <translation>Honduras: Lempira (HNL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CROATIA_KUNA_HRK</source>
        <comment>CROATIA  KUNA  (HRK)</comment>
        <translation>Kroatien: Kuna (HRK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HAITI_GOURDE_HTG</source>
        <comment>HAITI  GOURDE  (HTG)</comment>
        <translation>Haiti: Gourde (HTG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HUNGARY_FORINT_HUF</source>
        <comment>HUNGARY  FORINT  (HUF)</comment>
        <translation>Ungarn: Forint (HUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDONESIA_RUPIAH_IDR</source>
        <comment>INDONESIA  RUPIAH  (IDR)</comment>
        <translation>Indonesien: Rupiah (IDR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRELAND_PUNT_IEP</source>
        <comment>IRELAND  PUNT  (IEP)</comment>
        <translation>Irland: Pfund (IEP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ISRAEL_NEW_SHEKEL_ILS</source>
        <comment>ISRAEL  NEW SHEKEL  (ILS)</comment>
        <translation>Israel: Neuer Schekel (ILS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDIA_BHUTAN_RUPEE_INR</source>
        <comment>INDIA; BHUTAN  RUPEE  (INR)</comment>
        <translation>Indien, Bhutan: Rupie (INR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAQ_DINAR_IQD</source>
        <comment>IRAQ  DINAR  (IQD)</comment>
        <translation>Irak: Dinar (IQD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAN_RIAL_IRR</source>
        <comment>IRAN  RIAL  (IRR)</comment>
        <translation>Iran: Rial (IRR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ICELAND_KRONER_ISK</source>
        <comment>ICELAND  KRONER  (ISK)</comment>
        <translation>Island: Krone (ISK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ITALY_LIRA_ITL</source>
        <comment>ITALY  LIRA  (ITL)</comment>
        <translation>Italien: Lira (ITL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAMAICA_DOLLAR_JMD</source>
        <comment>JAMAICA  DOLLAR  (JMD)</comment>
        <translation>Jamaika: Dollar (JMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JORDAN_DINAR_JOD</source>
        <comment>JORDAN  DINAR  (JOD)</comment>
        <translation>Jordanien: Dinar (JOD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAPAN_YEN_JPY</source>
        <comment>JAPAN  YEN  (JPY)</comment>
        <translation>Japan: Yen (JPY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KENYA_SHILLING_KES</source>
        <comment>KENYA  SHILLING  (KES)</comment>
        <translation>Kenia: Schilling (KES)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KIRGIZISTAN_SOM_KGS</source>
        <comment>KIRGIZISTAN  SOM  (KGS)</comment>
        <translation>Kirgisistan: Som (KGS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAMBODIA_RIEL_KHR</source>
        <comment>CAMBODIA  RIEL  (KHR)</comment>
        <translation>Kambodscha: Riel (KHR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COMORES_FRANC_KMF</source>
        <comment>COMORES  FRANC  (KMF)</comment>
        <translation>Komoren: Franken (KMF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_DEMOCRATIC_PEOPLES_REPUBLIC_WON_KPW</source>
        <comment>KOREA, DEMOCRATIC PEOPLE'S REPUBLIC  WON  (KPW)</comment>
        <translation>Nordkorea: Won (KPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_REPUBLIC_SOUTH_KOREA_WON_KRW</source>
        <comment>KOREA, REPUBLIC (SOUTH KOREA)  WON  (KRW)</comment>
        <translation>Südkorea: Won (KRW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KUWAIT_DINAR_KWD</source>
        <comment>KUWAIT  DINAR  (KWD)</comment>
        <translation>Kuwait: Dinar (KWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAYMAN_ISLANDS_DOLLAR_KYD</source>
        <comment>CAYMAN ISLANDS  DOLLAR  (KYD)</comment>
        <translation>Kaimaninseln: Dollar (KYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KAZAKHSTAN_TENGE_KZT</source>
        <comment>KAZAKHSTAN  TENGE  (KZT)</comment>
        <translation>Kasachstan: Tenge (KZT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LAOS_KIP_LAK</source>
        <comment>LAOS  KIP  (LAK)</comment>
        <translation>Laos: Kip (LAK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LEBANON_POUND_LBP</source>
        <comment>LEBANON  POUND  (LBP)</comment>
        <translation>Libanon: Pfund (LBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRI_LANKA_RUPEE_LKR</source>
        <comment>SRI LANKA  RUPEE  (LKR)</comment>
        <translation>Sri Lanka: Rupie (LKR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBERIA_DOLLAR_LRD</source>
        <comment>LIBERIA  DOLLAR  (LRD)</comment>
        <translation>Liberia: Dollar (LRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LESOTHO_LOTI_PL_MALOTI_LSL</source>
        <comment>LESOTHO  LOTI (Pl.: MALOTI)  (LSL)</comment>
        <translation>Lesotho: Loti (LSL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LITHUANIA_LITAS_LTL</source>
        <comment>LITHUANIA  LITAS  (LTL)</comment>
        <translation>Litauen: Litas (LTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LUXEMBOURG_FRANC_LUF</source>
        <comment>LUXEMBOURG  FRANC  (LUF)</comment>
        <translation>Luxemburg: Franken (LUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LATVIA_LAT_LVL</source>
        <comment>LATVIA  LAT  (LVL)</comment>
        <translation>Lettland: Lats (LVL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBYA_DINAR_LYD</source>
        <comment>LIBYA  DINAR  (LYD)</comment>
        <translation>Libyen: Dinar (LYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAROC_DIRHAM_MAD</source>
        <comment>MAROC  DIRHAM  (MAD)</comment>
        <translation>Marokko: Dirham (MAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOLDAVIA_LEU_MDL</source>
        <comment>MOLDAVIA  LEU  (MDL)</comment>
        <translation>Moldau: Leu (MDL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MADAGASCAR_FRANC_MGF</source>
        <comment>MADAGASCAR  FRANC  (MGF)</comment>
        <translation>Madagaskar: Franken (MGF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACEDONIA_DENAR_MKD</source>
        <comment>MACEDONIA  DENAR  (MKD)</comment>
        <translation>Mazedonien: Denar (MKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MYANMAR_KYAT_MMK</source>
        <comment>MYANMAR  KYAT  (MMK)</comment>
        <translation>Myanmar: Kyat (MMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONGOLIA_TUGRIK_MNT</source>
        <comment>MONGOLIA  TUGRIK  (MNT)</comment>
        <translation>Mongolei: Tugrik (MNT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACAU_PATACA_MOP</source>
        <comment>MACAU  PATACA  (MOP)</comment>
        <translation>Macau: Pataca (MOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURETANIA_OUGUIYA_MRO</source>
        <comment>MAURETANIA  OUGUIYA  (MRO)</comment>
        <translation>Mauretanien: Ouguiya (MRO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALTA_LIRA_MTL</source>
        <comment>MALTA  LIRA  (MTL)</comment>
        <translation>Malta: Lira (MTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURITIUS_RUPEE_MUR</source>
        <comment>MAURITIUS  RUPEE  (MUR)</comment>
        <translation>Mauritius: Rupie (MUR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALDIVE_ISLES_RUFIYAA_MVR</source>
        <comment>MALDIVE ISLES  RUFIYAA  (MVR)</comment>
        <translation>Malediven: Rufiyaa (MVR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAWI_KWACHA_MWK</source>
        <comment>MALAWI  KWACHA  (MWK)</comment>
        <translation>Malawi: Kwacha (MWK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEXICO_NEW_PESO_MXN</source>
        <comment>MEXICO  NEW PESO  (MXN)</comment>
        <translation>Mexiko: Neuer Peso (MXN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAYSIA_RINGGIT_MYR</source>
        <comment>MALAYSIA  RINGGIT  (MYR)</comment>
        <translation>Malaysia: Ringgit (MYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOZAMBIQUE_METICAL_MZM</source>
        <comment>MOZAMBIQUE  METICAL  (MZM)</comment>
        <translation>Mosambik: Metical (MZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NAMIBIA_DOLLAR_NAD</source>
        <comment>NAMIBIA  DOLLAR  (NAD)</comment>
        <translation>Namibia: Dollar (NAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGERIA_NAIRA_NGN</source>
        <comment>NIGERIA  NAIRA  (NGN)</comment>
        <translation>Nigeria: Naira (NGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NICARAGUA_GOLD_CORDOBA_NIO</source>
        <comment>NICARAGUA  GOLD CÓRDOBA  (NIO)</comment>
        <translation>Nicaragua: Gold-Córdoba (NIO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_GUILDER_NLG</source>
        <comment>NETHERLANDS  GUILDER  (NLG)</comment>
        <translation>Niederlande: Gulden (NLG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NORWAY_KRONA_NOK</source>
        <comment>NORWAY  KRONA  (NOK)</comment>
        <translation>Norwegen: Krone (NOK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEPAL_RUPEE_NPW</source>
        <comment>NEPAL  RUPEE  (NPW)</comment>
        <translation>Nepal: Rupie (NPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEW_ZEALAND_DOLLAR_NZD</source>
        <comment>NEW ZEALAND  DOLLAR  (NZD)</comment>
        <translation>Neuseeland: Dollar (NZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OMAN_RIAL_OMR</source>
        <comment>OMAN  RIAL  (OMR)</comment>
        <translation>Oman: Rial (OMR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PANAMA_BALBOA_PAB</source>
        <comment>PANAMA  BALBOA  (PAB)</comment>
        <translation>Panama: Balboa (PAB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PERU_NEW_SOL_PEN</source>
        <comment>PERU  NEW SOL  (PEN)</comment>
        <translation>Peru: Neuer Sol (PEN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAPUA_NEW_GUINEA_KINA_PGK</source>
        <comment>PAPUA NEW GUINEA  KINA  (PGK)</comment>
        <translation>Papua-Neuguinea: Kina (PGK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PHILIPPINES_PESO_PHP</source>
        <comment>PHILIPPINES  PESO  (PHP)</comment>
        <translation>Philippinen: Peso (PHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAKISTAN_RUPEE_PYK</source>
        <comment>PAKISTAN  RUPEE  (PYK)</comment>
        <translation>Pakistan: Rupie (PYK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_POLAND_ZLOTY_PLN</source>
        <comment>POLAND  ZLOTY  (PLN)</comment>
        <translation>Polen: Zloty (PLN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PORTUGAL_ESCUDO_PTE</source>
        <comment>PORTUGAL  ESCUDO  (PTE)</comment>
        <translation>Portugal: Escudo (PTE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PARAGUAY_GUARANI_PYG</source>
        <comment>PARAGUAY  GUARANI  (PYG)</comment>
        <translation>Paraguay: Guaraní (PYG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_QATAR_RIYAL_QAR</source>
        <comment>QATAR  RIYAL  (QAR)</comment>
        <translation>Katar: Riyal (QAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ROMANIA_LEU_ROL</source>
        <comment>ROMANIA  LEU  (ROL)</comment>
        <translation>Rumänien: Leu (ROL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_AZERBAIJAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION AZERBAIJAN  ROUBLE  (RUB)</comment>
        <translation>Russische Föderation, Aserbaidschan: Rubel (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_BELARUS_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION BELARUS  ROUBLE  (RUB)</comment>
        <translation>Russische Föderation, Belarus: Rubel (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_TADZIKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION TADZIKISTAN  ROUBLE  (RUB)</comment>
        <translation>Russische Föderation, Tadschikistan: Rubel (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_UZBEKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION UZBEKISTAN  ROUBLE  (RUB)</comment>
        <translation>Russische Föderation, Usbekistan: Rubel (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUANDA_FRANC_RWF</source>
        <comment>RUANDA  FRANC  (RWF)</comment>
        <translation>Ruanda: Franken (RWF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAUDI_ARABIA_RIYAL_SAR</source>
        <comment>SAUDI ARABIA  RIYAL  (SAR)</comment>
        <translation>Saudi-Arabien: Riyal (SAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SALOMON_ISLES_DOLLAR_SBD</source>
        <comment>SALOMON ISLES  DOLLAR  (SBD)</comment>
        <translation>Salomonen: Dollar (SBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SEYCHELLES_RUPEE_SCR</source>
        <comment>SEYCHELLES  RUPEE  (SCR)</comment>
        <translation>Seychellen: Rupie (SCR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SUDAN_DINAR_SDD</source>
        <comment>SUDAN  DINAR  (SDD)</comment>
        <translation>Sudan: Dinar (SDD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWEDEN_KRONER_SEK</source>
        <comment>SWEDEN  KRONER  (SEK)</comment>
        <translation>Schweden: Krone (SEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SINGAPORE_DOLLAR_SGD</source>
        <comment>SINGAPORE  DOLLAR  (SGD)</comment>
        <translation>Singapur: Dollar (SGD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_HELENS_POUND_SHP</source>
        <comment>ST. HELENS  POUND  (SHP)</comment>
        <translation>St. Helena: Pfund (SHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVENIA_TOLAR_SIT</source>
        <comment>SLOVENIA  TOLAR  (SIT)</comment>
        <translation>Slowenien: Tolar (SIT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVAKIA_KORUNA_SKK</source>
        <comment>SLOVAKIA  KORUNA  (SKK)</comment>
        <translation>Slowakei: Krone (SKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SIERRA_LEONE_LEONE_SLL</source>
        <comment>SIERRA LEONE  LEONE  (SLL)</comment>
        <translation>Sierra Leone: Leone (SLL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOMALIA_SHILLING_SOS</source>
        <comment>SOMALIA  SHILLING  (SOS)</comment>
        <translation>Somalia: Schilling (SOS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SURINAM_GUILDER_SRG</source>
        <comment>SURINAM  GUILDER  (SRG)</comment>
        <translation>Suriname: Gulden (SRG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAO_TOME_PRINCIPE_DOBRA_SRD</source>
        <comment>SÃO TOMÉ; PRINCIPE  DOBRA  (SRD)</comment>
        <translation>São Tomé, Príncipe: Dobra (SRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EL_SALVADOR_COLON_SVC</source>
        <comment>EL SALVADOR  COLÓN  (SVC)</comment>
        <translation>El Salvador: Colón (SVC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SYRIA_POUND_SYP</source>
        <comment>SYRIA  POUND  (SYP)</comment>
        <translation>Syrien: Pfund (SYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWAZILAND_LILANGENI_PL_EMALANGENI_SZL</source>
        <comment>SWAZILAND  LILANGENI (Pl.: EMALANGENI)  (SZL)</comment>
        <translation>Swasiland: Lilangeni (SZL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_THAILAND_BAHT_THB</source>
        <comment>THAILAND  BAHT  (THB)</comment>
        <translation>Thailand: Baht (THB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKMENISTAN_MANAT_TMM</source>
        <comment>TURKMENISTAN  MANAT  (TMM)</comment>
        <translation>Turkmenistan: Manat (TMM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TUNESIA_DINAR_TND</source>
        <comment>TUNESIA  DINAR  (TND)</comment>
        <translation>Tunesien: Dinar (TND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TONGA_PAANGA_TOP</source>
        <comment>TONGA  PA'ANGA  (TOP)</comment>
        <translation>Tonga: Paʻanga (TOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKEY_LIRA_TRL</source>
        <comment>TURKEY  LIRA  (TRL)</comment>
        <translation>Türkei: Lira (TRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TRINIDAD_TOBAGO_DOLLAR_TTD</source>
        <comment>TRINIDAD; TOBAGO  DOLLAR  (TTD)</comment>
        <translation>Trinidad, Tobago: Dollar (TTD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TAIWAN_DOLLAR_TWD</source>
        <comment>TAIWAN  DOLLAR  (TWD)</comment>
        <translation>Taiwan: Dollar (TWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TANZANIA_SHILLING_TZS</source>
        <comment>TANZANIA  SHILLING  (TZS)</comment>
        <translation>Tansania: Schilling (TZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UKRAINE_HRYVNIA_UAH</source>
        <comment>UKRAINE  HRYVNIA  (UAH)</comment>
        <translation>Ukraine: Hrywnja (UAH)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UGANDA_SHILLING_UGX</source>
        <comment>UGANDA  SHILLING  (UGX)</comment>
        <translation>Uganda: Schilling (UGX)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_USA_DOLLAR_USD</source>
        <comment>USA  DOLLAR  (USD)</comment>
        <translation>USA: Dollar (USD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_URUGUAY_PESO_UYU</source>
        <comment>URUGUAY  PESO  (UYU)</comment>
        <translation>Uruguay: Peso (UYU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UZBEKISTAN_SUM_UZS</source>
        <comment>UZBEKISTAN  SUM  (UZS)</comment>
        <translation>Usbekistan: Soʻm (UZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VENEZUELA_BOLIVAR_VEB</source>
        <comment>VENEZUELA  BOLIVAR  (VEB)</comment>
        <translation>Venezuela: Bolívar (VEB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VIETNAM_DONG_VND</source>
        <comment>VIETNAM  DONG  (VND)</comment>
        <translation>Vietnam: Dong (VND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VANUATU_VATU_VUV</source>
        <comment>VANUATU  VATU  (VUV)</comment>
        <translation>Vanuatu: Vatu (VUV)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMOA_TALA_WST</source>
        <comment>SAMOA  TALA  (WST)</comment>
        <translation>Samoa: Tala (WST)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CHAD_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CHAD CFA-FRANC  (XAF)</comment>
        <translation>Zentralafrikanische Republik, Tschad: CFA-Franc (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_EQUATORIAL_GUINEA_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC EQUATORIAL GUINEA CFA-FRANC  (XAF)</comment>
        <translation>Zentralafrikanische Republik, Äquatorialguinea: CFA-Franc (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_GABUN_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC GABUN CFA-FRANC  (XAF)</comment>
        <translation>Zentralafrikanische Republik, Gabun: CFA-Franc (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CAMEROON_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CAMEROON CFA-FRANC  (XAF)</comment>
        <translation>Zentralafrikanische Republik, Kamerun: CFA-Franc (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CONGO_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CONGO  CFA-FRANC  (XAF)</comment>
        <translation>Zentralafrikanische Republik, Kongo: CFA-Franc (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGUILLA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANGUILLA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Anguilla: Ostkaribischer Dollar (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANTIGUA_AND_BARBUDA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANTIGUA AND BARBUDA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Antigua und Barbuda: Ostkaribischer Dollar (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>DOMINICA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Dominica: Ostkaribischer Dollar (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GRENADA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>GRENADA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Grenada: Ostkaribischer Dollar (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONTSERRAT_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>MONTSERRAT EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Montserrat: Ostkaribischer Dollar (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_KITTS_AND_NEVIS_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. KITTS AND NEVIS EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>St. Kitts und Nevis: Ostkaribischer Dollar (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_LUCIA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. LUCIA  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>St. Lucia: Ostkaribischer Dollar (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_VINCENT_AND_GRENADINES_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. VINCENT AND GRENADINES  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>St. Vincent und die Grenadinen: Ostkaribischer Dollar (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EUROPEAN_UNION_EUROPEAN_CURRENCY_UNIT_XEU</source>
        <comment>EUROPEAN UNION  EUROPEAN CURRENCY UNIT  (XEU)</comment>
        <translation>Europäische Union: Europäische Währungseinheit (XEU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BENIN_CFA_FRANC_XOF</source>
        <comment>BENIN  CFA-FRANC  (XOF)</comment>
        <translation>Benin: CFA-Franc (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURKINA_FASO_CFA_FRANC_XOF</source>
        <comment>BURKINA FASO CFA-FRANC  (XOF)</comment>
        <translation>Burkina Faso: CFA-Franc (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IVORY_COAST_CFA_FRANC_XOF</source>
        <comment>IVORY COAST CFA-FRANC  (XOF) </comment>
        <translation>Elfenbeinküste: CFA-Franc (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALI_CFA_FRANC_XOF</source>
        <comment>MALI CFA-FRANC  (XOF)</comment>
        <translation>Mali: CFA-Franc (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGER_CFA_FRANC_XOF</source>
        <comment>NIGER CFA-FRANC  (XOF)</comment>
        <translation>Niger: CFA-Franc (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SENEGAL_CFA_FRANC_XOF</source>
        <comment>SENEGAL CFA-FRANC  (XOF) </comment>
        <translation>Senegal: CFA-Franc (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TOGO_CFA_FRANC_XOF</source>
        <comment>TOGO  CFA-FRANC  (XOF)</comment>
        <translation>Togo: CFA-Franc (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YEMEN_RIAL_YER</source>
        <comment>YEMEN  RIAL  (YER)</comment>
        <translation>Jemen: Rial (YER)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YUGOSLAVIA_DINAR_YUN</source>
        <comment>YUGOSLAVIA  DINAR  (YUN)</comment>
        <translation>Jugoslawien: Dinar (YUN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_RAND_FINANCE_ZAL</source>
        <comment>SOUTH AFRICA; LESOTHO  RAND (FINANCE)  (ZAL)</comment>
        <translation>Südafrika, Lesotho: Finanz-Rand (ZAL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_NAMIBIA_RAND_ZAR</source>
        <comment>SOUTH AFRICA; LESOTHO; (NAMIBIA) RAND  (ZAR)</comment>
        <translation>Südafrika, Lesotho, Namibia: Rand (ZAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMBIA_KWACHA_ZMK</source>
        <comment>SAMBIA  KWACHA  (ZMK)</comment>
        <translation>Sambia: Kwacha (ZMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAIRE_NEW_ZAIRE_ZRN</source>
        <comment>ZAIRE  NEW ZAIRE  (ZRN)</comment>
        <translation>Zaire: Neuer Zaire (ZRN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZIMBABWE_DOLLAR_ZWD</source>
        <comment>ZIMBABWE  DOLLAR  (ZWD)</comment>
        <translation>Simbabwe: Dollar (ZWD)</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallCostsView</name>
    <message>
        <source>TXT_RID_HEADER_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Verfügbares Guthaben</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2</source>
        <comment>Your current credit available is %1 units</comment>
        <translation>Ihr verfügbares Guthaben beträgt %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1</source>
        <comment>Your remaining credit will expire on %1</comment>
        <translation>Ihr restliches Guthaben verfällt am %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Letzte Aufladung</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS</source>
        <comment>Your last deposit amount was %1</comment>
        <translation>Ihre letzte Aufladung betrug %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Letzter Anruf</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS</source>
        <comment>The cost of your last call was %1</comment>
        <translation>Die Kosten Ihres letzten Anrufs betrugen %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Gewählte Anrufe</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your dialed calls is %1</comment>
        <translation>Die Kosten Ihrer gewählten Anrufe betragen %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Angenommene Anrufe</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your answered calls is %1</comment>
        <translation>Die Kosten Ihrer angenommenen Anrufe betragen %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Alle Anrufe</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS</source>
        <comment>The cost of all your calls is %1</comment>
        <translation>Die Kosten aller Ihrer Anrufe betragen %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Anrufkosten</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataTimesView</name>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Datenzeiten</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1</source>
        <comment>The current Data Session time for %2 is %1.</comment>
        <translation>Die Dauer der aktuellen Datensitzung für %2 beträgt %1.</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_TOTAL_TIME_FOR_ALL_YOUR_GPRS_DATA_SESSIONS_IS_1</source>
        <comment>The total time for all your data sessions is %1.</comment>
        <translation>Die Gesamtdauer aller Ihrer Datensitzungen beträgt %1.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_TIMER</source>
        <comment>Are you sure you want to reset the data sessions timer?</comment>
        <translation>Möchten Sie den Zähler der Datensitzungen wirklich zurücksetzen?</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesDetailView</name>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1</source>
        <comment>Your sent data volume is %1</comment>
        <translation>Ihr gesendetes Datenvolumen beträgt %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_RECEIVED_DATA_VOLUME_IS_1</source>
        <comment>Your received data volume is %1</comment>
        <translation>Ihr empfangenes Datenvolumen beträgt %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_TOTAL_DATA_TRANSFER_VOLUME_IS_1</source>
        <comment>Your total data transfer volume is %1</comment>
        <translation>Ihr gesamtes Datenvolumen beträgt %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUME</source>
        <comment>Data Volume</comment>
        <translation>Datenvolumen</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesView</name>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_VOLUME</source>
        <comment>Are you sure you want to reset the data sessions volume?</comment>
        <translation>Möchten Sie das Volumen der Datensitzungen wirklich zurücksetzen?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Datenvolumen</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallMeter</name>
    <message>
        <source>TXT_RID_LIST_A_UNITS</source>
        <comment>units</comment>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AED</source>
        <comment>AED</comment>
        <translation>AED</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AFA</source>
        <comment>AFA</comment>
        <translation>AFA</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALL</source>
        <comment>ALL</comment>
        <translation>ALL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AMD</source>
        <comment>AMD</comment>
        <translation>AMD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANG</source>
        <comment>ANG</comment>
        <translation>ANG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AON</source>
        <comment>AON</comment>
        <translation>AON</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARS</source>
        <comment>ARS</comment>
        <translation>ARS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUD</source>
        <comment>AUD</comment>
        <translation>AUD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AWG</source>
        <comment>AWG</comment>
        <translation>AWG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AZM</source>
        <comment>AZM</comment>
        <translation>AZM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BBD</source>
        <comment>BBD</comment>
        <translation>BBD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BDT</source>
        <comment>BDT</comment>
        <translation>BDT</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BEF</source>
        <comment>BEF</comment>
        <translation>BEF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BGN</source>
        <comment>BGN</comment>
        <translation>BGN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BHD</source>
        <comment>BHD</comment>
        <translation>BHD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BIF</source>
        <comment>BIF</comment>
        <translation>BIF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BMD</source>
        <comment>BMD</comment>
        <translation>BMD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOB</source>
        <comment>BOB</comment>
        <translation>BOB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRL</source>
        <comment>BRL</comment>
        <translation>BRL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BSD</source>
        <comment>BSD</comment>
        <translation>BSD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BTN</source>
        <comment>BTN</comment>
        <translation>BTN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BWP</source>
        <comment>BWP</comment>
        <translation>BWP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BYR</source>
        <comment>BYR</comment>
        <translation>BYR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BZD</source>
        <comment>BZD</comment>
        <translation>BZD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAD</source>
        <comment>CAD</comment>
        <translation>CAD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHF</source>
        <comment>CHF</comment>
        <translation>CHF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CLP</source>
        <comment>CLP</comment>
        <translation>CLP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CNY</source>
        <comment>CNY</comment>
        <translation>CNY</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COP</source>
        <comment>COP</comment>
        <translation>COP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CRC</source>
        <comment>CRC</comment>
        <translation>CRC</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUP</source>
        <comment>CUP</comment>
        <translation>CUP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CVE</source>
        <comment>CVE</comment>
        <translation>CVE</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CYP</source>
        <comment>CYP</comment>
        <translation>CYP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CZK</source>
        <comment>CZK</comment>
        <translation>CZK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DEM</source>
        <comment>DEM</comment>
        <translation>DEM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DJF</source>
        <comment>DJF</comment>
        <translation>DJF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DKK</source>
        <comment>DKK</comment>
        <translation>DKK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOP</source>
        <comment>DOP</comment>
        <translation>DOP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DZD</source>
        <comment>DZD</comment>
        <translation>DZD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ECS</source>
        <comment>ECS</comment>
        <translation>ECS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EEK</source>
        <comment>EEK</comment>
        <translation>EEK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EGP</source>
        <comment>EGP</comment>
        <translation>EGP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ESP</source>
        <comment>ESP</comment>
        <translation>ESP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ETB</source>
        <comment>ETB</comment>
        <translation>ETB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FIM</source>
        <comment>FIM</comment>
        <translation>FIM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FJD</source>
        <comment>FJD</comment>
        <translation>FJD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FKP</source>
        <comment>FKP</comment>
        <translation>FKP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FRF</source>
        <comment>FRF</comment>
        <translation>FRF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GBP</source>
        <comment>GBP</comment>
        <translation>GBP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GEK</source>
        <comment>GEK</comment>
        <translation>GEK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GHC</source>
        <comment>GHC</comment>
        <translation>GHC</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GIP</source>
        <comment>GIP</comment>
        <translation>GIP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GMD</source>
        <comment>GMD</comment>
        <translation>GMD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GNF</source>
        <comment>GNF</comment>
        <translation>GNF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GRD</source>
        <comment>GRD</comment>
        <translation>GRD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GTQ</source>
        <comment>GTQ</comment>
        <translation>GTQ</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GWP</source>
        <comment>GWP</comment>
        <translation>GWP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GYD</source>
        <comment>GYD</comment>
        <translation>GYD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HKD</source>
        <comment>HKD</comment>
        <translation>HKD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HNL</source>
        <comment>HNL</comment>
        <translation>HNL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HRK</source>
        <comment>HRK</comment>
        <translation>HRK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HTG</source>
        <comment>HTG</comment>
        <translation>HTG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HUF</source>
        <comment>HUF</comment>
        <translation>HUF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IDR</source>
        <comment>IDR</comment>
        <translation>IDR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IEP</source>
        <comment>IEP</comment>
        <translation>IEP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ILS</source>
        <comment>ILS</comment>
        <translation>ILS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INR</source>
        <comment>INR</comment>
        <translation>INR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IQD</source>
        <comment>IQD</comment>
        <translation>IQD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRR</source>
        <comment>IRR</comment>
        <translation>IRR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ISK</source>
        <comment>ISK</comment>
        <translation>ISK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ITL</source>
        <comment>ITL</comment>
        <translation>ITL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JMD</source>
        <comment>JMD</comment>
        <translation>JMD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JOD</source>
        <comment>JOD</comment>
        <translation>JOD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JPY</source>
        <comment>JPY</comment>
        <translation>JPY</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KES</source>
        <comment>KES</comment>
        <translation>KES</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KGS</source>
        <comment>KGS</comment>
        <translation>KGS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KHR</source>
        <comment>KHR</comment>
        <translation>KHR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KMF</source>
        <comment>KMF</comment>
        <translation>KMF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KPW</source>
        <comment>KPW</comment>
        <translation>KPW</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KRW</source>
        <comment>KRW</comment>
        <translation>KRW</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KWD</source>
        <comment>KWD</comment>
        <translation>KWD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KYD</source>
        <comment>KYD</comment>
        <translation>KYD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KZT</source>
        <comment>KZT</comment>
        <translation>KZT</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LAK</source>
        <comment>LAK</comment>
        <translation>LAK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LBP</source>
        <comment>LBP</comment>
        <translation>LBP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LKR</source>
        <comment>LKR</comment>
        <translation>LKR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LRD</source>
        <comment>LRD</comment>
        <translation>LRD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LSL</source>
        <comment>LSL</comment>
        <translation>LSL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LTL</source>
        <comment>LTL</comment>
        <translation>LTL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LUF</source>
        <comment>LUF</comment>
        <translation>LUF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LVL</source>
        <comment>LVL</comment>
        <translation>LVL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LYD</source>
        <comment>LYD</comment>
        <translation>LYD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAD</source>
        <comment>MAD</comment>
        <translation>MAD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MDL</source>
        <comment>MDL</comment>
        <translation>MDL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MGF</source>
        <comment>MGF</comment>
        <translation>MGF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MKD</source>
        <comment>MKD</comment>
        <translation>MKD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MMK</source>
        <comment>MMK</comment>
        <translation>MMK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MNT</source>
        <comment>MNT</comment>
        <translation>MNT</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOP</source>
        <comment>MOP</comment>
        <translation>MOP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MRO</source>
        <comment>MRO</comment>
        <translation>MRO</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MTL</source>
        <comment>MTL</comment>
        <translation>MTL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MUR</source>
        <comment>MUR</comment>
        <translation>MUR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MVR</source>
        <comment>MVR</comment>
        <translation>MVR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MWK</source>
        <comment>MWK</comment>
        <translation>MWK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MXN</source>
        <comment>MXN</comment>
        <translation>MXN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MYR</source>
        <comment>MYR</comment>
        <translation>MYR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MZM</source>
        <comment>MZM</comment>
        <translation>MZM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NAD</source>
        <comment>NAD</comment>
        <translation>NAD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NGN</source>
        <comment>NGN</comment>
        <translation>NGN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIO</source>
        <comment>NIO</comment>
        <translation>NIO</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NLG</source>
        <comment>NLG</comment>
        <translation>NLG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NOK</source>
        <comment>NOK</comment>
        <translation>NOK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NPW</source>
        <comment>NPW</comment>
        <translation>NPW</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NZD</source>
        <comment>NZD</comment>
        <translation>NZD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OMR</source>
        <comment>OMR</comment>
        <translation>OMR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAB</source>
        <comment>PAB</comment>
        <translation>PAB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PEN</source>
        <comment>PEN</comment>
        <translation>PEN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PGK</source>
        <comment>PGK</comment>
        <translation>PGK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PHP</source>
        <comment>PHP</comment>
        <translation>PHP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PYK</source>
        <comment>PYK</comment>
        <translation>PYK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PLN</source>
        <comment>PLN</comment>
        <translation>PLN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PTE</source>
        <comment>PTE</comment>
        <translation>PTE</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PYG</source>
        <comment>PYG</comment>
        <translation>PYG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_QAR</source>
        <comment>QAR</comment>
        <translation>QAR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ROL</source>
        <comment>ROL</comment>
        <translation>ROL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUB</source>
        <comment>RUB</comment>
        <translation>RUB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RWF</source>
        <comment>RWF</comment>
        <translation>RWF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAR</source>
        <comment>SAR</comment>
        <translation>SAR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SBD</source>
        <comment>SBD</comment>
        <translation>SBD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SCR</source>
        <comment>SCR</comment>
        <translation>SCR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SDD</source>
        <comment>SDD</comment>
        <translation>SDD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SEK</source>
        <comment>SEK</comment>
        <translation>SEK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SGD</source>
        <comment>SGD</comment>
        <translation>SGD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SHP</source>
        <comment>SHP</comment>
        <translation>SHP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SIT</source>
        <comment>SIT</comment>
        <translation>SIT</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SKK</source>
        <comment>SKK</comment>
        <translation>SKK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLL</source>
        <comment>SLL</comment>
        <translation>SLL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOS</source>
        <comment>SOS</comment>
        <translation>SOS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRG</source>
        <comment>SRG</comment>
        <translation>SRG</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRD</source>
        <comment>SRD</comment>
        <translation>SRD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SVC</source>
        <comment>SVC</comment>
        <translation>SVC</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SYP</source>
        <comment>SYP</comment>
        <translation>SYP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SZL</source>
        <comment>SZL</comment>
        <translation>SZL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_THB</source>
        <comment>THB</comment>
        <translation>THB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TMM</source>
        <comment>TMM</comment>
        <translation>TMM</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TND</source>
        <comment>TND</comment>
        <translation>TND</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TOP</source>
        <comment>TOP</comment>
        <translation>TOP</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TRL</source>
        <comment>TRL</comment>
        <translation>TRL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TTD</source>
        <comment>TTD</comment>
        <translation>TTD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TWD</source>
        <comment>TWD</comment>
        <translation>TWD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TZS</source>
        <comment>TZS</comment>
        <translation>TZS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UAH</source>
        <comment>UAH</comment>
        <translation>UAH</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UGX</source>
        <comment>UGX</comment>
        <translation>UGX</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_USD</source>
        <comment>USD</comment>
        <translation>USD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UYU</source>
        <comment>UYU</comment>
        <translation>UYU</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UZS</source>
        <comment>UZS</comment>
        <translation>UZS</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VEB</source>
        <comment>VEB</comment>
        <translation>VEB</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VND</source>
        <comment>VND</comment>
        <translation>VND</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VUV</source>
        <comment>VUV</comment>
        <translation>VUV</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_WST</source>
        <comment>WST</comment>
        <translation>WST</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_XAF</source>
        <comment>XAF</comment>
        <translation>XAF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_XCD</source>
        <comment>XCD</comment>
        <translation>XCD</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_XEU</source>
        <comment>XEU</comment>
        <translation>XEU</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_XOF</source>
        <comment>XOF</comment>
        <translation>XOF</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YER</source>
        <comment>YER</comment>
        <translation>YER</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YUN</source>
        <comment>YUN</comment>
        <translation>YUN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAL</source>
        <comment>ZAL</comment>
        <translation>ZAL</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAR</source>
        <comment>ZAR</comment>
        <translation>ZAR</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZMK</source>
        <comment>ZMK</comment>
        <translation>ZMK</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZRN</source>
        <comment>ZRN</comment>
        <translation>ZRN</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZWD</source>
        <comment>ZWD</comment>
        <translation>ZWD</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallTimesView</name>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_DIALED_CALLS_TIMER</source>
        <comment>Would you like to reset the Dialed Calls timer?</comment>
        <translation>Möchten Sie die Dauer der gewählten Anrufe zurücksetzen?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ANSWERED_CALLS_TIMER</source>
        <comment>Would you like to reset the Answered Calls timer?</comment>
        <translation>Möchten Sie die Dauer der angenommenen Anrufe zurücksetzen?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_CIRCUIT_SWITCHING_DATA_CALLS_TIMER</source>
        <comment>Would you like to reset the Circuit Switching Data Calls timer?</comment>
        <translation>Möchten Sie die Dauer der leitungsvermittelten Datenanrufe zurücksetzen?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ALL_CALLS_TIMER</source>
        <comment>Would you like to reset the All Calls timer?</comment>
        <translation>Möchten Sie die Dauer aller Anrufe zurücksetzen?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_TIMER</source>
        <comment>Reset Timer</comment>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CURRENT_REQUEST_CANNOT_BE_COMPLETED_WHILE_YOU_ARE_IN_CALLING</source>
        <comment>Current request cannot be completed, while you are in calling. </comment>
        <translation>Das ist während eines Anrufs nicht möglich.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Anrufdauer</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Zeigt die Version an.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Zeigt diese Hilfe an.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Zeigt die Hilfe mit den Optionen von Qt an.</translation>
    </message>
    <message>
        <source>Unknown option '%1'.</source>
        <translation>Unbekannte Option »%1«.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Missing value after '%1'.</source>
        <translation>Nach »%1« fehlt ein Wert.</translation>
    </message>
    <message>
        <source>Unexpected value after '%1'.</source>
        <translation>Nach »%1« darf kein Wert stehen.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL</source>
        <comment>Reset All</comment>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_CALL_COSTS</source>
        <comment>Reset All Call Costs</comment>
        <translation>Alle Anrufkosten zurücks.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_DIALED_CALL_COSTS</source>
        <comment>Reset Dialed Call Costs</comment>
        <translation>Gewählte zurücksetzen</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ANSWERED_CALL_COSTS</source>
        <comment>Reset Answered Call Costs</comment>
        <translation>Angenommene zurücksetzen</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Kostenlimit</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Limit einstellen</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Währung</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Währungsart</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Preis pro Minute</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Guthaben</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Letzte Aufladung</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL_COST</source>
        <comment>Last Call Cost</comment>
        <translation>Letzter Anruf</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS_COST</source>
        <comment>Dialed Calls Cost</comment>
        <translation>Gewählte Anrufe</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS_COST</source>
        <comment>Answered Calls Cost</comment>
        <translation>Angenommene Anrufe</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS_COST</source>
        <comment>All Calls Cost</comment>
        <translation>Alle Anrufe</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CALL_COST_SETUP</source>
        <comment>Call Cost Setup</comment>
        <translation>Kosteneinstellungen</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_RECENT_DATA_SESSION</source>
        <comment>Current Data Session</comment>
        <translation>Aktuelle Datensitzung</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>GPRS-Datensitzung 1</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>GPRS-Datensitzung 2</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>GPRS-Datensitzung 3</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_ALL_DATA_SESSIONS</source>
        <comment>All Data Sessions</comment>
        <translation>Alle Datensitzungen</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_TIME</source>
        <comment>Total Time</comment>
        <translation>Gesamtdauer</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS</source>
        <comment>Reset All Data Sessions</comment>
        <translation>Sitzungen zurücksetzen</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SENT</source>
        <comment>Sent</comment>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RECEIVED</source>
        <comment>Received</comment>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SUM</source>
        <comment>Sum</comment>
        <translation>Summe</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED</source>
        <comment>Total Data Transferred</comment>
        <translation>Gesamtes Datenvolumen</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>GPRS-Datensitzung 1</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>GPRS-Datensitzung 2</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>GPRS-Datensitzung 3</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Letzter Anruf</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Gewählte Anrufe</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Angenommene Anrufe</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CIRCUIT_SWITCH_DATA_CALLS</source>
        <comment>Data Calls</comment>
        <translation>Datenanrufe</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Alle Anrufe</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LIFETIME_CALLS</source>
        <comment>Lifetime Calls</comment>
        <translation>Anrufe gesamt</translation>
    </message>
</context>
<context>
    <name>ReadFile</name>
    <message>
        <source>there is none</source>
        <translation>sie ist nicht vorhanden</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
</context>
<context>
    <name>SETUP_SECURITY_Util</name>
    <message>
        <source>TXT_RID_HEADER_PIN1</source>
        <comment>PIN1</comment>
        <translation>PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ENTER_PIN1</source>
        <comment>Enter PIN1</comment>
        <translation>PIN1 eingeben</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN1</source>
        <comment>Wrong PIN1</comment>
        <translation>Falsche PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN1_IS_BLOCKED</source>
        <comment>PIN1 is blocked. Only PUK1 can unblock it.</comment>
        <translation>PIN1 ist gesperrt. Nur PUK1 kann sie entsperren.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN1</source>
        <comment>The SIM card cannot be asked for PIN1.</comment>
        <translation>Die SIM-Karte kann nicht nach PIN1 gefragt werden.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_PIN2</source>
        <comment>PIN2</comment>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ENTER_PIN2</source>
        <comment>Enter PIN2</comment>
        <translation>PIN2 eingeben</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN2</source>
        <comment>Wrong PIN2</comment>
        <translation>Falsche PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN2_IS_BLOCKED</source>
        <comment>PIN2 is blocked. Only PUK2 can unblock it.</comment>
        <translation>PIN2 ist gesperrt. Nur PUK2 kann sie entsperren.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN2</source>
        <comment>The SIM card cannot be asked for PIN2.</comment>
        <translation>Die SIM-Karte kann nicht nach PIN2 gefragt werden.</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_TRIES_LEFT_1</source>
        <comment>Tries left: %1</comment>
        <translation>Versuche: %1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_4_TO_8_DIGITS</source>
        <comment>4 to 8 digits</comment>
        <translation>4 bis 8 Ziffern</translation>
    </message>
</context>
<context>
    <name>ZMessageDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_YES</source>
        <comment>Yes</comment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_NO</source>
        <comment>No</comment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ZNoticeDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ZSingleCaptureDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ZSingleSelectDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_SELECT</source>
        <comment>Select</comment>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ZSoftKey</name>
    <message>
        <source>TXT_RID_LABEL_LEFT_SOFTKEY</source>
        <comment>Left softkey</comment>
        <translation>Linke Taste</translation>
    </message>
    <message>
        <source>TXT_RID_LABEL_RIGHT_SOFTKEY</source>
        <comment>Right softkey</comment>
        <translation>Rechte Taste</translation>
    </message>
</context>
<context>
    <name>handset</name>
    <message>
        <source>The call log is damaged. The next start begins a new one, with what can be read of it.</source>
        <translation>Die Anrufliste ist beschädigt. Der nächste Start beginnt eine neue, mit dem, was lesbar ist.</translation>
    </message>
    <message>
        <source>The call log is damaged, and that cannot be noted for the next start.</source>
        <translation>Die Anrufliste ist beschädigt, und das lässt sich für den nächsten Start nicht vermerken.</translation>
    </message>
    <message>
        <source>Copying the call log</source>
        <translation>Die Anrufliste wird kopiert</translation>
    </message>
    <message>
        <source>Reading the damaged call log once more</source>
        <translation>Die beschädigte Anrufliste wird noch einmal gelesen</translation>
    </message>
    <message>
        <source>Writing the new call log to the disk</source>
        <translation>Die neue Anrufliste wird auf die Platte geschrieben</translation>
    </message>
    <message>
        <source>Checking the new call log</source>
        <translation>Die neue Anrufliste wird geprüft</translation>
    </message>
    <message>
        <source>Looking for the end of the damage</source>
        <translation>Das Ende des Schadens wird gesucht</translation>
    </message>
    <message>
        <source>Counting what was read</source>
        <translation>Was gelesen wurde, wird gezählt</translation>
    </message>
    <message>
        <source>Bringing the call log up to date</source>
        <translation>Die Anrufliste wird auf den neuen Stand gebracht</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>may be written by other users</source>
        <translation>darf von anderen Benutzern beschrieben werden</translation>
    </message>
    <message>
        <source>The state directory "%1" %2, who can change what is kept in it.</source>
        <translation>Das Zustandsverzeichnis "%1" %2; sie können ändern, was darin aufbewahrt ist.</translation>
    </message>
    <message>
        <source>The state directory "%1" lies in one that may be written by other users, who can put another in its place.</source>
        <translation>Das Zustandsverzeichnis "%1" liegt in einem, das andere Benutzer beschreiben dürfen; sie können ein anderes an seine Stelle setzen.</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Warten auf %1</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>einen anderen Prozess</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>gescheitert</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>wird vorbereitet</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>locked: PIN</source>
        <translation>gesperrt: PIN</translation>
    </message>
    <message>
        <source>locked: PIN2</source>
        <translation>gesperrt: PIN2</translation>
    </message>
    <message>
        <source>locked: PUK</source>
        <translation>gesperrt: PUK</translation>
    </message>
    <message>
        <source>locked: PUK2</source>
        <translation>gesperrt: PUK2</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>disabling</source>
        <translation>wird ausgeschaltet</translation>
    </message>
    <message>
        <source>enabling</source>
        <translation>wird eingeschaltet</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>eingeschaltet</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>sucht ein Netz</translation>
    </message>
    <message>
        <source>registered</source>
        <translation>eingebucht</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>trennt die Verbindung</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>stellt die Verbindung her</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>unregistered</source>
        <translation>nicht eingebucht</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>vom Netz abgewiesen</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>eingebucht in einem fremden Netz</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>%1 is not running</source>
        <translation>%1 läuft nicht</translation>
    </message>
    <message>
        <source>asking %1</source>
        <translation>%1 wird gefragt</translation>
    </message>
    <message>
        <source>no modem</source>
        <translation>kein Modem</translation>
    </message>
    <message>
        <source>%1 does not let this user talk to it</source>
        <translation>%1 lässt diesen Benutzer nicht mit sich sprechen</translation>
    </message>
    <message>
        <source>%1 does not tell its modems</source>
        <translation>%1 nennt seine Modems nicht</translation>
    </message>
    <message>
        <source>There is no system bus: %1</source>
        <translation>Es gibt keinen Systembus: %1</translation>
    </message>
    <message>
        <source>ModemManager does not answer</source>
        <translation>ModemManager antwortet nicht</translation>
    </message>
    <message>
        <source>The call cannot be made</source>
        <translation>Der Anruf ist nicht möglich</translation>
    </message>
    <message>
        <source>The call cannot be made: %1.</source>
        <translation>Der Anruf ist nicht möglich: %1.</translation>
    </message>
    <message>
        <source>The call cannot be answered</source>
        <translation>Der Anruf lässt sich nicht annehmen</translation>
    </message>
    <message>
        <source>The call cannot be ended</source>
        <translation>Der Anruf lässt sich nicht beenden</translation>
    </message>
    <message>
        <source>it is busy</source>
        <translation>es ist beschäftigt</translation>
    </message>
    <message>
        <source>it is not ready for that</source>
        <translation>es ist dafür nicht bereit</translation>
    </message>
    <message>
        <source>the modem cannot do that</source>
        <translation>das Modem kann das nicht</translation>
    </message>
    <message>
        <source>that is no number to call</source>
        <translation>das ist keine Nummer, die man anrufen kann</translation>
    </message>
    <message>
        <source>there is no network</source>
        <translation>es gibt kein Netz</translation>
    </message>
    <message>
        <source>this user may not</source>
        <translation>dieser Benutzer darf das nicht</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>es antwortet nicht</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>es schlug fehl (%1)</translation>
    </message>
    <message>
        <source>The network has not put the call through.</source>
        <translation>Das Netz hat den Anruf nicht durchgestellt.</translation>
    </message>
    <message>
        <source>The telephone does not dial: %1.</source>
        <translation>Das Telefon wählt nicht: %1.</translation>
    </message>
    <message>
        <source>The telephone does not take the call: %1.</source>
        <translation>Das Telefon nimmt den Anruf nicht an: %1.</translation>
    </message>
    <message>
        <source>The telephone does not end the call: %1.</source>
        <translation>Das Telefon beendet den Anruf nicht: %1.</translation>
    </message>
</context>
<context>
    <name>host::AccountSection</name>
    <message>
        <source>Nothing has been paid in.</source>
        <translation>Es wurde noch nichts eingezahlt.</translation>
    </message>
    <message>
        <source>Credit: %1</source>
        <translation>Guthaben: %1</translation>
    </message>
    <message>
        <source>Last deposit: %1, good until %2</source>
        <translation>Letzte Aufladung: %1, gültig bis %2</translation>
    </message>
    <message>
        <source>Prepaid account</source>
        <translation>Prepaid-Konto</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Guthaben</translation>
    </message>
    <message>
        <source>Last deposit</source>
        <translation>Letzte Aufladung</translation>
    </message>
    <message>
        <source>Amount to pay in</source>
        <translation>Betrag der Aufladung</translation>
    </message>
    <message>
        <source>In units or in the currency, as costs are</source>
        <translation>In Einheiten oder in der Währung, wie die Kosten</translation>
    </message>
    <message>
        <source>Why nothing was paid in</source>
        <translation>Warum nichts eingezahlt wurde</translation>
    </message>
    <message>
        <source>Good until</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>Until when the deposit is good: year, month, day</source>
        <translation>Bis wann die Aufladung gültig ist: Jahr, Monat, Tag</translation>
    </message>
    <message>
        <source>&amp;Top up</source>
        <translation>Auf&amp;laden</translation>
    </message>
    <message>
        <source>Pays the amount in</source>
        <translation>Zahlt den Betrag ein</translation>
    </message>
    <message>
        <source>until</source>
        <translation>bis</translation>
    </message>
</context>
<context>
    <name>host::CallNotice</name>
    <message>
        <source>Dialing</source>
        <translation>Wählt</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Eingehender Anruf</translation>
    </message>
    <message>
        <source>Call waiting</source>
        <translation>Anruf wartet</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Gehalten</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Number withheld</source>
        <translation>Nummer unterdrückt</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anruf</translation>
    </message>
    <message>
        <source>Number to dial</source>
        <translation>Zu wählende Nummer</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Anruf beendet</translation>
    </message>
    <message>
        <source>Not answered</source>
        <translation>Nicht angenommen</translation>
    </message>
</context>
<context>
    <name>host::CallsModel</name>
    <message>
        <source>Dialed, not answered</source>
        <translation>Gewählt, nicht angenommen</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Verpasst</translation>
    </message>
    <message>
        <source>Data call</source>
        <translation>Datenanruf</translation>
    </message>
    <message>
        <source>Dialed</source>
        <translation>Gewählt</translation>
    </message>
    <message>
        <source>Answered</source>
        <translation>Angenommen</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>Nummer unterdrückt</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Number and time</source>
        <translation>Nummer und Zeit</translation>
    </message>
    <message>
        <source>Duration and cost</source>
        <translation>Dauer und Kosten</translation>
    </message>
    <message>
        <source>units</source>
        <translation>Einheiten</translation>
    </message>
</context>
<context>
    <name>host::CostSection</name>
    <message>
        <source>not available</source>
        <translation>nicht verfügbar</translation>
    </message>
    <message>
        <source>units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Costs</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>Costs are in</source>
        <translation>Kosten in</translation>
    </message>
    <message>
        <source>the currency</source>
        <translation>der Währung</translation>
    </message>
    <message>
        <source>Price of a unit</source>
        <translation>Preis einer Einheit</translation>
    </message>
    <message>
        <source>The price of a unit, as 0.23</source>
        <translation>Der Preis einer Einheit, etwa 0.23</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>The currency's code, at most three characters</source>
        <translation>Kürzel der Währung, höchstens drei Zeichen</translation>
    </message>
    <message>
        <source>Credit limit</source>
        <translation>Kostenlimit</translation>
    </message>
    <message>
        <source>Cost of the call</source>
        <translation>Kosten des Anrufs</translation>
    </message>
    <message>
        <source>Why the costs were not set</source>
        <translation>Warum die Kosten nicht eingestellt wurden</translation>
    </message>
    <message>
        <source>Set &amp;price</source>
        <translation>&amp;Preis setzen</translation>
    </message>
    <message>
        <source>Writes price and currency to the SIM card</source>
        <translation>Schreibt Preis und Währung auf die SIM-Karte</translation>
    </message>
    <message>
        <source>This call</source>
        <translation>Dieser Anruf</translation>
    </message>
    <message>
        <source>Last call</source>
        <translation>Letzter Anruf</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>%1; units left: %2</source>
        <translation>%1; übrige Einheiten: %2</translation>
    </message>
    <message>
        <source>The modem's advice of charge says what calls cost.</source>
        <translation>Die Gebühreninformation des Modems sagt, was Anrufe kosten.</translation>
    </message>
    <message>
        <source>This telephone charges no calls by itself.</source>
        <translation>Dieses Telefon berechnet selbst keine Anrufe.</translation>
    </message>
</context>
<context>
    <name>host::Display</name>
    <message>
        <source>Display of the phone</source>
        <translation>Display des Telefons</translation>
    </message>
</context>
<context>
    <name>host::FailuresSection</name>
    <message>
        <source>Failures</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>Let it &amp;fail</source>
        <translation>&amp;Fehlschlagen lassen</translation>
    </message>
    <message>
        <source>From now on the operation only answers the code</source>
        <translation>Von nun an antwortet der Vorgang nur noch mit dem Code</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>The chosen operation works again</source>
        <translation>Der gewählte Vorgang geht wieder</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>&amp;Alle entfernen</translation>
    </message>
    <message>
        <source>Every operation works again</source>
        <translation>Alle Vorgänge gehen wieder</translation>
    </message>
    <message>
        <source>What the phone's libraries ask of the telephone</source>
        <translation>Was die Bibliotheken des Telefons vom Telefon verlangen</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>What the operation answers: a name, or a number; not Success</source>
        <translation>Was der Vorgang antwortet: ein Name oder eine Zahl; nicht Success</translation>
    </message>
    <message>
        <source>Operations that fail</source>
        <translation>Vorgänge, die fehlschlagen</translation>
    </message>
    <message>
        <source>Failing now</source>
        <translation>Schlägt jetzt fehl</translation>
    </message>
</context>
<context>
    <name>host::FiguresSection</name>
    <message>
        <source>Last call</source>
        <translation>Letzter Anruf</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Gewählte Anrufe</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Angenommene Anrufe</translation>
    </message>
    <message>
        <source>Data calls</source>
        <translation>Datenanrufe</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>Alle Anrufe</translation>
    </message>
    <message>
        <source>Lifetime calls</source>
        <translation>Anrufe gesamt</translation>
    </message>
    <message>
        <source>Call timers</source>
        <translation>Anrufzähler</translation>
    </message>
    <message>
        <source>Add a &amp;ready-made history</source>
        <translation>Beispiel&amp;verlauf hinzufügen</translation>
    </message>
    <message>
        <source>Adds a dozen calls of the last days to the call log</source>
        <translation>Fügt der Anrufliste ein Dutzend Anrufe der letzten Tage hinzu</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>host::Keypad</name>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Auflegen</translation>
    </message>
    <message>
        <source>Left softkey</source>
        <translation>Linke Taste</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Right softkey</source>
        <translation>Rechte Taste</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Tastenfeld</translation>
    </message>
</context>
<context>
    <name>host::Line</name>
    <message>
        <source>Dialing</source>
        <translation>Wählt</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Klingelt</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>On hold %1</source>
        <translation>Gehalten %1</translation>
    </message>
    <message>
        <source>Connected %1</source>
        <translation>Verbunden %1</translation>
    </message>
    <message>
        <source>No modem</source>
        <translation>Kein Modem</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>Nummer unterdrückt</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>The credit limit is reached in %1 s.</source>
        <translation>Das Kostenlimit ist in %1 s erreicht.</translation>
    </message>
    <message>
        <source>The credit is used up in %1 s.</source>
        <translation>Das Guthaben ist in %1 s aufgebraucht.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit limit is reached.</source>
        <translation>Das Telefon hat den Anruf beendet: Das Kostenlimit ist erreicht.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit is used up.</source>
        <translation>Das Telefon hat den Anruf beendet: Das Guthaben ist aufgebraucht.</translation>
    </message>
    <message>
        <source>This telephone cannot be driven from here.</source>
        <translation>Dieses Telefon lässt sich von hier aus nicht steuern.</translation>
    </message>
    <message>
        <source>data call</source>
        <translation>Datenanruf</translation>
    </message>
    <message>
        <source>voice call</source>
        <translation>Sprachanruf</translation>
    </message>
    <message>
        <source>The call log cannot be written. The end of a call or a packet-data session is kept in memory, and written as soon as it can be.</source>
        <translation>In die Anrufliste kann nicht geschrieben werden. Das Ende eines Anrufs oder einer Datensitzung bleibt im Speicher und wird geschrieben, sobald es geht.</translation>
    </message>
</context>
<context>
    <name>host::LineSection</name>
    <message>
        <source>&amp;Dial</source>
        <translation>&amp;Wählen</translation>
    </message>
    <message>
        <source>Calls the number from this phone</source>
        <translation>Ruft die Nummer von diesem Telefon aus an</translation>
    </message>
    <message>
        <source>&amp;Other side answers</source>
        <translation>&amp;Gegenseite nimmt ab</translation>
    </message>
    <message>
        <source>The called side answers; the call is connected</source>
        <translation>Die angerufene Seite nimmt ab; der Anruf ist verbunden</translation>
    </message>
    <message>
        <source>Dial d&amp;ata call</source>
        <translation>&amp;Datenanruf wählen</translation>
    </message>
    <message>
        <source>Sets up a circuit-switched data call to the number</source>
        <translation>Baut einen leitungsvermittelten Datenanruf zur Nummer auf</translation>
    </message>
    <message>
        <source>&amp;Incoming call</source>
        <translation>&amp;Eingehender Anruf</translation>
    </message>
    <message>
        <source>The number calls this phone; empty for a withheld number</source>
        <translation>Die Nummer ruft dieses Telefon an; leer für eine unterdrückte Nummer</translation>
    </message>
    <message>
        <source>&amp;Hang up</source>
        <translation>A&amp;uflegen</translation>
    </message>
    <message>
        <source>Ends the call on the line, whatever its state</source>
        <translation>Beendet den Anruf auf der Leitung, wie immer er steht</translation>
    </message>
    <message>
        <source>A&amp;nswer</source>
        <translation>A&amp;nnehmen</translation>
    </message>
    <message>
        <source>Answers the incoming call; the call is connected</source>
        <translation>Nimmt den eingehenden Anruf an; der Anruf ist verbunden</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Leitung</translation>
    </message>
    <message>
        <source>State of the line</source>
        <translation>Zustand der Leitung</translation>
    </message>
    <message>
        <source>End of charging</source>
        <translation>Ende der Berechnung</translation>
    </message>
    <message>
        <source>What is not in the call log yet</source>
        <translation>Was noch nicht in der Anrufliste steht</translation>
    </message>
    <message>
        <source>What the telephone has told</source>
        <translation>Was das Telefon gemeldet hat</translation>
    </message>
    <message>
        <source>Digits, +, * and #</source>
        <translation>Ziffern, +, * und #</translation>
    </message>
    <message>
        <source>Clear the number</source>
        <translation>Nummer löschen</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>Nu&amp;mmer</translation>
    </message>
</context>
<context>
    <name>host::MenuScreen</name>
    <message>
        <source>TXT_RID_HEADER_RECENT_CALLS</source>
        <comment>Recent Calls</comment>
        <translation>Letzte Anrufe</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OPEN</source>
        <comment>Open</comment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_EXIT</source>
        <comment>Exit</comment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Anrufdauer</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Anrufkosten</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Datenzeiten</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Datenvolumen</translation>
    </message>
</context>
<context>
    <name>host::ModemSection</name>
    <message>
        <source>call times</source>
        <translation>Anrufdauer</translation>
    </message>
    <message>
        <source>all calls</source>
        <translation>alle Anrufe</translation>
    </message>
    <message>
        <source>data calls</source>
        <translation>Datenanrufe</translation>
    </message>
    <message>
        <source>data sessions</source>
        <translation>Datensitzungen</translation>
    </message>
    <message>
        <source>advice of charge</source>
        <translation>Gebühreninformation</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>Guthaben</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>, %1 B sent, %2 B received</source>
        <translation>, %1 B gesendet, %2 B empfangen</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Charged by</source>
        <translation>Berechnet durch</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <translation>Aufgezeichnet durch</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>%1, through %2</source>
        <translation>%1, über %2</translation>
    </message>
    <message>
        <source>the modem's advice of charge</source>
        <translation>die Gebühreninformation des Modems</translation>
    </message>
    <message>
        <source>the tariff of this telephone</source>
        <translation>den Tarif dieses Telefons</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>dieses Fenster</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>einen anderen Prozess</translation>
    </message>
    <message>
        <source>nobody: the call log cannot be written</source>
        <translation>niemanden: In die Anrufliste kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>host::OpeningProgress</name>
    <message>
        <source>Opening the telephone</source>
        <translation>Das Telefon wird geöffnet</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Was gerade geschieht</translation>
    </message>
    <message>
        <source>How far it is</source>
        <translation>Wie weit es ist</translation>
    </message>
</context>
<context>
    <name>host::PacketSection</name>
    <message>
        <source>%1 B sent, %2 B received</source>
        <translation>%1 B gesendet, %2 B empfangen</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>%1 (id %2), %3
%4</source>
        <translation>%1 (ID %2), %3
%4</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>nicht verfügbar</translation>
    </message>
    <message>
        <source>%1, %2 B
%3</source>
        <translation>%1, %2 B
%3</translation>
    </message>
    <message>
        <source>Packet data</source>
        <translation>Paketdaten</translation>
    </message>
    <message>
        <source>Access point name</source>
        <translation>Zugangspunkt (APN)</translation>
    </message>
    <message>
        <source>1 to 101 characters</source>
        <translation>1 bis 101 Zeichen</translation>
    </message>
    <message>
        <source>Bytes sent each second</source>
        <translation>Gesendete Bytes je Sekunde</translation>
    </message>
    <message>
        <source>Bytes received each second</source>
        <translation>Empfangene Bytes je Sekunde</translation>
    </message>
    <message>
        <source>&amp;Start session</source>
        <translation>Sitzung &amp;starten</translation>
    </message>
    <message>
        <source>Begins a session, which counts bytes and time</source>
        <translation>Beginnt eine Sitzung, die Bytes und Zeit zählt</translation>
    </message>
    <message>
        <source>Sto&amp;p session</source>
        <translation>Sitzung &amp;beenden</translation>
    </message>
    <message>
        <source>Ends the session</source>
        <translation>Beendet die Sitzung</translation>
    </message>
    <message>
        <source>Why the session was not changed</source>
        <translation>Warum die Sitzung nicht geändert wurde</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Alle Sitzungen</translation>
    </message>
    <message>
        <source>Bytes sent a second</source>
        <translation>Gesendete Bytes je Sekunde</translation>
    </message>
    <message>
        <source>Bytes received a second</source>
        <translation>Empfangene Bytes je Sekunde</translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation>Sitzung %1</translation>
    </message>
    <message>
        <source>Session %1:</source>
        <translation>Sitzung %1:</translation>
    </message>
    <message>
        <source>All sessions:</source>
        <translation>Alle Sitzungen:</translation>
    </message>
    <message>
        <source>S&amp;end update</source>
        <translation>A&amp;ktualisierung senden</translation>
    </message>
    <message>
        <source>Tells the screens that the figures have changed</source>
        <translation>Sagt den Anzeigen, dass sich die Werte geändert haben</translation>
    </message>
</context>
<context>
    <name>host::Panel</name>
    <message>
        <source>Sides of the telephone</source>
        <translation>Seiten des Telefons</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Anrufe</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Gebühren</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Letzte</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>host::PhoneWindow</name>
    <message>
        <source>Recent Calls</source>
        <translation>Letzte Anrufe</translation>
    </message>
</context>
<context>
    <name>host::Pin2Section</name>
    <message>
        <source>Blocked for good.</source>
        <translation>Für immer gesperrt.</translation>
    </message>
    <message>
        <source>Blocked: only PUK2 helps.</source>
        <translation>Gesperrt: Nur PUK2 hilft.</translation>
    </message>
    <message>
        <source>Off: nobody is asked for it.</source>
        <translation>Aus: Niemand wird danach gefragt.</translation>
    </message>
    <message>
        <source>On, and entered.</source>
        <translation>Ein, und eingegeben.</translation>
    </message>
    <message>
        <source>On, not entered.</source>
        <translation>Ein, nicht eingegeben.</translation>
    </message>
    <message>
        <source>Tries left: PIN2 %1, PUK2 %2.</source>
        <translation>Übrige Versuche: PIN2 %1, PUK2 %2.</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>State of PIN2</source>
        <translation>Zustand der PIN2</translation>
    </message>
    <message>
        <source>PIN2 is on</source>
        <translation>PIN2 ist ein</translation>
    </message>
    <message>
        <source>Four to eight digits</source>
        <translation>Vier bis acht Ziffern</translation>
    </message>
    <message>
        <source>PUK2</source>
        <translation>PUK2</translation>
    </message>
    <message>
        <source>Eight digits</source>
        <translation>Acht Ziffern</translation>
    </message>
    <message>
        <source>New PIN2</source>
        <translation>Neue PIN2</translation>
    </message>
    <message>
        <source>What came of it</source>
        <translation>Was daraus wurde</translation>
    </message>
    <message>
        <source>The phone asks for it where a file is written with PIN2</source>
        <translation>Das Telefon fragt danach, wo eine Datei mit PIN2 geschrieben wird</translation>
    </message>
    <message>
        <source>&amp;Switch off and on</source>
        <translation>Aus und &amp;ein</translation>
    </message>
    <message>
        <source>Forgets that PIN2 has been entered</source>
        <translation>Vergisst, dass PIN2 eingegeben wurde</translation>
    </message>
    <message>
        <source>&amp;Enter</source>
        <translation>&amp;Eingeben</translation>
    </message>
    <message>
        <source>Presents PIN2 to the card, as the phone does; a wrong one costs a try</source>
        <translation>Legt der Karte die PIN2 vor, wie das Telefon; eine falsche kostet einen Versuch</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>Ent&amp;sperren</translation>
    </message>
    <message>
        <source>Sets the new PIN2 and gives all tries back</source>
        <translation>Setzt die neue PIN2 und gibt alle Versuche zurück</translation>
    </message>
    <message>
        <source>PIN2 has been entered.</source>
        <translation>PIN2 wurde eingegeben.</translation>
    </message>
    <message>
        <source>Wrong PIN2.</source>
        <translation>Falsche PIN2.</translation>
    </message>
    <message>
        <source>The new PIN2 counts.</source>
        <translation>Die neue PIN2 gilt.</translation>
    </message>
    <message>
        <source>Wrong PUK2.</source>
        <translation>Falsche PUK2.</translation>
    </message>
</context>
<context>
    <name>host::RecentCallsSection</name>
    <message>
        <source>Recent calls</source>
        <translation>Letzte Anrufe</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Deletes the chosen call; the totals stay</source>
        <translation>Löscht den gewählten Anruf; die Summen bleiben</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>&amp;Alle löschen ...</translation>
    </message>
    <message>
        <source>Deletes every call that is over; the totals stay</source>
        <translation>Löscht jeden beendeten Anruf; die Summen bleiben</translation>
    </message>
    <message>
        <source>Why the calls were not read or deleted</source>
        <translation>Warum die Anrufe nicht gelesen oder gelöscht wurden</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Die Anrufliste kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Delete all calls that are over? The totals stay as they are.</source>
        <translation>Alle beendeten Anrufe löschen? Die Summen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>Alle &amp;löschen</translation>
    </message>
</context>
<context>
    <name>host::SimFilesSection</name>
    <message>
        <source>%1  =  %2 units</source>
        <translation>%1  =  %2 Einheiten</translation>
    </message>
    <message>
        <source>  (newest)</source>
        <translation>  (neueste)</translation>
    </message>
    <message>
        <source>%1  =  no limit</source>
        <translation>%1  =  kein Limit</translation>
    </message>
    <message>
        <source>no currency</source>
        <translation>keine Währung</translation>
    </message>
    <message>
        <source>%1  =  %2, %3 a unit</source>
        <translation>%1  =  %2, %3 je Einheit</translation>
    </message>
    <message>
        <source>call meter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>Höchstwert</translation>
    </message>
    <message>
        <source>price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>freely</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>with PIN2</source>
        <translation>mit PIN2</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Files of the SIM card</source>
        <translation>Dateien der SIM-Karte</translation>
    </message>
    <message>
        <source>Why the SIM card was not changed</source>
        <translation>Warum die SIM-Karte nicht geändert wurde</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>geschrieben: %1</translation>
    </message>
    <message>
        <source>Who may write %1</source>
        <translation>Wer %1 schreiben darf</translation>
    </message>
</context>
<context>
    <name>host::StateSection</name>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>In memory; gone when the window closes.</source>
        <translation>Im Speicher; weg, wenn das Fenster schließt.</translation>
    </message>
    <message>
        <source>Kept in %1</source>
        <translation>Aufbewahrt in %1</translation>
    </message>
    <message>
        <source>Where the state is kept</source>
        <translation>Wo der Zustand aufbewahrt wird</translation>
    </message>
    <message>
        <source>New telephone ...</source>
        <translation>Neues Telefon ...</translation>
    </message>
    <message>
        <source>Begins with a new telephone, after a question</source>
        <translation>Beginnt nach einer Frage mit einem neuen Telefon</translation>
    </message>
    <message>
        <source>What there is now is kept in a file beside it.</source>
        <translation>Was jetzt da ist, bleibt in einer Datei daneben erhalten.</translation>
    </message>
    <message>
        <source>What there is now is lost.</source>
        <translation>Was jetzt da ist, geht verloren.</translation>
    </message>
    <message>
        <source>Begin with a new telephone? Calls, figures, settings and the simulated SIM card begin anew; a call that is on ends.</source>
        <translation>Mit einem neuen Telefon beginnen? Anrufe, Zähler, Einstellungen und die simulierte SIM-Karte beginnen von vorn; ein laufender Anruf endet.</translation>
    </message>
    <message>
        <source>New telephone</source>
        <translation>Neues Telefon</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Neu beginnen</translation>
    </message>
</context>
<context>
    <name>host::StatusText</name>
    <message>
        <source>the number is not one that can be dialed</source>
        <translation>die Nummer lässt sich nicht wählen</translation>
    </message>
    <message>
        <source>the line is in another state</source>
        <translation>die Leitung ist in einem anderen Zustand</translation>
    </message>
    <message>
        <source>not allowed now: nothing more may be charged</source>
        <translation>jetzt nicht erlaubt: Es darf nichts mehr berechnet werden</translation>
    </message>
    <message>
        <source>an amount of at least one unit, and not more than the account holds</source>
        <translation>ein Betrag von mindestens einer Einheit, und nicht mehr als das Konto fasst</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>jetzt nicht möglich</translation>
    </message>
    <message>
        <source>not allowed</source>
        <translation>nicht erlaubt</translation>
    </message>
    <message>
        <source>no price, or a currency of more than three characters</source>
        <translation>kein Preis, oder eine Währung mit mehr als drei Zeichen</translation>
    </message>
    <message>
        <source>the SIM card refuses</source>
        <translation>die SIM-Karte lehnt ab</translation>
    </message>
    <message>
        <source>an access point name has 1 to 101 Latin-1 characters</source>
        <translation>ein Zugangspunkt hat 1 bis 101 Latin-1-Zeichen</translation>
    </message>
    <message>
        <source>a session is running, or none is</source>
        <translation>es läuft eine Sitzung, oder es läuft keine</translation>
    </message>
    <message>
        <source>PUK2 has eight digits, a PIN2 four to eight</source>
        <translation>PUK2 hat acht Ziffern, eine PIN2 vier bis acht</translation>
    </message>
    <message>
        <source>PUK2 is blocked, too</source>
        <translation>auch PUK2 ist gesperrt</translation>
    </message>
    <message>
        <source>a PIN2 has four to eight digits</source>
        <translation>eine PIN2 hat vier bis acht Ziffern</translation>
    </message>
    <message>
        <source>PIN2 is blocked</source>
        <translation>PIN2 ist gesperrt</translation>
    </message>
    <message>
        <source>the call is not kept any more</source>
        <translation>der Anruf ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>the call is still running</source>
        <translation>der Anruf läuft noch</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>es gibt keine solche Regel</translation>
    </message>
    <message>
        <source>the network knows no such tariff</source>
        <translation>das Netz kennt keinen solchen Tarif</translation>
    </message>
    <message>
        <source>the telephone cannot do this</source>
        <translation>das Telefon kann das nicht</translation>
    </message>
    <message>
        <source>the call log cannot be written</source>
        <translation>in die Anrufliste kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>another process records the calls</source>
        <translation>ein anderer Prozess zeichnet die Anrufe auf</translation>
    </message>
    <message>
        <source>Not done: %1.</source>
        <translation>Nicht ausgeführt: %1.</translation>
    </message>
    <message>
        <source>Not done: the telephone answers %1.</source>
        <translation>Nicht ausgeführt: Das Telefon antwortet %1.</translation>
    </message>
    <message>
        <source>a value is out of range</source>
        <translation>ein Wert ist außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>it is not possible now</source>
        <translation>es ist jetzt nicht möglich</translation>
    </message>
    <message>
        <source>the SIM or the network does not allow it</source>
        <translation>die SIM oder das Netz erlaubt es nicht</translation>
    </message>
</context>
<context>
    <name>host::TariffSection</name>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>for each</source>
        <translation>je</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>zu Beginn</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Gewählte Anrufe</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Angenommene Anrufe</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Tariff</source>
        <translation>Tarif</translation>
    </message>
    <message>
        <source>Why the tariff was not set</source>
        <translation>Warum der Tarif nicht eingestellt wurde</translation>
    </message>
    <message>
        <source>%1 are free</source>
        <translation>%1 sind frei</translation>
    </message>
    <message>
        <source>Nothing is charged for them</source>
        <translation>Für sie wird nichts berechnet</translation>
    </message>
    <message>
        <source>Units for each interval</source>
        <translation>Einheiten je Intervall</translation>
    </message>
    <message>
        <source>Interval in seconds</source>
        <translation>Intervall in Sekunden</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Units when the call is connected</source>
        <translation>Einheiten, wenn der Anruf verbunden wird</translation>
    </message>
</context>
<context>
    <name>host::WaitNotice</name>
    <message>
        <source>Please wait ...</source>
        <translation>Bitte warten ...</translation>
    </message>
</context>
<context>
    <name>kavcallrecorder</name>
    <message>
        <source>
Exit codes:
  0  a signal has ended it, and what ran is written
  2  the command line is wrong
  3  there is no system bus, or the telephone cannot be opened
</source>
        <translation>
Exit-Codes:
  0  ein Signal hat das Programm beendet; was lief, ist geschrieben
  2  die Befehlszeile ist fehlerhaft
  3  es gibt keinen Systembus, oder das Telefon kann nicht geöffnet werden
</translation>
    </message>
    <message>
        <source>See kavcallrecorder --help.</source>
        <translation>Siehe kavcallrecorder --help.</translation>
    </message>
    <message>
        <source>Records the calls and data connections of a modem while no window is open.</source>
        <translation>Zeichnet Anrufe und Datenverbindungen eines Modems auf, solange kein Fenster offen ist.</translation>
    </message>
    <message>
        <source>The telephone: %1, the path of a library that has one, or auto: the first over which a modem is there, now or later. Default: auto.</source>
        <translation>Das Telefon: %1, der Pfad einer Bibliothek, die eines hat, oder auto: das erste, über das ein Modem erreichbar ist, jetzt oder später. Vorgabe: auto.</translation>
    </message>
    <message>
        <source>Record in DIR. Default: %1</source>
        <translation>In DIR aufzeichnen. Vorgabe: %1</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted when recording begins and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Nur die Anrufe der letzten DAYS Tage behalten, 0 bis 100000; ältere werden beim Beginn der Aufzeichnung und einmal am Tag gelöscht und bleiben in den Summen. Vorgabe: alle bleiben.</translation>
    </message>
    <message>
        <source>%1; it is looked for.</source>
        <translation>%1; es wird danach gesucht.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>Die Option »keep-calls« verlangt eine Anzahl von Tagen, 0 bis %1.</translation>
    </message>
    <message>
        <source>There is a value missing or too many.</source>
        <translation>Ein Wert fehlt oder ist zu viel.</translation>
    </message>
</context>
<context>
    <name>kavmeter</name>
    <message>
        <source>Shows the meters of the phone: times and costs of calls, times and bytes of packet data.

Commands:
  figures [NAME ...]   all figures, or these; the default
  settings             advice of charge: how costs are counted, the credit limit, the price
  calls                the calls that are kept
  sessions             the packet-data sessions that are kept
  totals               what is kept, by month or as --by and --cycle-day say
  reset NAME           sets to zero: %1
  delete ID|all        deletes a call, or all that are over; totals stay
  export FILE          writes the whole state as JSON; "-" is standard output
  import FILE          makes a new state of such a file

Figures: %2.</source>
        <translation>Zeigt die Zähler des Telefons: Dauer und Kosten von Anrufen, Dauer und Bytes von Paketdaten.

Befehle:
  figures [NAME ...]   alle Zahlen oder nur diese; die Vorgabe
  settings             Gebührenanzeige: wie Kosten gezählt werden, das Kostenlimit, der Preis
  calls                die gespeicherten Anrufe
  sessions             die gespeicherten Datensitzungen
  totals               was gespeichert ist, nach Monaten oder nach --by und --cycle-day
  reset NAME           setzt auf null: %1
  delete ID|all        löscht einen Anruf oder alle beendeten; die Summen bleiben
  export FILE          schreibt den ganzen Zustand als JSON; »-« ist die Standardausgabe
  import FILE          macht aus einer solchen Datei einen neuen Zustand

Zahlen: %2.</translation>
    </message>
    <message>
        <source>
Exit codes:
  0  all went well
  1  the telephone refuses, or the call log cannot be read or written
  2  the command line is wrong, or a change was asked for without --yes
  3  there is no state, or the telephone cannot be opened
  4  a figure that was named is not available
  5  the credit limit is reached, or the credit used up
  6  the figure of --alert is reached
  7  a file, or the output, cannot be read or written, or has a mistake
</source>
        <translation>
Exit-Codes:
  0  alles ist gut gegangen
  1  das Telefon lehnt ab, oder die Anrufliste lässt sich nicht lesen oder schreiben
  2  die Befehlszeile ist fehlerhaft, oder eine Änderung wurde ohne --yes verlangt
  3  es gibt keinen Zustand, oder das Telefon kann nicht geöffnet werden
  4  eine genannte Zahl ist nicht verfügbar
  5  das Kostenlimit ist erreicht oder das Guthaben aufgebraucht
  6  die Zahl von --alert ist erreicht
  7  eine Datei oder die Ausgabe lässt sich nicht lesen oder schreiben oder hat einen Fehler
</translation>
    </message>
    <message>
        <source>The telephone's state is in DIR. Default: %1</source>
        <translation>Der Zustand des Telefons liegt in DIR. Vorgabe: %1</translation>
    </message>
    <message>
        <source>The telephone: %1, or the path of a library that has one. Default: simulated.</source>
        <translation>Das Telefon: %1 oder der Pfad einer Bibliothek, die eines hat. Vorgabe: simulated.</translation>
    </message>
    <message>
        <source>Speak this language: %1. Default: the locale's. JSON and CSV are the same in each.</source>
        <translation>Diese Sprache sprechen: %1. Vorgabe: die der Locale. JSON und CSV sind in jeder gleich.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>Print comma-separated values.</source>
        <translation>Durch Kommas getrennte Werte ausgeben.</translation>
    </message>
    <message>
        <source>Reset or delete indeed; nothing is asked.</source>
        <translation>Wirklich zurücksetzen oder löschen; es wird nicht nachgefragt.</translation>
    </message>
    <message>
        <source>Print anew whenever something changes, until a signal comes.</source>
        <translation>Bei jeder Änderung neu ausgeben, bis ein Signal kommt.</translation>
    </message>
    <message>
        <source>Totals by day, month or cycle.</source>
        <translation>Summen nach Tag, Monat oder Zyklus (day, month, cycle).</translation>
    </message>
    <message>
        <source>The billing cycle begins on day N, 1 to 28; totals by cycle.</source>
        <translation>Der Abrechnungszeitraum beginnt am Tag N, 1 bis 28; Summen nach Zyklus.</translation>
    </message>
    <message>
        <source>With delete all: keep the calls of the last DAYS days.</source>
        <translation>Mit delete all: die Anrufe der letzten DAYS Tage behalten.</translation>
    </message>
    <message>
        <source>COST N, TIME N or BYTES N: exit code 6 where all calls have cost N or more, lasted N seconds or more, or N bytes or more have gone both ways.</source>
        <translation>COST N, TIME N oder BYTES N: Exit-Code 6, wenn alle Anrufe zusammen N oder mehr gekostet oder N Sekunden oder länger gedauert haben oder in beiden Richtungen N Bytes oder mehr übertragen wurden.</translation>
    </message>
    <message>
        <source>What to do.</source>
        <translation>Was zu tun ist.</translation>
    </message>
    <message>
        <source>Option 'alert' wants COST, TIME or BYTES, and a number.</source>
        <translation>Die Option »alert« verlangt COST, TIME oder BYTES und eine Zahl.</translation>
    </message>
    <message>
        <source>Option 'by' wants day, month or cycle.</source>
        <translation>Die Option »by« verlangt day, month oder cycle.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' wants a day from 1 to 28.</source>
        <translation>Die Option »cycle-day« verlangt einen Tag von 1 bis 28.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' goes with --by cycle.</source>
        <translation>Die Option »cycle-day« gehört zu --by cycle.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days.</source>
        <translation>Die Option »keep-calls« verlangt eine Anzahl von Tagen.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' goes with delete all.</source>
        <translation>Die Option »keep-calls« gehört zu delete all.</translation>
    </message>
    <message>
        <source>There is no command '%1'.</source>
        <translation>Den Befehl »%1« gibt es nicht.</translation>
    </message>
    <message>
        <source>The command '%1' has a word missing or too many.</source>
        <translation>Dem Befehl »%1« fehlt ein Wort, oder es sind zu viele.</translation>
    </message>
    <message>
        <source>There is no '%1' to show or to reset.</source>
        <translation>»%1« gibt es nicht, weder zum Anzeigen noch zum Zurücksetzen.</translation>
    </message>
    <message>
        <source>Options 'watch' and 'alert' go with figures.</source>
        <translation>Die Optionen »watch« und »alert« gehören zu figures.</translation>
    </message>
    <message>
        <source>Nothing was changed: '%1' wants --yes.</source>
        <translation>Nichts wurde geändert: »%1« verlangt --yes.</translation>
    </message>
    <message>
        <source>Options 'state' and 'backend' want a value.</source>
        <translation>Die Optionen »state« und »backend« verlangen einen Wert.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Unbekannte Sprache »%1«; es gibt: %2.</translation>
    </message>
    <message>
        <source>Options 'json' and 'csv' do not go together.</source>
        <translation>Die Optionen »json« und »csv« schließen einander aus.</translation>
    </message>
    <message>
        <source>units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>The output cannot be written.</source>
        <translation>Die Ausgabe lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>There is no state in "%1".</source>
        <translation>In »%1« gibt es keinen Zustand.</translation>
    </message>
    <message>
        <source>The figure of the alert is not available.</source>
        <translation>Die Zahl für die Warnung ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Die Anrufliste lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 %2: %3.</source>
        <translation>Nichts wurde geändert: %1 %2: %3.</translation>
    </message>
    <message>
        <source>delete wants the id of a call, or all.</source>
        <translation>delete verlangt die Kennung eines Anrufs oder all.</translation>
    </message>
    <message>
        <source>See kavmeter --help.</source>
        <translation>Siehe kavmeter --help.</translation>
    </message>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>voice</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>dialed</source>
        <translation>gewählt</translation>
    </message>
    <message>
        <source>answered</source>
        <translation>angenommen</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>nicht verfügbar</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>ist kein Text</translation>
    </message>
    <message>
        <source>has no pairs of hexadecimal digits</source>
        <translation>besteht nicht aus Paaren von Hexadezimalziffern</translation>
    </message>
    <message>
        <source>%1.%2 is missing</source>
        <translation>%1.%2 fehlt</translation>
    </message>
    <message>
        <source>%1.%2 is not known</source>
        <translation>%1.%2 ist nicht bekannt</translation>
    </message>
    <message>
        <source>kept[%1].content cannot be read</source>
        <translation>kept[%1].content lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>format is not "%1"</source>
        <translation>format ist nicht »%1«</translation>
    </message>
    <message>
        <source>version is not %1</source>
        <translation>version ist nicht %1</translation>
    </message>
    <message>
        <source>%1 is no list</source>
        <translation>%1 ist keine Liste</translation>
    </message>
    <message>
        <source>%1 is no row</source>
        <translation>%1 ist keine Zeile</translation>
    </message>
    <message>
        <source>%1[%2] is not possible</source>
        <translation>%1[%2] ist nicht möglich</translation>
    </message>
    <message>
        <source>its totals contradict its rows</source>
        <translation>die Summen widersprechen den Zeilen</translation>
    </message>
    <message>
        <source>"%1" cannot be made: %2.</source>
        <translation>»%1« kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be written: %2.</source>
        <translation>»%1« lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>»%1« lässt sich nicht lesen: %2.</translation>
    </message>
    <message>
        <source>"%1", line %2: %3.</source>
        <translation>»%1«, Zeile %2: %3.</translation>
    </message>
    <message>
        <source>"%1" is not empty: a state is imported into a new directory.</source>
        <translation>»%1« ist nicht leer: Ein Zustand wird in ein neues Verzeichnis importiert.</translation>
    </message>
</context>
<context>
    <name>kavrecentcalls</name>
    <message>
        <source>Option '%1' of Qt does not go with option 'tour'.</source>
        <translation>Die Option »%1« von Qt verträgt sich nicht mit der Option »tour«.</translation>
    </message>
    <message>
        <source>See kavrecentcalls --help.</source>
        <translation>Siehe kavrecentcalls --help.</translation>
    </message>
    <message>
        <source>There is no display to show the phone on; --tour DIR needs none.</source>
        <translation>Es gibt keinen Bildschirm, auf dem das Telefon gezeigt werden kann; --tour DIR braucht keinen.</translation>
    </message>
    <message>
        <source>The display "%1" cannot be reached; --tour DIR needs none.</source>
        <translation>Der Bildschirm »%1« ist nicht erreichbar; --tour DIR braucht keinen.</translation>
    </message>
    <message>
        <source>The trace file "%1" cannot be opened: %2.</source>
        <translation>Die Protokolldatei »%1« lässt sich nicht öffnen: %2.</translation>
    </message>
    <message>
        <source>The script "%1" cannot be read: %2.</source>
        <translation>Das Skript »%1« lässt sich nicht lesen: %2.</translation>
    </message>
    <message>
        <source>The photograph "%1" cannot be written.</source>
        <translation>Das Foto »%1« lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>The plug-in gives no screen "%1".</source>
        <translation>Das Plug-in liefert keinen Bildschirm »%1«.</translation>
    </message>
    <message>
        <source>A new telephone has begun.</source>
        <translation>Ein neues Telefon hat begonnen.</translation>
    </message>
    <message>
        <source>There is no new telephone, but the one before: %1.</source>
        <translation>Es ist kein neues Telefon, sondern das bisherige: %1.</translation>
    </message>
    <message>
        <source>A new telephone has begun. The one before is kept as "%1".</source>
        <translation>Ein neues Telefon hat begonnen. Das bisherige ist als "%1" aufbewahrt.</translation>
    </message>
    <message>
        <source>Shows the call meters of the phone: a phone with its display and keypad in a window, and beside it a panel
that makes calls on the simulated telephone.</source>
        <translation>Zeigt die Gesprächszähler des Telefons: ein Telefon mit Display und Tastatur in einem Fenster und daneben ein
Bedienfeld, das auf dem simulierten Telefon Anrufe macht.</translation>
    </message>
    <message>
        <source>
Exit codes:
  0  all went well
  1  a tour saw something else than its script expects
  2  the command line is wrong
  3  the telephone cannot be opened
  4  the trace file cannot be opened
  5  the plug-in or another library, or a function of it, is missing, or the plug-in gives no screen
  6  the tour's script cannot be read, or has a mistake
  7  a photograph, the text of a tour, or what was asked for cannot be written
  8  the translation catalogue cannot be loaded
  9  there is no display to show the window on, or no such platform of Qt
 10  a tour was ended by a signal before its end
</source>
        <translation>
Exit-Codes:
  0  alles ist gut gegangen
  1  ein Rundgang hat etwas anderes gesehen, als sein Skript erwartet
  2  die Befehlszeile ist fehlerhaft
  3  das Telefon kann nicht geöffnet werden
  4  die Protokolldatei lässt sich nicht öffnen
  5  das Plug-in oder eine andere Bibliothek oder eine Funktion davon fehlt, oder das Plug-in liefert keinen Bildschirm
  6  das Skript des Rundgangs lässt sich nicht lesen oder hat einen Fehler
  7  ein Foto, der Text eines Rundgangs oder das Verlangte lässt sich nicht schreiben
  8  der Übersetzungskatalog lässt sich nicht laden
  9  es gibt keinen Bildschirm für das Fenster oder keine solche Plattform von Qt
 10  ein Signal hat einen Rundgang vorzeitig beendet
</translation>
    </message>
    <message>
        <source>Keep the telephone's state in DIR between starts; "none" keeps it in memory. Default: %1</source>
        <translation>Den Zustand des Telefons zwischen den Starts in DIR behalten; »none« hält ihn nur im Speicher. Vorgabe: %1</translation>
    </message>
    <message>
        <source>Append the traces to FILE; "-" is standard output. Default: trace.log in the state directory; no trace where the state is in memory, and on a tour.</source>
        <translation>Protokollzeilen an FILE anhängen; »-« ist die Standardausgabe. Vorgabe: trace.log im Zustandsverzeichnis; kein Protokoll, wenn der Zustand nur im Speicher ist, und auf einem Rundgang.</translation>
    </message>
    <message>
        <source>The telephone behind: %2, the path of a library that has one, or auto: the first that has a modem, else simulated. Default: simulated.</source>
        <translation>Das Telefon dahinter: %2, der Pfad einer Bibliothek, die eines hat, oder auto: das erste, das ein Modem hat, sonst simulated. Vorgabe: simulated.</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted at the start and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Nur die Anrufe der letzten DAYS Tage behalten, 0 bis 100000; ältere werden beim Start und einmal am Tag gelöscht und bleiben in den Summen. Vorgabe: alle bleiben.</translation>
    </message>
    <message>
        <source>The plug-in library. Default: libkavcallmeter.so.1</source>
        <translation>Die Plug-in-Bibliothek. Vorgabe: libkavcallmeter.so.1</translation>
    </message>
    <message>
        <source>Open this screen at once: %3.</source>
        <translation>Diesen Bildschirm gleich öffnen: %3.</translation>
    </message>
    <message>
        <source>Show this page of the panel: %4.</source>
        <translation>Diese Seite des Bedienfelds zeigen: %4.</translation>
    </message>
    <message>
        <source>Show the phone's display alone, as large as the window and worked by touch: for a window that is a phone's.</source>
        <translation>Nur das Display des Telefons zeigen, so groß wie das Fenster und durch Berühren bedient: für das Fenster eines Telefons.</translation>
    </message>
    <message>
        <source>Load the texts of the catalogue FILE (.qm).</source>
        <translation>Die Texte des Katalogs FILE (.qm) laden.</translation>
    </message>
    <message>
        <source>Speak this language: %5. Default: the locale's; English on a tour and with --photo.</source>
        <translation>Diese Sprache sprechen: %5. Vorgabe: die der Locale; auf einem Rundgang und mit --photo Englisch.</translation>
    </message>
    <message>
        <source>The colours: light or dark. Default: the desktop's; light on a tour and with --photo.</source>
        <translation>Die Farben: light (hell) oder dark (dunkel). Vorgabe: die der Arbeitsfläche; auf einem Rundgang und mit --photo light.</translation>
    </message>
    <message>
        <source>Photograph the window as PNG to FILE and end.</source>
        <translation>Das Fenster als PNG in FILE fotografieren und beenden.</translation>
    </message>
    <message>
        <source>Play a tour without a display: put photographs of the screens into DIR and print their texts.</source>
        <translation>Einen Rundgang ohne Bildschirm spielen: Fotos der Bildschirme in DIR ablegen und ihre Texte ausgeben.</translation>
    </message>
    <message>
        <source>Play this script instead of the tour of all screens; only with --tour.</source>
        <translation>Dieses Skript statt des Rundgangs durch alle Bildschirme spielen; nur mit --tour.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe an.</translation>
    </message>
    <message>
        <source>Option '%1' has an empty value.</source>
        <translation>Die Option »%1« hat einen leeren Wert.</translation>
    </message>
    <message>
        <source>The name that option '%1' gives is not UTF-8.</source>
        <translation>Der Name, den die Option »%1« angibt, ist kein UTF-8.</translation>
    </message>
    <message>
        <source>Unknown screen '%1'; there is: %2.</source>
        <translation>Unbekannter Bildschirm »%1«; es gibt: %2.</translation>
    </message>
    <message>
        <source>Unknown page '%1'; there is: %2.</source>
        <translation>Unbekannte Seite »%1«; es gibt: %2.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Unbekannte Sprache »%1«; es gibt: %2.</translation>
    </message>
    <message>
        <source>Unknown skin '%1'; there is: %2.</source>
        <translation>Unbekanntes Farbschema »%1«; es gibt: %2.</translation>
    </message>
    <message>
        <source>Unexpected argument '%1'.</source>
        <translation>Unerwartetes Argument »%1«.</translation>
    </message>
    <message>
        <source>Option 'script' needs option 'tour'.</source>
        <translation>Die Option »script« braucht die Option »tour«.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>Die Option »keep-calls« verlangt eine Anzahl von Tagen, 0 bis %1.</translation>
    </message>
    <message>
        <source>Option '%1' does not go with option 'tour'.</source>
        <translation>Die Option »%1« verträgt sich nicht mit der Option »tour«.</translation>
    </message>
    <message>
        <source>Option 'page' does not go with option 'display'.</source>
        <translation>Option „page“ geht nicht mit Option „display“.</translation>
    </message>
    <message>
        <source>Option 'language' does not go with option 'translation'.</source>
        <translation>Die Option »language« verträgt sich nicht mit der Option »translation«.</translation>
    </message>
</context>
</TS>
