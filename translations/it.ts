<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>PHONE_UI_RecentCallCostSetupView</name>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Limite di credito</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Tipo di valuta</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All costs have been reset to 0.00 units.</comment>
        <translation>Tutti i costi sono stati azzerati a 0.00 unità.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>All call costs have been reset to 0.00 units.</comment>
        <translation>I costi di tutte le chiamate sono stati azzerati a 0.00 unità.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Dialed call costs have been reset to 0.00 units.</comment>
        <translation>I costi delle chiamate effettuate sono stati azzerati a 0.00 unità.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ANSWERED_CALL_COSTS_RESET_TO_000_UNITS</source>
        <comment>Answered call costs have been reset to 0.00 units.</comment>
        <translation>I costi delle chiamate ricevute sono stati azzerati a 0.00 unità.</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_ON</source>
        <comment>On</comment>
        <translation>Sì</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_B_OFF</source>
        <comment>Off</comment>
        <translation>No</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ON</source>
        <comment>On</comment>
        <translation>Sì</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OFF</source>
        <comment>Off</comment>
        <translation>No</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUSTOM</source>
        <comment>Custom</comment>
        <translation>Altra</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_SAVE</source>
        <comment>Save</comment>
        <translation>Salva</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_CALLS</source>
        <comment>Reset Calls</comment>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Valuta</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CHOOSE_TYPE</source>
        <comment>Choose Type</comment>
        <translation>Scegli valuta</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Valuta</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Prezzo al minuto</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Regola il limite</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COST_SETUP</source>
        <comment>Call-Cost Setup</comment>
        <translation>Impostazioni costi</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_ARAB_EMIRATES_DIRHAM_AED</source>
        <comment>UNITED ARAB EMIRATES  DIRHAM  (AED)</comment>
        <translation>Emirati Arabi Uniti: dirham (AED)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AFGHANISTAN_AFGHANI_AFA</source>
        <comment>AFGHANISTAN  AFGHANI  (AFA)</comment>
        <translation>Afghanistan: afghani (AFA)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALBANIA_LEK_ALL</source>
        <comment>ALBANIA  LEK  (ALL)</comment>
        <translation>Albania: lek (ALL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARMENIA_DRAM_AMD</source>
        <comment>ARMENIA  DRAM  (AMD)</comment>
        <translation>Armenia: dram (AMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_ANTILLES_GUILDER_ANG</source>
        <comment>NETHERLANDS ANTILLES  GUILDER  (ANG)</comment>
        <translation>Antille Olandesi: fiorino (ANG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGOLA_NEW_KWANZA_AON</source>
        <comment>ANGOLA  NEW KWANZA  (AON)</comment>
        <translation>Angola: nuovo kwanza (AON)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARGENTINA_PESO_ARS</source>
        <comment>ARGENTINA  PESO  (ARS)</comment>
        <translation>Argentina: peso (ARS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRIA_SCHILLING_ATS</source>
        <comment>AUSTRIA  SCHILLING  (ATS)</comment>
        <translation>Austria: scellino (ATS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AUSTRALIA_KIRIBATI_DOLLAR_AUD</source>
        <comment>AUSTRALIA KIRIBATI  DOLLAR  (AUD)</comment>
        <translation>Australia, Kiribati: dollaro (AUD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ARUBA_FLORIN_AWG</source>
        <comment>ARUBA  FLORIN  (AWG)</comment>
        <translation>Aruba: fiorino (AWG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_AZERBAIJAN_MANAT_AZM</source>
        <comment>AZERBAIJAN  MANAT  (AZM)</comment>
        <translation>Azerbaigian: manat (AZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BARBADOS_DOLLAR_BBD</source>
        <comment>BARBADOS  DOLLAR  (BBD)</comment>
        <translation>Barbados: dollaro (BBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BANGLADESH_TAKA_BDT</source>
        <comment>BANGLADESH  TAKA  (BDT)</comment>
        <translation>Bangladesh: taka (BDT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELGIUM_FRANC_BEF</source>
        <comment>BELGIUM  FRANC  (BEF)</comment>
        <translation>Belgio: franco (BEF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BULGARIA_LEW_BGN</source>
        <comment>BULGARIA  LEW  (BGN)</comment>
        <translation>Bulgaria: lev (BGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHRAIN_DINAR_BHD</source>
        <comment>BAHRAIN  DINAR  (BHD)</comment>
        <translation>Bahrein: dinaro (BHD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURUNDI_FRANC_BIF</source>
        <comment>BURUNDI  FRANC  (BIF)</comment>
        <translation>Burundi: franco (BIF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BERMUDA_DOLLAR_BMD</source>
        <comment>BERMUDA  DOLLAR  (BMD)</comment>
        <translation>Bermuda: dollaro (BMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRUNEI_DOLLAR_BND</source>
        <comment>BRUNEI  DOLLAR  (BND)</comment>
        <translation>Brunei: dollaro (BND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOLIVIA_BOLIVIANO_BOB</source>
        <comment>BOLIVIA  BOLIVIANO  (BOB)</comment>
        <translation>Bolivia: boliviano (BOB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BRAZIL_REAL_BRL</source>
        <comment>BRAZIL  REAL  (BRL)</comment>
        <translation>Brasile: real (BRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BAHAMAS_DOLLAR_BSD</source>
        <comment>BAHAMAS  DOLLAR  (BSD)</comment>
        <translation>Bahamas: dollaro (BSD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BHUTAN_NGULTRUM_BTN</source>
        <comment>BHUTAN  NGULTRUM  (BTN)</comment>
        <translation>Bhutan: ngultrum (BTN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BOTSWANA_PULA_BWP</source>
        <comment>BOTSWANA  PULA  (BWP)</comment>
        <translation>Botswana: pula (BWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELORUS_ROUBLE_BYR</source>
        <comment>BELORUS  ROUBLE  (BYR)</comment>
        <translation>Bielorussia: rublo (BYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BELIZE_DOLLAR_BZD</source>
        <comment>BELIZE  DOLLAR  (BZD)</comment>
        <translation>Belize: dollaro (BZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CANADA_DOLLAR_CAD</source>
        <comment>CANADA  DOLLAR  (CAD)</comment>
        <translation>Canada: dollaro (CAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWITZERLAND_LIECHTENSTEIN_FRANC_CHF</source>
        <comment>SWITZERLAND; LIECHTENSTEIN  FRANC  (CHF)</comment>
        <translation>Svizzera, Liechtenstein: franco (CHF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHILE_PESO_CLP</source>
        <comment>CHILE  PESO  (CLP)</comment>
        <translation>Cile: peso (CLP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CHINA_RENMINBI_YUAN_CNY</source>
        <comment>CHINA  RENMINBI ¥UAN  (CNY)</comment>
        <translation>Cina: yuan renminbi (CNY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COLUMBIA_PESO_COP</source>
        <comment>COLUMBIA  PESO  (COP)</comment>
        <translation>Colombia: peso (COP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COSTA_RICA_COLON_CRC</source>
        <comment>COSTA RICA  COLÓN  (CRC)</comment>
        <translation>Costa Rica: colón (CRC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CUBA_PESO_CUP</source>
        <comment>CUBA  PESO  (CUP)</comment>
        <translation>Cuba: peso (CUP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAPE_VERDE_ESCUDO_CVE</source>
        <comment>CAPE VERDE  ESCUDO  (CVE)</comment>
        <translation>Capo Verde: escudo (CVE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CYPRUS_POUND_CYP</source>
        <comment>CYPRUS  POUND  (CYP)</comment>
        <translation>Cipro: sterlina (CYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CZECH_REPUBLIC_KRONER_CZK</source>
        <comment>CZECH REPUBLIC  KRONER  (CZK)</comment>
        <translation>Repubblica Ceca: corona (CZK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GERMANY_MARK_DEM</source>
        <comment>GERMANY  MARK  (DEM)</comment>
        <translation>Germania: marco (DEM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DJIBUTI_FRANC_DJF</source>
        <comment>DJIBUTI  FRANC  (DJF)</comment>
        <translation>Gibuti: franco (DJF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DENMARK_KRONE_DKK</source>
        <comment>DENMARK  KRONE  (DKK)</comment>
        <translation>Danimarca: corona (DKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICAN_REPUBLIC_PESO_DOP</source>
        <comment>DOMINICAN REPUBLIC  PESO  (DOP)</comment>
        <translation>Repubblica Dominicana: peso (DOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ALGERIA_DINAR_DZD</source>
        <comment>ALGERIA  DINAR  (DZD)</comment>
        <translation>Algeria: dinaro (DZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ECUADOR_SUCRE_ECS</source>
        <comment>ECUADOR  SUCRE  (ECS)</comment>
        <translation>Ecuador: sucre (ECS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ESTONIA_KROON_EEK</source>
        <comment>ESTONIA  KROON  (EEK)</comment>
        <translation>Estonia: corona (EEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EGYPT_POUND_EGP</source>
        <comment>EGYPT  POUND  (EGP)</comment>
        <translation>Egitto: sterlina (EGP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SPAIN_ANDORRA_PESETA_ESP</source>
        <comment>SPAIN ANDORRA  PESETA  (ESP)</comment>
        <translation>Spagna, Andorra: peseta (ESP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ETHIOPIA_BIRR_ETB</source>
        <comment>ETHIOPIA  BIRR  (ETB)</comment>
        <translation>Etiopia: birr (ETB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FINLAND_MARK_FIM</source>
        <comment>FINLAND  MARK  (FIM)</comment>
        <translation>Finlandia: marco (FIM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FIJI_DOLLAR_FJD</source>
        <comment>FIJI  DOLLAR  (FJD)</comment>
        <translation>Figi: dollaro (FJD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FALKLAND_ISLES_POUND_FKP</source>
        <comment>FALKLAND ISLES  POUND  (FKP)</comment>
        <translation>Isole Falkland: sterlina (FKP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_FRANCE_FRANC_FRF</source>
        <comment>FRANCE  FRANC  (FRF)</comment>
        <translation>Francia: franco (FRF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UNITED_KINGDOM_GREAT_BRITAIN_POUND_STERLING_GBP</source>
        <comment>UNITED KINGDOM (GREAT BRITAIN)  POUND STERLING  (GBP)</comment>
        <translation>Regno Unito: lira sterlina (GBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GEORGIA_COUPON_GEK</source>
        <comment>GEORGIA  COUPON  (GEK)</comment>
        <translation>Georgia: cupone (GEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GHANA_CEDI_GHC</source>
        <comment>GHANA  CEDI  (GHC)</comment>
        <translation>Ghana: cedi (GHC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GIBRALTAR_POUND_GIP</source>
        <comment>GIBRALTAR  POUND  (GIP)</comment>
        <translation>Gibilterra: sterlina (GIP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GAMBIA_DALASI_GMD</source>
        <comment>GAMBIA  DALASI  (GMD)</comment>
        <translation>Gambia: dalasi (GMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_FRANC_GNF</source>
        <comment>GUINEA  FRANC  (GNF)</comment>
        <translation>Guinea: franco (GNF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GREECE_DRACHMA_GRD</source>
        <comment>GREECE  DRACHMA  (GRD)</comment>
        <translation>Grecia: dracma (GRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUATEMALA_QUETZAL_GTQ</source>
        <comment>GUATEMALA  QUETZAL  (GTQ)</comment>
        <translation>Guatemala: quetzal (GTQ)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUINEA_BISSAU_PESO_GWP</source>
        <comment>GUINEA-BISSAU  PESO  (GWP)</comment>
        <translation>Guinea-Bissau: peso (GWP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GUYANA_DOLLAR_GYD</source>
        <comment>GUYANA  DOLLAR  (GYD)</comment>
        <translation>Guyana: dollaro (GYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONG_KONG_DOLLAR_HKD</source>
        <comment>HONG KONG  DOLLAR  (HKD)</comment>
        <translation>Hong Kong: dollaro (HKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HONDURAS_LEMPIRA_HNL</source>
        <comment>HONDURAS  LEMPIRA  (HNL)</comment>
        <translation>Honduras: lempira (HNL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CROATIA_KUNA_HRK</source>
        <comment>CROATIA  KUNA  (HRK)</comment>
        <translation>Croazia: kuna (HRK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HAITI_GOURDE_HTG</source>
        <comment>HAITI  GOURDE  (HTG)</comment>
        <translation>Haiti: gourde (HTG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_HUNGARY_FORINT_HUF</source>
        <comment>HUNGARY  FORINT  (HUF)</comment>
        <translation>Ungheria: fiorino (HUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDONESIA_RUPIAH_IDR</source>
        <comment>INDONESIA  RUPIAH  (IDR)</comment>
        <translation>Indonesia: rupia (IDR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRELAND_PUNT_IEP</source>
        <comment>IRELAND  PUNT  (IEP)</comment>
        <translation>Irlanda: sterlina (IEP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ISRAEL_NEW_SHEKEL_ILS</source>
        <comment>ISRAEL  NEW SHEKEL  (ILS)</comment>
        <translation>Israele: nuovo siclo (ILS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_INDIA_BHUTAN_RUPEE_INR</source>
        <comment>INDIA; BHUTAN  RUPEE  (INR)</comment>
        <translation>India, Bhutan: rupia (INR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAQ_DINAR_IQD</source>
        <comment>IRAQ  DINAR  (IQD)</comment>
        <translation>Iraq: dinaro (IQD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IRAN_RIAL_IRR</source>
        <comment>IRAN  RIAL  (IRR)</comment>
        <translation>Iran: rial (IRR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ICELAND_KRONER_ISK</source>
        <comment>ICELAND  KRONER  (ISK)</comment>
        <translation>Islanda: corona (ISK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ITALY_LIRA_ITL</source>
        <comment>ITALY  LIRA  (ITL)</comment>
        <translation>Italia: lira (ITL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAMAICA_DOLLAR_JMD</source>
        <comment>JAMAICA  DOLLAR  (JMD)</comment>
        <translation>Giamaica: dollaro (JMD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JORDAN_DINAR_JOD</source>
        <comment>JORDAN  DINAR  (JOD)</comment>
        <translation>Giordania: dinaro (JOD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_JAPAN_YEN_JPY</source>
        <comment>JAPAN  YEN  (JPY)</comment>
        <translation>Giappone: yen (JPY)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KENYA_SHILLING_KES</source>
        <comment>KENYA  SHILLING  (KES)</comment>
        <translation>Kenya: scellino (KES)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KIRGIZISTAN_SOM_KGS</source>
        <comment>KIRGIZISTAN  SOM  (KGS)</comment>
        <translation>Kirghizistan: som (KGS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAMBODIA_RIEL_KHR</source>
        <comment>CAMBODIA  RIEL  (KHR)</comment>
        <translation>Cambogia: riel (KHR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_COMORES_FRANC_KMF</source>
        <comment>COMORES  FRANC  (KMF)</comment>
        <translation>Comore: franco (KMF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_DEMOCRATIC_PEOPLES_REPUBLIC_WON_KPW</source>
        <comment>KOREA, DEMOCRATIC PEOPLE'S REPUBLIC  WON  (KPW)</comment>
        <translation>Corea del Nord: won (KPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KOREA_REPUBLIC_SOUTH_KOREA_WON_KRW</source>
        <comment>KOREA, REPUBLIC (SOUTH KOREA)  WON  (KRW)</comment>
        <translation>Corea del Sud: won (KRW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KUWAIT_DINAR_KWD</source>
        <comment>KUWAIT  DINAR  (KWD)</comment>
        <translation>Kuwait: dinaro (KWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CAYMAN_ISLANDS_DOLLAR_KYD</source>
        <comment>CAYMAN ISLANDS  DOLLAR  (KYD)</comment>
        <translation>Isole Cayman: dollaro (KYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_KAZAKHSTAN_TENGE_KZT</source>
        <comment>KAZAKHSTAN  TENGE  (KZT)</comment>
        <translation>Kazakistan: tenge (KZT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LAOS_KIP_LAK</source>
        <comment>LAOS  KIP  (LAK)</comment>
        <translation>Laos: kip (LAK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LEBANON_POUND_LBP</source>
        <comment>LEBANON  POUND  (LBP)</comment>
        <translation>Libano: sterlina (LBP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SRI_LANKA_RUPEE_LKR</source>
        <comment>SRI LANKA  RUPEE  (LKR)</comment>
        <translation>Sri Lanka: rupia (LKR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBERIA_DOLLAR_LRD</source>
        <comment>LIBERIA  DOLLAR  (LRD)</comment>
        <translation>Liberia: dollaro (LRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LESOTHO_LOTI_PL_MALOTI_LSL</source>
        <comment>LESOTHO  LOTI (Pl.: MALOTI)  (LSL)</comment>
        <translation>Lesotho: loti (LSL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LITHUANIA_LITAS_LTL</source>
        <comment>LITHUANIA  LITAS  (LTL)</comment>
        <translation>Lituania: litas (LTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LUXEMBOURG_FRANC_LUF</source>
        <comment>LUXEMBOURG  FRANC  (LUF)</comment>
        <translation>Lussemburgo: franco (LUF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LATVIA_LAT_LVL</source>
        <comment>LATVIA  LAT  (LVL)</comment>
        <translation>Lettonia: lats (LVL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_LIBYA_DINAR_LYD</source>
        <comment>LIBYA  DINAR  (LYD)</comment>
        <translation>Libia: dinaro (LYD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAROC_DIRHAM_MAD</source>
        <comment>MAROC  DIRHAM  (MAD)</comment>
        <translation>Marocco: dirham (MAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOLDAVIA_LEU_MDL</source>
        <comment>MOLDAVIA  LEU  (MDL)</comment>
        <translation>Moldavia: leu (MDL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MADAGASCAR_FRANC_MGF</source>
        <comment>MADAGASCAR  FRANC  (MGF)</comment>
        <translation>Madagascar: franco (MGF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACEDONIA_DENAR_MKD</source>
        <comment>MACEDONIA  DENAR  (MKD)</comment>
        <translation>Macedonia: denar (MKD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MYANMAR_KYAT_MMK</source>
        <comment>MYANMAR  KYAT  (MMK)</comment>
        <translation>Myanmar: kyat (MMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONGOLIA_TUGRIK_MNT</source>
        <comment>MONGOLIA  TUGRIK  (MNT)</comment>
        <translation>Mongolia: tugrik (MNT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MACAU_PATACA_MOP</source>
        <comment>MACAU  PATACA  (MOP)</comment>
        <translation>Macao: pataca (MOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURETANIA_OUGUIYA_MRO</source>
        <comment>MAURETANIA  OUGUIYA  (MRO)</comment>
        <translation>Mauritania: ouguiya (MRO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALTA_LIRA_MTL</source>
        <comment>MALTA  LIRA  (MTL)</comment>
        <translation>Malta: lira (MTL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MAURITIUS_RUPEE_MUR</source>
        <comment>MAURITIUS  RUPEE  (MUR)</comment>
        <translation>Mauritius: rupia (MUR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALDIVE_ISLES_RUFIYAA_MVR</source>
        <comment>MALDIVE ISLES  RUFIYAA  (MVR)</comment>
        <translation>Maldive: rufiyaa (MVR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAWI_KWACHA_MWK</source>
        <comment>MALAWI  KWACHA  (MWK)</comment>
        <translation>Malawi: kwacha (MWK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MEXICO_NEW_PESO_MXN</source>
        <comment>MEXICO  NEW PESO  (MXN)</comment>
        <translation>Messico: nuovo peso (MXN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALAYSIA_RINGGIT_MYR</source>
        <comment>MALAYSIA  RINGGIT  (MYR)</comment>
        <translation>Malaysia: ringgit (MYR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MOZAMBIQUE_METICAL_MZM</source>
        <comment>MOZAMBIQUE  METICAL  (MZM)</comment>
        <translation>Mozambico: metical (MZM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NAMIBIA_DOLLAR_NAD</source>
        <comment>NAMIBIA  DOLLAR  (NAD)</comment>
        <translation>Namibia: dollaro (NAD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGERIA_NAIRA_NGN</source>
        <comment>NIGERIA  NAIRA  (NGN)</comment>
        <translation>Nigeria: naira (NGN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NICARAGUA_GOLD_CORDOBA_NIO</source>
        <comment>NICARAGUA  GOLD CÓRDOBA  (NIO)</comment>
        <translation>Nicaragua: córdoba oro (NIO)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NETHERLANDS_GUILDER_NLG</source>
        <comment>NETHERLANDS  GUILDER  (NLG)</comment>
        <translation>Paesi Bassi: fiorino (NLG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NORWAY_KRONA_NOK</source>
        <comment>NORWAY  KRONA  (NOK)</comment>
        <translation>Norvegia: corona (NOK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEPAL_RUPEE_NPW</source>
        <comment>NEPAL  RUPEE  (NPW)</comment>
        <translation>Nepal: rupia (NPW)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NEW_ZEALAND_DOLLAR_NZD</source>
        <comment>NEW ZEALAND  DOLLAR  (NZD)</comment>
        <translation>Nuova Zelanda: dollaro (NZD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_OMAN_RIAL_OMR</source>
        <comment>OMAN  RIAL  (OMR)</comment>
        <translation>Oman: rial (OMR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PANAMA_BALBOA_PAB</source>
        <comment>PANAMA  BALBOA  (PAB)</comment>
        <translation>Panama: balboa (PAB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PERU_NEW_SOL_PEN</source>
        <comment>PERU  NEW SOL  (PEN)</comment>
        <translation>Perù: nuovo sol (PEN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAPUA_NEW_GUINEA_KINA_PGK</source>
        <comment>PAPUA NEW GUINEA  KINA  (PGK)</comment>
        <translation>Papua Nuova Guinea: kina (PGK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PHILIPPINES_PESO_PHP</source>
        <comment>PHILIPPINES  PESO  (PHP)</comment>
        <translation>Filippine: peso (PHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PAKISTAN_RUPEE_PYK</source>
        <comment>PAKISTAN  RUPEE  (PYK)</comment>
        <translation>Pakistan: rupia (PYK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_POLAND_ZLOTY_PLN</source>
        <comment>POLAND  ZLOTY  (PLN)</comment>
        <translation>Polonia: zloty (PLN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PORTUGAL_ESCUDO_PTE</source>
        <comment>PORTUGAL  ESCUDO  (PTE)</comment>
        <translation>Portogallo: escudo (PTE)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_PARAGUAY_GUARANI_PYG</source>
        <comment>PARAGUAY  GUARANI  (PYG)</comment>
        <translation>Paraguay: guaraní (PYG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_QATAR_RIYAL_QAR</source>
        <comment>QATAR  RIYAL  (QAR)</comment>
        <translation>Qatar: riyal (QAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ROMANIA_LEU_ROL</source>
        <comment>ROMANIA  LEU  (ROL)</comment>
        <translation>Romania: leu (ROL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_AZERBAIJAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION AZERBAIJAN  ROUBLE  (RUB)</comment>
        <translation>Federazione Russa, Azerbaigian: rublo (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_BELARUS_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION BELARUS  ROUBLE  (RUB)</comment>
        <translation>Federazione Russa, Bielorussia: rublo (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_TADZIKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION TADZIKISTAN  ROUBLE  (RUB)</comment>
        <translation>Federazione Russa, Tagikistan: rublo (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUSSIAN_FEDERATION_UZBEKISTAN_ROUBLE_RUB</source>
        <comment>RUSSIAN FEDERATION UZBEKISTAN  ROUBLE  (RUB)</comment>
        <translation>Federazione Russa, Uzbekistan: rublo (RUB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_RUANDA_FRANC_RWF</source>
        <comment>RUANDA  FRANC  (RWF)</comment>
        <translation>Ruanda: franco (RWF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAUDI_ARABIA_RIYAL_SAR</source>
        <comment>SAUDI ARABIA  RIYAL  (SAR)</comment>
        <translation>Arabia Saudita: riyal (SAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SALOMON_ISLES_DOLLAR_SBD</source>
        <comment>SALOMON ISLES  DOLLAR  (SBD)</comment>
        <translation>Isole Salomone: dollaro (SBD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SEYCHELLES_RUPEE_SCR</source>
        <comment>SEYCHELLES  RUPEE  (SCR)</comment>
        <translation>Seychelles: rupia (SCR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SUDAN_DINAR_SDD</source>
        <comment>SUDAN  DINAR  (SDD)</comment>
        <translation>Sudan: dinaro (SDD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWEDEN_KRONER_SEK</source>
        <comment>SWEDEN  KRONER  (SEK)</comment>
        <translation>Svezia: corona (SEK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SINGAPORE_DOLLAR_SGD</source>
        <comment>SINGAPORE  DOLLAR  (SGD)</comment>
        <translation>Singapore: dollaro (SGD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_HELENS_POUND_SHP</source>
        <comment>ST. HELENS  POUND  (SHP)</comment>
        <translation>Sant'Elena: sterlina (SHP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVENIA_TOLAR_SIT</source>
        <comment>SLOVENIA  TOLAR  (SIT)</comment>
        <translation>Slovenia: tallero (SIT)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SLOVAKIA_KORUNA_SKK</source>
        <comment>SLOVAKIA  KORUNA  (SKK)</comment>
        <translation>Slovacchia: corona (SKK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SIERRA_LEONE_LEONE_SLL</source>
        <comment>SIERRA LEONE  LEONE  (SLL)</comment>
        <translation>Sierra Leone: leone (SLL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOMALIA_SHILLING_SOS</source>
        <comment>SOMALIA  SHILLING  (SOS)</comment>
        <translation>Somalia: scellino (SOS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SURINAM_GUILDER_SRG</source>
        <comment>SURINAM  GUILDER  (SRG)</comment>
        <translation>Suriname: fiorino (SRG)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAO_TOME_PRINCIPE_DOBRA_SRD</source>
        <comment>SÃO TOMÉ; PRINCIPE  DOBRA  (SRD)</comment>
        <translation>São Tomé, Príncipe: dobra (SRD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EL_SALVADOR_COLON_SVC</source>
        <comment>EL SALVADOR  COLÓN  (SVC)</comment>
        <translation>El Salvador: colón (SVC)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SYRIA_POUND_SYP</source>
        <comment>SYRIA  POUND  (SYP)</comment>
        <translation>Siria: sterlina (SYP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SWAZILAND_LILANGENI_PL_EMALANGENI_SZL</source>
        <comment>SWAZILAND  LILANGENI (Pl.: EMALANGENI)  (SZL)</comment>
        <translation>Swaziland: lilangeni (SZL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_THAILAND_BAHT_THB</source>
        <comment>THAILAND  BAHT  (THB)</comment>
        <translation>Thailandia: baht (THB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKMENISTAN_MANAT_TMM</source>
        <comment>TURKMENISTAN  MANAT  (TMM)</comment>
        <translation>Turkmenistan: manat (TMM)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TUNESIA_DINAR_TND</source>
        <comment>TUNESIA  DINAR  (TND)</comment>
        <translation>Tunisia: dinaro (TND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TONGA_PAANGA_TOP</source>
        <comment>TONGA  PA'ANGA  (TOP)</comment>
        <translation>Tonga: paʻanga (TOP)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TURKEY_LIRA_TRL</source>
        <comment>TURKEY  LIRA  (TRL)</comment>
        <translation>Turchia: lira (TRL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TRINIDAD_TOBAGO_DOLLAR_TTD</source>
        <comment>TRINIDAD; TOBAGO  DOLLAR  (TTD)</comment>
        <translation>Trinidad, Tobago: dollaro (TTD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TAIWAN_DOLLAR_TWD</source>
        <comment>TAIWAN  DOLLAR  (TWD)</comment>
        <translation>Taiwan: dollaro (TWD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TANZANIA_SHILLING_TZS</source>
        <comment>TANZANIA  SHILLING  (TZS)</comment>
        <translation>Tanzania: scellino (TZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UKRAINE_HRYVNIA_UAH</source>
        <comment>UKRAINE  HRYVNIA  (UAH)</comment>
        <translation>Ucraina: grivnia (UAH)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UGANDA_SHILLING_UGX</source>
        <comment>UGANDA  SHILLING  (UGX)</comment>
        <translation>Uganda: scellino (UGX)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_USA_DOLLAR_USD</source>
        <comment>USA  DOLLAR  (USD)</comment>
        <translation>Stati Uniti: dollaro (USD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_URUGUAY_PESO_UYU</source>
        <comment>URUGUAY  PESO  (UYU)</comment>
        <translation>Uruguay: peso (UYU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_UZBEKISTAN_SUM_UZS</source>
        <comment>UZBEKISTAN  SUM  (UZS)</comment>
        <translation>Uzbekistan: sum (UZS)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VENEZUELA_BOLIVAR_VEB</source>
        <comment>VENEZUELA  BOLIVAR  (VEB)</comment>
        <translation>Venezuela: bolívar (VEB)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VIETNAM_DONG_VND</source>
        <comment>VIETNAM  DONG  (VND)</comment>
        <translation>Vietnam: dong (VND)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_VANUATU_VATU_VUV</source>
        <comment>VANUATU  VATU  (VUV)</comment>
        <translation>Vanuatu: vatu (VUV)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMOA_TALA_WST</source>
        <comment>SAMOA  TALA  (WST)</comment>
        <translation>Samoa: tala (WST)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CHAD_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CHAD CFA-FRANC  (XAF)</comment>
        <translation>Repubblica Centrafricana, Ciad: franco CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_EQUATORIAL_GUINEA_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC EQUATORIAL GUINEA CFA-FRANC  (XAF)</comment>
        <translation>Repubblica Centrafricana, Guinea Equatoriale: franco CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_GABUN_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC GABUN CFA-FRANC  (XAF)</comment>
        <translation>Repubblica Centrafricana, Gabon: franco CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CAMEROON_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CAMEROON CFA-FRANC  (XAF)</comment>
        <translation>Repubblica Centrafricana, Camerun: franco CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_CENTRAL_AFRICAN_REPUBLIC_CONGO_CFA_FRANC_XAF</source>
        <comment>CENTRAL AFRICAN REPUBLIC CONGO  CFA-FRANC  (XAF)</comment>
        <translation>Repubblica Centrafricana, Congo: franco CFA (XAF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANGUILLA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANGUILLA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Anguilla: dollaro dei Caraibi orientali (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ANTIGUA_AND_BARBUDA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ANTIGUA AND BARBUDA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Antigua e Barbuda: dollaro dei Caraibi orientali (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_DOMINICA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>DOMINICA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Dominica: dollaro dei Caraibi orientali (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_GRENADA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>GRENADA EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Grenada: dollaro dei Caraibi orientali (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MONTSERRAT_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>MONTSERRAT EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Montserrat: dollaro dei Caraibi orientali (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_KITTS_AND_NEVIS_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. KITTS AND NEVIS EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Kitts e Nevis: dollaro dei Caraibi orientali (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_LUCIA_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. LUCIA  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Lucia: dollaro dei Caraibi orientali (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ST_VINCENT_AND_GRENADINES_EAST_CARIBBEAN_DOLLAR_XCD</source>
        <comment>ST. VINCENT AND GRENADINES  EAST CARIBBEAN DOLLAR  (XCD)</comment>
        <translation>Saint Vincent e Grenadine: dollaro dei Caraibi orientali (XCD)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_EUROPEAN_UNION_EUROPEAN_CURRENCY_UNIT_XEU</source>
        <comment>EUROPEAN UNION  EUROPEAN CURRENCY UNIT  (XEU)</comment>
        <translation>Unione Europea: unità monetaria europea (XEU)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BENIN_CFA_FRANC_XOF</source>
        <comment>BENIN  CFA-FRANC  (XOF)</comment>
        <translation>Benin: franco CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_BURKINA_FASO_CFA_FRANC_XOF</source>
        <comment>BURKINA FASO CFA-FRANC  (XOF)</comment>
        <translation>Burkina Faso: franco CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_IVORY_COAST_CFA_FRANC_XOF</source>
        <comment>IVORY COAST CFA-FRANC  (XOF) </comment>
        <translation>Costa d'Avorio: franco CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_MALI_CFA_FRANC_XOF</source>
        <comment>MALI CFA-FRANC  (XOF)</comment>
        <translation>Mali: franco CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_NIGER_CFA_FRANC_XOF</source>
        <comment>NIGER CFA-FRANC  (XOF)</comment>
        <translation>Niger: franco CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SENEGAL_CFA_FRANC_XOF</source>
        <comment>SENEGAL CFA-FRANC  (XOF) </comment>
        <translation>Senegal: franco CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_TOGO_CFA_FRANC_XOF</source>
        <comment>TOGO  CFA-FRANC  (XOF)</comment>
        <translation>Togo: franco CFA (XOF)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YEMEN_RIAL_YER</source>
        <comment>YEMEN  RIAL  (YER)</comment>
        <translation>Yemen: rial (YER)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_YUGOSLAVIA_DINAR_YUN</source>
        <comment>YUGOSLAVIA  DINAR  (YUN)</comment>
        <translation>Jugoslavia: dinaro (YUN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_RAND_FINANCE_ZAL</source>
        <comment>SOUTH AFRICA; LESOTHO  RAND (FINANCE)  (ZAL)</comment>
        <translation>Sudafrica, Lesotho: rand finanziario (ZAL)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SOUTH_AFRICA_LESOTHO_NAMIBIA_RAND_ZAR</source>
        <comment>SOUTH AFRICA; LESOTHO; (NAMIBIA) RAND  (ZAR)</comment>
        <translation>Sudafrica, Lesotho, Namibia: rand (ZAR)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_SAMBIA_KWACHA_ZMK</source>
        <comment>SAMBIA  KWACHA  (ZMK)</comment>
        <translation>Zambia: kwacha (ZMK)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZAIRE_NEW_ZAIRE_ZRN</source>
        <comment>ZAIRE  NEW ZAIRE  (ZRN)</comment>
        <translation>Zaire: nuovo zaire (ZRN)</translation>
    </message>
    <message>
        <source>TXT_RID_LIST_A_ZIMBABWE_DOLLAR_ZWD</source>
        <comment>ZIMBABWE  DOLLAR  (ZWD)</comment>
        <translation>Zimbabwe: dollaro (ZWD)</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallCostsView</name>
    <message>
        <source>TXT_RID_HEADER_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Credito disponibile</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2</source>
        <comment>Your current credit available is %1 units</comment>
        <translation>Il credito disponibile è di %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Data di scadenza</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1</source>
        <comment>Your remaining credit will expire on %1</comment>
        <translation>Il credito residuo scadrà il %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Ultima ricarica</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS</source>
        <comment>Your last deposit amount was %1</comment>
        <translation>L'ultima ricarica è stata di %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Ultima chiamata</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS</source>
        <comment>The cost of your last call was %1</comment>
        <translation>Il costo dell'ultima chiamata è stato di %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Chiamate effettuate</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your dialed calls is %1</comment>
        <translation>Il costo delle chiamate effettuate è di %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Chiamate ricevute</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS</source>
        <comment>The cost of your answered calls is %1</comment>
        <translation>Il costo delle chiamate ricevute è di %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Tutte le chiamate</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS</source>
        <comment>The cost of all your calls is %1</comment>
        <translation>Il costo di tutte le chiamate è di %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Costo chiamate</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataTimesView</name>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Durata dati</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1</source>
        <comment>The current Data Session time for %2 is %1.</comment>
        <translation>La durata della sessione dati in corso per %2 è di %1.</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_THE_TOTAL_TIME_FOR_ALL_YOUR_GPRS_DATA_SESSIONS_IS_1</source>
        <comment>The total time for all your data sessions is %1.</comment>
        <translation>La durata totale di tutte le sessioni dati è di %1.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_TIMER</source>
        <comment>Are you sure you want to reset the data sessions timer?</comment>
        <translation>Azzerare davvero il contatore delle sessioni dati?</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesDetailView</name>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1</source>
        <comment>Your sent data volume is %1</comment>
        <translation>Il volume dei dati inviati è di %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_RECEIVED_DATA_VOLUME_IS_1</source>
        <comment>Your received data volume is %1</comment>
        <translation>Il volume dei dati ricevuti è di %1</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_YOUR_TOTAL_DATA_TRANSFER_VOLUME_IS_1</source>
        <comment>Your total data transfer volume is %1</comment>
        <translation>Il volume totale dei dati trasferiti è di %1</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUME</source>
        <comment>Data Volume</comment>
        <translation>Volume dati</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallDataVolumesView</name>
    <message>
        <source>TXT_RID_HEADER_RESET</source>
        <comment>Reset</comment>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_VOLUME</source>
        <comment>Are you sure you want to reset the data sessions volume?</comment>
        <translation>Azzerare davvero il volume delle sessioni dati?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Volume dati</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>PHONE_UI_RecentCallMeter</name>
    <message>
        <source>TXT_RID_LIST_A_UNITS</source>
        <comment>units</comment>
        <translation>unità</translation>
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
        <translation>Azzerare la durata delle chiamate effettuate?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ANSWERED_CALLS_TIMER</source>
        <comment>Would you like to reset the Answered Calls timer?</comment>
        <translation>Azzerare la durata delle chiamate ricevute?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_CIRCUIT_SWITCHING_DATA_CALLS_TIMER</source>
        <comment>Would you like to reset the Circuit Switching Data Calls timer?</comment>
        <translation>Azzerare la durata delle chiamate dati a commutazione di circuito?</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_RESET_ALL_CALLS_TIMER</source>
        <comment>Would you like to reset the All Calls timer?</comment>
        <translation>Azzerare la durata di tutte le chiamate?</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_RESET_TIMER</source>
        <comment>Reset Timer</comment>
        <translation>Azzera timer</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_CURRENT_REQUEST_CANNOT_BE_COMPLETED_WHILE_YOU_ARE_IN_CALLING</source>
        <comment>Current request cannot be completed, while you are in calling. </comment>
        <translation>Impossibile eseguire la richiesta durante una chiamata.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Durata chiamate</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_BACK</source>
        <comment>Back</comment>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opzioni]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argomenti:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Mostra l'aiuto con le opzioni proprie di Qt.</translation>
    </message>
    <message>
        <source>Unknown option '%1'.</source>
        <translation>Opzione sconosciuta «%1».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opzioni sconosciute: %1.</translation>
    </message>
    <message>
        <source>Missing value after '%1'.</source>
        <translation>Manca un valore dopo «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after '%1'.</source>
        <translation>Valore inatteso dopo «%1».</translation>
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
        <translation>Azzera tutto</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_CALL_COSTS</source>
        <comment>Reset All Call Costs</comment>
        <translation>Azzera tutti i costi</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_DIALED_CALL_COSTS</source>
        <comment>Reset Dialed Call Costs</comment>
        <translation>Azzera costo effettuate</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ANSWERED_CALL_COSTS</source>
        <comment>Reset Answered Call Costs</comment>
        <translation>Azzera costo ricevute</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_LIMIT</source>
        <comment>Credit Limit</comment>
        <translation>Limite di credito</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ADJUST_CREDIT_LIMIT</source>
        <comment>Adjust Credit Limit</comment>
        <translation>Regola il limite</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY</source>
        <comment>Currency</comment>
        <translation>Valuta</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CURRENCY_TYPE</source>
        <comment>Currency Type</comment>
        <translation>Tipo di valuta</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_COST_PER_MINUTE</source>
        <comment>Cost Per Minute</comment>
        <translation>Prezzo al minuto</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CREDIT_AVAILABLE</source>
        <comment>Credit Available</comment>
        <translation>Credito disponibile</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_EXPIRATION_DATE</source>
        <comment>Expiration Date</comment>
        <translation>Data di scadenza</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_DEPOSIT</source>
        <comment>Last Deposit</comment>
        <translation>Ultima ricarica</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL_COST</source>
        <comment>Last Call Cost</comment>
        <translation>Costo ultima</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS_COST</source>
        <comment>Dialed Calls Cost</comment>
        <translation>Costo effettuate</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS_COST</source>
        <comment>Answered Calls Cost</comment>
        <translation>Costo ricevute</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS_COST</source>
        <comment>All Calls Cost</comment>
        <translation>Costo totale</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CALL_COST_SETUP</source>
        <comment>Call Cost Setup</comment>
        <translation>Impostazioni costi</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_RECENT_DATA_SESSION</source>
        <comment>Current Data Session</comment>
        <translation>Sessione dati in corso</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>Sessione dati GPRS 1</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>Sessione dati GPRS 2</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>Sessione dati GPRS 3</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_ALL_DATA_SESSIONS</source>
        <comment>All Data Sessions</comment>
        <translation>Tutte le sessioni dati</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_TIME</source>
        <comment>Total Time</comment>
        <translation>Durata totale</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS</source>
        <comment>Reset All Data Sessions</comment>
        <translation>Azzera sessioni dati</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SENT</source>
        <comment>Sent</comment>
        <translation>Inviati</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_RECEIVED</source>
        <comment>Received</comment>
        <translation>Ricevuti</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_SUM</source>
        <comment>Sum</comment>
        <translation>Totale</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED</source>
        <comment>Total Data Transferred</comment>
        <translation>Totale trasferito</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1</source>
        <comment>GPRS Data Session 1</comment>
        <translation>Sessione dati GPRS 1</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2</source>
        <comment>GPRS Data Session 2</comment>
        <translation>Sessione dati GPRS 2</translation>
    </message>
    <message>
        <source>TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3</source>
        <comment>GPRS Data Session 3</comment>
        <translation>Sessione dati GPRS 3</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LAST_CALL</source>
        <comment>Last Call</comment>
        <translation>Ultima chiamata</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_DIALED_CALLS</source>
        <comment>Dialed Calls</comment>
        <translation>Chiamate effettuate</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ANSWERED_CALLS</source>
        <comment>Answered Calls</comment>
        <translation>Chiamate ricevute</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_CIRCUIT_SWITCH_DATA_CALLS</source>
        <comment>Data Calls</comment>
        <translation>Chiamate dati</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_ALL_CALLS</source>
        <comment>All Calls</comment>
        <translation>Tutte le chiamate</translation>
    </message>
    <message>
        <source>TXT_RID_SETTING_A_LIFETIME_CALLS</source>
        <comment>Lifetime Calls</comment>
        <translation>Totale chiamate</translation>
    </message>
</context>
<context>
    <name>ReadFile</name>
    <message>
        <source>there is none</source>
        <translation>non esiste</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>supera %1 MiB</translation>
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
        <translation>Inserire il PIN1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN1</source>
        <comment>Wrong PIN1</comment>
        <translation>PIN1 errato</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN1_IS_BLOCKED</source>
        <comment>PIN1 is blocked. Only PUK1 can unblock it.</comment>
        <translation>Il PIN1 è bloccato. Solo il PUK1 può sbloccarlo.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN1</source>
        <comment>The SIM card cannot be asked for PIN1.</comment>
        <translation>Impossibile chiedere il PIN1 alla carta SIM.</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_PIN2</source>
        <comment>PIN2</comment>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_ENTER_PIN2</source>
        <comment>Enter PIN2</comment>
        <translation>Inserire il PIN2</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_WRONG_PIN2</source>
        <comment>Wrong PIN2</comment>
        <translation>PIN2 errato</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_PIN2_IS_BLOCKED</source>
        <comment>PIN2 is blocked. Only PUK2 can unblock it.</comment>
        <translation>Il PIN2 è bloccato. Solo il PUK2 può sbloccarlo.</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN2</source>
        <comment>The SIM card cannot be asked for PIN2.</comment>
        <translation>Impossibile chiedere il PIN2 alla carta SIM.</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OK</source>
        <comment>OK</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>FMT_RID_INSTRUCTIONALTXT_TRIES_LEFT_1</source>
        <comment>Tries left: %1</comment>
        <translation>Tentativi: %1</translation>
    </message>
    <message>
        <source>TXT_RID_INSTRUCTIONALTXT_4_TO_8_DIGITS</source>
        <comment>4 to 8 digits</comment>
        <translation>Da 4 a 8 cifre</translation>
    </message>
</context>
<context>
    <name>ZMessageDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_YES</source>
        <comment>Yes</comment>
        <translation>Sì</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_NO</source>
        <comment>No</comment>
        <translation>No</translation>
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
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>ZSingleSelectDlg</name>
    <message>
        <source>TXT_RID_SOFTKEY_SELECT</source>
        <comment>Select</comment>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_CANCEL</source>
        <comment>Cancel</comment>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>ZSoftKey</name>
    <message>
        <source>TXT_RID_LABEL_LEFT_SOFTKEY</source>
        <comment>Left softkey</comment>
        <translation>Tasto sinistro</translation>
    </message>
    <message>
        <source>TXT_RID_LABEL_RIGHT_SOFTKEY</source>
        <comment>Right softkey</comment>
        <translation>Tasto destro</translation>
    </message>
</context>
<context>
    <name>handset</name>
    <message>
        <source>The call log is damaged. The next start begins a new one, with what can be read of it.</source>
        <translation>Il registro delle chiamate è danneggiato. Il prossimo avvio ne comincia uno nuovo, con ciò che se ne può leggere.</translation>
    </message>
    <message>
        <source>The call log is damaged, and that cannot be noted for the next start.</source>
        <translation>Il registro delle chiamate è danneggiato, e non lo si può annotare per il prossimo avvio.</translation>
    </message>
    <message>
        <source>Copying the call log</source>
        <translation>Copia del registro delle chiamate</translation>
    </message>
    <message>
        <source>Reading the damaged call log once more</source>
        <translation>Nuova lettura del registro danneggiato</translation>
    </message>
    <message>
        <source>Writing the new call log to the disk</source>
        <translation>Scrittura del nuovo registro sul disco</translation>
    </message>
    <message>
        <source>Checking the new call log</source>
        <translation>Verifica del nuovo registro</translation>
    </message>
    <message>
        <source>Looking for the end of the damage</source>
        <translation>Ricerca della fine del danno</translation>
    </message>
    <message>
        <source>Counting what was read</source>
        <translation>Conteggio di ciò che è stato letto</translation>
    </message>
    <message>
        <source>Bringing the call log up to date</source>
        <translation>Aggiornamento del registro delle chiamate</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>appartiene a un altro utente</translation>
    </message>
    <message>
        <source>may be written by other users</source>
        <translation>può essere scritta da altri utenti</translation>
    </message>
    <message>
        <source>The state directory "%1" %2, who can change what is kept in it.</source>
        <translation>La cartella di stato "%1" %2, che possono cambiare ciò che contiene.</translation>
    </message>
    <message>
        <source>The state directory "%1" lies in one that may be written by other users, who can put another in its place.</source>
        <translation>La cartella di stato "%1" si trova in una che altri utenti possono scrivere, e questi possono mettere un'altra al suo posto.</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>In attesa di %1</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>un altro processo</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>non riuscito</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>in inizializzazione</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloccato</translation>
    </message>
    <message>
        <source>locked: PIN</source>
        <translation>bloccato: PIN</translation>
    </message>
    <message>
        <source>locked: PIN2</source>
        <translation>bloccato: PIN2</translation>
    </message>
    <message>
        <source>locked: PUK</source>
        <translation>bloccato: PUK</translation>
    </message>
    <message>
        <source>locked: PUK2</source>
        <translation>bloccato: PUK2</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>disattivato</translation>
    </message>
    <message>
        <source>disabling</source>
        <translation>in disattivazione</translation>
    </message>
    <message>
        <source>enabling</source>
        <translation>in attivazione</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>attivato</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>in ricerca di una rete</translation>
    </message>
    <message>
        <source>registered</source>
        <translation>registrato</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>in disconnessione</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>in connessione</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connesso</translation>
    </message>
    <message>
        <source>unregistered</source>
        <translation>non registrato</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>rifiutato dalla rete</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>in roaming</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>non in linea</translation>
    </message>
    <message>
        <source>%1 is not running</source>
        <translation>%1 non è in esecuzione</translation>
    </message>
    <message>
        <source>asking %1</source>
        <translation>si interroga %1</translation>
    </message>
    <message>
        <source>no modem</source>
        <translation>nessun modem</translation>
    </message>
    <message>
        <source>%1 does not let this user talk to it</source>
        <translation>%1 non permette a questo utente di parlargli</translation>
    </message>
    <message>
        <source>%1 does not tell its modems</source>
        <translation>%1 non indica i suoi modem</translation>
    </message>
    <message>
        <source>There is no system bus: %1</source>
        <translation>Non c’è un bus di sistema: %1</translation>
    </message>
    <message>
        <source>ModemManager does not answer</source>
        <translation>ModemManager non risponde</translation>
    </message>
    <message>
        <source>The call cannot be made</source>
        <translation>Impossibile effettuare la chiamata</translation>
    </message>
    <message>
        <source>The call cannot be made: %1.</source>
        <translation>Impossibile effettuare la chiamata: %1.</translation>
    </message>
    <message>
        <source>The call cannot be answered</source>
        <translation>Impossibile rispondere alla chiamata</translation>
    </message>
    <message>
        <source>The call cannot be ended</source>
        <translation>Impossibile terminare la chiamata</translation>
    </message>
    <message>
        <source>it is busy</source>
        <translation>è occupato</translation>
    </message>
    <message>
        <source>it is not ready for that</source>
        <translation>non è pronto per questo</translation>
    </message>
    <message>
        <source>the modem cannot do that</source>
        <translation>il modem non può farlo</translation>
    </message>
    <message>
        <source>that is no number to call</source>
        <translation>non è un numero da chiamare</translation>
    </message>
    <message>
        <source>there is no network</source>
        <translation>non c'è rete</translation>
    </message>
    <message>
        <source>this user may not</source>
        <translation>questo utente non può</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>non risponde</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>non è riuscito (%1)</translation>
    </message>
    <message>
        <source>The network has not put the call through.</source>
        <translation>La rete non ha inoltrato la chiamata.</translation>
    </message>
    <message>
        <source>The telephone does not dial: %1.</source>
        <translation>Il telefono non compone: %1.</translation>
    </message>
    <message>
        <source>The telephone does not take the call: %1.</source>
        <translation>Il telefono non risponde alla chiamata: %1.</translation>
    </message>
    <message>
        <source>The telephone does not end the call: %1.</source>
        <translation>Il telefono non termina la chiamata: %1.</translation>
    </message>
</context>
<context>
    <name>host::AccountSection</name>
    <message>
        <source>Nothing has been paid in.</source>
        <translation>Non è stato versato nulla.</translation>
    </message>
    <message>
        <source>Credit: %1</source>
        <translation>Credito: %1</translation>
    </message>
    <message>
        <source>Last deposit: %1, good until %2</source>
        <translation>Ultima ricarica: %1, valida fino al %2</translation>
    </message>
    <message>
        <source>Prepaid account</source>
        <translation>Conto prepagato</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Credito</translation>
    </message>
    <message>
        <source>Last deposit</source>
        <translation>Ultima ricarica</translation>
    </message>
    <message>
        <source>Amount to pay in</source>
        <translation>Importo da versare</translation>
    </message>
    <message>
        <source>In units or in the currency, as costs are</source>
        <translation>In unità o nella valuta, come i costi</translation>
    </message>
    <message>
        <source>Why nothing was paid in</source>
        <translation>Perché non è stato versato nulla</translation>
    </message>
    <message>
        <source>Good until</source>
        <translation>Valido fino al</translation>
    </message>
    <message>
        <source>Until when the deposit is good: year, month, day</source>
        <translation>Fino a quando vale la ricarica: anno, mese, giorno</translation>
    </message>
    <message>
        <source>&amp;Top up</source>
        <translation>&amp;Ricarica</translation>
    </message>
    <message>
        <source>Pays the amount in</source>
        <translation>Versa l'importo</translation>
    </message>
    <message>
        <source>until</source>
        <translation>fino al</translation>
    </message>
</context>
<context>
    <name>host::CallNotice</name>
    <message>
        <source>Dialing</source>
        <translation>Composizione</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Chiamata in arrivo</translation>
    </message>
    <message>
        <source>Call waiting</source>
        <translation>Chiamata in attesa</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Trattenuta</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connessa</translation>
    </message>
    <message>
        <source>Number withheld</source>
        <translation>Numero nascosto</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chiamata</translation>
    </message>
    <message>
        <source>Number to dial</source>
        <translation>Numero da comporre</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Chiamata terminata</translation>
    </message>
    <message>
        <source>Not answered</source>
        <translation>Senza risposta</translation>
    </message>
</context>
<context>
    <name>host::CallsModel</name>
    <message>
        <source>Dialed, not answered</source>
        <translation>Effettuata, senza risposta</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Persa</translation>
    </message>
    <message>
        <source>Data call</source>
        <translation>Chiamata dati</translation>
    </message>
    <message>
        <source>Dialed</source>
        <translation>Effettuata</translation>
    </message>
    <message>
        <source>Answered</source>
        <translation>Ricevuta</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>numero nascosto</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Number and time</source>
        <translation>Numero e ora</translation>
    </message>
    <message>
        <source>Duration and cost</source>
        <translation>Durata e costo</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unità</translation>
    </message>
</context>
<context>
    <name>host::CostSection</name>
    <message>
        <source>not available</source>
        <translation>non disponibile</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unità</translation>
    </message>
    <message>
        <source>Costs</source>
        <translation>Costi</translation>
    </message>
    <message>
        <source>Costs are in</source>
        <translation>Costi in</translation>
    </message>
    <message>
        <source>the currency</source>
        <translation>la valuta</translation>
    </message>
    <message>
        <source>Price of a unit</source>
        <translation>Prezzo dell'unità</translation>
    </message>
    <message>
        <source>The price of a unit, as 0.23</source>
        <translation>Il prezzo di un'unità, ad esempio 0.23</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Valuta</translation>
    </message>
    <message>
        <source>The currency's code, at most three characters</source>
        <translation>Il codice della valuta, al massimo tre caratteri</translation>
    </message>
    <message>
        <source>Credit limit</source>
        <translation>Limite di credito</translation>
    </message>
    <message>
        <source>Cost of the call</source>
        <translation>Costo della chiamata</translation>
    </message>
    <message>
        <source>Why the costs were not set</source>
        <translation>Perché i costi non sono stati impostati</translation>
    </message>
    <message>
        <source>Set &amp;price</source>
        <translation>Imposta &amp;prezzo</translation>
    </message>
    <message>
        <source>Writes price and currency to the SIM card</source>
        <translation>Scrive prezzo e valuta sulla carta SIM</translation>
    </message>
    <message>
        <source>This call</source>
        <translation>Questa chiamata</translation>
    </message>
    <message>
        <source>Last call</source>
        <translation>Ultima chiamata</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivato</translation>
    </message>
    <message>
        <source>%1; units left: %2</source>
        <translation>%1; unità rimaste: %2</translation>
    </message>
    <message>
        <source>The modem's advice of charge says what calls cost.</source>
        <translation>L'avviso di addebito del modem dice quanto costano le chiamate.</translation>
    </message>
    <message>
        <source>This telephone charges no calls by itself.</source>
        <translation>Questo telefono non addebita da sé alcuna chiamata.</translation>
    </message>
</context>
<context>
    <name>host::Display</name>
    <message>
        <source>Display of the phone</source>
        <translation>Display del telefono</translation>
    </message>
</context>
<context>
    <name>host::FailuresSection</name>
    <message>
        <source>Failures</source>
        <translation>Guasti</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>Let it &amp;fail</source>
        <translation>Fai &amp;fallire</translation>
    </message>
    <message>
        <source>From now on the operation only answers the code</source>
        <translation>D'ora in poi l'operazione risponde solo con il codice</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Togli</translation>
    </message>
    <message>
        <source>The chosen operation works again</source>
        <translation>L'operazione scelta funziona di nuovo</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>Togli &amp;tutte</translation>
    </message>
    <message>
        <source>Every operation works again</source>
        <translation>Tutte le operazioni funzionano di nuovo</translation>
    </message>
    <message>
        <source>What the phone's libraries ask of the telephone</source>
        <translation>Che cosa le librerie del telefono gli chiedono</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>What the operation answers: a name, or a number; not Success</source>
        <translation>Che cosa risponde l'operazione: un nome o un numero; non Success</translation>
    </message>
    <message>
        <source>Operations that fail</source>
        <translation>Operazioni che falliscono</translation>
    </message>
    <message>
        <source>Failing now</source>
        <translation>Ora fallisce</translation>
    </message>
</context>
<context>
    <name>host::FiguresSection</name>
    <message>
        <source>Last call</source>
        <translation>Ultima chiamata</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Chiamate effettuate</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Chiamate ricevute</translation>
    </message>
    <message>
        <source>Data calls</source>
        <translation>Chiamate dati</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>Tutte le chiamate</translation>
    </message>
    <message>
        <source>Lifetime calls</source>
        <translation>Totale chiamate</translation>
    </message>
    <message>
        <source>Call timers</source>
        <translation>Contatori delle chiamate</translation>
    </message>
    <message>
        <source>Add a &amp;ready-made history</source>
        <translation>Aggiungi una &amp;cronologia pronta</translation>
    </message>
    <message>
        <source>Adds a dozen calls of the last days to the call log</source>
        <translation>Aggiunge al registro una dozzina di chiamate degli ultimi giorni</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>non disponibile</translation>
    </message>
</context>
<context>
    <name>host::Keypad</name>
    <message>
        <source>Call</source>
        <translation>Chiama</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>Riaggancia</translation>
    </message>
    <message>
        <source>Left softkey</source>
        <translation>Tasto sinistro</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Right softkey</source>
        <translation>Tasto destro</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Asterisco</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Cancelletto</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Tastierino</translation>
    </message>
</context>
<context>
    <name>host::Line</name>
    <message>
        <source>Dialing</source>
        <translation>Composizione</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Squilla</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>On hold %1</source>
        <translation>Trattenuta %1</translation>
    </message>
    <message>
        <source>Connected %1</source>
        <translation>Connessa %1</translation>
    </message>
    <message>
        <source>No modem</source>
        <translation>Nessun modem</translation>
    </message>
    <message>
        <source>number withheld</source>
        <translation>numero nascosto</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Libera</translation>
    </message>
    <message>
        <source>The credit limit is reached in %1 s.</source>
        <translation>Il limite di credito sarà raggiunto tra %1 s.</translation>
    </message>
    <message>
        <source>The credit is used up in %1 s.</source>
        <translation>Il credito sarà esaurito tra %1 s.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit limit is reached.</source>
        <translation>Il telefono ha terminato la chiamata: il limite di credito è raggiunto.</translation>
    </message>
    <message>
        <source>The telephone has ended the call: the credit is used up.</source>
        <translation>Il telefono ha terminato la chiamata: il credito è esaurito.</translation>
    </message>
    <message>
        <source>This telephone cannot be driven from here.</source>
        <translation>Questo telefono non si può comandare da qui.</translation>
    </message>
    <message>
        <source>data call</source>
        <translation>chiamata dati</translation>
    </message>
    <message>
        <source>voice call</source>
        <translation>chiamata vocale</translation>
    </message>
    <message>
        <source>The call log cannot be written. The end of a call or a packet-data session is kept in memory, and written as soon as it can be.</source>
        <translation>Impossibile scrivere nel registro delle chiamate. La fine di una chiamata o di una sessione dati è tenuta in memoria e sarà scritta appena possibile.</translation>
    </message>
</context>
<context>
    <name>host::LineSection</name>
    <message>
        <source>&amp;Dial</source>
        <translation>&amp;Chiama</translation>
    </message>
    <message>
        <source>Calls the number from this phone</source>
        <translation>Chiama il numero da questo telefono</translation>
    </message>
    <message>
        <source>&amp;Other side answers</source>
        <translation>L'&amp;altro risponde</translation>
    </message>
    <message>
        <source>The called side answers; the call is connected</source>
        <translation>L'altro risponde; la chiamata è connessa</translation>
    </message>
    <message>
        <source>Dial d&amp;ata call</source>
        <translation>Chiamata &amp;dati</translation>
    </message>
    <message>
        <source>Sets up a circuit-switched data call to the number</source>
        <translation>Stabilisce una chiamata dati a commutazione di circuito con il numero</translation>
    </message>
    <message>
        <source>&amp;Incoming call</source>
        <translation>Chiamata in &amp;arrivo</translation>
    </message>
    <message>
        <source>The number calls this phone; empty for a withheld number</source>
        <translation>Il numero chiama questo telefono; vuoto per un numero nascosto</translation>
    </message>
    <message>
        <source>&amp;Hang up</source>
        <translation>Ria&amp;ggancia</translation>
    </message>
    <message>
        <source>Ends the call on the line, whatever its state</source>
        <translation>Termina la chiamata sulla linea, in qualunque stato sia</translation>
    </message>
    <message>
        <source>A&amp;nswer</source>
        <translation>Ri&amp;spondi</translation>
    </message>
    <message>
        <source>Answers the incoming call; the call is connected</source>
        <translation>Risponde alla chiamata in arrivo; la chiamata è connessa</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>State of the line</source>
        <translation>Stato della linea</translation>
    </message>
    <message>
        <source>End of charging</source>
        <translation>Fine dell'addebito</translation>
    </message>
    <message>
        <source>What is not in the call log yet</source>
        <translation>Che cosa non è ancora nel registro</translation>
    </message>
    <message>
        <source>What the telephone has told</source>
        <translation>Che cosa ha comunicato il telefono</translation>
    </message>
    <message>
        <source>Digits, +, * and #</source>
        <translation>Cifre, +, * e #</translation>
    </message>
    <message>
        <source>Clear the number</source>
        <translation>Cancella il numero</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>N&amp;umero</translation>
    </message>
</context>
<context>
    <name>host::MenuScreen</name>
    <message>
        <source>TXT_RID_HEADER_RECENT_CALLS</source>
        <comment>Recent Calls</comment>
        <translation>Chiamate recenti</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_OPEN</source>
        <comment>Open</comment>
        <translation>Apri</translation>
    </message>
    <message>
        <source>TXT_RID_SOFTKEY_EXIT</source>
        <comment>Exit</comment>
        <translation>Esci</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_TIMES</source>
        <comment>Call Times</comment>
        <translation>Durata chiamate</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_CALL_COSTS</source>
        <comment>Call Costs</comment>
        <translation>Costo chiamate</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_TIMES</source>
        <comment>Data Times</comment>
        <translation>Durata dati</translation>
    </message>
    <message>
        <source>TXT_RID_HEADER_DATA_VOLUMES</source>
        <comment>Data Volumes</comment>
        <translation>Volume dati</translation>
    </message>
</context>
<context>
    <name>host::ModemSection</name>
    <message>
        <source>call times</source>
        <translation>durata delle chiamate</translation>
    </message>
    <message>
        <source>all calls</source>
        <translation>tutte le chiamate</translation>
    </message>
    <message>
        <source>data calls</source>
        <translation>chiamate dati</translation>
    </message>
    <message>
        <source>data sessions</source>
        <translation>sessioni dati</translation>
    </message>
    <message>
        <source>advice of charge</source>
        <translation>avviso di addebito</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>credito</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connesso</translation>
    </message>
    <message>
        <source>, %1 B sent, %2 B received</source>
        <translation>, %1 B inviati, %2 B ricevuti</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connesso</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dati</translation>
    </message>
    <message>
        <source>Charged by</source>
        <translation>Addebitato da</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <translation>Registrato da</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>%1, through %2</source>
        <translation>%1, tramite %2</translation>
    </message>
    <message>
        <source>the modem's advice of charge</source>
        <translation>l'avviso di addebito del modem</translation>
    </message>
    <message>
        <source>the tariff of this telephone</source>
        <translation>la tariffa di questo telefono</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>questa finestra</translation>
    </message>
    <message>
        <source>another process</source>
        <translation>un altro processo</translation>
    </message>
    <message>
        <source>nobody: the call log cannot be written</source>
        <translation>nessuno: impossibile scrivere nel registro delle chiamate</translation>
    </message>
</context>
<context>
    <name>host::OpeningProgress</name>
    <message>
        <source>Opening the telephone</source>
        <translation>Apertura del telefono</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Che cosa si sta facendo</translation>
    </message>
    <message>
        <source>How far it is</source>
        <translation>A che punto è</translation>
    </message>
</context>
<context>
    <name>host::PacketSection</name>
    <message>
        <source>%1 B sent, %2 B received</source>
        <translation>%1 B inviati, %2 B ricevuti</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuota</translation>
    </message>
    <message>
        <source>%1 (id %2), %3
%4</source>
        <translation>%1 (id %2), %3
%4</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>non disponibile</translation>
    </message>
    <message>
        <source>%1, %2 B
%3</source>
        <translation>%1, %2 B
%3</translation>
    </message>
    <message>
        <source>Packet data</source>
        <translation>Dati a pacchetto</translation>
    </message>
    <message>
        <source>Access point name</source>
        <translation>Nome del punto di accesso</translation>
    </message>
    <message>
        <source>1 to 101 characters</source>
        <translation>Da 1 a 101 caratteri</translation>
    </message>
    <message>
        <source>Bytes sent each second</source>
        <translation>Byte inviati ogni secondo</translation>
    </message>
    <message>
        <source>Bytes received each second</source>
        <translation>Byte ricevuti ogni secondo</translation>
    </message>
    <message>
        <source>&amp;Start session</source>
        <translation>&amp;Avvia sessione</translation>
    </message>
    <message>
        <source>Begins a session, which counts bytes and time</source>
        <translation>Comincia una sessione, che conta byte e tempo</translation>
    </message>
    <message>
        <source>Sto&amp;p session</source>
        <translation>&amp;Ferma sessione</translation>
    </message>
    <message>
        <source>Ends the session</source>
        <translation>Termina la sessione</translation>
    </message>
    <message>
        <source>Why the session was not changed</source>
        <translation>Perché la sessione non è stata cambiata</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Tutte le sessioni</translation>
    </message>
    <message>
        <source>Bytes sent a second</source>
        <translation>Byte inviati al secondo</translation>
    </message>
    <message>
        <source>Bytes received a second</source>
        <translation>Byte ricevuti al secondo</translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation>Sessione %1</translation>
    </message>
    <message>
        <source>Session %1:</source>
        <translation>Sessione %1:</translation>
    </message>
    <message>
        <source>All sessions:</source>
        <translation>Tutte le sessioni:</translation>
    </message>
    <message>
        <source>S&amp;end update</source>
        <translation>&amp;Invia aggiornamento</translation>
    </message>
    <message>
        <source>Tells the screens that the figures have changed</source>
        <translation>Avvisa le schermate che i valori sono cambiati</translation>
    </message>
</context>
<context>
    <name>host::Panel</name>
    <message>
        <source>Sides of the telephone</source>
        <translation>Lati del telefono</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Chiamate</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Addebito</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dati</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recenti</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Guasti</translation>
    </message>
</context>
<context>
    <name>host::PhoneWindow</name>
    <message>
        <source>Recent Calls</source>
        <translation>Chiamate recenti</translation>
    </message>
</context>
<context>
    <name>host::Pin2Section</name>
    <message>
        <source>Blocked for good.</source>
        <translation>Bloccato per sempre.</translation>
    </message>
    <message>
        <source>Blocked: only PUK2 helps.</source>
        <translation>Bloccato: serve il PUK2.</translation>
    </message>
    <message>
        <source>Off: nobody is asked for it.</source>
        <translation>Disattivato: non viene chiesto a nessuno.</translation>
    </message>
    <message>
        <source>On, and entered.</source>
        <translation>Attivo, e inserito.</translation>
    </message>
    <message>
        <source>On, not entered.</source>
        <translation>Attivo, non inserito.</translation>
    </message>
    <message>
        <source>Tries left: PIN2 %1, PUK2 %2.</source>
        <translation>Tentativi rimasti: PIN2 %1, PUK2 %2.</translation>
    </message>
    <message>
        <source>PIN2</source>
        <translation>PIN2</translation>
    </message>
    <message>
        <source>State of PIN2</source>
        <translation>Stato del PIN2</translation>
    </message>
    <message>
        <source>PIN2 is on</source>
        <translation>PIN2 attivo</translation>
    </message>
    <message>
        <source>Four to eight digits</source>
        <translation>Da quattro a otto cifre</translation>
    </message>
    <message>
        <source>PUK2</source>
        <translation>PUK2</translation>
    </message>
    <message>
        <source>Eight digits</source>
        <translation>Otto cifre</translation>
    </message>
    <message>
        <source>New PIN2</source>
        <translation>Nuovo PIN2</translation>
    </message>
    <message>
        <source>What came of it</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>The phone asks for it where a file is written with PIN2</source>
        <translation>Il telefono lo chiede quando un file si scrive con il PIN2</translation>
    </message>
    <message>
        <source>&amp;Switch off and on</source>
        <translation>&amp;Spegni e accendi</translation>
    </message>
    <message>
        <source>Forgets that PIN2 has been entered</source>
        <translation>Dimentica che il PIN2 è stato inserito</translation>
    </message>
    <message>
        <source>&amp;Enter</source>
        <translation>&amp;Inserisci</translation>
    </message>
    <message>
        <source>Presents PIN2 to the card, as the phone does; a wrong one costs a try</source>
        <translation>Presenta il PIN2 alla carta, come fa il telefono; uno errato costa un tentativo</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>S&amp;blocca</translation>
    </message>
    <message>
        <source>Sets the new PIN2 and gives all tries back</source>
        <translation>Imposta il nuovo PIN2 e restituisce tutti i tentativi</translation>
    </message>
    <message>
        <source>PIN2 has been entered.</source>
        <translation>Il PIN2 è stato inserito.</translation>
    </message>
    <message>
        <source>Wrong PIN2.</source>
        <translation>PIN2 errato.</translation>
    </message>
    <message>
        <source>The new PIN2 counts.</source>
        <translation>Vale il nuovo PIN2.</translation>
    </message>
    <message>
        <source>Wrong PUK2.</source>
        <translation>PUK2 errato.</translation>
    </message>
</context>
<context>
    <name>host::RecentCallsSection</name>
    <message>
        <source>Recent calls</source>
        <translation>Chiamate recenti</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Deletes the chosen call; the totals stay</source>
        <translation>Elimina la chiamata scelta; i totali restano</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>Elimina &amp;tutte ...</translation>
    </message>
    <message>
        <source>Deletes every call that is over; the totals stay</source>
        <translation>Elimina tutte le chiamate terminate; i totali restano</translation>
    </message>
    <message>
        <source>Why the calls were not read or deleted</source>
        <translation>Perché le chiamate non sono state lette o eliminate</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Impossibile leggere il registro delle chiamate.</translation>
    </message>
    <message>
        <source>Delete all calls that are over? The totals stay as they are.</source>
        <translation>Eliminare tutte le chiamate terminate? I totali restano come sono.</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>Elimina &amp;tutte</translation>
    </message>
</context>
<context>
    <name>host::SimFilesSection</name>
    <message>
        <source>%1  =  %2 units</source>
        <translation>%1  =  %2 unità</translation>
    </message>
    <message>
        <source>  (newest)</source>
        <translation>  (il più recente)</translation>
    </message>
    <message>
        <source>%1  =  no limit</source>
        <translation>%1  =  nessun limite</translation>
    </message>
    <message>
        <source>no currency</source>
        <translation>nessuna valuta</translation>
    </message>
    <message>
        <source>%1  =  %2, %3 a unit</source>
        <translation>%1  =  %2, %3 per unità</translation>
    </message>
    <message>
        <source>call meter</source>
        <translation>contatore</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>massimo</translation>
    </message>
    <message>
        <source>price</source>
        <translation>prezzo</translation>
    </message>
    <message>
        <source>freely</source>
        <translation>libera</translation>
    </message>
    <message>
        <source>with PIN2</source>
        <translation>con PIN2</translation>
    </message>
    <message>
        <source>never</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Files of the SIM card</source>
        <translation>File della carta SIM</translation>
    </message>
    <message>
        <source>Why the SIM card was not changed</source>
        <translation>Perché la carta SIM non è stata cambiata</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>scrittura: %1</translation>
    </message>
    <message>
        <source>Who may write %1</source>
        <translation>Chi può scrivere: %1</translation>
    </message>
</context>
<context>
    <name>host::StateSection</name>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>In memory; gone when the window closes.</source>
        <translation>In memoria; si perde alla chiusura della finestra.</translation>
    </message>
    <message>
        <source>Kept in %1</source>
        <translation>Conservato in %1</translation>
    </message>
    <message>
        <source>Where the state is kept</source>
        <translation>Dove è conservato lo stato</translation>
    </message>
    <message>
        <source>New telephone ...</source>
        <translation>Nuovo telefono ...</translation>
    </message>
    <message>
        <source>Begins with a new telephone, after a question</source>
        <translation>Comincia con un nuovo telefono, dopo una domanda</translation>
    </message>
    <message>
        <source>What there is now is kept in a file beside it.</source>
        <translation>Ciò che c'è ora resta in un file accanto.</translation>
    </message>
    <message>
        <source>What there is now is lost.</source>
        <translation>Ciò che c'è ora va perso.</translation>
    </message>
    <message>
        <source>Begin with a new telephone? Calls, figures, settings and the simulated SIM card begin anew; a call that is on ends.</source>
        <translation>Cominciare con un nuovo telefono? Chiamate, contatori, impostazioni e la scheda SIM simulata ricominciano da capo; una chiamata in corso termina.</translation>
    </message>
    <message>
        <source>New telephone</source>
        <translation>Nuovo telefono</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Ricomincia</translation>
    </message>
</context>
<context>
    <name>host::StatusText</name>
    <message>
        <source>the number is not one that can be dialed</source>
        <translation>il numero non si può comporre</translation>
    </message>
    <message>
        <source>the line is in another state</source>
        <translation>la linea è in un altro stato</translation>
    </message>
    <message>
        <source>not allowed now: nothing more may be charged</source>
        <translation>ora non consentito: non si può addebitare altro</translation>
    </message>
    <message>
        <source>an amount of at least one unit, and not more than the account holds</source>
        <translation>un importo di almeno un'unità, e non più di quanto contiene il conto</translation>
    </message>
    <message>
        <source>not possible now</source>
        <translation>ora non è possibile</translation>
    </message>
    <message>
        <source>not allowed</source>
        <translation>non consentito</translation>
    </message>
    <message>
        <source>no price, or a currency of more than three characters</source>
        <translation>nessun prezzo, o una valuta di più di tre caratteri</translation>
    </message>
    <message>
        <source>the SIM card refuses</source>
        <translation>la carta SIM rifiuta</translation>
    </message>
    <message>
        <source>an access point name has 1 to 101 Latin-1 characters</source>
        <translation>un punto di accesso ha da 1 a 101 caratteri Latin-1</translation>
    </message>
    <message>
        <source>a session is running, or none is</source>
        <translation>una sessione è in corso, o nessuna lo è</translation>
    </message>
    <message>
        <source>PUK2 has eight digits, a PIN2 four to eight</source>
        <translation>il PUK2 ha otto cifre, un PIN2 da quattro a otto</translation>
    </message>
    <message>
        <source>PUK2 is blocked, too</source>
        <translation>anche il PUK2 è bloccato</translation>
    </message>
    <message>
        <source>a PIN2 has four to eight digits</source>
        <translation>un PIN2 ha da quattro a otto cifre</translation>
    </message>
    <message>
        <source>PIN2 is blocked</source>
        <translation>il PIN2 è bloccato</translation>
    </message>
    <message>
        <source>the call is not kept any more</source>
        <translation>la chiamata non è più conservata</translation>
    </message>
    <message>
        <source>the call is still running</source>
        <translation>la chiamata è ancora in corso</translation>
    </message>
    <message>
        <source>there is no such rule</source>
        <translation>non c'è una tale regola</translation>
    </message>
    <message>
        <source>the network knows no such tariff</source>
        <translation>la rete non conosce una tale tariffa</translation>
    </message>
    <message>
        <source>the telephone cannot do this</source>
        <translation>il telefono non può farlo</translation>
    </message>
    <message>
        <source>the call log cannot be written</source>
        <translation>impossibile scrivere nel registro delle chiamate</translation>
    </message>
    <message>
        <source>another process records the calls</source>
        <translation>un altro processo registra le chiamate</translation>
    </message>
    <message>
        <source>Not done: %1.</source>
        <translation>Non eseguito: %1.</translation>
    </message>
    <message>
        <source>Not done: the telephone answers %1.</source>
        <translation>Non eseguito: il telefono risponde %1.</translation>
    </message>
    <message>
        <source>a value is out of range</source>
        <translation>un valore è fuori dai limiti</translation>
    </message>
    <message>
        <source>it is not possible now</source>
        <translation>ora non è possibile</translation>
    </message>
    <message>
        <source>the SIM or the network does not allow it</source>
        <translation>la SIM o la rete non lo consente</translation>
    </message>
</context>
<context>
    <name>host::TariffSection</name>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>for each</source>
        <translation>ogni</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>all'inizio</translation>
    </message>
    <message>
        <source>Dialed calls</source>
        <translation>Chiamate effettuate</translation>
    </message>
    <message>
        <source>Answered calls</source>
        <translation>Chiamate ricevute</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Tariff</source>
        <translation>Tariffa</translation>
    </message>
    <message>
        <source>Why the tariff was not set</source>
        <translation>Perché la tariffa non è stata impostata</translation>
    </message>
    <message>
        <source>%1 are free</source>
        <translation>%1: gratis</translation>
    </message>
    <message>
        <source>Nothing is charged for them</source>
        <translation>Per esse non si addebita nulla</translation>
    </message>
    <message>
        <source>Units for each interval</source>
        <translation>Unità per intervallo</translation>
    </message>
    <message>
        <source>Interval in seconds</source>
        <translation>Intervallo in secondi</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Units when the call is connected</source>
        <translation>Unità alla connessione della chiamata</translation>
    </message>
</context>
<context>
    <name>host::WaitNotice</name>
    <message>
        <source>Please wait ...</source>
        <translation>Attendere prego ...</translation>
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
Codici di uscita:
  0  un segnale ha terminato il programma e ciò che era in corso è scritto
  2  la riga di comando è errata
  3  non c'è un bus di sistema, o il telefono non può essere aperto
</translation>
    </message>
    <message>
        <source>See kavcallrecorder --help.</source>
        <translation>Vedere kavcallrecorder --help.</translation>
    </message>
    <message>
        <source>Records the calls and data connections of a modem while no window is open.</source>
        <translation>Registra le chiamate e le connessioni dati di un modem quando nessuna finestra è aperta.</translation>
    </message>
    <message>
        <source>The telephone: %1, the path of a library that has one, or auto: the first over which a modem is there, now or later. Default: auto.</source>
        <translation>Il telefono: %1, il percorso di una libreria che ne contiene uno, oppure auto: il primo tramite cui c'è un modem, ora o più tardi. Predefinito: auto.</translation>
    </message>
    <message>
        <source>Record in DIR. Default: %1</source>
        <translation>Registrare in DIR. Predefinito: %1</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted when recording begins and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Conservare le chiamate degli ultimi DAYS giorni, da 0 a 100000; le più vecchie vengono eliminate all'inizio della registrazione e una volta al giorno, e restano nei totali. Predefinito: si conservano tutte.</translation>
    </message>
    <message>
        <source>%1; it is looked for.</source>
        <translation>%1; la ricerca continua.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>L'opzione «keep-calls» richiede un numero di giorni, da 0 a %1.</translation>
    </message>
    <message>
        <source>There is a value missing or too many.</source>
        <translation>Manca un valore o ce n'è uno di troppo.</translation>
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
        <translation>Mostra i contatori del telefono: durata e costo delle chiamate, durata e byte dei dati a pacchetto.

Comandi:
  figures [NAME ...]   tutti i valori, o questi; è il predefinito
  settings             avviso di addebito: come si contano i costi, il limite di credito, il prezzo
  calls                le chiamate conservate
  sessions             le sessioni dati conservate
  totals               ciò che è conservato, per mese o secondo --by e --cycle-day
  reset NAME           azzera: %1
  delete ID|all        elimina una chiamata, o tutte quelle terminate; i totali restano
  export FILE          scrive tutto lo stato come JSON; «-» è lo standard output
  import FILE          crea un nuovo stato da un file del genere

Valori: %2.</translation>
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
Codici di uscita:
  0  tutto è andato bene
  1  il telefono rifiuta, o il registro delle chiamate non può essere letto o scritto
  2  la riga di comando è errata, o è stata chiesta una modifica senza --yes
  3  non c'è uno stato, o il telefono non può essere aperto
  4  un valore richiesto non è disponibile
  5  il limite di credito è raggiunto, o il credito è esaurito
  6  il valore di --alert è raggiunto
  7  un file, o l'output, non può essere letto o scritto, o contiene un errore
</translation>
    </message>
    <message>
        <source>The telephone's state is in DIR. Default: %1</source>
        <translation>Lo stato del telefono è in DIR. Predefinito: %1</translation>
    </message>
    <message>
        <source>The telephone: %1, or the path of a library that has one. Default: simulated.</source>
        <translation>Il telefono: %1, o il percorso di una libreria che ne contiene uno. Predefinito: simulated.</translation>
    </message>
    <message>
        <source>Speak this language: %1. Default: the locale's. JSON and CSV are the same in each.</source>
        <translation>Parlare questa lingua: %1. Predefinito: quella della localizzazione. JSON e CSV sono uguali in tutte.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Mostrare JSON.</translation>
    </message>
    <message>
        <source>Print comma-separated values.</source>
        <translation>Mostrare valori separati da virgole.</translation>
    </message>
    <message>
        <source>Reset or delete indeed; nothing is asked.</source>
        <translation>Azzerare o eliminare davvero; non viene chiesto nulla.</translation>
    </message>
    <message>
        <source>Print anew whenever something changes, until a signal comes.</source>
        <translation>Mostrare di nuovo a ogni cambiamento, finché non arriva un segnale.</translation>
    </message>
    <message>
        <source>Totals by day, month or cycle.</source>
        <translation>Totali per giorno, mese o ciclo (day, month, cycle).</translation>
    </message>
    <message>
        <source>The billing cycle begins on day N, 1 to 28; totals by cycle.</source>
        <translation>Il ciclo di fatturazione inizia il giorno N, da 1 a 28; totali per ciclo.</translation>
    </message>
    <message>
        <source>With delete all: keep the calls of the last DAYS days.</source>
        <translation>Con delete all: conservare le chiamate degli ultimi DAYS giorni.</translation>
    </message>
    <message>
        <source>COST N, TIME N or BYTES N: exit code 6 where all calls have cost N or more, lasted N seconds or more, or N bytes or more have gone both ways.</source>
        <translation>COST N, TIME N o BYTES N: codice di uscita 6 se tutte le chiamate sono costate N o più, o durate N secondi o più, o se N byte o più sono passati nei due sensi.</translation>
    </message>
    <message>
        <source>What to do.</source>
        <translation>Che cosa fare.</translation>
    </message>
    <message>
        <source>Option 'alert' wants COST, TIME or BYTES, and a number.</source>
        <translation>L'opzione «alert» richiede COST, TIME o BYTES, e un numero.</translation>
    </message>
    <message>
        <source>Option 'by' wants day, month or cycle.</source>
        <translation>L'opzione «by» richiede day, month o cycle.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' wants a day from 1 to 28.</source>
        <translation>L'opzione «cycle-day» richiede un giorno da 1 a 28.</translation>
    </message>
    <message>
        <source>Option 'cycle-day' goes with --by cycle.</source>
        <translation>L'opzione «cycle-day» va con --by cycle.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days.</source>
        <translation>L'opzione «keep-calls» richiede un numero di giorni.</translation>
    </message>
    <message>
        <source>Option 'keep-calls' goes with delete all.</source>
        <translation>L'opzione «keep-calls» va con delete all.</translation>
    </message>
    <message>
        <source>There is no command '%1'.</source>
        <translation>Il comando «%1» non esiste.</translation>
    </message>
    <message>
        <source>The command '%1' has a word missing or too many.</source>
        <translation>Al comando «%1» manca una parola o ce n'è una di troppo.</translation>
    </message>
    <message>
        <source>There is no '%1' to show or to reset.</source>
        <translation>Non c'è alcun «%1» da mostrare o da azzerare.</translation>
    </message>
    <message>
        <source>Options 'watch' and 'alert' go with figures.</source>
        <translation>Le opzioni «watch» e «alert» vanno con figures.</translation>
    </message>
    <message>
        <source>Nothing was changed: '%1' wants --yes.</source>
        <translation>Nulla è stato modificato: «%1» richiede --yes.</translation>
    </message>
    <message>
        <source>Options 'state' and 'backend' want a value.</source>
        <translation>Le opzioni «state» e «backend» richiedono un valore.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Lingua sconosciuta «%1»; ci sono: %2.</translation>
    </message>
    <message>
        <source>Options 'json' and 'csv' do not go together.</source>
        <translation>Le opzioni «json» e «csv» non vanno insieme.</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unità</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>valuta</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attivo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>non attivo</translation>
    </message>
    <message>
        <source>The output cannot be written.</source>
        <translation>L'output non può essere scritto.</translation>
    </message>
    <message>
        <source>There is no state in "%1".</source>
        <translation>Non c'è uno stato in «%1».</translation>
    </message>
    <message>
        <source>The figure of the alert is not available.</source>
        <translation>Il valore dell'avviso non è disponibile.</translation>
    </message>
    <message>
        <source>The call log cannot be read.</source>
        <translation>Il registro delle chiamate non può essere letto.</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 %2: %3.</source>
        <translation>Nulla è stato modificato: %1 %2: %3.</translation>
    </message>
    <message>
        <source>delete wants the id of a call, or all.</source>
        <translation>delete richiede l'identificativo di una chiamata, o all.</translation>
    </message>
    <message>
        <source>See kavmeter --help.</source>
        <translation>Vedere kavmeter --help.</translation>
    </message>
    <message>
        <source>running</source>
        <translation>in corso</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>terminata</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connessa</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrotta</translation>
    </message>
    <message>
        <source>data</source>
        <translation>dati</translation>
    </message>
    <message>
        <source>voice</source>
        <translation>voce</translation>
    </message>
    <message>
        <source>dialed</source>
        <translation>effettuata</translation>
    </message>
    <message>
        <source>answered</source>
        <translation>ricevuta</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>non disponibile</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>non è un numero intero</translation>
    </message>
    <message>
        <source>is no text</source>
        <translation>non è un testo</translation>
    </message>
    <message>
        <source>has no pairs of hexadecimal digits</source>
        <translation>non è fatto di coppie di cifre esadecimali</translation>
    </message>
    <message>
        <source>%1.%2 is missing</source>
        <translation>manca %1.%2</translation>
    </message>
    <message>
        <source>%1.%2 is not known</source>
        <translation>%1.%2 non è noto</translation>
    </message>
    <message>
        <source>kept[%1].content cannot be read</source>
        <translation>kept[%1].content non può essere letto</translation>
    </message>
    <message>
        <source>format is not "%1"</source>
        <translation>format non è «%1»</translation>
    </message>
    <message>
        <source>version is not %1</source>
        <translation>version non è %1</translation>
    </message>
    <message>
        <source>%1 is no list</source>
        <translation>%1 non è un elenco</translation>
    </message>
    <message>
        <source>%1 is no row</source>
        <translation>%1 non è una riga</translation>
    </message>
    <message>
        <source>%1[%2] is not possible</source>
        <translation>%1[%2] non è possibile</translation>
    </message>
    <message>
        <source>its totals contradict its rows</source>
        <translation>i suoi totali contraddicono le sue righe</translation>
    </message>
    <message>
        <source>"%1" cannot be made: %2.</source>
        <translation>«%1» non può essere creato: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be written: %2.</source>
        <translation>«%1» non può essere scritto: %2.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>«%1» non può essere letto: %2.</translation>
    </message>
    <message>
        <source>"%1", line %2: %3.</source>
        <translation>«%1», riga %2: %3.</translation>
    </message>
    <message>
        <source>"%1" is not empty: a state is imported into a new directory.</source>
        <translation>«%1» non è vuota: uno stato si importa in una nuova cartella.</translation>
    </message>
</context>
<context>
    <name>kavrecentcalls</name>
    <message>
        <source>Option '%1' of Qt does not go with option 'tour'.</source>
        <translation>L'opzione «%1» di Qt non va con l'opzione «tour».</translation>
    </message>
    <message>
        <source>See kavrecentcalls --help.</source>
        <translation>Vedere kavrecentcalls --help.</translation>
    </message>
    <message>
        <source>There is no display to show the phone on; --tour DIR needs none.</source>
        <translation>Non c'è uno schermo su cui mostrare il telefono; --tour DIR non ne ha bisogno.</translation>
    </message>
    <message>
        <source>The display "%1" cannot be reached; --tour DIR needs none.</source>
        <translation>Lo schermo «%1» non è raggiungibile; --tour DIR non ne ha bisogno.</translation>
    </message>
    <message>
        <source>The trace file "%1" cannot be opened: %2.</source>
        <translation>Il file di traccia «%1» non può essere aperto: %2.</translation>
    </message>
    <message>
        <source>The script "%1" cannot be read: %2.</source>
        <translation>Lo script «%1» non può essere letto: %2.</translation>
    </message>
    <message>
        <source>The photograph "%1" cannot be written.</source>
        <translation>La fotografia «%1» non può essere scritta.</translation>
    </message>
    <message>
        <source>The plug-in gives no screen "%1".</source>
        <translation>Il plug-in non fornisce la schermata «%1».</translation>
    </message>
    <message>
        <source>A new telephone has begun.</source>
        <translation>È cominciato un nuovo telefono.</translation>
    </message>
    <message>
        <source>There is no new telephone, but the one before: %1.</source>
        <translation>Non c'è un nuovo telefono, ma quello di prima: %1.</translation>
    </message>
    <message>
        <source>A new telephone has begun. The one before is kept as "%1".</source>
        <translation>È cominciato un nuovo telefono. Quello di prima è conservato come "%1".</translation>
    </message>
    <message>
        <source>Shows the call meters of the phone: a phone with its display and keypad in a window, and beside it a panel
that makes calls on the simulated telephone.</source>
        <translation>Mostra i contatori delle chiamate del telefono: un telefono con display e tastiera in una finestra e, accanto, un
pannello che effettua chiamate sul telefono simulato.</translation>
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
Codici di uscita:
  0  tutto è andato bene
  1  un giro ha visto qualcosa di diverso da ciò che il suo script si aspetta
  2  la riga di comando è errata
  3  il telefono non può essere aperto
  4  il file di traccia non può essere aperto
  5  manca il plug-in o un'altra libreria, o una loro funzione, o il plug-in non fornisce alcuna schermata
  6  lo script del giro non può essere letto, o contiene un errore
  7  una fotografia, il testo di un giro o ciò che è stato chiesto non può essere scritto
  8  il catalogo di traduzione non può essere caricato
  9  non c'è uno schermo su cui mostrare la finestra, o non esiste quella piattaforma di Qt
 10  un segnale ha terminato un giro prima della fine
</translation>
    </message>
    <message>
        <source>Keep the telephone's state in DIR between starts; "none" keeps it in memory. Default: %1</source>
        <translation>Conservare lo stato del telefono in DIR tra un avvio e l'altro; «none» lo tiene in memoria. Predefinito: %1</translation>
    </message>
    <message>
        <source>Append the traces to FILE; "-" is standard output. Default: trace.log in the state directory; no trace where the state is in memory, and on a tour.</source>
        <translation>Aggiungere le tracce a FILE; «-» è lo standard output. Predefinito: trace.log nella cartella dello stato; nessuna traccia se lo stato è in memoria, e durante un giro.</translation>
    </message>
    <message>
        <source>The telephone behind: %2, the path of a library that has one, or auto: the first that has a modem, else simulated. Default: simulated.</source>
        <translation>Il telefono dietro: %2, il percorso di una libreria che ne contiene uno, oppure auto: il primo che ha un modem, altrimenti simulated. Predefinito: simulated.</translation>
    </message>
    <message>
        <source>Keep the calls of the last DAYS days, 0 to 100000; older ones are deleted at the start and once a day, and stay in the totals. Default: all are kept.</source>
        <translation>Conservare le chiamate degli ultimi DAYS giorni, da 0 a 100000; le più vecchie vengono eliminate all'avvio e una volta al giorno, e restano nei totali. Predefinito: si conservano tutte.</translation>
    </message>
    <message>
        <source>The plug-in library. Default: libkavcallmeter.so.1</source>
        <translation>La libreria del plug-in. Predefinito: libkavcallmeter.so.1</translation>
    </message>
    <message>
        <source>Open this screen at once: %3.</source>
        <translation>Aprire subito questa schermata: %3.</translation>
    </message>
    <message>
        <source>Show this page of the panel: %4.</source>
        <translation>Mostrare questa pagina del pannello: %4.</translation>
    </message>
    <message>
        <source>Show the phone's display alone, as large as the window and worked by touch: for a window that is a phone's.</source>
        <translation>Mostrare solo lo schermo del telefono, grande quanto la finestra e usato col tocco: per la finestra di un telefono.</translation>
    </message>
    <message>
        <source>Load the texts of the catalogue FILE (.qm).</source>
        <translation>Caricare i testi del catalogo FILE (.qm).</translation>
    </message>
    <message>
        <source>Speak this language: %5. Default: the locale's; English on a tour and with --photo.</source>
        <translation>Parlare questa lingua: %5. Predefinito: quella della localizzazione; inglese durante un giro e con --photo.</translation>
    </message>
    <message>
        <source>The colours: light or dark. Default: the desktop's; light on a tour and with --photo.</source>
        <translation>I colori: light (chiaro) o dark (scuro). Predefinito: quelli del desktop; light in una visita e con --photo.</translation>
    </message>
    <message>
        <source>Photograph the window as PNG to FILE and end.</source>
        <translation>Fotografare la finestra come PNG in FILE e terminare.</translation>
    </message>
    <message>
        <source>Play a tour without a display: put photographs of the screens into DIR and print their texts.</source>
        <translation>Fare un giro senza schermo: mettere fotografie delle schermate in DIR e mostrarne i testi.</translation>
    </message>
    <message>
        <source>Play this script instead of the tour of all screens; only with --tour.</source>
        <translation>Seguire questo script invece del giro di tutte le schermate; solo con --tour.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Option '%1' has an empty value.</source>
        <translation>L'opzione «%1» ha un valore vuoto.</translation>
    </message>
    <message>
        <source>The name that option '%1' gives is not UTF-8.</source>
        <translation>Il nome indicato dall'opzione «%1» non è UTF-8.</translation>
    </message>
    <message>
        <source>Unknown screen '%1'; there is: %2.</source>
        <translation>Schermata sconosciuta «%1»; ci sono: %2.</translation>
    </message>
    <message>
        <source>Unknown page '%1'; there is: %2.</source>
        <translation>Pagina sconosciuta «%1»; ci sono: %2.</translation>
    </message>
    <message>
        <source>Unknown language '%1'; there is: %2.</source>
        <translation>Lingua sconosciuta «%1»; ci sono: %2.</translation>
    </message>
    <message>
        <source>Unknown skin '%1'; there is: %2.</source>
        <translation>Tema "%1" sconosciuto; ci sono: %2.</translation>
    </message>
    <message>
        <source>Unexpected argument '%1'.</source>
        <translation>Argomento inatteso «%1».</translation>
    </message>
    <message>
        <source>Option 'script' needs option 'tour'.</source>
        <translation>L'opzione «script» richiede l'opzione «tour».</translation>
    </message>
    <message>
        <source>Option 'keep-calls' wants a number of days, 0 to %1.</source>
        <translation>L'opzione «keep-calls» richiede un numero di giorni, da 0 a %1.</translation>
    </message>
    <message>
        <source>Option '%1' does not go with option 'tour'.</source>
        <translation>L'opzione «%1» non va con l'opzione «tour».</translation>
    </message>
    <message>
        <source>Option 'page' does not go with option 'display'.</source>
        <translation>L'opzione «page» non va con l'opzione «display».</translation>
    </message>
    <message>
        <source>Option 'language' does not go with option 'translation'.</source>
        <translation>L'opzione «language» non va con l'opzione «translation».</translation>
    </message>
</context>
</TS>
